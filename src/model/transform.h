#pragma once

#include "model/qtcompat.h"

#include <QTransform>

/// The picture in the orientation that tiles, map cells, sprites and animation cells share: rotated
/// 90° clockwise first (the pixel at column x, row y moves to column height − 1 − y, row x), then
/// mirrored left to right and/or flipped top to bottom. Format and colour table are kept.
[[nodiscard]] inline QImage oriented(const QImage &image, bool rotate, bool flip, bool mirror)
{
    const QImage turned = rotate ? image.transformed(QTransform().rotate(90)) : image;
    return flip || mirror ? QtCompat::flipped(turned, mirror, flip) : turned;
}
