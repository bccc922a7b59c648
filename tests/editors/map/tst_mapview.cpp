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
    void paletteIsAsListed();
    void paletteActsOnTheMap_data();
    void paletteActsOnTheMap();
    void toolsAreTheGrids();
    void pickedTilesAreTakenOver();
    void docksChooseTheTool();
    void keysCancelAndDelete();
    void scrollBarsFollowTheGrid();
    void tabFollowsTheName();
    void propertiesEditTheSprite_data();
    void propertiesEditTheSprite();
    void popoverFollowsTheSprite();
    void popoverKeepsItsKeys();
    void resizesByDialog();
    void previewTellsWhatIsKept_data();
    void previewTellsWhatIsKept();
    void exportsWhatIsChosen();
    void animationPlaysWhenItMay();
    void playingRepaintsWhatChanged();
    void preferencesShowInThePalette();
    void assetsMayGoWhileShown_data();
    void assetsMayGoWhileShown();
};

void TestMapView::paletteIsAsListed()
{
    struct Row
    {
        ToolButton button;
        const char *icon;
        const char *text;
        bool checkable;
        bool exclusive;
        QList<QKeySequence> shortcuts;
    };
    const QList<Row> rows{
        {Draw, ":/Draw", "Draw", true, true, {Qt::Key_D}},
        {Select, ":/Select", "Select", true, true, {Qt::Key_S}},
        {Pick, ":/Picker", "Pick", true, true, {Qt::Key_P}},
        {PlaceAnim, ":/PlaceAnim", "Place animations", true, true, {}},
        {PlaceSprite, ":/PlaceSprite", "Place sprites", true, true, {}},
        {RotateCW, ":/RotateCW", "Rotated", true, false, {Qt::CTRL | Qt::Key_R}},
        {Flip, ":/Flip", "Flipped", true, false, {Qt::SHIFT | Qt::Key_F}},
        {Mirror, ":/Mirror", "Mirrored", true, false, {Qt::SHIFT | Qt::Key_M}},
        {Grid, ":/Grid", "Toggle Grid", true, false, {Qt::Key_G}},
        {MoveUp, ":/Arrow/N", "Up", false, false, {Qt::Key_Up}},
        {MoveDown, ":/Arrow/S", "Down", false, false, {Qt::Key_Down}},
        {MoveLeft, ":/Arrow/W", "Left", false, false, {Qt::Key_Left}},
        {MoveRight, ":/Arrow/E", "Right", false, false, {Qt::Key_Right}},
        {ZoomOut, ":/ZoomOut", "Zoom Out", false, false, {Qt::Key_Minus}},
        {ZoomIn, ":/ZoomIn", "Zoom In", false, false, {Qt::Key_Equal, Qt::Key_Plus}},
        {ExpandToFit, ":/ExpandToFit", "Fit to window", false, false, {}},
        {ToggleViewport, ":/ToggleViewport", "Toggle viewport", true, false, {}},
        {AnimPlay, ":/AnimPlay", "Play Animations", true, false, {}},
        {PaintPalette, ":/Palette", "Reset all palette offsets", false, false, {}},
    };
    MapToolPalette palette;
    QCOMPARE(palette.actions().size(), rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const Row &row = rows.at(i);
        const QAction *action = palette.actions().at(i);
        QCOMPARE(action, palette.action(row.button));
        QCOMPARE(action->text(), QString::fromUtf8(row.text));
        QCOMPARE(action->isCheckable(), row.checkable);
        QCOMPARE(action->actionGroup() != nullptr, row.exclusive);
        QCOMPARE(action->shortcuts(), row.shortcuts);
        QCOMPARE(action->shortcutContext(), Qt::WidgetWithChildrenShortcut);
        QVERIFY2(QFile::exists(QString::fromUtf8(row.icon)), row.icon);
        QCOMPARE(action->toolTip(),
                 row.shortcuts.isEmpty()
                     ? action->text()
                     : action->text() + " [" + row.shortcuts.first().toString(QKeySequence::NativeText) + "]");
    }
    QVERIFY(palette.action(Draw)->isChecked());
}

