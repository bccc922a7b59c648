#pragma once

#include "editors/map/mapbrush.h"
#include "editors/map/mapcontent.h"
#include "editors/map/mapdisplay.h"
#include "editors/map/mapediting.h"
#include "editors/map/mapsurface.h"
#include "editors/map/maptoolbox.h"
#include "editors/map/mapviewport.h"

#include <QWidget>

class OutlineBand;
class QMenu;
class QUndoCommand;

namespace MapEditor {

/// The widget in which a map is edited.
///
/// It paints the map's layers, animations and sprites at a zoom, and gives mouse events to the current tool.
/// Every action of the user becomes one step on the undo stack, unless it changed nothing. It follows
/// the map, its tile set and the sprite banks, and shows an empty view when the map is gone. Areas and
/// positions are in cells of the map, unless told otherwise.
class MapGrid : public QWidget, public MapSurface
{
    Q_OBJECT

public:
    explicit MapGrid(QWidget *parent = nullptr);
    ~MapGrid() override;

    /// What the context menu can do beyond the Edit menu.
    const QList<QAction *> &commands() const { return m_commands; }
    const QPointer<Map> &map() const override { return m_content.map(); }
    void setMap(const QPointer<Map> &map);
    const QList<QPointer<SpriteBank>> &spriteBanks() const override { return m_content.spriteBanks(); }
    /// Where edits are recorded; without one they are not.
    void setUndoStack(QUndoStack *stack) { m_editing.edit().setUndoStack(stack); }

    Quenmora::Ui::ToolButton mode() const { return m_tools.mode(); }
    Quenmora::Ui::ToolButton savedMode() const override { return m_tools.savedMode(); }
    /// Chooses a tool; one that refuses leaves the mode as it was.
    void setMode(Quenmora::Ui::ToolButton mode) override;

    const MapViewport &viewport() const override { return m_viewport; }
    void setBaseSize(int pixels);
    /// A click paints, or places an animation, as a drag does; otherwise a press without a movement does nothing.
    void setPaintsOnPress(bool paints) { m_brush.paintsOnPress = paints; }
    /// Adds the tools that fill and draw shapes, and what tools do beyond the usual: stamps are picked and painted,
    /// selections dragged, palette offsets painted with Ctrl; the wheel zooms around the pointer, and the view is
    /// dragged with Space.
    void offerMore();
    void applyPreferences(const Preferences &preferences);
    bool isGridVisible() const { return m_display.gridVisible; }
    int transparencyIndex() const { return m_display.transparencyIndex; }
    qint64 spriteTicks() const override { return m_display.spriteTicks; }

    const MapBrush &brush() const override { return m_brush; }
    int currentTileIndex() const { return m_brush.tile.index; }
    /// The current tile as a cell, with the palette offset that the tile set gives it.
    TileMap::TileData currentTile() const { return m_brush.cellFor(map()); }
    bool isRotated() const { return m_brush.tile.rotate; }
    void setRotated(bool rotated) { change(m_brush.tile.rotate, rotated); }
    bool isFlipped() const { return m_brush.tile.flip; }
    void setFlipped(bool flipped) { change(m_brush.tile.flip, flipped); }
    bool isMirrored() const { return m_brush.tile.mirror; }
    void setMirrored(bool mirrored) { change(m_brush.tile.mirror, mirrored); }
    QPointer<TileAnimation> currentAnimation() const { return m_brush.animation; }
    /// What the sprite tool places; nothing when no sprite was chosen.
    const std::optional<Map::PlacedSprite> &spriteTemplate() const { return m_brush.sprite; }

    /// Paints with a stamp from now on; one without cells to paint changes nothing.
    void setStamp(const Stamp &stamp);
    /// What the terrain tool paints.
    void setTerrain(const Terrain &terrain);
    /// Whether any tile of the stamp is painted in place of all.
    void setRandom(bool random) { change(m_brush.random, random); }
    /// The palette offset of what is painted, or -1 for that of the tiles.
    void setPaletteOffset(int offset) { change(m_brush.offset, offset); }

