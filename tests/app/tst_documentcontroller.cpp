#include "app/mainwindow.h"

#include "app/menus/editmenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "editors/animation/blockeditorview.h"
#include "editors/animation/spriteeditorview.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/palette/palettegrid.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QAction>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>

#include <optional>

namespace {

/// A project with one asset of every kind, each with a palette of its own.
struct Assets
{
    explicit Assets(Project &project)
        : tilePalette(project.createPalette(CreateAction::DefaultNext, "Tile colours"))
        , spritePalette(project.createPalette(CreateAction::DefaultNext, "Sprite colours"))
        , imagePalette(project.createPalette(CreateAction::DefaultNext, "Image colours"))
        , tiles(project.createTileSet("Tiles", tilePalette->id()))
        , map(project.createMap("Level", tiles->id(), {40, 32}))
        , blocks(project.createBlockList("Doors", tiles->id()))
        , bank(project.createSpriteBank(Quenmora::FourBit, "Hero", spritePalette->id()))
    { }

    QPointer<Palette> tilePalette;
    QPointer<Palette> spritePalette;
    QPointer<Palette> imagePalette;
    QPointer<TileSet> tiles;
    QPointer<Map> map;
    QPointer<MapObjects> blocks;
    QPointer<SpriteBank> bank;
};

} // namespace

class TestDocumentController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void opensOneTabADocument();
    void tellsDocksAndMenusWhatIsActive();
    void servesTheMapEditorInFront();
    void editsTheTileOrSpriteOfADoubleClickedCell();
    void ignoresUnknownAssets();
    void keepsUndoHistoryAsLongAsTheAsset();
    void closesTheTabOfADeletedAsset();
    void clearsWhatShowedADeletedAsset();
    void givesUndoAndClipboardToTheEditorInUse();
    void keepsTheScratchImage();
    void keepsThePaletteOfTheScratchImage();
    void renamesTabs();
    void storesOpenTabsInOrder();

private:
    [[nodiscard]] DocumentController *documents() { return m_window->documentController(); }
    [[nodiscard]] DocumentTabView *tabs() { return m_window->views().tabs; }
    [[nodiscard]] Project *project() { return m_window->projectController()->project(); }
    [[nodiscard]] QStringList tabTexts();

    std::optional<MainWindow> m_window;
    std::optional<Assets> m_assets;
};

void TestDocumentController::init()
{
    Update::UpdateChecker::setFeedAddress({});
    m_window.emplace();
    m_window->projectController()->setUnsavedAnswerCallback([](const QString &) { return ProjectController::Discard; });
    m_window->projectController()->newProject("Game");
    m_assets.emplace(*project());
}

QStringList TestDocumentController::tabTexts()
{
    QStringList texts;
    for (int tab = 0; tab < tabs()->count(); ++tab)
        texts.append(tabs()->tabText(tab));
    return texts;
}

void TestDocumentController::opensOneTabADocument()
{
    const QPointer<Image> image = project()->createImage(Quenmora::LoRes_128x96, "Title & Co", {}); // opens
    QCOMPARE(tabs()->indexOfDocument(image->id()), 1);
    for (int time = 0; time < 2; ++time) {
        documents()->setActiveMap(m_assets->map->id());
        QCOMPARE(tabs()->tabText(tabs()->currentIndex()), "Level");
        documents()->setActiveBlockEditor(m_assets->blocks->id());
        QCOMPARE(tabs()->tabText(tabs()->currentIndex()), "Doors");
        documents()->setActiveSpriteEditor(m_assets->bank->id());
        QCOMPARE(tabs()->tabText(tabs()->currentIndex()), "Hero");
        documents()->setActiveImageEditor(image->id());
        QCOMPARE(tabs()->tabText(tabs()->currentIndex()), "Title && Co");
    }
    QCOMPARE(tabs()->count(), 5);
    const QList<std::pair<QUuid, int>> expected{{QUuid(), 1},
                                                {image->id(), 2},
                                                {m_assets->map->id(), 0},
                                                {m_assets->blocks->id(), 4},
                                                {m_assets->bank->id(), 3}};
    for (int tab = 0; tab < tabs()->count(); ++tab) {
        QCOMPARE(tabs()->widget(tab)->property("document_id"), QVariant(expected[tab].first));
        QCOMPARE(tabs()->widget(tab)->property("document_type"), QVariant(expected[tab].second));
        QCOMPARE(tabs()->indexOfDocument(expected[tab].first), tab);
    }
    QCOMPARE(tabs()->indexOfDocument(QUuid::createUuid()), -1);
}

