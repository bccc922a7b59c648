#pragma once

#include "editors/map/cellink.h"
#include "editors/map/mapcontent.h"
#include "editors/map/mapedit.h"
#include "editors/map/mappointer.h"
#include "editors/map/mapselection.h"
#include "model/enums.h"

#include <QObject>
#include <QSize>

#include <functional>

namespace MapEditor {

/// What is selected on a map and under the pointer, and what is done with it. Each edit becomes one undo step,
/// unless it changed nothing.
class MapEditing : public QObject
{
    Q_OBJECT

public:
    /// The content outlives it.
    explicit MapEditing(const MapContent &content);

    [[nodiscard]] MapEdit &edit() { return m_edit; }
    [[nodiscard]] MapPointer &pointer() { return m_pointer; }
    [[nodiscard]] const MapPointer &pointer() const { return m_pointer; }
    [[nodiscard]] const MapSelection &selection() const { return m_selection; }

    /// The content has another map.
    void mapChanged();

    /// Selects those of the cells that the map has.
    void select(const QRect &cells);
    /// Selects cells that need not be a rectangle.
    void select(const CellRuns::Runs &cells);
    /// Selects the cells that show a tile.
    void selectTile(int tile);
    /// Selects what was copied, and pastes it there.
    void selectCopied(const MapSelection &cells);
    void setPasteArea(const QRect &cells) { m_selection.pasteArea = cells; }
    void selectSprite(int index);

    void clearCells();
    /// Fills the selected cells with a tile in its orientation, if it is one.
    void fillCells(const TileMap::TileData &tile);
    /// Fills the selected cells with ink, whose pattern begins at their corner.
    void fillCells(CellInk ink);
    /// Whether there are selected cells, but not too many, that can be moved.
    [[nodiscard]] bool canMoveCells() const;
    /// Moves what the selected cells hold, or copies it, and the selection with it.
    void moveCells(QPoint by, bool copies);
    /// Changes the selected sprite.
    void setSprite(const Map::PlacedSprite &sprite);
    // What is under the pointer; false when there is none.
    bool removeSprite();
    bool removeAnimation();

    void addRows(Quenmora::Position where, int count);
    void addColumns(Quenmora::Position where, int count);
    // These leave at least one row or column.
    void removeRows(Quenmora::Position where, int count);
    void removeColumns(Quenmora::Position where, int count);
    void resizeMap(QSize size, Qt::Alignment alignment);

signals:
    /// The map, or what is selected of it.
    void changed();
    void selectedSpriteChanged(int index);
    /// An edit, or undoing one, may have given the map this size.
    void mapResized(QSize size);

private:
    void mapRestored();
    void mapDestroyed();
    void forget();
    void forgetSprites();
    void resize(const QString &text, const std::function<void(Map &)> &operation);

    const MapContent &m_content;
    MapEdit m_edit;
    MapPointer m_pointer;
    MapSelection m_selection;
};

} // namespace MapEditor
