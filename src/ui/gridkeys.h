#pragma once

#include <Qt>

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

} // namespace GridKeys
