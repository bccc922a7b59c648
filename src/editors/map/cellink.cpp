#include "editors/map/cellink.h"

#include "model/cellruns.h"

#include <algorithm>

namespace MapEditor {

namespace {

/// Random choices repeat after so many rows, which nobody sees, and which lets the rows of a large map share storage.
constexpr int RandomPeriod = 128;

/// A number that looks random and belongs to a place (a multiplicative hash with its high bits mixed down twice).
quint32 hashOf(QPoint place, quint32 seed)
{
    quint32 hash = seed ^ (quint32(place.x()) * 0x9E3779B1u) ^ (quint32(place.y()) * 0x85EBCA77u);
    hash = (hash ^ hash >> 15) * 0x2C1B3C6Du;
    hash = (hash ^ hash >> 12) * 0x297A2D39u;
    return hash ^ hash >> 15;
}

} // namespace

const TileMap::TileData &CellInk::chosen(QPoint place) const
{
    if (!random)
        return stamp.repeatedAt(place, origin);
    const quint32 hash = hashOf({place.x(), place.y() & (RandomPeriod - 1)}, seed);
    return stamp.cells()[qsizetype(quint64(hash) * quint64(stamp.cells().size()) >> 32)];
}

void CellInk::useTilesOf(const QPointer<Map> &map)
{
    tiles = map ? map->tileSet() : nullptr;
    tileCount = tiles ? tiles->count() : 0;
}

TileMap::TileData CellInk::inked(QPoint place, const TileMap::TileData &before) const
{
    TileMap::TileData cell = chosen(place);
    if (cell.index >= tileCount)
        return before;
    switch (part) {
    case Cells:
        return cell.used ? cell : before;
    case Everything:
        return cell;
    case Nothing:
        cell.used = false;
        return cell;
    case Offsets:
    case OwnOffsets:
        break;
    }
    TileMap::TileData result = before;
    if (part == OwnOffsets && tiles && before.used)
        result.offset = tiles->tileOffset(before.index);
    else if (part == Offsets && before.used && cell.used)
        result.offset = cell.offset;
    return result;
}

void CellInk::write(QPoint first, std::span<TileMap::TileData> cells) const
{
    if (stamp.cells().size() == 1 && !random && part == Cells) { // the usual ink, whose one cell comes everywhere
        if (const TileMap::TileData &only = stamp.cells().constFirst(); only.used && only.index < tileCount)
            std::ranges::fill(cells, only);
        return;
    }
    for (TileMap::TileData &cell : cells) {
        cell = inked(first, cell);
        ++first.rx();
    }
}

int CellInk::period() const
{
    return random ? RandomPeriod : stamp.size().height();
}

bool CellInk::paint(Map &map, const QList<TileMap::Run> &runs) const
{
    if (stamp.isEmpty())
        return false;
    return map.writeTiles(runs, period(),
                          [this](QPoint first, std::span<TileMap::TileData> cells) { write(first, cells); });
}

bool CellInk::paint(Map &map, const QRect &area) const
{
    return paint(map, CellRuns::rectangle(area, true, QRect(QPoint(0, 0), map.size())));
}

} // namespace MapEditor
