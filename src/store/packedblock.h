#pragma once

#include "store/contentdigest.h"

#include <QByteArray>
#include <QByteArrayView>

/// A part of a member's content, deflated by itself.
///
/// Its deflated bytes do not end a stream: those of the blocks of a content one behind the other, and EndOfStream
/// behind the last of them, are the deflate stream of the whole. A block may copy from the bytes that go before it, its
/// history, which is what makes it as small as if all had been deflated together.
struct PackedBlock
{
    ContentKey key; ///< of the history and the content, with the length of the content alone
    quint32 checksum = 0; ///< CRC-32 of the content
    QByteArray deflated;

    /// What ends a stream of blocks: a last deflate block without content.
    static constexpr QByteArrayView EndOfStream{"\x03\x00", 2};

    /// The key that a block will have.
    [[nodiscard]] static ContentKey keyOf(QByteArrayView historyAndContent, qsizetype historySize);
    [[nodiscard]] static PackedBlock pack(QByteArrayView historyAndContent, qsizetype historySize);

    /// The content again, of a block without history.
    [[nodiscard]] QByteArray unpacked() const;
};
