#include "recovery/filelock.h"

#ifdef Q_OS_WIN
#include <QDir>

#include <windows.h>
#else
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#ifdef Q_OS_WIN

// A file that is open here cannot be removed, so the name always means the file that is held.

std::optional<FileLock> FileLock::take(const QString &path)
{
    const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    FileLock lock{Handle(file)};
    OVERLAPPED start{};
    if (!LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &start))
        return {};
    return lock;
}

void FileLock::release()
{
    if (m_handle != None)
        CloseHandle(HANDLE(std::exchange(m_handle, None)));
}

bool FileLock::holds(const QString &) const
{
    return m_handle != None;
}

#else

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

#endif
