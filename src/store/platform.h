#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

#include <minizip/unzip.h>
#include <minizip/zip.h>

#ifdef Q_OS_WIN
#include <minizip/iowin32.h>
#endif

/// What this layer asks of the system beyond Qt, besides FileOwnership: archives whose paths have any letters.
namespace Platform {

#ifdef Q_OS_WIN

/// The path as Windows takes it whole, whatever its length and letters; the local encoding has but a few of them.
inline std::wstring widePath(const QString &fileName)
{
    const QString path = QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath());
    constexpr int Long = 240; // from which on it is to be marked
    const bool isMarked = path.size() < Long || path.startsWith(QStringLiteral("\\\\"));
    return (isMarked ? path : QStringLiteral("\\\\?\\") + path).toStdWString();
}

inline zlib_filefunc64_def wideFunctions()
{
    zlib_filefunc64_def functions{};
    fill_win32_filefunc64W(&functions);
    return functions;
}

#endif

/// Opens an archive for reading; null when that fails.
inline unzFile openArchive(const QString &fileName)
{
#ifdef Q_OS_WIN
    auto functions = wideFunctions();
    return unzOpen2_64(widePath(fileName).c_str(), &functions);
#else
    return unzOpen64(fileName.toLocal8Bit().constData());
#endif
}

/// Makes or empties a file to write an archive to; null when that fails.
inline zipFile createArchive(const QString &fileName)
{
#ifdef Q_OS_WIN
    auto functions = wideFunctions();
    return zipOpen2_64(widePath(fileName).c_str(), APPEND_STATUS_CREATE, nullptr, &functions);
#else
    return zipOpen64(fileName.toLocal8Bit().constData(), APPEND_STATUS_CREATE);
#endif
}

} // namespace Platform
