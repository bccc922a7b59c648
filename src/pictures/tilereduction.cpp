#include "pictures/tilereduction.h"

#include "model/nximage.h"
#include "model/piecetable.h"
#include "pictures/colourgroups.h"
#include "pictures/tilecodebook.h"

#include <QByteArray>
#include <QHash>

#include <algorithm>
#include <bitset>
#include <cmath>
#include <cstring>

namespace {

constexpr int Side = TileReduction::Side;
constexpr size_t Area = size_t(Side) * Side;
constexpr quint16 ClearKey = 0xffff;
constexpr quint16 ClearWord = 0xE301; // magenta, which artists are used to see where nothing will be drawn

constexpr auto LevelOf = [] {
    std::array<quint8, 256> levels{};
    for (int component = 0; component < 256; ++component)
        levels[size_t(component)] = quint8(NineBitColour::levelOf(component));
    return levels;
}();

bool isClear(QRgb pixel)
{
    return qAlpha(pixel) == 0;
}

int numberOf(QRgb colour)
{
    return NineBitColour::compose(LevelOf[size_t(qRed(colour))], LevelOf[size_t(qGreen(colour))],
                                  LevelOf[size_t(qBlue(colour))]);
}

/// The cells of a picture, read when they are needed.
class Cells
{
public:
    Cells(const QImage &picture, bool keepClearPixels) : m_picture(picture), m_keepClearPixels(keepClearPixels) { }

