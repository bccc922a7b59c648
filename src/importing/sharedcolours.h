#pragma once

#include "nextdata/content.h"
#include "pictures/dithering.h"

#include <QImage>
#include <QList>
#include <QRgb>
#include <QStringList>

#include <functional>
#include <optional>

namespace Importing {

/// Pictures that are shown with one palette, such as the frames of an animation, in its colours: those of a palette
/// that is given, or the best that there are for all pictures together. No colour gets the index that is not drawn.
struct SharedColours
{
    struct Source
    {
        int count = 0;
        std::function<QImage(int)> picture; ///< asked for when it is looked at; all of them may be large
        QList<QRgb> palette{}; ///< that comes with the pictures; its order is kept where it has all their colours
    };

    struct Choices
    {
        Dithering dithering = Dithering::None;
        int colourCount = 256; ///< that are seen together, or 16: the first ones of a palette
        QList<quint16> words{}; ///< of the palette that is given, all 256; empty for the best colours
        int clear = -1; ///< the index of a given palette that is not drawn, or -1
    };

    QList<QImage> pictures{}; ///< 8-bit indices
    std::optional<NextData::PaletteContent> palette{}; ///< where none was given
    int clear = -1; ///< the index of clear pixels, which no colour has; -1 where there is none
    QStringList remarks{};

    [[nodiscard]] static SharedColours of(const Source &source, const Choices &choices);

    /// The same for pictures of indices that may stay what they are: a palette of at most 256 colours, of which one may
    /// be clear. Nothing when they need more indices than there may be.
    [[nodiscard]] static std::optional<SharedColours> keptIndices(const Source &source, int clear, int colourCount);
};

} // namespace Importing