void TestMapView::paletteActsOnTheMap_data()
{
    using Check = std::function<bool(const MapViewFixture &)>;
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<Check>("done");
    const auto row = [](const char *name, Qt::Key key, const Check &done, Qt::KeyboardModifiers modifiers = {}) {
        QTest::newRow(name) << key << modifiers << done;
    };
    row("select", Qt::Key_S, [](const MapViewFixture &f) { return f.grid->mode() == Select; });
    row(
        "rotated", Qt::Key_R, [](const MapViewFixture &f) { return f.grid->isRotated(); }, Qt::ControlModifier);
    row(
        "flipped", Qt::Key_F, [](const MapViewFixture &f) { return f.grid->isFlipped(); }, Qt::ShiftModifier);
    row(
        "mirrored", Qt::Key_M, [](const MapViewFixture &f) { return f.grid->isMirrored(); }, Qt::ShiftModifier);
    row("grid", Qt::Key_G, [](const MapViewFixture &f) { return f.grid->isGridVisible() && f.map->gridVisible(); });
    row("down", Qt::Key_Down, [](const MapViewFixture &f) { return f.grid->viewport().scroll == QPoint(2, 3); });
    row("right", Qt::Key_Right, [](const MapViewFixture &f) { return f.grid->viewport().scroll == QPoint(3, 2); });
    row("up", Qt::Key_Up, [](const MapViewFixture &f) { return f.grid->viewport().scroll == QPoint(2, 1); });
    row("left", Qt::Key_Left, [](const MapViewFixture &f) { return f.grid->viewport().scroll == QPoint(1, 2); });
    row("zoom out", Qt::Key_Minus, [](const MapViewFixture &f) { return f.grid->viewport().zoomFactor == 3; });
    row("zoom in", Qt::Key_Equal, [](const MapViewFixture &f) { return f.grid->viewport().zoomFactor == 5; });
    row("zoom in, plus", Qt::Key_Plus, [](const MapViewFixture &f) { return f.grid->viewport().zoomFactor == 5; });
}

void TestMapView::paletteActsOnTheMap()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(std::function<bool(const MapViewFixture &)>, done);
    MapViewFixture f;
    f.grid->setHorizontalScrollPosition(2);
    f.grid->setVerticalScrollPosition(2);
    QVERIFY(!done(f));
    QTest::keyClick(f.grid, key, modifiers);
    QVERIFY(done(f));
    QCOMPARE(f.stack.count(), 0);
}

void TestMapView::toolsAreTheGrids()
{
    MapViewFixture f;
    f.view.toolPaletteClicked(ExpandToFit);
    QCOMPARE(f.grid->viewport().cellSize, std::min(f.grid->width() / 20, f.grid->height() / 16));
    f.view.toolPaletteClicked(ToggleViewport, true);
    QVERIFY(f.grid->viewport().viewportEnabled);
    QCOMPARE(f.grid->viewport().viewportSize, QSize(40, 32));
    f.view.toolPaletteClicked(ToggleViewport, false);
    QVERIFY(!f.grid->viewport().viewportEnabled);

    f.map->setTile({1, 1}, {.index = 3, .offset = 9, .used = true});
    f.tiles->setTileOffset(3, 2);
    f.view.toolPaletteClicked(PaintPalette);
    QCOMPARE(f.map->tileLayer()->cellAt({1, 1}).offset, 2);
    QCOMPARE(f.stack.count(), 0);
    f.view.toolPaletteClicked(Crop); // is none of a map's
    QCOMPARE(f.grid->mode(), Draw);
}

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

void TestMapView::propertiesEditTheSprite_data()
{
    using Edit = std::function<void(const QWidget &)>;
    using Value = std::function<QVariant(const Map::PlacedSprite &)>;
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<Value>("value");
    QTest::addColumn<QVariant>("expected");
    const auto box = [](const char *text, bool Map::PlacedSprite::*field) {
        QTest::newRow(text) << Edit([text](const QWidget &form) { labelled<QCheckBox>(form, text)->click(); })
                            << Value([field](const Map::PlacedSprite &s) { return s.*field; }) << QVariant(true);
    };
    // what is above the range becomes its end
    const auto number = [](const char *text, int maximum, int Map::PlacedSprite::*field) {
        QTest::newRow(text) << Edit([text](const QWidget &form) { labelled<QSpinBox>(form, text)->setValue(99999); })
                            << Value([field](const Map::PlacedSprite &s) { return s.*field; }) << QVariant(maximum);
    };
    QTest::newRow("Name") << Edit([](const QWidget &form) { labelled<QLineEdit>(form, "Name")->setText("Hero"); })
                          << Value([](const Map::PlacedSprite &s) { return s.name; }) << QVariant("Hero");
    box("Mirror", &Map::PlacedSprite::mirror);
    box("Flip", &Map::PlacedSprite::flip);
    box("Rotate", &Map::PlacedSprite::rotate);
    number("Start frame", 255, &Map::PlacedSprite::startFrame);
    number("Initial delay", 9999, &Map::PlacedSprite::initialDelay);
    number("Repeat delay", 9999, &Map::PlacedSprite::repeatDelay);
    number("Palette offset", 15, &Map::PlacedSprite::paletteOffset);
}

