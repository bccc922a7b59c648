#include "model/map.h"

#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

using TileData = TileMap::TileData;

const TileData Blank;
const TileData Cleared{0, false, false, false, 0, true}; ///< what setTiles() with tile 0 leaves

TileData tile(int index)
{
    return {index, false, false, false, 0, true};
}

/// A map of 12 × 10 cells with 16 tiles and a block set.
struct Level
{
    explicit Level(QSize size = {12, 10}) : tiles(size), objects(size)
    {
        palette.loadStandardNext();
        tileSet.setPalette(&palette);
        blocks.setTileSet(&tileSet);
        objects.setVisible(false);
        map.setLayers(&tiles, &objects);
        map.setTileSet(&tileSet);
    }

    /// An animation of two frames, 2 × 1 cells: 3 and 4, then 5 and 6; offset 7, mirrored.
    QPointer<TileAnimation> animation()
    {
        const QPointer<TileAnimation> result = blocks.createBoundTileAnimation(QStringLiteral("Torch"));
        result->setSize({2, 1});
        result->clearFrames();
        for (int frame = 0; frame < 2; ++frame)
            result->addFrame()->setCells(
                {{{3 + 2 * frame, 7, false, true, false}, {4 + 2 * frame, 7, false, true, false}}});
        return result;
    }

    QList<QRect> areas() const
    {
        QList<QRect> result;
        for (const QPointer<AnimationProperties> &placement : map.animatedBlocks()->list())
            result << placement->area();
        return result;
    }

    Palette palette;
    TileSet tileSet{16};
    TileMap tiles;
    TileMap objects;
    MapObjects blocks;
    Map map{QStringLiteral("Cave")};
};

TileData frameCell(int index)
{
    return {index, false, false, true, 7, true};
}

Map::PlacedSprite spriteAt(int x, int y)
{
    Map::PlacedSprite sprite;
    sprite.x = x;
    sprite.y = y;
    return sprite;
}

QList<QPoint> positions(const Map &map)
{
    QList<QPoint> result;
    for (const Map::PlacedSprite &sprite : map.sprites())
        result << QPoint(sprite.x, sprite.y);
    return result;
}

QList<int> spriteIndices(const Map &map)
{
    QList<int> result;
    for (const Map::PlacedSprite &sprite : map.sprites())
        result << sprite.sprite;
    return result;
}

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString written(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes)
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

} // namespace

class TestMap : public QObject
{
    Q_OBJECT

private slots:
    void worksWithoutLayers();
    void movesContentWithTheCells();
    void removesContentThatLeaves();
    void resizesBothLayers();
    void followsItsTileSet();
    void placesAnimations();
    void restampsAnimations();
    void keepsSpritesOnTheirPictures();
    void dropsDeletedSprites();
    void playsPlacedAnimations();
    void restoresSnapshots();
    void exportsTheTileLayer();
    void importsATileDataSet();
    void importsOddTileDataSets();
    void refusesDamagedTileDataSets_data();
    void refusesDamagedTileDataSets();
    void showsObjectsWhereTheyArePlaced();
};

void TestMap::worksWithoutLayers()
{
    TileSet tileSet(1);
    Map map;
    QSignalSpy resized(&map, &Map::resized);
    QTest::ignoreMessage(QtWarningMsg, "_tileMap==nullptr");
    map.setTileSet(&tileSet);
    QCOMPARE(map.tileSetId(), tileSet.id());
    QTest::ignoreMessage(QtWarningMsg, "_tileMap==nullptr");
    map.resize({4, 4}, Qt::AlignLeft);
    QCOMPARE(resized.size(), 0);
    QCOMPARE(map.size(), QSize(0, 0));
    QTest::ignoreMessage(QtWarningMsg, "_tileMap==nullptr");
    QVERIFY(!map.setTile({0, 0}, tile(1)));
    QTest::ignoreMessage(QtWarningMsg, "_tileMap==nullptr");
    QVERIFY(!map.exportData(QStringLiteral("level.map")));
    map.restore(map.snapshot());

    auto *layer = new TileMap(3, 3);
    map.setLayers(layer, nullptr);
    QCOMPARE(layer->tileSet(), &tileSet);
    delete layer;
    tileSet.deleteTile(0);
    QCOMPARE(map.dataSize(), 0);
}