    MapPointer &pointer() override { return m_editing.pointer(); }
    void pickTileAt(QPoint point) override;
    void pickStamp(const QRect &cells) override;

    QRect selection() const override { return m_editing.selection().cells; }
    void setSelection(const QRect &cells) override { m_editing.select(cells); }
    const MapSelection &selected() const override { return m_editing.selection(); }
    bool canMoveSelection() const override { return m_editing.canMoveCells(); }
    void moveSelection(QPoint by, bool copies) override { m_editing.moveCells(by, copies); }
    /// Selects the cells that show the current tile.
    void selectCurrentTile();
    QRect pasteArea() const override { return m_editing.selection().pasteArea; }
    void setPasteArea(const QRect &cells) override { m_editing.setPasteArea(cells); }
    void clearSelection() { m_editing.clearCells(); }
    void cutSelection();
    void copySelection() { copyCells(); }
    void fillSelection();
    void selectAll();
    void selectNone();
    /// Forgets what is being dragged; an edit that it made already stays.
    void dropDrag() { releaseButtons(); }
    void showRubberBand(const QRect &area) override;
    void hideRubberBand() override;
    void showContextMenu(QPoint globalPosition) override;

    int selectedSprite() const { return m_editing.selection().sprite; }
    void selectSprite(int index) override { m_editing.selectSprite(index); }
    void clickSprite(int index) override { emit spriteClicked(index); }
    /// What a placed sprite covers in this widget; null when the map has no such sprite.
    QRect spriteRect(int index) const;
    /// Removes the sprite under the pointer; false when there is none.
    bool deleteSprite() { return m_editing.removeSprite(); }
    /// Removes the placed animation under the pointer; false when there is none.
    bool removeAnimation() { return m_editing.removeAnimation(); }
    /// Changes the selected sprite.
    void setSpriteProperties(const Map::PlacedSprite &sprite) { m_editing.setSprite(sprite); }

    bool pastesPictures() const override { return m_pastesPictures; }
    /// Lets pictures be pasted, where structural edits of tile sets are recorded.
    void setPastesPictures(bool pastes) { m_pastesPictures = pastes; }
    void tell(const QString &text) override;

