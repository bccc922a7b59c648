#include "support/formoutput.h"
#include "support/randomproject.h"
#include "support/testmain.h"

#include <QTest>

using namespace NextData;

namespace {

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
TileMap::TileData cellOf(int index, int attributes)
{
    return {index + (attributes & 1) * 256, bool(attributes & 2), bool(attributes & 4),
            bool(attributes & 8),           attributes / 16,      true};
}

/// Whether the pixels are the nibbles of the bytes, the high one first.
bool isPacked(const QByteArray &bytes, const QByteArray &pixels)
{
    QByteArray nibbles;
    for (const char byte : bytes)
        nibbles.append(char(uchar(byte) / 16)).append(char(uchar(byte) % 16));
    QByteArray low;
    for (const char pixel : pixels)
        low.append(char(uchar(pixel) % 16));
    return nibbles == low;
}

} // namespace

/// What is written is read again, by readers that know the layouts alone.
class TestForms : public QObject
{
    Q_OBJECT

    std::unique_ptr<RandomProject> m_random;
    QSet<QString> m_read; ///< ids of the forms whose bytes were looked at

    Project &project() { return m_random->project; }

    /// The bytes of an output, whose size is told without making them.
    template <typename Asset>
    QByteArray bytesOf(const QString &id, const QPointer<Asset> &asset, const Options &options = {})
    {
        m_read.insert(id);
        const Form &form = *findForm(id);
        const Source source = sourceOf(project(), asset);
        const QByteArray bytes = writtenBytes(id, source, options);
        if (*sizeOf(form, source, *OptionValues::parse(form.options, options)) != bytes.size())
            qFatal("another size was told of %s: %s", qPrintable(id), bytes.constData());
        return bytes;
    }

private slots:
    void random_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 20; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void random()
    {
        QFETCH(quint32, seed);
        m_random = std::make_unique<RandomProject>(seed);
        readPalettes();
        readTiles();
        readMaps();
        readPlacedSprites();
        readPlacedBlocks();
        for (const auto &blocks : project().blockSets())
            readAnimations(bytesOf("block-animations", blocks), blocks->animations());
        for (const auto &bank : project().spriteBanks()) {
            readAnimations(bytesOf("sprite-animations", bank), bank->animations());
            readSprites(bank);
        }
        readImages();
        for (const Form &form : forms())
            QVERIFY2(m_read.contains(form.id), qPrintable(form.id + " was not looked at"));
    }

private:
    void readPalettes()
    {
        const QPointer<Palette> palette = project().palettes().first();
        const int group = m_random->number(16);
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

    void readTiles()
    {
        const QPointer<TileSet> tiles = m_random->tiles;
        const int first = m_random->number(tiles->count());
        const int count = 1 + m_random->number(tiles->count() - first);
        const int ink = m_random->number(16);
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

    void readMaps()
    {
        const QPointer<Map> map = m_random->map;
        const QPointer<Map> plain = project().createMap("Plain", m_random->tiles->id(), map->size());
        const int offset = m_random->number(16);
        for (const QPoint &at : order(map->size(), map->size(), false)) {
            if (m_random->chance()) // others are never drawn
                plain->setTile(at, {m_random->number(256), false, false, false, offset, true});
        }
        QCOMPARE(bytesOf("map-2byte", map), map->tileLayer()->toNextData()); // what the editor's own export writes
        const QSize cut(1 + m_random->number(12), 1 + m_random->number(12));
        for (const QSize screen : {QSize(0, 0), QSize(cut.width(), 0), cut}) {
            const QSize size(screen.width() > 0 ? screen.width() : map->size().width(),
                             screen.height() > 0 ? screen.height() : map->size().height());
            for (const bool byColumns : {false, true}) {
                const Options options{{"order", byColumns ? "columns" : "rows"},
                                      {"screen-width", QString::number(screen.width())},
                                      {"screen-height", QString::number(screen.height())}};
                Bytes two(bytesOf("map-2byte", map, options));
                Bytes one(bytesOf("map-1byte", plain, options));
                for (const QPoint &at : order(map->size(), size, byColumns)) {
                    const int index = two.byte();
                    auto cell = cellOf(index, two.byte());
                    cell.used = map->tileLayer()->cellAt(at).used;
                    QCOMPARE(cell, map->tileLayer()->cellAt(at));
                    QCOMPARE(one.byte(), plain->tileLayer()->cellAt(at).index);
                }
                QVERIFY(two.atEnd() && one.atEnd());
            }
        }
    }

    void readPlacedSprites()
    {
        const QPointer<Map> map = m_random->map;
        const QByteArray bytes = bytesOf("map-sprites", map);
        QCOMPARE(bytesOf("map-sprites", map, {{"names", "none"}}).size(), 2 + 16 * map->sprites().size());
        Bytes in(bytes);
        QCOMPARE(in.word(), map->sprites().size());
        for (const Map::PlacedSprite &sprite : map->sprites()) {
            Map::PlacedSprite read;
            read.x = in.signedWord();
            read.y = in.signedWord();
            const auto bank = project().spriteBanks().at(in.byte());
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

    void readPlacedBlocks()
    {
        Bytes in(bytesOf("map-blocks", m_random->map));
        const AnimatedBlocks::State placements = m_random->map->animatedBlocks()->state();
        QCOMPARE(in.word(), placements.size());
        for (const AnimationProperties::State &placement : placements) {
            AnimationProperties::State read;
            const int column = in.signedWord();
            const int row = in.signedWord();
            const int width = in.byte();
            read.area = {column, row, width, in.byte()};
            const auto set = project().blockSets().at(in.byte());
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
        const int first = m_random->number(bank->count());
        const Options range{{"first", QString::number(first)}};
        QByteArray pixels;
        for (int i = first; i < bank->count(); ++i)
            pixels += indices(bank->spriteImage(i, false, false, false));
        QCOMPARE(bytesOf("sprites-8bit", bank, range), pixels);
        if (bank->depth() == Quenmora::FourBit)
            QVERIFY(isPacked(bytesOf("sprites-packed", bank, range), pixels));
        else
            QVERIFY(written("sprites-packed", sourceOf(project(), bank))
                        .reason()
                        .contains("sprite 0 (counted from 0) has a pixel of index"));
    }

    void readImages()
    {
        const QByteArray palette = bytesOf("palette", project().palettes().first());
        const char *forms[] = {"layer2-256", "layer2-320", "layer2-640", "lores"};
        for (const auto &image : project().images()) {
            const QString id = forms[image->mode()];
            const QImage picture = image->image();
            const QByteArray bytes = bytesOf(id, image);
            QCOMPARE(bytesOf(id, image, {{"palette", "true"}}), palette + bytes);
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
        }
        const auto halves = written("lores", sourceOf(project(), project().images().last()), {{"halves", "true"}});
        const QByteArray whole = bytesOf("lores", project().images().last());
        QCOMPARE(*halves, (QList<OutputFile>{{"level_0.bin", whole.left(6144)}, {"level_1.bin", whole.mid(6144)}}));
    }
};

QUENMORA_TEST_MAIN(TestForms)
#include "tst_forms.moc"
