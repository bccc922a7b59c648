#pragma once

#include "app/dialogs/spritedialog.h"
#include "app/imports/importrecord.h"
#include "app/imports/spriteimport.h"
#include "app/projecttree/projecttree.h"
#include "model/enums.h"
#include "model/project.h"
#include "undo/editrecorder.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QUuid>

#include <functional>

class MenuBar;
class QMessageBox;
struct PictureLoss;
struct TileReduction;

/// Creates, copies, deletes and imports whole assets of the open project.
///
/// It looks the project up when it is asked for something, and does nothing without one. What it made or
/// removed it tells by its signals, so that docks, tabs and menus can follow. Names and sizes
/// have been checked by the dialogs that asked for them.
class ProjectActions : public QObject
{
    Q_OBJECT

public:
    using ProjectProvider = std::function<Project *()>;

    /// dialogParent is the window over which progress and failures are shown.
    explicit ProjectActions(ProjectProvider project, QWidget *dialogParent = nullptr, QObject *parent = nullptr);

    /// Where importing into a palette that exists finds the palette's undo stack; without one, the import
    /// cannot be undone.
    void setUndoStackProvider(const EditRecorder::StackProvider &provider) { m_undoStackFor = provider; }

    /// Does from now on what the menus ask for.
    void serve(const MenuBar &menus);

public slots:
    /// A new palette; one that copies takes the colours of the palette of the id source.
    void createPalette(CreateAction action, const QString &name, const QUuid &source = {});
    /// A new tile set; with a null palette id it gets a blank palette of the same name.
    void createTileSet(const QString &name, const QUuid &paletteId, int tileCount, bool hiRes);
    /// A new map; size in tiles.
    void createMap(const QString &name, const QUuid &tileSetId, const QSize &size);
    void createBlocks(const QString &name, const QUuid &tileSetId);
    void createSprites(SpriteDialog::CreateOptions options, const QString &name, const QUuid &paletteId);
    void createImage(const QString &name, Quenmora::ImageMode mode, const QUuid &paletteId);
    /// A new map of that size (in tiles) with the tiles that are on the clipboard, for the tile set of a map.
    void createMapFromSelection(const QUuid &mapId, const QSize &size);

    /// Copies a palette, a tile set or a map.
    void copyItem(ProjectTree::ProjectNode node, const QUuid &id);
    /// Deletes an asset unless another one needs it, which is then told by failed().
    void deleteItem(ProjectTree::ProjectNode node, const QUuid &id);

    /// Makes a palette, a tile set and a map of a set of Next data files or of a picture.
    void importMap(const QString &filePath) { importKnown(filePath, nullptr); }
    /// Makes them of the tiles that were found for a picture file.
    void importReduction(const QString &filePath, const TileReduction &reduction);
    /// Reads a palette file, or the colours of a picture, into a palette; into a new one for a null id.
    void importPalette(const QUuid &paletteId, const QString &filePath);
    void importSpritePicture(const SpriteImport &import);
    void importSpriteData(const SpriteImport &import);

signals:
    // An asset was made and is to be shown.
    void paletteReady(const QUuid &id);
    void tileSetReady(const QUuid &id);
    void mapReady(const QUuid &id);
    void blocksReady(const QUuid &id);
    void spritesReady(const QUuid &id);

    /// An asset was made of a file, or took over what is in it, with these choices.
    void imported(const QUuid &id, ImportRecord::Kind kind, const QString &filePath, const QJsonObject &choices);

    /// A sprite bank is going to be deleted, and still exists.
    void aboutToDeleteSprites(const QUuid &id);
    /// An asset was deleted: what showed it is to be cleared, and its undo stack dropped.
    void itemDeleted(ProjectTree::ProjectNode node, const QUuid &id);

    /// Something was refused or failed: a text for the user, and its title.
    void failed(const QString &text, const QString &title);

private:
    /// Imports a map; what is known of a picture is not read again.
    void importKnown(const QString &filePath, const PictureLoss *known);
    [[nodiscard]] bool remove(Project &project, ProjectTree::ProjectNode node, const QUuid &id);
    /// Tells of a map that was made of a picture.
    void announce(const Map &map, const QString &filePath, QJsonObject choices);
    void announceData(const Map &map, const QString &filePath);
    /// The message box for imports, with a text that names the failure.
    void reportIncompleteImport(const QString &failure);
    /// A button in this box that makes a palette of colours for which another one had no room.
    void offerPaletteOf(const QList<quint16> &words, const QString &name);

    ProjectProvider m_project;
    QPointer<QWidget> m_dialogParent;
    EditRecorder::StackProvider m_undoStackFor;
    QPointer<QMessageBox> m_importBox;
};
