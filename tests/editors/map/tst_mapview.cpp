// A map in its tab, with the tool bar and the docks beside it.

#include "editors/common/animationlistwidget.h"
#include "editors/map/anchorpad.h"
#include "editors/map/blockselectorwindow.h"
#include "editors/map/mapanimator.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mappreferences.h"
#include "editors/map/mapspriteswindow.h"
#include "editors/map/resizedialog.h"
#include "editors/map/resizepreview.h"
#include "editors/map/spritepropertiespopover.h"
#include "support/mapfixture.h"
#include "support/paintwatch.h"
#include "support/testmain.h"
#include "ui/scrollbar.h"

#include <QtWidgets>

using namespace Quenmora::Ui;
using AnimationEditor::AnimationListWidget;
using MapEditor::View;

namespace {

/// Block animations "Torch", "Door" and "Water", and the sprite animation "Run".
struct DockFixture : MapAssets
{
    QPointer<SpriteBank> foes;

    DockFixture()
    {
        run->setName("Run");
        for (const auto *name : {"Door", "Water"})
            blocks->createBoundTileAnimation(name)->addFrame();
        foes = project.createSpriteBank(Quenmora::FourBit, "Foes", palette->id());
    }
};

QString names(const QWidget &parent)
{
    return valuesOf(parent.findChild<AnimationListWidget *>()->animations(),
                    [](const auto &shown) { return shown->name(); })
        .join(' ');
}

void click(QAbstractItemView *view, int row)
{
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(view->model()->index(row, 0)).center());
}

} // namespace

class TestMapView : public QObject
{
    Q_OBJECT

private slots:
    void keysActOnTheMap()
    {
        MapViewFixture f;
        f.grid->setHorizontalScrollPosition(2);
        f.grid->setVerticalScrollPosition(2);
        const auto state = [&f, &grid = *f.grid] {
            const QVariantList turns{grid.isRotated(), grid.isFlipped(), grid.isMirrored()};
            return QVariantList{int(grid.mode())} + turns
                + QVariantList{grid.viewport().scroll, grid.viewport().zoomFactor,
                               grid.isGridVisible() && f.map->gridVisible()};
        };
        QVariantList expected = state();
        for (const auto &[key, modifiers, field, value] :
             {std::tuple(Qt::Key_S, Qt::NoModifier, 0, QVariant(int(Select))),
              {Qt::Key_P, Qt::NoModifier, 0, int(Pick)},
              {Qt::Key_D, Qt::NoModifier, 0, int(Draw)},
              {Qt::Key_R, Qt::ControlModifier, 1, true},
              {Qt::Key_F, Qt::ShiftModifier, 2, true},
              {Qt::Key_M, Qt::ShiftModifier, 3, true},
              {Qt::Key_Down, Qt::NoModifier, 4, QPoint(2, 3)},
              {Qt::Key_Right, Qt::NoModifier, 4, QPoint(3, 3)},
              {Qt::Key_Up, Qt::NoModifier, 4, QPoint(3, 2)},
              {Qt::Key_Left, Qt::NoModifier, 4, QPoint(2, 2)},
              {Qt::Key_Equal, Qt::NoModifier, 5, 5},
              {Qt::Key_Minus, Qt::NoModifier, 5, 4},
              {Qt::Key_G, Qt::NoModifier, 6, true}}) {
            QTest::keyClick(f.grid, key, modifiers);
            expected[field] = value;
            QCOMPARE(state(), expected);
        }
        f.view.applyPreferences({.overlayGrid = false, .gridSize = 10, .defaultZoom = 2});
        QVERIFY(!f.action(Grid)->isChecked() && f.grid->viewport().cellSize == 20);
        f.map->setTile({1, 1}, {.index = 3, .offset = 9, .used = true});
        f.view.toolPaletteClicked(PaintPalette);
        QCOMPARE(f.tile(1, 1).offset, 2);
        QCOMPARE(f.stack.count(), 0);
    }

