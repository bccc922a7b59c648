#pragma once

#include "store/contentdigest.h"

#include <QByteArray>
#include <QList>

/// A part of a member's content, deflated by itself.
///
/// Its deflated bytes do not end a stream: those of any blocks one behind the other, and EndOfStream behind the last of
/// them, are one deflate stream that gives their contents one behind the other.
struct PackedBlock
{
    ContentKey key; ///< of the content, with its length
    quint32 checksum = 0; ///< CRC-32 of the content
    QByteArray deflated;

    /// What ends a stream of blocks: a last deflate block without content.
    static constexpr QByteArrayView EndOfStream{"\x03\x00", 2};

    [[nodiscard]] static PackedBlock pack(QByteArrayView content, const ContentKey &key);
    [[nodiscard]] static PackedBlock pack(QByteArrayView content);
    /// The content again.
    [[nodiscard]] QByteArray unpacked() const;
};
