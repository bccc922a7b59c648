#pragma once

#include "importing/incomingassets.h"
#include "model/result.h"

class Project;
class QUndoStack;

namespace Importing {

/// Placed sprites and blocks with the ids of what they show; a failure when a project does not have that.
[[nodiscard]] Result<QList<Map::PlacedSprite>> withIds(const NextData::PlacedSpritesContent &content,
                                                       const Project &project);
[[nodiscard]] Result<AnimatedBlocks::State> withIds(const NextData::PlacedBlocksContent &content,
                                                    const Project &project);

/// Replaces what is placed on a map, as one undo step on a stack; without a stack it cannot be undone.
void replacePlacements(const Project &project, Map &map, const IncomingAssets &incoming, QUndoStack *stack);

} // namespace Importing
