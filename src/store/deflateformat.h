#pragma once

#include <array>
#include <cstdint>
#include <vector>

/// What a deflate stream says: a byte as it is, or a match, which copies bytes that came before.
struct DeflateToken
{
    static constexpr int MinMatch = 3;
    static constexpr int MaxMatch = 258;
    static constexpr int Window = 32768; ///< the largest distance

    uint16_t distance = 0; ///< bytes back to what is copied; 0 for a byte as it is
    uint16_t value = 0; ///< the byte, or the length of the match

    [[nodiscard]] bool isMatch() const { return distance > 0; }
    [[nodiscard]] uint8_t byte() const { return uint8_t(value); }
    [[nodiscard]] int length() const { return isMatch() ? value : 1; }
};

/// The numbers of the format (RFC 1951), as far as writer and reader share them.
namespace DeflateFormat {

// The head of a block
constexpr uint32_t NotTheLast = 0;
enum BlockType : uint32_t { Stored = 0, FixedCodes = 1, OwnCodes = 2 };

/// A block of a stream, which says so much and knows of nothing before it but the bytes that it copies.
struct Block
{
    BlockType type = Stored;
    std::vector<DeflateToken> tokens{};
};

/// A symbol of an alphabet and the bits that follow its code.
struct Symbol
{
    int code = 0;
    int extraBits = 0;
    uint32_t extra = 0;
};

// The alphabets of a block, and how long their codes may be
constexpr int EndOfBlock = 256;
constexpr int FirstLengthCode = 257;
constexpr int LiteralCodes = 286;
constexpr int DistanceCodes = 30;
constexpr int LengthsCodes = 19; ///< in which the lengths of the other two's codes are written
constexpr int MaxCode = 15;
constexpr int MaxLengthsCode = 7;
constexpr int LeastLiteralCodes = 257;
constexpr int LeastLengthsCodes = 4;
constexpr std::array<int, LengthsCodes> LengthsOrder{16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};

// Symbols that stand for runs among the lengths
constexpr int RepeatLast = 16; ///< 3 to 6 times, by 2 more bits
constexpr int FewZeros = 17; ///< 3 to 10, by 3 more bits
constexpr int ManyZeros = 18; ///< 11 to 138, by 7 more bits

// How long the codes are in a block of fixed codes
[[nodiscard]] std::vector<int> fixedLiteralLengths();
[[nodiscard]] std::vector<int> fixedDistanceLengths();

/// How the length and the distance of a match are said.
[[nodiscard]] Symbol lengthSymbol(int length);
[[nodiscard]] Symbol distanceSymbol(int distance);

/// The codes that have these lengths, the bit that comes first in a stream lowest.
[[nodiscard]] std::vector<uint32_t> codesOf(const std::vector<int> &lengths);

} // namespace DeflateFormat
