#include "model/terrain.h"

#include "model/tileset.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <span>

namespace {

using Cell = TileMap::TileData;

/// The neighbours in the order of their bits.
constexpr std::array<QPoint, 8> Around{QPoint(0, -1), QPoint(1, -1), QPoint(1, 0),  QPoint(1, 1),
                                       QPoint(0, 1),  QPoint(-1, 1), QPoint(-1, 0), QPoint(-1, -1)};

/// The orientations of a cell: a mirrored tile is noticed less than one that stands on its head or lies on its side.
constexpr std::array<Cell, 8> Turns{Cell{},
                                    {.mirror = true},
                                    {.flip = true},
                                    {.flip = true, .mirror = true},
                                    {.rotate = true},
                                    {.rotate = true, .flip = true, .mirror = true},
                                    {.rotate = true, .mirror = true},
                                    {.rotate = true, .flip = true}};

int count(int bits)
{
    return std::popcount(unsigned(bits));
}

/// The marks in the opposite order of the neighbours, in which the first and the one at last change places.
int reversed(int marks, int last)
{
    int result = 0;
    for (int i = 0; i < 8; ++i)
        result |= (marks >> i & 1) << ((last - i) & 7);
    return result;
}

/// The marks of a tile in the orientation of a cell.
int oriented(int marks, const Cell &turn)
{
    if (turn.rotate)
        marks = std::rotl(quint8(marks), 2);
    if (turn.mirror)
        marks = reversed(marks, 0);
    return turn.flip ? reversed(marks, 4) : marks;
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

int Terrain::marksOf(const Cell &cell) const
{
    const Tile *tile = cell.used ? find(cell.index) : nullptr;
    if (!tile)
        return 0;
    return turns ? oriented(tile->marks, cell) : tile->marks;
}

Cell Terrain::tileFor(int marks, quint32 choice) const
{
    constexpr int ExtraSide = 5; // more than all corners together
    constexpr int MissingSide = 6; // a border inside the ground is seen more than one that is missing at its end
    const int wanted = counted(marks);
    int best = std::numeric_limits<int>::max();
    QList<Cell> fitting;
    for (const Cell &turn : std::span(Turns).first(turns ? Turns.size() : 1)) {
        QList<Cell> turned;
        for (const Tile &tile : tiles) {
            const int has = counted(oriented(tile.marks, turn));
            const int cost = count(wanted & ~has & Sides) * MissingSide + count(has & ~wanted & Sides) * ExtraSide
                + count((has ^ wanted) & ~Sides);
            if (cost > best || (cost == best && turned.isEmpty()))
                continue; // it fits no better than one that is turned less
            if (cost < best)
                turned.clear();
            best = cost;
            turned.append({tile.index, turn.rotate, turn.flip, turn.mirror, 0, true});
        }
        if (!turned.isEmpty())
            fitting = turned;
        if (best == 0)
            break;
    }
    return fitting.isEmpty() ? Cell{.index = -1} : fitting.at(qsizetype(choice % quint32(fitting.size())));
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
    const auto put = [&](QPoint at, Cell cell) {
        const QPointer<TileSet> set = grid.tileSet();
        if (set && cell.index >= set->count())
            return; // of a terrain that does not know yet
        cell.offset = set ? set->tileOffset(cell.index) : 0;
        changed |= grid.setCell(at, cell);
    };
    const bool isGround = has(grid.cellAt(place));
    if (ground && !isGround)
        put(place, {.index = tiles.first().index, .used = true});
    else if (!ground)
        changed = grid.setCell(place, {});
    const auto match = [&](QPoint at) {
        const Cell cell = grid.cellAt(at);
        if (!has(cell))
            return;
        const Cell fitting = tileFor(marksAt(grid, at), choice + quint32(at.x()) * 7 + quint32(at.y()) * 13);
        const bool fits = counted(marksOf(cell)) == counted(marksOf(fitting));
        if (!fits || (at == place && !isGround))
            put(at, fitting);
    };
    match(place);
    for (const QPoint way : Around)
        match(place + way);
    return changed;
}
