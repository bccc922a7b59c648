#include "model/animatedblocks.h"
#include "model/colourcycle.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "nextdata/reader.h"
#include "support/formoutput.h"
#include "support/littleendian.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

#include <numeric>

using namespace NextData;

namespace {

/// A picture of these hexadecimal digits, zeros behind them.
QImage picture(QSize size, const QByteArray &digits)
{
    return pictureOf(size, QImage::Format_Indexed8, [&digits](int i) { return digits.mid(i, 1).toUInt(nullptr, 16); });
}

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
    QByteArray header = QByteArray("PLUS3DOS\x1A\x01\x00", 11) + le32(bytes.size() + 128);
    header.append(127 - header.size(), '\3');
    header.append(
        char(std::accumulate(header.cbegin(), header.cend(), 0, [](int sum, char c) { return sum + uchar(c); })));
    return header + bytes + QByteArray(77, '\x1A');
}

} // namespace

/// The worked examples of docs/file-formats.md, files of other converters, and what no form takes or has. Random
/// projects go through every form, there and back, in the tests of importing.
class TestForms : public QObject
{
    Q_OBJECT

    Project m_project;
    QPointer<Palette> m_palette = m_project.createPalette(CreateAction::Blank, "Sunset");
    QPointer<TileSet> m_tiles = m_project.createTileSet("Rocks", m_palette->id(), 3);
    QPointer<Map> m_cave = m_project.createMap("Cave", m_tiles->id(), {2, 2});
    QPointer<Map> m_hall = m_project.createMap("Hall", m_tiles->id(), {3, 2});
    QPointer<MapObjects> m_blocks = m_project.createBlockList("Blocks", m_tiles->id());
    QPointer<MapObjects> m_platform = m_project.createBlockList("Platform", m_tiles->id());
    QPointer<SpriteBank> m_bank = m_project.createSpriteBank(Quenmora::FourBit, "Hero", m_palette->id());

    /// The asset of a name.
    Source asset(const QString &name) const
    {
        for (const Source &source : Source::all(m_project)) {
            if (source.name() == name)
                return source;
        }
        qFatal("there is no %s", qPrintable(name));
    }

private slots:
    void initTestCase()
    {
        m_palette->setRawColour(0, 0xE381);
        m_palette->setRawColour(1, 0x5600);
        m_palette->setRawColour(2, 0xEC01);
        m_palette->setTransparencyIndex(2);
        ColourCycles::set(*m_project.extras(), m_palette->id(), {{8, 15, 5, false}, {192, 255, 255, true}});

        m_tiles->setTileImage(0,
                              picture({8, 8},
                                      "0001100000122100012332101234532"
                                      "1F00000000F000000777777770000000A"));
        m_tiles->setTileOffset(0, 2);
        m_tiles->tile(1)->setValue(5);
        m_tiles->tile(2)->setValue(-1);
        m_tiles->tile(1)->setAttributes(0x0F);
        m_tiles->tile(2)->setAttributes(0x41);

        m_cave->setTile({0, 0}, {257, false, false, true, 3, true});
        m_cave->setTile({1, 0}, {5, true, false, false, 0, true});
        m_cave->setTile({0, 1}, {2, false, true, false, 15, true});
        m_cave->setTile({1, 1}, {511, true, true, true, 10, true});
        for (int i = 0; i < 6; ++i)
            m_hall->setTile({i % 3, i / 3}, {i + 1, false, false, false, 0, true});

        m_bank->setWholeImage(picture({16, 64}, "0123456789ABCDEF"));
        const auto run = m_bank->newAnimation();
        run->setName("Run");
        run->setSize({2, 1});
        run->setDelay(4);
        run->addFrame();
        run->frame(0)->setIndex(0, 1, 1);
        run->frame(1)->setCells({{{2}, {2, 0, false, true}}});

        const auto lift = m_platform->createBoundTileAnimation("Lift");
        lift->setMapObjectType(MapObjectType::HorizontalPlatform);
        lift->setSize({3, 1});
        lift->addFrame()->setCells({{{257}, {5, 3}, {5, 3, false, true}}});

        m_blocks->createBoundTileAnimation("Still");
        const QUuid moving = m_blocks->createBoundTileAnimation("Moving")->id();
        m_blocks->animation(moving)->setMapObjectType(MapObjectType::HorizontalPlatform);
        m_cave->animatedBlocks()->append(new AnimationProperties({moving, {31, 6, 3, 1}, 0, 10, 0}));

        const auto bats = m_project.createSpriteBank(Quenmora::FourBit, "Bats", m_palette->id());
        bats->newAnimation();
        const QUuid flight = bats->newAnimation()->id();
        m_cave->addSprite({m_bank->id(), {}, 3, 40, -8, true, false, false, 0, 0, 0, 2, {}});
        m_cave->addSprite({bats->id(), flight, 0, 300, 100, false, false, false, 1, 50, 100, 0, "Bat"});

        for (const auto mode :
             {Quenmora::Layer2_256x192, Quenmora::Layer2_320x256, Quenmora::Layer2_640x256, Quenmora::LoRes_128x96}) {
            const QSize size = Image::sizeOf(mode);
            m_project.createImage(mode, QString::number(size.width()), m_palette->id())
                ->setImage(picture(size, QByteArray("12").leftJustified(size.width(), '0') + '3'));
        }
    }

