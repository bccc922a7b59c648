#include "app/documentcontroller.h"

#include "app/documenttabview.h"
#include "app/menus/editmenu.h"
#include "app/menus/imagemenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/menubar.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "app/projectcontroller.h"
#include "app/projecttree/projectwindow.h"
#include "editors/animation/blockeditorview.h"
#include "editors/animation/spriteeditorview.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/canvas/tilepickertool.h"
#include "editors/canvas/tilewindow.h"
#include "editors/map/blockselectorwindow.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/mappreferences.h"
#include "editors/map/mapspriteswindow.h"
#include "editors/map/paintdesk.h"
#include "editors/palette/palettewindow.h"
#include "preferences/mapeditorpage.h"
#include "preferences/preferencesdialog.h"

#include <QLayout>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

MapEditor::Preferences preferencesOf(const MapEditorPage &page)
{
    MapEditor::Preferences preferences;
    preferences.checkerBoard = page.checkerBoard();
    preferences.gridColour1 = page.gridColour1();
    preferences.gridColour2 = page.gridColour2();
    preferences.overlayGrid = page.overlayGrid();
    preferences.gridSize = page.gridSize();
    preferences.defaultZoom = page.defaultZoom();
    return preferences;
}

/// Shows a dock in front, also one that was closed.
void bringUp(QDockWidget *dock)
{
    dock->show();
    if (QLayout *layout = dock->parentWidget() ? dock->parentWidget()->layout() : nullptr)
        layout->activate(); // or it had no tab yet to be raised by
    dock->lower(); // what was raised last is not raised again, although it was closed since
    dock->raise();
}

} // namespace

DocumentController::DocumentController(const DocumentViews &views, ProjectController *projectController,
                                       QObject *parent)
    : QObject(parent)
    , m_views(views)
    , m_projectController(projectController)
    , m_focus(views, m_stacks.group(), [this](const QUuid &id) { return undoStackFor(id); })
    , m_keyboardReturn(views)
{
    const auto stackFor = [this](const QUuid &id) { return undoStackFor(id); };
    m_views.tileEditor->setUndoStackProvider(stackFor);
    m_views.spriteEditor->setUndoStackProvider(stackFor);
    m_views.palette->setUndoStackProvider([this](const QUuid &id) { return recordingStackFor(id); });
    connect(m_views.palette, &PaletteWindow::refused, this, &DocumentController::error);
    connectTabs();
    connectDocks();
}

DocumentController::~DocumentController() = default;

void DocumentController::connectTabs()
{
    // a tab that the user brought to the front
    const auto follow = [this](auto activated, auto activate) {
        connect(m_views.tabs, activated, this, [this, activate](auto... id) {
            if (m_activating)
                return;
            const QScopedValueRollback following(m_following, true);
            (this->*activate)(id...);
        });
    };
    follow(&DocumentTabView::MapEditorActivated, &DocumentController::setActiveMap);
    follow(&DocumentTabView::ScratchEditorActivated, &DocumentController::scratchEditorActivated);
    follow(&DocumentTabView::ImageEditorActivated, &DocumentController::setActiveImageEditor);
    follow(&DocumentTabView::SpriteEditorActivated, &DocumentController::setActiveSpriteEditor);
    follow(&DocumentTabView::BlockEditorActivated, &DocumentController::setActiveBlockEditor);
    connect(m_views.tabs, &DocumentTabView::currentChanged, this, [this] {
        const auto *editor = qobject_cast<ImageEditor::View *>(m_views.tabs->currentWidget());
        m_views.menuBar->imageMenu()->setImage(editor ? editor->image() : nullptr);
        m_mapCommands.setView(qobject_cast<MapEditor::View *>(m_views.tabs->currentWidget()));
    });
    m_views.menuBar->mapMenu()->addActions(m_mapCommands.actions());
    connect(m_views.menuBar->imageMenu(), &ImageMenu::swapPalette, this, &DocumentController::changeImagePalette);
    connect(m_views.tabs, &DocumentTabView::showAnimPicker, m_views.mapObjects, &QWidget::raise);
    const ImageEditor::View *scratch = m_views.tabs->scratchEditor();
    connect(scratch, &ImageEditor::View::error, this, &DocumentController::error);
    connect(scratch, &ImageEditor::View::exported, this, &DocumentController::exported);
    connect(scratch, &ImageEditor::View::imageChanged, this, [this](const QImage &image) {
        if (project())
            project()->setScratchImage(image);
    });
}

