#pragma once

#include "store/zipfile.h"

#include <QByteArray>
#include <QFile>
#include <QMap>
#include <QString>

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

inline QByteArray fileBytes(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeFile(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Fields of a record in the central directory of an archive, as offsets from its signature.
enum DirectoryField { Flags = 8, Method = 10, Checksum = 16, PackedSize = 20, Size = 24, HeaderOffset = 42 };

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

/// Replaces one little-endian field of 32 bits (16 for Flags and Method) of a member's record.
inline void patchDirectory(QByteArray &archive, const QByteArray &memberName, DirectoryField field, quint32 value)
{
    const qsizetype record = directoryRecord(archive, memberName);
    Q_ASSERT(record >= 0);
    const int width = field == Flags || field == Method ? 2 : 4;
    for (int byte = 0; byte < width; ++byte)
        archive[record + field + byte] = char(value >> 8 * byte);
}

/// Gives a member's record a zip64 field that claims this unpacked size.
inline void claimSize(QByteArray &archive, const QByteArray &memberName, quint64 size)
{
    QByteArray field("\1\0\x8\0", 4); // zip64, eight bytes follow
    for (int byte = 0; byte < 8; ++byte)
        field.append(char(size >> 8 * byte));
    patchDirectory(archive, memberName, Size, 0xFFFFFFFF); // the zip64 field counts
    const qsizetype record = directoryRecord(archive, memberName);
    constexpr int ExtraLength = 30;
    constexpr int NameOffset = 46;
    archive[record + ExtraLength] = char(field.size());
    archive.insert(record + NameOffset + memberName.size(), field);
    constexpr int DirectorySize = 12; // in the record that ends the archive
    const qsizetype end = archive.lastIndexOf("PK\5\6") + DirectorySize;
    quint32 length = 0;
    for (int byte = 3; byte >= 0; --byte)
        length = length << 8 | uchar(archive.at(end + byte));
    length += quint32(field.size());
    for (int byte = 0; byte < 4; ++byte)
        archive[end + byte] = char(length >> 8 * byte);
}

} // namespace ArchiveTools