    void keysCancelAndDelete()
    {
        MapViewFixture f;
        f.map->setTile({0, 0}, {.index = 5, .used = true});
        f.map->placeAnimation(f.animation, {0, 2});
        f.grid->setSelection({0, 0, 1, 1});
        f.grid->pointer().sprite = 0;
        f.grid->pointer().highlight = {0, 2, 3, 2};
        for (const auto &[key, step] : {std::pair(Qt::Key_Delete, "Delete Sprite"),
                                        {Qt::Key_Backspace, "Remove Animation"},
                                        {Qt::Key_Delete, "Clear"}}) {
            QTest::keyClick(f.grid, key);
            QCOMPARE(f.steps().split('|').last(), step);
        }
        QCOMPARE(f.stack.count(), 3);
        QCOMPARE(f.tile(0, 0).index, 0);
        f.grid->setMode(Select);
        QTest::keyClick(f.grid, Qt::Key_Escape);
        QCOMPARE(f.grid->mode(), Draw);
    }

    void docksAndPicksChooseWhatIsPainted()
    {
        MapViewFixture f;
        f.map->objectLayer()->setVisible(false); // as in a new map
        f.map->setTile({2, 3}, {.index = 7, .rotate = true, .mirror = true, .used = true});
        f.map->placeAnimation(f.animation, {4, 4});
        SignalLog log;
        log.listen(f.view, &View::tilePicked, "tile");
        log.listen(f.view, &View::animationPicked, "animation");
        log.listen(f.view, &View::placeAnimModeEnabled, "place animations");
        log.listen(f.view, &View::placeSpriteModeEnabled, "place sprites");
        f.view.setMapObject(f.animation);
        QCOMPARE(f.toolPalette->mode(), PlaceAnim);
        QVERIFY(f.map->objectLayer()->isVisible()); // or it could not be placed
        f.view.setSingleSprite(f.bank->id(), 2);
        QCOMPARE(*f.grid->spriteTemplate(), f.sprite(2, {}));
        f.view.setSpriteAnimation(f.run);
        QCOMPARE(*f.grid->spriteTemplate(), f.animated({}));
        f.view.setTileIndex(4);
        f.action(Draw)->trigger();
        f.action(Flip)->trigger();
        QCOMPARE(f.grid->currentTile(), (TileMap::TileData{4, false, true, false, 0, true}));
        QCOMPARE(f.grid->mode(), Draw);
        for (const QPoint cell : {QPoint(2, 3), QPoint(5, 4)})
            QTest::mouseClick(f.grid, Qt::MiddleButton, {}, f.cell(cell.x(), cell.y()));
        QCOMPARE(log.take().join(", "),
                 "place animations, place sprites, tile 7, tile 0, animation " + f.animation->id().toString());
        QTest::mouseClick(f.grid, Qt::MiddleButton, {}, f.cell(2, 3));
        QVERIFY(f.action(RotateCW)->isChecked() && !f.action(Flip)->isChecked() && f.action(Mirror)->isChecked());
        QCOMPARE(f.grid->currentTile(), (TileMap::TileData{7, true, false, true, 0, true}));
    }

    void scrollBarsFollowTheGrid()
    {
        MapViewFixture f;
        auto bars = f.view.findChildren<ScrollBar *>(); // the horizontal one first
        std::ranges::sort(bars, {}, &ScrollBar::orientation);
        const QSize shown = f.grid->viewport().visibleSize();
        QCOMPARE(QSize(bars[0]->maximum(), bars[1]->maximum()), QSize(20, 16) - shown);
        QCOMPARE(bars[1]->bar()->pageStep(), shown.height());
        bars[1]->setValue(3);
        bars[0]->setValue(1);
        QCOMPARE(f.grid->viewport().scroll, QPoint(1, 3));
        f.grid->scrollUp();
        QCOMPARE(bars[1]->value(), 2);
        f.view.toolPaletteClicked(ExpandToFit);
        QCOMPARE(bars[0]->maximum(), 0);
        QCOMPARE(f.grid->viewport().scroll, QPoint(0, 0));
    }

