#include "pictures/asepritefile.h"

#include "support/asepritebuilder.h"
#include "support/damage.h"
#include "support/peakmemory.h"
#include "support/testmain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using Build = std::function<void(AsepriteBuilder &)>;
Q_DECLARE_METATYPE(Build)

namespace {

using Layer = AsepriteBuilder::Layer;

constexpr quint32 Seed = 20261125;

const QList<QByteArray> Colours{QByteArray("\x00\x00\x00\xff", 4), QByteArray("\xff\x00\x00\xff", 4),
                                QByteArray("\x00\xff\x00\xff", 4), QByteArray("\x00\x00\xff\xff", 4)};
const QByteArray Red("\xff\x00\x00\xff", 4);
const QByteArray Green("\x00\xff\x00\xff", 4);
const QByteArray Clear(4, '\0');

/// Bytes of the indices that a text names.
QByteArray indices(const char *digits)
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
                row += QStringLiteral(" %1").arg(image.pixel(x, y), 8, 16, QLatin1Char('0'));
            else
                row += qAlpha(image.pixel(x, y)) == 0 ? QStringLiteral(".") : QString::number(image.pixelIndex(x, y));
        }
        rows.append(row.trimmed());
    }
    return rows.join(QLatin1Char('|'));
}

QString frames(const AsepriteFile &file)
{
    QStringList pictures;
    for (int frame = 0; frame < file.frameCount(); ++frame)
        pictures.append(text(file.frame(frame)));
    return pictures.join(QStringLiteral(" / "));
}

/// A file of indices with a palette and one layer.
AsepriteBuilder indexed()
{
    AsepriteBuilder builder;
    builder.frame(100);
    builder.palette(Colours);
    builder.layer("one");
    return builder;
}

/// A file with some of everything.
QByteArray sample(int bits)
{
    AsepriteBuilder builder;
    builder.bits = bits;
    builder.width = 8;
    builder.height = 8;
    builder.flags = 3;
    const auto pixels = [bits](int count) {
        QByteArray bytes;
        for (int i = 0; i < count * bits / 8; ++i)
            bytes += char(i % 4);
        return bytes;
    };
    builder.frame(100);
    builder.palette(Colours);
    builder.oldPalette(0x0004, 0, "rgbRGB");
    builder.tileSet(7, AsepriteBuilder::InsideAndFirstEmpty, 3, {4, 4}, "tiles", pixels(48));
    builder.layer("group", {.type = 1, .opacity = 200});
    builder.layer("in it", {.level = 1});
    builder.layer("tiles", {.type = 2, .tileSet = le32(7)});
    builder.layer("top", {.blend = 3, .opacity = 99});
    builder.tags({AsepriteBuilder::tag(0, 2, 2, 3, "walk"), AsepriteBuilder::tag(1, 1, 0, 0, "stand")});
    builder.raw(1, {1, -2}, {6, 6}, pixels(36), 250);
    builder.tileMap(2, {-1, 1}, {2, 2}, {1, 0x80000002, 0x60000001, 0});
    builder.packed(3, {0, 0}, {8, 8}, pixels(64));
    builder.frame(0);
    builder.linked(1, {1, 1}, 0);
    builder.linked(2, {0, 0}, 0);
    builder.frame(70);
    builder.packed(1, {0, 0}, {5, 5}, pixels(25), 255, 2);
    builder.chunk(0x2020, QByteArray(12, 'x'));
    return builder.bytes();
}

} // namespace

