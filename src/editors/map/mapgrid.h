#pragma once

#include "editors/map/mapedit.h"
#include "editors/map/mapviewport.h"
#include "model/map.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "ui/enums.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QRect>
#include <QUndoStack>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QMenu;
class QRubberBand;

namespace MapEditor {

class MapTool;
struct Preferences;

/// The widget in which a map is edited.
///
/// It paints the map's layers, animations and sprites at a zoom, and gives mouse events to the current tool.
/// Every action of the user becomes one step on the undo stack, unless it changed nothing. It follows
/// the map, its tile set and the sprite banks, and shows an empty view when the map is gone. Areas and
/// positions are in cells of the map, unless told otherwise.
class MapGrid : public QWidget
{
    Q_OBJECT

public:
    explicit MapGrid(QWidget *parent = nullptr);
    ~MapGrid() override;

    QPointer<Map> map() const { return m_map; }
    void setMap(const QPointer<Map> &map);
    /// Where edits are recorded; without one they are not.
    void setUndoStack(QUndoStack *stack) { m_undoStack = stack; }

    Quenmora::Ui::ToolButton mode() const { return m_mode; }
    /// Chooses a tool; one that refuses leaves the mode as it was.
    void setMode(Quenmora::Ui::ToolButton mode);

    const MapViewport &viewport() const { return m_viewport; }
    void setBaseSize(int pixels);
    void applyPreferences(const Preferences &preferences);
    bool isGridVisible() const { return m_gridVisible; }

    // What the draw tool writes.
    int currentTileIndex() const { return m_currentTile.index; }
    bool isRotated() const { return m_currentTile.rotate; }
    void setRotated(bool rotated);
    bool isFlipped() const { return m_currentTile.flip; }
    void setFlipped(bool flipped);
    bool isMirrored() const { return m_currentTile.mirror; }
    void setMirrored(bool mirrored);

    QRect selection() const { return m_selection; }
    void clearSelection();
    void cutSelection();
    void copySelection();
    void fillSelection();
    void selectAll();
    void selectNone();
    void hideRubberBand();

    /// The placed sprite under the pointer, or -1.
    int hoverSprite() const { return m_hoverSprite; }
    int selectedSprite() const { return m_selectedSprite; }
    /// What a placed sprite covers in this widget; null when the map has no such sprite.
    QRect spriteRect(int index) const;
    /// Removes the sprite under the pointer; false when there is none.
    bool deleteSprite();
    /// Removes the placed animation under the pointer; false when there is none.
    bool removeAnimation();
    /// Changes the selected sprite.
    void setSpriteProperties(const Map::PlacedSprite &sprite);

    // What the tools work with.

