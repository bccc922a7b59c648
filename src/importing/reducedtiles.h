#pragma once

#include "importing/incomingassets.h"
#include "pictures/tilereduction.h"

namespace Importing {

/// Tiles that were found for a picture, with their palette, and a map of them.
[[nodiscard]] IncomingAssets incomingOf(const TileReduction &reduction);

/// The cell of a map that shows a cell of a reduction.
[[nodiscard]] TileMap::TileData cellOf(const TileReduction &reduction, const TileReduction::Cell &cell);

} // namespace Importing
