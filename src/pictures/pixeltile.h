#pragma once

#include <QRgb>

#include <array>

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

} // namespace TileOrientation
