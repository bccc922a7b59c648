#include "model/map.h"

#include "model/mapobjects.h"
#include "model/project.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

namespace {

using TileData = TileMap::TileData;

const TileData Cleared{0, false, false, false, 0, true}; ///< what setTiles() with tile 0 leaves

TileData tile(int index)
{
    return {index, false, false, false, 0, true};
}

/// A cell of the object layer that shows one of the animation's tiles.
TileData frameCell(int index)
{
    return {index, false, false, true, 7, true};
}

/// A map of 12 × 10 cells with 16 tiles and an animation of two frames, 2 × 1 cells: tiles 3 and 4, then 5 and 6,
/// with offset 7 and mirrored.
struct Level
{
    Level()
    {
        animation.setSize({2, 1});
        for (const int index : {3, 5})
            animation.addFrame()->setCells({{{index, 7, false, true, false}, {index + 1, 7, false, true, false}}});
    }

    QList<QRect> areas() const { return valuesOf(map.animatedBlocks()->list(), &AnimationProperties::area); }
    QList<QPoint> sprites() const
    {
        return valuesOf(map.sprites(), [](const Map::PlacedSprite &sprite) { return QPoint(sprite.x, sprite.y); });
    }

    Project project;
    TileSet &tileSet = *project.createTileSet("Rocks", {}, 16);
    TileAnimation &animation = *project.createBlockList("Torches", tileSet.id())->createBoundTileAnimation("Torch");
    Map &map = *project.createMap("Cave", tileSet.id(), {12, 10});
    TileMap &tiles = *map.tileLayer();
    TileMap &objects = *map.objectLayer();
};

} // namespace

class TestMap : public QObject
{
    Q_OBJECT

    const TemporaryFolder m_path;

private slots:
    void worksWithoutLayers()
    {
        Map map;
        for (int i = 0; i < 3; ++i)
            QTest::ignoreMessage(QtWarningMsg, "_tileMap==nullptr");
        map.setTileSet(nullptr);
        map.resize({4, 4}, Qt::AlignLeft);
        QVERIFY(!map.setTile({0, 0}, tile(1)) && map.dataSize() == 0);
    }

