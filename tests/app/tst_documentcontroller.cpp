
#include "app/menus/editmenu.h"
#include "app/menus/imagemenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "editors/animation/blockeditorview.h"
#include "editors/animation/spriteeditorview.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/map/mapanimator.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/palette/palettegrid.h"
#include "support/windowscene.h"

#include <functional>

namespace {

/// One asset of every kind, with a palette of its own, and a second map.
struct Assets
{
    explicit Assets(Project &made) : project(made) { bank->addSprite(); }

    QPointer<Palette> palette(const char *name) { return project.createPalette(CreateAction::DefaultNext, name); }
    QPointer<Map> newMap(const char *name, int width) { return project.createMap(name, tiles->id(), {width, 32}); }

    Project &project;
    QPointer<Palette> tilePalette = palette("Tile colours");
    QPointer<Palette> spritePalette = palette("Sprite colours");
    QPointer<Palette> imagePalette = palette("Image colours");
    QPointer<TileSet> tiles = project.createTileSet("Tiles", tilePalette->id(), 16);
    QPointer<TileSet> others = project.createTileSet("Others", tilePalette->id(), 16);
    QPointer<Map> map = newMap("Level", 40);
    QPointer<Map> second = newMap("Second", 41);
    QPointer<MapObjects> blocks = project.createBlockList("Doors", tiles->id());
    QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, "Hero", spritePalette->id());
    QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "Title & Co", imagePalette->id());
};

} // namespace

