#include "model/imageslicer.h"
#include "model/nximage.h"
#include "model/picturefile.h"
#include "model/pictureindices.h"
#include "model/transform.h"
#include "support/modeltools.h"
#include "support/peakmemory.h"
#include "support/testmain.h"

#include <QtGui>
#include <QtTest>

#include <algorithm>
#include <tuple>

namespace {

using Placements = QList<ImageSlicer::Placement>;

/// A colour of the snap grid for each number from 0 to 511, so that it comes out as it went in.
QRgb colour(int number)
{
    return qRgb((number & 7) * 32, (number >> 3 & 7) * 32, (number >> 6) * 32);
}

/// A tile with count colours from first on, one a pixel, the last one for the rest; no symmetry from three on.
QImage tile(int first, int count)
{
    return pictureOf({8, 8}, QImage::Format_RGB32, [=](int i) { return colour(first + std::min(i, count - 1)); });
}

QImage turned(const QImage &picture, int orientation)
{
    return oriented(picture, orientation & 4, orientation & 1, orientation & 2);
}

/// A picture of these equal squares side by side.
QImage strip(const QList<QImage> &squares)
{
    const int side = squares.first().width();
    QImage picture(side * int(squares.size()), side, QImage::Format_RGB32);
    QPainter painter(&picture);
    for (int i = 0; i < squares.size(); ++i)
        painter.drawImage(i * side, 0, squares.at(i));
    return picture;
}

/// Random pixels of a few colours in squares of detail × detail, so that symmetries and repeats are frequent.
QImage randomPicture(const QSize &size, int colours, int detail, quint32 seed)
{
    QRandomGenerator random(seed);
    const QImage blocks = pictureOf(size / detail + QSize(1, 1), QImage::Format_RGB32,
                                    [&](int) { return colour(int(random.bounded(colours))); });
    return blocks.scaled(blocks.size() * detail).copy(QRect(QPoint(0, 0), size));
}

/// The pixels of a picture in the orientation in which they sort first: the same for all that are to be merged.
QByteArray keyOf(const QImage &picture)
{
    QByteArray key;
    for (int orientation = 0; orientation < 8; ++orientation) {
        const QImage other = turned(picture, orientation);
        const QByteArray pixels(reinterpret_cast<const char *>(other.constBits()), other.sizeInBytes());
        key = key.isEmpty() ? pixels : std::min(key, pixels);
    }
    return key;
}

} // namespace

class TestImageSlicer : public QObject
{
    Q_OBJECT

private slots:
    void namesOrientations()
    {
        // written out once by hand: after a rotation clockwise the left column is the top row, read upwards
        QImage source(43, 15, QImage::Format_RGB32); // what is no whole cell is dropped
        source.fill(Qt::black);
        // a tile, the same rotated, the same mirrored; then twice one for which the last of the eight is found
        for (const auto &[x, y, number] :
             {std::tuple(0, 0, 7), {0, 1, 6}, {8 + 7, 0, 7}, {8 + 6, 0, 6}, {16 + 7, 0, 7}, {16 + 7, 1, 6}})
            source.setPixel(x, y, colour(number));
        ImageSlicer slicer(source);
        SignalLog log(slicer);
        QVERIFY(slicer.size() == QSize(5, 1) && slicer.sliceTiles() == 2);
        QCOMPARE(slicer.placements(), Placements({{0, 0}, {0, 4}, {0, 2}, {1, 0}, {1, 7}}));
        QCOMPARE(log.take().mid(3), QStringList({"processed 3", "processed 4"}));
    }

    /// Few colours in halves, quarters and thirds of a tile; then more pieces than the 4096 that fit the first table,
    /// and 16 colours, which fill the first bank. Each picture is put together again from its pieces.
    void mergesWhatIsAlike()
    {
        for (const auto &[side, colours, detail] : {std::tuple(200, 2, 4), {200, 2, 2}, {200, 3, 3}, {640, 16, 1}}) {
            const QImage source = randomPicture({side, side}, colours, detail, 5);
            ImageSlicer slicer(source);
            QSet<QByteArray> keys;
            for (int i = 0; i < side / 16 * (side / 16); ++i)
                keys << keyOf(source.copy(i % (side / 16) * 16, i / (side / 16) * 16, 16, 16));
            QCOMPARE(slicer.sliceSprites(16), keys.size());
            const int tiles = slicer.sliceTiles(); // nothing of the sprites may be left
            keys.clear();
            for (int cell = 0; cell < slicer.cellCount(); ++cell) {
                const QImage expected = source.copy(cell % (side / 8) * 8, cell / (side / 8) * 8, 8, 8);
                keys << keyOf(expected);
                const auto [piece, orientation] = slicer.placement(cell);
                const QImage shown = turned(slicer.pieceWithOffset(piece), orientation);
                QCOMPARE(shown.convertToFormat(QImage::Format_RGB32), expected);
            }
            QCOMPARE(tiles, keys.size());
        }
    }

