#include "undo/gridchange.h"

#include <algorithm>
#include <utility>

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

/// Makes two lists one in memory when they hold the same.
template <typename List>
void share(List &list, const List &other)
{
    if (list == other)
        list = other;
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
        if (before.at(row) == after.at(row))
            continue;
        if (!m_lines.isEmpty() && differsAs(m_lines.constLast(), before.at(row), after.at(row))) {
            m_lines.append(m_lines.constLast());
            m_lines.last().row = row;
            continue;
        }
        Line line = lineOf(row, before.at(row), after.at(row));
        if (!m_lines.isEmpty()) {
            share(line.runs, m_lines.constLast().runs);
            share(line.before, m_lines.constLast().before);
            share(line.after, m_lines.constLast().after);
        }
        m_lines.append(line);
    }
}

/// Whether the cells that differ are those of a line, and held the same.
template <typename Cell>
bool GridChange<Cell>::differsAs(const Line &line, const Row &before, const Row &after)
{
    const Cell *const from = before.constData();
    const Cell *const to = after.constData();
    const Cell *was = line.before.constData();
    const Cell *is = line.after.constData();
    qsizetype x = 0;
    for (const Run &run : line.runs) {
        const qsizetype end = run.column + run.count;
        if (end > before.size() || !std::equal(from + x, from + run.column, to + x)
            || !std::equal(from + run.column, from + end, was) || !std::equal(to + run.column, to + end, is))
            return false;
        was += run.count;
        is += run.count;
        x = end;
    }
    return std::equal(from + x, from + before.size(), to + x);
}

template <typename Cell>
typename GridChange<Cell>::Line GridChange<Cell>::lineOf(qsizetype row, const Row &before, const Row &after)
{
    Line line{row, {}, {}, {}};
    const Cell *const from = before.constData();
    const Cell *const to = after.constData();
    const auto width = int(before.size());
    qsizetype cells = 0;
    for (int x = 0; x < width; ++x) {
        const int first = x;
        while (x < width && !(from[x] == to[x]))
            ++x;
        if (x == first)
            continue;
        line.runs.append({first, x - first});
        cells += x - first;
    }
    if (line.runs.size() == 1) { // which may be the whole row, whose storage is shared
        line.before = before.mid(line.runs.constFirst().column, cells);
        line.after = after.mid(line.runs.constFirst().column, cells);
        return line;
    }
    line.before.resize(cells);
    line.after.resize(cells);
    Cell *was = line.before.data();
    Cell *is = line.after.data();
    for (const Run &run : std::as_const(line.runs)) {
        was = std::copy_n(from + run.column, run.count, was);
        is = std::copy_n(to + run.column, run.count, is);
    }
    return line;
}

template <typename Cell>
void GridChange<Cell>::write(Rows &rows, const Line &line, const Row &cells)
{
    if (line.row >= rows.size())
        return;
    const Run &first = line.runs.constFirst();
    if (line.runs.size() == 1 && first.column == 0 && first.count == rows.at(line.row).size()) {
        rows[line.row] = cells; // shared, not copied
        return;
    }
    Row &target = rows[line.row];
    auto from = cells.cbegin();
    for (const Run &run : line.runs) {
        const qsizetype room = std::max<qsizetype>(target.size() - run.column, 0);
        std::copy_n(from, std::min<qsizetype>(run.count, room),
                    target.begin() + std::min<qsizetype>(run.column, target.size()));
        from += run.count;
    }
}

/// Writes only over cells that are as expected.
template <typename Cell>
void GridChange<Cell>::writeOver(const Row &expected, Rows &rows, const Line &line, const Row &cells)
{
    if (line.row >= rows.size())
        return;
    const Row present = rows.at(line.row);
    Row result = present;
    bool all = true;
    qsizetype at = 0;
    for (const Run &run : line.runs) {
        for (qsizetype column = run.column; column < run.column + run.count; ++column, ++at) {
            if (column < present.size() && present.at(column) == expected.at(at))
                result[column] = cells.at(at);
            else
                all = false;
        }
    }
    if (all)
        write(rows, line, cells);
    else if (result != present)
        rows[line.row] = result;
}

template <typename Cell>
void GridChange<Cell>::apply(EditSide side, Rows &rows) const
{
    if (m_resized)
        rows = resized(side, rows);
    for (const Line &line : m_lines)
        write(rows, line, side == EditSide::Before ? line.before : line.after);
}

template <typename Cell>
void GridChange<Cell>::applyWhereUntouched(EditSide side, Rows &rows) const
{
    const bool back = side == EditSide::Before;
    if (m_resized)
        rows = resized(side, rows);
    for (const Line &line : m_lines)
        writeOver(back ? line.after : line.before, rows, line, back ? line.before : line.after);
}

template <typename Cell>
GridChange<Cell> GridChange<Cell>::renumbered(const Renumbering &renumbering) const
{
    GridChange result = *this;
    if (renumbering.changesNothing())
        return result;
    result.m_before = ::renumbered(m_before, renumbering);
    result.m_after = ::renumbered(m_after, renumbering);
    for (Line &line : result.m_lines) {
        line.before = ::renumbered(Rows{line.before}, renumbering).constFirst();
        line.after = ::renumbered(Rows{line.after}, renumbering).constFirst();
    }
    return result;
}

template <typename Cell>
GridChange<Cell> GridChange<Cell>::moved(QPoint cells) const
{
    GridChange result = *this;
    result.m_lines.clear();
    for (const Line &line : m_lines) {
        Line there{line.row + cells.y(), {}, {}, {}};
        qsizetype cut = 0; // cells that are now left of the grid
        for (Run run : line.runs) {
            run.column += cells.x();
            const int outside = std::clamp(-run.column, 0, run.count);
            cut += outside;
            if (outside < run.count)
                there.runs.append({run.column + outside, run.count - outside});
        }
        if (there.row < 0 || there.runs.isEmpty())
            continue;
        there.before = line.before.sliced(cut);
        there.after = line.after.sliced(cut);
        result.m_lines.append(there);
    }
    return result;
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