class TestDocumentController : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow();
        controller()->newProject("Game");
        m_assets.emplace(project());
    }

    void cleanup() { m_window.reset(); }

    void opensOneTabADocument()
    {
        for (int time = 0; time < 2; ++time) {
            documents().setActiveMap(m_assets->map->id());
            QCOMPARE(tabText(), "Level");
            documents().setActiveBlockEditor(m_assets->blocks->id());
            QCOMPARE(tabText(), "Doors");
            documents().setActiveSpriteEditor(m_assets->bank->id());
            QCOMPARE(tabText(), "Hero");
            documents().setActiveImageEditor(m_assets->image->id());
            QCOMPARE(tabText(), "Title && Co");
        }
        QCOMPARE(tabs()->count(), 5); // with the scratch image
        views().project->tree()->itemOf(m_assets->bank->id())->setText(0, "Heroine");
        QCOMPARE(tabs()->tabText(4), "Heroine");
    }

    void tellsDocksAndMenusWhatIsActive()
    {
        const MenuBar *menus = m_window->menus();
        const auto canSwapImagePalette = [menus] {
            return EditorInput::entry(*menus->imageMenu(), "Swap Palette")->isEnabled();
        };
        QCOMPARE(views().palette->palette(), m_assets->imagePalette);
        QVERIFY(!views().mapToolBar->isEnabled() && canSwapImagePalette());

        documents().setActiveMap(m_assets->map->id());
        QCOMPARE(views().tileEditor->tileSet(), m_assets->tiles);
        QCOMPARE(views().tilePicker->grid()->tileSet(), m_assets->tiles);
        QVERIFY(views().mapToolBar->isEnabled() && !canSwapImagePalette());
        QCOMPARE(menus->mapMenu()->map(), m_assets->map);
        QCOMPARE(menus->tileMenu()->tileSet(), m_assets->tiles);
        QCOMPARE(views().palette->palette(), m_assets->tilePalette);
        QCOMPARE(menus->paletteMenu()->palette(), m_assets->tilePalette);

        documents().setActiveSpriteEditor(m_assets->bank->id());
        QCOMPARE(views().spriteEditor->sprites(), m_assets->bank);
        QCOMPARE(menus->spriteMenu()->spriteBank(), m_assets->bank);
        QCOMPARE(views().palette->palette(), m_assets->spritePalette);
        QVERIFY(!views().mapToolBar->isEnabled());
        QVERIFY(views().palette->visibleRegion().isEmpty()); // the sprite editor is in front of it

        tabs()->setCurrentIndex(tabs()->indexOfDocument(m_assets->map->id())); // as by a click
        QCOMPARE(views().palette->palette(), m_assets->tilePalette);
        QVERIFY(views().mapToolBar->isEnabled());
        tabs()->setCurrentIndex(tabs()->indexOfDocument({}));
        QVERIFY(!menus->spriteMenu()->spriteBank());
        QCOMPARE(views().palette->palette(), project().scratchPalette());
        tabs()->setCurrentIndex(tabs()->indexOfDocument(m_assets->image->id()));
        emit menus->imageMenu()->swapPalette(m_assets->tilePalette->id());
        QCOMPARE(m_assets->image->palette(), m_assets->tilePalette);
        QCOMPARE(views().palette->palette(), m_assets->tilePalette);
        documents().undoGroup()->undo();
        QCOMPARE(m_assets->image->palette(), m_assets->imagePalette);
        QCOMPARE(views().palette->palette(), m_assets->imagePalette);
    }

    void docksAndToolBarServeTheMapInFront()
    {
        const QPointer<TileAnimation> torch = m_assets->blocks->createBoundTileAnimation("Torch");
        torch->addFrame()->setIndex(0, 0, 4);
        MapEditor::MapGrid *level = open(m_assets->map);
        MapEditor::MapGrid *second = open(m_assets->second);
        TilePickerGrid *picker = views().tilePicker->grid();
        emit picker->selectedIndexChanged(7);
        QVERIFY(second->currentTileIndex() == 7 && level->currentTileIndex() == 0);
        open(m_assets->map);
        QCOMPARE(picker->selectedIndex(), 0);
        m_assets->map->setTile({3, 3}, {.index = 9, .used = true});
        drag(level, {3, 3}, {3, 3}, Qt::MiddleButton);
        QCOMPARE(picker->selectedIndex(), 9);
        open(m_assets->second);
        QCOMPARE(picker->selectedIndex(), 7);

        emit views().mapObjects->animationSelected(torch);
        QCOMPARE(second->mode(), Quenmora::Ui::PlaceAnim);
        auto *sprites = views().mapSprites->findChild<QListView *>("sprites");
        sprites->setCurrentIndex(sprites->model()->index(1, 0));
        drag(second, {6, 6}, {6, 6});
        QCOMPARE(m_assets->second->sprites().value(0).sprite, 1);
        QVERIFY(m_assets->map->sprites().isEmpty());

        const MapEditor::ToolBar *bar = views().mapToolBar;
        bar->actions().at(0)->trigger();
        QVERIFY(m_assets->map->tileLayer()->isVisible() && !m_assets->second->tileLayer()->isVisible());
        open(m_assets->map);
        QVERIFY(bar->actions().at(0)->isChecked() && bar->sizeText() == "40x32 (2560 bytes)");
        project().deleteMap(m_assets->map->id());
        project().deleteMap(m_assets->second->id());
        QVERIFY(!bar->isEnabled() && bar->sizeText().isEmpty());
        bar->actions().at(1)->trigger(); // for nobody
    }

    void selectionBecomesAMap()
    {
        m_assets->map->setTile({2, 1}, {.index = 5, .mirror = true, .used = true});
        MapEditor::MapGrid *grid = open(m_assets->map);
        grid->setMode(Quenmora::Ui::Select);
        drag(grid, {2, 1}, {4, 3});
        EditorInput::trigger(*grid->findChild<QMenu *>(), "Copy to new map");
        const QPointer<Map> made = project().maps().last();
        QCOMPARE(tabs()->indexOfDocument(made->id()), tabs()->currentIndex());
        QVERIFY(made->size() == QSize(3, 3) && made->tileSet() == m_assets->tiles);
        QCOMPARE(made->tileLayer()->cellAt({0, 0}), m_assets->map->tileLayer()->cellAt({2, 1}));
        QCOMPARE(made->tileLayer()->cellAt({1, 1}), TileMap::TileData());
        QCOMPARE(documents().undoStackFor(m_assets->map->id())->count(), 0);
    }

    void editsTheTileOrSpriteOfADoubleClickedCell()
    {
        documents().setActiveBlockEditor(m_assets->blocks->id());
        auto *blocks = page<BlockEditor::View>();
        documents().setActiveTileSet(m_assets->others->id());
        emit blocks->tileDoubleClicked(9); // counted from 1
        QCOMPARE(views().tileEditor->tileSet(), m_assets->tiles);
        QCOMPARE(views().tileEditor->tileIndex(), 8);
        emit views().tilePicker->tileDoubleClicked(5);
        QCOMPARE(views().tileEditor->tileIndex(), 4);

        documents().setActiveSpriteEditor(m_assets->bank->id());
        auto *sprites = page<SpriteEditor::View>();
        views().spriteEditor->setSprites(nullptr);
        emit sprites->spriteDoubleClicked(1);
        QCOMPARE(views().spriteEditor->sprites(), m_assets->bank);
        QCOMPARE(views().spriteEditor->spriteIndex(), 1);
    }

    void showsWhatIsOpened()
    {
        ProjectActions *actions = m_window->projectActions();
        ProjectWindow *tree = views().project;
        const std::pair<std::function<void()>, QDockWidget *> cases[]{
            {[&] { emit tree->selectedTileSetChanged(m_assets->tiles->id()); }, views().tileEditor},
            {[&] { actions->createTileSet("New", {}, 4, false); }, views().tileEditor},
            {[&] { emit views().tilePicker->tileDoubleClicked(2); }, views().tileEditor},
            {[&] { emit tree->selectedSpritesChanged(m_assets->bank->id()); }, views().spriteEditor},
            {[&] { actions->createSprites(SpriteDialog::NewPalette, "New", {}); }, views().spriteEditor},
            {[&] { actions->createPalette(CreateAction::Blank, "Night"); }, views().palette},
            {[&] { emit tree->selectedPaletteChanged(m_assets->tilePalette->id()); }, views().palette}};
        for (const auto &[open, dock] : cases) {
            dock->close();
            QCoreApplication::processEvents();
            open();
            QCoreApplication::processEvents();
            QVERIFY2(!dock->visibleRegion().isEmpty(), qPrintable(dock->objectName()));
        }
        views().spriteEditor->close(); // by somebody who only goes through the tabs
        documents().setActiveMap(m_assets->map->id());
        tabs()->setCurrentIndex(tabs()->indexOfDocument(m_assets->bank->id()));
        QVERIFY(views().spriteEditor->isHidden());
    }

    void comesBackToTheSpriteThatWasEdited()
    {
        const QUuid other = project().createSpriteBank(Quenmora::FourBit, "Other", {})->id();
        documents().setActiveSpriteEditor(other);
        documents().setActiveSpriteEditor(m_assets->bank->id());
        views().spriteEditor->changeSprite(1);
        for (const QUuid &between : {other, QUuid()}) { // the latter is the scratch image's
            for (const QUuid &next : {between, m_assets->bank->id()})
                tabs()->setCurrentIndex(tabs()->indexOfDocument(next));
            QCOMPARE(views().spriteEditor->sprites(), m_assets->bank);
            QCOMPARE(views().spriteEditor->spriteIndex(), 1);
        }
    }

    void keepsUndoHistoryAsLongAsTheAsset()
    {
        const QUuid id = m_assets->map->id();
        documents().setActiveMap(id);
        const QPointer<QUndoStack> stack = documents().undoStackFor(id);
        stack->push(new QUndoCommand("Edit"));
        QVERIFY(!documents().isClean() && controller()->isModified());
        tabs()->closeTab(tabs()->currentIndex());
        documents().setActiveMap(id);
        QCOMPARE(documents().undoStackFor(id), stack);
        QCOMPARE(stack->count(), 1);
        documents().setClean();
        QVERIFY(documents().isClean());

        m_window->projectActions()->deleteItem(ProjectTree::MapNode, id);
        QVERIFY(stack.isNull());
        const QPointer<QUndoStack> scratch = documents().undoStackFor({});
        controller()->close();
        QVERIFY(scratch.isNull());
    }

    void clearsWhatShowedADeletedAsset()
    {
        const MenuBar *menus = m_window->menus();
        ProjectActions *actions = m_window->projectActions();
        documents().setActiveBlockEditor(m_assets->blocks->id());
        documents().setActiveMap(m_assets->map->id());
        documents().setActiveSpriteEditor(m_assets->bank->id());

        actions->deleteItem(ProjectTree::TileSetNode, m_assets->tiles->id());
        QVERIFY2(m_assets->tiles && views().tileEditor->isActive(), "a map uses it");
        actions->deleteItem(ProjectTree::TileSetNode, m_assets->others->id()); // whichever is shown
        QVERIFY(!views().tileEditor->isActive() && !views().tilePicker->isActive() && !views().mapObjects->isActive());
        QVERIFY(!menus->tileMenu()->tileSet());
        const QUuid spare = project().createSpriteBank(Quenmora::FourBit, "Spare", {})->id();
        actions->deleteItem(ProjectTree::SpriteBankNode, spare);
        QVERIFY(!views().spriteEditor->isActive() && !menus->spriteMenu()->spriteBank());
        const QUuid map = m_assets->map->id();
        actions->deleteItem(ProjectTree::MapNode, map);
        QVERIFY(!menus->mapMenu()->map());
        const QUuid blocks = m_assets->blocks->id();
        actions->deleteItem(ProjectTree::MapNode, m_assets->second->id());
        actions->deleteItem(ProjectTree::MapObjectsNode, blocks);
        actions->deleteItem(ProjectTree::SpriteBankNode, m_assets->bank->id());
        actions->deleteItem(ProjectTree::ImageNode, m_assets->image->id());
        documents().setActiveMap(map); // which nobody knows any more
        documents().setActiveBlockEditor(blocks);
        QCOMPARE(tabs()->count(), 1);
        QCOMPARE(tabText(), "Scratch Image Editor");
        documents().setActivePalette(m_assets->spritePalette->id());
        actions->deleteItem(ProjectTree::PaletteNode, m_assets->imagePalette->id());
        QVERIFY(!views().palette->isActive() && !menus->paletteMenu()->palette());
    }

    void givesUndoAndClipboardToTheEditorInUse()
    {
        activateWindow();
        const auto clipboardEnabled = [this] {
            return EditorInput::entry(*m_window->menus()->editMenu(), "Clear Selection")->isEnabled();
        };
        const auto active = [this] { return documents().undoGroup()->activeStack(); };
        QUndoStack *tileSteps = documents().undoStackFor(m_assets->tiles->id());
        QCOMPARE(active(), documents().undoStackFor(m_assets->image->id()));
        QVERIFY(clipboardEnabled());
        documents().setActiveTileSet(m_assets->tiles->id());
        views().tileEditor->canvas()->setFocus();
        QCOMPARE(active(), tileSteps);
        views().project->tree()->setFocus();
        QCOMPARE(active(), tileSteps); // the tree edits nothing

        documents().setActiveTileSet(m_assets->others->id()); // and the keyboard stays
        QCOMPARE(active(), documents().undoStackFor(m_assets->others->id()));
        m_window->projectActions()->deleteItem(ProjectTree::TileSetNode, m_assets->others->id());
        QCOMPARE(active(), documents().undoStackFor(m_assets->image->id()));
        documents().setActiveTileSet(m_assets->tiles->id());
        views().tileEditor->canvas()->setFocus();
        QCOMPARE(active(), tileSteps);
        views().tileEditor->close();
        QCOMPARE(active(), documents().undoStackFor(m_assets->image->id()));
        QVERIFY(tabs()->isAncestorOf(QApplication::focusWidget()));
        views().tileEditor->show();
        views().tileEditor->canvas()->setFocus();

        documents().setActivePalette(m_assets->imagePalette->id());
        views().palette->findChild<PaletteGrid *>()->setFocus();
        m_assets->imagePalette->setColour(3, Qt::red, false);
        QCOMPARE(tileSteps->undoText(), "Colour"); // colours are undone in the document in front
        documents().undoGroup()->undo();
        QCOMPARE(m_assets->imagePalette->rawColour(3), quint16(0x0301));

        documents().setActiveSpriteEditor(m_assets->bank->id());
        QVERIFY(!clipboardEnabled()); // the tab of its animations
        QCOMPARE(active(), documents().undoStackFor(m_assets->bank->id()));
        views().spriteEditor->canvas()->setFocus();
        QVERIFY(clipboardEnabled());
        tabs()->setCurrentIndex(0);
        QCOMPARE(active(), documents().undoStackFor({}));
        controller()->close();
        QVERIFY(!active() && !clipboardEnabled());
    }

    void editMenuServesTheEditorInFront()
    {
        const auto choose = [this](const char *entry) {
            EditorInput::trigger(*m_window->menus()->editMenu(), entry);
            return page<ImageEditor::View>()->canvas()->selection();
        };
        QImage picture = m_assets->image->image();
        picture.scanLine(4)[3] = 5;
        page<ImageEditor::View>()->canvas()->setImage(picture);
        QCOMPARE(m_assets->image->image().pixelIndex(3, 4), 5);
        const QRect all = picture.rect();
        QCOMPARE(choose("Select All"), all);
        choose("Copy");
        QCOMPARE(choose("Clear Selection"), QRect());
        choose("Select All");
        choose("Cut");
        QCOMPARE(m_assets->image->image().pixelIndex(3, 4), 0);
        documents().undoGroup()->undo();
        QCOMPARE(m_assets->image->image().pixelIndex(3, 4), 5);
        choose("Paste");
        QCOMPARE(page<ImageEditor::View>()->canvas()->mode(), Quenmora::Ui::Paste);
    }

    void keepsTheScratchImageAndItsPalette()
    {
        QImage picture = project().scratchImage();
        picture.scanLine(4)[3] = 5;
        ImageEditor::View *scratch = tabs()->scratchEditor();
        scratch->canvas()->setImage(picture);
        QCOMPARE(project().scratchImage().pixelIndex(3, 4), 5);
        tabs()->closeTab(tabs()->indexOf(scratch));
        tabs()->setScratchEditorVisible(true);
        QCOMPARE(tabs()->currentWidget(), scratch);
        QCOMPARE(scratch->pixels().pixelIndex(3, 4), 5);

        QCOMPARE(project().scratchPalette(), m_assets->tilePalette); // the first of a project without one
        emit views().palette->paletteChosen(m_assets->imagePalette->id());
        QCOMPARE(project().scratchPalette(), m_assets->imagePalette);
        documents().setActiveMap(m_assets->map->id());
        emit views().palette->paletteChosen(m_assets->spritePalette->id());
        QCOMPARE(project().scratchPalette(), m_assets->imagePalette);
        QCOMPARE(views().palette->palette(), m_assets->spritePalette);
    }

    void storesOpenTabsInOrder()
    {
        tabs()->closeAllTabs();
        documents().setActiveMap(m_assets->second->id());
        documents().setActiveBlockEditor(m_assets->blocks->id());
        documents().setActiveMap(m_assets->map->id());
        auto *level = page<MapEditor::View>();
        level->toolPaletteClicked(Quenmora::Ui::AnimPlay, true);
        bool plays = true; // while it is saved
        connect(controller(), &ProjectController::aboutToSave, this, [&] { plays = level->animator()->isRunning(); });
        const QString file = m_folder("game.quenmora");
        controller()->setFileNameCallback([file] { return file; });
        controller()->save();
        QVERIFY(!plays && level->animator()->isRunning());
        controller()->openProject(file);
        QStringList texts;
        for (int tab = 0; tab < tabs()->count(); ++tab)
            texts.append(tabs()->tabText(tab));
        QCOMPARE(texts, (QStringList{"Scratch Image Editor", "Second", "Doors", "Level"}));
        QVERIFY(!controller()->isModified());
    }

private:
    [[nodiscard]] QString tabText() { return tabs()->tabText(tabs()->currentIndex()); }
    /// Brings a map's tab to the front, and returns its grid.
    MapEditor::MapGrid *open(const QPointer<Map> &map)
    {
        documents().setActiveMap(map->id());
        return page<MapEditor::View>()->grid();
    }

    /// Drags from one cell of a map to another.
    static void drag(MapEditor::MapGrid *grid, QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton)
    {
        const auto centre = [grid](QPoint cell) { return grid->viewport().rectOfCells({cell, QSize(1, 1)}).center(); };
        QTest::mouseMove(grid, centre(from));
        QTest::mousePress(grid, button, Qt::NoModifier, centre(from));
        QTest::mouseMove(grid, centre(to));
        QTest::mouseRelease(grid, button, Qt::NoModifier, centre(to));
    }

    std::optional<Assets> m_assets;
};

QUENMORA_TEST_MAIN(TestDocumentController)
#include "tst_documentcontroller.moc"
