#include "mapgridfixture.h"

#include "editors/map/mappreferences.h"
#include "support/testmain.h"

#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QWheelEvent>

using namespace Quenmora;
using namespace Quenmora::Ui;
using MapEditor::MapGrid;
using MapEditor::MapViewport;
using TileData = TileMap::TileData;

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    /// Whether a change makes the widget paint.
    bool paintsAfter(const std::function<void()> &change)
    {
        QCoreApplication::processEvents();
        m_paints = 0;
        change();
        QCoreApplication::processEvents();
        return m_paints > 0;
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_paints += event->type() == QEvent::Paint;
        return false;
    }

private:
    int m_paints = 0;
};

} // namespace

class TestMapGrid : public QObject
{
    Q_OBJECT

private slots:
    void laysCellsOut_data();
    void laysCellsOut();
    void findsCellsAndPixels_data();
    void findsCellsAndPixels();
    void wheelScrollsAndZooms_data();
    void wheelScrollsAndZooms();
    void scrollingMovesTheBand();
    void zoomStaysInItsRange();
    void appliesPreferences();
    void unknownModeIsLogged();
    void resizesTheMap_data();
    void resizesTheMap();
    void cutIsOneStep();
    void fillsAndClears();
    void copiesForOthers();
    void editsPlacedSprites();
    void followsUndoneEdits();
    void paintsTheLayers();
    void paintsWhatLiesBeneath_data();
    void paintsWhatLiesBeneath();
    void repaintsWhenAssetsChange();
    void assetsMayGoInTheMiddleOfADrag_data();
    void assetsMayGoInTheMiddleOfADrag();
};

void TestMapGrid::laysCellsOut_data()
{
    QTest::addColumn<QSize>("widget");
    QTest::addColumn<QSize>("map");
    QTest::addColumn<QSize>("viewport"); // empty for none
    QTest::addColumn<int>("cellSize");
    QTest::addColumn<QRect>("viewRect");
    QTest::addColumn<QSize>("overflow");

    QTest::newRow("larger map") << QSize(330, 100) << QSize(40, 32) << QSize() << 32 << QRect(5, 2, 320, 96)
                                << QSize(30, 29);
    QTest::newRow("smaller map") << QSize(330, 201) << QSize(4, 3) << QSize() << 32 << QRect(101, 52, 128, 96)
                                 << QSize(0, 0);
    QTest::newRow("viewport") << QSize(330, 330) << QSize(40, 2) << QSize(5, 4) << 32 << QRect(85, 133, 160, 64)
                              << QSize(35, 0);
    QTest::newRow("too small") << QSize(20, 100) << QSize(40, 32) << QSize() << 32 << QRect(10, 2, 0, 96)
                               << QSize(40, 29);
}

void TestMapGrid::laysCellsOut()
{
    QFETCH(QSize, widget);
    QFETCH(QSize, map);
    QFETCH(QSize, viewport);
    QFETCH(int, cellSize);
    QFETCH(QRect, viewRect);
    QFETCH(QSize, overflow);
    MapViewport v;
    v.cellSize = cellSize;
    v.viewportEnabled = !viewport.isEmpty();
    v.viewportSize = viewport;
    v.scroll = {1000, 1000};
    v.layout(widget, map);
    QCOMPARE(v.viewRect, viewRect);
    QCOMPARE(v.overflow(map), overflow);
    QCOMPARE(v.scroll, QPoint(overflow.width(), overflow.height())); // kept inside the map

    v.fit(widget, map);
    QCOMPARE(v.zoomFactor, 1);
    const QSize fitted = viewport.isEmpty() ? map : viewport;
    QVERIFY(v.cellSize * fitted.width() <= widget.width() || v.cellSize == 1);
    QVERIFY((v.cellSize + 1) * fitted.width() > widget.width() || (v.cellSize + 1) * fitted.height() > widget.height());
}

