#pragma once

#include "editors/common/edittarget.h"
#include "model/enums.h"
#include "model/map.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "ui/enums.h"

#include <QList>
#include <QPointer>
#include <QSize>
#include <QWidget>

class QUndoStack;
class ScrollBar;

namespace MapEditor {

class MapAnimator;
class MapExport;
class MapGrid;
class MapToolPalette;
class PaintDesk;
class PaintKit;
class ResizeDialog;
class SpritePropertiesPopover;
class ToolBar;
class ViewBuilder;
struct Preferences;

/// The page on which one map is edited: the grid with its scroll bars and tools, the clock of its
/// animations, and the properties of placed sprites.
///
/// The window's tool bar serves the view in front: it is attached to one view at a time.
class View : public QWidget, public EditTarget
{
    Q_OBJECT

public:
    explicit View(const QPointer<Map> &map, QWidget *parent = nullptr);
    ~View() override;

    [[nodiscard]] QPointer<Map> map() const { return m_map; }
    [[nodiscard]] MapGrid *grid() const { return m_grid; }
    [[nodiscard]] MapToolPalette *toolPalette() const { return m_toolPalette; }
    [[nodiscard]] MapAnimator *animator() const { return m_animator; }
    [[nodiscard]] SpritePropertiesPopover *popover() const { return m_popover; }
    /// Null unless the view offers more.
    [[nodiscard]] PaintDesk *paintDesk() const { return m_paintDesk; }
    [[nodiscard]] ResizeDialog *resizeDialog() const { return m_resizeDialog; }
    /// The size of the map in cells and bytes, as a text.
    [[nodiscard]] QString sizeText() const { return m_sizeText; }

    /// Where edits are recorded; without one they are not.
    void setUndoStack(QUndoStack *stack);
    /// The banks of which sprites may be placed.
    /// Lets pictures be pasted, where structural edits of tile sets are recorded.
    void setPastesPictures(bool pastes);
    void setSpriteBanks(const QList<QPointer<SpriteBank>> &banks);
    void applyPreferences(const Preferences &preferences);

    /// Adds what helps to paint maps fast: see MapGrid::offerMore() and PaintDesk.
    void offerMore(const QPointer<PaintKit> &kit);

    /// Lets the tool bar show and change how this map is displayed, until it is detached.
    void attachToolBar(ToolBar *toolBar);
    void detachToolBar();

    /// Holds animations still, and lets those that were running go on.
    void pauseAnimation();
    void resumeAnimation();

    void cut() override;
    void copy() override;
    void paste() override;
    void selectAll() override;
    void selectNone() override;

public slots:
    void setTileIndex(int index);
    void setMapObject(QPointer<TileAnimation> anim);
    void setSpriteAnimation(QPointer<SpriteAnim> anim);
    void setSingleSprite(QUuid bankId, int index);
    void toolPaletteClicked(Quenmora::Ui::ToolButton action, bool checked);
    void toolPaletteClicked(Quenmora::Ui::ToolButton action);
    void updateScrollValues(int h, int v);
    void updateScrollBars(QPoint pos);
    /// Takes over what was picked on the map.
    void setSelectedTile(TileMap::TileData tileData);
    void addRow(Quenmora::Position position);
    void addColumn(Quenmora::Position position);
    void removeRow(Quenmora::Position position);
    void removeColumn(Quenmora::Position position);
    /// Names the tab that shows this view.
    void updateTabText(QString text);
    /// Gives the map the size that the resize dialog asks for.
    void resizeMap();

signals:
    // Data files of the map, its tile set and the palette of that are to be written into a folder.
    void exportTileMap(QString dir, QUuid id);
    void exportTiles(QString dir, QUuid id);
    void exportTilePalette(QString dir, QUuid id);
    void tilePicked(int index);
    /// A map of that size is to be made of the cells on the clipboard, for the tile set of that map.
    void createMapFromSelection(QUuid mapId, QSize size);
    void placeAnimModeEnabled();
    void placeSpriteModeEnabled();
    // What was found on the map, for the docks to show.
    void animationPicked(QUuid animationId);
    void spritePicked(Map::PlacedSprite sprite);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    friend class ViewBuilder;

    void cancel();
    void deleteUnderPointer();
    void modeChanged(Quenmora::Ui::ToolButton mode);
    void showSprite(int index);
    void spriteSelected(int index);
    void moveSpriteProperties(int index);
    void framesAdvanced();
    void setPlaying(bool playing);
    void runAnimator();
    void setViewPortSize(QSize size);
    void showToolBarState();
    void mapSizeChanged();
    void showResizeDialog();

    QPointer<Map> m_map;
    MapGrid *m_grid = nullptr;
    ScrollBar *m_horizontalBar = nullptr;
    ScrollBar *m_verticalBar = nullptr;
    MapToolPalette *m_toolPalette = nullptr;
    QPointer<ToolBar> m_toolBar;
    MapAnimator *m_animator = nullptr;
    SpritePropertiesPopover *m_popover = nullptr;
    ResizeDialog *m_resizeDialog = nullptr;
    PaintDesk *m_paintDesk = nullptr;
    MapExport *m_export = nullptr;
    QSize m_viewPortSize; ///< in cells, as last set in the tool bar
    QString m_sizeText;
    bool m_playing = false; ///< what the person wants; the two below may keep it from happening
    bool m_paused = false;
    bool m_hidden = false; ///< was on the screen and is not now
};

} // namespace MapEditor
