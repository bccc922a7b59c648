#pragma once

#include <QtCore>

/// A number as a file has it, low byte first.
template <typename Number>
[[nodiscard]] QByteArray littleEndian(Number number)
{
    QByteArray bytes(qsizetype(sizeof number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

[[nodiscard]] inline QByteArray le16(int number)
{
    return littleEndian(quint16(number));
}

[[nodiscard]] inline QByteArray le32(qint64 number)
{
    return littleEndian(quint32(number));
}

/// Bytes as a zlib stream.
[[nodiscard]] inline QByteArray zlibStream(const QByteArray &bytes)
{
    return qCompress(bytes).sliced(4); // in front of which Qt writes the size
}
