#include "editors/canvas/fillcanvastool.h"

#include "editors/canvas/canvas.h"

void FillCanvasTool::activate()
{
    canvas()->setCursor(QCursor(QPixmap(QStringLiteral(":/FillCursor")), 29, 26));
}

void FillCanvasTool::mouseReleased(QMouseEvent *)
{
    canvas()->applyEdit(Canvas::tr("Fill"), PixelEditCommand::None, [this](Layer2Image &layer) {
        if (canvas()->heldButtons() & Qt::LeftButton)
            layer.floodFill(canvas()->cursorPixel(), layer.ink());
        if (canvas()->heldButtons() & Qt::RightButton)
            layer.floodFill(canvas()->cursorPixel(), layer.paper());
    });
}
