// Animations of a sprite bank (sprite-animations) and of a block set (block-animations).
//
//   offset   size    content
//   0        2       number of animations
//   2        2 each  place of each animation in the output
//   then             the animations
//
// An animation:
//
//   0        1       width in cells: sprites of 16 × 16, or tiles of 8 × 8 pixels
//   1        1       height in cells
//   2        1       number of frames
//   3        1       kind: 0 normal, 1 horizontal platform; 0 for sprites
//   4        2       ticks of 20 ms that a frame is shown, 0 for one that stands still
//   6        2 each  the cells of the first frame, row by row, then of the next: the number of the sprite or tile, its
//                    palette offset and orientation, as in a tile map of two bytes a cell (model/tilemapformat.h)
//
// Words are little-endian.

#include "model/mapobjects.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tilemapformat.h"
#include "nextdata/families.h"
#include "nextdata/records.h"
#include "nextdata/texts.h"

#include <optional>

namespace NextData {
namespace {

using Animations = QList<const Animation *>;

constexpr int WordBytes = 2;
constexpr int HeadBytes = 6;
constexpr int CellBytes = 2;
constexpr int MostIndex = 511; ///< of a cell

template <typename Owner>
Animations animationsOf(const Source &source)
{
    Animations animations;
    for (const auto &animation : source.as<Owner>().animations())
        animations.append(animation);
    return animations;
}

int kindOf(const Animation &animation)
{
    const auto *blocks = qobject_cast<const TileAnimation *>(&animation);
    return blocks ? int(blocks->type()) : 0;
}

qint64 sizeOf(const Animation &animation)
{
    return HeadBytes
        + qint64(animation.frameCount()) * animation.size().width() * animation.size().height() * CellBytes;
}

qint64 tableBytes(const Animations &animations)
{
    return WordBytes + WordBytes * animations.size();
}

template <typename Owner>
Result<qint64> size(const Source &source, const OptionValues &)
{
    const Animations animations = animationsOf<Owner>(source);
    qint64 size = tableBytes(animations);
    for (const Animation *animation : animations)
        size += sizeOf(*animation);
    return size;
}

/// Number and places of the animations.
QByteArray tableOf(Records &records, const Animations &animations)
{
    records.begin(Texts::tr("the table of animations"));
    records.addWord(Texts::tr("their number"), animations.size());
    qint64 place = tableBytes(animations);
    for (const Animation *animation : animations) {
        records.addWord(Texts::tr("the place of “%1”").arg(animation->name()), place);
        place += sizeOf(*animation);
    }
    return records.bytes();
}

QByteArray headOf(Records &records, const Animation &animation)
{
    records.begin(Texts::tr("animation “%1”").arg(animation.name()));
    records.addByte(Texts::tr("the width"), animation.size().width());
    records.addByte(Texts::tr("the height"), animation.size().height());
    records.addByte(Texts::tr("the number of frames"), animation.frameCount());
    records.addByte(Texts::tr("the kind"), kindOf(animation));
    records.addWord(Texts::tr("the delay"), animation.delay());
    return records.bytes();
}

/// Why a cell cannot be written, or empty.
QString misfit(const AnimationFrame::Cell &cell)
{
    if (cell.index < 0 || cell.index > MostIndex)
        return Texts::tr("it shows number %1, and %2 is the last one that fits").arg(cell.index).arg(MostIndex);
    return cell.offset < 0 || cell.offset > 15 ? Texts::tr("it has the palette offset %1").arg(cell.offset) : QString();
}

/// The cells of a frame, of the animation's size.
Result<QByteArray> cellsOf(const Animation &animation, int frameNumber)
{
    const QPointer<AnimationFrame> frame = animation.frame(frameNumber);
    TileMap::Rows rows;
    for (int y = 0; y < animation.size().height(); ++y) {
        TileMap::Row row;
        for (int x = 0; x < animation.size().width(); ++x) {
            const AnimationFrame::Cell cell = frame->cell(y, x);
            if (const QString reason = misfit(cell); !reason.isEmpty()) {
                return Failure{Texts::tr("Animation “%1”, frame %2, column %3, row %4 (counted from 0): %5")
                                   .arg(animation.name(), QString::number(frameNumber), QString::number(x),
                                        QString::number(y), reason)};
            }
            row.append({cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset, true});
        }
        rows.append(row);
    }
    return TileMapFormat::toNextData(rows);
}

template <typename Owner>
Result<Data> write(const Source &source, const OptionValues &)
{
    const Animations animations = animationsOf<Owner>(source);
    Records records(source.name());
    Data data{{{QStringLiteral("count"), animations.size()}},
              {{.bytes = tableOf(records, animations), .comment = Texts::tr("number and places of the animations")}}};
    for (int i = 0; i < animations.size(); ++i) {
        const Animation &animation = *animations[i];
        data.blocks.append({.bytes = headOf(records, animation),
                            .name = animation.name(),
                            .number = i,
                            .comment = Texts::tr("animation %1 “%2”").arg(i).arg(animation.name())});
        for (int frame = 0; frame < animation.frameCount(); ++frame) {
            const Result<QByteArray> cells = cellsOf(animation, frame);
            if (!cells)
                return cells.failure();
            data.blocks.append({.bytes = *cells, .comment = Texts::tr("frame %1").arg(frame)});
        }
    }
    if (records.failure())
        return *records.failure();
    return data;
}

// Reading

Reader::Fit fits(qint64 size)
{
    return size >= WordBytes ? Reader::Fit::Possible : Reader::Fit::None;
}

int wordAt(const QByteArray &bytes, qsizetype at)
{
    return uchar(bytes[at]) | uchar(bytes[at + 1]) << 8;
}

AnimationFrame::Cell cellAt(const QByteArray &bytes, qsizetype at)
{
    const int attributes = uchar(bytes[at + 1]);
    return {.index = uchar(bytes[at]) | (attributes & 1) << 8,
            .offset = attributes >> 4,
            .flip = (attributes & 4) != 0,
            .mirror = (attributes & 8) != 0,
            .rotate = (attributes & 2) != 0};
}

/// The animation at a place, which moves behind it; nothing when the bytes end before it does.
std::optional<AnimationsContent::Item> itemAt(const QByteArray &bytes, qsizetype &place)
{
    if (place + HeadBytes > bytes.size())
        return {};
    const int width = uchar(bytes[place]);
    const int height = uchar(bytes[place + 1]);
    const int frames = uchar(bytes[place + 2]);
    AnimationsContent::Item item{.kind = bytes[place + 3] == 1 ? 1 : 0,
                                 .state = {.size = {width, height}, .delay = wordAt(bytes, place + 4), .frames = {}}};
    place += HeadBytes;
    if (place + qsizetype(frames) * width * height * CellBytes > bytes.size())
        return {};
    for (int frame = 0; frame < frames; ++frame) {
        AnimationFrame::Cells cells(height, QList<AnimationFrame::Cell>(width));
        for (auto &row : cells) {
            for (AnimationFrame::Cell &cell : row) {
                cell = cellAt(bytes, place);
                place += CellBytes;
            }
        }
        item.state.frames.append({{}, cells});
    }
    return item;
}

Result<Reading> read(const QByteArray &bytes, const OptionValues &)
{
    const Failure misfit{Texts::tr("The animations do not lie in the file as its beginning says")};
    const qsizetype count = bytes.size() < WordBytes ? 0 : wordAt(bytes, 0);
    qsizetype place = WordBytes + WordBytes * count;
    if (count == 0 || place > bytes.size())
        return misfit;
    AnimationsContent content;
    for (qsizetype i = 0; i < count; ++i) {
        if (wordAt(bytes, WordBytes + WordBytes * i) != place)
            return misfit;
        const auto item = itemAt(bytes, place);
        if (!item)
            return misfit;
        content.animations.append(*item);
    }
    Reading reading{content, {}};
    if (place < bytes.size())
        reading.remarks.append(
            Texts::tr("Bytes behind the last animation that are left out: %1").arg(bytes.size() - place));
    return reading;
}

} // namespace

QList<Form> blockAnimationForms()
{
    return {{.id = QStringLiteral("block-animations"),
             .kind = AssetKind::BlockSet,
             .title = Texts::tr("Animations of blocks"),
             .suffix = QStringLiteral("bin"),
             .noun = QStringLiteral("animations"),
             .options = {},
             .size = size<MapObjects>,
             .write = write<MapObjects>}};
}

QList<Form> spriteAnimationForms()
{
    return {{.id = QStringLiteral("sprite-animations"),
             .kind = AssetKind::SpriteBank,
             .title = Texts::tr("Animations of sprites"),
             .suffix = QStringLiteral("bin"),
             .noun = QStringLiteral("animations"),
             .options = {},
             .size = size<SpriteBank>,
             .write = write<SpriteBank>}};
}

QList<Reader> animationReaders()
{
    return {
        {.id = QStringLiteral("block-animations"),
         .kind = AssetKind::BlockSet,
         .title = Texts::tr("Animations of blocks"),
         .suffixes = {QStringLiteral("bin")},
         .options = {},
         .fit = fits,
         .read = read},
        {.id = QStringLiteral("sprite-animations"),
         .kind = AssetKind::SpriteBank,
         .title = Texts::tr("Animations of sprites"),
         .suffixes = {QStringLiteral("bin")},
         .options = {},
         .fit = fits,
         .read = read},
    };
}

} // namespace NextData
