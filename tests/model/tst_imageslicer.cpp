#include "model/imageslicer.h"
#include "model/nximage.h"
#include "model/qtcompat.h"
#include "support/testmain.h"

#include <QCryptographicHash>
#include <QHash>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QTransform>

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
    QImage picture(8, 8, QImage::Format_RGB32);
    for (int i = 0; i < 64; ++i)
        picture.setPixel(i % 8, i / 8, colour(first + std::min(i, count - 1)));
    return picture;
}

QImage oriented(const QImage &picture, int orientation)
{
    const QImage turned = orientation & 4 ? picture.transformed(QTransform().rotate(90)) : picture;
    return QtCompat::flipped(turned, orientation & 2, orientation & 1);
}

/// A picture of these equal squares side by side.
QImage strip(const QList<QImage> &squares)
{
    const int side = squares.first().width();
    QImage picture(side * int(squares.size()), side, QImage::Format_RGB32);
    for (int i = 0; i < squares.size(); ++i) {
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x)
                picture.setPixel(i * side + x, y, squares.at(i).pixel(x, y));
        }
    }
    return picture;
}

/// Random pixels of a few colours in squares of detail × detail, so that symmetries and repeats are frequent.
QImage randomPicture(const QSize &size, int colours, int detail, quint32 seed)
{
    QRandomGenerator random(seed);
    QList<QRgb> blocks;
    const int across = size.width() / detail + 1;
    for (int i = 0; i < across * (size.height() / detail + 1); ++i)
        blocks.append(colour(int(random.bounded(colours))));
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, blocks.at(y / detail * across + x / detail));
    }
    return picture;
}

QByteArray digest(const QImage &picture)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (int y = 0; y < picture.height(); ++y)
        hash.addData(QByteArray(reinterpret_cast<const char *>(picture.constScanLine(y)), picture.width()));
    return hash.result();
}

/// The placements and the number of pieces as a table of digests of all orientations gives them.
std::pair<Placements, int> mergedByDigests(const QImage &source, int side)
{
    NxImage snapped;
    snapped.setImage(source);
    const QImage picture = snapped.toIndexed();
    QHash<QByteArray, ImageSlicer::Placement> table;
    Placements placements;
    int pieces = 0;
    for (int y = 0; y + side <= picture.height(); y += side) {
        for (int x = 0; x + side <= picture.width(); x += side) {
            const QImage piece = picture.copy(x, y, side, side);
            const auto known = table.constFind(digest(piece));
            if (known != table.constEnd()) {
                placements.append(*known);
                continue;
            }
            for (int orientation = 0; orientation < 8; ++orientation)
                table.insert(digest(oriented(piece, orientation)), {pieces, orientation});
            placements.append({pieces++, 0});
        }
    }
    return {placements, pieces};
}

} // namespace

class TestImageSlicer : public QObject
{
    Q_OBJECT

private slots:
    void dropsPartialCells();
    void namesOrientations();
    void takesGreatestOrientationOfSymmetricPieces();
    void mergesLikeDigestTable_data();
    void mergesLikeDigestTable();
    void drawsPictureBack();
    void sharesBanks();
    void fillsBankToTheLastSlot();
    void keepsOwnColoursWhenPaletteIsFull();
    void mergesSpritesWithoutOrientation();
    void cutsSpritesOfOtherSizes();
    void takesAnyPicture_data();
    void takesAnyPicture();
};