void TestDocumentController::tellsDocksAndMenusWhatIsActive()
{
    const DocumentViews &views = m_window->views();
    const MenuBar *menus = m_window->menus();
    QVERIFY(!views.mapToolBar->isEnabled());

    documents()->setActiveMap(m_assets->map->id());
    QCOMPARE(views.tileEditor->tileSet(), m_assets->tiles);
    QVERIFY(views.tileEditor->isActive() && views.tilePicker->isActive());
    QVERIFY(views.mapToolBar->isEnabled());
    QCOMPARE(menus->mapMenu()->map(), m_assets->map);
    QCOMPARE(menus->tileMenu()->tileSet(), m_assets->tiles);
    QCOMPARE(views.palette->palette(), m_assets->tilePalette);
    QCOMPARE(menus->paletteMenu()->palette(), m_assets->tilePalette);

    documents()->setActiveSpriteEditor(m_assets->bank->id());
    QCOMPARE(views.spriteEditor->sprites(), m_assets->bank);
    QCOMPARE(menus->spriteMenu()->spriteBank(), m_assets->bank);
    QCOMPARE(views.palette->palette(), m_assets->spritePalette);
    QVERIFY(!views.mapToolBar->isEnabled());
    QVERIFY(views.palette->visibleRegion().isEmpty()); // the sprite editor is in front of it

    const QPointer<Image> image = project()->createImage(Quenmora::LoRes_128x96, "Title", m_assets->imagePalette->id());
    QCOMPARE(views.palette->palette(), m_assets->imagePalette);

    tabs()->setCurrentIndex(tabs()->indexOfDocument(m_assets->map->id())); // as by a click
    QCOMPARE(views.palette->palette(), m_assets->tilePalette);
    QVERIFY(views.mapToolBar->isEnabled());
    tabs()->setCurrentIndex(tabs()->indexOfDocument({}));
    QVERIFY(!menus->spriteMenu()->spriteBank());
    QCOMPARE(views.palette->palette(), project()->scratchPalette());
}

void TestDocumentController::servesTheMapEditorInFront()
{
    const DocumentViews &views = m_window->views();
    const QPointer<Map> second = project()->createMap("Second", m_assets->tiles->id(), {40, 32});
    documents()->setActiveMap(m_assets->map->id());
    documents()->setActiveMap(second->id());
    const QList<MapEditor::View *> editors = tabs()->mapEditors();
    QCOMPARE(editors.size(), 2);
    emit views.tilePicker->selectedTileChanged(7);
    QCOMPARE(editors[1]->grid()->currentTileIndex(), 7);
    QCOMPARE(editors[0]->grid()->currentTileIndex(), 0);
    tabs()->setCurrentWidget(editors[0]);
    QCOMPARE(views.tilePicker->grid()->selectedIndex(), 0);
    emit editors[0]->tilePicked(3);
    QCOMPARE(views.tilePicker->grid()->selectedIndex(), 3);
    tabs()->setCurrentWidget(editors[1]);
    QCOMPARE(views.tilePicker->grid()->selectedIndex(), 7);

    emit views.tilePicker->tileDoubleClicked(5); // a number counted from 1
    QCOMPARE(views.tileEditor->tileIndex(), 4);
    QSignalSpy request(documents(), &DocumentController::createMapFromSelection);
    emit editors[1]->createMapFromSelection(second->id(), {2, 3});
    QCOMPARE(request.takeFirst(), (QVariantList{second->id(), QSize(2, 3)}));
}

void TestDocumentController::editsTheTileOrSpriteOfADoubleClickedCell()
{
    const DocumentViews &views = m_window->views();
    documents()->setActiveBlockEditor(m_assets->blocks->id());
    auto *blocks = qobject_cast<BlockEditor::View *>(tabs()->currentWidget());
    QVERIFY(blocks);
    documents()->setActiveTileSet(project()->createTileSet("Others", m_assets->tilePalette->id())->id());
    emit blocks->tileDoubleClicked(9); // counted from 1
    QCOMPARE(views.tileEditor->tileSet(), m_assets->tiles);
    QCOMPARE(views.tileEditor->tileIndex(), 8);

    documents()->setActiveSpriteEditor(m_assets->bank->id());
    auto *sprites = qobject_cast<SpriteEditor::View *>(tabs()->currentWidget());
    QVERIFY(sprites);
    m_assets->bank->addSprite();
    views.spriteEditor->setSprites(nullptr);
    emit sprites->spriteDoubleClicked(1);
    QCOMPARE(views.spriteEditor->sprites(), m_assets->bank);
    QCOMPARE(views.spriteEditor->spriteIndex(), 1);
}

