#include "editors/map/filltool.h"

#include "editors/map/cellpreview.h"
#include "model/cellruns.h"

#include <QMouseEvent>

namespace MapEditor {

bool FillTool::activate()
{
    surface()->refreshCursor();
    surface()->hideRubberBand();
    return true;
}

QCursor FillTool::cursor() const
{
    return QCursor(QPixmap(QStringLiteral(":/FillCursor")), 29, 26);
}

bool FillTool::isUnavailable() const
{
    return map() && map()->tileLayer() && !map()->tileLayer()->isVisible();
}

bool FillTool::mousePressed(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (!map() || !map()->tileLayer() || isUnavailable() || !viewport().viewRect.contains(point))
        return false;
    const QPoint cell = viewport().cellAt(point);
    const CellInk ink = brush().ink(map(), cell, event->buttons(), event->modifiers());
    const QRect selection = surface()->selection();
    const QRect clip = selection.contains(cell) ? selection : QRect(QPoint(0, 0), map()->size());
    surface()->beginEdit();
    ink.paint(*map(), CellRuns::connected(map()->tileLayer()->rows(), cell, clip));
    surface()->endEdit(tr("Bucket Fill"));
    surface()->repaintSoon();
    return true;
}

void FillTool::mouseMoved(QMouseEvent *event)
{
    const QPoint cell = viewport().cellAt(event->position().toPoint());
    if (cell == pointer().cell)
        return;
    pointer().cell = cell;
    surface()->repaintSoon();
}

void FillTool::paintUnder(QPainter &painter) const
{
    if (map() && pointer().hasCell())
        CellPreview::paint(painter, *map(), viewport(), QRect(pointer().cell, QSize(1, 1)),
                           brush().ink(map(), pointer().cell, Qt::LeftButton, {}));
    paintSelection(painter);
}

} // namespace MapEditor
