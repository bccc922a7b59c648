// What is placed on maps. Both forms are a word with the number of records, then the records of 16 bytes each, in the
// order of the map. Words are little-endian; an asterisk marks a signed one.
//
//   offset   map-sprites                                  map-blocks
//   0        word*  x in pixels                           word*  column
//   2        word*  y in pixels                           word*  row
//   4        byte   sprite bank, by its place             byte   width in cells
//   5        byte   bits 7–4 palette offset, 3 mirror,    byte   height in cells
//                   2 flip, 1 rotate, 0 animation
//   6        word   sprite, or animation if bit 0 is set  byte   block set, by its place
//   7                                                     byte   kind: 0 normal, 1 horizontal platform
//   8        word   start frame                           word   animation, by its place in the block set
//   10       word   ticks of 20 ms before the animation   word   start frame
//   12       word   ticks between two runs of it          word   ticks before the animation
//   14       word   place of the name in the output       word   ticks between two runs of it
//
// Behind the records of map-sprites stand the names, UTF-8 with a zero behind each; a place of 0 is no name. Banks and
// block sets count in the order of the project, animations in that of their bank or block set, all from 0.

#include "model/map.h"
#include "model/mapobjects.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "nextdata/families.h"
#include "nextdata/records.h"
#include "nextdata/texts.h"

#include <QtEndian>

#include <optional>

