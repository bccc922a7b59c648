#pragma once

#include "editors/map/maptool.h"

#include <QCoreApplication>

namespace MapEditor {

/// Fills the cells that hold the same as the one that is pressed and hang together with it; inside a selection, the
/// fill stays in it.
class FillTool final : public MapTool
{
    Q_DECLARE_TR_FUNCTIONS(MapEditor::FillTool)

public:
    using MapTool::MapTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::Fill; }
    bool activate() override;
    QCursor cursor() const override;
    bool isUnavailable() const override;
    bool mousePressed(QMouseEvent *event) override;
    void mouseMoved(QMouseEvent *event) override;
    void paintUnder(QPainter &painter) const override;
};

} // namespace MapEditor
