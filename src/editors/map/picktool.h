#pragma once

#include "editors/map/maptool.h"

namespace MapEditor {

/// Picks the tile of one cell, then gives way to the tool before it. Dragged, it picks a stamp where the grid does
/// more.
class PickTool final : public MapTool
{
public:
    using MapTool::MapTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::Pick; }
    bool activate() override;
    bool mousePressed(QMouseEvent *event) override;
    void mouseMoved(QMouseEvent *event) override;
    void mouseReleased(QMouseEvent *event) override;

private:
    Quenmora::Ui::ToolButton m_modeBefore = Quenmora::Ui::Draw;
    QRect m_picked; ///< in cells, while the button is held; empty within one cell
    bool m_dragging = false;
};

} // namespace MapEditor
