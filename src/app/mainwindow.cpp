#include "app/mainwindow.h"

#include "app/colourcycling.h"
#include "app/commands/commanddesk.h"
#include "app/exportmessages.h"
#include "app/exportproject/projectexport.h"
#include "app/guide.h"
#include "app/importfile/fileimport.h"
#include "app/imports/importkeeper.h"
#include "app/imports/importnotice.h"
#include "app/menus/editmenu.h"
#include "app/menus/filemenu.h"
#include "app/menus/helpmenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "app/menus/viewmenu.h"
#include "app/nextsteps.h"
#include "app/recoverylist.h"
#include "app/returnwatch.h"
#include "app/startpage.h"
#include "app/unsavedmark.h"
#include "app/version.h"
#include "editors/map/mapeditorview.h"
#include "preferences/generalpage.h"
#include "ui/commands.h"
#include "ui/messagedialog.h"
#include "ui/plaintext.h"
#include "ui/question.h"
#include "ui/readablehints.h"
#include "ui/svgiconengine.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QJsonObject>
#include <QLocale>
#include <QMimeData>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr QSize DefaultSize(1024, 768);

/// The project file among dragged data, when that is all there is.
QString draggedProject(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    const QString file = urls.size() == 1 ? urls.first().toLocalFile() : QString();
    return QFileInfo(file).suffix() == QStringLiteral("quenmora") ? file : QString();
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_startPage(new StartPage(m_menuBar, &m_tabs))
    , m_projectController(this, m_menuBar.fileMenu())
    , m_recoveryKeeper(&m_projectController, AppState::recoveryFolder())
    , m_recoveryOffers(&m_projectController, &m_recoveryKeeper, AppState::recoveryFolder())
    , m_askBeforeDeletion([this](const DeletionQuestion &question) {
        return askYesOrNo(this, question.title, question.text, question.consequences);
    })
    , m_preferences(this)
    , m_updateController(m_preferences.generalPage(), [this] { savePreferences(); },
                         {appVersion(), appReleaseDate(), appChannel()})
    , m_updatePresenter(&m_updateController, this)
    , m_views(makeViews())
    , m_documents(m_views, &m_projectController)
    , m_actions([this] { return m_projectController.project(); }, this)
    , m_layout(this, m_views, m_menuBar.viewMenu())
    , m_exportMessages(new ExportMessages(statusBar()))
    , m_projectExport(new ProjectExport(&m_projectController, this))
    , m_fileImport(new FileImport([this] { return m_projectController.project(); }, &m_menuBar, &m_actions, this))
    , m_importKeeper(new ImportKeeper(&m_projectController, &m_documents, this))
    , m_colourCycling(new ColourCycling(this))
    , m_commands(new CommandDesk(this, m_views, {[this] { return m_projectController.project(); }, &m_documents}))
{
    PlainToolTips::enforce();
    m_mapToolBar.setEnabled(false);
    setUnifiedTitleAndToolBarOnMac(true);
    setDocumentMode(true);
    new ReadableHints(this);
    setAcceptDrops(true);
    setWindowTitle(QCoreApplication::applicationName());
    resize(DefaultSize);
    setWindowIcon(themedIcon(QStringLiteral(":Application")));
    m_tabs.setEmptyPage(m_startPage);
    setCentralWidget(&m_tabs);
    m_layout.resetLayout();
    connectProjectController();

    setMenuBar(&m_menuBar);
    addToolBar(m_menuBar.fileMenu()->createToolBar(this));
    addToolBar(&m_mapToolBar);

    connect(statusBar(), &QStatusBar::messageChanged, this, &MainWindow::messageChanged);
    connectMenus();
    connectActions();
    connectImport();
    connectDocks();
    connectPainting();
    connectRecovery();
    connectImports();
    connectCommands();
    m_menuBar.viewMenu()->setChecked(ViewMenu::CheckableItem::ScratchEditor, false);
    show();
    statusBar()->showMessage(windowTitle());
    m_menuBar.setProject(nullptr);
}

MainWindow::~MainWindow()
{
    // while everything is there that shows the project and follows its end
    m_projectController.close();
}

DocumentViews MainWindow::makeViews()
{
    return {&m_tabs,       &m_projectDock, &m_paletteDock, &m_tileEditor, &m_spriteEditor, &m_tilePicker,
            &m_mapObjects, &m_mapSprites,  &m_mapToolBar,  &m_menuBar,    &m_preferences};
}

// Wiring

void MainWindow::connectProjectController()
{
    const ProjectController *controller = &m_projectController;
    connect(controller, &ProjectController::aboutToSave, this, &MainWindow::onAboutToSave);
    connect(controller, &ProjectController::saveFinished, this, &MainWindow::onSaveFinished);
    connect(controller, &ProjectController::projectOpened, this, &MainWindow::onProjectOpened);
    connect(controller, &ProjectController::projectClosing, this, &MainWindow::onProjectClosing);
    connect(controller, &ProjectController::projectClosed, this, &MainWindow::onProjectClosed);
    connect(controller, &ProjectController::error, this, &MainWindow::showError);

    const ProjectStore *store = m_projectController.store();
    connect(store, &ProjectStore::loadError, this, &MainWindow::onLoadError);
    connect(store, &ProjectStore::saveError, this, &MainWindow::onStoreError);
    connect(store, &ProjectStore::showMessage, statusBar(), &QStatusBar::showMessage);
    connect(store, &ProjectStore::exported, m_exportMessages, &ExportMessages::add);

    const auto *watch = new ReturnWatch(this);
    connect(watch, &ReturnWatch::returned, &m_projectController, &ProjectController::checkFile);
    connect(watch, &ReturnWatch::returned, m_importKeeper, &ImportKeeper::look);

    m_projectController.setBackupCallback([this] { return m_preferences.generalPage()->backupOnSave(); });
    m_projectController.setCleanCallbacks([this] { return m_documents.isClean(); }, [this] { m_documents.setClean(); });
}

void MainWindow::connectMenus()
{
    connect(&m_menuBar, &MenuBar::failed, this, &MainWindow::showFailure);
    connect(&m_menuBar, &MenuBar::exported, m_exportMessages, &ExportMessages::add);
    connect(m_menuBar.fileMenu(), &FileMenu::exportProject, m_projectExport, &ProjectExport::exportProject);
    connect(m_menuBar.fileMenu(), &FileMenu::exportAgain, m_projectExport, &ProjectExport::exportAgain);
    connect(m_projectExport, &ProjectExport::exported, m_exportMessages, &ExportMessages::show);
    connect(m_projectExport, &ProjectExport::failed, this, &MainWindow::showFailure);
    connect(&m_actions, &ProjectActions::failed, this,
            [this](const QString &text, const QString &title) { messageDialog()->showMessage(text, title); });

    connect(m_menuBar.fileMenu(), &FileMenu::displayPreferences, &m_preferences, &QDialog::open);
    connect(m_menuBar.fileMenu(), &FileMenu::quit, this, &QWidget::close);
    m_menuBar.editMenu()->setUndoActions(m_documents.undoGroup()->createUndoAction(this, tr("&Undo")),
                                         m_documents.undoGroup()->createRedoAction(this, tr("&Redo")));
    connect(m_menuBar.tileMenu(), &TileMenu::nextTile, this, &MainWindow::nextTile);
    connect(m_menuBar.tileMenu(), &TileMenu::previousTile, this, &MainWindow::previousTile);
    connect(m_menuBar.tileMenu(), &TileMenu::swapPalette, this, &MainWindow::changeTilePalette);
    connect(m_menuBar.tileMenu(), &TileMenu::importZXFont, this, &MainWindow::importZXFont);
    m_menuBar.tileMenu()->setMagnificationActions(m_tilePicker.magnificationActions());
    connect(m_menuBar.spriteMenu(), &SpriteMenu::swapPalette, this, &MainWindow::changeSpritePalette);
    connect(m_menuBar.viewMenu(), &ViewMenu::toggleScratch, &m_tabs, &DocumentTabView::setScratchEditorVisible);
    connect(m_menuBar.viewMenu(), &ViewMenu::toggleStatusBar, statusBar(), &QWidget::setVisible);
    connect(&m_tabs, &DocumentTabView::scratchEditorVisibleChanged, this, [this](bool visible) {
        m_menuBar.viewMenu()->setChecked(ViewMenu::CheckableItem::ScratchEditor, visible);
    });
    connect(m_menuBar.helpMenu(), &HelpMenu::checkForUpdates, &m_updatePresenter, &UpdatePresenter::checkForUpdates);
    connect(m_menuBar.helpMenu(), &HelpMenu::displayAbout, &m_updatePresenter, &UpdatePresenter::showAboutBox);
    connect(m_menuBar.helpMenu(), &HelpMenu::openSample, &m_projectController, &ProjectController::openSample);
    auto *guide = new Guide(m_views, this);
    guide->serve(m_menuBar.helpMenu()->guideAction());
    connect(guide, &Guide::failed, this, [this](const QString &message, const QString &detail) {
        messageDialog()->showMessage(message, MessageDialog::defaultTitle(), detail);
    });
}

void MainWindow::connectActions()
{
    m_actions.setUndoStackProvider([this](const QUuid &id) { return m_documents.recordingStackFor(id); });
    m_actions.serve(m_menuBar);
    connect(&m_actions, &ProjectActions::paletteReady, &m_documents, &DocumentController::openPalette);
    connect(&m_actions, &ProjectActions::tileSetReady, &m_documents, &DocumentController::openTileSet);
    connect(&m_actions, &ProjectActions::mapReady, &m_documents, &DocumentController::setActiveMap);
    connect(&m_actions, &ProjectActions::blocksReady, &m_documents, &DocumentController::setActiveBlockEditor);
    connect(&m_actions, &ProjectActions::spritesReady, &m_documents, &DocumentController::openSprites);
    connect(&m_actions, &ProjectActions::itemDeleted, &m_documents, &DocumentController::forget);
    connect(&m_documents, &DocumentController::error, this, &MainWindow::showError);
    connect(&m_documents, &DocumentController::exported, m_exportMessages, &ExportMessages::add);
    connect(&m_documents, &DocumentController::createMapFromSelection, &m_actions,
            &ProjectActions::createMapFromSelection);
}

void MainWindow::connectImport()
{
    m_fileImport->setUndoStackProvider([this](const QUuid &id) { return m_documents.recordingStackFor(id); });
    connect(m_menuBar.fileMenu(), &FileMenu::importFiles, m_fileImport, &FileImport::importFiles);
    connect(&m_projectController, &ProjectController::projectClosing, m_fileImport, &FileImport::stop);
    connect(m_fileImport, &FileImport::paletteReady, &m_documents, &DocumentController::openPalette);
    connect(m_fileImport, &FileImport::tileSetReady, &m_documents, &DocumentController::openTileSet);
    connect(m_fileImport, &FileImport::mapReady, &m_documents, &DocumentController::setActiveMap);
    connect(m_fileImport, &FileImport::blocksReady, &m_documents, &DocumentController::setActiveBlockEditor);
    connect(m_fileImport, &FileImport::spritesReady, &m_documents, &DocumentController::openSprites);
    connect(m_fileImport, &FileImport::imageReady, &m_documents, &DocumentController::setActiveImageEditor);
    connect(m_fileImport, &FileImport::message, m_exportMessages, &ExportMessages::show);
    connect(m_fileImport, &FileImport::failed, this, &MainWindow::showFailure);
}

void MainWindow::connectDocks()
{
    m_projectDock.setNextSteps(new NextSteps(m_menuBar));
    connect(&m_projectDock, &ProjectWindow::deleteItemTriggered, this, &MainWindow::deleteItem);
    connect(&m_projectDock, &ProjectWindow::copyItemTriggered, &m_actions, &ProjectActions::copyItem);
    connect(&m_paletteDock, &PaletteWindow::deleteRequested, this,
            [this](const QUuid &id) { deleteItem(ProjectTree::PaletteNode, id); });
    connect(&m_paletteDock, &PaletteWindow::copyRequested, &m_actions,
            [this](const QUuid &id) { m_actions.copyItem(ProjectTree::PaletteNode, id); });
}

void MainWindow::connectPainting()
{
    m_tileEditor.setPaintSettings(&m_painting);
    m_spriteEditor.setPaintSettings(&m_painting);
    m_tabs.setPaintSettings(&m_painting);
    m_tileEditor.setMapInFront([this]() -> Map * {
        const auto *view = qobject_cast<MapEditor::View *>(m_tabs.currentWidget());
        return view ? view->map().data() : nullptr;
    });
    m_menuBar.editMenu()->addChoice(m_painting.action(PaintSettings::Connect));
    m_colourCycling->serve(m_projectController, *m_menuBar.viewMenu(), m_paletteDock);
    connect(&m_painting, &PaintSettings::habitChanged, this,
            [this] { m_state.savePainting(QJsonDocument(m_painting.toJson())); });
}

void MainWindow::connectRecovery()
{
    constexpr int MessageTime = 10'000;
    m_recoveryKeeper.setShownCallback([this] {
        return RecoveryKeeper::Shown{m_tabs.openDocumentIds(), DocumentTabView::documentId(m_tabs.currentWidget())};
    });
    connect(m_documents.undoGroup(), &QUndoGroup::indexChanged, &m_recoveryKeeper, &RecoveryKeeper::lookSoon);
    connect(&m_recoveryKeeper, &RecoveryKeeper::failed, statusBar(),
            [this](const QString &message) { statusBar()->showMessage(message, MessageTime); });
    m_startPage->setRecoveryList(new RecoveryList(&m_recoveryOffers));
}

void MainWindow::connectImports()
{
    m_importKeeper->follow(m_actions);
    m_importKeeper->follow(*m_fileImport);
    m_importKeeper->serve(m_menuBar, *m_projectDock.tree());
    statusBar()->addPermanentWidget(m_importKeeper->notice());
    connect(m_importKeeper, &ImportKeeper::message, m_exportMessages, &ExportMessages::show);
    connect(m_importKeeper, &ImportKeeper::failed, this, &MainWindow::showFailure);
}

void MainWindow::connectCommands()
{
    connect(m_menuBar.helpMenu(), &HelpMenu::showCommandPalette, m_commands, &CommandDesk::showPalette);
    connect(m_menuBar.helpMenu(), &HelpMenu::showShortcuts, m_commands, &CommandDesk::showShortcuts);
    const QList<QToolBar *> bars = findChildren<QToolBar *>(Qt::FindDirectChildrenOnly);
    for (const QToolBar *bar : bars)
        addAction(Commands::add(bar->toggleViewAction(), QStringLiteral("toolBars.") + bar->objectName().remove(u' ')));
    connect(m_commands, &CommandDesk::failed, this, &MainWindow::showFailure,
            Qt::QueuedConnection); // over the window, once it is there
    statusBar()->addPermanentWidget(new UnsavedMark([this] { return m_projectController.isModified(); }, this));
}

void MainWindow::deleteItem(ProjectTree::ProjectNode node, const QUuid &id)
{
    const QPointer<Project> project = m_projectController.project();
    if (!project)
        return;
    // the first palette became the scratch image's by itself, whether or not that is used
    const bool freed = node == ProjectTree::PaletteNode && m_documents.freeScratchPalette(id);
    const auto question = deletionQuestion(*project, node, id);
    // without a question there is nothing to lose: the actions refuse it and say why
    if (!question || m_askBeforeDeletion(*question))
        m_actions.deleteItem(node, id);
    if (freed && project && project->palette(id))
        m_documents.setScratchPalette(project->palette(id)); // it stays
}

// Showing and closing

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!m_firstShow)
        return;
    loadState();
    m_firstShow = false;
    m_menuBar.viewMenu()->setChecked(ViewMenu::CheckableItem::StatusBar, !statusBar()->isHidden());
    m_recoveryOffers.refresh();
    m_updateController.checkOnStartup();
}

