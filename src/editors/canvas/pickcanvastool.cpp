#include "editors/canvas/pickcanvastool.h"

#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvassurface.h"
#include "editors/canvas/layer2image.h"

#include <QCursor>
#include <QPixmap>

void PickCanvasTool::activate()
{
    canvas()->showCursor(QCursor(QPixmap(QStringLiteral(":/PickerCursor")), 5, 28));
}

void PickCanvasTool::mouseReleased(QMouseEvent *)
{
    const QPoint pixel = canvas()->pointer().cursor;
    if (!canvas()->layer().rect().contains(pixel))
        return;
    const int index = canvas()->layer().pixelIndex(pixel);
    if (canvas()->pointer().buttons & Qt::LeftButton)
        canvas()->pickInk(index);
    else if (canvas()->pointer().buttons & Qt::RightButton)
        canvas()->pickPaper(index);
}