void TestDocumentController::ignoresUnknownAssets()
{
    const QUuid unknown = QUuid::createUuid();
    documents()->setActivePalette(unknown);
    documents()->setActiveTileSet(unknown);
    documents()->setActiveMap(unknown);
    documents()->setActiveSpriteEditor(unknown);
    documents()->setActiveBlockEditor(unknown);
    documents()->setActiveImageEditor(unknown);
    QCOMPARE(tabs()->count(), 1);
    QVERIFY(!m_window->views().tileEditor->isActive());
}

void TestDocumentController::keepsUndoHistoryAsLongAsTheAsset()
{
    const QUuid id = m_assets->map->id();
    documents()->setActiveMap(id);
    const QPointer<QUndoStack> stack = documents()->undoStackFor(id);
    QVERIFY(documents()->isClean());
    stack->push(new QUndoCommand("Edit"));
    QVERIFY(!documents()->isClean());
    QVERIFY(m_window->projectController()->isModified());
    tabs()->closeTab(tabs()->currentIndex());
    documents()->setActiveMap(id);
    QCOMPARE(documents()->undoStackFor(id), stack);
    QCOMPARE(stack->count(), 1);
    documents()->setClean();
    QVERIFY(documents()->isClean());

    m_window->projectActions()->deleteItem(ProjectTree::MapNode, id);
    QVERIFY(stack.isNull());
    const QPointer<QUndoStack> scratch = documents()->undoStackFor({});
    QVERIFY(scratch);
    m_window->projectController()->close();
    QVERIFY(scratch.isNull());
}

void TestDocumentController::closesTheTabOfADeletedAsset()
{
    const QPointer<Image> image = project()->createImage(Quenmora::LoRes_128x96, "Title", {});
    documents()->setActiveMap(m_assets->map->id());
    documents()->setActiveBlockEditor(m_assets->blocks->id());
    documents()->setActiveSpriteEditor(m_assets->bank->id());
    QCOMPARE(tabs()->count(), 5);
    ProjectActions *actions = m_window->projectActions();
    actions->deleteItem(ProjectTree::MapNode, m_assets->map->id());
    actions->deleteItem(ProjectTree::MapObjectsNode, m_assets->blocks->id());
    actions->deleteItem(ProjectTree::SpriteBankNode, m_assets->bank->id());
    actions->deleteItem(ProjectTree::ImageNode, image->id());
    QCOMPARE(tabTexts(), QStringList{"Scratch Image Editor"});
}

void TestDocumentController::clearsWhatShowedADeletedAsset()
{
    const DocumentViews &views = m_window->views();
    const MenuBar *menus = m_window->menus();
    ProjectActions *actions = m_window->projectActions();
    documents()->setActiveMap(m_assets->map->id());
    documents()->setActiveSpriteEditor(m_assets->bank->id());

    actions->deleteItem(ProjectTree::TileSetNode, m_assets->tiles->id());
    QVERIFY2(m_assets->tiles, "a map uses it");
    QVERIFY(views.tileEditor->isActive());
    actions->deleteItem(ProjectTree::MapNode, m_assets->map->id());
    QVERIFY(!menus->mapMenu()->map());
    QVERIFY(!views.mapToolBar->isEnabled());
    actions->deleteItem(ProjectTree::TileSetNode, m_assets->tiles->id());
    QVERIFY(!views.tileEditor->isActive() && !views.tilePicker->isActive());
    QVERIFY(!menus->tileMenu()->tileSet());
    QVERIFY(!views.project->tree()->itemOf(m_assets->blocks->id())->parent()->isHidden());
    actions->deleteItem(ProjectTree::SpriteBankNode, m_assets->bank->id());
    QVERIFY(!views.spriteEditor->isActive());
    QVERIFY(!menus->spriteMenu()->spriteBank());
    documents()->setActivePalette(m_assets->imagePalette->id());
    actions->deleteItem(ProjectTree::PaletteNode, m_assets->imagePalette->id());
    QVERIFY(!views.palette->isActive());
    QVERIFY(!menus->paletteMenu()->palette());
}

