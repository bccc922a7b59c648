#include "importing/animationtiming.h"
#include "importing/imagecontent.h"
#include "importing/kinds.h"
#include "importing/paletteinuse.h"
#include "importing/reducedtiles.h"
#include "importing/sharedcolours.h"
#include "importing/texts.h"
#include "model/image.h"
#include "model/plural.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/spritetransparency.h"
#include "pictures/asepritefile.h"

#include <QHash>
#include <QPainter>

#include <algorithm>

// Sprites with frames and tags: sprites with animations, tiles, or an image.

namespace Importing {
namespace {

using NextData::Option;

constexpr int Side = SpriteBank::SpriteSize;

SharedColours::Source sourceOf(const AsepriteFile &file, int frames)
{
    return {frames, [file](int frame) { return file.frame(frame); }, file.palette()};
}

/// The frames in the colours that there will be, as they are in the file if that can be.
SharedColours coloursOf(const AsepriteFile &file, int frames, const QList<quint16> &words, int clear, int colourCount,
                        Dithering dithering)
{
    const SharedColours::Source source = sourceOf(file, frames);
    if (file.isIndexed() && words.isEmpty()) {
        if (const auto kept = SharedColours::keptIndices(source, file.transparentIndex(), colourCount))
            return *kept;
    }
    return SharedColours::of(source, {dithering, colourCount, words, clear});
}

/// Pieces of frames, each kept once, and the cells that a frame is made of.
class Pieces
{
public:
    explicit Pieces(int clear) : m_blank(SpriteBank::SpriteBytes, char(std::max(clear, 0))) { }

    AnimationFrame::Cells cut(const QImage &frame)
    {
        AnimationFrame::Cells cells;
        for (int top = 0; top < frame.height(); top += Side) {
            QList<AnimationFrame::Cell> row;
            for (int left = 0; left < frame.width(); left += Side)
                row.append(AnimationFrame::Cell{.index = numberOf(pieceAt(frame, left, top))});
            cells.append(row);
        }
        return cells;
    }

    [[nodiscard]] const QByteArray &pixels() const { return m_pixels; }

private:
    [[nodiscard]] QByteArray pieceAt(const QImage &frame, int left, int top) const
    {
        QByteArray piece = m_blank;
        const int width = std::min(Side, frame.width() - left);
        for (int y = 0; y < std::min(Side, frame.height() - top); ++y)
            std::copy_n(frame.constScanLine(top + y) + left, width, piece.begin() + y * Side);
        return piece;
    }

    int numberOf(const QByteArray &piece)
    {
        const auto known = m_numbers.constFind(piece);
        if (known != m_numbers.cend())
            return *known;
        const int number = int(m_numbers.size());
        m_numbers.insert(piece, number);
        m_pixels += piece;
        return number;
    }

