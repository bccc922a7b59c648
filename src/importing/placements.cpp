#include "importing/placements.h"

#include "importing/texts.h"
#include "model/mapobjects.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "undo/mapeditcommand.h"

#include <QUndoStack>

namespace Importing {
namespace {

Failure notThere(qsizetype record)
{
    return {
        Texts::tr("What record %1 (counted from 0) shows is not in the project, where it is looked for by its place")
            .arg(record)};
}

} // namespace

Result<QList<Map::PlacedSprite>> withIds(const NextData::PlacedSpritesContent &content, const Project &project)
{
    const QList<QPointer<SpriteBank>> banks = project.spriteBanks();
    QList<Map::PlacedSprite> sprites;
    for (const auto &[bank, animation, placed] : content.items) {
        const QPointer<SpriteBank> shown = banks.value(bank);
        const bool isAnimated = animation >= 0;
        if (!shown || (isAnimated && animation >= shown->animations().size()))
            return notThere(sprites.size());
        Map::PlacedSprite sprite = placed;
        sprite.bank = shown->id();
        if (isAnimated)
            sprite.animation = shown->animations()[animation]->id();
        sprites.append(sprite);
    }
    return sprites;
}

Result<AnimatedBlocks::State> withIds(const NextData::PlacedBlocksContent &content, const Project &project)
{
    const QList<QPointer<MapObjects>> sets = project.blockSets();
    AnimatedBlocks::State placements;
    for (const auto &[blockSet, animation, placed] : content.items) {
        const QPointer<MapObjects> set = sets.value(blockSet);
        if (!set || animation >= set->animations().size())
            return notThere(placements.size());
        placements.append(placed);
        placements.last().animationId = set->animations()[animation]->id();
    }
    return placements;
}

void replacePlacements(const Project &project, Map &map, const IncomingAssets &incoming, QUndoStack *stack)
{
    const Map::Snapshot before = map.snapshot();
    if (incoming.placedBlocks) {
        for (const AnimationProperties::State &placement : before.placements)
            map.removeAnimationAt(placement.area);
        Map::Snapshot content = map.snapshot();
        content.placements = *incoming.placedBlocks;
        map.restore(content);
        map.restampAnimations(project.blockSets());
    }
    Map::Snapshot content = map.snapshot();
    content.sprites = incoming.placedSprites.value_or(content.sprites);
    map.restore(content); // whoever shows it paints it anew
    if (stack)
        stack->push(new MapEditCommand(Texts::tr("Import Map"), &map, before, map.snapshot()));
}

} // namespace Importing
