#pragma once

#include "model/project.h"
#include "model/spriteanim.h"
#include "model/tileanimation.h"
#include "undo/ghosts.h"
#include "undo/structurechange.h"

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
/// watched as well. Steps of different documents may be undone in any order: each takes back what its edit
/// changed, and leaves alone what others did since.
class EditRecorder final : public QObject
{
    Q_OBJECT

public:
    /// The undo stack for an edit of the asset with this id; null leaves the edit unrecorded.
    using StackProvider = std::function<QUndoStack *(const QUuid &)>;

    using TileSetEdit = ::TileSetEdit;

    EditRecorder(Project *project, StackProvider stackFor, QObject *parent = nullptr);
    ~EditRecorder() override;

private:
    void trackPalette(Palette *palette);
    void trackTileSet(TileSet *tileSet);
    void trackBlocks(MapObjects *blocks);
    void trackSprites(SpriteBank *bank);

    /// Records what happens between structureAboutToChange() and structureChanged() of a tile set or bank.
    template <typename Asset, typename Edit>
    void trackStructure(Asset *asset, QHash<Asset *, Edit> &pending);
    /// Tracks the animations of a block set or bank, now and whenever it gains some.
    template <typename Owner, typename Anim, typename State>
    void trackAnimations(Owner *owner, QHash<Anim *, State> &states);
    /// Tracks one animation, whose edits belong to the document of its owner.
    template <typename Anim, typename State>
    void trackAnimation(Anim *animation, const QUuid &documentId, QHash<Anim *, State> &states);

    template <typename Anim, typename State>
    void recordAnimation(Anim *animation, const QUuid &documentId, QHash<Anim *, State> &states);
    /// The ghosts of all animations of a kind.
    template <typename Anim>
    [[nodiscard]] auto &ghosts();
    void push(const QUuid &documentId, std::unique_ptr<QUndoCommand> command);

    /// With the ghosts of maps and animations, for which it is told whether they may lose something next.
    [[nodiscard]] TileSetEdit capture(TileSet &tileSet, bool mayLose = false);
    [[nodiscard]] SpriteBankEdit capture(SpriteBank &bank, bool mayLose = false);
    template <typename State, typename Anim>
    [[nodiscard]] QHash<QUuid, State> capture(const QList<QPointer<Anim>> &animations, bool mayLose);

    /// The step for what a structural edit changed.
    [[nodiscard]] std::unique_ptr<QUndoCommand> command(const QString &text, TileSet &tileSet,
                                                        const TileSetEdit &before, const TileSetEdit &after);
    [[nodiscard]] std::unique_ptr<QUndoCommand> command(const QString &text, SpriteBank &bank,
                                                        const SpriteBankEdit &before, const SpriteBankEdit &after);
    /// What such a step calls to take the change back, or back again, wherever the asset is by then. It does nothing
    /// when the asset is gone.
    template <typename Asset, typename Change>
    [[nodiscard]] std::function<void()> turner(Asset &asset, const Change &change);
    /// Puts what has become of the asset into it, as far as that is not there already.
    void put(TileSet &tileSet, const TileSetEdit &now, const TileSetEdit &next);
    void put(SpriteBank &bank, const SpriteBankEdit &now, const SpriteBankEdit &next);
    /// The same for the maps and animations that name its tiles or sprites.
    void putUsers(TileSet &tileSet, const TileSetEdit &now, const TileSetEdit &next);
    void putUsers(SpriteBank &bank, const SpriteBankEdit &now, const SpriteBankEdit &next);
    template <typename Anim, typename State>
    void putAnimations(const QList<QPointer<Anim>> &animations, const QHash<QUuid, State> &now,
                       const QHash<QUuid, State> &next);

    /// Does what an undo step does; nothing is recorded meanwhile.
    void restore(const std::function<void()> &steps);
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
    QHash<TileAnimation *, AnimationGhosts<TileAnimation::State>> m_tileAnimationGhosts;
    QHash<SpriteAnim *, AnimationGhosts<Animation::State>> m_spriteAnimationGhosts;
    // Taken when a structural edit began that has not ended yet.
    QHash<TileSet *, TileSetEdit> m_pendingTileSets;
    QHash<SpriteBank *, SpriteBankEdit> m_pendingSpriteBanks;
};
