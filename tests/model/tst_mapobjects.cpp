#include "model/animatedblocks.h"
#include "model/mapobjects.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QTest>

/// Tests block sets and the placements of their animations.
class TestMapObjects : public QObject
{
    Q_OBJECT

private slots:
    void listsAnimationsInOrder();
    void bindsOnlyWhereAsked();
    void clonesAnimations();
    void registersWithItsTileSet();
    void followsTheTiles_data();
    void followsTheTiles();
    void findsPlacements();
    void survivesDestroyedPlacements();
    void restoresPlacements();
};

void TestMapObjects::listsAnimationsInOrder()
{
    MapObjects blocks;
    QCOMPARE(blocks.name(), "Empty");
    QSignalSpy changed(&blocks, &MapObjects::animationsChanged);
    QList<QPointer<TileAnimation>> expected;
    for (int i = 0; i < 40; ++i)
        expected.append(blocks.createTileAnimation(QString::number(i)));
    QCOMPARE(blocks.animations(), expected);
    QCOMPARE(changed.count(), 40);

    const QPointer<TileAnimation> removed = expected.takeAt(7);
    const QUuid id = removed->id();
    QCOMPARE(removed->parent(), &blocks);
    QVERIFY(blocks.contains(id));
    blocks.removeAnimation(id);
    blocks.removeAnimation(id);
    QVERIFY(!removed && !blocks.contains(id) && !blocks.animation(id));
    QCOMPARE(changed.count(), 41);
    delete expected.takeAt(0).data(); // destroyed elsewhere
    QCOMPARE(blocks.animations(), expected);
}

void TestMapObjects::bindsOnlyWhereAsked()
{
    TileSet tiles(4);
    MapObjects blocks;
    blocks.setTileSet(&tiles);
    QVERIFY(!blocks.createTileAnimation("free")->tileSet());
    QCOMPARE(blocks.createBoundTileAnimation("bound")->tileSet(), &tiles);
    const QUuid id = QUuid::createUuid();
    const QPointer<TileAnimation> read = blocks.createTileAnimation(id, "read");
    QCOMPARE(read->tileSet(), &tiles);
    QCOMPARE(read->id(), id);
    blocks.createTileAnimation(id, "again");
    QVERIFY(!read); // replaced
    QCOMPARE(blocks.animations().size(), 3);
}

void TestMapObjects::clonesAnimations()
{
    MapObjects blocks;
    QVERIFY(!blocks.cloneAnimation(QUuid::createUuid()));
    const QPointer<TileAnimation> door = blocks.createTileAnimation("Door");
    QSignalSpy changed(&blocks, &MapObjects::animationsChanged);
    const QPointer<TileAnimation> copy = blocks.cloneAnimation(door->id());
    QCOMPARE(copy->name(), "Door (Copy)");
    QCOMPARE(copy->parent(), &blocks);
    QCOMPARE(blocks.animations(), (QList<QPointer<TileAnimation>>{door, copy}));
    QCOMPARE(changed.count(), 1);
}

void TestMapObjects::registersWithItsTileSet()
{
    TileSet first(4);
    MapObjects blocks;
    blocks.setTileSet(&first);
    QCOMPARE(first.blockSets().value(blocks.id()), &blocks);
    {
        TileSet second(4);
        blocks.setTileSet(&second);
        QVERIFY(first.blockSets().isEmpty());
        QCOMPARE(second.blockSets().value(blocks.id()), &blocks);
    }
    QVERIFY(!blocks.tileSet());
    blocks.setTileSet(nullptr);
}

void TestMapObjects::followsTheTiles_data()
{
    QTest::addColumn<std::function<void(TileSet &)>>("edit");
    QTest::addColumn<int>("index");
    const auto row = [](const char *name, const std::function<void(TileSet &)> &edit, int index) {
        QTest::newRow(name) << edit << index;
    };
    row(
        "moved", [](TileSet &t) { t.moveTile(3, 0); }, 0);
    row(
        "moved past it", [](TileSet &t) { t.moveTile(0, 7); }, 2);
    row(
        "swapped with itself twice", [](TileSet &t) { t.moveTile(3, 4), t.moveTile(4, 3); }, 3);
    row(
        "deleted before it", [](TileSet &t) { t.deleteTile(1); }, 2);
    row(
        "deleted", [](TileSet &t) { t.deleteTile(3); }, 0);
    row(
        "inserted at its place", [](TileSet &t) { t.insertTile(3); }, 4);
    row(
        "inserted behind it", [](TileSet &t) { t.insertTile(4); }, 3);
}

