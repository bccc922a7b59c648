#include "pictures/asepritefile.h"

#include "support/asepritebuilder.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

namespace {

using Builder = AsepriteBuilder;

const QList<QByteArray> Colours{QByteArray("\x00\x00\x00\xff", 4), QByteArray("\xff\x00\x00\xff", 4),
                                QByteArray("\x00\xff\x00\xff", 4), QByteArray("\x00\x00\xff\xff", 4)};
const QByteArray Red = Colours[1];
const QByteArray Green = Colours[2];
const QByteArray Clear(4, '\0');

/// Bytes of the indices that a text names.
QByteArray of(const char *digits)
{
    QByteArray bytes(digits);
    for (char &byte : bytes)
        byte = char(byte - '0');
    return bytes;
}

/// The rows of a picture: digits of indices, '.' where they are clear; else eight hexadecimal digits a pixel.
QString text(const QImage &image)
{
    QStringList rows;
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (int x = 0; x < image.width(); ++x) {
            if (image.format() != QImage::Format_Indexed8)
                row += QString(" %1").arg(image.pixel(x, y), 8, 16, QChar('0'));
            else
                row += qAlpha(image.pixel(x, y)) == 0 ? "." : QString::number(image.pixelIndex(x, y));
        }
        rows.append(row.trimmed());
    }
    return rows.join('|');
}

QString frames(const AsepriteFile &file)
{
    QStringList pictures;
    for (int frame = 0; frame < file.frameCount(); ++frame)
        pictures.append(text(file.frame(frame)));
    return pictures.join(" / ");
}

/// A file of indices with a palette and one layer.
Builder indexed(QSize size = {4, 2})
{
    return Builder(size).frame().palette(Colours).layer("one");
}

} // namespace

