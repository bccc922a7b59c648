#pragma once

#include "editors/canvas/pixelpen.h"
#include "editors/canvas/shapecanvastool.h"

#include <QCoreApplication>

/// Draws the ellipse inscribed in the dragged rectangle, as an outline or filled.
class CircleCanvasTool final : public ShapeCanvasTool
{
    Q_DECLARE_TR_FUNCTIONS(CircleCanvasTool)

public:
    explicit CircleCanvasTool(CanvasSurface *canvas, bool filled = false)
        : ShapeCanvasTool(canvas)
        , m_filled(filled) { }

protected:
    void draw(PixelPen &pen) const override
    {
        if (m_filled)
            pen.filledEllipse(dragRect());
        else
            pen.ellipse(dragRect());
    }
    QString text() const override { return m_filled ? tr("Filled Circle") : tr("Circle"); }

private:
    const bool m_filled;
};
