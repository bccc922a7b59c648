#pragma once

#include <QByteArray>
#include <QImage>

/// Pictures of palette indices as bytes.
namespace NextData {

/// A byte a pixel, row by row.
[[nodiscard]] QByteArray pixelRows(const QImage &indexed);

/// Bytes that stand row by row, column by column.
[[nodiscard]] QByteArray columnsOf(const QByteArray &rows, int width);

/// A byte for two neighbouring pixels, the low nibble of the first in its high nibble.
[[nodiscard]] QByteArray packedPairs(const QByteArray &pixels);

/// The two pixels of each such byte, 0–15.
[[nodiscard]] QByteArray unpackedPairs(const QByteArray &pairs);

} // namespace NextData
