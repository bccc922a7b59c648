#include "undo/mapeditcommand.h"

MapEditCommand::MapEditCommand(const QString &text, Map *map, const Map::Snapshot &before, const Map::Snapshot &after)
    : QUndoCommand(text)
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
    if (m_map) {
        Map::Snapshot content = m_map->snapshot();
        m_tiles.putBack(content.tiles);
        m_objects.putBack(content.objects);
        if (m_placements.before != m_placements.after)
            content.placements = m_placements.before;
        if (m_sprites.before != m_sprites.after)
            content.sprites = m_sprites.before;
        m_map->restore(content);
    }
    m_applied = false;
}

void MapEditCommand::redo()
{
    if (m_map && !m_applied) {
        Map::Snapshot content = m_map->snapshot();
        m_tiles.putForward(content.tiles);
        m_objects.putForward(content.objects);
        if (m_placements.before != m_placements.after)
            content.placements = m_placements.after;
        if (m_sprites.before != m_sprites.after)
            content.sprites = m_sprites.after;
        m_map->restore(content);
    }
    m_applied = true;
}
