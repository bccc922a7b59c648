#include "importing/reducedtiles.h"

#include "importing/texts.h"
#include "pictures/pixeltile.h"

#include <QLocale>

namespace Importing {

TileMap::TileData cellOf(const TileReduction &reduction, const TileReduction::Cell &cell)
{
    return {.index = cell.tile,
            .rotate = (cell.orientation & TileOrientation::RotateBit) != 0,
            .flip = (cell.orientation & TileOrientation::FlipBit) != 0,
            .mirror = (cell.orientation & TileOrientation::MirrorBit) != 0,
            .offset = reduction.groups[size_t(cell.tile)],
            .used = true};
}

IncomingAssets incomingOf(const TileReduction &reduction)
{
    IncomingAssets incoming{.palette = NextData::PaletteContent{0, reduction.words}};
    incoming.palette->transparency = reduction.hasClearPixels ? TileReduction::ClearPixel : -1;
    incoming.tiles.emplace();
    for (size_t i = 0; i < reduction.tiles.size(); ++i) {
        NextData::TilesContent::Pixels tile{.offset = reduction.groups[i]};
        for (size_t at = 0; at < tile.pixels.size(); ++at)
            tile.pixels[at] = reduction.tiles[i][at] & 15;
        incoming.tiles->tiles.append(tile);
    }
    incoming.map = IncomingMap{.transparency = reduction.hasClearPixels ? TileReduction::ClearPixel : -1};
    const int columns = reduction.size.width();
    for (int y = 0; y < reduction.size.height(); ++y) {
        TileMap::Row row(columns);
        for (int x = 0; x < columns; ++x)
            row[x] = cellOf(reduction, reduction.cells[size_t(y) * size_t(columns) + size_t(x)]);
        incoming.map->rows.append(row);
    }
    const QLocale locale;
    if (reduction.lossyCells > 0 || reduction.mergedCells > 0) {
        incoming.remarks.append(
            Texts::tr("Of %1 pieces of 8 × 8 pixels, %2 lose colours and %3 get a tile that is like "
                      "theirs; mean error: %4 levels")
                .arg(locale.toString(qint64(reduction.cells.size())), locale.toString(reduction.lossyCells),
                     locale.toString(reduction.mergedCells), locale.toString(reduction.error, 'f', 2)));
    }
    return incoming;
}

} // namespace Importing
