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
    void strokeWritesItsCells_data();
    void strokeWritesItsCells();
    void strokeIsOneStep();
    void strokeEndsWhereThePointerLeaves();
    void writesTheCurrentTile();
    void hiddenLayersAreNotEdited();
    void placesAnAnimationOncePerStroke();
    void playedFramesAreNoEdit();
    void selectsTheCellsUnderTheBand_data();
    void selectsTheCellsUnderTheBand();
    void shiftSelectsWithAnyTool();
    void contextMenuTakesTheRelease();
    void picksAndReturnsToTheToolBefore();
    void middleButtonPicksWithAnyTool();
    void refusesTheClipboard_data();
    void refusesTheClipboard();
    void pastesAroundThePointer();
    void placesSpritesInsideTheMap_data();
    void placesSpritesInsideTheMap();
    void clickOnASpriteIsNoMove();
    void movesTheTopmostSprite();
    void spriteDragSurvivesAChangedList();
};

void TestMapTools::strokeWritesItsCells_data()
{
    using F = MapGridFixture;
    QTest::addColumn<QList<QPoint>>("points");
    QTest::addColumn<int>("snap");
    QTest::addColumn<QList<QPoint>>("cells");

    QTest::newRow("click without a move") << QList{F::at(2, 2)} << 1 << QList<QPoint>();
    QTest::newRow("move inside a cell") << QList{F::at(2, 2), F::at(2, 2) + QPoint(1, 0)} << 1 << QList{QPoint(2, 2)};
    QTest::newRow("fast along a row") << QList{F::at(2, 2), F::at(5, 2)} << 1
                                      << QList{QPoint(2, 2), QPoint(3, 2), QPoint(4, 2), QPoint(5, 2)};
    QTest::newRow("fast and askew") << QList{F::at(3, 5), F::at(2, 2)} << 1
                                    << QList{QPoint(3, 5), QPoint(3, 4), QPoint(2, 3), QPoint(2, 2)};
    QTest::newRow("snap") << QList{F::at(5, 6), F::at(6, 7)} << 4 << QList{QPoint(4, 4)};
    QTest::newRow("snap, fast") << QList{F::at(1, 1), F::at(13, 5)} << 4
                                << QList{QPoint(0, 0), QPoint(4, 0), QPoint(8, 4), QPoint(12, 4)};
    QTest::newRow("outside and back") << QList{F::at(2, 2), F::at(3, 2), QPoint(-40, 500), F::at(6, 2)} << 1
                                      << QList{QPoint(2, 2), QPoint(3, 2), QPoint(6, 2)};
}

void TestMapTools::strokeWritesItsCells()
{
    QFETCH(QList<QPoint>, points);
    QFETCH(int, snap);
    QFETCH(QList<QPoint>, cells);
    MapGridFixture f;
    f.grid.setCurrentTileIndex(4);
    f.grid.setSnapToSize(snap);
    f.drag(points);
    QList<QPoint> written;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 20; ++x) {
            if (f.tile(x, y).used)
                written.append({x, y});
        }
    }
    std::sort(cells.begin(), cells.end(),
              [](QPoint a, QPoint b) { return std::pair(a.y(), a.x()) < std::pair(b.y(), b.x()); });
    QCOMPARE(written, cells);
    QCOMPARE(f.stack.count(), cells.isEmpty() ? 0 : 1);
}

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

    f.grid.setUndoStack(nullptr);
    f.drag({f.at(0, 5), f.at(1, 5)});
    QVERIFY(f.tile(1, 5).used); // edited, not recorded
    QCOMPARE(f.stack.count(), 1);
}

