#pragma once

#include "app/menus/projectmenu.h"
#include "model/tileset.h"

#include <QList>
#include <QUuid>

class ImportZXFontDialog;
class PaletteSelectorDialog;
class TileAnimationDialog;
class TileSetDialog;

namespace TileEditor {
class ExportDialog;
}

/// The "Tiles" menu: new tile sets, and what can be done with the active one.
class TileMenu : public ProjectMenu
{
    Q_OBJECT

public:
    explicit TileMenu(QWidget *parent = nullptr);

    [[nodiscard]] TileSet *tileSet() const { return m_tileSet; }

    /// Fills the "Tile List Magnification" submenu with the choices of the tile picker.
    void setMagnificationActions(const QList<QAction *> &actions);

public slots:
    /// The active tile set, or null.
    void setTileSet(const QPointer<TileSet> &tileSet);
    void showNewDialog();
    void showAnimationDialog();
    void showSwapPaletteDialog();
    void showExportDialog();
    void showExportAttributesDialog();
    void showImportFontDialog();
    /// Writes tiles first to last (counted from 1) of the active tile set to a file that it asks for.
    void exportAccepted(int first, int last, bool rotate);

signals:
    void createTiles(const QString &name, const QUuid &paletteId, int tileCount, bool hiRes);
    void createBlocks(const QString &name, const QUuid &tileSetId);
    void swapPalette(const QUuid &paletteId);
    void importZXFont(int index, int foreIndex, int backIndex, int offset, const QString &file);
    void nextTile();
    void previousTile();

protected:
    void updateActions() override;

private:
    QPointer<TileSet> m_tileSet;
    QList<QAction *> m_tileSetActions; ///< that need an active tile set
    QMenu *m_magnificationMenu;
    QPointer<TileSetDialog> m_newDialog;
    QPointer<TileAnimationDialog> m_animationDialog;
    QPointer<PaletteSelectorDialog> m_paletteDialog;
    QPointer<TileEditor::ExportDialog> m_exportDialog;
    QPointer<ImportZXFontDialog> m_fontDialog;
};
