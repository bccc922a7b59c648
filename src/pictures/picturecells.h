#pragma once

#include "model/tilemap.h"

#include <QImage>
#include <QList>
#include <QSize>

#include <array>
#include <vector>

class Palette;
class TileSet;

/// A picture as cells of a map: the tiles that its set has, in any orientation, and those that are still needed.
///
/// A colour is taken for the one of the machine's that looks most like it. A tile that is needed takes the group of
/// colours of the set's palette in which it loses least. Nothing is changed before addTo().
struct PictureCells
{
    static constexpr int Side = 8;
    static constexpr int MostTiles = 512;

    /// A tile that the set does not have; its pixels are entries of the palette.
    struct Addition
    {
        std::array<uchar, size_t(Side) * Side> pixels;
        int group;
    };

    QSize size; ///< in cells
    /// Row by row. An index behind the tiles of the set counts the additions; cells that are left out are not used.
    std::vector<TileMap::TileData> cells;
    std::vector<Addition> additions;
    QList<int> places; ///< of the additions: free tiles of the set, and behind its end; too few where there is no room
    qint64 lostPixels = 0; ///< that show another colour than the picture's

    struct Choices
    {
        int clearPixel = -1; ///< that clear pixels get (0–15) and no colour; with -1 they take their colour
        QList<int> freeTiles{}; ///< of the set, which may be replaced, in this order
        bool leavesOutClearCells = true; ///< those that are clear all over
        const Palette *palette = nullptr; ///< that the set is going to have; null for the one that it has
    };

    /// What is no whole cell at the right and bottom is filled up with clear pixels, or left out where there are none.
    [[nodiscard]] static PictureCells of(const QImage &picture, const TileSet &tileSet, const Choices &choices);
    /// Those in which nothing was drawn, and that nothing shows: first the ones at the end.
    [[nodiscard]] static QList<int> blankTiles(const TileSet &tileSet);

    [[nodiscard]] bool hasRoom() const { return places.size() == qsizetype(additions.size()); }
    /// Gives the set the tiles that it needs, and the cells the indices that these have there.
    void addTo(TileSet &tileSet);
};
