#include "editors/palette/colourmarks.h"

#include "ui/outline.h"

#include <QPainter>

void ColourMarks::paintSwatches(QPainter &painter, const QRect &area, const QColor &fore, const QColor &back,
                                const QColor &frame)
{
    const QSize swatch = area.size() * 2 / 3;
    const auto paint = [&](QPoint corner, const QColor &colour) {
        painter.fillRect(QRect(corner, swatch), frame);
        painter.fillRect(QRect(corner, swatch).adjusted(1, 1, -1, -1), colour);
    };
    paint(area.bottomRight() + QPoint(1, 1) - QPoint(swatch.width(), swatch.height()), back);
    paint(area.topLeft(), fore);
}

void ColourMarks::paintFore(QPainter &painter, const QRect &cell)
{
    painter.setBrush(Qt::NoBrush);
    for (const auto &[outside, colour] : {std::pair(2, Qt::black), {1, Qt::white}, {0, Qt::black}}) {
        painter.setPen(colour);
        painter.drawRect(cell.adjusted(-outside, -outside, outside - 1, outside - 1));
    }
}

void ColourMarks::paintBack(QPainter &painter, const QRect &cell)
{
    paintOutline(painter, cell.adjusted(-2, -2, 2, 2), 3);
}

void ColourMarks::paintClear(QPainter &painter, const QRect &cell)
{
    const QLine stroke(cell.bottomLeft() + QPoint(2, -2), cell.topRight() + QPoint(-2, 2));
    for (const auto &[width, colour] : {std::pair(3, Qt::black), {1, Qt::white}}) {
        painter.setPen(QPen(colour, width));
        painter.drawLine(stroke);
    }
}
