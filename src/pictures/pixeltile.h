#pragma once

#include <QRgb>

#include <algorithm>
#include <array>
#include <cstddef>

/// The 64 colours of a tile, row by row; clear pixels are 0, all others opaque.
using PixelTile = std::array<QRgb, 64>;

namespace TileOrientation {

inline constexpr int Count = 8;
inline constexpr int RotateBit = 4;
inline constexpr int MirrorBit = 2;
inline constexpr int FlipBit = 1;

/// For each orientation (bit 2 rotates 90° clockwise, then bit 1 mirrors left to right and bit 0 flips top to bottom),
/// where each pixel of the turned tile comes from.
inline constexpr auto Origins = [] {
    std::array<std::array<unsigned char, 64>, Count> origins{};
    for (int orientation = 0; orientation < Count; ++orientation) {
        for (int at = 0; at < 64; ++at) {
            const int x = orientation & MirrorBit ? 7 - at % 8 : at % 8;
            const int y = orientation & FlipBit ? 7 - at / 8 : at / 8;
            origins[size_t(orientation)][size_t(at)] =
                (unsigned char)(orientation & RotateBit ? (7 - x) * 8 + y : y * 8 + x);
        }
    }
    return origins;
}();

/// The pixels of a tile, of whatever kind, in an orientation.
template <typename Pixels>
[[nodiscard]] Pixels turned(const Pixels &tile, int orientation)
{
    const auto &origins = Origins[size_t(orientation)];
    Pixels result;
    for (size_t i = 0; i < origins.size(); ++i)
        result[i] = tile[origins[i]];
    return result;
}

/// The same for all eight orientations of a tile, and no other.
template <typename Pixels>
[[nodiscard]] Pixels inFirstOrientation(const Pixels &tile)
{
    Pixels first = tile;
    for (int orientation = 1; orientation < Count; ++orientation)
        first = std::min(first, turned(tile, orientation));
    return first;
}

/// The first orientation in which a tile shows these pixels; none shows others.
template <typename Pixels>
[[nodiscard]] int orientationOf(const Pixels &tile, const Pixels &shown)
{
    int orientation = 0;
    while (orientation < Count - 1 && turned(tile, orientation) != shown)
        ++orientation;
    return orientation;
}

} // namespace TileOrientation
