#include "ui/focusring.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QWidget>

namespace {

constexpr int Outside = 2; ///< of the widget
constexpr int Line = 2;

class Frame final : public QWidget
{
public:
    explicit Frame(QWidget *window) : QWidget(window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const auto line = [&](int inset, int width, const QColor &colour) {
            const QRect outer = rect().adjusted(inset, inset, -inset, -inset);
            for (const QRect &side : QRegion(outer) - outer.adjusted(width, width, -width, -width))
                painter.fillRect(side, colour);
        };
        line(0, Line, palette().color(QPalette::Highlight));
        line(Line, 1, palette().color(QPalette::Base));
    }
};

bool isFramed(const QWidget *widget)
{
    return widget && !widget->isWindow() && !qobject_cast<const QMenu *>(widget)
        && !qobject_cast<const QMenuBar *>(widget);
}

/// What can be seen of a widget in its window, with the frame around it.
QRect placeOf(const QWidget *widget)
{
    const QWidget *window = widget->window();
    QRect place(widget->mapTo(window, QPoint(0, 0)), widget->size());
    place.adjust(-Outside, -Outside, Outside, Outside);
    for (const QWidget *outer = widget->parentWidget(); outer; outer = outer->parentWidget()) {
        place &= QRect(outer->mapTo(window, QPoint(0, 0)), outer->size());
        if (outer == window)
            break;
    }
    return place;
}

} // namespace

FocusRing::FocusRing(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

FocusRing::~FocusRing()
{
    delete m_frame;
}

const QWidget *FocusRing::frame() const
{
    return m_frame && m_frame->isVisible() ? m_frame : nullptr;
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        if (watched->isWidgetType() && watched == QApplication::focusWidget()) {
            const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
            if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason)
                m_byKeys = true;
            else if (reason == Qt::MouseFocusReason)
                m_byKeys = false;
            follow(static_cast<QWidget *>(watched));
        }
        break;
    case QEvent::FocusOut:
        if (watched == m_widget)
            leave();
        break;
    case QEvent::MouseButtonPress:
        if (m_byKeys && event->spontaneous()) {
            m_byKeys = false;
            leave();
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        if (m_widget && !m_placing && watched != m_frame && watched->isWidgetType()
            && (watched == m_widget || static_cast<QWidget *>(watched)->isAncestorOf(m_widget))) {
            m_placing = true;
            QMetaObject::invokeMethod(this, &FocusRing::place, Qt::QueuedConnection);
        }
        break;
    default:
        break;
    }
    return false;
}

void FocusRing::follow(QWidget *widget)
{
    leave();
    if (!m_byKeys || !isFramed(widget))
        return;
    m_widget = widget;
    place();
}

void FocusRing::leave()
{
    m_widget.clear();
    if (m_frame)
        m_frame->hide();
}

void FocusRing::place()
{
    m_placing = false;
    if (!m_widget)
        return;
    QWidget *window = m_widget->window();
    if (m_frame && m_frame->parentWidget() != window)
        delete m_frame;
    const QRect seen = m_widget->isVisible() ? placeOf(m_widget) : QRect();
    if (seen.isEmpty()) {
        if (m_frame)
            m_frame->hide();
        return;
    }
    if (!m_frame)
        m_frame = new Frame(window);
    m_frame->setGeometry(seen);
    m_frame->raise();
    m_frame->show();
}
