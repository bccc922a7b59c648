#pragma once

#include <QCoreApplication>
#include <QString>

/// What comes with the program beside itself: below the folder that it was installed in, wherever that was moved to; in
/// the unpacked zip; or in the source tree, for a program that was built there and not installed. The folder of the
/// program tells which. Empty where something is not there.
namespace InstalledFiles {

[[nodiscard]] QString sampleProject(const QString &programFolder = QCoreApplication::applicationDirPath());

/// The page of the guide of that name, such as "maps", or its first page: as HTML, or as it was written.
[[nodiscard]] QString guidePage(const QString &page,
                                const QString &programFolder = QCoreApplication::applicationDirPath());

} // namespace InstalledFiles
