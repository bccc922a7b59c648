#pragma once

#include <QByteArray>
#include <QImage>

/// Pictures as members of a project file.
namespace PngMember {

/// Whether a PNG can hold the picture; a null one is none.
[[nodiscard]] bool canHold(const QImage &image);

/// The picture as PNG; empty for a null picture and for one that no PNG can hold. An indexed picture keeps its indices
/// whatever its colour table: missing entries become opaque black, so that there are 256.
[[nodiscard]] QByteArray encode(const QImage &image);

} // namespace PngMember
