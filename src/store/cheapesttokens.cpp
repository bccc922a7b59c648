#include "store/cheapesttokens.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

using namespace DeflateFormat;
using Token = DeflateToken;
using Counts = std::vector<uint32_t>;

/// How many distances are tried at each place: more make little smaller.
constexpr size_t TriedDistances = 12;

/// Bits, in parts of one.
using Cost = uint32_t;
constexpr double CostOfBit = 16;
constexpr Cost Unreached = std::numeric_limits<Cost>::max();

/// What codes that suit a symbol's share will take for each, no less than a bit and no more than they may.
std::vector<Cost> codeCosts(const Counts &counts)
{
    const auto all = double(std::accumulate(counts.cbegin(), counts.cend(), uint64_t(1)));
    std::vector<Cost> costs;
    for (const uint32_t count : counts) {
        const double bits = count > 0 ? std::log2(all / count) : double(MaxCode);
        costs.push_back(Cost(std::lround(CostOfBit * std::clamp(bits, 1.0, double(MaxCode)))));
    }
    return costs;
}

/// What tokens take with codes that suit some tokens.
class TokenCosts
{
public:
    explicit TokenCosts(const std::vector<Token> &tokens)
    {
        Counts literals(LiteralCodes);
        Counts distances(DistanceCodes);
        for (const Token &token : tokens) {
            if (token.isMatch()) {
                ++literals[size_t(lengthSymbol(token.length()).code)];
                ++distances[size_t(distanceSymbol(token.distance).code)];
            } else {
                ++literals[token.byte()];
            }
        }
        m_literals = codeCosts(literals);
        m_distances = codeCosts(distances);
        for (int length = Token::MinMatch; length <= Token::MaxMatch; ++length)
            m_lengths[size_t(length)] = costOf(m_literals, lengthSymbol(length));
    }

    [[nodiscard]] Cost ofByte(uint8_t byte) const { return m_literals[byte]; }
    [[nodiscard]] Cost ofLength(int length) const { return m_lengths[size_t(length)]; }
    [[nodiscard]] Cost ofDistance(int distance) const { return costOf(m_distances, distanceSymbol(distance)); }

private:
    [[nodiscard]] static Cost costOf(const std::vector<Cost> &codes, const Symbol &symbol)
    {
        return codes[size_t(symbol.code)] + Cost(CostOfBit) * Cost(symbol.extraBits);
    }

    std::vector<Cost> m_literals;
    std::vector<Cost> m_distances;
    std::array<Cost, Token::MaxMatch + 1> m_lengths{};
};

struct Distance
{
    int bytes = 0;
    Cost cost = 0;
};

/// The distances that most matches have, the most frequent first.
std::vector<Distance> frequentDistances(const std::vector<Token> &tokens, const TokenCosts &costs)
{
    Counts counts(Token::Window + 1);
    std::vector<int> used;
    for (const Token &token : tokens) {
        if (token.isMatch() && counts[token.distance]++ == 0)
            used.push_back(token.distance);
    }
    const auto end = used.begin() + std::ptrdiff_t(std::min(TriedDistances, used.size()));
    std::partial_sort(used.begin(), end, used.end(), [&counts](int a, int b) {
        return counts[size_t(a)] != counts[size_t(b)] ? counts[size_t(a)] > counts[size_t(b)] : a < b;
    });
    std::vector<Distance> distances;
    std::transform(used.begin(), end, std::back_inserter(distances), [&costs](int bytes) {
        return Distance{bytes, costs.ofDistance(bytes)};
    });
    return distances;
}

/// How many bytes are equal at two places, of at most so many.
int equalBytes(const char *a, const char *b, int most)
{
    int count = 0;
    for (; count + int(sizeof(quint64)) <= most; count += int(sizeof(quint64))) {
        if (const quint64 differing = qFromLittleEndian<quint64>(a + count) ^ qFromLittleEndian<quint64>(b + count))
            return count + std::countr_zero(differing) / 8;
    }
    while (count < most && a[count] == b[count])
        ++count;
    return count;
}

/// The cheapest ways to the places of a content, as far as they are known.
class Ways
{
public:
    explicit Ways(qsizetype size) : m_costs(size_t(size) + 1, Unreached), m_last(size_t(size) + 1) { m_costs[0] = 0; }

    [[nodiscard]] bool reaches(qsizetype place) const { return m_costs[size_t(place)] != Unreached; }

    /// Goes on from a place by a token.
    void add(qsizetype place, Token token, Cost cost)
    {
        const auto next = size_t(place) + size_t(token.length());
        const Cost whole = m_costs[size_t(place)] + cost;
        if (whole < m_costs[next]) {
            m_costs[next] = whole;
            m_last[next] = token;
        }
    }

    /// The tokens of the way to the last place.
    [[nodiscard]] std::vector<Token> tokens() const
    {
        std::vector<Token> tokens;
        for (size_t place = m_last.size() - 1; place > 0; place -= size_t(tokens.back().length()))
            tokens.push_back(m_last[place]);
        std::reverse(tokens.begin(), tokens.end());
        return tokens;
    }

private:
    std::vector<Cost> m_costs; ///< of the cheapest way to each place
    std::vector<Token> m_last; ///< with which that ends
};

} // namespace

std::vector<Token> cheapestTokens(const std::vector<Token> &found, const char *content, qsizetype before)
{
    const TokenCosts costs(found);
    const std::vector<Distance> distances = frequentDistances(found, costs);
    const auto size = std::accumulate(found.cbegin(), found.cend(), qsizetype(0),
                                      [](qsizetype sum, const Token &token) { return sum + token.length(); });
    Ways ways(size);
    qsizetype start = 0; // of the token that was found
    for (const Token &token : found) {
        const qsizetype end = start + token.length();
        for (qsizetype place = start; place < end; ++place) {
            if (!ways.reaches(place))
                continue;
            int longest = Token::MinMatch - 1;
            if (token.isMatch() && end - place >= Token::MinMatch) {
                longest = int(end - place);
                ways.add(place, {token.distance, uint16_t(longest)},
                         costs.ofDistance(token.distance) + costs.ofLength(longest));
            }
            const char *here = content + place;
            const int most = int(std::min<qsizetype>(Token::MaxMatch, size - place));
            bool isCopied = longest >= Token::MinMatch;
            for (const Distance &distance : distances) {
                if (distance.bytes > before + place)
                    continue;
                const int length = equalBytes(here, here - distance.bytes, most);
                if (length < std::max(longest, Token::MinMatch))
                    continue;
                isCopied = true;
                ways.add(place, {uint16_t(distance.bytes), uint16_t(length)}, distance.cost + costs.ofLength(length));
            }
            if (!token.isMatch() || !isCopied)
                ways.add(place, {0, uint8_t(*here)}, costs.ofByte(uint8_t(*here)));
        }
        start = end;
    }
    return ways.tokens();
}
