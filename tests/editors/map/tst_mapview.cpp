#include "editors/map/anchorpad.h"
#include "editors/map/exportdialog.h"
#include "editors/map/mapanimator.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mappreferences.h"
#include "editors/map/resizedialog.h"
#include "editors/map/resizepreview.h"
#include "editors/map/spriteproperties.h"
#include "editors/map/spritepropertiespopover.h"
#include "mapviewfixture.h"
#include "support/testmain.h"
#include "ui/scrollbar.h"

#include <QAction>
#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>

using namespace Quenmora::Ui;
using MapEditor::MapToolPalette;
using MapEditor::ToolBar;
using MapEditor::View;

namespace {

template <typename Widget>
Widget *labelled(const QWidget &form, const QString &label)
{
    const auto *layout = form.findChild<QFormLayout *>();
    for (int row = 0; row < layout->rowCount(); ++row) {
        auto *field = qobject_cast<Widget *>(layout->itemAt(row, QFormLayout::FieldRole)->widget());
        const auto *button = qobject_cast<QCheckBox *>(field);
        const auto *text = qobject_cast<QLabel *>(layout->labelForField(field));
        if (field && ((text && text->text() == label) || (button && button->text() == label)))
            return field;
    }
    return nullptr;
}

} // namespace

class TestMapView : public QObject
{
    Q_OBJECT

private slots:
    void pickedTilesAreTakenOver();
    void docksChooseTheTool();
    void keysCancelAndDelete();
    void scrollBarsFollowTheGrid();
    void tabFollowsTheName();
    void popoverFollowsTheSprite();
    void popoverKeepsItsKeys();
    void resizesByDialog();
    void exportsWhatIsChosen();
    void playingRepaintsWhatChanged();
    void assetsMayGoWhileShown_data();
    void assetsMayGoWhileShown();
    void paletteIsAsListed();
    void keysActOnTheMap();
    void propertiesEditTheSprite();
    void previewTellsWhatIsKept();
    void animationPlaysWhenItMay();
};

void TestMapView::pickedTilesAreTakenOver()
{
    MapViewFixture f;
    f.map->setTile({2, 3}, {.index = 7, .rotate = true, .mirror = true, .used = true});
    f.action(Flip)->trigger();
    QSignalSpy picked(&f.view, &View::tilePicked);
    QSignalSpy animation(&f.view, &View::animationPicked);
    QTest::mouseClick(f.grid, Qt::MiddleButton, Qt::NoModifier, f.cell(2, 3));
    QCOMPARE(picked, (QList<QVariantList>{{7}}));
    QCOMPARE(f.grid->currentTileIndex(), 7);
    QVERIFY(f.action(RotateCW)->isChecked() && f.action(Mirror)->isChecked() && !f.action(Flip)->isChecked());
    QVERIFY(f.grid->isRotated() && f.grid->isMirrored() && !f.grid->isFlipped());
    QCOMPARE(f.grid->mode(), Draw);
    QCOMPARE(animation.count(), 0);

    f.map->placeAnimation(f.animation, {4, 4});
    QTest::mouseClick(f.grid, Qt::MiddleButton, Qt::NoModifier, f.cell(5, 4));
    QCOMPARE(animation, (QList<QVariantList>{{f.animation->id()}}));
}

void TestMapView::docksChooseTheTool()
{
    MapViewFixture f;
    QSignalSpy animations(&f.view, &View::placeAnimModeEnabled);
    QSignalSpy sprites(&f.view, &View::placeSpriteModeEnabled);
    f.view.setTileIndex(4);
    QCOMPARE(f.grid->currentTileIndex(), 4);
    f.view.setMapObject(f.animation);
    QCOMPARE(f.grid->mode(), PlaceAnim);
    QCOMPARE(f.toolPalette->mode(), PlaceAnim);
    QVERIFY(f.map->objectLayer()->isVisible()); // or it could not be placed
    QCOMPARE(animations.count(), 1);
    f.view.setSingleSprite(f.bank->id(), 0);
    QCOMPARE(f.toolPalette->mode(), PlaceSprite);
    QCOMPARE(f.grid->spriteTemplate()->bank, f.bank->id());
    const QPointer<SpriteAnim> run = f.bank->newAnimation();
    f.view.setSpriteAnimation(run);
    QCOMPARE(f.grid->spriteTemplate()->animation, run->id());
    QCOMPARE(sprites.count(), 1);
    f.action(Draw)->trigger();
    QCOMPARE(f.grid->mode(), Draw);
}

