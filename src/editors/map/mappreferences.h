#pragma once

#include <QColor>

namespace MapEditor {

/// How a map editor looks when it is opened.
struct Preferences
{
    bool checkerBoard = true; ///< a checker of the grid colours beneath the map, instead of black
    QColor gridColour1{64, 64, 64};
    QColor gridColour2{80, 80, 80};
    bool overlayGrid = true; ///< lines between the cells
    int gridSize = 8; ///< screen pixels of a cell at zoom factor 1
    int defaultZoom = 4; ///< zoom factor; one out of range changes nothing

    bool operator==(const Preferences &) const = default;
};

} // namespace MapEditor
