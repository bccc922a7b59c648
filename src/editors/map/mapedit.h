#pragma once

#include "model/map.h"

#include <QPointer>
#include <QString>

class QUndoStack;

namespace MapEditor {

/// One edit of a map, from its beginning to the undo step that it becomes.
///
/// Edits may be nested, the outermost one counts. Frames of animations that play while an edit is open
/// are no part of it.
class MapEdit
{
public:
    /// Begins an edit, or a nested one.
    void begin(const QPointer<Map> &map);
    /// Ends the edit, or a nested one. The outermost one pushes a command of that text onto the stack, if there
    /// is one and the map is another one than before. Without an open edit it does nothing.
    void end(const QString &text, QUndoStack *stack);
    /// Ends the edit however deeply it is nested.
    void endAll(const QString &text, QUndoStack *stack);
    /// Forgets the edit, whose map is gone.
    void abandon();

private:
    QPointer<Map> m_map;
    Map::Snapshot m_before;
    int m_depth = 0;
};

} // namespace MapEditor