void DocumentController::connectDocks()
{
    connect(m_views.project, &ProjectWindow::selectedPaletteChanged, this, &DocumentController::openPalette);
    connect(m_views.project, &ProjectWindow::selectedTileSetChanged, this, &DocumentController::openTileSet);
    connect(m_views.project, &ProjectWindow::selectedBlocksChanged, this, &DocumentController::setActiveBlockEditor);
    connect(m_views.project, &ProjectWindow::selectedSpritesChanged, this, &DocumentController::openSprites);
    connect(m_views.project, &ProjectWindow::selectedMapChanged, this, &DocumentController::setActiveMap);
    connect(m_views.project, &ProjectWindow::selectedImageChanged, this, &DocumentController::setActiveImageEditor);
    connect(m_views.project, &ProjectWindow::itemRenamed, m_views.tabs, &DocumentTabView::renameDocument);
    connect(m_views.project, &ProjectWindow::itemRenamed, m_views.mapSprites, &MapSpritesWindow::refreshBanks);
    connect(m_views.project, &ProjectWindow::itemRenamed, m_views.spriteEditor, &SpriteWindow::refresh);
    connect(m_views.palette, &PaletteWindow::paletteChosen, this, &DocumentController::choosePalette);
    connect(m_views.tilePicker, &TilePickerTool::tileDoubleClicked, this, &DocumentController::editTile);
    // another tile set or bank may be shown while the dock has the keyboard
    connect(m_views.tileEditor, &TileWindow::activeStateChanged, &m_focus, &EditFocus::refresh);
    for (DockWidget *dock :
         std::initializer_list<DockWidget *>{m_views.tileEditor, m_views.spriteEditor, m_views.palette}) {
        connect(dock, &DockWidget::activeChanged, &m_focus, &EditFocus::refresh);
        connect(dock, &QDockWidget::visibilityChanged, &m_focus, &EditFocus::refresh);
    }
}

Project *DocumentController::project() const
{
    return m_projectController->project();
}

QObject *DocumentController::asset(const QUuid &id) const
{
    const Project *project = this->project();
    if (!project || id.isNull())
        return nullptr;
    const auto find = [&id](const auto &...lookUps) {
        QObject *found = nullptr;
        static_cast<void>(((found = lookUps(id).data()) || ...));
        return found;
    };
    return find([project](const QUuid &wanted) { return project->palette(wanted); },
                [project](const QUuid &wanted) { return project->tileSet(wanted); },
                [project](const QUuid &wanted) { return project->map(wanted); },
                [project](const QUuid &wanted) { return project->blocks(wanted); },
                [project](const QUuid &wanted) { return project->spriteBank(wanted); },
                [project](const QUuid &wanted) { return project->image(wanted); });
}

void DocumentController::openProject(Project *project)
{
    m_recorder = std::make_unique<EditRecorder>(project, [this](const QUuid &id) { return recordingStackFor(id); });
    connect(project, &Project::imageCreated, this, [this](const QPointer<Image> &image) {
        if (image)
            setActiveImageEditor(image->id());
    });
    connect(project, &Project::spritesCreated, this, &DocumentController::offerSpriteBanks);
    m_views.palette->setProject(project);
    m_views.mapSprites->setProject(project);

    m_paintKits.setProject(project);
    openScratchImage();
    m_focus.setProject(project);

    const QStringList documents = project->openDocuments();
    for (const QString &document : documents) {
        const auto id = QUuid::fromString(document);
        if (project->map(id))
            setActiveMap(id);
        else if (project->blocks(id))
            setActiveBlockEditor(id);
        else if (project->spriteBank(id))
            setActiveSpriteEditor(id);
    }
}

void DocumentController::openScratchImage()
{
    ImageEditor::View *editor = m_views.tabs->scratchEditor();
    editor->setPixels(project()->scratchImage());
    editor->setPalette(project()->scratchPalette());
    editor->setUndoStack(undoStackFor({}));
    // without any palette it would be black for ever
    connect(project(), &Project::paletteCreated, this, [this](const QPointer<Palette> &palette) {
        if (!project()->scratchPalette())
            setScratchPalette(palette);
    });
}

