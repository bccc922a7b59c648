#include "pictures/picturecells.h"

#include "model/nximage.h"
#include "model/palette.h"
#include "model/tileset.h"
#include "model/tileuse.h"
#include "pictures/ninebitcolour.h"
#include "pictures/pixeltile.h"

#include <QByteArray>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <limits>

namespace {

constexpr int Side = PictureCells::Side;
constexpr size_t Area = size_t(Side) * Side;
constexpr int Groups = 16;
constexpr int GroupColours = 16;

/// What a tile looks like: numbers of the machine's colours (NineBitColour), or Clear.
using Look = std::array<quint16, Area>;
constexpr quint16 Clear = 0xffff;

/// The colours of a palette as groups for tiles.
class GroupedColours
{
public:
    GroupedColours(const Palette *palette, int clearPixel) : m_clearPixel(clearPixel)
    {
        for (int entry = 0; entry < Palette::Size; ++entry)
            m_colours[size_t(entry)] = palette ? NineBitColour::numberOf(palette->rawColour(entry)) : quint16(0);
        for (int group = 0; group < Groups; ++group) {
            for (int number = 0; number < NineBitColour::Count; ++number)
                m_nearest[size_t(group)][size_t(number)] = nearestIn(group, quint16(number));
        }
    }

    [[nodiscard]] quint16 colour(int group, int pixel) const
    {
        return pixel == m_clearPixel ? Clear : m_colours[size_t(group * GroupColours + pixel)];
    }
    /// The pixel value that shows a colour, or the nearest one.
    [[nodiscard]] int pixelFor(int group, quint16 look) const
    {
        return look == Clear ? m_clearPixel : m_nearest[size_t(group)][look];
    }
    /// The group in which a tile loses least.
    [[nodiscard]] int bestGroup(const Look &look) const
    {
        int best = 0;
        int least = std::numeric_limits<int>::max();
        for (int group = 0; group < Groups; ++group) {
            int error = 0;
            for (const quint16 wanted : look) {
                if (wanted != Clear)
                    error += NineBitColour::distance(wanted, colour(group, pixelFor(group, wanted)));
            }
            if (error < least) {
                least = error;
                best = group;
            }
        }
        return best;
    }

private:
    [[nodiscard]] uchar nearestIn(int group, quint16 number) const
    {
        int nearest = 0;
        int least = std::numeric_limits<int>::max();
        for (int pixel = 0; pixel < GroupColours; ++pixel) {
            const int distance = NineBitColour::distance(number, m_colours[size_t(group * GroupColours + pixel)]);
            if (pixel != m_clearPixel && distance < least) {
                least = distance;
                nearest = pixel;
            }
        }
        return uchar(nearest);
    }

    int m_clearPixel;
    std::array<quint16, Palette::Size> m_colours{};
    std::array<std::array<uchar, NineBitColour::Count>, Groups> m_nearest{};
};

/// Tiles by what they look like, in whichever orientation.
class KnownTiles
{
public:
    struct Known
    {
        int tile;
        int group;
        Look look;
    };

    /// The first tile of a look stays.
    void add(const Known &known)
    {
        if (const QByteArray key = keyOf(known.look); !m_tiles.contains(key))
            m_tiles.insert(key, known);
    }
    /// A cell that looks like this; not used when no tile does.
    [[nodiscard]] TileMap::TileData cellFor(const Look &look) const
    {
        const auto known = m_tiles.constFind(keyOf(look));
        if (known == m_tiles.cend())
            return {};
        const int orientation = TileOrientation::orientationOf(known->look, look);
        return {.index = known->tile,
                .rotate = (orientation & TileOrientation::RotateBit) != 0,
                .flip = (orientation & TileOrientation::FlipBit) != 0,
                .mirror = (orientation & TileOrientation::MirrorBit) != 0,
                .offset = known->group,
                .used = true};
    }

private:
    static QByteArray keyOf(const Look &look)
    {
        const Look first = TileOrientation::inFirstOrientation(look);
        return {reinterpret_cast<const char *>(first.data()), qsizetype(sizeof first)};
    }

