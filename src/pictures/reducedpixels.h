#pragma once

#include "pictures/colourreduction.h"

class Palette;

/// A picture in the colours that sprites or an image can show, found for the whole of it: indices of a palette, which
/// exists or is to be made of the picture. No colour gets an index that is not drawn.
struct ReducedPixels
{
    struct Choices
    {
        Dithering dithering = Dithering::None;
        int colourCount = 256; ///< that are seen together, or 16
        int clear = -1; ///< the one of these indices that is not drawn, -1 for none
        const Palette *palette = nullptr; ///< null for the best colours that there are
        bool anyGroup = true; ///< that group of 16 colours of the palette which suits best, else the first one
        bool keepClearPixels = true; ///< as the index that is not drawn
    };

    QImage pixels; ///< 8-bit indices with the 256 colours of the palette, or those that quantise to a new one's
    ColourReduction reduction;

    [[nodiscard]] static ReducedPixels of(const QImage &picture, const Choices &choices);
};