class TestAsepriteFile : public QObject
{
    Q_OBJECT

private slots:
    void framesAreDrawn_data()
    {
        QTest::addColumn<Build>("build");
        QTest::addColumn<QString>("expected");
        const auto add = [](const char *name, const Build &build, const char *expected) {
            QTest::newRow(name) << build << QString::fromLatin1(expected);
        };
        using B = AsepriteBuilder;
        add(
            "raw, packed and linked, cut at the edges",
            [](B &b) {
                b = indexed();
                b.raw(0, {-1, 0}, {3, 2}, indices("123321"));
                b.frame(50);
                b.packed(0, {2, 1}, {3, 2}, indices("123321"));
                b.frame(50);
                b.linked(0, {0, 0}, 1);
                b.frame(50);
                b.packed(0, {0, 0}, {0, 0}, {}); // which has no pixels
            },
            "23..|21.. / ....|..12 / 123.|321. / ....|....");
        add(
            "layers by their order, moved by z, that of equals last",
            [](B &b) {
                b = indexed();
                b.countsAreNew = true;
                b.flags |= AsepriteBuilder::LayersHaveIds;
                b.layer("two");
                b.layer("three");
                b.raw(2, {2, 0}, {2, 2}, indices("3030"));
                b.raw(1, {1, 0}, {3, 1}, indices("222"));
                b.raw(0, {0, 0}, {4, 1}, indices("1111"));
                b.frame(1);
                b.raw(0, {0, 0}, {4, 1}, indices("1111"), 255, 1);
                b.raw(1, {1, 0}, {3, 1}, indices("222"));
                b.raw(2, {2, 0}, {2, 1}, indices("30"), 255, -2);
            },
            "1232|..3. / 1111|....");
        add(
            "hidden layers, groups and what is in them",
            [](B &b) {
                b = indexed();
                b.layer("hidden", {.flags = 0});
                b.layer("hidden group", {.flags = 0, .type = 1});
                b.layer("group in it", {.type = 1, .level = 1});
                b.layer("in that", {.level = 2});
                b.layer("group", {.type = 1});
                b.layer("in it", {.level = 1});
                b.layer("reference", {.flags = 65});
                b.raw(0, {0, 0}, {4, 1}, indices("1111"));
                b.raw(1, {0, 0}, {1, 1}, indices("2"));
                b.raw(4, {1, 0}, {1, 1}, indices("2"));
                b.raw(6, {2, 0}, {1, 1}, indices("2"));
                b.raw(7, {3, 0}, {1, 1}, indices("2"));
            },
            "1121|....");
        add(
            "a background hides with the transparent index",
            [](B &b) {
                b.clearIndex = 2;
                b.frame(1);
                b.palette(Colours);
                b.layer("background", {.flags = 9});
                b.layer("above");
                b.raw(0, {0, 0}, {4, 2}, indices("12301230"));
                b.raw(1, {0, 0}, {2, 1}, indices("32"));
                b.frame(1); // which does not fill the picture
                b.raw(0, {0, 0}, {1, 1}, indices("2"));
                b.frame(1); // with the other layer moved below it
                b.raw(0, {0, 0}, {4, 2}, indices("12301230"));
                b.raw(1, {0, 0}, {2, 1}, indices("33"), 255, -2);
            },
            "3230|1230 / ff00ff00 00000000 00000000 00000000|00000000 00000000 00000000 00000000 / 1230|1230");
        add(
            "indices that are partly clear become colours",
            [](B &b) {
                b = indexed();
                b.width = 2;
                b.height = 1;
                b.layer("half", {.opacity = 128});
                b.raw(0, {0, 0}, {2, 1}, indices("10"));
                b.raw(1, {0, 0}, {2, 1}, indices("22"));
            },
            "ff7f8000 8000ff00");
        add(
            "a partly clear colour above others, and alone",
            [](B &b) {
                b.width = 2;
                b.height = 1;
                b.frame(1);
                b.palette({Colours[0], QByteArray("\xff\x00\x00\x80", 4), Colours[2]});
                b.layer("below");
                b.layer("above");
                b.raw(0, {0, 0}, {1, 1}, indices("2"));
                b.raw(1, {0, 0}, {2, 1}, indices("11"));
                b.frame(1);
                b.raw(1, {0, 0}, {1, 1}, indices("1"));
            },
            "ff807f00 80ff0000 / 1.");
        add(
            "colours, with the opacity of cel, layer and group",
            [](B &b) {
                b.bits = 32;
                b.flags = 3;
                b.width = 4;
                b.height = 1;
                b.frame(1);
                b.layer("below");
                b.layer("group", {.type = 1, .opacity = 128});
                b.layer("above", {.level = 1, .opacity = 128});
                b.packed(0, {0, 0}, {4, 1}, Red + Red + Red + Clear);
                b.raw(2, {0, 0}, {4, 1}, Green + Clear + QByteArray("\x00\x00\xff\x80", 4) + Green, 128);
            },
            // 128/255 thrice is 32/255, times 128/255 again is 16/255
            "ffdf2000 ffff0000 ffef0010 2000ff00");
        add(
            "opacities of layers and groups that do not count",
            [](B &b) {
                b.bits = 32;
                b.flags = 0;
                b.width = b.height = 1;
                b.frame(1);
                b.layer("group", {.type = 1, .opacity = 128});
                b.layer("in it", {.level = 1, .opacity = 128});
                b.raw(1, {0, 0}, {1, 1}, Red);
            },
            "ffff0000");
        add(
            "greys with alpha",
            [](B &b) {
                b.bits = 16;
                b.width = 3;
                b.height = 1;
                b.frame(1);
                b.layer("grey");
                b.packed(0, {0, 0}, {3, 1}, QByteArray("\x80\xff\x40\x7f\xff\x00", 6));
            },
            "ff808080 7f404040 00000000");
        add(
            "tiles in all eight ways",
            [](B &b) {
                b.width = 18;
                b.height = 4;
                b.frame(1);
                b.palette(Colours);
                b.tileSet(5, AsepriteBuilder::InsideAndFirstEmpty, 2, {2, 2}, "tiles",
                          indices("3333"
                                  "1203"));
                b.layer("tiles", {.type = 2, .tileSet = le32(5)});
                b.tileMap(0, {1, 1}, {9, 2},
                          {1, 0x80000001, 0x40000001, 0xC0000001, 0x20000001, 0xA0000001, 0x60000001, 0xE0000001, 0, 0,
                           0x1FFFFFFF, 1, 0, 0, 0, 0, 0, 0});
            },
            // the tile is 12 above .3
            "..................|.1221.33.1..12332.|..33.122123321..1.|.....12...........");
    }

