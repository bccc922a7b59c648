#pragma once

#include <Qt>

#include <algorithm>

namespace GridKeys {

/// How many cells an arrow key leads on, or back when negative, in a grid that is read row by row; 0 for
/// every other key.
constexpr int step(int key, int columns)
{
    switch (key) {
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Up:
        return -columns;
    case Qt::Key_Down:
        return columns;
    default:
        return 0;
    }
}

/// The same for the keys that lead further: eight rows, or to the first or last of so many cells.
constexpr int leap(int key, int columns, int from, int count)
{
    constexpr int Page = 8; // rows
    const int rows = columns > 0 ? (count - 1) / columns : 0;
    switch (key) {
    case Qt::Key_PageUp:
        return -columns * std::min(Page, from / columns);
    case Qt::Key_PageDown: {
        const int down = std::min(Page, rows - from / columns);
        return std::min(from + columns * down, count - 1) - from;
    }
    case Qt::Key_Home:
        return -from;
    case Qt::Key_End:
        return count - 1 - from;
    default:
        return 0;
    }
}

} // namespace GridKeys
