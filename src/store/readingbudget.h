#pragma once

#include "model/tilemapformat.h"

/// What the assets of one project file may cost together. A file is a thousand times smaller than what can be packed
/// into it, and one member serves as many assets as name it.
class ReadingBudget
{
public:
    /// The pixels of the largest picture, in bytes of memory.
    static constexpr qint64 MaxPicture = qint64(64) << 20;
    /// Memory that a tile takes for each of its pixels, being an object with a picture of its own.
    static constexpr int TilePixel = 8;

    /// Whether pixels that take so much memory can still be read, which they then are. Tiles take more than that.
    [[nodiscard]] bool takePixels(qint64 bytes, bool areTiles, bool again)
    {
        if (bytes > MaxPicture)
            return false;
        m_pixels -= bytes * (areTiles ? TilePixel : 1) * (again ? Again : 1);
        return m_pixels >= 0;
    }

    /// Runs read(TileMapFormat::Budget &) on what cells can still be read.
    template <class Read>
    [[nodiscard]] auto takeCells(bool again, Read read)
    {
        const int weight = again ? Again : 1;
        const TileMapFormat::Budget granted{m_cells.cells / weight, m_cells.memory / weight};
        TileMapFormat::Budget left = granted;
        auto rows = read(left);
        m_cells.cells -= (granted.cells - left.cells) * weight;
        m_cells.memory -= (granted.memory - left.memory) * weight;
        return rows;
    }

private:
    /// What is read for an id once more takes the place of what was read before: that much work for nothing.
    static constexpr int Again = 8;

    qint64 m_pixels = qint64(1) << 28; ///< four of the largest pictures, or half a million tiles
    /// Some maps of 9999 × 9999 cells, one of them without two rows that are equal.
    TileMapFormat::Budget m_cells{qint64(1) << 29, qint64(1) << 27};
};
