#include "undo/gridchange.h"

#include <algorithm>
#include <functional>
#include <tuple>

namespace {

/// Whether two contents are grids of the same number of rows and columns.
bool sameShape(const TileMap::Rows &a, const TileMap::Rows &b)
{
    const auto sameWidth = [](const TileMap::Row &first, const TileMap::Row &second) {
        return first.size() == second.size();
    };
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), sameWidth);
}

void write(TileMap::Rows &rows, qsizetype row, qsizetype column, const TileMap::Row &cells)
{
    if (row >= rows.size() || column >= rows.at(row).size())
        return;
    TileMap::Row &target = rows[row];
    if (column == 0 && cells.size() == target.size())
        target = cells; // shared, not copied
    else
        std::copy_n(cells.cbegin(), std::min(cells.size(), target.size() - column), target.begin() + column);
}

} // namespace

GridChange::GridChange(const TileMap::Rows &before, const TileMap::Rows &after) : m_resized(!sameShape(before, after))
{
    if (m_resized) {
        m_before = before;
        m_after = after;
        return;
    }
    for (qsizetype row = 0; row < before.size(); ++row) {
        // Rows that the edit did not touch are shared, which the comparison sees at once.
        if (before.at(row) != after.at(row))
            addRunsOf(row, before.at(row), after.at(row));
    }
}

void GridChange::apply(Side side, TileMap::Rows &rows) const
{
    const bool back = side == Side::Before;
    if (m_resized)
        rows = back ? m_before : m_after;
    for (const Run &run : m_runs)
        write(rows, run.row, run.column, back ? run.before : run.after);
}

void GridChange::addRunsOf(qsizetype row, const TileMap::Row &before, const TileMap::Row &after)
{
    auto from = before.cbegin();
    auto to = after.cbegin();
    while (true) {
        std::tie(from, to) = std::mismatch(from, before.cend(), to);
        if (from == before.cend())
            return;
        const qsizetype column = from - before.cbegin();
        std::tie(from, to) = std::mismatch(from, before.cend(), to, std::not_equal_to<>());
        const qsizetype length = from - before.cbegin() - column;
        m_runs.append({row, column, before.mid(column, length), after.mid(column, length)});
    }
}
