#include "undo/editrecorder.h"

#include "model/mapobjects.h"
#include "model/palette.h"
#include "undo/animationchange.h"
#include "undo/palettecolourcommand.h"
#include "undo/snapshotcommand.h"

#include <QScopedValueRollback>
#include <QTimer>
#include <QUndoStack>

#include <type_traits>
#include <utility>

namespace {

/// Structural edits are steps of their own.
constexpr int NeverMerges = -1;
constexpr qint64 NoTimeLimit = -1;

/// Edits of one animation that follow within this time (milliseconds), such as the signals of one
/// operation on many cells, are one step.
constexpr qint64 AnimationMergeInterval = 100;

template <typename State>
constexpr int AnimationCommandId = 0;
template <>
constexpr int AnimationCommandId<TileAnimation::State> = 1002;
template <>
constexpr int AnimationCommandId<Animation::State> = 1003;

/// Which tile or sprite is which for the cells of an animation.
Numbering::Roster namesFor(const TileAnimation &animation)
{
    const auto *blocks = qobject_cast<MapObjects *>(animation.parent());
    const QPointer<TileSet> tileSet = blocks ? blocks->tileSet() : nullptr;
    return tileSet ? Numbering::of(*tileSet).roster() : Numbering::Roster();
}

Numbering::Roster namesFor(const SpriteAnim &animation)
{
    auto *bank = qobject_cast<SpriteBank *>(animation.parent());
    return bank ? Numbering::of(*bank).roster() : Numbering::Roster();
}

/// The animations of the block sets that are bound to a tile set.
QList<QPointer<TileAnimation>> animationsOf(const Project &project, const TileSet &tileSet)
{
    QList<QPointer<TileAnimation>> animations;
    for (const QPointer<MapObjects> &blocks : project.blockSets()) {
        if (blocks->tileSet() == &tileSet)
            animations.append(blocks->animations());
    }
    return animations;
}

/// What a map holds, with its ghosts.
Map::Snapshot contentOf(Map &map, bool mayLose = false)
{
    return MapGhosts::of(map).full(map.snapshot(), MapNames::of(map), mayLose);
}

/// Shows such a content.
void putContent(Map &map, const Map::Snapshot &content)
{
    map.restore(MapGhosts::of(map).show(content, MapNames::of(map)));
}

/// A step that keeps what changed, in the function that takes it back, instead of two states.
template <typename State>
std::unique_ptr<QUndoCommand> structureCommand(const QString &text, const std::function<void()> &turn)
{
    return std::make_unique<SnapshotCommand<State>>(
        text, State(), State(), [turn](const State &) { turn(); }, NeverMerges, QVariant(), NoTimeLimit);
}

} // namespace