void TestMapView::keysCancelAndDelete()
{
    MapViewFixture f;
    f.map->setTile({0, 0}, {.index = 5, .used = true});
    f.map->objectLayer()->setVisible(true);
    f.map->placeAnimation(f.animation, {0, 2});
    f.grid->setSelection({0, 0, 1, 1});
    f.grid->setHoverSprite(0);
    f.grid->setHighlight({0, 2, 2, 1});
    const QStringList steps{"Delete Sprite", "Remove Animation", "Clear"};
    const Qt::Key keys[] = {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Delete};
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(f.grid, keys[i]);
        QCOMPARE(f.stack.count(), i + 1);
        QCOMPARE(f.stack.undoText(), steps.at(i));
    }
    QVERIFY(f.map->sprites().isEmpty());
    QVERIFY(f.map->animatedBlocks()->list().isEmpty());
    QCOMPARE(f.map->tileLayer()->cellAt({0, 0}).index, 0);

    f.grid->setMode(Select);
    QTest::keyClick(f.grid, Qt::Key_Escape);
    QCOMPARE(f.grid->mode(), Draw);
}

void TestMapView::scrollBarsFollowTheGrid()
{
    MapViewFixture f;
    const QList<ScrollBar *> bars = f.view.findChildren<ScrollBar *>();
    ScrollBar *vertical = bars.at(bars.at(0)->orientation() == Qt::Vertical ? 0 : 1);
    ScrollBar *horizontal = bars.at(bars.at(0)->orientation() == Qt::Vertical ? 1 : 0);
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

void TestMapView::tabFollowsTheName()
{
    MapViewFixture f;
    QTabWidget tabs;
    tabs.addTab(new QWidget, "Other");
    auto *view = new View(f.map);
    tabs.addTab(view, "Level");
    f.map->setName("Castle & Moat");
    QCOMPARE(tabs.tabText(1), QStringLiteral("Castle && Moat"));
    view->updateTabText("Plain");
    QCOMPARE(tabs.tabText(1), QStringLiteral("Plain"));
    QCOMPARE(tabs.tabText(0), QStringLiteral("Other"));
}

void TestMapView::popoverFollowsTheSprite()
{
    MapViewFixture f;
    f.map->addSprite(f.sprite({80, 16}));
    f.clickSprite();
    auto *popover = f.view.popover();
    const QPoint before = popover->pos();
    QSignalSpy picked(&f.view, &View::spritePicked);
    f.grid->selectSprite(1);
    QVERIFY(popover->isVisible());
    QCOMPARE(popover->sprite().x, 80);
    QCOMPARE(picked, (QList<QVariantList>{{QVariant::fromValue(f.map->sprites().at(1))}}));
    QVERIFY(popover->x() > before.x());
    f.grid->selectSprite(-1);
    QVERIFY(!popover->isVisible());
    f.grid->selectSprite(0);
    QVERIFY(!popover->isVisible());
}

void TestMapView::popoverKeepsItsKeys()
{
    MapViewFixture f;
    f.clickSprite();
    auto *popover = f.view.popover();
    QVERIFY(labelled<QLineEdit>(*popover->content(), "Name")->hasFocus());
    QWidget *rotate = labelled<QCheckBox>(*popover->content(), "Rotate");
    rotate->setFocus();
    for (const Qt::Key key : {Qt::Key_S, Qt::Key_Minus, Qt::Key_Delete, Qt::Key_Up})
        QTest::keyClick(rotate, key);
    QCOMPARE(f.grid->mode(), PlaceSprite);
    QCOMPARE(f.grid->viewport().zoomFactor, 4);
    QCOMPARE(f.map->sprites().size(), 1);
    QTest::keyClick(rotate, Qt::Key_Escape);
    QVERIFY(!popover->isVisible());
    QCOMPARE(f.grid->mode(), PlaceSprite); // Escape was for the popover
}

void TestMapView::resizesByDialog()
{
    MapViewFixture f;
    f.view.toolPaletteClicked(Resize);
    MapEditor::ResizeDialog *dialog = f.view.resizeDialog();
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->mapSize(), QSize(20, 16));
    dialog->accept();
    QCOMPARE(f.stack.count(), 0);
    dialog->findChildren<QSpinBox *>().at(0)->setValue(24);
    dialog->findChild<MapEditor::AnchorPad *>()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dialog->accept();
    QCOMPARE(f.map->size(), QSize(24, 16));
    QCOMPARE(f.map->sprites().at(0).x, 40 + 4 * 8);
    QCOMPARE(f.stack.undoText(), QStringLiteral("Resize Map"));
    QCOMPARE(f.view.sizeText(), QStringLiteral("24x16 (768 bytes)"));
}

