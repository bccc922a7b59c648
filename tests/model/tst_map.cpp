#include "model/map.h"

#include "model/animatedblocks.h"
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
    void movesContentWithTheCells()
    {
        Level level;
        Map &map = level.map;
        map.setTile({2, 1}, tile(5));
        for (const int x : {0, 5})
            map.placeAnimation(&level.animation, {x, 3});
        map.animatedBlocks()->add(QRect(QPoint(INT_MIN, 0), QPoint(INT_MIN, 0)), level.animation.id());
        for (const auto &[x, y] : {std::pair(3, 0), {8, 0}, {95, 79}})
            map.addSprite({.x = x, .y = y});
        const Map::Snapshot before = map.snapshot();

        for (const auto side : {Quenmora::Begin, Quenmora::Begin, Quenmora::End}) {
            map.insertColumn(side);
            map.insertRow(side);
        }
        QVERIFY(level.tiles.size() == QSize(15, 13) && level.objects.size() == QSize(15, 13) && map.dataSize() == 390);
        QVERIFY(level.tiles.cellAt({4, 3}) == tile(5) && level.objects.cellAt({7, 5}) == frameCell(3));
        QCOMPARE(level.areas(), QList<QRect>({QRect(2, 5, 2, 1), QRect(7, 5, 2, 1)}));
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(19, 16), QPoint(24, 16), QPoint(111, 95)}));

        for (int i = 0; i < 3; ++i)
            map.removeColumn(Quenmora::Begin);
        QCOMPARE(level.areas(), QList<QRect>({QRect(4, 5, 2, 1)}));
        QCOMPARE(level.objects.cellAt({0, 5}), Cleared); // the part of the first that is still on the map
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(0, 16), QPoint(87, 95)}));
        for (int i = 0; i < 2; ++i) {
            map.removeRow(Quenmora::Begin);
            map.removeColumn(Quenmora::End);
        }
        map.removeRow(Quenmora::End);
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(0, 0)}));
        SignalLog log(map, level.tiles, level.objects);
        map.resize({20, 5}, Qt::AlignRight | Qt::AlignTop);
        QVERIFY(level.objects.size() == QSize(20, 5) && level.tiles.cellAt({11, 1}) == tile(5));
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(80, 0)}));
        map.restore(before);
        QCOMPARE(log.take(), QStringList({"resized Map", "tilesChanged", "tilesChanged", "restored"}));
        QVERIFY(map.snapshot() == before && level.tiles.height() == 10);
    }

    /// Cells and animations of blocks show the same tile after an edit of the tile set as before.
    void followsItsTileSet()
    {
        // what is shown of tiles 3 and 5 after an edit
        const std::tuple<std::function<void(TileSet &)>, int, int> edits[] = {
            {[](TileSet &t) { t.moveTile(3, 0); }, 0, 5}, {[](TileSet &t) { t.moveTile(0, 7); }, 2, 4},
            {[](TileSet &t) { t.deleteTile(1); }, 2, 4},  {[](TileSet &t) { t.deleteTile(3); }, 0, 4},
            {[](TileSet &t) { t.insertTile(3); }, 4, 6},  {[](TileSet &t) { t.insertTile(4); }, 3, 6}};
        for (const auto &[edit, three, five] : edits) {
            Level level;
            TileSet &other = *level.project.createTileSet("Other", {}, 16);
            const QPointer<MapObjects> blocks = level.project.blockSets().first();
            for (TileSet *set : {&other, &level.tileSet, &level.tileSet}) { // bound again, they must not follow twice
                level.map.setTileSet(set);
                blocks->setTileSet(set);
            }
            QVERIFY(other.blockSets().isEmpty() && level.tileSet.blockSets().value(blocks->id()) == blocks);
            level.map.setTile({0, 0}, tile(3));
            level.objects.setCell({0, 0}, tile(5));
            other.moveTile(3, 5);
            edit(level.tileSet);
            QVERIFY(level.tiles.cellAt({0, 0}) == tile(three) && level.objects.cellAt({0, 0}) == tile(five));
            QCOMPARE(level.animation.frame(0)->cell(0, 0).index, three);
            QCOMPARE(level.animation.frame(1)->cell(0, 0).index, five);
            level.tileSet.setTileOffset(three, 9);
            level.map.refreshOffsets();
            level.map.setTileSet(nullptr);
            level.tileSet.deleteTile(0);
            QVERIFY(level.tiles.cellAt({0, 0}).offset == 9 && level.tiles.cellAt({0, 0}).index == three);
        }
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
        for (const QRect &placed : {QRect(2, 2, 2, 1), QRect(QPoint(INT_MAX, 3), QPoint(INT_MAX, 3))})
            map.animatedBlocks()->add(placed, level.animation.id());
        map.animatedBlocks()->add(QRect(6, 2, 2, 1), QUuid::createUuid()); // no such animation
        map.animatedBlocks()->add(QRect(8, 8, 1, 2), level.animation.id()); // narrower and higher than the animation
        map.restampAnimations({level.project.createBlockList("Other", {}), nullptr, level.project.blockSets().first()});
        QVERIFY(level.objects.cellAt({3, 2}) == frameCell(4) && level.tiles.cellAt({3, 2}) == Cleared);
        QVERIFY(level.objects.cellAt({6, 2}) == TileData() && level.tiles.cellAt({6, 2}) == Cleared);
        QVERIFY(level.objects.cellAt({8, 8}) == frameCell(3) && level.objects.cellAt({9, 8}) == TileData());
    }

    void playsPlacedAnimations()
    {
        // start frame, initial and repeat delay; frames, frame delay, time: the frame shown
        constexpr int cases[][7] = {
            {1, 5, 20, 4, 10, 0, 1},
            {1, 5, 20, 4, 10, 35, 0}, // before the start, the last frame before the pause
            {1, 5, 20, 4, 10, 50, 0},
            {1, 5, 20, 4, 10, 65, 1}, // in the pause, the second run
            {9, 5, 0, 4, 10, 0, 3},
            {-9, 0, -9, 4, 10, 45, 0}, // frames and pauses that there are not
            {1, 5, 20, 4, 0, 500, 1},
            {1, 5, 20, 0, 10, 15, 0}, // standing still, no frames
            {0, 0, INT_MAX, INT_MAX, INT_MAX, INT_MAX, 1},
        };
        for (const auto &[start, initial, repeat, frames, delay, time, shown] : cases) {
            const Map::PlacedSprite sprite{.startFrame = start, .initialDelay = initial, .repeatDelay = repeat};
            QCOMPARE(sprite.currentFrame(frames, delay, time), shown);
        }
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
            m_path("level.nxm", QByteArray::fromHex(map));
            m_path("level.nxb", QByteArray::fromHex(blocks));
            QCOMPARE(level.map.importNxm(m_path("level.nxm"), m_path("level.nxb")), good);
            QVERIFY(level.tiles.size() == size && level.objects.size() == size);
            QVERIFY(!level.map.importNxm(m_path(), m_path("level.nxb")));
            QVERIFY(!level.map.importNxm(m_path("level.nxm"), m_path()));
            const int expected[] = {5, 6, 1, -1, 512, 3, 1, 2, 5};
            for (int i = 0; good && i < 9; ++i)
                QCOMPARE(level.tiles.cellAt({i % 3, i / 3}), tile(expected[i]));
            QVERIFY(!level.map.exportData(m_path()));
            level.map.setName("../Cave");
            QVERIFY(!level.map.exportToDirectory(m_path()));
        }
    }

    void findsAndRestoresPlacements()
    {
        const QUuid door = QUuid::createUuid();
        const QUuid lift = QUuid::createUuid();
        const QRect twice(2, 2, 3, 2);
        const QRect once(4, 3, 2, 2);
        AnimatedBlocks placed;
        placed.add(QRect(9, 9, 9, 9), door);
        delete placed.list().first(); // destroyed elsewhere
        placed.add(twice, door);
        placed.append(new AnimationProperties({lift, once, 5, 6, 7}));
        placed.add(twice, lift);
        placed.append(nullptr);
        const AnimatedBlocks::State all{{door, twice, 0, 0, 0}, {lift, once, 5, 6, 7}, {lift, twice, 0, 0, 0}};
        QCOMPARE(placed.state(), all);
        QVERIFY(placed.areaAt(QPoint(4, 3)) == twice && placed.areaAt(QPoint(5, 4)) == once); // the first of two
        QVERIFY(placed.areaAt(QPoint(6, 4)).isNull() && placed.areaAt(QPoint(9, 9)).isNull());
        QVERIFY(placed.animationIdAt(twice) == door && placed.animationIdAt(QRect(2, 2, 3, 3)).isNull());
        QCOMPARE(placed.areas(), (QHash<QRect, QUuid>{{twice, door}, {once, lift}}));
        QVERIFY(!placed.remove(QRect(0, 0, 1, 1)) && placed.remove(twice)); // both of them
        for (const AnimatedBlocks::State &state : {all.mid(1, 1), all, AnimatedBlocks::State()}) {
            QVERIFY(placed.state() == all.mid(1, 1) || placed.state() == all);
            placed.restore(state);
            QCOMPARE(placed.state(), state);
        }
    }
};

QUENMORA_TEST_MAIN(TestMap)
#include "tst_map.moc"
