#include "editors/map/mapanimator.h"

#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using MapEditor::MapAnimator;

namespace {

/// A map on which an animation of three frames is placed at (3, 4): two cells, of which the left one shows
/// tile 10, 11, 12 and the right one always tile 9.
struct Fixture
{
    Project project;
    QPointer<TileSet> tiles = project.createTileSet(QStringLiteral("Tiles"), {}, 16);
    QPointer<MapObjects> blocks = project.createBlockList(QStringLiteral("Blocks"), tiles->id());
    QPointer<TileAnimation> animation = blocks->createBoundTileAnimation(QStringLiteral("Torch"));
    QPointer<Map> map = project.createMap(QStringLiteral("Level"), tiles->id(), {20, 16});
    MapAnimator animator;

    explicit Fixture(int delay = 1)
    {
        animation->setSize({2, 1});
        for (int frame = 0; frame < 3; ++frame) {
            animation->addFrame();
            animation->frame(frame)->setIndex(0, 0, 10 + frame);
            animation->frame(frame)->setIndex(0, 1, 9);
        }
        animation->setDelay(delay);
        map->placeAnimation(animation, {3, 4});
        animator.setMap(map);
    }

    int shown(int x = 3, int y = 4) const { return map->objectLayer()->cellAt({x, y}).index; }
};

} // namespace

class TestMapAnimator : public QObject
{
    Q_OBJECT

private slots:
    void showsAFrameEachDelay_data();
    void showsAFrameEachDelay();
    void playsEveryPlacement();
    void tellsWhatToRepaint();
    void staysSilentWithNothingToPlay();
    void ticksFiftyTimesASecond();
    void assetsMayGoWhilePlaying_data();
    void assetsMayGoWhilePlaying();
};

void TestMapAnimator::showsAFrameEachDelay_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<QList<int>>("frames"); // after each tick; the first tick shows the frame that is there
    QTest::newRow("still") << 0 << QList{10, 10, 10, 10, 10, 10, 10};
    QTest::newRow("every tick") << 1 << QList{10, 11, 12, 10, 11, 12, 10};
    QTest::newRow("every second") << 2 << QList{10, 10, 11, 11, 12, 12, 10};
    QTest::newRow("every 100 ms") << 5 << QList{10, 10, 10, 10, 10, 11, 11, 11, 11, 11, 12};
}

void TestMapAnimator::showsAFrameEachDelay()
{
    QFETCH(int, delay);
    QFETCH(QList<int>, frames);
    Fixture f(delay);
    QList<int> shown;
    for (int i = 0; i < frames.size(); ++i) {
        QCOMPARE(f.animator.ticks(), quint64(i));
        f.animator.tick();
        shown.append(f.shown());
    }
    QCOMPARE(shown, frames);
}

void TestMapAnimator::playsEveryPlacement()
{
    Fixture f;
    f.map->placeAnimation(f.animation, {10, 4});
    const QPointer<MapObjects> others = f.project.createBlockList("Others", f.tiles->id());
    const QPointer<TileAnimation> other = others->createBoundTileAnimation("Water");
    other->addFrame()->setIndex(0, 0, 1);
    other->addFrame()->setIndex(0, 0, 2);
    other->setDelay(2);
    f.map->placeAnimation(other, {0, 0});
    for (int i = 0; i < 3; ++i)
        f.animator.tick();
    QCOMPARE(f.shown(3), 12);
    QCOMPARE(f.shown(10), 12);
    QCOMPARE(f.shown(0, 0), 2);
}

void TestMapAnimator::tellsWhatToRepaint()
{
    Fixture f(2);
    QSignalSpy advanced(&f.animator, &MapAnimator::framesAdvanced);
    f.animator.tick(); // frame 0, which is there already
    QCOMPARE(advanced.count(), 1);
    QCOMPARE(f.animator.changedAreas(), QList<QRect>());
    f.animator.tick();
    QCOMPARE(advanced.count(), 1);
    f.animator.tick();
    QCOMPARE(advanced.count(), 2);
    QCOMPARE(f.animator.changedAreas(), (QList<QRect>{{3, 4, 2, 1}}));
}

void TestMapAnimator::staysSilentWithNothingToPlay()
{
    Fixture f;
    QVERIFY(f.map->removeAnimationAt({3, 4, 2, 1}));
    QSignalSpy advanced(&f.animator, &MapAnimator::framesAdvanced);
    f.animator.tick();
    QCOMPARE(advanced.count(), 0);
    f.map->addSprite({}); // which may be animated
    f.animator.tick();
    QCOMPARE(advanced.count(), 1);
    QCOMPARE(f.animator.ticks(), quint64(2));
}

void TestMapAnimator::ticksFiftyTimesASecond()
{
    MapAnimator animator;
    const auto *timer = animator.findChild<QTimer *>();
    QCOMPARE(timer->interval(), 20);
    QVERIFY(!animator.isRunning() && !timer->isActive());
    animator.setRunning(true);
    QVERIFY(animator.isRunning() && timer->isActive());
    animator.setRunning(false);
    QVERIFY(!timer->isActive());
}

void TestMapAnimator::assetsMayGoWhilePlaying_data()
{
    QTest::addColumn<std::function<void(Fixture &)>>("remove");
    const auto row = [](const char *name, const std::function<void(Fixture &)> &remove) {
        QTest::newRow(name) << remove;
    };
    row("animation", [](Fixture &f) { f.blocks->removeAnimation(f.animation->id()); });
    row("block set", [](Fixture &f) { delete f.blocks; });
    row("tile set", [](Fixture &f) { delete f.tiles; });
    row("map", [](Fixture &f) { f.project.deleteMap(f.map->id()); });
    row("object layer", [](Fixture &f) { delete f.map->objectLayer(); });
    row("frames", [](Fixture &f) { f.animation->clearFrames(); });
}

void TestMapAnimator::assetsMayGoWhilePlaying()
{
    QFETCH(std::function<void(Fixture &)>, remove);
    Fixture f;
    f.animator.tick();
    f.animator.tick();
    QCOMPARE(f.shown(), 11);
    remove(f);
    f.animator.tick();
    f.animator.tick();
    if (f.map && f.map->objectLayer())
        QCOMPARE(f.shown(), 11);
}

QUENMORA_TEST_MAIN(TestMapAnimator)
#include "tst_mapanimator.moc"