    void examples()
    {
        const auto writes = [this](const QString &form, const QString &name, const Options &options, const char *hex,
                                   int size, int offset = 0) { // the size is that of the whole
            const auto shown = [&form](qsizetype count, const QByteArray &bytes) {
                return QString("%1, %2 bytes: %3").arg(form).arg(count).arg(bytes.toHex(' '));
            };
            const QByteArray bytes = QByteArray::fromHex(hex);
            const QByteArray all = writtenBytes(form, asset(name), options);
            QCOMPARE(shown(all.size(), all.mid(offset, bytes.size())), shown(size, bytes));
        };
        writes("palette", "Sunset", {}, "E3 81 56 00 EC 01 00 00", 512);
        writes("palette-513", "Sunset", {}, "EC", 513, 512);
        writes("palette-8bit", "Sunset", {}, "E3 56 EC 00", 256);
        writes("palette-group", "Sunset", {{"group", "0"}}, "E3 81 56 00 EC 01 00 00", 32);
        writes("palette-cycles", "Sunset", {}, "02 08 0F 05 00 C0 FF FF 01", 9);
        writes("tiles-4bit", "Rocks", {}, "00 01 10 00 00 12 21 00 01 23 32 10 12 34 53 21 F0 00 00 00 0F 00 00 00 77",
               96);
        writes("tiles-8bit", "Rocks", {}, "20 20 20 21 21 20 20 20 20", 192);
        writes("tiles-8bit", "Rocks", {{"order", "columns"}}, "20 20 20 21 2F 20 27 20 20", 192);
        writes("tiles-1bit", "Rocks", {{"ink", "1"}}, "18 24 42 81 00 00 00 00 00", 24);
        writes("tile-attributes", "Rocks", {}, "00 0F 41", 3);
        writes("tile-values", "Rocks", {}, "00 05 FF", 3);
        writes("tile-values", "Rocks", {{"width", "word"}}, "00 00 05 00 FF FF", 6);
        writes("map-2byte", "Cave", {{"order", "columns"}}, "01 39 02 F4 05 02 FF AF", 8);
        writes("map-2byte", "Cave", {{"screen-height", "1"}, {"pad", "5"}}, "01 39 05 02 02 F4 FF AF 00 00", 10);
        writes("map-1byte", "Hall", {}, "01 02 03 04 05 06", 6);
        writes("map-1byte", "Hall", {{"order", "columns"}}, "01 04 02 05 03 06", 6);
        writes("map-1byte", "Hall", {{"screen-width", "2"}, {"screen-height", "2"}}, "01 02 04 05 03 00 06 00", 8);
        writes("map-sprites", "Cave", {},
               "02 00  28 00 F8 FF 00 28 03 00 00 00 00 00 00 00 00 00"
               "2C 01 64 00 01 01 01 00 01 00 32 00 64 00 22 00  42 61 74 00",
               38);
        writes("map-blocks", "Cave", {}, "01 00  1F 00 06 00 03 01 00 01 01 00 00 00 00 00 0A 00", 18);
        writes("block-animations", "Platform", {}, "01 00 04 00  03 01 01 01 00 00  01 01 05 30 05 38", 16);
        writes("sprite-animations", "Hero", {}, "01 00 04 00  02 01 02 00 04 00  00 00 01 00 02 00 02 08", 18);
        writes("sprites-8bit", "Hero", {}, "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 00", 1024);
        writes("sprites-packed", "Hero", {}, "01 23 45 67 89 AB CD EF 00", 512);
        writes("layer2-256", "256", {}, "01 02 00", 49152);
        writes("layer2-256", "256", {}, "03 00", 49152, 256);
        writes("layer2-320", "320", {}, "01 03 00", 81920);
        writes("layer2-320", "320", {}, "02 00", 81920, 256);
        writes("layer2-640", "640", {}, "12 30 00", 81920);
        writes("lores", "128", {}, "01 02 00", 12288);
        writes("lores", "128", {}, "03 00", 12288, 128);
    }

