#include "editors/map/anchorpad.h"
#include "editors/map/exportdialog.h"
#include "editors/map/mapanimator.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/mappreferences.h"
#include "editors/map/maptoolpalette.h"
#include "editors/map/resizedialog.h"
#include "editors/map/resizepreview.h"
#include "editors/map/spriteproperties.h"
#include "editors/map/spritepropertiespopover.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/tileset.h"
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
#include <QTest>
#include <QUndoStack>

using namespace Quenmora::Ui;
using MapEditor::MapGrid;
using MapEditor::MapToolPalette;
using MapEditor::ToolBar;
using MapEditor::View;
using TileData = TileMap::TileData;

namespace {

/// A view of a map of 20 × 16 cells with a sprite at pixel (40, 40) and a block animation of 2 × 1 cells.
struct Fixture
{
    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, QStringLiteral("Colours"));
    QPointer<TileSet> tiles = project.createTileSet(QStringLiteral("Tiles"), palette->id(), 16);
    QPointer<MapObjects> blocks = project.createBlockList(QStringLiteral("Blocks"), tiles->id());
    QPointer<TileAnimation> animation = blocks->createBoundTileAnimation(QStringLiteral("Torch"));
    QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, QStringLiteral("Bank"), palette->id());
    QPointer<Map> map = project.createMap(QStringLiteral("Level"), tiles->id(), {20, 16});
    QUndoStack stack;
    View view{map};
    MapGrid *grid = view.grid();
    MapToolPalette *palette_ = view.toolPalette();

    Fixture()
    {
        animation->setSize({2, 1});
        for (int frame = 0; frame < 2; ++frame)
            animation->addFrame()->setIndex(0, 0, 1 + frame);
        animation->setDelay(1);
        map->addSprite(sprite({40, 40}));
        view.setUndoStack(&stack);
        view.setSpriteBanks({bank});
        view.resize(500, 400);
        view.show();
        view.activateWindow(); // shortcuts work in the active window
        static_cast<void>(QTest::qWaitForWindowActive(&view));
        grid->setFocus();
    }

    Map::PlacedSprite sprite(QPoint at) const
    {
        Map::PlacedSprite placed;
        placed.bank = bank->id();
        placed.x = at.x();
        placed.y = at.y();
        return placed;
    }

    QAction *action(ToolButton button) const { return view.toolPalette()->action(button); }
    QPoint cell(int x, int y) const { return grid->viewport().rectOfCells({x, y, 1, 1}).center(); }
    /// Clicks on the sprite with the sprite tool, which opens its properties.
    void clickSprite()
    {
        grid->setMode(PlaceSprite);
        QTest::mouseClick(grid, Qt::LeftButton, Qt::NoModifier, grid->spriteRect(0).center());
    }
};

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

/// The size texts and tool bar state are told apart by the tool tips.
template <typename Widget>
QList<Widget *> withToolTip(const QWidget &parent, const QString &toolTip)
{
    QList<Widget *> found = parent.findChildren<Widget *>();
    found.removeIf([&toolTip](const Widget *widget) { return widget->toolTip() != toolTip; });
    return found;
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
    void toolBarStartsAsListed_data();
    void toolBarStartsAsListed();
    void toolBarTellsItsChanges_data();
    void toolBarTellsItsChanges();
    void toolBarServesTheAttachedView();
    void toolBarKeepsTheMapsSettings();
    void pickedTilesAreTakenOver();
    void docksChooseTheTool();
    void keysCancelAndDelete();
    void scrollBarsFollowTheGrid();
    void rowsAndColumnsChangeTheSizeText();
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
    using Check = std::function<bool(const Fixture &)>;
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<Check>("done");
    const auto row = [](const char *name, Qt::Key key, const Check &done, Qt::KeyboardModifiers modifiers = {}) {
        QTest::newRow(name) << key << modifiers << done;
    };
    row("select", Qt::Key_S, [](const Fixture &f) { return f.grid->mode() == Select; });
    row(
        "rotated", Qt::Key_R, [](const Fixture &f) { return f.grid->isRotated(); }, Qt::ControlModifier);
    row(
        "flipped", Qt::Key_F, [](const Fixture &f) { return f.grid->isFlipped(); }, Qt::ShiftModifier);
    row(
        "mirrored", Qt::Key_M, [](const Fixture &f) { return f.grid->isMirrored(); }, Qt::ShiftModifier);
    row("grid", Qt::Key_G, [](const Fixture &f) { return f.grid->isGridVisible() && f.map->gridVisible(); });
    row("down", Qt::Key_Down, [](const Fixture &f) { return f.grid->viewport().scroll == QPoint(2, 3); });
    row("right", Qt::Key_Right, [](const Fixture &f) { return f.grid->viewport().scroll == QPoint(3, 2); });
    row("up", Qt::Key_Up, [](const Fixture &f) { return f.grid->viewport().scroll == QPoint(2, 1); });
    row("left", Qt::Key_Left, [](const Fixture &f) { return f.grid->viewport().scroll == QPoint(1, 2); });
    row("zoom out", Qt::Key_Minus, [](const Fixture &f) { return f.grid->viewport().zoomFactor == 3; });
    row("zoom in", Qt::Key_Equal, [](const Fixture &f) { return f.grid->viewport().zoomFactor == 5; });
    row("zoom in, plus", Qt::Key_Plus, [](const Fixture &f) { return f.grid->viewport().zoomFactor == 5; });
}