void MainWindow::loadState()
{
    m_state.loadState();
    m_preferences.fromJson(m_state.loadPreferences());
    {
        const QSignalBlocker known(m_painting); // what is read need not be written
        m_painting.fromJson(m_state.loadPainting().object());
    }
    emit m_painting.changed();
    m_commands->load(m_state.shortcutsFile());
    m_layout.restoreLayout(m_state);
    m_menuBar.fileMenu()->setRecentFiles(m_state.recentFiles());
    m_tilePicker.setMagnification(m_state.tileZoom());
    m_menuBar.fileMenu()->setOpenFolder(m_state.lastPath());
}

void MainWindow::saveState()
{
    m_layout.saveLayout(m_state);
    m_state.setRecentFiles(m_menuBar.fileMenu()->recentFiles());
    m_state.setTileZoom(m_tilePicker.magnification());
    m_state.setLastPath(m_menuBar.fileMenu()->openFolder());
    m_state.saveState();
}

void MainWindow::savePreferences()
{
    m_state.savePreferences(m_preferences.toJson());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_projectController.confirmClose()) {
        event->ignore();
        return;
    }
    m_tabs.closeAllTabs();
    saveState();
    savePreferences();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const bool isWanted = !draggedProject(event->mimeData()).isEmpty()
        || (m_projectController.project() && !FileImport::draggedFiles(event->mimeData()).isEmpty());
    if (!QApplication::activeModalWidget() && isWanted) // a question that is being asked comes first
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QString file = draggedProject(event->mimeData());
    const QStringList files = FileImport::draggedFiles(event->mimeData());
    if (file.isEmpty() && files.isEmpty())
        return;
    event->acceptProposedAction();
    // not before the program that it comes from has been released: a question may be asked first
    QMetaObject::invokeMethod(
        this, [=, this] { file.isEmpty() ? m_fileImport->importFiles(files) : m_projectController.openProject(file); },
        Qt::QueuedConnection);
}

