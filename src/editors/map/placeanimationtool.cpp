#include "editors/map/placeanimationtool.h"

#include <QPainter>

namespace MapEditor {

bool PlaceAnimationTool::activate()
{
    surface()->refreshCursor();
    return true;
}

bool PlaceAnimationTool::isUnavailable() const
{
    return map() && map()->objectLayer() && !map()->objectLayer()->isVisible();
}

void PlaceAnimationTool::mouseReleased(QMouseEvent *)
{
    surface()->endEdit(tr("Place Animation"));
}

void PlaceAnimationTool::paintOver(QPainter &painter) const
{
    const QPointer<TileAnimation> animation = brush().animation;
    if (!animation || !pointer().hasCell() || !pointer().highlight.isEmpty())
        return;
    const QRect area = viewport().rectOfCells({pointer().cell, animation->size()});
    painter.drawImage(area, animation->frameImage(animation->size() * TileMap::TileSize));
}

} // namespace MapEditor