void TestMapView::paletteActsOnTheMap()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(std::function<bool(const Fixture &)>, done);
    Fixture f;
    f.grid->setHorizontalScrollPosition(2);
    f.grid->setVerticalScrollPosition(2);
    QVERIFY(!done(f));
    QTest::keyClick(f.grid, key, modifiers);
    QVERIFY(done(f));
    QCOMPARE(f.stack.count(), 0);
}

void TestMapView::toolsAreTheGrids()
{
    Fixture f;
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

void TestMapView::toolBarStartsAsListed_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QList<int>>("values"); // minimum, maximum, value of each spin box
    QTest::addColumn<QString>("special"); // the text of the minimum
    QTest::newRow("viewport") << "Size in cells of the viewport" << QList{1, 1000, 40, 1, 1000, 32} << "";
    QTest::newRow("background") << "Tile index to be used as a background" << QList{-1, 1024, -1} << "None";
    QTest::newRow("transparency") << "Sets the transparency index of the tile set (0-15) or off" << QList{-1, 15, -1}
                                  << "Off";
    QTest::newRow("snap") << "Sets the snap to grid size" << QList{1, 16, 1} << "Off";
}

void TestMapView::toolBarStartsAsListed()
{
    QFETCH(QString, toolTip);
    QFETCH(QString, special);
    ToolBar toolBar;
    QList<int> values;
    for (const QSpinBox *box : withToolTip<QSpinBox>(toolBar, toolTip)) {
        values << box->minimum() << box->maximum() << box->value();
        QCOMPARE(box->specialValueText(), special);
    }
    QTEST(values, "values");
}

void TestMapView::toolBarTellsItsChanges_data()
{
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QVariant>("argument");
    const auto row = [](const char *toolTip, int value, const char *signal, const QVariant &argument) {
        QTest::newRow(signal) << toolTip << value << QByteArray(signal) << argument;
    };
    row("Show or hide the tile layer", 0, "mapVisibilityChanged(bool)", false);
    row("Show or hide the object layer", 0, "objectVisibilityChanged(bool)", false);
    row("Show or hide the sprite layer", 0, "spriteVisibilityChanged(bool)", false);
    row("Size in cells of the viewport", 32, "viewPortChanged(QSize)", QSize(32, 32));
    row("Tile index to be used as a background", 7, "backgroundTileIndexChanged(int)", 7);
    row("Sets the transparency index of the tile set (0-15) or off", 0, "transparencyIndexChanged(int)", 0);
    row("Sets the snap to grid size", 4, "snapToValueChanged(int)", 4);
}

void TestMapView::toolBarTellsItsChanges()
{
    QFETCH(QString, toolTip);
    QFETCH(int, value);
    QFETCH(QByteArray, signal);
    QFETCH(QVariant, argument);
    ToolBar toolBar;
    QSignalSpy spy(&toolBar, QByteArray(QByteArray::number(QSIGNAL_CODE) + signal).constData());
    QVERIFY(spy.isValid());
    const QList<QSpinBox *> boxes = withToolTip<QSpinBox>(toolBar, toolTip);
    if (!boxes.isEmpty()) {
        boxes.first()->setValue(value);
    } else {
        for (QAction *action : toolBar.actions()) {
            if (action->toolTip() == toolTip)
                action->trigger();
        }
    }
    QCOMPARE(spy, (QList<QVariantList>{{argument}}));
}