void TestMap::movesContentWithTheCells()
{
    Level level;
    level.map.setTile({2, 1}, tile(5));
    level.map.placeAnimation(level.animation(), {4, 3});
    level.map.addSprite(spriteAt(16, 40));

    level.map.insertColumn(Quenmora::Begin);
    level.map.insertRow(Quenmora::Begin);
    QCOMPARE(level.map.size(), QSize(13, 11));
    QCOMPARE(level.map.dataSize(), 286);
    QCOMPARE(level.tiles.cellAt({3, 2}), tile(5));
    QCOMPARE(level.objects.cellAt({5, 4}), frameCell(3));
    QCOMPARE(level.areas(), QList<QRect>({QRect(5, 4, 2, 1)}));
    QCOMPARE(positions(level.map), QList<QPoint>({QPoint(24, 48)}));

    level.map.insertColumn(Quenmora::End);
    level.map.insertRow(Quenmora::End);
    level.map.removeColumn(Quenmora::End);
    level.map.removeRow(Quenmora::End);
    level.map.removeColumn(Quenmora::Begin);
    level.map.removeRow(Quenmora::Begin);
    QCOMPARE(level.map.size(), QSize(12, 10));
    QCOMPARE(level.objects.size(), QSize(12, 10));
    QCOMPARE(level.areas(), QList<QRect>({QRect(4, 3, 2, 1)}));
    QCOMPARE(positions(level.map), QList<QPoint>({QPoint(16, 40)}));
}

void TestMap::removesContentThatLeaves()
{
    Level level;
    const QPointer<TileAnimation> animation = level.animation();
    level.map.placeAnimation(animation, {0, 2});
    level.map.placeAnimation(animation, {5, 2});
    level.map.animatedBlocks()->add(QRect(QPoint(INT_MIN, 0), QPoint(INT_MIN, 0)), animation->id());
    for (const QPoint at : {QPoint(3, 0), QPoint(8, 0), QPoint(95, 79)})
        level.map.addSprite(spriteAt(at.x(), at.y()));
    level.map.removeColumn(Quenmora::Begin);
    QCOMPARE(level.areas(), QList<QRect>({QRect(4, 2, 2, 1)}));
    QCOMPARE(level.objects.cellAt({0, 2}), Cleared); // the part of it that is still on the map
    QCOMPARE(level.objects.cellAt({4, 2}), frameCell(3));
    QCOMPARE(positions(level.map), QList<QPoint>({QPoint(0, 0), QPoint(87, 79)}));

    level.map.removeColumn(Quenmora::End);
    level.map.removeColumn(Quenmora::End);
    QCOMPARE(positions(level.map), QList<QPoint>({QPoint(0, 0)}));
}

void TestMap::resizesBothLayers()
{
    Level level;
    level.map.setTile({1, 1}, tile(3));
    level.map.addSprite(spriteAt(8, 8));
    QSignalSpy resized(&level.map, &Map::resized);
    level.map.resize({20, 5}, Qt::AlignRight | Qt::AlignTop);
    QCOMPARE(resized.size(), 1);
    QCOMPARE(resized.first().first().value<QPointer<Map>>(), &level.map);
    QCOMPARE(level.tiles.cellAt({9, 1}), tile(3));
    QCOMPARE(level.objects.size(), QSize(20, 5));
    QCOMPARE(positions(level.map), QList<QPoint>({QPoint(72, 8)}));
}

