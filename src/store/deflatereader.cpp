#include "store/deflatereader.h"

#include <QtEndian>

#include <algorithm>

using namespace DeflateFormat;

/// Finds symbols by the bits that come next: every number of as many bits as the longest code has leads to the symbol
/// whose code it starts with.
class DeflateReader::Decoder
{
public:
    struct Entry
    {
        uint16_t symbol = 0;
        uint16_t length = 0;
    };

    explicit Decoder(const std::vector<int> &lengths) : m_longest(*std::max_element(lengths.cbegin(), lengths.cend()))
    {
        const std::vector<uint32_t> codes = codesOf(lengths);
        m_entries.resize(size_t(1) << m_longest);
        for (size_t symbol = 0; symbol < lengths.size(); ++symbol) {
            if (lengths[symbol] == 0)
                continue;
            for (size_t bits = codes[symbol]; bits < m_entries.size(); bits += size_t(1) << lengths[symbol])
                m_entries[bits] = {uint16_t(symbol), uint16_t(lengths[symbol])};
        }
    }
    [[nodiscard]] Entry entry(uint64_t bits) const { return m_entries[bits & (m_entries.size() - 1)]; }

private:
    int m_longest;
    std::vector<Entry> m_entries;
};

void DeflateReader::fill()
{
    if (m_stream.size() - m_next >= qsizetype(sizeof m_bits)) {
        m_bits |= qFromLittleEndian<quint64>(m_stream.data() + m_next) << m_count;
        const int taken = (63 - m_count) / 8;
        m_next += taken;
        m_count += 8 * taken;
        return;
    }
    for (; m_count <= 56 && m_next < m_stream.size(); m_count += 8)
        m_bits |= uint64_t(uchar(m_stream[m_next++])) << m_count;
}

uint32_t DeflateReader::take(int count)
{
    if (m_count < count)
        fill();
    const auto bits = uint32_t(m_bits & ((uint64_t(1) << count) - 1));
    m_bits >>= count;
    m_count -= count;
    return bits;
}

int DeflateReader::takeSymbol(const Decoder &decoder)
{
    if (m_count < MaxCode)
        fill();
    const Decoder::Entry entry = decoder.entry(m_bits);
    m_bits >>= entry.length;
    m_count -= entry.length;
    return entry.symbol;
}

Block DeflateReader::readBlock()
{
    m_atEnd = take(1) != NotTheLast;
    const uint32_t type = take(2);
    if (type == Stored)
        return {Stored, readStored()};
    if (type == FixedCodes)
        return {FixedCodes, readCoded(Decoder(fixedLiteralLengths()), Decoder(fixedDistanceLengths()))};
    const size_t literalCount = LeastLiteralCodes + take(5);
    const size_t distanceCount = 1 + take(5);
    const size_t lengthsCount = LeastLengthsCodes + take(4);
    std::vector<int> lengths(LengthsCodes);
    for (size_t i = 0; i < lengthsCount; ++i)
        lengths[size_t(LengthsOrder[i])] = int(take(3));
    const std::vector<int> all = readLengths(Decoder(lengths), literalCount + distanceCount);
    const auto distances = all.cbegin() + qptrdiff(literalCount);
    return {OwnCodes, readCoded(Decoder({all.cbegin(), distances}), Decoder({distances, all.cend()}))};
}

std::vector<int> DeflateReader::readLengths(const Decoder &codes, size_t count)
{
    std::vector<int> lengths;
    while (lengths.size() < count) {
        const int symbol = takeSymbol(codes);
        if (symbol == RepeatLast)
            lengths.insert(lengths.end(), 3 + take(2), int(lengths.back()));
        else if (symbol == FewZeros)
            lengths.insert(lengths.end(), 3 + take(3), 0);
        else if (symbol == ManyZeros)
            lengths.insert(lengths.end(), 11 + take(7), 0);
        else
            lengths.push_back(symbol);
    }
    return lengths;
}

std::vector<DeflateToken> DeflateReader::readStored()
{
    static_cast<void>(take(m_count % 8)); // it starts at a byte
    const uint32_t size = take(16);
    static_cast<void>(take(16)); // the size inverted
    std::vector<DeflateToken> tokens;
    tokens.reserve(size);
    for (uint32_t i = 0; i < size; ++i)
        tokens.push_back({0, uint16_t(take(8))});
    return tokens;
}

std::vector<DeflateToken> DeflateReader::readCoded(const Decoder &literals, const Decoder &distances)
{
    std::vector<DeflateToken> tokens;
    for (int symbol = takeSymbol(literals); symbol != EndOfBlock; symbol = takeSymbol(literals)) {
        if (symbol < EndOfBlock) {
            tokens.push_back({0, uint16_t(symbol)});
            continue;
        }
        const int length = symbol == LiteralCodes - 1 ? DeflateToken::MaxMatch
                                                      : DeflateToken::MinMatch + takeValue(symbol - FirstLengthCode, 2);
        const int distance = 1 + takeValue(takeSymbol(distances), 1);
        tokens.push_back({uint16_t(distance), uint16_t(length)});
    }
    return tokens;
}

int DeflateReader::takeValue(int symbol, int partBits)
{
    const int parts = 1 << partBits;
    if (symbol < 2 * parts)
        return symbol;
    const int extraBits = (symbol >> partBits) - 1;
    return ((parts + (symbol & (parts - 1))) << extraBits) + int(take(extraBits));
}
