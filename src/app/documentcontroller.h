#pragma once

#include "app/documentviews.h"
#include "app/editfocus.h"
#include "app/keyboardreturn.h"
#include "app/projecttree/projecttree.h"
#include "app/undostacks.h"
#include "editors/canvas/imageimport.h" // moc wants to know it whole
#include "editors/map/mapcommands.h"
#include "editors/map/paintkits.h"
#include "model/palette.h"
#include "model/project.h"
#include "undo/editrecorder.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QUuid>

#include <memory>

class ProjectController;

/// Decides which editor shows which asset: activating one brings its tab or dock to the front and tells
/// docks and menus what is active now.
///
/// Unknown ids are ignored. A tab closes when its asset is deleted; an undo stack lives as long as its
/// asset.
class DocumentController : public QObject
{
    Q_OBJECT

public:
    DocumentController(const DocumentViews &views, ProjectController *projectController, QObject *parent = nullptr);
    ~DocumentController() override;

    /// Records the project's edits from now on, and opens the documents that were open when it was saved.
    void openProject(Project *project);
    /// Drops all undo stacks; the tabs are closed by now and the project still exists.
    void closeProject();

    /// The undo stack of the asset of an id, made when first asked for, never null; the null id stands for
    /// the scratch image.
    QUndoStack *undoStackFor(const QUuid &id);
    /// The stack for a change that no editor of the asset made: that of the document in front, where undo
    /// reaches it, or the asset's own when there is none, and for images: their editors look when that changes.
    QUndoStack *recordingStackFor(const QUuid &id);
    [[nodiscard]] QUndoGroup *undoGroup() { return m_stacks.group(); }
    /// Whether every undo stack is clean.
    [[nodiscard]] bool isClean() const { return m_stacks.isClean(); }
    void setClean() { m_stacks.setClean(); }

public slots:
    void setActivePalette(QUuid paletteId);
    void setActiveTileSet(QUuid tileSetId);
    void setActiveMap(QUuid mapId);
    void setActiveSpriteEditor(QUuid spriteBankId);
    void setActiveBlockEditor(QUuid blocksId);
    void setActiveImageEditor(QUuid imageId);
    /// Shows the image in front with another palette.
    void changeImagePalette(QUuid paletteId);
    void scratchEditorActivated();

    // What is opened is seen: these bring up its dock, even when it was closed, besides activating the asset.
    void openPalette(const QUuid &id);
    void openTileSet(const QUuid &id);
    void openSprites(const QUuid &id);

    /// Gives the scratch image another palette than that of an id, if nothing was drawn on it; false when it does not
    /// have that one, or needs it.
    bool freeScratchPalette(const QUuid &id);
    /// Draws the scratch image with a palette from now on.
    void setScratchPalette(const QPointer<Palette> &palette);

    /// Clears the docks and menus of an asset's kind, whichever they show: this one has been deleted.
    void forget(ProjectTree::ProjectNode node, const QUuid &id);

signals:
    /// A map editor's selection is to become a map; size in cells.
    void createMapFromSelection(QUuid mapId, QSize size);
    /// An editor could not read or write a file.
    void error(const QString &message);
    /// A picture was placed in an image.
    void pictureImported(const QUuid &imageId, const QString &filePath, const ImageImport &choices);
    /// An editor wrote an asset of that name to a file.
    void exported(const QString &asset, const QString &filePath);

private:
    void connectTabs();
    void connectDocks();
    [[nodiscard]] Project *project() const;
    /// The asset of that id, of whatever kind, or null.
    [[nodiscard]] QObject *asset(const QUuid &id) const;

    void openScratchImage();
    void choosePalette(const QUuid &id);
    void openMap(const QPointer<Map> &map);
    void connectMapEditor(MapEditor::View *editor);
    void disconnectMapEditor();
    /// Gives all map editors the sprite banks that they can place sprites of.
    void offerSpriteBanks();
    /// Makes the tab of a document current; false when it has none.
    bool showTab(const QUuid &id);
    /// Lets the tab of a page close when its asset is destroyed.
    void closeWith(QObject *asset, QWidget *page);
    /// Puts a palette into the palette dock and menu, without raising the dock; null leaves them.
    void showPalette(const QPointer<Palette> &palette);
    /// Shows the tile of a number that counts from 1 in the tile editor.
    void editTile(int number);
    void editSprite(int index);
    void showTileSet(const QPointer<TileSet> &tileSet);
    void showSprites(const QPointer<SpriteBank> &bank);

    DocumentViews m_views;
    ProjectController *m_projectController;
    UndoStacks m_stacks;
    EditFocus m_focus;
    KeyboardReturn m_keyboardReturn;
    std::unique_ptr<EditRecorder> m_recorder;
    MapEditor::PaintKits m_paintKits;
    MapEditor::MapCommands m_mapCommands;
    /// Of the active map editor to the docks that serve it.
    QList<QMetaObject::Connection> m_mapConnections;
    /// By bank, the sprite that was edited last.
    QHash<QUuid, int> m_editedSprites;
    /// The front tab changes because an asset is being activated, which needs no further activation.
    bool m_activating = false;
    /// An asset is being activated because its tab came to the front, which has seen to the keyboard.
    bool m_following = false;
};
