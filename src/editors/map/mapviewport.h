#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace MapEditor {

/// Which cells of a map a widget shows, and where.
///
/// Cells are counted from the top left of the map, points are those of the widget, and pixels are the map's
/// own, 8 to a cell. All divisions truncate toward zero unless told otherwise.
struct MapViewport
{
    static constexpr int MinimumZoom = 1;
    static constexpr int MaximumZoom = 8;

    int baseSize = 8; ///< screen pixels of a cell at zoom factor 1
    int zoomFactor = 4; ///< MinimumZoom … MaximumZoom
    int cellSize = 32; ///< screen pixels of a cell: zoomFactor × baseSize, or any size of at least 1 after fit()
    int snap = 1; ///< in cells; 1 for none
    bool viewportEnabled = false; ///< shows no more than viewportSize
    QSize viewportSize; ///< in cells
    QPoint scroll; ///< the cell at the top left of viewRect
    QRect viewRect; ///< where cells are drawn

    /// False, and nothing changes, for a factor out of range.
    bool setZoom(int factor);
    /// The size of a cell at zoom factor 1, at least 1.
    void setBaseSize(int pixels);
    /// Chooses the cell size at which all of the viewport, or of the map, fits into the widget.
    void fit(QSize widget, QSize map);
    /// Centres as many whole cells as the widget has room for, and keeps the scroll position inside the map.
    void layout(QSize widget, QSize map);
    /// Moves by one cell along one axis, the horizontal one first; false when there is nowhere to go.
    bool scrollBy(QPoint direction, QSize map);

    /// How many whole cells viewRect shows.
    QSize visibleSize() const;
    /// The cells that viewRect shows.
    QRect visibleCells() const { return {scroll, visibleSize()}; }
    /// The largest scroll position: what of the map is not shown.
    QSize overflow(QSize map) const { return map - visibleSize(); }

    /// The cell under a point.
    QPoint cellAt(QPoint point) const;
    /// The same on the grid of the snap size.
    QPoint snappedCellAt(QPoint point) const;
    /// The map pixel under a point.
    QPoint pixelAt(QPoint point) const;
    /// A map pixel on the grid of the snap size.
    QPoint snappedPixel(QPoint pixel) const;
    /// The cells that an area of the widget touches, also those left of and above viewRect.
    QRect cellsUnder(const QRect &area) const;

    /// The place of cells in the widget.
    QRect rectOfCells(const QRect &cells) const;
    /// The place of map pixels in the widget.
    QRect rectOfPixels(const QRect &pixels) const;
};

} // namespace MapEditor
