#include "editors/map/mapediting.h"

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
    select(m_selection.cells);
    emit mapResized(m_content.mapSize());
}

void MapEditing::select(const QRect &cells)
{
    m_selection.select(cells, m_content.mapSize());
    emit changed();
}

void MapEditing::selectCopied(const QRect &cells)
{
    m_selection.pasteArea = cells;
    select(cells);
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
    m_edit.run(tr("Clear"), [&cells](Map &map) { map.setTiles(cells, 0, false, false, false, true); });
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
    select(m_selection.cells);
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
