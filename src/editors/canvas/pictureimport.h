#pragma once

#include <QImage>
#include <QPointer>
#include <QSize>

class Palette;

/// Turns an ordinary picture into pixels of an image asset.
namespace PictureImport {

enum class Levels {
    Quantised,
    Kept, ///< of a picture whose colours are all the machine's; scaling it makes no new ones
};

/// Whether clear pixels, those less than half opaque, get the palette's transparent entry.
enum class ClearPixels { Dropped, Kept };

/// The picture as indices of the count (16 or 256) entries of the palette from first on, every colour the
/// nearest of them; when asked to, scaled to exactly the size. What is kept leaves the transparent entry to clear
/// pixels. Null when the picture is null.
[[nodiscard]] QImage indexed(const QImage &picture, const Palette &palette, int first, int count, QSize scaledTo = {},
                             Levels levels = Levels::Quantised, ClearPixels clear = ClearPixels::Dropped);

} // namespace PictureImport