/// Aseprite files are drawn as that program draws them; what they contradict is refused with the place.
class TestAsepriteFile : public QObject
{
    Q_OBJECT

private slots:
    void framesAreDrawn_data()
    {
        addColumns<QByteArray, QString>("bytes", "expected");
        const auto add = [](const char *name, const char *expected, const Builder &file) {
            QTest::newRow(name) << file.bytes() << QString::fromLatin1(expected);
        };
        add("raw, packed and linked, cut at the edges; no pixels", "23..|21.. / ....|..12 / 123.|321. / ....|....",
            indexed()
                .raw(0, {-1, 0}, {3, 2}, of("123321"))
                .frame()
                .packed(0, {2, 1}, {3, 2}, of("123321"))
                .frame()
                .linked(0, {0, 0}, 1)
                .frame()
                .packed(0, {0, 0}, {0, 0}, {}));
        Builder counted({4, 2}, 8, Builder::LayersHaveOpacity | Builder::LayersHaveIds);
        counted.countsAreNew = true;
        add("layers by their order, moved by z, that of equals last", "1232|..3. / 1111|....",
            counted.frame()
                .palette(Colours)
                .layer("one")
                .layer("two")
                .layer("three")
                .raw(2, {2, 0}, {2, 2}, of("3030"))
                .raw(1, {1, 0}, {3, 1}, of("222"))
                .raw(0, {0, 0}, {4, 1}, of("1111"))
                .frame()
                .raw(0, {0, 0}, {4, 1}, of("1111"), 255, 1)
                .raw(1, {1, 0}, {3, 1}, of("222"))
                .raw(2, {2, 0}, {2, 1}, of("30"), 255, -2));
        add("hidden layers, groups and what is in them", "1121|....",
            indexed()
                .layer("hidden", {.flags = 0})
                .layer("hidden group", {.flags = 0, .type = 1})
                .layer("group in it", {.type = 1, .level = 1})
                .layer("in that", {.level = 2})
                .layer("group", {.type = 1})
                .layer("in it", {.level = 1})
                .layer("reference", {.flags = 65})
                .raw(0, {0, 0}, {4, 1}, of("1111"))
                .raw(1, {0, 0}, {1, 1}, of("2"))
                .raw(4, {1, 0}, {1, 1}, of("2"))
                .raw(6, {2, 0}, {1, 1}, of("2"))
                .raw(7, {3, 0}, {1, 1}, of("2")));
        Builder background({4, 2});
        background.clearIndex = 2;
        add("a background hides with the transparent index, unless it does not fill the picture or lies above",
            "3230|1230 / ff00ff00 00000000 00000000 00000000|00000000 00000000 00000000 00000000 / 1230|1230",
            background.frame()
                .palette(Colours)
                .layer("background", {.flags = 9})
                .layer("above")
                .raw(0, {0, 0}, {4, 2}, of("12301230"))
                .raw(1, {0, 0}, {2, 1}, of("32"))
                .frame()
                .raw(0, {0, 0}, {1, 1}, of("2"))
                .frame()
                .raw(0, {0, 0}, {4, 2}, of("12301230"))
                .raw(1, {0, 0}, {2, 1}, of("33"), 255, -2));
        add("indices that are partly clear become colours", "ff7f8000 8000ff00",
            indexed({2, 1})
                .layer("half", {.opacity = 128})
                .raw(0, {0, 0}, {2, 1}, of("10"))
                .raw(1, {0, 0}, {2, 1}, of("22")));
        add("a partly clear colour above others, and alone", "ff807f00 80ff0000 / 1.",
            Builder({2, 1})
                .frame()
                .palette({Colours[0], QByteArray("\xff\x00\x00\x80", 4), Colours[2]})
                .layer("below")
                .layer("above")
                .raw(0, {0, 0}, {1, 1}, of("2"))
                .raw(1, {0, 0}, {2, 1}, of("11"))
                .frame()
                .raw(1, {0, 0}, {1, 1}, of("1")));
        // 128/255 thrice is 32/255, times 128/255 again is 16/255
        add("colours, with the opacity of cel, layer and group", "ffdf2000 ffff0000 ffef0010 2000ff00",
            Builder({4, 1}, 32, Builder::LayersHaveOpacity | Builder::GroupsHaveOpacity)
                .frame()
                .layer("below")
                .layer("group", {.type = 1, .opacity = 128})
                .layer("above", {.level = 1, .opacity = 128})
                .packed(0, {0, 0}, {4, 1}, Red + Red + Red + Clear)
                .raw(2, {0, 0}, {4, 1}, Green + Clear + QByteArray("\x00\x00\xff\x80", 4) + Green, 128));
        add("opacities of layers and groups that do not count", "ffff0000",
            Builder({1, 1}, 32, 0)
                .frame()
                .layer("group", {.type = 1, .opacity = 128})
                .layer("in it", {.level = 1, .opacity = 128})
                .raw(1, {0, 0}, {1, 1}, Red));
        add("greys with alpha", "ff808080 7f404040 00000000",
            Builder({3, 1}, 16)
                .frame()
                .layer("grey")
                .packed(0, {0, 0}, {3, 1}, QByteArray("\x80\xff\x40\x7f\xff\x00", 6)));
        // the tile is 12 above .3
        add("tiles in all eight ways", "..................|.1221.33.1..12332.|..33.122123321..1.|.....12...........",
            Builder({18, 4})
                .frame()
                .palette(Colours)
                .tileSet(5, Builder::InsideAndFirstEmpty, 2, {2, 2}, "tiles", of("33331203"))
                .layer("tiles", {.type = 2, .tileSet = le32(5)})
                .tileMap(0, {1, 1}, {9, 2},
                         {1, 0x80000001, 0x40000001, 0xC0000001, 0x20000001, 0xA0000001, 0x60000001, 0xE0000001, 0, 0,
                          0x1FFFFFFF, 1, 0, 0, 0, 0, 0, 0}));
    }