    QHash<QByteArray, Known> m_tiles;
};

KnownTiles tilesOf(const TileSet &tileSet, const GroupedColours &colours, const QList<int> &freeTiles)
{
    const QSet<int> leftOut(freeTiles.cbegin(), freeTiles.cend());
    KnownTiles known;
    for (int tile = 0; tile < std::min(tileSet.count(), PictureCells::MostTiles); ++tile) {
        if (leftOut.contains(tile))
            continue;
        const int group = std::clamp(tileSet.tileOffset(tile), 0, Groups - 1);
        const Tile::Pixels pixels = tileSet.tile(tile)->pixels();
        Look look;
        std::transform(pixels.cbegin(), pixels.cend(), look.begin(),
                       [&](uchar pixel) { return colours.colour(group, pixel % GroupColours); });
        known.add({tile, group, look});
    }
    return known;
}

/// The picture's cell; what lies outside of it is clear.
Look lookAt(const QImage &picture, int column, int row, bool keepClearPixels)
{
    Look look;
    look.fill(Clear);
    for (int y = 0; y < std::min(Side, picture.height() - row * Side); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(row * Side + y)) + column * Side;
        for (int x = 0; x < std::min(Side, picture.width() - column * Side); ++x) {
            if (!keepClearPixels || qAlpha(line[x]) >= NxImage::LeastAlpha)
                look[size_t(y * Side + x)] = quint16(NineBitColour::nearest(line[x]));
        }
    }
    return look;
}

} // namespace

QList<int> PictureCells::blankTiles(const TileSet &tileSet)
{
    const std::vector<bool> shown = TileUse::of(tileSet);
    QList<int> atEnd;
    QList<int> between;
    bool drawn = false;
    for (int tile = tileSet.count() - 1; tile > 0; --tile) { // tile 0 is what blank maps show
        const bool blank = !shown[size_t(tile)] && TileUse::isBlank(tileSet, tile);
        drawn |= !blank;
        if (blank)
            (drawn ? between : atEnd).prepend(tile);
    }
    return atEnd + between;
}

PictureCells PictureCells::of(const QImage &picture, const TileSet &tileSet, const Choices &choices)
{
    PictureCells result;
    const bool keepClearPixels = choices.clearPixel >= 0;
    const int more = keepClearPixels ? Side - 1 : 0;
    result.size = QSize((picture.width() + more) / Side, (picture.height() + more) / Side);
    if (picture.isNull() || !NxImage::accepts(picture.size()))
        result.size = {0, 0};
    if (result.size.isEmpty())
        return result;

    const GroupedColours colours(choices.palette ? choices.palette : tileSet.palette().data(), choices.clearPixel);
    KnownTiles known = tilesOf(tileSet, colours, choices.freeTiles);
    for (int row = 0; row < result.size.height(); ++row) {
        const QImage band =
            picture.copy(0, row * Side, picture.width(), std::min(Side, picture.height() - row * Side))
                .convertToFormat(keepClearPixels ? QImage::Format_ARGB32 : QImage::Format_RGB32, Qt::AvoidDither);
        for (int column = 0; column < result.size.width(); ++column) {
            const Look wanted = lookAt(band, column, 0, keepClearPixels);
            if (choices.leavesOutClearCells
                && std::all_of(wanted.cbegin(), wanted.cend(), [](quint16 look) { return look == Clear; })) {
                result.cells.emplace_back();
                continue;
            }
            TileMap::TileData cell = known.cellFor(wanted);
            if (!cell.used) {
                const int group = colours.bestGroup(wanted);
                Addition addition{{}, group};
                Look shown;
                for (size_t i = 0; i < Area; ++i) {
                    const int pixel = colours.pixelFor(group, wanted[i]);
                    addition.pixels[i] = uchar(group * GroupColours + pixel);
                    shown[i] = colours.colour(group, pixel);
                    result.lostPixels += shown[i] != wanted[i] ? 1 : 0;
                }
                cell = known.cellFor(shown); // which it may be alike by now
                if (!cell.used) {
                    known.add({tileSet.count() + int(result.additions.size()), group, shown});
                    result.additions.push_back(addition);
                    cell = known.cellFor(shown);
                }
            }
            result.cells.push_back(cell);
        }
    }
    result.places = choices.freeTiles;
    for (int tile = tileSet.count(); tile < MostTiles; ++tile)
        result.places.append(tile);
    result.places = result.places.mid(0, qsizetype(result.additions.size()));
    return result;
}

void PictureCells::addTo(TileSet &tileSet)
{
    if (additions.empty() || !hasRoom())
        return;
    const int count = tileSet.count();
    TileSet::Snapshot tiles = tileSet.snapshot();
    for (size_t i = 0; i < additions.size(); ++i) {
        QImage image(Side, Side, QImage::Format_Indexed8);
        image.setColorTable(tileSet.palette() ? tileSet.palette()->colourTable()
                                              : QList<QRgb>(Palette::Size, qRgb(0, 0, 0)));
        for (int y = 0; y < Side; ++y)
            std::copy_n(additions[i].pixels.cbegin() + y * Side, Side, image.scanLine(y));
        const Tile::State tile{.image = image, .offset = additions[i].group};
        if (const int place = places[qsizetype(i)]; place < tiles.size())
            tiles[place] = tile;
        else
            tiles.append(tile);
    }
    tileSet.restore(tiles);
    for (TileMap::TileData &cell : cells) {
        if (cell.used && cell.index >= count)
            cell.index = places[cell.index - count];
    }
}
