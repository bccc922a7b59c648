#pragma once

#include "nextdata/content.h"

#include <QList>
#include <QString>
#include <QUuid>

class QUndoStack;
class SpriteBank;

namespace Importing {

/// The name of an animation that comes without one.
[[nodiscard]] QString animationName(qsizetype number);
/// The state with ids for its frames, which come without any.
[[nodiscard]] Animation::State withIds(Animation::State state);

struct NewAnimation
{
    QUuid id;
    QString name;
    Animation::State state;
};

/// Adds animations to a bank, as one undo step on a stack; without a stack it cannot be undone.
void addAnimations(SpriteBank &bank, const QList<NewAnimation> &animations, QUndoStack *stack);
void addAnimations(SpriteBank &bank, const NextData::AnimationsContent &content, QUndoStack *stack);

} // namespace Importing
