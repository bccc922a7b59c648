#pragma once

#include "editors/map/cellink.h"
#include "editors/map/maptool.h"
#include "pictures/picturecells.h"

#include <QCoreApplication>
#include <QImage>

#include <optional>

namespace MapEditor {

/// Pastes the cells on the clipboard, or a picture as cells, around the pointer.
///
/// Where the grid does more, cells are pasted again and again while the button is held, without overlapping themselves,
/// and turned as the tools' orientation is turned since the tool was taken.
///
/// A picture is cut into the tiles that the map's set has, and others that are added to the set. Both together are a
/// structural edit of the set, which whoever records such edits makes one undo step. What it will cost is told before.
class PasteTool final : public MapTool
{
    Q_DECLARE_TR_FUNCTIONS(MapEditor::PasteTool)

public:
    using MapTool::MapTool;

    Quenmora::Ui::ToolButton mode() const override { return Quenmora::Ui::Paste; }
    /// Refuses when the clipboard holds no cells, or cells of another tile set than the map's, and no picture for which
    /// there is room.
    bool activate() override;
    void mouseMoved(QMouseEvent *event) override;
    bool mousePressed(QMouseEvent *event) override;
    void mouseReleased(QMouseEvent *event) override;
    void paintUnder(QPainter &painter) const override;
    void paintOver(QPainter &painter) const override;

private:
    bool isOnClipboard() const;
    void stroke(QPoint from, QPoint to);
    CellInk ink() const;
    bool takePicture();
    bool putPictureDown(QPoint at);
    /// What a picture would become; nothing of it when there is no room, which is told.
    [[nodiscard]] PictureCells cellsOf(const QImage &picture) const;

    QImage m_picture; ///< that is being pasted; null for cells
    Stamp m_copied; ///< the cells, where they are pasted again and again; else empty
    std::optional<QPoint> m_first; ///< place of them, while the button is held
    TileMap::TileData m_orientation; ///< of the brush when the tool was taken
};

} // namespace MapEditor