namespace NextData {
namespace {

constexpr int CountBytes = 2;
constexpr int RecordBytes = 16;

/// The place of the asset with an id in a list; -1 when it has none.
template <typename Asset>
int placeOf(const QUuid &id, const QList<QPointer<Asset>> &assets)
{
    for (int i = 0; i < assets.size(); ++i) {
        if (assets[i]->id() == id)
            return i;
    }
    return -1;
}

/// How a failure or a comment names a record.
QString recordName(const QString &kind, qsizetype number, const QString &name)
{
    return name.isEmpty() ? Texts::tr("%1 %2").arg(kind).arg(number)
                          : Texts::tr("%1 %2 “%3”").arg(kind).arg(number).arg(name);
}

Failure notThere(const Map &map, const QString &record, const QString &what)
{
    return {Texts::tr("“%1”, %2: its %3 is not in the project").arg(map.name(), record, what)};
}

Data withCount(Records &records, qsizetype count)
{
    records.begin(Texts::tr("the number of records"));
    records.addWord(Texts::tr("it"), count);
    return {{{QStringLiteral("count"), count}, {QStringLiteral("record_size"), RecordBytes}},
            {{.bytes = records.bytes(), .comment = Texts::tr("number of records")}}};
}

// Placed sprites

/// A name as it stands in the output: with the zero that ends it, and none before.
QByteArray nameBytes(const Map::PlacedSprite &sprite)
{
    QByteArray name = sprite.name.toUtf8();
    name.replace('\0', "");
    return name.isEmpty() ? name : name + '\0';
}

bool hasNames(const OptionValues &values)
{
    return values.is("names", "behind");
}

Result<qint64> sizeOfSprites(const Source &source, const OptionValues &values)
{
    qint64 size = CountBytes;
    for (const Map::PlacedSprite &sprite : source.as<Map>().sprites())
        size += RecordBytes + (hasNames(values) ? nameBytes(sprite).size() : 0);
    return size;
}

int flagsOf(const Map::PlacedSprite &sprite)
{
    return int(sprite.mirror) << 3 | int(sprite.flip) << 2 | int(sprite.rotate) << 1 | int(!sprite.animation.isNull());
}

Result<Data> writeSprites(const Source &source, const OptionValues &values)
{
    const auto &map = source.as<Map>();
    const QList<QPointer<SpriteBank>> banks = source.project().spriteBanks();
    Records records(map.name());
    Data data = withCount(records, map.sprites().size());
    QByteArray names;
    const qsizetype namesAt = CountBytes + RecordBytes * map.sprites().size();
    for (const Map::PlacedSprite &sprite : map.sprites()) {
        const QString record = recordName(Texts::tr("placed sprite"), data.blocks.size() - 1, sprite.name);
        const int bank = placeOf(sprite.bank, banks);
        if (bank < 0)
            return notThere(map, record, Texts::tr("sprite bank"));
        const bool isAnimated = !sprite.animation.isNull();
        const int number = isAnimated ? placeOf(sprite.animation, banks[bank]->animations()) : sprite.sprite;
        if (isAnimated && number < 0)
            return notThere(map, record, Texts::tr("animation"));
        const QByteArray name = hasNames(values) ? nameBytes(sprite) : QByteArray();

        records.begin(record);
        records.addSignedWord(Texts::tr("x"), sprite.x);
        records.addSignedWord(Texts::tr("y"), sprite.y);
        records.addByte(Texts::tr("the place of its bank"), bank);
        records.addByte(Texts::tr("16 times the palette offset, and the flags,"),
                        qint64(sprite.paletteOffset) * 16 + flagsOf(sprite));
        records.addWord(isAnimated ? Texts::tr("the animation") : Texts::tr("the sprite"), number);
        records.addWord(Texts::tr("the start frame"), sprite.startFrame);
        records.addWord(Texts::tr("the initial delay"), sprite.initialDelay);
        records.addWord(Texts::tr("the repeat delay"), sprite.repeatDelay);
        records.addWord(Texts::tr("the place of the name"), name.isEmpty() ? 0 : namesAt + names.size());
        data.blocks.append({.bytes = records.bytes(), .name = sprite.name, .comment = record});
        names += name;
    }
    if (records.failure())
        return *records.failure();
    data.blocks.append({.bytes = names, .comment = Texts::tr("names")});
    return data;
}

// Placed animations of blocks

Result<qint64> sizeOfBlocks(const Source &source, const OptionValues &)
{
    return CountBytes + RecordBytes * source.as<Map>().animatedBlocks()->state().size();
}

Result<Data> writeBlocks(const Source &source, const OptionValues &)
{
    const auto &map = source.as<Map>();
    const QList<QPointer<MapObjects>> sets = source.project().blockSets();
    const AnimatedBlocks::State placements = map.animatedBlocks()->state();
    Records records(map.name());
    Data data = withCount(records, placements.size());
    for (const AnimationProperties::State &placement : placements) {
        int set = 0;
        while (set < sets.size() && !sets[set]->contains(placement.animationId))
            ++set;
        const qsizetype number = data.blocks.size() - 1;
        if (set == sets.size())
            return notThere(map, recordName(Texts::tr("placed animation"), number, {}), Texts::tr("animation"));
        const QPointer<TileAnimation> animation = sets[set]->animation(placement.animationId);
        const QString record = recordName(Texts::tr("placed animation"), number, animation->name());

        records.begin(record);
        records.addSignedWord(Texts::tr("the column"), placement.area.left());
        records.addSignedWord(Texts::tr("the row"), placement.area.top());
        records.addByte(Texts::tr("the width"), placement.area.width());
        records.addByte(Texts::tr("the height"), placement.area.height());
        records.addByte(Texts::tr("the place of its block set"), set);
        records.addByte(Texts::tr("the kind"), int(animation->type()));
        records.addWord(Texts::tr("the animation"), placeOf(placement.animationId, sets[set]->animations()));
        records.addWord(Texts::tr("the start frame"), placement.startFrame);
        records.addWord(Texts::tr("the initial delay"), placement.initialDelay);
        records.addWord(Texts::tr("the repeat delay"), placement.repeatDelay);
        data.blocks.append({.bytes = records.bytes(), .comment = record});
    }
    if (records.failure())
        return *records.failure();
    return data;
}

// Reading

Reader::Fit fits(qint64 size)
{
    return size >= CountBytes ? Reader::Fit::Possible : Reader::Fit::None;
}

Failure misfit()
{
    return {Texts::tr("The records do not lie in the file as its beginning says")};
}

/// Fields of a record, by their places in it.
class RecordReader
{
public:
    explicit RecordReader(const char *record) : m_record(record) { }

