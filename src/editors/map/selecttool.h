#pragma once

#include "editors/map/maptool.h"

#include <optional>

namespace MapEditor {

/// Selects a rectangle of cells, for which it offers a menu. Where the grid does more, what is selected is moved by
/// dragging it, or copied with Ctrl.
class SelectTool final : public MapTool
{
public:
    using MapTool::MapTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::Select; }
    bool activate() override;
    bool mousePressedFirst(QMouseEvent *event) override;
    bool mousePressed(QMouseEvent *event) override;
    void mouseMoved(QMouseEvent *event) override;
    void mouseReleased(QMouseEvent *event) override;
    void paintUnder(QPainter &painter) const override;

private:
    bool isMovable(QPoint cell) const;
    void paintMoved(QPainter &painter) const;

    std::optional<QPoint> m_grabbed; ///< the cell of the selection that is dragged
    QPoint m_way; ///< by how many cells
    bool m_copies = false;
};

} // namespace MapEditor
