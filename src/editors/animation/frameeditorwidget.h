#pragma once

#include "model/animation.h"

#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <limits>
#include <optional>

class QMenu;
class QMimeData;
class WidgetCells;

namespace AnimationEditor {

/// Shows the cells of one frame of an animation, one of which can be selected and changed.
///
/// Tiles or sprites are dropped onto cells, according to the kind of the animation; their orientation is
/// changed by slots and by a context menu. How a cell looks is up to the owner, who sets a renderer. Cells
/// are given as points, the column in x and the row in y; (−1, −1) stands for none.
class FrameEditorWidget : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MaximumZoom = 64;
    static constexpr QPoint NoCell{-1, -1};

    /// The picture of a cell, of any size; null for one that shows nothing.
    using CellRenderer = std::function<QImage(const AnimationFrame::Cell &)>;

    explicit FrameEditorWidget(QWidget *parent = nullptr);

    [[nodiscard]] Animation *animation() const { return m_animation; }
    /// Shows the first frame of an animation, no cell selected. Null shows an empty grid.
    void setAnimation(Animation *animation);
    void setCellRenderer(const CellRenderer &renderer);
    /// Only tiles or sprites below this number are accepted.
    void setIndexCount(int count) { m_indexCount = count; }

    [[nodiscard]] int currentFrame() const { return m_currentFrame; }
    void setCurrentFrame(int index);

    /// Pixels of the screen to a pixel of a tile or sprite, 1 … MaximumZoom.
    [[nodiscard]] int zoom() const { return m_zoom; }
    void setZoom(int zoom);
    /// The side of a cell on the screen.
    [[nodiscard]] int cellSize() const;

    /// Shows the frame before faintly over the current one.
    void setOnionSkin(bool on);

    [[nodiscard]] QPoint selectedCell() const { return m_selected; }
    /// Selects a cell; one outside the grid selects none.
    void setSelectedCell(QPoint cell);
    /// The selected cell of the current frame; nothing when none is selected.
    [[nodiscard]] std::optional<AnimationFrame::Cell> selectedCellContent() const;
    /// The cell onto which a drag would drop now.
    [[nodiscard]] QPoint dropTarget() const { return m_dropTarget; }
    /// The cell at a position of the widget.
    [[nodiscard]] QPoint cellAt(QPoint position) const;
    [[nodiscard]] QRect cellRect(QPoint cell) const;
    [[nodiscard]] QMenu *contextMenu() const { return m_menu; }

    QSize sizeHint() const override;

public slots:
    // These change the selected cell of the current frame, if there is one.
    void setRotated(bool rotated);
    void setMirrored(bool mirrored);
    void setFlipped(bool flipped);
    void setOffset(int offset);
    void setIndex(int index);

    void zoomIn();
    void zoomOut();

signals:
    void selectedCellChanged(QPoint cell);
    void currentFrameChanged(int index);
    /// A cell was double-clicked, or Return pressed on the selected one.
    void cellActivated(QPoint cell);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void buildMenu();
    void tellCells();
    [[nodiscard]] QString textOf(QPoint cell) const;
    void popUpMenu(QPoint globalPosition);
    void fitAnimation();
    [[nodiscard]] QSize gridSize() const;
    [[nodiscard]] bool contains(QPoint cell) const;
    [[nodiscard]] AnimationFrame *frame() const;
    template <typename Value>
    void change(void (AnimationFrame::*setter)(int row, int column, Value value), Value value);
    void paintCells(QPainter &painter, const AnimationFrame &frame, const QRect &cells) const;
    void paintMarks(QPainter &painter) const;
    [[nodiscard]] bool accepts(const QMimeData *mimeData) const;
    /// Puts what is dragged into a cell; false when the data does not fit.
    bool place(const QMimeData *mimeData, QPoint cell);
    void setDropTarget(QPoint cell);

    QPointer<Animation> m_animation;
    CellRenderer m_renderer;
    int m_indexCount = std::numeric_limits<int>::max();
    int m_currentFrame = 0;
    int m_zoom = 4;
    bool m_onionSkin = false;
    QPoint m_selected = NoCell;
    QPoint m_dropTarget = NoCell;
    QMenu *m_menu;
    WidgetCells *m_cells = nullptr;
    QAction *m_rotated = nullptr;
    QAction *m_flipped = nullptr;
    QAction *m_mirrored = nullptr;
};

} // namespace AnimationEditor
