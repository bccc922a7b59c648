#include "ui/emptyhint.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace {

constexpr int MostWidth = 300;
constexpr int Distance = 8; ///< to the edges of what it lies over
constexpr int Padding = 6;
constexpr int GroundAlpha = 240;

} // namespace

EmptyHint::EmptyHint(QWidget *over, Text text, Qt::Alignment place)
    : QLabel(over)
    , m_over(over)
    , m_wanted(std::move(text))
    , m_place(place)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(Padding);
    hide();
    over->installEventFilter(this);
}

bool EmptyHint::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        place();
    else if (event->type() == QEvent::Paint && m_wanted() != text())
        QMetaObject::invokeMethod(this, &EmptyHint::ask, Qt::QueuedConnection); // not while it is painted
    return false;
}

void EmptyHint::ask()
{
    setText(m_wanted());
    place();
}

void EmptyHint::place()
{
    const QRect room = m_over->rect().adjusted(Distance, Distance, -Distance, -Distance);
    const int width = std::min({room.width(), MostWidth, fontMetrics().horizontalAdvance(text()) + 4 * Padding});
    const QSize size(width, width > 0 ? heightForWidth(width) : 0);
    const bool fits = !text().isEmpty() && width > 0 && size.height() <= room.height();
    if (fits)
        setGeometry(QStyle::alignedRect(layoutDirection(), m_place, size, room));
    setVisible(fits);
}

void EmptyHint::paintEvent(QPaintEvent *event)
{
    QColor ground = palette().color(QPalette::Base);
    ground.setAlpha(GroundAlpha); // readable on any pixels
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(rect(), Padding, Padding);
    painter.end();
    QLabel::paintEvent(event);
}
