#include "model/image.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "support/testmain.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

/// A picture of one row with these colours.
QImage row(const QList<QRgb> &colours)
{
    QImage picture(int(colours.size()), 1, QImage::Format_RGB32);
    for (int x = 0; x < picture.width(); ++x)
        picture.setPixel(x, 0, colours.at(x));
    return picture;
}

QImage noise(const QSize &size, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, 0xff000000 | random.generate());
    }
    return picture;
}

int squaredDistance(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

/// The first of the colours at the least distance.
int nearestOf(const QList<QRgb> &colours, QRgb colour)
{
    const auto closer = [colour](QRgb a, QRgb b) { return squaredDistance(a, colour) < squaredDistance(b, colour); };
    return int(std::min_element(colours.begin(), colours.end(), closer) - colours.begin());
}

QByteArray indices(const QImage &image)
{
    QByteArray bytes;
    for (int y = 0; y < image.height(); ++y)
        bytes.append(reinterpret_cast<const char *>(image.constScanLine(y)), image.width());
    return bytes;
}

} // namespace

class TestImage : public QObject
{
    Q_OBJECT

private slots:
    void startsBlankInItsMode_data();
    void startsBlankInItsMode();
    void wearsColoursOfItsPalette();
    void staysIndexed();
    void keepsIndicesThroughPngWithoutPalette();
    void snapsAndListsColours();
    void takesEveryFormat_data();
    void takesEveryFormat();
    void takesIndicesBeyondColourTable();
    void remapsToNearest();
    void indexesManyColoursByNearest();
    void loadsGoodFilesOnly_data();
    void loadsGoodFilesOnly();
    void refusesHugePictures();
};

void TestImage::startsBlankInItsMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSize>("size");
    QTest::newRow("256x192") << 0 << QSize(256, 192);
    QTest::newRow("320x256") << 1 << QSize(320, 256);
    QTest::newRow("640x256") << 2 << QSize(640, 256);
    QTest::newRow("LoRes") << 3 << QSize(128, 96);
    QTest::newRow("no mode") << 4 << QSize();
    QTest::newRow("negative") << -1 << QSize();
}

void TestImage::startsBlankInItsMode()
{
    QFETCH(const int, mode);
    QFETCH(const QSize, size);
    const Image image{Quenmora::ImageMode(mode)};
    QCOMPARE(int(image.mode()), mode);
    QCOMPARE(image.image().isNull(), size.isEmpty());
    QCOMPARE(indices(image.image()), QByteArray(size.isEmpty() ? 0 : size.width() * size.height(), '\0'));
    QVERIFY(image.name().isEmpty());
    QVERIFY(image.paletteId().isNull());
    if (!size.isEmpty()) {
        QCOMPARE(image.image().size(), size);
        QCOMPARE(image.image().format(), QImage::Format_Indexed8);
    }
}

void TestImage::wearsColoursOfItsPalette()
{
    Image image(Quenmora::LoRes_128x96);
    {
        Palette palette;
        palette.loadStandardNext();
        image.setPalette(&palette);
        QCOMPARE(image.paletteId(), palette.id());
        QCOMPARE(image.image().colorTable(), palette.colourTable());
        QCOMPARE(indices(image.image()), QByteArray(128 * 96, '\0'));

        QImage picture(2, 1, QImage::Format_Indexed8);
        picture.setColorTable({qRgb(1, 2, 3)});
        picture.scanLine(0)[0] = 0;
        picture.scanLine(0)[1] = 200;
        image.setImage(picture);
        QCOMPARE(indices(image.image()), QByteArray("\x00\xc8", 2));
        QCOMPARE(image.image().colorTable(), palette.colourTable());
    }
    QVERIFY(image.paletteId().isNull());
    image.setImage(QImage());
    QVERIFY(image.image().isNull());
    image.setPalette(nullptr);
}

