#pragma once

#include "editors/map/cellink.h"
#include "editors/map/maptool.h"

#include <QCoreApplication>

#include <optional>

namespace MapEditor {

/// Paints a line, a rectangle or an ellipse of cells between the press and the release; with Shift a straight or
/// diagonal line, a square or a circle.
class ShapeTool final : public MapTool
{
    Q_DECLARE_TR_FUNCTIONS(MapEditor::ShapeTool)

public:
    ShapeTool(MapSurface *surface, Quenmora::Ui::ToolButton shape) : MapTool(surface), m_shape(shape) { }

    Quenmora::Ui::ToolButton mode() const override { return m_shape; }
    bool activate() override;
    QCursor cursor() const override { return Qt::CrossCursor; }
    bool isUnavailable() const override;
    bool mousePressed(QMouseEvent *event) override;
    void mouseMoved(QMouseEvent *event) override;
    void mouseReleased(QMouseEvent *event) override;
    void paintUnder(QPainter &painter) const override;

private:
    [[nodiscard]] QList<TileMap::Run> runs(const QRect &clip) const;
    [[nodiscard]] QString text() const;

    const Quenmora::Ui::ToolButton m_shape;
    std::optional<CellInk> m_ink; ///< while the button is held
    QPoint m_from;
    QPoint m_to;
};

} // namespace MapEditor
