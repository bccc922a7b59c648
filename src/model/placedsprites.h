#pragma once

#include "model/map.h"

#include <QImage>
#include <QList>
#include <QPointer>
#include <QRect>

class QPainter;
class SpriteBank;

/// How the sprites that are placed on a map look, given the banks in which to find them. Areas are in pixels
/// of the map, 8 to a cell; times are ticks of the map's clock.
namespace PlacedSprites {

using Banks = QList<QPointer<SpriteBank>>;

/// The area that a sprite covers; empty when its bank, its animation or its sprite is not there.
[[nodiscard]] QRect area(const Map::PlacedSprite &sprite, const Banks &banks);

/// The sprite, or the frame that its animation shows at a time, with transparent pixels; null where its area is empty.
[[nodiscard]] QImage picture(const Map::PlacedSprite &sprite, const Banks &banks, qint64 time);

/// Whether a sprite shows another frame of its animation at the second time than at the first.
[[nodiscard]] bool changesBetween(qint64 first, qint64 second, const Map::PlacedSprite &sprite, const Banks &banks);

/// The last, and so the topmost, of the sprites that cover a pixel, or -1.
[[nodiscard]] int indexAt(QPoint pixel, const QList<Map::PlacedSprite> &sprites, const Banks &banks);

/// Paints the sprites in their order, as far as they reach into cells, with the same geometry as TileMap::paint().
void paint(QPainter &painter, QPoint origin, const QRect &cells, int cellSize, const QList<Map::PlacedSprite> &sprites,
           const Banks &banks, qint64 time);

} // namespace PlacedSprites
