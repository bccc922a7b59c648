#pragma once

#include "model/map.h"

#include <QPointer>
#include <QString>
#include <QUndoStack>

#include <functional>

namespace MapEditor {

/// The edit of a map that is going on, from its beginning to the undo step that it becomes.
///
/// Edits may be nested, the outermost one counts. Frames of animations that play while an edit is open
/// are no part of it. Without a map nothing is edited, and without a stack nothing is recorded.
class MapEdit
{
public:
    /// The map that is edited from now on. An open edit is forgotten.
    void setMap(const QPointer<Map> &map);
    void setUndoStack(QUndoStack *stack) { m_stack = stack; }

    /// Begins an edit, or a nested one.
    void begin();
    /// Ends the edit, or a nested one. The outermost one pushes a command of that text, if the map is another
    /// one than before. Without an open edit it does nothing.
    void end(const QString &text);
    /// Ends the edit however deeply it is nested.
    void endAll(const QString &text);
    /// Forgets the edit, whose map is gone.
    void abandon();
    /// Records the step of an edit that was made already; takes it, also when nothing is recorded.
    void push(QUndoCommand *step);
    /// An edit, or a nested one, that is made at once.
    void run(const QString &text, const std::function<void(Map &)> &operation);

private:
    QPointer<Map> m_map;
    QPointer<QUndoStack> m_stack;
    Map::Snapshot m_before;
    int m_depth = 0;
};

} // namespace MapEditor
