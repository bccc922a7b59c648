// Where the grid shows its map: layout, zoom and scrolling.

#include "editors/map/mapgrid.h"

#include <QRubberBand>
#include <QWheelEvent>

namespace MapEditor {

QSize MapGrid::mapSize() const
{
    return m_map ? m_map->size() : QSize(0, 0);
}

void MapGrid::relayout()
{
    const QPoint scroll = m_viewport.scroll;
    m_viewport.layout(size(), mapSize());
    const QSize furthest = m_viewport.overflow(mapSize());
    emit scrollDeltaChanged(furthest.width(), furthest.height());
    if (m_viewport.scroll != scroll) {
        clearHoverCell();
        emit scrollPositionChanged(m_viewport.scroll);
    }
    update();
}

void MapGrid::resizeEvent(QResizeEvent *)
{
    relayout();
}

void MapGrid::setViewPort(bool enabled, QSize size)
{
    m_viewport.viewportEnabled = enabled;
    m_viewport.viewportSize = size;
    relayout();
}

void MapGrid::setBaseSize(int pixels)
{
    m_viewport.setBaseSize(pixels);
    relayout();
}

void MapGrid::setSnapToSize(int size)
{
    m_viewport.snap = size;
}

void MapGrid::zoomIn()
{
    if (m_viewport.setZoom(m_viewport.zoomFactor + 1))
        relayout();
}

void MapGrid::zoomOut()
{
    if (m_viewport.setZoom(m_viewport.zoomFactor - 1))
        relayout();
}

void MapGrid::fitTo(bool doEvent)
{
    m_viewport.fit(size(), mapSize());
    if (doEvent)
        relayout();
}

void MapGrid::fitTo()
{
    fitTo(true);
}

void MapGrid::scrollRight()
{
    scrollBy({1, 0});
}

void MapGrid::scrollLeft()
{
    scrollBy({-1, 0});
}

void MapGrid::scrollUp()
{
    scrollBy({0, -1});
}

void MapGrid::scrollDown()
{
    scrollBy({0, 1});
}

void MapGrid::scrollBy(QPoint direction)
{
    const QPoint before = m_viewport.scroll;
    if (!m_viewport.scrollBy(direction, mapSize()))
        return;
    const QPoint shift = (before - m_viewport.scroll) * m_viewport.cellSize;
    clearHoverCell();
    m_pressPoint += shift; // what was pressed moves along
    if (m_rubberBand->isVisible())
        m_rubberBand->move(m_rubberBand->pos() + shift);
    update();
    emit scrollPositionChanged(m_viewport.scroll);
}

void MapGrid::setHorizontalScrollPosition(int pos)
{
    setScrollPosition({pos, m_viewport.scroll.y()});
}

void MapGrid::setVerticalScrollPosition(int pos)
{
    setScrollPosition({m_viewport.scroll.x(), pos});
}

void MapGrid::setScrollPosition(QPoint position)
{
    if (position != m_viewport.scroll)
        clearHoverCell();
    m_viewport.scroll = position;
    update();
}

void MapGrid::wheelEvent(QWheelEvent *event)
{
    const QPoint delta = event->angleDelta();
    if (delta.isNull())
        return; // a touchpad tells that fingers came or went
    if (event->modifiers() & Qt::ControlModifier) {
        if (delta.y() < 1)
            zoomOut();
        else
            zoomIn();
    } else if (event->modifiers() & Qt::ShiftModifier) {
        scrollBy({delta.y() < 1 ? 1 : -1, 0});
    } else if (delta.y() == 0 && delta.x() != 0) {
        scrollBy({delta.x() < 1 ? 1 : -1, 0});
    } else {
        scrollBy({0, delta.y() < 1 ? 1 : -1});
    }
    event->accept();
}

} // namespace MapEditor
