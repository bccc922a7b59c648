#include "mapgridfixture.h"

#include "support/testmain.h"

#include <QClipboard>
#include <QDataStream>
#include <QMenu>
#include <QMimeData>
#include <QTest>

using namespace Quenmora::Ui;
using TileData = TileMap::TileData;

class TestMapTools : public QObject
{
    Q_OBJECT

private slots:
    void strokeIsOneStep();
    void writesTheCurrentTile();
    void hiddenLayersAreNotEdited();
    void placesAnAnimationOncePerStroke();
    void playedFramesAreNoEdit();
    void contextMenuTakesTheRelease();
    void pastesAroundThePointer();
    void movesTheTopmostSprite();
    void spriteDragSurvivesAChangedList();
    void selectsTheCellsUnderTheBand();
    void picksAndReturnsToTheToolBefore();
    void placesSpritesInsideTheMap();
    void strokeWritesItsCells();
    void refusesTheClipboard();
};

void TestMapTools::strokeIsOneStep()
{
    MapGridFixture f;
    f.grid.setCurrentTileIndex(4);
    QList<QPoint> points;
    for (int x = 0; x < 10; ++x)
        points += {f.at(x, 3), f.at(x, 3) + QPoint(2, 1)};
    f.drag(points);
    QCOMPARE(f.stack.count(), 1);
    QCOMPARE(f.lastStep(), QStringLiteral("Paint"));
    f.drag(points); // the same tile over itself
    QCOMPARE(f.stack.count(), 1);
    f.stack.undo();
    QVERIFY(!f.tile(0, 3).used && !f.tile(9, 3).used);
    f.stack.redo();
    QVERIFY(f.tile(0, 3).used && f.tile(9, 3).used);

    f.press(f.at(1, 0));
    f.move(f.at(2, 0), Qt::LeftButton);
    f.move({-3, -3}, Qt::LeftButton);
    f.release({-3, -3}); // outside, and the edit ends all the same
    QCOMPARE(f.stack.count(), 2);
    f.move(f.at(7, 7));
    QVERIFY(!f.tile(7, 7).used); // no button is held any more

    f.grid.setUndoStack(nullptr);
    f.drag({f.at(0, 5), f.at(1, 5)});
    QVERIFY(f.tile(1, 5).used); // edited, not recorded
    QCOMPARE(f.stack.count(), 2);
}

void TestMapTools::writesTheCurrentTile()
{
    MapGridFixture f;
    f.grid.setCurrentTileIndex(3);
    f.grid.setRotated(true);
    f.grid.setMirrored(true);
    f.drag({f.at(1, 1), f.at(2, 1)});
    QCOMPARE(f.tile(2, 1), (TileData{3, true, false, true, 2, true}));
    f.drag({f.at(1, 1), f.at(1, 1) + QPoint(1, 1)}, Qt::RightButton);
    QCOMPARE(f.tile(1, 1), (TileData{3, true, false, true, 2, false})); // cleared
    QCOMPARE(f.stack.count(), 2);
}

void TestMapTools::hiddenLayersAreNotEdited()
{
    MapGridFixture f;
    f.grid.setMapVisibility(false);
    QCOMPARE(f.grid.cursor().shape(), Qt::ForbiddenCursor);
    f.drag({f.at(1, 1), f.at(2, 1)});
    QVERIFY(!f.tile(2, 1).used);

    f.grid.setObjectVisibility(false);
    f.grid.setCurrentTileAnimation(f.animation);
    QCOMPARE(f.grid.cursor().shape(), Qt::ForbiddenCursor);
    f.drag({f.at(1, 1), f.at(2, 1)});
    QVERIFY(f.map->animatedBlocks()->list().isEmpty());

    f.grid.setSpriteVisibility(false);
    f.grid.setCurrentSprite(f.bank->id(), 1);
    f.click(f.at(4, 4));
    QVERIFY(f.map->sprites().isEmpty());
    QCOMPARE(f.stack.count(), 0);
    f.grid.setSpriteVisibility(true);
    QCOMPARE(f.grid.cursor().shape(), Qt::CrossCursor);
}

