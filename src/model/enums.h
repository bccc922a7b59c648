#pragma once

#include <QObject>

/// Enumerations of the Next's hardware formats that several kinds of asset share. Their type is fixed,
/// so that a value from a file that names none of them is still a value that code may look at.
namespace Quenmora {
Q_NAMESPACE

/// Colour depth of hardware sprites.
enum Sprite : int { FourBit = 0, EightBit = 1 };
Q_ENUM_NS(Sprite)

/// The side of a map at which a row or column is inserted or removed.
/// No Q_ENUM: the widget kit declares it without this header, and its meta-type must be the same there.
enum Position : int { Begin = 0, End = 1 };

/// Picture formats of the Next's bitmap layers.
enum ImageMode : int { Layer2_256x192 = 0, Layer2_320x256 = 1, Layer2_640x256 = 2, LoRes_128x96 = 3 };
Q_ENUM_NS(ImageMode)

} // namespace Quenmora
