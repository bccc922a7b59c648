#include "ui/keycursor.h"

#include "ui/keymark.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace {

constexpr int Page = 8; ///< cells

/// Where a key leads from a cell; nothing for a key that does not move the cursor.
std::optional<QPoint> target(const QKeyEvent &event, QPoint from, QSize size)
{
    const Qt::KeyboardModifiers keys = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    const bool arrow = keys == Qt::ControlModifier;
    const bool sideways = keys & Qt::AltModifier;
    const QPoint last(size.width() - 1, size.height() - 1);
    switch (event.key()) {
    case Qt::Key_Left:
        return arrow ? std::optional(from - QPoint(1, 0)) : std::nullopt;
    case Qt::Key_Right:
        return arrow ? std::optional(from + QPoint(1, 0)) : std::nullopt;
    case Qt::Key_Up:
        return arrow ? std::optional(from - QPoint(0, 1)) : std::nullopt;
    case Qt::Key_Down:
        return arrow ? std::optional(from + QPoint(0, 1)) : std::nullopt;
    case Qt::Key_PageUp:
        return from - (sideways ? QPoint(Page, 0) : QPoint(0, Page));
    case Qt::Key_PageDown:
        return from + (sideways ? QPoint(Page, 0) : QPoint(0, Page));
    case Qt::Key_Home:
        return arrow ? QPoint(0, 0) : QPoint(0, from.y());
    case Qt::Key_End:
        return arrow ? last : QPoint(last.x(), from.y());
    default:
        return std::nullopt;
    }
}

/// The first of so many cells in view after the shortest way to a view that shows a cell.
int scrolled(int first, int count, int cell)
{
    return cell < first ? cell : cell >= first + count ? cell - count + 1 : first;
}

QRect between(QPoint a, QPoint b)
{
    return {QPoint(std::min(a.x(), b.x()), std::min(a.y(), b.y())),
            QPoint(std::max(a.x(), b.x()), std::max(a.y(), b.y()))};
}

bool isByKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

} // namespace

KeyCursor::KeyCursor(QWidget *widget) : CellTable(widget), m_mark(new KeyMark(widget))
{
    widget->installEventFilter(this);
}

bool KeyCursor::eventFilter(QObject *, QEvent *event)
{
    if (m_sending)
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return keyPressed(*static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
        return keyReleased(*static_cast<QKeyEvent *>(event));
    case QEvent::FocusIn:
        if (isByKeyboard(static_cast<QFocusEvent *>(event)->reason()) || m_returns)
            show();
        return false;
    case QEvent::FocusOut:
        m_returns = m_shown && static_cast<QFocusEvent *>(event)->reason() != Qt::MouseFocusReason;
        hide();
        return false;
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
        followMouse(event);
        return false;
    case QEvent::ContextMenu: {
        const auto *asked = static_cast<QContextMenuEvent *>(event);
        if (asked->reason() != QContextMenuEvent::Keyboard)
            return false;
        openMenu(m_shown ? widget()->mapToGlobal(pointOf(m_cell)) : asked->globalPos());
        return true;
    }
    case QEvent::Paint:
    case QEvent::Resize: // it may be elsewhere now
        if (m_shown)
            QMetaObject::invokeMethod(this, &KeyCursor::placeMark, Qt::QueuedConnection);
        return false;
    default:
        return false;
    }
}

// ---- Keys -----------------------------------------------------------------------------------

bool KeyCursor::keyPressed(const QKeyEvent &event)
{
    if (!widget()->isEnabled() || size().isEmpty())
        return false;
    if (const auto cell = target(event, m_cell, size())) {
        if (!m_shown && event.modifiers() == Qt::NoModifier)
            return false;
        show();
        moveTo(*cell, event.modifiers());
        return true;
    }
    if (!m_shown)
        return false;
    switch (event.key()) {
    case Qt::Key_Space:
        if (!event.isAutoRepeat() && m_held == Qt::NoButton && !m_selecting)
            press(event.modifiers());
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        pick(m_cell, event.modifiers() & Qt::ShiftModifier);
        return true;
    default:
        return false;
    }
}

bool KeyCursor::keyReleased(const QKeyEvent &event)
{
    if (event.key() != Qt::Key_Space || (m_held == Qt::NoButton && !m_selecting))
        return false;
    if (!event.isAutoRepeat())
        release();
    return true;
}

