#include "editors/map/selecttool.h"

#include "editors/map/mapgrid.h"

#include <QMouseEvent>

namespace MapEditor {

bool SelectTool::activate()
{
    grid()->setPasteArea({});
    grid()->setSelection({});
    grid()->setCursor(Qt::CrossCursor);
    return true;
}

bool SelectTool::mousePressedFirst(QMouseEvent *event)
{
    if (event->button() != Qt::RightButton || grid()->selection().isEmpty())
        return false;
    grid()->showContextMenu(event->globalPosition().toPoint());
    return true;
}

void SelectTool::mouseMoved(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    const MapViewport &viewport = grid()->viewport();
    if (const QPoint cell = viewport.cellAt(point); cell != grid()->hoverCell()) {
        grid()->setHoverCell(cell);
        grid()->update();
    }
    if (!(grid()->heldButtons() & Qt::LeftButton))
        return;
    const QRect band = QRect(grid()->pressPoint(), point).normalized();
    grid()->showRubberBand(band);
    grid()->setSelection(viewport.cellsUnder(band));
}

void SelectTool::paintUnder(QPainter &painter) const
{
    grid()->paintSelection(painter);
}

} // namespace MapEditor
