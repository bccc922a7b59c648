#pragma once

#include "model/tilemap.h"

#include <QHash>

#include <algorithm>
#include <vector>

/// The rows of a grid of cells.
///
/// Rows are implicitly shared: what changes many of them changes those that share their storage once, and leaves those
/// alone that stay as they were. Tiles that change places are only noted, and the cells follow when somebody next looks
/// at them: a tile that moves past five hundred others makes as many pairs change places, in a grid of millions of
/// cells.
class TileRows
{
public:
    using Cell = TileMap::TileData;
    using Row = TileMap::Row;
    using Rows = TileMap::Rows;

    explicit TileRows(const Rows &rows) : m_rows(rows) { }

    [[nodiscard]] int height() const { return int(m_rows.size()); }
    [[nodiscard]] const Rows &rows() { return writable(); }
    /// The same, to write to them.
    [[nodiscard]] Rows &writable()
    {
        if (!m_numbers.empty())
            follow();
        return m_rows;
    }
    void setRows(const Rows &rows);

    /// Replaces the rows from first to last by what change(const Row &) makes of them. A row that change() returns as
    /// it was stays shared with every snapshot. Whether any row became another one.
    template <typename Change>
    bool changeRows(int first, int last, Change change);
    /// Replaces every cell by what change(Cell) makes of it.
    template <typename Change>
    bool changeCells(Change change);

    /// Exchanges two tiles; whether any cell shows one of them.
    bool swapTiles(int a, int b);

private:
    void follow();
    [[nodiscard]] bool shows(int number);

    static constexpr int MostTiles = 1 << 16; ///< that are noted; nobody has more

    Rows m_rows;
    std::vector<int> m_numbers; ///< today's of the tiles that changed places, by the number that cells have
    std::vector<int> m_inCells; ///< the other way round
    std::vector<bool> m_seen; ///< numbers that cells have, in the rows that were looked at since then
    int m_looked = 0; ///< how many rows these are
};

template <typename Change>
bool TileRows::changeRows(int first, int last, Change change)
{
    if (first > last)
        return false;
    Rows &rows = writable();
    const Rows before = rows.sliced(first, last - first + 1); // keeps the storage alive that identifies a row
    QHash<const Cell *, Row> results;
    bool changed = false;
    for (int y = first; y <= last; ++y) {
        const Row &row = before[y - first];
        auto result = results.constFind(row.constData());
        if (result == results.cend())
            result = results.insert(row.constData(), change(row));
        if (result->constData() == row.constData() && result->size() == row.size())
            continue;
        rows[y] = *result;
        changed = true;
    }
    return changed;
}

template <typename Change>
bool TileRows::changeCells(Change change)
{
    return changeRows(0, height() - 1, [change](const Row &row) {
        const auto changes = [change](const Cell &cell) { return change(cell) != cell; };
        const auto first = std::find_if(row.cbegin(), row.cend(), changes);
        if (first == row.cend())
            return row;
        Row result = row;
        std::transform(first, row.cend(), result.begin() + (first - row.cbegin()), change);
        return result;
    });
}
