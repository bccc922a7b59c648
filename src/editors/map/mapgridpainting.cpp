// How the grid looks.

#include "editors/map/mapgrid.h"
#include "editors/map/maptool.h"
#include "model/placedsprites.h"
#include "model/tileset.h"

#include <QElapsedTimer>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace MapEditor {

namespace {

constexpr QColor GridLines(64, 64, 64);
constexpr QColor LightGrey(208, 208, 208); ///< of outlines
constexpr QColor DarkGrey(48, 48, 48);

/// A brush that repeats a square picture. Narrow ones are put side by side first: a brush is as slow as its picture
/// is narrow.
QBrush repeating(const QImage &square)
{
    constexpr int Enough = 512;
    const int times = Enough / square.width();
    if (times <= 1)
        return {square};
    QImage image(square.width() * times, square.height(), square.format());
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (int i = 0; i < times; ++i)
        painter.drawImage(i * square.width(), 0, square);
    return {image};
}

/// The lines at the left and at the top of a cell.
QImage lines(int cellSize, QColor colour)
{
    QImage image(cellSize, cellSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(0, 0, cellSize, 1, colour);
    painter.fillRect(0, 0, 1, cellSize, colour);
    return image;
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
    painter.setBrushOrigin(cells.topLeft());
    paintMap(painter, event->rect() & cells);
    if (const QRect sprite = spriteRect(m_hoverSprite); !sprite.isEmpty())
        paintOutline(painter, sprite);
    m_tool->paintUnder(painter);
    if (m_gridVisible)
        painter.fillRect(cells, repeating(lines(m_viewport.cellSize, GridLines)));
    if (!m_highlight.isEmpty())
        paintOutline(painter, m_viewport.rectOfCells(m_highlight));
    m_tool->paintOver(painter);

    painter.setClipRegion(event->region());
    paintStatus(painter, timer.elapsed());
}

/// What shows through transparent pixels and where the tile layer is hidden.
QBrush MapGrid::background() const
{
    const int side = m_viewport.cellSize;
    const QPointer<TileSet> tiles = m_map->tileSet();
    TileMap::TileData cell;
    cell.index = m_backgroundTileIndex;
    cell.offset = tiles ? tiles->tileOffset(m_backgroundTileIndex) : 0;
    if (const QImage tile = tilePicture(cell); !tile.isNull())
        return repeating(tile.scaled(side, side).convertToFormat(QImage::Format_RGB32));
    if (!m_checkerBoard || !m_checkerVisible)
        return Qt::black;
    const bool odd = (m_viewport.scroll.x() + m_viewport.scroll.y()) % 2 != 0; // squares scroll with the cells
    return repeating(odd ? checker(side, m_gridColour2, m_gridColour1) : checker(side, m_gridColour1, m_gridColour2));
}

/// Paints what of the map lies in an area of the widget.
void MapGrid::paintMap(QPainter &painter, const QRect &dirty) const
{
    const QRect cells = m_viewport.cellsUnder(dirty);
    const QPoint origin = m_viewport.rectOfCells(cells).topLeft();
    const QPointer<TileMap> layer = m_map->tileLayer();
    painter.setBackground(background());
    if (!layer || !layer->isVisible() || !layer->tileSet() || !layer->tileSet()->palette())
        painter.eraseRect(dirty); // which the tile layer does not cover
    painter.setBackgroundMode(Qt::OpaqueMode);
    m_map->paintLayers(painter, origin, cells, m_viewport.cellSize, m_transparencyIndex);
    painter.setBackgroundMode(Qt::TransparentMode);
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

void MapGrid::paintSelection(QPainter &painter) const
{
    if (!m_selection.isEmpty())
        paintOutline(painter, m_viewport.rectOfCells(m_selection));
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