void TestMapTools::placesAnAnimationOncePerStroke()
{
    MapGridFixture f;
    f.grid.setCurrentTileAnimation(f.animation);
    QCOMPARE(f.grid.mode(), PlaceAnim);
    QCOMPARE(f.grid.cursor().shape(), Qt::OpenHandCursor);
    f.drag({f.at(2, 3), f.at(3, 3), f.at(9, 9)});
    f.move(f.at(4, 4));
    QCOMPARE(f.grid.cursor().shape(), Qt::SizeAllCursor); // over what was placed just now
    QCOMPARE(f.map->animatedBlocks()->areas(), (QHash<QRect, QUuid>{{QRect(3, 3, 3, 2), f.animation->id()}}));
    QCOMPARE(f.object(5, 4), (TileData{5, false, false, false, 0, true}));
    QCOMPARE(f.lastStep(), QStringLiteral("Place Animation"));

    f.move(f.at(15, 10));
    QCOMPARE(f.grid.highlight(), QRect());
    QVERIFY(!f.grid.removeAnimation());
    f.move(f.at(5, 4));
    QCOMPARE(f.grid.highlight(), QRect(3, 3, 3, 2));
    f.drag({f.at(5, 4), f.at(12, 4)}); // what is there already is not placed again
    QCOMPARE(f.map->animatedBlocks()->list().size(), 1);
    QVERIFY(f.grid.removeAnimation());
    QCOMPARE(f.lastStep(), QStringLiteral("Remove Animation"));
    QVERIFY(f.map->animatedBlocks()->list().isEmpty());
    f.stack.undo();
    f.stack.undo();
    QVERIFY(f.map->animatedBlocks()->list().isEmpty());
    QVERIFY(!f.object(5, 4).used);
}

void TestMapTools::playedFramesAreNoEdit()
{
    MapGridFixture f;
    f.map->placeAnimation(f.animation, {3, 3});
    f.grid.setCurrentTileIndex(4);
    f.press(f.at(10, 1));
    f.map->stampFrame(*f.animation, 1, {3, 3});
    f.release(f.at(10, 1));
    QCOMPARE(f.stack.count(), 0);

    f.press(f.at(10, 1));
    f.move(f.at(11, 1), Qt::LeftButton);
    f.map->stampFrame(*f.animation, 0, {3, 3});
    f.release(f.at(11, 1));
    f.map->stampFrame(*f.animation, 1, {3, 3});
    f.stack.undo();
    QCOMPARE(f.object(3, 3).index, 6); // the frame stays as it plays
    QVERIFY(!f.tile(11, 1).used);
}

void TestMapTools::contextMenuTakesTheRelease()
{
    MapGridFixture f;
    f.grid.setMode(Select);
    auto *menu = f.grid.findChild<QMenu *>();
    f.press(f.at(1, 1), Qt::RightButton);
    QVERIFY(!menu->isVisible()); // nothing is selected
    f.release(f.at(1, 1), Qt::RightButton);
    f.drag({f.at(1, 1), f.at(2, 2)});
    f.press(f.at(1, 1), Qt::RightButton);
    QVERIFY(menu->isVisible());
    QStringList texts;
    for (const QAction *action : menu->actions())
        texts.append(action->text());
    QCOMPARE(texts, (QStringList{"Cut", "Copy", "Copy to new map", "Copy as Image", "Fill"}));
    menu->hide();
    f.grid.setMode(Draw);
    f.move(f.at(5, 5));
    QVERIFY(f.grid.heldButtons() == Qt::NoButton);
}

void TestMapTools::pastesAroundThePointer()
{
    MapGridFixture f;
    for (int x = 0; x < 3; ++x)
        f.map->setTile({x, 0}, {x + 1, false, false, false, 0, true});
    QApplication::clipboard()->setMimeData(f.map->tileLayer()->toMimeData({0, 0, 3, 1}));
    f.grid.setMode(Paste);
    QCOMPARE(f.grid.mode(), Paste);
    f.move(f.at(19, 8));
    QCOMPARE(f.grid.pasteArea(), QRect(18, 8, 3, 1));
    f.click(f.at(19, 8));
    QCOMPARE(f.tile(18, 8).index, 1);
    QCOMPARE(f.tile(19, 8).index, 2); // the third lies outside
    QCOMPARE(f.lastStep(), QStringLiteral("Paste"));
    f.stack.undo();
    QVERIFY(!f.tile(18, 8).used);
}

