#include "editors/map/celltool.h"

#include "editors/map/mapgrid.h"

#include <QMouseEvent>

#include <algorithm>

namespace MapEditor {

bool CellTool::mousePressed(QMouseEvent *event)
{
    // the stroke starts here, even where the pointer came without a move
    const QPoint point = event->position().toPoint();
    if (grid()->viewport().viewRect.contains(point))
        grid()->setHoverCell(grid()->viewport().snappedCellAt(point));
    else
        grid()->clearHoverCell();
    grid()->beginEdit();
    return false;
}

void CellTool::mouseMoved(QMouseEvent *event)
{
    if (!grid()->map())
        return;
    const QPoint cell = grid()->viewport().snappedCellAt(event->position().toPoint());
    const QPoint before = grid()->hoverCell();
    const QPoint from = grid()->hasHoverCell() ? before : cell; // the pointer may come from outside
    grid()->setHoverCell(cell);
    if (cell != before)
        grid()->update();

    if (grid()->heldButtons() == Qt::NoButton)
        highlightAt(cell);
    else if (!(grid()->heldButtons() & (Qt::LeftButton | Qt::RightButton)) || !grid()->highlight().isEmpty())
        return;
    else if (grid()->currentTileIndex() < 0)
        placeAnimation(cell);
    else
        stroke(from, cell);
}

/// Writes the cells on the straight line between two cells, in steps of the snap size: a fast pointer skips some.
void CellTool::stroke(QPoint from, QPoint to)
{
    Map &map = *grid()->map();
    if (!map.tileLayer() || !map.tileLayer()->isVisible())
        return;
    TileMap::TileData cell = grid()->currentTile();
    cell.used = grid()->heldButtons() & Qt::LeftButton;

    const int step = std::max(grid()->viewport().snap, 1);
    const QPoint way = to - from;
    const int steps = std::max(std::abs(way.x()), std::abs(way.y())) / step;
    bool changed = map.setTile(to, cell);
    for (int i = 0; i < steps; ++i) {
        const auto along = [i, steps, step](int distance) { return qRound(qreal(distance) / step * i / steps) * step; };
        changed |= map.setTile(from + QPoint(along(way.x()), along(way.y())), cell);
    }
    if (changed)
        grid()->update();
}

void CellTool::placeAnimation(QPoint cell)
{
    const QPointer<TileAnimation> animation = grid()->currentAnimation();
    Map &map = *grid()->map();
    if (!animation || !map.objectLayer() || !map.objectLayer()->isVisible())
        return;
    grid()->setHighlight({cell, animation->size()});
    grid()->beginEdit();
    map.placeAnimation(animation, cell);
    grid()->endEdit(MapGrid::tr("Place Animation"));
    grid()->update();
}

void CellTool::highlightAt(QPoint cell)
{
    const QRect covered = grid()->map()->animatedBlocks()->areaAt(cell);
    const bool movable = !covered.isEmpty() && !isUnavailable();
    if (movable && grid()->cursor().shape() != Qt::SizeAllCursor)
        grid()->setCursor(Qt::SizeAllCursor); // also over what was placed just now
    if (covered == grid()->highlight())
        return;
    grid()->setHighlight(covered);
    if (!movable)
        grid()->refreshCursor();
    grid()->update();
}

} // namespace MapEditor
