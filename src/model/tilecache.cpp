#include "model/tilecache.h"

#include <utility>

namespace {

constexpr int VariantsPerTile = 16 * 2 * 2 * 2; // offsets, rotate, flip, mirror

quint64 keyOf(int index, int variant)
{
    return quint64(index) * VariantsPerTile + quint64(variant);
}

int variantOf(const TileMap::TileData &cell)
{
    return (cell.offset & 15) << 3 | int(cell.rotate) << 2 | int(cell.flip) << 1 | int(cell.mirror);
}

} // namespace

void TileCache::bind(const QPointer<TileSet> &tileSet)
{
    m_tileSet = tileSet;
    clear();
}

void TileCache::clear()
{
    m_tiles.clear();
    m_hits = 0;
}

const Tile::Pixels &TileCache::pixels(const TileMap::TileData &cell)
{
    static constexpr Tile::Pixels Blank{};
    if (!m_tileSet || cell.index < 0 || cell.index >= m_tileSet->count())
        return Blank;

    const quint64 key = keyOf(cell.index, variantOf(cell));
    const auto known = m_tiles.constFind(key);
    if (known != m_tiles.cend()) {
        ++m_hits;
        return *known;
    }
    Tile::Pixels &pixels = m_tiles[key];
    m_tileSet->renderShownTile(cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset & 15, pixels.data(),
                               Tile::Size);
    return pixels;
}

void TileCache::swapTiles(int a, int b)
{
    QHash<quint64, Tile::Pixels> swapped;
    for (int variant = 0; variant < VariantsPerTile; ++variant) {
        for (const auto &[from, to] : {std::pair{a, b}, {b, a}}) {
            const auto tile = m_tiles.constFind(keyOf(from, variant));
            if (tile == m_tiles.cend())
                continue;
            swapped.insert(keyOf(to, variant), *tile);
            m_tiles.erase(tile);
        }
    }
    m_tiles.insert(swapped);
}
