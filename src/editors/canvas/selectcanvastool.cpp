#include "editors/canvas/selectcanvastool.h"

#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvassurface.h"

#include <QCursor>
#include <QMouseEvent>

void SelectCanvasTool::activate()
{
    canvas()->showCursor(Qt::ArrowCursor);
}

void SelectCanvasTool::mousePressed(QMouseEvent *event)
{
    canvas()->beginSelection(event->position().toPoint());
}

bool SelectCanvasTool::mouseMoved(QMouseEvent *event)
{
    const CanvasPointer &pointer = canvas()->pointer();
    if (pointer.buttons & Qt::LeftButton)
        canvas()->extendSelection(event->position().toPoint());
    else
        canvas()->showCursor(canvas()->isMovable(pointer.cursor) ? Qt::SizeAllCursor : Qt::ArrowCursor);
    return false;
}

void SelectCanvasTool::mouseReleased(QMouseEvent *event)
{
    if (canvas()->pointer().buttons & Qt::RightButton)
        canvas()->openContextMenu(event->globalPosition().toPoint());
    else
        canvas()->endSelection();
}
