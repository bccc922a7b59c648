#include "editors/map/mapkeys.h"

#include "editors/map/mapgrid.h"
#include "editors/map/mapselection.h"
#include "model/animatedblocks.h"
#include "model/placedsprites.h"

namespace MapEditor {

MapKeys::MapKeys(MapGrid *grid) : KeyCursor(grid), m_grid(grid)
{
    connect(grid, &MapGrid::modeChanged, this, &CellTable::tellSelection);
    connect(this, &KeyCursor::moved, this, [this](QPoint cell) { m_grid->tell(text(cell)); });
}

QSize MapKeys::size() const
{
    return m_grid->map() ? m_grid->map()->size() : QSize();
}

QRect MapKeys::area(QPoint cell) const
{
    return m_grid->viewport().rectOfCells({cell, QSize(1, 1)});
}

QPoint MapKeys::cellAt(QPoint point) const
{
    return m_grid->viewport().viewRect.contains(point) ? m_grid->viewport().cellAt(point) : Nowhere;
}

QString MapKeys::text(QPoint cell) const
{
    const QPointer<Map> &map = m_grid->map();
    const TileMap::TileData shown = map->tileLayer() ? map->tileLayer()->cellAt(cell) : TileMap::TileData();
    QStringList parts{tr("Column %1, row %2").arg(cell.x()).arg(cell.y())};
    parts.append(shown.used ? tr("tile %1").arg(shown.index) : tr("empty"));
    if (shown.used && shown.rotate)
        parts.append(tr("rotated"));
    if (shown.used && shown.flip)
        parts.append(tr("flipped"));
    if (shown.used && shown.mirror)
        parts.append(tr("mirrored"));
    if (shown.used && shown.offset != 0)
        parts.append(tr("palette offset %1").arg(shown.offset));
    if (!map->animatedBlocks()->areaAt(cell).isEmpty())
        parts.append(tr("animation"));
    const int sprite = PlacedSprites::indexAt(cell * TileMap::TileSize, map->sprites(), m_grid->spriteBanks());
    if (sprite >= 0) {
        const QString name = map->sprites().at(sprite).name;
        parts.append(name.isEmpty() ? tr("sprite") : tr("sprite %1").arg(name));
    }
    return parts.join(tr(", ", "between the parts of what a cell shows"));
}

QRect MapKeys::selected() const
{
    return m_grid->selection();
}

bool MapKeys::isSelected(QPoint cell) const
{
    return m_grid->selected().contains(cell);
}

QRect MapKeys::visibleCells() const
{
    return m_grid->viewport().visibleCells();
}

void MapKeys::scrollTo(QPoint first)
{
    const QPoint before = m_grid->viewport().scroll;
    m_grid->scrollTo(first);
    m_grid->pointer().press += (before - m_grid->viewport().scroll) * m_grid->viewport().cellSize;
}

QPoint MapKeys::pointOf(QPoint cell) const
{
    // sprites are placed to the pixel
    return m_grid->mode() == Quenmora::Ui::PlaceSprite ? area(cell).topLeft() : area(cell).center();
}

void MapKeys::pick(QPoint cell, bool)
{
    m_grid->pickTileAt(area(cell).center());
}

void MapKeys::select(const QRect &cells)
{
    if (m_grid->mode() != Quenmora::Ui::Select)
        m_grid->setMode(Quenmora::Ui::Select);
    m_grid->setSelection(cells);
}

void MapKeys::selectNone()
{
    m_grid->selectNone();
}

bool MapKeys::selectsFrom(QPoint cell) const
{
    return m_grid->mode() == Quenmora::Ui::Select && !m_grid->selected().contains(cell);
}

void MapKeys::openMenu(QPoint globalPosition)
{
    m_grid->showContextMenu(globalPosition);
}

} // namespace MapEditor
