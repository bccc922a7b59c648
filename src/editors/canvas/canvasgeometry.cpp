#include "editors/canvas/canvasgeometry.h"

#include <QStyle>

#include <algorithm>

void CanvasGeometry::layout(QSize widget, QSize image)
{
    const QSize usable(widget.width() / cell().width() * cell().width(),
                       widget.height() / cell().height() * cell().height());
    imageRect =
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, scaled(image).boundedTo(usable), QRect(QPoint(), widget));
    scroll = scrolled(QPoint(), image);
}

QPoint CanvasGeometry::scrolled(QPoint delta, QSize image) const
{
    const QPoint moved = scroll - delta;
    const QSize hidden = (image - visiblePixels().size()).expandedTo({0, 0});
    return {std::clamp(moved.x(), 0, hidden.width()), std::clamp(moved.y(), 0, hidden.height())};
}

QRect CanvasGeometry::bandBetween(QPoint from, QPoint to) const
{
    const auto snapped = [this](QPoint point) {
        const QPoint offset = point - imageRect.topLeft();
        return point - QPoint(offset.x() % cell().width(), offset.y() % cell().height());
    };
    const QPoint a = snapped(from);
    const QPoint b = snapped(to);
    const auto [left, right] = std::minmax({a.x(), b.x()});
    const auto [top, bottom] = std::minmax({a.y(), b.y()});
    return {QPoint(std::max(left, imageRect.left()), std::max(top, imageRect.top())),
            QPoint(std::min(right, imageRect.right()), std::min(bottom, imageRect.bottom()))};
}