    void sourceText()
    {
        const QString title = "Cave: Tile map, two bytes a cell";
        const QString assembler = "; " + title
            + "\n\nCAVE_WIDTH:\tequ 2\nCAVE_HEIGHT:\tequ 2\nCAVE_SCREEN_WIDTH:\tequ 2\nCAVE_SCREEN_HEIGHT:\tequ 2\n"
              "CAVE_SCREENS_ACROSS:\tequ 1\nCAVE_SCREENS_DOWN:\tequ 1\nCAVE_SIZE:\tequ 8\n\n"
              "cave:\n\tdb $01,$39,$05,$02\n\tdb $02,$f4,$ff,$af\n";
        const QString code = "/* " + title
            + " */\n\n#include \"cave.h\"\n\nconst unsigned char cave[8] = {\n"
              "\t0x01,0x39,0x05,0x02,\n\t0x02,0xf4,0xff,0xaf,\n};\n";
        const QString header = "/* " + title
            + " */\n\n#ifndef CAVE_INCLUDED\n#define CAVE_INCLUDED\n\n"
              "#define CAVE_WIDTH 2\n#define CAVE_HEIGHT 2\n#define CAVE_SCREEN_WIDTH 2\n"
              "#define CAVE_SCREEN_HEIGHT 2\n#define CAVE_SCREENS_ACROSS 1\n#define CAVE_SCREENS_DOWN 1\n"
              "#define CAVE_SIZE 8\n\nextern const unsigned char cave[8];\n\n#endif\n";
        // other assemblers read theirs in the tests of source text
        for (const auto &[dialect, texts] :
             {std::pair{"sjasmplus", QStringList{assembler}}, {"c", QStringList{code, header}}}) {
            const auto files = written("map-2byte", asset("Cave"), {{"text", dialect}}, "cave.c");
            QCOMPARE(valuesOf(*files, [](const OutputFile &file) { return QString::fromUtf8(file.bytes); }), texts);
        }
    }

