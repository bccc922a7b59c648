#include "editors/map/mapoverview.h"
#include "editors/map/paintdesk.h"
#include "editors/map/paintkits.h"
#include "model/projectextras.h"
#include "support/editorinput.h"
#include "support/mapfixture.h"
#include "support/testmain.h"

#include <QtWidgets>

using namespace Quenmora::Ui;
using Cell = TileMap::TileData;
using MapEditor::PaintKit;
using MapEditor::ReplaceTileDialog;

namespace {

Stamp stampOf(QSize size, const QList<int> &tiles)
{
    QList<Cell> cells;
    for (const int tile : tiles)
        cells.append(tile < 0 ? Cell() : Cell{.index = tile, .used = true});
    return {size, cells};
}

/// A grid that does more.
struct Painting : MapGridFixture
{
    Painting()
    {
        grid.offerMore();
        grid.setPaintsOnPress(true);
    }

    /// The tiles of an area row by row; a dot for a cell that was not written.
    QStringList tilesIn(const QRect &area) const
    {
        QStringList rows;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            QString row;
            for (int x = area.left(); x <= area.right(); ++x)
                row += tile(x, y).used ? QString::number(tile(x, y).index, 16) : QStringLiteral(".");
            rows.append(row);
        }
        return rows;
    }
};

} // namespace

