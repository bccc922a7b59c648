#pragma once

#include "model/animation.h"
#include "model/colourcycle.h"
#include "model/enums.h"
#include "model/map.h"
#include "model/tilemap.h"
#include "model/tileset.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>
#include <variant>

/// What raw files hold, as values that belong to no asset yet.
namespace NextData {

/// Entries of a palette from a first one on.
struct PaletteContent
{
    int first = 0;
    QList<quint16> words;
    std::optional<int> transparency{}; ///< the transparent entry, or -1 for none; nothing when the file does not tell

    bool operator==(const PaletteContent &) const = default;
};

struct TilesContent
{
    /// Of a tile whose pixels are of several palette offsets, which no tile of the machine's can show.
    static constexpr int MixedOffset = -1;

    struct Pixels
    {
        Tile::Pixels pixels{}; ///< 0–15; whole palette indices with a mixed offset
        int offset = 0;

        bool operator==(const Pixels &) const = default;
    };

    QList<Pixels> tiles;

    bool operator==(const TilesContent &) const = default;
};

/// A number for each of a tile set's tiles, from a first one on.
struct TileNumbersContent
{
    enum class Meaning { Attributes, Values };

    Meaning meaning = Meaning::Attributes;
    int first = 0;
    QList<int> numbers;

    bool operator==(const TileNumbersContent &) const = default;
};

struct MapContent
{
    TileMap::Rows rows;

    bool operator==(const MapContent &) const = default;
};

struct SpritesContent
{
    Quenmora::Sprite depth = Quenmora::EightBit;
    QByteArray pixels; ///< 256 a sprite, by rows

    bool operator==(const SpritesContent &) const = default;
};

struct ImageContent
{
    Quenmora::ImageMode mode = Quenmora::Layer2_256x192;
    QByteArray pixels; ///< palette indices, by rows
    QList<quint16> palette{}; ///< empty, or all entries

    bool operator==(const ImageContent &) const = default;
};

/// Animations of a sprite bank or a block set, which have no names in a file.
struct AnimationsContent
{
    struct Item
    {
        int kind = 0; ///< a MapObjectType
        Animation::State state; ///< the ids of its frames are null

        bool operator==(const Item &) const = default;
    };

    QList<Item> animations;

    bool operator==(const AnimationsContent &) const = default;
};

/// Sprites placed on a map. What they show is told by its place in a project.
struct PlacedSpritesContent
{
    struct Item
    {
        int bank = 0; ///< the place of the bank
        int animation = -1; ///< the place in the bank, or -1 for a single sprite
        Map::PlacedSprite sprite; ///< without the ids of these

        bool operator==(const Item &) const = default;
    };

    QList<Item> items;

    bool operator==(const PlacedSpritesContent &) const = default;
};

/// Animated blocks placed on a map, told as placed sprites are.
struct PlacedBlocksContent
{
    struct Item
    {
        int blockSet = 0;
        int animation = 0;
        AnimationProperties::State placement; ///< without the id of the animation

        bool operator==(const Item &) const = default;
    };

    QList<Item> items;

    bool operator==(const PlacedBlocksContent &) const = default;
};

/// Ranges of a palette whose colours go round.
struct ColourCyclesContent
{
    ColourCycles::List cycles;

    bool operator==(const ColourCyclesContent &) const = default;
};

using Content = std::variant<PaletteContent, TilesContent, TileNumbersContent, MapContent, SpritesContent, ImageContent,
                             AnimationsContent, PlacedSpritesContent, PlacedBlocksContent, ColourCyclesContent>;

} // namespace NextData
