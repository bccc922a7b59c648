#pragma once

#include "pictures/colourchoice.h"

#include <vector>

/// Groups of a few colours for tiles, each of which shows the colours of one group.
///
/// They are found for all tiles together: from several beginnings (first come, first served; most colours first; tiles
/// of like colours) every group takes the best colours for its tiles and every tile the best group, in turns, which
/// never makes it worse. So the result is at least as good as first come, first served, and has no error where one of
/// the beginnings has none.
struct ColourGroups
{
    struct Bin
    {
        quint16 colour;
        int count;
    };
    /// The colours of a tile, and how often the tile is seen.
    struct Tile
    {
        std::vector<Bin> bins;
        qint64 weight = 1;
    };

    std::vector<ColourChoice::Colours> groups;
    std::vector<int> groupOf; ///< by tile
    qint64 error = 0; ///< squared distances of all pixels seen

    /// At most mostGroups groups of at most mostColours colours.
    [[nodiscard]] static ColourGroups find(const std::vector<Tile> &tiles, int mostGroups, int mostColours);
};
