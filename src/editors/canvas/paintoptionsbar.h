#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

class PaintSettings;
class QMenu;
class QToolButton;

/// A strip of small buttons for how the tools beside it paint, in rows of the width that it is given.
class PaintOptionsBar : public QWidget
{
    Q_OBJECT

public:
    explicit PaintOptionsBar(QWidget *parent = nullptr);

    void setSettings(PaintSettings *settings);
    /// Adds a button for something else, after the others.
    void addButton(QAction *action);

private:
    static QString sizeText(int size);
    QToolButton *insertButton(int place);
    void showBrush();

    QPointer<PaintSettings> m_settings;
    QToolButton *m_size;
    QMenu *m_sizes;
    QList<QToolButton *> m_choices;
};