void TestMapGrid::findsCellsAndPixels_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("snap");
    QTest::addColumn<QPoint>("cell");
    QTest::addColumn<QPoint>("snappedCell");
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<QPoint>("snappedPixel");

    // 12 screen pixels a cell, (10, 20) is the corner of cell (3, 5)
    QTest::newRow("corner") << QPoint(10, 20) << 1 << QPoint(3, 5) << QPoint(3, 5) << QPoint(24, 40) << QPoint(24, 40);
    QTest::newRow("last of a cell") << QPoint(21, 31) << 1 << QPoint(3, 5) << QPoint(3, 5) << QPoint(31, 47)
                                    << QPoint(31, 47);
    QTest::newRow("next cell") << QPoint(22, 32) << 1 << QPoint(4, 6) << QPoint(4, 6) << QPoint(32, 48)
                               << QPoint(32, 48);
    QTest::newRow("snap 4") << QPoint(70, 80) << 4 << QPoint(8, 10) << QPoint(4, 8) << QPoint(64, 80) << QPoint(64, 64);
    QTest::newRow("snap 4, rounded again")
        << QPoint(58, 32) << 4 << QPoint(7, 6) << QPoint(4, 4) << QPoint(56, 48) << QPoint(32, 32);
}

void TestMapGrid::findsCellsAndPixels()
{
    QFETCH(QPoint, point);
    QFETCH(int, snap);
    MapViewport v;
    v.cellSize = 12;
    v.snap = snap;
    v.scroll = {3, 5};
    v.viewRect = QRect(10, 20, 240, 240);
    QTEST(v.cellAt(point), "cell");
    QTEST(v.snappedCellAt(point), "snappedCell");
    QTEST(v.pixelAt(point), "pixel");
    QTEST(v.snappedPixel(v.pixelAt(point)), "snappedPixel");
    // rounded down, also left of the cells
    QCOMPARE(v.cellsUnder(QRect(QPoint(9, 8), QPoint(33, 20))), QRect(QPoint(2, 4), QPoint(4, 5)));
    QCOMPARE(v.rectOfCells({4, 6, 2, 1}), QRect(22, 32, 24, 12));
    QCOMPARE(v.rectOfPixels({28, 48, 8, 8}), QRect(16, 32, 12, 12));
}

void TestMapGrid::wheelScrollsAndZooms_data()
{
    QTest::addColumn<QPoint>("delta");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QPoint>("scroll");
    QTest::addColumn<int>("zoom");

    QTest::newRow("down") << QPoint(0, -120) << Qt::KeyboardModifiers() << QPoint(5, 6) << 8;
    QTest::newRow("up") << QPoint(0, 120) << Qt::KeyboardModifiers() << QPoint(5, 4) << 8;
    QTest::newRow("shift down") << QPoint(0, -120) << Qt::KeyboardModifiers(Qt::ShiftModifier) << QPoint(6, 5) << 8;
    QTest::newRow("shift up") << QPoint(0, 120) << Qt::KeyboardModifiers(Qt::ShiftModifier) << QPoint(4, 5) << 8;
    QTest::newRow("across") << QPoint(-120, 0) << Qt::KeyboardModifiers() << QPoint(6, 5) << 8;
    QTest::newRow("zoom out") << QPoint(0, -120) << Qt::KeyboardModifiers(Qt::ControlModifier) << QPoint(5, 5) << 7;
    QTest::newRow("zoom in") << QPoint(0, 120) << Qt::KeyboardModifiers(Qt::ControlModifier) << QPoint(5, 5) << 8;
}

void TestMapGrid::wheelScrollsAndZooms()
{
    QFETCH(QPoint, delta);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QPoint, scroll);
    QFETCH(int, zoom);
    MapGridFixture f;
    for (int i = 0; i < 4; ++i)
        f.grid.zoomIn();
    f.grid.setHorizontalScrollPosition(5);
    f.grid.setVerticalScrollPosition(5);
    f.move(f.at(1, 1));
    QSignalSpy positions(&f.grid, &MapGrid::scrollPositionChanged);
    QWheelEvent event(f.at(3, 3), f.grid.mapToGlobal(f.at(3, 3)), {}, delta, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&f.grid, &event);
    QCOMPARE(f.grid.viewport().scroll, scroll);
    QCOMPARE(f.grid.viewport().zoomFactor, zoom);
    if (scroll != QPoint(5, 5)) {
        QCOMPARE(positions, QSignalSpy::QList<QVariantList>{QVariantList{scroll}});
        QCOMPARE(f.grid.hoverCell(), QPoint(-1, -1));
    }
}

