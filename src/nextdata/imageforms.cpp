// Full-screen pictures, a byte a pixel where nothing else is said.
//
//   layer2-256   49,152 bytes: 256 × 192 pixels by rows
//   layer2-320   81,920 bytes: 320 × 256 pixels by columns
//   layer2-640   81,920 bytes: 640 × 256 pixels by columns of pairs; the left one in the high nibble of a byte
//   lores        12,288 bytes: 128 × 96 pixels by rows; on request in two files of 48 rows, for $4000 and $6000
//
// Each may have the 512 bytes of its palette (form "palette") in front. Files are read in the other order as well, and
// with a palette of a byte an entry; the size of a file tells whether it has one.

#include "model/image.h"
#include "model/palette.h"
#include "nextdata/families.h"
#include "nextdata/palettewords.h"
#include "nextdata/pixels.h"
#include "nextdata/texts.h"

#include <algorithm>

namespace NextData {
namespace {

using Quenmora::ImageMode;

constexpr int PaletteBytes = 2 * Palette::Size;

template <ImageMode Mode>
QString refusal(const Source &source)
{
    const auto &image = source.as<Image>();
    if (image.mode() == Mode && image.image().size() == Image::sizeOf(Mode))
        return {};
    const auto text = [](QSize size) { return Texts::tr("%1 × %2").arg(size.width()).arg(size.height()); };
    return Texts::tr("“%1” has %2 pixels, and this form %3")
        .arg(image.name(), text(image.image().size()), text(Image::sizeOf(Mode)));
}

Failure noPalette(const Source &source)
{
    return {Texts::tr("“%1” has no palette that could stand in front").arg(source.name())};
}

template <ImageMode Mode>
Result<qint64> size(const Source &source, const OptionValues &values)
{
    const QSize pixels = Image::sizeOf(Mode);
    const qint64 bytes = qint64(pixels.width()) * pixels.height() / (Mode == Quenmora::Layer2_640x256 ? 2 : 1);
    if (!values.flag("palette"))
        return bytes;
    if (!source.as<Image>().palette())
        return noPalette(source);
    return PaletteBytes + bytes;
}

/// The blocks behind the palette, if that is wanted.
Result<Data> withPalette(const Source &source, const OptionValues &values, const QList<Data::Block> &pixels)
{
    const QSize size = source.as<Image>().image().size();
    Data data{{{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}}, {}};
    if (values.flag("palette")) {
        const QPointer<Palette> palette = source.as<Image>().palette();
        if (!palette)
            return noPalette(source);
        data.blocks.append({.bytes = paletteWords(*palette, 0, Palette::Size), .name = QStringLiteral("palette")});
    }
    for (Data::Block block : pixels) {
        if (data.blocks.isEmpty()) // its label is that of the whole
            block.name.clear();
        data.blocks.append(block);
    }
    return data;
}

Data::Block pixelBlock(const QByteArray &bytes)
{
    return {.bytes = bytes, .name = QStringLiteral("pixels"), .bytesPerLine = 32};
}

Result<Data> write256(const Source &source, const OptionValues &values)
{
    return withPalette(source, values, {pixelBlock(pixelRows(source.as<Image>().image()))});
}

Result<Data> write320(const Source &source, const OptionValues &values)
{
    const QImage image = source.as<Image>().image();
    return withPalette(source, values, {pixelBlock(columnsOf(pixelRows(image), image.width()))});
}

Result<Data> write640(const Source &source, const OptionValues &values)
{
    const QImage image = source.as<Image>().image();
    const QByteArray pixels = pixelRows(image);
    // the high nibble of all pixels comes from one register
    const int offset = uchar(pixels.front()) >> 4;
    for (qsizetype i = 0; i < pixels.size(); ++i) {
        if (const int index = uchar(pixels[i]); index >> 4 != offset) {
            return Failure{
                Texts::tr("“%1”: the pixel at %2, %3 has the index %4, and only those from %5 to %6 go with the first "
                          "pixel")
                    .arg(source.name(), QString::number(i % image.width()), QString::number(i / image.width()),
                         QString::number(index), QString::number(offset * 16), QString::number(offset * 16 + 15))};
        }
    }
    const QByteArray bytes = columnsOf(packedPairs(pixels), image.width() / 2);
    Result<Data> data = withPalette(source, values, {pixelBlock(bytes)});
    if (!data)
        return data;
    Data withOffset = *std::move(data);
    withOffset.constants.append({QStringLiteral("offset"), offset});
    return withOffset;
}

Result<Data> writeLoRes(const Source &source, const OptionValues &values)
{
    const QByteArray pixels = pixelRows(source.as<Image>().image());
    if (!values.flag("halves"))
        return withPalette(source, values, {pixelBlock(pixels)});
    Data::Block top = pixelBlock(pixels.first(pixels.size() / 2));
    Data::Block bottom = pixelBlock(pixels.last(pixels.size() / 2));
    bottom.name = QStringLiteral("bottom");
    bottom.startsFile = true;
    return withPalette(source, values, {top, bottom});
}

template <ImageMode Mode>
Form form(const char *id, const QString &title, const char *suffix, const QList<Option> &options,
          Result<Data> (*write)(const Source &, const OptionValues &))
{
    return {.id = QString::fromLatin1(id),
            .kind = AssetKind::Image,
            .title = title,
            .suffix = QString::fromLatin1(suffix),
            .options = options,
            .size = size<Mode>,
            .write = write,
            .refusal = refusal<Mode>};
}

// Reading

template <ImageMode Mode>
constexpr qint64 pixelBytes()
{
    switch (Mode) {
    case Quenmora::Layer2_256x192:
        return 256 * 192;
    case Quenmora::Layer2_320x256:
        return 320 * 256;
    case Quenmora::Layer2_640x256:
        return 640 * 256 / 2;
    case Quenmora::LoRes_128x96:
        return 128 * 96;
    }
    return 0;
}

template <ImageMode Mode>
Reader::Fit fits(qint64 size)
{
    const qint64 palette = size - pixelBytes<Mode>();
    if (palette == 0 || palette == PaletteBytes || palette == Palette::Size)
        return Reader::Fit::Exact;
    const bool isHalf = Mode == Quenmora::LoRes_128x96
        && (size == pixelBytes<Mode>() / 2 || size == pixelBytes<Mode>() / 2 + PaletteBytes);
    return isHalf ? Reader::Fit::Possible : Reader::Fit::None;
}

template <ImageMode Mode>
Result<Reading> readImage(const QByteArray &bytes, const OptionValues &values)
{
    constexpr qint64 wanted = pixelBytes<Mode>();
    if (fits<Mode>(bytes.size()) == Reader::Fit::None) {
        return Failure{Texts::tr("The file has %1 bytes, and such a picture %2, or %3 or %4 with its palette")
                           .arg(QString::number(bytes.size()), QString::number(wanted),
                                QString::number(wanted + PaletteBytes), QString::number(wanted + Palette::Size))};
    }
    const bool isHalf = bytes.size() < wanted;
    QByteArray pixels = bytes.last(isHalf ? wanted / 2 : wanted);
    const QByteArray palette = bytes.first(bytes.size() - pixels.size());
    pixels.append(wanted - pixels.size(), '\0');

    // bytes by rows: the pixels, or pairs of them
    const bool isPacked = Mode == Quenmora::Layer2_640x256;
    const int width = Image::sizeOf(Mode).width() / (isPacked ? 2 : 1);
    const int height = Image::sizeOf(Mode).height();
    if (values.is("order", "columns"))
        pixels = columnsOf(pixels, height); // turns rows and columns back as well
    Q_ASSERT(pixels.size() == qsizetype(width) * height);
    if (isPacked) {
        const int group = values.number("group") << 4;
        pixels = unpackedPairs(pixels);
        std::transform(pixels.cbegin(), pixels.cend(), pixels.begin(),
                       [group](char pixel) { return char(pixel | group); });
    }
    Reading reading{
        ImageContent{Mode, pixels, palette.size() == PaletteBytes ? wordsOf(palette) : wordsOfColourBytes(palette)},
        {}};
    if (isHalf)
        reading.remarks.append(Texts::tr("The file has one half of the picture, which becomes the upper one"));
    return reading;
}

template <ImageMode Mode>
Reader reader(const char *id, const QString &title, const QStringList &suffixes)
{
    const Option::Choice byRows{QStringLiteral("rows"), Texts::tr("By rows")};
    const Option::Choice byColumns{QStringLiteral("columns"), Texts::tr("By columns")};
    const bool isUsuallyByRows = Mode == Quenmora::Layer2_256x192 || Mode == Quenmora::LoRes_128x96;
    QList<Option> options{Option::choice(QStringLiteral("order"), Texts::tr("Order"),
                                         Texts::tr("In which order the pixels follow each other"),
                                         isUsuallyByRows ? QList{byRows, byColumns} : QList{byColumns, byRows})};
    if (Mode == Quenmora::Layer2_640x256)
        options.append(Option::number(
            QStringLiteral("group"), Texts::tr("Palette offset"),
            Texts::tr("The group of sixteen colours of all pixels, which comes from a register"), 0, 15, 0));
    return {.id = QString::fromLatin1(id),
            .kind = AssetKind::Image,
            .title = title,
            .suffixes = suffixes,
            .options = options,
            .fit = fits<Mode>,
            .read = readImage<Mode>};
}

} // namespace

QList<Form> imageForms()
{
    const Option palette = Option::flag(QStringLiteral("palette"), Texts::tr("Palette in front"),
                                        Texts::tr("Writes the 512 bytes of the image's palette before the pixels"));
    const Option halves = Option::flag(QStringLiteral("halves"), Texts::tr("Two halves"),
                                       Texts::tr("Writes the upper and the lower half into files of their own"));
    return {
        form<Quenmora::Layer2_256x192>("layer2-256", Texts::tr("Layer 2, 256 × 192, by rows"), "nxi", {palette},
                                       write256),
        form<Quenmora::Layer2_320x256>("layer2-320", Texts::tr("Layer 2, 320 × 256, by columns"), "nxi", {palette},
                                       write320),
        form<Quenmora::Layer2_640x256>("layer2-640", Texts::tr("Layer 2, 640 × 256, by columns, two pixels a byte"),
                                       "nxi", {palette}, write640),
        form<Quenmora::LoRes_128x96>("lores", Texts::tr("LoRes, 128 × 96, by rows"), "slr", {palette, halves},
                                     writeLoRes),
    };
}

QList<Reader> imageReaders()
{
    const QStringList layer2{QStringLiteral("nxi"), QStringLiteral("sl2"), QStringLiteral("nl2"),
                             QStringLiteral("bin")};
    const QStringList lores{QStringLiteral("slr"), QStringLiteral("nxi"), QStringLiteral("bin")};
    return {
        reader<Quenmora::Layer2_256x192>("layer2-256", Texts::tr("Layer 2, 256 × 192"), layer2),
        reader<Quenmora::Layer2_320x256>("layer2-320", Texts::tr("Layer 2, 320 × 256"), layer2),
        reader<Quenmora::Layer2_640x256>("layer2-640", Texts::tr("Layer 2, 640 × 256, two pixels a byte"), layer2),
        reader<Quenmora::LoRes_128x96>("lores", Texts::tr("LoRes, 128 × 96"), lores),
    };
}

} // namespace NextData
