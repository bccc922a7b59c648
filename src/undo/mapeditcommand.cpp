#include "undo/mapeditcommand.h"

#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "undo/structurechange.h"

namespace {

Numbering::Names tileNamesOf(const Map *map)
{
    const QPointer<TileSet> tileSet = map ? map->tileSet() : nullptr;
    return tileSet ? Numbering::of(*tileSet).names() : Numbering::Names();
}

/// Of the bank that sprites on a map name; none when it is gone, or the map is in no project.
Numbering::Names spriteNamesOf(const Map *map, const QUuid &bankId)
{
    const auto *project = map ? qobject_cast<Project *>(map->parent()) : nullptr;
    const QPointer<SpriteBank> bank = project ? project->spriteBank(bankId) : nullptr;
    return bank ? Numbering::of(*bank).names() : Numbering::Names();
}

/// Placements after the content of their map moved by so many cells.
AnimatedBlocks::State moved(AnimatedBlocks::State placements, QPoint cells)
{
    for (AnimationProperties::State &placement : placements)
        placement.area.translate(cells);
    return placements;
}

} // namespace

MapEditCommand::MapEditCommand(const QString &text, Map *map, const Map::Snapshot &before, const Map::Snapshot &after,
                               QUndoCommand *parent)
    : QUndoCommand(text, parent)
    , m_map(map)
    , m_shift(after.origin - before.origin)
    , m_tiles(before.tiles, after.tiles, m_shift)
    , m_objects(before.objects, after.objects, m_shift)
    , m_placements(before.placements, moved(after.placements, -m_shift))
    , m_sprites(before.sprites, ::moved(after.sprites, -m_shift))
    , m_tileNames(tileNamesOf(map))
{
    noteBanksOf(m_sprites.before());
    noteBanksOf(m_sprites.after());
}

MapEditCommand::~MapEditCommand() = default;

void MapEditCommand::noteBanksOf(const QList<Map::PlacedSprite> &sprites)
{
    for (const Map::PlacedSprite &sprite : sprites) {
        if (!m_spriteNames.contains(sprite.bank))
            m_spriteNames.insert(sprite.bank, spriteNamesOf(m_map, sprite.bank));
    }
}

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

MapEditCommand::SpritesChange MapEditCommand::spritesChange() const
{
    QList<Map::PlacedSprite> before = m_sprites.before();
    QList<Map::PlacedSprite> after = m_sprites.after();
    for (auto names = m_spriteNames.cbegin(); names != m_spriteNames.cend(); ++names) {
        const Renumbering since = Renumbering::since(*names, spriteNamesOf(m_map, names.key()));
        before = renumbered(before, names.key(), since);
        after = renumbered(after, names.key(), since);
    }
    return {before, after};
}

void MapEditCommand::apply(EditSide side)
{
    if (!m_map)
        return;
    Map::Snapshot content = m_map->snapshot();
    const Renumbering since = Renumbering::since(m_tileNames, tileNamesOf(m_map));
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
    spritesChange().apply(side, content.sprites);
    if (!back)
        moveContent(m_shift);
    m_map->restore(content);
}
