#include "editors/canvas/canvasoverlay.h"

#include "editors/canvas/canvasgeometry.h"
#include "editors/canvas/symmetryaxes.h"
#include "ui/outline.h"

#include <QBrush>
#include <QPainter>
#include <QPixmap>

#include <array>

namespace {

constexpr QSize SmallestCell(16, 16);
constexpr std::array CheckerColours{QColor(64, 64, 64, 80), QColor(80, 80, 80, 80)};
constexpr QColor LineColour(255, 255, 255, 48);

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

void paintChecker(QPainter &painter, const QRect &area, QSize cell)
{
    // The colour of the first cell follows from its place in the widget; its neighbours alternate.
    const int first = ((area.x() / cell.width()) ^ (area.y() / cell.height())) & 1;
    painter.setBrushOrigin(area.topLeft());
    painter.fillRect(area, checkerBrush(cell, CheckerColours[size_t(first)], CheckerColours[size_t(1 - first)]));
}

void paintGridLines(QPainter &painter, const QRect &area, QSize cell)
{
    painter.setPen(LineColour);
    for (int y = area.top(); y < area.bottom(); y += cell.height())
        painter.drawLine(area.left(), y, area.right(), y);
    for (int x = area.left(); x < area.right(); x += cell.width())
        painter.drawLine(x, area.top(), x, area.bottom());
}

} // namespace

void CanvasOverlay::paint(QPainter &painter, const CanvasGeometry &geometry) const
{
    const QSize cell = geometry.cell().expandedTo(SmallestCell);
    if (checker)
        paintChecker(painter, geometry.imageRect, cell);
    if (gridLines)
        paintGridLines(painter, geometry.imageRect, cell);
}

void CanvasOverlay::paintAxes(QPainter &painter, const CanvasGeometry &geometry, QSize image, const SymmetryAxes &axes)
{
    const QRect shown = geometry.imageRect;
    const QPoint middle = geometry.rectOf(QRect(QPoint(), image)).center();
    if (axes.upright && middle.x() > shown.left() && middle.x() < shown.right())
        paintOutline(painter, {middle.x(), shown.top(), 1, shown.height()}, 1);
    if (axes.level && middle.y() > shown.top() && middle.y() < shown.bottom())
        paintOutline(painter, {shown.left(), middle.y(), shown.width(), 1}, 1);
}