// The life of a project

void MainWindow::onAboutToSave()
{
    const QList<MapEditor::View *> editors = m_tabs.mapEditors();
    for (MapEditor::View *editor : editors)
        editor->pauseAnimation();
    m_projectController.project()->setOpenDocuments(m_tabs.openDocumentIds());
}

void MainWindow::onSaveFinished()
{
    const QList<MapEditor::View *> editors = m_tabs.mapEditors();
    for (MapEditor::View *editor : editors)
        editor->resumeAnimation();
}

void MainWindow::onProjectOpened(Project *project)
{
    setWindowTitle(tr("%2 - %1").arg(project->name(), QCoreApplication::applicationName()));
    m_startPage->setProjectOpen(true);
    m_projectDock.setEnabled(true);
    m_projectDock.setProject(project);
    m_projectDock.activate();
    connect(project, &Project::showMessage, statusBar(), &QStatusBar::showMessage);
    connect(project, &Project::error, this, &MainWindow::showError);
    m_menuBar.viewMenu()->setChecked(ViewMenu::CheckableItem::ScratchEditor, true);
    m_menuBar.tileMenu()->setTileSet(nullptr);
    m_menuBar.setProject(project);
    m_documents.openProject(project);
    if (m_projectController.filePath().isEmpty())
        messageChanged({});
}

