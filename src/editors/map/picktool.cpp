#include "editors/map/picktool.h"

#include <QMouseEvent>

namespace MapEditor {

bool PickTool::activate()
{
    const Quenmora::Ui::ToolButton before = surface()->savedMode();
    const bool refused = before == Quenmora::Ui::Paste && surface()->pasteArea().isEmpty(); // while picking
    if (before != mode() && !refused)
        m_modeBefore = before;
    m_dragging = false;
    surface()->showCursor(QCursor(QPixmap(QStringLiteral(":/PickerCursor")), 5, 28));
    return true;
}

bool PickTool::mousePressed(QMouseEvent *event)
{
    m_dragging = brush().doesMore && event->button() == Qt::LeftButton;
    m_picked = {};
    return false;
}

void PickTool::mouseMoved(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (const QPoint cell = viewport().cellAt(point); m_dragging && cell != pointer().cell) {
        pointer().cell = cell; // which is told meanwhile
        surface()->repaintSoon();
    }
    if (!m_dragging || !(pointer().held & Qt::LeftButton))
        return;
    const QRect cells = viewport().cellsUnder(QRect(pointer().press, point).normalized());
    m_picked = cells.size() == QSize(1, 1) ? QRect() : cells;
    if (m_picked.isEmpty())
        surface()->hideRubberBand();
    else
        surface()->showRubberBand(viewport().rectOfCells(m_picked));
}

void PickTool::mouseReleased(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragging = false;
    if (m_picked.isEmpty())
        surface()->pickTileAt(event->position().toPoint());
    else
        surface()->pickStamp(m_picked);
    m_picked = {};
    surface()->setMode(m_modeBefore);
}

} // namespace MapEditor
