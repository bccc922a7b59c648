#pragma once

#include "store/projectdocument.h"

#include <QJsonObject>

class SpriteBank;
struct DocumentReader;

/// A sprite bank has its pixels, all sprites in one strip, in the member "sprite/%1.png", %1 being its id.
[[nodiscard]] QJsonObject writeSpriteBank(const SpriteBank &bank, ProjectSnapshot &members);
[[nodiscard]] bool readSpriteBank(DocumentReader &reader, const QJsonObject &object);
