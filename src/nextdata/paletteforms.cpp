// Palettes. An entry is a word of two bytes, high byte first: RRRGGGBB, P000000B (model/nextcolour.h).
//
//   palette         512 bytes: the words of entries 0–255
//   palette-513     the same, and the transparency in a byte more
//   palette-8bit    256 bytes: RRRGGGBB alone
//   palette-group   32 bytes: the words of the sixteen entries of one palette offset

#include "model/palette.h"
#include "nextdata/families.h"
#include "nextdata/palettewords.h"
#include "nextdata/tr.h"

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
                 {.bytes = QByteArray(1, transparency), .comment = tr("transparency")}}};
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

QList<Form> paletteForms()
{
    const Option transparency =
        Option::choice(QStringLiteral("transparency"), tr("Transparency"),
                       tr("What the last byte holds of the transparent entry; $E3 for a palette without one"),
                       {{QStringLiteral("colour"), tr("Its colour RRRGGGBB, for layers")},
                        {QStringLiteral("index"), tr("Its index, for sprites")}});
    const Option group = Option::number(QStringLiteral("group"), tr("Palette offset"),
                                        tr("Which of the sixteen groups of sixteen entries is written"), 0, 15, 0);
    return {
        {.id = QStringLiteral("palette"),
         .kind = AssetKind::Palette,
         .title = tr("Palette, 9 bits a colour"),
         .suffix = QStringLiteral("pal"),
         .noun = QStringLiteral("palette"),
         .options = {},
         .size = sizeOfWords,
         .write = writeWords},
        {.id = QStringLiteral("palette-513"),
         .kind = AssetKind::Palette,
         .title = tr("Palette, 9 bits a colour, and the transparency"),
         .suffix = QStringLiteral("npl"),
         .noun = QStringLiteral("palette"),
         .options = {transparency},
         .size = sizeWithTransparency,
         .write = writeWithTransparency},
        {.id = QStringLiteral("palette-8bit"),
         .kind = AssetKind::Palette,
         .title = tr("Palette, 8 bits a colour"),
         .suffix = QStringLiteral("pal"),
         .noun = QStringLiteral("palette"),
         .options = {},
         .size = sizeOfBytes,
         .write = writeBytes},
        {.id = QStringLiteral("palette-group"),
         .kind = AssetKind::Palette,
         .title = tr("Sixteen colours of a palette, 9 bits each"),
         .suffix = QStringLiteral("nxp"),
         .noun = QStringLiteral("palette"),
         .options = {group},
         .size = sizeOfGroup,
         .write = writeGroup},
    };
}

} // namespace NextData
