#pragma once

#include <vector>

class Map;
class TileSet;

/// Which tiles of a set are shown by the maps and the animations of its project.
namespace TileUse {

/// One entry a tile. A map may be left out, whose cells are going to be others.
[[nodiscard]] std::vector<bool> of(const TileSet &tileSet, const Map *leftOut = nullptr);

/// Whether nothing was ever drawn in a tile, nor told of it.
[[nodiscard]] bool isBlank(const TileSet &tileSet, int tile);

} // namespace TileUse
