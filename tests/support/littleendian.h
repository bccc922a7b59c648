#pragma once

#include <QtCore>

// Numbers as a file has them, low byte first.

[[nodiscard]] inline QByteArray le16(int number)
{
    return QByteArray(1, char(number)) + char(number >> 8);
}

[[nodiscard]] inline QByteArray le32(qint64 number)
{
    return le16(int(number)) + le16(int(number >> 16));
}

/// Bytes as a zlib stream.
[[nodiscard]] inline QByteArray zlibStream(const QByteArray &bytes)
{
    return qCompress(bytes).sliced(4); // in front of which Qt writes the size
}
