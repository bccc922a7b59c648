#pragma once

#include "model/animation.h"
#include "model/map.h"
#include "nextdata/content.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace Importing {

/// An animation of tiles or sprites. Its cells name those that come with it, counted from 0.
struct IncomingAnimation
{
    QString name;
    QSize size{1, 1}; ///< in cells
    int delay = 0; ///< ticks of 20 ms
    QList<AnimationFrame::Cells> frames;

    bool operator==(const IncomingAnimation &) const = default;
};

struct IncomingSprites
{
    NextData::SpritesContent content;
    int transparency = -1; ///< the pixel value that is not drawn; -1 for the usual one
    QList<IncomingAnimation> animations{};
    std::optional<NextData::PaletteContent> palette{}; ///< of their own, beside that of what else comes in
};

struct IncomingMap
{
    TileMap::Rows rows{};
    int transparency = -1; ///< the pixel value (0–15) that is not drawn
    QList<Map::PlacedSprite> sprites{}; ///< their banks are null: the sprites that come with the map
    /// An animation that comes with the tiles, and the cell in which it is placed.
    struct Block
    {
        int animation;
        QPoint at;
    };
    QList<Block> blocks{};
};

/// What a file holds, ready to become assets: values that nothing can go wrong with any more.
struct IncomingAssets
{
    std::optional<NextData::PaletteContent> palette{};
    std::optional<NextData::TilesContent> tiles{}; ///< without mixed offsets
    QList<IncomingAnimation> blocks{}; ///< animations of these tiles
    std::optional<NextData::TileNumbersContent> numbers{}; ///< for tiles that are there
    std::optional<IncomingMap> map{};
    std::optional<IncomingSprites> sprites{};
    std::optional<NextData::ImageContent> image{};
    std::optional<NextData::AnimationsContent> animations{}; ///< of tiles or sprites that are there
    std::optional<QList<Map::PlacedSprite>> placedSprites{}; ///< on a map that is there, as what follows
    std::optional<AnimatedBlocks::State> placedBlocks{};
    std::optional<ColourCycles::List> cycles{}; ///< of a palette that is there

    QStringList remarks{}; ///< what is lost or otherwise worth knowing, a sentence each
    QStringList outside{}; ///< files that were not read because they are not below the folder of this one
};

} // namespace Importing
