#include "editors/map/tilereplacement.h"

#include "model/tileset.h"
#include "undo/mapeditcommand.h"

#include <memory>

namespace MapEditor {

bool TileReplacement::apply(Map &map, const CellRuns::Runs &within) const
{
    const QPointer<TileSet> tiles = map.tileSet();
    const int offset = tiles ? tiles->tileOffset(to) : 0;
    return map.writeTiles(within, 1, [this, offset](QPoint, std::span<TileMap::TileData> cells) {
        for (TileMap::TileData &cell : cells) {
            if (!cell.used || cell.index != from)
                continue;
            cell.index = to;
            cell.offset = offset;
        }
    });
}

QUndoCommand *TileReplacement::applyToAll(const QList<QPointer<Map>> &maps, const QString &text) const
{
    auto step = std::make_unique<QUndoCommand>(text);
    for (const QPointer<Map> &map : maps) {
        if (!map || !map->tileLayer())
            continue;
        const Map::Snapshot before = map->snapshot();
        if (apply(*map, CellRuns::ofTile(before.tiles, from)))
            new MapEditCommand(text, map, before, map->snapshot(), step.get()); // the step owns it
    }
    return step->childCount() > 0 ? step.release() : nullptr;
}

} // namespace MapEditor
