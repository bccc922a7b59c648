#pragma once

#include "editors/map/maptool.h"

namespace MapEditor {

/// Pastes the cells on the clipboard, around the pointer.
class PasteTool final : public MapTool
{
public:
    using MapTool::MapTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::Paste; }
    /// Refuses when the clipboard holds no cells, or cells of another tile set than the map's.
    bool activate() override;
    void mouseMoved(QMouseEvent *event) override;
    bool mousePressed(QMouseEvent *event) override;
    void paintOver(QPainter &painter) const override;
};

} // namespace MapEditor