    void sharesBanks()
    {
        // 10 colours, the same 10, 10 others, and 8 of which the first bank has two and just room for the rest
        ImageSlicer slicer(strip({tile(1, 10), turned(tile(1, 10), 3), tile(5, 1), tile(101, 10), tile(9, 8)}));
        QCOMPARE(slicer.sliceTiles(), 4);
        for (int i = -1; i <= 4; ++i)
            QCOMPARE(slicer.bank(i), i == 2 ? 1 : 0);
        QList<QRgb> expected(256, 0xff000000);
        for (int i = 0; i < 16; ++i)
            expected[i] = colour(1 + i);
        for (int i = 0; i < 10; ++i)
            expected[16 + i] = colour(101 + i);
        QVERIFY(slicer.bankColours() == expected && slicer.piece(2).colorTable() == expected);
        QVERIFY(slicer.piece(1).pixelIndex(0, 0) == 4 && slicer.pieceWithOffset(2).pixelIndex(1, 0) == 17);
        QVERIFY(slicer.piece(4).isNull() && slicer.piece(-1).isNull() && slicer.pieceWithOffset(4).isNull());
    }

    void keepsOwnColoursWhenPaletteIsFull()
    {
        // the tile of 17 colours ends the assignment, so the one after it gets no bank though it would fit
        ImageSlicer slicer(strip({tile(1, 3), tile(4, 2), tile(20, 17), tile(40, 3)}));
        QTest::ignoreMessage(QtWarningMsg, "Palette full!");
        QCOMPARE(slicer.sliceTiles(), 4);
        QCOMPARE(slicer.lossyTileCount(), 2);
        QCOMPARE(slicer.bankColours().mid(4, 2), QList<QRgb>({colour(5), 0xff000000}));
        // the first tile's colours are those that its bank had then
        QCOMPARE(slicer.piece(0).colorTable(),
                 QList<QRgb>({colour(1), colour(2), colour(3)}) + QList<QRgb>(13, 0xff000000) + QList<QRgb>(240, 0));
        QVERIFY(slicer.piece(2).pixelIndex(0, 2) == 16 && slicer.pieceWithOffset(2).pixelIndex(0, 2) == 0);
        QCOMPARE(slicer.piece(3).colorTable(), QList<QRgb>({colour(40), colour(41), colour(42)}));
    }

    void countsTilesThatLoseColours()
    {
        QList<QImage> tiles;
        for (int first = 0; first < 256; first += 16)
            tiles.append(tile(first, 16));
        ImageSlicer full(strip(tiles)); // every bank
        QVERIFY(full.sliceTiles() == 16 && full.lossyTileCount() == 0);
        ImageSlicer over(strip(tiles + QList<QImage>{tile(256, 1), tile(5, 1), tile(256, 1)})); // one colour more
        QVERIFY(over.sliceTiles() == 18 && over.lossyTileCount() == 1);
    }

    void keepsIndicesOfSprites()
    {
        // two colours that look the same, and an index that none of the colours has
        QImage sprites = pictureOf({40, 16}, QImage::Format_Indexed8, [](int i) { return i % 40 < 16 ? 3 : 200; });
        ImageSlicer slicer(sprites);
        QVERIFY(slicer.sliceIndexedSprites() == 2 && slicer.colours() == sprites.colorTable());
        QCOMPARE(indices(slicer.piece(1)), QByteArray(256, char(200)));
    }

    /// A picture of any format gives the indices and colours that it has as one of 32-bit colours.
    void readsEveryFormat_data()
    {
        QTest::addColumn<QImage>("picture");
        QRandomGenerator random(8);
        const QImage noise =
            pictureOf({40, 40}, QImage::Format_ARGB32, [&random](int) { return random.generate() | 0x80000000; });
        QImage indices = pictureOf({40, 40}, QImage::Format_Indexed8, [&random](int) { return random.bounded(256); });
        QTest::newRow("one colour") << indices; // in 256 entries
        indices.setColorTable(
            {qRgba(1, 2, 3, 0), qRgb(3, 2, 1), qRgb(100, 0, 0), qRgb(101, 0, 0), qRgba(9, 99, 9, 77)});
        QTest::newRow("indices beyond the colours") << indices;
        for (const auto format :
             {QImage::Format_Mono, QImage::Format_Grayscale8, QImage::Format_RGB32, QImage::Format_ARGB32,
              QImage::Format_RGB16, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGBA64})
            QTest::addRow("format %d", format) << noise.convertToFormat(format);
    }

