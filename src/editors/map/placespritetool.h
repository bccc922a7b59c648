#pragma once

#include "editors/map/maptool.h"
#include "model/map.h"

#include <QCoreApplication>
#include <QPoint>

namespace MapEditor {

/// Places sprites, selects them and moves them. Positions are in pixels of the map.
class PlaceSpriteTool final : public MapTool
{
    Q_DECLARE_TR_FUNCTIONS(MapEditor::PlaceSpriteTool)

public:
    using MapTool::MapTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::PlaceSprite; }
    bool activate() override;
    QCursor cursor() const override { return Qt::CrossCursor; }
    bool isUnavailable() const override;
    bool mousePressed(QMouseEvent *event) override;
    void mouseMoved(QMouseEvent *event) override;
    void mouseReleased(QMouseEvent *event) override;
    void paintOver(QPainter &painter) const override;

private:
    [[nodiscard]] int spriteAt(QPoint pixel) const;
    void grab(int index, QPoint pixel);
    void placeAt(QPoint pixel);
    void drag(QMouseEvent *event);
    /// Whether the sprite that was grabbed is still where it was left.
    [[nodiscard]] bool isDragging() const;

    int m_grabbed = -1; ///< the sprite being dragged, or -1
    Map::PlacedSprite m_sprite; ///< how it was left by the last move
    QPoint m_grabOffset; ///< from the sprite's corner to the pointer
    bool m_pulled = false; ///< far enough from the press not to be a click
    bool m_moved = false;
    QPoint m_previewPixel;
};

} // namespace MapEditor
