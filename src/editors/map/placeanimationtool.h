#pragma once

#include "editors/map/celltool.h"

#include <QCoreApplication>

namespace MapEditor {

/// Places the current tile animation.
class PlaceAnimationTool final : public CellTool
{
    Q_DECLARE_TR_FUNCTIONS(MapEditor::PlaceAnimationTool)

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
