#include "ui/outlineband.h"

#include "ui/outline.h"

#include <QEvent>
#include <QPainter>
#include <QTimerEvent>

namespace {

constexpr int Thickness = 2;
constexpr int StepTime = 120; // milliseconds
constexpr int Steps = 8; // until the dashes look as before

} // namespace

OutlineBand::OutlineBand(QWidget *parent) : QRubberBand(QRubberBand::Rectangle, parent) { }

void OutlineBand::setMarching(bool marching)
{
    m_marching = marching;
    startOrStop();
}

void OutlineBand::startOrStop()
{
    if (m_marching && isVisible())
        m_timer.start(StepTime, this);
    else
        m_timer.stop();
}

void OutlineBand::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        return QRubberBand::timerEvent(event);
    m_step = (m_step + 1) % Steps;
    // what is inside need not be painted again
    update(QRegion(rect()) - rect().adjusted(Thickness, Thickness, -Thickness, -Thickness));
}

void OutlineBand::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintOutline(painter, rect(), Thickness, m_step);
}

bool OutlineBand::event(QEvent *event)
{
    const bool handled = QRubberBand::event(event);
    // the style cuts a line of its own thickness out of the band, whenever it is shown or resized
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize || event->type() == QEvent::StyleChange)
        clearMask();
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        startOrStop();
    return handled;
}