    void readsEveryFormat()
    {
        QFETCH(const QImage, picture);
        for (const bool isTranslucent : {false, true}) {
            const auto take = [isTranslucent](NxImage &image, const QImage &source) {
                if (isTranslucent)
                    image.setTranslucent(source);
                else
                    image.setImage(source);
            };
            const auto format = isTranslucent ? QImage::Format_ARGB32 : QImage::Format_RGB32;
            NxImage stored;
            NxImage colours;
            take(stored, picture);
            take(colours, picture.convertToFormat(format, Qt::AvoidDither));
            QVERIFY(stored.image().format() == format && stored.hasClearPixels() == colours.hasClearPixels());
            QCOMPARE(stored.image(), colours.image());
            QCOMPARE(stored.colours(), colours.colours());
            QCOMPARE(indices(stored.toIndexed()), indices(colours.toIndexed()));
        }
        const QImage expected = NxImage(picture).toIndexed();
        const PictureIndices read(picture);
        QCOMPARE(read.colourTable(), expected.colorTable());
        QByteArray pixels(40 * 40, 'x');
        const bool exact = read.read(0, 0, 40, reinterpret_cast<uchar *>(pixels.data()));
        QCOMPARE(pixels, indices(expected));
        QCOMPARE(exact, NxImage(picture).colours().size() <= 256);
        QByteArray edge(16, 'x');
        read.read(38, 38, 4, reinterpret_cast<uchar *>(edge.data()));
        QCOMPARE(edge, pixels.mid(38 * 40 + 38, 2) + QByteArray(2, 0) + pixels.last(2) + QByteArray(10, 0));
    }

    /// Neither reading it, whatever it is packed to, nor cutting it.
    void takesLittleMoreMemoryThanThePicture()
    {
        for (const bool colours : {false, true}) { // of 32 bits, or indices
            const int side = colours ? 2048 : 4096;
            const int tiles = side / 8 * (side / 8); // all of them distinct
            const qint64 allowed = tiles * 15 + (qint64(2) << 20);
            QBuffer file;
            {
                QRandomGenerator random(9);
                QImage picture(side, side, colours ? QImage::Format_RGB32 : QImage::Format_Indexed8);
                for (int i = 0; i < (colours ? 0 : 256); ++i)
                    picture.setColor(i, colour(i));
                random.fillRange(reinterpret_cast<quint32 *>(picture.bits()), picture.sizeInBytes() / 4);
                QVERIFY(file.open(QIODevice::ReadWrite) && picture.save(&file, "png", 100)); // stored
            }
            file.seek(0);
            const PeakMemory memory;
            if (!memory.isKnown())
                QSKIP("the system does not tell");
            const QImage picture = PictureFile::read(file).image;
            const qint64 pixels = picture.sizeInBytes();
            QCOMPARE(pixels, qint64(16) << 20);
            QVERIFY2(memory.grown() < pixels + allowed, qPrintable(QString::number(memory.grown() >> 20)));
            QTest::ignoreMessage(QtWarningMsg, "Palette full!");
            ImageSlicer slicer(picture);
            QCOMPARE(slicer.sliceTiles(), tiles);
            QVERIFY2(memory.grown() < pixels + allowed, qPrintable(QString::number(memory.grown() >> 20)));
        }
    }

    /// More pieces than are kept: a band of distinct tiles, and the same mirrored.
    void readsAgainWhatIsNotKept()
    {
        const QImage top = randomPicture({2400, 2400}, 200, 1, 10);
        QImage source(2400, 4800, QImage::Format_RGB32);
        QPainter(&source).drawImage(0, 0, top);
        QPainter(&source).drawImage(0, 2400, turned(top, 2));
        QTest::ignoreMessage(QtWarningMsg, "Palette full!");
        ImageSlicer slicer(source);
        constexpr int Columns = 300;
        constexpr int Tiles = Columns * Columns;
        QCOMPARE(slicer.sliceTiles(), Tiles);
        for (int cell = 0; cell < Tiles; ++cell) {
            const int mirrored = Tiles + cell / Columns * Columns + Columns - 1 - cell % Columns;
            QCOMPARE(slicer.placement(mirrored), ImageSlicer::Placement(cell, 2));
        }
        QCOMPARE(slicer.piece(Tiles - 1).convertToFormat(QImage::Format_RGB32), top.copy(2392, 2392, 8, 8));
    }

    void mergesSpritesWithoutOrientation()
    {
        const QImage sprite = randomPicture({16, 16}, 30, 1, 6);
        ImageSlicer slicer(strip({sprite, turned(sprite, 2)}));
        QCOMPARE(slicer.sliceSprites(16), 1);
        QCOMPARE(slicer.placements(), Placements({{0, 0}, {0, 0}}));
        QCOMPARE(slicer.piece(0).convertToFormat(QImage::Format_RGB32), sprite);
        // pieces stay 16 × 16, so smaller sizes ask for pieces beyond the picture: those are colour 0
        ImageSlicer other(randomPicture({32, 16}, 30, 1, 7));
        QVERIFY(other.sliceSprites(5) == 3 && other.size() == QSize(6, 3) && other.sliceSprites(-16) == 0);
        // a bit a pixel in memory, but it would take gigabytes when taken apart; and one that has no whole cell
        for (const QImage &none :
             {QImage(NxImage::MaxPixels / 8 + 8, 8, QImage::Format_Mono), QImage(64, 7, QImage::Format_RGB32)}) {
            ImageSlicer empty(none);
            QVERIFY(empty.cellCount() == 0 && empty.sliceTiles() == 0 && empty.sliceSprites(16) == 0);
        }
    }
};

QUENMORA_TEST_MAIN(TestImageSlicer)
#include "tst_imageslicer.moc"