void MainWindow::onProjectClosing()
{
    m_tabs.setEnabled(false);
    m_tabs.closeAllTabs();
    m_menuBar.viewMenu()->setChecked(ViewMenu::CheckableItem::ScratchEditor, false);
    m_projectDock.setProject(nullptr);
    m_projectDock.deactivate();
    m_tileEditor.setTileSet(nullptr);
    m_tileEditor.deactivate();
    m_spriteEditor.setSprites(nullptr);
    m_paletteDock.setPalette(nullptr);
    m_paletteDock.setProject(nullptr);
    m_documents.closeProject();
}

void MainWindow::onProjectClosed()
{
    m_tabs.setEnabled(true);
    m_startPage->setProjectOpen(false);
    m_menuBar.setProject(nullptr);
    m_tilePicker.setTileSet(nullptr);
    m_mapObjects.setTileSet(nullptr);
    m_mapSprites.setProject(nullptr);
    setWindowTitle(QCoreApplication::applicationName());
    messageChanged({});
}

// Messages

MessageDialog *MainWindow::messageDialog()
{
    if (!m_messageDialog)
        m_messageDialog = new MessageDialog(this);
    return m_messageDialog;
}

void MainWindow::showError(const QString &message)
{
    messageDialog()->showMessage(message);
}

