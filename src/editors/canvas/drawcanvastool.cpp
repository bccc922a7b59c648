#include "editors/canvas/drawcanvastool.h"

#include "editors/canvas/canvasgeometry.h"
#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvassurface.h"
#include "editors/canvas/strokepath.h"

#include <QCursor>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>

void DrawCanvasTool::activate()
{
    canvas()->showCursor(Qt::CrossCursor);
}

void DrawCanvasTool::mousePressed(QMouseEvent *)
{
    canvas()->beginEdit();
    canvas()->stroke().begin(canvas()->pointer().cursor, canvas()->pointer().isGuided());
    plot(0);
    canvas()->scheduleRepaint();
}

bool DrawCanvasTool::mouseMoved(QMouseEvent *)
{
    if (!canvas()->isEditing())
        return true;
    StrokePath &stroke = canvas()->stroke();
    if (stroke.goOn(canvas()->pointer().cursor, canvas()->paintOptions())) {
        plot(stroke.painted());
    } else {
        canvas()->startOver();
        plot(0);
    }
    return true;
}

void DrawCanvasTool::mouseReleased(QMouseEvent *)
{
    canvas()->finishStroke();
}

void DrawCanvasTool::plot(qsizetype first)
{
    const Qt::MouseButtons buttons = canvas()->pointer().buttons;
    if (!(buttons & (Qt::LeftButton | Qt::RightButton)))
        return;
    PixelPen pen = canvas()->pen(canvas()->layer(), buttons & Qt::LeftButton ? PixelPen::Ink : PixelPen::Paper);
    const QList<QPoint> &pixels = canvas()->stroke().pixels();
    for (qsizetype at = first; at < pixels.size(); ++at)
        pen.dab(pixels.at(at));
}

void DrawCanvasTool::paint(QPainter &painter) const
{
    const Brush &brush = canvas()->paintOptions().brush;
    const QPoint cursor = canvas()->pointer().cursor;
    if (brush.isPixel() || cursor == CanvasPointer::Nowhere)
        return;
    const CanvasGeometry &geometry = canvas()->geometryInWidget();
    QRegion region;
    for (const Brush::Run &run : brush.runs())
        region += geometry.rectOf({cursor + run.start, QSize(run.width, 1)});
    QPainterPath outline;
    outline.addRegion(region);
    outline = outline.simplified();

    painter.save();
    painter.setClipRect(geometry.imageRect);
    painter.setPen(Qt::black);
    painter.drawPath(outline);
    painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
    painter.drawPath(outline);
    painter.restore();
}