void DocumentController::setScratchPalette(const QPointer<Palette> &palette)
{
    project()->setScratchPalette(palette);
    m_views.tabs->scratchEditor()->setPalette(palette);
}

bool DocumentController::freeScratchPalette(const QUuid &id)
{
    const QImage image = project() ? project()->scratchImage() : QImage();
    const bool isBlank =
        std::all_of(image.constBits(), image.constBits() + image.sizeInBytes(), [](uchar index) { return index == 0; });
    if (image.isNull() || !isBlank || id.isNull() || project()->scratchPaletteId() != id)
        return false;
    const QList<QPointer<Palette>> palettes = project()->palettes();
    const auto other = std::ranges::find_if(palettes, [&id](const auto &palette) { return palette->id() != id; });
    setScratchPalette(other == palettes.end() ? nullptr : *other);
    return true;
}

void DocumentController::closeProject()
{
    disconnectMapEditor();
    m_focus.setProject(nullptr);
    ImageEditor::View *scratch = m_views.tabs->scratchEditor();
    scratch->setUndoStack(nullptr);
    scratch->setPalette(nullptr);
    m_paintKits.setProject(nullptr);
    m_recorder.reset();
    m_stacks.clear();
    m_editedSprites.clear();
}

QUndoStack *DocumentController::undoStackFor(const QUuid &id)
{
    return m_stacks.stackFor(id, asset(id));
}

QUndoStack *DocumentController::recordingStackFor(const QUuid &id)
{
    QUndoStack *active = m_stacks.group()->activeStack();
    return active && !qobject_cast<Image *>(asset(id)) ? active : undoStackFor(id);
}

// Activating assets

bool DocumentController::showTab(const QUuid &id)
{
    const int tab = m_views.tabs->indexOfDocument(id);
    if (tab >= 0) {
        m_views.tabs->setCurrentIndex(tab);
        if (!m_following)
            m_views.tabs->focusPage(); // also when it was in front
    }
    return tab >= 0;
}

void DocumentController::closeWith(QObject *asset, QWidget *page)
{
    connect(asset, &QObject::destroyed, page, [tabs = m_views.tabs, page] { tabs->closeDeleted(page); });
}

void DocumentController::showPalette(const QPointer<Palette> &palette)
{
    if (!palette)
        return;
    m_views.palette->setPalette(palette);
    m_views.menuBar->paletteMenu()->setPalette(palette);
    m_focus.refresh();
}

void DocumentController::setActivePalette(QUuid paletteId)
{
    const QPointer<Palette> palette = project() ? project()->palette(paletteId) : nullptr;
    if (!palette)
        return;
    m_views.palette->setEnabled(true);
    showPalette(palette);
    m_views.palette->raise();
}

void DocumentController::choosePalette(const QUuid &id)
{
    // for the scratch image there is no other way to choose one
    const QPointer<Palette> palette = project() ? project()->palette(id) : nullptr;
    if (palette && m_views.tabs->currentWidget() == m_views.tabs->scratchEditor())
        setScratchPalette(palette);
    setActivePalette(id);
}

void DocumentController::showTileSet(const QPointer<TileSet> &tileSet)
{
    m_views.tilePicker->setTileSet(tileSet);
    m_views.mapObjects->setTileSet(tileSet);
    m_views.tileEditor->setTileSet(tileSet);
    m_views.menuBar->tileMenu()->setTileSet(tileSet);
}

void DocumentController::editTile(int number)
{
    m_views.tileEditor->setTileIndex(number);
    bringUp(m_views.tileEditor);
}

void DocumentController::editSprite(int index)
{
    m_views.spriteEditor->changeSprite(index);
    bringUp(m_views.spriteEditor);
}

void DocumentController::setActiveTileSet(QUuid tileSetId)
{
    const QPointer<TileSet> tileSet = project() ? project()->tileSet(tileSetId) : nullptr;
    if (!tileSet)
        return;
    m_views.tileEditor->setEnabled(true);
    showTileSet(tileSet);
    // after the tile set, or the one that was shown before would get this palette
    m_views.tileEditor->setPalette(tileSet->palette());
    m_views.tileEditor->raise();
    showPalette(tileSet->palette());
}

