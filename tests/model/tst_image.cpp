#include "model/image.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "support/modeltools.h"
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

/// The pixels of a picture as the first of these colours at the least distance.
QByteArray nearestOf(const QList<QRgb> &colours, const QImage &picture)
{
    QByteArray bytes;
    for (int i = 0; i < picture.width() * picture.height(); ++i) {
        const QRgb colour = picture.pixel(i % picture.width(), i / picture.width());
        const auto nearest = std::min_element(colours.begin(), colours.end(), [colour](QRgb a, QRgb b) {
            return squaredDistance(a, colour) < squaredDistance(b, colour);
        });
        bytes += char(nearest - colours.begin());
    }
    return bytes;
}

} // namespace

class TestImage : public QObject
{
    Q_OBJECT

private slots:
    void wearsColoursOfItsPalette()
    {
        Image image(Quenmora::LoRes_128x96);
        QCOMPARE(indices(image.image()), QByteArray(128 * 96, '\0'));
        QVERIFY(Image(Quenmora::ImageMode(4)).image().isNull());
        Palette former;
        image.setPalette(&former);
        {
            Palette palette;
            palette.loadStandardNext();
            image.setPalette(&palette);
            former.setColour(1, Qt::white, false);
            QCOMPARE(image.paletteId(), palette.id());
            QCOMPARE(image.image().colorTable(), palette.colourTable());
            QImage picture = plainImage({2, 1}, 200);
            picture.setColorTable({qRgb(1, 2, 3)});
            image.setImage(picture);
            QCOMPARE(indices(image.image()), QByteArray("\xc8\xc8"));
            QCOMPARE(image.image().colorTable(), palette.colourTable());
            palette.setColour(200, Qt::red, false);
            QCOMPARE(image.image().color(200), qRgb(255, 0, 0));
        }
        QVERIFY(image.paletteId().isNull());
        image.setImage(QImage());
        QVERIFY(image.image().isNull());
        image.setPalette(&former);
        image.setPalette(nullptr);
    }

    void staysIndexed()
    {
        Palette palette;
        palette.storeRawColour(9, 0xff01);
        Image image(Quenmora::LoRes_128x96);
        image.setImage(row({0xffff0000, 0xff0000ff, 0xffff0000}));
        QCOMPARE(indices(image.image()), QByteArray("\0\1\0", 3));
        image.setPalette(&palette);
        image.setImage(row({0xffffffff, 0xff000000}));
        QCOMPARE(indices(image.image()), QByteArray("\x09\0", 2));
        for (const int value : {1, 200}) { // without colours PNG makes bits or greys of the indices
            QImage plain = plainImage({9, 1}, value);
            plain.setColorTable(value == 1 ? QList<QRgb>{0xff000000, 0xffffffff} : QList<QRgb>());
            QBuffer file;
            QVERIFY(plain.save(&file, "png"));
            image.setImage(QImage::fromData(file.data(), "png"));
            QCOMPARE(indices(image.image()), QByteArray(9, char(value)));
        }
    }

    void snapsAndListsColours()
    {
        NxImage picture;
        QVERIFY(picture.setImage(noise({20, 20}, 1)));
        // a second picture starts a list of its own
        QVERIFY(picture.setImage(row({qRgb(7, 9, 255), qRgb(24, 25, 0), qRgba(1, 10, 250, 3), qRgb(8, 8, 8)})));
        QCOMPARE(picture.colours(), QList<QRgb>({qRgb(0, 16, 255), qRgb(16, 32, 0), qRgb(0, 0, 0)}));
        QCOMPARE(picture.image(), row({qRgb(0, 16, 255), qRgb(16, 32, 0), qRgb(0, 16, 255), qRgb(0, 0, 0)}));
        const QImage indexed = picture.toIndexed();
        QCOMPARE(indices(indexed), QByteArray("\0\1\0\2", 4));
        QCOMPARE(indexed.colorTable(), picture.colours() + QList<QRgb>(253, 0));

        QVERIFY(picture.setImage(QImage()));
        QVERIFY(picture.toIndexed().isNull() && picture.colours().isEmpty());
    }

    void mapsToNearestColours()
    {
        Palette palette;
        palette.loadStandardNext();
        palette.storeRawColour(10, 0xe000);
        palette.storeRawColour(200, 0xe000);
        NxImage picture;
        QVERIFY(picture.remap(&palette).isNull());
        QVERIFY(picture.setImage(noise({50, 40}, 3)));
        QVERIFY(picture.remap(nullptr).isNull());
        const QImage mapped = picture.remap(&palette);
        QCOMPARE(mapped.colorTable(), palette.colourTable());
        QCOMPARE(indices(mapped), nearestOf(palette.colourTable(), picture.image()));

        // of its own colours the first 256 are kept
        QVERIFY(picture.colours().size() > 256);
        const QImage indexed = picture.toIndexed();
        QCOMPARE(indexed.colorTable(), picture.colours().first(256));
        QCOMPARE(indices(indexed), nearestOf(picture.colours().first(256), picture.image()));

        QVERIFY(picture.setImage(row({0xffff0000, 0xffffffff, 0xff000000})));
        QCOMPARE(indices(picture.remap(&palette)), QByteArray("\x0a\xff\x00", 3));
    }

    void loadsGoodFilesOnly_data()
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

    void loadsGoodFilesOnly()
    {
        QFETCH(const QByteArray, bytes);
        const QTemporaryDir folder;
        QVERIFY(writeFile(folder.filePath("a.png"), bytes));
        // the content decides, whatever the name says
        QVERIFY(row({qRgb(7, 9, 255)}).save(folder.filePath("good.bmp"), "png"));
        NxImage picture;
        QVERIFY(picture.load(folder.filePath("good.bmp")));
        QCOMPARE(picture.colours(), QList<QRgb>(1, qRgb(0, 16, 255)));
        for (const QString &bad : {folder.filePath("a.png"), folder.path(), folder.filePath("missing.png")}) {
            QVERIFY(!picture.load(bad));
            QVERIFY(picture.image().isNull() && picture.colours().isEmpty());
        }
        QVERIFY(picture.setImage(QImage(NxImage::MaxPixels / 8 + 8, 8, QImage::Format_Mono))); // taken as an empty one
        QVERIFY(picture.image().isNull());
    }
};

QUENMORA_TEST_MAIN(TestImage)
#include "tst_image.moc"
