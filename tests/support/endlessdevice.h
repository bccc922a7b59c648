#pragma once

#include <QtCore>

/// What begins with these bytes and goes on with zeros for ever; it counts how many were taken.
class EndlessDevice : public QIODevice
{
public:
    EndlessDevice(const QByteArray &begin, qint64 &taken) : m_begin(begin), m_taken(taken)
    {
        open(ReadOnly | Unbuffered);
    }
    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] qint64 bytesAvailable() const override { return qint64(1) << 30; }

protected:
    qint64 readData(char *to, qint64 size) override
    {
        for (qint64 i = 0; i < size; ++i, ++m_taken)
            to[i] = m_taken < m_begin.size() ? m_begin.at(m_taken) : '\0';
        return size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray m_begin;
    qint64 &m_taken;
};
