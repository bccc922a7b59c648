#pragma once

#include "editors/map/maptool.h"

#include <QCoreApplication>

namespace MapEditor {

/// Paints the terrain of the brush: each cell gets the tile whose borders match those around it. The right button takes
/// cells out of it.
class TerrainTool final : public MapTool
{
    Q_DECLARE_TR_FUNCTIONS(MapEditor::TerrainTool)

public:
    using MapTool::MapTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::PaintTerrain; }
    bool activate() override;
    QCursor cursor() const override { return Qt::CrossCursor; }
    bool isUnavailable() const override;
    bool mousePressed(QMouseEvent *event) override;
    void mouseMoved(QMouseEvent *event) override;
    void mouseReleased(QMouseEvent *event) override;
    void paintUnder(QPainter &painter) const override;

private:
    void stroke(QPoint from, QPoint to);

    bool m_painting = false;
};

} // namespace MapEditor