    void framesAreDrawn()
    {
        QFETCH(QByteArray, bytes);
        const auto file = AsepriteFile::read(bytes);
        QVERIFY2(file, qPrintable(file.reason()));
        QTEST(frames(*file), "expected");
    }

    void palettesAreRead_data()
    {
        addColumns<QByteArray, QList<QRgb>, bool>("bytes", "expected", "isSaid");
        const auto add = [](const char *name, const Builder &file, const QList<QRgb> &expected, bool isSaid = false) {
            QTest::newRow(name) << file.bytes() << expected << isSaid;
        };
        const Builder empty = Builder({4, 2}).frame();
        add("a part, with alpha and a name", Builder(empty).palette({"\x24\x49\x6d\x80"}, 3, 1),
            {0xff000000, 0x8024496d, 0xff000000});
        add("old", Builder(empty).oldPalette(0x0004, 1, "\x24\x49\x6d\x01\x02\x03"),
            {0xff000000, 0xff24496d, 0xff010203});
        add("of 64 levels", Builder(empty).oldPalette(0x0011, 0, "\x3f\x20\x01"), {0xffff8104});
        add("old beside new", Builder(empty).oldPalette(4, 0, "old").palette({Red}).oldPalette(4, 0, "old"),
            {0xffff0000});
        add("the same again", Builder(empty).palette({Red}).frame().palette({Red}), {0xffff0000});
        add("a later one", Builder(empty).palette({Red}).frame().palette({Green}), {0xffff0000}, true);
        add("too few colours", Builder(empty).palette({Red}).layer("one").raw(0, {}, {1, 1}, "\2"),
            {0xffff0000, 0xff000000, 0xff000000}, true);
    }

    void palettesAreRead()
    {
        QFETCH(QByteArray, bytes);
        const auto file = AsepriteFile::read(bytes);
        QVERIFY2(file, qPrintable(file.reason()));
        QTEST(file->palette(), "expected");
        QTEST(!file->remarks().isEmpty(), "isSaid");
    }

    void whatGoesWithThePixelsIsRead()
    {
        Builder b;
        b.speed = 120;
        b.clearIndex = 3;
        b.grid = {-1, 2, 16, 8};
        b.pixelWidth = 2;
        b.frame(0)
            .palette(Colours)
            .layer("mixed", {.blend = 1})
            .layer("off", {.flags = 0})
            .layer("of other tiles", {.type = 2, .tileSet = le32(1)})
            .tileMap(2, {0, 0}, {1, 1}, {1})
            .tileSet(1, 1, 9, {8, 8}, "elsewhere", {})
            .tileSet(2, 3, 2, {2, 1}, "tiles", of("0123"))
            .tags({Builder::tag(0, 1, 3, 2, "p\xc3\xa9"), Builder::tag(1, 2, 0, 0, "beyond")})
            .chunk(0x2022, "slices")
            .chunk(0x2007, "colours")
            .frame(70);
        const TemporaryFolder folder;
        QVERIFY(AsepriteFile::recognises(b.bytes().first(16)));
        const auto file = AsepriteFile::read(folder("a.aseprite", b.bytes()));
        QVERIFY2(file, qPrintable(file.reason()));
        QCOMPARE(frames(*file), "....|.... / ....|....");
        QCOMPARE(file->transparentIndex(), 3);
        QCOMPARE(file->grid(), QRect(-1, 2, 16, 8));
        QCOMPARE(std::pair(file->duration(0), file->duration(1)), std::pair(120, 70));
        QCOMPARE(valuesOf(file->tags(), &AsepriteFile::Tag::name), QStringList("p\u00e9"));
        const AsepriteFile::Tag tag = file->tags().constFirst();
        QCOMPARE(std::tuple(tag.first, tag.last, tag.repeats), std::tuple(0, 1, 2));
        QCOMPARE(tag.direction, AsepriteFile::Direction::PingPongReverse);
        QCOMPARE(valuesOf(file->tileSets(), &AsepriteFile::TileSet::name), QStringList("tiles"));
        const AsepriteFile::TileSet tiles = file->tileSets().constFirst();
        QVERIFY(!tiles.firstIsEmpty);
        QCOMPARE(text(tiles.tile(0)) + ' ' + text(tiles.tile(1)), "01 2.");
        QCOMPARE(file->remarks().join('|'),
                 QStringLiteral("Its pixels are not square, but 2 to 1: they become square|"
                                "The layer “mixed” mixes its colours with those beneath: it is drawn as others are|"
                                "The tile set “elsewhere” is in another file, and left out|"
                                "The tag “beyond” is left out: it names frames 2 to 3 of 2|"
                                "Its slices are left out|Hidden layers are left out: “off”"));
    }

