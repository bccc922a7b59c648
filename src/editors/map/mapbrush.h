#pragma once

#include "model/map.h"
#include "model/spriteanim.h"
#include "model/tileanimation.h"

#include <QPointer>
#include <QUuid>

#include <optional>

namespace MapEditor {

/// What the tools put on a map: a tile in an orientation, a tile animation, or a sprite.
struct MapBrush
{
    TileMap::TileData tile; ///< index and orientation alone count; index -1 for none
    QPointer<TileAnimation> animation;
    std::optional<Map::PlacedSprite> sprite; ///< as it will be placed, but for its position
    bool paintsOnPress = false; ///< a tile or animation goes where the button is pressed, not only where it is moved to

    void chooseTile(int index);
    void chooseAnimation(const QPointer<TileAnimation> &chosen);
    /// Null chooses no sprite, and neither does a negative index below.
    void chooseSpriteAnimation(const QPointer<SpriteAnim> &chosen);
    void chooseSprite(QUuid bank, int index);
    /// Of a tile set that has only so many tiles the last one is taken in place of one that is gone.
    void keepWithin(int tileCount);

    /// The tile as a cell of that map, with the palette offset that its tile set gives it.
    [[nodiscard]] TileMap::TileData cellFor(const QPointer<Map> &map) const;
};

} // namespace MapEditor