void TestMapGrid::scrollingMovesTheBand()
{
    MapGridFixture f;
    f.grid.resize(160, 128); // 10 × 8 of the 20 × 16 cells
    f.grid.setMode(Select);
    f.press(f.at(2, 2));
    f.move(f.at(4, 4), Qt::LeftButton);
    f.grid.scrollRight();
    f.grid.scrollDown();
    f.grid.scrollUp();
    f.grid.scrollUp(); // there is nothing above
    f.move(f.at(4, 4), Qt::LeftButton);
    f.release(f.at(4, 4));
    QCOMPARE(f.grid.selection(), QRect(QPoint(2, 2), QPoint(5, 4)));

    QSignalSpy positions(&f.grid, &MapGrid::scrollPositionChanged);
    for (int i = 0; i < 30; ++i)
        f.grid.scrollRight();
    QCOMPARE(f.grid.viewport().scroll, QPoint(10, 0));
    QCOMPARE(positions.size(), 9);
}

void TestMapGrid::zoomStaysInItsRange()
{
    MapGridFixture f;
    QSignalSpy deltas(&f.grid, &MapGrid::scrollDeltaChanged);
    for (int i = 0; i < 20; ++i)
        f.grid.zoomIn();
    QCOMPARE(f.grid.viewport().cellSize, 8 * MapGridFixture::Cell / 4);
    QCOMPARE(deltas.size(), 4);
    QCOMPARE(deltas.last(), (QVariantList{10, 8}));
    for (int i = 0; i < 20; ++i)
        f.grid.zoomOut();
    QCOMPARE(f.grid.viewport().zoomFactor, 1);
    QCOMPARE(deltas.size(), 11);
    f.grid.setViewPort(true, {4, 4});
    f.grid.fitTo();
    QCOMPARE(f.grid.viewport().cellSize, 64); // 256 screen pixels down for 4 cells
    QCOMPARE(f.grid.viewport().viewRect, QRect(32, 0, 256, 256));
}

void TestMapGrid::appliesPreferences()
{
    MapGridFixture f;
    f.grid.applyPreferences({true, Qt::red, Qt::blue, false, 16, 3});
    QCOMPARE(f.grid.viewport().cellSize, 48);
    QVERIFY(!f.grid.isGridVisible());
    f.grid.applyPreferences({false, Qt::red, Qt::blue, true, 8, 9});
    QCOMPARE(f.grid.viewport().zoomFactor, 3); // 9 is out of range
    QVERIFY(f.grid.isGridVisible());
}

void TestMapGrid::unknownModeIsLogged()
{
    MapGridFixture f;
    QTest::ignoreMessage(QtInfoMsg, "MapWidget::setMode(Circle)");
    QTest::ignoreMessage(QtInfoMsg, "Unhandled switch case");
    f.grid.setMode(Circle);
    f.grid.setCurrentTileIndex(1);
    f.drag({f.at(1, 1), f.at(2, 2)}); // with the tool before
    QVERIFY(f.tile(2, 2).used);
}

void TestMapGrid::resizesTheMap_data()
{
    using Operation = std::function<void(MapGrid &)>;
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *text, QSize size, const Operation &operation) {
        QTest::newRow(text) << operation << size << QString::fromLatin1(text);
    };
    row("Add Rows", {20, 19}, [](MapGrid &grid) { grid.addRows(Begin, 3); });
    row("Add Columns", {22, 16}, [](MapGrid &grid) { grid.addColumns(End, 2); });
    row("Remove Rows", {20, 1}, [](MapGrid &grid) { grid.removeRows(End, 500); });
    row("Remove Columns", {1, 16}, [](MapGrid &grid) { grid.removeColumns(End, 50); });
    row("Resize Map", {5, 7}, [](MapGrid &grid) { grid.resizeMap({5, 7}, Qt::AlignLeft | Qt::AlignTop); });
}

void TestMapGrid::resizesTheMap()
{
    QFETCH(std::function<void(MapGrid &)>, operation);
    QFETCH(QSize, size);
    QFETCH(QString, text);
    MapGridFixture f;
    f.map->addSprite(f.sprite(1, {150, 120}));
    f.grid.setMode(PlaceSprite);
    f.click(f.pixel(155, 125));
    QCOMPARE(f.grid.selectedSprite(), 0);
    f.grid.selectAll();
    QSignalSpy resized(&f.grid, &MapGrid::mapResized);
    operation(f.grid);
    QCOMPARE(f.map->size(), size);
    QCOMPARE(f.lastStep(), text);
    QCOMPARE(f.stack.count(), 1);
    QCOMPARE(resized, QSignalSpy::QList<QVariantList>{QVariantList{size}});
    QCOMPARE(f.grid.selection(), QRect(0, 0, std::min(size.width(), 20), std::min(size.height(), 16)));
    QCOMPARE(f.grid.selectedSprite(), -1);
    f.stack.undo();
    QCOMPARE(resized.last(), QVariantList{QSize(20, 16)});
    QCOMPARE(f.map->sprites().size(), 1);
}

