#include "undo/mapeditcommand.h"

MapEditCommand::MapEditCommand(const QString &text, Map *map, const Map::Snapshot &before, const Map::Snapshot &after,
                               QUndoCommand *parent)
    : QUndoCommand(text, parent)
    , m_map(map)
    , m_tiles(before.tiles, after.tiles)
    , m_objects(before.objects, after.objects)
{
    if (before.placements != after.placements)
        m_placements = {before.placements, after.placements};
    if (before.sprites != after.sprites)
        m_sprites = {before.sprites, after.sprites};
}

MapEditCommand::~MapEditCommand() = default;

void MapEditCommand::undo()
{
    apply(GridChange::Side::Before);
    m_applied = false;
}

void MapEditCommand::redo()
{
    if (m_applied)
        return;
    apply(GridChange::Side::After);
    m_applied = true;
}

void MapEditCommand::apply(GridChange::Side side)
{
    if (!m_map)
        return;
    Map::Snapshot content = m_map->snapshot();
    m_tiles.apply(side, content.tiles);
    m_objects.apply(side, content.objects);
    m_placements.apply(side, content.placements);
    m_sprites.apply(side, content.sprites);
    m_map->restore(content);
}
