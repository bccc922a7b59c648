#pragma once

#include "pictures/ninebitcolour.h"

#include <QSize>

#include <functional>
#include <vector>

/// Colours that are shown by few others, so that their neighbourhood looks right.
enum class Dithering {
    None, ///< every pixel takes the nearest colour
    Ordered, ///< in a pattern of 8 × 8 pixels that repeats, so equal tiles stay equal
    Diffusion, ///< what is wrong with a pixel is put right by its neighbours
};

namespace Dither {

/// One of the colours that a pixel may take; none for pixels that are left alone.
using ColoursAt = std::function<const std::vector<quint16> *(int x, int y)>;

/// Every pixel of an area of opaque colours, row by row, as the position of one of the colours that it may take.
[[nodiscard]] std::vector<uchar> apply(Dithering dithering, const std::vector<QRgb> &pixels, const QSize &size,
                                       const ColoursAt &coloursAt);

/// The colour (0–511) that a pixel takes in the ordered pattern when it may take any: what it is, or one of those that
/// mix it.
[[nodiscard]] int patternColour(QRgb pixel, int x, int y);

} // namespace Dither
