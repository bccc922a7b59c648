#include "editors/map/anchorpad.h"
#include "editors/map/exportdialog.h"
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
    void paletteIsAsListed()
    {
        const MapEditor::MapToolPalette palette;
        QStringList shown;
        for (const QAction *action : palette.actions())
            shown += (action->actionGroup() ? "*" : action->isCheckable() ? "+" : "") + action->toolTip();
        QCOMPARE(
            shown.join('|'),
            "*Draw [D]|*Select [S]|*Pick [P]|*Place animations|*Place sprites|+Rotated [Ctrl+R]|+Flipped [Shift+F]|"
            "+Mirrored [Shift+M]|+Toggle Grid [G]|Up [Up]|Down [Down]|Left [Left]|Right [Right]|Zoom Out [-]|"
            "Zoom In [=]|Fit to window|+Toggle viewport|+Play Animations|Reset all palette offsets");
    }

    void keysActOnTheMap()
    {
        MapViewFixture f;
        f.grid->setHorizontalScrollPosition(2);
        f.grid->setVerticalScrollPosition(2);
        const auto state = [&f] {
            const auto &viewport = f.grid->viewport();
            return QVariantList{int(f.grid->mode()),  f.grid->isRotated(),     f.grid->isFlipped(),
                                f.grid->isMirrored(), f.grid->isGridVisible(), f.map->gridVisible(),
                                viewport.scroll,      viewport.zoomFactor};
        };
        QVariantList expected = state();
        for (const auto &[key, modifiers, field, value] :
             {std::tuple(Qt::Key_S, Qt::NoModifier, 0, QVariant(int(Select))),
              {Qt::Key_R, Qt::ControlModifier, 1, true},
              {Qt::Key_F, Qt::ShiftModifier, 2, true},
              {Qt::Key_M, Qt::ShiftModifier, 3, true},
              {Qt::Key_Down, Qt::NoModifier, 6, QPoint(2, 3)},
              {Qt::Key_Right, Qt::NoModifier, 6, QPoint(3, 3)},
              {Qt::Key_Up, Qt::NoModifier, 6, QPoint(3, 2)},
              {Qt::Key_Left, Qt::NoModifier, 6, QPoint(2, 2)},
              {Qt::Key_Equal, Qt::NoModifier, 7, 5},
              {Qt::Key_Plus, Qt::NoModifier, 7, 6},
              {Qt::Key_Minus, Qt::NoModifier, 7, 5}}) {
            QTest::keyClick(f.grid, key, modifiers);
            expected[field] = value;
            QCOMPARE(state(), expected);
        }
        QTest::keyClick(f.grid, Qt::Key_G);
        QVERIFY(f.grid->isGridVisible() && f.map->gridVisible());
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

    void tabFollowsTheName()
    {
        MapViewFixture f;
        QTabWidget tabs;
        tabs.addTab(new QWidget, "Other");
        tabs.addTab(new View(f.map), "Level");
        f.map->setName("Castle & Moat");
        QCOMPARE(tabs.tabText(0) + tabs.tabText(1), "OtherCastle && Moat");
    }

    void popoverEditsTheSprite()
    {
        MapViewFixture f;
        f.clickSprite();
        auto *popover = f.view.popover();
        QSignalSpy edited(popover, &MapEditor::SpritePropertiesPopover::spriteEdited);
        const auto *form = popover->findChild<QFormLayout *>();
        QStringList labels;
        for (QWidget *field : popover->content()->findChildren<QWidget *>()) {
            if (const auto *label = qobject_cast<QLabel *>(form->labelForField(field)))
                labels += label->text();
            if (auto *name = qobject_cast<QLineEdit *>(field); name && name->hasFocus())
                name->setText("Hero");
            else if (auto *box = qobject_cast<QCheckBox *>(field); box)
                box->click();
            else if (auto *number = qobject_cast<QSpinBox *>(field))
                number->setValue(99999); // above the range: its end
        }
        const QList<QCheckBox *> boxes = popover->findChildren<QCheckBox *>();
        for (const QCheckBox *box : boxes)
            labels += box->text();
        QCOMPARE(labels.join('|'), "Name|Start frame|Initial delay|Repeat delay|Palette offset|Mirror|Flip|Rotate");
        const Map::PlacedSprite all{f.bank->id(), {}, 0, 40, 40, true, true, true, 255, 9999, 9999, 15, "Hero"};
        QCOMPARE(f.map->sprites().at(0), all);
        f.stack.setIndex(3); // which the fields follow, and edit nothing
        QCOMPARE(popover->sprite(), f.map->sprites().at(0));
        QVERIFY(boxes.at(1)->isChecked() && !boxes.at(2)->isChecked());
        QCOMPARE(edited.count(), 8);

        f.map->addSprite(f.sprite(1, {80, 16}));
        const QPoint before = popover->pos();
        QSignalSpy picked(&f.view, &View::spritePicked);
        f.grid->selectSprite(1); // which the popover follows, too
        QCOMPARE(popover->sprite(), f.map->sprites().at(1));
        QCOMPARE(picked, (Signals{{QVariant::fromValue(f.map->sprites().at(1))}}));
        QVERIFY(popover->x() > before.x());
        boxes.at(2)->setFocus();
        for (const Qt::Key key : {Qt::Key_S, Qt::Key_Minus, Qt::Key_Delete, Qt::Key_Up, Qt::Key_Escape}) {
            QVERIFY(popover->isVisible());
            QTest::keyClick(boxes.at(2), key); // for the popover, not for the editor behind
            QCOMPARE(f.grid->mode(), PlaceSprite);
        }
        QVERIFY(f.grid->viewport().zoomFactor == 4 && f.map->sprites().size() == 2);
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

    void exportsWhatIsChosen()
    {
        MapViewFixture f;
        QStringList told;
        const auto tell = [&told](const QString &dir, QUuid id) { told.append(dir + id.toString()); };
        for (const auto signal : {&View::exportTileMap, &View::exportTiles, &View::exportTilePalette})
            connect(&f.view, signal, this, tell);
        f.view.toolPaletteClicked(Save);
        auto *folders = f.view.findChild<QFileDialog *>();
        QCOMPARE(folders->windowTitle(), "Choose a directory to export anim into");
        QVERIFY(folders->testOption(QFileDialog::ShowDirsOnly));
        folders->close();
        const QUuid ids[] = {f.map->id(), f.tiles->id(), f.palette->id()};
        const QStringList texts{"Export Map Data", "Export Tile Data", "Export Palette Data"};
        auto *dialog = f.view.findChild<MapEditor::ExportDialog *>();
        const QList<QCheckBox *> boxes = dialog->findChildren<QCheckBox *>();
        for (int chosen = 0; chosen < 3; ++chosen) {
            emit folders->fileSelected("/folder");
            QCOMPARE(boxes.at(chosen)->text(), texts.at(chosen));
            for (int i = 0; i < 3; ++i)
                boxes.at(i)->setChecked(i == chosen);
            dialog->accept();
            QCOMPARE(told, QStringList("/folder" + ids[chosen].toString()));
            told.clear();
        }
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
        QVERIFY(!plays());
        f.action(AnimPlay)->trigger();
        QVERIFY(plays());
        using Step = void (View::*)(); // hidden when another tab is in front
        for (const auto &[stop, go] :
             {std::pair<Step, Step>(&View::pauseAnimation, &View::resumeAnimation), {&View::hide, &View::show}}) {
            (f.view.*stop)();
            QVERIFY(!plays());
            (f.view.*go)();
            QVERIFY(plays());
        }
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
                f.view.animator()->tick();
                f.view.resizeDialog()->accept();
                for (int button = Draw; button <= ToggleViewport; ++button) {
                    if (button != Save)
                        f.view.toolPaletteClicked(ToolButton(button), true);
                }
                QTest::keyClick(f.grid, Qt::Key_Delete);
                toolBar.actions().at(1)->trigger();
                spinBoxes(toolBar, "Tile index to be used as a background").first()->setValue(3);
                f.view.selectAll();
                f.view.cut();
                f.view.paste();
                f.view.addRow(Quenmora::Begin);
                f.stack.undo();
                const QColor shown = f.grid->grab().toImage().pixelColor(f.cell(1, 1));
                f.view.setSpriteBanks({f.bank});
                f.view.detachToolBar();
                QVERIFY(f.map || (!f.view.popover()->isVisible() && shown == f.grid->palette().window().color()));
            }
        }
    }
};

QUENMORA_TEST_MAIN(TestMapView)
#include "tst_mapview.moc"
