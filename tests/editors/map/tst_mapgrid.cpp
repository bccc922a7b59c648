#include "support/mapfixture.h"

#include "editors/map/mappainter.h"
#include "support/editorinput.h"
#include "support/paintwatch.h"
#include "support/testmain.h"

#include <QtWidgets>

using namespace Quenmora;
using namespace Quenmora::Ui;
using MapEditor::MapGrid;
using MapEditor::MapViewport;
using TileData = TileMap::TileData;

class TestMapGrid : public QObject
{
    Q_OBJECT

private slots:
    void laysCellsOut()
    {
        for (const auto &[widget, map, viewport, viewRect, furthest, fitted] :
             {std::tuple(QSize(330, 100), QSize(40, 32), QSize(), QRect(5, 2, 320, 96), QPoint(30, 29), 3),
              {{330, 330}, {40, 2}, {5, 4}, {85, 133, 160, 64}, {35, 0}, 66},
              {{20, 100}, {40, 32}, {}, {10, 2, 0, 96}, {40, 29}, 1}}) {
            MapViewport v;
            v.viewportEnabled = !viewport.isEmpty();
            v.viewportSize = viewport;
            v.scroll = {1000, 1000};
            v.layout(widget, map);
            QCOMPARE(v.viewRect, viewRect);
            QCOMPARE(v.scroll, furthest); // kept inside the map
            v.fit(widget, map);
            QCOMPARE(v.zoomFactor, 1);
            QCOMPARE(v.cellSize, fitted);
            QVERIFY(!v.setZoom(0) && !v.setZoom(9) && v.cellSize == fitted && v.setZoom(8) && v.cellSize == 64);
        }
    }

