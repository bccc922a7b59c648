#include "editors/map/mapanimator.h"

#include "support/mapfixture.h"
#include "support/testmain.h"

#include <QTimer>

using MapEditor::MapAnimator;

namespace {

/// A map on which the animation is placed at (3, 4).
struct Fixture : MapAssets
{
    MapAnimator animator;

    explicit Fixture(int delay = 1)
    {
        animation->setDelay(delay);
        map->placeAnimation(animation, {3, 4});
        animator.setMap(map);
    }

    void tick(int times = 1)
    {
        for (int i = 0; i < times; ++i)
            animator.tick();
    }
};

} // namespace

class TestMapAnimator : public QObject
{
    Q_OBJECT

private slots:
    void tellsOnlyWhatChanged()
    {
        Fixture f(2);
        QCOMPARE(f.animator.findChild<QTimer *>()->interval(), 20);
        QSignalSpy advanced(&f.animator, &MapAnimator::framesAdvanced);
        f.tick(); // frame 0, which is there already
        QVERIFY(f.animator.changedAreas().isEmpty());
        f.tick(); // nothing is due
        QCOMPARE(advanced.count(), 1);
        f.tick();
        QCOMPARE(advanced.count(), 2);
        QCOMPARE(f.animator.changedAreas(), (QList<QRect>{{3, 4, 3, 2}}));
        QVERIFY(f.map->removeAnimationAt({3, 4, 3, 2}));
        f.tick(2);
        QCOMPARE(advanced.count(), 2);
        f.map->addSprite({}); // which may be animated
        f.tick();
        QCOMPARE(advanced.count(), 3);
    }

    void showsAFrameEachDelay()
    {
        // the tile shown after each tick; the first tick shows the frame that is there
        for (const auto &[delay, shown] :
             {std::pair(0, QList{5, 5, 5}), {1, QList{5, 6, 5}}, {5, QList{5, 5, 5, 5, 5, 6, 6, 6, 6, 6, 5}}}) {
            Fixture f(delay);
            f.map->placeAnimation(f.animation, {10, 4});
            const QPointer<MapObjects> others = f.project.createBlockList("Others", f.tiles->id());
            const QPointer<TileAnimation> water = others->createBoundTileAnimation("Water");
            water->addFrame();
            water->addFrame()->setIndex(0, 0, 2);
            water->setDelay(2);
            f.map->placeAnimation(water, {0, 0});
            for (int i = 0; i < shown.size(); ++i) {
                QCOMPARE(f.animator.ticks(), quint64(i));
                f.tick();
                QCOMPARE(f.object(3, 4).index, shown.at(i));
                QCOMPARE(f.object(12, 5).index, shown.at(i)); // every placement
                QCOMPARE(f.object(0, 0).index, i / 2 % 2 * 2); // of every block set
            }
        }
    }
};

QUENMORA_TEST_MAIN(TestMapAnimator)
#include "tst_mapanimator.moc"
