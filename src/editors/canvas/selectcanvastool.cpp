#include "editors/canvas/selectcanvastool.h"

#include "editors/canvas/canvas.h"

#include <QMenu>
#include <QMouseEvent>

void SelectCanvasTool::activate()
{
    canvas()->setCursor(Qt::ArrowCursor);
}

void SelectCanvasTool::mousePressed(QMouseEvent *event)
{
    canvas()->beginSelection(event->position().toPoint());
}

bool SelectCanvasTool::mouseMoved(QMouseEvent *event)
{
    if (canvas()->heldButtons() & Qt::LeftButton)
        canvas()->extendSelection(event->position().toPoint());
    return false;
}

void SelectCanvasTool::mouseReleased(QMouseEvent *event)
{
    if (canvas()->heldButtons() & Qt::RightButton)
        canvas()->contextMenu()->exec(event->globalPosition().toPoint());
    else
        canvas()->clearAnchor();
}