void TestMapTools::strokeEndsWhereThePointerLeaves()
{
    MapGridFixture f;
    f.grid.resize(500, 400); // the map is centred in it
    const QPoint corner = f.grid.viewport().viewRect.topLeft();
    QCOMPARE(corner, QPoint(90, 72));
    f.press(corner + f.at(0, 0));
    f.move(corner + f.at(1, 0), Qt::LeftButton);
    f.move(QPoint(3, 3), Qt::LeftButton);
    QCOMPARE(f.grid.hoverCell(), QPoint(-1, -1));
    f.release(QPoint(3, 3)); // outside, and the edit ends all the same
    QCOMPARE(f.lastStep(), QStringLiteral("Paint"));
    f.move(corner + f.at(7, 7));
    QVERIFY(!f.tile(7, 7).used); // no button is held any more
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
    QCOMPARE(f.map->animatedBlocks()->areas(), (QHash<QRect, QUuid>{{QRect(3, 3, 3, 2), f.animation->id()}}));
    QCOMPARE(f.object(5, 4), (TileData{5, false, false, false, 0, true}));
    QCOMPARE(f.lastStep(), QStringLiteral("Place Animation"));

    f.move(f.at(15, 10));
    QCOMPARE(f.grid.highlight(), QRect());
    QVERIFY(!f.grid.removeAnimation());
    f.move(f.at(5, 4));
    QCOMPARE(f.grid.highlight(), QRect(3, 3, 3, 2));
    QCOMPARE(f.grid.cursor().shape(), Qt::SizeAllCursor);
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

void TestMapTools::selectsTheCellsUnderTheBand_data()
{
    using F = MapGridFixture;
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("cells");

    QTest::newRow("down") << F::at(2, 3) << F::at(5, 4) << QRect(2, 3, 4, 2);
    QTest::newRow("up") << F::at(5, 4) << F::at(2, 3) << QRect(2, 3, 4, 2);
    QTest::newRow("one cell") << F::at(5, 4) << F::at(5, 4) + QPoint(1, 1) << QRect(5, 4, 1, 1);
    QTest::newRow("from outside") << QPoint(-90, -90) << F::at(1, 1) << QRect(0, 0, 2, 2);
}

void TestMapTools::selectsTheCellsUnderTheBand()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, cells);
    MapGridFixture f;
    f.grid.setMode(Select);
    QCOMPARE(f.grid.cursor().shape(), Qt::CrossCursor);
    f.drag({from, f.at(8, 8), to});
    QCOMPARE(f.grid.selection(), cells);
    QCOMPARE(f.stack.count(), 0);
}

void TestMapTools::shiftSelectsWithAnyTool()
{
    MapGridFixture f;
    QSignalSpy modes(&f.grid, &MapEditor::MapGrid::modeChanged);
    f.press(f.at(1, 1), Qt::LeftButton, Qt::ShiftModifier);
    f.move(f.at(2, 2), Qt::LeftButton);
    f.release(f.at(2, 2));
    QCOMPARE(modes.last().first().value<ToolButton>(), Select);
    QCOMPARE(f.grid.selection(), QRect(1, 1, 2, 2));
    f.grid.copySelection();
    QCOMPARE(f.grid.mode(), Draw);
    QCOMPARE(f.grid.selection(), QRect(1, 1, 2, 2));
    QCOMPARE(f.grid.pasteArea(), QRect(1, 1, 2, 2));
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

void TestMapTools::picksAndReturnsToTheToolBefore()
{
    MapGridFixture f;
    f.map->setTile({4, 2}, {3, true, false, true, 7, true});
    QSignalSpy picked(&f.grid, &MapEditor::MapGrid::tilePicked);
    f.grid.setMode(Select);
    f.grid.setMode(Pick);
    f.grid.setMode(Pick);
    f.click(f.at(4, 2), Qt::RightButton);
    QCOMPARE(picked.size(), 0);
    f.click(f.at(4, 2));
    QCOMPARE(picked.size(), 1);
    QCOMPARE(picked.first().first().value<TileData>(), (TileData{3, true, false, true, 7, true}));
    QCOMPARE(f.grid.mode(), Select);
}

void TestMapTools::middleButtonPicksWithAnyTool()
{
    MapGridFixture f;
    f.map->setTile({4, 2}, {3, true, false, true, 7, true});
    QSignalSpy picked(&f.grid, &MapEditor::MapGrid::tilePicked);
    f.grid.setCurrentTileIndex(9);
    f.drag({f.at(2, 2), f.at(3, 2), f.at(4, 2)}, Qt::MiddleButton);
    QCOMPARE(picked.size(), 1);
    QCOMPARE(picked.first().first().value<TileData>().index, 3);
    QVERIFY(!f.tile(3, 2).used);
    QCOMPARE(f.grid.mode(), Draw);
    QCOMPARE(f.stack.count(), 0);
}

void TestMapTools::refusesTheClipboard_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("cells");
    QTest::addColumn<bool>("ownTiles");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("sound") << 2 << 3 << 6 << true << true;
    QTest::newRow("other tile set") << 2 << 3 << 6 << false << false;
    QTest::newRow("cut") << 2 << 3 << 5 << true << false;
    QTest::newRow("absurd") << 0x7FFFFFFF << 0x7FFFFFFF << 6 << true << false;
    QTest::newRow("negative") << -2 << -3 << 6 << true << false;
    QTest::newRow("no cells") << 0 << 5 << 0 << true << false;
    QTest::newRow("nothing") << -1 << 0 << -1 << true << false;
}

