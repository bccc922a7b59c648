#include "editors/palette/channelslider.h"

#include "editors/palette/channellevels.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace {

constexpr int GrooveHeight = 12;
constexpr int HandleWidth = 10;

} // namespace

ChannelSlider::ChannelSlider(const QColor &accent, QWidget *parent) : QSlider(Qt::Horizontal, parent), m_accent(accent)
{
    setRange(0, Channel::MaximumLevel);
    setSingleStep(1);
    setPageStep(1);
}

void ChannelSlider::setGradient(const QColor &start, const QColor &end)
{
    m_start = start;
    m_end = end;
    update();
}

QSize ChannelSlider::sizeHint() const
{
    return QSlider::sizeHint().expandedTo({96, 20});
}

QRect ChannelSlider::handleRect() const
{
    // The style tells where a press takes hold of the handle; ours is drawn around the same centre.
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect held = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    QRect handle(0, 0, HandleWidth, qMin(height(), 20) - 2);
    handle.moveCenter({held.center().x(), rect().center().y()});
    return handle;
}

void ChannelSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : 0.4);

    QRect groove(0, 0, width(), GrooveHeight);
    groove.moveCenter(rect().center());
    QLinearGradient gradient(groove.topLeft(), groove.topRight());
    gradient.setColorAt(0, m_start);
    gradient.setColorAt(1, m_end);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(gradient);
    painter.drawRoundedRect(QRectF(groove).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);

    const QRectF handle = QRectF(handleRect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(
        QPen(hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Dark), hasFocus() ? 2 : 1));
    painter.setBrush(palette().button());
    painter.drawRoundedRect(handle, 3, 3);
    painter.setPen(QPen(m_accent, 2));
    painter.drawLine(QPointF(handle.center().x(), handle.top() + 4), QPointF(handle.center().x(), handle.bottom() - 4));
}
