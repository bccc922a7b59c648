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
    /// The keys held with them, as far as they mean something on this canvas.
    Qt::KeyboardModifiers keys = Qt::NoModifier;

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

    /// Lines are to be straight, and shapes as high as wide.
    bool isGuided() const { return keys & Qt::ShiftModifier; }

    void endDrag() { pressed = current = Nowhere; }

    /// The rectangle that two pixels span, both included.
    static QRect between(QPoint corner, QPoint opposite)
    {
        // of lists, for minmax() of two numbers gives references to them
        const auto [left, right] = std::minmax({corner.x(), opposite.x()});
        const auto [top, bottom] = std::minmax({corner.y(), opposite.y()});
        return {QPoint(left, top), QPoint(right, bottom)};
    }
};
