#pragma once

#include "editors/canvas/layer2image.h"
#include "editors/canvas/shapecanvastool.h"

#include <QCoreApplication>

/// Draws a straight line from the press to the release.
class LineCanvasTool final : public ShapeCanvasTool
{
    Q_DECLARE_TR_FUNCTIONS(LineCanvasTool)

public:
    using ShapeCanvasTool::ShapeCanvasTool;

protected:
    void draw(Layer2Image &layer) const override { layer.drawLine(pressed(), current()); }
    QString text() const override { return tr("Line"); }
};
