// Tiles of 8 × 8 pixels, one after the other.
//
//   tiles-4bit        32 bytes a tile: its rows, two pixels a byte, the left one in the high nibble
//   tiles-8bit        64 bytes a tile: a palette index a pixel, the tile's palette offset in its high nibble
//   tiles-1bit        8 bytes a tile: its rows, bit 7 left, a bit set where the pixel is the ink
//   tile-attributes   a byte a tile: what the game knows of it, Tile::Attribute
//   tile-values       a byte or a word a tile, low byte first: the number that it was given

#include "model/tileset.h"
#include "nextdata/families.h"
#include "nextdata/range.h"
#include "nextdata/tr.h"

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
            return Failure{tr("“%1”: tile %2 (counted from 0) has the value %3, and %4 to %5 fit")
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

} // namespace

QList<Form> tileForms()
{
    const QList<Option> range = Range::options();
    const Option order = Option::choice(
        QStringLiteral("order"), tr("Order"), tr("In which order the pixels of a tile follow each other"),
        {{QStringLiteral("rows"), tr("By rows")}, {QStringLiteral("columns"), tr("By columns")}});
    const Option ink =
        Option::number(QStringLiteral("ink"), tr("Ink"),
                       tr("The colour (0–15) of the pixels that are set; all others are clear"), 0, 15, 1);
    const Option width =
        Option::choice(QStringLiteral("width"), tr("Width"), tr("How many bytes a value takes"),
                       {{QStringLiteral("byte"), tr("One byte")}, {QStringLiteral("word"), tr("Two bytes")}});
    return {
        {.id = QStringLiteral("tiles-4bit"),
         .kind = AssetKind::TileSet,
         .title = tr("Tiles, 4 bits a pixel"),
         .suffix = QStringLiteral("nxt"),
         .options = range,
         .size = size<Tile::DataSize>,
         .write = writeFourBits},
        {.id = QStringLiteral("tiles-8bit"),
         .kind = AssetKind::TileSet,
         .title = tr("Tiles, 8 bits a pixel"),
         .suffix = QStringLiteral("bin"),
         .options = range + QList{order},
         .size = size<PixelCount>,
         .write = writeEightBits},
        {.id = QStringLiteral("tiles-1bit"),
         .kind = AssetKind::TileSet,
         .title = tr("Tiles, 1 bit a pixel"),
         .suffix = QStringLiteral("ch8"),
         .options = range + QList{ink},
         .size = size<Tile::Size>,
         .write = writeOneBit},
        {.id = QStringLiteral("tile-attributes"),
         .kind = AssetKind::TileSet,
         .title = tr("Attributes of tiles"),
         .suffix = QStringLiteral("bin"),
         .noun = QStringLiteral("attributes"),
         .options = range,
         .size = size<1>,
         .write = writeAttributes},
        {.id = QStringLiteral("tile-values"),
         .kind = AssetKind::TileSet,
         .title = tr("Values of tiles"),
         .suffix = QStringLiteral("bin"),
         .noun = QStringLiteral("values"),
         .options = range + QList{width},
         .size = sizeOfValues,
         .write = writeValues},
    };
}

} // namespace NextData
