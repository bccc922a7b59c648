#include "store/deflateformat.h"

#include <algorithm>
#include <bit>

namespace {

uint32_t reversed(uint32_t code, int length)
{
    uint32_t result = 0;
    for (int bit = 0; bit < length; ++bit)
        result |= (code >> bit & 1) << (length - 1 - bit);
    return result;
}

/// Codes of lengths and distances grow alike: each power of two is parted into so many codes as there are below it.
DeflateFormat::Symbol symbolOf(uint32_t value, int partBits)
{
    const int bits = std::bit_width(value) - 1;
    const int extra = std::max(0, bits - partBits);
    return {(extra << partBits) + int(value >> extra), extra, value & ((1U << extra) - 1)};
}

} // namespace

DeflateFormat::Symbol DeflateFormat::lengthSymbol(int length)
{
    if (length == DeflateToken::MaxMatch) // which has a code of its own
        return {LiteralCodes - 1, 0, 0};
    Symbol symbol = symbolOf(uint32_t(length - DeflateToken::MinMatch), 2);
    symbol.code += FirstLengthCode;
    return symbol;
}

DeflateFormat::Symbol DeflateFormat::distanceSymbol(int distance)
{
    return symbolOf(uint32_t(distance - 1), 1);
}

std::vector<int> DeflateFormat::fixedLiteralLengths()
{
    std::vector<int> lengths(LiteralCodes + 2, 8); // two of which do not occur
    std::fill(lengths.begin() + 144, lengths.begin() + 256, 9);
    std::fill(lengths.begin() + 256, lengths.begin() + 280, 7);
    return lengths;
}

std::vector<int> DeflateFormat::fixedDistanceLengths()
{
    return std::vector<int>(DistanceCodes, 5);
}

std::vector<uint32_t> DeflateFormat::codesOf(const std::vector<int> &lengths)
{
    std::vector<uint32_t> codes(lengths.size());
    uint32_t next = 0;
    for (int length = 1; length <= MaxCode; ++length, next <<= 1) {
        for (size_t symbol = 0; symbol < lengths.size(); ++symbol) {
            if (lengths[symbol] == length)
                codes[symbol] = reversed(next++, length);
        }
    }
    return codes;
}
