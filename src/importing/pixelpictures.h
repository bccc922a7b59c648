#pragma once

#include "nextdata/content.h"

#include <QImage>
#include <QList>
#include <QRgb>

/// Pixels as pictures of indices.
namespace Importing {

/// A byte a pixel, by rows.
[[nodiscard]] QImage pictureOf(const QByteArray &pixels, QSize size, const QList<QRgb> &colours);

/// Sprites below each other.
[[nodiscard]] QImage stripOf(const NextData::SpritesContent &sprites, const QList<QRgb> &colours);

/// Gives tiles from a number on these pixels and offsets; those beyond the end are appended.
void putTiles(TileSet &tileSet, int first, const NextData::TilesContent &content, const QList<QRgb> &colours);

} // namespace Importing
