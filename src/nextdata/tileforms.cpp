// Tiles of 8 × 8 pixels, one after the other.
//
//   tiles-4bit        32 bytes a tile: its rows, two pixels a byte, the left one in the high nibble
//   tiles-8bit        64 bytes a tile: a palette index a pixel, the tile's palette offset in its high nibble
//   tiles-1bit        8 bytes a tile: its rows, bit 7 left, a bit set where the pixel is the ink
//   tile-attributes   a byte a tile: what the game knows of it, Tile::Attribute
//   tile-values       a byte or a word a tile, low byte first: the number that it was given
//
// A tile of 8 bits is read with the palette offset that all its pixels share.

#include "model/tileset.h"
#include "nextdata/families.h"
#include "nextdata/range.h"
#include "nextdata/texts.h"

#include <algorithm>

namespace NextData {
namespace {

constexpr int PixelCount = Tile::Size * Tile::Size;

Result<Range> rangeOf(const Source &source, const OptionValues &values)
{
    return Range::chosen(values, source.as<TileSet>().count());
}

template <int TileBytes>
Result<qint64> size(const Source &source, const OptionValues &values)
{
    const auto range = rangeOf(source, values);
    return range ? Result(qint64(range->count) * TileBytes) : range.failure();
}

/// The bytes that bytesOf() makes of each tile's number.
template <typename BytesOf>
Result<Data> write(const Source &source, const OptionValues &values, BytesOf bytesOf)
{
    const auto range = rangeOf(source, values);
    if (!range)
        return range.failure();
    QByteArray bytes;
    for (int i = range->first; i < range->first + range->count; ++i)
        bytes += bytesOf(i);
    return Data{{{QStringLiteral("first"), range->first}, {QStringLiteral("count"), range->count}}, {{bytes}}};
}

Result<Data> writeFourBits(const Source &source, const OptionValues &values)
{
    const auto &tiles = source.as<TileSet>();
    return write(source, values, [&tiles](int i) { return tiles.tile(i)->toNextData(); });
}

Result<Data> writeEightBits(const Source &source, const OptionValues &values)
{
    const auto &tiles = source.as<TileSet>();
    // turned and mirrored, rows become columns
    const bool byColumns = values.is("order", "columns");
    return write(source, values, [&tiles, byColumns](int i) {
        QByteArray pixels(PixelCount, Qt::Uninitialized);
        tiles.renderTile(i, byColumns, false, byColumns, tiles.tileOffset(i), reinterpret_cast<uchar *>(pixels.data()),
                         Tile::Size);
        return pixels;
    });
}

Result<Data> writeOneBit(const Source &source, const OptionValues &values)
{
    const auto &tiles = source.as<TileSet>();
    const int ink = values.number("ink");
    return write(source, values, [&tiles, ink](int i) {
        const Tile::Pixels pixels = tiles.tile(i)->pixels();
        QByteArray rows(Tile::Size, '\0');
        for (int pixel = 0; pixel < PixelCount; ++pixel) {
            if ((pixels[size_t(pixel)] & 15) == ink)
                rows[pixel / Tile::Size] = char(rows[pixel / Tile::Size] | 0x80 >> pixel % Tile::Size);
        }
        return rows;
    });
}

Result<Data> writeAttributes(const Source &source, const OptionValues &values)
{
    const auto &tiles = source.as<TileSet>();
    return write(source, values, [&tiles](int i) { return QByteArray(1, char(tiles.tile(i)->attributes())); });
}

Result<qint64> sizeOfValues(const Source &source, const OptionValues &values)
{
    return values.is("width", "word") ? size<2>(source, values) : size<1>(source, values);
}

Result<Data> writeValues(const Source &source, const OptionValues &values)
{
    const auto &tiles = source.as<TileSet>();
    const auto range = rangeOf(source, values);
    if (!range)
        return range.failure();
    const bool areWords = values.is("width", "word");
    // a negative number is as good as the positive one of the same bits
    const int least = areWords ? -0x8000 : -0x80;
    const int most = areWords ? 0xFFFF : 0xFF;
    for (int i = range->first; i < range->first + range->count; ++i) {
        const int value = tiles.tile(i)->value();
        if (value < least || value > most) {
            return Failure{Texts::tr("“%1”: tile %2 (counted from 0) has the value %3, and %4 to %5 fit")
                               .arg(tiles.name(), QString::number(i), QString::number(value), QString::number(least),
                                    QString::number(most))};
        }
    }
    return write(source, values, [&tiles, areWords](int i) {
        const int value = tiles.tile(i)->value();
        const char bytes[] = {char(value), char(value >> 8)};
        return QByteArray(bytes, areWords ? 2 : 1);
    });
}

// Reading

constexpr int MostTiles = 4096; ///< in a tile set that is read: eight times what a map shows

template <int TileBytes, int Usual = 0>
Reader::Fit fits(qint64 size)
{
    if (size == 0 || size % TileBytes != 0)
        return Reader::Fit::None;
    return size == Usual ? Reader::Fit::Exact : Reader::Fit::Possible;
}

/// The tiles that pixelsOf() makes of the bytes of each.
template <typename PixelsOf>
Result<Reading> read(const QByteArray &bytes, const OptionValues &values, int tileBytes, PixelsOf pixelsOf)
{
    const auto range = Range::inFile(values, bytes, tileBytes, MostTiles);
    if (!range)
        return range.failure();
    TilesContent content;
    for (int i = range->first; i < range->first + range->count; ++i)
        content.tiles.append(pixelsOf(reinterpret_cast<const uchar *>(bytes.constData()) + qsizetype(i) * tileBytes));
    return Reading{content, Range::remarksOn(bytes, tileBytes)};
}

Result<Reading> readFourBits(const QByteArray &bytes, const OptionValues &values)
{
    const int offset = values.number("offset");
    return read(bytes, values, Tile::DataSize, [offset](const uchar *data) {
        TilesContent::Pixels tile{.offset = offset};
        for (size_t pair = 0; pair < Tile::DataSize; ++pair) {
            tile.pixels[2 * pair] = data[pair] >> 4;
            tile.pixels[2 * pair + 1] = data[pair] & 15;
        }
        return tile;
    });
}

Result<Reading> readEightBits(const QByteArray &bytes, const OptionValues &values)
{
    const bool byColumns = values.is("order", "columns");
    return read(bytes, values, PixelCount, [byColumns](const uchar *data) {
        TilesContent::Pixels tile{.offset = data[0] >> 4};
        for (size_t at = 0; at < PixelCount; ++at) {
            tile.pixels[at] = byColumns ? data[at % Tile::Size * Tile::Size + at / Tile::Size] : data[at];
            if (tile.pixels[at] >> 4 != tile.offset)
                tile.offset = TilesContent::MixedOffset;
        }
        if (tile.offset != TilesContent::MixedOffset)
            std::transform(tile.pixels.cbegin(), tile.pixels.cend(), tile.pixels.begin(),
                           [](uchar pixel) { return uchar(pixel & 15); });
        return tile;
    });
}

Result<Reading> readOneBit(const QByteArray &bytes, const OptionValues &values)
{
    const int ink = values.number("ink");
    const int paper = values.number("paper");
    const int offset = values.number("offset");
    return read(bytes, values, Tile::Size, [ink, paper, offset](const uchar *data) {
        TilesContent::Pixels tile{.offset = offset};
        for (size_t at = 0; at < PixelCount; ++at)
            tile.pixels[at] = uchar(data[at / Tile::Size] & 0x80 >> at % Tile::Size ? ink : paper);
        return tile;
    });
}

Reader::Fit fitsNumbers(qint64 size)
{
    return size > 0 && size <= 2 * MostTiles ? Reader::Fit::Possible : Reader::Fit::None;
}

Result<Reading> readNumbers(const QByteArray &bytes, TileNumbersContent::Meaning meaning, int first, int numberBytes)
{
    if (bytes.size() / numberBytes > MostTiles)
        return Failure{Texts::tr("The file holds numbers of %1 tiles, and a tile set has at most %2")
                           .arg(bytes.size() / numberBytes)
                           .arg(MostTiles)};
    TileNumbersContent content{meaning, first, {}};
    for (qsizetype at = 0; at + numberBytes <= bytes.size(); at += numberBytes)
        content.numbers.append(uchar(bytes[at]) | (numberBytes > 1 ? uchar(bytes[at + 1]) << 8 : 0));
    return Reading{content, Range::remarksOn(bytes, numberBytes)};
}

Result<Reading> readAttributes(const QByteArray &bytes, const OptionValues &values)
{
    return readNumbers(bytes, TileNumbersContent::Meaning::Attributes, values.number("first"), 1);
}

Result<Reading> readValues(const QByteArray &bytes, const OptionValues &values)
{
    return readNumbers(bytes, TileNumbersContent::Meaning::Values, values.number("first"),
                       values.is("width", "word") ? 2 : 1);
}

Option pixelOrder()
{
    return Option::choice(
        QStringLiteral("order"), Texts::tr("Order"), Texts::tr("In which order the pixels of a tile follow each other"),
        {{QStringLiteral("rows"), Texts::tr("By rows")}, {QStringLiteral("columns"), Texts::tr("By columns")}});
}

Option valueWidth()
{
    return Option::choice(
        QStringLiteral("width"), Texts::tr("Width"), Texts::tr("How many bytes a value takes"),
        {{QStringLiteral("byte"), Texts::tr("One byte")}, {QStringLiteral("word"), Texts::tr("Two bytes")}});
}

} // namespace

QList<Form> tileForms()
{
    const QList<Option> range = Range::options();
    const Option ink =
        Option::number(QStringLiteral("ink"), Texts::tr("Ink"),
                       Texts::tr("The colour (0–15) of the pixels that are set; all others are clear"), 0, 15, 1);
    return {
        {.id = QStringLiteral("tiles-4bit"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Tiles, 4 bits a pixel"),
         .suffix = QStringLiteral("nxt"),
         .options = range,
         .size = size<Tile::DataSize>,
         .write = writeFourBits},
        {.id = QStringLiteral("tiles-8bit"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Tiles, 8 bits a pixel"),
         .suffix = QStringLiteral("bin"),
         .options = range + QList{pixelOrder()},
         .size = size<PixelCount>,
         .write = writeEightBits},
        {.id = QStringLiteral("tiles-1bit"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Tiles, 1 bit a pixel"),
         .suffix = QStringLiteral("ch8"),
         .options = range + QList{ink},
         .size = size<Tile::Size>,
         .write = writeOneBit},
        {.id = QStringLiteral("tile-attributes"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Attributes of tiles"),
         .suffix = QStringLiteral("bin"),
         .noun = QStringLiteral("attributes"),
         .options = range,
         .size = size<1>,
         .write = writeAttributes},
        {.id = QStringLiteral("tile-values"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Values of tiles"),
         .suffix = QStringLiteral("bin"),
         .noun = QStringLiteral("values"),
         .options = range + QList{valueWidth()},
         .size = sizeOfValues,
         .write = writeValues},
    };
}

QList<Reader> tileReaders()
{
    const QList<Option> range = Range::readingOptions();
    const Option offset =
        Option::number(QStringLiteral("offset"), Texts::tr("Palette offset"),
                       Texts::tr("The group of sixteen colours in which the tiles are shown"), 0, 15, 0);
    const Option ink = Option::number(QStringLiteral("ink"), Texts::tr("Ink"),
                                      Texts::tr("The colour (0–15) of the pixels that are set"), 0, 15, 1);
    const Option paper = Option::number(QStringLiteral("paper"), Texts::tr("Paper"),
                                        Texts::tr("The colour (0–15) of all others"), 0, 15, 0);
    const Option firstTile =
        Option::number(QStringLiteral("first"), Texts::tr("First"),
                       Texts::tr("The tile that the first number is for, counted from 0"), 0, MostTiles - 1, 0);
    constexpr int FontBytes = 96 * Tile::Size; // the characters of a ZX Spectrum font
    return {
        {.id = QStringLiteral("tiles-4bit"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Tiles, 4 bits a pixel"),
         .suffixes = {QStringLiteral("nxt"), QStringLiteral("til"), QStringLiteral("bin")},
         .options = QList{offset} + range,
         .fit = fits<Tile::DataSize>,
         .read = readFourBits},
        {.id = QStringLiteral("tiles-8bit"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Tiles, 8 bits a pixel"),
         .suffixes = {QStringLiteral("nxt"), QStringLiteral("til"), QStringLiteral("bin")},
         .options = QList{pixelOrder()} + range,
         .fit = fits<PixelCount>,
         .read = readEightBits},
        {.id = QStringLiteral("tiles-1bit"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Tiles, 1 bit a pixel"),
         .suffixes = {QStringLiteral("ch8"), QStringLiteral("fnt"), QStringLiteral("chr"), QStringLiteral("udg"),
                      QStringLiteral("bin")},
         .options = QList{ink, paper, offset} + range,
         .fit = fits<Tile::Size, FontBytes>,
         .read = readOneBit},
        {.id = QStringLiteral("tile-attributes"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Attributes of tiles"),
         .suffixes = {QStringLiteral("bin")},
         .options = {firstTile},
         .fit = fitsNumbers,
         .read = readAttributes},
        {.id = QStringLiteral("tile-values"),
         .kind = AssetKind::TileSet,
         .title = Texts::tr("Values of tiles"),
         .suffixes = {QStringLiteral("bin")},
         .options = {firstTile, valueWidth()},
         .fit = fitsNumbers,
         .read = readValues},
    };
}

} // namespace NextData