void TestImage::staysIndexed()
{
    Palette palette;
    palette.storeRawColour(9, 0xff01);
    Image image(Quenmora::LoRes_128x96);
    image.setImage(row({0xffff0000, 0xff0000ff, 0xffff0000}));
    QCOMPARE(indices(image.image()), QByteArray("\0\1\0", 3));

    image.setPalette(&palette);
    image.setImage(row({0xffffffff, 0xff000000}));
    QCOMPARE(image.image().format(), QImage::Format_Indexed8);
    QCOMPARE(indices(image.image()), QByteArray("\x09\0", 2));

    QImage bits(9, 1, QImage::Format_MonoLSB);
    bits.fill(1);
    bits.setPixel(1, 0, 0);
    image.setImage(bits);
    QCOMPARE(indices(image.image()), QByteArray("\1\0\1\1\1\1\1\1\1", 9));
}

void TestImage::keepsIndicesThroughPngWithoutPalette()
{
    QImage picture(256, 1, QImage::Format_Indexed8);
    for (int x = 0; x < 256; ++x)
        picture.scanLine(0)[x] = uchar(x);
    Image image(Quenmora::Layer2_256x192);
    image.setImage(picture);

    QBuffer file;
    QVERIFY(image.image().save(&file, "png"));
    Image read(Quenmora::Layer2_256x192);
    read.setImage(QImage::fromData(file.data(), "png"));
    QCOMPARE(read.image().format(), QImage::Format_Indexed8);
    QCOMPARE(indices(read.image()), indices(picture));
}

void TestImage::snapsAndListsColours()
{
    NxImage picture;
    QVERIFY(picture.image().isNull());
    QVERIFY(picture.setImage(noise({20, 20}, 1)));
    // a second picture starts a list of its own
    QVERIFY(picture.setImage(row({qRgb(7, 9, 255), qRgb(24, 25, 0), qRgba(1, 10, 250, 3), qRgb(8, 8, 8)})));
    QCOMPARE(picture.colours(), QList<QRgb>({qRgb(0, 16, 255), qRgb(16, 32, 0), qRgb(0, 0, 0)}));
    QCOMPARE(picture.image(), row({qRgb(0, 16, 255), qRgb(16, 32, 0), qRgb(0, 16, 255), qRgb(0, 0, 0)}));

    const QImage indexed = picture.toIndexed();
    QCOMPARE(indices(indexed), QByteArray("\0\1\0\2", 4));
    QCOMPARE(indexed.colorTable().size(), 256);
    QCOMPARE(indexed.color(1), qRgb(16, 32, 0));
    QCOMPARE(indexed.color(3), QRgb(0));

    QVERIFY(picture.setImage(QImage()));
    QVERIFY(picture.toIndexed().isNull());
    QVERIFY(picture.colours().isEmpty());
}

void TestImage::takesEveryFormat_data()
{
    QTest::addColumn<int>("format");
    for (int format = QImage::Format_Mono; format < QImage::NImageFormats; ++format)
        QTest::addRow("format %d", format) << format;
}

void TestImage::takesEveryFormat()
{
    QFETCH(const int, format);
    for (const QSize size : {QSize(1, 1), QSize(33, 17)}) {
        const QImage source = noise(size, 2).convertToFormat(QImage::Format(format));
        NxImage picture;
        QVERIFY(picture.setImage(source));
        QCOMPARE(picture.image().size(), size);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const QRgb wanted = Palette::snapColour(source.pixelColor(x, y)).rgb();
                // formats of 16 bits a component may round to a neighbour
                QVERIFY2(squaredDistance(picture.image().pixel(x, y), wanted)
                             <= (source.depth() > 32 ? 3 * 16 * 16 : 0),
                         qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
            }
        }
        QCOMPARE(picture.toIndexed().size(), size);
    }
}