void TestMapView::toolBarServesTheAttachedView()
{
    Fixture first;
    Fixture second;
    second.map->resize({30, 2});
    ToolBar toolBar;
    QSignalSpy transparency(&toolBar, &ToolBar::transparencyIndexChanged);
    first.view.attachToolBar(&toolBar);
    QCOMPARE(toolBar.sizeText(), QStringLiteral("20x16 (640 bytes)"));
    QVERIFY(!toolBar.actions().at(1)->isChecked()); // the object layer of a new map is hidden
    withToolTip<QSpinBox>(toolBar, "Sets the snap to grid size").first()->setValue(4);
    withToolTip<QSpinBox>(toolBar, "Size in cells of the viewport").first()->setValue(10);
    toolBar.actions().at(0)->trigger();
    QCOMPARE(first.grid->viewport().snap, 4);
    QVERIFY(!first.map->tileLayer()->isVisible());
    first.view.toolPaletteClicked(ToggleViewport, true);
    QCOMPARE(first.grid->viewport().viewportSize, QSize(10, 32));

    first.view.detachToolBar();
    second.view.attachToolBar(&toolBar);
    QVERIFY(toolBar.actions().at(0)->isChecked());
    QCOMPARE(toolBar.viewport(), QSize(40, 32));
    withToolTip<QSpinBox>(toolBar, "Sets the snap to grid size").first()->setValue(2);
    toolBar.actions().at(2)->trigger();
    QCOMPARE(first.grid->viewport().snap, 4);
    QVERIFY(first.map->spriteLayerVisible());
    QCOMPARE(second.grid->viewport().snap, 2);
    QVERIFY(!second.map->spriteLayerVisible());

    second.view.detachToolBar();
    first.view.attachToolBar(&toolBar);
    QVERIFY(!toolBar.actions().at(0)->isChecked());
    QCOMPARE(toolBar.viewport(), QSize(10, 32));
    QCOMPARE(transparency.count(), 0);
}

void TestMapView::toolBarKeepsTheMapsSettings()
{
    Fixture f;
    ToolBar toolBar;
    f.view.attachToolBar(&toolBar);
    auto *transparency =
        withToolTip<QSpinBox>(toolBar, "Sets the transparency index of the tile set (0-15) or off").first();
    transparency->setValue(3);
    withToolTip<QSpinBox>(toolBar, "Tile index to be used as a background").first()->setValue(5);
    QCOMPARE(f.grid->transparencyIndex(), 3);
    QCOMPARE(f.map->tileTransparencyIndex(), 3);
    QCOMPARE(f.map->backgroundTileIndex(), 5);
    const View reopened(f.map);
    QCOMPARE(reopened.grid()->transparencyIndex(), 3);

    transparency->setValue(-1);
    QCOMPARE(transparency->text(), QStringLiteral("Off"));
    QCOMPARE(f.grid->transparencyIndex(), -1);
}

void TestMapView::pickedTilesAreTakenOver()
{
    Fixture f;
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
    Fixture f;
    QSignalSpy animations(&f.view, &View::placeAnimModeEnabled);
    QSignalSpy sprites(&f.view, &View::placeSpriteModeEnabled);
    f.view.setTileIndex(4);
    QCOMPARE(f.grid->currentTileIndex(), 4);
    f.view.setMapObject(f.animation);
    QCOMPARE(f.grid->mode(), PlaceAnim);
    QCOMPARE(f.palette_->mode(), PlaceAnim);
    QVERIFY(f.map->objectLayer()->isVisible()); // or it could not be placed
    QCOMPARE(animations.count(), 1);
    f.view.setSingleSprite(f.bank->id(), 0);
    QCOMPARE(f.palette_->mode(), PlaceSprite);
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
    Fixture f;
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
    Fixture f;
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

void TestMapView::rowsAndColumnsChangeTheSizeText()
{
    Fixture f;
    ToolBar toolBar;
    f.view.attachToolBar(&toolBar);
    f.view.addRow(Quenmora::Begin);
    QCOMPARE(toolBar.sizeText(), QStringLiteral("20x17 (680 bytes)"));
    QCOMPARE(f.map->sprites().at(0).y, 48);
    f.view.addColumn(Quenmora::End);
    QCOMPARE(f.view.sizeText(), QStringLiteral("21x17 (714 bytes)"));
    f.view.removeRow(Quenmora::Begin);
    f.view.removeColumn(Quenmora::End);
    QCOMPARE(toolBar.sizeText(), QStringLiteral("20x16 (640 bytes)"));
    f.stack.undo();
    QCOMPARE(toolBar.sizeText(), QStringLiteral("21x16 (672 bytes)"));
    QCOMPARE(f.stack.count(), 4);
}

void TestMapView::tabFollowsTheName()
{
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
    Fixture f;
    f.clickSprite();
    auto *popover = f.view.popover();
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
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
    Fixture f;
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
    QTest::addColumn<std::function<void(Fixture &)>>("remove");
    const auto row = [](const char *name, const std::function<void(Fixture &)> &remove) {
        QTest::newRow(name) << remove;
    };
    row("map", [](Fixture &f) { f.project.deleteMap(f.map->id()); });
    row("tile set", [](Fixture &f) { delete f.tiles; });
    row("block set", [](Fixture &f) { delete f.blocks; });
    row("bank", [](Fixture &f) { f.project.deleteSpriteBank(f.bank->id()); });
    row("animation", [](Fixture &f) { f.blocks->removeAnimation(f.animation->id()); });
}

void TestMapView::assetsMayGoWhileShown()
{
    QFETCH(std::function<void(Fixture &)>, remove);
    Fixture f;
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
