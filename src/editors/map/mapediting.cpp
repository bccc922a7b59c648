#include "editors/map/mapediting.h"

#include <algorithm>

using Quenmora::Position;

namespace MapEditor {

MapEditing::MapEditing(const MapContent &content) : m_content(content)
{
    connect(&content, &MapContent::mapRestored, this, &MapEditing::mapRestored);
    connect(&content, &MapContent::mapDestroyed, this, &MapEditing::mapDestroyed);
    connect(&content, &MapContent::spritesRemoved, this, &MapEditing::forgetSprites);
}

// ---- What is selected -------------------------------------------------------------------------

void MapEditing::mapChanged()
{
    m_edit.setMap(m_content.map());
    forget();
}

void MapEditing::mapDestroyed()
{
    m_edit.abandon();
    m_pointer.held = Qt::NoButton;
    forget();
}

void MapEditing::forget()
{
    m_pointer.leaveAll();
    m_selection.cells = m_selection.pasteArea = QRect();
    selectSprite(-1);
    emit changed();
}

/// Some may be gone, so the others may have other indices.
void MapEditing::forgetSprites()
{
    m_pointer.sprite = -1;
    selectSprite(-1);
    emit changed();
}

void MapEditing::mapRestored()
{
    m_pointer.sprite = -1;
    if (!m_content.hasSprite(m_selection.sprite))
        selectSprite(-1);
    if (m_content.map()->animatedBlocks()->animationIdAt(m_pointer.highlight).isNull())
        m_pointer.highlight = QRect();
    m_selection.keepWithin(m_content.mapSize());
    emit changed();
    emit mapResized(m_content.mapSize());
}

void MapEditing::select(const QRect &cells)
{
    m_selection.select(cells, m_content.mapSize());
    emit changed();
}

void MapEditing::select(const CellRuns::Runs &cells)
{
    m_selection.select(cells, m_content.mapSize());
    emit changed();
}

void MapEditing::selectTile(int tile)
{
    if (const QPointer<TileMap> layer = m_content.tileLayer())
        select(CellRuns::ofTile(layer->rows(), tile));
}

void MapEditing::selectCopied(const MapSelection &cells)
{
    m_selection.cells = m_selection.pasteArea = cells.cells;
    m_selection.runs = cells.runs;
    emit changed();
}

void MapEditing::selectSprite(int index)
{
    if (index == m_selection.sprite)
        return;
    m_selection.sprite = index;
    emit selectedSpriteChanged(index);
}

// ---- What is done with it ---------------------------------------------------------------------

void MapEditing::clearCells()
{
    const QRect cells = m_selection.cells;
    if (cells.isEmpty() || !m_content.tileLayer())
        return;
    m_edit.run(tr("Clear"), [this, &cells](Map &map) {
        if (m_selection.runs.isEmpty()) {
            map.setTiles(cells, 0, false, false, false, true);
            return;
        }
        CellInk blank;
        const QPointer<TileSet> tiles = map.tileSet();
        blank.stamp = Stamp({.offset = tiles ? tiles->tileOffset(0) : 0, .used = true});
        blank.paint(map, m_selection.runs);
    });
    emit changed();
}

void MapEditing::fillCells(const TileMap::TileData &tile)
{
    const QRect cells = m_selection.cells;
    if (cells.isEmpty() || !m_content.tileLayer() || tile.index < 0)
        return;
    m_edit.run(tr("Fill"), [&cells, &tile](Map &map) {
        map.setTiles(cells, tile.index, tile.rotate, tile.flip, tile.mirror, true);
    });
    emit changed();
}

void MapEditing::fillCells(CellInk ink)
{
    if (m_selection.cells.isEmpty() || !m_content.tileLayer())
        return;
    ink.origin = m_selection.cells.topLeft();
    m_edit.run(tr("Fill"), [this, &ink](Map &map) { ink.paint(map, m_selection.selectedRuns()); });
    emit changed();
}

bool MapEditing::canMoveCells() const
{
    constexpr qint64 MostCells = 1 << 24; // as rows that are not shared they take 256 MiB
    const QSize size = m_selection.cells.size();
    return !size.isEmpty() && m_content.tileLayer() && qint64(size.width()) * size.height() <= MostCells;
}

void MapEditing::moveCells(QPoint by, bool copies)
{
    const QPointer<TileMap> layer = m_content.tileLayer();
    if (!canMoveCells() || by.isNull())
        return;
    const TileMap::Rows before = layer->rows();
    const CellRuns::Runs from = m_selection.selectedRuns();
    const CellRuns::Runs to = CellRuns::clipped(CellRuns::moved(from, by), layer->bounds());
    m_edit.run(copies ? tr("Copy Cells") : tr("Move Cells"), [&](Map &map) {
        if (!copies)
            map.writeTiles(from, 1, [](QPoint, std::span<TileMap::TileData> cells) {
                std::ranges::fill(cells, TileMap::TileData());
            });
        map.writeTiles(to, 0, [&before, by](QPoint first, std::span<TileMap::TileData> cells) {
            const QPoint source = first - by;
            std::copy_n(before[source.y()].cbegin() + source.x(), cells.size(), cells.begin());
        });
    });
    if (m_selection.runs.isEmpty())
        select(m_selection.cells.translated(by));
    else
        select(to);
}

void MapEditing::setSprite(const Map::PlacedSprite &sprite)
{
    const int index = m_selection.sprite;
    if (!m_content.hasSprite(index))
        return;
    m_edit.run(tr("Sprite Properties"), [index, &sprite](Map &map) { map.setSprite(index, sprite); });
    emit changed();
}

bool MapEditing::removeSprite()
{
    const int index = m_pointer.sprite;
    if (!m_content.hasSprite(index))
        return false;
    m_edit.run(tr("Delete Sprite"), [index](Map &map) { map.removeSprite(index); });
    m_pointer.sprite = -1;
    selectSprite(m_selection.spriteWithout(index));
    emit changed();
    return true;
}

bool MapEditing::removeAnimation()
{
    const QRect area = m_pointer.highlight;
    if (!m_content.map() || m_content.map()->animatedBlocks()->animationIdAt(area).isNull())
        return false;
    m_edit.run(tr("Remove Animation"), [&area](Map &map) { map.removeAnimationAt(area); });
    m_pointer.highlight = QRect();
    emit changed();
    return true;
}

// ---- The size of the map ----------------------------------------------------------------------

void MapEditing::resize(const QString &text, const std::function<void(Map &)> &operation)
{
    const QPointer<Map> map = m_content.map();
    if (!map)
        return;
    const qsizetype sprites = map->sprites().size();
    m_edit.run(text, operation);
    m_pointer.clearCell();
    m_pointer.highlight = QRect();
    m_selection.keepWithin(m_content.mapSize());
    emit changed();
    if (map->sprites().size() != sprites)
        forgetSprites();
    emit mapResized(m_content.mapSize());
}

void MapEditing::addRows(Position where, int count)
{
    resize(tr("Add Rows"), [where, count](Map &map) {
        for (int i = 0; i < count; ++i)
            map.insertRow(where);
    });
}

void MapEditing::addColumns(Position where, int count)
{
    resize(tr("Add Columns"), [where, count](Map &map) {
        for (int i = 0; i < count; ++i)
            map.insertColumn(where);
    });
}

void MapEditing::removeRows(Position where, int count)
{
    resize(tr("Remove Rows"), [where, count](Map &map) {
        for (int i = 0; i < count && map.size().height() >= 2; ++i)
            map.removeRow(where);
    });
}

void MapEditing::removeColumns(Position where, int count)
{
    resize(tr("Remove Columns"), [where, count](Map &map) {
        for (int i = 0; i < count && map.size().width() >= 2; ++i)
            map.removeColumn(where);
    });
}

void MapEditing::resizeMap(QSize size, Qt::Alignment alignment)
{
    resize(tr("Resize Map"), [size, alignment](Map &map) { map.resize(size, alignment); });
}

} // namespace MapEditor