    [[nodiscard]] int byte(int at) const { return uchar(m_record[at]); }
    [[nodiscard]] int word(int at) const { return qFromLittleEndian<quint16>(m_record + at); }
    [[nodiscard]] int signedWord(int at) const { return qFromLittleEndian<qint16>(m_record + at); }

private:
    const char *m_record;
};

/// The records at the beginning of a file; nothing when it ends before they do.
std::optional<QList<RecordReader>> recordsIn(const QByteArray &bytes)
{
    const qsizetype count = bytes.size() < CountBytes ? 0 : RecordReader(bytes.constData()).word(0);
    if (bytes.size() < CountBytes + RecordBytes * count)
        return {};
    QList<RecordReader> records;
    for (qsizetype i = 0; i < count; ++i)
        records.append(RecordReader(bytes.constData() + CountBytes + RecordBytes * i));
    return records;
}

Result<Reading> readSprites(const QByteArray &bytes, const OptionValues &)
{
    const auto records = recordsIn(bytes);
    if (!records)
        return misfit();
    PlacedSpritesContent content;
    qsizetype end = CountBytes + RecordBytes * records->size(); // of what was read
    for (const RecordReader &record : *records) {
        const int flags = record.byte(5);
        const bool isAnimated = (flags & 1) != 0;
        PlacedSpritesContent::Item item{
            .bank = record.byte(4), .animation = isAnimated ? record.word(6) : -1, .sprite = {}};
        item.sprite = {.sprite = isAnimated ? 0 : record.word(6),
                       .x = record.signedWord(0),
                       .y = record.signedWord(2),
                       .mirror = (flags & 8) != 0,
                       .flip = (flags & 4) != 0,
                       .rotate = (flags & 2) != 0,
                       .startFrame = record.word(8),
                       .initialDelay = record.word(10),
                       .repeatDelay = record.word(12),
                       .paletteOffset = flags >> 4};
        if (const int place = record.word(14); place != 0) { // one name stands behind the other
            const qsizetype zero = bytes.indexOf('\0', end);
            if (place != end || zero < 0)
                return misfit();
            item.sprite.name = QString::fromUtf8(bytes.sliced(end, zero - end));
            end = zero + 1;
        }
        content.items.append(item);
    }
    if (end != bytes.size())
        return misfit();
    return Reading{content};
}

Result<Reading> readBlocks(const QByteArray &bytes, const OptionValues &)
{
    const auto records = recordsIn(bytes);
    if (!records || CountBytes + RecordBytes * records->size() != bytes.size())
        return misfit();
    PlacedBlocksContent content;
    for (const RecordReader &record : *records) {
        const QRect area(record.signedWord(0), record.signedWord(2), record.byte(4), record.byte(5));
        content.items.append({.blockSet = record.byte(6),
                              .animation = record.word(8),
                              .placement = {.animationId = {},
                                            .area = area,
                                            .initialDelay = record.word(12),
                                            .repeatDelay = record.word(14),
                                            .startFrame = record.word(10)}});
    }
    return Reading{content};
}

} // namespace

QList<Form> objectForms()
{
    const Option names = Option::choice(
        QStringLiteral("names"), Texts::tr("Names"), Texts::tr("Whether the names of sprites stand behind the records"),
        {{QStringLiteral("behind"), Texts::tr("Behind the records")}, {QStringLiteral("none"), Texts::tr("Left out")}});
    return {
        {.id = QStringLiteral("map-sprites"),
         .kind = AssetKind::Map,
         .title = Texts::tr("Sprites placed on a map"),
         .suffix = QStringLiteral("bin"),
         .noun = QStringLiteral("sprites"),
         .options = {names},
         .size = sizeOfSprites,
         .write = writeSprites},
        {.id = QStringLiteral("map-blocks"),
         .kind = AssetKind::Map,
         .title = Texts::tr("Animated blocks placed on a map"),
         .suffix = QStringLiteral("bin"),
         .noun = QStringLiteral("blocks"),
         .options = {},
         .size = sizeOfBlocks,
         .write = writeBlocks},
    };
}

QList<Reader> objectReaders()
{
    return {
        {.id = QStringLiteral("map-sprites"),
         .kind = AssetKind::Map,
         .title = Texts::tr("Sprites placed on a map"),
         .suffixes = {QStringLiteral("bin")},
         .options = {},
         .fit = fits,
         .read = readSprites},
        {.id = QStringLiteral("map-blocks"),
         .kind = AssetKind::Map,
         .title = Texts::tr("Animated blocks placed on a map"),
         .suffixes = {QStringLiteral("bin")},
         .options = {},
         .fit = fits,
         .read = readBlocks},
    };
}

} // namespace NextData
