#pragma once

#include "editors/map/celltool.h"

#include <QCoreApplication>

namespace MapEditor {

/// Writes the current tile into the cells of the tile layer.
class DrawTool final : public CellTool
{
    Q_DECLARE_TR_FUNCTIONS(MapEditor::DrawTool)

public:
    using CellTool::CellTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::Draw; }
    bool activate() override;
    bool isUnavailable() const override;
    void mouseReleased(QMouseEvent *event) override;
    void paintUnder(QPainter &painter) const override;
};

} // namespace MapEditor