    void popoverEditsTheSprite()
    {
        MapViewFixture f;
        f.clickSprite();
        auto *popover = f.view.popover();
        popover->findChild<QLineEdit *>()->setText("Hero");
        const QList<QCheckBox *> boxes = popover->findChildren<QCheckBox *>();
        for (QCheckBox *box : boxes)
            box->click();
        for (QSpinBox *number : popover->findChildren<QSpinBox *>())
            number->setValue(99999); // above the range: its end
        const Map::PlacedSprite all{f.bank->id(), {}, 0, 40, 40, true, true, true, 255, 9999, 9999, 15, "Hero"};
        QCOMPARE(f.map->sprites().at(0), all);
        f.stack.setIndex(3); // which the fields follow, and edit nothing
        QCOMPARE(popover->sprite(), f.map->sprites().at(0));
        QVERIFY(boxes.at(1)->isChecked() && !boxes.at(2)->isChecked());
        QCOMPARE(f.stack.count(), 8);

        f.map->addSprite(f.sprite(1, {80, 16}));
        const QPoint before = popover->pos();
        QSignalSpy picked(&f.view, &View::spritePicked);
        f.grid->selectSprite(1); // which the popover follows, too
        QCOMPARE(picked, (Signals{{QVariant::fromValue(popover->sprite())}}));
        QVERIFY(popover->x() > before.x());
        boxes.at(2)->setFocus();
        for (const Qt::Key key : {Qt::Key_S, Qt::Key_Delete, Qt::Key_Escape}) {
            QVERIFY(popover->isVisible());
            QTest::keyClick(boxes.at(2), key); // for the popover, not for the editor behind
        }
        QVERIFY(f.grid->mode() == PlaceSprite && f.map->sprites().size() == 2);
        f.grid->selectSprite(0);
        QVERIFY(!popover->isVisible()); // closed once, it stays so
    }

    void resizesByDialog()
    {
        MapViewFixture f;
        f.view.toolPaletteClicked(Resize);
        MapEditor::ResizeDialog *dialog = f.view.resizeDialog();
        QVERIFY(dialog->isVisible() && dialog->mapSize() == QSize(20, 16));
        dialog->accept();
        QCOMPARE(f.stack.count(), 0);
        auto *width = dialog->findChildren<QSpinBox *>().at(0);
        const auto *preview = dialog->findChild<MapEditor::ResizePreview *>();
        width->setValue(11);
        dialog->findChild<MapEditor::AnchorPad *>()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(preview->kept(), QRect(9, 0, 11, 16));
        width->setValue(24);
        dialog->accept();
        QCOMPARE(f.map->sprites().at(0).x, 40 + 4 * 8);
        QCOMPARE(f.steps(), "Resize Map");
    }

    void playingRepaintsWhatChanged()
    {
        MapViewFixture f;
        f.map->placeAnimation(f.animation, {3, 2});
        f.run->addFrame();
        f.run->setDelay(3);
        f.map->addSprite(f.animated({60, 60}));
        PaintWatch painted(f.grid);
        const auto paintedByTick = [&] { return painted.after([&f] { f.view.animator()->tick(); }); };
        const QRegion block = f.grid->viewport().rectOfCells({3, 2, 3, 2});
        paintedByTick();
        QCOMPARE(paintedByTick(), block);
        QCOMPARE(f.grid->spriteTicks(), qint64(2));
        QCOMPARE(paintedByTick(), block + f.grid->spriteRect(1));
        f.map->objectLayer()->setVisible(false);
        QCOMPARE(paintedByTick(), QRegion());
    }

    void animationPlaysWhenItMay()
    {
        MapViewFixture f;
        const auto plays = [&f] { return f.view.animator()->isRunning(); };
        f.action(AnimPlay)->trigger();
        QVERIFY(plays());
        f.view.pauseAnimation();
        QVERIFY(!plays());
        f.view.resumeAnimation();
        f.view.hide(); // another tab is in front
        QVERIFY(!plays());
        f.view.show();
        QVERIFY(plays());
        f.view.toolPaletteClicked(AnimStop);
        f.view.resumeAnimation();
        QVERIFY(!plays() && !f.action(AnimPlay)->isChecked());
    }

