#pragma once

#include "model/cellruns.h"

#include <QRect>
#include <QSize>

namespace MapEditor {

/// What of a map is selected: cells, and a placed sprite.
struct MapSelection
{
    QRect cells;
    CellRuns::Runs runs; ///< of the cells, when not all of them are selected; else empty
    QRect pasteArea; ///< where the paste tool pastes, or what was copied last
    int sprite = -1; ///< in the map's list, or -1

    /// Selects the cells of an area that a map of that size has.
    void select(const QRect &area, QSize map)
    {
        cells = area & QRect(QPoint(0, 0), map);
        runs.clear();
    }
    /// Selects those of the cells that a map of that size has.
    void select(const CellRuns::Runs &chosen, QSize map);
    /// Keeps what a map has that has this size now.
    void keepWithin(QSize map);
    /// What is selected, also when it is all of the cells.
    [[nodiscard]] CellRuns::Runs selectedRuns() const;
    [[nodiscard]] bool contains(QPoint cell) const;
    /// What the selection of a sprite becomes when one is deleted.
    [[nodiscard]] int spriteWithout(int deleted) const
    {
        return sprite == deleted ? -1 : sprite > deleted ? sprite - 1 : sprite;
    }
};

} // namespace MapEditor