    [[nodiscard]] QSize size() const { return {m_picture.width() / Side, m_picture.height() / Side}; }
    [[nodiscard]] PixelTile at(int column, int row)
    {
        if (row != m_row) {
            m_row = row;
            m_band =
                m_picture.copy(0, row * Side, m_picture.width(), Side)
                    .convertToFormat(m_keepClearPixels ? QImage::Format_ARGB32 : QImage::Format_RGB32, Qt::AvoidDither);
        }
        PixelTile tile;
        for (int y = 0; y < Side; ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(m_band.constScanLine(y)) + column * Side;
            for (int x = 0; x < Side; ++x) {
                const bool clear = m_keepClearPixels && qAlpha(line[x]) < NxImage::LeastAlpha;
                tile[size_t(y * Side + x)] = clear ? 0 : line[x] | 0xff000000;
            }
        }
        return tile;
    }

private:
    QImage m_picture;
    bool m_keepClearPixels;
    int m_row = -1;
    QImage m_band;
};

using Key = std::array<quint16, Area>;

/// What makes a tile another one: its colours on the machine, or somewhat finer where dithering can show that.
Key keyOf(const PixelTile &tile, Dithering dithering)
{
    Key key;
    std::transform(tile.cbegin(), tile.cend(), key.begin(), [dithering](QRgb pixel) {
        if (isClear(pixel))
            return ClearKey;
        if (dithering == Dithering::None)
            return quint16(numberOf(pixel));
        return quint16(qRed(pixel) >> 3 << 10 | qGreen(pixel) >> 3 << 5 | qBlue(pixel) >> 3);
    });
    return key;
}

/// The distinct tiles of a picture, those that are turned or mirrored counted once, and which one a cell shows.
struct DistinctTiles
{
    std::vector<PixelTile> tiles;
    std::vector<int> weights;
    std::vector<TileReduction::Cell> cells;
    std::bitset<NineBitColour::Count> colours;
    bool hasClearPixels = false;
};

DistinctTiles distinctTiles(Cells &cells, Dithering dithering)
{
    DistinctTiles distinct;
    QHash<QByteArray, int> known; // by the orientation whose key sorts first
    std::vector<Key> keys;
    const QSize size = cells.size();
    distinct.cells.reserve(size_t(size.width()) * size_t(size.height()));
    for (int row = 0; row < size.height(); ++row) {
        for (int column = 0; column < size.width(); ++column) {
            const PixelTile tile = cells.at(column, row);
            const Key key = keyOf(tile, dithering);
            const Key first = TileOrientation::inFirstOrientation(key);
            const auto bytes = QByteArray(reinterpret_cast<const char *>(first.data()), qsizetype(sizeof first));
            const int number = known.value(bytes, -1);
            if (number < 0) {
                for (const QRgb pixel : tile) {
                    if (isClear(pixel))
                        distinct.hasClearPixels = true;
                    else
                        distinct.colours.set(size_t(numberOf(pixel)));
                }
                distinct.cells.push_back({int(distinct.tiles.size()), 0});
                known.insert(bytes, int(distinct.tiles.size()));
                distinct.tiles.push_back(tile);
                distinct.weights.push_back(1);
                keys.push_back(key);
                continue;
            }
            ++distinct.weights[size_t(number)];
            distinct.cells.push_back({number, TileOrientation::orientationOf(keys[size_t(number)], key)});
        }
    }
    return distinct;
}

/// The colours that a tile needs: its own, or those that mix them in the pattern.
ColourGroups::Tile histogramOf(const PixelTile &tile, qint64 weight, bool mixes)
{
    ColourGroups::Tile histogram{{}, weight};
    for (size_t i = 0; i < Area; ++i) {
        if (isClear(tile[i]))
            continue;
        const auto colour =
            quint16(mixes ? Dither::patternColour(tile[i], int(i) % Side, int(i) / Side) : numberOf(tile[i]));
        const auto bin = std::find_if(histogram.bins.begin(), histogram.bins.end(),
                                      [colour](const ColourGroups::Bin &other) { return other.colour == colour; });
        if (bin == histogram.bins.end())
            histogram.bins.push_back({colour, 1});
        else
            ++bin->count;
    }
    return histogram;
}

/// The entries of the palette that the pixels of an area of whole tiles take; group tells that of a tile by its place.
template <typename GroupAt>
std::vector<uchar> entriesOf(const std::vector<QRgb> &pixels, const QSize &size, Dithering dithering,
                             const ColourGroups &groups, const GroupAt &groupAt)
{
    const auto coloursAt = [&](int x, int y) -> const ColourChoice::Colours * {
        const bool clear = isClear(pixels[size_t(y) * size_t(size.width()) + size_t(x)]);
        return clear ? nullptr : &groups.groups[size_t(groupAt(x, y))];
    };
    std::vector<uchar> entries = Dither::apply(dithering, pixels, size, coloursAt);
    for (size_t i = 0; i < entries.size(); ++i) {
        const int group = groupAt(int(i % size_t(size.width())), int(i / size_t(size.width())));
        entries[i] =
            uchar(group * TileReduction::GroupColours + (isClear(pixels[i]) ? TileReduction::ClearPixel : entries[i]));
    }
    return entries;
}

using Pixels = TileReduction::Pixels;

/// The tiles of the book in the colours of their groups.
std::vector<Pixels> shownTiles(const TileCodebook &book, const ColourGroups &groups, Dithering dithering)
{
    std::vector<Pixels> shown(book.tiles.size());
    for (size_t i = 0; i < shown.size(); ++i) {
        const std::vector<uchar> entries =
            entriesOf({book.tiles[i].cbegin(), book.tiles[i].cend()}, {Side, Side}, dithering, groups,
                      [&groups, i](int, int) { return groups.groupOf[i]; });
        std::copy(entries.cbegin(), entries.cend(), shown[i].begin());
    }
    return shown;
}

/// The whole picture in the colours of the groups, for one that has no more cells than tiles are allowed: what is wrong
/// with a pixel is then put right across the edges of tiles.
std::vector<Pixels> shownCells(Cells &cells, const DistinctTiles &distinct, const ColourGroups &groups,
                               Dithering dithering)
{
    const QSize size = cells.size();
    const QSize area = size * Side;
    std::vector<QRgb> pixels(size_t(area.width()) * size_t(area.height()));
    const auto place = [&](int cell, size_t pixel) {
        const size_t x = size_t(cell % size.width()) * Side + pixel % Side;
        const size_t y = size_t(cell / size.width()) * Side + pixel / Side;
        return y * size_t(area.width()) + x;
    };
    const int count = int(distinct.cells.size());
    for (int cell = 0; cell < count; ++cell) {
        const PixelTile tile = cells.at(cell % size.width(), cell / size.width());
        for (size_t i = 0; i < Area; ++i)
            pixels[place(cell, i)] = tile[i];
    }
    const std::vector<uchar> entries = entriesOf(pixels, area, dithering, groups, [&](int x, int y) {
        const TileReduction::Cell &cell = distinct.cells[size_t(y / Side) * size_t(size.width()) + size_t(x / Side)];
        return groups.groupOf[size_t(cell.tile)];
    });
    std::vector<Pixels> shown(distinct.cells.size());
    for (int cell = 0; cell < count; ++cell) {
        for (size_t i = 0; i < Area; ++i)
            shown[size_t(cell)][i] = entries[place(cell, i)];
    }
    return shown;
}

bool isLossy(const PixelTile &tile, const ColourChoice::Colours &group)
{
    return std::any_of(tile.cbegin(), tile.cend(), [&group](QRgb pixel) {
        return !isClear(pixel) && std::find(group.cbegin(), group.cend(), numberOf(pixel)) == group.cend();
    });
}

void setWords(TileReduction &reduction, const ColourGroups &groups)
{
    reduction.words = QList<quint16>(TileReduction::MostGroups * TileReduction::GroupColours, 0);
    std::bitset<256> used;
    for (const Pixels &tile : reduction.tiles) {
        for (const uchar entry : tile)
            used.set(entry);
    }
    std::bitset<NineBitColour::Count> colours;
    for (size_t group = 0; group < groups.groups.size(); ++group) {
        bool inUse = false;
        for (size_t i = 0; i < groups.groups[group].size(); ++i) {
            const size_t entry = group * TileReduction::GroupColours + i;
            reduction.words[qsizetype(entry)] = NineBitColour::wordOf(groups.groups[group][i]);
            if (used.test(entry)) {
                colours.set(groups.groups[group][i]);
                inUse = true;
            }
        }
        const size_t clear = group * TileReduction::GroupColours + TileReduction::ClearPixel;
        if (reduction.hasClearPixels)
            reduction.words[qsizetype(clear)] = ClearWord;
        reduction.groupCount += inUse || used.test(clear) ? 1 : 0;
    }
    reduction.colours = int(colours.count());
}

/// How far the tiles are from the picture, as the machine would show it with all its colours.
double errorOf(const TileReduction &reduction, Cells &cells)
{
    qint64 sum = 0;
    qint64 pixels = 0;
    for (size_t cell = 0; cell < reduction.cells.size(); ++cell) {
        const auto &[number, orientation] = reduction.cells[cell];
        const Pixels shown = TileOrientation::turned(reduction.tiles[size_t(number)], orientation);
        const PixelTile wanted = cells.at(int(cell) % reduction.size.width(), int(cell) / reduction.size.width());
        for (size_t i = 0; i < Area; ++i) {
            if (isClear(wanted[i]))
                continue;
            ++pixels;
            sum += NineBitColour::distance(numberOf(wanted[i]), NineBitColour::numberOf(reduction.words[shown[i]]));
        }
    }
    return pixels == 0 ? 0 : std::sqrt(double(sum) / double(pixels));
}

} // namespace

