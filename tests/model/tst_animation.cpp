#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tileset.h"
#include "model/transform.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

#include <memory>

using Cell = AnimationFrame::Cell;
using Cells = AnimationFrame::Cells;

/// Tests frames, what both kinds of animation share, and how each kind plays and draws.
class TestAnimation : public QObject
{
    Q_OBJECT

private slots:
    void setsCells()
    {
        TileAnimation animation;
        QVERIFY(!animation.frame(0)); // there is none yet
        animation.setSize(QSize(2, 1));
        animation.addFrame();
        const QPointer<AnimationFrame> frame = animation.addFrame();
        SignalLog log(animation);
        frame->setIndex(0, 1, 300);
        frame->setOffset(0, 1, 7);
        frame->setFlip(0, 1, true);
        for (const auto &[row, column] : {std::pair{-1, 0}, {1, 0}, {0, -1}, {0, 2}})
            frame->setIndex(row, column, 9);
        QVERIFY(frame->cells() == (Cells{{Cell{}, Cell{300, 7, true}}}));
        frame->setCells({{}, {Cell{5}}}); // rows need not be equally long
        frame->setIndex(1, 1, 9);
        QVERIFY(log.take() == QStringList(4, "frameChanged 1") && frame->size() == QSize(0, 2));
    }

