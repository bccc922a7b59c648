#include "pictures/colourchoice.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using ColourChoice::Colours;
using ColourChoice::Counts;
using NineBitColour::Count;

constexpr int Axes = 3;
constexpr int MostRounds = 24; ///< a bound: improving ends by itself, mostly after five
constexpr int Far = 1 << 20;

int levelOf(int number, int axis)
{
    return number >> (6 - 3 * axis) & 7;
}

/// Count, and sums of levels and their squares: what the error around the mean is made of.
struct Moments
{
    qint64 count = 0;
    std::array<qint64, Axes> sums{};
    qint64 squares = 0;

    void add(int number, qint64 times)
    {
        count += times;
        for (int axis = 0; axis < Axes; ++axis) {
            const qint64 level = levelOf(number, axis);
            sums[size_t(axis)] += times * level;
            squares += times * level * level;
        }
    }
    void take(const Moments &other)
    {
        count -= other.count;
        squares -= other.squares;
        for (size_t axis = 0; axis < Axes; ++axis)
            sums[axis] -= other.sums[axis];
    }
    [[nodiscard]] double error() const
    {
        if (count == 0)
            return 0;
        double explained = 0;
        for (const qint64 sum : sums)
            explained += double(sum) * double(sum) / double(count);
        return double(squares) - explained;
    }
    /// The colour of the machine at the least error to all: each level is the mean, rounded.
    [[nodiscard]] quint16 colour() const
    {
        const auto mean = [this](size_t axis) { return int((2 * sums[axis] + count) / (2 * count)); };
        return quint16(NineBitColour::compose(mean(0), mean(1), mean(2)));
    }
};

struct Box
{
    std::vector<quint16> colours;
    Moments moments;
    // the best split
    double gain = 0;
    int axis = 0;
    int above = 0; ///< levels from this on are split off
};

Box boxOf(std::vector<quint16> colours, const Counts &counts)
{
    Box box;
    std::array<std::array<Moments, 8>, Axes> slices{};
    for (const quint16 colour : colours) {
        box.moments.add(colour, counts[colour]);
        for (int axis = 0; axis < Axes; ++axis)
            slices[size_t(axis)][size_t(levelOf(colour, axis))].add(colour, counts[colour]);
    }
    box.colours = std::move(colours);
    const double whole = box.moments.error();
    for (int axis = 0; axis < Axes; ++axis) {
        Moments above = box.moments;
        Moments lower;
        for (int level = 0; level < 7; ++level) {
            const Moments &slice = slices[size_t(axis)][size_t(level)];
            above.take(slice);
            lower.count += slice.count;
            lower.squares += slice.squares;
            for (size_t i = 0; i < Axes; ++i)
                lower.sums[i] += slice.sums[i];
            const double gain = whole - lower.error() - above.error();
            if (lower.count > 0 && above.count > 0 && gain > box.gain) {
                box.gain = gain;
                box.axis = axis;
                box.above = level + 1;
            }
        }
    }
    return box;
}

/// The means of boxes that are split where most error goes away.
Colours cut(const std::vector<quint16> &present, const Counts &counts, size_t most)
{
    std::vector<Box> boxes{boxOf(present, counts)};
    while (boxes.size() < most) {
        const auto worst =
            std::max_element(boxes.begin(), boxes.end(), [](const Box &a, const Box &b) { return a.gain < b.gain; });
        if (worst->gain <= 0)
            break;
        const auto middle = std::partition(worst->colours.begin(), worst->colours.end(),
                                           [&](quint16 colour) { return levelOf(colour, worst->axis) < worst->above; });
        Box upper = boxOf({middle, worst->colours.end()}, counts);
        *worst = boxOf({worst->colours.begin(), middle}, counts);
        boxes.push_back(std::move(upper));
    }
    Colours chosen;
    for (const Box &box : boxes)
        chosen.push_back(box.moments.colour());
    return chosen;
}

/// Moves every chosen colour into the middle of those that it stands for, as long as that helps. One that stands for
/// none goes where the error is the greatest.
qint64 improve(Colours &chosen, const std::vector<quint16> &present, const Counts &counts, size_t most)
{
    Colours best = chosen;
    qint64 least = std::numeric_limits<qint64>::max();
    for (int round = 0; round < MostRounds; ++round) {
        std::vector<Moments> clusters(chosen.size());
        qint64 error = 0;
        qint64 worstError = 0;
        quint16 worst = 0;
        for (const quint16 colour : present) {
            size_t nearest = 0;
            int distance = Far;
            for (size_t i = 0; i < chosen.size(); ++i) {
                const int other = NineBitColour::distance(colour, chosen[i]);
                if (other < distance) {
                    distance = other;
                    nearest = i;
                }
            }
            clusters[nearest].add(colour, counts[colour]);
            const qint64 colourError = counts[colour] * distance;
            error += colourError;
            if (colourError > worstError) {
                worstError = colourError;
                worst = colour;
            }
        }
        if (error >= least)
            break;
        least = error;
        best = chosen;
        if (error == 0)
            break;
        bool placed = false; // one a round: the next round knows what it took
        for (size_t i = 0; i < chosen.size(); ++i) {
            if (clusters[i].count > 0) {
                chosen[i] = clusters[i].colour();
            } else if (!placed) {
                chosen[i] = worst;
                placed = true;
            }
        }
        if (!placed && chosen.size() < most)
            chosen.push_back(worst);
    }
    chosen = best;
    return least;
}

} // namespace

ColourChoice::Colours ColourChoice::choose(const Counts &counts, int most, const Colours &before)
{
    std::vector<quint16> present;
    for (int number = 0; number < Count; ++number) {
        if (counts[size_t(number)] > 0)
            present.push_back(quint16(number));
    }
    if (present.size() <= size_t(most))
        return present;
    Colours chosen = cut(present, counts, size_t(most));
    const qint64 error = improve(chosen, present, counts, size_t(most));
    if (before.empty())
        return chosen;
    Colours other = before;
    return improve(other, present, counts, size_t(most)) < error ? other : chosen;
}

ColourChoice::Distances ColourChoice::distancesTo(const Colours &chosen)
{
    Distances distances;
    for (int number = 0; number < Count; ++number) {
        int least = Far;
        for (const quint16 colour : chosen)
            least = std::min(least, NineBitColour::distance(number, colour));
        distances[size_t(number)] = least;
    }
    return distances;
}

qint64 ColourChoice::errorOf(const Counts &counts, const Colours &chosen)
{
    const Distances distances = distancesTo(chosen);
    qint64 error = 0;
    for (size_t number = 0; number < Count; ++number)
        error += counts[number] * distances[number];
    return error;
}
