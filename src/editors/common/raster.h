#pragma once

#include <QList>
#include <QPoint>
#include <QRect>

#include <algorithm>
#include <cmath>
#include <utility>

/// Which cells of a grid a shape covers. Corners and ends are inclusive, and cells may lie anywhere: who visits them
/// leaves out what the grid does not have. A cell may be visited twice.
namespace Raster {

/// A straight line; visit takes a QPoint. The cells come from left to right, of a steep line from top to bottom.
template <typename Visit>
void line(QPoint from, QPoint to, Visit visit)
{
    const bool steep = std::abs(to.y() - from.y()) > std::abs(to.x() - from.x());
    if (steep) {
        from = from.transposed();
        to = to.transposed();
    }
    if (from.x() > to.x())
        std::swap(from, to);

    const int yStep = from.y() < to.y() ? 1 : -1;
    const auto dx = float(to.x() - from.x());
    const auto dy = float(std::abs(to.y() - from.y()));
    float error = dx * 0.5F;
    int y = from.y();
    for (int x = from.x(); x <= to.x(); ++x) {
        visit(steep ? QPoint(y, x) : QPoint(x, y));
        error -= dy;
        if (error < 0) {
            y += yStep;
            error += dx;
        }
    }
}

/// The outline of a rectangle.
template <typename Visit>
void rectangle(const QRect &rect, Visit visit)
{
    line(rect.topLeft(), rect.topRight(), visit);
    line(rect.bottomLeft(), rect.bottomRight(), visit);
    line(rect.topLeft(), rect.bottomLeft(), visit);
    line(rect.topRight(), rect.bottomRight(), visit);
}

/// The outline of the ellipse inscribed in a normalised rectangle.
template <typename Visit>
void ellipse(const QRect &rect, Visit visit)
{
    qint64 x0 = rect.left();
    qint64 x1 = rect.right();
    const qint64 a = x1 - x0;
    const qint64 b = rect.bottom() - rect.top();
    const qint64 odd = b & 1;
    const qint64 a8 = 8 * a * a;
    const qint64 b8 = 8 * b * b;
    qint64 dx = 4 * (1 - a) * b * b;
    qint64 dy = 4 * (odd + 1) * a * a;
    qint64 error = dx + dy + odd * a * a;
    qint64 y0 = rect.top() + (b + 1) / 2;
    qint64 y1 = y0 - odd;

    const auto plot = [&visit](qint64 x, qint64 y) { visit(QPoint(int(x), int(y))); };
    do {
        plot(x1, y0);
        plot(x0, y0);
        plot(x0, y1);
        plot(x1, y1);
        const qint64 twice = 2 * error;
        if (twice <= dy) {
            ++y0;
            --y1;
            dy += a8;
            error += dy;
        }
        if (twice >= dx || 2 * error > dy) {
            ++x0;
            --x1;
            dx += b8;
            error += dx;
        }
    } while (x0 <= x1);

    // The tips of very flat ellipses.
    while (y0 - y1 <= b) {
        plot(x0 - 1, y0);
        plot(x1 + 1, y0);
        plot(x0 - 1, y1);
        plot(x1 + 1, y1);
        ++y0;
        --y1;
    }
}

/// The same ellipse with all that its outline encloses; visit takes the row, and its first and last column.
template <typename Visit>
void filledEllipse(const QRect &rect, Visit visit)
{
    QList<std::pair<int, int>> ends(rect.height(), {rect.right() + 1, rect.left() - 1});
    ellipse(rect, [&](QPoint cell) {
        if (!rect.contains(cell)) // the tips of the flattest ellipses lie beside it
            return;
        auto &[left, right] = ends[cell.y() - rect.top()];
        left = std::min(left, cell.x());
        right = std::max(right, cell.x());
    });
    for (int row = 0; row < ends.size(); ++row) {
        if (ends[row].first <= ends[row].second)
            visit(rect.top() + row, ends[row].first, ends[row].second);
    }
}

/// The end of a line from start that comes nearest to a cell and is level, upright or diagonal.
inline QPoint straightened(QPoint start, QPoint cell)
{
    const QPoint way = cell - start;
    const int across = std::abs(way.x());
    const int down = std::abs(way.y());
    if (down * 2 < across)
        return {cell.x(), start.y()};
    if (across * 2 < down)
        return {start.x(), cell.y()};
    const int length = std::max(across, down);
    return start + QPoint(way.x() < 0 ? -length : length, way.y() < 0 ? -length : length);
}

/// The corner of a square with one corner at start that a drag to a cell means.
inline QPoint squared(QPoint start, QPoint cell)
{
    const QPoint way = cell - start;
    const int side = std::max(std::abs(way.x()), std::abs(way.y()));
    return start + QPoint(way.x() < 0 ? -side : side, way.y() < 0 ? -side : side);
}

} // namespace Raster
