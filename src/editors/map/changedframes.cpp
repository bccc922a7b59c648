#include "editors/map/changedframes.h"

#include "editors/map/mapgrid.h"
#include "model/placedsprites.h"

#include <utility>

namespace MapEditor {

namespace {

/// The parts of a widget that these areas touch. Many small areas become one, which paints faster.
QRegion dirtyRegion(const QList<QRect> &areas, const QRect &widget)
{
    constexpr int Many = 16;
    QList<QRect> shown;
    QRect all;
    for (const QRect &area : areas) {
        if (area.intersects(widget)) {
            shown.append(area & widget);
            all |= shown.last();
        }
    }
    if (shown.size() > Many)
        return all;
    QRegion region;
    for (const QRect &area : std::as_const(shown))
        region += area;
    return region;
}

} // namespace

QRegion changedFrames(const MapGrid &grid, const QList<QRect> &placements, qint64 now)
{
    const QPointer<Map> map = grid.map();
    if (!map)
        return {};
    QList<QRect> changed;
    if (map->objectLayer() && map->objectLayer()->isVisible()) {
        for (const QRect &cells : placements)
            changed.append(grid.viewport().rectOfCells(cells));
    }
    const QList<Map::PlacedSprite> &sprites = map->sprites();
    if (map->spriteLayerVisible()) {
        for (int i = 0; i < sprites.size(); ++i) {
            if (PlacedSprites::changesBetween(now - 1, now, sprites.at(i), grid.spriteBanks()))
                changed.append(grid.spriteRect(i));
        }
    }
    return dirtyRegion(changed, grid.rect());
}

} // namespace MapEditor
