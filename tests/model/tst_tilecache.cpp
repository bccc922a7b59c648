#include "model/tilecache.h"

#include "support/testmain.h"

#include <QTest>

class TestTileCache : public QObject
{
    Q_OBJECT

private slots:
    void rendersEachVariantOnce();
    void followsSwappedTiles();
};

void TestTileCache::rendersEachVariantOnce()
{
    TileSet tileSet(2);
    QImage image(8, 8, QImage::Format_Indexed8);
    image.setColorCount(256);
    image.fill(0);
    image.setPixel(7, 0, 5);
    tileSet.setTileImage(1, image);
    TileCache cache;
    cache.bind(&tileSet);
    QCOMPARE(cache.pixels({1, false, false, false, 2, true})[7], uchar(0x25));
    QCOMPARE(cache.pixels({1, false, false, true, 2, true})[0], uchar(0x25));
    QCOMPARE(cache.pixels({1, true, false, false, 2, true})[63], uchar(0x25));
    QCOMPARE(cache.hits(), 0);
    QCOMPARE(cache.pixels({1, true, false, false, 2, true})[63], uchar(0x25));
    QCOMPARE(cache.pixels({1, false, false, false, 18, true})[7], uchar(0x25)); // offsets have four bits
    QCOMPARE(cache.hits(), 2);
    for (const int lost : {-1, 2, INT_MAX})
        QCOMPARE(cache.pixels({lost, false, false, false, 2, true}), Tile::Pixels{});
    QCOMPARE(cache.hits(), 2);
    cache.clear();
    QCOMPARE(cache.hits(), 0);
}

void TestTileCache::followsSwappedTiles()
{
    TileSet tileSet(3);
    TileCache cache;
    cache.bind(&tileSet);
    const auto filled = [](int index) {
        QImage image(8, 8, QImage::Format_Indexed8);
        image.fill(index);
        return image;
    };
    for (int i = 0; i < 3; ++i)
        tileSet.setTileImage(i, filled(i + 1));
    QCOMPARE(cache.pixels({0, false, false, false, 0, true})[0], uchar(1));
    QCOMPARE(cache.pixels({1, false, false, false, 0, true})[0], uchar(2));
    QCOMPARE(cache.pixels({1, false, true, false, 0, true})[0], uchar(2));
    tileSet.moveTile(0, 1);
    cache.swapTiles(0, 1);
    QCOMPARE(cache.pixels({0, false, false, false, 0, true})[0], uchar(2));
    QCOMPARE(cache.pixels({0, false, true, false, 0, true})[0], uchar(2));
    QCOMPARE(cache.pixels({1, false, false, false, 0, true})[0], uchar(1));
    QCOMPARE(cache.hits(), 3); // nothing was rendered again
    QCOMPARE(cache.pixels({1, false, true, false, 0, true})[0], uchar(1));
}

QUENMORA_TEST_MAIN(TestTileCache)
#include "tst_tilecache.moc"
