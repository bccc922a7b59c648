#pragma once

#include "editors/map/cellink.h"
#include "editors/map/maptool.h"

#include <QCoreApplication>

#include <optional>

namespace MapEditor {

/// What the tools that write cells have in common: a stroke over the map as one edit.
///
/// The left button writes the current tile and the right one clears; with a current animation instead of a
/// tile, a stroke places it once. A stamp is written again and again without overlapping itself.
class CellTool : public MapTool
{
    Q_DECLARE_TR_FUNCTIONS(MapEditor::CellTool)

public:
    using MapTool::MapTool;

    bool mousePressed(QMouseEvent *event) override;
    void mouseMoved(QMouseEvent *event) override;

protected:
    void endStroke() { m_ink.reset(); }
    /// Where a stamp goes with the pointer on a cell: during a stroke into the grid that its first place begins.
    [[nodiscard]] QRect placeOf(const CellInk &ink, QPoint cell) const;
    /// The ink of the stroke that is going on, or of one that would begin at a cell.
    [[nodiscard]] CellInk inkAt(QPoint cell) const;

private:
    void stroke(QPoint from, QPoint to);
    void inkStroke(QPoint from, QPoint to);
    void placeAnimation(QPoint cell);
    void highlightAt(QPoint cell);

    std::optional<CellInk> m_ink; ///< of a stroke with more than a tile
    Qt::KeyboardModifiers m_modifiers; ///< at the press
    QRect m_inked; ///< by the stroke at last
};

} // namespace MapEditor
