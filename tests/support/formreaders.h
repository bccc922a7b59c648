#pragma once

#include "model/animatedblocks.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tilemap.h"
#include "model/tileset.h"
#include "support/formoutput.h"
#include "support/modeltools.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

/// Takes little-endian numbers out of bytes, one after the other.
class Bytes
{
public:
    Bytes(const QByteArray &bytes, qsizetype at = 0) : m_bytes(bytes), m_at(at) { }

    int byte() { return uchar(m_bytes.at(m_at++)); }
    int word()
    {
        const int low = byte();
        return low + 256 * byte();
    }
    int signedWord()
    {
        const int value = word();
        return value < 0x8000 ? value : value - 0x10000;
    }
    QString text(qsizetype at) const { return QString::fromUtf8(m_bytes.constData() + at); }
    bool atEnd() const { return m_at == m_bytes.size(); }

private:
    QByteArray m_bytes;
    qsizetype m_at;
};

/// A cell of two bytes.
inline TileMap::TileData cellOf(int index, int attributes)
{
    return {index + (attributes & 1) * 256, bool(attributes & 2), bool(attributes & 4),
            bool(attributes & 8),           attributes / 16,      true};
}

/// Whether the pixels are the nibbles of the bytes, the high one first.
inline bool isPacked(const QByteArray &bytes, const QByteArray &pixels)
{
    QByteArray nibbles;
    for (const char byte : bytes)
        nibbles.append(char(uchar(byte) / 16)).append(char(uchar(byte) % 16));
    QByteArray low;
    for (const char pixel : pixels)
        low.append(char(uchar(pixel) % 16));
    return nibbles == low;
}

/// Reads what each form makes of the assets of a project, by the layouts alone, and compares it with the assets.
/// Ranges, screens and the like are chosen at random.
class FormReaders
{
public:
    FormReaders(const Project &project, quint32 seed) : m_project(project), m_random(seed) { }

    void readAll()
    {
        for (const auto &palette : m_project.palettes())
            readPalette(palette);
        for (const auto &tiles : m_project.tileSets())
            readTiles(tiles);
        for (const auto &map : m_project.maps()) {
            readMap(map);
            readPlacedSprites(map);
            readPlacedBlocks(map);
        }
        for (const auto &blocks : m_project.blockSets())
            readAnimations(bytesOf("block-animations", blocks), blocks->animations());
        for (const auto &bank : m_project.spriteBanks()) {
            readAnimations(bytesOf("sprite-animations", bank), bank->animations());
            readSprites(bank);
        }
        for (const auto &image : m_project.images())
            readImage(image);
        for (const NextData::Form &form : NextData::forms())
            QVERIFY2(m_read.contains(form.id), qPrintable(form.id + " was not looked at"));
    }

private:
    [[nodiscard]] int number(int bound) { return int(m_random.bounded(quint32(bound))); }

    /// The bytes of an output, whose size is told without making them.
    template <typename Asset>
    QByteArray bytesOf(const QString &id, const QPointer<Asset> &asset, const Options &options = {})
    {
        m_read.insert(id);
        const NextData::Form &form = *NextData::findForm(id);
        const NextData::Source source = sourceOf(m_project, asset);
        const QByteArray bytes = writtenBytes(id, source, options);
        if (*sizeOf(form, source, *NextData::OptionValues::parse(form.options, options)) != bytes.size())
            qFatal("another size was told of %s: %s", qPrintable(id), bytes.constData());
        return bytes;
    }

    void readPalette(const QPointer<Palette> &palette)
    {
        const int group = number(16);
        const QByteArray words = bytesOf("palette", palette);
        const QByteArray colours = bytesOf("palette-8bit", palette);
        for (int i = 0; i < 256; ++i) {
            Bytes word(words, 2 * i);
            const int rrrgggbb = word.byte();
            QCOMPARE(rrrgggbb * 256 + word.byte(), palette->rawColour(i));
            QCOMPARE(uchar(colours.at(i)), rrrgggbb);
        }
        QCOMPARE(bytesOf("palette-group", palette, {{"group", QString::number(group)}}), words.mid(group * 32, 32));
        const int index = palette->transparencyIndex();
        const int colour = index < 0 ? 0xE3 : palette->rawColour(index) / 256;
        QCOMPARE(bytesOf("palette-513", palette), words + char(colour));
        QCOMPARE(bytesOf("palette-513", palette, {{"transparency", "index"}}), words + char(index < 0 ? 0xE3 : index));
    }

