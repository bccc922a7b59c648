#include "editors/map/mapbrush.h"

#include "model/spritebank.h"
#include "model/tileset.h"

#include <algorithm>

namespace MapEditor {

void MapBrush::chooseTile(int index)
{
    animation.clear();
    stamp = {};
    tile.index = index;
}

void MapBrush::chooseStamp(const Stamp &chosen)
{
    const QList<TileMap::TileData> &cells = chosen.cells();
    const auto written = std::ranges::find_if(cells, [](const TileMap::TileData &cell) { return cell.used; });
    if (written == cells.cend())
        return; // there is nothing to paint
    chooseTile(written->index); // for whoever wants one tile
    stamp = chosen;
}

void MapBrush::chooseAnimation(const QPointer<TileAnimation> &chosen)
{
    tile.index = -1;
    stamp = {};
    animation = chosen;
}

void MapBrush::chooseSpriteAnimation(const QPointer<SpriteAnim> &chosen)
{
    tile.index = -1;
    stamp = {};
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
    stamp = {};
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
    if (std::ranges::any_of(stamp.cells(), [tileCount](const auto &cell) { return cell.index >= tileCount; }))
        stamp = {};
}

TileMap::TileData MapBrush::cellFor(const QPointer<Map> &map) const
{
    TileMap::TileData cell = tile;
    const QPointer<TileSet> tiles = map ? map->tileSet() : nullptr;
    cell.offset = tiles ? tiles->tileOffset(cell.index) : 0;
    cell.used = true;
    return cell;
}

Stamp MapBrush::pattern(const QPointer<Map> &map) const
{
    if (tile.index < 0)
        return {};
    Stamp result = stamp.isEmpty() ? Stamp(cellFor(map)) : stamp.oriented(tile.rotate, tile.flip, tile.mirror);
    return offset < 0 ? result : result.withOffset(offset);
}

CellInk MapBrush::ink(const QPointer<Map> &map, QPoint first, Qt::MouseButtons buttons,
                      Qt::KeyboardModifiers modifiers) const
{
    CellInk ink;
    ink.useTilesOf(map);
    ink.stamp = pattern(map);
    ink.random = random && !stamp.isEmpty();
    if (ink.random)
        ink.stamp = ink.stamp.writtenCells();
    ink.seed = seed;
    ink.origin = ink.around(first).topLeft();
    const bool takesBack = !(buttons & Qt::LeftButton);
    if (doesMore && modifiers & Qt::ControlModifier)
        ink.part = takesBack ? CellInk::OwnOffsets : CellInk::Offsets;
    else
        ink.part = takesBack ? CellInk::Nothing : CellInk::Cells;
    return ink;
}

} // namespace MapEditor
