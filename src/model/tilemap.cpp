#include "model/tilemap.h"

#include <algorithm>

void TileMap::swapTiles(int a, int b)
{
    bool changed = false;
    for (Row &row : m_rows) {
        const auto holdsEither = [a, b](const TileData &cell) { return cell.index == a || cell.index == b; };
        if (std::none_of(row.cbegin(), row.cend(), holdsEither))
            continue;
        for (TileData &cell : row)
            cell.index = cell.index == a ? b : cell.index == b ? a : cell.index;
        changed = true;
    }
    if (changed)
        emit tilesChanged();
}