void TestImageSlicer::dropsPartialCells()
{
    ImageSlicer slicer(randomPicture({20, 17}, 8, 1, 1));
    QCOMPARE(slicer.size(), QSize(2, 2));
    QCOMPARE(slicer.cellCount(), 4);
    QSignalSpy processed(&slicer, &ImageSlicer::processed);
    QCOMPARE(slicer.sliceTiles(), 4);
    QCOMPARE(slicer.placements(), Placements({{0, 0}, {1, 0}, {2, 0}, {3, 0}}));
    QCOMPARE(processed.count(), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(processed.at(i).at(0).toInt(), i);
}

void TestImageSlicer::namesOrientations()
{
    // written out once by hand: after a rotation clockwise the left column is the top row, read upwards
    QImage source(24, 8, QImage::Format_RGB32);
    source.fill(Qt::black);
    source.setPixel(0, 0, colour(7));
    source.setPixel(0, 1, colour(6));
    source.setPixel(8 + 7, 0, colour(7)); // rotated
    source.setPixel(8 + 6, 0, colour(6));
    source.setPixel(16 + 7, 0, colour(7)); // mirrored
    source.setPixel(16 + 7, 1, colour(6));
    ImageSlicer slicer(source);
    QCOMPARE(slicer.sliceTiles(), 1);
    QCOMPARE(slicer.placements(), Placements({{0, 0}, {0, 4}, {0, 2}}));

    QList<QImage> squares;
    Placements expected;
    for (int orientation = 0; orientation < 8; ++orientation) {
        squares.append(oriented(tile(0, 7), orientation));
        expected.append({0, orientation});
    }
    ImageSlicer all(strip(squares));
    QCOMPARE(all.sliceTiles(), 1);
    QCOMPARE(all.placements(), expected);
}

void TestImageSlicer::takesGreatestOrientationOfSymmetricPieces()
{
    QImage black(24, 8, QImage::Format_RGB32);
    black.fill(Qt::black);
    ImageSlicer plain(black);
    QCOMPARE(plain.sliceTiles(), 1);
    QCOMPARE(plain.placements(), Placements({{0, 0}, {0, 7}, {0, 7}}));

    // horizontal stripes look the same mirrored: 2 rather than 0; vertical ones flipped: 4 becomes 5
    QImage stripes(24, 8, QImage::Format_RGB32);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 24; ++x)
            stripes.setPixel(x, y, colour(x < 16 ? y : 7 - x % 8));
    }
    ImageSlicer striped(stripes);
    QCOMPARE(striped.sliceTiles(), 1);
    QCOMPARE(striped.placements(), Placements({{0, 0}, {0, 2}, {0, 5}}));
}

void TestImageSlicer::mergesLikeDigestTable_data()
{
    QTest::addColumn<int>("colours");
    QTest::addColumn<int>("detail");
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 3; ++seed) {
        QTest::addRow("halves, seed %u", seed) << 2 << 4 << seed;
        QTest::addRow("two colours, seed %u", seed) << 2 << 2 << seed;
        QTest::addRow("three colours, seed %u", seed) << 3 << 3 << seed;
        QTest::addRow("all distinct, seed %u", seed) << 500 << 1 << seed;
    }
}

void TestImageSlicer::mergesLikeDigestTable()
{
    QFETCH(const int, colours);
    QFETCH(const int, detail);
    QFETCH(const quint32, seed);
    const QImage source = randomPicture({203, 170}, colours, detail, seed);
    ImageSlicer slicer(source);
    auto [spritePlacements, sprites] = mergedByDigests(source, 16);
    for (auto &placement : spritePlacements)
        placement.second = 0;
    QCOMPARE(slicer.sliceSprites(16), sprites);
    QCOMPARE(slicer.placements(), spritePlacements);

    // nothing of the sprites may be left
    if (colours > 256)
        QTest::ignoreMessage(QtWarningMsg, "Palette full!");
    const auto [tilePlacements, tiles] = mergedByDigests(source, 8);
    QCOMPARE(slicer.sliceTiles(), tiles);
    QCOMPARE(slicer.placements(), tilePlacements);
}