void TestMapObjects::followsTheTiles()
{
    QFETCH(const std::function<void(TileSet &)>, edit);
    TileSet other(8);
    TileSet tiles(8);
    MapObjects blocks;
    blocks.setTileSet(&other);
    blocks.setTileSet(&tiles);
    blocks.setTileSet(&tiles); // bound again, it must not follow twice
    const QPointer<TileAnimation> animation = blocks.createBoundTileAnimation("Door");
    animation->addFrame()->setIndex(0, 0, 3);
    other.moveTile(3, 0);
    QCOMPARE(animation->frame(0)->cell(0, 0).index, 3);
    edit(tiles);
    QTEST(animation->frame(0)->cell(0, 0).index, "index");
}

void TestMapObjects::findsPlacements()
{
    const QUuid door = QUuid::createUuid();
    const QUuid lift = QUuid::createUuid();
    AnimatedBlocks placed;
    QVERIFY(placed.areaAt(QPoint(0, 0)).isNull());
    placed.add(QRect(2, 2, 3, 2), door);
    placed.add(QRect(4, 3, 2, 2), lift);
    placed.add(QRect(2, 2, 3, 2), lift);
    placed.append(nullptr);
    QCOMPARE(placed.list().size(), 3);
    QCOMPARE(placed.list().at(0)->state(), (AnimationProperties::State{door, QRect(2, 2, 3, 2), 0, 0, 0}));
    QCOMPARE(placed.areaAt(QPoint(4, 3)), QRect(2, 2, 3, 2)); // the first of two
    QCOMPARE(placed.areaAt(QPoint(5, 4)), QRect(4, 3, 2, 2));
    QVERIFY(placed.areaAt(QPoint(6, 4)).isNull());
    QCOMPARE(placed.animationIdAt(QRect(2, 2, 3, 2)), door);
    QVERIFY(placed.animationIdAt(QRect(2, 2, 3, 3)).isNull());
    QCOMPARE(placed.areas(), (QHash<QRect, QUuid>{{QRect(2, 2, 3, 2), door}, {QRect(4, 3, 2, 2), lift}}));

    const QPointer<AnimationProperties> gone = placed.list().at(2);
    QVERIFY(!placed.remove(QRect(0, 0, 1, 1)));
    QVERIFY(placed.remove(QRect(2, 2, 3, 2)));
    QVERIFY(!gone);
    QCOMPARE(placed.list().size(), 1);
}

void TestMapObjects::survivesDestroyedPlacements()
{
    AnimatedBlocks placed;
    placed.add(QRect(0, 0, 1, 1), QUuid::createUuid());
    placed.add(QRect(0, 0, 2, 2), QUuid::createUuid());
    delete placed.list().first().data();
    QCOMPARE(placed.areaAt(QPoint(0, 0)), QRect(0, 0, 2, 2));
    QVERIFY(placed.animationIdAt(QRect(0, 0, 1, 1)).isNull());
    QCOMPARE(placed.areas().size(), 1);
    QCOMPARE(placed.state().size(), 1);
    placed.restore(placed.state());
    QCOMPARE(placed.list().size(), 1);
}

void TestMapObjects::restoresPlacements()
{
    AnimatedBlocks placed;
    placed.add(QRect(0, 0, 1, 1), QUuid::createUuid());
    placed.append(new AnimationProperties({QUuid::createUuid(), QRect(3, 3, 2, 2), 5, 6, 7}));
    QCOMPARE(placed.list().at(1)->parent(), &placed);
    const AnimatedBlocks::State two = placed.state();
    QCOMPARE(two.at(1).repeatDelay, 6);
    placed.remove(QRect(0, 0, 1, 1));
    const AnimatedBlocks::State one = placed.state();
    placed.restore(two);
    QCOMPARE(placed.state(), two);
    placed.restore(one);
    QCOMPARE(placed.state(), one);
    placed.restore({});
    QVERIFY(placed.list().isEmpty());
}

QUENMORA_TEST_MAIN(TestMapObjects)
#include "tst_mapobjects.moc"