TileReduction TileReduction::of(const QImage &picture, const Choices &choices)
{
    TileReduction reduction;
    reduction.choices = choices;
    Cells cells(picture, choices.keepClearPixels);
    reduction.size = cells.size();
    if (reduction.size.isEmpty() || !NxImage::accepts(picture.size()))
        return {};
    const DistinctTiles distinct = distinctTiles(cells, choices.dithering);
    reduction.tilesBefore = int(distinct.tiles.size());
    reduction.coloursBefore = int(distinct.colours.count());
    reduction.hasClearPixels = distinct.hasClearPixels;

    const TileCodebook book = TileCodebook::find(distinct.tiles, distinct.weights, choices.mostTiles);
    std::vector<qint64> weights(book.tiles.size());
    for (size_t i = 0; i < distinct.tiles.size(); ++i)
        weights[size_t(book.standsFor[i])] += distinct.weights[i];
    std::vector<ColourGroups::Tile> histograms;
    for (size_t i = 0; i < book.tiles.size(); ++i)
        histograms.push_back(histogramOf(book.tiles[i], weights[i], choices.dithering != Dithering::None));
    const ColourGroups groups =
        ColourGroups::find(histograms, MostGroups, distinct.hasClearPixels ? GroupColours - 1 : GroupColours);

    const bool acrossTiles =
        choices.dithering == Dithering::Diffusion && distinct.cells.size() <= size_t(choices.mostTiles);
    const std::vector<Pixels> shown = acrossTiles ? shownCells(cells, distinct, groups, choices.dithering)
                                                  : shownTiles(book, groups, choices.dithering);
    const auto pixelsOf = [&](int cell) {
        if (acrossTiles)
            return shown[size_t(cell)];
        const auto &[tile, orientation] = distinct.cells[size_t(cell)];
        return TileOrientation::turned(shown[size_t(book.standsFor[size_t(tile)])], orientation);
    };
    PieceTable pieces(Side, int(distinct.cells.size()), [&](int cell, uchar *to) {
        const Pixels pixels = pixelsOf(cell);
        std::copy(pixels.cbegin(), pixels.cend(), to);
    });
    for (int cell = 0; cell < int(distinct.cells.size()); ++cell) {
        const Pixels pixels = pixelsOf(cell);
        const auto [tile, orientation] = pieces.add(pixels.data(), cell);
        const size_t inBook = size_t(book.standsFor[size_t(distinct.cells[size_t(cell)].tile)]);
        if (tile == int(reduction.tiles.size())) {
            reduction.tiles.push_back(pixels);
            reduction.groups.push_back(pixels[0] / GroupColours);
        }
        reduction.cells.push_back({tile, orientation});
        reduction.lossyCells += isLossy(book.tiles[inBook], groups.groups[size_t(groups.groupOf[inBook])]) ? 1 : 0;
        reduction.mergedCells += weights[inBook] > distinct.weights[size_t(distinct.cells[size_t(cell)].tile)] ? 1 : 0;
    }
    setWords(reduction, groups);
    reduction.error = errorOf(reduction, cells);
    return reduction;
}

QImage TileReduction::shown() const
{
    QImage picture(size * Side, hasClearPixels ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (picture.isNull())
        return {};
    std::array<QRgb, 256> table{};
    for (size_t entry = 0; entry < table.size(); ++entry)
        table[entry] = hasClearPixels && entry % GroupColours == ClearPixel
            ? 0
            : NineBitColour::shown(NineBitColour::numberOf(words[qsizetype(entry)]));
    for (int row = 0; row < picture.height(); ++row) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(row));
        for (int column = 0; column < size.width(); ++column) {
            const auto &[tile, orientation] = cells[size_t(row / Side) * size_t(size.width()) + size_t(column)];
            const auto &origins = TileOrientation::Origins[size_t(orientation)];
            for (int x = 0; x < Side; ++x)
                line[column * Side + x] = table[tiles[size_t(tile)][origins[size_t(row % Side * Side + x)]]];
        }
    }
    return picture;
}
