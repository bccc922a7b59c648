#pragma once

#include "model/animatedblocks.h"
#include "model/map.h"
#include "undo/editside.h"
#include "undo/ghosts.h"
#include "undo/gridchange.h"
#include "undo/listchange.h"

#include <QPointer>
#include <QUndoCommand>

/// Undo step of one edit of a map.
///
/// The edit has been applied when the command is pushed, so the first redo does nothing. Of the two
/// snapshots it keeps what differs between them: a stroke on a large map costs as much memory as on a
/// small one, and undoing it leaves alone what was changed elsewhere in the meantime. Tiles and sprites are
/// meant, not their numbers, which other documents' edits of the tile set or a bank may have changed since.
class MapEditCommand final : public QUndoCommand
{
public:
    /// A part of the parent's step, if it has one.
    MapEditCommand(const QString &text, Map *map, const Map::Snapshot &before, const Map::Snapshot &after,
                   QUndoCommand *parent = nullptr);
    ~MapEditCommand() override;

    void undo() override;
    void redo() override;

private:
    using SpritesChange = ListChange<Map::PlacedSprite>;

    /// Both sides of an edit with their ghosts.
    struct Contents
    {
        Contents(Map *map, const Map::Snapshot &shownBefore, const Map::Snapshot &shownAfter);

        Map::Snapshot before;
        Map::Snapshot after;
        MapNames names{};
        bool hasGhosts = false; ///< which the edit can only take away
    };

    MapEditCommand(const QString &text, Map *map, const Contents &contents, QUndoCommand *parent);

    void apply(EditSide side);
    /// The change of the placed sprites in the numbers that their banks have now.
    [[nodiscard]] SpritesChange spritesChange(const MapNames &now) const;

    QPointer<Map> m_map;
    QPoint m_shift; ///< by how many cells the content moved
    LayerChange m_tiles;
    LayerChange m_objects;
    // these two in the places from before the content moved
    ListChange<AnimationProperties::State> m_placements;
    SpritesChange m_sprites;
    MapNames m_names; ///< of when the command was made
    bool m_hasGhosts;
    bool m_applied = true;
};
