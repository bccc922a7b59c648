#include "editors/map/maptool.h"

#include "editors/map/mappainter.h"

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
    if (const QRect cells = surface()->selection(); !cells.isEmpty())
        MapPainter::paintSelection(painter, viewport().rectOfCells(cells));
}

void MapTool::paintUnder(QPainter &) const { }

void MapTool::paintOver(QPainter &) const { }

} // namespace MapEditor