    void readTiles(const QPointer<TileSet> &tiles)
    {
        const int first = number(tiles->count());
        const int count = 1 + number(tiles->count() - first);
        const int ink = number(16);
        const Options range{{"first", QString::number(first)}, {"count", QString::number(count)}};
        const auto with = [&range](const QString &option, const QString &value) {
            Options options = range;
            options.insert(option, value);
            return options;
        };
        QCOMPARE(bytesOf("tiles-4bit", tiles).size(), tiles->count() * 32);
        const QByteArray packed = bytesOf("tiles-4bit", tiles, range);
        const QByteArray rows = bytesOf("tiles-8bit", tiles, range);
        const QByteArray columns = bytesOf("tiles-8bit", tiles, with("order", "columns"));
        const QByteArray bits = bytesOf("tiles-1bit", tiles, with("ink", QString::number(ink)));
        const QByteArray attributes = bytesOf("tile-attributes", tiles, range);
        const QByteArray values = bytesOf("tile-values", tiles, range);
        const QByteArray words = bytesOf("tile-values", tiles, with("width", "word"));
        QCOMPARE(packed.size(), count * 32);
        for (int i = 0; i < count; ++i) {
            const Tile &tile = *tiles->tile(first + i);
            const QByteArray pixels = indices(tile.image());
            QVERIFY(isPacked(packed.mid(i * 32, 32), pixels));
            for (int y = 0; y < 8; ++y) {
                for (int x = 0; x < 8; ++x) {
                    const int pixel = uchar(pixels[y * 8 + x]) % 16;
                    QCOMPARE(uchar(rows[i * 64 + y * 8 + x]), tile.offset() * 16 + pixel);
                    QCOMPARE(uchar(columns[i * 64 + x * 8 + y]), tile.offset() * 16 + pixel);
                    QCOMPARE(bool(bits[i * 8 + y] & 0x80 >> x), pixel == ink);
                }
            }
            QCOMPARE(uchar(attributes[i]), tile.attributes());
            QCOMPARE(uchar(values[i]), tile.value());
            QCOMPARE(Bytes(words, i * 2).word(), tile.value());
        }
    }

    /// The positions of cells in the order of the bytes.
    static QList<QPoint> order(QSize map, QSize screen, bool byColumns)
    {
        QList<QPoint> positions;
        const int inner = byColumns ? screen.height() : screen.width();
        for (int top = 0; top < map.height(); top += screen.height()) {
            for (int left = 0; left < map.width(); left += screen.width()) {
                for (int i = 0; i < screen.width() * screen.height(); ++i)
                    positions.append(byColumns ? QPoint(left + i / inner, top + i % inner)
                                               : QPoint(left + i % inner, top + i / inner));
            }
        }
        return positions;
    }

    /// Whether one byte a cell can tell the map.
    static bool isPlain(const Map &map)
    {
        QSet<int> offsets;
        for (const QPoint &at : order(map.size(), map.size(), false)) {
            const TileMap::TileData cell = map.tileLayer()->cellAt(at);
            if (cell.index > 255 || cell.rotate || cell.flip || cell.mirror)
                return false;
            if (cell.used)
                offsets.insert(cell.offset);
        }
        return offsets.size() < 2;
    }

    void readMap(const QPointer<Map> &map)
    {
        QCOMPARE(bytesOf("map-2byte", map), map->tileLayer()->toNextData()); // what the editor's own export writes
        const bool plain = isPlain(*map);
        QCOMPARE(bool(written("map-1byte", sourceOf(m_project, map))), plain);
        const QSize cut(1 + number(12), 1 + number(12));
        for (const QSize screen : {QSize(0, 0), QSize(cut.width(), 0), cut}) {
            const QSize size(screen.width() > 0 ? screen.width() : map->size().width(),
                             screen.height() > 0 ? screen.height() : map->size().height());
            for (const bool byColumns : {false, true}) {
                const Options options{{"order", byColumns ? "columns" : "rows"},
                                      {"screen-width", QString::number(screen.width())},
                                      {"screen-height", QString::number(screen.height())}};
                Bytes two(bytesOf("map-2byte", map, options));
                Bytes one(plain ? bytesOf("map-1byte", map, options) : QByteArray());
                for (const QPoint &at : order(map->size(), size, byColumns)) {
                    const int index = two.byte();
                    auto cell = cellOf(index, two.byte());
                    cell.used = map->tileLayer()->cellAt(at).used;
                    QCOMPARE(cell, map->tileLayer()->cellAt(at));
                    QVERIFY(!plain || one.byte() == cell.index);
                }
                QVERIFY(two.atEnd() && one.atEnd());
            }
        }
    }

    void readPlacedSprites(const QPointer<Map> &map)
    {
        const QByteArray bytes = bytesOf("map-sprites", map);
        QCOMPARE(bytesOf("map-sprites", map, {{"names", "none"}}).size(), 2 + 16 * map->sprites().size());
        Bytes in(bytes);
        QCOMPARE(in.word(), map->sprites().size());
        for (const Map::PlacedSprite &sprite : map->sprites()) {
            Map::PlacedSprite read;
            read.x = in.signedWord();
            read.y = in.signedWord();
            const auto bank = m_project.spriteBanks().at(in.byte());
            read.bank = bank->id();
            const int flags = in.byte();
            read.paletteOffset = flags / 16;
            read.mirror = flags & 8;
            read.flip = flags & 4;
            read.rotate = flags & 2;
            const int number = in.word();
            if (flags & 1)
                read.animation = bank->animations().at(number)->id();
            read.sprite = flags & 1 ? sprite.sprite : number; // which does not show
            read.startFrame = in.word();
            read.initialDelay = in.word();
            read.repeatDelay = in.word();
            const int name = in.word();
            read.name = name > 0 ? in.text(name) : QString();
            QCOMPARE(read, sprite);
        }
    }

