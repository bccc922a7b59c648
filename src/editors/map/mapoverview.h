#pragma once

#include <QImage>
#include <QWidget>

class QTimer;

namespace MapEditor {

class MapGrid;

/// The whole map in a corner of its grid, small, with a frame around what is in view. The frame is dragged from where
/// it is taken; a press beside it brings it there.
///
/// What it costs depends on its own size alone: of a map with more cells than it has pixels, it looks at one cell a
/// pixel. It follows edits a moment later, and colours that go round only as often as it takes to see whether it shows
/// them.
class MapOverview : public QWidget
{
    Q_OBJECT

public:
    static constexpr int Extent = 200; ///< pixels of its longer side at most

    explicit MapOverview(MapGrid *grid);

    /// Where the part of the map that is in view lies in it.
    [[nodiscard]] QRect frame() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
    void render();
    void renderSoon(bool coloursAlone);
    void scrollTo(QPoint point);
    [[nodiscard]] QRect picturePlace() const;

    MapGrid *m_grid;
    QTimer *m_soon;
    QImage m_picture;
    bool m_coloursAlone = true; ///< since it was rendered
    int m_stepsUnseen = 0; ///< of colours, one after the other, that changed nothing in it
    // of a drag
    QPoint m_press;
    QPoint m_scroll; ///< then
};

} // namespace MapEditor
