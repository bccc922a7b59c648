#pragma once

#include "pictures/dithering.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QList>
#include <QString>

#include <optional>

/// How choices for pictures are named in the file beside a project.
namespace ImportChoice {

[[nodiscard]] QString nameOf(Dithering dithering);
/// None for whatever is no name of one.
[[nodiscard]] std::optional<Dithering> ditheringOf(const QJsonValue &name);

/// Numbers of tiles or sprites, in their order: pairs of a first one and how many follow each other.
[[nodiscard]] QJsonArray rangesOf(const QList<int> &numbers);
/// Those of them that are below a count.
[[nodiscard]] QList<int> numbersOf(const QJsonValue &ranges, int count);

} // namespace ImportChoice
