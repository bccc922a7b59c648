#include "editors/map/terraintool.h"

#include "editors/map/mappainter.h"
#include "model/cellruns.h"

#include <QMouseEvent>

namespace MapEditor {

bool TerrainTool::activate()
{
    m_painting = false;
    surface()->refreshCursor();
    surface()->hideRubberBand();
    surface()->setSelection({});
    return true;
}

bool TerrainTool::isUnavailable() const
{
    return brush().terrain.tiles.isEmpty() || (map() && map()->tileLayer() && !map()->tileLayer()->isVisible());
}

bool TerrainTool::mousePressed(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (!map() || !map()->tileLayer() || isUnavailable() || !viewport().viewRect.contains(point))
        return false;
    pointer().cell = viewport().cellAt(point);
    m_painting = true;
    surface()->beginEdit();
    stroke(pointer().cell, pointer().cell);
    return true;
}

void TerrainTool::mouseMoved(QMouseEvent *event)
{
    if (pointer().held == Qt::NoButton)
        m_painting = false; // another window took the release
    const QPoint cell = viewport().cellAt(event->position().toPoint());
    const QPoint before = pointer().hasCell() ? pointer().cell : cell;
    if (cell == pointer().cell)
        return;
    pointer().cell = cell;
    surface()->repaintSoon();
    if (m_painting && map() && map()->tileLayer())
        stroke(before, cell);
}

void TerrainTool::stroke(QPoint from, QPoint to)
{
    const QPointer<TileMap> layer = map()->tileLayer();
    const bool ground = pointer().held & Qt::LeftButton;
    bool changed = false;
    for (const TileMap::Run &run : CellRuns::line(from, to, layer->bounds())) {
        for (int i = 0; i < run.count; ++i)
            changed |= brush().terrain.paint(*layer, {run.column + i, run.row}, ground, brush().seed);
    }
    if (changed)
        surface()->repaintSoon();
}

void TerrainTool::mouseReleased(QMouseEvent *)
{
    if (!m_painting)
        return;
    m_painting = false;
    surface()->endEdit(tr("Paint Terrain"));
}

void TerrainTool::paintUnder(QPainter &painter) const
{
    if (pointer().hasCell() && !isUnavailable())
        MapPainter::paintOutline(painter, viewport().rectOfCells({pointer().cell, QSize(1, 1)}));
}

} // namespace MapEditor
