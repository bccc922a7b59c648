// How the canvas looks, and what mouse and keyboard do with it.

#include "editors/canvas/canvas.h"
#include "editors/canvas/canvastool.h"

#include <QKeyEvent>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

int sign(int value)
{
    return (value > 0) - (value < 0);
}

/// How far an arrow key moves the image; nothing for every other key.
QPoint scrollOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {1, 0};
    case Qt::Key_Up:
        return {0, 1};
    case Qt::Key_Right:
        return {-1, 0};
    case Qt::Key_Down:
        return {0, -1};
    default:
        return {};
    }
}

} // namespace

// ---- Painting -------------------------------------------------------------------------------

void Canvas::paintEvent(QPaintEvent *event)
{
    if (image().isNull() || !m_palette)
        return;
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.fillRect(rect(), QWidget::palette().window());
    paintImage(painter);
    paintGhost(painter);
    m_overlay.paint(painter, m_geometry);
    CanvasOverlay::paintAxes(painter, m_geometry, image().size(), m_options.symmetry);
    m_tools.tool().paint(painter);
}

void Canvas::paintImage(QPainter &painter) const
{
    const QImage shown = drawnImage();
    // Only what is on the screen is converted and scaled.
    const QRect visible = m_geometry.visiblePixels() & shown.rect();
    if (visible.isEmpty())
        return;
    const QImage part = m_palette->shown(shown.copy(visible)).convertToFormat(QImage::Format_RGB32);
    painter.drawImage(QRect(m_geometry.imageRect.topLeft(), m_geometry.scaled(visible.size())), part);
}

void Canvas::paintGhost(QPainter &painter) const
{
    constexpr qreal Faint = 0.35;
    const QRect visible = m_geometry.visiblePixels() & m_ghost.rect();
    if (visible.isEmpty())
        return;
    painter.setOpacity(Faint);
    painter.drawImage(QRect(m_geometry.imageRect.topLeft(), m_geometry.scaled(visible.size())), m_ghost, visible);
    painter.setOpacity(1);
}

// ---- Mouse and keyboard ---------------------------------------------------------------------

void Canvas::hoverAt(QPoint pixel)
{
    m_pointer.cursor = pixel;
    const bool inside = m_layer.rect().contains(pixel);
    emit pixelHovered(inside ? pixel : CanvasPointer::Nowhere, inside ? m_layer.pixelIndex(pixel) : -1);
}

void Canvas::mousePressEvent(QMouseEvent *event)
{
    holdKeys(event->modifiers());
    m_pointer.press(m_geometry.pixelAt(event->position().toPoint()), event->buttons());
    m_tools.tool().mousePressed(event);
    if (isDrawing())
        emit strokeDrawn();
}

void Canvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint pixel = m_geometry.pixelAt(event->position().toPoint());
    holdKeys(event->modifiers());
    if (m_extended && event->spontaneous() && event->buttons() == Qt::NoButton && m_pointer.buttons != Qt::NoButton)
        endLostDrag(); // another window took the release
    if (!m_pointer.moveTo(pixel))
        return;
    if (m_tools.tool().mouseMoved(event))
        update();
    if (isDrawing())
        emit strokeDrawn();
    hoverAt(pixel);
}

void Canvas::mouseReleaseEvent(QMouseEvent *event)
{
    const QPoint pixel = m_geometry.pixelAt(event->position().toPoint());
    holdKeys(event->modifiers());
    m_pointer.current = pixel;
    const QPointer guard(this); // a tool may open a menu, under which anything can happen
    m_tools.tool().mouseReleased(event);
    if (!guard)
        return;
    m_pointer.buttons = Qt::NoButton;
    hoverAt(pixel);
}

void Canvas::leaveEvent(QEvent *event)
{
    hoverAt(CanvasPointer::Nowhere);
    m_selection.clearAnchor();
    update();
    QWidget::leaveEvent(event);
}

void Canvas::hideEvent(QHideEvent *event)
{
    if (m_extended)
        endLostDrag();
    QWidget::hideEvent(event);
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
    const QPoint delta = scrollOf(event->key());
    if (delta.isNull())
        return false;
    scrollBy(delta);
    return true;
}

void Canvas::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Shift)
        holdKeys(m_pointer.keys | Qt::ShiftModifier);
    if (m_extended && event->key() == Qt::Key_Escape && isDrawing())
        return dropStroke();
    if (!nudgeByKey(event) && !scrollByKey(event))
        QWidget::keyPressEvent(event);
}

void Canvas::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Shift)
        holdKeys(m_pointer.keys & ~Qt::ShiftModifier);
    QWidget::keyReleaseEvent(event);
}

void Canvas::holdKeys(Qt::KeyboardModifiers keys)
{
    if (!m_extended || keys == m_pointer.keys)
        return;
    m_pointer.keys = keys;
    if (!isDraggingShape())
        return;
    update();
    emit strokeDrawn();
}

bool Canvas::nudgeByKey(const QKeyEvent *event)
{
    constexpr int ManyPixels = 8;
    const Qt::KeyboardModifiers keys = event->modifiers() & ~Qt::KeypadModifier;
    const QPoint step = -scrollOf(event->key());
    const bool many = keys == Qt::ShiftModifier;
    if (!m_extended || mode() != Quenmora::Ui::Select || !hasSelection() || isEditing() || step.isNull()
        || (keys && !many))
        return false;
    // moves of one selection become one step, but not those of two
    m_pointer.keys = {};
    if (!takeUpSelection())
        m_nudge = m_nudge == PixelEditCommand::Nudge ? PixelEditCommand::NextNudge : PixelEditCommand::Nudge;
    beginEdit();
    moveSelection(m_floating.area().topLeft() + step * (many ? ManyPixels : 1));
    emit imageChanged();
    finishEdit(tr("Move"), m_nudge);
    return true;
}

void Canvas::contextMenuEvent(QContextMenuEvent *event)
{
    // The select tool opens the menu for the mouse.
    if (event->reason() == QContextMenuEvent::Keyboard)
        m_contextMenu->popup(event->globalPos());
    else
        event->ignore();
}

void Canvas::openContextMenu(QPoint globalPosition)
{
    m_contextMenu->exec(globalPosition);
}
