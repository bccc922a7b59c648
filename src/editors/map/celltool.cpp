#include "editors/map/celltool.h"

#include <QMouseEvent>

#include <algorithm>

namespace MapEditor {

bool CellTool::mousePressed(QMouseEvent *event)
{
    // the stroke starts here, even where the pointer came without a move
    const QPoint point = event->position().toPoint();
    if (viewport().viewRect.contains(point))
        pointer().cell = viewport().snappedCellAt(point);
    else
        pointer().clearCell();
    surface()->beginEdit();
    if (brush().paintsOnPress)
        mouseMoved(event);
    return false;
}

void CellTool::mouseMoved(QMouseEvent *event)
{
    if (!map())
        return;
    const QPoint cell = viewport().snappedCellAt(event->position().toPoint());
    const QPoint before = pointer().cell;
    const QPoint from = pointer().hasCell() ? before : cell; // the pointer may come from outside
    pointer().cell = cell;
    if (cell != before)
        surface()->repaintSoon();

    if (pointer().held == Qt::NoButton)
        highlightAt(cell);
    else if (!(pointer().held & (Qt::LeftButton | Qt::RightButton)) || !pointer().highlight.isEmpty())
        return;
    else if (brush().tile.index < 0)
        placeAnimation(cell);
    else
        stroke(from, cell);
}

/// Writes the cells on the straight line between two cells, in steps of the snap size: a fast pointer skips some.
void CellTool::stroke(QPoint from, QPoint to)
{
    Map &level = *map();
    if (!level.tileLayer() || !level.tileLayer()->isVisible())
        return;
    TileMap::TileData cell = brush().cellFor(map());
    cell.used = pointer().held & Qt::LeftButton;

    const int step = std::max(viewport().snap, 1);
    const QPoint way = to - from;
    const int steps = std::max(std::abs(way.x()), std::abs(way.y())) / step;
    bool changed = level.setTile(to, cell);
    for (int i = 0; i < steps; ++i) {
        const auto along = [i, steps, step](int distance) { return qRound(qreal(distance) / step * i / steps) * step; };
        changed |= level.setTile(from + QPoint(along(way.x()), along(way.y())), cell);
    }
    if (changed)
        surface()->repaintSoon();
}

void CellTool::placeAnimation(QPoint cell)
{
    const QPointer<TileAnimation> animation = brush().animation;
    Map &level = *map();
    if (!animation || !level.objectLayer() || !level.objectLayer()->isVisible())
        return;
    pointer().highlight = {cell, animation->size()};
    surface()->beginEdit();
    level.placeAnimation(animation, cell);
    surface()->endEdit(tr("Place Animation"));
    surface()->repaintSoon();
}

void CellTool::highlightAt(QPoint cell)
{
    const QRect covered = map()->animatedBlocks()->areaAt(cell);
    const bool movable = !covered.isEmpty() && !isUnavailable();
    if (movable)
        surface()->showCursor(Qt::SizeAllCursor); // also over what was placed just now
    if (covered == pointer().highlight)
        return;
    pointer().highlight = covered;
    if (!movable)
        surface()->refreshCursor();
    surface()->repaintSoon();
}

} // namespace MapEditor
