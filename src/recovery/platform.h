#pragma once

#include <QFile>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#endif

/// What this layer asks of the system beyond Qt, besides FileLock.
namespace Platform {

/// Lets the system begin to write a file to the disk now instead of in half a minute, without waiting for it.
inline void startWriting([[maybe_unused]] const QFile &file)
{
#ifdef Q_OS_LINUX
    static_cast<void>(sync_file_range(file.handle(), 0, 0, SYNC_FILE_RANGE_WRITE));
#endif
}

} // namespace Platform
