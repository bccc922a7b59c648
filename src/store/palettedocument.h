#pragma once

#include <QJsonObject>

class Palette;
struct DocumentReader;

/// Palettes live in the document alone.
[[nodiscard]] QJsonObject writePalette(const Palette &palette);
void readPalette(DocumentReader &reader, const QJsonObject &object);
