#pragma once

#include "app/appstate.h"
#include "app/deletionquestion.h"
#include "app/documentcontroller.h"
#include "app/documenttabview.h"
#include "app/documentviews.h"
#include "app/layoutcontroller.h"
#include "app/menus/menubar.h"
#include "app/projectactions.h"
#include "app/projectcontroller.h"
#include "app/projecttree/projectwindow.h"
#include "app/recoverykeeper.h"
#include "app/recoveryoffers.h"
#include "app/updatepresenter.h"
#include "editors/canvas/paintsettings.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilepickertool.h"
#include "editors/canvas/tilewindow.h"
#include "editors/map/blockselectorwindow.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mapspriteswindow.h"
#include "editors/palette/palettewindow.h"
#include "preferences/preferencesdialog.h"
#include "update/updatecontroller.h"

#include <QMainWindow>
#include <QPointer>
#include <QUuid>

#include <functional>
#include <utility>

class ColourCycling;
class CommandDesk;
class ExportMessages;
class FileImport;
class ImportKeeper;
class MessageDialog;
class ProjectExport;
class StartPage;

/// The program's one window: it owns all that lives as long as the program, and wires it together. It
/// shows itself, in the place and size in which it was last closed.
///
/// What becomes of documents is decided by the document controller, what becomes of the project by the
/// project controller; the window only lets its parts follow the project's life.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Answers whether an asset is to be deleted.
    using DeletionAnswer = std::function<bool(const DeletionQuestion &question)>;

    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Replaces the message box that asks before an asset is deleted.
    void setDeletionCallback(DeletionAnswer answer) { m_askBeforeDeletion = std::move(answer); }

    /// Maximizes the window where the screen is too small for it.
    void fitToScreen() { m_layout.fitToScreen(); }

    [[nodiscard]] ProjectController *projectController() { return &m_projectController; }
    [[nodiscard]] DocumentController *documentController() { return &m_documents; }
    [[nodiscard]] ProjectActions *projectActions() { return &m_actions; }
    [[nodiscard]] ProjectExport *projectExport() { return m_projectExport; }
    [[nodiscard]] FileImport *fileImport() { return m_fileImport; }
    [[nodiscard]] ImportKeeper *importKeeper() { return m_importKeeper; }
    [[nodiscard]] CommandDesk *commands() { return m_commands; }
    [[nodiscard]] const DocumentViews &views() const { return m_views; }
    [[nodiscard]] RecoveryKeeper *recoveryKeeper() { return &m_recoveryKeeper; }
    [[nodiscard]] RecoveryOffers *recoveryOffers() { return &m_recoveryOffers; }
    [[nodiscard]] MenuBar *menus() { return &m_menuBar; }
    [[nodiscard]] ColourCycling *colourCycling() { return m_colourCycling; }
    /// The dialog that shows errors, made when it is first needed.
    [[nodiscard]] MessageDialog *messageDialog();

public slots:
    void showError(const QString &message);
    /// Puts the project, or the window's title, where a message of the status bar ended.
    void messageChanged(const QString &message);
    /// Moves the tile editor to the next tile, if there is one.
    void nextTile();
    void previousTile();
    void changeSpritePalette(QUuid paletteId);
    void changeTilePalette(QUuid paletteId);
    /// Fills tiles of the tile set being edited with the characters of a font; see TileSet::importZXFont().
    void importZXFont(int index, int foreIndex, int backIndex, int offset, QString file);

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    // A project file that is dropped on the window opens, and other files are imported.
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    [[nodiscard]] DocumentViews makeViews();
    void connectProjectController();
    void connectMenus();
    void connectActions();
    void connectImport();
    void connectDocks();
    void connectPainting();
    void connectRecovery();
    void connectImports();
    void connectCommands();
    /// Deletes an asset that may be deleted when the person, who is asked, wants that.
    void deleteItem(ProjectTree::ProjectNode node, const QUuid &id);

    void loadState();
    void saveState();
    void savePreferences();

    void onAboutToSave();
    void onSaveFinished();
    void showFailure(const QString &text, const QString &title, const QString &reason);
    /// Shows what the store could not do, and which file that is about.
    void onStoreError(const QString &message);
    /// The same, and offers the backup that lies beside the file.
    void onLoadError(const QString &message);
    void onProjectOpened(Project *project);
    void onProjectClosing();
    void onProjectClosed();
    /// Shows a tile in the tile editor and the tile picker, the first or the last one for an index beyond.
    void showTile(int index);

    PaintSettings m_painting;
    ProjectWindow m_projectDock;
    PaletteWindow m_paletteDock;
    TileWindow m_tileEditor;
    SpriteWindow m_spriteEditor;
    TilePickerTool m_tilePicker;
    BlockSelectorWindow m_mapObjects;
    MapSpritesWindow m_mapSprites;
    MapEditor::ToolBar m_mapToolBar;
    DocumentTabView m_tabs;
    MenuBar m_menuBar;
    StartPage *m_startPage;
    ProjectController m_projectController;
    AppState m_state;
    RecoveryKeeper m_recoveryKeeper;
    RecoveryOffers m_recoveryOffers;
    bool m_firstShow = true;
    DeletionAnswer m_askBeforeDeletion;
    PreferencesDialog m_preferences;
    QPointer<MessageDialog> m_messageDialog;
    UpdateController m_updateController;
    UpdatePresenter m_updatePresenter;
    DocumentViews m_views;
    DocumentController m_documents;
    ProjectActions m_actions;
    LayoutController m_layout;
    ExportMessages *m_exportMessages;
    ProjectExport *m_projectExport;
    FileImport *m_fileImport;
    ImportKeeper *m_importKeeper;
    ColourCycling *m_colourCycling;
    CommandDesk *m_commands;
};
