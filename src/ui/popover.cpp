#include "ui/popover.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

using namespace Quenmora::Ui;

namespace {

constexpr int ArrowSize = 9; ///< length, and half the width of the foot: edges at 45°, sharp without blending

Direction arrowOf(DialogPosition position)
{
    switch (position) {
    case LeftOf:
        return Right;
    case RightOf:
        return Left;
    case Above:
        return Down;
    case Below:
        break;
    }
    return Up;
}

DialogPosition opposite(DialogPosition position)
{
    switch (position) {
    case LeftOf:
        return RightOf;
    case RightOf:
        return LeftOf;
    case Above:
        return Below;
    case Below:
        break;
    }
    return Above;
}

QPoint beside(const QSize &size, const QRect &target, DialogPosition position)
{
    const QPoint centred = target.center() - QPoint(size.width() / 2, size.height() / 2);
    switch (position) {
    case LeftOf:
        return {target.left() - size.width(), centred.y()};
    case RightOf:
        return {target.right() + 1, centred.y()};
    case Above:
        return {centred.x(), target.top() - size.height()};
    case Below:
        break;
    }
    return {centred.x(), target.bottom() + 1};
}

bool fits(const QRect &rect, const QRect &screen, DialogPosition position)
{
    const bool sideways = position == LeftOf || position == RightOf;
    return sideways ? rect.left() >= screen.left() && rect.right() <= screen.right()
                    : rect.top() >= screen.top() && rect.bottom() <= screen.bottom();
}

} // namespace

Popover::Popover(QWidget *parent) : QFrame(parent, Qt::Popup | Qt::FramelessWindowHint), m_layout(new QVBoxLayout(this))
{
    m_layout->setSizeConstraint(QLayout::SetFixedSize);
    setArrow(Left);
}

void Popover::setContent(QWidget *content)
{
    if (content == m_content) {
        return;
    }
    delete m_content;
    m_content = content;
    if (m_content) {
        m_layout->addWidget(m_content);
        setFocusProxy(m_content);
    }
}

QPoint Popover::place(const QSize &size, const QRect &target, const QRect &screen, DialogPosition &position)
{
    const auto isFree = [&](DialogPosition side) { return fits({beside(size, target, side), size}, screen, side); };
    if (!isFree(position) && isFree(opposite(position))) {
        position = opposite(position);
    }
    const QPoint wanted = beside(size, target, position);
    return {std::max(screen.left(), std::min(wanted.x(), screen.right() + 1 - size.width())),
            std::max(screen.top(), std::min(wanted.y(), screen.bottom() + 1 - size.height()))};
}

void Popover::showBeside(const QRect &target, DialogPosition wanted)
{
    const QScreen *screen = QGuiApplication::screenAt(target.center());
    if (!screen) {
        screen = this->screen();
    }
    // the size is the same for opposite sides, so the arrow can be settled after the place
    setArrow(arrowOf(wanted));
    DialogPosition position = wanted;
    const QSize size = sizeHint();
    const QPoint corner = place(size, target, screen->availableGeometry(), position);
    setArrow(arrowOf(position));

    const bool sideways = position == LeftOf || position == RightOf;
    const int tip = sideways ? target.center().y() - corner.y() : target.center().x() - corner.x();
    const int edge = sideways ? size.height() : size.width();
    m_tip = std::max(2 * ArrowSize, std::min(tip, edge - 2 * ArrowSize));
    setGeometry({corner, size});
    setMask(shape());
    update();
    const bool opens = !isVisible();
    show();
    if (opens && m_content)
        m_content->setFocus(Qt::PopupFocusReason);
}

void Popover::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    if (!event->spontaneous()) {
        emit closed();
    }
}

void Popover::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlpha(110);
    painter.setPen(edge);
    painter.setBrush(palette().window());
    painter.drawPolygon(outline());
}

void Popover::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    setMask(shape());
}

QPolygon Popover::outline() const
{
    const QRect panel = rect()
                            .marginsRemoved({m_arrow == Left ? ArrowSize : 0, m_arrow == Up ? ArrowSize : 0,
                                             m_arrow == Right ? ArrowSize : 0, m_arrow == Down ? ArrowSize : 0})
                            .adjusted(0, 0, -1, -1);
    QPolygon polygon;
    polygon << panel.topLeft();
    if (m_arrow == Up) {
        polygon << QPoint(m_tip - ArrowSize, panel.top()) << QPoint(m_tip, panel.top() - ArrowSize)
                << QPoint(m_tip + ArrowSize, panel.top());
    }
    polygon << panel.topRight();
    if (m_arrow == Right) {
        polygon << QPoint(panel.right(), m_tip - ArrowSize) << QPoint(panel.right() + ArrowSize, m_tip)
                << QPoint(panel.right(), m_tip + ArrowSize);
    }
    polygon << panel.bottomRight();
    if (m_arrow == Down) {
        polygon << QPoint(m_tip + ArrowSize, panel.bottom()) << QPoint(m_tip, panel.bottom() + ArrowSize)
                << QPoint(m_tip - ArrowSize, panel.bottom());
    }
    polygon << panel.bottomLeft();
    if (m_arrow == Left) {
        polygon << QPoint(panel.left(), m_tip + ArrowSize) << QPoint(panel.left() - ArrowSize, m_tip)
                << QPoint(panel.left(), m_tip - ArrowSize);
    }
    return polygon;
}

QRegion Popover::shape() const
{
    // a region ends before the right and lower edges of its polygon, on which the pen draws
    const QPolygon polygon = outline();
    return QRegion(polygon) + QRegion(polygon.translated(1, 0)) + QRegion(polygon.translated(0, 1))
        + QRegion(polygon.translated(1, 1));
}

void Popover::setArrow(Direction arrow)
{
    m_arrow = arrow;
    constexpr int Margin = 9;
    m_layout->setContentsMargins(Margin + (arrow == Left ? ArrowSize : 0), Margin + (arrow == Up ? ArrowSize : 0),
                                 Margin + (arrow == Right ? ArrowSize : 0), Margin + (arrow == Down ? ArrowSize : 0));
}
