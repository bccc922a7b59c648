// The chunks that hold pixels.

#include "pictures/asepritereader.h"
#include "pictures/packedbytes.h"

#include <algorithm>
#include <limits>

using ForeignFile::Texts;
using PackedBytes::Form;

namespace {

enum CelType { Raw = 0, Linked = 1, Compressed = 2, CompressedTiles = 3 };
enum TileSetFlag { ElsewhereFlag = 1, InsideFlag = 2, FirstIsEmpty = 4 };

constexpr int CellBits = 32;
constexpr qsizetype MaxCels = 1 << 17;
constexpr qsizetype MaxTileSets = 1024;

/// Takes pixels of red, green, blue and alpha for what they are in memory.
void takeColours(std::vector<QRgb> &pixels)
{
    for (QRgb &pixel : pixels) {
        const auto *rgba = reinterpret_cast<const uchar *>(&pixel);
        pixel = qRgba(rgba[0], rgba[1], rgba[2], rgba[3]);
    }
}

std::vector<QRgb> coloursOfGreys(const std::vector<uchar> &greys)
{
    std::vector<QRgb> colours(greys.size() / 2);
    for (size_t i = 0; i < colours.size(); ++i)
        colours[i] = qRgba(greys[2 * i], greys[2 * i], greys[2 * i], greys[2 * i + 1]);
    return colours;
}

quint64 celKey(int frame, int layer)
{
    return quint64(frame) << 32 | quint64(layer);
}

/// The picture that a program which draws tiles sees: a copy, with rows as they should be.
QImage imageOf(const AsepriteFile::Content::Pixels &pixels, const QList<QRgb> &colourTable)
{
    const bool isIndexed = pixels.colours.empty();
    QImage image(pixels.size, isIndexed ? QImage::Format_Indexed8 : QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    const qsizetype width = pixels.size.width();
    for (int y = 0; y < image.height(); ++y) {
        if (isIndexed)
            std::copy_n(pixels.indices.data() + y * width, width, image.scanLine(y));
        else
            std::copy_n(pixels.colours.data() + y * width, width, reinterpret_cast<QRgb *>(image.scanLine(y)));
    }
    if (isIndexed)
        image.setColorTable(colourTable);
    return image;
}

} // namespace

bool AsepriteReader::takeMemory(qint64 bytes)
{
    m_memory -= bytes;
    return m_memory >= 0
        || fail(Texts::tr("the pixels of the file take more than %1")
                    .arg(ForeignFile::sizeText(AsepriteFile::MaxUnpacked)));
}

bool AsepriteReader::readPixels(bool isPacked, ByteReader &chunk, Pixels &pixels)
{
    const bool isIndexed = m_content->isIndexed;
    const qint64 count = qint64(pixels.size.width()) * pixels.size.height();
    const qint64 size = count * m_pixelBytes;
    const Form form = isPacked ? Form::Zlib : Form::Plain;
    const QByteArrayView bytes = isPacked ? chunk.takeRest() : chunk.take(size);
    if (!takeMemory(count * (isIndexed ? 1 : qint64(sizeof(QRgb)))))
        return false;
    bool isWhole = PackedBytes::canHold(form, bytes.size(), size);
    if (isWhole && m_pixelBytes == sizeof(QRgb)) {
        pixels.colours.resize(size_t(count));
        isWhole = PackedBytes::unpack(form, bytes, reinterpret_cast<uchar *>(pixels.colours.data()), size);
        takeColours(pixels.colours);
    } else if (isWhole) {
        pixels.indices.resize(size_t(size));
        isWhole = PackedBytes::unpack(form, bytes, pixels.indices.data(), size);
        if (!isIndexed)
            pixels.colours = coloursOfGreys(std::exchange(pixels.indices, {}));
        else if (count > 0)
            m_largestIndex =
                std::max(m_largestIndex, int(*std::max_element(pixels.indices.cbegin(), pixels.indices.cend())));
    }
    return isWhole || fail(Texts::tr("the pixels are damaged"));
}

// Layer 2, x and y 2 each (signed), opacity 1, type 2, z 2 (signed), 5 bytes, and what the type says.
bool AsepriteReader::readCel(ByteReader &chunk)
{
    Content::Cel cel;
    cel.layer = chunk.take<quint16>();
    const int x = chunk.take<qint16>();
    const int y = chunk.take<qint16>();
    cel.at = {x, y};
    cel.opacity = chunk.take<quint8>();
    const int type = chunk.take<quint16>();
    cel.z = chunk.take<qint16>();
    chunk.skip(5);
    if (size_t(cel.layer) >= m_content->layers.size())
        return fail(Texts::tr("Frame %1 has a picture for layer %2 of %3")
                        .arg(frameNumber())
                        .arg(cel.layer + 1)
                        .arg(m_content->layers.size()));
    const Content::Layer &layer = m_content->layers[size_t(cel.layer)];
    if (!layer.isShown)
        return true;
    if (++m_celCount > MaxCels)
        return fail(Texts::tr("Its frames have more than %1 pictures of layers together").arg(MaxCels));
    if (m_celOf.contains(celKey(frameNumber(), cel.layer)))
        return fail(Texts::tr("%1: there are two pictures").arg(where(cel.layer)));
    if (!readCelContent(type, chunk, cel))
        return fail(Texts::tr("%1: %2").arg(where(cel.layer), m_problem));
    m_celOf.insert(celKey(frameNumber(), cel.layer), cel);
    m_content->frames.back().cels.push_back(std::move(cel));
    return true;
}

bool AsepriteReader::readCelContent(int type, ByteReader &chunk, Content::Cel &cel)
{
    const bool isTileMap = m_content->layers[size_t(cel.layer)].type == Content::Layer::TileMap;
    if (type == Linked)
        return readLink(chunk, cel);
    if (type != Raw && type != Compressed && type != CompressedTiles)
        return fail(Texts::tr("the picture is of an unknown kind, %1").arg(type));
    if (isTileMap != (type == CompressedTiles))
        return fail(Texts::tr("the picture is of another kind than the layer"));
    if (type == CompressedTiles)
        return readTileCells(chunk, cel);
    auto pixels = std::make_shared<Pixels>();
    const int width = chunk.take<quint16>();
    const int height = chunk.take<quint16>();
    pixels->size = {width, height};
    cel.pixels = pixels;
    return readPixels(type == Compressed, chunk, *pixels);
}

// The frame whose picture is the same 2.
bool AsepriteReader::readLink(ByteReader &chunk, Content::Cel &cel)
{
    const int frame = chunk.take<quint16>() + 1;
    const auto linked = m_celOf.constFind(celKey(frame, cel.layer));
    if (linked == m_celOf.cend())
        return fail(Texts::tr("the picture is that of frame %1, which has none or comes later").arg(frame));
    cel.pixels = linked->pixels;
    cel.tiles = linked->tiles;
    return true;
}

// Width, height in tiles 2 each, bits of a tile 2, masks of number, mirror, flip, swap 4 each, 10 bytes, a zlib stream.
bool AsepriteReader::readTileCells(ByteReader &chunk, Content::Cel &cel)
{
    auto tiles = std::make_shared<Content::TileCells>();
    const int width = chunk.take<quint16>();
    const int height = chunk.take<quint16>();
    tiles->size = {width, height};
    const int bits = chunk.take<quint16>();
    tiles->tileMask = chunk.take<quint32>();
    tiles->mirrorMask = chunk.take<quint32>();
    tiles->flipMask = chunk.take<quint32>();
    tiles->swapMask = chunk.take<quint32>();
    chunk.skip(10);
    if (bits != CellBits)
        return fail(Texts::tr("a tile has %1 bits; only %2 can be read").arg(bits).arg(CellBits));
    const QByteArrayView bytes = chunk.takeRest();
    const qint64 count = qint64(width) * height;
    const qint64 size = count * qint64(sizeof(quint32));
    if (!takeMemory(size))
        return false;
    if (!PackedBytes::canHold(Form::Zlib, bytes.size(), size))
        return fail(Texts::tr("the tiles are damaged"));
    tiles->cells.resize(size_t(count));
    if (!PackedBytes::unpack(Form::Zlib, bytes, reinterpret_cast<uchar *>(tiles->cells.data()), size))
        return fail(Texts::tr("the tiles are damaged"));
    for (quint32 &cell : tiles->cells)
        cell = qFromLittleEndian(cell);
    m_tileCells.emplace_back(cel.layer, tiles);
    cel.tiles = std::move(tiles);
    return true;
}

// Number 4, flags 4, tiles 4, width, height 2 each, 2 and 14 bytes, name; file and tile set 4 each if it is elsewhere;
// length 4 and a zlib stream of the tiles below each other if it is inside.
bool AsepriteReader::readTileSet(ByteReader &chunk)
{
    const auto id = chunk.take<quint32>();
    const auto flags = chunk.take<quint32>();
    const auto count = chunk.take<quint32>();
    const int width = chunk.take<quint16>();
    const int height = chunk.take<quint16>();
    chunk.skip(2 + 14);
    AsepriteFile::TileSet tileSet;
    tileSet.name = chunk.takeString();
    if (flags & ElsewhereFlag)
        chunk.skip(4 + 4);
    if (m_tileSets.contains(id) || m_tileSets.size() >= MaxTileSets)
        return fail(Texts::tr("It has two tile sets of number %1, or more than %2").arg(id).arg(MaxTileSets));
    if (!(flags & InsideFlag)) {
        m_remarks.add(Texts::tr("The tile set “%1” is in another file, and left out").arg(tileSet.name));
        m_tileSets.insert(id, -1);
        return true;
    }
    if (width == 0 || height == 0 || qint64(count) * height > std::numeric_limits<int>::max())
        return fail(Texts::tr("The tile set “%1” has %2 tiles of %3 × %4 pixels")
                        .arg(tileSet.name)
                        .arg(count)
                        .arg(width)
                        .arg(height));
    tileSet.tileSize = {width, height};
    tileSet.count = int(count);
    tileSet.firstIsEmpty = flags & FirstIsEmpty;
    Pixels pixels{{width, int(count) * height}, {}, {}};
    ByteReader stream(chunk.take(chunk.take<quint32>()));
    const qint64 memory = qint64(width) * pixels.size.height() * (m_content->isIndexed ? 1 : qint64(sizeof(QRgb)));
    // once more as the picture that is given away
    if (!takeMemory(memory) || !readPixels(true, stream, pixels))
        return fail(Texts::tr("The tile set “%1”: %2").arg(tileSet.name, m_problem));
    m_tileSets.insert(id, int(m_content->tileSets.size()));
    m_content->tileSets.append(std::move(tileSet));
    m_content->tilePixels.push_back(std::move(pixels));
    return true;
}

bool AsepriteReader::finishTileSets()
{
    const QList<QRgb> colours = m_content->colourTable(true);
    for (qsizetype i = 0; i < m_content->tileSets.size(); ++i)
        m_content->tileSets[i].picture = imageOf(m_content->tilePixels[size_t(i)], colours);
    for (Content::Layer &layer : m_content->layers) {
        if (layer.type != Content::Layer::TileMap || !layer.isShown)
            continue;
        const auto index = m_tileSets.constFind(layer.tileSetId);
        if (index == m_tileSets.cend())
            return fail(Texts::tr("The layer “%1” has the tiles of a set that is not there").arg(layer.name));
        layer.tileSet = *index;
    }
    for (const auto &[layer, tiles] : m_tileCells) {
        const int tileSet = m_content->layers[size_t(layer)].tileSet;
        if (tileSet < 0)
            continue;
        const auto count = quint32(m_content->tileSets.at(tileSet).count);
        for (const quint32 cell : tiles->cells) {
            const quint32 tile = cell & tiles->tileMask;
            if (tile >= count && tile != tiles->tileMask) // which is the empty one of old files
                return fail(Texts::tr("The layer “%1” has tile %2 of a set of %3")
                                .arg(m_content->layers[size_t(layer)].name)
                                .arg(tile)
                                .arg(count));
        }
    }
    return true;
}

bool AsepriteReader::finishFrames()
{
    qint64 drawn = 0;
    for (Content::Frame &frame : m_content->frames) {
        for (const Content::Cel &cel : frame.cels) {
            const QSize area = m_content->area(cel).size();
            drawn += qint64(area.width()) * area.height();
        }
        const auto isBelow = [](const Content::Cel &a, const Content::Cel &b) {
            return std::pair(a.layer + a.z, a.z) < std::pair(b.layer + b.z, b.z);
        };
        std::stable_sort(frame.cels.begin(), frame.cels.end(), isBelow);
    }
    if (drawn > AsepriteFile::MaxDrawn) {
        return fail(Texts::tr("Its layers have more than %1 million pixels in all frames together")
                        .arg(AsepriteFile::MaxDrawn / 1'000'000));
    }
    return true;
}