void TestMapTools::movesTheTopmostSprite()
{
    MapGridFixture f;
    f.map->addSprite(f.sprite(1, {40, 40}));
    f.map->addSprite(f.sprite(2, {44, 44}));
    f.grid.setMode(PlaceSprite);
    f.grid.setSnapToSize(2);
    f.drag({f.pixel(46, 47), f.pixel(60, 60), f.pixel(90, 70)});
    QCOMPARE(QPoint(f.map->sprites().at(0).x, f.map->sprites().at(0).y), QPoint(40, 40));
    QCOMPARE(QPoint(f.map->sprites().at(1).x, f.map->sprites().at(1).y), QPoint(80, 64)); // (88, 67) snapped
    QCOMPARE(f.stack.count(), 1);
    QCOMPARE(f.lastStep(), QStringLiteral("Move Sprite"));
    f.stack.undo();
    QCOMPARE(f.map->sprites().at(1).x, 44);
}

void TestMapTools::spriteDragSurvivesAChangedList()
{
    MapGridFixture f;
    f.map->addSprite(f.sprite(1, {40, 40}));
    f.map->addSprite(f.sprite(2, {90, 40}));
    QSignalSpy clicked(&f.grid, &MapEditor::MapGrid::spriteClicked);
    f.grid.setMode(PlaceSprite);
    f.press(f.pixel(45, 45));
    f.bank->deleteSprite(1); // and with it what is being dragged
    QCOMPARE(f.map->sprites().size(), 1);
    f.move(f.pixel(70, 70), Qt::LeftButton);
    f.release(f.pixel(70, 70));
    QCOMPARE(f.map->sprites().first().x, 90);
    QCOMPARE(clicked.size(), 0);
}

void TestMapTools::selectsTheCellsUnderTheBand()
{
    using F = MapGridFixture;
    for (const auto &[from, to, cells] : {std::tuple(F::at(2, 3), F::at(5, 4), QRect(2, 3, 4, 2)),
                                          {F::at(5, 4), F::at(2, 3), {2, 3, 4, 2}},
                                          {F::at(5, 4), F::at(5, 4) + QPoint(1, 1), {5, 4, 1, 1}},
                                          {QPoint(-90, -90), F::at(1, 1), {0, 0, 2, 2}}}) {
        F f;
        f.press(from, Qt::LeftButton, Qt::ShiftModifier); // with any tool
        f.move(f.at(8, 8), Qt::LeftButton);
        f.move(to, Qt::LeftButton);
        f.release(to);
        QCOMPARE(f.grid.mode(), Select);
        QCOMPARE(f.grid.cursor().shape(), Qt::CrossCursor);
        QCOMPARE(f.grid.selection(), cells);
        QCOMPARE(f.stack.count(), 0);
        f.grid.copySelection();
        QCOMPARE(f.grid.mode(), Draw);
        QCOMPARE(f.grid.selection(), cells);
        QCOMPARE(f.grid.pasteArea(), cells);
    }
}

void TestMapTools::picksAndReturnsToTheToolBefore()
{
    MapGridFixture f;
    const TileData tile{3, true, false, true, 7, true};
    f.map->setTile({4, 2}, tile);
    QApplication::clipboard()->clear();
    QSignalSpy picked(&f.grid, &MapEditor::MapGrid::tilePicked);
    f.grid.setMode(Select);
    f.grid.setMode(Pick);
    f.grid.setMode(Pick);
    f.grid.setMode(Paste); // refused
    f.click(f.at(4, 2), Qt::RightButton);
    QCOMPARE(picked.size(), 0);
    f.click(f.at(4, 2));
    QCOMPARE(picked, (QList<QVariantList>{{QVariant::fromValue(tile)}}));
    QCOMPARE(f.grid.mode(), Select);

    f.grid.setMode(Draw);
    f.grid.setCurrentTileIndex(9);
    f.drag({f.at(2, 2), f.at(3, 2), f.at(4, 2)}, Qt::MiddleButton);
    QCOMPARE(picked.size(), 2);
    QVERIFY(!f.tile(3, 2).used);
    QCOMPARE(f.grid.mode(), Draw);
    QCOMPARE(f.stack.count(), 0);
}

