#include "importing/kinds.h"
#include "importing/paletteedit.h"
#include "importing/paletteinuse.h"
#include "importing/placements.h"
#include "importing/texts.h"
#include "model/image.h"
#include "model/project.h"
#include "nextdata/reader.h"
#include "pictures/ninebitcolour.h"

#include <QLocale>

#include <algorithm>
#include <array>

// The machine's raw forms. A kind has the id of the reader, and so of the form that writes such files.

namespace Importing {
namespace {

using NextData::Content;
using NextData::TilesContent;

const QString EightBitTiles = QStringLiteral("tiles-8bit");

/// For each index and group, the colour of the group that is nearest, and how far that is.
struct GroupTable
{
    struct Entry
    {
        uchar colour = 0;
        int distance = 0;
    };
    std::array<std::array<Entry, 16>, 256> entries{};

    explicit GroupTable(const QList<quint16> &words)
    {
        const auto numberOf = [&words](int index) {
            const quint16 word = words[index];
            return NineBitColour::compose(NextColour::red(word), NextColour::green(word), NextColour::blue(word));
        };
        for (int index = 0; index < Palette::Size; ++index) {
            for (int group = 0; group < 16; ++group) {
                Entry best{0, std::numeric_limits<int>::max()};
                for (int colour = 0; colour < 16; ++colour) {
                    const int distance = NineBitColour::distance(numberOf(index), numberOf(group * 16 + colour));
                    if (distance < best.distance)
                        best = {uchar(colour), distance};
                }
                // the same index before another one of the same colour
                entries[size_t(index)][size_t(group)] = index / 16 == group ? Entry{uchar(index % 16), 0} : best;
            }
        }
    }
};

/// Shows a tile of several groups in the one in which it looks best; whether a pixel changes its colour.
bool reduce(TilesContent::Pixels &tile, const GroupTable &table)
{
    int bestGroup = 0;
    qint64 least = std::numeric_limits<qint64>::max();
    for (int group = 0; group < 16; ++group) {
        qint64 distance = 0;
        for (const uchar pixel : tile.pixels)
            distance += table.entries[pixel][size_t(group)].distance;
        if (distance < least) {
            least = distance;
            bestGroup = group;
        }
    }
    for (uchar &pixel : tile.pixels)
        pixel = table.entries[pixel][size_t(bestGroup)].colour;
    tile.offset = bestGroup;
    return least > 0;
}

/// Makes tiles of several palette offsets such of one; a failure when that is not wanted.
std::optional<Failure> settleMixedTiles(TilesContent &content, const QList<quint16> &words, bool mayReduce,
                                        QStringList &remarks)
{
    const auto isMixed = [](const auto &tile) { return tile.offset == TilesContent::MixedOffset; };
    const auto first = std::find_if(content.tiles.cbegin(), content.tiles.cend(), isMixed);
    if (first == content.tiles.cend())
        return {};
    if (!mayReduce) {
        return Failure{Texts::tr("Tile %1 (counted from 0) has pixels of several palette offsets, and a tile has one")
                           .arg(first - content.tiles.cbegin())};
    }
    const GroupTable table(words);
    int lossy = 0;
    for (TilesContent::Pixels &tile : content.tiles) {
        if (isMixed(tile) && reduce(tile, table))
            ++lossy;
    }
    if (lossy > 0) {
        remarks.append(Texts::tr("Tiles that lose colours, since theirs are of several palette offsets: %1 of %2")
                           .arg(QLocale().toString(lossy), QLocale().toString(content.tiles.size())));
    }
    return {};
}

Result<IncomingAssets> incomingOf(const NextData::Reading &reading, const Project &project)
{
    IncomingAssets incoming{.remarks = reading.remarks};
    if (const auto *palette = std::get_if<NextData::PaletteContent>(&reading.content)) {
        incoming.palette = *palette;
    } else if (const auto *tiles = std::get_if<TilesContent>(&reading.content)) {
        incoming.tiles = *tiles;
    } else if (const auto *numbers = std::get_if<NextData::TileNumbersContent>(&reading.content)) {
        incoming.numbers = *numbers;
    } else if (const auto *map = std::get_if<NextData::MapContent>(&reading.content)) {
        incoming.map = IncomingMap{.rows = map->rows};
    } else if (const auto *sprites = std::get_if<NextData::SpritesContent>(&reading.content)) {
        incoming.sprites = IncomingSprites{.content = *sprites};
    } else if (const auto *image = std::get_if<NextData::ImageContent>(&reading.content)) {
        incoming.image = *image;
        if (!image->palette.isEmpty())
            incoming.palette = NextData::PaletteContent{0, image->palette};
    }
    if (const auto *animations = std::get_if<NextData::AnimationsContent>(&reading.content))
        incoming.animations = *animations;
    if (const auto *cycles = std::get_if<NextData::ColourCyclesContent>(&reading.content))
        incoming.cycles = cycles->cycles;
    if (const auto *content = std::get_if<NextData::PlacedSpritesContent>(&reading.content)) {
        const auto sprites = withIds(*content, project);
        if (!sprites)
            return sprites.failure();
        incoming.placedSprites = *sprites;
    } else if (const auto *blocks = std::get_if<NextData::PlacedBlocksContent>(&reading.content)) {
        const auto placements = withIds(*blocks, project);
        if (!placements)
            return placements.failure();
        incoming.placedBlocks = *placements;
    }
    return incoming;
}

Result<IncomingAssets> prepareRaw(const Project &project, const ImportFile &file, const ImportChoices &choices,
                                  const NextData::OptionValues &options)
{
    const NextData::Reader *reader = NextData::findReader(choices.kind);
    if (!reader)
        return Failure{Texts::tr("“%1” is no kind of file that is read here").arg(choices.kind)};
    if (!file.isWhole())
        return Failure{
            Texts::tr("The file has %1 bytes, which is too much for this").arg(QLocale().toString(file.size))};
    const Result<NextData::Reading> reading = NextData::read(*reader, file.bytes, options);
    if (!reading)
        return reading.failure();
    Result<IncomingAssets> read = incomingOf(*reading, project);
    if (!read)
        return read;
    IncomingAssets incoming = *std::move(read);
    if (const auto image = project.image(choices.target);
        image && incoming.palette && image->palette() && hasOtherUsers(project, *image->palette(), *image)) {
        incoming.palette.reset();
        incoming.remarks.append(
            Texts::tr("The colours are left out, since other assets are drawn with the palette of “%1” as well")
                .arg(image->name()));
    }
    if (choices.kind == EightBitTiles) {
        const bool mayReduce = options.is("mixed", "reduce");
        if (const auto failure =
                settleMixedTiles(*incoming.tiles, wordsInUse(project, choices), mayReduce, incoming.remarks))
            return *failure;
    }
    return incoming;
}

} // namespace

QList<FileKind> Kinds::raw()
{
    using NextData::AssetKind;
    using NextData::Option;
    QList<FileKind> kinds;
    for (const NextData::Reader &reader : NextData::readers()) {
        FileKind kind{.id = reader.id, .title = reader.title, .asset = reader.kind, .options = reader.options};
        kind.needsTarget = reader.id == QStringLiteral("tile-attributes") || reader.id == QStringLiteral("tile-values")
            || reader.id == QStringLiteral("sprite-animations") || reader.id == QStringLiteral("map-sprites")
            || reader.id == QStringLiteral("map-blocks") || reader.id == QStringLiteral("palette-cycles");
        kind.rareOptions =
            QStringList{QStringLiteral("count"), QStringLiteral("height"), QStringLiteral("screen-width"),
                        QStringLiteral("screen-height"), QStringLiteral("bit-0")};
        if (!kind.needsTarget)
            kind.rareOptions.append(QStringLiteral("first"));
        kind.takesTarget = reader.kind != AssetKind::BlockSet; // whose animations are undone one by one
        kind.needsTileSet = !kind.needsTarget && (reader.kind == AssetKind::Map || reader.kind == AssetKind::BlockSet);
        kind.needsPalette = reader.kind != AssetKind::Palette && !kind.needsTarget;
        kind.prepare = prepareRaw;
        if (reader.id == EightBitTiles) {
            kind.options.append(Option::choice(
                QStringLiteral("mixed"), Texts::tr("Several offsets"),
                Texts::tr(
                    "What becomes of tiles whose pixels are of several palette offsets, which a tile map cannot show"),
                {{QStringLiteral("reduce"), Texts::tr("The colours of the best one")},
                 {QStringLiteral("refuse"), Texts::tr("Nothing is imported")}}));
        }
        kinds.append(kind);
    }
    return kinds;
}

} // namespace Importing
