#pragma once

#include "ui/celltable.h"

#include <QPointer>

#include <optional>

class KeyMark;
class QKeyEvent;

/// A cursor that the keyboard moves over the cells of a widget, and that does there what the mouse would do.
///
/// Ctrl and the arrow keys move it by one cell, Page Up and Page Down by eight (with Alt to the sides), Home and End to
/// the ends of a row, with Ctrl to the first and last cell. With Shift they select. Space is the left button, with
/// Shift the right one: held while the cursor moves it drags. Enter picks what is under the cursor.
///
/// It appears with the first of these keys, or when the keyboard comes to the widget by Tab or a shortcut, and leaves
/// when the mouse moves. Of the keys that it uses the widget hears nothing, and of a cursor that is not shown it hears
/// all but Ctrl with an arrow key.
class KeyCursor : public CellTable
{
    Q_OBJECT

public:
    explicit KeyCursor(QWidget *widget);

    [[nodiscard]] bool isShown() const { return m_shown; }
    [[nodiscard]] QPoint current() const override { return exists(m_cell) ? m_cell : Nowhere; }
    /// Moves the cursor to the cell, shows it and clicks.
    void choose(QPoint cell) override;

signals:
    /// The cursor is on another cell.
    void moved(QPoint cell);

protected:
    /// The cells that are in view.
    [[nodiscard]] virtual QRect visibleCells() const = 0;
    /// Scrolls until a cell is the first one in view; what is being dragged stays where it is.
    virtual void scrollTo(QPoint first) = 0;
    /// The point of the widget at which the mouse would be on the cell.
    [[nodiscard]] virtual QPoint pointOf(QPoint cell) const { return area(cell).center(); }
    /// Picks what the cell shows; the other of two colours when there are two.
    virtual void pick(QPoint cell, bool other) = 0;
    virtual void select(const QRect &cells) = 0;
    virtual void selectNone() = 0;
    /// Whether Space draws a selection from the cell on, as Shift does.
    [[nodiscard]] virtual bool selectsFrom(QPoint cell) const = 0;
    virtual void openMenu(QPoint globalPosition) = 0;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool keyPressed(const QKeyEvent &event);
    bool keyReleased(const QKeyEvent &event);
    void followMouse(QEvent *event);
    void show();
    void hide();
    void placeMark();
    /// Brings a cell into view.
    void reveal(QPoint cell);
    void moveTo(QPoint cell, Qt::KeyboardModifiers keys);
    void press(Qt::KeyboardModifiers keys);
    void release();
    /// Sends the widget an event of a mouse; false when it is gone thereby.
    [[nodiscard]] bool send(QEvent::Type type, Qt::MouseButton button);

    QPoint m_cell{0, 0};
    QPointer<KeyMark> m_mark;
    bool m_shown = false;
    bool m_returns = false; ///< was shown when the keyboard went elsewhere
    bool m_sending = false; ///< an event that is not the mouse's
    QPoint m_mouse; ///< on the screen
    Qt::MouseButton m_held = Qt::NoButton;
    Qt::KeyboardModifiers m_keys; ///< that a tool is told of
    std::optional<QPoint> m_anchor; ///< of the selection that is being drawn
    bool m_selecting = false; ///< by Space
};
