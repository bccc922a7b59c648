#include "importing/animationsedit.h"

#include "importing/texts.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"

#include <QPointer>
#include <QUndoCommand>
#include <QUndoStack>

namespace Importing {
namespace {

/// The animations are there when it is pushed, so the first redo does nothing. Undone, it keeps them as they are then.
class AddAnimationsCommand final : public QUndoCommand
{
public:
    using Item = NewAnimation;

    AddAnimationsCommand(SpriteBank &bank, const QList<Item> &items)
        : QUndoCommand(Texts::tr("Import Animations"))
        , m_bank(&bank)
        , m_items(items)
    { }

    static void add(SpriteBank &bank, const QList<Item> &items)
    {
        for (const auto &[id, name, state] : items) {
            const QPointer<SpriteAnim> animation = bank.addAnimation(id);
            animation->setName(name);
            animation->restore(state);
        }
    }

    void undo() override
    {
        for (Item &item : m_items) {
            const QPointer<SpriteAnim> animation = m_bank ? m_bank->animation(item.id) : nullptr;
            if (!animation)
                continue;
            item = {item.id, animation->name(), animation->state()};
            m_bank->deleteAnimation(item.id);
        }
        m_applied = false;
    }

    void redo() override
    {
        if (!m_applied && m_bank)
            add(*m_bank, m_items);
        m_applied = true;
    }

private:
    QPointer<SpriteBank> m_bank;
    QList<Item> m_items;
    bool m_applied = true;
};

} // namespace

QString animationName(qsizetype number)
{
    return Texts::tr("Animation %1").arg(number + 1);
}

Animation::State withIds(Animation::State state)
{
    for (Animation::State::Frame &frame : state.frames)
        frame.id = QUuid::createUuid();
    return state;
}

void addAnimations(SpriteBank &bank, const QList<NewAnimation> &animations, QUndoStack *stack)
{
    AddAnimationsCommand::add(bank, animations);
    if (stack)
        stack->push(new AddAnimationsCommand(bank, animations));
}

void addAnimations(SpriteBank &bank, const NextData::AnimationsContent &content, QUndoStack *stack)
{
    QList<NewAnimation> items;
    for (qsizetype i = 0; i < content.animations.size(); ++i)
        items.append({QUuid::createUuid(), animationName(i), withIds(content.animations[i].state)});
    addAnimations(bank, items, stack);
}

} // namespace Importing
