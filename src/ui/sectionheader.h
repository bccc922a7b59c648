#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;

/// The line above a part of a window: its title in bold, and at the end small buttons for what can
/// be done with it.
class SectionHeader : public QWidget
{
    Q_OBJECT

public:
    explicit SectionHeader(const QString &text, QWidget *parent = nullptr);

    /// The part of a window that has this line at the top and the content below it, both of which it takes over.
    [[nodiscard]] static QWidget *over(QWidget *content, SectionHeader *header);

    [[nodiscard]] QString text() const;

    /// A button for an action after those that are there; named by the action's text.
    QToolButton *addActionButton(QAction *action);

    /// Any other widget after those that are there.
    void addTool(QWidget *widget);

public slots:
    void setText(const QString &text);

private:
    QLabel *m_text;
    QHBoxLayout *m_layout;
};
