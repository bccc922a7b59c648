#include "pictures/colourgroups.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>

namespace {

using ColourChoice::Colours;
using ColourChoice::Counts;
using Tile = ColourGroups::Tile;
using Tiles = std::vector<Tile>;

constexpr int Nowhere = -1;
constexpr int MostRounds = 16;

/// A beginning: the group of each tile, which may be nowhere as yet, and the colours of the groups.
struct Attempt
{
    std::vector<int> groupOf;
    std::vector<Colours> groups;
    qint64 error = std::numeric_limits<qint64>::max();
};

class Search
{
public:
    Search(const Tiles &tiles, int mostGroups, int mostColours)
        : m_tiles(tiles)
        , m_mostGroups(size_t(mostGroups))
        , m_mostColours(size_t(mostColours))
    { }

    /// Tiles in this order, each into the first (or the most fitting) group with room for its colours.
    [[nodiscard]] Attempt packed(const std::vector<int> &order, bool mostFitting) const;
    /// Tiles of like colours together: the group with the most error is split in two until there are enough.
    [[nodiscard]] Attempt split() const;
    /// Lets tiles and colours find each other, as long as that helps.
    void refine(Attempt &attempt) const;

private:
    [[nodiscard]] size_t missing(const Colours &group, const Tile &tile) const;
    void assign(Attempt &attempt) const;
    void chooseColours(Attempt &attempt) const;
    [[nodiscard]] bool bisect(Attempt &attempt, int group) const;