void TestMapGrid::cutIsOneStep()
{
    MapGridFixture f;
    f.map->setTile({1, 1}, {3, true, false, false, 2, true});
    f.grid.setMode(Select);
    f.drag({f.at(1, 1), f.at(2, 1)});
    f.grid.cutSelection();
    QCOMPARE(f.stack.count(), 1);
    QCOMPARE(f.lastStep(), QStringLiteral("Cut"));
    QCOMPARE(f.tile(1, 1), (TileData{0, false, false, false, 0, true}));
    QVERIFY(f.grid.selection().isEmpty());
    const auto copied = TileMap::readSelection(QApplication::clipboard()->mimeData());
    QCOMPARE(copied.size, QSize(2, 1));
    QCOMPARE(copied.cells.first(), (TileData{3, true, false, false, 2, true}));
    QCOMPARE(f.grid.pasteArea(), QRect(1, 1, 2, 1));

    f.grid.cutSelection(); // nothing is selected
    QCOMPARE(f.stack.count(), 1);
}

void TestMapGrid::fillsAndClears()
{
    MapGridFixture f;
    f.grid.setMode(Select);
    f.drag({f.at(1, 1), f.at(2, 3)});
    f.grid.setCurrentTileIndex(3);
    f.grid.setFlipped(true);
    f.grid.fillSelection();
    QCOMPARE(f.lastStep(), QStringLiteral("Fill"));
    QCOMPARE(f.tile(2, 3), (TileData{3, false, true, false, 2, true}));
    QVERIFY(!f.tile(3, 3).used);
    f.grid.clearSelection();
    QCOMPARE(f.lastStep(), QStringLiteral("Clear"));
    QCOMPARE(f.tile(2, 3), (TileData{0, false, false, false, 0, true}));
    f.grid.setCurrentTileIndex(-1);
    f.grid.fillSelection();
    QCOMPARE(f.stack.count(), 2);
}

void TestMapGrid::copiesForOthers()
{
    MapGridFixture f;
    f.map->setTile({1, 1}, {3, false, false, false, 2, true});
    f.map->setTile({2, 1}, {4, false, false, false, 0, true});
    f.grid.setTransparencyIndex(4);
    f.grid.setMode(Select);
    f.drag({f.at(1, 1), f.at(2, 1)});
    const QList<QAction *> actions = f.grid.findChild<QMenu *>()->actions();

    actions.at(3)->trigger(); // "Copy as Image"
    const QImage image = QApplication::clipboard()->image();
    QCOMPARE(image.size(), QSize(16, 8));
    QCOMPARE(image.pixelColor(0, 0), f.colour(2 * 16 + 3));
    QCOMPARE(image.pixelColor(8, 0).alpha(), 0);
    QCOMPARE(image.text("paletteid"), f.palette->id().toString());

    QSignalSpy wanted(&f.grid, &MapGrid::createMapFromSelection);
    actions.at(2)->trigger(); // "Copy to new map"
    QCOMPARE(wanted, (QSignalSpy::QList<QVariantList>{{f.map->id(), QSize(2, 1)}}));
    QCOMPARE(TileMap::readSelection(QApplication::clipboard()->mimeData()).size, QSize(2, 1));
    QCOMPARE(f.stack.count(), 0);
}

