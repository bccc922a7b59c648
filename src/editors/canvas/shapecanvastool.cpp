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
    canvas()->beginEdit();
    draw(canvas()->layer());
    canvas()->resetDrag();
    canvas()->update();
    emit canvas()->imageChanged();
    canvas()->finishEdit(text(), PixelEditCommand::None);
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
