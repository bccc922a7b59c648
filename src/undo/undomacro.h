#pragma once

#include <QString>
#include <QUndoStack>

/// What is done while it lives is one undo step, and none when nothing is; without a stack it does nothing.
class UndoMacro
{
public:
    UndoMacro(QUndoStack *stack, const QString &text) : m_stack(stack)
    {
        if (!m_stack)
            return;
        m_before = m_stack->index();
        m_stack->beginMacro(text);
    }
    ~UndoMacro()
    {
        if (!m_stack)
            return;
        m_stack->endMacro();
        const QUndoCommand *step = m_stack->command(m_stack->index() - 1); // null within another one
        if (!step || step->childCount() > 0 || m_stack->index() == m_before)
            return;
        const_cast<QUndoCommand *>(step)->setObsolete(true); // the only way to take it back
        m_stack->undo();
    }
    Q_DISABLE_COPY_MOVE(UndoMacro)

private:
    QUndoStack *m_stack;
    int m_before = 0;
};
