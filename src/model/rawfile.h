#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

/// Writing the raw files of the Next, which are small and built in memory first.
namespace RawFile {

/// Replaces a file by these bytes. False unless it could be opened and every byte was written.
[[nodiscard]] inline bool write(const QString &fileName, const QByteArray &bytes, QIODevice::OpenMode mode = {})
{
    QFile file(fileName);
    return !fileName.isEmpty() && file.open(QIODevice::WriteOnly | mode) && file.write(bytes) == bytes.size()
        && file.flush();
}

/// The path of a file in a folder. A name with a path in it, which a foreign project may hold, would lead out
/// of the folder: it gives an empty path, which cannot be opened.
[[nodiscard]] inline QString pathIn(const QString &folder, const QString &name)
{
    return QFileInfo(name).fileName() == name ? QDir(folder).filePath(name) : QString();
}

} // namespace RawFile
