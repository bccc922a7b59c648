#include "model/image.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "model/picturefile.h"
#include "model/pngreader.h"
#include "support/endlessdevice.h"
#include "support/littleendian.h"
#include "support/modeltools.h"
#include "support/platform.h"
#include "support/stderrwatch.h"
#include "support/testmain.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <zlib.h>

namespace {

/// A picture of one row with these colours.
QImage row(const QList<QRgb> &colours)
{
    return pictureOf({int(colours.size()), 1}, QImage::Format_RGB32, [&](int i) { return colours[i]; });
}

/// The pixels of a picture of one row as the first of these colours at the least distance.
QByteArray nearestOf(const QList<QRgb> &colours, const QImage &picture)
{
    QByteArray bytes;
    for (int x = 0; x < picture.width(); ++x) {
        const auto distance = [pixel = picture.pixelColor(x, 0)](QRgb colour) {
            return std::hypot(pixel.red() - qRed(colour), pixel.green() - qGreen(colour), pixel.blue() - qBlue(colour));
        };
        bytes += char(std::ranges::min_element(colours, {}, distance) - colours.begin());
    }
    return bytes;
}

/// A number as a PNG has it, high byte first.
QByteArray number(quint32 value)
{
    return le32(qbswap(value));
}

QByteArray chunk(const QByteArray &type, const QByteArray &content)
{
    const QByteArray body = type + content;
    return number(quint32(content.size())) + body
        + number(quint32(crc32(0, reinterpret_cast<const Bytef *>(body.constData()), uInt(body.size()))));
}

struct Head
{
    quint32 width;
    quint32 height;
    char depth;
    char type;
    bool interlaced = false;
};

QByteArray start(const Head &head)
{
    return "\x89PNG\r\n\x1a\n"
        + chunk("IHDR",
                number(head.width) + number(head.height) + head.depth + head.type + '\0' + '\0'
                    + char(head.interlaced));
}

const QByteArray End = chunk("IEND", {});

QImage readPng(const QByteArray &png)
{
    QBuffer buffer;
    buffer.setData(png);
    buffer.open(QIODevice::ReadOnly);
    PngReader reader(buffer);
    return reader.readHead() ? reader.read() : QImage();
}

} // namespace