    void toolBarServesTheAttachedView()
    {
        MapViewFixture first;
        MapViewFixture second;
        MapEditor::ToolBar toolBar;
        QAction *tiles = toolBar.actions().at(0);
        const auto number = [&toolBar](const QString &toolTip) {
            const auto boxes = toolBar.findChildren<QSpinBox *>();
            return *std::ranges::find(boxes, toolTip, &QSpinBox::toolTip);
        };
        QSpinBox *snap = number("Sets the snap to grid size");
        QSignalSpy snaps(&toolBar, &MapEditor::ToolBar::snapToValueChanged);
        first.map->objectLayer()->setVisible(false);
        first.view.toolPaletteClicked(ToggleViewport, true);
        first.view.attachToolBar(&toolBar);
        QVERIFY(tiles->isChecked() && !toolBar.actions().at(1)->isChecked());
        tiles->trigger();
        snap->setValue(4);
        number("Size in cells of the viewport")->setValue(10);
        number("Tile index to be used as a background")->setValue(5);
        number("Sets the transparency index of the tile set (0-15) or off")->setValue(99); // above the range: its end
        QVERIFY(!first.map->tileLayer()->isVisible());
        QCOMPARE(first.grid->viewport().viewportSize, QSize(10, 32));
        QCOMPARE(first.map->backgroundTileIndex(), 5);
        QCOMPARE(first.grid->transparencyIndex(), 15);
        QCOMPARE(View(first.map).grid()->transparencyIndex(), 15); // the map keeps it for the next view

        first.view.detachToolBar();
        second.view.attachToolBar(&toolBar);
        QVERIFY(tiles->isChecked());
        QCOMPARE(toolBar.viewport(), QSize(40, 32));
        snap->setValue(2);
        QCOMPARE(first.grid->viewport().snap, 4);
        QCOMPARE(second.grid->viewport().snap, 2);

        second.view.detachToolBar();
        first.view.attachToolBar(&toolBar);
        QVERIFY(!tiles->isChecked() && snap->value() == 4);
        QCOMPARE(toolBar.viewport(), QSize(10, 32));
        QCOMPARE(snaps, (Signals{{4}, {2}})); // showing a state tells nothing
        QCOMPARE(toolBar.sizeText(), "20x16 (640 bytes)");
        first.view.addColumn(Quenmora::End);
        first.view.removeRow(Quenmora::Begin);
        first.view.removeColumn(Quenmora::End);
        QCOMPARE(first.steps(), "Add Columns|Remove Rows|Remove Columns");
        QCOMPARE(toolBar.sizeText(), "20x15 (600 bytes)");
    }

    void listedObjectsAreThoseOfTheTileSet()
    {
        DockFixture f;
        BlockSelectorWindow dock;
        dock.setTileSet(f.tiles);
        dock.show();
        auto *items = dock.list()->findChild<QListWidget *>();
        QSignalSpy selected(&dock, &BlockSelectorWindow::animationSelected);
        click(items, 1);
        click(items, 1); // the tool may be another one meanwhile
        QTest::keyClick(items, Qt::Key_Down);
        dock.selectAnimation(f.animation->id()); // is shown, not told
        QCOMPARE(dock.list()->selected(), f.animation.data());
        const auto block = [&f](int row) { return QVariant::fromValue(f.blocks->animations().at(row)); };
        QCOMPARE(selected, (Signals{{block(1)}, {block(1)}, {block(2)}}));

        f.blocks->createBoundTileAnimation("Lift");
        f.blocks->removeAnimation(f.animation->id());
        QCOMPARE(names(dock), "Door Water Lift");
        dock.setTileSet(f.project.createTileSet("Others", f.palette->id(), 16));
        f.blocks->createBoundTileAnimation("Unseen");
        QVERIFY(!dock.isActive() && names(dock).isEmpty());
        dock.setTileSet(f.tiles);
        QVERIFY(dock.isActive());
        delete f.blocks;
        QVERIFY(!dock.isActive());
        delete f.tiles;
        QCOMPARE(dock.placeholderText(), "No active tile set");
    }

