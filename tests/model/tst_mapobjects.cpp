#include "model/animatedblocks.h"
#include "model/mapobjects.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

/// Tests block sets and the placements of their animations.
class TestMapObjects : public QObject
{
    Q_OBJECT

private slots:
    void keepsAnimationsInOrder()
    {
        TileSet tiles(4);
        MapObjects blocks;
        blocks.setTileSet(&tiles);
        SignalLog log(blocks);
        const QUuid id = QUuid::createUuid();
        const QPointer<TileAnimation> free = blocks.createTileAnimation("free");
        const QPointer<TileAnimation> bound = blocks.createBoundTileAnimation("bound");
        const QPointer<TileAnimation> replaced = blocks.createTileAnimation(id, "replaced");
        const QPointer<TileAnimation> door = blocks.createTileAnimation(id, "Door");
        const QPointer<TileAnimation> copy = blocks.cloneAnimation(id);
        QVERIFY(!replaced && !free->tileSet() && bound->tileSet() == &tiles && door->tileSet() == &tiles);
        const QUuid boundId = bound->id();
        for (int i = 0; i < 2; ++i)
            blocks.removeAnimation(boundId);
        QVERIFY(!blocks.cloneAnimation(boundId) && !bound && !blocks.contains(boundId));
        QCOMPARE(log.take(), QStringList(6, "animationsChanged"));
        delete free; // destroyed elsewhere
        QCOMPARE(blocks.animations(), (QList<QPointer<TileAnimation>>{door, copy}));
    }

    void followsTheTiles()
    {
        // what a cell that shows tile 3 shows after an edit of the tile set
        const std::pair<std::function<void(TileSet &)>, int> edits[] = {
            {[](TileSet &t) { t.moveTile(3, 0); }, 0}, {[](TileSet &t) { t.moveTile(0, 7); }, 2},
            {[](TileSet &t) { t.deleteTile(1); }, 2},  {[](TileSet &t) { t.deleteTile(3); }, 0},
            {[](TileSet &t) { t.insertTile(3); }, 4},  {[](TileSet &t) { t.insertTile(4); }, 3}};
        for (const auto &[edit, index] : edits) {
            MapObjects blocks;
            TileSet other(8);
            TileSet tiles(8);
            for (TileSet *set : {&other, &tiles, &tiles}) // bound again, it must not follow twice
                blocks.setTileSet(set);
            QVERIFY(other.blockSets().isEmpty() && tiles.blockSets().value(blocks.id()) == &blocks);
            const QPointer<TileAnimation> animation = blocks.createBoundTileAnimation("Door");
            animation->addFrame()->setIndex(0, 0, 3);
            other.moveTile(3, 0);
            edit(tiles);
            QCOMPARE(animation->frame(0)->cell(0, 0).index, index);
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
        const AnimatedBlocks::State all = placed.state();
        QCOMPARE(all, AnimatedBlocks::State({{door, twice, 0, 0, 0}, {lift, once, 5, 6, 7}, {lift, twice, 0, 0, 0}}));
        QVERIFY(placed.areaAt(QPoint(4, 3)) == twice && placed.areaAt(QPoint(5, 4)) == once); // the first of two
        QVERIFY(placed.areaAt(QPoint(6, 4)).isNull() && placed.areaAt(QPoint(9, 9)).isNull());
        QVERIFY(placed.animationIdAt(twice) == door && placed.animationIdAt(QRect(2, 2, 3, 3)).isNull());
        QCOMPARE(placed.areas(), (QHash<QRect, QUuid>{{twice, door}, {once, lift}}));

        const QPointer<AnimationProperties> second = placed.list().last();
        QVERIFY(!placed.remove(QRect(0, 0, 1, 1)) && placed.remove(twice) && !second);
        QCOMPARE(placed.state(), all.mid(1, 1));
        for (const AnimatedBlocks::State &state : {all, all.mid(1), AnimatedBlocks::State()}) {
            placed.restore(state);
            QCOMPARE(placed.state(), state);
        }
    }
};

QUENMORA_TEST_MAIN(TestMapObjects)
#include "tst_mapobjects.moc"
