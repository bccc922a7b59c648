#include "model/palette.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

/// Tests frames, what both kinds of animation share, and how each kind plays and draws.
class TestAnimation : public QObject
{
    Q_OBJECT

private slots:
    void setsCells();
    void resizesFrames();
    void keepsAtLeastOneFrame();
    void copiesSprites();
    void clonesTiles();
    void restoresStates();
    void keepsIndexesOnTheirPictures_data();
    void keepsIndexesOnTheirPictures();
    void updatesOffsets();
    void playsByTheClock_data();
    void playsByTheClock();
    void survivesDeletedFramesWhilePlaying();
    void drawsTileFrames();
    void drawsSpriteFrames();
    void drawsNothingWithoutSource();
};

namespace {

using Cell = AnimationFrame::Cell;

/// Writes down every signal of an animation as text.
void record(Animation &animation, QStringList &log)
{
    const auto add = [&log](const QString &line) { log.append(line); };
    QObject::connect(&animation, &Animation::nameChanged, [add](const QString &name) { add("name " + name); });
    QObject::connect(&animation, &Animation::sizeChanged,
                     [add](QSize size) { add(QString("size %1x%2").arg(size.width()).arg(size.height())); });
    QObject::connect(&animation, &Animation::frameChanged, [add](int index) { add(QString("frame %1").arg(index)); });
    QObject::connect(&animation, &Animation::contentChanged, [add] { add("content"); });
    QObject::connect(&animation, &Animation::delayChanged, [add](int delay) { add(QString("delay %1").arg(delay)); });
}

/// A tile set whose tile i is filled with pixel i; palette entry i is white for odd i.
std::unique_ptr<TileSet> stripedTiles(int count)
{
    auto tiles = std::make_unique<TileSet>(count);
    for (int i = 0; i < count; ++i) {
        QImage image = tiles->image(i);
        image.fill(static_cast<uint>(i));
        for (int entry = 1; entry < 256; entry += 2)
            image.setColor(entry, qRgb(255, 255, 255));
        tiles->setTileImage(i, image);
    }
    return tiles;
}

} // namespace

void TestAnimation::setsCells()
{
    TileAnimation animation;
    QVERIFY(!animation.frame(0)); // there is none yet
    animation.setSize(QSize(2, 1));
    animation.addFrame();
    const QPointer<AnimationFrame> frame = animation.addFrame();
    QSignalSpy edited(frame.data(), &AnimationFrame::frameChanged);
    QStringList log;
    record(animation, log);
    frame->setIndex(0, 1, 300);
    frame->setOffset(0, 1, 7);
    frame->setFlip(0, 1, true);
    frame->setMirror(0, 1, true);
    frame->setRotate(0, 1, true);
    QCOMPARE(frame->cell(0, 1), (Cell{300, 7, true, true, true}));
    QCOMPARE(frame->cell(0, 0), Cell{});
    QCOMPARE(edited.count(), 5);
    QCOMPARE(edited.at(0), QVariantList{frame->id()});
    QCOMPARE(log, QStringList(5, "frame 1"));

    for (const auto &[row, column] : {std::pair{-1, 0}, {1, 0}, {0, -1}, {0, 2}}) {
        frame->setIndex(row, column, 9);
        frame->setRotate(row, column, true);
        QCOMPARE(frame->cell(row, column), Cell{});
    }
    QCOMPARE(edited.count(), 5);

    frame->setCells({{}, {Cell{5}}}); // rows need not be equally long
    frame->setIndex(1, 1, 9);
    QCOMPARE(edited.count(), 6);
    QCOMPARE(frame->size(), QSize(0, 2));
}

