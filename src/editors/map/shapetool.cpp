#include "editors/map/shapetool.h"

#include "editors/map/cellpreview.h"
#include "model/cellruns.h"

#include <QMouseEvent>

#include <algorithm>
#include <cstdlib>

using namespace Quenmora::Ui;

namespace MapEditor {

namespace {

/// The end of a line that is level, upright or diagonal, or of the diagonal of a square.
QPoint straightened(QPoint from, QPoint to, bool line)
{
    const QPoint way = to - from;
    const int across = std::abs(way.x());
    const int down = std::abs(way.y());
    if (line && across > 2 * down)
        return {to.x(), from.y()};
    if (line && down > 2 * across)
        return {from.x(), to.y()};
    const int side = std::max(across, down);
    return from + QPoint(way.x() < 0 ? -side : side, way.y() < 0 ? -side : side);
}

} // namespace

bool ShapeTool::activate()
{
    m_ink.reset();
    surface()->refreshCursor();
    surface()->hideRubberBand();
    surface()->setSelection({});
    return true;
}

bool ShapeTool::isUnavailable() const
{
    return map() && map()->tileLayer() && !map()->tileLayer()->isVisible();
}

bool ShapeTool::mousePressed(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (!map() || isUnavailable() || !viewport().viewRect.contains(point))
        return false;
    m_from = m_to = pointer().cell = viewport().snappedCellAt(point);
    CellInk ink = brush().ink(map(), m_from, event->buttons(), event->modifiers());
    if (ink.stamp.isEmpty())
        return false;
    ink.origin = m_from; // a shape begins with the corner of the pattern
    m_ink = ink;
    surface()->repaintSoon();
    return true;
}

void ShapeTool::mouseMoved(QMouseEvent *event)
{
    if (pointer().held == Qt::NoButton)
        m_ink.reset(); // another window took the release
    const QPoint cell = viewport().snappedCellAt(event->position().toPoint());
    const bool straight = event->modifiers() & Qt::ShiftModifier;
    const QPoint to = straight && m_ink ? straightened(m_from, cell, m_shape == Line) : cell;
    if (cell == pointer().cell && to == m_to)
        return;
    pointer().cell = cell;
    m_to = to;
    surface()->repaintSoon();
}

void ShapeTool::mouseReleased(QMouseEvent *)
{
    if (!m_ink || !map())
        return;
    surface()->beginEdit();
    m_ink->paint(*map(), runs(QRect(QPoint(0, 0), map()->size())));
    surface()->endEdit(text());
    m_ink.reset();
    surface()->repaintSoon();
}

QList<TileMap::Run> ShapeTool::runs(const QRect &clip) const
{
    const QRect area(QPoint(std::min(m_from.x(), m_to.x()), std::min(m_from.y(), m_to.y())),
                     QPoint(std::max(m_from.x(), m_to.x()), std::max(m_from.y(), m_to.y())));
    switch (m_shape) {
    case Line:
        return CellRuns::line(m_from, m_to, clip);
    case Rectangle:
    case RectangleFill:
        return CellRuns::rectangle(area, m_shape == RectangleFill, clip);
    default:
        return CellRuns::ellipse(area, m_shape == CircleFill, clip);
    }
}

QString ShapeTool::text() const
{
    switch (m_shape) {
    case Line:
        return tr("Line");
    case Rectangle:
    case RectangleFill:
        return tr("Rectangle");
    default:
        return tr("Ellipse");
    }
}

void ShapeTool::paintUnder(QPainter &painter) const
{
    if (!map())
        return;
    const QRect shown = viewport().visibleCells();
    if (m_ink)
        CellPreview::paint(painter, *map(), viewport(), runs(shown), *m_ink);
    else if (pointer().hasCell())
        CellPreview::paint(painter, *map(), viewport(), QRect(pointer().cell, QSize(1, 1)),
                           brush().ink(map(), pointer().cell, Qt::LeftButton, {}));
}

} // namespace MapEditor
