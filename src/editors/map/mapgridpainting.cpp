// How the grid looks.

#include "editors/map/mapgrid.h"
#include "editors/map/maptool.h"
#include "model/placedsprites.h"
#include "model/tileset.h"

#include <QElapsedTimer>
#include <QPaintEvent>
#include <QPainter>

#include <array>

namespace MapEditor {

namespace {

constexpr QColor GridLines(64, 64, 64);

/// A checker board of two colours, one cell each, that starts with the first.
QBrush checkerBrush(int cellSize, QColor first, QColor second)
{
    QImage image(cellSize * 2, cellSize * 2, QImage::Format_RGB32);
    image.fill(first);
    QPainter painter(&image);
    painter.fillRect(cellSize, 0, cellSize, cellSize, second);
    painter.fillRect(0, cellSize, cellSize, cellSize, second);
    return {image};
}

} // namespace

void MapGrid::paintEvent(QPaintEvent *event)
{
    QElapsedTimer timer;
    timer.start();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    const QRect cells = m_map ? m_viewport.viewRect : QRect();
    const QRegion margins = QRegion(rect()) - cells;
    for (const QRect &margin : margins)
        painter.fillRect(margin, palette().window());
    if (!isEnabled() || !m_map)
        return;

    painter.setClipRect(cells, Qt::IntersectClip);
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

void MapGrid::paintBackground(QPainter &painter) const
{
    const QRect &area = m_viewport.viewRect;
    const QPointer<TileSet> tiles = m_map->tileSet();
    if (tiles && m_backgroundTileIndex >= 0 && m_backgroundTileIndex < tiles->count()) {
        const int side = m_viewport.cellSize;
        const QImage tile =
            tilePicture({.index = m_backgroundTileIndex, .offset = tiles->tileOffset(m_backgroundTileIndex)});
        painter.setBrushOrigin(area.topLeft());
        painter.fillRect(area, QBrush(tile.scaled(side, side)));
    } else if (m_checkerVisible) {
        const bool odd = (m_viewport.scroll.x() + m_viewport.scroll.y()) % 2 != 0; // squares scroll with the cells
        painter.setBrushOrigin(area.topLeft());
        painter.fillRect(area,
                         checkerBrush(m_viewport.cellSize, odd ? m_gridColour2 : m_gridColour1,
                                      odd ? m_gridColour1 : m_gridColour2));
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
    QList<QLine> lines;
    for (int y = area.top(); y < area.bottom(); y += m_viewport.cellSize)
        lines.append(QLine(area.left(), y, area.right(), y));
    for (int x = area.left(); x < area.right(); x += m_viewport.cellSize)
        lines.append(QLine(x, area.top(), x, area.bottom()));
    painter.setPen(GridLines);
    painter.drawLines(lines);
}

void MapGrid::paintOutline(QPainter &painter, const QRect &area)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Qt::lightGray);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    painter.setPen(Qt::darkGray);
    painter.drawRect(area.adjusted(1, 1, -2, -2));
}

void MapGrid::paintStatus(QPainter &painter, qint64 milliseconds) const
{
    painter.setPen(Qt::white);
    painter.drawText(10, 10,
                     QStringLiteral("  [%1:%2] %4ms  ").arg(m_hoverCell.x()).arg(m_hoverCell.y()).arg(milliseconds));
}

} // namespace MapEditor