void TestMapView::exportsWhatIsChosen()
{
    MapViewFixture f;
    QSignalSpy maps(&f.view, &View::exportTileMap);
    QSignalSpy tiles(&f.view, &View::exportTiles);
    QSignalSpy palettes(&f.view, &View::exportTilePalette);
    f.view.toolPaletteClicked(Save);
    auto *folders = f.view.findChild<QFileDialog *>();
    QCOMPARE(folders->windowTitle(), QStringLiteral("Choose a directory to export anim into"));
    QVERIFY(folders->testOption(QFileDialog::ShowDirsOnly));
    folders->close();
    emit folders->fileSelected("/folder");
    auto *dialog = f.view.exportDialog();
    QVERIFY(dialog->isVisible());
    QStringList texts;
    for (const QCheckBox *box : dialog->findChildren<QCheckBox *>())
        texts.append(box->text());
    QCOMPARE(texts, (QStringList{"Export Map Data", "Export Tile Data", "Export Palette Data"}));
    dialog->findChildren<QCheckBox *>().at(1)->setChecked(false);
    dialog->accept();
    QCOMPARE(maps, (QList<QVariantList>{{"/folder", f.map->id()}}));
    QCOMPARE(tiles.count(), 0);
    QCOMPARE(palettes, (QList<QVariantList>{{"/folder", f.palette->id()}}));
}

void TestMapView::playingRepaintsWhatChanged()
{
    /// What a widget was asked to paint.
    struct Painted : QObject
    {
        QRegion region;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Paint)
                region += static_cast<QPaintEvent *>(event)->region();
            return false;
        }
    } painted;
    MapViewFixture f;
    f.map->objectLayer()->setVisible(true);
    f.map->placeAnimation(f.animation, {3, 2});
    const QPointer<SpriteAnim> run = f.bank->newAnimation();
    run->addFrame();
    run->setDelay(3);
    Map::PlacedSprite sprite = f.sprite({60, 60});
    sprite.animation = run->id();
    f.map->addSprite(sprite);
    f.grid->installEventFilter(&painted);
    const auto paintedByTick = [&] {
        QCoreApplication::processEvents();
        painted.region = {};
        f.view.animator()->tick();
        QCoreApplication::processEvents();
        return painted.region;
    };
    const QRegion block = f.grid->viewport().rectOfCells({3, 2, 2, 1});
    paintedByTick();
    QCOMPARE(paintedByTick(), block);
    QCOMPARE(f.grid->spriteTicks(), qint64(2));
    QCOMPARE(paintedByTick(), block + f.grid->spriteRect(1));
    f.map->objectLayer()->setVisible(false);
    QCOMPARE(paintedByTick(), QRegion());
}

void TestMapView::assetsMayGoWhileShown_data()
{
    QTest::addColumn<std::function<void(MapViewFixture &)>>("remove");
    const auto row = [](const char *name, const std::function<void(MapViewFixture &)> &remove) {
        QTest::newRow(name) << remove;
    };
    row("map", [](MapViewFixture &f) { f.project.deleteMap(f.map->id()); });
    row("tile set", [](MapViewFixture &f) { delete f.tiles; });
    row("block set", [](MapViewFixture &f) { delete f.blocks; });
    row("bank", [](MapViewFixture &f) { f.project.deleteSpriteBank(f.bank->id()); });
    row("animation", [](MapViewFixture &f) { f.blocks->removeAnimation(f.animation->id()); });
}

