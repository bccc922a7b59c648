#include "undo/editrecorder.h"

#include "model/mapobjects.h"
#include "model/palette.h"
#include "undo/mapeditcommand.h"
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
    connect(bank, &SpriteBank::structureAboutToChange, this, [this, bank] {
        if (m_restoring || !m_project)
            return;
        QHash<QUuid, Map::Snapshot> &maps = m_pendingMaps[bank];
        maps.clear();
        for (const QPointer<Map> &map : m_project->maps())
            maps.insert(map->id(), map->snapshot());
    });
    connect(bank, &QObject::destroyed, this, [this, bank] { m_pendingMaps.remove(bank); });
}

template <typename Asset, typename State>
void EditRecorder::trackStructure(Asset *asset, QHash<Asset *, State> &pending)
{
    connect(asset, &Asset::structureAboutToChange, this, [this, asset, &pending] {
        if (!m_restoring)
            pending.insert(asset, capture(*asset));
    });
    connect(asset, &Asset::structureChanged, this, [this, asset, &pending](const QString &text) {
        if (m_restoring || !pending.contains(asset))
            return;
        State before = pending.take(asset);
        State after = capture(*asset);
        refreshAnimationStates();
        auto command = std::make_unique<SnapshotCommand<State>>(
            text, std::move(before), std::move(after), restorer<State>(asset), NeverMerges, QVariant(), NoTimeLimit);
        if constexpr (std::is_same_v<Asset, SpriteBank>)
            recordMaps(asset, *command);
        push(asset->id(), std::move(command));
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
    connect(animation, &QObject::destroyed, this, [animation, &states] { states.remove(animation); });
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
    State before = std::exchange(known.value(), after);
    push(documentId,
         std::make_unique<SnapshotCommand<State>>(tr("Edit Frames"), std::move(before), std::move(after),
                                                  restorer<State>(animation), AnimationCommandId<State>,
                                                  animation->id().toString(), AnimationMergeInterval));
}

void EditRecorder::push(const QUuid &documentId, std::unique_ptr<QUndoCommand> command)
{
    if (QUndoStack *stack = m_stackFor(documentId))
        stack->push(command.release());
}

void EditRecorder::recordMaps(SpriteBank *bank, QUndoCommand &command)
{
    const QHash<QUuid, Map::Snapshot> maps = m_pendingMaps.take(bank);
    for (auto before = maps.cbegin(); m_project && before != maps.cend(); ++before) {
        const QPointer<Map> map = m_project->map(before.key());
        if (map && map->sprites() != before->sprites) // the command belongs to its parent
            new MapEditCommand(command.text(), map, *before, map->snapshot(), &command);
    }
}

EditRecorder::TileSetEdit EditRecorder::capture(const TileSet &tileSet) const
{
    TileSetEdit edit{.tiles = tileSet.snapshot(), .maps = {}, .animations = {}};
    if (!m_project)
        return edit;
    for (const QPointer<Map> &map : m_project->maps()) {
        if (map->tileSet() == &tileSet)
            edit.maps.insert(map->id(), map->snapshot());
    }
    for (const QPointer<MapObjects> &blocks : m_project->blockSets()) {
        if (blocks->tileSet() != &tileSet)
            continue;
        for (const QPointer<TileAnimation> &animation : blocks->animations())
            edit.animations.insert(animation->id(), animation->state());
    }
    return edit;
}

SpriteBank::State EditRecorder::capture(const SpriteBank &bank) const
{
    return bank.snapshot();
}

template <typename State, typename Asset>
std::function<void(const State &)> EditRecorder::restorer(Asset *asset)
{
    return [recorder = QPointer<EditRecorder>(this), asset = QPointer<Asset>(asset)](const State &state) {
        if (!recorder || !asset)
            return;
        {
            const QScopedValueRollback restoring(recorder->m_restoring, true);
            recorder->putBack(*asset, state);
        }
        recorder->refreshAnimationStates();
    };
}

template <typename Asset, typename State>
void EditRecorder::putBack(Asset &asset, const State &state)
{
    asset.restore(state);
}

void EditRecorder::putBack(TileSet &tileSet, const TileSetEdit &state)
{
    tileSet.restore(state.tiles);
    if (!m_project)
        return;
    for (auto snapshot = state.maps.cbegin(); snapshot != state.maps.cend(); ++snapshot) {
        if (const QPointer<Map> map = m_project->map(snapshot.key()))
            map->restore(snapshot.value());
    }
    for (const QPointer<MapObjects> &blocks : m_project->blockSets()) {
        if (blocks->tileSet() != &tileSet)
            continue;
        for (const QPointer<TileAnimation> &animation : blocks->animations()) {
            if (const auto known = state.animations.constFind(animation->id()); known != state.animations.cend())
                animation->restore(known.value());
        }
    }
}

void EditRecorder::refreshAnimationStates()
{
    for (auto known = m_tileAnimationStates.begin(); known != m_tileAnimationStates.end(); ++known)
        known.value() = known.key()->state();
    for (auto known = m_spriteAnimationStates.begin(); known != m_spriteAnimationStates.end(); ++known)
        known.value() = known.key()->state();
}