void TestMap::followsItsTileSet()
{
    Level level;
    for (int i = 0; i < 3; ++i)
        level.map.setTile({i, 0}, tile(4 + i));
    level.objects.setCell({0, 0}, tile(6));
    level.tileSet.deleteTile(5);
    level.map.setTileSet(&level.tileSet); // once more: it must not count twice
    level.tileSet.insertTile(0);
    QCOMPARE(level.tiles.cellAt({0, 0}).index, 5);
    QCOMPARE(level.tiles.cellAt({1, 0}).index, 1); // its tile is gone: tile 0, now tile 1
    QCOMPARE(level.tiles.cellAt({2, 0}).index, 6);
    QCOMPARE(level.objects.cellAt({0, 0}).index, 6);

    level.tileSet.setTileOffset(5, 9);
    level.map.refreshOffsets();
    QCOMPARE(level.tiles.cellAt({0, 0}).offset, 9);

    TileSet other(1);
    level.map.setTileSet(&other);
    level.tileSet.deleteTile(0);
    QCOMPARE(level.tiles.cellAt({0, 0}).index, 5);
    QCOMPARE(level.map.tileSetId(), other.id());
}

void TestMap::placesAnimations()
{
    Level level;
    const QPointer<TileAnimation> animation = level.animation();
    level.map.setTiles(level.tiles.bounds(), 9, false, false, false, true);
    level.map.placeAnimation(animation, {11, 3}); // half of it over the edge
    level.map.placeAnimation(animation, {4, 3});
    QCOMPARE(level.areas(), QList<QRect>({QRect(11, 3, 2, 1), QRect(4, 3, 2, 1)}));
    QCOMPARE(level.map.animatedBlocks()->animationIdAt(QRect(4, 3, 2, 1)), animation->id());
    QCOMPARE(level.tiles.cellAt({5, 3}), Cleared);
    QCOMPARE(level.tiles.cellAt({6, 3}), tile(9));
    QCOMPARE(level.objects.cellAt({4, 3}), frameCell(3));
    QCOMPARE(level.objects.cellAt({5, 3}), frameCell(4));
    QCOMPARE(level.objects.cellAt({11, 3}), frameCell(3));

    level.map.stampFrame(*animation, 1, {4, 3});
    level.map.stampFrame(*animation, 2, {4, 3});
    level.map.stampFrame(*animation, -1, {4, 3});
    QCOMPARE(level.objects.cellAt({5, 3}), frameCell(6));

    QVERIFY(!level.map.removeAnimationAt(QRect(4, 3, 1, 1)));
    QVERIFY(level.map.removeAnimationAt(QRect(4, 3, 2, 1)));
    QCOMPARE(level.tiles.cellAt({5, 3}), Blank);
    QCOMPARE(level.objects.cellAt({5, 3}), Cleared);
    QCOMPARE(level.areas().size(), 1);
    level.map.placeAnimation(nullptr, {0, 0});
    level.map.placeAnimation(level.blocks.createBoundTileAnimation(QStringLiteral("No frames")), {0, 0});
    QCOMPARE(level.objects.cellAt({0, 0}), Blank);
}

void TestMap::restampsAnimations()
{
    Level level;
    const QPointer<TileAnimation> animation = level.animation();
    level.map.animatedBlocks()->add(QRect(2, 2, 2, 1), animation->id());
    level.map.animatedBlocks()->add(QRect(6, 2, 2, 1), QUuid::createUuid());
    level.map.animatedBlocks()->add(QRect(QPoint(INT_MAX, 3), QPoint(INT_MAX, 3)), animation->id());
    level.map.setTiles(level.tiles.bounds(), 9, false, false, false, true);
    MapObjects other;
    level.map.restampAnimations({&other, nullptr, &level.blocks});
    QCOMPARE(level.objects.cellAt({3, 2}), frameCell(4));
    QCOMPARE(level.tiles.cellAt({3, 2}), Cleared);
    QCOMPARE(level.objects.cellAt({6, 2}), Blank); // no such animation
    QCOMPARE(level.tiles.cellAt({6, 2}), Cleared);
}

