#include "editors/map/drawtool.h"

#include "editors/map/mapgrid.h"

#include <QPainter>

namespace MapEditor {

bool DrawTool::activate()
{
    grid()->refreshCursor();
    grid()->selectNone();
    return true;
}

bool DrawTool::isUnavailable() const
{
    const QPointer<Map> map = grid()->map();
    return map && map->tileLayer() && !map->tileLayer()->isVisible();
}

void DrawTool::mouseReleased(QMouseEvent *)
{
    grid()->endEdit(MapGrid::tr("Paint"));
}

void DrawTool::paintUnder(QPainter &painter) const
{
    if (grid()->hasHoverCell() && grid()->highlight().isEmpty()) {
        const QImage tile = grid()->tilePicture(grid()->currentTile());
        if (!tile.isNull())
            painter.drawImage(grid()->viewport().rectOfCells({grid()->hoverCell(), QSize(1, 1)}), tile);
    }
    grid()->paintSelection(painter);
}

} // namespace MapEditor
