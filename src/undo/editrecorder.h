#pragma once

#include "model/map.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tileset.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QUuid>

#include <functional>
#include <memory>

class MapObjects;
class QUndoCommand;
class QUndoStack;

/// Watches the assets of a project and turns what their own operations change into undo steps: edited
/// colours, structural edits of tile sets and sprite banks, and edits of animations.
///
/// The model knows nothing of undo, it only emits its signals. Pixel edits and map edits are not
/// recorded here: their editors push commands of their own. Assets that the project gains later are
/// watched as well.
class EditRecorder final : public QObject
{
    Q_OBJECT

public:
    /// The undo stack for an edit of the asset with this id; null leaves the edit unrecorded.
    using StackProvider = std::function<QUndoStack *(const QUuid &)>;

    /// A tile set together with everything that a structural edit of it changes.
    struct TileSetEdit
    {
        TileSet::Snapshot tiles;
        /// The maps that use the tile set, by their ids.
        QHash<QUuid, Map::Snapshot> maps;
        /// The tile animations of the block sets bound to the tile set, by their ids.
        QHash<QUuid, TileAnimation::State> animations;
    };

    EditRecorder(Project *project, StackProvider stackFor, QObject *parent = nullptr);
    ~EditRecorder() override;

private:
    void trackPalette(Palette *palette);
    void trackTileSet(TileSet *tileSet);
    void trackBlocks(MapObjects *blocks);
    void trackSprites(SpriteBank *bank);

    /// Records what happens between structureAboutToChange() and structureChanged() of a tile set or bank.
    template <typename Asset, typename State>
    void trackStructure(Asset *asset, QHash<Asset *, State> &pending);
    /// Tracks the animations of a block set or bank, now and whenever it gains some.
    template <typename Owner, typename Anim, typename State>
    void trackAnimations(Owner *owner, QHash<Anim *, State> &states);
    /// Tracks one animation, whose edits belong to the document of its owner.
    template <typename Anim, typename State>
    void trackAnimation(Anim *animation, const QUuid &documentId, QHash<Anim *, State> &states);

    template <typename Anim, typename State>
    void recordAnimation(Anim *animation, const QUuid &documentId, QHash<Anim *, State> &states);
    void push(const QUuid &documentId, std::unique_ptr<QUndoCommand> command);

    /// What happened to the maps of the project while the structure of a bank was edited (sprites placed on
    /// them follow) becomes part of the command of that edit.
    void recordMaps(SpriteBank *bank, QUndoCommand &command);

    [[nodiscard]] TileSetEdit capture(const TileSet &tileSet) const;
    [[nodiscard]] SpriteBank::State capture(const SpriteBank &bank) const;

    /// What a command calls to put a state into the asset. It does nothing when the asset is gone.
    template <typename State, typename Asset>
    [[nodiscard]] std::function<void(const State &)> restorer(Asset *asset);
    void putBack(TileSet &tileSet, const TileSetEdit &state);
    template <typename Asset, typename State>
    void putBack(Asset &asset, const State &state);
    /// Takes over the present state of every tracked animation, so that what was changed by an undo step
    /// or a structural edit is not recorded once more.
    void refreshAnimationStates();

    QPointer<Project> m_project;
    StackProvider m_stackFor;
    /// A command is putting a state back: nothing is recorded meanwhile.
    bool m_restoring = false;
    // The last known state of every tracked animation.
    QHash<TileAnimation *, TileAnimation::State> m_tileAnimationStates;
    QHash<SpriteAnim *, Animation::State> m_spriteAnimationStates;
    // Taken when a structural edit began that has not ended yet.
    QHash<TileSet *, TileSetEdit> m_pendingTileSets;
    QHash<SpriteBank *, SpriteBank::State> m_pendingSpriteBanks;
    QHash<SpriteBank *, QHash<QUuid, Map::Snapshot>> m_pendingMaps; ///< by their ids
};
