// Palettes. An entry is a word of two bytes, high byte first: RRRGGGBB, P000000B (model/nextcolour.h).
//
//   palette         512 bytes: the words of entries 0–255
//   palette-513     the same, and the transparency in a byte more
//   palette-8bit    256 bytes: RRRGGGBB alone
//   palette-group   32 bytes: the words of the sixteen entries of one palette offset
//   palette-cycles  the ranges whose colours go round:
//
//                   offset  size  content
//                   0       1     how many ranges there are
//                   4i + 1  1     first entry of range i
//                   4i + 2  1     last entry
//                   4i + 3  1     frames of 20 ms from step to step
//                   4i + 4  1     0: colours move to higher entries, 1: to lower ones
//
// Files with fewer words than these are read as well; the entries that they lack stay as they are.

#include "model/colourcycle.h"
#include "model/palette.h"
#include "model/project.h"
#include "nextdata/families.h"
#include "nextdata/palettewords.h"
#include "nextdata/texts.h"

#include <algorithm>

namespace NextData {
namespace {

constexpr int GroupSize = 16;
constexpr char HardwareTransparency = '\xE3'; ///< what the machine starts with, as an index and as a colour

Result<qint64> sizeOfWords(const Source &, const OptionValues &)
{
    return 2 * Palette::Size;
}

Result<Data> writeWords(const Source &source, const OptionValues &)
{
    return Data{{{QStringLiteral("count"), Palette::Size}},
                {{.bytes = paletteWords(source.as<Palette>(), 0, Palette::Size)}}};
}

Result<qint64> sizeWithTransparency(const Source &, const OptionValues &)
{
    return 2 * Palette::Size + 1;
}

Result<Data> writeWithTransparency(const Source &source, const OptionValues &values)
{
    const auto &palette = source.as<Palette>();
    const int index = palette.transparencyIndex();
    char transparency = HardwareTransparency;
    if (index >= 0)
        transparency = values.is("transparency", "index") ? char(index) : char(palette.rawColour(index) >> 8);
    return Data{{{QStringLiteral("count"), Palette::Size}, {QStringLiteral("transparency"), uchar(transparency)}},
                {{.bytes = paletteWords(palette, 0, Palette::Size)},
                 {.bytes = QByteArray(1, transparency), .comment = Texts::tr("transparency")}}};
}

Result<qint64> sizeOfBytes(const Source &, const OptionValues &)
{
    return Palette::Size;
}

Result<Data> writeBytes(const Source &source, const OptionValues &)
{
    QByteArray bytes;
    for (int i = 0; i < Palette::Size; ++i)
        bytes += char(source.as<Palette>().rawColour(i) >> 8);
    return Data{{{QStringLiteral("count"), Palette::Size}}, {{.bytes = bytes}}};
}

Result<qint64> sizeOfGroup(const Source &, const OptionValues &)
{
    return 2 * GroupSize;
}

Result<Data> writeGroup(const Source &source, const OptionValues &values)
{
    const int group = values.number("group");
    return Data{{{QStringLiteral("count"), GroupSize}, {QStringLiteral("offset"), group}},
                {{.bytes = paletteWords(source.as<Palette>(), group * GroupSize, GroupSize)}}};
}

ColourCycles::List cyclesOf(const Source &source)
{
    return ColourCycles::of(*source.project().extras(), source.id());
}

Result<qint64> sizeOfCycles(const Source &source, const OptionValues &)
{
    return 1 + 4 * cyclesOf(source).size();
}

Result<Data> writeCycles(const Source &source, const OptionValues &)
{
    const ColourCycles::List cycles = cyclesOf(source);
    Data data{{{QStringLiteral("count"), cycles.size()}},
              {{.bytes = QByteArray(1, char(cycles.size())), .comment = Texts::tr("ranges")}}};
    for (const ColourCycle &cycle : cycles) {
        QByteArray bytes;
        for (const int byte : {cycle.first, cycle.last, cycle.frames, int(cycle.backwards)})
            bytes += char(byte);
        data.blocks.append({.bytes = bytes});
    }
    return data;
}

// Reading

template <qint64 Bytes>
Reader::Fit fitsWords(qint64 size)
{
    if (size == Bytes)
        return Reader::Fit::Exact;
    return size > 0 && size < Bytes && size % 2 == 0 ? Reader::Fit::Possible : Reader::Fit::None;
}

template <qint64 Bytes>
Reader::Fit fitsExactly(qint64 size)
{
    return size == Bytes ? Reader::Fit::Exact : Reader::Fit::None;
}

Failure wrongSize(const QByteArray &bytes, const QString &wanted)
{
    return {Texts::tr("The file has %1 bytes, and such a palette %2").arg(QString::number(bytes.size()), wanted)};
}

Result<Reading> readEntries(const QByteArray &bytes, int first, int most)
{
    if (bytes.size() % 2 != 0 || bytes.size() > 2 * most)
        return wrongSize(bytes, Texts::tr("2 an entry, %1 in all").arg(2 * most));
    Reading reading{PaletteContent{first, wordsOf(bytes)}};
    if (bytes.size() < 2 * most)
        reading.remarks.append(Texts::tr("The file has %1 entries; the others stay as they are").arg(bytes.size() / 2));
    return reading;
}

Result<Reading> readWords(const QByteArray &bytes, const OptionValues &)
{
    return readEntries(bytes, 0, Palette::Size);
}

Result<Reading> readGroup(const QByteArray &bytes, const OptionValues &values)
{
    return readEntries(bytes, values.number("group") * GroupSize, GroupSize);
}

Result<Reading> readWithTransparency(const QByteArray &bytes, const OptionValues &values)
{
    constexpr int Size = 2 * Palette::Size + 1;
    if (bytes.size() != Size)
        return wrongSize(bytes, QString::number(Size));
    PaletteContent palette{0, wordsOf(bytes.first(Size - 1))};
    const int last = uchar(bytes.back());
    const auto hasColour = [last](quint16 word) { return word >> 8 == last; };
    const auto entry = std::find_if(palette.words.cbegin(), palette.words.cend(), hasColour);
    if (values.is("transparency", "index"))
        palette.transparency = last;
    else if (values.is("transparency", "colour"))
        palette.transparency = entry != palette.words.cend() ? int(entry - palette.words.cbegin()) : -1;
    return Reading{palette};
}

Result<Reading> readBytes(const QByteArray &bytes, const OptionValues &)
{
    if (bytes.size() != Palette::Size)
        return wrongSize(bytes, QString::number(Palette::Size));
    return Reading{PaletteContent{0, wordsOfColourBytes(bytes)}};
}

Reader::Fit fitsCycles(qint64 size)
{
    return size % 4 == 1 && size <= 1 + 4 * Palette::Size ? Reader::Fit::Possible : Reader::Fit::None;
}

Result<Reading> readCycles(const QByteArray &bytes, const OptionValues &)
{
    const auto byte = [&bytes](qsizetype at) { return int(uchar(bytes[at])); };
    ColourCyclesContent content;
    for (qsizetype at = 1; at + 3 < bytes.size(); at += 4)
        content.cycles.append({byte(at), byte(at + 1), byte(at + 2), byte(at + 3) == 1});
    if (bytes.size() != 1 + 4 * byte(0) || ColourCycles::sound(content.cycles) != content.cycles)
        return Failure{Texts::tr("The records do not lie in the file as its beginning says")};
    return Reading{content};
}

} // namespace

QByteArray paletteWords(const Palette &palette, int first, int count)
{
    QByteArray bytes;
    for (int i = first; i < first + count; ++i) {
        const quint16 word = palette.rawColour(i);
        bytes += char(word >> 8);
        bytes += char(word & 0xFF);
    }
    return bytes;
}

QList<quint16> wordsOf(const QByteArray &bytes)
{
    QList<quint16> words;
    for (qsizetype at = 0; at + 1 < bytes.size(); at += 2)
        words.append(quint16(uchar(bytes[at]) << 8 | uchar(bytes[at + 1])));
    return words;
}

QList<quint16> wordsOfColourBytes(const QByteArray &bytes)
{
    QList<quint16> words;
    for (const char byte : bytes)
        words.append(quint16(uchar(byte) << 8 | ((byte & 3) != 0 ? 1 : 0)));
    return words;
}

QList<Form> paletteForms()
{
    const Option transparency =
        Option::choice(QStringLiteral("transparency"), Texts::tr("Transparency"),
                       Texts::tr("What the last byte holds of the transparent entry; $E3 for a palette without one"),
                       {{QStringLiteral("colour"), Texts::tr("Its colour RRRGGGBB, for layers")},
                        {QStringLiteral("index"), Texts::tr("Its index, for sprites")}});
    const Option group =
        Option::number(QStringLiteral("group"), Texts::tr("Palette offset"),
                       Texts::tr("Which of the sixteen groups of sixteen entries is written"), 0, 15, 0);
    return {
        {.id = QStringLiteral("palette"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Palette, 9 bits a colour"),
         .suffix = QStringLiteral("pal"),
         .noun = QStringLiteral("palette"),
         .options = {},
         .size = sizeOfWords,
         .write = writeWords},
        {.id = QStringLiteral("palette-513"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Palette, 9 bits a colour, and the transparency"),
         .suffix = QStringLiteral("npl"),
         .noun = QStringLiteral("palette"),
         .options = {transparency},
         .size = sizeWithTransparency,
         .write = writeWithTransparency},
        {.id = QStringLiteral("palette-8bit"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Palette, 8 bits a colour"),
         .suffix = QStringLiteral("pal"),
         .noun = QStringLiteral("palette"),
         .options = {},
         .size = sizeOfBytes,
         .write = writeBytes},
        {.id = QStringLiteral("palette-group"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Sixteen colours of a palette, 9 bits each"),
         .suffix = QStringLiteral("nxp"),
         .noun = QStringLiteral("palette"),
         .options = {group},
         .size = sizeOfGroup,
         .write = writeGroup},
        {.id = QStringLiteral("palette-cycles"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Ranges of a palette whose colours go round"),
         .suffix = QStringLiteral("bin"),
         .noun = QStringLiteral("cycles"),
         .options = {},
         .size = sizeOfCycles,
         .write = writeCycles},
    };
}

QList<Reader> paletteReaders()
{
    const Option transparency =
        Option::choice(QStringLiteral("transparency"), Texts::tr("Transparency"),
                       Texts::tr("What the last byte says of the transparent entry"),
                       {{QStringLiteral("colour"), Texts::tr("Its colour RRRGGGBB, for layers")},
                        {QStringLiteral("index"), Texts::tr("Its index, for sprites")},
                        {QStringLiteral("none"), Texts::tr("Nothing")}});
    const Option group =
        Option::number(QStringLiteral("group"), Texts::tr("Palette offset"),
                       Texts::tr("Which of the sixteen groups of sixteen entries the colours become"), 0, 15, 0);
    const QStringList suffixes{QStringLiteral("pal"), QStringLiteral("nxp"), QStringLiteral("npl"),
                               QStringLiteral("bin")};
    return {
        {.id = QStringLiteral("palette"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Palette, 9 bits a colour"),
         .suffixes = suffixes,
         .options = {},
         .fit = fitsWords<2 * Palette::Size>,
         .read = readWords},
        {.id = QStringLiteral("palette-513"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Palette, 9 bits a colour, and the transparency"),
         .suffixes = suffixes,
         .options = {transparency},
         .fit = fitsExactly<2 * Palette::Size + 1>,
         .read = readWithTransparency},
        {.id = QStringLiteral("palette-8bit"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Palette, 8 bits a colour"),
         .suffixes = suffixes,
         .options = {},
         .fit = fitsExactly<Palette::Size>,
         .read = readBytes},
        {.id = QStringLiteral("palette-group"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Sixteen colours of a palette, 9 bits each"),
         .suffixes = suffixes,
         .options = {group},
         .fit = fitsWords<2 * GroupSize>,
         .read = readGroup},
        {.id = QStringLiteral("palette-cycles"),
         .kind = AssetKind::Palette,
         .title = Texts::tr("Ranges of a palette whose colours go round"),
         .suffixes = {QStringLiteral("bin")},
         .options = {},
         .fit = fitsCycles,
         .read = readCycles},
    };
}

} // namespace NextData
