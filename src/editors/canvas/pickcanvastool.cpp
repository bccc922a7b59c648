#include "editors/canvas/pickcanvastool.h"

#include "editors/canvas/canvas.h"

void PickCanvasTool::activate()
{
    canvas()->setCursor(QCursor(QPixmap(QStringLiteral(":/PickerCursor")), 5, 28));
}

void PickCanvasTool::mouseReleased(QMouseEvent *)
{
    const QPoint pixel = canvas()->cursorPixel();
    if (!canvas()->layer().rect().contains(pixel))
        return;
    const int index = canvas()->layer().pixelIndex(pixel);
    if (canvas()->heldButtons() & Qt::LeftButton) {
        canvas()->setInk(index);
        emit canvas()->foregroundPicked(index);
    } else if (canvas()->heldButtons() & Qt::RightButton) {
        canvas()->setPaper(index);
        emit canvas()->backgroundPicked(index);
    }
}
