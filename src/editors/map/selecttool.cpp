#include "editors/map/selecttool.h"

#include <QMouseEvent>

namespace MapEditor {

bool SelectTool::activate()
{
    surface()->setPasteArea({});
    surface()->setSelection({});
    surface()->showCursor(Qt::CrossCursor);
    return true;
}

bool SelectTool::mousePressedFirst(QMouseEvent *event)
{
    if (event->button() != Qt::RightButton || surface()->selection().isEmpty())
        return false;
    surface()->showContextMenu(event->globalPosition().toPoint());
    return true;
}

void SelectTool::mouseMoved(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (const QPoint cell = viewport().cellAt(point); cell != pointer().cell) {
        pointer().cell = cell;
        surface()->repaintSoon();
    }
    if (!(pointer().held & Qt::LeftButton))
        return;
    const QRect band = QRect(pointer().press, point).normalized();
    surface()->showRubberBand(band);
    surface()->setSelection(viewport().cellsUnder(band));
}

void SelectTool::paintUnder(QPainter &painter) const
{
    paintSelection(painter);
}

} // namespace MapEditor
