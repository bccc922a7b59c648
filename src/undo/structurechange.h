#pragma once

#include "model/map.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tileset.h"
#include "undo/gridchange.h"
#include "undo/listchange.h"
#include "undo/numbering.h"
#include "undo/paletteorder.h"

#include <QByteArray>
#include <QHash>
#include <QUuid>

/// A tile set together with everything that a structural edit of it changes.
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

/// A sprite bank together with everything that a structural edit of it changes.
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

/// What an edit did to the frames of animations that name tiles or sprites.
class FramesChange
{
public:
    FramesChange() = default;
    /// back leads from the numbers after the edit to those before it.
    template <typename State>
    FramesChange(const QHash<QUuid, State> &before, const QHash<QUuid, State> &after, const Renumbering &back);

    /// Renumbers the frames and puts back what the edit took from them, the numbers of which have changed since.
    template <typename State>
    void undo(QHash<QUuid, State> &animations, const Renumbering &back, const Renumbering &since) const;

private:
    QHash<QUuid, QHash<QUuid, FrameChange>> m_lost; ///< by the ids of animation and frame; what was, and what is left
};

/// What a structural edit of a tile set changed: the way back from it.
///
/// It knows where things were renumbered, inserted and deleted, and what was lost or replaced thereby: cells of a
/// deleted tile, the tile itself, a tile that another was copied over. That is all that it puts back. So what was
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
    Numbering::Names m_names; ///< from before the edit: what was lost is kept in these numbers
    QHash<int, Tile::State> m_before; ///< by name, as the next: tiles that are no longer there or not as they were
    QHash<int, Tile::State> m_after;
    QHash<QUuid, Layers> m_lostCells; ///< by the ids of the maps
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
    Numbering::Names m_names; ///< from before the edit: what was lost is kept in these numbers
    QHash<int, QByteArray> m_before; ///< by name, as the next: pixels of sprites that are gone or not as they were
    QHash<int, QByteArray> m_after;
    struct Sprites
    {
        ListChange<Map::PlacedSprite> list;
        QPoint origin; ///< of the map's snapshot then
    };
    QHash<QUuid, Sprites> m_lostSprites; ///< by the ids of the maps
    FramesChange m_frames;
};

/// Placed sprites after the sprites of a bank got other numbers; those of sprites that are gone are left out.
[[nodiscard]] QList<Map::PlacedSprite> renumbered(const QList<Map::PlacedSprite> &sprites, const QUuid &bank,
                                                  const Renumbering &renumbering);
/// Placed sprites after the content of their map moved by so many cells.
[[nodiscard]] QList<Map::PlacedSprite> moved(QList<Map::PlacedSprite> sprites, QPoint cells);
