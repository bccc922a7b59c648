#pragma once

#include "model/animatedblocks.h"
#include "model/map.h"
#include "undo/gridchange.h"

#include <QPointer>
#include <QUndoCommand>

/// Undo step of one edit of a map.
///
/// The edit has been applied when the command is pushed, so the first redo does nothing. Of the two
/// snapshots it keeps what differs between them: a stroke on a large map costs as much memory as on a
/// small one, and undoing it leaves alone what was changed elsewhere in the meantime, for instance
/// cells that follow tiles which were moved in their tile set.
class MapEditCommand final : public QUndoCommand
{
public:
    MapEditCommand(const QString &text, Map *map, const Map::Snapshot &before, const Map::Snapshot &after,
                   QUndoCommand *parent = nullptr);
    ~MapEditCommand() override;

    void undo() override;
    void redo() override;

private:
    /// A list before and after the edit; both are empty when the edit did not change it.
    template <typename Entry>
    struct ListChange
    {
        void apply(GridChange::Side side, QList<Entry> &list) const
        {
            if (before != after)
                list = side == GridChange::Side::Before ? before : after;
        }

        QList<Entry> before;
        QList<Entry> after;
    };

    void apply(GridChange::Side side);

    QPointer<Map> m_map;
    GridChange m_tiles;
    GridChange m_objects;
    ListChange<AnimationProperties::State> m_placements;
    ListChange<Map::PlacedSprite> m_sprites;
    bool m_applied = true;
};
