#include "editors/canvas/fillcanvastool.h"

#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvassurface.h"
#include "editors/canvas/layer2image.h"

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
            layer.floodFill(canvas()->pointer().cursor, layer.ink());
        if (canvas()->pointer().buttons & Qt::RightButton)
            layer.floodFill(canvas()->pointer().cursor, layer.paper());
    });
}
