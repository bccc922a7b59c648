#pragma once

#include "importing/filekind.h"
#include "model/palette.h"
#include "pictures/dithering.h"

/// What fileKinds() puts together, and what these kinds share.
namespace Importing::Kinds {

inline const QString PictureMap = QStringLiteral("picture-map");
inline const QString PictureSprites = QStringLiteral("picture-sprites");
inline const QString PicturePalette = QStringLiteral("picture-palette");
inline const QString DataSet = QStringLiteral("data-set");
inline const QString Colours = QStringLiteral("colours");
inline const QString PictureImage = QStringLiteral("picture-image");
inline const QString AsepriteSprites = QStringLiteral("aseprite-sprites");
inline const QString AsepriteTiles = QStringLiteral("aseprite-tiles");
inline const QString AsepriteImage = QStringLiteral("aseprite-image");
inline const QString Tiled = QStringLiteral("tiled");
inline const QString TiledTiles = QStringLiteral("tiled-tiles");

[[nodiscard]] QList<FileKind> raw();
[[nodiscard]] QList<FileKind> colours();
[[nodiscard]] QList<FileKind> aseprite();
[[nodiscard]] QList<FileKind> tiled();
[[nodiscard]] QList<FileKind> pictures();

/// The option for the way in which colours are shown that a palette does not have.
[[nodiscard]] NextData::Option ditheringOption();
[[nodiscard]] Dithering ditheringOf(const NextData::OptionValues &options);

} // namespace Importing::Kinds
