#pragma once

#include "model/nextcolour.h"

#include <QList>
#include <QRgb>

#include <algorithm>
#include <array>

/// The grid of 17 steps a component to which the colours of ordinary pictures are snapped.
namespace SnapGrid {

inline constexpr size_t Steps = NextColour::SnapSteps;

/// One value for each colour of the grid, by indexOf().
template <typename Value>
using Table = std::array<Value, Steps * Steps * Steps>;

inline constexpr auto StepOf = [] {
    std::array<quint8, 256> steps{};
    for (int component = 0; component < 256; ++component)
        steps[size_t(component)] = quint8(NextColour::snapStep(component));
    return steps;
}();

/// The place of a colour's snapped form in a Table.
inline size_t indexOf(QRgb colour)
{
    return (size_t(StepOf[size_t(qRed(colour))]) * Steps + StepOf[size_t(qGreen(colour))]) * Steps
        + StepOf[size_t(qBlue(colour))];
}

inline QRgb snapped(QRgb colour)
{
    return qRgb(NextColour::snappedComponent(StepOf[size_t(qRed(colour))]),
                NextColour::snappedComponent(StepOf[size_t(qGreen(colour))]),
                NextColour::snappedComponent(StepOf[size_t(qBlue(colour))]));
}

/// The first colour of a list at the least distance.
inline qsizetype nearest(const QList<QRgb> &colours, QRgb colour)
{
    const auto closer = [colour](QRgb a, QRgb b) {
        return NextColour::squaredDistance(a, colour) < NextColour::squaredDistance(b, colour);
    };
    return std::min_element(colours.cbegin(), colours.cend(), closer) - colours.cbegin();
}

/// The index that each of these colours has among the first 256 of them: its own, or that of the nearest.
inline Table<quint8> indicesOf(const QList<QRgb> &colours)
{
    constexpr qsizetype Most = 256;
    const QList<QRgb> kept = colours.first(std::min(colours.size(), Most));
    Table<quint8> indices{};
    for (qsizetype i = 0; i < colours.size(); ++i)
        indices[indexOf(colours[i])] = quint8(i < Most ? i : nearest(kept, colours[i]));
    return indices;
}

} // namespace SnapGrid