void DocumentController::openPalette(const QUuid &id)
{
    setActivePalette(id);
    if (asset(id))
        bringUp(m_views.palette);
}

void DocumentController::openTileSet(const QUuid &id)
{
    setActiveTileSet(id);
    if (!asset(id))
        return;
    bringUp(m_views.tileEditor);
    m_views.tileEditor->canvas()->setFocus(Qt::OtherFocusReason); // it has no page that could have the keyboard
}

void DocumentController::openSprites(const QUuid &id)
{
    setActiveSpriteEditor(id);
    if (asset(id))
        bringUp(m_views.spriteEditor);
}

void DocumentController::openMap(const QPointer<Map> &map)
{
    MapEditor::View *editor = m_views.tabs->openMapEditor(map);
    editor->offerMore(m_paintKits.kitFor(map->tileSet()));
    m_mapCommands.setView(editor);
    editor->setUndoStack(undoStackFor(map->id()));
    editor->setPastesPictures(true);
    editor->setSpriteBanks(project()->spriteBanks());
    editor->applyPreferences(preferencesOf(*m_views.preferences->mapEditorPage()));
    ProjectStore *store = m_projectController->store();
    connect(editor, &MapEditor::View::exportTileMap, store, &ProjectStore::exportMap);
    connect(editor, &MapEditor::View::exportTiles, store, &ProjectStore::exportTiles);
    connect(editor, &MapEditor::View::exportTilePalette, store, &ProjectStore::exportPalette);
    connect(editor, &MapEditor::View::createMapFromSelection, this, &DocumentController::createMapFromSelection);
    closeWith(map, editor);
}

void DocumentController::setActiveMap(QUuid mapId)
{
    const QPointer<Map> map = project() ? project()->map(mapId) : nullptr;
    if (!map)
        return;
    const QScopedValueRollback activating(m_activating, true);
    disconnectMapEditor();
    if (!showTab(mapId))
        openMap(map);
    m_views.tilePicker->setTileSet(map->tileSet());
    setActiveTileSet(map->tileSetId());
    connectMapEditor(qobject_cast<MapEditor::View *>(m_views.tabs->currentWidget()));
    m_views.menuBar->mapMenu()->setMap(map);
}

void DocumentController::connectMapEditor(MapEditor::View *editor)
{
    using MapEditor::View;
    if (!editor)
        return;
    m_views.tilePicker->setSelectedIndex(editor->grid()->currentTileIndex());
    m_mapConnections = {
        connect(m_views.tilePicker, &TilePickerTool::selectedTileChanged, editor, &View::setTileIndex),
        connect(m_views.tilePicker->grid(), &TilePickerGrid::tilesPicked, editor->paintDesk(),
                &MapEditor::PaintDesk::pickTiles),
        connect(editor, &View::tilePicked, m_views.tilePicker, &TilePickerTool::setSelectedIndex),
        connect(m_views.mapObjects, &BlockSelectorWindow::animationSelected, editor, &View::setMapObject),
        connect(m_views.mapSprites, &MapSpritesWindow::spriteAnimationSelected, editor, &View::setSpriteAnimation),
        connect(m_views.mapSprites, &MapSpritesWindow::spriteSelected, editor, &View::setSingleSprite),
        connect(editor, &View::animationPicked, m_views.mapObjects, &BlockSelectorWindow::selectAnimation),
        connect(editor, &View::spritePicked, m_views.mapSprites, &MapSpritesWindow::selectSprite),
        connect(editor, &View::placeSpriteModeEnabled, m_views.mapSprites, &QWidget::raise),
    };
}

void DocumentController::disconnectMapEditor()
{
    for (const QMetaObject::Connection &connection : std::as_const(m_mapConnections))
        disconnect(connection);
    m_mapConnections.clear();
}

void DocumentController::offerSpriteBanks()
{
    const QList<MapEditor::View *> editors = m_views.tabs->mapEditors();
    for (MapEditor::View *editor : editors)
        editor->setSpriteBanks(project()->spriteBanks());
}

void DocumentController::showSprites(const QPointer<SpriteBank> &bank)
{
    SpriteWindow *editor = m_views.spriteEditor;
    if (const SpriteBank *before = editor->sprites())
        m_editedSprites[before->id()] = editor->spriteIndex();
    if (bank != editor->sprites()) {
        editor->setSprites(bank);
        if (bank)
            editor->changeSprite(m_editedSprites.value(bank->id()));
    }
    m_focus.refresh();
    if (bank)
        m_views.mapSprites->showBank(bank->id());
    m_views.menuBar->spriteMenu()->setSpriteBank(bank);
}

