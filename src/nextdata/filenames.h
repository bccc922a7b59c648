#pragma once

#include <QString>

/// Names of files that every system and version control takes: nothing that leads out of a folder, and none of the
/// names and characters that Windows keeps for itself.
namespace NextData::FileNames {

/// The name of an asset as the name of a file without suffix; the fallback where nothing of it can be used.
[[nodiscard]] QString fromAssetName(const QString &name, const QString &fallback);

/// Why a path, with "/" between its folders, cannot be the one of an output below a folder; empty when it can.
[[nodiscard]] QString problemOf(const QString &relativePath);

/// The name with a part before its suffix: ("level.map", "_1") gives "level_1.map".
[[nodiscard]] QString withPart(const QString &fileName, const QString &part);

/// The name with another suffix: ("level.c", "h") gives "level.h".
[[nodiscard]] QString withSuffix(const QString &fileName, const QString &suffix);

} // namespace NextData::FileNames