void MainWindow::showFailure(const QString &text, const QString &title, const QString &reason)
{
    messageDialog()->showMessage(text, title, reason);
}

void MainWindow::onStoreError(const QString &message)
{
    messageDialog()->showMessage(message, MessageDialog::defaultTitle(), m_projectController.store()->errorDetail());
}

void MainWindow::onLoadError(const QString &message)
{
    QString detail = m_projectController.store()->errorDetail();
    const QString file = QDir::fromNativeSeparators(detail);
    const QFileInfo backup(ProjectStore::backupOf(file));
    MessageDialog::Offer offer;
    if (backup.isFile()) {
        detail += QLatin1Char('\n')
            + tr("Its backup is from %1").arg(QLocale().toString(backup.lastModified(), QLocale::ShortFormat));
        offer = {tr("Open &Backup"), [this, file] { m_projectController.openBackup(file); }};
    }
    messageDialog()->showMessage(message, MessageDialog::defaultTitle(), detail, offer);
}

void MainWindow::messageChanged(const QString &message)
{
    if (!message.isEmpty())
        return;
    const Project *project = m_projectController.project();
    const QString file = QDir::toNativeSeparators(m_projectController.filePath());
    statusBar()->showMessage(project && !file.isEmpty() ? tr("%1 [%2]").arg(project->name(), file) : windowTitle());
}