void TestMapGrid::editsPlacedSprites()
{
    MapGridFixture f;
    for (int i = 0; i < 3; ++i)
        f.map->addSprite(f.sprite(i, {i * 32, 0}));
    f.grid.setMode(PlaceSprite);
    f.click(f.pixel(65, 1));
    QCOMPARE(f.grid.selectedSprite(), 2);
    QCOMPARE(f.grid.spriteRect(2), QRect(128, 0, 32, 32));
    QCOMPARE(f.grid.spriteRect(3), QRect());

    Map::PlacedSprite changed = f.map->sprites().at(2);
    changed.name = QStringLiteral("Door");
    f.grid.setSpriteProperties(changed);
    QCOMPARE(f.lastStep(), QStringLiteral("Sprite Properties"));
    QCOMPARE(f.map->sprites().at(2).name, QStringLiteral("Door"));

    QSignalSpy selected(&f.grid, &MapGrid::selectedSpriteChanged);
    f.grid.setSpriteVisibility(false);
    f.move(f.pixel(1, 1));
    QVERIFY(!f.grid.deleteSprite()); // what is hidden is not under the pointer
    f.grid.setSpriteVisibility(true);
    f.move(f.pixel(1, 1));
    QVERIFY(f.grid.deleteSprite());
    QCOMPARE(f.lastStep(), QStringLiteral("Delete Sprite"));
    QVERIFY(!f.grid.deleteSprite());
    QCOMPARE(selected.last(), QVariantList{1});
    f.move(f.pixel(65, 1));
    QVERIFY(f.grid.deleteSprite());
    QCOMPARE(selected.last(), QVariantList{-1});
    QCOMPARE(f.map->sprites().size(), 1);
    f.grid.setSpriteProperties(changed); // nothing is selected
    QCOMPARE(f.stack.count(), 3);
}

void TestMapGrid::followsUndoneEdits()
{
    MapGridFixture f;
    f.grid.addColumns(End, 10);
    f.grid.selectAll();
    f.grid.setCurrentSprite(f.bank->id(), 1);
    f.click(f.at(2, 2));
    f.move(f.at(8, 8));
    QCOMPARE(f.grid.selectedSprite(), 0);
    QSignalSpy selected(&f.grid, &MapGrid::selectedSpriteChanged);
    f.stack.undo();
    QCOMPARE(selected, QSignalSpy::QList<QVariantList>{QVariantList{-1}});
    f.grid.selectAll();
    f.stack.undo();
    QCOMPARE(f.grid.selection(), QRect(0, 0, 20, 16));
}

void TestMapGrid::paintsTheLayers()
{
    MapGridFixture f;
    f.map->setTile({1, 1}, {3, false, false, false, 2, true});
    f.map->placeAnimation(f.animation, {4, 4});
    f.map->addSprite(f.sprite(2, {80, 80}));
    f.grid.setGridVisible(true);
    f.grid.setGridVisible(false);
    QCOMPARE(f.screenColour(f.at(1, 1)), f.colour(2 * 16 + 3));
    QCOMPARE(f.screenColour(f.at(6, 5)), f.colour(5));
    QCOMPARE(f.screenColour(f.at(10, 11)), f.colour(2));
    f.grid.setSpriteVisibility(false);
    QCOMPARE(f.screenColour(f.at(10, 11)), f.colour(0)); // an unused cell
    QCOMPARE(f.screenColour({32, 40}), f.colour(0));
    f.grid.setGridVisible(true);
    QCOMPARE(f.screenColour({32, 40}), QColor(64, 64, 64));
    f.grid.setGridVisible(false);

    f.grid.setCurrentTileIndex(9);
    f.move(f.at(12, 3));
    QCOMPARE(f.screenColour(f.at(12, 3)), f.colour(9));
    f.move({-5, -5});
    QCOMPARE(f.screenColour(f.at(12, 3)), f.colour(0));
}

void TestMapGrid::paintsWhatLiesBeneath_data()
{
    QTest::addColumn<bool>("checker");
    QTest::addColumn<int>("tile");
    QTest::addColumn<QColor>("even");
    QTest::addColumn<QColor>("odd");

    const QColor tile = MapGridFixture().colour(2 * 16 + 3);
    QTest::newRow("checker") << true << -1 << QColor(Qt::red) << QColor(Qt::blue);
    QTest::newRow("black") << false << -1 << QColor(Qt::black) << QColor(Qt::black);
    QTest::newRow("tile") << true << 3 << tile << tile;
    QTest::newRow("no such tile") << false << 16 << QColor(Qt::black) << QColor(Qt::black);
}