void KeyCursor::moveTo(QPoint cell, Qt::KeyboardModifiers keys)
{
    const QPoint from = m_cell;
    m_cell = {std::clamp(cell.x(), 0, size().width() - 1), std::clamp(cell.y(), 0, size().height() - 1)};
    const bool shift = keys & Qt::ShiftModifier;
    m_keys.setFlag(Qt::ShiftModifier, shift && m_held != Qt::NoButton); // which tools may know
    if (m_held == Qt::NoButton && !m_selecting) {
        if (!shift)
            m_anchor.reset();
        else if (!m_anchor)
            m_anchor = from;
    }
    reveal(m_cell);
    if (!send(QEvent::MouseMove, Qt::NoButton))
        return;
    if (m_anchor)
        select(between(*m_anchor, m_cell));
    placeMark();
    tellCurrent();
    emit moved(m_cell);
}

void KeyCursor::press(Qt::KeyboardModifiers keys)
{
    reveal(m_cell);
    const Qt::MouseButton button = keys & Qt::ShiftModifier ? Qt::RightButton : Qt::LeftButton;
    m_anchor.reset();
    if (button == Qt::LeftButton && selectsFrom(m_cell)) {
        selectNone();
        m_anchor = m_cell;
        m_selecting = true;
        return;
    }
    // Ctrl alone is held to move the cursor
    m_keys = keys & Qt::AltModifier ? Qt::ControlModifier : Qt::NoModifier;
    if (!send(QEvent::MouseMove, Qt::NoButton))
        return;
    m_held = button;
    if (send(QEvent::MouseButtonPress, button))
        tellContent();
}

void KeyCursor::release()
{
    if (m_selecting) {
        m_selecting = false;
        return;
    }
    const Qt::MouseButton button = std::exchange(m_held, Qt::NoButton);
    if (!send(QEvent::MouseButtonRelease, button))
        return;
    m_keys = Qt::NoModifier;
    tellContent();
}

void KeyCursor::choose(QPoint cell)
{
    if (!exists(cell))
        return;
    m_cell = cell;
    show();
    const QPointer guard(this);
    moveTo(cell, {});
    if (guard)
        press({});
    if (guard)
        release();
}

bool KeyCursor::send(QEvent::Type type, Qt::MouseButton button)
{
    const QPointer guard(this); // a tool may open a menu, under which anything can happen
    m_sending = true;
    const QPointF point = pointOf(m_cell);
    QMouseEvent event(type, point, widget()->window()->mapFromGlobal(widget()->mapToGlobal(point)),
                      widget()->mapToGlobal(point), button, m_held, m_keys, Qt::MouseEventSynthesizedByApplication);
    QApplication::sendEvent(widget(), &event);
    if (guard)
        m_sending = false;
    return guard;
}

// ---- Where it is ----------------------------------------------------------------------------

void KeyCursor::followMouse(QEvent *event)
{
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const QPoint place = mouse->globalPosition().toPoint();
    // a window that opens or closes lets the mouse seem to move
    if (m_shown && event->type() == QEvent::MouseMove && place == m_mouse)
        return;
    hide();
    m_returns = false;
    if (const QPoint cell = cellAt(mouse->position().toPoint()); exists(cell))
        m_cell = cell;
}

void KeyCursor::show()
{
    if (m_shown || size().isEmpty())
        return;
    m_shown = true;
    m_returns = false;
    m_mouse = QCursor::pos();
    const QRect visible = visibleCells() & QRect(QPoint(0, 0), size());
    if (!visible.isEmpty())
        m_cell = {std::clamp(m_cell.x(), visible.left(), visible.right()),
                  std::clamp(m_cell.y(), visible.top(), visible.bottom())};
    if (!send(QEvent::MouseMove, Qt::NoButton))
        return;
    placeMark();
    // after the widget itself was told to have the keyboard
    QMetaObject::invokeMethod(this, &KeyCursor::tellCurrent, Qt::QueuedConnection);
}

void KeyCursor::hide()
{
    if (!m_shown)
        return;
    const QPointer guard(this);
    if (m_held != Qt::NoButton || m_selecting)
        release();
    if (!guard)
        return;
    m_anchor.reset();
    m_shown = false;
    placeMark();
}

void KeyCursor::reveal(QPoint cell)
{
    const QRect visible = visibleCells();
    if (!visible.isEmpty() && !visible.contains(cell))
        scrollTo({scrolled(visible.x(), visible.width(), cell.x()), scrolled(visible.y(), visible.height(), cell.y())});
}

void KeyCursor::placeMark()
{
    if (!m_mark)
        return;
    if (m_shown && exists(m_cell) && visibleCells().contains(m_cell))
        m_mark->showAround(area(m_cell));
    else
        m_mark->hide();
}
