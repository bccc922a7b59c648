#include "editors/canvas/fillcanvastool.h"

#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvassurface.h"

#include <QCursor>
#include <QPixmap>

void FillCanvasTool::activate()
{
    canvas()->showCursor(QCursor(QPixmap(QStringLiteral(":/FillCursor")), 29, 26));
}

void FillCanvasTool::mouseReleased(QMouseEvent *)
{
    canvas()->applyEdit(tr("Fill"), PixelEditCommand::None, [this](Layer2Image &layer) {
        if (canvas()->pointer().buttons & Qt::LeftButton)
            canvas()->pen(layer, PixelPen::Ink).flood(canvas()->pointer().cursor);
        if (canvas()->pointer().buttons & Qt::RightButton)
            canvas()->pen(layer, PixelPen::Paper).flood(canvas()->pointer().cursor);
    });
}
