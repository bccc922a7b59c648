#pragma once

#include "pictures/reducedpixels.h"

#include <QImage>
#include <QSize>

#include <optional>

class Palette;

/// How an ordinary picture becomes pixels at the top left of an image.
struct ImageImport
{
    struct Result
    {
        QImage pixels;
        std::optional<ReducedPixels> reduced; ///< how it went, where colours were to be fewer
    };

    bool scale = false; ///< to the size of the image
    bool keepColours = false; ///< the picture has none but the machine's
    bool keepClearPixels = false; ///< where some entry is transparent
    bool newPalette = false; ///< of the picture's colours, which are reduced to those that there is room for
    std::optional<Dithering> reduction{}; ///< to colours that suit the whole picture

    bool operator==(const ImageImport &) const = default;

    /// The entry that clear pixels get: the palette's, or that of a new one; -1 for none among the colours of the
    /// image.
    [[nodiscard]] int clearEntry(const Palette *palette, int colourCount) const;
    /// Only what lies inside the image is converted.
    [[nodiscard]] Result convert(const QImage &picture, const Palette &palette, QSize imageSize, int colourCount) const;
};