    void framesAreDrawn()
    {
        QFETCH(Build, build);
        QFETCH(QString, expected);
        AsepriteBuilder builder;
        build(builder);
        const auto file = AsepriteFile::read(builder.bytes());
        QVERIFY2(file, qPrintable(file.reason()));
        QCOMPARE(frames(*file), expected);
    }

    void palettesAreRead_data()
    {
        QTest::addColumn<Build>("build");
        QTest::addColumn<QList<QRgb>>("expected");
        QTest::addColumn<bool>("isSaid");
        using B = AsepriteBuilder;
        const auto add = [](const char *name, const Build &build, const QList<QRgb> &expected, bool isSaid = false) {
            QTest::newRow(name) << build << expected << isSaid;
        };
        add("a part, with alpha and a name", [](B &b) { b.palette({QByteArray("\x24\x49\x6d\x80", 4)}, 3, 1); },
            {0xff000000, 0x8024496d, 0xff000000});
        add("old", [](B &b) { b.oldPalette(0x0004, 1, QByteArray("\x24\x49\x6d\x01\x02\x03", 6)); },
            {0xff000000, 0xff24496d, 0xff010203});
        add("of 64 levels", [](B &b) { b.oldPalette(0x0011, 0, QByteArray("\x3f\x20\x01", 3)); }, {0xffff8104});
        add("old beside new",
            [](B &b) {
                b.oldPalette(0x0004, 0, "old");
                b.palette({Red});
                b.oldPalette(0x0004, 0, "old");
            },
            {0xffff0000});
        add("the same again",
            [](B &b) {
                b.palette({Red});
                b.frame(1);
                b.palette({Red});
            },
            {0xffff0000});
        add(
            "a later one",
            [](B &b) {
                b.palette({Red});
                b.frame(1);
                b.palette({Green});
            },
            {0xffff0000}, true);
        add(
            "too few colours",
            [](B &b) {
                b.palette({Red});
                b.layer("one");
                b.raw(0, {}, {1, 1}, indices("2"));
            },
            {0xffff0000, 0xff000000, 0xff000000}, true);
    }

    void palettesAreRead()
    {
        QFETCH(Build, build);
        QFETCH(QList<QRgb>, expected);
        QFETCH(bool, isSaid);
        AsepriteBuilder builder;
        builder.frame(1);
        build(builder);
        const auto file = AsepriteFile::read(builder.bytes());
        QVERIFY2(file, qPrintable(file.reason()));
        QCOMPARE(file->palette(), expected);
        QCOMPARE(!file->remarks().isEmpty(), isSaid);
    }

