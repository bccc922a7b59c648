#include "editors/canvas/shapecanvastool.h"

#include "editors/canvas/canvas.h"

#include <algorithm>

void ShapeCanvasTool::activate()
{
    canvas()->setCursor(Qt::CrossCursor);
    canvas()->resetDrag();
}

void ShapeCanvasTool::mouseReleased(QMouseEvent *)
{
    // The second of two buttons comes up after the drag has ended.
    if (canvas()->heldButtons() == Qt::NoButton)
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
    return canvas()->pressPixel();
}

QPoint ShapeCanvasTool::current() const
{
    return canvas()->currentPixel();
}

QRect ShapeCanvasTool::dragRect() const
{
    const auto [left, right] = std::minmax({pressed().x(), current().x()});
    const auto [top, bottom] = std::minmax({pressed().y(), current().y()});
    return {QPoint(left, top), QPoint(right, bottom)};
}
