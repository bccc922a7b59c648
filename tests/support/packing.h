#pragma once

#include "support/littleendian.h"

/// Bytes as streams of other packers, put together from what the formats say.
namespace Packing {

/// RFC 1952: a head, what is between head and sum of a zlib stream, a sum and the size.
[[nodiscard]] inline QByteArray gzip(const QByteArray &bytes)
{
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? sum >> 1 ^ 0xEDB88320 : sum >> 1;
    }
    const QByteArray stream = zlibStream(bytes);
    return QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10) + stream.sliced(2, stream.size() - 6) + le32(~sum)
        + le32(bytes.size());
}

/// RFC 8878: a frame that says its size, with a single block of bytes as they are.
[[nodiscard]] inline QByteArray zstd(const QByteArray &bytes)
{
    const QByteArray block = le32(1 | bytes.size() << 3).first(3);
    return QByteArray("\x28\xb5\x2f\xfd\xa0", 5) + le32(bytes.size()) + block + bytes;
}

} // namespace Packing
