#include "editors/canvas/fillcanvastool.h"

#include "editors/canvas/canvas.h"

void FillCanvasTool::activate()
{
    canvas()->setCursor(QCursor(QPixmap(QStringLiteral(":/FillCursor")), 29, 26));
}

void FillCanvasTool::mouseReleased(QMouseEvent *)
{
    Layer2Image &layer = canvas()->layer();
    canvas()->beginEdit();
    if (canvas()->heldButtons() & Qt::LeftButton)
        layer.floodFill(canvas()->cursorPixel(), layer.ink());
    if (canvas()->heldButtons() & Qt::RightButton)
        layer.floodFill(canvas()->cursorPixel(), layer.paper());
    canvas()->update();
    emit canvas()->imageChanged();
    canvas()->finishEdit(Canvas::tr("Fill"), PixelEditCommand::None);
}