void TestMapView::propertiesEditTheSprite()
{
    QFETCH(std::function<void(const QWidget &)>, edit);
    QFETCH(std::function<QVariant(const Map::PlacedSprite &)>, value);
    MapViewFixture f;
    f.clickSprite();
    QVERIFY(f.view.popover()->isVisible());
    QCOMPARE(f.stack.count(), 0);
    QSignalSpy edited(f.view.popover(), &MapEditor::SpritePropertiesPopover::spriteEdited);
    edit(*f.view.popover()->content());
    QCOMPARE(edited.count(), 1);
    QTEST(value(f.map->sprites().at(0)), "expected");
    QCOMPARE(f.map->sprites().at(0).x, 40);
    QCOMPARE(f.stack.undoText(), QStringLiteral("Sprite Properties"));
    f.stack.undo();
    QCOMPARE(f.view.popover()->sprite(), f.map->sprites().at(0));
    QCOMPARE(edited.count(), 1);
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
    // 40 map pixels to the right, 24 up, as far as the screen lets it
    QVERIFY(popover->x() > before.x());
    QVERIFY(popover->y() <= before.y());
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

    f.view.toolPaletteClicked(Resize);
    dialog->findChildren<QSpinBox *>().at(0)->setValue(24);
    dialog->findChild<MapEditor::AnchorPad *>()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dialog->accept();
    QCOMPARE(f.map->size(), QSize(24, 16));
    QCOMPARE(f.map->sprites().at(0).x, 40 + 4 * 8);
    QCOMPARE(f.stack.undoText(), QStringLiteral("Resize Map"));
    QCOMPARE(f.view.sizeText(), QStringLiteral("24x16 (768 bytes)"));
}

void TestMapView::previewTellsWhatIsKept_data()
{
    QTest::addColumn<QSize>("after");
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<QRect>("kept"); // of 10 × 7 cells
    const QSize smaller(5, 4);
    const auto row = [](const char *name, QSize after, Qt::Alignment alignment, QRect kept) {
        QTest::newRow(name) << after << alignment << kept;
    };
    row("top left", smaller, Qt::AlignLeft | Qt::AlignTop, {0, 0, 5, 4});
    row("centre", smaller, Qt::AlignCenter, {2, 1, 5, 4});
    row("bottom right", smaller, Qt::AlignRight | Qt::AlignBottom, {5, 3, 5, 4});
    row("larger", {11, 9}, Qt::AlignCenter, {0, 0, 10, 7});
    row("wider, lower", {20, 2}, Qt::AlignRight | Qt::AlignBottom, {0, 5, 10, 2});
}

void TestMapView::previewTellsWhatIsKept()
{
    QFETCH(QSize, after);
    QFETCH(Qt::Alignment, alignment);
    MapEditor::ResizePreview preview;
    preview.showResize({10, 7}, after, alignment);
    QTEST(preview.kept(), "kept");
    TileMap layer(10, 7);
    const QRect kept = preview.kept();
    layer.setCell(kept.topLeft(), {.index = 1, .used = true});
    layer.setCell(kept.bottomRight(), {.index = 2, .used = true});
    const QPoint moved = layer.resize(after, alignment);
    QCOMPARE(layer.cellAt(kept.topLeft() + moved).index, 1);
    QCOMPARE(layer.cellAt(kept.bottomRight() + moved).index, 2);
    preview.grab();
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

void TestMapView::animationPlaysWhenItMay()
{
    MapViewFixture f;
    const auto *animator = f.view.animator();
    QVERIFY(!animator->isRunning());
    f.action(AnimPlay)->trigger();
    QVERIFY(animator->isRunning());
    f.view.pauseAnimation();
    QVERIFY(!animator->isRunning());
    f.view.resumeAnimation();
    QVERIFY(animator->isRunning());
    f.view.hide(); // another tab is in front
    QVERIFY(!animator->isRunning());
    f.view.show();
    QVERIFY(animator->isRunning());
    f.view.toolPaletteClicked(AnimStop);
    QVERIFY(!animator->isRunning() && !f.action(AnimPlay)->isChecked());
    f.view.pauseAnimation();
    f.view.resumeAnimation();
    QVERIFY(!animator->isRunning());
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

void TestMapView::preferencesShowInThePalette()
{
    MapViewFixture f;
    MapEditor::Preferences preferences;
    preferences.overlayGrid = true;
    preferences.gridSize = 10;
    preferences.defaultZoom = 2;
    f.view.applyPreferences(preferences);
    QVERIFY(f.action(Grid)->isChecked());
    QCOMPARE(f.grid->viewport().cellSize, 20);
    preferences.overlayGrid = false;
    f.view.applyPreferences(preferences);
    QVERIFY(!f.action(Grid)->isChecked());
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

QUENMORA_TEST_MAIN(TestMapView)
#include "tst_mapview.moc"
