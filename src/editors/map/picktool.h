#pragma once

#include "editors/map/maptool.h"

namespace MapEditor {

/// Picks the tile of one cell, then gives way to the tool before it.
class PickTool final : public MapTool
{
public:
    using MapTool::MapTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::Pick; }
    bool activate() override;
    void mouseReleased(QMouseEvent *event) override;

private:
    Quenmora::Ui::ToolButton m_modeBefore = Quenmora::Ui::Draw;
};

} // namespace MapEditor
