#pragma once

#include <QHash>
#include <QObject>
#include <QUndoGroup>
#include <QUuid>

class QUndoStack;

/// The undo stacks of the open project's assets, by their ids; the scratch image's has the null id.
///
/// A stack is made when it is first asked for and lives as long as its asset, not as long as a tab.
class UndoStacks : public QObject
{
    Q_OBJECT

public:
    explicit UndoStacks(QObject *parent = nullptr);

    /// The group of all stacks; undo and redo act on its active one.
    [[nodiscard]] QUndoGroup *group() { return &m_group; }

    /// The stack of an id; it goes when the asset does, or with all others when that is null.
    QUndoStack *stackFor(const QUuid &id, QObject *asset);
    void clear();

    /// Whether every stack is clean.
    [[nodiscard]] bool isClean() const;
    /// Marks the present state of every stack as clean.
    void setClean();

private:
    void drop(const QUuid &id);

    QUndoGroup m_group;
    QHash<QUuid, QUndoStack *> m_stacks;
};
