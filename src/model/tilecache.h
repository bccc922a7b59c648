#pragma once

#include "model/tilemap.h"
#include "model/tileset.h"

#include <QHash>
#include <QPointer>

/// The tiles that a grid of cells shows, rendered as palette indices in the orientation and with the palette
/// offset in which cells show them.
///
/// Every combination is rendered once and kept until the cache is emptied. Whoever owns the cache empties
/// it when tiles change.
class TileCache
{
public:
    /// Binds a tile set (or none) and empties the cache.
    void bind(const QPointer<TileSet> &tileSet);
    /// Forgets all tiles and the number of hits.
    void clear();

    /// The pixels of a cell, row by row; all 0 when the tile set does not have the cell's tile.
    /// The reference holds until the next call.
    [[nodiscard]] const Tile::Pixels &pixels(const TileMap::TileData &cell);

    /// Follows two tiles that changed places in the tile set.
    void swapTiles(int a, int b);

    /// How many times a tile was found here since the cache was last emptied.
    [[nodiscard]] qint64 hits() const { return m_hits; }

private:
    QPointer<TileSet> m_tileSet;
    QHash<quint64, Tile::Pixels> m_tiles;
    qint64 m_hits = 0;
};
