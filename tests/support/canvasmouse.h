#pragma once

#include "editors/canvas/canvas.h"

#include "support/testmain.h"

#include <QApplication>
#include <QMouseEvent>

namespace EditorInput {

/// A mouse over a canvas, which it points at in image pixels.
struct Mouse
{
    Canvas &canvas;
    Qt::KeyboardModifiers keys{};

    QPoint centreOf(QPoint pixel) const
    {
        const QSize cell = canvas.geometryInWidget().cell();
        return canvas.geometryInWidget().pointOf(pixel) + QPoint(cell.width() / 2, cell.height() / 2);
    }
    void send(QEvent::Type type, QPoint pixel, Qt::MouseButtons held, Qt::MouseButton button) const
    {
        const QPoint point = centreOf(pixel);
        QMouseEvent event(type, point, canvas.mapToGlobal(point), button, held, keys);
        QApplication::sendEvent(&canvas, &event);
    }
    void press(QPoint pixel, Qt::MouseButton button = Qt::LeftButton, Qt::MouseButtons others = {}) const
    {
        send(QEvent::MouseButtonPress, pixel, others | button, button);
    }
    void move(QPoint pixel, Qt::MouseButtons held = {}) const { send(QEvent::MouseMove, pixel, held, Qt::NoButton); }
    void release(QPoint pixel, Qt::MouseButton button = Qt::LeftButton, Qt::MouseButtons others = {}) const
    {
        send(QEvent::MouseButtonRelease, pixel, others, button);
    }
    /// From the first pixel over the others to the last; a click when there is only one.
    void drag(const QList<QPoint> &pixels, Qt::MouseButton button = Qt::LeftButton) const
    {
        move(pixels.first());
        press(pixels.first(), button);
        for (const QPoint pixel : pixels.mid(1))
            move(pixel, button);
        release(pixels.last(), button);
    }
};

} // namespace EditorInput