    void resizesFrames()
    {
        TileAnimation animation;
        animation.setSize(QSize(2, 2));
        const QPointer<AnimationFrame> frame = animation.addFrame();
        frame->setCells({{Cell{1}, Cell{2}}, {Cell{3}, Cell{4}}});
        SignalLog log(animation);
        animation.setSize(QSize(2, 2));
        animation.setSize(QSize(3, 1));
        QVERIFY(frame->cells() == (Cells{{Cell{1}, Cell{2}, Cell{}}}));
        animation.setSize(QSize(2'000'000'000, -5)); // as a damaged project might ask
        QCOMPARE(log.take(), QStringList({"sizeChanged 3x1", QString("sizeChanged %1x0").arg(Animation::MaximumSide)}));
    }

    void keepsAtLeastOneFrame()
    {
        SpriteAnim animation;
        const QPointer<AnimationFrame> first = animation.frame(0);
        const QPointer<AnimationFrame> second = animation.addFrame();
        QVERIFY(animation.frame(2) == first && animation.frame(-1) == first);
        second->setIndex(0, 0, 4);
        SignalLog log(animation);
        for (const int index : {2, -1, 0})
            animation.deleteFrame(index);
        QVERIFY(!first && animation.frame(0) == second);
        animation.deleteFrame(0);
        QCOMPARE(log.take(), QStringList({"frameChanged 0", "contentChanged", "frameChanged 0", "contentChanged"}));
        QVERIFY(!second && animation.frameCount() == 1 && animation.frame(0)->cell(0, 0) == Cell{});
    }

    void copiesAndRestores()
    {
        SpriteAnim run;
        run.setName("Run");
        run.setDelay(4);
        run.setSize(QSize(2, 1));
        run.addFrame()->setIndex(0, 1, 8);
        SpriteAnim target;
        run.copyTo(target);
        QVERIFY(target.name() == "Run (copy)" && target.delay() == 4 && target.frame(0)->id() != run.frame(0)->id());
        SignalLog copying(target);
        target.copyFrom(run, true);
        target.copyFrom(target, false); // from itself: nothing to do, and nothing lost
        QVERIFY(target.state() == run.state());
        target.frame(1)->setIndex(0, 0, 3);
        QCOMPARE(copying.take(), QStringList("frameChanged 1")); // copied frames report to their new animation

        TileSet tiles(4);
        TileAnimation door;
        door.setTileSet(&tiles);
        door.setMapObjectType(MapObjectType::HorizontalPlatform);
        door.addFrame();
        const TileAnimation::State state = door.state();
        const std::unique_ptr<TileAnimation> copy(door.clone());
        QVERIFY(copy->name() == "Blocks! (Copy)" && copy->id() != door.id() && copy->tileSet() == &tiles);
        QVERIFY(copy->state() == state); // frame ids included
        SignalLog log(door);
        door.setMapObjectType(MapObjectType::Normal);
        QVERIFY(state != door.state()); // the type belongs to the state
        door.setDelay(5);
        door.addFrame();
        door.restore(state);
        QVERIFY(door.state() == state);
        QCOMPARE(log.take(),
                 QStringList({"contentChanged", "delayChanged 5", "contentChanged", "sizeChanged 1x1", "frameChanged 0",
                              "contentChanged"}));
    }

    void playsByTheClock()
    {
        // the delay, and what each tick shows
        for (const auto &[delay, shown] : {std::pair(0, QList<int>{0, -1, 0, -1, -1, -1, -1, -1}),
                                           {2, {0, -1, 0, 1, -1, 2, -1, 0}},
                                           {1, {0, 1, 1, 2, 0, 1, 2, 0}}}) {
            TileAnimation animation;
            animation.setDelay(delay);
            for (int i = 0; i < 3; ++i)
                animation.addFrame();
            QList<int> played;
            for (const quint64 tick : {0, 1, 1, 2, 3, 4, 5, 6})
                played.append(int(animation.tick(tick)));
            QCOMPARE(played, shown);
            if (delay != 1)
                continue;
            QVERIFY(animation.tick(7) == 1 && animation.tick(8) == 2);
            animation.deleteFrame(2); // while it plays, and shows it
            QVERIFY(animation.tick(9) == 0 && animation.tick(10) == 1);
            animation.clearFrames();
            QCOMPARE(animation.tick(11), 0);
        }
    }

    void drawsTileFrames()
    {
        constexpr QRgb white = 0xFFFFFFFF, grey = qRgb(32, 32, 32);
        TileSet tiles(4);
        tiles.setTileImage(1, plainImage({8, 8}, 1));
        tiles.tile(1)->setColour(1, Qt::white);
        TileAnimation animation;
        QCOMPARE(animation.preview(QSize(20, 10)).pixel(19, 9), grey);
        animation.setTileSet(&tiles);
        animation.setSize(QSize(3, 1));
        animation.addFrame()->setCells({{Cell{1}, Cell{4}, Cell{2}}, {Cell{1}}}); // one names no tile, one lies below
        const QImage frame = animation.frameImage(QSize(48, 48));
        QCOMPARE(frame.size(), QSize(48, 16));
        QVERIFY(frame.pixel(15, 15) == white && frame.pixel(16, 0) == 0 && frame.pixel(32, 0) == 0xFF000000);
        const QImage preview = animation.preview(QSize(24, 60)); // drawn centred on a square of 24
        QVERIFY(preview.size() == QSize(24, 24) && preview.pixel(0, 8) == white && preview.pixel(7, 15) == white);
        QVERIFY(preview.pixel(0, 7) == grey && preview.pixel(8, 8) == grey && preview.pixel(0, 16) == grey);
    }

    void drawsSpriteFrames()
    {
        Palette palette;
        palette.setRawColour(1, 0xFF01);
        palette.setRawColour(0x21, 0xE000);
        SpriteBank bank(Quenmora::FourBit);
        bank.setPalette(&palette);
        // transparent in a 4-bit bank, but for one pixel
        bank.setImage(0, pictureOf({16, 16}, QImage::Format_Indexed8, [](int i) { return i == 2 ? 1 : 3; }));
        SpriteAnim animation(&bank);
        animation.setSize(QSize(2, 1));
        animation.frame(0)->setCells({{Cell{1}, Cell{0}}}); // sprite 1 does not exist
        QImage expected(32, 16, QImage::Format_ARGB32);
        expected.fill(Qt::transparent);
        expected.setPixelColor(18, 0, Qt::red);
        for (int i = 0; i < 8; ++i)
            QCOMPARE(animation.frameImage(0, 2, i & 4, i & 2, i & 1), oriented(expected, i & 4, i & 2, i & 1));
        const QImage preview = animation.preview(QSize(64, 64)); // without palette offset and transparency
        QVERIFY(preview.size() == QSize(64, 32) && qAlpha(preview.pixel(0, 0)) == 0);
        QVERIFY(preview.pixel(37, 1) == qRgb(255, 255, 255) && preview.pixel(40, 0) == qRgb(0, 0, 0));
        QVERIFY(animation.frameImage(1, 0, false, false, false).isNull() && SpriteAnim().preview({9, 9}).isNull());
    }

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
};

QUENMORA_TEST_MAIN(TestAnimation)
#include "tst_animation.moc"