void TestMap::keepsSpritesOnTheirPictures()
{
    const QUuid bank = QUuid::createUuid();
    const auto moved = [&bank](int from, int to) {
        Map map;
        Map::PlacedSprite sprite;
        sprite.bank = bank;
        for (sprite.sprite = 0; sprite.sprite < 6; ++sprite.sprite)
            map.addSprite(sprite);
        sprite.sprite = from; // neither an animation nor a sprite of another bank
        sprite.animation = QUuid::createUuid();
        map.addSprite(sprite);
        sprite.animation = {};
        sprite.bank = QUuid::createUuid();
        map.addSprite(sprite);
        map.onSpriteMoved(bank, from, to);
        return spriteIndices(map);
    };
    QCOMPARE(moved(4, 1), QList<int>({0, 2, 3, 4, 1, 5, 4, 4}));
    QCOMPARE(moved(1, 4), QList<int>({0, 4, 1, 2, 3, 5, 1, 1}));
    QCOMPARE(moved(2, 2), QList<int>({0, 1, 2, 3, 4, 5, 2, 2}));
}

void TestMap::dropsDeletedSprites()
{
    const QUuid bank = QUuid::createUuid();
    Map map;
    for (const int index : {5, 3, 2, 3, -1}) {
        Map::PlacedSprite sprite;
        sprite.bank = bank;
        sprite.sprite = index;
        map.addSprite(sprite);
    }
    map.onSpriteDeleted(QUuid::createUuid(), 3);
    map.onSpriteDeleted(bank, -1);
    QCOMPARE(map.sprites().size(), 5);
    map.onSpriteDeleted(bank, 3);
    QCOMPARE(spriteIndices(map), QList<int>({4, 2, -1}));

    QVERIFY(!map.setSprite(3, {}));
    QVERIFY(!map.removeSprite(-1));
    QVERIFY(map.removeSprite(0));
    QCOMPARE(map.addSprite(spriteAt(1, 2)), 2);
}

void TestMap::playsPlacedAnimations()
{
    struct Case
    {
        int startFrame, initialDelay, repeatDelay;
        int frameCount, frameDelay;
        int time;
        int frame;
    };
    const Case cases[] = {
        {1, 5, 20, 4, 10, 0, 1}, // before the start
        {1, 5, 20, 4, 10, 15, 2},
        {1, 5, 20, 4, 10, 35, 0}, // the last frame before the pause
        {1, 5, 20, 4, 10, 50, 0}, // in the pause
        {1, 5, 20, 4, 10, 65, 1}, // the second run
        {9, 5, 0, 4, 10, 0, 3},
        {-9, 0, -9, 4, 10, 45, 0},
        {1, 5, 20, 4, 0, 500, 1}, // standing still
        {1, 5, 20, 0, 10, 15, 0}, // no frames
        {0, 0, INT_MAX, INT_MAX, INT_MAX, INT_MAX, 1},
    };
    for (const Case &given : cases) {
        Map::PlacedSprite sprite;
        sprite.startFrame = given.startFrame;
        sprite.initialDelay = given.initialDelay;
        sprite.repeatDelay = given.repeatDelay;
        QCOMPARE(sprite.currentFrame(given.frameCount, given.frameDelay, given.time), given.frame);
    }
}

void TestMap::restoresSnapshots()
{
    Level level;
    level.map.setTile({1, 1}, tile(2));
    level.map.addSprite(spriteAt(8, 8));
    level.map.placeAnimation(level.animation(), {4, 3});
    const Map::Snapshot before = level.map.snapshot();
    QVERIFY(level.map.snapshot() == before);

    level.map.insertRow(Quenmora::Begin);
    level.map.removeAnimationAt(QRect(4, 4, 2, 1));
    level.map.removeSprite(0);
    const Map::Snapshot after = level.map.snapshot();
    QVERIFY(!(after == before));

    QStringList emitted;
    connect(&level.tiles, &TileMap::tilesChanged, &level.map, [&emitted] { emitted << QStringLiteral("tiles"); });
    connect(&level.objects, &TileMap::tilesChanged, &level.map, [&emitted] { emitted << QStringLiteral("objects"); });
    connect(&level.map, &Map::restored, &level.map, [&emitted] { emitted << QStringLiteral("restored"); });
    level.map.restore(before);
    QCOMPARE(emitted, QStringList({"tiles", "objects", "restored"}));
    QVERIFY(level.map.snapshot() == before);
    QCOMPARE(level.map.size(), QSize(12, 10));
    QCOMPARE(level.areas(), QList<QRect>({QRect(4, 3, 2, 1)}));
    level.map.restore(after);
    QVERIFY(level.map.snapshot() == after);
}

