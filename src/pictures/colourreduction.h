#pragma once

#include "pictures/colourchoice.h"
#include "pictures/dithering.h"

#include <QImage>
#include <QList>
#include <QRgb>

/// Any picture in a few of the machine's colours: those that suit the whole of it, or colours that are given.
///
/// A colour is taken for the one of the machine's that looks most like it, so the machine's own colours are exact as
/// long as there is room for them.
struct ColourReduction
{
    /// In place of a clear pixel.
    static constexpr int ClearPosition = 255;

    struct Choices
    {
        Dithering dithering = Dithering::None;
        bool keepClearPixels = true; ///< pixels less than half opaque; else they take their colour, as all others
        int mostColours = 256; ///< one less where clear pixels are kept
        ColourChoice::Colours given{}; ///< these and no others, if there are any
    };

    QImage pixels; ///< positions of the colours; null when there is no picture
    ColourChoice::Colours colours;

    // What is to be told before anything is made of it
    int coloursBefore = 0; ///< of the machine's, which the picture has
    int coloursUsed = 0;
    double error = 0; ///< root of the mean squared distance to the picture in the machine's colours, in levels
    bool hasClearPixels = false;

    [[nodiscard]] static ColourReduction of(const QImage &picture, const Choices &choices);
    /// How often the picture has each of the machine's colours.
    [[nodiscard]] static ColourChoice::Counts countsOf(const QImage &picture, bool keepClearPixels);

    /// The picture with an index for each of the colours, and one for clear pixels.
    [[nodiscard]] QImage withIndices(const QList<int> &indices, int clear, const QList<QRgb> &colourTable) const;
};
