#include "editors/canvas/canvasgeometry.h"

#include <algorithm>

namespace {

struct Span
{
    int start;
    int length;
};

/// Lays out one axis: the place of the image on a side of the widget.
Span layoutAxis(int widget, int image, int cell)
{
    const int usable = widget / cell * cell;
    const int length = std::min(image * cell, usable);
    return {(widget - length) / 2, length};
}

int clampScroll(int value, int maximum)
{
    if (value < 0)
        return 0;
    return std::min(value, std::max(maximum, 0));
}

} // namespace

void CanvasGeometry::layout(QSize widget, QSize image)
{
    const Span across = layoutAxis(widget.width(), image.width(), cell().width());
    const Span down = layoutAxis(widget.height(), image.height(), cell().height());
    imageRect = QRect(across.start, down.start, across.length, down.length);
    scroll = scrolled(QPoint(), image);
}

QPoint CanvasGeometry::scrolled(QPoint delta, QSize image) const
{
    const QPoint moved = scroll - delta;
    const QSize shown = visiblePixels().size();
    return {clampScroll(moved.x(), image.width() - shown.width()),
            clampScroll(moved.y(), image.height() - shown.height())};
}
