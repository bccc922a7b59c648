#include "store/deflatewriter.h"

#include <QtEndian>

#include <algorithm>

namespace {

using namespace DeflateFormat;
using Token = DeflateToken;

/// Bits that are written at one go.
constexpr int WordBits = 32;

using Counts = std::vector<uint32_t>;

/// How deep each symbol lies in the tree that joins the rarest first; 0 for one that does not occur.
std::vector<int> depthsOf(const Counts &counts, const std::vector<int> &rarestFirst)
{
    std::vector<uint64_t> weights;
    for (const int symbol : rarestFirst)
        weights.push_back(counts[size_t(symbol)]);
    const size_t leaves = weights.size();
    std::vector<size_t> parents(leaves);
    size_t leaf = 0;
    size_t joint = leaves; // joints come in the order of their weights by themselves
    const auto takeLightest = [&] {
        const bool isLeaf = leaf < leaves && (joint == weights.size() || weights[leaf] <= weights[joint]);
        return isLeaf ? leaf++ : joint++;
    };
    for (size_t made = 1; made < leaves; ++made) {
        const size_t first = takeLightest();
        const size_t second = takeLightest();
        parents[first] = parents[second] = weights.size();
        weights.push_back(weights[first] + weights[second]);
        parents.push_back(0);
    }
    std::vector<int> depths(weights.size());
    for (size_t node = weights.size() - 1; node-- > 0;)
        depths[node] = depths[parents[node]] + 1;
    depths.resize(leaves);
    return depths;
}

/// The lengths of the best codes for symbols that occur so often, none longer than allowed; 0 for those that do not.
std::vector<int> codeLengths(const Counts &counts, int longest)
{
    std::vector<int> rarestFirst;
    for (size_t symbol = 0; symbol < counts.size(); ++symbol) {
        if (counts[symbol] > 0)
            rarestFirst.push_back(int(symbol));
    }
    std::vector<int> lengths(counts.size());
    if (rarestFirst.size() < 2) { // which still takes a bit
        for (const int symbol : rarestFirst)
            lengths[size_t(symbol)] = 1;
        return lengths;
    }
    std::stable_sort(rarestFirst.begin(), rarestFirst.end(),
                     [&counts](int a, int b) { return counts[size_t(a)] < counts[size_t(b)]; });

    std::vector<int> having(size_t(longest) + 1); // how many codes have a length
    int used = 0; // of all codes of the longest length
    for (const int depth : depthsOf(counts, rarestFirst)) {
        const int length = std::min(depth, longest);
        ++having[size_t(length)];
        used += 1 << (longest - length);
    }
    for (; used > 1 << longest; --used) { // codes that were cut have no room: a shorter one makes some
        int length = longest - 1;
        while (having[size_t(length)] == 0)
            --length;
        --having[size_t(length)];
        having[size_t(length) + 1] += 2;
        --having[size_t(longest)];
    }
    auto symbol = rarestFirst.cbegin();
    for (int length = longest; length > 0; --length) {
        for (int i = 0; i < having[size_t(length)]; ++i)
            lengths[size_t(*symbol++)] = length;
    }
    return lengths;
}

/// Codes as they are written, the first bit lowest.
class Codes
{
public:
    explicit Codes(const std::vector<int> &lengths) : m_lengths(lengths), m_codes(codesOf(lengths)) { }
    Codes(const Counts &counts, int longest) : Codes(codeLengths(counts, longest)) { }

    [[nodiscard]] const std::vector<int> &lengths() const { return m_lengths; }
    [[nodiscard]] uint32_t code(int symbol) const { return m_codes[size_t(symbol)]; }
    [[nodiscard]] int length(int symbol) const { return m_lengths[size_t(symbol)]; }

private:
    std::vector<int> m_lengths;
    std::vector<uint32_t> m_codes;
};

/// Code lengths in their own short form: runs are one symbol.
std::vector<Symbol> shortened(const std::vector<int> &lengths)
{
    std::vector<Symbol> symbols;
    for (size_t at = 0; at < lengths.size();) {
        size_t end = at;
        while (end < lengths.size() && lengths[end] == lengths[at])
            ++end;
        auto left = int(end - at);
        const int length = lengths[at];
        at = end;
        if (length > 0) {
            symbols.push_back({length, 0, 0});
            --left;
        }
        while (left >= 3) {
            const int most = length > 0 ? 6 : left < 11 ? 10 : 138;
            const int run = std::min(left, most);
            if (length > 0)
                symbols.push_back({RepeatLast, 2, uint32_t(run - 3)});
            else if (most == 10)
                symbols.push_back({FewZeros, 3, uint32_t(run - 3)});
            else
                symbols.push_back({ManyZeros, 7, uint32_t(run - 11)});
            left -= run;
        }
        symbols.insert(symbols.end(), size_t(left), {length, 0, 0});
    }
    return symbols;
}

} // namespace

