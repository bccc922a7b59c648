#include "editors/map/mappainter.h"

#include "model/placedsprites.h"

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

void MapPainter::paintContent(QPainter &painter, const QRect &dirty) const
{
    const Map &map = *m_content.map();
    const QRect cells = m_viewport.cellsUnder(dirty);
    const QPoint origin = m_viewport.rectOfCells(cells).topLeft();
    const int side = m_viewport.cellSize;
    const QPointer<TileMap> layer = map.tileLayer();
    painter.setBackground(background());
    if (!layer || !layer->isVisible() || !layer->tileSet() || !layer->tileSet()->palette())
        painter.eraseRect(dirty); // which the tile layer does not cover
    painter.setBackgroundMode(Qt::OpaqueMode);
    map.paintLayers(painter, origin, cells, side, m_display.transparencyIndex);
    painter.setBackgroundMode(Qt::TransparentMode);
    if (map.spriteLayerVisible())
        PlacedSprites::paint(painter, origin, cells, side, map.sprites(), m_content.spriteBanks(),
                             m_display.spriteTicks);
}

/// What shows through transparent pixels and where the tile layer is hidden.
QBrush MapPainter::background() const
{
    const int side = m_viewport.cellSize;
    const QPointer<TileSet> tiles = m_content.map()->tileSet();
    TileMap::TileData cell;
    cell.index = m_display.backgroundTileIndex;
    cell.offset = tiles ? tiles->tileOffset(cell.index) : 0;
    if (const QImage tile = tilePicture(m_content.map(), cell); !tile.isNull())
        return repeating(tile.scaled(side, side).convertToFormat(QImage::Format_RGB32));
    if (!m_display.showsChecker())
        return Qt::black;
    const bool odd = (m_viewport.scroll.x() + m_viewport.scroll.y()) % 2 != 0; // squares scroll with the cells
    const QColor &first = odd ? m_display.gridColour2 : m_display.gridColour1;
    return repeating(checker(side, first, odd ? m_display.gridColour1 : m_display.gridColour2));
}

void MapPainter::paintGridLines(QPainter &painter) const
{
    painter.fillRect(m_viewport.viewRect, repeating(lines(m_viewport.cellSize, GridLines)));
}

QImage MapPainter::tilePicture(const QPointer<Map> &map, const TileMap::TileData &cell)
{
    const QPointer<TileSet> tiles = map ? map->tileSet() : nullptr;
    if (!tiles || cell.index < 0 || cell.index >= tiles->count())
        return {};
    return tiles->shownTileImage(cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset);
}

void MapPainter::paintOutline(QPainter &painter, const QRect &area, int thickness)
{
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < 2 * thickness; ++i) {
        painter.setPen(i < thickness ? LightGrey : DarkGrey);
        painter.drawRect(area.adjusted(i, i, -i - 1, -i - 1));
    }
}

void MapPainter::paintSelection(QPainter &painter, const QRect &area)
{
    constexpr int Roomy = 16; // smaller ones would be all outline
    paintOutline(painter, area, std::min(area.width(), area.height()) < Roomy ? 1 : 2);
}

void MapPainter::paintRuns(QPainter &painter, const MapViewport &viewport, const CellRuns::Runs &runs)
{
    constexpr int Roomy = 4; // in smaller cells outlines would hide what is selected
    constexpr QColor Veil(255, 255, 255, 72);
    const QRect shown = viewport.visibleCells();
    const auto [first, last] = CellRuns::inRows(runs, shown.top(), shown.bottom());
    QRegion inside;
    for (auto run = first; run != last; ++run) {
        const QRect area = viewport.rectOfCells(QRect(run->column, run->row, run->count, 1) & shown);
        painter.fillRect(area, Veil);
        if (viewport.cellSize >= Roomy)
            inside += area;
    }
    const QRegion all = inside;
    for (const auto &[width, colour] : {std::pair(1, LightGrey), {2, DarkGrey}}) {
        // what is within so many pixels of the edge, on any side
        const QRegion core =
            all.translated(width, 0) & all.translated(-width, 0) & all.translated(0, width) & all.translated(0, -width);
        for (const QRect &edge : inside - core)
            painter.fillRect(edge, colour);
        inside &= core;
    }
}

void MapPainter::paintStatus(QPainter &painter, QPoint cell, qint64 milliseconds)
{
    const QString text = QStringLiteral("  [%1:%2] %4ms  ").arg(cell.x()).arg(cell.y()).arg(milliseconds);
    // the text's base line, as far down as its letters need to be whole
    const QPoint at(10, std::max(10, painter.fontMetrics().ascent() + 2));
    painter.setLayoutDirection(Qt::LeftToRight); // it has no words that could be read the other way
    painter.setPen(Qt::black);
    painter.drawText(at + QPoint(1, 1), text); // a shadow, so that it is seen on light ground
    painter.setPen(Qt::white);
    painter.drawText(at, text);
}

} // namespace MapEditor
