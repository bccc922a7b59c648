#pragma once

#include <QWidget>

class QScrollBar;
class QToolButton;

namespace Quenmora {
enum Position : int; // an end: 0 is the beginning, 1 the end; named where rows and columns are kept
}

/// A scroll bar with two buttons at each end, which add and remove a row or column at that end.
///
/// A horizontal bar speaks of columns, a vertical one of rows. The two buttons with which something
/// is removed can be disabled when nothing may be taken away.
class ScrollBar : public QWidget
{
    Q_OBJECT

public:
    explicit ScrollBar(Qt::Orientation orientation, QWidget *parent = nullptr);

    [[nodiscard]] Qt::Orientation orientation() const;
    [[nodiscard]] int value() const;
    [[nodiscard]] int minimum() const;
    [[nodiscard]] int maximum() const;
    void setRange(int minimum, int maximum);
    void setPageStep(int step);

    /// The bar between the buttons.
    [[nodiscard]] QScrollBar *bar() const { return m_bar; }

    /// The buttons from the beginning to the end: add, remove, remove, add.
    [[nodiscard]] const QList<QToolButton *> &buttons() const { return m_buttons; }
    void setRemoveEnabled(bool enabled);

public slots:
    void setValue(int value);

signals:
    void valueChanged(int value);
    void add(Quenmora::Position position);
    void remove(Quenmora::Position position);

private:
    QToolButton *makeButton(const QString &icon, const QString &text);

    QScrollBar *m_bar;
    QList<QToolButton *> m_buttons;
    QList<QToolButton *> m_removeButtons;
};