    void refusal()
    {
        const auto mapWith = [this](const char *name, QPoint at, const TileMap::TileData &cell) {
            const auto map = m_project.createMap(name, m_tiles->id(), {3, 2});
            map->setTile({0, 0}, {1, false, false, false, 4, true});
            map->setTile(at, cell);
            return map;
        };
        mapWith("Mirrored", {2, 1}, {1, false, false, true, 4, true});
        mapWith("Offsets", {1, 1}, {1, false, false, false, 5, true});
        mapWith("Beyond", {1, 0}, {512, false, false, false, 4, true});
        mapWith("Far", {1, 0}, {})->addSprite({m_bank->id(), {}, 0, 32768});
        mapWith("No bank", {1, 0}, {})
            ->addSprite({QUuid::createUuid(), {}, 0, 0, 0, false, false, false, 0, 0, 0, 0, "Cat"});
        mapWith("No run", {1, 0}, {})->addSprite({m_bank->id(), QUuid::createUuid()});
        mapWith("No block", {1, 0}, {})->animatedBlocks()->add({0, 0, 1, 1}, QUuid::createUuid());
        const auto wide = m_project.createBlockList("Wide", m_tiles->id())->createBoundTileAnimation("Wall");
        wide->setSize({256, 1});
        const auto high = m_project.createBlockList("High", m_tiles->id())->createBoundTileAnimation("Tower");
        high->setSize({1, 1});
        high->addFrame()->setIndex(0, 0, 512);
        m_project.createSpriteBank(Quenmora::EightBit, "Deep", {})->setWholeImage(plainImage({16, 32}, 16));
        m_project.createImage(Quenmora::Layer2_640x256, "Colourful", {})->setImage(picture({640, 256}, "01"));
        m_project.createImage(Quenmora::LoRes_128x96, "Bare", {});
        QImage mixed = plainImage({640, 256}, 17);
        mixed.setPixel(5, 3, 32);
        m_project.images().at(4)->setImage(mixed);
        const auto valued = m_project.createTileSet("Valued", m_palette->id(), 2);
        valued->tile(1)->setValue(256);

        const auto refuses = [this](const char *form, const char *name, const Options &options, const QString &reason) {
            QCOMPARE(written(form, asset(name), options).reason(), reason);
        };
        refuses("palette", "Cave", {}, "“Cave” is a map, and the form palette is for a palette");
        refuses("layer2-256", "320", {}, "“320” has 320 × 256 pixels, and this form 256 × 192");
        refuses(
            "layer2-640", "Colourful", {{"palette", "true"}},
            "“Colourful”: the pixel at 5, 3 has the index 32, and only those from 16 to 31 go with the first pixel");
        refuses("lores", "Bare", {{"palette", "true"}}, "“Bare” has no palette that could stand in front");
        refuses("tiles-4bit", "Rocks", {{"first", "3"}},
                "Options first and count: there are 3, and 1 from number 3 on are not");
        refuses("tiles-4bit", "Rocks", {{"first", "1"}, {"count", "3"}},
                "Options first and count: there are 3, and 3 from number 1 on are not");
        refuses("tile-values", "Valued", {},
                "“Valued”: tile 1 (counted from 0) has the value 256, and -128 to 255 fit");
        refuses(
            "map-1byte", "Cave", {},
            "“Cave”: the cell in column 0, row 0 (counted from 0) shows tile 257, and 255 is the last one that fits");
        refuses(
            "map-1byte", "Mirrored", {},
            "“Mirrored”: the cell in column 2, row 1 (counted from 0) is rotated or mirrored, which one byte does not "
            "tell");
        refuses(
            "map-1byte", "Offsets", {},
            "“Offsets”: the cell in column 1, row 1 (counted from 0) has the palette offset 5, others have 4, and one "
            "byte does not tell them apart");
        refuses(
            "map-2byte", "Beyond", {},
            "“Beyond”: the cell in column 1, row 0 (counted from 0) shows tile 512, and 511 is the last one that fits");
        refuses("map-sprites", "Far", {}, "“Far”, placed sprite 0: x is 32768, and -32768 to 32767 fit");
        refuses("map-sprites", "No bank", {},
                "“No bank”, placed sprite 0 “Cat”: its sprite bank is not in the project");
        refuses("map-sprites", "No run", {}, "“No run”, placed sprite 0: its animation is not in the project");
        refuses("map-blocks", "No block", {}, "“No block”, placed animation 0: its animation is not in the project");
        refuses("block-animations", "Wide", {}, "“Wide”, animation “Wall”: the width is 256, and 0 to 255 fit");
        refuses(
            "block-animations", "High", {},
            "Animation “Tower”, frame 0, column 0, row 0 (counted from 0): it shows number 512, and 511 is the last "
            "one that fits");
        refuses(
            "sprites-packed", "Deep", {},
            "“Deep” is a bank of 8 bits: sprite 0 (counted from 0) has a pixel of index 16, and 4 bits hold 0 to 15");
        refuses("map-2byte", "Cave", {{"order", "diagonals"}}, "Option order: “diagonals” is not one of rows, columns");
        refuses("map-2byte", "Cave", {{"screen-width", " 4"}},
                "Option screen-width: “ 4” is not a whole number from 0 to 9999");
        refuses("lores", "128", {{"halves", "yes"}}, "Option halves: “yes” is not true or false");
        refuses("lores", "128", {{"half", "true"}},
                "There is no option “half”, only palette, halves, text, label, pad, cut");
        refuses("lores", "128", {{"text", "c"}, {"label", "2nd"}},
                "“2nd” cannot be a label: those are a letter, then letters, digits and _, 56 at most");
        refuses("lores", "128", {{"text", "gas"}, {"label", "LD"}},
                "“LD” cannot be a label: assemblers or C give it a meaning");
    }