    void whatGoesWithThePixelsIsRead()
    {
        AsepriteBuilder b;
        b.speed = 120;
        b.clearIndex = 3;
        b.grid = {-1, 2, 16, 8};
        b.pixelWidth = 2;
        b.frame(0);
        b.palette(Colours);
        b.layer("mixed", {.blend = 1});
        b.layer("off", {.flags = 0});
        b.layer("of other tiles", {.type = 2, .tileSet = le32(1)});
        b.tileMap(2, {0, 0}, {1, 1}, {1});
        b.tileSet(1, 1, 9, {8, 8}, "elsewhere", {});
        b.tileSet(2, 3, 2, {2, 1}, "tiles", indices("0123"));
        b.tags({AsepriteBuilder::tag(0, 1, 3, 2, "p\xc3\xa9"), AsepriteBuilder::tag(1, 2, 0, 0, "beyond")});
        b.chunk(0x2022, "slices");
        b.chunk(0x2007, "colours");
        b.frame(70);
        QTemporaryDir folder;
        QFile disk(folder.filePath(QStringLiteral("a.aseprite")));
        QVERIFY(disk.open(QIODevice::WriteOnly));
        disk.write(b.bytes());
        disk.close();
        QVERIFY(AsepriteFile::recognises(b.bytes().first(16)));
        const auto file = AsepriteFile::read(disk.fileName());
        QVERIFY2(file, qPrintable(file.reason()));
        QCOMPARE(file->size(), QSize(4, 2));
        QCOMPARE(frames(*file), QStringLiteral("....|.... / ....|...."));
        QCOMPARE(file->transparentIndex(), 3);
        QCOMPARE(file->grid(), QRect(-1, 2, 16, 8));
        QCOMPARE(file->duration(0), 120);
        QCOMPARE(file->duration(1), 70);
        QCOMPARE(file->tags().size(), 1);
        const AsepriteFile::Tag tag = file->tags().constFirst();
        QCOMPARE(tag.name, QStringLiteral("p\u00e9"));
        QCOMPARE(std::tuple(tag.first, tag.last, tag.repeats), std::tuple(0, 1, 2));
        QCOMPARE(tag.direction, AsepriteFile::Direction::PingPongReverse);
        QCOMPARE(file->tileSets().size(), 1);
        const AsepriteFile::TileSet tiles = file->tileSets().constFirst();
        QCOMPARE(tiles.name, QStringLiteral("tiles"));
        QVERIFY(!tiles.firstIsEmpty);
        QCOMPARE(text(tiles.tile(0)), QStringLiteral("01"));
        QCOMPARE(text(tiles.tile(1)), QStringLiteral("2."));
        QCOMPARE(file->remarks().join(QLatin1Char('|')),
                 QStringLiteral("Its pixels are not square, but 2 to 1: they become square|"
                                "The layer “mixed” mixes its colours with those beneath: it is drawn as others are|"
                                "The tile set “elsewhere” is in another file, and left out|"
                                "The tag “beyond” is left out: it names frames 2 to 3 of 2|"
                                "Its slices are left out|Hidden layers are left out: “off”"));
    }

