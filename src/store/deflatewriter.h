#pragma once

#include "store/deflateformat.h"

#include <QByteArray>

#include <vector>

/// Writes a part of a deflate stream: blocks of which none is the last.
class DeflateWriter
{
public:
    /// Writes a block of the same type, with the best codes if it is one that has its own.
    void writeBlock(const DeflateFormat::Block &block);
    /// What was written, with an empty stored block behind it, which ends at a byte.
    [[nodiscard]] QByteArray finish();

private:
    void write(uint32_t bits, int count);
    template <class Codes>
    void write(const Codes &codes, const DeflateFormat::Symbol &symbol);
    void align();
    void writeStored(const std::vector<DeflateToken> &tokens);
    void writeWithOwnCodes(const std::vector<DeflateToken> &tokens);
    template <class Codes>
    void writeLengths(const Codes &literals, const Codes &distances);
    template <class Codes>
    void writeTokens(const std::vector<DeflateToken> &tokens, const Codes &literals, const Codes &distances);

    QByteArray m_bytes;
    uint64_t m_pending = 0; ///< bits that fill no byte yet, the first one lowest
    int m_count = 0; ///< how many
};
