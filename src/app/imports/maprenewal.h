#pragma once

#include "model/tilemap.h"

#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

#include <functional>
#include <vector>

class Map;
class QUndoStack;
class TileSet;

/// What tiles, and the map that is made of them, are to show.
struct TilePicture
{
    QImage image;
    int clearPixel = -1; ///< that clear pixels have in the tiles; -1 when there are none
    int rows = 0; ///< of cells that the map shows, what is below are tiles alone; 0 for all
    QSize before{}; ///< of the map when it was imported last, in cells
    QList<int> imported{}; ///< the tiles that were made of it then, as far as that is known
};

struct RenewedTiles
{
    QString failure{}; ///< why nothing was changed
    QSize size{}; ///< of the picture's map, in cells
    bool isChanged = false;
    qsizetype additions = 0;
    qint64 lostPixels = 0; ///< that took the nearest colour
    QList<int> tiles{}; ///< that show the picture now
};

/// Brings a tile set, and a map of it where there is one, up to date with a picture. Cells and tiles that show the same
/// pixels as before stay as they are; the palette gets colours for which it has room among those that no tile uses.
/// What else is done while the tiles change, with the cells of the picture, becomes a part of their undo step.
[[nodiscard]] RenewedTiles renewTiles(TileSet &tileSet, Map *map, const TilePicture &picture, QUndoStack *stack,
                                      const std::function<void(const std::vector<TileMap::TileData> &)> &with = {});
