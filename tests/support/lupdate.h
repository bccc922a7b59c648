#pragma once

#include <QtCore>

namespace Lupdate {

/// Takes all texts of the sources into a catalogue, as the target "catalogues" does. Answers what there was to complain
/// about.
inline QString run(const QString &catalogue)
{
    QProcess lupdate;
    lupdate.start(QStringLiteral(LUPDATE_PROGRAM),
                  {"-silent", SOURCE_FOLDER, "-I", SOURCE_FOLDER, "-locations", "none", "-no-ui-lines", "-no-obsolete",
                   "-source-language", "en_GB", "-ts", catalogue});
    if (!lupdate.waitForFinished() || lupdate.exitCode() != 0)
        return "lupdate failed: " + lupdate.errorString();
    return QString::fromUtf8(lupdate.readAllStandardError()).trimmed();
}

} // namespace Lupdate