void TestDocumentController::givesUndoAndClipboardToTheEditorInUse()
{
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&*m_window));
    const DocumentViews &views = m_window->views();
    QUndoGroup *group = documents()->undoGroup();
    const auto clipboardEnabled = [this] { return m_window->menus()->editMenu()->actions().last()->isEnabled(); };
    QCOMPARE(group->activeStack(), documents()->undoStackFor({}));
    QVERIFY(clipboardEnabled());

    documents()->setActiveTileSet(m_assets->tiles->id());
    views.tileEditor->canvas()->setFocus();
    QCOMPARE(group->activeStack(), documents()->undoStackFor(m_assets->tiles->id()));
    QVERIFY(clipboardEnabled());
    views.project->tree()->setFocus();
    QCOMPARE(group->activeStack(), documents()->undoStackFor(m_assets->tiles->id())); // the tree edits nothing

    documents()->setActivePalette(m_assets->imagePalette->id());
    views.palette->findChild<PaletteGrid *>()->setFocus();
    // colours are undone in the document in front
    QUndoStack *tileSteps = documents()->undoStackFor(m_assets->tiles->id());
    QCOMPARE(group->activeStack(), tileSteps);
    m_assets->imagePalette->setColour(3, Qt::red, false);
    QCOMPARE(tileSteps->undoText(), QStringLiteral("Colour"));
    group->createUndoAction(this)->trigger();
    QCOMPARE(m_assets->imagePalette->rawColour(3), quint16(0x0301));

    documents()->setActiveSpriteEditor(m_assets->bank->id());
    QCOMPARE(group->activeStack(), documents()->undoStackFor(m_assets->bank->id()));
    views.spriteEditor->canvas()->setFocus();
    QVERIFY(clipboardEnabled());
    views.spriteEditor->selectAll();
    tabs()->setCurrentIndex(0);
    QCOMPARE(group->activeStack(), documents()->undoStackFor({}));

    m_window->projectController()->close();
    QVERIFY(!group->activeStack());
    QVERIFY(!clipboardEnabled());
}

void TestDocumentController::keepsTheScratchImage()
{
    QImage picture = project()->scratchImage();
    picture.scanLine(4)[3] = 5;
    ImageEditor::View *scratch = tabs()->scratchEditor();
    scratch->canvas()->setImage(picture);
    QCOMPARE(project()->scratchImage().pixelIndex(3, 4), 5);
    tabs()->closeTab(tabs()->indexOf(scratch));
    QCOMPARE(tabs()->count(), 0);
    tabs()->setScratchEditorVisible(true);
    QCOMPARE(tabs()->currentWidget(), scratch);
    QCOMPARE(scratch->pixels().pixelIndex(3, 4), 5);
}

void TestDocumentController::keepsThePaletteOfTheScratchImage()
{
    QCOMPARE(project()->scratchPalette(), m_assets->tilePalette); // the first of a project without one
    tabs()->setScratchEditorVisible(true);
    emit m_window->views().palette->paletteChosen(m_assets->imagePalette->id());
    QCOMPARE(project()->scratchPalette(), m_assets->imagePalette);
    documents()->setActiveMap(m_assets->map->id());
    emit m_window->views().palette->paletteChosen(m_assets->spritePalette->id());
    QCOMPARE(project()->scratchPalette(), m_assets->imagePalette);
    QCOMPARE(m_window->views().palette->palette(), m_assets->spritePalette);
}

void TestDocumentController::renamesTabs()
{
    documents()->setActiveSpriteEditor(m_assets->bank->id());
    m_window->views().project->tree()->itemOf(m_assets->bank->id())->setText(0, "Heroine");
    QCOMPARE(m_assets->bank->name(), "Heroine");
    QCOMPARE(tabTexts().last(), "Heroine");
}

void TestDocumentController::storesOpenTabsInOrder()
{
    const QPointer<Map> second = project()->createMap("Second", m_assets->tiles->id(), {40, 32});
    const QPointer<Map> third = project()->createMap("Third", m_assets->tiles->id(), {40, 32});
    for (const QPointer<Map> &map : {third, m_assets->map, second})
        documents()->setActiveMap(map->id());
    const QTemporaryDir folder;
    const QString file = folder.filePath("game.quenmora");
    m_window->projectController()->setFileNameCallback([file] { return file; });
    m_window->projectController()->save();
    m_window->projectController()->openProject(file);
    QCOMPARE(tabTexts(), (QStringList{"Scratch Image Editor", "Third", "Level", "Second"}));
    QVERIFY(!m_window->projectController()->isModified());
}

QUENMORA_TEST_MAIN(TestDocumentController)
#include "tst_documentcontroller.moc"
