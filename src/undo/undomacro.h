#pragma once

#include <QString>
#include <QUndoStack>

/// What is done while it lives is one undo step; without a stack it does nothing.
class UndoMacro
{
public:
    UndoMacro(QUndoStack *stack, const QString &text) : m_stack(stack)
    {
        if (m_stack)
            m_stack->beginMacro(text);
    }
    ~UndoMacro()
    {
        if (m_stack)
            m_stack->endMacro();
    }
    Q_DISABLE_COPY_MOVE(UndoMacro)

private:
    QUndoStack *m_stack;
};
