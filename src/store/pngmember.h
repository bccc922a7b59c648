#pragma once

#include <QByteArray>
#include <QImage>

/// Pictures as members of a project file.
namespace PngMember {

/// The picture as PNG; empty for a null picture. An indexed picture keeps its indices whatever its
/// colour table: missing entries become opaque black, so that there are 256.
[[nodiscard]] QByteArray encode(const QImage &image);

/// The picture, or a null one when the bytes are no PNG or cannot hold the pixels that they announce.
[[nodiscard]] QImage decode(const QByteArray &bytes);

} // namespace PngMember
