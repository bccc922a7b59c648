#pragma once

#include "importing/filekind.h"
#include "model/palette.h"

/// What fileKinds() puts together, and what these kinds share.
namespace Importing::Kinds {

inline const QString PictureMap = QStringLiteral("picture-map");
inline const QString PictureSprites = QStringLiteral("picture-sprites");
inline const QString PicturePalette = QStringLiteral("picture-palette");
inline const QString DataSet = QStringLiteral("data-set");
inline const QString Colours = QStringLiteral("colours");
inline const QString Aseprite = QStringLiteral("aseprite");
inline const QString Tiled = QStringLiteral("tiled");

[[nodiscard]] QList<FileKind> raw();
[[nodiscard]] QList<FileKind> foreign();

} // namespace Importing::Kinds
