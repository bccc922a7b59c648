#pragma once

#include <QJsonObject>

class MapObjects;
struct DocumentReader;

/// Block sets live in the document alone.
[[nodiscard]] QJsonObject writeBlockSet(const MapObjects &blocks);
void readBlockSet(DocumentReader &reader, const QJsonObject &object);
