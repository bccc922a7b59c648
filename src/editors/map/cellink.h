#pragma once

#include "model/map.h"
#include "model/stamp.h"
#include "model/tileset.h"

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QtGlobal>

#include <limits>
#include <span>

namespace MapEditor {

/// What becomes of the cells that a tool goes over: a stamp, which repeats from an origin on, or a part of it.
struct CellInk
{
    enum Part {
        Cells, ///< the stamp's cells; where it has none, what is there stays
        Everything, ///< the same, but also cells that were never written
        Nothing, ///< cells count as never written
        Offsets, ///< the palette offsets alone, of cells that were written
        OwnOffsets, ///< cells that were written get the palette offset of their tile again
    };

    Stamp stamp;
    QPoint origin;
    Part part = Cells;
    /// Each cell is any of the stamp's, as often as they stand in it. The choice for a place stays for a seed.
    bool random = false;
    quint32 seed = 0;
    QPointer<TileSet> tiles; ///< whose offsets tiles have
    int tileCount = std::numeric_limits<int>::max(); ///< cells that show others leave what is there

    /// Knows the tiles of a map's set from now on.
    void useTilesOf(const QPointer<Map> &map);
    /// What a cell becomes; the stamp must not be empty.
    [[nodiscard]] TileMap::TileData inked(QPoint place, const TileMap::TileData &before) const;
    void write(QPoint first, std::span<TileMap::TileData> cells) const;
    /// The area that it covers with the pointer on a cell.
    [[nodiscard]] QRect around(QPoint cell) const { return random ? QRect(cell, QSize(1, 1)) : stamp.around(cell); }
    /// After how many rows it repeats.
    [[nodiscard]] int period() const;

    /// Paints runs of cells of a map's tile layer; whether any became another one.
    bool paint(Map &map, const QList<TileMap::Run> &runs) const;
    /// The same for all cells of an area that the map has.
    bool paint(Map &map, const QRect &area) const;

private:
    [[nodiscard]] const TileMap::TileData &chosen(QPoint place) const;
};

} // namespace MapEditor
