#include "undo/mapeditcommand.h"

namespace {

/// Placements after the content of their map moved by so many cells.
AnimatedBlocks::State moved(AnimatedBlocks::State placements, QPoint cells)
{
    for (AnimationProperties::State &placement : placements)
        placement.area.translate(cells);
    return placements;
}

} // namespace

MapEditCommand::Contents::Contents(Map *map, const Map::Snapshot &shownBefore, const Map::Snapshot &shownAfter)
    : before(shownBefore)
    , after(shownAfter)
{
    if (!map)
        return;
    names = MapNames::of(*map);
    auto &ghosts = MapGhosts::of(*map);
    before = ghosts.full(shownBefore, names);
    hasGhosts = !ghosts.isEmpty();
    after = ghosts.full(shownAfter, names);
}

MapEditCommand::MapEditCommand(const QString &text, Map *map, const Map::Snapshot &before, const Map::Snapshot &after,
                               QUndoCommand *parent)
    : MapEditCommand(text, map, Contents(map, before, after), parent)
{ }

MapEditCommand::MapEditCommand(const QString &text, Map *map, const Contents &contents, QUndoCommand *parent)
    : QUndoCommand(text, parent)
    , m_map(map)
    , m_shift(contents.after.origin - contents.before.origin)
    , m_tiles(contents.before.tiles, contents.after.tiles, m_shift)
    , m_objects(contents.before.objects, contents.after.objects, m_shift)
    , m_placements(contents.before.placements, moved(contents.after.placements, -m_shift))
    , m_sprites(contents.before.sprites, ::moved(contents.after.sprites, -m_shift))
    , m_names(contents.names)
    , m_hasGhosts(contents.hasGhosts)
{ }

MapEditCommand::~MapEditCommand() = default;

void MapEditCommand::undo()
{
    apply(EditSide::Before);
    m_applied = false;
}

void MapEditCommand::redo()
{
    if (m_applied)
        return;
    apply(EditSide::After);
    m_applied = true;
}

MapEditCommand::SpritesChange MapEditCommand::spritesChange(const MapNames &now) const
{
    QList<Map::PlacedSprite> before = m_sprites.before();
    QList<Map::PlacedSprite> after = m_sprites.after();
    for (auto names = m_names.sprites.cbegin(); names != m_names.sprites.cend(); ++names) {
        const Renumbering since = Renumbering::since(*names, now.sprites.value(names.key()));
        before = renumbered(before, names.key(), since);
        after = renumbered(after, names.key(), since);
    }
    return {before, after};
}

void MapEditCommand::apply(EditSide side)
{
    if (!m_map)
        return;
    const MapNames now = MapNames::of(*m_map);
    auto &ghosts = MapGhosts::of(*m_map);
    Map::Snapshot content = ghosts.full(m_map->snapshot(), now);
    const Renumbering since = Renumbering::since(m_names.tiles.names, now.tiles.names);
    m_tiles.renumbered(since).apply(side, content.tiles);
    m_objects.renumbered(since).apply(side, content.objects);

    // What lies on the map is compared where it was before the content moved.
    const bool back = side == EditSide::Before;
    const auto moveContent = [&content](QPoint cells) {
        content.placements = moved(content.placements, cells);
        content.sprites = ::moved(content.sprites, cells);
        content.origin += cells;
    };
    if (back)
        moveContent(-m_shift);
    m_placements.apply(side, content.placements);
    spritesChange(now).apply(side, content.sprites);
    if (!back)
        moveContent(m_shift);
    // looking for ghosts takes a look at every cell
    const bool mayHaveGhosts = m_hasGhosts || !ghosts.isEmpty() || anyGone(m_names, now);
    m_map->restore(mayHaveGhosts ? ghosts.show(content, now) : content);
}
