#pragma once

#include "model/animatedblocks.h"
#include "model/map.h"
#include "undo/editside.h"
#include "undo/gridchange.h"
#include "undo/listchange.h"
#include "undo/numbering.h"

#include <QHash>
#include <QPointer>
#include <QUndoCommand>
#include <QUuid>

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

    void apply(EditSide side);
    void noteBanksOf(const QList<Map::PlacedSprite> &sprites);
    /// The change of the placed sprites in the numbers that their banks have now.
    [[nodiscard]] SpritesChange spritesChange() const;

    QPointer<Map> m_map;
    QPoint m_shift; ///< by how many cells the content moved
    LayerChange m_tiles;
    LayerChange m_objects;
    // these two in the places from before the content moved
    ListChange<AnimationProperties::State> m_placements;
    SpritesChange m_sprites;
    Numbering::Names m_tileNames; ///< as all names, those of when the command was made
    QHash<QUuid, Numbering::Names> m_spriteNames; ///< by bank
    bool m_applied = true;
};