    void beginEdit() override { m_editing.edit().begin(); }
    void endEdit(const QString &text) override;
    /// Takes over the step of an edit that was made beside the grid; null for none.
    void record(QUndoCommand *step) { m_editing.edit().push(step); }
    void repaintSoon() override { update(); }
    void showCursor(const QCursor &cursor) override;
    void refreshCursor() override;

public slots:
    void setViewPort(bool enabled, QSize size);
    void setCurrentTileIndex(int index);
    void setCurrentTileAnimation(QPointer<TileAnimation> anim);
    void setCurrentSpriteAnimation(QPointer<SpriteAnim> anim);
    void setCurrentSprite(QUuid bankId, int index);
    /// Shows or hides the grid lines, and with them the checker board of those who prefer one.
    void setGridVisible(bool visible)
    {
        m_display.setGridVisible(visible);
        update();
    }
    /// Scrolls as near as possible to a position.
    void scrollTo(QPoint position);
    /// Scrolls so that a cell is in the middle, and outlines it until the pointer moves.
    void showCell(QPoint cell);
    /// Zooms by steps of the factor, and leaves the cell under a point there as far as the map reaches.
    void zoomAround(QPoint point, int steps);
    void zoomIn() { zoomBy(1); }
    void zoomOut() { zoomBy(-1); }
    /// Makes all of the map, or of the viewport, fit into the widget; without doEvent it shows with the next layout.
    void fitTo(bool doEvent);
    void fitTo() { fitTo(true); }
    void scrollRight() { scrollBy({1, 0}); }
    void scrollLeft() { scrollBy({-1, 0}); }
    void scrollUp() { scrollBy({0, -1}); }
    void scrollDown() { scrollBy({0, 1}); }
    void setHorizontalScrollPosition(int pos) { setScrollPosition({pos, m_viewport.scroll.y()}); }
    void setVerticalScrollPosition(int pos) { setScrollPosition({m_viewport.scroll.x(), pos}); }
    void addRows(Quenmora::Position where, int count) { m_editing.addRows(where, count); }
    void addColumns(Quenmora::Position where, int count) { m_editing.addColumns(where, count); }
    // These leave at least one row or column.
    void removeRows(Quenmora::Position where, int count) { m_editing.removeRows(where, count); }
    void removeColumns(Quenmora::Position where, int count) { m_editing.removeColumns(where, count); }
    void resizeMap(QSize size, Qt::Alignment alignment) { m_editing.resizeMap(size, alignment); }
    void setTransparencyIndex(int index) { change(m_display.transparencyIndex, index); }
    void setBackgroundTileIndex(int index) { change(m_display.backgroundTileIndex, index); }
    void setSnapToSize(int size) { m_viewport.snap = size; }
    void setSpriteBanks(QList<QPointer<SpriteBank>> banks) { m_content.setSpriteBanks(banks); }
    /// The time for sprite animations; whoever sets it repaints.
    void setSpriteTicks(qlonglong ticks) { m_display.spriteTicks = ticks; }
    void setMapVisibility(bool visible) { m_content.setTilesVisible(visible); }
    void setObjectVisibility(bool visible) { m_content.setObjectsVisible(visible); }
    void setSpriteVisibility(bool visible) { m_content.setSpritesVisible(visible); }

private slots:
    void tileMapChanged() { update(); }
    void copyAsImage();
    void mapFromSelection();

signals:
    /// The largest scroll positions.
    void scrollDeltaChanged(int h, int v);
    void scrollPositionChanged(QPoint pos);
    void mapResized(QSize size);
    void tilePicked(TileMap::TileData tileData);
    void modeChanged(Quenmora::Ui::ToolButton mode);
    void selectedSpriteChanged(int index);
    /// A placed sprite was clicked, not dragged.
    void spriteClicked(int index);
    /// A map of that size is to be made of the cells on the clipboard, for the tile set of that map.
    void createMapFromSelection(QUuid mapId, QSize size);
    /// The animation that is placed where a tile was picked.
    void animationPicked(QUuid animationId);
    /// Cells of the map are to be painted as a stamp.
    void stampPicked(const Stamp &stamp);
    /// What is shown, or where, may be another. With colours alone, nothing but the shown colours of tiles or sprites
    /// is known to be.
    void painted(bool coloursAlone);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void buildContextMenu();
    void followContent();
    /// Stores what is shown differently from now on.
    template <typename Value>
    void change(Value &stored, Value value)
    {
        stored = value;
        update();
    }
    /// Takes the brush, if it has a sprite, to the sprite tool.
    void useSprite();
    void relayout();
    void zoomBy(int steps);
    void scrollBy(QPoint direction);
    void setScrollPosition(QPoint position);
    /// Ends whatever was going on while buttons were held.
    void releaseButtons();
    /// Puts the selection on the clipboard; false when there is none, or one too large.
    bool copyCells();

    MapContent m_content;
    MapViewport m_viewport;
    MapDisplay m_display;
    MapBrush m_brush;
    MapEditing m_editing{m_content};
    bool m_newColours = false; ///< since it was painted last
    QRect m_shownCell; ///< which was asked for last
    MapToolBox m_tools{this}; ///< which use all of the above
    bool m_pastesPictures = false;
    OutlineBand *m_rubberBand;
    QMenu *m_contextMenu;
    QList<QAction *> m_commands; ///< of the menu
};

} // namespace MapEditor
