#include "ui/outlineband.h"

#include "ui/outline.h"

#include <QEvent>
#include <QPainter>

OutlineBand::OutlineBand(QWidget *parent) : QRubberBand(QRubberBand::Rectangle, parent) { }

void OutlineBand::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintOutline(painter, rect());
}

bool OutlineBand::event(QEvent *event)
{
    const bool handled = QRubberBand::event(event);
    // the style cuts a line of its own thickness out of the band, whenever it is shown or resized
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize || event->type() == QEvent::StyleChange)
        clearMask();
    return handled;
}
