#include "editors/canvas/cellmarks.h"

#include <QPainter>

void CellMarks::paintHovered(QPainter &painter, const QRect &frame)
{
    painter.fillRect(frame, QColor(160, 160, 255, 80));
    painter.setPen(QColor(160, 160, 255, 128));
    painter.drawRect(frame);
}

void CellMarks::paintDotted(QPainter &painter, const QRect &frame, int dotWidth)
{
    painter.setPen(Qt::black);
    painter.drawRect(frame);
    QPen dotted(Qt::white, dotWidth, Qt::DotLine);
    dotted.setCosmetic(true);
    painter.setPen(dotted);
    painter.drawRect(frame);
}
