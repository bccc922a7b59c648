#pragma once

#include "model/nextcolour.h"

#include <QRgb>

/// The machine's colours as numbers from 0 to 511, three bits a level (RRRGGGBBB), and how far they are from each
/// other.
namespace NineBitColour {

inline constexpr int Count = 512;

constexpr int red(int number)
{
    return number >> 6;
}
constexpr int green(int number)
{
    return number >> 3 & 7;
}
constexpr int blue(int number)
{
    return number & 7;
}
constexpr int compose(int redLevel, int greenLevel, int blueLevel)
{
    return redLevel << 6 | greenLevel << 3 | blueLevel;
}

/// The level that is shown nearest to an 8-bit component.
constexpr int levelOf(int component)
{
    return (component * 14 + 255) / 510;
}

/// The colour of the machine that looks most like a colour.
constexpr int nearest(QRgb colour)
{
    return compose(levelOf(qRed(colour)), levelOf(qGreen(colour)), levelOf(qBlue(colour)));
}

constexpr quint16 wordOf(int number)
{
    return NextColour::compose(red(number), green(number), blue(number), false);
}

constexpr quint16 numberOf(quint16 word)
{
    return quint16(compose(NextColour::red(word), NextColour::green(word), NextColour::blue(word)));
}

constexpr QRgb shown(int number)
{
    return qRgb(NextColour::componentOf(red(number)), NextColour::componentOf(green(number)),
                NextColour::componentOf(blue(number)));
}

/// Squared, in levels.
constexpr int distance(int a, int b)
{
    const int byRed = red(a) - red(b);
    const int byGreen = green(a) - green(b);
    const int byBlue = blue(a) - blue(b);
    return byRed * byRed + byGreen * byGreen + byBlue * byBlue;
}

} // namespace NineBitColour