    void movesContentWithTheCells()
    {
        Level level;
        Map &map = level.map;
        map.setTile({2, 1}, tile(5));
        map.placeAnimation(&level.animation, {0, 3});
        map.placeAnimation(&level.animation, {5, 3});
        map.animatedBlocks()->add(QRect(QPoint(INT_MIN, 0), QPoint(INT_MIN, 0)), level.animation.id());
        for (const auto &[x, y] : {std::pair(3, 0), {8, 0}, {95, 79}})
            map.addSprite({.x = x, .y = y});

        for (const auto side : {Quenmora::Begin, Quenmora::End}) {
            map.insertColumn(side);
            map.insertRow(side);
        }
        QVERIFY(level.tiles.size() == QSize(14, 12) && level.objects.size() == QSize(14, 12) && map.dataSize() == 336);
        QVERIFY(level.tiles.cellAt({3, 2}) == tile(5) && level.objects.cellAt({6, 4}) == frameCell(3));
        QCOMPARE(level.areas(), QList<QRect>({QRect(1, 4, 2, 1), QRect(6, 4, 2, 1)}));
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(11, 8), QPoint(16, 8), QPoint(103, 87)}));

        for (int i = 0; i < 2; ++i)
            map.removeColumn(Quenmora::Begin);
        QCOMPARE(level.areas(), QList<QRect>({QRect(4, 4, 2, 1)}));
        QCOMPARE(level.objects.cellAt({0, 4}), Cleared); // the part of the first that is still on the map
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(0, 8), QPoint(87, 87)}));
        map.removeRow(Quenmora::Begin);
        for (int i = 0; i < 2; ++i)
            map.removeColumn(Quenmora::End);
        map.removeRow(Quenmora::End);
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(0, 0)}));
        SignalLog log(map);
        map.resize({20, 5}, Qt::AlignRight | Qt::AlignTop);
        QCOMPARE(log.take(), QStringList("resized Map"));
        QVERIFY(level.objects.size() == QSize(20, 5) && level.tiles.cellAt({11, 1}) == tile(5));
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(80, 0)}));
    }

    void followsItsTileSet()
    {
        Level level;
        const auto indices = [&level] { // and offsets, two bytes each
            return (level.objects.toNextData().left(2) + level.tiles.toNextData().left(6)).toHex(' ');
        };
        for (int i = 0; i < 3; ++i)
            level.map.setTile({i, 0}, tile(4 + i));
        level.objects.setCell({0, 0}, tile(6));
        level.tileSet.deleteTile(5);
        QCOMPARE(indices(), "05 00 04 00 00 00 05 00"); // cells of the deleted tile show tile 0
        level.map.setTileSet(&level.tileSet); // once more: it must not count twice
        level.tileSet.insertTile(0);
        level.tileSet.setTileOffset(5, 9);
        level.tileSet.setTileOffset(1, 0);
        level.map.refreshOffsets();
        QCOMPARE(indices(), "06 00 05 90 01 00 06 00");
        level.map.setTileSet(nullptr);
        level.tileSet.deleteTile(0);
        QCOMPARE(indices(), "06 00 05 90 01 00 06 00");
    }

    void placesAnimations()
    {
        Level level;
        Map &map = level.map;
        const QRect area(4, 3, 2, 1);
        map.setTiles(level.tiles.bounds(), 9, false, false, false, true);
        map.placeAnimation(&level.animation, {11, 3}); // half of it over the edge
        map.placeAnimation(&level.animation, {4, 3});
        QVERIFY(level.areas().size() == 2 && map.animatedBlocks()->animationIdAt(area) == level.animation.id());
        QVERIFY(level.tiles.cellAt({5, 3}) == Cleared && level.tiles.cellAt({6, 3}) == tile(9));
        QVERIFY(level.objects.cellAt({4, 3}) == frameCell(3) && level.objects.cellAt({5, 3}) == frameCell(4));
        QVERIFY(map.stampFrame(level.animation, 1, area));
        for (const int same : {1, 2, -1}) // the frame that it shows already, and two that are not there
            QVERIFY(!map.stampFrame(level.animation, same, area));
        QCOMPARE(level.objects.cellAt({5, 3}), frameCell(6));
        QVERIFY(!map.removeAnimationAt(QRect(4, 3, 1, 1)) && map.removeAnimationAt(area) && level.areas().size() == 1);
        QVERIFY(level.tiles.cellAt({5, 3}) == TileData() && level.objects.cellAt({5, 3}) == Cleared);
        const TileAnimation empty; // without frames
        map.placeAnimation(&empty, {0, 0});
        QCOMPARE(level.objects.cellAt({0, 0}), TileData());
        map.animatedBlocks()->add(QRect(2, 2, 2, 1), level.animation.id());
        map.animatedBlocks()->add(QRect(6, 2, 2, 1), QUuid::createUuid()); // no such animation
        map.animatedBlocks()->add(QRect(8, 8, 1, 2), level.animation.id()); // narrower and higher than the animation
        map.animatedBlocks()->add(QRect(QPoint(INT_MAX, 3), QPoint(INT_MAX, 3)), level.animation.id());
        map.restampAnimations({level.project.createBlockList("Other", {}), nullptr, level.project.blockSets().first()});
        QVERIFY(level.objects.cellAt({3, 2}) == frameCell(4) && level.tiles.cellAt({3, 2}) == Cleared);
        QVERIFY(level.objects.cellAt({6, 2}) == TileData() && level.tiles.cellAt({6, 2}) == Cleared);
        QVERIFY(level.objects.cellAt({8, 8}) == frameCell(3) && level.objects.cellAt({9, 8}) == TileData());
    }

    void keepsSpritesOnTheirPictures()
    {
        const QUuid bank = QUuid::createUuid();
        const std::pair<std::function<void(Map &)>, QList<int>> changes[] = {
            {[&](Map &map) { map.onSpriteMoved(bank, 4, 1); }, {-1, 0, 2, 3, 4, 1, 5, 4, 4}},
            {[&](Map &map) { map.onSpriteMoved(bank, 1, 4); }, {-1, 0, 4, 1, 2, 3, 5, 4, 4}},
            {[&](Map &map) { map.onSpriteDeleted(bank, 4); }, {-1, 0, 1, 2, 3, 4, 4, 4}},
            {[&](Map &map) { map.onSpriteDeleted(bank, -1); }, {-1, 0, 1, 2, 3, 4, 5, 4, 4}}};
        for (const auto &[change, expected] : changes) {
            Map map;
            for (int i = -1; i < 6; ++i)
                map.addSprite({.bank = bank, .sprite = i});
            map.addSprite({.bank = bank, .animation = QUuid::createUuid(), .sprite = 4});
            map.addSprite({.bank = QUuid::createUuid(), .sprite = 4});
            QVERIFY(!map.setSprite(9, {}) && !map.removeSprite(9));
            change(map);
            QCOMPARE(valuesOf(map.sprites(), &Map::PlacedSprite::sprite), expected);
        }
    }

    void playsPlacedAnimations()
    {
        // start frame, initial and repeat delay; frames, frame delay, time: the frame shown
        constexpr int cases[][7] = {
            {1, 5, 20, 4, 10, 0, 1}, // before the start
            {1, 5, 20, 4, 10, 35, 0}, // the last frame before the pause
            {1, 5, 20, 4, 10, 50, 0}, // in the pause
            {1, 5, 20, 4, 10, 65, 1}, // the second run
            {9, 5, 0, 4, 10, 0, 3}, // starting behind the last frame
            {-9, 0, -9, 4, 10, 45, 0}, // no pause shorter than none
            {1, 5, 20, 4, 0, 500, 1}, // standing still
            {1, 5, 20, 0, 10, 15, 0}, // no frames
            {0, 0, INT_MAX, INT_MAX, INT_MAX, INT_MAX, 1},
        };
        for (const auto &[start, initial, repeat, frames, delay, time, shown] : cases) {
            const Map::PlacedSprite sprite{.startFrame = start, .initialDelay = initial, .repeatDelay = repeat};
            QCOMPARE(sprite.currentFrame(frames, delay, time), shown);
        }
    }

    void restoresSnapshots()
    {
        Level level;
        level.map.addSprite({.x = 8, .y = 8});
        level.map.placeAnimation(&level.animation, {4, 3});
        const Map::Snapshot before = level.map.snapshot();
        level.map.removeAnimationAt(QRect(4, 3, 2, 1));
        level.map.removeSprite(0);
        level.map.insertRow(Quenmora::Begin);
        SignalLog log(level.map, level.tiles, level.objects);
        level.map.restore(before);
        QCOMPARE(log.take(), QStringList({"tilesChanged", "tilesChanged", "restored"}));
        QVERIFY(level.areas() == QList<QRect>({QRect(4, 3, 2, 1)}) && level.sprites().size() == 1);
        QVERIFY(level.map.snapshot() == before && level.tiles.height() == 10);
    }

    void importsTileDataSets()
    {
        const QByteArray odd = "0303 0100 0000" + QByteArray(504, '5') + "0000 0100";
        const QByteArray block = "0101010101010101";
        const std::tuple<QByteArray, QByteArray, QSize, bool> cases[] = {
            // map, blocks, size afterwards: three by three cells cut the blocks at the right and at the bottom
            {odd, "0100 0200 0300 0400 0500 0600 ffff 0002 77", {3, 3}, true},
            {"02", block, {12, 10}, false},
            {"0002 0000", block, {12, 10}, false}, // no cells
            {"0202 00", block, {2, 2}, false}, // half a block number
            {"0204 0000" + QByteArray(508, '0'), block, {2, 4}, false}, // no second row
            {"0202 0100", block, {2, 2}, false}, // block behind the data
            {"0202 0000", block.chopped(2), {2, 2}, false}, // cut block
        };
        for (const auto &[map, blocks, size, good] : cases) {
            Level level;
            level.map.addSprite({.x = 80});
            SignalLog log(level.map);
            m_path("level.nxm", QByteArray::fromHex(map));
            m_path("level.nxb", QByteArray::fromHex(blocks));
            QCOMPARE(level.map.importNxm(m_path("level.nxm"), m_path("level.nxb")), good);
            QVERIFY(level.tiles.size() == size && level.objects.size() == size);
            QCOMPARE(log.take().size() == 1, level.sprites().isEmpty()); // it was resized, and the sprite lost
            QVERIFY(!level.map.importNxm(m_path(), m_path("level.nxb")));
            QVERIFY(!level.map.importNxm(m_path("level.nxm"), m_path()));
            if (!good)
                continue;
            const int expected[] = {5, 6, 1, -1, 512, 3, 1, 2, 5};
            for (int i = 0; i < 9; ++i)
                QCOMPARE(level.tiles.cellAt({i % 3, i / 3}), tile(expected[i]));
        }
        Level level;
        QVERIFY(!level.map.exportData(m_path()));
        level.map.setName("../Cave");
        QVERIFY(!level.map.exportToDirectory(m_path()));
    }
};

QUENMORA_TEST_MAIN(TestMap)
#include "tst_map.moc"
