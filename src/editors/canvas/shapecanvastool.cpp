#include "editors/canvas/shapecanvastool.h"

#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvassurface.h"
#include "editors/common/raster.h"

#include <QCursor>

void ShapeCanvasTool::activate()
{
    canvas()->showCursor(Qt::CrossCursor);
    canvas()->resetDrag();
}

void ShapeCanvasTool::mouseReleased(QMouseEvent *)
{
    // The second of two buttons comes up after the drag has ended.
    if (canvas()->pointer().buttons == Qt::NoButton)
        return;
    canvas()->applyEdit(text(), PixelEditCommand::None, [this](Layer2Image &layer) {
        drawPreview(layer);
        canvas()->resetDrag();
    });
}

void ShapeCanvasTool::drawPreview(Layer2Image &layer) const
{
    PixelPen pen = canvas()->pen(layer, PixelPen::Ink);
    draw(pen);
}

bool ShapeCanvasTool::hasPreview() const
{
    return true;
}

QPoint ShapeCanvasTool::pressed() const
{
    return canvas()->pointer().pressed;
}

QPoint ShapeCanvasTool::current() const
{
    const CanvasPointer &pointer = canvas()->pointer();
    return pointer.isGuided() ? guided(pointer.pressed, pointer.current) : pointer.current;
}

QPoint ShapeCanvasTool::guided(QPoint start, QPoint end) const
{
    return Raster::squared(start, end);
}

QRect ShapeCanvasTool::dragRect() const
{
    return CanvasPointer::between(pressed(), current());
}
