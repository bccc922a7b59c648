#include "editors/map/anchorpad.h"
#include "editors/map/mapanimator.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mappreferences.h"
#include "editors/map/resizedialog.h"
#include "editors/map/resizepreview.h"
#include "editors/map/spritepropertiespopover.h"
#include "support/mapfixture.h"
#include "support/paintwatch.h"
#include "support/testmain.h"
#include "ui/scrollbar.h"

#include <QtWidgets>

using namespace Quenmora::Ui;
using MapEditor::View;

class TestMapView : public QObject
{
    Q_OBJECT

private slots:
    void keysActOnTheMap()
    {
        MapViewFixture f;
        f.grid->setHorizontalScrollPosition(2);
        f.grid->setVerticalScrollPosition(2);
        const auto state = [&f] {
            const auto &viewport = f.grid->viewport();
            return QVariantList{int(f.grid->mode()),
                                f.grid->isRotated(),
                                f.grid->isFlipped(),
                                f.grid->isMirrored(),
                                viewport.scroll,
                                viewport.zoomFactor,
                                f.grid->isGridVisible() && f.map->gridVisible()};
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
        QVERIFY(!f.action(Grid)->isChecked());
        QCOMPARE(f.grid->viewport().cellSize, 20);
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

    void pickedTilesAreTakenOver()
    {
        MapViewFixture f;
        f.map->setTile({2, 3}, {.index = 7, .rotate = true, .mirror = true, .used = true});
        f.map->placeAnimation(f.animation, {4, 4});
        f.action(Flip)->trigger();
        QSignalSpy picked(&f.view, &View::tilePicked);
        QSignalSpy animation(&f.view, &View::animationPicked);
        QTest::mouseClick(f.grid, Qt::MiddleButton, {}, f.cell(2, 3));
        QCOMPARE(picked, (Signals{{7}}));
        QCOMPARE(f.grid->currentTileIndex(), 7);
        QVERIFY(f.action(RotateCW)->isChecked() && !f.action(Flip)->isChecked() && f.action(Mirror)->isChecked());
        QVERIFY(f.grid->isRotated() && !f.grid->isFlipped() && f.grid->isMirrored());
        QTest::mouseClick(f.grid, Qt::MiddleButton, {}, f.cell(5, 4));
        QCOMPARE(animation, (Signals{{f.animation->id()}}));
    }

    void docksChooseTheTool()
    {
        MapViewFixture f;
        f.map->objectLayer()->setVisible(false); // as in a new map
        QSignalSpy animations(&f.view, &View::placeAnimModeEnabled);
        QSignalSpy sprites(&f.view, &View::placeSpriteModeEnabled);
        f.view.setMapObject(f.animation);
        QCOMPARE(f.toolPalette->mode(), PlaceAnim);
        QVERIFY(f.map->objectLayer()->isVisible()); // or it could not be placed
        f.view.setSingleSprite(f.bank->id(), 2);
        QCOMPARE(*f.grid->spriteTemplate(), f.sprite(2, {}));
        f.view.setSpriteAnimation(f.run);
        QCOMPARE(*f.grid->spriteTemplate(), f.animated({}));
        QCOMPARE(animations.count() + sprites.count(), 2);
        f.view.setTileIndex(4);
        f.action(Draw)->trigger();
        QCOMPARE(f.grid->currentTile(), (TileMap::TileData{4, false, false, false, 0, true}));
        QCOMPARE(f.grid->mode(), Draw);
    }

    void scrollBarsFollowTheGrid()
    {
        MapViewFixture f;
        const auto bars = f.view.findChildren<ScrollBar *>();
        const bool swapped = bars.at(0)->orientation() == Qt::Vertical;
        const auto [horizontal, vertical] = std::pair(bars.at(swapped ? 1 : 0), bars.at(swapped ? 0 : 1));
        const QSize shown = f.grid->viewport().visibleSize();
        QCOMPARE(horizontal->maximum(), 20 - shown.width());
        QCOMPARE(vertical->maximum(), 16 - shown.height());
        QCOMPARE(vertical->bar()->pageStep(), shown.height());
        vertical->setValue(3);
        horizontal->setValue(1);
        QCOMPARE(f.grid->viewport().scroll, QPoint(1, 3));
        f.grid->scrollUp();
        QCOMPARE(vertical->value(), 2);
        f.view.toolPaletteClicked(ExpandToFit);
        QCOMPARE(horizontal->maximum(), 0);
        QCOMPARE(f.grid->viewport().scroll, QPoint(0, 0));
    }

    void popoverEditsTheSprite()
    {
        MapViewFixture f;
        f.clickSprite();
        auto *popover = f.view.popover();
        for (QWidget *field : popover->content()->findChildren<QWidget *>()) {
            if (auto *name = qobject_cast<QLineEdit *>(field); name && name->hasFocus())
                name->setText("Hero");
            else if (auto *box = qobject_cast<QCheckBox *>(field); box)
                box->click();
            else if (auto *number = qobject_cast<QSpinBox *>(field))
                number->setValue(99999); // above the range: its end
        }
        const QList<QCheckBox *> boxes = popover->findChildren<QCheckBox *>();
        const Map::PlacedSprite all{f.bank->id(), {}, 0, 40, 40, true, true, true, 255, 9999, 9999, 15, "Hero"};
        QCOMPARE(f.map->sprites().at(0), all);
        QCOMPARE(f.stack.count(), 8);
        f.stack.setIndex(3); // which the fields follow, and edit nothing
        QCOMPARE(popover->sprite(), f.map->sprites().at(0));
        QVERIFY(boxes.at(1)->isChecked() && !boxes.at(2)->isChecked());
        QCOMPARE(f.stack.count(), 8);

        f.map->addSprite(f.sprite(1, {80, 16}));
        const QPoint before = popover->pos();
        QSignalSpy picked(&f.view, &View::spritePicked);
        f.grid->selectSprite(1); // which the popover follows, too
        QCOMPARE(popover->sprite(), f.map->sprites().at(1));
        QCOMPARE(picked, (Signals{{QVariant::fromValue(f.map->sprites().at(1))}}));
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
        auto *anchor = dialog->findChild<MapEditor::AnchorPad *>();
        const auto *preview = dialog->findChild<MapEditor::ResizePreview *>();
        width->setValue(11);
        for (const auto &[alignment, left] :
             {std::pair(Qt::AlignLeft, 0), {Qt::AlignHCenter, 4}, {Qt::AlignRight, 9}}) {
            anchor->setAlignment(alignment | Qt::AlignVCenter);
            QCOMPARE(preview->kept(), QRect(left, 0, 11, 16));
        }
        width->setValue(24);
        QCOMPARE(preview->kept(), QRect(0, 0, 20, 16));
        dialog->accept();
        QCOMPARE(f.map->sprites().at(0).x, 40 + 4 * 8);
        QCOMPARE(f.steps(), "Resize Map");
        QCOMPARE(f.view.sizeText(), "24x16 (768 bytes)");
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
