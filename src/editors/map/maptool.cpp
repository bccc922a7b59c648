#include "editors/map/maptool.h"

namespace MapEditor {

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

void MapTool::paintUnder(QPainter &) const { }

void MapTool::paintOver(QPainter &) const { }

} // namespace MapEditor
