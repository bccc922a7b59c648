#include "editors/canvas/canvas.h"
#include "editors/canvas/canvastool.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace {

/// A checker board of two colours, one cell each, that starts with the first.
QBrush checkerBrush(QSize cell, QColor first, QColor second)
{
    QPixmap pixmap(cell * 2);
    pixmap.fill(first);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(QPoint(cell.width(), 0), cell), second);
    painter.fillRect(QRect(QPoint(0, cell.height()), cell), second);
    return {pixmap};
}

} // namespace

void Canvas::paintEvent(QPaintEvent *event)
{
    if (image().isNull() || !m_palette)
        return;
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.fillRect(rect(), QWidget::palette().window());
    paintImage(painter);

    const QSize cell(std::max(m_geometry.cell().width(), 16), std::max(m_geometry.cell().height(), 16));
    if (m_pixelGrid)
        paintChecker(painter, cell);
    if (m_gridLines)
        paintGridLines(painter, cell);
    m_tool->paint(painter);
}

void Canvas::paintImage(QPainter &painter) const
{
    QImage shown = image();
    if (m_tool->hasPreview() && m_layer.rect().contains(m_pressPixel)) {
        Layer2Image preview(QSize(1, 1));
        preview.copyFrom(m_layer);
        m_tool->drawPreview(preview);
        shown = preview.image();
    }
    // Only what is on the screen is converted and scaled.
    const QRect visible = m_geometry.visiblePixels() & shown.rect();
    if (visible.isEmpty())
        return;
    const QImage part = shown.copy(visible).convertToFormat(QImage::Format_RGB32);
    painter.drawImage(QRect(m_geometry.imageRect.topLeft(), m_geometry.scaled(visible.size())), part);
}

void Canvas::paintChecker(QPainter &painter, QSize cell) const
{
    const QRect &area = m_geometry.imageRect;
    std::array colours = m_overlayColours;
    for (QColor &colour : colours)
        colour.setAlpha(m_overlayAlpha);
    // The colour of the first cell follows from its place in the widget; its neighbours alternate.
    const int first = ((area.x() / cell.width()) ^ (area.y() / cell.height())) & 1;
    painter.setBrushOrigin(area.topLeft());
    painter.fillRect(area, checkerBrush(cell, colours[first], colours[1 - first]));
}

void Canvas::paintGridLines(QPainter &painter, QSize cell) const
{
    const QRect &area = m_geometry.imageRect;
    painter.setPen(QColor(255, 255, 255, 48));
    for (int y = area.top(); y < area.bottom(); y += cell.height())
        painter.drawLine(area.left(), y, area.right(), y);
    for (int x = area.left(); x < area.right(); x += cell.width())
        painter.drawLine(x, area.top(), x, area.bottom());
}
