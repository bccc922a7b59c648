#pragma once

#include <QString>

/// Text files that lie beside a project file, under its name, and hold what the project file does not.
namespace SideFile {

/// "NAME.quenmora-KIND.json" beside "NAME.quenmora".
[[nodiscard]] QString pathFor(const QString &projectFile, const QString &kind);

/// Keeps what cannot be read under another name, which no other file has; the reason why not, or empty.
[[nodiscard]] QString keepAside(const QString &path);

} // namespace SideFile
