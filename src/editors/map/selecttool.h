#pragma once

#include "editors/map/maptool.h"

namespace MapEditor {

/// Selects a rectangle of cells, for which it offers a menu.
class SelectTool final : public MapTool
{
public:
    using MapTool::MapTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::Select; }
    bool activate() override;
    bool mousePressedFirst(QMouseEvent *event) override;
    void mouseMoved(QMouseEvent *event) override;
    void paintUnder(QPainter &painter) const override;
};

} // namespace MapEditor
