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
    void scrollingMovesTheBand();
    void editsPlacedSprites();
    void repaintsWhenAssetsChange();
    void zoomStaysInItsRange();
    void wheelScrollsAndZooms();
    void editsTheSelection();
    void laysCellsOut();
    void findsCellsAndPixels();
    void paintsTheLayers();
    void assetsMayGoInTheMiddleOfADrag();
    void resizesTheMap();
};

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
    QCOMPARE(positions.size(), 9);
    f.grid.setMap(f.map);
    QCOMPARE(positions.last(), QVariantList{QPoint(0, 0)});
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
    f.grid.setSpriteVisibility(false);
    QVERIFY(!f.grid.deleteSprite()); // nor what was hidden afterwards
    f.grid.setSpriteVisibility(true);
    f.move(f.pixel(65, 1));
    QVERIFY(f.grid.deleteSprite());
    QCOMPARE(selected.last(), QVariantList{-1});
    f.grid.setSpriteProperties(changed); // nothing is selected
    QCOMPARE(f.stack.count(), 3);

    f.grid.setCurrentSprite(f.bank->id(), 1);
    f.click(f.at(8, 8));
    f.move(f.at(2, 12));
    f.stack.undo();
    QCOMPARE(f.grid.selectedSprite(), -1);
}

void TestMapGrid::repaintsWhenAssetsChange()
{
    MapGridFixture f;
    PaintCounter grid(&f.grid);
    QVERIFY(!grid.paintsAfter([] {}));
    QVERIFY(grid.paintsAfter([&f] { f.tiles->notifyImageChanged(3); }));
    QVERIFY(grid.paintsAfter([&f] { f.tiles->moveTile(3, 4); }));
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

void TestMapGrid::zoomStaysInItsRange()
{
    MapGridFixture f;
    QSignalSpy deltas(&f.grid, &MapGrid::scrollDeltaChanged);
    for (int i = 0; i < 20; ++i)
        f.grid.zoomIn();
    QCOMPARE(f.grid.viewport().zoomFactor, 8);
    QCOMPARE(deltas.size(), 4);
    QCOMPARE(deltas.last(), (QVariantList{10, 8}));
    for (int i = 0; i < 20; ++i)
        f.grid.zoomOut();
    QCOMPARE(f.grid.viewport().zoomFactor, 1);
    QCOMPARE(deltas.size(), 11);
    f.grid.setViewPort(true, {4, 4});
    f.grid.fitTo();
    QCOMPARE(f.grid.viewport().viewRect, QRect(32, 0, 256, 256));
    f.grid.applyPreferences({true, Qt::red, Qt::blue, false, 16, 3});
    f.grid.applyPreferences({false, Qt::red, Qt::blue, true, 8, 9}); // 9 is out of range
    QCOMPARE(f.grid.viewport().cellSize, 24);
    QVERIFY(f.grid.isGridVisible());
}

void TestMapGrid::wheelScrollsAndZooms()
{
    struct Turn
    {
        QPoint delta;
        Qt::KeyboardModifiers modifiers;
        QPoint scroll;
        int zoom;
    };
    const Turn turns[] = {{{0, -120}, {}, {5, 6}, 8},
                          {{0, 120}, {}, {5, 5}, 8},
                          {{0, -120}, Qt::ShiftModifier, {6, 5}, 8},
                          {{0, 120}, Qt::ShiftModifier, {5, 5}, 8},
                          {{-120, 0}, {}, {6, 5}, 8},
                          {{0, 0}, {}, {6, 5}, 8}, // fingers on a touchpad
                          {{0, -120}, Qt::ControlModifier, {6, 5}, 7},
                          {{0, 120}, Qt::ControlModifier, {6, 5}, 8}};
    MapGridFixture f;
    for (int i = 0; i < 4; ++i)
        f.grid.zoomIn();
    f.grid.setHorizontalScrollPosition(5);
    f.grid.setVerticalScrollPosition(5);
    for (const Turn &turn : turns) {
        f.move(f.at(1, 1));
        const QPoint before = f.grid.viewport().scroll;
        QSignalSpy positions(&f.grid, &MapGrid::scrollPositionChanged);
        QWheelEvent event(f.at(3, 3), f.grid.mapToGlobal(f.at(3, 3)), {}, turn.delta, Qt::NoButton, turn.modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&f.grid, &event);
        QCOMPARE(f.grid.viewport().scroll, turn.scroll);
        QCOMPARE(f.grid.viewport().zoomFactor, turn.zoom);
        if (turn.scroll != before) {
            QCOMPARE(positions, (QList<QVariantList>{{turn.scroll}}));
            QCOMPARE(f.grid.hoverCell(), QPoint(-1, -1));
        }
    }
}

void TestMapGrid::editsTheSelection()
{
    MapGridFixture f;
    f.map->setTile({1, 1}, {3, true, false, false, 2, true});
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
    QCOMPARE(wanted, (QList<QVariantList>{{f.map->id(), QSize(2, 1)}}));
    QApplication::clipboard()->clear();

    f.grid.cutSelection();
    QCOMPARE(f.stack.count(), 1);
    QCOMPARE(f.lastStep(), QStringLiteral("Cut"));
    QCOMPARE(f.tile(1, 1), (TileData{0, false, false, false, 0, true}));
    QVERIFY(f.grid.selection().isEmpty());
    QCOMPARE(f.grid.pasteArea(), QRect(1, 1, 2, 1));
    const auto copied = TileMap::readSelection(QApplication::clipboard()->mimeData());
    QCOMPARE(copied.size, QSize(2, 1));
    QCOMPARE(copied.cells.first(), (TileData{3, true, false, false, 2, true}));
    f.grid.cutSelection(); // nothing is selected
    QCOMPARE(f.stack.count(), 1);

    f.drag({f.at(1, 1), f.at(2, 3)});
    f.grid.setCurrentTileIndex(3);
    f.grid.setFlipped(true);
    actions.at(4)->trigger(); // "Fill"
    QCOMPARE(f.lastStep(), QStringLiteral("Fill"));
    QCOMPARE(f.tile(2, 3), (TileData{3, false, true, false, 2, true}));
    QVERIFY(!f.tile(3, 3).used);
    f.grid.clearSelection();
    QCOMPARE(f.lastStep(), QStringLiteral("Clear"));
    QCOMPARE(f.tile(2, 3), (TileData{0, false, false, false, 0, true}));
    f.grid.setCurrentTileIndex(-1);
    f.grid.fillSelection();
    QCOMPARE(f.stack.count(), 3);
}

void TestMapGrid::laysCellsOut()
{
    struct Layout
    {
        QSize widget;
        QSize map;
        QSize viewport; ///< empty for none
        QRect viewRect;
        QPoint furthest;
        int fitted;
    };
    const Layout layouts[] = {{{330, 100}, {40, 32}, {}, {5, 2, 320, 96}, {30, 29}, 3},
                              {{330, 330}, {40, 2}, {5, 4}, {85, 133, 160, 64}, {35, 0}, 66},
                              {{20, 100}, {40, 32}, {}, {10, 2, 0, 96}, {40, 29}, 1}};
    for (const Layout &layout : layouts) {
        MapViewport v;
        v.viewportEnabled = !layout.viewport.isEmpty();
        v.viewportSize = layout.viewport;
        v.scroll = {1000, 1000};
        v.layout(layout.widget, layout.map);
        QCOMPARE(v.viewRect, layout.viewRect);
        QCOMPARE(v.scroll, layout.furthest); // kept inside the map
        v.fit(layout.widget, layout.map);
        QCOMPARE(v.zoomFactor, 1);
        QCOMPARE(v.cellSize, layout.fitted);
    }
}

void TestMapGrid::findsCellsAndPixels()
{
    MapViewport v;
    v.cellSize = 12;
    v.scroll = {3, 5};
    v.viewRect = QRect(10, 20, 240, 240); // (10, 20) is the corner of cell (3, 5)
    QCOMPARE(v.cellAt({21, 31}), QPoint(3, 5));
    QCOMPARE(v.cellAt({22, 32}), QPoint(4, 6));
    QCOMPARE(v.snappedCellAt({22, 32}), QPoint(4, 6));
    QCOMPARE(v.pixelAt({21, 31}), QPoint(31, 47));
    v.snap = 4;
    QCOMPARE(v.snappedCellAt({70, 80}), QPoint(4, 8));
    QCOMPARE(v.snappedCellAt({58, 32}), QPoint(4, 4)); // cell (7, 6)
    QCOMPARE(v.snappedPixel({64, 80}), QPoint(64, 64));
    // rounded down, also left of the cells
    QCOMPARE(v.cellsUnder(QRect(QPoint(9, 8), QPoint(33, 20))), QRect(QPoint(2, 4), QPoint(4, 5)));
    QCOMPARE(v.rectOfCells({4, 6, 2, 1}), QRect(22, 32, 24, 12));
    QCOMPARE(v.rectOfPixels({28, 48, 8, 8}), QRect(16, 32, 12, 12));
}

void TestMapGrid::paintsTheLayers()
{
    MapGridFixture f;
    f.map->setTile({1, 1}, {3, false, false, false, 2, true});
    f.map->placeAnimation(f.animation, {4, 4});
    f.map->addSprite(f.sprite(2, {80, 80}));
    QCOMPARE(f.screenColour(f.at(1, 1)), f.colour(2 * 16 + 3));
    QCOMPARE(f.screenColour(f.at(6, 5)), f.colour(5));
    QCOMPARE(f.screenColour(f.at(10, 11)), f.colour(2));
    f.grid.setSpriteVisibility(false);
    QCOMPARE(f.screenColour(f.at(10, 11)), f.colour(0)); // an unused cell
    f.grid.setGridVisible(true);
    QCOMPARE(f.screenColour({32, 40}), QColor(64, 64, 64));
    f.grid.setCurrentTileIndex(9);
    f.move(f.at(12, 3));
    QCOMPARE(f.screenColour(f.at(12, 3)), f.colour(9));

    const QColor tile = f.colour(2 * 16 + 3);
    for (const auto &[checker, background, even, odd] : {std::tuple(true, -1, QColor(Qt::red), QColor(Qt::blue)),
                                                         {false, -1, Qt::black, Qt::black},
                                                         {true, 3, tile, tile},
                                                         {false, 16, Qt::black, Qt::black}}) {
        MapGridFixture g;
        g.grid.applyPreferences({checker, Qt::red, Qt::blue, false, 16, 1});
        g.grid.resize(10 * MapGridFixture::Cell, 256);
        g.grid.setBackgroundTileIndex(background);
        g.grid.setMapVisibility(false);
        QCOMPARE(g.screenColour(g.at(2, 2)), even);
        QCOMPARE(g.screenColour(g.at(2, 3)), odd);
        g.grid.scrollRight(); // the squares go with their cells
        QCOMPARE(g.screenColour(g.at(2, 3)), even);
        g.grid.setMapVisibility(true);
        QCOMPARE(g.screenColour(g.at(2, 2)), g.colour(0));
        g.grid.setTransparencyIndex(0);
        QCOMPARE(g.screenColour(g.at(2, 2)), odd);
    }
}

void TestMapGrid::assetsMayGoInTheMiddleOfADrag()
{
    for (const ToolButton mode : {Draw, Select, PlaceAnim, PlaceSprite}) {
        for (const QString asset : {"map", "tile set", "palette", "blocks", "bank"}) {
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
            f.press(f.at(2, 2));
            f.move(f.at(4, 3), Qt::LeftButton);
            const QHash<QString, QObject *> assets{
                {"map", f.map}, {"tile set", f.tiles}, {"palette", f.palette}, {"blocks", f.blocks}, {"bank", f.bank}};
            delete assets.value(asset);
            f.grid.grab();
            f.move(f.at(6, 6), Qt::LeftButton);
            f.release(f.at(6, 6));
            f.grid.selectAll();
            f.grid.cutSelection();
            f.grid.addRows(End, 1);
            f.grid.fitTo();
            f.grid.setMode(Paste);
            f.click(f.at(3, 3));
            f.grid.setSpriteBanks({f.bank});
            f.stack.undo();
            const QColor shown = f.screenColour(f.at(3, 3));
            if (!f.map)
                QCOMPARE(shown, f.grid.palette().window().color());
            f.grid.setMap(f.map);
            f.grid.grab();
        }
    }
}

void TestMapGrid::resizesTheMap()
{
    struct Edit
    {
        const char *text;
        QSize size;
        std::function<void(MapGrid &)> operation;
    };
    const Edit edits[] = {
        {"Add Rows", {20, 19}, [](MapGrid &grid) { grid.addRows(Begin, 3); }},
        {"Add Columns", {22, 16}, [](MapGrid &grid) { grid.addColumns(End, 2); }},
        {"Remove Rows", {20, 1}, [](MapGrid &grid) { grid.removeRows(End, 500); }},
        {"Remove Columns", {1, 16}, [](MapGrid &grid) { grid.removeColumns(End, 50); }},
        {"Resize Map",
         {5, 7},
         [](MapGrid &grid) {
             grid.resizeMap({5, 7}, Qt::AlignLeft | Qt::AlignTop);
         }},
    };
    for (const auto &[text, size, operation] : edits) {
        MapGridFixture f;
        f.map->addSprite(f.sprite(1, {150, 120}));
        f.grid.setMode(PlaceSprite);
        f.click(f.pixel(155, 125));
        f.grid.selectAll();
        QSignalSpy resized(&f.grid, &MapGrid::mapResized);
        operation(f.grid);
        QCOMPARE(f.map->size(), size);
        QCOMPARE(f.lastStep(), QString(text));
        QCOMPARE(f.stack.count(), 1);
        QCOMPARE(resized, (QList<QVariantList>{{size}}));
        QCOMPARE(f.grid.selection().size(), size.boundedTo({20, 16}));
        f.grid.selectAll();
        f.stack.undo();
        QCOMPARE(resized.last(), QVariantList{QSize(20, 16)});
        QVERIFY(QRect(0, 0, 20, 16).contains(f.grid.selection()));
        QCOMPARE(f.map->sprites().size(), 1);
    }
}

QUENMORA_TEST_MAIN(TestMapGrid)
#include "tst_mapgrid.moc"
