#include "undo/pixeleditcommand.h"

#include <utility>

PixelEditCommand::PixelEditCommand(const QString &text, const QImage &before, const QImage &after, Apply apply,
                                   const QVariant &mergeKey, Kind kind)
    : QUndoCommand(text)
    , m_before(before)
    , m_after(after)
    , m_apply(std::move(apply))
    , m_mergeKey(mergeKey)
    , m_kind(kind)
{ }

void PixelEditCommand::undo()
{
    m_apply(m_before);
    m_applied = false;
}

void PixelEditCommand::redo()
{
    if (m_applied)
        return;
    m_apply(m_after);
    m_applied = true;
}

bool PixelEditCommand::mergeWith(const QUndoCommand *other)
{
    const auto *newer = dynamic_cast<const PixelEditCommand *>(other);
    if (!newer || newer->m_kind != m_kind || newer->m_mergeKey != m_mergeKey)
        return false;
    m_after = newer->m_after;
    return true;
}
