#pragma once

#include <QtCore>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#define NOGDI // whose functions have names of our classes
#include <windows.h>

#include <psapi.h>
#else
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#ifdef __GLIBC__
#include <malloc.h>
#endif

/// What tests ask of the system beyond Qt. Where it does not have something, they skip what needs that.
namespace Platform {

/// The mode of a file and whose it is.
struct FileStatus
{
    uint mode = 0;
    uint owner = 0;
    uint group = 0;
    bool operator==(const FileStatus &) const = default;
};

#ifdef Q_OS_WIN

constexpr bool HasPipes = false; ///< that have a place among files
constexpr bool HasLinks = false; ///< that are opened as what they lead to
constexpr bool HasFileModes = false;
constexpr bool RemovesOpenFiles = false;
constexpr bool HasLanguageVariable = false; ///< LANGUAGE names that of texts
constexpr bool HasLupdate = false; ///< which makes the catalogues of texts
constexpr bool HasFullDisks = false; ///< that can be had for a test

inline bool makePipe(const QString &)
{
    return false;
}

inline bool setFileMode(const QString &, uint)
{
    return false;
}

inline bool giveFileTo(const QString &, uint, uint)
{
    return false;
}

inline FileStatus fileStatus(const QString &)
{
    return {};
}

class FileSizeLimit
{
public:
    explicit FileSizeLimit(qint64) { }
    ~FileSizeLimit() { }
};

/// The most memory that this program has held at once, in bytes.
inline qint64 peakMemory()
{
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return qint64(counters.PeakWorkingSetSize);
}

#else

constexpr bool HasPipes = true; ///< that have a place among files
constexpr bool HasLinks = true; ///< that are opened as what they lead to
constexpr bool HasFileModes = true;
constexpr bool RemovesOpenFiles = true;
constexpr bool HasLanguageVariable = true; ///< LANGUAGE names that of texts
constexpr bool HasLupdate = true; ///< which makes the catalogues of texts
constexpr bool HasFullDisks = true; ///< that can be had for a test

/// Makes a pipe; opening it would wait for somebody at its other end.
inline bool makePipe(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

inline bool setFileMode(const QString &path, uint mode)
{
    return chmod(QFile::encodeName(path).constData(), mode_t(mode)) == 0;
}

/// Makes a file another user's and group's, which only an administrator can.
inline bool giveFileTo(const QString &path, uint owner, uint group)
{
    return chown(QFile::encodeName(path).constData(), owner, group) == 0;
}

inline FileStatus fileStatus(const QString &path)
{
    struct stat found = {};
    stat(QFile::encodeName(path).constData(), &found);
    return {found.st_mode & 07777, found.st_uid, found.st_gid};
}

/// While it lives no file of this process grows beyond a number of bytes: a full disk for a test.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(qint64 bytes)
    {
        m_signalHandler = std::signal(SIGXFSZ, SIG_IGN); // writing past the limit fails instead of killing
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{rlim_t(bytes), m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signalHandler);
    }

private:
    rlimit m_before{};
    void (*m_signalHandler)(int) = SIG_DFL;
};

/// The most memory that this program has held at once, in bytes.
inline qint64 peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

#endif

/// Gives memory that is free, and still counted as this program's, back to the system where that can be asked for.
inline void returnFreeMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

/// Whether what a program has taken is counted. The address sanitizer keeps freed memory.
constexpr bool CountsMemory =
#ifdef __SANITIZE_ADDRESS__
    false;
#else
    true;
#endif

} // namespace Platform
