#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it lives no file of this process grows beyond a number of bytes: a full disk for a test.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_signalHandler = std::signal(SIGXFSZ, SIG_IGN); // writing past the limit fails instead of killing
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
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
