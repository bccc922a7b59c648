#pragma once

#include <QString>

/// Why a file could not be written, for the person who wanted it: a sentence that names what is in the way.
[[nodiscard]] QString writeProblem(const QString &filePath);

/// The same for a file in a folder that is named after an asset: some names no file can have, here or on other systems.
[[nodiscard]] QString writeProblem(const QString &folder, const QString &fileName);
