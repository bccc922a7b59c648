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
    void playsEveryPlacement();
    void tellsOnlyWhatChanged();
    void showsAFrameEachDelay();
    void assetsMayGoWhilePlaying();
};

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

void TestMapAnimator::tellsOnlyWhatChanged()
{
    Fixture f(2);
    QSignalSpy advanced(&f.animator, &MapAnimator::framesAdvanced);
    f.animator.tick(); // frame 0, which is there already
    QCOMPARE(f.animator.changedAreas(), QList<QRect>());
    f.animator.tick(); // nothing is due
    QCOMPARE(advanced.count(), 1);
    f.animator.tick();
    QCOMPARE(advanced.count(), 2);
    QCOMPARE(f.animator.changedAreas(), (QList<QRect>{{3, 4, 2, 1}}));
    QVERIFY(f.map->removeAnimationAt({3, 4, 2, 1}));
    f.animator.tick();
    f.animator.tick();
    QCOMPARE(advanced.count(), 2);
    f.map->addSprite({}); // which may be animated
    f.animator.tick();
    QCOMPARE(advanced.count(), 3);
    QCOMPARE(f.animator.findChild<QTimer *>()->interval(), 20);
}

void TestMapAnimator::showsAFrameEachDelay()
{
    // after each tick; the first one shows the frame that is there
    for (const auto &[delay, frames] : {std::pair(0, QList{10, 10, 10}),
                                        {1, QList{10, 11, 12, 10}},
                                        {5, QList{10, 10, 10, 10, 10, 11, 11, 11, 11, 11, 12}}}) {
        Fixture f(delay);
        QList<int> shown;
        for (int i = 0; i < frames.size(); ++i) {
            QCOMPARE(f.animator.ticks(), quint64(i));
            f.animator.tick();
            shown.append(f.shown());
        }
        QCOMPARE(shown, frames);
    }
}

void TestMapAnimator::assetsMayGoWhilePlaying()
{
    const std::function<void(Fixture &)> removals[] = {
        [](Fixture &f) { f.blocks->removeAnimation(f.animation->id()); },
        [](Fixture &f) { delete f.blocks; },
        [](Fixture &f) { delete f.tiles; },
        [](Fixture &f) { f.project.deleteMap(f.map->id()); },
        [](Fixture &f) { delete f.map->objectLayer(); },
        [](Fixture &f) { f.animation->clearFrames(); },
    };
    for (const auto &remove : removals) {
        Fixture f;
        f.animator.tick();
        f.animator.tick();
        remove(f);
        f.animator.tick();
        f.animator.tick();
        if (f.map && f.map->objectLayer())
            QCOMPARE(f.shown(), 11); // the last frame stays
    }
}

QUENMORA_TEST_MAIN(TestMapAnimator)
#include "tst_mapanimator.moc"
