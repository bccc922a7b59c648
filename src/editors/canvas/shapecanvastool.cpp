#include "editors/canvas/shapecanvastool.h"

#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvassurface.h"
#include "editors/canvas/layer2image.h"

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
        draw(layer);
        canvas()->resetDrag();
    });
}

void ShapeCanvasTool::drawPreview(Layer2Image &layer) const
{
    draw(layer);
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
    return canvas()->pointer().current;
}

QRect ShapeCanvasTool::dragRect() const
{
    return canvas()->pointer().dragged();
}