    /// Files that no form writes, by hand.
    void readsOthers()
    {
        const auto reads = [](const char *what, const char *id, const Options &options, const QByteArray &bytes,
                              const Content &content) {
            const auto reading = readBack(id, bytes, options);
            QVERIFY2(reading, what + reading.reason().toUtf8().prepend(": "));
            QVERIFY2(reading->content == content, what);
        };

        PaletteContent blues;
        for (int i = 0; i < 256; ++i)
            blues.words.append(quint16(0xE400 | (i % 4) << 8 | (i % 4 > 0 ? 1 : 0)));
        reads("the third bit of blue", "palette-8bit", {}, QByteArray::fromHex("E4E5E6E7").repeated(64), blues);
        reads("a few colours", "palette-group", {{"group", "2"}}, QByteArray::fromHex("E3815600"),
              PaletteContent{32, {0xE381, 0x5600}});

        PaletteContent marked{0, QList<quint16>(256, 0xE400), {}};
        marked.words[9] = 0x1F00;
        marked.transparency = 9;
        reads("the transparent colour by its eight bits", "palette-513", {},
              QByteArray::fromHex("E400").repeated(9) + QByteArray::fromHex("1F00")
                  + QByteArray::fromHex("E400").repeated(246) + QByteArray::fromHex("1F"),
              marked);

        TilesContent last;
        last.tiles.resize(1);
        last.tiles[0].offset = 7;
        last.tiles[0].pixels.fill(3);
        reads("some of the tiles, and their offset", "tiles-4bit", {{"first", "1"}, {"count", "1"}, {"offset", "7"}},
              QByteArray::fromHex("12").repeated(32) + QByteArray::fromHex("33").repeated(32)
                  + QByteArray::fromHex("45").repeated(32),
              last);
        TilesContent mixed;
        mixed.tiles.resize(1);
        mixed.tiles[0].offset = TilesContent::MixedOffset;
        mixed.tiles[0].pixels = {0x21, 0x3F};
        reads("a tile of two groups", "tiles-8bit", {}, QByteArray::fromHex("213F").leftJustified(64, '\0'), mixed);

        const TileMap::TileData tile{.index = 2, .offset = 3, .used = true};
        const TileMap::TileData turned{.index = 5, .rotate = true, .used = true};
        reads("cells with the ULA in front", "map-2byte", {{"width", "1"}, {"bit-0", "ula"}},
              QByteArray::fromHex("02310503"), MapContent{{{tile}, {turned}}});
        reads("columns of an unfinished map", "map-1byte", {{"width", "2"}, {"order", "columns"}, {"offset", "3"}},
              QByteArray::fromHex("020202"), MapContent{{{tile, tile}, {tile, {}}}});

        QByteArray rows(256 * 192, '\0');
        rows[1] = 7; // in the first row, and as columns in the first column
        ImageContent image{Quenmora::Layer2_256x192, rows, QList<quint16>(256, 0xE481)};
        reads("a palette in front", "layer2-256", {}, QByteArray::fromHex("E481").repeated(256) + rows, image);
        image.palette = QList<quint16>(256, 0xE501);
        reads("a palette of bytes in front", "layer2-256", {}, QByteArray::fromHex("E5").repeated(256) + rows, image);
        image.palette = {};
        image.pixels[1] = 0;
        image.pixels[256] = 7;
        reads("pixels by columns", "layer2-256", {{"order", "columns"}}, rows, image);
        reads("half a picture", "lores", {}, QByteArray(6144, '\5'),
              ImageContent{Quenmora::LoRes_128x96, QByteArray(6144, '\5') + QByteArray(6144, '\0'), {}});
    }

    void skipsHeaders()
    {
        const QByteArray bytes = QByteArray::fromHex("0102030405");
        QCOMPARE(withoutHeader(onDisk(bytes)), bytes);
        QByteArray damaged = onDisk(bytes);
        damaged[20] = '\4'; // the sum is another one
        QCOMPARE(withoutHeader(damaged), damaged);
        QCOMPARE(withoutHeader(onDisk(bytes).first(128)), QByteArray()); // cut
        QCOMPARE(withoutHeader(bytes), bytes);
    }

    void saysWhatIsWrong()
    {
        const auto refuses = [](const char *id, qsizetype size, const Options &options, const QString &reason) {
            QCOMPARE(readBack(id, QByteArray(size, '\1'), options).reason(), reason);
        };
        refuses("palette", 0, {}, "The file is empty");
        refuses("palette", 511, {}, "The file has 511 bytes, and such a palette 2 an entry, 512 in all");
        refuses("palette-513", 512, {}, "The file has 512 bytes, and such a palette 513");
        refuses("tiles-4bit", 31, {}, "The file has 31 bytes, and one of these takes 32");
        refuses("tiles-4bit", 64, {{"first", "2"}},
                "Options first and count: there are 2, and 1 from number 2 on are not");
        refuses("tiles-1bit", 4097 * 8, {},
                "The file holds 4097, and 4096 go into an asset: choose which, with first and count");
        refuses("map-1byte", 10'000, {{"width", "1"}},
                "That makes a map of 1 × 10000 cells; 9999 along a side and 8000000 in all are the most");
        refuses("map-1byte", 8'000'001, {{"width", "9000"}},
                "That makes a map of 9000 × 889 cells; 9999 along a side and 8000000 in all are the most");
        refuses("map-2byte", 1, {}, "The file has 1 bytes, and a cell takes 2");
        refuses("sprites-packed", 100, {}, "The file has 100 bytes, and one of these takes 128");
        refuses("layer2-320", 49'152, {},
                "The file has 49152 bytes, and such a picture 81920, or 82432 or 82176 with its palette");
        refuses("sprites-8bit", MostBytes + 1, {},
                "The file has 16777217 bytes, and the largest that is read as it is 16777216");
    }
};

QUENMORA_TEST_MAIN(TestForms)
#include "tst_forms.moc"