/// Images of palette indices, and the pictures that they are made of.
class TestImage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("qt.gui.imageio=false"); }

    void wearsColoursOfItsPalette()
    {
        Image image(Quenmora::LoRes_128x96);
        QCOMPARE(indices(image.image()), QByteArray(128 * 96, '\0'));
        QVERIFY(Image(Quenmora::ImageMode(4)).image().isNull());
        image.setImage(row({0xffff0000, 0xff0000ff})); // without a palette it gets indices of its own
        QCOMPARE(indices(image.image()), QByteArray("\0\1", 2));
        {
            Palette former;
            Palette palette;
            palette.loadStandardNext();
            palette.storeRawColour(9, 0xff01);
            for (Palette *bound : {&former, &palette})
                image.setPalette(bound);
            QVERIFY(image.paletteId() == palette.id() && image.image().colorTable() == palette.colourTable());
            image.setImage(row({0xffffffff, 0xff000000}));
            QCOMPARE(indices(image.image()), QByteArray("\x09\0", 2));
            QImage picture = plainImage({2, 1}, 200);
            picture.setColorTable({qRgb(1, 2, 3)});
            image.setImage(picture);
            palette.setColour(200, Qt::red, false);
            QCOMPARE(indices(image.image()), QByteArray("\xc8\xc8"));
            QCOMPARE(image.image().colorTable(), palette.colourTable());
        }
        QVERIFY(image.paletteId().isNull());
    }

    void mapsToNearestColours()
    {
        NxImage picture;
        picture.setImage(row({qRgb(7, 9, 255), qRgb(24, 25, 0), qRgba(1, 10, 250, 3), qRgb(8, 8, 8)}));
        QCOMPARE(picture.image(), row({qRgb(0, 16, 255), qRgb(16, 32, 0), qRgb(0, 16, 255), qRgb(0, 0, 0)}));
        QCOMPARE(indices(picture.toIndexed()), QByteArray("\0\1\0\2", 4));
        QCOMPARE(picture.toIndexed().colorTable(),
                 QList<QRgb>({qRgb(0, 16, 255), qRgb(16, 32, 0), qRgb(0, 0, 0)}) + QList<QRgb>(253, 0));

        Palette palette;
        palette.loadStandardNext();
        for (const int red : {10, 200})
            palette.storeRawColour(red, 0xe000);
        QRandomGenerator random(3);
        QList<QRgb> noise{0xffff0000, 0xffffffff, 0xff000000};
        for (int i = 0; i < 2000; ++i)
            noise << (0xff000000 | random.generate());
        picture.setImage(row(noise)); // a second picture starts a list of its own
        const QImage mapped = picture.remap(&palette);
        QCOMPARE(indices(mapped), nearestOf(palette.colourTable(), picture.image()));
        QVERIFY(indices(mapped).startsWith(QByteArray("\x0a\xff\x00", 3)) && picture.remap(nullptr).isNull());
        // of its own colours the first 256 are kept
        QVERIFY(picture.colours().size() > 256 && picture.colours().constFirst() == 0xffff0000);
        QCOMPARE(picture.toIndexed().colorTable(), picture.colours().first(256));
        QCOMPARE(indices(picture.toIndexed()), nearestOf(picture.colours().first(256), picture.image()));
    }

    void decodesTheFormatsThatDialogsName_data()
    {
        const QByteArray gif = QByteArray::fromHex("47494638376101000100800000ff000000000021f90400000000002c0000000001"
                                                   "000100000202440100");
        const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='1' height='1'/>";
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("good");
        const QImage picture = row({qRgb(255, 0, 0)});
        for (const char *format : {"png", "bmp", "jpeg", "pbm", "pgm", "ppm", "xbm", "xpm", "ico"}) {
            QBuffer file;
            QVERIFY(picture.save(&file, format));
            QTest::newRow(format) << file.data() << (qstrcmp(format, "ico") != 0);
        }
        QTest::newRow("gif") << gif << true;
        QTest::newRow("svg") << svg << false; // whose pictures may be any other file
        QTest::newRow("svg with a heading") << "<?xml version='1.0'?>" + svg << false;
    }

    void decodesTheFormatsThatDialogsName()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, good);
        const TemporaryFolder path;
        for (const char *name : {"picture.png", "picture.svg", "picture"}) // the content alone counts
            QCOMPARE(PictureFile::read(path(name, bytes)).image.size(), good ? QSize(1, 1) : QSize(0, 0));
        QMimeData clipboard;
        clipboard.setData("image/png", bytes);
        QCOMPARE(PictureFile::of(&clipboard).isNull(), !good);
        clipboard.setImageData(row({qRgb(255, 0, 0), qRgb(0, 0, 0)})); // what Qt would make of the bytes
        QCOMPARE(PictureFile::of(&clipboard).size(), good ? QSize(1, 1) : QSize(0, 0));
        clipboard.removeFormat("image/png");
        QCOMPARE(PictureFile::of(&clipboard).size(), QSize(2, 1));
    }

    void tellsWhyAPictureIsRefused()
    {
        const TemporaryFolder path;
        const QByteArray line(1024, '\0');
        const QString largest = path("largest", QByteArray("P4\n8192 8192\n") + line.repeated(8192));
        const QImage picture = PictureFile::read(largest).image; // of bits, so that it is quick
        QCOMPARE(picture.size(), QSize(8192, 8192));
        NxImage loaded;
        loaded.setImage(row({0xffff0000}));
        QVERIFY(!loaded.load(path()) && loaded.image().isNull() && loaded.colours().isEmpty()); // nothing is left
        const QByteArray overflowing = QByteArray("P6\n2147483647 2147483647\n255\n").append(1000, 'x');
        QVERIFY(PictureFile::read(path("overflowing", overflowing)).image.isNull());
        const QString pipe = path("pipe.png");
        const QString failure = "Could not read the image file";
        QList<QPair<QString, QString>> refusals{
            {path("larger", QByteArray("P4\n8200 8192\n") + line),
             failure + "\nIt has 8200 × 8192 pixels; at most 8192 × 8192, or as many in another shape, can be read"},
            {path("nonsense.png", "BM\1\2\3"), failure},
            {path("missing.png"), failure},
        };
        if (Platform::HasPipes) {
            QVERIFY(Platform::makePipe(pipe));
            for (const QString &file : {pipe, QString("/dev/zero")})
                refusals.append({file, failure + "\nIt is a pipe or a device, not a file"});
        }
        for (const auto &[file, text] : refusals) {
            const PictureFile refused = PictureFile::read(file);
            QVERIFY(refused.image.isNull());
            QCOMPARE(refused.failure(), text);
        }
    }

    /// Random rows of every kind of PNG, each row with a random filter, as libpng reads them.
    void readsWhatLibpngReads_data()
    {
        QTest::addColumn<char>("type");
        QTest::addColumn<char>("depth");
        for (const auto &[type, depths] : {std::pair<char, QByteArray>{0, "\1\2\4\x8\x10"},
                                           {2, "\x8\x10"},
                                           {3, "\1\2\4\x8"},
                                           {4, "\x8\x10"},
                                           {6, "\x8\x10"}}) {
            for (const char depth : depths)
                QTest::addRow("type %d, %d bits", type, depth) << type << depth;
        }
    }

    void readsWhatLibpngReads()
    {
        QFETCH(char, type);
        QFETCH(char, depth);
        QRandomGenerator random(quint32(type * 100 + depth));
        const int channels = type == 2 ? 3 : type == 4 ? 2 : type == 6 ? 4 : 1;
        const quint32 width = 301; // rows that make more than one block
        const quint32 height = 307;
        QByteArray rows;
        for (quint32 y = 0; y < height; ++y)
            rows += char(random.bounded(5)) + noise((int(width) * channels * depth + 7) / 8, random.generate());
        const QByteArray pixels = zlibStream(rows);
        const QByteArray colours = type == 3 ? chunk("PLTE", noise(3 << depth, random.generate())) : QByteArray();
        for (const QByteArray &transparency :
             {QByteArray(), chunk("tRNS", noise(type == 2 ? 6 : 2, random.generate()))}) {
            const QByteArray png = start({width, height, depth, type}) + chunk("tEXt", "aside") + colours + transparency
                + chunk("IDAT", pixels.first(7)) + chunk("IDAT", {}) + chunk("IDAT", pixels.sliced(7)) + End;
            QImage expected;
            {
                const StderrWatch complaints;
                expected = QImage::fromData(png, "png");
            }
            QVERIFY(!expected.isNull());
            const QImage image = readPng(png);
            QCOMPARE(image.format(), expected.format());
            QCOMPARE(image.colorTable(), expected.colorTable());
            // libpng leaves a part of 64-bit pixels as it was in memory
            QVERIFY(image == expected || QImage::fromData(png, "png") != expected);
            if (depth == 8 && channels == 1)
                QCOMPARE(indices(image), indices(expected));
        }
        // one pixel of an interlaced picture, which has one pass of seven
        const QByteArray pixel = zlibStream('\0' + noise((channels * depth + 7) / 8, random.generate()));
        const QByteArray interlaced = start({1, 1, depth, type, true}) + colours + chunk("IDAT", pixel) + End;
        QCOMPARE(readPng(interlaced), QImage::fromData(interlaced, "png"));
    }

    void refusesDamagedPngWithoutAWordOnStderr()
    {
        StderrWatch output;
        QByteArray rows;
        for (int y = 0; y < 4; ++y)
            rows += char(y) + QByteArray("\1\2\3\4");
        const QByteArray colours = chunk("PLTE", QByteArray(15, 'c'));
        for (const char type : {char(0), char(3), char(4)}) { // read here, read here, left to libpng
            const QByteArray head = start({type == 4 ? 2U : 4U, 4, 8, type}) + (type == 3 ? colours : QByteArray());
            const QByteArray whole = head + chunk("IDAT", zlibStream(rows));
            QVERIFY(!readPng(whole + End).isNull());
            for (qsizetype at = 0; at < whole.size(); ++at) {
                QVERIFY2(readPng(whole.first(at)).isNull(), qPrintable(QString::number(at)));
                QByteArray flipped = whole + End;
                flipped[at] ^= 1 << at % 8;
                QVERIFY2(readPng(flipped).isNull(), qPrintable(QString::number(at)));
            }
            QByteArray badFilter = rows;
            badFilter[15] = 5;
            for (const QByteArray &bytes :
                 {head + chunk("IDAT", zlibStream(badFilter)) + End,
                  head + chunk("IDAT", zlibStream(rows.chopped(1))) + End, head + chunk("IDAT", rows) + End,
                  head + chunk("ABCD", {}) + chunk("IDAT", zlibStream(rows)) + End, head + End,
                  head + colours + colours + chunk("IDAT", zlibStream(rows))})
                QVERIFY(readPng(bytes).isNull() || (type != 3 && bytes.count("PLTE") == 2));
        }
        for (const Head &impossible :
             {Head{0, 1, 8, 3}, {1, 1'000'001, 8, 3}, {1, 1, 3, 0}, {1, 1, 16, 3}, {1, 1, 4, 2}, {1, 1, 8, 5}})
            QVERIFY(
                readPng(start(impossible) + colours + chunk("IDAT", zlibStream(QByteArray(99, '\0'))) + End).isNull());
        QCOMPARE(output.written(), QByteArray());
    }

    void readsPngNoFartherThanAPictureCanReach()
    {
        const QByteArray head = start({4, 4, 8, 0});
        const QByteArray rows = zlibStream(QByteArray(20, '\0'));
        const std::tuple<QByteArray, qint64, bool> cases[] = {
            {head + chunk("IDAT", rows) + End, 1 << 17, true},
            {head + number(0x7FFFFFFF) + "IDAT" + rows, 1 << 17, true}, // pixels enough, and zeros after them
            {head + number(0x7FFFFFFF) + "teXt", 9 << 20, false},
            {head + number(0x7FFFFFFF) + "IDAT", 1 << 17, false},
        };
        for (const auto &[bytes, most, good] : cases) {
            qint64 taken = 0;
            EndlessDevice device(bytes, taken);
            PngReader reader(device);
            QVERIFY(reader.readHead());
            QCOMPARE(taken, head.size());
            QCOMPARE(!reader.read().isNull(), good);
            QVERIFY2(taken < most, qPrintable(QString::number(taken)));
        }
    }
};

QUENMORA_TEST_MAIN(TestImage)
#include "tst_image.moc"
