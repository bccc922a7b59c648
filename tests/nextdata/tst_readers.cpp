#include "nextdata/reader.h"
#include "support/formoutput.h"
#include "support/modeltools.h"
#include "support/randomproject.h"
#include "support/testmain.h"

#include <QTest>

#include <numeric>

using namespace NextData;

namespace {

Result<Reading> readBack(const QString &id, const QByteArray &bytes, const Options &options = {})
{
    const Reader *reader = findReader(id);
    if (!reader)
        qFatal("there is no reader %s", qPrintable(id));
    const auto values = OptionValues::parse(reader->options, options);
    return values ? NextData::read(*reader, bytes, *values) : values.failure();
}

/// Bytes with a +3DOS header in front, and the rest of a sector behind them.
QByteArray onDisk(const QByteArray &bytes)
{
    QByteArray header("PLUS3DOS\x1A\x01\x00", 11);
    const qsizetype length = bytes.size() + 128;
    for (int shift = 0; shift < 32; shift += 8)
        header.append(char(length >> shift));
    header.append(127 - header.size(), '\3');
    header.append(
        char(std::accumulate(header.cbegin(), header.cend(), 0, [](int sum, char c) { return sum + uchar(c); })));
    return header + bytes + QByteArray(77, '\x1A');
}

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace

Q_DECLARE_METATYPE(Content)

/// Files that come back: of the exports, of other converters, and damaged ones.
class TestReaders : public QObject
{
    Q_OBJECT

    /// What a form makes of an asset, read with these options; an empty content when it cannot be.
    template <typename Kind, typename Asset>
    static Kind roundTrip(const QString &id, const Project &project, const QPointer<Asset> &asset,
                          const Options &written = {}, const Options &read = {})
    {
        const auto reading = readBack(id, writtenBytes(id, sourceOf(project, asset), written), read);
        if (!reading || !reading->remarks.isEmpty())
            qWarning("%s: %s %s", qPrintable(id), qPrintable(reading.reason()),
                     reading ? qPrintable(reading->remarks.join(' ')) : "");
        return reading ? std::get<Kind>(reading->content) : Kind();
    }

    static void comparePalette(const Project &project, const QPointer<Palette> &palette)
    {
        PaletteContent expected;
        for (int i = 0; i < Palette::Size; ++i)
            expected.words.append(palette->rawColour(i));
        QCOMPARE(roundTrip<PaletteContent>("palette", project, palette), expected);
        const auto group =
            roundTrip<PaletteContent>("palette-group", project, palette, {{"group", "9"}}, {{"group", "9"}});
        QCOMPARE(group.first, 144);
        QCOMPARE(group.words, expected.words.mid(144, 16));
        const Options index{{"transparency", "index"}};
        PaletteContent marked = expected;
        marked.transparency = palette->transparencyIndex() < 0 ? 0xE3 : palette->transparencyIndex();
        QCOMPARE(roundTrip<PaletteContent>("palette-513", project, palette, index, index), marked);
        if (palette->transparencyIndex() >= 0) {
            const auto byColour = roundTrip<PaletteContent>("palette-513", project, palette);
            QCOMPARE(byColour.words[*byColour.transparency] >> 8,
                     palette->rawColour(palette->transparencyIndex()) >> 8);
        }
        const auto bytes = roundTrip<PaletteContent>("palette-8bit", project, palette);
        for (int i = 0; i < Palette::Size; ++i)
            QCOMPARE(bytes.words.value(i) >> 8, expected.words[i] >> 8);
    }

    static void compareTiles(const Project &project, const QPointer<TileSet> &tiles, int ink)
    {
        TilesContent shown;
        TilesContent set;
        TileNumbersContent attributes;
        TileNumbersContent values{TileNumbersContent::Meaning::Values, 0, {}};
        for (int i = 0; i < tiles->count(); ++i) {
            TilesContent::Pixels tile{tiles->tile(i)->pixels(), tiles->tileOffset(i)};
            for (uchar &pixel : tile.pixels)
                pixel &= 15;
            shown.tiles.append(tile);
            for (uchar &pixel : tile.pixels)
                pixel = pixel == ink ? 3 : 12;
            set.tiles.append({tile.pixels, 5});
            attributes.numbers.append(tiles->tile(i)->attributes());
            values.numbers.append(tiles->tile(i)->value());
        }
        for (const QString order : {"rows", "columns"})
            QCOMPARE(roundTrip<TilesContent>("tiles-8bit", project, tiles, {{"order", order}}, {{"order", order}}),
                     shown);
        const Options asSet{{"ink", "3"}, {"paper", "12"}, {"offset", "5"}};
        QCOMPARE(roundTrip<TilesContent>("tiles-1bit", project, tiles, {{"ink", QString::number(ink)}}, asSet), set);
        for (auto &tile : shown.tiles)
            tile.offset = 7;
        QCOMPARE(roundTrip<TilesContent>("tiles-4bit", project, tiles, {}, {{"offset", "7"}}), shown);
        shown.tiles = {shown.tiles.last()};
        const Options last{{"first", QString::number(tiles->count() - 1)}, {"count", "1"}, {"offset", "7"}};
        QCOMPARE(roundTrip<TilesContent>("tiles-4bit", project, tiles, {}, last), shown);
        const Options lastAlone{{"first", last["first"]}, {"count", "1"}};
        QCOMPARE(roundTrip<TilesContent>("tiles-4bit", project, tiles, lastAlone, {{"offset", "7"}}), shown);
        QCOMPARE(roundTrip<TileNumbersContent>("tile-attributes", project, tiles), attributes);
        QCOMPARE(roundTrip<TileNumbersContent>("tile-values", project, tiles), values);
        QCOMPARE(roundTrip<TileNumbersContent>("tile-values", project, tiles, {{"width", "word"}}, {{"width", "word"}}),
                 values);
    }

