#include "model/cellruns.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace CellRuns {

namespace {

using Cell = TileMap::TileData;

/// Appends the part of a run that lies in the clip.
void append(Runs &runs, int y, int first, int last, const QRect &clip)
{
    first = std::max(first, clip.left());
    last = std::min(last, clip.right());
    if (first <= last && y >= clip.top() && y <= clip.bottom())
        runs.append({y, first, last - first + 1});
}

/// What one row of an ellipse covers; nothing when last is before first.
struct Span
{
    int first;
    int last;
};

/// The row of the ellipse that fills a rectangle: the cells whose middles lie in it, in halves of a cell around the
/// rectangle's middle. A row of the rectangle always has some.
Span ellipseSpan(const QRect &cells, int y)
{
    if (y < cells.top() || y > cells.bottom())
        return {0, -1};
    const double radius = cells.height() / 2.0;
    const double up = (y - cells.top() + 0.5 - radius) / radius;
    const double half = std::sqrt(std::max(0.0, 1 - up * up)) * cells.width() / 2.0;
    const int margin = std::min(int(std::ceil(cells.width() / 2.0 - half - 0.5)), (cells.width() - 1) / 2);
    return {cells.left() + margin, cells.right() - margin};
}

/// The connected cells of a grid, found run by run: each row's cells are compared once, when it is first touched. All
/// places of a row from which more is reached are gone through together, as rows are what memory has at hand: a comb
/// has a thousand of them.
class Flood
{
public:
    Flood(const TileMap::Rows &rows, QPoint start, const QRect &area)
        : m_grid(rows)
        , m_area(area)
        , m_wanted(rows[start.y()][start.x()])
        , m_rows(size_t(area.height()))
    {
        reach(start.y() - area.top(), start.x() - area.left());
        std::vector<int> reached;
        while (!m_waiting.empty()) {
            const int y = m_waiting.back();
            m_waiting.pop_back();
            reached.clear();
            reached.swap(m_rows[size_t(y)].reached);
            for (const int x : reached)
                fillRunAt(y, x);
        }
    }

    [[nodiscard]] Runs runs() const
    {
        Runs runs;
        runs.reserve(m_filled);
        for (int y = 0; y < m_area.height(); ++y) {
            const std::vector<char> &marks = m_rows[size_t(y)].marks;
            const int width = int(marks.size());
            for (int x = 0; x < width; ++x) {
                const int first = x;
                while (x < width && marks[size_t(x)] == Filled)
                    ++x;
                if (x > first)
                    runs.append({m_area.top() + y, m_area.left() + first, x - first});
            }
        }
        return runs;
    }

private:
    static constexpr char Other = 0;
    static constexpr char Open = 1; ///< the same, but not reached yet
    static constexpr char Filled = 2;

    struct Row
    {
        std::vector<char> marks; ///< one a cell; none until the row is touched
        std::vector<int> reached; ///< columns from which the row is still to be filled
    };

    [[nodiscard]] bool isSame(const Cell &cell) const
    {
        return m_wanted.used ? cell.index == m_wanted.index && cell == m_wanted : !cell.used;
    }

    Row &touched(int y)
    {
        Row &row = m_rows[size_t(y)];
        if (row.marks.empty()) {
            row.marks.resize(size_t(m_area.width()));
            const auto first = m_grid[m_area.top() + y].cbegin() + m_area.left();
            std::transform(first, first + m_area.width(), row.marks.begin(),
                           [this](const Cell &cell) { return isSame(cell) ? Open : Other; });
        }
        return row;
    }

    void reach(int y, int x)
    {
        std::vector<int> &reached = touched(y).reached;
        if (reached.empty())
            m_waiting.push_back(y);
        reached.push_back(x);
    }

    void fillRunAt(int y, int x)
    {
        std::vector<char> &marks = touched(y).marks;
        char *const at = marks.data() + x;
        if (*at != Open)
            return;
        char *from = at;
        while (from != marks.data() && from[-1] == Open)
            --from;
        char *const to = std::find_if(at, marks.data() + marks.size(), [](char mark) { return mark != Open; });
        std::fill(from, to, Filled);
        ++m_filled;
        const int first = int(from - marks.data());
        const int count = int(to - from);
        if (y > 0)
            reachRuns(y - 1, first, count);
        if (y + 1 < m_area.height())
            reachRuns(y + 1, first, count);
    }

    /// Reaches each piece of a row that lies beside a run.
    void reachRuns(int y, int first, int count)
    {
        const char *const row = touched(y).marks.data();
        if (count == 1) { // as in mazes and combs, of which most runs are
            if (row[first] == Open)
                reach(y, first);
            return;
        }
        const char *const end = row + first + count;
        for (const char *from = row + first; from != end;) {
            const void *open = std::memchr(from, Open, size_t(end - from));
            if (!open)
                return;
            from = static_cast<const char *>(open);
            reach(y, int(from - row));
            from = std::find_if(from, end, [](char mark) { return mark != Open; });
        }
    }

