#include "editors/canvas/pastecanvastool.h"

#include "editors/canvas/canvasgeometry.h"
#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvassurface.h"
#include "editors/canvas/layer2image.h"

#include <QCursor>
#include <QPainter>

void PasteCanvasTool::activate()
{
    canvas()->showCursor(Qt::CrossCursor);
}

void PasteCanvasTool::mouseReleased(QMouseEvent *)
{
    canvas()->pasteAtCursor();
}

void PasteCanvasTool::paint(QPainter &painter) const
{
    QImage image = canvas()->clipboardImage();
    if (image.isNull())
        return;
    const CanvasGeometry &geometry = canvas()->geometryInWidget();
    image.setColorTable(canvas()->shownColours());
    const QPoint corner = canvas()->pointer().cursor - QPoint(image.width() / 2, image.height() / 2);
    const QRect target(geometry.pointOf(corner), geometry.scaled(image.size()));

    painter.save();
    painter.setClipRect(geometry.imageRect);
    painter.drawImage(target, image);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 2, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRect(target);
    painter.setPen(QPen(Qt::white, 2, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRect(target);
    painter.restore();
}
