// Edits of the grid that are not made with a tool: the size of the map, and what is placed on it.

#include "editors/map/mapgrid.h"
#include "model/placedsprites.h"

using Quenmora::Position;

namespace MapEditor {

void MapGrid::edit(const QString &text, const std::function<void(Map &)> &operation)
{
    if (!m_map)
        return;
    beginEdit();
    operation(*m_map);
    endEdit(text);
    update();
}

void MapGrid::resizingEdit(const QString &text, const std::function<void(Map &)> &operation)
{
    if (!m_map)
        return;
    const qsizetype sprites = m_map->sprites().size();
    edit(text, operation);
    setSelection(m_selection);
    clearHoverCell();
    m_highlight = QRect();
    if (m_map->sprites().size() != sprites)
        spritesRemoved();
    emit mapResized(mapSize());
    relayout();
}

void MapGrid::addRows(Position where, int count)
{
    resizingEdit(tr("Add Rows"), [where, count](Map &map) {
        for (int i = 0; i < count; ++i)
            map.insertRow(where);
    });
}

void MapGrid::addColumns(Position where, int count)
{
    resizingEdit(tr("Add Columns"), [where, count](Map &map) {
        for (int i = 0; i < count; ++i)
            map.insertColumn(where);
    });
}

void MapGrid::removeRows(Position where, int count)
{
    resizingEdit(tr("Remove Rows"), [where, count](Map &map) {
        for (int i = 0; i < count && map.size().height() >= 2; ++i)
            map.removeRow(where);
    });
}

void MapGrid::removeColumns(Position where, int count)
{
    resizingEdit(tr("Remove Columns"), [where, count](Map &map) {
        for (int i = 0; i < count && map.size().width() >= 2; ++i)
            map.removeColumn(where);
    });
}

void MapGrid::resizeMap(QSize size, Qt::Alignment alignment)
{
    resizingEdit(tr("Resize Map"), [size, alignment](Map &map) { map.resize(size, alignment); });
}

bool MapGrid::removeAnimation()
{
    if (!m_map || m_highlight.isEmpty() || m_map->animatedBlocks()->animationIdAt(m_highlight).isNull())
        return false;
    edit(tr("Remove Animation"), [this](Map &map) { map.removeAnimationAt(m_highlight); });
    m_highlight = QRect();
    return true;
}

QRect MapGrid::spriteRect(int index) const
{
    if (!m_map || index < 0 || index >= m_map->sprites().size())
        return {};
    const QRect pixels = PlacedSprites::area(m_map->sprites().at(index), m_spriteBanks);
    return pixels.isEmpty() ? QRect() : m_viewport.rectOfPixels(pixels);
}

void MapGrid::selectSprite(int index)
{
    if (index == m_selectedSprite)
        return;
    m_selectedSprite = index;
    emit selectedSpriteChanged(index);
}

bool MapGrid::deleteSprite()
{
    if (!m_map || m_hoverSprite < 0 || m_hoverSprite >= m_map->sprites().size())
        return false;
    const int deleted = m_hoverSprite;
    edit(tr("Delete Sprite"), [deleted](Map &map) { map.removeSprite(deleted); });
    m_hoverSprite = -1;
    if (m_selectedSprite == deleted)
        selectSprite(-1);
    else if (m_selectedSprite > deleted)
        selectSprite(m_selectedSprite - 1);
    return true;
}

void MapGrid::setSpriteProperties(const Map::PlacedSprite &sprite)
{
    if (!m_map || m_selectedSprite < 0 || m_selectedSprite >= m_map->sprites().size())
        return;
    edit(tr("Sprite Properties"), [this, &sprite](Map &map) { map.setSprite(m_selectedSprite, sprite); });
}

} // namespace MapEditor
