#pragma once

#include <QRgb>

/// The Next's 9-bit colour: three levels of 0–7, a priority flag, and the 16-bit word that holds them.
///
/// A word is the two bytes that the hardware takes, high byte RRRGGGBB, low byte P000000B: the blue
/// level's low bit stands apart at bit 0, and bit 7 is the Layer 2 priority.
namespace NextColour {

inline constexpr quint16 PriorityBit = 0x80;

/// How many values a snapped component can have: 0, 16, 32, …, 240 and 255.
inline constexpr int SnapSteps = 17;

/// The number (0–16) of the snapped value nearest to an 8-bit component; a tie goes to the lower one.
constexpr int snapStep(int component)
{
    const int below = component / 16;
    const int low = below * 16;
    const int high = qMin(low + 16, 255);
    // 255 is a step of its own, one past 240
    const int above = below + 1;
    return component - low <= high - component ? below : above;
}

/// The 8-bit component of a snap step (0–16).
constexpr int snappedComponent(int step)
{
    return qMin(step * 16, 255);
}

/// How far apart two colours are; their alpha does not count.
constexpr int squaredDistance(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

/// The level (0–7) of an 8-bit component: levels change halfway between two snap steps.
constexpr int levelOf(int component)
{
    return snappedComponent(snapStep(component)) >> 5;
}

/// The 8-bit component of a level (0–7): a seventh of 255 a level, rounded up.
constexpr int componentOf(int level)
{
    return (level * 255 + 6) / 7;
}

constexpr int red(quint16 word)
{
    return word >> 13;
}
constexpr int green(quint16 word)
{
    return word >> 10 & 7;
}
constexpr int blue(quint16 word)
{
    return (word >> 7 & 6) | (word & 1);
}
constexpr bool priority(quint16 word)
{
    return word & PriorityBit;
}

/// The word of three levels (0–7 each) and a priority flag.
constexpr quint16 compose(int redLevel, int greenLevel, int blueLevel, bool priority)
{
    const int high = redLevel << 5 | greenLevel << 2 | blueLevel >> 1;
    return quint16(high << 8 | (priority ? PriorityBit : 0) | (blueLevel & 1));
}

} // namespace NextColour
