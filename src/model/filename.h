#pragma once

#include <QString>

/// Names that a file can have on every system, so that what is named after an asset can be taken from one to another.
namespace FileName {

/// Whether no name has the character: what separates folders, what Windows keeps for itself, and what cannot be seen.
[[nodiscard]] bool isForbidden(QChar c);

/// Whether Windows takes the name, whatever its suffix, for a device: CON, NUL, COM1 …
[[nodiscard]] bool isDevice(const QString &name);

/// Why a file cannot have the name everywhere, as half a sentence; empty when it can.
[[nodiscard]] QString problemOf(const QString &name);

} // namespace FileName
