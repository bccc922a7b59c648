#include "editors/map/mapnavigator.h"

#include "editors/map/mapgrid.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace MapEditor {

MapNavigator::MapNavigator(MapGrid *grid) : QObject(grid), m_grid(grid)
{
    grid->installEventFilter(this);
}

bool MapNavigator::eventFilter(QObject *, QEvent *event)
{
    const auto pointOf = [event] { return static_cast<QMouseEvent *>(event)->position().toPoint(); };
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool pressed = event->type() == QEvent::KeyPress;
        if (key->key() != Qt::Key_Space || (pressed && m_grid->pointer().held != Qt::NoButton))
            return false;
        if (!key->isAutoRepeat())
            setReady(pressed);
        return true;
    }
    case QEvent::FocusOut: // nobody tells when the key is released
    case QEvent::Hide:
        m_grabbed.reset();
        setReady(false);
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (!isActive())
            return false;
        grab(pointOf());
        return true;
    case QEvent::MouseMove:
        if (!isActive())
            return false;
        drag(pointOf());
        return true;
    case QEvent::MouseButtonRelease:
        if (!isActive())
            return false;
        m_grabbed.reset();
        setReady(m_ready);
        return true;
    case QEvent::Wheel: {
        const auto *wheel = static_cast<QWheelEvent *>(event);
        const int delta = wheel->angleDelta().y();
        if (!(wheel->modifiers() & Qt::ControlModifier) || wheel->angleDelta().isNull())
            return false;
        m_grid->zoomAround(wheel->position().toPoint(), delta < 1 ? -1 : 1);
        event->accept();
        return true;
    }
    default:
        return false;
    }
}

void MapNavigator::setReady(bool ready)
{
    const bool wasShown = m_cursorShown;
    m_ready = ready;
    m_cursorShown = isActive();
    if (m_cursorShown && !wasShown)
        m_cursorBefore = m_grid->cursor();
    if (m_cursorShown)
        m_grid->setCursor(m_grabbed ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    else if (wasShown)
        m_grid->setCursor(m_cursorBefore);
}

void MapNavigator::grab(QPoint point)
{
    m_grabbed = point;
    m_scroll = m_grid->viewport().scroll;
    setReady(m_ready);
}

void MapNavigator::drag(QPoint point)
{
    if (!m_grabbed)
        return;
    const QPointF cells = QPointF(*m_grabbed - point) / m_grid->viewport().cellSize;
    m_grid->scrollTo(m_scroll + cells.toPoint());
}

} // namespace MapEditor
