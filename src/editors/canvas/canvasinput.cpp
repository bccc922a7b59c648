#include "editors/canvas/canvas.h"
#include "editors/canvas/canvastool.h"

#include <QKeyEvent>
#include <QMenu>
#include <QWheelEvent>

namespace {

int sign(int value)
{
    return (value > 0) - (value < 0);
}

} // namespace

void Canvas::hoverAt(QPoint pixel)
{
    m_cursor = pixel;
    const bool inside = m_layer.rect().contains(pixel);
    emit pixelHovered(inside ? pixel : Nowhere, inside ? m_layer.pixelIndex(pixel) : -1);
}

void Canvas::mousePressEvent(QMouseEvent *event)
{
    m_buttons = event->buttons();
    m_pressPixel = m_currentPixel = m_geometry.pixelAt(event->position().toPoint());
    m_cursor = m_pressPixel;
    m_tool->mousePressed(event);
}

void Canvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint pixel = m_geometry.pixelAt(event->position().toPoint());
    if (pixel == m_cursor)
        return;
    m_currentPixel = pixel;
    m_cursor = pixel;
    if (m_tool->mouseMoved(event))
        update();
    hoverAt(pixel);
}

void Canvas::mouseReleaseEvent(QMouseEvent *event)
{
    const QPoint pixel = m_geometry.pixelAt(event->position().toPoint());
    m_currentPixel = pixel;
    const QPointer guard(this); // a tool may open a menu, under which anything can happen
    m_tool->mouseReleased(event);
    if (!guard)
        return;
    m_buttons = Qt::NoButton;
    hoverAt(pixel);
}

void Canvas::leaveEvent(QEvent *event)
{
    hoverAt(Nowhere);
    clearAnchor();
    update();
    QWidget::leaveEvent(event);
}

void Canvas::wheelEvent(QWheelEvent *event)
{
    if (!m_geometry.imageRect.contains(event->position().toPoint())) {
        event->ignore();
        return;
    }
    const QPoint step(2 * sign(event->angleDelta().x()), 2 * sign(event->angleDelta().y()));
    if (event->modifiers() & Qt::ControlModifier)
        setZoomLevel(m_geometry.zoom + (step.y() < 1 ? -CanvasGeometry::ZoomStep : CanvasGeometry::ZoomStep));
    else
        scrollBy(step);
    event->accept();
}

bool Canvas::scrollByKey(const QKeyEvent *event)
{
    if (event->modifiers() & ~Qt::KeypadModifier)
        return false;
    switch (event->key()) {
    case Qt::Key_Left:
        scrollBy(QPoint(1, 0));
        return true;
    case Qt::Key_Up:
        scrollBy(QPoint(0, 1));
        return true;
    case Qt::Key_Right:
        scrollBy(QPoint(-1, 0));
        return true;
    case Qt::Key_Down:
        scrollBy(QPoint(0, -1));
        return true;
    default:
        return false;
    }
}

void Canvas::keyPressEvent(QKeyEvent *event)
{
    if (!scrollByKey(event))
        QWidget::keyPressEvent(event);
}

void Canvas::contextMenuEvent(QContextMenuEvent *event)
{
    // The select tool opens the menu for the mouse.
    if (event->reason() == QContextMenuEvent::Keyboard)
        m_contextMenu->popup(event->globalPos());
    else
        event->ignore();
}