    /// The current tile as a cell, with the palette offset that the tile set gives it.
    TileMap::TileData currentTile() const;
    /// How a tile looks in that orientation; null when the tile set does not have it.
    QImage tilePicture(const TileMap::TileData &cell) const;
    /// The cell of the tile layer under a point is picked; nothing outside the map.
    void pickTileAt(QPoint point);
    QPointer<TileAnimation> currentAnimation() const { return m_currentAnimation; }
    /// What the sprite tool places; nothing when no sprite was chosen.
    const std::optional<Map::PlacedSprite> &spriteTemplate() const { return m_spriteTemplate; }
    const QList<QPointer<SpriteBank>> &spriteBanks() const { return m_spriteBanks; }
    qint64 spriteTicks() const { return m_spriteTicks; }
    int transparencyIndex() const { return m_transparencyIndex; }
    Quenmora::Ui::ToolButton savedMode() const { return m_savedMode; }
    Qt::MouseButtons heldButtons() const { return m_buttons; }
    QPoint pressPoint() const { return m_pressPoint; }
    /// The cell under the pointer, (-1, -1) when there is none.
    QPoint hoverCell() const { return m_hoverCell; }
    bool hasHoverCell() const;
    void setHoverCell(QPoint cell) { m_hoverCell = cell; }
    void clearHoverCell() { m_hoverCell = QPoint(-1, -1); }
    void setHoverSprite(int index) { m_hoverSprite = index; }
    void selectSprite(int index);
    void setSelection(const QRect &cells);
    QRect pasteArea() const { return m_pasteArea; }
    void setPasteArea(const QRect &cells) { m_pasteArea = cells; }
    /// The placed animation under the pointer.
    QRect highlight() const { return m_highlight; }
    void setHighlight(const QRect &cells) { m_highlight = cells; }
    void showRubberBand(const QRect &area);
    void showContextMenu(QPoint globalPosition);
    /// Shows the tool's cursor, or that it is of no use now.
    void refreshCursor();
    void paintSelection(QPainter &painter) const;
    /// Outlines an area of the widget so that it is seen on light and dark ground.
    static void paintOutline(QPainter &painter, const QRect &area);
    /// Edits may be nested; the outermost one becomes the undo step.
    void beginEdit();
    void endEdit(const QString &text);

public slots:
    void setViewPort(bool enabled, QSize size);
    void setCurrentTileIndex(int index);
    void setCurrentTileAnimation(QPointer<TileAnimation> anim);
    void setCurrentSpriteAnimation(QPointer<SpriteAnim> anim);
    void setCurrentSprite(QUuid bankId, int index);
    /// Shows or hides the grid lines, and with them the checker board of those who prefer one.
    void setGridVisible(bool visible);
    void zoomIn();
    void zoomOut();
    /// Makes all of the map, or of the viewport, fit into the widget; without doEvent it shows with the next layout.
    void fitTo(bool doEvent);
    void fitTo();
    void scrollRight();
    void scrollLeft();
    void scrollUp();
    void scrollDown();
    void setHorizontalScrollPosition(int pos);
    void setVerticalScrollPosition(int pos);
    void addRows(Quenmora::Position where, int count);
    void addColumns(Quenmora::Position where, int count);
    // These leave at least one row or column.
    void removeRows(Quenmora::Position where, int count);
    void removeColumns(Quenmora::Position where, int count);
    void resizeMap(QSize size, Qt::Alignment alignment);
    void setTransparencyIndex(int index);
    void setBackgroundTileIndex(int index);
    void setSnapToSize(int size);
    void setSpriteBanks(QList<QPointer<SpriteBank>> banks);
    /// The time for sprite animations; whoever sets it repaints.
    void setSpriteTicks(qlonglong ticks);
    void setMapVisibility(bool visible);
    void setObjectVisibility(bool visible);
    void setSpriteVisibility(bool visible);

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

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private slots:
    void tileMapChanged();
    void tilesChanged();
    void mapRestored();
    void mapDestroyed();
    void spriteAnimationsChanged();
    void spritesRemoved();
    void copyAsImage();
    void mapFromSelection();

private:
    template <typename Tool>
    void addTool();
    void buildContextMenu();
    void relayout();
    void scrollBy(QPoint direction);
    void setScrollPosition(QPoint position);
    void setSpriteTemplate(const std::optional<Map::PlacedSprite> &sprite);
    /// Ends whatever was going on while buttons were held.
    void releaseButtons();
    void followMap();
    void unfollowMap();
    void followSpriteBanks();
    void unfollowSpriteBanks();
    /// Forgets what the pointer and the tools were about.
    void forget();
    QSize mapSize() const;
    bool hasSelection() const;
    /// Puts the selection on the clipboard; false when there is none, or one too large.
    bool copyCells();
    void edit(const QString &text, const std::function<void(Map &)> &operation);
    /// An edit that may change the size of the map.
    void resizingEdit(const QString &text, const std::function<void(Map &)> &operation);

    QBrush background() const;
    void paintMap(QPainter &painter, const QRect &dirty) const;
    void paintStatus(QPainter &painter, qint64 milliseconds) const;

    QRubberBand *m_rubberBand;
    QPoint m_hoverCell{-1, -1};
    QPoint m_pressPoint;
    QRect m_selection;
    Quenmora::Ui::ToolButton m_mode = Quenmora::Ui::Draw;
    Quenmora::Ui::ToolButton m_savedMode = Quenmora::Ui::Draw; ///< the one before, or at the last press
    bool m_gridVisible = false;
    bool m_checkerVisible = true; ///< goes with the grid lines, if there is a checker board
    bool m_checkerBoard = false; ///< beneath the map, as the preferences ask
    QColor m_gridColour1{64, 64, 64};
    QColor m_gridColour2{80, 80, 80};
    TileMap::TileData m_currentTile; ///< index and orientation alone count; index -1 for none
    int m_transparencyIndex = -1;
    int m_backgroundTileIndex = -1;
    MapViewport m_viewport;
    QPointer<Map> m_map;
    Qt::MouseButtons m_buttons; ///< held since the press
    QPointer<QUndoStack> m_undoStack;
    MapEdit m_edit;
    QPointer<TileAnimation> m_currentAnimation;
    std::optional<Map::PlacedSprite> m_spriteTemplate;
    QList<QPointer<SpriteBank>> m_spriteBanks;
    qint64 m_spriteTicks = 0;
    int m_hoverSprite = -1;
    int m_selectedSprite = -1;
    QRect m_pasteArea; ///< where the paste tool pastes, or what was copied last
    QRect m_highlight;
    QMenu *m_contextMenu;
    QHash<Quenmora::Ui::ToolButton, std::shared_ptr<MapTool>> m_tools;
    std::shared_ptr<MapTool> m_tool;
    QPointer<TileSet> m_tileSet; ///< the map's, whose changes are followed
};

} // namespace MapEditor