    QByteArray m_blank;
    QByteArray m_pixels;
    QHash<QByteArray, int> m_numbers;
};

/// The frames of a tag in the order in which they are shown, once through.
QList<int> playOrder(const AsepriteFile::Tag &tag)
{
    using Direction = AsepriteFile::Direction;
    QList<int> order;
    for (int frame = tag.first; frame <= tag.last; ++frame)
        order.append(frame);
    if (tag.direction == Direction::Reverse || tag.direction == Direction::PingPongReverse)
        std::reverse(order.begin(), order.end());
    if (tag.direction == Direction::PingPong || tag.direction == Direction::PingPongReverse) {
        for (qsizetype back = order.size() - 2; back > 0; --back)
            order.append(order[back]);
    }
    return order;
}

QList<IncomingAnimation> animationsOf(const AsepriteFile &file, const QList<AnimationFrame::Cells> &frames,
                                      const QString &name, QStringList &remarks)
{
    QList<AsepriteFile::Tag> tags = file.tags();
    const bool isOneSprite =
        frames.size() == 1 && frames.constFirst().size() == 1 && frames.constFirst()[0].size() == 1;
    if (tags.isEmpty() && !isOneSprite)
        tags.append({.name = name, .first = 0, .last = int(frames.size()) - 1});
    QList<IncomingAnimation> animations;
    for (const AsepriteFile::Tag &tag : std::as_const(tags)) {
        const QList<int> order = playOrder(tag);
        QList<int> durations;
        for (const int frame : order)
            durations.append(file.duration(frame));
        const AnimationTiming timing = AnimationTiming::of(order, durations);
        const AnimationFrame::Cells &first = frames.constFirst();
        IncomingAnimation animation{.name = tag.name,
                                    .size = QSize(int(first.constFirst().size()), int(first.size())),
                                    .delay = tag.first == tag.last ? 0 : timing.delay,
                                    .frames = {}};
        for (const int frame : timing.frames)
            animation.frames.append(frames[frame]);
        if (tag.first == tag.last)
            animation.frames.resize(1);
        animations.append(animation);
        if (!timing.isExact)
            remarks.append(Texts::tr("“%1”: frames have times of their own, and get the mean of them").arg(tag.name));
        if (tag.repeats > 0)
            remarks.append(Texts::tr("“%1” is repeated for ever").arg(tag.name));
    }
    return animations;
}

Result<IncomingAssets> prepareSprites(const Project &project, const ImportFile &file, const ImportChoices &choices,
                                      const NextData::OptionValues &options)
{
    const Result<AsepriteFile> read = AsepriteFile::read(file.path);
    if (!read)
        return read.failure();
    const qint64 cells = qint64((read->size().width() + Side - 1) / Side) * ((read->size().height() + Side - 1) / Side);
    if (read->size().width() > Animation::MaximumSide * Side || read->size().height() > Animation::MaximumSide * Side
        || cells * read->frameCount() > SpriteBank::MaxCount)
        return Failure{Texts::tr("The frames make %n sprites, which is more than there is room for", nullptr,
                                 plural(cells * read->frameCount()))};
    const QPointer<SpriteBank> bank = project.spriteBank(choices.target);
    const auto chosen = options.is("depth", "4") ? Quenmora::FourBit : Quenmora::EightBit;
    const auto depth = bank ? bank->depth() : chosen;
    const bool isGiven = isPaletteGiven(project, choices);
    const SharedColours shared =
        coloursOf(*read, read->frameCount(), isGiven ? wordsInUse(project, choices) : QList<quint16>(),
                  SpriteTransparency{depth, clearInUse(project, choices)}.pixel(),
                  depth == Quenmora::FourBit ? 16 : 256, Kinds::ditheringOf(options));
    IncomingAssets incoming{.palette = shared.palette, .remarks = shared.remarks + read->remarks()};
    Pieces pieces(shared.clear);
    QList<AnimationFrame::Cells> frames;
    for (const QImage &frame : shared.pictures)
        frames.append(pieces.cut(frame));
    incoming.sprites = IncomingSprites{.content = {depth, pieces.pixels()}, .transparency = shared.clear};
    if (!bank)
        incoming.sprites->animations = animationsOf(*read, frames, choices.name, incoming.remarks);
    else if (!read->tags().isEmpty())
        incoming.remarks.append(Texts::tr("Sprites alone go into a bank that is there; the animations are left out"));
    return incoming;
}

/// A picture of some frames below each other.
QImage sheetOf(const AsepriteFile &file, int frames)
{
    constexpr int tile = Tile::Size;
    const QSize padded((file.size().width() + tile - 1) / tile * tile, (file.size().height() + tile - 1) / tile * tile);
    QImage sheet(padded.width(), padded.height() * frames, QImage::Format_ARGB32);
    sheet.fill(0);
    QPainter painter(&sheet);
    for (int frame = 0; frame < frames; ++frame)
        painter.drawImage(0, frame * padded.height(), file.frame(frame));
    return sheet;
}

Result<IncomingAssets> prepareTiles(const Project &, const ImportFile &file, const ImportChoices &,
                                    const NextData::OptionValues &options)
{
    constexpr qint64 MostPixels = 4 << 20; // that are reduced at a time
    const Result<AsepriteFile> read = AsepriteFile::read(file.path);
    if (!read)
        return read.failure();
    const int frames = options.is("frames", "first") ? 1 : read->frameCount();
    const qint64 pixels = qint64(read->size().width()) * read->size().height() * frames;
    if (pixels > MostPixels)
        return Failure{
            Texts::tr("The frames have %1 pixels, and tiles are made of at most %2").arg(pixels).arg(MostPixels)};
    const TileReduction reduction =
        TileReduction::of(sheetOf(*read, frames), {.dithering = Kinds::ditheringOf(options)});
    IncomingAssets incoming = incomingOf(reduction);
    if (frames > 1) // they are no map
        incoming.map.reset();
    incoming.remarks += read->remarks();
    return incoming;
}

Result<IncomingAssets> prepareImage(const Project &project, const ImportFile &file, const ImportChoices &choices,
                                    const NextData::OptionValues &options)
{
    const Result<AsepriteFile> read = AsepriteFile::read(file.path);
    if (!read)
        return read.failure();
    const auto mode = imageMode(project, choices, options, read->size());
    const bool isGiven = isPaletteGiven(project, choices);
    const SharedColours shared =
        coloursOf(*read, 1, isGiven ? wordsInUse(project, choices) : QList<quint16>(), clearInUse(project, choices),
                  mode == Quenmora::Layer2_640x256 ? 16 : 256, Kinds::ditheringOf(options));
    IncomingAssets incoming{.palette = shared.palette, .remarks = shared.remarks + read->remarks()};
    incoming.image = imageOf(shared.pictures.constFirst(), mode, shared.clear, incoming.remarks);
    if (read->frameCount() > 1)
        incoming.remarks.append(Texts::tr("Frames that are left out: %1").arg(read->frameCount() - 1));
    return incoming;
}

} // namespace

QList<FileKind> Kinds::aseprite()
{
    using NextData::AssetKind;
    const Option depth =
        Option::choice(QStringLiteral("depth"), Texts::tr("Depth"), Texts::tr("How many colours the sprites have"),
                       {{QStringLiteral("8"), Texts::tr("8-bit, 256 colours")},
                        {QStringLiteral("4"), Texts::tr("4-bit, 16 colours")}});
    const Option frames = Option::choice(
        QStringLiteral("frames"), Texts::tr("Frames"), Texts::tr("Which frames become tiles"),
        {{QStringLiteral("first"), Texts::tr("The first one, with a map")}, {QStringLiteral("all"), Texts::tr("All")}});
    return {
        {.id = AsepriteSprites,
         .title = Texts::tr("Aseprite file, for sprites with animations"),
         .asset = AssetKind::SpriteBank,
         .options = {depth, ditheringOption()},
         .takesTarget = true,
         .needsPalette = true,
         .bringsColours = true,
         .prepare = prepareSprites},
        {.id = AsepriteTiles,
         .title = Texts::tr("Aseprite file, for tiles"),
         .asset = AssetKind::TileSet,
         .options = {frames, ditheringOption()},
         .prepare = prepareTiles},
        {.id = AsepriteImage,
         .title = Texts::tr("Aseprite file, for an image"),
         .asset = AssetKind::Image,
         .options = {modeOption(), ditheringOption()},
         .takesTarget = true,
         .needsPalette = true,
         .bringsColours = true,
         .prepare = prepareImage},
    };
}

} // namespace Importing
