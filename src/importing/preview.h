#pragma once

#include "importing/importchoices.h"
#include "importing/incomingassets.h"

#include <QImage>
#include <QStringList>

class Project;

namespace Importing {

/// How what comes in will look, or the beginning of it where there is much: a map, or else the sprites, tiles, image or
/// colours.
[[nodiscard]] QImage previewOf(const Project &project, const IncomingAssets &incoming, const ImportChoices &choices);

/// Numbers of what comes in: "Tiles: 128".
[[nodiscard]] QStringList factsOf(const IncomingAssets &incoming);

} // namespace Importing
