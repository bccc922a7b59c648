#pragma once

#include "editors/canvas/layer2image.h"
#include "editors/canvas/shapecanvastool.h"

#include <QCoreApplication>

/// Draws the outline of the ellipse inscribed in the dragged rectangle.
class CircleCanvasTool final : public ShapeCanvasTool
{
    Q_DECLARE_TR_FUNCTIONS(CircleCanvasTool)

public:
    using ShapeCanvasTool::ShapeCanvasTool;

protected:
    void draw(Layer2Image &layer) const override { layer.drawEllipse(dragRect()); }
    QString text() const override { return tr("Circle"); }
};