void TestMapTools::placesSpritesInsideTheMap()
{
    MapGridFixture f;
    f.grid.setCurrentSpriteAnimation(f.run);
    QCOMPARE(f.grid.mode(), PlaceSprite);
    Map::PlacedSprite expected = f.sprite(-1, {});
    expected.animation = f.run->id();
    int placed = 0;
    for (const auto &[pixel, snap, position] : {std::tuple(QPoint(33, 21), 1, QPoint(33, 21)),
                                                {QPoint(99, 21), 2, QPoint(96, 16)},
                                                {QPoint(159, 127), 1, QPoint(159, 127)}}) {
        f.grid.setSnapToSize(snap);
        f.click(f.pixel(pixel.x(), pixel.y()));
        QCOMPARE(f.grid.selectedSprite(), placed);
        expected.x = position.x();
        expected.y = position.y();
        QCOMPARE(f.map->sprites().value(placed), expected);
        QCOMPARE(f.lastStep(), QStringLiteral("Place Sprite"));
        QCOMPARE(f.stack.count(), ++placed);
    }
    f.click(f.pixel(160, 20)); // outside
    QCOMPARE(f.map->sprites().size(), placed);

    QSignalSpy clicked(&f.grid, &MapEditor::MapGrid::spriteClicked);
    f.drag({f.pixel(40, 30), f.pixel(41, 30)}); // too short for a move
    QCOMPARE(clicked, (QList<QVariantList>{{0}}));
    f.grid.setCurrentSprite({}, -1);
    f.click(f.pixel(60, 100)); // beside them, with nothing to place
    QCOMPARE(f.grid.selectedSprite(), -1);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(f.stack.count(), placed);
}

void TestMapTools::strokeWritesItsCells()
{
    using F = MapGridFixture;
    using Points = QList<QPoint>;
    struct Stroke
    {
        Points points;
        int snap;
        Points cells; ///< row by row
    };
    const Stroke strokes[] = {
        {{F::at(2, 2)}, 1, {}}, // without a move
        {{F::at(2, 2), F::at(2, 2) + QPoint(1, 0)}, 1, {{2, 2}}},
        {{F::at(2, 2), F::at(5, 2)}, 1, {{2, 2}, {3, 2}, {4, 2}, {5, 2}}}, // fast
        {{F::at(3, 5), F::at(2, 2)}, 1, {{2, 2}, {2, 3}, {3, 4}, {3, 5}}},
        {{F::at(5, 6), F::at(6, 7)}, 4, {{4, 4}}},
        {{F::at(1, 1), F::at(13, 5)}, 4, {{0, 0}, {4, 0}, {8, 4}, {12, 4}}},
        {{F::at(2, 2), F::at(3, 2), {-40, 500}, F::at(6, 2)}, 1, {{2, 2}, {3, 2}, {6, 2}}}, // outside and back
    };
    for (const Stroke &stroke : strokes) {
        F f;
        f.grid.setCurrentTileIndex(4);
        f.grid.setSnapToSize(stroke.snap);
        f.drag(stroke.points);
        Points written;
        for (int i = 0; i < 16 * 20; ++i) {
            if (f.tile(i % 20, i / 20).used)
                written.append({i % 20, i / 20});
        }
        QCOMPARE(written, stroke.cells);
        QCOMPARE(f.stack.count(), written.isEmpty() ? 0 : 1);
    }
}

void TestMapTools::refusesTheClipboard()
{
    struct Content
    {
        int height;
        int width;
        int cells; ///< -1 for no data at all
        bool ownTiles = true;
        bool accepted = false;
    };
    const Content contents[] = {{2, 3, 6, true, true}, {2, 3, 6, false}, {2, 3, 5}, {0x7FFFFFFF, 0x7FFFFFFF, 6},
                                {-2, -3, 6},           {0, 5, 0},        {0, 0, -1}};
    for (const Content &content : contents) {
        MapGridFixture f;
        QByteArray data;
        QDataStream stream(&data, QIODevice::WriteOnly);
        if (content.cells >= 0)
            stream << qint32(content.height) << qint32(content.width);
        for (int i = 0; i < content.cells; ++i)
            stream << qint32(7) << true << qint32(0) << false << false << false;
        if (content.cells >= 0)
            stream << (content.ownTiles ? f.tiles->id() : QUuid::createUuid());
        auto *copied = new QMimeData;
        copied->setData(QStringLiteral("quenmora-map-toNextData"), data);
        QApplication::clipboard()->setMimeData(copied);
        f.grid.setMode(Select);
        f.grid.setMode(Paste);
        QCOMPARE(f.grid.mode(), content.accepted ? Paste : Select);
        f.click(f.at(5, 5));
        QCOMPARE(f.stack.count(), content.accepted ? 1 : 0);

        // what was accepted may have been replaced since
        QApplication::clipboard()->clear();
        const auto before = f.map->snapshot();
        f.click(f.at(10, 10));
        QVERIFY(f.map->snapshot() == before);
    }
}

QUENMORA_TEST_MAIN(TestMapTools)
#include "tst_maptools.moc"
