#pragma once

#include "editors/map/cellink.h"
#include "model/map.h"
#include "model/spriteanim.h"
#include "model/terrain.h"
#include "model/tileanimation.h"

#include <QPointer>
#include <QUuid>

#include <optional>

namespace MapEditor {

/// What the tools put on a map: a tile in an orientation, a stamp in its place, a tile animation, or a sprite.
struct MapBrush
{
    TileMap::TileData tile; ///< index and orientation alone count; index -1 for none
    Stamp stamp; ///< as it was picked; empty for the tile
    int offset = -1; ///< the palette offset of what is painted; -1 for that of the tiles
    bool random = false; ///< any cell of the stamp instead of all of them
    quint32 seed = 0; ///< of the choice, until the end of an edit
    QPointer<TileAnimation> animation;
    std::optional<Map::PlacedSprite> sprite; ///< as it will be placed, but for its position
    Terrain terrain; ///< of the terrain tool
    bool paintsOnPress = false; ///< a tile or animation goes where the button is pressed, not only where it is moved to
    bool doesMore = false; ///< see MapGrid::offerMore()

    void chooseTile(int index);
    void chooseAnimation(const QPointer<TileAnimation> &chosen);
    void chooseStamp(const Stamp &chosen);
    /// Null chooses no sprite, and neither does a negative index below.
    void chooseSpriteAnimation(const QPointer<SpriteAnim> &chosen);
    void chooseSprite(QUuid bank, int index);
    /// Of a tile set that has only so many tiles the last one is taken in place of one that is gone.
    void keepWithin(int tileCount);

    /// The tile as a cell of that map, with the palette offset that its tile set gives it.
    [[nodiscard]] TileMap::TileData cellFor(const QPointer<Map> &map) const;
    /// Whether a tile is painted as the tile set has it.
    [[nodiscard]] bool isPlain() const { return stamp.isEmpty() && offset < 0; }
    /// What is painted on that map: the tile, or the stamp, in the orientation that was chosen. Empty without either.
    [[nodiscard]] Stamp pattern(const QPointer<Map> &map) const;
    /// The pattern as ink for a stroke that begins at a cell. The right button takes back what the left one does, and
    /// Ctrl is for palette offsets alone.
    [[nodiscard]] CellInk ink(const QPointer<Map> &map, QPoint first, Qt::MouseButtons buttons,
                              Qt::KeyboardModifiers modifiers) const;
};

} // namespace MapEditor
