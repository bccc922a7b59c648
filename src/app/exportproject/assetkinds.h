#pragma once

#include "nextdata/source.h"

#include <QIcon>
#include <QString>

/// How the kinds of asset look in what is exported.
namespace AssetKinds {

[[nodiscard]] QIcon iconOf(NextData::AssetKind kind);
/// Such as "Tile Set".
[[nodiscard]] QString nameOf(NextData::AssetKind kind);
/// Such as "Tile Sets".
[[nodiscard]] QString pluralOf(NextData::AssetKind kind);

} // namespace AssetKinds
