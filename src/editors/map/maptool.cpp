#include "editors/map/maptool.h"

#include "editors/map/mappainter.h"
#include "editors/map/mapselection.h"

namespace MapEditor {

MapSurface::~MapSurface() = default;

MapTool::~MapTool() = default;

QCursor MapTool::cursor() const
{
    return Qt::ArrowCursor;
}

bool MapTool::isUnavailable() const
{
    return false;
}

bool MapTool::mousePressedFirst(QMouseEvent *)
{
    return false;
}

bool MapTool::mousePressed(QMouseEvent *)
{
    return false;
}

void MapTool::mouseMoved(QMouseEvent *) { }

void MapTool::mouseReleased(QMouseEvent *) { }

void MapTool::paintSelection(QPainter &painter) const
{
    const MapSelection &selected = surface()->selected();
    if (!selected.runs.isEmpty())
        MapPainter::paintRuns(painter, viewport(), selected.runs);
    else if (!selected.cells.isEmpty())
        MapPainter::paintSelection(painter, viewport().rectOfCells(selected.cells));
}

void MapTool::paintUnder(QPainter &) const { }

void MapTool::paintOver(QPainter &) const { }

} // namespace MapEditor