class TestMapPainting : public QObject
{
    Q_OBJECT

private slots:
    void bareGridKnowsNothingOfIt()
    {
        MapGridFixture f;
        QTest::ignoreMessage(QtInfoMsg, "MapWidget::setMode(Fill)");
        QTest::ignoreMessage(QtInfoMsg, "Unhandled switch case");
        f.grid.setMode(Fill);
        f.grid.setMode(Draw);
        f.grid.setCurrentTileIndex(3);
        f.drag({f.at(2, 2), f.at(3, 2)}, Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(f.tile(3, 2).index, 3); // not its palette offset alone
        f.grid.setMode(Select);
        f.drag({f.at(1, 1), f.at(4, 4)});
        f.drag({f.at(2, 2), f.at(6, 6)}); // begins another one
        QCOMPARE(f.grid.selection(), QRect(2, 2, 5, 5));
    }

    void stampIsPaintedWithoutOverlappingItself()
    {
        Painting f;
        f.grid.setStamp(stampOf({2, 2}, {1, 2, 3, -1}));
        f.drag({f.at(4, 3), f.at(9, 3)}); // fast, over two more places
        const QStringList painted{"12121212.", "3.3.3.3..", "........."};
        QCOMPARE(f.tilesIn({3, 2, 9, 3}), painted);
        QCOMPARE(f.steps(), "Paint");
        f.drag({f.at(4, 3), f.at(4, 4)}, Qt::RightButton); // the place of the press and the one below
        QCOMPARE(f.tilesIn({3, 2, 7, 2}), (QStringList{"..12121", "..3.3.3"}));
        f.stack.undo();
        f.grid.setRotated(true);
        f.click(f.at(12, 8));
        QCOMPARE(f.tilesIn({11, 7, 2, 2}), (QStringList{"31", ".2"}));
        QVERIFY(f.tile(11, 7).rotate);
        f.grid.setCurrentTileIndex(9); // in its place
        f.click(f.at(15, 8));
        QCOMPARE(f.tilesIn({14, 7, 3, 3}), (QStringList{"...", ".9.", "..."}));
    }

    void pasteGoesOnWhileTheButtonIsHeld()
    {
        Painting f;
        f.map->setTile({0, 1}, {7, false, false, false, 3, true});
        QApplication::clipboard()->setMimeData(f.map->tileLayer()->toMimeData({0, 0, 1, 2}));
        f.map->setTile({0, 1}, {});
        f.map->setTile({5, 4}, {5, false, false, false, 0, true});
        f.grid.setMode(Paste);
        f.move(f.at(5, 5));
        f.drag({f.at(5, 5), f.at(7, 9)}); // with the middle row at the pointer: rows 4 and 5
        QCOMPARE(f.tilesIn({5, 4, 3, 6}), (QStringList{"...", "7..", "...", ".7.", "...", "..7"}));
        QCOMPARE(f.tile(7, 9).offset, 3);
        f.grid.setFlipped(true); // turned since the tool was taken
        f.move(f.at(12, 9));
        f.click(f.at(12, 9));
        QCOMPARE(f.tilesIn({12, 8, 1, 2}), (QStringList{"7", "."}));
        f.map->setTile({0, 14}, {8, false, false, false, 0, true});
        f.map->setTile({1, 14}, {9, false, false, false, 0, true});
        QApplication::clipboard()->setMimeData(f.map->tileLayer()->toMimeData({0, 14, 2, 1}));
        f.grid.setMode(Draw);
        f.grid.setMode(Paste);
        f.move(f.at(15, 14));
        f.drag({f.at(15, 14), f.at(11, 14)}); // to the left, in places that begin with the first
        QCOMPARE(f.tilesIn({9, 14, 8, 1}), QStringList{".898989."});
        QCOMPARE(f.steps(), "Paste|Paste|Paste");
        f.stack.setIndex(0);
        QCOMPARE(f.tilesIn({5, 4, 3, 2}), (QStringList{"5..", "..."}));
    }

    void shapesRepeatTheStamp()
    {
        Painting f;
        f.grid.setStamp(stampOf({2, 1}, {1, 2}));
        f.grid.setMode(Rectangle);
        f.drag({f.at(2, 2), f.at(5, 4)});
        QCOMPARE(f.tilesIn({2, 2, 4, 3}), (QStringList{"1212", "1..2", "1212"}));
        f.grid.setMode(Line);
        f.press(f.at(2, 8));
        f.move(f.at(8, 9));
        QTest::keyPress(&f.grid, Qt::Key_Shift);
        f.move(f.at(8, 9), Qt::ShiftModifier); // level now
        QCOMPARE(f.tilesIn({2, 8, 7, 1}), QStringList{"......."}); // not before it is released
        f.release(f.at(8, 9));
        QCOMPARE(f.tilesIn({2, 8, 7, 2}), (QStringList{"1212121", "......."}));
        f.grid.setMode(Fill);
        f.click(f.at(3, 3)); // the two cells within
        QCOMPARE(f.tilesIn({1, 2, 6, 3}), (QStringList{".1212.", ".1212.", ".1212."}));
        f.grid.setSelection({10, 10, 2, 2});
        f.click(f.at(10, 11));
        QCOMPARE(f.tilesIn({9, 9, 4, 4}), (QStringList{"....", ".21.", ".21.", "...."})); // its middle at the click
        f.grid.setMode(CircleFill);
        f.drag({f.at(2, 2), f.at(5, 4)}, Qt::RightButton);
        QCOMPARE(f.tilesIn({2, 2, 4, 3}), (QStringList{"1..2", "....", "1..2"}));
        QCOMPARE(f.steps(), "Rectangle|Line|Bucket Fill|Bucket Fill|Ellipse");
        f.grid.setMode(Rectangle);
        f.press(f.at(0, 0));
        f.move(f.at(5, 5));
        f.grid.setMode(Draw); // as Escape does
        f.release(f.at(5, 5));
        QCOMPARE(f.stack.count(), 5);
    }

    void randomTilesComeAsOftenAsTheyStandInTheStamp()
    {
        Painting f;
        f.grid.setStamp(stampOf({3, 2}, {1, 1, 1, 2, -1, -1}));
        f.grid.setRandom(true);
        f.grid.setMode(RectangleFill);
        QString last;
        for (int i = 0; i < 2; ++i) {
            f.drag({f.at(0, 0), f.at(19, 15)});
            const QString all = f.tilesIn({0, 0, 20, 16}).join(QString());
            const auto twos = all.count(u'2');
            QCOMPARE(all.count(u'1') + twos, 320);
            QVERIFY2(twos > 40 && twos < 130, qPrintable(QString::number(twos))); // 80 on average
            QVERIFY(all != std::exchange(last, all)); // another choice
        }
        f.grid.setMode(Draw);
        f.grid.setStamp(stampOf({3, 2}, {6, 6, 6, 6, 6, 6}));
        f.click(f.at(3, 3)); // one cell
        QCOMPARE(f.tilesIn({2, 2, 3, 3}).join(QString()).count(u'6'), 1);
    }

    void controlPaintsPaletteOffsetsAlone()
    {
        Painting f;
        f.map->setTile({2, 2}, {5, true, false, false, 0, true});
        f.map->setTile({3, 2}, {3, false, false, false, 9, true});
        f.grid.setCurrentTileIndex(7);
        f.grid.setPaletteOffset(6);
        f.drag({f.at(2, 2), f.at(4, 2)}, Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(f.tile(2, 2), (Cell{5, true, false, false, 6, true}));
        QCOMPARE(f.tile(3, 2).offset, 6);
        QVERIFY(!f.tile(4, 2).used); // was never written
        f.drag({f.at(2, 2), f.at(4, 2)}, Qt::RightButton, Qt::ControlModifier);
        QCOMPARE((QList{f.tile(2, 2).offset, f.tile(3, 2).offset}), (QList{0, 2})); // that of the tile
        f.click(f.at(4, 2));
        QCOMPARE(f.tile(4, 2), (Cell{7, false, false, false, 6, true}));
        QCOMPARE(f.steps(), "Paint|Paint|Paint");
    }

    void selectionIsMovedByDragging()
    {
        Painting f;
        for (const auto &[at, index] : {std::pair(QPoint(1, 1), 1), {{2, 1}, 2}, {{1, 2}, 1}, {{8, 8}, 1}})
            f.map->setTile(at, {index, false, false, false, 0, true});
        const Map::Snapshot before = f.map->snapshot();
        f.grid.setMode(Select);
        f.grid.setSelection({1, 1, 2, 2});
        f.drag({f.at(2, 2), f.at(5, 3)});
        QCOMPARE(f.tilesIn({1, 1, 5, 3}), (QStringList{".....", "...12", "...1."}));
        QCOMPARE(f.grid.selection(), QRect(4, 2, 2, 2));
        f.stack.undo();
        QVERIFY(f.map->snapshot() == before);

        f.grid.setCurrentTileIndex(1);
        f.grid.selectCurrentTile(); // which is no rectangle
        QCOMPARE(f.grid.selection(), QRect(1, 1, 8, 8));
        f.press(f.at(1, 1));
        f.move(f.at(2, 1), Qt::ControlModifier);
        f.release(f.at(2, 1)); // copied over the other tile
        QCOMPARE(f.tilesIn({1, 1, 3, 2}), (QStringList{"11.", "11."}));
        f.grid.setCurrentTileIndex(6);
        f.grid.fillSelection();
        QCOMPARE(f.tilesIn({1, 1, 3, 2}), (QStringList{"16.", "16."}));
        f.grid.copySelection();
        const TileMap::Selection copied = TileMap::readSelection(QApplication::clipboard()->mimeData());
        QCOMPARE(copied.size, QSize(8, 8));
        QCOMPARE(std::ranges::count_if(copied.cells, &Cell::used), 3);
        f.grid.clearSelection();
        QCOMPARE(f.tilesIn({1, 1, 3, 2}), (QStringList{"10.", "10."}));
        QCOMPARE(f.steps(), "Copy Cells|Fill|Clear");
        f.stack.setIndex(0);
        QVERIFY(f.map->snapshot() == before);
    }

    void nothingGoesOnWhenTheReleaseIsLost()
    {
        for (const ToolButton tool : {Draw, Paste, PaintTerrain, Rectangle, Select}) {
            Painting f;
            f.map->setTile({3, 3}, {9, false, false, false, 0, true});
            QApplication::clipboard()->setMimeData(f.map->tileLayer()->toMimeData({3, 3, 1, 1}));
            f.grid.setStamp(stampOf({2, 2}, {1, 2, 3, 4}));
            f.grid.setTerrain({"Ground", false, {{5, Terrain::All}}});
            f.grid.setMode(tool);
            f.grid.setSelection({2, 2, 4, 4});
            f.move(f.at(3, 3));
            f.press(f.at(3, 3));
            f.move(f.at(5, 5));
            f.grid.hide(); // as when the window goes
            f.grid.show();
            const Map::Snapshot before = f.map->snapshot();
            const int steps = f.stack.count();
            f.move(f.at(12, 9));
            f.release(f.at(12, 9));
            QVERIFY(f.map->snapshot() == before);
            QCOMPARE(f.stack.count(), steps);
            f.stack.setIndex(0);
            QCOMPARE(f.tilesIn({0, 0, 20, 16}).join(QString()).count(u'.'), 319);
        }
    }

    void tilesThatAreGoneArePaintedByNobody()
    {
        Painting f;
        f.map->setTile({0, 0}, {15, false, false, false, 0, true});
        QApplication::clipboard()->setMimeData(f.map->tileLayer()->toMimeData({0, 0, 2, 1}));
        f.map->setTile({0, 0}, {});
        f.grid.setStamp(stampOf({2, 1}, {15, 1}));
        f.grid.setTerrain({"Ground", false, {{15, Terrain::All}}});
        f.grid.setMode(Paste);
        f.tiles->deleteTile(3);
        f.move(f.at(4, 4));
        f.click(f.at(4, 4));
        for (const ToolButton tool : {Draw, Fill, PaintTerrain}) {
            f.grid.setMode(tool);
            f.click(f.at(9, 9));
        }
        QVERIFY(!f.tilesIn({0, 0, 20, 16}).join(QString()).contains(u'f'));
    }

    void deskPicksStampsAndKeepsThem()
    {
        MapViewFixture f;
        MapEditor::PaintKits kits;
        kits.setProject(&f.project);
        PaintKit &kit = *kits.kitFor(f.tiles);
        f.view.offerMore(&kit);
        MapEditor::PaintDesk &desk = *f.view.paintDesk();
        const MapEditor::MapBrush &brush = f.grid->brush();
        desk.pickTiles({{1, 2, 3}, {4, 5, 16}}); // the last one is behind the end
        const Stamp tiles = brush.stamp;
        QCOMPARE(tiles.size(), QSize(3, 2));
        QCOMPARE(tiles.at(2, 0), (Cell{3, false, false, false, 2, true}));
        QVERIFY(!tiles.at(2, 1).used);
        QCOMPARE(Stamp::fromClipboard(QApplication::clipboard()->mimeData(), f.tiles->id()), tiles);

        f.map->setTile({3, 3}, {9, true, true, false, 5, true});
        f.view.toolPaletteClicked(Pick, true);
        QTest::mousePress(f.grid, Qt::LeftButton, {}, f.cell(3, 3));
        QTest::mouseMove(f.grid, f.cell(4, 4));
        QTest::mouseRelease(f.grid, Qt::LeftButton, {}, f.cell(4, 4));
        QCOMPARE(brush.stamp.size(), QSize(2, 2));
        QCOMPARE(brush.stamp.at(0, 0), f.tile(3, 3));
        QCOMPARE(f.grid->mode(), Draw);
        auto *offset = desk.bar()->findChild<QSpinBox *>();
        offset->setFocus();
        offset->selectAll(); // as when it is reached by keys
        QTest::keyClicks(offset, "7");
        QTest::keyClick(offset, Qt::Key_Return);
        QCOMPARE(brush.offset, 7);
        QCOMPARE(f.view.focusWidget(), f.grid);
        QCOMPARE(kit.stamps().size(), 2);
        kit.nameStamp(1, "Wall");
        for (int i = 0; i < 2 * PaintKit::MostRecent; ++i)
            kit.addStamp(stampOf({1, 2}, {i % 16, i / 16}));
        QCOMPARE(kit.stamps().size(), PaintKit::MostRecent + 1);
        QCOMPARE(kit.stamps().last().stamp, tiles); // which has a name
        desk.pickStamp(kit.stamps().at(3).stamp); // one of its own
        QCOMPARE(kit.stamps().first().stamp, brush.stamp);
        QCOMPARE(kit.stamps().size(), PaintKit::MostRecent + 1);
        f.tiles->insertTile(2);
        QCoreApplication::processEvents();
        QCOMPARE(kit.stamps().last().stamp.at(1, 0).index, 3);

        MapEditor::PaintKits others; // as when the project is opened again
        others.setProject(&f.project);
        const auto contents = [](const PaintKit &of) {
            return std::pair(valuesOf(of.stamps(), &PaintKit::KeptStamp::stamp),
                             valuesOf(of.stamps(), &PaintKit::KeptStamp::name));
        };
        QVERIFY(contents(*others.kitFor(f.tiles)) == contents(kit));
    }

    void damagedExtrasCostOnlyThemselves()
    {
        MapAssets assets;
        const std::pair<QString, QByteArray> sections[] = {
            {"stamps", R"([{"cells": [[1, 2], [3]]}, 7, {"cells": "no"}, {"cells": [[65541, -1]], "name": "A"}])"},
            {"terrains", R"([{"name": "Grass", "neighbours": 8, "tiles": [[4, 255], [-3, 1], [2, 999], "x"]}, 1,
                              {"turns": true}])"}};
        for (const auto &[name, json] : sections) {
            const QJsonArray content = QJsonDocument::fromJson(json).array();
            assets.project.extras()->setSection(
                name, QJsonObject{{assets.tiles->id().toString(QUuid::WithoutBraces), content}});
        }
        MapEditor::PaintKits kits;
        kits.setProject(&assets.project);
        const PaintKit &kit = *kits.kitFor(assets.tiles);
        QCOMPARE(kit.stamps().size(), 1);
        QCOMPARE(kit.stamps().first().stamp.at(0, 0), (Cell{5, true, false, false, 0, true}));
        QCOMPARE(kit.terrains().first().tiles, (QList<Terrain::Tile>{{2, 999 & 255}, {4, 255}}));
        QVERIFY(kit.terrains().first().corners && !kit.terrains().first().turns);
        QVERIFY(kit.terrains().last().turns);
        QVERIFY(!kit.terrainsToJson().first().toObject().contains("turns")); // files stay as they were
        QVERIFY(kit.terrainsToJson().last()["turns"].toBool());
    }

    void tilesAreReplacedInOneStep()
    {
        MapAssets assets;
        const QPointer<Map> other = assets.project.createMap("Cave", assets.tiles->id(), {5, 5});
        const QPointer<TileSet> foreignTiles = assets.project.createTileSet("Others", assets.palette->id(), 16);
        const QPointer<Map> foreign = assets.project.createMap("Moon", foreignTiles->id(), {5, 5});
        const Cell cell{4, true, false, true, 7, true};
        const Cell replaced{3, true, false, true, 2, true};
        const QList maps{assets.map, other, foreign};
        for (const QPointer<Map> &map : maps) {
            map->setTile({1, 1}, cell);
            map->setTile({3, 3}, cell);
        }
        MapEditor::View view(assets.map);
        view.setUndoStack(&assets.stack);
        view.offerMore(nullptr);
        view.grid()->setSelection({0, 0, 2, 2});
        const auto cells = [&maps](int x) {
            return valuesOf(maps, [x](const QPointer<Map> &map) { return map->tileLayer()->cellAt({x, x}); });
        };
        using Dialog = ReplaceTileDialog;
        for (const auto &[scope, first, second] :
             {std::tuple(Dialog::Selection, QList{replaced, cell, cell}, QList{cell, cell, cell}),
              {Dialog::ThisMap, {replaced, cell, cell}, {replaced, cell, cell}},
              {Dialog::AllMaps, {replaced, replaced, cell}, {replaced, replaced, cell}}}) {
            for (int i = 0; i < 2; ++i) // there are none left the second time
                view.paintDesk()->replaceTile({4, 3}, scope);
            QCOMPARE(assets.stack.count(), 1);
            QVERIFY(cells(1) == first && cells(3) == second);
            assets.stack.undo();
            QVERIFY(cells(1) == QList<Cell>(3, cell) && cells(3) == QList<Cell>(3, cell));
        }
        QCOMPARE(assets.steps(), "Replace Tile in All Maps");
        assets.stack.redo();
        QCOMPARE(cells(1), (QList{replaced, replaced, cell}));
    }

    void viewIsMovedByWheelSpaceAndOverview()
    {
        Painting f;
        f.map->resize({100, 80});
        f.grid.setMap(f.map);
        QSignalSpy scrolled(&f.grid, &MapEditor::MapGrid::scrollPositionChanged);
        f.grid.scrollTo({30, 20});
        const QPoint middle = f.grid.rect().center();
        const QPoint cell = f.grid.viewport().cellAt(middle);
        for (const int delta : {120, 120, -120, 120, -120, -120, -120}) {
            EditorInput::zoomByWheel(f.grid, delta);
            QCOMPARE(f.grid.viewport().cellAt(middle), cell);
        }
        QCOMPARE(f.grid.viewport().zoomFactor, 3);
        QCOMPARE(scrolled.last(), QVariantList{f.grid.viewport().scroll});
        EditorInput::zoomByWheel(f.grid, 120);

        f.grid.setCurrentTileIndex(3);
        f.grid.scrollTo({30, 20});
        f.grid.setFocus();
        QTest::keyPress(&f.grid, Qt::Key_Space);
        QCOMPARE(f.grid.cursor().shape(), Qt::OpenHandCursor);
        f.drag({f.at(10, 5), f.at(7, 9)});
        QCOMPARE(f.grid.viewport().scroll, QPoint(33, 16));
        QTest::keyRelease(&f.grid, Qt::Key_Space);
        QCOMPARE(f.grid.cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(f.stack.count(), 0);

        f.grid.showCell({99, 0});
        QCOMPARE(f.grid.viewport().visibleCells().topRight(), QPoint(99, 0));
        MapEditor::MapOverview overview(&f.grid);
        overview.show();
        QTest::mouseClick(&overview, Qt::LeftButton, {}, overview.rect().center());
        QVERIFY((f.grid.viewport().visibleCells().center() - QPoint(50, 40)).manhattanLength() <= 4);
        QVERIFY((overview.frame().center() - overview.rect().center()).manhattanLength() <= 4);
        const QRect frame = overview.frame();
        const QPoint scroll = f.grid.viewport().scroll;
        QTest::mousePress(&overview, Qt::LeftButton, {}, frame.topLeft() + QPoint(1, 1)); // takes hold of it
        QCOMPARE(f.grid.viewport().scroll, scroll);
        QTest::mouseMove(&overview, frame.topLeft() + QPoint(11, 1));
        QVERIFY(std::abs(overview.frame().left() - frame.left() - 10) <= 2);
        QVERIFY(std::abs(overview.frame().top() - frame.top()) <= 2);
    }
};

QUENMORA_TEST_MAIN(TestMapPainting)
#include "tst_mappainting.moc"
