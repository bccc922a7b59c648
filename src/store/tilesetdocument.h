#pragma once

#include "store/projectdocument.h"

#include <QJsonObject>

class TileSet;
struct DocumentReader;

/// A tile set has its pixels, all tiles in one strip, in the member "tileset/%1.png", %1 being its id.
[[nodiscard]] QJsonObject writeTileSet(const TileSet &tileSet, ProjectSnapshot &members);
[[nodiscard]] bool readTileSet(DocumentReader &reader, const QJsonObject &object);
/// Whether a member of that name is the picture of a tile set.
[[nodiscard]] bool isTileSet(const QString &memberName);
