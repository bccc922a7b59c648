#pragma once

#include "pictures/dithering.h"

#include <QJsonValue>
#include <QString>

#include <optional>

/// How choices for pictures are named in the file beside a project.
namespace ImportChoice {

[[nodiscard]] QString nameOf(Dithering dithering);
/// None for whatever is no name of one.
[[nodiscard]] std::optional<Dithering> ditheringOf(const QJsonValue &name);

} // namespace ImportChoice
