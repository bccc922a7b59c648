#pragma once

#include "model/map.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tileset.h"
#include "undo/ghosts.h"
#include "undo/gridchange.h"
#include "undo/listchange.h"
#include "undo/numbering.h"
#include "undo/paletteorder.h"

#include <QByteArray>
#include <QHash>
#include <QUuid>

#include <utility>

/// A tile set together with everything that a structural edit of it changes; maps and animations are with their ghosts.
struct TileSetEdit
{
    TileSet::Snapshot tiles;
    /// The maps that use the tile set, by their ids.
    QHash<QUuid, Map::Snapshot> maps;
    /// The tile animations of the block sets bound to the tile set, by their ids.
    QHash<QUuid, TileAnimation::State> animations;
    /// Which tile is which.
    Numbering::Names names{};

    /// Whether nobody could tell the one from the other; the colours of tables that tiles carry do not count.
    [[nodiscard]] bool looksLike(const TileSetEdit &other) const;
};

/// The same of a sprite bank.
struct SpriteBankEdit
{
    struct Placed
    {
        QList<Map::PlacedSprite> sprites;
        QPoint origin{}; ///< of the map's snapshot

        bool operator==(const Placed &other) const { return sprites == other.sprites; }
    };

    SpriteBank::State bank;
    /// What is placed on the maps of the project, by their ids.
    QHash<QUuid, Placed> maps;
    /// Which sprite is which.
    Numbering::Names names{};

    [[nodiscard]] bool looksLike(const SpriteBankEdit &other) const;
};

/// What an edit did to the frames of animations besides renumbering them.
class FramesChange
{
public:
    FramesChange() = default;
    /// back leads from the numbers after the edit to those before it.
    template <typename State>
    FramesChange(const QHash<QUuid, State> &before, const QHash<QUuid, State> &after, const Renumbering &back);

    /// Renumbers the frames and puts back what the edit changed, the numbers of which have changed since.
    template <typename State>
    void undo(QHash<QUuid, State> &animations, const Renumbering &back, const Renumbering &since) const;

private:
    QHash<std::pair<QUuid, QUuid>, FrameChange> m_frames; ///< by the ids of animation and frame
};

/// What a structural edit of a tile set changed: the way back from it.
///
/// It knows where things were renumbered, inserted and deleted, and what was lost or replaced thereby: a tile that was
/// deleted or that another was copied over, cells that the edit changed besides, such as those whose number stands for
/// a new tile since. That is all that it puts back; cells of a deleted tile are its ghosts meanwhile. So what was
/// drawn, placed, resized or added since then stays; it is only called by other numbers. Where nothing was done since,
/// the outcome is exactly what was before.
class TileSetChange
{
public:
    TileSetChange(const TileSetEdit &before, const TileSetEdit &after);

    [[nodiscard]] TileSetEdit undone(const TileSetEdit &now) const;
    /// The way forth again, after undone() led from the one to the other.
    [[nodiscard]] TileSetChange turned(const TileSetEdit &now, const TileSetEdit &next) const { return {now, next}; }
    /// Gives what it keeps the numbers that the entries of the palette have in another order.
    void reorder(const PaletteOrder &order, const TileSet &tileSet);

private:
    struct Layers
    {
        LayerChange tiles;
        LayerChange objects;
        QPoint origin; ///< of the map's snapshot then
    };

    ListChange<int> m_order;
    QHash<int, Tile::State> m_before; ///< by name, as the next: tiles that are no longer there or not as they were
    QHash<int, Tile::State> m_after;
    // what it did to cells besides renumbering them, in the numbers from before it
    Numbering::Names m_names;
    QHash<QUuid, Layers> m_maps;
    FramesChange m_frames;
};

/// The same for a sprite bank and the sprites that are placed on maps.
class SpriteBankChange
{
public:
    SpriteBankChange(const SpriteBankEdit &before, const SpriteBankEdit &after, const QUuid &bankId);

    [[nodiscard]] SpriteBankEdit undone(const SpriteBankEdit &now) const;
    [[nodiscard]] SpriteBankChange turned(const SpriteBankEdit &now, const SpriteBankEdit &next) const
    {
        return {now, next, m_bankId};
    }
    /// Gives what it keeps the numbers that the entries of the palette have in another order.
    void reorder(const PaletteOrder &order, const SpriteBank &bank);

private:
    QUuid m_bankId;
    ListChange<int> m_order;
    QHash<int, QByteArray> m_before; ///< by name, as the next: pixels of sprites that are gone or not as they were
    QHash<int, QByteArray> m_after;
    // what it did to placed sprites and frames besides renumbering them, in the numbers from before it
    struct Sprites
    {
        ListChange<Map::PlacedSprite> list;
        QPoint origin; ///< of the map's snapshot then
    };
    Numbering::Names m_names;
    QHash<QUuid, Sprites> m_maps;
    FramesChange m_frames;
};
