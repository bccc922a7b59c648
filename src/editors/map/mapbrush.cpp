#include "editors/map/mapbrush.h"

#include "model/spritebank.h"
#include "model/tileset.h"

#include <algorithm>

namespace MapEditor {

void MapBrush::chooseTile(int index)
{
    animation.clear();
    tile.index = index;
}

void MapBrush::chooseAnimation(const QPointer<TileAnimation> &chosen)
{
    tile.index = -1;
    animation = chosen;
}

void MapBrush::chooseSpriteAnimation(const QPointer<SpriteAnim> &chosen)
{
    tile.index = -1;
    sprite.reset();
    if (!chosen)
        return;
    const auto *bank = qobject_cast<SpriteBank *>(chosen->parent());
    sprite.emplace();
    sprite->bank = bank ? bank->id() : QUuid();
    sprite->animation = chosen->id();
    sprite->sprite = -1;
}

void MapBrush::chooseSprite(QUuid bank, int index)
{
    tile.index = -1;
    sprite.reset();
    if (index < 0)
        return;
    sprite.emplace();
    sprite->bank = bank;
    sprite->sprite = index;
}

void MapBrush::keepWithin(int tileCount)
{
    tile.index = std::min(tile.index, tileCount - 1);
}

TileMap::TileData MapBrush::cellFor(const QPointer<Map> &map) const
{
    TileMap::TileData cell = tile;
    const QPointer<TileSet> tiles = map ? map->tileSet() : nullptr;
    cell.offset = tiles ? tiles->tileOffset(cell.index) : 0;
    cell.used = true;
    return cell;
}

} // namespace MapEditor
