#include "editors/canvas/palettenotice.h"

#include "editors/canvas/canvas.h"

#include <QEvent>
#include <QPainter>

PaletteNotice::PaletteNotice(Canvas *canvas) : QObject(canvas), m_canvas(canvas)
{
    canvas->installEventFilter(this);
}

bool PaletteNotice::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_canvas || event->type() != QEvent::Paint || m_canvas->palette())
        return QObject::eventFilter(watched, event);
    const QWidget &widget = *m_canvas;
    QPainter painter(m_canvas);
    painter.fillRect(widget.rect(), widget.palette().window());
    painter.setPen(widget.palette().color(QPalette::WindowText));
    painter.drawText(widget.rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("There is no palette yet to show colours with.\nPalette ▸ New Palette makes one."));
    return true;
}
