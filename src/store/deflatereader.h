#pragma once

#include "store/deflateformat.h"

#include <QByteArrayView>

#include <vector>

/// Takes a deflate stream apart into what it says, block by block. The stream is one that a compressor has just made:
/// it is whole and undamaged.
class DeflateReader
{
public:
    explicit DeflateReader(QByteArrayView stream) : m_stream(stream) { }

    [[nodiscard]] bool atEnd() const { return m_atEnd; }
    [[nodiscard]] DeflateFormat::Block readBlock();

private:
    class Decoder;

    void fill();
    [[nodiscard]] uint32_t take(int count);
    [[nodiscard]] int takeSymbol(const Decoder &decoder);
    [[nodiscard]] std::vector<DeflateToken> readStored();
    [[nodiscard]] std::vector<DeflateToken> readCoded(const Decoder &literals, const Decoder &distances);
    [[nodiscard]] std::vector<int> readLengths(const Decoder &codes, size_t count);
    /// The number that a symbol stands for with the bits that follow it (see DeflateFormat).
    [[nodiscard]] int takeValue(int symbol, int partBits);

    QByteArrayView m_stream;
    qsizetype m_next = 0; ///< the first byte that was not looked at
    uint64_t m_bits = 0; ///< those that were and are not used up, the first one lowest
    int m_count = 0; ///< how many
    bool m_atEnd = false;
};