    void findsCellsAndPixels()
    {
        MapViewport v;
        v.cellSize = 12;
        v.scroll = {3, 5};
        v.viewRect = QRect(10, 20, 240, 240); // (10, 20) is the corner of cell (3, 5)
        QCOMPARE(v.cellAt({21, 31}), QPoint(3, 5));
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

    void wheelScrollsAndZooms()
    {
        MapGridFixture f;
        f.grid.applyPreferences({.gridSize = 4, .defaultZoom = 8});
        QSignalSpy positions(&f.grid, &MapGrid::scrollPositionChanged);
        for (const auto &[delta, modifiers, scroll, told] :
             {std::tuple(QPoint(0, -120), Qt::NoModifier, QPoint(0, 1), 1),
              {{0, -120}, Qt::ShiftModifier, {1, 1}, 2},
              {{0, 120}, Qt::ShiftModifier, {0, 1}, 3},
              {{-120, 0}, Qt::NoModifier, {1, 1}, 4},
              {{0, 120}, Qt::NoModifier, {1, 0}, 5},
              {{0, 0}, Qt::NoModifier, {1, 0}, 5}, // fingers on a touchpad
              {{0, -120}, Qt::ControlModifier, {1, 0}, 5}}) {
            f.move(f.at(1, 1));
            const int before = int(positions.size());
            EditorInput::turnWheel(f.grid, f.at(3, 3), delta, modifiers);
            QCOMPARE(f.grid.viewport().scroll, scroll);
            QCOMPARE(positions.size(), told);
            QCOMPARE(f.grid.pointer().hasCell(), told == before);
        }
        QCOMPARE(f.grid.viewport().zoomFactor, 7);
    }

    void scrollingMovesTheBand()
    {
        MapGridFixture f;
        f.grid.resize(160, 128); // 10 × 8 of the 20 × 16 cells
        f.grid.setMode(Select);
        f.press(f.at(2, 2));
        f.move(f.at(4, 4));
        f.grid.scrollRight();
        f.grid.scrollUp(); // there is nothing above
        QCOMPARE(f.grid.findChild<QRubberBand *>()->geometry(), QRect(QPoint(24, 40), QPoint(56, 72)));
        f.move(f.at(4, 4));
        f.release(f.at(4, 4));
        QCOMPARE(f.grid.selection(), QRect(QPoint(2, 2), QPoint(5, 4)));
        QSignalSpy positions(&f.grid, &MapGrid::scrollPositionChanged);
        f.grid.setMap(f.map);
        QCOMPARE(positions, (Signals{{QPoint(0, 0)}}));
    }

    void contextMenuActsOnTheSelection()
    {
        MapGridFixture f;
        f.map->setTile({1, 1}, {3, true, false, false, 2, true});
        f.map->setTile({2, 1}, {4, false, false, false, 0, true});
        f.grid.setTransparencyIndex(4);
        f.grid.setFlipped(true);
        f.grid.setMode(Select);
        auto *menu = f.grid.findChild<QMenu *>();
        f.click(f.at(1, 1), Qt::RightButton);
        QVERIFY(!menu->isVisible()); // nothing is selected
        f.drag({f.at(1, 1), f.at(2, 1)});
        f.press(f.at(1, 1), Qt::RightButton);
        QVERIFY(menu->isVisible() && f.grid.pointer().held == Qt::NoButton);
        menu->hide();
        EditorInput::trigger(*menu, "Copy as Image");
        const QImage image = QApplication::clipboard()->image();
        QCOMPARE(image.size(), QSize(16, 8));
        QCOMPARE(image.pixelColor(0, 0), f.colour(2 * 16 + 3));
        QCOMPARE(image.pixelColor(8, 0).alpha(), 0);
        QCOMPARE(image.text("paletteid"), f.palette->id().toString());
        QSignalSpy wanted(&f.grid, &MapGrid::createMapFromSelection);
        EditorInput::trigger(*menu, "Copy to new map");
        QCOMPARE(wanted, (Signals{{f.map->id(), QSize(2, 1)}}));
        f.grid.setCurrentTileIndex(-1);
        EditorInput::trigger(*menu, "Fill"); // with nothing
        f.grid.setCurrentTileIndex(3);
        for (const auto *entry : {"Fill", "Cut", "Cut"}) // nothing is selected the second time
            EditorInput::trigger(*menu, entry);
        QCOMPARE(f.tile(1, 1), (TileData{0, false, false, false, 0, true}));
        QVERIFY(f.grid.selection().isEmpty());
        QCOMPARE(f.grid.pasteArea(), QRect(1, 1, 2, 1));
        const auto copied = TileMap::readSelection(QApplication::clipboard()->mimeData());
        QCOMPARE(copied.cells, QList<TileData>(2, {3, false, true, false, 2, true}));
        QCOMPARE(f.steps(), "Fill|Cut");
    }

    void paintsTheLayers()
    {
        MapGridFixture f;
        f.map->setTile({1, 1}, {3, false, false, false, 2, true});
        f.map->placeAnimation(f.animation, {4, 4});
        f.map->addSprite(f.sprite(2, {80, 80}));
        f.grid.setCurrentTileIndex(9);
        f.move(f.at(12, 3));
        const auto colours = [&f] {
            const QList<QPoint> points{f.at(1, 1), f.at(6, 5), f.at(10, 11), f.at(12, 3), {32, 40}, {40, 32}};
            return valuesOf(points, [&f](QPoint point) { return f.screenColour(point); });
        };
        const QColor blank = f.colour(0);
        QCOMPARE(colours(), (QList{f.colour(2 * 16 + 3), f.colour(5), f.colour(2), f.colour(9), blank, blank}));
        f.grid.setSpriteVisibility(false);
        f.grid.setObjectVisibility(false);
        f.grid.setGridVisible(true);
        f.move({-1, -1});
        const QColor line(64, 64, 64);
        QCOMPARE(colours(), (QList{f.colour(2 * 16 + 3), blank, blank, blank, line, line}));
    }

    void paintsWhatLiesBeneath()
    {
        // whether a checker board is preferred (none: no preferences were applied), whether the grid was toggled since,
        // the background tile, and what is seen in two cells
        using Preferred = std::optional<bool>;
        for (const auto &[preferred, toggled, background, even, odd] :
             {std::tuple(Preferred(true), Preferred(), -1, Qt::red, Qt::blue),
              {true, false, -1, Qt::black, Qt::black},
              {false, true, 16, Qt::black, Qt::black}, // there is no such tile
              {{}, true, -1, Qt::black, Qt::black},
              {true, {}, 3, Qt::green, Qt::green}}) {
            MapAssets f;
            f.palette->setColour(2 * 16 + 3, Qt::green, false);
            f.map->setTile({4, 2}, {1, false, false, false, 0, true});
            MapEditor::MapContent content;
            content.setMap(f.map);
            MapEditor::MapDisplay display;
            display.backgroundTileIndex = background;
            if (preferred)
                display.apply({*preferred, Qt::red, Qt::blue, true, 8, 4});
            if (toggled)
                display.setGridVisible(*toggled);
            for (const int zoom : {1, 8}) { // the second with a cell a strip
                MapViewport viewport;
                viewport.setZoom(zoom);
                QImage screen(10 * viewport.cellSize + 6, 256 + 6, QImage::Format_RGB32);
                viewport.layout(screen.size(), f.map->size());
                const auto colourAt = [&](int x, int y) {
                    QPainter painter(&screen);
                    painter.setBrushOrigin(viewport.viewRect.topLeft());
                    MapEditor::MapPainter(content, viewport, display).paintContent(painter, viewport.viewRect);
                    return screen.pixelColor(viewport.rectOfCells({x, y, 1, 1}).center());
                };
                display.transparencyIndex = 0;
                QCOMPARE(colourAt(2, 2), even);
                QCOMPARE(colourAt(2, 3), odd);
                QCOMPARE(colourAt(4, 2), QColor(f.palette->colourTable().at(1)));
                viewport.scrollBy({1, 0}, f.map->size()); // the squares go with their cells
                QCOMPARE(colourAt(2, 3), odd);
                display.transparencyIndex = -1;
                QCOMPARE(colourAt(2, 3), QColor(f.palette->colourTable().at(0)));
            }
        }
    }

    void repaintsWhenAssetsChange()
    {
        MapGridFixture f;
        const QPointer<SpriteAnim> added = f.bank->newAnimation();
        const std::function<void()> changes[] = {
            [&f] { f.tiles->notifyImageChanged(3); },
            [&f] { f.tiles->moveTile(3, 4); },
            [&f] { f.palette->setColour(3, Qt::green, false); },
            [&f] { f.bank->clearSprite(1); },
            [&f] { f.run->frame(0)->setIndex(0, 0, 3); },
            [&added] { added->frame(0)->setIndex(0, 0, 3); },
            [&f] { f.tiles->deleteTile(15); },
        };
        PaintWatch painted(&f.grid);
        f.grid.setCurrentTileIndex(15);
        QVERIFY(painted.after([] {}).isEmpty());
        for (const auto &change : changes)
            QVERIFY(!painted.after(change).isEmpty());
        QCOMPARE(f.grid.currentTileIndex(), 14); // not a tile that is gone
        f.grid.setSpriteBanks({});
        QVERIFY(painted.after(changes[3]).isEmpty());
        f.grid.setMap(nullptr);
        QVERIFY(painted.after(changes[0]).isEmpty());
    }
};

QUENMORA_TEST_MAIN(TestMapGrid)
#include "tst_mapgrid.moc"
