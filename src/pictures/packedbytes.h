#pragma once

#include <QByteArrayView>

/// Bytes that are packed in one of the usual ways. How many they become is known before they are unpacked.
namespace PackedBytes {

enum class Form { Plain, Zlib, Gzip, Zstd };

/// Whether so many bytes can come of so many packed ones: else memory need not be taken for them.
[[nodiscard]] bool canHold(Form form, qint64 packedSize, qint64 size);

/// Unpacks what must become exactly so many bytes; false where it becomes anything else.
[[nodiscard]] bool unpack(Form form, QByteArrayView packed, uchar *bytes, qint64 size);

} // namespace PackedBytes