void TestImage::takesIndicesBeyondColourTable()
{
    for (const QImage::Format format : {QImage::Format_Mono, QImage::Format_MonoLSB, QImage::Format_Indexed8}) {
        QImage source(5, 3, format);
        source.fill(0);
        for (int y = 0; y < 3; ++y)
            source.scanLine(y)[0] = 0xff;
        source.setColorTable({qRgb(255, 0, 0)});
        NxImage picture;
        QVERIFY(picture.setImage(source));
        QCOMPARE(picture.toIndexed().size(), QSize(5, 3));
        source.setColorTable({});
        QVERIFY(picture.setImage(source));
        QCOMPARE(picture.toIndexed().size(), QSize(5, 3));
    }
}

void TestImage::remapsToNearest()
{
    Palette palette;
    palette.loadStandardNext();
    palette.storeRawColour(10, 0xe000);
    palette.storeRawColour(200, 0xe000);
    NxImage picture;
    QVERIFY(picture.remap(&palette).isNull());
    QVERIFY(picture.setImage(noise({40, 30}, 3)));
    QVERIFY(picture.remap(nullptr).isNull());
    const QImage mapped = picture.remap(&palette);
    QCOMPARE(mapped.format(), QImage::Format_Indexed8);
    const QList<QRgb> colours = palette.colourTable();
    QCOMPARE(mapped.colorTable(), colours);
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x)
            QCOMPARE(mapped.pixelIndex(x, y), nearestOf(colours, picture.image().pixel(x, y)));
    }
    QVERIFY(picture.setImage(row({0xffff0000, 0xffffffff, 0xff000000})));
    QCOMPARE(indices(picture.remap(&palette)), QByteArray("\x0a\xff\x00", 3));
}

void TestImage::indexesManyColoursByNearest()
{
    NxImage picture;
    QVERIFY(picture.setImage(noise({50, 40}, 4)));
    QVERIFY(picture.colours().size() > 256);
    const QImage indexed = picture.toIndexed();
    const QList<QRgb> first = picture.colours().first(256);
    QCOMPARE(indexed.colorTable(), first);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 50; ++x)
            QCOMPARE(indexed.pixelIndex(x, y), nearestOf(first, picture.image().pixel(x, y)));
    }
}

void TestImage::loadsGoodFilesOnly_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("nonsense") << QByteArray(5000, 'x');
    QTest::newRow("png signature only") << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("bmp header only") << QByteArray("BM\0\0\0\0", 6);
    // 112 MB of bits, which would be 3.6 GB of 32-bit pixels
    QTest::newRow("huge bitmap") << QByteArray("P4\n30000 30000\n").append(1000, 'x');
    QTest::newRow("huge greymap") << QByteArray("P5\n30000 30000\n255\n").append(1000, 'x');
    QTest::newRow("overflowing size") << QByteArray("P6\n2147483647 2147483647\n255\n").append(1000, 'x');
}

void TestImage::loadsGoodFilesOnly()
{
    QFETCH(const QByteArray, bytes);
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.png"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();

    // the content decides, whatever the name says
    QVERIFY(row({qRgb(7, 9, 255)}).save(folder.filePath("good.bmp"), "png"));
    NxImage picture;
    QVERIFY(picture.load(folder.filePath("good.bmp")));
    QCOMPARE(picture.colours(), QList<QRgb>(1, qRgb(0, 16, 255)));
    QVERIFY(!picture.load(file.fileName()));
    QVERIFY(picture.image().isNull());
    QVERIFY(picture.colours().isEmpty());
    QVERIFY(!picture.load(folder.path()));
    QVERIFY(!picture.load(folder.filePath("missing.png")));
}

void TestImage::refusesHugePictures()
{
    const QImage bits(NxImage::MaxPixels / 8 + 8, 8, QImage::Format_Mono);
    QVERIFY(!bits.isNull());
    NxImage picture;
    QVERIFY(picture.setImage(bits));
    QVERIFY(picture.image().isNull());
}

QUENMORA_TEST_MAIN(TestImage)
#include "tst_image.moc"
