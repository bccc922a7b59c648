#include "app/undostacks.h"

#include <QUndoStack>

#include <algorithm>

UndoStacks::UndoStacks(QObject *parent) : QObject(parent) { }

QUndoStack *UndoStacks::stackFor(const QUuid &id, QObject *asset)
{
    QUndoStack *&stack = m_stacks[id];
    if (!stack) {
        stack = new QUndoStack(&m_group);
        if (asset)
            connect(asset, &QObject::destroyed, stack, [this, id] { drop(id); });
    }
    return stack;
}

void UndoStacks::drop(const QUuid &id)
{
    delete m_stacks.take(id);
}

void UndoStacks::clear()
{
    qDeleteAll(m_stacks);
    m_stacks.clear();
}

bool UndoStacks::isClean() const
{
    return std::all_of(m_stacks.cbegin(), m_stacks.cend(), [](const QUndoStack *stack) { return stack->isClean(); });
}

void UndoStacks::setClean()
{
    for (QUndoStack *stack : std::as_const(m_stacks))
        stack->setClean();
}
