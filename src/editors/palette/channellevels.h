#pragma once

#include <QColor>

#include <array>
#include <cmath>

/// The three 3-bit levels (0–7) of a colour, as the sliders of the colour editor show them.
///
/// A level taken back to 8 bits is 0, 37, 73, 110, 146, 183, 219 or 255, and each of these is its own
/// level again.
using ChannelLevels = std::array<int, 3>;

namespace Channel {

inline constexpr int Count = 3; ///< red, green, blue
inline constexpr int MaximumLevel = 7;

constexpr int levelOf(int component)
{
    return component * MaximumLevel / 255;
}

inline int componentOf(int level)
{
    return int(std::ceil(level * 36.4285714));
}

inline ChannelLevels levelsOf(const QColor &colour)
{
    return {levelOf(colour.red()), levelOf(colour.green()), levelOf(colour.blue())};
}

inline QColor colourOf(const ChannelLevels &levels)
{
    return {componentOf(levels[0]), componentOf(levels[1]), componentOf(levels[2])};
}

/// The colour to be given to a palette for it to keep the levels that the sliders show: the component of
/// level 6, 219, is in a palette's eyes one of level 7, which begins at 217.
inline QColor keepingLevels(const QColor &colour)
{
    constexpr int Level6InPalette = 216;
    const auto kept = [](int component) { return component == componentOf(6) ? Level6InPalette : component; };
    return {kept(colour.red()), kept(colour.green()), kept(colour.blue())};
}

/// The colour with one of its components (0 red, 1 green, 2 blue) replaced.
inline QColor withComponent(QColor colour, int channel, int component)
{
    switch (channel) {
    case 0:
        colour.setRed(component);
        break;
    case 1:
        colour.setGreen(component);
        break;
    default:
        colour.setBlue(component);
        break;
    }
    return colour;
}

} // namespace Channel
