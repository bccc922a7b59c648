#pragma once

#include "editors/map/maptool.h"

namespace MapEditor {

/// What the tools that write cells have in common: a stroke over the map as one edit.
///
/// The left button writes the current tile and the right one clears; with a current animation instead of a
/// tile, a stroke places it once.
class CellTool : public MapTool
{
public:
    using MapTool::MapTool;

    bool mousePressed(QMouseEvent *event) override;
    void mouseMoved(QMouseEvent *event) override;

private:
    void stroke(QPoint from, QPoint to);
    void placeAnimation(QPoint cell);
    void highlightAt(QPoint cell);
};

} // namespace MapEditor
