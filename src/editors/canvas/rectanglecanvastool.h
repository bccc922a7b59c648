#pragma once

#include "editors/canvas/pixelpen.h"
#include "editors/canvas/shapecanvastool.h"

#include <QCoreApplication>

/// Draws the dragged rectangle as an outline, or filled.
class RectangleCanvasTool final : public ShapeCanvasTool
{
    Q_DECLARE_TR_FUNCTIONS(RectangleCanvasTool)

public:
    RectangleCanvasTool(CanvasSurface *canvas, bool filled) : ShapeCanvasTool(canvas), m_filled(filled) { }

protected:
    void draw(PixelPen &pen) const override
    {
        if (m_filled)
            pen.fill(dragRect());
        else
            pen.rectangle(dragRect());
    }
    QString text() const override { return m_filled ? tr("Filled Rectangle") : tr("Rectangle"); }

private:
    const bool m_filled;
};