void TestMap::exportsTheTileLayer()
{
    const QTemporaryDir folder;
    Level level({2, 2});
    level.map.setTile({0, 0}, {257, false, false, true, 3, true});
    level.map.setTile({1, 0}, {5, true, false, false, 0, true});
    level.map.setTile({0, 1}, {2, false, true, false, 15, true});
    level.map.setTile({1, 1}, {511, true, true, true, 10, true});
    const QByteArray expected = QByteArray::fromHex("01390502 02F4FFAF");
    QVERIFY(level.map.exportData(folder.filePath(QStringLiteral("level.map"))));
    QCOMPARE(contents(folder.filePath(QStringLiteral("level.map"))), expected);
    QVERIFY(level.map.exportToDirectory(folder.path()));
    QCOMPARE(contents(folder.filePath(QStringLiteral("Cave_tilemap.bin"))), expected);

    QVERIFY(!level.map.exportData(folder.path()));
    QVERIFY(!level.map.exportToDirectory(folder.filePath(QStringLiteral("nowhere"))));
    level.map.setName(QStringLiteral("../Cave"));
    QVERIFY(!level.map.exportToDirectory(folder.path()));
}

void TestMap::importsATileDataSet()
{
    const QTemporaryDir folder;
    const QString mapFile =
        written(folder, QStringLiteral("level.nxm"), QByteArray::fromHex("0402 0100 0000") + QByteArray(252, '\0'));
    const QString blockFile =
        written(folder, QStringLiteral("level.nxb"), QByteArray::fromHex("0000 0000 0000 0000 0100 0200 1100 1200"));
    Level level;
    QVERIFY(level.map.importNxm(mapFile, blockFile));
    const int expected[2][4] = {{1, 2, 0, 0}, {17, 18, 0, 0}};
    QCOMPARE(level.map.size(), QSize(4, 2));
    for (int i = 0; i < 8; ++i)
        QCOMPARE(level.tiles.cellAt({i % 4, i / 4}), tile(expected[i / 4][i % 4]));
}

void TestMap::importsOddTileDataSets()
{
    const QTemporaryDir folder;
    // three by three cells: the blocks at the right and at the bottom are cut
    const QByteArray filler(252, '\x55');
    const QString mapFile = written(folder, QStringLiteral("level.nxm"),
                                    QByteArray::fromHex("0303 0100 0000") + filler + QByteArray::fromHex("0000 0100"));
    const QString blockFile =
        written(folder, QStringLiteral("level.nxb"), QByteArray::fromHex("0100 0200 0300 0400 0500 0600 ffff 0002 77"));
    Level level;
    level.map.addSprite(spriteAt(80, 0));
    QSignalSpy resized(&level.map, &Map::resized);
    QVERIFY(level.map.importNxm(mapFile, blockFile));
    QCOMPARE(resized.size(), 1);
    QCOMPARE(level.map.size(), QSize(3, 3));
    QCOMPARE(level.objects.size(), QSize(3, 3));
    QCOMPARE(level.map.sprites().size(), 0);
    const int expected[3][3] = {{5, 6, 1}, {-1, 512, 3}, {1, 2, 5}};
    for (int i = 0; i < 9; ++i)
        QCOMPARE(level.tiles.cellAt({i % 3, i / 3}), tile(expected[i / 3][i % 3]));
    QVERIFY(!level.tiles.toImage(level.tiles.bounds()).isNull()); // tiles -1 and 512 do not exist
}