    void whatContradictsItselfIsRefused()
    {
        const auto refuses = [](const QString &reason, const Builder &file) {
            QCOMPARE(AsepriteFile::read(file.bytes()).reason(), reason);
        };
        const auto one = [&refuses](const QString &problem, const Builder &file) {
            refuses("Frame 1, layer “one”: " + problem, file);
        };
        const Builder::Layer tiles{.type = 2, .tileSet = le32(0)};
        refuses("It says that it has 0 frames of 4 × 2 pixels", Builder());
        refuses("It says that a pixel has 4 bits; it can have 8, 16 or 32", Builder({4, 2}, 4).frame());
        refuses("It has 1 frames of 60000 × 60000 pixels; at most 33 million pixels together can be read",
                Builder({60000, 60000}).frame());
        refuses("Its pixels are numbers of colours, and it has no palette", Builder().frame());
        refuses("Its palette has 1 colours, of which it gives 1 to 1", indexed().palette({Red}, 1, 1));
        refuses("Its palette has 2000000000 colours; at most 4096 can be read",
                indexed().palette({Red}, 2'000'000'000));
        refuses("Its palette has 257 colours; at most 256 can be read", indexed().oldPalette(4, 255, "rgbrgb"));
        refuses("Frame 1 is damaged: chunk 3 of 3 is cut short", indexed().chunk(0x2018, le16(1)));
        refuses("Frame 1 has a picture for layer 2 of 1", indexed().raw(1, {}, {1, 1}, "\1"));
        one("there are two pictures", indexed().raw(0, {}, {1, 1}, "\1").raw(0, {}, {1, 1}, "\1"));
        one("the pixels are damaged", indexed().packed(0, {}, {3, 3}, "12345678"));
        one("the pixels are damaged", indexed().packed(0, {}, {3, 3}, "1234567890"));
        one("the pixels of the file take more than 64 MiB", indexed().packed(0, {}, {65535, 65535}, "1"));
        one("the picture is that of frame 1, which has none or comes later", indexed().linked(0, {}, 0));
        one("the picture is of another kind than the layer", indexed().tileMap(0, {}, {1, 1}, {0}));
        refuses("The layer “t” has the tiles of a set that is not there", indexed().layer("t", tiles));
        refuses("The tile set “t” has 65536 tiles of 1 × 65535 pixels",
                indexed().tileSet(0, 2, 65536, {1, 65535}, "t", "1"));
        refuses("The layer “t” has tile 2 of a set of 2",
                indexed().layer("t", tiles).tileSet(0, 2, 2, {1, 1}, "t", "12").tileMap(1, {}, {2, 1}, {1, 2}));
    }

    void everyShorterFileIsRefused()
    {
        const QByteArray whole = Builder::sample(8);
        QVERIFY(AsepriteFile::read(whole));
        for (qsizetype size = 0; size < whole.size(); ++size)
            QVERIFY2(!AsepriteFile::read(whole.first(size)).reason().isEmpty(), qPrintable(QString::number(size)));
    }
};

QUENMORA_TEST_MAIN(TestAsepriteFile)
#include "tst_asepritefile.moc"