    static void compareMap(RandomProject &random, const QPointer<Map> &map)
    {
        const QString form = map->name() == QStringLiteral("Plain") ? "map-1byte" : "map-2byte";
        QCOMPARE(writtenBytes("map-2byte", sourceOf(random.project, map)), map->tileLayer()->toNextData());
        MapContent expected{map->tileLayer()->rows()};
        int offset = 0; // of the cells that were drawn; it comes from a register
        for (TileMap::Row &row : expected.rows) {
            for (TileMap::TileData &cell : row)
                offset = cell.used ? cell.offset : offset;
        }
        for (TileMap::Row &row : expected.rows) {
            for (TileMap::TileData &cell : row) {
                cell.used = true;
                cell.offset = form == QStringLiteral("map-1byte") ? offset : cell.offset;
            }
        }
        const auto side = [&random](int whole) {
            return QString::number(random.chance() ? 0 : 1 + random.number(whole + 2));
        };
        const Options screens{{"order", random.chance() ? "rows" : "columns"},
                              {"screen-width", side(map->size().width())},
                              {"screen-height", side(map->size().height())}};
        Options read = screens;
        read.insert("width", QString::number(map->size().width()));
        read.insert("height", QString::number(map->size().height()));
        if (form == QStringLiteral("map-1byte"))
            read.insert("offset", QString::number(offset));
        QCOMPARE(roundTrip<MapContent>(form, random.project, map, screens, read), expected);
    }

    static void compareSprites(const Project &project, const QPointer<SpriteBank> &bank)
    {
        const bool isFour = bank->depth() == Quenmora::FourBit;
        SpritesContent expected{bank->depth(), indices(bank->image())};
        QCOMPARE(roundTrip<SpritesContent>("sprites-8bit", project, bank, {}, {{"depth", isFour ? "4" : "8"}}),
                 expected);
        if (!isFour)
            return;
        for (char &pixel : expected.pixels)
            pixel &= 15;
        QCOMPARE(roundTrip<SpritesContent>("sprites-packed", project, bank), expected);
    }

    static void compareImage(const Project &project, const QPointer<Image> &image)
    {
        const QStringList ids{"layer2-256", "layer2-320", "layer2-640", "lores"};
        ImageContent expected{image->mode(), indices(image->image()), {}};
        Options read;
        if (image->mode() == Quenmora::Layer2_640x256)
            read.insert("group", QString::number(uchar(expected.pixels.front()) >> 4));
        QCOMPARE(roundTrip<ImageContent>(ids[image->mode()], project, image, {}, read), expected);
        for (int i = 0; i < Palette::Size; ++i)
            expected.palette.append(image->palette()->rawColour(i));
        QCOMPARE(roundTrip<ImageContent>(ids[image->mode()], project, image, {{"palette", "true"}}, read), expected);
        if (image->mode() == Quenmora::LoRes_128x96) {
            const auto halves = written("lores", sourceOf(project, image), {{"halves", "true"}});
            const QByteArray whole = writtenBytes("lores", sourceOf(project, image));
            QVERIFY(halves && halves->size() == 2);
            QCOMPARE(halves->first(), (OutputFile{"level_0.bin", whole.first(6144)}));
            QCOMPARE(halves->last(), (OutputFile{"level_1.bin", whole.last(6144)}));
        }
    }

private slots:
    void comesBack_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 20; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void comesBack()
    {
        QFETCH(quint32, seed);
        RandomProject random(seed);
        for (const auto &palette : random.project.palettes())
            comparePalette(random.project, palette);
        compareTiles(random.project, random.tiles, random.number(16));
        for (const auto &map : random.project.maps())
            compareMap(random, map);
        for (const auto &bank : random.project.spriteBanks())
            compareSprites(random.project, bank);
        for (const auto &image : random.project.images())
            compareImage(random.project, image);
    }

    /// Files that no form writes, by hand.
    void readsOthers_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<Options>("options");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Content>("content");
        const auto add = [](const char *what, const char *id, const Options &options, const QByteArray &bytes,
                            const Content &content) { QTest::newRow(what) << id << options << bytes << content; };

