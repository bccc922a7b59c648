#include "undo/ghosts.h"

#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "undo/gridchange.h"
#include "undo/listchange.h"

#include <algorithm>

namespace {

using Sprites = QList<Map::PlacedSprite>;

QSize sizeOf(const TileMap::Rows &rows)
{
    return {rows.isEmpty() ? 0 : int(rows.constFirst().size()), int(rows.size())};
}

/// Rows that others share are looked at once, and stay shared.
template <typename Cell>
void hideGhosts(QList<QList<Cell>> &rows, const Numbering::Roster &names)
{
    const auto isGone = [](const Cell &cell) { return isGhost(cell.index); };
    QHash<int, int> shown; // by name
    QHash<const Cell *, QList<Cell>> hidden;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QList<Cell> row = rows.at(i);
        auto known = hidden.constFind(row.constData());
        if (known == hidden.cend()) {
            QList<Cell> result = row;
            if (std::any_of(row.cbegin(), row.cend(), isGone)) {
                if (shown.isEmpty())
                    shown = names.shownNumbers();
                for (Cell &cell : result)
                    cell.index = isGone(cell) ? shown.value(nameOfGhost(cell.index)) : cell.index;
            }
            known = hidden.insert(row.constData(), result);
        }
        if (known->constData() != row.constData())
            rows[i] = *known;
    }
}

} // namespace

MapNames MapNames::of(const Map &map)
{
    MapNames names;
    if (const QPointer<TileSet> tileSet = map.tileSet())
        names.tiles = Numbering::of(*tileSet).roster();
    if (const auto *project = qobject_cast<Project *>(map.parent())) {
        for (const QPointer<SpriteBank> &bank : project->spriteBanks())
            names.sprites.insert(bank->id(), Numbering::of(*bank).names());
    }
    return names;
}

bool anyGone(const Numbering::Roster &then, const Numbering::Roster &now)
{
    return Renumbering::since(then.names, now.names).losesAny();
}

bool anyGone(const MapNames &then, const MapNames &now)
{
    if (anyGone(then.tiles, now.tiles))
        return true;
    for (auto names = then.sprites.cbegin(); names != then.sprites.cend(); ++names) {
        if (Renumbering::since(*names, now.sprites.value(names.key())).losesAny())
            return true;
    }
    return false;
}

Sprites renumbered(Sprites sprites, const QUuid &bank, const Renumbering &renumbering)
{
    if (renumbering.changesNothing())
        return sprites;
    for (Map::PlacedSprite &sprite : sprites) {
        if (sprite.isSingleOf(bank))
            sprite.sprite = renumbering.following(sprite.sprite);
    }
    return sprites;
}

Sprites moved(Sprites sprites, QPoint cells)
{
    for (Map::PlacedSprite &sprite : sprites) {
        sprite.x += cells.x() * TileMap::TileSize;
        sprite.y += cells.y() * TileMap::TileSize;
    }
    return sprites;
}

Map::Snapshot renumbered(Map::Snapshot map, const MapNames &from, const MapNames &to, const Map::Snapshot &like)
{
    const Renumbering tiles = Renumbering::since(from.tiles.names, to.tiles.names);
    map.tiles = renumbered(map.tiles, tiles, like.tiles);
    map.objects = renumbered(map.objects, tiles, like.objects);
    for (auto names = from.sprites.cbegin(); names != from.sprites.cend(); ++names)
        map.sprites = renumbered(map.sprites, names.key(), Renumbering::since(*names, to.sprites.value(names.key())));
    return map;
}

template <typename State>
State renumbered(State animation, const Numbering::Roster &from, const Numbering::Roster &to, const State &like)
{
    const Renumbering renumbering = Renumbering::since(from.names, to.names);
    for (qsizetype i = 0; i < animation.frames.size(); ++i) {
        auto &cells = animation.frames[i].cells;
        cells = renumbered(cells, renumbering, like.frames.value(i).cells);
    }
    return animation;
}

Map::Snapshot withoutGhosts(Map::Snapshot map, const MapNames &names)
{
    hideGhosts(map.tiles, names.tiles);
    hideGhosts(map.objects, names.tiles);
    const auto isGone = [](const Map::PlacedSprite &sprite) { return isGhost(sprite.sprite); };
    if (std::any_of(map.sprites.cbegin(), map.sprites.cend(), isGone))
        map.sprites.removeIf(isGone);
    return map;
}

template <typename State>
State withoutGhosts(State animation, const Numbering::Roster &names)
{
    for (auto &frame : animation.frames)
        hideGhosts(frame.cells, names);
    return animation;
}

void follow(Map::Snapshot &full, const Map::Snapshot &shown, const Map::Snapshot &now)
{
    const QPoint shift = now.origin - shown.origin;
    LayerChange(shown.tiles, now.tiles, shift).apply(EditSide::After, full.tiles);
    LayerChange(shown.objects, now.objects, shift).apply(EditSide::After, full.objects);
    full.placements = now.placements;
    full.sprites = moved(full.sprites, shift);
    ListChange(moved(shown.sprites, shift), now.sprites).apply(EditSide::After, full.sprites);
    if (const QSize size = sizeOf(now.tiles); !shift.isNull() || size != sizeOf(shown.tiles)) {
        const QRect area(QPoint(), size * TileMap::TileSize); // beyond which the others are removed, too
        full.sprites.removeIf([&area](const Map::PlacedSprite &sprite) {
            return isGhost(sprite.sprite) && !area.contains(sprite.x, sprite.y);
        });
    }
    full.origin = now.origin;
}

template <typename State>
void follow(State &full, const State &shown, const State &now)
{
    const auto byId = [](const State &state) {
        QHash<QUuid, AnimationFrame::Cells> cells;
        for (const auto &frame : state.frames)
            cells.insert(frame.id, frame.cells);
        return cells;
    };
    const auto was = byId(shown);
    const auto kept = byId(full);
    full = now;
    for (auto &frame : full.frames) {
        const auto cells = kept.constFind(frame.id);
        if (cells == kept.cend())
            continue;
        const FrameChange change(was.value(frame.id), frame.cells);
        frame.cells = *cells;
        change.apply(EditSide::After, frame.cells);
    }
}

Ghosts<Map::Snapshot, MapNames> &MapGhosts::of(Map &map)
{
    auto *ghosts = map.findChild<MapGhosts *>(QString(), Qt::FindDirectChildrenOnly);
    return (ghosts ? ghosts : new MapGhosts(&map))->m_ghosts;
}

template Animation::State renumbered(Animation::State, const Numbering::Roster &, const Numbering::Roster &,
                                     const Animation::State &);
template TileAnimation::State renumbered(TileAnimation::State, const Numbering::Roster &, const Numbering::Roster &,
                                         const TileAnimation::State &);
template Animation::State withoutGhosts(Animation::State, const Numbering::Roster &);
template TileAnimation::State withoutGhosts(TileAnimation::State, const Numbering::Roster &);
template void follow(Animation::State &, const Animation::State &, const Animation::State &);
template void follow(TileAnimation::State &, const TileAnimation::State &, const TileAnimation::State &);
