#pragma once

#include "editors/canvas/canvas.h"

#include "model/palette.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QtTest>
#include <QtWidgets>

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

/// A canvas of this many pixels in a widget that it fills exactly at zoom 16, with what it tells of edits.
struct CanvasScene
{
    Palette palette;
    Canvas canvas;
    Mouse mouse{canvas};
    QSignalSpy edits{&canvas, &Canvas::edited};

    explicit CanvasScene(QSize size) : canvas(size)
    {
        palette.loadStandardNext();
        canvas.bindPalette(&palette);
        canvas.resize(size * 16);
        canvas.show();
    }
    /// The texts of the edits, of which each must begin where the one before ended, so that undo comes back.
    QString texts() const
    {
        QStringList texts;
        QByteArray reached;
        for (const QVariantList &edit : edits) {
            const bool scroll = edit[3].value<PixelEditCommand::Kind>() == PixelEditCommand::Scroll;
            const bool follows = texts.isEmpty() || indices(edit[1].value<QImage>()) == reached;
            texts += follows && scroll == (edit[0] == "Scroll") ? edit[0].toString() : QStringLiteral("astray");
            reached = indices(edit[2].value<QImage>());
        }
        return (texts.isEmpty() || reached == indices(canvas.image()) ? texts : texts << "unrecorded").join(", ");
    }
};

} // namespace EditorInput
