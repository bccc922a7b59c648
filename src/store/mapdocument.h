#pragma once

#include "store/projectdocument.h"

#include <QJsonObject>

class Map;
struct DocumentReader;

/// A map has the cells of its tile layer, and with them its size, in the member "tilemap/%1", %1 being its
/// id, in the data-stream form of a tile map. The object layer is not stored; reading leaves it blank, to
/// be stamped from the placements once the block sets are there.
[[nodiscard]] QJsonObject writeMap(const Map &map, ProjectSnapshot &members);
[[nodiscard]] bool readMap(DocumentReader &reader, const QJsonObject &object);
