#include "editors/canvas/canvasselection.h"

QRect CanvasSelection::extendTo(QPoint point, const CanvasGeometry &geometry, const QRect &image)
{
    const QRect band = geometry.bandBetween(m_anchor, point);
    m_pixels = geometry.pixelsUnder(band) & image;
    m_exists = true;
    return band;
}
