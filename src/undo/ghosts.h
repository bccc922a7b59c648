#pragma once

#include "model/animation.h"
#include "model/map.h"
#include "model/tileanimation.h"
#include "undo/numbering.h"

#include <QHash>
#include <QObject>
#include <QUuid>

#include <optional>
#include <utility>

/// Which tiles and sprites a map names.
struct MapNames
{
    Numbering::Roster tiles;
    QHash<QUuid, Numbering::Names> sprites; ///< by the banks of the project

    [[nodiscard]] static MapNames of(const Map &map);
    bool operator==(const MapNames &) const = default;
};

/// Whether something that had a name then has none now, although its tile set or bank is there.
[[nodiscard]] bool anyGone(const MapNames &then, const MapNames &now);
[[nodiscard]] bool anyGone(const Numbering::Roster &then, const Numbering::Roster &now);

/// Contents in the numbers of another time. What is gone by then becomes a ghost (numbering.h). Rows that become those
/// of another content share them with it.
[[nodiscard]] Map::Snapshot renumbered(Map::Snapshot map, const MapNames &from, const MapNames &to,
                                       const Map::Snapshot &like = {});
template <typename State>
[[nodiscard]] State renumbered(State animation, const Numbering::Roster &from, const Numbering::Roster &to,
                               const State &like = {});
/// Placed sprites after those of a bank got other numbers.
[[nodiscard]] QList<Map::PlacedSprite> renumbered(QList<Map::PlacedSprite> sprites, const QUuid &bank,
                                                  const Renumbering &renumbering);
/// Placed sprites after the content of their map moved by so many cells.
[[nodiscard]] QList<Map::PlacedSprite> moved(QList<Map::PlacedSprite> sprites, QPoint cells);

/// What people see: cells show in place of what is gone what stands in for it, and sprites that are gone are not
/// placed.
[[nodiscard]] Map::Snapshot withoutGhosts(Map::Snapshot map, const MapNames &names);
template <typename State>
[[nodiscard]] State withoutGhosts(State animation, const Numbering::Roster &names);

/// Makes of contents with ghosts what an edit made of them without.
void follow(Map::Snapshot &full, const Map::Snapshot &shown, const Map::Snapshot &now);
template <typename State>
void follow(State &full, const State &shown, const State &now);

/// The contents of a map or animation as they would be if nothing that they name had been deleted.
///
/// Steps hold such contents and change them, so that they may be undone in any order: a stroke that is undone while
/// the tile that was there before is deleted, and one that was drawn meanwhile, find it when its deletion is undone.
/// They are kept while they differ from what is shown, which may change without them: they follow.
template <typename Content, typename Names>
class Ghosts
{
public:
    /// Of the content that is shown now. It is remembered even without a ghost if something may go next.
    [[nodiscard]] Content full(const Content &shown, const Names &names, bool mayLose = false)
    {
        if (m_known && !m_known->hasGhosts && !anyGone(m_known->names, names))
            m_known.reset();
        if (!m_known) {
            if (mayLose)
                m_known = {names, shown, shown, false};
            return shown;
        }
        if (m_known->names != names) {
            m_known->full = renumbered(m_known->full, m_known->names, names, shown);
            m_known->shown = withoutGhosts(renumbered(m_known->shown, m_known->names, names, shown), names);
            m_known->names = names;
        }
        follow(m_known->full, m_known->shown, shown);
        m_known->shown = shown;
        const Content full = m_known->full;
        m_known->hasGhosts = full != shown;
        if (!mayLose && !m_known->hasGhosts)
            m_known.reset();
        return full;
    }

    /// What is to be shown of a content, which is remembered.
    [[nodiscard]] Content show(const Content &full, const Names &names)
    {
        const Content shown = withoutGhosts(full, names);
        if (full == shown)
            m_known.reset();
        else
            m_known = {names, shown, full, true};
        return shown;
    }

    [[nodiscard]] bool isEmpty() const { return !m_known; }

private:
    struct Known
    {
        Names names;
        Content shown;
        Content full;
        bool hasGhosts; ///< which full has then and shown has not
    };

    std::optional<Known> m_known;
};

template <typename State>
using AnimationGhosts = Ghosts<State, Numbering::Roster>;

/// Those of a map: its child.
class MapGhosts final : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] static Ghosts<Map::Snapshot, MapNames> &of(Map &map);

private:
    using QObject::QObject;

    Ghosts<Map::Snapshot, MapNames> m_ghosts;
};
