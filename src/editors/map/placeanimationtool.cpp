#include "editors/map/placeanimationtool.h"

#include "editors/map/mapgrid.h"

#include <QPainter>

namespace MapEditor {

bool PlaceAnimationTool::activate()
{
    grid()->refreshCursor();
    return true;
}

bool PlaceAnimationTool::isUnavailable() const
{
    const QPointer<Map> map = grid()->map();
    return map && map->objectLayer() && !map->objectLayer()->isVisible();
}

void PlaceAnimationTool::mouseReleased(QMouseEvent *)
{
    grid()->endEdit(MapGrid::tr("Place Animation"));
}

void PlaceAnimationTool::paintOver(QPainter &painter) const
{
    const QPointer<TileAnimation> animation = grid()->currentAnimation();
    if (!animation || !grid()->hasHoverCell() || !grid()->highlight().isEmpty())
        return;
    const QRect area = grid()->viewport().rectOfCells({grid()->hoverCell(), animation->size()});
    painter.drawImage(area, animation->frameImage(animation->size() * TileMap::TileSize));
}

} // namespace MapEditor