/// More than the 4096 pieces that fit the first table, and the picture put together again from its pieces.
void TestImageSlicer::drawsPictureBack()
{
    const QImage source = randomPicture({640, 640}, 16, 1, 5);
    ImageSlicer slicer(source);
    QCOMPARE(slicer.sliceTiles(), 6400);
    const QList<QRgb> colours = slicer.bankColours();
    for (int cell = 0; cell < slicer.cellCount(); ++cell) {
        const auto [piece, orientation] = slicer.placements().at(cell);
        QCOMPARE(slicer.bank(piece), 0);
        const QImage shown = oriented(slicer.pieceWithOffset(piece), orientation);
        const QImage wanted = source.copy(cell % 80 * 8, cell / 80 * 8, 8, 8);
        QCOMPARE(shown.convertToFormat(QImage::Format_RGB32), wanted);
    }
}

void TestImageSlicer::sharesBanks()
{
    // 10 colours, the same 10, 10 others, and 4 of which the first bank has two and room for the rest
    ImageSlicer slicer(strip({tile(1, 10), oriented(tile(1, 10), 3), tile(5, 1), tile(101, 10), tile(9, 4)}));
    QCOMPARE(slicer.sliceTiles(), 4);
    QCOMPARE(slicer.bank(0), 0);
    QCOMPARE(slicer.bank(1), 0);
    QCOMPARE(slicer.bank(2), 1);
    QCOMPARE(slicer.bank(3), 0);
    QCOMPARE(slicer.bank(4), 0);
    QCOMPARE(slicer.bank(-1), 0);

    const QList<QRgb> colours = slicer.bankColours();
    QCOMPARE(colours.size(), 256);
    for (int i = 0; i < 256; ++i) {
        const QRgb wanted = i < 12 ? colour(1 + i) : i >= 16 && i < 26 ? colour(101 + i - 16) : 0xff000000;
        QCOMPARE(colours.at(i), wanted);
    }
    QCOMPARE(slicer.piece(2).colorTable(), colours);
    QCOMPARE(slicer.piece(2).pixelIndex(1, 0), 1);
    QCOMPARE(slicer.pieceWithOffset(2).pixelIndex(1, 0), 17);
    QCOMPARE(slicer.piece(1).pixelIndex(0, 0), 4);
    QCOMPARE(slicer.piece(3).pixelIndex(3, 0), 11);
    QVERIFY(slicer.piece(4).isNull());
    QVERIFY(slicer.piece(-1).isNull());
    QVERIFY(slicer.pieceWithOffset(4).isNull());
    QCOMPARE(slicer.colours().size(), 256);
}

void TestImageSlicer::fillsBankToTheLastSlot()
{
    QList<QImage> tiles;
    for (int bank = 0; bank < 16; ++bank)
        tiles.append(tile(bank * 16, 16));
    ImageSlicer slicer(strip(tiles));
    QCOMPARE(slicer.sliceTiles(), 16);
    for (int bank = 0; bank < 16; ++bank) {
        QCOMPARE(slicer.bank(bank), bank);
        QCOMPARE(slicer.bankColours().at(bank * 16 + 15), colour(bank * 16 + 15));
        QCOMPARE(slicer.pieceWithOffset(bank).pixelIndex(7, 1), bank * 16 + 15);
    }
}

void TestImageSlicer::keepsOwnColoursWhenPaletteIsFull()
{
    // the tile of 17 colours ends the assignment, so the one after it gets no bank though it would fit
    ImageSlicer slicer(strip({tile(1, 3), tile(4, 2), tile(20, 17), tile(40, 3)}));
    QTest::ignoreMessage(QtWarningMsg, "Palette full!");
    QCOMPARE(slicer.sliceTiles(), 4);
    QCOMPARE(slicer.bankColours().first(6),
             QList<QRgb>({colour(1), colour(2), colour(3), colour(4), colour(5), 0xff000000}));

    // the first tile's colours are those that its bank had then
    const QList<QRgb> first = slicer.piece(0).colorTable();
    QCOMPARE(first.size(), 256);
    QCOMPARE(first.first(4), QList<QRgb>({colour(1), colour(2), colour(3), 0xff000000}));
    QCOMPARE(first.mid(15, 2), QList<QRgb>({0xff000000, 0}));

    QCOMPARE(slicer.bank(2), 0);
    QCOMPARE(slicer.piece(2).colorCount(), 17);
    QCOMPARE(slicer.piece(2).pixelIndex(0, 2), 16);
    QCOMPARE(slicer.pieceWithOffset(2).pixelIndex(0, 2), 0);
    QCOMPARE(slicer.piece(3).colorTable(), QList<QRgb>({colour(40), colour(41), colour(42)}));
    QCOMPARE(slicer.piece(3).pixelIndex(2, 0), 2);
}