    const TileMap::Rows &m_grid;
    const QRect m_area;
    const Cell m_wanted;
    std::vector<Row> m_rows; ///< of the area
    std::vector<int> m_waiting; ///< rows of which some places are reached
    qsizetype m_filled = 0; ///< runs, of which none touch
};

} // namespace

Runs line(QPoint from, QPoint to, const QRect &clip)
{
    if (from.y() > to.y())
        std::swap(from, to);
    const QPoint way = to - from;
    const int steps = std::max(std::abs(way.x()), way.y());
    Runs runs;
    int y = from.y();
    int first = from.x();
    int last = from.x();
    const auto finish = [&] { append(runs, y, std::min(first, last), std::max(first, last), clip); };
    for (int i = 1; i <= steps; ++i) {
        const QPoint cell =
            from + QPoint(int(std::lround(double(way.x()) * i / steps)), int(std::lround(double(way.y()) * i / steps)));
        if (cell.y() != y) {
            finish();
            first = cell.x();
            y = cell.y();
        }
        last = cell.x();
    }
    finish();
    return runs;
}

Runs rectangle(const QRect &cells, bool filled, const QRect &clip)
{
    Runs runs;
    const QRect rows = cells & QRect(QPoint(cells.left(), clip.top()), QPoint(cells.right(), clip.bottom()));
    for (int y = rows.top(); y <= rows.bottom(); ++y) {
        if (filled || y == cells.top() || y == cells.bottom()) {
            append(runs, y, cells.left(), cells.right(), clip);
            continue;
        }
        append(runs, y, cells.left(), cells.left(), clip);
        if (cells.width() > 1)
            append(runs, y, cells.right(), cells.right(), clip);
    }
    return runs;
}

Runs ellipse(const QRect &cells, bool filled, const QRect &clip)
{
    Runs runs;
    const int top = std::max(cells.top(), clip.top());
    const int bottom = std::min(cells.bottom(), clip.bottom());
    for (int y = top; y <= bottom; ++y) {
        const auto [first, last] = ellipseSpan(cells, y);
        const Span above = ellipseSpan(cells, y - 1);
        const Span below = ellipseSpan(cells, y + 1);
        // what lies inside has a neighbour of the ellipse on every side
        const int firstInside = std::max({first + 1, above.first, below.first});
        const int lastInside = std::min({last - 1, above.last, below.last});
        if (filled || firstInside > lastInside) {
            append(runs, y, first, last, clip);
            continue;
        }
        append(runs, y, first, firstInside - 1, clip);
        append(runs, y, lastInside + 1, last, clip);
    }
    return runs;
}

Runs connected(const TileMap::Rows &rows, QPoint start, const QRect &clip)
{
    const QRect grid(0, 0, rows.isEmpty() ? 0 : int(rows.constFirst().size()), int(rows.size()));
    const QRect area = grid & clip;
    return area.contains(start) ? Flood(rows, start, area).runs() : Runs();
}

Runs ofTile(const TileMap::Rows &rows, int tile)
{
    const auto shows = [tile](const Cell &cell) { return cell.used && cell.index == tile; };
    Runs runs;
    qsizetype before = 0; // where the runs of the row before begin
    for (int y = 0; y < rows.size(); ++y) {
        const TileMap::Row &row = rows[y];
        const qsizetype begin = runs.size();
        if (y > 0 && row.constData() == rows[y - 1].constData()) { // a large map has many of these
            for (qsizetype i = before; i < begin; ++i)
                runs.append({y, runs[i].column, runs[i].count});
        } else {
            for (auto from = row.cbegin(); from != row.cend();) {
                from = std::find_if(from, row.cend(), shows);
                const auto to = std::find_if_not(from, row.cend(), shows);
                if (from != to)
                    runs.append({y, int(from - row.cbegin()), int(to - from)});
                from = to;
            }
        }
        before = begin;
    }
    return runs;
}

Runs moved(Runs runs, QPoint by)
{
    for (TileMap::Run &run : runs) {
        run.row += by.y();
        run.column += by.x();
    }
    return runs;
}

Runs clipped(const Runs &runs, const QRect &area)
{
    Runs inside;
    for (const TileMap::Run &run : runs)
        append(inside, run.row, run.column, run.column + run.count - 1, area);
    return inside;
}

QRect bounds(const Runs &runs)
{
    if (runs.isEmpty())
        return {};
    int left = runs.first().column;
    int right = left;
    for (const TileMap::Run &run : runs) {
        left = std::min(left, run.column);
        right = std::max(right, run.column + run.count - 1);
    }
    return {QPoint(left, runs.first().row), QPoint(right, runs.last().row)};
}

std::pair<Runs::const_iterator, Runs::const_iterator> inRows(const Runs &runs, int first, int last)
{
    const auto rowOf = [](const TileMap::Run &run) { return run.row; };
    return {std::ranges::lower_bound(runs, first, {}, rowOf), std::ranges::upper_bound(runs, last, {}, rowOf)};
}

} // namespace CellRuns
