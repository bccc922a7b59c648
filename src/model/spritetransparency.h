#pragma once

#include "model/enums.h"

/// Which pixels of a bank's sprites are not drawn: in 8 bits those of the transparent index, in 4 bits all whose low
/// four bits are those of the index.
struct SpriteTransparency
{
    static constexpr int DefaultIndex = 0xE3; ///< the hardware's at start-up

    Quenmora::Sprite depth = Quenmora::EightBit;
    int index = DefaultIndex;

    /// Pixel values that differ when a sprite is drawn.
    [[nodiscard]] constexpr int pixelCount() const { return depth == Quenmora::FourBit ? 16 : 256; }
    /// The pixel value (below pixelCount()) that is not drawn; -1 when the index is none, and all are drawn.
    [[nodiscard]] constexpr int pixel() const
    {
        if (depth == Quenmora::FourBit)
            return index & 15;
        return index >= 0 && index < pixelCount() ? index : -1;
    }
    [[nodiscard]] constexpr bool hides(int pixelValue) const { return pixelValue % pixelCount() == pixel(); }
};
