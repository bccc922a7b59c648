#include "editors/map/selecttool.h"

#include "editors/map/cellpreview.h"
#include "editors/map/mappainter.h"
#include "editors/map/mapselection.h"

#include <QMouseEvent>

namespace MapEditor {

bool SelectTool::activate()
{
    m_grabbed.reset();
    surface()->setPasteArea({});
    surface()->setSelection({});
    surface()->showCursor(Qt::CrossCursor);
    return true;
}

bool SelectTool::mousePressedFirst(QMouseEvent *event)
{
    if (event->button() != Qt::RightButton || surface()->selection().isEmpty())
        return false;
    surface()->showContextMenu(event->globalPosition().toPoint());
    return true;
}

bool SelectTool::isMovable(QPoint cell) const
{
    return brush().doesMore && surface()->selected().contains(cell) && surface()->canMoveSelection();
}

bool SelectTool::mousePressed(QMouseEvent *event)
{
    const QPoint cell = viewport().cellAt(event->position().toPoint());
    m_grabbed.reset();
    m_way = {};
    if (event->button() != Qt::LeftButton || !isMovable(cell))
        return false;
    m_grabbed = cell;
    return true;
}

void SelectTool::mouseMoved(QMouseEvent *event)
{
    if (pointer().held == Qt::NoButton)
        m_grabbed.reset(); // another window took the release
    const QPoint point = event->position().toPoint();
    if (const QPoint cell = viewport().cellAt(point); cell != pointer().cell) {
        pointer().cell = cell;
        surface()->repaintSoon();
    }
    if (m_grabbed) {
        const QPoint way = pointer().cell - *m_grabbed;
        const bool copies = event->modifiers() & Qt::ControlModifier;
        if (way != m_way || copies != m_copies)
            surface()->repaintSoon();
        m_way = way;
        m_copies = copies;
        return;
    }
    if (!(pointer().held & Qt::LeftButton)) {
        if (brush().doesMore)
            surface()->showCursor(isMovable(pointer().cell) ? Qt::SizeAllCursor : Qt::CrossCursor);
        return;
    }
    const QRect band = QRect(pointer().press, point).normalized();
    surface()->showRubberBand(band);
    surface()->setSelection(viewport().cellsUnder(band));
}

void SelectTool::mouseReleased(QMouseEvent *)
{
    if (m_grabbed)
        surface()->moveSelection(m_way, m_copies);
    m_grabbed.reset();
    m_way = {};
}

/// The map as it will be when the button is released.
void SelectTool::paintMoved(QPainter &painter) const
{
    const QPointer<TileMap> layer = map()->tileLayer();
    const MapSelection &selected = surface()->selected();
    const QRect shown = viewport().visibleCells();
    const auto within = [&selected](const QRect &cells) {
        return selected.runs.isEmpty() ? CellRuns::rectangle(selected.cells, true, cells)
                                       : CellRuns::clipped(selected.runs, cells);
    };
    if (!m_copies)
        CellPreview::paint(painter, *map(), viewport(), within(shown), [](QPoint) { return TileMap::TileData(); });
    CellPreview::paint(painter, *map(), viewport(), CellRuns::moved(within(shown.translated(-m_way)), m_way),
                       [&layer, this](QPoint place) { return layer->cellAt(place - m_way); });
}

void SelectTool::paintUnder(QPainter &painter) const
{
    if (m_grabbed && !m_way.isNull() && map() && map()->tileLayer()) {
        paintMoved(painter);
        MapPainter::paintSelection(painter, viewport().rectOfCells(surface()->selection().translated(m_way)));
        return;
    }
    paintSelection(painter);
}

} // namespace MapEditor
