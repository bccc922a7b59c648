#pragma once

#include "model/filename.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

/// Files that are written whole: the raw ones of the Next, which are small and built in memory first, and what may
/// be opened for that.
namespace RawFile {

/// Whether a file may be written, or made: it is a regular one, or a link to one, and not kept from being written,
/// which would not stop an administrator. A pipe would wait for its reader.
[[nodiscard]] inline bool isWritable(const QString &fileName)
{
    const QFileInfo file(fileName);
    const bool isKept = !(file.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther));
    return !file.exists() || (file.isFile() && file.isWritable() && !isKept);
}

/// Opens a regular file, or a link to one, for reading; false at once for a pipe, which would wait for its writer.
[[nodiscard]] inline bool openForReading(QFile &file)
{
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
}

/// Replaces a file by these bytes. False unless isWritable(), and every byte was written.
[[nodiscard]] inline bool write(const QString &fileName, const QByteArray &bytes, QIODevice::OpenMode mode = {})
{
    QFile file(fileName);
    return !fileName.isEmpty() && isWritable(fileName) && file.open(QIODevice::WriteOnly | mode)
        && file.write(bytes) == bytes.size() && file.flush();
}

/// The path of a file in a folder. A name that no file can have everywhere gives an empty path, which cannot be opened:
/// one with a path in it, which a foreign project may hold, would lead out of the folder, and one that Windows takes
/// for a device would not be a file there.
[[nodiscard]] inline QString pathIn(const QString &folder, const QString &name)
{
    return FileName::problemOf(name).isEmpty() ? QDir(folder).filePath(name) : QString();
}

} // namespace RawFile