    const Tiles &m_tiles;
    size_t m_mostGroups;
    size_t m_mostColours;
};

size_t Search::missing(const Colours &group, const Tile &tile) const
{
    return size_t(std::count_if(tile.bins.cbegin(), tile.bins.cend(), [&group](const ColourGroups::Bin &bin) {
        return std::find(group.cbegin(), group.cend(), bin.colour) == group.cend();
    }));
}

Attempt Search::packed(const std::vector<int> &order, bool mostFitting) const
{
    Attempt attempt;
    attempt.groupOf.assign(m_tiles.size(), Nowhere);
    attempt.groups.resize(m_mostGroups);
    for (const int index : order) {
        const Tile &tile = m_tiles[size_t(index)];
        int found = Nowhere;
        size_t least = std::numeric_limits<size_t>::max();
        for (size_t i = 0; i < m_mostGroups; ++i) {
            const size_t lacks = missing(attempt.groups[i], tile);
            if (attempt.groups[i].size() + lacks > m_mostColours || lacks >= least)
                continue;
            least = lacks;
            found = int(i);
            if (!mostFitting)
                break;
        }
        if (found == Nowhere)
            continue;
        Colours &group = attempt.groups[size_t(found)];
        for (const ColourGroups::Bin &bin : tile.bins) {
            if (std::find(group.cbegin(), group.cend(), bin.colour) == group.cend())
                group.push_back(bin.colour);
        }
    }
    assign(attempt);
    return attempt;
}

/// Gives every tile the group that shows it best, and sums up the error.
void Search::assign(Attempt &attempt) const
{
    std::vector<ColourChoice::Distances> distances;
    for (const Colours &group : attempt.groups)
        distances.push_back(ColourChoice::distancesTo(group));
    attempt.error = 0;
    for (size_t i = 0; i < m_tiles.size(); ++i) {
        qint64 least = std::numeric_limits<qint64>::max();
        for (size_t group = 0; group < distances.size(); ++group) {
            qint64 error = 0;
            for (const auto &[colour, count] : m_tiles[i].bins)
                error += qint64(count) * distances[group][colour];
            if (error < least) {
                least = error;
                attempt.groupOf[i] = int(group);
            }
        }
        attempt.error += least * m_tiles[i].weight;
    }
}

void Search::chooseColours(Attempt &attempt) const
{
    std::vector<Counts> counts(attempt.groups.size(), Counts{});
    for (size_t i = 0; i < m_tiles.size(); ++i) {
        for (const auto &[colour, count] : m_tiles[i].bins)
            counts[size_t(attempt.groupOf[i])][colour] += count * m_tiles[i].weight;
    }
    for (size_t group = 0; group < attempt.groups.size(); ++group)
        attempt.groups[group] = ColourChoice::choose(counts[group], int(m_mostColours), attempt.groups[group]);
}

/// Splits the tiles of a group along the axis on which their mean colours differ most; false when they do not.
bool Search::bisect(Attempt &attempt, int group) const
{
    std::vector<std::pair<size_t, std::array<double, 3>>> means;
    std::array<double, 3> sums{};
    for (size_t i = 0; i < m_tiles.size(); ++i) {
        if (attempt.groupOf[i] != group)
            continue;
        std::array<double, 3> mean{};
        double pixels = 0;
        for (const auto &[colour, count] : m_tiles[i].bins) {
            mean[0] += count * NineBitColour::red(colour);
            mean[1] += count * NineBitColour::green(colour);
            mean[2] += count * NineBitColour::blue(colour);
            pixels += count;
        }
        for (size_t axis = 0; axis < 3; ++axis) {
            mean[axis] /= std::max(pixels, 1.0);
            sums[axis] += mean[axis];
        }
        means.emplace_back(i, mean);
    }
    std::array<double, 3> variances{};
    for (const auto &[tile, mean] : means) {
        for (size_t axis = 0; axis < 3; ++axis) {
            const double difference = mean[axis] - sums[axis] / double(means.size());
            variances[axis] += difference * difference;
        }
    }
    const size_t axis = size_t(std::max_element(variances.cbegin(), variances.cend()) - variances.cbegin());
    if (means.size() < 2 || variances[axis] <= 0)
        return false;
    attempt.groups.emplace_back();
    for (const auto &[tile, mean] : means) {
        if (mean[axis] > sums[axis] / double(means.size()))
            attempt.groupOf[tile] = int(attempt.groups.size()) - 1;
    }
    return true;
}

Attempt Search::split() const
{
    Attempt attempt;
    attempt.groupOf.assign(m_tiles.size(), 0);
    attempt.groups.resize(1);
    chooseColours(attempt);
    assign(attempt);
    while (attempt.groups.size() < m_mostGroups && attempt.error > 0) {
        std::vector<qint64> errors(attempt.groups.size());
        for (size_t i = 0; i < m_tiles.size(); ++i) {
            const size_t group = size_t(attempt.groupOf[i]);
            for (const auto &[colour, count] : m_tiles[i].bins) {
                int least = std::numeric_limits<int>::max();
                for (const quint16 chosen : attempt.groups[group])
                    least = std::min(least, NineBitColour::distance(colour, chosen));
                errors[group] += qint64(count) * least * m_tiles[i].weight;
            }
        }
        const auto worst = std::max_element(errors.cbegin(), errors.cend());
        if (!bisect(attempt, int(worst - errors.cbegin())))
            break;
        chooseColours(attempt);
        assign(attempt);
        chooseColours(attempt);
        assign(attempt);
    }
    return attempt;
}

void Search::refine(Attempt &attempt) const
{
    for (int round = 0; round < MostRounds && attempt.error > 0; ++round) {
        Attempt next = attempt;
        chooseColours(next);
        assign(next);
        if (next.error >= attempt.error)
            break;
        attempt = std::move(next);
    }
}

} // namespace

ColourGroups ColourGroups::find(const std::vector<Tile> &tiles, int mostGroups, int mostColours)
{
    const Search search(tiles, mostGroups, mostColours);
    std::vector<int> order(tiles.size());
    std::iota(order.begin(), order.end(), 0);
    Attempt best = search.packed(order, false);
    search.refine(best);
    const auto consider = [&](Attempt attempt) {
        search.refine(attempt);
        if (attempt.error < best.error)
            best = std::move(attempt);
    };
    if (best.error > 0) {
        std::stable_sort(order.begin(), order.end(), [&tiles](int a, int b) {
            return tiles[size_t(a)].bins.size() > tiles[size_t(b)].bins.size();
        });
        consider(search.packed(order, true));
    }
    if (best.error > 0)
        consider(search.split());
    return {std::move(best.groups), std::move(best.groupOf), best.error};
}