void TestMapTools::refusesTheClipboard()
{
    QFETCH(int, height);
    QFETCH(int, width);
    QFETCH(int, cells);
    QFETCH(bool, ownTiles);
    QFETCH(bool, accepted);
    MapGridFixture f;
    QByteArray data;
    if (cells >= 0) {
        QDataStream stream(&data, QIODevice::WriteOnly);
        stream << qint32(height) << qint32(width);
        for (int i = 0; i < cells; ++i)
            stream << qint32(7) << true << qint32(0) << false << false << false;
        stream << (ownTiles ? f.tiles->id() : QUuid::createUuid());
    }
    auto *content = new QMimeData;
    content->setData(QStringLiteral("quenmora-map-toNextData"), data);
    QApplication::clipboard()->setMimeData(content);

    f.grid.setMode(Select);
    f.grid.setMode(Paste);
    QCOMPARE(f.grid.mode(), accepted ? Paste : Select);
    f.click(f.at(5, 5));
    QCOMPARE(f.stack.count(), accepted ? 1 : 0);

    // what was accepted may have been replaced since
    QApplication::clipboard()->clear();
    const auto before = f.map->snapshot();
    f.click(f.at(10, 10));
    QVERIFY(f.map->snapshot() == before);
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

void TestMapTools::placesSpritesInsideTheMap_data()
{
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<int>("snap");
    QTest::addColumn<QPoint>("position"); // (-1, -1) for none

    QTest::newRow("free") << QPoint(33, 21) << 1 << QPoint(33, 21);
    QTest::newRow("snapped") << QPoint(33, 21) << 2 << QPoint(32, 16);
    QTest::newRow("last pixel") << QPoint(159, 127) << 1 << QPoint(159, 127);
    QTest::newRow("outside") << QPoint(160, 20) << 1 << QPoint(-1, -1);
}

void TestMapTools::placesSpritesInsideTheMap()
{
    QFETCH(QPoint, pixel);
    QFETCH(int, snap);
    QFETCH(QPoint, position);
    MapGridFixture f;
    QSignalSpy selected(&f.grid, &MapEditor::MapGrid::selectedSpriteChanged);
    f.grid.setSnapToSize(snap);
    f.grid.setCurrentSpriteAnimation(f.run);
    QCOMPARE(f.grid.mode(), PlaceSprite);
    f.click(f.pixel(pixel.x(), pixel.y()));
    if (position.x() < 0) {
        QVERIFY(f.map->sprites().isEmpty());
        return;
    }
    Map::PlacedSprite expected = f.sprite(-1, position);
    expected.animation = f.run->id();
    QCOMPARE(f.map->sprites().size(), 1);
    QVERIFY(f.map->sprites().first() == expected);
    QCOMPARE(f.lastStep(), QStringLiteral("Place Sprite"));
    QCOMPARE(selected, QSignalSpy::QList<QVariantList>{QVariantList{0}});
}

void TestMapTools::clickOnASpriteIsNoMove()
{
    MapGridFixture f;
    f.map->addSprite(f.sprite(1, {40, 40}));
    QSignalSpy clicked(&f.grid, &MapEditor::MapGrid::spriteClicked);
    f.grid.setMode(PlaceSprite);
    f.drag({f.pixel(45, 45), f.pixel(46, 45)});
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.first().first().toInt(), 0);
    QCOMPARE(f.grid.selectedSprite(), 0);
    QCOMPARE(f.stack.count(), 0);
    f.click(f.pixel(100, 100)); // beside it, with nothing to place
    QCOMPARE(f.grid.selectedSprite(), -1);
    QCOMPARE(clicked.size(), 1);
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

QUENMORA_TEST_MAIN(TestMapTools)
#include "tst_maptools.moc"
