#pragma once

#include <QRect>
#include <QSize>

namespace MapEditor {

/// What of a map is selected: cells, and a placed sprite.
struct MapSelection
{
    QRect cells;
    QRect pasteArea; ///< where the paste tool pastes, or what was copied last
    int sprite = -1; ///< in the map's list, or -1

    /// Selects the cells of an area that a map of that size has.
    void select(const QRect &area, QSize map) { cells = area & QRect(QPoint(0, 0), map); }
    /// What the selection of a sprite becomes when one is deleted.
    [[nodiscard]] int spriteWithout(int deleted) const
    {
        return sprite == deleted ? -1 : sprite > deleted ? sprite - 1 : sprite;
    }
};

} // namespace MapEditor