// What menus ask of the docks

void MainWindow::showTile(int index)
{
    const QPointer<TileSet> tileSet = m_tileEditor.tileSet();
    if (!tileSet || tileSet->count() == 0)
        return;
    const int tile = std::clamp(index, 0, tileSet->count() - 1);
    m_tileEditor.setTileIndex(tile + 1); // a tile number
    m_tilePicker.setSelectedIndex(tile);
}

void MainWindow::nextTile()
{
    showTile(m_tileEditor.tileIndex() + 1);
}

void MainWindow::previousTile()
{
    showTile(m_tileEditor.tileIndex() - 1);
}

void MainWindow::changeSpritePalette(QUuid paletteId)
{
    const Project *project = m_projectController.project();
    if (const QPointer<Palette> palette = project ? project->palette(paletteId) : nullptr)
        m_spriteEditor.setSpritePalette(palette);
}

void MainWindow::changeTilePalette(QUuid paletteId)
{
    const Project *project = m_projectController.project();
    if (const QPointer<Palette> palette = project ? project->palette(paletteId) : nullptr)
        m_tileEditor.setPalette(palette);
}

void MainWindow::importZXFont(int index, int foreIndex, int backIndex, int offset, QString file)
{
    const QPointer<TileSet> tileSet = m_tileEditor.tileSet();
    if (tileSet && !tileSet->importZXFont(index, foreIndex, backIndex, offset, file))
        showError(tr("Could not import the font"));
}