void TestAnimation::resizesFrames()
{
    TileAnimation animation;
    animation.setSize(QSize(2, 2));
    const QPointer<AnimationFrame> frame = animation.addFrame();
    frame->setCells({{Cell{1}, Cell{2}}, {Cell{3}, Cell{4}}});
    QStringList log;
    record(animation, log);
    animation.setSize(QSize(2, 2));
    QVERIFY(log.isEmpty());
    animation.setSize(QSize(3, 1));
    QVERIFY(frame->cells() == (AnimationFrame::Cells{{Cell{1}, Cell{2}, Cell{}}}));
    animation.setWidth(1);
    animation.setHeight(2);
    QVERIFY(frame->cells() == (AnimationFrame::Cells{{Cell{1}}, {Cell{}}}));
    QCOMPARE(log, (QStringList{"size 3x1", "size 1x1", "size 1x2"}));
    animation.setSize(QSize(2'000'000'000, -5)); // as a damaged project might ask
    QCOMPARE(animation.size(), QSize(Animation::MaximumSide, 0));
    QCOMPARE(frame->size(), QSize(0, 0));
}

void TestAnimation::keepsAtLeastOneFrame()
{
    SpriteAnim animation;
    const QUuid first = animation.frame(0)->id();
    const QUuid second = animation.addFrame()->id();
    QCOMPARE(animation.frame(7)->id(), first);
    QCOMPARE(animation.frame(-1)->id(), first);
    QStringList log;
    record(animation, log);
    animation.deleteFrame(2);
    animation.deleteFrame(-1);
    QVERIFY(log.isEmpty());

    const QPointer<AnimationFrame> gone = animation.frame(0);
    animation.deleteFrame(0);
    QVERIFY(!gone);
    QCOMPARE(animation.frame(0)->id(), second);
    animation.frame(0)->setIndex(0, 0, 4);
    log.clear();
    animation.deleteFrame(0);
    QCOMPARE(log, (QStringList{"frame 0", "content"}));
    QCOMPARE(animation.frameCount(), 1);
    QVERIFY(animation.frame(0)->id() != second);
    QCOMPARE(animation.frame(0)->cell(0, 0), Cell{});
}

void TestAnimation::copiesSprites()
{
    SpriteAnim source;
    source.setName("Run");
    source.setDelay(4);
    source.setSize(QSize(2, 1));
    source.frame(0)->setIndex(0, 1, 8);
    source.addFrame();
    SpriteAnim target;
    source.copyTo(target);
    QCOMPARE(target.name(), "Run (copy)");
    QCOMPARE(target.delay(), 4);
    QVERIFY(target.frame(0)->id() != source.frame(0)->id());

    QStringList log;
    record(target, log);
    target.copyFrom(source, true);
    target.copyFrom(target, false); // from itself: nothing to do, and nothing lost
    QVERIFY(log.isEmpty());
    QVERIFY(target.state() == source.state());
    target.frame(1)->setIndex(0, 0, 3);
    QCOMPARE(log, QStringList{"frame 1"}); // copied frames report to their new animation
}

void TestAnimation::clonesTiles()
{
    TileSet tiles(4);
    TileAnimation source;
    source.setName("Door");
    source.setDelay(3);
    source.setMapObjectType(MapObjectType::HorizontalPlatform);
    source.setTileSet(&tiles);
    source.addFrame()->setIndex(0, 0, 2);
    const std::unique_ptr<TileAnimation> copy(source.clone());
    QCOMPARE(copy->name(), "Door (Copy)");
    QVERIFY(!copy->parent() && copy->id() != source.id());
    QCOMPARE(copy->tileSet(), &tiles);
    QVERIFY(copy->state() == source.state()); // frame ids included
}

void TestAnimation::restoresStates()
{
    TileAnimation animation;
    animation.setSize(QSize(2, 1));
    animation.setMapObjectType(MapObjectType::HorizontalPlatform);
    animation.setDelay(2);
    animation.addFrame()->setIndex(0, 1, 6);
    const TileAnimation::State state = animation.state();

    QStringList log;
    record(animation, log);
    animation.setMapObjectType(MapObjectType::Normal);
    animation.setMapObjectType(MapObjectType::Normal);
    QVERIFY(state != animation.state()); // the type belongs to the state
    animation.setDelay(5);
    animation.setDelay(5);
    animation.addFrame();
    QCOMPARE(log, (QStringList{"content", "delay 5", "delay 5", "content"}));
    animation.setSize(QSize(1, 3));
    log.clear();
    animation.restore(state);
    QCOMPARE(log, (QStringList{"size 2x1", "frame 0", "content"}));
    QVERIFY(animation.state() == state);
    animation.frame(0)->setIndex(0, 0, 1);
    QCOMPARE(log.last(), "frame 0");
    QVERIFY(state != animation.state());
}

void TestAnimation::keepsIndexesOnTheirPictures_data()
{
    QTest::addColumn<std::function<void(Animation &)>>("change");
    QTest::addColumn<QList<int>>("indexes");
    const auto row = [](const char *name, const std::function<void(Animation &)> &change, const QList<int> &indexes) {
        QTest::newRow(name) << change << indexes;
    };
    row("deleted", [](Animation &a) { a.indexDeleted(5); }, {4, 0, 5, 0});
    row("inserted", [](Animation &a) { a.indexInserted(5); }, {4, 6, 7, 0});
    row("swapped", [](Animation &a) { a.swapIndexes(4, 6); }, {6, 5, 4, 0});
}

void TestAnimation::keepsIndexesOnTheirPictures()
{
    QFETCH(const std::function<void(Animation &)>, change);
    SpriteAnim animation;
    animation.setSize(QSize(2, 2));
    animation.frame(0)->setCells({{Cell{4, 3, true}, Cell{5}}, {Cell{6}, Cell{0}}});
    QStringList log;
    record(animation, log);
    change(animation);
    QVERIFY(log.isEmpty());
    QList<int> indexes;
    for (const QList<Cell> &row : animation.frame(0)->cells()) {
        for (const Cell &cell : row)
            indexes.append(cell.index);
    }
    QTEST(indexes, "indexes");
    QCOMPARE(animation.frame(0)->cell(0, 0).offset, 3);
}

void TestAnimation::updatesOffsets()
{
    TileSet tiles(3);
    tiles.setTileOffset(2, 9);
    TileAnimation animation;
    animation.setSize(QSize(2, 1));
    animation.addFrame();
    animation.frame(0)->setCells({{Cell{2, 1}, Cell{77, 1}}}); // the second names no tile
    animation.updateOffsets(); // no tile set yet
    QCOMPARE(animation.frame(0)->cell(0, 0).offset, 1);
    animation.setTileSet(&tiles);
    QStringList log;
    record(animation, log);
    animation.updateOffsets();
    QCOMPARE(animation.frame(0)->cell(0, 0).offset, 9);
    QCOMPARE(animation.frame(0)->cell(0, 1).offset, 0);
    QCOMPARE(log, QStringList(2, "frame 0"));
}

void TestAnimation::playsByTheClock_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<QList<int>>("shown"); // at ticks 0, 1, 1, 2, 3, 4, 5, 6
    QTest::newRow("still") << 0 << QList<int>{0, -1, 0, -1, -1, -1, -1, -1};
    QTest::newRow("every tick") << 1 << QList<int>{0, 1, 1, 2, 0, 1, 2, 0};
    QTest::newRow("every second tick") << 2 << QList<int>{0, -1, 0, 1, -1, 2, -1, 0};
}

void TestAnimation::playsByTheClock()
{
    QFETCH(const int, delay);
    TileAnimation animation;
    for (int i = 0; i < 3; ++i)
        animation.addFrame();
    animation.setDelay(delay);
    QList<int> shown;
    for (const quint64 tick : {0, 1, 1, 2, 3, 4, 5, 6})
        shown.append(int(animation.tick(tick)));
    QTEST(shown, "shown");
}

void TestAnimation::survivesDeletedFramesWhilePlaying()
{
    TileAnimation animation;
    for (int i = 0; i < 4; ++i)
        animation.addFrame();
    animation.setDelay(1);
    for (const quint64 tick : {1, 2, 3})
        animation.tick(tick);
    animation.deleteFrame(3);
    animation.deleteFrame(2);
    QVERIFY(animation.frame(int(animation.tick(3)))); // the frame that was current is gone
    QCOMPARE(animation.tick(4), 0);
    QCOMPARE(animation.tick(5), 1);
    animation.clearFrames();
    QCOMPARE(animation.tick(6), 0);
}

void TestAnimation::drawsTileFrames()
{
    const std::unique_ptr<TileSet> tiles = stripedTiles(4);
    TileAnimation animation;
    animation.setTileSet(tiles.get());
    animation.setSize(QSize(3, 1));
    animation.addFrame();
    animation.frame(0)->setCells({{Cell{1}, Cell{99}, Cell{2}}, {Cell{1}}}); // one names no tile, one lies below

    const QImage frame = animation.frameImage(QSize(48, 48));
    QCOMPARE(frame.size(), QSize(48, 16));
    QCOMPARE(frame.format(), QImage::Format_ARGB32);
    QCOMPARE(frame.pixel(0, 0), qRgb(255, 255, 255));
    QCOMPARE(frame.pixel(15, 15), qRgb(255, 255, 255));
    QCOMPARE(frame.pixel(16, 0), qRgba(0, 0, 0, 0));
    QCOMPARE(frame.pixel(32, 0), qRgb(0, 0, 0));

    const QImage preview = animation.preview(QSize(24, 60)); // drawn centred on a square of 24
    QCOMPARE(preview.size(), QSize(24, 24));
    QCOMPARE(preview.pixel(0, 7), qRgb(32, 32, 32));
    QCOMPARE(preview.pixel(0, 8), qRgb(255, 255, 255));
    QCOMPARE(preview.pixel(7, 15), qRgb(255, 255, 255));
    QCOMPARE(preview.pixel(8, 8), qRgb(32, 32, 32));
    QCOMPARE(preview.pixel(0, 16), qRgb(32, 32, 32));
}

void TestAnimation::drawsSpriteFrames()
{
    Palette palette;
    palette.setRawColour(1, 0xFF01);
    palette.setRawColour(0x21, 0xE000);
    SpriteBank bank(Quenmora::FourBit);
    bank.setPalette(&palette);
    bank.addSprite();
    QImage image = bank.spriteImage(0, false, false, false);
    image.fill(3); // transparent in a 4-bit bank
    image.setPixel(2, 0, 1);
    bank.setImage(1, image);

    SpriteAnim animation(&bank);
    animation.setSize(QSize(2, 1));
    animation.frame(0)->setCells({{Cell{50}, Cell{1}}});
    const QImage frame = animation.frameImage(0, 2, false, false, false);
    QCOMPARE(frame.size(), QSize(32, 16));
    QCOMPARE(frame.format(), QImage::Format_ARGB32);
    QCOMPARE(frame.pixel(18, 0), qRgb(255, 0, 0));
    QCOMPARE(qAlpha(frame.pixel(19, 0)), 0);
    QCOMPARE(qAlpha(frame.pixel(2, 0)), 0); // sprite 50 does not exist
    QCOMPARE(animation.frameImage(0, 2, false, true, true).pixel(13, 15), qRgb(255, 0, 0));
    const QImage turned = animation.frameImage(0, 2, true, false, false);
    QCOMPARE(turned.size(), QSize(16, 32));
    QCOMPARE(turned.pixel(15, 18), qRgb(255, 0, 0));

    const QImage preview = animation.preview(QSize(64, 64));
    QCOMPARE(preview.size(), QSize(64, 32));
    QCOMPARE(preview.pixel(37, 1), qRgb(255, 255, 255)); // no palette offset
    QCOMPARE(preview.pixel(40, 0), qRgb(0, 0, 0)); // and no transparency
    QCOMPARE(qAlpha(preview.pixel(0, 0)), 0);
}

void TestAnimation::drawsNothingWithoutSource()
{
    QVERIFY(SpriteAnim().frameImage(0, 0, false, false, false).isNull());
    QVERIFY(SpriteAnim().preview(QSize(32, 32)).isNull());
    SpriteBank bank(Quenmora::EightBit);
    SpriteAnim animation(&bank);
    QVERIFY(animation.frameImage(1, 0, false, false, false).isNull());
    QVERIFY(animation.frameImage(-1, 0, false, false, false).isNull());
    animation.setSize(QSize(0, 0));
    QVERIFY(animation.frameImage(0, 0, true, false, true).isNull());
    animation.clearFrames();
    QVERIFY(animation.preview(QSize(32, 32)).isNull());
    QCOMPARE(TileAnimation().preview(QSize(20, 10)).pixel(19, 9), qRgb(32, 32, 32));
    QCOMPARE(qAlpha(TileAnimation().frameImage(QSize(8, 8)).pixel(0, 0)), 0);
}

QUENMORA_TEST_MAIN(TestAnimation)
#include "tst_animation.moc"