    void whatContradictsItselfIsRefused_data()
    {
        QTest::addColumn<Build>("build");
        QTest::addColumn<QString>("reason");
        const auto add = [](const char *name, const Build &build, const char *reason) {
            QTest::newRow(name) << build << QString::fromUtf8(reason);
        };
        using B = AsepriteBuilder;
        add(
            "no frame", [](B &) {}, "It says that it has 0 frames of 4 × 2 pixels");
        add(
            "bits",
            [](B &b) {
                b.bits = 4;
                b.frame(1);
            },
            "It says that a pixel has 4 bits; it can have 8, 16 or 32");
        add(
            "too large",
            [](B &b) {
                b.width = b.height = 60000;
                b.frame(1);
            },
            "It has 1 frames of 60000 × 60000 pixels; at most 33 million pixels together can be read");
        add(
            "no palette", [](B &b) { b.frame(1); }, "Its pixels are numbers of colours, and it has no palette");
        add(
            "palette", [](B &b) { b = indexed(), b.palette({Red}, 1, 1); },
            "Its palette has 1 colours, of which it gives 1 to 1");
        add(
            "palette of billions", [](B &b) { b = indexed(), b.palette({Red}, 2'000'000'000); },
            "Its palette has 2000000000 colours; at most 4096 can be read");
        add(
            "old palette", [](B &b) { b = indexed(), b.oldPalette(4, 255, "rgbrgb"); },
            "Its palette has 257 colours; at most 256 can be read");
        add(
            "a chunk too short", [](B &b) { b = indexed(), b.chunk(0x2018, le16(1)); },
            "Frame 1 is damaged: chunk 3 of 3 is cut short");
        add(
            "no layer",
            [](B &b) {
                b = indexed(), b.raw(1, {}, {1, 1}, "\1");
            },
            "Frame 1 has a picture for layer 2 of 1");
        add(
            "two cels",
            [](B &b) {
                b = indexed(), b.raw(0, {}, {1, 1}, "\1"), b.raw(0, {}, {1, 1}, "\1");
            },
            "Frame 1, layer “one”: there are two pictures");
        add(
            "few pixels",
            [](B &b) {
                b = indexed(), b.packed(0, {}, {3, 3}, "12345678");
            },
            "Frame 1, layer “one”: the pixels are damaged");
        add(
            "many pixels",
            [](B &b) {
                b = indexed(), b.packed(0, {}, {3, 3}, "1234567890");
            },
            "Frame 1, layer “one”: the pixels are damaged");
        add(
            "billions of pixels",
            [](B &b) {
                b = indexed(), b.packed(0, {}, {65535, 65535}, "1");
            },
            "Frame 1, layer “one”: the pixels of the file take more than 64 MiB");
        add(
            "link", [](B &b) { b = indexed(), b.linked(0, {}, 0); },
            "Frame 1, layer “one”: the picture is that of frame 1, which has none or comes later");
        add(
            "kind",
            [](B &b) {
                b = indexed(), b.tileMap(0, {}, {1, 1}, {0});
            },
            "Frame 1, layer “one”: the picture is of another kind than the layer");
        const Layer tiles{.type = 2, .tileSet = le32(0)};
        add(
            "no tile set", [tiles](B &b) { b = indexed(), b.layer("t", tiles); },
            "The layer “t” has the tiles of a set that is not there");
        add(
            "tile set",
            [](B &b) {
                b = indexed(), b.tileSet(0, 2, 65536, {1, 65535}, "t", "1");
            },
            "The tile set “t” has 65536 tiles of 1 × 65535 pixels");
        add(
            "tiles",
            [tiles](B &b) {
                b = indexed();
                b.layer("t", tiles);
                b.tileSet(0, 2, 2, {1, 1}, "t", "12");
                b.tileMap(1, {}, {2, 1}, {1, 2});
            },
            "The layer “t” has tile 2 of a set of 2");
    }

    void whatContradictsItselfIsRefused()
    {
        QFETCH(Build, build);
        QFETCH(QString, reason);
        AsepriteBuilder builder;
        build(builder);
        QCOMPARE(AsepriteFile::read(builder.bytes()).reason(), reason);
    }

    void everyShorterFileIsRefused()
    {
        const QByteArray whole = sample(8);
        QVERIFY(AsepriteFile::read(whole));
        for (qsizetype size = 0; size < whole.size(); ++size)
            QVERIFY2(!AsepriteFile::read(whole.first(size)).reason().isEmpty(), qPrintable(QString::number(size)));
    }

    // A second and 256 MiB are what any file may take.
    void damagedFilesAreReadOrRefused()
    {
        std::minstd_rand random(Seed);
        const PeakMemory memory;
        int read = 0;
        int refused = 0;
        for (const int bits : {8, 16, 32}) {
            const QByteArray whole = sample(bits);
            DamagedFiles files(700);
            while (files.next()) {
                const auto file = AsepriteFile::read(damaged(whole, random));
                ++(file ? read : refused);
                if (!file) {
                    QVERIFY(!file.reason().isEmpty());
                    continue;
                }
                for (int frame = 0; frame < file->frameCount(); ++frame)
                    QCOMPARE(file->frame(frame).size(), file->size());
            }
        }
        QVERIFY2(read > 100 && refused > 100, qPrintable(QString::number(read)));
        if (memory.isKnown())
            QVERIFY2(memory.grown() < 256 << 20, qPrintable(QString::number(memory.grown())));
    }
};

QUENMORA_TEST_MAIN(TestAsepriteFile)
#include "tst_asepritefile.moc"
