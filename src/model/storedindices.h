#pragma once

#include <QImage>
#include <QList>

/// Pictures whose pixels are stored as indices of a colour table, or as what stands for such: bits, and levels of grey.
namespace StoredIndices {

/// Whether a picture is one of these.
[[nodiscard]] bool areIn(const QImage &picture);

/// Such a picture in the 8-bit indexed format; null for any other one.
[[nodiscard]] QImage of(QImage picture);

/// What each of the 256 indices becomes when an indexed picture is converted to a 32-bit format.
[[nodiscard]] QList<QRgb> shownColours(const QImage &indexed, QImage::Format format);

} // namespace StoredIndices