    void readPlacedBlocks(const QPointer<Map> &map)
    {
        Bytes in(bytesOf("map-blocks", map));
        const AnimatedBlocks::State placements = map->animatedBlocks()->state();
        QCOMPARE(in.word(), placements.size());
        for (const AnimationProperties::State &placement : placements) {
            AnimationProperties::State read;
            const int column = in.signedWord();
            const int row = in.signedWord();
            const int width = in.byte();
            read.area = {column, row, width, in.byte()};
            const auto set = m_project.blockSets().at(in.byte());
            const int kind = in.byte();
            const auto animation = set->animations().at(in.word());
            QCOMPARE(kind, int(animation->type()));
            read.animationId = animation->id();
            read.startFrame = in.word();
            read.initialDelay = in.word();
            read.repeatDelay = in.word();
            QCOMPARE(read, placement);
        }
        QVERIFY(in.atEnd());
    }

    template <typename Animations>
    static void readAnimations(const QByteArray &bytes, const Animations &animations)
    {
        Bytes places(bytes);
        QCOMPARE(places.word(), animations.size());
        for (const auto &animation : animations) {
            Bytes in(bytes, places.word());
            const int width = in.byte();
            QCOMPARE(QSize(width, in.byte()), animation->size());
            QCOMPARE(in.byte(), animation->frameCount());
            const auto *blocks = qobject_cast<const TileAnimation *>(animation.data());
            QCOMPARE(in.byte(), blocks ? int(blocks->type()) : 0);
            QCOMPARE(in.word(), animation->delay());
            for (int i = 0; i < animation->frameCount() * animation->size().width() * animation->size().height(); ++i) {
                const int place = i / animation->size().width();
                const int index = in.byte();
                const auto read = cellOf(index, in.byte());
                const auto cell = animation->frame(place / animation->size().height())
                                      ->cell(place % animation->size().height(), i % animation->size().width());
                QCOMPARE(read, (TileMap::TileData{cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset, true}));
            }
        }
    }

    void readSprites(const QPointer<SpriteBank> &bank)
    {
        const int first = number(bank->count());
        const Options range{{"first", QString::number(first)}};
        QByteArray pixels;
        for (int i = first; i < bank->count(); ++i)
            pixels += indices(bank->spriteImage(i, false, false, false));
        QCOMPARE(bytesOf("sprites-8bit", bank, range), pixels);
        const bool fits = bank->depth() == Quenmora::FourBit
            || std::all_of(pixels.cbegin(), pixels.cend(), [](char pixel) { return uchar(pixel) < 16; });
        if (fits)
            QVERIFY(isPacked(bytesOf("sprites-packed", bank, range), pixels));
        else
            QVERIFY(
                written("sprites-packed", sourceOf(m_project, bank), range).reason().contains("has a pixel of index"));
    }

    void readImage(const QPointer<Image> &image)
    {
        const char *forms[] = {"layer2-256", "layer2-320", "layer2-640", "lores"};
        const QString id = forms[image->mode()];
        const QImage picture = image->image();
        const QByteArray bytes = bytesOf(id, image);
        if (image->palette())
            QCOMPARE(bytesOf(id, image, {{"palette", "true"}}), bytesOf("palette", image->palette()) + bytes);
        if (image->mode() == Quenmora::Layer2_640x256) {
            for (int i = 0; i < bytes.size(); ++i) {
                const char pair[] = {char(picture.pixelIndex(i / 256 * 2, i % 256)),
                                     char(picture.pixelIndex(i / 256 * 2 + 1, i % 256))};
                QVERIFY(isPacked(bytes.mid(i, 1), QByteArray(pair, 2)));
            }
        } else if (image->mode() == Quenmora::Layer2_320x256) {
            for (int i = 0; i < bytes.size(); ++i)
                QCOMPARE(uchar(bytes[i]), picture.pixelIndex(i / 256, i % 256));
        } else {
            QCOMPARE(bytes, indices(picture));
        }
        if (image->mode() != Quenmora::LoRes_128x96)
            return;
        const auto halves = written(id, sourceOf(m_project, image), {{"halves", "true"}});
        QVERIFY(halves && halves->size() == 2);
        QCOMPARE(halves->first(), (NextData::OutputFile{"level_0.bin", bytes.left(6144)}));
        QCOMPARE(halves->last(), (NextData::OutputFile{"level_1.bin", bytes.mid(6144)}));
    }

    const Project &m_project;
    QRandomGenerator m_random;
    QSet<QString> m_read; ///< ids of the forms whose bytes were looked at
};
