#include "editors/map/mapviewport.h"

#include "model/tilemap.h"

#include <algorithm>

namespace MapEditor {

namespace {

constexpr int TileSize = TileMap::TileSize;

/// QPoint's own division rounds.
constexpr QPoint divided(QPoint point, int by)
{
    return {point.x() / by, point.y() / by};
}

constexpr QSize divided(QSize size, int by)
{
    return {size.width() / by, size.height() / by};
}

constexpr int floorDivided(int value, int by)
{
    return value >= 0 ? value / by : -((by - 1 - value) / by);
}

constexpr QPoint floorDivided(QPoint point, int by)
{
    return {floorDivided(point.x(), by), floorDivided(point.y(), by)};
}

/// A distance in map pixels on the screen, held within what widgets can reckon with.
int onScreen(int pixels, int cellSize)
{
    constexpr qreal Reach = 1 << 28;
    return qRound(std::clamp(qreal(pixels) * cellSize / TileSize, -Reach, Reach));
}

} // namespace

bool MapViewport::setZoom(int factor)
{
    if (factor < MinimumZoom || factor > MaximumZoom)
        return false;
    zoomFactor = factor;
    cellSize = zoomFactor * baseSize;
    return true;
}

void MapViewport::setBaseSize(int pixels)
{
    baseSize = std::max(pixels, 1);
    cellSize = zoomFactor * baseSize;
}

void MapViewport::fit(QSize widget, QSize map)
{
    const QSize cells = viewportEnabled ? viewportSize : map;
    zoomFactor = 1;
    cellSize = cells.isEmpty()
        ? baseSize
        : std::max(1, std::min(widget.width() / cells.width(), widget.height() / cells.height()));
}

void MapViewport::layout(QSize widget, QSize map)
{
    QSize room = divided(widget, cellSize);
    if (viewportEnabled)
        room = room.boundedTo(viewportSize);
    const QSize shown = map.boundedTo(room).expandedTo({0, 0}) * cellSize;
    viewRect = QRect(QPoint((widget.width() - shown.width()) / 2, (widget.height() - shown.height()) / 2), shown);
    const QSize furthest = overflow(map).expandedTo({0, 0});
    scroll = {std::clamp(scroll.x(), 0, furthest.width()), std::clamp(scroll.y(), 0, furthest.height())};
}

bool MapViewport::scrollBy(QPoint direction, QSize map)
{
    const QSize furthest = overflow(map);
    if (direction.x() > 0 && scroll.x() < furthest.width())
        scroll.rx() += 1;
    else if (direction.x() < 0 && scroll.x() > 0)
        scroll.rx() -= 1;
    else if (direction.y() > 0 && scroll.y() < furthest.height())
        scroll.ry() += 1;
    else if (direction.y() < 0 && scroll.y() > 0)
        scroll.ry() -= 1;
    else
        return false;
    return true;
}

QSize MapViewport::visibleSize() const
{
    return divided(viewRect.size(), cellSize);
}

QPoint MapViewport::cellAt(QPoint point) const
{
    return scroll + divided(point - viewRect.topLeft(), cellSize);
}

QPoint MapViewport::snappedCellAt(QPoint point) const
{
    const QPoint shown = divided(point - viewRect.topLeft(), cellSize);
    if (snap <= 1)
        return scroll + shown;
    return floorDivided(scroll + divided(shown, snap) * snap, snap) * snap;
}

QPoint MapViewport::pixelAt(QPoint point) const
{
    return scroll * TileSize + divided((point - viewRect.topLeft()) * TileSize, cellSize);
}

QPoint MapViewport::snappedPixel(QPoint pixel) const
{
    return snap > 1 ? divided(pixel, snap * TileSize) * (snap * TileSize) : pixel;
}

QRect MapViewport::cellsUnder(const QRect &area) const
{
    const QRect inside = area.translated(-viewRect.topLeft());
    return {floorDivided(inside.topLeft(), cellSize) + scroll, floorDivided(inside.bottomRight(), cellSize) + scroll};
}

QRect MapViewport::rectOfCells(const QRect &cells) const
{
    return {viewRect.topLeft() + (cells.topLeft() - scroll) * cellSize, cells.size() * cellSize};
}

QRect MapViewport::rectOfPixels(const QRect &pixels) const
{
    const auto toWidget = [this](QPoint pixel) {
        const QPoint shown = pixel - scroll * TileSize;
        return viewRect.topLeft() + QPoint(onScreen(shown.x(), cellSize), onScreen(shown.y(), cellSize));
    };
    const QPoint topLeft = toWidget(pixels.topLeft());
    const QPoint end = toWidget(pixels.topLeft() + QPoint(pixels.width(), pixels.height()));
    return {topLeft, end - QPoint(1, 1)};
}

} // namespace MapEditor
