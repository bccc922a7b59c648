#pragma once

#include <QtCore>

#include <cstdio>
#include <unistd.h>

/// Keeps what this process writes on its standard error output, past every message handler, while it lives; at the end
/// it is passed on.
class StderrWatch
{
public:
    StderrWatch()
    {
        std::fflush(stderr);
        m_watching = m_file.open() && dup2(m_file.handle(), STDERR_FILENO) >= 0;
    }
    StderrWatch(const StderrWatch &) = delete;
    StderrWatch &operator=(const StderrWatch &) = delete;
    ~StderrWatch()
    {
        const QByteArray text = written();
        dup2(m_before, STDERR_FILENO);
        close(m_before);
        std::fwrite(text.constData(), 1, size_t(text.size()), stderr);
    }

    [[nodiscard]] QByteArray written()
    {
        std::fflush(stderr);
        m_file.seek(0);
        return m_watching ? m_file.readAll() : "not watching";
    }

private:
    const int m_before = dup(STDERR_FILENO);
    QTemporaryFile m_file;
    bool m_watching = false;
};
