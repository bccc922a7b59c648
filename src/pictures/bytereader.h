#pragma once

#include <QByteArrayView>
#include <QString>
#include <QtEndian>

#include <algorithm>

/// Takes numbers, low byte first, from bytes that may end too early: then it gives zeros, and says so.
class ByteReader
{
public:
    explicit ByteReader(QByteArrayView bytes) : m_left(bytes) { }

    /// Whether more was asked for than there was.
    [[nodiscard]] bool isShort() const { return m_isShort; }
    [[nodiscard]] qsizetype left() const { return m_left.size(); }

    /// The next bytes, or as many of them as there are.
    QByteArrayView take(qint64 count)
    {
        m_isShort = m_isShort || count > m_left.size();
        const QByteArrayView taken = m_left.first(std::min(count, qint64(m_left.size())));
        m_left = m_left.sliced(taken.size());
        return taken;
    }
    QByteArrayView takeRest() { return take(m_left.size()); }
    void skip(qint64 count) { take(count); }

    template <typename Number>
    Number take()
    {
        const QByteArrayView bytes = take(qint64(sizeof(Number)));
        return bytes.size() == qsizetype(sizeof(Number)) ? qFromLittleEndian<Number>(bytes.data()) : Number(0);
    }

    /// Its length in two bytes, then UTF-8.
    QString takeString() { return QString::fromUtf8(take(take<quint16>())); }

private:
    QByteArrayView m_left;
    bool m_isShort = false;
};