void TestMap::refusesDamagedTileDataSets_data()
{
    QTest::addColumn<QByteArray>("mapBytes");
    QTest::addColumn<QByteArray>("blockBytes");
    QTest::addColumn<QSize>("size"); // afterwards
    const QSize unchanged(12, 10);
    const QByteArray block(8, '\1');
    QTest::newRow("empty") << QByteArray() << block << unchanged;
    QTest::newRow("one byte") << QByteArray("\2") << block << unchanged;
    QTest::newRow("no width") << QByteArray::fromHex("0002 0000") << block << unchanged;
    QTest::newRow("no height") << QByteArray::fromHex("0200 0000") << block << unchanged;
    QTest::newRow("no block numbers") << QByteArray::fromHex("0202") << block << QSize(2, 2);
    QTest::newRow("half a block number") << QByteArray::fromHex("0202 00") << block << QSize(2, 2);
    QTest::newRow("second row missing") << QByteArray::fromHex("0204 0000") + QByteArray(254, '\0') << block
                                        << QSize(2, 4);
    QTest::newRow("block behind the data") << QByteArray::fromHex("0202 0100") << block << QSize(2, 2);
    QTest::newRow("largest block") << QByteArray::fromHex("0202 ffff") << block.repeated(4) << QSize(2, 2);
    QTest::newRow("cut block") << QByteArray::fromHex("0202 0000") << block.chopped(1) << QSize(2, 2);
    QTest::newRow("no blocks") << QByteArray::fromHex("0202 0000") << QByteArray() << QSize(2, 2);
    QTest::newRow("nonsense") << QByteArray("A page of prose, not a map.") << block << QSize('A', ' ');
}

void TestMap::refusesDamagedTileDataSets()
{
    QFETCH(QByteArray, mapBytes);
    QFETCH(QByteArray, blockBytes);
    QFETCH(QSize, size);
    const QTemporaryDir folder;
    const QString mapFile = written(folder, QStringLiteral("level.nxm"), mapBytes);
    const QString blockFile = written(folder, QStringLiteral("level.nxb"), blockBytes);
    Level level;
    QVERIFY(!level.map.importNxm(mapFile, blockFile));
    QCOMPARE(level.map.size(), size);
    QVERIFY(!level.map.importNxm(folder.path(), blockFile));
    QVERIFY(!level.map.importNxm(folder.filePath(QStringLiteral("missing.nxm")), blockFile));
    QVERIFY(!level.map.importNxm(mapFile, folder.path()));
}

void TestMap::showsObjectsWhereTheyArePlaced()
{
    Level level;
    for (int i = 0; i < 16; ++i) {
        QImage image(8, 8, QImage::Format_Indexed8);
        image.fill(i);
        level.tileSet.setTileImage(i, image);
    }
    level.map.setTiles(level.tiles.bounds(), 9, false, false, false, true);
    level.map.placeAnimation(level.animation(), {4, 3});
    const QList<QRgb> colours = level.palette.colourTable();
    const auto row = [&level](int y) {
        QImage screen(10, 10, QImage::Format_RGB32);
        screen.fill(Qt::white);
        QPainter painter(&screen);
        level.map.paintLayers(painter, {0, 0}, QRect(2, 1, 10, 9), 1, 10);
        QList<QRgb> pixels;
        for (int x = 0; x < 10; ++x)
            pixels << screen.pixel(x, y);
        return pixels;
    };
    QList<QRgb> expected(10, colours[9]);
    QCOMPARE(row(0), expected);
    expected[2] = expected[3] = colours[0];
    QCOMPARE(row(2), expected);
    level.objects.setVisible(true);
    expected[2] = colours[7 * 16 + 3];
    expected[3] = colours[7 * 16 + 4];
    QCOMPARE(row(2), expected);
    expected.fill(colours[9]);
    QCOMPARE(row(0), expected); // blank cells of the object layer hide nothing
    level.tiles.setVisible(false);
    QCOMPARE(row(0), QList<QRgb>(10, qRgb(255, 255, 255)));
}

QUENMORA_TEST_MAIN(TestMap)
#include "tst_map.moc"
