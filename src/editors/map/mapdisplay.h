#pragma once

#include "editors/map/mappreferences.h"

#include <QColor>
#include <QtGlobal>

namespace MapEditor {

/// How a map is shown, apart from where.
struct MapDisplay
{
    bool gridVisible = false; ///< lines between the cells
    bool checkerVisible = true; ///< goes with the lines, for those who prefer a checker board
    bool checkerBoard = false; ///< preferred to black
    QColor gridColour1{64, 64, 64};
    QColor gridColour2{80, 80, 80};
    int transparencyIndex = -1; ///< the pixels through which one sees what lies beneath, or -1
    int backgroundTileIndex = -1; ///< a tile beneath the map, if the tile set has it
    qint64 spriteTicks = 0; ///< the time for sprite animations

    /// Shows or hides the lines, and with them the checker board.
    void setGridVisible(bool visible) { gridVisible = checkerVisible = visible; }
    /// Whether a checker board lies beneath the map, instead of black.
    [[nodiscard]] bool showsChecker() const { return checkerBoard && checkerVisible; }
    void apply(const Preferences &preferences)
    {
        checkerBoard = preferences.checkerBoard;
        setGridVisible(preferences.checkerBoard);
        gridVisible = preferences.overlayGrid;
        gridColour1 = preferences.gridColour1;
        gridColour2 = preferences.gridColour2;
    }
};

} // namespace MapEditor