void TestImageSlicer::mergesSpritesWithoutOrientation()
{
    const QImage sprite = randomPicture({16, 16}, 30, 1, 6);
    ImageSlicer slicer(strip({sprite, oriented(sprite, 2)}));
    QCOMPARE(slicer.sliceSprites(16), 1);
    QCOMPARE(slicer.size(), QSize(2, 1));
    QCOMPARE(slicer.placements(), Placements({{0, 0}, {0, 0}}));
    QCOMPARE(slicer.bank(0), 0);
    QCOMPARE(slicer.piece(0).size(), QSize(16, 16));
    QCOMPARE(slicer.piece(0).colorTable(), slicer.colours());
    QCOMPARE(slicer.piece(0).convertToFormat(QImage::Format_RGB32), sprite);
    QCOMPARE(slicer.bankColours(), QList<QRgb>(256, 0xff000000));
}

/// Pieces stay 16 × 16, so smaller sizes ask for pieces beyond the picture: those are colour 0.
void TestImageSlicer::cutsSpritesOfOtherSizes()
{
    ImageSlicer slicer(randomPicture({32, 16}, 30, 1, 7));
    for (const auto &[size, cells, pieces] : {std::tuple(8, QSize(4, 2), 3),
                                              {5, QSize(6, 3), 3},
                                              {32, QSize(1, 0), 0},
                                              {0, QSize(0, 0), 0},
                                              {-16, QSize(0, 0), 0}}) {
        QCOMPARE(slicer.sliceSprites(size), pieces);
        QCOMPARE(slicer.size(), cells);
        QCOMPARE(slicer.placements().size(), slicer.cellCount());
        if (pieces > 0)
            QCOMPARE(slicer.piece(2).pixelColor(9, 9).rgb(), slicer.colours().at(0));
    }
}

void TestImageSlicer::takesAnyPicture_data()
{
    QTest::addColumn<QImage>("source");
    QTest::addColumn<QSize>("cells");
    QTest::newRow("null") << QImage() << QSize(0, 0);
    QTest::newRow("one pixel") << QImage(1, 1, QImage::Format_ARGB32) << QSize(0, 0);
    QTest::newRow("seven rows") << QImage(64, 7, QImage::Format_RGB32) << QSize(8, 0);
    // a bit a pixel in memory, but gigabytes when taken apart
    QTest::newRow("huge") << QImage(NxImage::MaxPixels / 8 + 8, 8, QImage::Format_Mono) << QSize(0, 0);
    for (int format = QImage::Format_Mono; format < QImage::NImageFormats; ++format)
        QTest::addRow("format %d", format)
            << randomPicture({17, 9}, 12, 1, 9).convertToFormat(QImage::Format(format)) << QSize(2, 1);
}

void TestImageSlicer::takesAnyPicture()
{
    QFETCH(const QImage, source);
    QFETCH(const QSize, cells);
    ImageSlicer slicer(source);
    QCOMPARE(slicer.size(), cells);
    const int pieces = slicer.sliceTiles();
    QCOMPARE(slicer.placements().size(), slicer.cellCount());
    for (int i = 0; i < pieces; ++i)
        QCOMPARE(slicer.pieceWithOffset(i).size(), QSize(8, 8));
    QVERIFY(slicer.sliceSprites(16) <= pieces);
}

QUENMORA_TEST_MAIN(TestImageSlicer)
#include "tst_imageslicer.moc"
