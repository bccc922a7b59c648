#pragma once

#include "model/nextcolour.h"

#include <QImage>
#include <QRgb>

#include <optional>

/// The 512 colours that the machine has, and pictures that are drawn in nothing else.
///
/// Quantising a colour, as all operations of the model do, takes the band that it lies in, and the bands do not fit the
/// components in which the levels are shown: 219, which is level 6, lies in the band of level 7. Here a component is
/// the level that it names.
namespace MachineColours {

inline constexpr int Count = 512;
/// How far a component may be from a level's: tools round differently, and pictures change hands.
inline constexpr int Tolerance = 2;

/// The level (0–7) that an 8-bit component names, or -1. Artists and converters round what a level is shown as to the
/// nearest (0 36 73 109 146 182 219 255), this program rounds it up (0 37 73 110 146 183 219 255).
constexpr int levelOf(int component)
{
    for (int level = 0; level < 8; ++level) {
        const int nearest = (level * 510 + 7) / 14;
        if (component >= nearest - Tolerance && component <= NextColour::componentOf(level) + Tolerance)
            return level;
    }
    return -1;
}

/// The word of a colour of the machine, without priority; none for any other colour.
[[nodiscard]] std::optional<quint16> wordOf(QRgb colour);

/// Whether all colours of a picture, but those of clear pixels, are the machine's.
[[nodiscard]] bool areIn(const QImage &picture);

/// Whether quantising gives each colour of a picture, but those of clear pixels, the levels that it names.
[[nodiscard]] bool surviveQuantising(const QImage &picture);

/// The picture with every level as the component that quantises to it, so that whatever the model makes of the picture
/// keeps its levels. Equal levels become equal colours.
[[nodiscard]] QImage kept(QImage picture);

/// The colour that kept() gives one of the machine's, by its number (NineBitColour).
[[nodiscard]] QRgb keptOf(int number);

/// The colour that the machine shows for a colour of a picture that was made by kept().
[[nodiscard]] QRgb shown(QRgb keptColour);

} // namespace MachineColours
