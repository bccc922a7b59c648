// How the grid looks.

#include "editors/map/mapgrid.h"
#include "editors/map/maptool.h"
#include "model/placedsprites.h"
#include "model/tileset.h"

#include <QElapsedTimer>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace MapEditor {

namespace {

constexpr QColor GridLines(64, 64, 64);
constexpr QColor LightGrey(208, 208, 208); ///< of outlines
constexpr QColor DarkGrey(48, 48, 48);
constexpr int StripHeight = 64; ///< of a part of the grid lines, in screen pixels

/// A brush that repeats a square picture. Small ones are put together first: a brush is as slow as its picture is
/// narrow.
QBrush repeating(const QImage &square)
{
    constexpr int Enough = 256;
    const int times = std::max(Enough / square.width(), 1);
    QImage image(square.size() * times, QImage::Format_RGB32);
    QPainter(&image).fillRect(image.rect(), QBrush(square));
    return {image};
}

/// A checker board of two colours, one cell each, that starts with the first.
QImage checker(int cellSize, QColor first, QColor second)
{
    QImage image(cellSize * 2, cellSize * 2, QImage::Format_RGB32);
    image.fill(first);
    QPainter painter(&image);
    painter.fillRect(cellSize, 0, cellSize, cellSize, second);
    painter.fillRect(0, cellSize, cellSize, cellSize, second);
    return image;
}

} // namespace

void MapGrid::paintEvent(QPaintEvent *event)
{
    QElapsedTimer timer;
    timer.start();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    const QRect cells = m_map && isEnabled() ? m_viewport.viewRect : QRect();
    const QRegion margins = QRegion(rect()) - cells;
    for (const QRect &margin : margins)
        painter.fillRect(margin, palette().window());
    if (cells.isEmpty())
        return;

    painter.setClipRect(cells, Qt::IntersectClip);
    if (!isOpaque())
        paintBackground(painter);
    paintMap(painter, event->rect() & cells);
    if (const QRect sprite = spriteRect(m_hoverSprite); !sprite.isEmpty())
        paintOutline(painter, sprite);
    m_tool->paintUnder(painter);
    if (m_gridVisible)
        paintGridLines(painter);
    if (!m_highlight.isEmpty())
        paintOutline(painter, m_viewport.rectOfCells(m_highlight));
    m_tool->paintOver(painter);

    painter.setClipRegion(event->region());
    paintStatus(painter, timer.elapsed());
}

/// Whether the map hides all that lies beneath it, which then need not be painted.
bool MapGrid::isOpaque() const
{
    const QPointer<TileMap> layer = m_map->tileLayer();
    return m_transparencyIndex < 0 && layer && layer->isVisible() && layer->tileSet() && layer->tileSet()->palette()
        && layer->bounds().contains(m_viewport.visibleCells());
}

void MapGrid::paintBackground(QPainter &painter) const
{
    const QRect &area = m_viewport.viewRect;
    const int side = m_viewport.cellSize;
    const QPointer<TileSet> tiles = m_map->tileSet();
    painter.setBrushOrigin(area.topLeft());
    TileMap::TileData background;
    background.index = m_backgroundTileIndex;
    background.offset = tiles ? tiles->tileOffset(m_backgroundTileIndex) : 0;
    const QImage tile = tilePicture(background);
    if (!tile.isNull()) {
        painter.fillRect(area, repeating(tile.scaled(side, side)));
    } else if (m_checkerVisible) {
        const bool odd = (m_viewport.scroll.x() + m_viewport.scroll.y()) % 2 != 0; // squares scroll with the cells
        const auto &[first, second] =
            odd ? std::pair(m_gridColour2, m_gridColour1) : std::pair(m_gridColour1, m_gridColour2);
        painter.fillRect(area, repeating(checker(side, first, second)));
    } else {
        painter.fillRect(area, Qt::black);
    }
}

/// Paints what of the map lies in an area of the widget.
void MapGrid::paintMap(QPainter &painter, const QRect &dirty) const
{
    const QRect cells = m_viewport.cellsUnder(dirty);
    const QPoint origin = m_viewport.rectOfCells(cells).topLeft();
    m_map->paintLayers(painter, origin, cells, m_viewport.cellSize, m_transparencyIndex);
    if (m_map->spriteLayerVisible())
        PlacedSprites::paint(painter, origin, cells, m_viewport.cellSize, m_map->sprites(), m_spriteBanks,
                             m_spriteTicks);
}

QImage MapGrid::tilePicture(const TileMap::TileData &cell) const
{
    const QPointer<TileSet> tiles = m_map ? m_map->tileSet() : nullptr;
    if (!tiles || cell.index < 0 || cell.index >= tiles->count())
        return {};
    return tiles->tileImage(cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset);
}

void MapGrid::paintGridLines(QPainter &painter) const
{
    const QRect &area = m_viewport.viewRect;
    const int step = m_viewport.cellSize;
    for (int y = area.top(); y < area.bottom(); y += step)
        painter.fillRect(area.left(), y, area.width(), 1, GridLines);
    // in strips that stay in the processor's cache, which whole columns would not
    for (int y = area.top(); y <= area.bottom(); y += StripHeight) {
        const int height = std::min(StripHeight, area.bottom() + 1 - y);
        for (int x = area.left(); x < area.right(); x += step)
            painter.fillRect(x, y, 1, height, GridLines);
    }
}

void MapGrid::paintOutline(QPainter &painter, const QRect &area)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(LightGrey);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    painter.setPen(DarkGrey);
    painter.drawRect(area.adjusted(1, 1, -2, -2));
}

void MapGrid::paintStatus(QPainter &painter, qint64 milliseconds) const
{
    const QString text = QStringLiteral("  [%1:%2] %4ms  ").arg(m_hoverCell.x()).arg(m_hoverCell.y()).arg(milliseconds);
    // the text's base line, as far down as its letters need to be whole
    const QPoint at(10, std::max(10, painter.fontMetrics().ascent() + 2));
    painter.setPen(Qt::black);
    painter.drawText(at + QPoint(1, 1), text); // a shadow, so that it is seen on light ground
    painter.setPen(Qt::white);
    painter.drawText(at, text);
}

} // namespace MapEditor
