#include "editors/map/cellpreview.h"

#include "model/cellruns.h"

#include <QPainter>

namespace MapEditor::CellPreview {

void paint(QPainter &painter, const Map &map, const MapViewport &viewport, const QList<TileMap::Run> &runs,
           const CellInk &ink)
{
    const QPointer<TileMap> layer = map.tileLayer();
    if (!ink.stamp.isEmpty() && layer)
        paint(painter, map, viewport, runs, [&](QPoint place) { return ink.inked(place, layer->cellAt(place)); });
}

void paint(QPainter &painter, const Map &map, const MapViewport &viewport, const QList<TileMap::Run> &runs,
           const std::function<TileMap::TileData(QPoint)> &cellAt)
{
    const QRect shown = viewport.visibleCells() & QRect(QPoint(0, 0), map.size());
    if (shown.isEmpty())
        return;
    TileMap cells(shown.size());
    cells.setTileSet(map.tileSet());
    QList<TileMap::Run> inside;
    QList<QRect> areas;
    for (const TileMap::Run &run : runs) {
        const QRect part = QRect(run.column, run.row, run.count, 1) & shown;
        if (part.isEmpty())
            continue;
        const QRect area = part.translated(-shown.topLeft());
        inside.append({area.top(), area.left(), area.width()});
        if (!areas.isEmpty() && areas.last().left() == area.left() && areas.last().right() == area.right()
            && areas.last().bottom() + 1 == area.top())
            areas.last().setBottom(area.bottom());
        else
            areas.append(area);
    }
    cells.writeRuns(inside, 0, [&](QPoint first, std::span<TileMap::TileData> span) {
        for (TileMap::TileData &cell : span) {
            cell = cellAt(first + shown.topLeft());
            ++first.rx();
        }
    });
    cells.paintAreas(painter, viewport.viewRect.topLeft(), cells.bounds(), areas, viewport.cellSize, -1);
}

void paint(QPainter &painter, const Map &map, const MapViewport &viewport, const QRect &area, const CellInk &ink)
{
    paint(painter, map, viewport, CellRuns::rectangle(area, true, viewport.visibleCells()), ink);
}

} // namespace MapEditor::CellPreview
