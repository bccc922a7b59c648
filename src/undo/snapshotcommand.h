#pragma once

#include "undo/editclock.h"

#include <QUndoCommand>
#include <QVariant>

#include <functional>
#include <utility>

/// Undo step between two states, which are values, of an asset.
///
/// The change has been applied when the command is pushed, so the first redo does nothing. Two
/// commands of the same state type merge when their ids and merge keys are equal and the newer one
/// follows within the merge interval; the limit slides, it counts from the edit merged last.
template <typename State>
class SnapshotCommand final : public QUndoCommand
{
public:
    /// Puts a whole state into the asset.
    using Restore = std::function<void(const State &)>;
    /// Takes what lies between two states back in the asset, which may have been changed elsewhere since.
    using Change = std::function<void(const State &from, const State &to)>;

    /// id -1 never merges; a negative mergeInterval (milliseconds) sets no time limit.
    SnapshotCommand(const QString &text, State before, State after, Restore restore, int id, QVariant mergeKey,
                    qint64 mergeInterval)
        : SnapshotCommand(text, std::move(before), std::move(after),
                          Change([restore = std::move(restore)](const State &, const State &to) { restore(to); }), id,
                          std::move(mergeKey), mergeInterval)
    { }
    SnapshotCommand(const QString &text, State before, State after, Change change, int id, QVariant mergeKey,
                    qint64 mergeInterval)
        : QUndoCommand(text)
        , m_before(std::move(before))
        , m_after(std::move(after))
        , m_change(std::move(change))
        , m_id(id)
        , m_mergeKey(std::move(mergeKey))
        , m_mergeInterval(mergeInterval)
    { }

    void undo() override
    {
        m_change(m_after, m_before);
        m_applied = false;
    }

    void redo() override
    {
        if (m_applied)
            return;
        m_change(m_before, m_after);
        m_applied = true;
    }

    [[nodiscard]] int id() const override { return m_id; }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *newer = dynamic_cast<const SnapshotCommand *>(other);
        if (!newer || newer->m_mergeKey != m_mergeKey)
            return false;
        if (m_mergeInterval >= 0 && newer->m_timestamp - m_timestamp > m_mergeInterval)
            return false;
        m_after = newer->m_after;
        m_timestamp = newer->m_timestamp;
        return true;
    }

private:
    State m_before;
    State m_after;
    Change m_change;
    int m_id;
    QVariant m_mergeKey;
    qint64 m_mergeInterval;
    qint64 m_timestamp = EditClock::now();
    bool m_applied = true;
};
