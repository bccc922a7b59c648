// Sprite patterns of 16 × 16 pixels, one after the other, their pixels row by row.
//
//   sprites-8bit     256 bytes a sprite: a palette index a pixel
//   sprites-packed   128 bytes a sprite: two pixels a byte, the left one in the high nibble
//
// In a bank of 4 bits the low nibble of a pixel is its colour, and the high one does not count.

#include "model/spritebank.h"
#include "nextdata/families.h"
#include "nextdata/pixels.h"
#include "nextdata/range.h"
#include "nextdata/texts.h"

namespace NextData {
namespace {

Result<Range> rangeOf(const Source &source, const OptionValues &values)
{
    return Range::chosen(values, source.as<SpriteBank>().count());
}

template <int SpriteBytes>
Result<qint64> size(const Source &source, const OptionValues &values)
{
    const auto range = rangeOf(source, values);
    return range ? Result(qint64(range->count) * SpriteBytes) : range.failure();
}

QByteArray pixelsOf(const SpriteBank &bank, const Range &range)
{
    constexpr int side = SpriteBank::SpriteSize;
    return pixelRows(bank.image().copy(0, range.first * side, side, range.count * side));
}

Data dataOf(const Range &range, const QByteArray &bytes, int bytesPerLine)
{
    return {{{QStringLiteral("first"), range.first}, {QStringLiteral("count"), range.count}},
            {{.bytes = bytes, .bytesPerLine = bytesPerLine}}};
}

Result<Data> writeEightBits(const Source &source, const OptionValues &values)
{
    const auto range = rangeOf(source, values);
    if (!range)
        return range.failure();
    return dataOf(*range, pixelsOf(source.as<SpriteBank>(), *range), SpriteBank::SpriteSize);
}

Result<Data> writePacked(const Source &source, const OptionValues &values)
{
    const auto range = rangeOf(source, values);
    if (!range)
        return range.failure();
    const auto &bank = source.as<SpriteBank>();
    const QByteArray pixels = pixelsOf(bank, *range);
    for (qsizetype i = 0; bank.depth() == Quenmora::EightBit && i < pixels.size(); ++i) {
        if (const int index = uchar(pixels[i]); index > 15) {
            return Failure{
                Texts::tr("“%1” is a bank of 8 bits: sprite %2 (counted from 0) has a pixel of index %3, and 4 bits "
                          "hold 0 to 15")
                    .arg(bank.name(), QString::number(range->first + i / SpriteBank::SpriteBytes),
                         QString::number(index))};
        }
    }
    return dataOf(*range, packedPairs(pixels), SpriteBank::SpriteSize / 2);
}

// Reading

constexpr qint64 SpriteMemory = 16384; ///< of the machine

template <int SpriteBytes>
Reader::Fit fits(qint64 size)
{
    if (size == 0 || size % SpriteBytes != 0)
        return Reader::Fit::None;
    return size == SpriteMemory ? Reader::Fit::Exact : Reader::Fit::Possible;
}

Result<Reading> readEightBits(const QByteArray &bytes, const OptionValues &values)
{
    constexpr int size = SpriteBank::SpriteBytes;
    const auto range = Range::inFile(values, bytes, size, SpriteBank::MaxCount);
    if (!range)
        return range.failure();
    const auto depth = values.is("depth", "4") ? Quenmora::FourBit : Quenmora::EightBit;
    return Reading{SpritesContent{depth, bytes.mid(qsizetype(range->first) * size, qsizetype(range->count) * size)},
                   Range::remarksOn(bytes, size)};
}

Result<Reading> readPacked(const QByteArray &bytes, const OptionValues &values)
{
    constexpr int size = SpriteBank::SpriteBytes / 2;
    const auto range = Range::inFile(values, bytes, size, SpriteBank::MaxCount);
    if (!range)
        return range.failure();
    const QByteArray pairs = bytes.mid(qsizetype(range->first) * size, qsizetype(range->count) * size);
    return Reading{SpritesContent{Quenmora::FourBit, unpackedPairs(pairs)}, Range::remarksOn(bytes, size)};
}

} // namespace

QList<Form> spriteForms()
{
    return {
        {.id = QStringLiteral("sprites-8bit"),
         .kind = AssetKind::SpriteBank,
         .title = Texts::tr("Sprites, 8 bits a pixel"),
         .suffix = QStringLiteral("spr"),
         .options = Range::options(),
         .size = size<SpriteBank::SpriteBytes>,
         .write = writeEightBits},
        {.id = QStringLiteral("sprites-packed"),
         .kind = AssetKind::SpriteBank,
         .title = Texts::tr("Sprites, 4 bits a pixel, packed"),
         .suffix = QStringLiteral("spr"),
         .options = Range::options(),
         .size = size<SpriteBank::SpriteBytes / 2>,
         .write = writePacked},
    };
}

QList<Reader> spriteReaders()
{
    const Option depth =
        Option::choice(QStringLiteral("depth"), Texts::tr("Depth"), Texts::tr("How many bits of a pixel count"),
                       {{QStringLiteral("8"), Texts::tr("8-bit, 256 colours")},
                        {QStringLiteral("4"), Texts::tr("4-bit, 16 colours")}});
    const QStringList suffixes{QStringLiteral("spr"), QStringLiteral("nxs"), QStringLiteral("bin")};
    return {
        {.id = QStringLiteral("sprites-8bit"),
         .kind = AssetKind::SpriteBank,
         .title = Texts::tr("Sprites, 8 bits a pixel"),
         .suffixes = suffixes,
         .options = QList{depth} + Range::readingOptions(),
         .fit = fits<SpriteBank::SpriteBytes>,
         .read = readEightBits},
        {.id = QStringLiteral("sprites-packed"),
         .kind = AssetKind::SpriteBank,
         .title = Texts::tr("Sprites, 4 bits a pixel, packed"),
         .suffixes = suffixes,
         .options = Range::readingOptions(),
         .fit = fits<SpriteBank::SpriteBytes / 2>,
         .read = readPacked},
    };
}

} // namespace NextData
