#include "recovery/filelock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

std::optional<FileLock> FileLock::take(const QString &path)
{
    // a program that is started from here must not keep it
    FileLock lock{Handle(open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600))};
    if (lock.m_handle == None || flock(int(lock.m_handle), LOCK_EX | LOCK_NB) != 0 || !lock.holds(path))
        return {};
    return lock;
}

void FileLock::release()
{
    if (m_handle != None)
        close(int(std::exchange(m_handle, None)));
}

bool FileLock::holds(const QString &path) const
{
    struct stat held
    { };
    struct stat named
    { };
    return m_handle != None && fstat(int(m_handle), &held) == 0
        && stat(QFile::encodeName(path).constData(), &named) == 0 && held.st_dev == named.st_dev
        && held.st_ino == named.st_ino;
}
