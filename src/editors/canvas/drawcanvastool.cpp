#include "editors/canvas/drawcanvastool.h"

#include "editors/canvas/canvas.h"

void DrawCanvasTool::activate()
{
    canvas()->setCursor(Qt::CrossCursor);
}

void DrawCanvasTool::mousePressed(QMouseEvent *)
{
    canvas()->beginEdit();
    plot();
    canvas()->update();
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
    if (canvas()->heldButtons() & Qt::LeftButton)
        layer.setPixel(canvas()->cursorPixel(), layer.ink());
    else if (canvas()->heldButtons() & Qt::RightButton)
        layer.setPixel(canvas()->cursorPixel(), layer.paper());
}
