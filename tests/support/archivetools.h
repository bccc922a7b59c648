#pragma once

#include "store/zipfile.h"
#include "support/modeltools.h"

#include <QtCore>

/// Makes archives, and damages them, for tests.
namespace ArchiveTools {

using Members = QMap<QString, QByteArray>;

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

/// Fields of a record in the central directory of an archive, as offsets from its signature.
enum DirectoryField { Method = 10, Checksum = 16, PackedSize = 20, Size = 24, HeaderOffset = 42 };

/// Where a member's record starts in the central directory, or −1.
inline qsizetype directoryRecord(const QByteArray &archive, const QByteArray &memberName)
{
    constexpr int NameOffset = 46;
    for (qsizetype at = archive.indexOf("PK\1\2"); at >= 0; at = archive.indexOf("PK\1\2", at + 4)) {
        if (archive.mid(at + NameOffset, memberName.size()) == memberName)
            return at;
    }
    return -1;
}

/// Replaces one little-endian field of 32 bits (16 for Method) of a member's record.
inline void patchDirectory(QByteArray &archive, const QByteArray &memberName, DirectoryField field, quint32 value)
{
    const qsizetype record = directoryRecord(archive, memberName);
    Q_ASSERT(record >= 0);
    const int width = field == Method ? 2 : 4;
    for (int byte = 0; byte < width; ++byte)
        archive[record + field + byte] = char(value >> 8 * byte);
}

} // namespace ArchiveTools
