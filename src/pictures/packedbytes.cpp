#include "pictures/packedbytes.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include <zlib.h>
#include <zstd.h>

namespace {

/// What one bit of a deflate stream can become at most: a match of 258 bytes takes two.
constexpr qint64 MostPerByte = 4 * 258;

bool inflateAll(QByteArrayView packed, int windowBits, uchar *bytes, qint64 size)
{
    z_stream stream{};
    if (inflateInit2(&stream, windowBits) != Z_OK)
        return false;
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.data())); // which it only reads
    stream.avail_in = uInt(packed.size());
    stream.next_out = bytes;
    stream.avail_out = uInt(size);
    int state = inflate(&stream, Z_FINISH);
    if (state == Z_BUF_ERROR && stream.avail_out == 0) { // the end may follow where nothing more fits
        uchar beyond = 0;
        stream.next_out = &beyond;
        stream.avail_out = 1;
        state = inflate(&stream, Z_FINISH);
        if (stream.avail_out == 0)
            state = Z_DATA_ERROR;
    }
    const bool isWhole = state == Z_STREAM_END && qint64(stream.total_out) == size;
    inflateEnd(&stream);
    return isWhole;
}

} // namespace

bool PackedBytes::canHold(Form form, qint64 packedSize, qint64 size)
{
    switch (form) {
    case Form::Plain:
        return size == packedSize;
    case Form::Zlib:
    case Form::Gzip:
        return size / MostPerByte <= packedSize;
    case Form::Zstd: // a block of 128 KiB can take four bytes
        return size / (qint64(128) << 10) <= packedSize;
    }
    return false;
}

bool PackedBytes::unpack(Form form, QByteArrayView packed, uchar *bytes, qint64 size)
{
    if (std::max(qint64(packed.size()), size) > std::numeric_limits<uInt>::max() || !canHold(form, packed.size(), size))
        return false;
    if (size == 0) // there may be no memory to write to
        return true;
    switch (form) {
    case Form::Plain:
        std::memcpy(bytes, packed.data(), size_t(size));
        return true;
    case Form::Zlib:
        return inflateAll(packed, MAX_WBITS, bytes, size);
    case Form::Gzip:
        return inflateAll(packed, MAX_WBITS + 16, bytes, size);
    case Form::Zstd:
        return ZSTD_decompress(bytes, size_t(size), packed.data(), size_t(packed.size())) == size_t(size);
    }
    return false;
}