void TestMapView::assetsMayGoWhileShown()
{
    QFETCH(std::function<void(MapViewFixture &)>, remove);
    MapViewFixture f;
    ToolBar toolBar;
    f.view.attachToolBar(&toolBar);
    f.map->objectLayer()->setVisible(true);
    f.map->placeAnimation(f.animation, {3, 2});
    f.view.setMapObject(f.animation);
    f.view.toolPaletteClicked(AnimPlay, true);
    f.clickSprite();
    f.view.toolPaletteClicked(Resize);
    remove(f);
    f.view.animator()->tick();
    f.view.animator()->tick();
    f.view.resizeDialog()->accept();
    for (int button = Draw; button <= ToggleViewport; ++button) {
        if (button != Save)
            f.view.toolPaletteClicked(ToolButton(button), true);
    }
    QTest::keyClick(f.grid, Qt::Key_Delete);
    toolBar.actions().at(1)->trigger();
    withToolTip<QSpinBox>(toolBar, "Tile index to be used as a background").first()->setValue(3);
    f.view.copy();
    f.view.paste();
    f.view.cut();
    f.view.addRow(Quenmora::Begin);
    f.view.grab();
    f.view.detachToolBar();
    QVERIFY(f.map || !f.view.popover()->isVisible());
    QCOMPARE(f.view.sizeText().isEmpty(), false);
}

void TestMapView::paletteIsAsListed()
{
    const QStringList listed{"Draw [D]",
                             "Select [S]",
                             "Pick [P]",
                             "Place animations",
                             "Place sprites",
                             "Rotated [Ctrl+R]",
                             "Flipped [Shift+F]",
                             "Mirrored [Shift+M]",
                             "Toggle Grid [G]",
                             "Up [Up]",
                             "Down [Down]",
                             "Left [Left]",
                             "Right [Right]",
                             "Zoom Out [-]",
                             "Zoom In [=]",
                             "Fit to window",
                             "Toggle viewport",
                             "Play Animations",
                             "Reset all palette offsets"};
    const MapToolPalette palette;
    QStringList toolTips;
    for (const QAction *action : palette.actions())
        toolTips += action->toolTip();
    QCOMPARE(toolTips, listed);
    for (const ToolButton tool : {Draw, Select, Pick, PlaceAnim, PlaceSprite})
        QVERIFY(palette.action(tool)->actionGroup());
    for (const ToolButton state : {RotateCW, Flip, Mirror, Grid, ToggleViewport, AnimPlay})
        QVERIFY(palette.action(state)->isCheckable() && !palette.action(state)->actionGroup());
}

void TestMapView::keysActOnTheMap()
{
    using Check = std::function<bool(const MapViewFixture &)>;
    const auto scrolled = [](int x, int y) {
        return [x, y](const MapViewFixture &f) { return f.grid->viewport().scroll == QPoint(x, y); };
    };
    const auto zoomed = [](int zoom) {
        return [zoom](const MapViewFixture &f) { return f.grid->viewport().zoomFactor == zoom; };
    };
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, Check> keys[] = {
        {Qt::Key_S, {}, [](const MapViewFixture &f) { return f.grid->mode() == Select; }},
        {Qt::Key_R, Qt::ControlModifier, [](const MapViewFixture &f) { return f.grid->isRotated(); }},
        {Qt::Key_F, Qt::ShiftModifier, [](const MapViewFixture &f) { return f.grid->isFlipped(); }},
        {Qt::Key_M, Qt::ShiftModifier, [](const MapViewFixture &f) { return f.grid->isMirrored(); }},
        {Qt::Key_G, {}, [](const MapViewFixture &f) { return f.grid->isGridVisible() && f.map->gridVisible(); }},
        {Qt::Key_Down, {}, scrolled(2, 3)},
        {Qt::Key_Right, {}, scrolled(3, 3)},
        {Qt::Key_Up, {}, scrolled(3, 2)},
        {Qt::Key_Left, {}, scrolled(2, 2)},
        {Qt::Key_Minus, {}, zoomed(3)},
        {Qt::Key_Equal, {}, zoomed(4)},
        {Qt::Key_Plus, {}, zoomed(5)},
    };
    MapViewFixture f;
    f.grid->setHorizontalScrollPosition(2);
    f.grid->setVerticalScrollPosition(2);
    for (const auto &[key, modifiers, done] : keys) {
        QVERIFY(!done(f));
        QTest::keyClick(f.grid, key, modifiers);
        QVERIFY2(done(f), QKeySequence(key).toString().toUtf8());
    }
    f.view.toolPaletteClicked(ToggleViewport, true);
    QCOMPARE(f.grid->viewport().viewportSize, QSize(40, 32));
    f.map->setTile({1, 1}, {.index = 3, .offset = 9, .used = true});
    f.tiles->setTileOffset(3, 2);
    f.view.toolPaletteClicked(PaintPalette);
    QCOMPARE(f.map->tileLayer()->cellAt({1, 1}).offset, 2);
    QCOMPARE(f.stack.count(), 0);

    f.view.applyPreferences({.overlayGrid = false, .gridSize = 10, .defaultZoom = 2});
    QVERIFY(!f.action(Grid)->isChecked());
    QCOMPARE(f.grid->viewport().cellSize, 20);
}