    void listedSpritesAreThoseOfTheBank()
    {
        auto f = std::make_unique<DockFixture>();
        MapSpritesWindow dock;
        dock.resize(300, 400);
        dock.setProject(&f->project);
        dock.show();
        auto *sprites = dock.findChild<QListView *>("sprites");
        const auto *animations = dock.findChild<AnimationListWidget *>();
        QSignalSpy single(&dock, &MapSpritesWindow::spriteSelected);
        QSignalSpy animated(&dock, &MapSpritesWindow::spriteAnimationSelected);
        const QUuid id = f->bank->id();
        click(sprites, 2);
        click(dock.findChild<QListWidget *>(), 0);
        QVERIFY(!sprites->currentIndex().isValid() && !sprites->selectionModel()->hasSelection());
        click(sprites, 0);
        click(sprites, 0);
        QVERIFY(!animations->selected());

        // what was chosen on the map is shown, not told
        Map::PlacedSprite placed = f->sprite(0, {});
        placed.bank = f->foes->id();
        dock.selectSprite(placed);
        QCOMPARE(dock.bank(), f->foes);
        QVERIFY(sprites->currentIndex().row() == 0 && names(dock).isEmpty());
        dock.selectSprite(f->animated({}));
        QCOMPARE(animations->selected(), f->run.data());
        placed.bank = QUuid::createUuid(); // one that is gone
        dock.selectSprite(placed);
        QCOMPARE(dock.bank(), f->bank);
        QCOMPARE(single, (Signals{{id, 2}, {id, 0}, {id, 0}}));
        QCOMPARE(animated, (Signals{{QVariant::fromValue(f->run)}}));

        f->bank->addSprite();
        f->bank->newAnimation()->setName("Jump");
        QVERIFY(sprites->model()->rowCount() == 5 && names(dock) == "Run Jump");
        dock.findChild<QComboBox *>()->setCurrentIndex(1);
        QCOMPARE(dock.bank(), f->foes);
        f->project.deleteSpriteBank(f->foes->id());
        QCOMPARE(dock.bank(), f->bank);
        f.reset();
        QVERIFY(!dock.isActive());
        dock.grab();
    }

    void assetsMayGoWhileShown()
    {
        for (const ToolButton mode : {Draw, Select, PlaceAnim, PlaceSprite}) {
            for (const int asset : {0, 1, 2, 3, 4, 5}) {
                MapViewFixture f;
                MapEditor::ToolBar toolBar;
                f.view.attachToolBar(&toolBar);
                f.map->placeAnimation(f.animation, {3, 2});
                f.map->addSprite(f.animated({16, 16}));
                f.view.setMapObject(f.animation);
                f.view.toolPaletteClicked(AnimPlay, true);
                f.view.toolPaletteClicked(Resize);
                f.clickSprite();
                if (mode == Draw)
                    f.grid->setCurrentTileIndex(2);
                f.grid->setMode(mode);
                QTest::mousePress(f.grid, Qt::LeftButton, {}, f.cell(2, 2));
                QTest::mouseMove(f.grid, f.cell(4, 3));
                delete QList<QObject *>{f.map, f.tiles, f.palette, f.blocks, f.bank, f.animation}.at(asset);
                f.view.animator()->tick();
                f.view.grab();
                QTest::mouseMove(f.grid, f.cell(6, 6));
                QTest::mouseRelease(f.grid, Qt::LeftButton, {}, f.cell(6, 6));
                f.view.resizeDialog()->accept();
                for (int button = Draw; button <= ToggleViewport; ++button) {
                    if (button != Save)
                        f.view.toolPaletteClicked(ToolButton(button), true);
                }
                QTest::keyClick(f.grid, Qt::Key_Delete);
                toolBar.actions().at(1)->trigger();
                f.view.selectAll();
                f.view.cut();
                f.view.paste();
                f.view.addRow(Quenmora::Begin);
                f.stack.undo();
                const QColor shown = f.grid->grab().toImage().pixelColor(f.cell(1, 1));
                f.view.detachToolBar();
                QVERIFY(f.map || (!f.view.popover()->isVisible() && shown == f.grid->palette().window().color()));
            }
        }
    }
};

QUENMORA_TEST_MAIN(TestMapView)
#include "tst_mapview.moc"
