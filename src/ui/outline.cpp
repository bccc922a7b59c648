#include "ui/outline.h"

#include <QBrush>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int Dash = 4;

/// Diagonal stripes: a line that is cut out of them in either direction is dashed.
QImage stripes()
{
    QImage image(2 * Dash, 2 * Dash, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, (x + y) / Dash % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    }
    return image;
}

} // namespace

void paintOutline(QPainter &painter, const QRect &area, int width, int march)
{
    static const QImage pattern = stripes();
    const QBrush brush(pattern);
    const QPoint origin = painter.brushOrigin();
    painter.setBrushOrigin(area.topLeft() + QPoint(march, 0));
    const int across = std::min(width, area.width());
    const int down = std::min(width, area.height());
    painter.fillRect(area.x(), area.y(), area.width(), down, brush);
    painter.fillRect(area.x(), area.bottom() + 1 - down, area.width(), down, brush);
    painter.fillRect(area.x(), area.y(), across, area.height(), brush);
    painter.fillRect(area.right() + 1 - across, area.y(), across, area.height(), brush);
    painter.setBrushOrigin(origin);
}
