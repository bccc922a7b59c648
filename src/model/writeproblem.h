#pragma once

#include <QString>

/// Why a file could not be written, for the person who wanted it: a sentence that names what is in the way.
[[nodiscard]] QString writeProblem(const QString &filePath);

/// The same for a file of that name in a folder, which a name with a path in it would leave.
[[nodiscard]] QString writeProblem(const QString &folder, const QString &fileName);
