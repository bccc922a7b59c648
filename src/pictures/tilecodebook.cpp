#include "pictures/tilecodebook.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr size_t Channels = sizeof(PixelTile); // with that of alpha, by which clear pixels differ from all others
/// The means are found among at most this many tiles, spread evenly; a large picture has a hundred times as many.
constexpr size_t MostSamples = 32768;
constexpr int SplitRounds = 2;
constexpr int BookRounds = 3; ///< each takes off less than the one before

using Components = std::array<uchar, Channels>;

const uchar *componentsOf(const PixelTile &tile)
{
    return reinterpret_cast<const uchar *>(tile.data());
}

/// The squared distance, or anything from limit on when it is at least that.
int distance(const uchar *a, const uchar *b, int limit)
{
    constexpr size_t Stride = 64;
    int sum = 0;
    for (size_t begin = 0; begin < Channels && sum < limit; begin += Stride) {
        int part = 0;
        for (size_t i = begin; i < begin + Stride; ++i) {
            const int difference = int(a[i]) - int(b[i]);
            part += difference * difference;
        }
        sum += part;
    }
    return sum;
}

/// Sums of components, for a mean.
class Mean
{
public:
    void add(const PixelTile &tile, int weight)
    {
        const uchar *components = componentsOf(tile);
        for (size_t i = 0; i < Channels; ++i)
            m_sums[i] += quint64(components[i]) * quint64(weight);
        m_weight += quint64(weight);
    }
    [[nodiscard]] bool isEmpty() const { return m_weight == 0; }
    [[nodiscard]] PixelTile tile() const
    {
        PixelTile mean{};
        for (size_t pixel = 0; pixel < mean.size(); ++pixel) {
            const auto component = [&](size_t channel) {
                return int((m_sums[4 * pixel + channel] + m_weight / 2) / m_weight);
            };
            // in memory as QRgb is: blue comes first, where the least byte does
            uchar bytes[4];
            for (size_t channel = 0; channel < 4; ++channel)
                bytes[channel] = uchar(component(channel));
            QRgb colour = 0;
            std::copy(bytes, bytes + 4, reinterpret_cast<uchar *>(&colour));
            mean[pixel] = colour;
        }
        return mean;
    }

private:
    std::array<quint64, Channels> m_sums{};
    quint64 m_weight = 0;
};

/// A part of the tiles, and its parts.
struct Node
{
    size_t begin = 0;
    size_t end = 0;
    PixelTile mean{};
    double error = 0;
    int channel = -1; ///< in which the tiles differ most; -1 when they do not
    int lower = -1;
    int upper = -1;
};

class Tree
{
public:
    Tree(const std::vector<PixelTile> &tiles, const std::vector<int> &weights, int most);

    [[nodiscard]] std::vector<PixelTile> leaves();
    /// The leaf that a tile comes to when it takes the nearer part each time.
    [[nodiscard]] int leafOf(const PixelTile &tile) const;

private:
    [[nodiscard]] Node nodeOf(size_t begin, size_t end) const;
    [[nodiscard]] bool split(int node);

    const std::vector<PixelTile> &m_tiles;
    const std::vector<int> &m_weights;
    std::vector<size_t> m_order; ///< the sampled tiles; each node has a run of them
    std::vector<Node> m_nodes;
    std::vector<int> m_leaves; ///< numbers of nodes
    std::vector<int> m_leafOfNode;
};

Tree::Tree(const std::vector<PixelTile> &tiles, const std::vector<int> &weights, int most)
    : m_tiles(tiles)
    , m_weights(weights)
{
    const size_t samples = std::min(tiles.size(), MostSamples);
    m_order.resize(samples);
    for (size_t i = 0; i < samples; ++i)
        m_order[i] = i * tiles.size() / samples;
    m_nodes.push_back(nodeOf(0, samples));
    m_leaves.push_back(0);
    const auto less = [this](int a, int b) { return m_nodes[size_t(a)].error < m_nodes[size_t(b)].error; };
    while (m_leaves.size() < size_t(most)) { // a heap of leaves, the worst first
        std::pop_heap(m_leaves.begin(), m_leaves.end(), less);
        const int worst = m_leaves.back();
        if (m_nodes[size_t(worst)].error <= 0 || !split(worst))
            break;
        m_leaves.back() = m_nodes[size_t(worst)].lower;
        std::push_heap(m_leaves.begin(), m_leaves.end(), less);
        m_leaves.push_back(m_nodes[size_t(worst)].upper);
        std::push_heap(m_leaves.begin(), m_leaves.end(), less);
    }
    m_leafOfNode.assign(m_nodes.size(), -1);
    for (size_t leaf = 0; leaf < m_leaves.size(); ++leaf)
        m_leafOfNode[size_t(m_leaves[leaf])] = int(leaf);
}

Node Tree::nodeOf(size_t begin, size_t end) const
{
    Node node{.begin = begin, .end = end};
    std::array<double, Channels> sums{};
    std::array<double, Channels> squares{};
    double weight = 0;
    Mean mean;
    for (size_t i = begin; i < end; ++i) {
        const uchar *components = componentsOf(m_tiles[m_order[i]]);
        const int times = m_weights[m_order[i]];
        for (size_t channel = 0; channel < Channels; ++channel) {
            sums[channel] += times * components[channel];
            squares[channel] += times * (components[channel] * components[channel]);
        }
        weight += times;
        mean.add(m_tiles[m_order[i]], times);
    }
    node.mean = mean.tile();
    double most = 0;
    for (size_t channel = 0; channel < Channels; ++channel) {
        const double variance = squares[channel] - sums[channel] * sums[channel] / weight;
        node.error += variance;
        if (variance > most) {
            most = variance;
            node.channel = int(channel);
        }
    }
    return node;
}

