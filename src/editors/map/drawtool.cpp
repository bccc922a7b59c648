#include "editors/map/drawtool.h"

#include "editors/map/cellpreview.h"
#include "editors/map/mappainter.h"

#include <QPainter>

namespace MapEditor {

bool DrawTool::activate()
{
    surface()->refreshCursor();
    surface()->hideRubberBand();
    surface()->setSelection({});
    return true;
}

bool DrawTool::isUnavailable() const
{
    return map() && map()->tileLayer() && !map()->tileLayer()->isVisible();
}

void DrawTool::mouseReleased(QMouseEvent *)
{
    endStroke();
    surface()->endEdit(tr("Paint"));
}

void DrawTool::paintUnder(QPainter &painter) const
{
    if (pointer().hasCell() && pointer().highlight.isEmpty() && !brush().isPlain()) {
        const CellInk ink = inkAt(pointer().cell);
        if (map())
            CellPreview::paint(painter, *map(), viewport(), placeOf(ink, pointer().cell), ink);
    } else if (pointer().hasCell() && pointer().highlight.isEmpty()) {
        const QImage tile = MapPainter::tilePicture(map(), brush().cellFor(map()));
        if (!tile.isNull())
            painter.drawImage(viewport().rectOfCells({pointer().cell, QSize(1, 1)}), tile);
    }
    paintSelection(painter);
}

} // namespace MapEditor
