#pragma once

#include "store/zipfile.h"

#include <QtCore>

namespace ArchiveTools {

using Members = QMap<QString, QByteArray>;

/// Makes an archive of these members; whether that went well.
inline bool writeArchive(const QString &fileName, const Members &members)
{
    ZipFile zip;
    if (!zip.openForWriting(fileName))
        return false;
    for (auto member = members.cbegin(); member != members.cend(); ++member) {
        if (!zip.write(member.key(), member.value()))
            return false;
    }
    return zip.close();
}

} // namespace ArchiveTools