void TestMapGrid::paintsWhatLiesBeneath()
{
    QFETCH(bool, checker);
    QFETCH(int, tile);
    QFETCH(QColor, even);
    QFETCH(QColor, odd);
    MapGridFixture f;
    f.grid.applyPreferences({checker, Qt::red, Qt::blue, false, 16, 1});
    f.grid.resize(10 * MapGridFixture::Cell, 256);
    f.grid.setBackgroundTileIndex(tile);
    f.grid.setMapVisibility(false);
    QCOMPARE(f.screenColour(f.at(2, 2)), even);
    QCOMPARE(f.screenColour(f.at(2, 3)), odd);
    f.grid.scrollRight(); // the squares go with their cells
    QCOMPARE(f.screenColour(f.at(2, 3)), even);
    f.grid.setMapVisibility(true);
    QCOMPARE(f.screenColour(f.at(2, 2)), f.colour(0));
    f.grid.setTransparencyIndex(0);
    QCOMPARE(f.screenColour(f.at(2, 2)), odd);
}

void TestMapGrid::repaintsWhenAssetsChange()
{
    MapGridFixture f;
    PaintCounter grid(&f.grid);
    QVERIFY(!grid.paintsAfter([] {}));
    QVERIFY(grid.paintsAfter([&f] { f.tiles->notifyImageChanged(3); }));
    QVERIFY(grid.paintsAfter([&f] { f.tiles->moveTile(3, 4); }));
    QVERIFY(grid.paintsAfter([&f] { f.tiles->restore(f.tiles->snapshot()); }));
    QVERIFY(grid.paintsAfter([&f] { f.palette->setColour(3, Qt::green, false); }));
    QVERIFY(grid.paintsAfter([&f] { f.bank->clearSprite(1); }));
    QVERIFY(grid.paintsAfter([&f] { f.run->frame(0)->setIndex(0, 0, 3); }));
    const QPointer<SpriteAnim> added = f.bank->newAnimation();
    QVERIFY(grid.paintsAfter([&added] { added->frame(0)->setIndex(0, 0, 3); }));

    f.grid.setSpriteBanks({});
    QVERIFY(!grid.paintsAfter([&f] { f.bank->clearSprite(1); }));
    f.grid.setMap(nullptr);
    QVERIFY(!grid.paintsAfter([&f] { f.tiles->notifyImageChanged(3); }));
}

void TestMapGrid::assetsMayGoInTheMiddleOfADrag_data()
{
    QTest::addColumn<ToolButton>("mode");
    QTest::addColumn<QString>("asset");
    for (const ToolButton mode : {Draw, Select, PlaceAnim, PlaceSprite}) {
        for (const char *asset : {"map", "tile set", "palette", "blocks", "bank"})
            QTest::addRow("%d %s", int(mode), asset) << mode << QString::fromLatin1(asset);
    }
}

void TestMapGrid::assetsMayGoInTheMiddleOfADrag()
{
    QFETCH(ToolButton, mode);
    QFETCH(QString, asset);
    MapGridFixture f;
    f.map->placeAnimation(f.animation, {10, 10});
    Map::PlacedSprite animated = f.sprite(-1, {16, 16});
    animated.animation = f.run->id();
    f.map->addSprite(animated);
    f.grid.setCurrentTileAnimation(f.animation);
    f.grid.setCurrentSpriteAnimation(f.run);
    if (mode == Draw)
        f.grid.setCurrentTileIndex(2);
    f.grid.setMode(mode);
    f.move(f.at(2, 2));
    f.press(f.at(2, 2));
    f.move(f.at(4, 3), Qt::LeftButton);

    const QHash<QString, QObject *> assets{
        {"map", f.map}, {"tile set", f.tiles}, {"palette", f.palette}, {"blocks", f.blocks}, {"bank", f.bank}};
    delete assets.value(asset);
    f.grid.grab();
    f.move(f.at(6, 6), Qt::LeftButton);
    f.grid.grab();
    f.release(f.at(6, 6));
    f.grid.selectAll();
    f.grid.copySelection();
    f.grid.clearSelection();
    f.grid.addRows(End, 1);
    f.grid.zoomIn();
    f.grid.fitTo();
    f.grid.setMode(Paste);
    f.click(f.at(3, 3));
    f.grid.setSpriteBanks({f.bank});
    f.stack.undo();
    const QColor shown = f.screenColour(f.at(3, 3));
    if (asset == QLatin1String("map")) {
        QVERIFY(!f.grid.map());
        QCOMPARE(shown, f.grid.palette().window().color());
        QCOMPARE(f.grid.viewport().viewRect.size(), QSize(0, 0));
    }
    f.grid.setMap(f.map);
    f.grid.grab();
}

QUENMORA_TEST_MAIN(TestMapGrid)
#include "tst_mapgrid.moc"
