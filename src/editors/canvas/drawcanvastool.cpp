#include "editors/canvas/drawcanvastool.h"

#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvassurface.h"
#include "editors/canvas/layer2image.h"

#include <QCursor>

void DrawCanvasTool::activate()
{
    canvas()->showCursor(Qt::CrossCursor);
}

void DrawCanvasTool::mousePressed(QMouseEvent *)
{
    canvas()->beginEdit();
    plot();
    canvas()->scheduleRepaint();
}

bool DrawCanvasTool::mouseMoved(QMouseEvent *)
{
    if (canvas()->isEditing())
        plot();
    return true;
}

void DrawCanvasTool::mouseReleased(QMouseEvent *)
{
    canvas()->finishStroke();
}

void DrawCanvasTool::plot()
{
    Layer2Image &layer = canvas()->layer();
    if (canvas()->pointer().buttons & Qt::LeftButton)
        layer.setPixel(canvas()->pointer().cursor, layer.ink());
    else if (canvas()->pointer().buttons & Qt::RightButton)
        layer.setPixel(canvas()->pointer().cursor, layer.paper());
}