void TestMapView::propertiesEditTheSprite()
{
    MapViewFixture f;
    f.clickSprite();
    QCOMPARE(f.stack.count(), 0);
    const QWidget &form = *f.view.popover()->content();
    labelled<QLineEdit>(form, "Name")->setText("Hero");
    for (const char *box : {"Mirror", "Flip", "Rotate"})
        labelled<QCheckBox>(form, box)->click();
    for (const char *number : {"Start frame", "Initial delay", "Repeat delay", "Palette offset"})
        labelled<QSpinBox>(form, number)->setValue(99999); // above the range: its end
    Map::PlacedSprite expected = f.sprite({40, 40});
    expected.name = "Hero";
    expected.mirror = expected.flip = expected.rotate = true;
    expected.startFrame = 255;
    expected.initialDelay = expected.repeatDelay = 9999;
    expected.paletteOffset = 15;
    QCOMPARE(f.map->sprites().at(0), expected);
    QCOMPARE(f.stack.count(), 8);
    QCOMPARE(f.stack.undoText(), QStringLiteral("Sprite Properties"));
    f.stack.setIndex(3); // which the fields follow, and edit nothing
    QCOMPARE(f.view.popover()->sprite(), f.map->sprites().at(0));
    QVERIFY(labelled<QCheckBox>(form, "Flip")->isChecked() && !labelled<QCheckBox>(form, "Rotate")->isChecked());
    QCOMPARE(f.stack.count(), 8);
}

void TestMapView::previewTellsWhatIsKept()
{
    MapEditor::ResizePreview preview;
    const std::pair<QSize, Qt::Alignment> sizes[] = {{{5, 4}, Qt::AlignLeft | Qt::AlignTop},
                                                     {{5, 4}, Qt::AlignCenter},
                                                     {{11, 9}, Qt::AlignCenter},
                                                     {{20, 2}, Qt::AlignRight | Qt::AlignBottom}};
    for (const auto &[after, alignment] : sizes) {
        preview.showResize({10, 7}, after, alignment);
        const QRect kept = preview.kept();
        QCOMPARE(kept.size(), after.boundedTo({10, 7}));
        TileMap layer(10, 7);
        layer.setCell(kept.topLeft(), {.index = 1, .used = true});
        layer.setCell(kept.bottomRight(), {.index = 2, .used = true});
        const QPoint moved = layer.resize(after, alignment);
        QCOMPARE(layer.cellAt(kept.topLeft() + moved).index, 1);
        QCOMPARE(layer.cellAt(kept.bottomRight() + moved).index, 2);
    }
}

void TestMapView::animationPlaysWhenItMay()
{
    MapViewFixture f;
    const auto plays = [&f] { return f.view.animator()->isRunning(); };
    QVERIFY(!plays());
    f.action(AnimPlay)->trigger();
    QVERIFY(plays());
    f.view.pauseAnimation();
    QVERIFY(!plays());
    f.view.resumeAnimation();
    QVERIFY(plays());
    f.view.hide(); // another tab is in front
    QVERIFY(!plays());
    f.view.show();
    QVERIFY(plays());
    f.view.toolPaletteClicked(AnimStop);
    f.view.resumeAnimation();
    QVERIFY(!plays() && !f.action(AnimPlay)->isChecked());
}

QUENMORA_TEST_MAIN(TestMapView)
#include "tst_mapview.moc"
