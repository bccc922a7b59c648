#include "model/terrain.h"

#include "model/tileset.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

namespace {

using Cell = TileMap::TileData;

/// The neighbours in the order of their bits.
constexpr std::array<QPoint, 8> Around{QPoint(0, -1), QPoint(1, -1), QPoint(1, 0),  QPoint(1, 1),
                                       QPoint(0, 1),  QPoint(-1, 1), QPoint(-1, 0), QPoint(-1, -1)};

int count(int bits)
{
    return std::popcount(unsigned(bits));
}

} // namespace

const Terrain::Tile *Terrain::find(int index) const
{
    const auto found = std::ranges::lower_bound(tiles, index, {}, &Tile::index);
    return found != tiles.cend() && found->index == index ? &*found : nullptr;
}

void Terrain::mark(int index, int marks)
{
    if (index < 0)
        return;
    const auto place = std::ranges::lower_bound(tiles, index, {}, &Tile::index);
    if (place != tiles.end() && place->index == index)
        place->marks = marks & All;
    else
        tiles.insert(place, {index, marks & All});
}

void Terrain::remove(int index)
{
    tiles.removeIf([index](const Tile &tile) { return tile.index == index; });
}

int Terrain::counted(int marks) const
{
    int result = marks & Sides;
    for (int corner = NorthEast; corners && corner <= NorthWest; corner *= 4) {
        const int sides = corner / 2 | (corner == NorthWest ? int(North) : corner * 2);
        if ((marks & sides) == sides)
            result |= marks & corner;
    }
    return result;
}

int Terrain::tileFor(int marks, quint32 choice) const
{
    constexpr int ExtraSide = 5; // more than all corners together
    constexpr int MissingSide = 6; // a border inside the ground is seen more than one that is missing at its end
    const int wanted = counted(marks);
    int best = std::numeric_limits<int>::max();
    QList<int> fitting;
    for (const Tile &tile : tiles) {
        const int has = counted(tile.marks);
        const int cost = count(wanted & ~has & Sides) * MissingSide + count(has & ~wanted & Sides) * ExtraSide
            + count((has ^ wanted) & ~Sides);
        if (cost < best)
            fitting.clear();
        best = std::min(best, cost);
        if (cost == best)
            fitting.append(tile.index);
    }
    return fitting.isEmpty() ? -1 : fitting.at(qsizetype(choice % quint32(fitting.size())));
}

int Terrain::marksAt(const TileMap &grid, QPoint cell) const
{
    int marks = 0;
    for (size_t i = 0; i < Around.size(); ++i) {
        const QPoint neighbour = cell + Around[i];
        if (!grid.bounds().contains(neighbour) || has(grid.cellAt(neighbour)))
            marks |= 1 << i;
    }
    return marks;
}

bool Terrain::paint(TileMap &grid, QPoint place, bool ground, quint32 choice) const
{
    if (tiles.isEmpty() || !grid.bounds().contains(place))
        return false;
    bool changed = false;
    const auto put = [&](QPoint at, int index) {
        const QPointer<TileSet> set = grid.tileSet();
        if (set && index >= set->count())
            return; // of a terrain that does not know yet
        changed |= grid.setCell(at, {.index = index, .offset = set ? set->tileOffset(index) : 0, .used = true});
    };
    const bool isGround = has(grid.cellAt(place));
    if (ground && !isGround)
        put(place, tiles.first().index);
    else if (!ground)
        changed = grid.setCell(place, {});
    const auto match = [&](QPoint at) {
        const Cell cell = grid.cellAt(at);
        if (!has(cell))
            return;
        const int marks = marksAt(grid, at);
        const int fitting = tileFor(marks, choice + quint32(at.x()) * 7 + quint32(at.y()) * 13);
        const bool fits = counted(find(cell.index)->marks) == counted(find(fitting)->marks);
        if (!fits || (at == place && !isGround))
            put(at, fitting);
    };
    match(place);
    for (const QPoint way : Around)
        match(place + way);
    return changed;
}