EditRecorder::EditRecorder(Project *project, StackProvider stackFor, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_stackFor(std::move(stackFor))
{
    for (const QPointer<Palette> &palette : project->palettes())
        trackPalette(palette);
    for (const QPointer<TileSet> &tileSet : project->tileSets())
        trackTileSet(tileSet);
    for (const QPointer<MapObjects> &blocks : project->blockSets())
        trackBlocks(blocks);
    for (const QPointer<SpriteBank> &bank : project->spriteBanks())
        trackSprites(bank);

    connect(project, &Project::paletteCreated, this, &EditRecorder::trackPalette);
    connect(project, &Project::tilesetCreated, this, &EditRecorder::trackTileSet);
    connect(project, &Project::blocksCreated, this, &EditRecorder::trackBlocks);
    connect(project, &Project::spritesCreated, this, &EditRecorder::trackSprites);
}

EditRecorder::~EditRecorder() = default;

void EditRecorder::trackPalette(Palette *palette)
{
    connect(palette, &Palette::colourEdited, this, [this, palette](int index, quint16 before, quint16 after) {
        push(palette->id(), std::make_unique<PaletteColourCommand>(palette, index, before, after));
    });
}

void EditRecorder::trackTileSet(TileSet *tileSet)
{
    trackStructure(tileSet, m_pendingTileSets);
}

void EditRecorder::trackBlocks(MapObjects *blocks)
{
    trackAnimations(blocks, m_tileAnimationStates);
}

void EditRecorder::trackSprites(SpriteBank *bank)
{
    trackAnimations(bank, m_spriteAnimationStates);
    trackStructure(bank, m_pendingSpriteBanks);
}

template <typename Anim>
auto &EditRecorder::ghosts()
{
    if constexpr (std::is_same_v<Anim, TileAnimation>)
        return m_tileAnimationGhosts;
    else
        return m_spriteAnimationGhosts;
}

template <typename Asset, typename Edit>
void EditRecorder::trackStructure(Asset *asset, QHash<Asset *, Edit> &pending)
{
    connect(asset, &Asset::structureAboutToChange, this, [this, asset, &pending] {
        if (!m_restoring)
            pending.insert(asset, capture(*asset, true));
    });
    connect(asset, &Asset::structureChanged, this, [this, asset, &pending](const QString &text) {
        if (m_restoring || !pending.contains(asset))
            return;
        const Edit before = pending.take(asset);
        const Edit after = capture(*asset);
        refreshAnimationStates();
        if (!after.looksLike(before)) {
            push(asset->id(), command(text, *asset, before, after));
            return;
        }
        Numbering::of(*asset).setNames(before.names); // equal ones that changed places are as they were
        restore([&] { putUsers(*asset, after, before); });
    });
    connect(asset, &QObject::destroyed, this, [asset, &pending] { pending.remove(asset); });
}

template <typename Owner, typename Anim, typename State>
void EditRecorder::trackAnimations(Owner *owner, QHash<Anim *, State> &states)
{
    const auto trackNew = [this, owner = QPointer<Owner>(owner), &states] {
        if (!owner)
            return;
        for (const auto &animation : owner->animations()) {
            if (animation && !states.contains(animation))
                trackAnimation(animation.data(), owner->id(), states);
        }
    };
    trackNew();
    // Later, when the operation that added an animation has finished it: its first state is the finished one.
    connect(owner, &Owner::animationsChanged, this, [this, trackNew] { QTimer::singleShot(0, this, trackNew); });
}

template <typename Anim, typename State>
void EditRecorder::trackAnimation(Anim *animation, const QUuid &documentId, QHash<Anim *, State> &states)
{
    states.insert(animation, animation->state());
    const auto record = [this, animation, documentId, &states] { recordAnimation(animation, documentId, states); };
    connect(animation, &Animation::frameChanged, this, record);
    connect(animation, &Animation::sizeChanged, this, record);
    connect(animation, &Animation::delayChanged, this, record);
    connect(animation, &Animation::contentChanged, this, record);
    connect(animation, &QObject::destroyed, this, [this, animation, &states] {
        states.remove(animation);
        ghosts<Anim>().remove(animation);
    });
}

template <typename Anim, typename State>
void EditRecorder::recordAnimation(Anim *animation, const QUuid &documentId, QHash<Anim *, State> &states)
{
    const auto known = states.find(animation);
    if (m_restoring || known == states.end())
        return;
    State after = animation->state();
    if (after == known.value())
        return;
    const Numbering::Roster made = namesFor(*animation);
    auto &all = ghosts<Anim>();
    State before = all[animation].full(std::exchange(known.value(), after), made);
    after = all[animation].full(after, made);
    const auto change = [recorder = QPointer(this), guarded = QPointer(animation), made, &all](const State &from,
                                                                                               const State &to) {
        if (!recorder || !guarded)
            return;
        recorder->restore([&] {
            const Numbering::Roster names = namesFor(*guarded);
            const State now = all[guarded].full(guarded->state(), names);
            const State next = changed(now, renumbered(from, made, names), renumbered(to, made, names));
            guarded->restore(all[guarded].show(next, names));
        });
    };
    push(documentId,
         std::make_unique<SnapshotCommand<State>>(tr("Edit Frames"), std::move(before), std::move(after), change,
                                                  AnimationCommandId<State>, animation->id().toString(),
                                                  AnimationMergeInterval));
}

void EditRecorder::push(const QUuid &documentId, std::unique_ptr<QUndoCommand> command)
{
    if (QUndoStack *stack = m_stackFor(documentId))
        stack->push(command.release());
}

TileSetEdit EditRecorder::capture(TileSet &tileSet, bool mayLose)
{
    TileSetEdit edit{
        .tiles = tileSet.snapshot(), .maps = {}, .animations = {}, .names = Numbering::of(tileSet).names()};
    if (!m_project)
        return edit;
    for (const QPointer<Map> &map : m_project->maps()) {
        if (map->tileSet() == &tileSet)
            edit.maps.insert(map->id(), contentOf(*map, mayLose));
    }
    edit.animations = capture<TileAnimation::State>(animationsOf(*m_project, tileSet), mayLose);
    return edit;
}

SpriteBankEdit EditRecorder::capture(SpriteBank &bank, bool mayLose)
{
    SpriteBankEdit edit{.bank = bank.snapshot(), .maps = {}, .names = Numbering::of(bank).names()};
    edit.bank.animations = capture<Animation::State>(bank.animations(), mayLose);
    if (!m_project)
        return edit;
    for (const QPointer<Map> &map : m_project->maps()) {
        const Map::Snapshot content = contentOf(*map, mayLose);
        edit.maps.insert(map->id(), {content.sprites, content.origin});
    }
    return edit;
}

template <typename State, typename Anim>
QHash<QUuid, State> EditRecorder::capture(const QList<QPointer<Anim>> &animations, bool mayLose)
{
    QHash<QUuid, State> states;
    for (const QPointer<Anim> &animation : animations) {
        states.insert(animation->id(),
                      ghosts<Anim>()[animation].full(animation->state(), namesFor(*animation), mayLose));
    }
    return states;
}

std::unique_ptr<QUndoCommand> EditRecorder::command(const QString &text, TileSet &tileSet, const TileSetEdit &before,
                                                    const TileSetEdit &after)
{
    return structureCommand<TileSetEdit>(text, turner(tileSet, TileSetChange(before, after)));
}

std::unique_ptr<QUndoCommand> EditRecorder::command(const QString &text, SpriteBank &bank, const SpriteBankEdit &before,
                                                    const SpriteBankEdit &after)
{
    return structureCommand<SpriteBank::State>(text, turner(bank, SpriteBankChange(before, after, bank.id())));
}

template <typename Asset, typename Change>
std::function<void()> EditRecorder::turner(Asset &asset, const Change &change)
{
    const QPointer<Palette> palette = asset.palette();
    const PaletteOrder made = palette ? PaletteHistory::of(*palette).order() : PaletteOrder();
    return [recorder = QPointer(this), guarded = QPointer(&asset), way = change, palette, order = made]() mutable {
        if (!recorder || !guarded)
            return;
        if (palette && guarded->palette() == palette) {
            const PaletteOrder last = std::exchange(order, PaletteHistory::of(*palette).order());
            if (last != order)
                way.reorder(PaletteOrder::since(last, order), *guarded);
        }
        const auto now = recorder->capture(*guarded);
        const auto next = way.undone(now);
        recorder->restore([&] { recorder->put(*guarded, now, next); });
        way = way.turned(now, next);
    };
}

void EditRecorder::put(TileSet &tileSet, const TileSetEdit &now, const TileSetEdit &next)
{
    Numbering::of(tileSet).setNames(next.names);
    tileSet.restore(next.tiles);
    putUsers(tileSet, now, next);
}

void EditRecorder::put(SpriteBank &bank, const SpriteBankEdit &now, const SpriteBankEdit &next)
{
    Numbering::of(bank).setNames(next.names);
    bank.restore({next.bank.image, {}});
    putUsers(bank, now, next);
}

void EditRecorder::putUsers(TileSet &tileSet, const TileSetEdit &now, const TileSetEdit &next)
{
    if (!m_project)
        return;
    for (auto content = next.maps.cbegin(); content != next.maps.cend(); ++content) {
        const QPointer<Map> map = m_project->map(content.key());
        // in place of ghosts others may be shown now
        if (map && (!MapGhosts::of(*map).isEmpty() || *content != now.maps.value(content.key())))
            putContent(*map, *content);
    }
    putAnimations(animationsOf(*m_project, tileSet), now.animations, next.animations);
}

void EditRecorder::putUsers(SpriteBank &bank, const SpriteBankEdit &now, const SpriteBankEdit &next)
{
    putAnimations(bank.animations(), now.bank.animations, next.bank.animations);
    if (!m_project)
        return;
    for (auto placed = next.maps.cbegin(); placed != next.maps.cend(); ++placed) {
        const QPointer<Map> map = m_project->map(placed.key());
        if (!map || *placed == now.maps.value(placed.key()))
            continue;
        Map::Snapshot content = contentOf(*map);
        content.sprites = placed->sprites;
        putContent(*map, content);
    }
}

template <typename Anim, typename State>
void EditRecorder::putAnimations(const QList<QPointer<Anim>> &animations, const QHash<QUuid, State> &now,
                                 const QHash<QUuid, State> &next)
{
    for (const QPointer<Anim> &animation : animations) {
        const State state = next.value(animation->id());
        auto &itsGhosts = ghosts<Anim>()[animation];
        if (!itsGhosts.isEmpty() || state != now.value(animation->id()))
            animation->restore(itsGhosts.show(state, namesFor(*animation)));
    }
}

void EditRecorder::restore(const std::function<void()> &steps)
{
    {
        const QScopedValueRollback restoring(m_restoring, true);
        steps();
    }
    refreshAnimationStates();
}

void EditRecorder::refreshAnimationStates()
{
    for (auto known = m_tileAnimationStates.begin(); known != m_tileAnimationStates.end(); ++known)
        known.value() = known.key()->state();
    for (auto known = m_spriteAnimationStates.begin(); known != m_spriteAnimationStates.end(); ++known)
        known.value() = known.key()->state();
}
