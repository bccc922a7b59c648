#pragma once

#include <QPoint>
#include <QRect>

#include <algorithm>

/// Where the mouse is on a canvas, and what it drags, in image pixels.
struct CanvasPointer
{
    static constexpr QPoint Nowhere{-1, -1};

    /// The pixel under the pointer; Nowhere after the pointer left.
    QPoint cursor;
    /// The pixels of the last press, and of the last press, move or release; Nowhere when nothing is dragged.
    QPoint pressed = Nowhere;
    QPoint current = Nowhere;
    /// The buttons held since the last press.
    Qt::MouseButtons buttons = Qt::NoButton;

    void press(QPoint pixel, Qt::MouseButtons held)
    {
        buttons = held;
        pressed = current = cursor = pixel;
    }

    /// False when the pointer is still on the same pixel.
    [[nodiscard]] bool moveTo(QPoint pixel)
    {
        if (pixel == cursor)
            return false;
        current = cursor = pixel;
        return true;
    }

    void endDrag() { pressed = current = Nowhere; }

    /// The rectangle that the drag spans, both corners included.
    QRect dragged() const
    {
        // of lists, for minmax() of two numbers gives references to them
        const auto [left, right] = std::minmax({pressed.x(), current.x()});
        const auto [top, bottom] = std::minmax({pressed.y(), current.y()});
        return {QPoint(left, top), QPoint(right, bottom)};
    }
};