/// Splits a part in the channel in which it differs most, and then lets every tile take the nearer half.
bool Tree::split(int number)
{
    const Node node = m_nodes[size_t(number)];
    if (node.channel < 0)
        return false;
    const auto first = m_order.begin() + qptrdiff(node.begin);
    const auto last = m_order.begin() + qptrdiff(node.end);
    const int threshold = componentsOf(node.mean)[node.channel];
    auto middle = std::partition(first, last, [&](size_t tile) {
        return int(componentsOf(m_tiles[tile])[node.channel]) < std::max(threshold, 1);
    });
    for (int round = 0; round < SplitRounds && middle != first && middle != last; ++round) {
        Mean lower;
        Mean upper;
        for (auto at = first; at != last; ++at)
            (at < middle ? lower : upper).add(m_tiles[*at], m_weights[*at]);
        const PixelTile low = lower.tile();
        const PixelTile high = upper.tile();
        middle = std::partition(first, last, [&](size_t tile) {
            const int far = distance(componentsOf(m_tiles[tile]), componentsOf(high), std::numeric_limits<int>::max());
            return distance(componentsOf(m_tiles[tile]), componentsOf(low), far) < far;
        });
    }
    if (middle == first || middle == last)
        return false;
    const size_t between = size_t(middle - m_order.begin());
    m_nodes[size_t(number)].lower = int(m_nodes.size());
    m_nodes[size_t(number)].upper = int(m_nodes.size()) + 1;
    m_nodes.push_back(nodeOf(node.begin, between));
    m_nodes.push_back(nodeOf(between, node.end));
    return true;
}

std::vector<PixelTile> Tree::leaves()
{
    std::vector<PixelTile> means;
    for (const int leaf : m_leaves)
        means.push_back(m_nodes[size_t(leaf)].mean);
    return means;
}

int Tree::leafOf(const PixelTile &tile) const
{
    int number = 0;
    while (m_nodes[size_t(number)].lower >= 0) {
        const Node &node = m_nodes[size_t(number)];
        const int far = distance(componentsOf(tile), componentsOf(m_nodes[size_t(node.upper)].mean),
                                 std::numeric_limits<int>::max());
        const bool lower = distance(componentsOf(tile), componentsOf(m_nodes[size_t(node.lower)].mean), far) < far;
        number = lower ? node.lower : node.upper;
    }
    return m_leafOfNode[size_t(number)];
}

/// Every tile at the nearest of the book's; it stays where it is among equals.
void assign(TileCodebook &book, const std::vector<PixelTile> &tiles)
{
    for (size_t i = 0; i < tiles.size(); ++i) {
        const uchar *components = componentsOf(tiles[i]);
        int nearest = book.standsFor[i];
        int least = distance(components, componentsOf(book.tiles[size_t(nearest)]), std::numeric_limits<int>::max());
        for (size_t other = 0; other < book.tiles.size() && least > 0; ++other) {
            const int found = distance(components, componentsOf(book.tiles[other]), least);
            if (found < least) {
                least = found;
                nearest = int(other);
            }
        }
        book.standsFor[i] = nearest;
    }
}

void takeMeans(TileCodebook &book, const std::vector<PixelTile> &tiles, const std::vector<int> &weights)
{
    std::vector<Mean> means(book.tiles.size());
    for (size_t i = 0; i < tiles.size(); ++i)
        means[size_t(book.standsFor[i])].add(tiles[i], weights[i]);
    for (size_t i = 0; i < means.size(); ++i) {
        if (!means[i].isEmpty())
            book.tiles[i] = means[i].tile();
    }
}

/// Means of clear and opaque pixels are one or the other.
void settleAlpha(PixelTile &tile)
{
    for (QRgb &colour : tile) {
        const int alpha = qAlpha(colour);
        if (alpha < 128) {
            colour = 0;
            continue;
        }
        // clear pixels have no colour, so what they took away from the mean is given back
        const auto component = [alpha](int mean) { return std::min(mean * 255 / alpha, 255); };
        colour = qRgb(component(qRed(colour)), component(qGreen(colour)), component(qBlue(colour)));
    }
}

} // namespace

TileCodebook TileCodebook::find(const std::vector<PixelTile> &tiles, const std::vector<int> &weights, int most)
{
    TileCodebook book;
    book.standsFor.resize(tiles.size());
    if (tiles.size() <= size_t(most)) {
        book.tiles = tiles;
        std::iota(book.standsFor.begin(), book.standsFor.end(), 0);
        return book;
    }
    Tree tree(tiles, weights, most);
    book.tiles = tree.leaves();
    for (size_t i = 0; i < tiles.size(); ++i)
        book.standsFor[i] = tree.leafOf(tiles[i]);
    takeMeans(book, tiles, weights);
    // among more tiles, each one's own way through the tree has to do: looking at all leaves takes minutes
    for (int round = 0; round < BookRounds && tiles.size() <= MostSamples; ++round) {
        assign(book, tiles);
        takeMeans(book, tiles, weights);
    }
    for (PixelTile &tile : book.tiles)
        settleAlpha(tile);
    return book;
}
