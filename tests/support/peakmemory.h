#pragma once

#include "support/platform.h"

#include <QtCore>

#include <cstdlib>

/// The most memory that this process takes from now on, beyond what it takes now, as Linux counts it.
class PeakMemory
{
public:
    PeakMemory()
    {
        Platform::returnFreeMemory(); // what is free already counts, too
        QFile file(QStringLiteral("/proc/self/clear_refs"));
        m_known = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write("5") == 1;
        m_before = bytes("VmRSS:");
    }

    /// Whether the system tells. Under the address sanitizer, which keeps freed memory, it tells nothing of use.
    [[nodiscard]] bool isKnown() const { return Platform::CountsMemory && m_known && m_before > 0; }
    [[nodiscard]] qint64 grown() const { return bytes("VmHWM:") - m_before; }

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