        PaletteContent blues;
        for (int i = 0; i < 256; ++i)
            blues.words.append(quint16(0xE400 | (i % 4) << 8 | (i % 4 > 0 ? 1 : 0)));
        add("the third bit of blue", "palette-8bit", {}, hex("E4E5E6E7").repeated(64), blues);
        add("a few colours", "palette-group", {{"group", "2"}}, hex("E3815600"), PaletteContent{32, {0xE381, 0x5600}});

        TilesContent mixed;
        mixed.tiles.resize(1);
        mixed.tiles[0].offset = TilesContent::MixedOffset;
        mixed.tiles[0].pixels = {0x21, 0x3F};
        add("a tile of two groups", "tiles-8bit", {}, hex("213F").leftJustified(64, '\0'), mixed);

        const TileMap::TileData tile{.index = 2, .offset = 3, .used = true};
        const TileMap::TileData turned{.index = 5, .rotate = true, .used = true};
        add("cells with the ULA in front", "map-2byte", {{"width", "1"}, {"bit-0", "ula"}}, hex("02310503"),
            MapContent{{{tile}, {turned}}});
        add("columns of an unfinished map", "map-1byte", {{"width", "2"}, {"order", "columns"}, {"offset", "3"}},
            hex("020202"), MapContent{{{tile, tile}, {tile, {}}}});

        QByteArray rows(256 * 192, '\0');
        rows[1] = 7; // in the first row, and as columns in the first column
        ImageContent image{Quenmora::Layer2_256x192, rows, QList<quint16>(256, 0xE481)};
        add("a palette in front", "layer2-256", {}, hex("E481").repeated(256) + rows, image);
        image.palette = QList<quint16>(256, 0xE501);
        add("a palette of bytes in front", "layer2-256", {}, hex("E5").repeated(256) + rows, image);
        image.palette = {};
        image.pixels[1] = 0;
        image.pixels[256] = 7;
        add("pixels by columns", "layer2-256", {{"order", "columns"}}, rows, image);
        add("half a picture", "lores", {}, QByteArray(6144, '\5'),
            ImageContent{Quenmora::LoRes_128x96, QByteArray(6144, '\5') + QByteArray(6144, '\0'), {}});
    }

    void readsOthers()
    {
        QFETCH(QString, id);
        QFETCH(Options, options);
        QFETCH(QByteArray, bytes);
        QFETCH(Content, content);
        const auto reading = readBack(id, bytes, options);
        QVERIFY2(reading, qPrintable(reading.reason()));
        QVERIFY(reading->content == content);
    }

    void skipsHeaders()
    {
        const QByteArray bytes = hex("0102030405");
        QCOMPARE(withoutHeader(onDisk(bytes)), bytes);
        QByteArray damaged = onDisk(bytes);
        damaged[20] = '\4'; // the sum is another one
        QCOMPARE(withoutHeader(damaged), damaged);
        QCOMPARE(withoutHeader(onDisk(bytes).first(128)), QByteArray()); // cut
        QCOMPARE(withoutHeader(bytes), bytes);
    }

    void saysWhatIsWrong_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<qsizetype>("size");
        QTest::addColumn<Options>("options");
        QTest::addColumn<QString>("reason");
        const auto add = [](const char *id, qsizetype size, const Options &options, const char *reason) {
            QTest::addRow("%s of %d bytes", id, int(size)) << id << size << options << reason;
        };
        add("palette", 0, {}, "The file is empty");
        add("palette", 511, {}, "The file has 511 bytes, and such a palette 2 an entry, 512 in all");
        add("palette-513", 512, {}, "The file has 512 bytes, and such a palette 513");
        add("tiles-4bit", 31, {}, "The file has 31 bytes, and one of these takes 32");
        add("tiles-4bit", 64, {{"first", "2"}}, "Options first and count: there are 2, and 1 from number 2 on are not");
        add("tiles-1bit", 4097 * 8, {},
            "The file holds 4097, and 4096 go into an asset: choose which, with first and count");
        add("map-1byte", 10'000, {{"width", "1"}},
            "That makes a map of 1 × 10000 cells; 9999 along a side and 8000000 in all are the most");
        add("map-1byte", 8'000'001, {{"width", "9000"}},
            "That makes a map of 9000 × 889 cells; 9999 along a side and 8000000 in all are the most");
        add("map-2byte", 1, {}, "The file has 1 bytes, and a cell takes 2");
        add("sprites-packed", 100, {}, "The file has 100 bytes, and one of these takes 128");
        add("layer2-320", 49'152, {},
            "The file has 49152 bytes, and such a picture 81920, or 82432 or 82176 with its palette");
        add("sprites-8bit", MostBytes + 1, {},
            "The file has 16777217 bytes, and the largest that is read as it is 16777216");
    }

    void saysWhatIsWrong()
    {
        QFETCH(QString, id);
        QFETCH(qsizetype, size);
        QFETCH(Options, options);
        QFETCH(QString, reason);
        QCOMPARE(readBack(id, QByteArray(size, '\1'), options).reason(), reason);
    }
};

QUENMORA_TEST_MAIN(TestReaders)
#include "tst_readers.moc"
