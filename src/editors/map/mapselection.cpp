#include "editors/map/mapselection.h"

#include <algorithm>

namespace MapEditor {

void MapSelection::select(const CellRuns::Runs &chosen, QSize map)
{
    runs = CellRuns::clipped(chosen, QRect(QPoint(0, 0), map));
    cells = CellRuns::bounds(runs);
}

void MapSelection::keepWithin(QSize map)
{
    const CellRuns::Runs chosen = runs;
    if (chosen.isEmpty())
        select(cells, map);
    else if (!QRect(QPoint(0, 0), map).contains(cells))
        select(chosen, map);
}

CellRuns::Runs MapSelection::selectedRuns() const
{
    return runs.isEmpty() ? CellRuns::rectangle(cells, true, cells) : runs;
}

bool MapSelection::contains(QPoint cell) const
{
    if (runs.isEmpty() || !cells.contains(cell))
        return cells.contains(cell);
    const auto [first, last] = CellRuns::inRows(runs, cell.y(), cell.y());
    return std::any_of(first, last, [cell](const TileMap::Run &run) {
        return cell.x() >= run.column && cell.x() < run.column + run.count;
    });
}

} // namespace MapEditor