void DeflateWriter::write(uint32_t bits, int count)
{
    m_pending |= uint64_t(bits) << m_count;
    m_count += count;
    if (m_count >= WordBits) {
        const auto word = qToLittleEndian(uint32_t(m_pending));
        m_bytes.append(reinterpret_cast<const char *>(&word), sizeof word);
        m_pending >>= WordBits;
        m_count -= WordBits;
    }
}

template <class Codes>
void DeflateWriter::write(const Codes &codes, const Symbol &symbol)
{
    const int length = codes.length(symbol.code);
    write(codes.code(symbol.code) | symbol.extra << length, length + symbol.extraBits);
}

template <class Codes>
void DeflateWriter::writeLengths(const Codes &literals, const Codes &distances)
{
    std::vector<int> all = literals.lengths();
    all.insert(all.end(), distances.lengths().cbegin(), distances.lengths().cend());
    const std::vector<Symbol> lengths = shortened(all);
    Counts counts(LengthsCodes);
    for (const Symbol &symbol : lengths)
        ++counts[size_t(symbol.code)];
    const Codes codes(counts, MaxLengthsCode);
    size_t last = LengthsOrder.size();
    while (last > LeastLengthsCodes && codes.length(LengthsOrder[last - 1]) == 0)
        --last;

    write(LiteralCodes - LeastLiteralCodes, 5);
    write(DistanceCodes - 1, 5);
    write(uint32_t(last - LeastLengthsCodes), 4);
    for (size_t i = 0; i < last; ++i)
        write(uint32_t(codes.length(LengthsOrder[i])), 3);
    for (const Symbol &symbol : lengths)
        write(codes, symbol);
}

void DeflateWriter::writeBlock(const Block &block)
{
    write(NotTheLast, 1);
    write(block.type, 2);
    if (block.type == Stored)
        writeStored(block.tokens);
    else if (block.type == FixedCodes)
        writeTokens(block.tokens, Codes(fixedLiteralLengths()), Codes(fixedDistanceLengths()));
    else
        writeWithOwnCodes(block.tokens);
}

void DeflateWriter::writeStored(const std::vector<DeflateToken> &tokens)
{
    align();
    write(uint32_t(tokens.size()), 16);
    write(~uint32_t(tokens.size()) & 0xFFFF, 16);
    for (const Token &token : tokens)
        write(token.byte(), 8);
}

void DeflateWriter::writeWithOwnCodes(const std::vector<DeflateToken> &tokens)
{
    Counts literalCounts(LiteralCodes);
    Counts distanceCounts(DistanceCodes);
    literalCounts[EndOfBlock] = 1;
    for (const Token &token : tokens) {
        if (token.isMatch()) {
            ++literalCounts[size_t(lengthSymbol(token.length()).code)];
            ++distanceCounts[size_t(distanceSymbol(token.distance).code)];
        } else {
            ++literalCounts[token.byte()];
        }
    }
    if (std::all_of(distanceCounts.cbegin(), distanceCounts.cend(), [](uint32_t count) { return count == 0; }))
        distanceCounts[0] = 1; // not every reader takes an alphabet without codes
    const Codes literals(literalCounts, MaxCode);
    const Codes distances(distanceCounts, MaxCode);
    writeLengths(literals, distances);
    writeTokens(tokens, literals, distances);
}

template <class Codes>
void DeflateWriter::writeTokens(const std::vector<DeflateToken> &tokens, const Codes &literals, const Codes &distances)
{
    for (const Token &token : tokens) {
        if (token.isMatch()) {
            write(literals, lengthSymbol(token.length()));
            write(distances, distanceSymbol(token.distance));
        } else {
            write(literals, {token.byte(), 0, 0});
        }
    }
    write(literals, {EndOfBlock, 0, 0});
}

void DeflateWriter::align()
{
    for (; m_count > 0; m_count -= 8, m_pending >>= 8)
        m_bytes.append(char(m_pending));
    m_count = 0;
}

QByteArray DeflateWriter::finish()
{
    writeBlock({Stored, {}});
    align();
    return m_bytes;
}
