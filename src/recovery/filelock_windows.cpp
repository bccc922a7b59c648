#include "recovery/filelock.h"

#include <QDir>

#include <windows.h>

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
