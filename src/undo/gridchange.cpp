#include "undo/gridchange.h"

#include <algorithm>
#include <functional>
#include <tuple>

namespace {

template <typename Rows>
QSize sizeOf(const Rows &rows)
{
    return {rows.isEmpty() ? 0 : int(rows.constFirst().size()), int(rows.size())};
}

/// Whether two contents are grids of the same number of rows and columns.
template <typename Rows>
bool sameShape(const Rows &a, const Rows &b)
{
    const auto sameWidth = [](const auto &first, const auto &second) { return first.size() == second.size(); };
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), sameWidth);
}

template <typename Row>
void write(QList<Row> &rows, qsizetype row, qsizetype column, const Row &cells)
{
    if (row >= rows.size() || column >= rows.at(row).size())
        return;
    Row &target = rows[row];
    if (column == 0 && cells.size() == target.size())
        target = cells; // shared, not copied
    else
        std::copy_n(cells.cbegin(), std::min(cells.size(), target.size() - column), target.begin() + column);
}

/// Writes only over cells that are as expected.
template <typename Row>
void writeOver(const Row &expected, QList<Row> &rows, qsizetype row, qsizetype column, const Row &cells)
{
    if (row >= rows.size())
        return;
    const Row present = rows.at(row).mid(column, cells.size());
    if (present == expected) {
        write(rows, row, column, cells);
        return;
    }
    for (qsizetype i = 0; i < present.size(); ++i) {
        if (present.at(i) == expected.at(i))
            rows[row][column + i] = cells.at(i);
    }
}

} // namespace

template <typename Cell>
GridChange<Cell>::GridChange(const Rows &before, const Rows &after, QPoint shift)
    : m_resized(!shift.isNull() || !sameShape(before, after))
{
    if (m_resized) {
        m_before = before;
        m_after = after;
        m_shift = shift;
        return;
    }
    for (qsizetype row = 0; row < before.size(); ++row) {
        // Rows that the edit did not touch are shared, which the comparison sees at once.
        if (before.at(row) != after.at(row))
            addRunsOf(row, before.at(row), after.at(row));
    }
}

template <typename Cell>
void GridChange<Cell>::apply(EditSide side, Rows &rows) const
{
    if (m_resized)
        rows = resized(side, rows);
    for (const Run &run : m_runs)
        write(rows, run.row, run.column, side == EditSide::Before ? run.before : run.after);
}

template <typename Cell>
void GridChange<Cell>::applyWhereUntouched(EditSide side, Rows &rows) const
{
    const bool back = side == EditSide::Before;
    if (m_resized)
        rows = resized(side, rows);
    for (const Run &run : m_runs)
        writeOver(back ? run.after : run.before, rows, run.row, run.column, back ? run.before : run.after);
}

template <typename Cell>
GridChange<Cell> GridChange<Cell>::renumbered(const Renumbering &renumbering) const
{
    GridChange result = *this;
    if (renumbering.changesNothing())
        return result;
    result.m_before = ::renumbered(m_before, renumbering);
    result.m_after = ::renumbered(m_after, renumbering);
    for (Run &run : result.m_runs) {
        run.before = ::renumbered(Rows{run.before}, renumbering).constFirst();
        run.after = ::renumbered(Rows{run.after}, renumbering).constFirst();
    }
    return result;
}

template <typename Cell>
GridChange<Cell> GridChange<Cell>::moved(QPoint cells) const
{
    GridChange result = *this;
    result.m_runs.clear();
    for (Run run : m_runs) {
        run.row += cells.y();
        run.column += cells.x();
        const qsizetype cut = std::clamp<qsizetype>(-run.column, 0, run.before.size());
        if (run.row >= 0 && cut < run.before.size())
            result.m_runs.append({run.row, run.column + cut, run.before.sliced(cut), run.after.sliced(cut)});
    }
    return result;
}

template <typename Cell>
void GridChange<Cell>::addRunsOf(qsizetype row, const Row &before, const Row &after)
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

/// The content of the side, but with the cells that have changed since the edit.
template <typename Cell>
typename GridChange<Cell>::Rows GridChange<Cell>::resized(EditSide side, const Rows &rows) const
{
    const bool back = side == EditSide::Before;
    const Rows &from = back ? m_after : m_before;
    Rows to = back ? m_before : m_after;
    const QPoint shift = back ? -m_shift : m_shift;
    const QRect known = QRect(QPoint(), sizeOf(from)) & QRect(QPoint(), sizeOf(rows));
    const QRect overlap = known.translated(shift) & QRect(QPoint(), sizeOf(to));
    for (int y = overlap.top(); y <= overlap.bottom(); ++y) {
        const Row &was = from.at(y - shift.y());
        const Row &is = rows.at(y - shift.y());
        if (was == is)
            continue;
        for (int x = overlap.left(); x <= overlap.right(); ++x) {
            if (const Cell &cell = is.at(x - shift.x()); cell != was.at(x - shift.x()))
                to[y][x] = cell;
        }
    }
    return to;
}

template class GridChange<TileMap::TileData>;
template class GridChange<AnimationFrame::Cell>;
