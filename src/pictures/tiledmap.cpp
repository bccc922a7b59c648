#include "pictures/tiledmap.h"

#include "pictures/tiledjson.h"
#include "pictures/tiledloader.h"
#include "pictures/tiledxml.h"

#include <algorithm>

namespace {

// In numbers of tiles. The lowest one has a meaning only where cells are hexagons.
constexpr quint32 MirrorBit = 1U << 31;
constexpr quint32 FlipBit = 1U << 30;
constexpr quint32 DiagonalBit = 1U << 29; ///< columns for rows, before the others

} // namespace

bool TiledMap::recognises(const QByteArray &start)
{
    return TiledJson::recognises(start) ? TiledJson::mayBe(start, true) : TiledXml::mayBe(start, true);
}

Result<TiledMap> TiledMap::read(const QString &fileName, TiledReferences references)
{
    return TiledLoader(fileName, references).readMap(fileName);
}

QStringList TiledMap::outside() const
{
    QStringList files;
    for (const TiledTileSet &tileSet : tileSets)
        files += tileSet.outside;
    files.removeDuplicates();
    return files;
}

TiledMap::Cell TiledMap::cell(quint32 gid) const
{
    const quint32 number = numberOf(gid);
    const auto next = std::upper_bound(tileSets.cbegin(), tileSets.cend(), number,
                                       [](quint32 wanted, const TiledTileSet &set) { return wanted < set.firstGid; });
    if (number == 0 || next == tileSets.cbegin())
        return {};
    const auto tileSet = std::prev(next);
    const auto tile = int(number - tileSet->firstGid);
    if (tileSet->count > 0 && tile >= tileSet->count)
        return {};
    // The diagonal swaps columns and rows, which is a turn to the right and a mirror.
    const bool isSwapped = gid & DiagonalBit;
    const bool isMirrored = gid & MirrorBit;
    return {int(tileSet - tileSets.cbegin()), tile, isSwapped, (gid & FlipBit) != 0, isMirrored != isSwapped};
}
