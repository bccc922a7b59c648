#pragma once

#include "editors/map/celltool.h"

namespace MapEditor {

/// Places the current tile animation.
class PlaceAnimationTool final : public CellTool
{
public:
    using CellTool::CellTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::PlaceAnim; }
    bool activate() override;
    QCursor cursor() const override { return Qt::OpenHandCursor; }
    bool isUnavailable() const override;
    void mouseReleased(QMouseEvent *event) override;
    void paintOver(QPainter &painter) const override;
};

} // namespace MapEditor