void DocumentController::setActiveSpriteEditor(QUuid spriteBankId)
{
    const QPointer<SpriteBank> bank = project() ? project()->spriteBank(spriteBankId) : nullptr;
    if (!bank)
        return;
    const QScopedValueRollback activating(m_activating, true);
    showSprites(bank);
    m_views.spriteEditor->raise();
    if (!showTab(spriteBankId)) {
        SpriteEditor::View *editor = m_views.tabs->openSpriteEditor(bank);
        connect(editor, &SpriteEditor::View::spriteDoubleClicked, this, [this, spriteBankId](int index) {
            setActiveSpriteEditor(spriteBankId); // the dock may show another bank
            editSprite(index);
        });
        closeWith(bank, editor);
    }
    showPalette(bank->palette());
}

void DocumentController::setActiveBlockEditor(QUuid blocksId)
{
    const QPointer<MapObjects> blocks = project() ? project()->blocks(blocksId) : nullptr;
    if (!blocks)
        return;
    const QScopedValueRollback activating(m_activating, true);
    if (!showTab(blocksId)) {
        BlockEditor::View *editor = m_views.tabs->openBlockEditor(blocks);
        connect(editor, &BlockEditor::View::tileDoubleClicked, this, [this, blocksId](int number) {
            setActiveBlockEditor(blocksId); // the dock may show another tile set
            editTile(number);
        });
        closeWith(blocks, editor);
    }
    setActiveTileSet(blocks->tileSet() ? blocks->tileSet()->id() : QUuid());
}

void DocumentController::setActiveImageEditor(QUuid imageId)
{
    const QPointer<Image> image = project() ? project()->image(imageId) : nullptr;
    if (!image)
        return;
    const QScopedValueRollback activating(m_activating, true);
    if (!showTab(imageId)) {
        ImageEditor::View *editor = m_views.tabs->openImageEditor(image);
        editor->setUndoStack(undoStackFor(imageId));
        connect(editor, &ImageEditor::View::error, this, &DocumentController::error);
        connect(editor, &ImageEditor::View::exported, this, &DocumentController::exported);
        connect(editor, &ImageEditor::View::imported, this,
                [this, imageId](const QString &filePath, const ImageImport &choices) {
                    emit pictureImported(imageId, filePath, choices);
                });
        connect(editor, &ImageEditor::View::paletteSwapped, this, [this, editor](const QPointer<Palette> &palette) {
            if (editor == m_views.tabs->currentWidget())
                showPalette(palette);
        });
        closeWith(image, editor);
    }
    setActivePalette(image->paletteId());
}

void DocumentController::changeImagePalette(QUuid paletteId)
{
    auto *editor = qobject_cast<ImageEditor::View *>(m_views.tabs->currentWidget());
    const QPointer<Palette> palette = project() ? project()->palette(paletteId) : nullptr;
    if (!editor || !palette)
        return;
    editor->swapPalette(palette);
}

void DocumentController::scratchEditorActivated()
{
    if (!project())
        return;
    const QPointer<Palette> palette = project()->scratchPalette();
    m_views.palette->setPalette(palette);
    m_views.menuBar->paletteMenu()->setPalette(palette);
    m_views.palette->raise();
    m_views.menuBar->spriteMenu()->setSpriteBank(nullptr);
}

void DocumentController::forget(ProjectTree::ProjectNode node, const QUuid &id)
{
    m_views.project->removeItem(node, id);
    switch (node) {
    case ProjectTree::PaletteNode:
        m_views.palette->setPalette(nullptr);
        m_views.menuBar->paletteMenu()->setPalette(nullptr);
        break;
    case ProjectTree::TileSetNode:
        showTileSet(nullptr);
        break;
    case ProjectTree::SpriteBankNode:
        showSprites(nullptr);
        break;
    case ProjectTree::MapNode:
        m_views.menuBar->mapMenu()->setMap(nullptr);
        break;
    case ProjectTree::MapObjectsNode:
    case ProjectTree::ImageNode:
        break; // their tabs close themselves
    }
}
