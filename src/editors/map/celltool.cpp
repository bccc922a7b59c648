#include "editors/map/celltool.h"

#include <QMouseEvent>

#include <algorithm>

namespace MapEditor {

bool CellTool::mousePressed(QMouseEvent *event)
{
    // the stroke starts here, even where the pointer came without a move
    const QPoint point = event->position().toPoint();
    const bool onMap = viewport().viewRect.contains(point);
    if (onMap)
        pointer().cell = viewport().snappedCellAt(point);
    else
        pointer().clearCell();
    m_ink.reset();
    m_inked = {};
    m_modifiers = event->modifiers();
    surface()->beginEdit();
    if (onMap && brush().paintsOnPress)
        mouseMoved(event);
    return false;
}

void CellTool::mouseMoved(QMouseEvent *event)
{
    if (!map())
        return;
    const QPoint cell = viewport().snappedCellAt(event->position().toPoint());
    if (pointer().held == Qt::NoButton)
        m_ink.reset(); // another window took the release
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

namespace {

/// The cells on the straight line between two cells, in steps of the snap size: a fast pointer skips some. The first
/// is not among them unless it is the last one too.
template <typename Visit>
void alongLine(QPoint from, QPoint to, int step, Visit visit)
{
    const QPoint way = to - from;
    const int steps = std::max(std::abs(way.x()), std::abs(way.y())) / step;
    visit(to);
    for (int i = 0; i < steps; ++i) {
        const auto along = [i, steps, step](int distance) { return qRound(qreal(distance) / step * i / steps) * step; };
        visit(from + QPoint(along(way.x()), along(way.y())));
    }
}

} // namespace

void CellTool::stroke(QPoint from, QPoint to)
{
    Map &level = *map();
    if (!level.tileLayer() || !level.tileLayer()->isVisible())
        return;
    if (!brush().isPlain() || (brush().doesMore && m_modifiers & Qt::ControlModifier)) {
        inkStroke(from, to);
        return;
    }
    TileMap::TileData cell = brush().cellFor(map());
    cell.used = pointer().held & Qt::LeftButton;

    bool changed = false;
    alongLine(from, to, std::max(viewport().snap, 1), [&](QPoint place) { changed |= level.setTile(place, cell); });
    if (changed)
        surface()->repaintSoon();
}

void CellTool::inkStroke(QPoint from, QPoint to)
{
    if (!m_ink)
        m_ink = brush().ink(map(), from, pointer().held, m_modifiers);
    if (m_ink->stamp.isEmpty())
        return;
    bool changed = false;
    alongLine(from, to, std::max(viewport().snap, 1), [&](QPoint cell) {
        if (m_inked.contains(cell))
            return;
        m_inked = placeOf(*m_ink, cell);
        changed |= m_ink->paint(*map(), m_inked);
    });
    if (changed)
        surface()->repaintSoon();
}

QRect CellTool::placeOf(const CellInk &ink, QPoint cell) const
{
    if (ink.random || ink.stamp.isEmpty())
        return {cell, QSize(1, 1)};
    return m_ink ? ink.stamp.slotOf(cell, ink.origin) : ink.stamp.around(cell);
}

CellInk CellTool::inkAt(QPoint cell) const
{
    return m_ink ? *m_ink : brush().ink(map(), cell, Qt::LeftButton, {});
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
