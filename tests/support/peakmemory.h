#pragma once

#include <QByteArray>
#include <QFile>

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

/// The most memory that this process takes from now on, beyond what it takes now, as Linux counts it.
class PeakMemory
{
public:
    PeakMemory()
    {
#ifdef __GLIBC__
        malloc_trim(0); // what is free already counts, too
#endif
        QFile file(QStringLiteral("/proc/self/clear_refs"));
        m_known = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write("5") == 1;
        m_before = bytes("VmRSS:");
    }

    /// Whether the system tells. Under the address sanitizer, which keeps freed memory, it tells nothing of use.
    [[nodiscard]] bool isKnown() const
    {
#ifdef __SANITIZE_ADDRESS__
        return false;
#else
        return m_known && m_before > 0;
#endif
    }
    [[nodiscard]] qint64 grown() const
    {
        return bytes("VmHWM:") - m_before;
    }

private:
    [[nodiscard]] static qint64 bytes(const char *name)
    {
        QFile file(QStringLiteral("/proc/self/status"));
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        const QByteArray status = file.readAll();
        const qsizetype at = status.indexOf(name);
        return at < 0 ? 0 : std::atoll(status.constData() + at + qstrlen(name)) * 1024;
    }

    bool m_known = false;
    qint64 m_before = 0;
};
