#pragma once

#include "pictures/pixeltile.h"

#include <vector>

/// A few tiles that stand for many.
///
/// The tiles are split in two, again and again, where they differ most, and each of the parts becomes one tile, the
/// mean of those in it. Then every tile looks for the nearest one, and the means are taken once more.
struct TileCodebook
{
    std::vector<PixelTile> tiles;
    std::vector<int> standsFor; ///< for each tile given, the one of these that is shown in its place

    /// At most this many tiles; each is seen as often as its weight says.
    [[nodiscard]] static TileCodebook find(const std::vector<PixelTile> &tiles, const std::vector<int> &weights,
                                           int most);
};
