#pragma once

#include "editors/canvas/pixelpen.h"
#include "editors/canvas/shapecanvastool.h"
#include "editors/common/raster.h"

#include <QCoreApplication>

/// Draws a straight line from the press to the release.
class LineCanvasTool final : public ShapeCanvasTool
{
    Q_DECLARE_TR_FUNCTIONS(LineCanvasTool)

public:
    using ShapeCanvasTool::ShapeCanvasTool;

protected:
    void draw(PixelPen &pen) const override { pen.line(pressed(), current()); }
    QPoint guided(QPoint start, QPoint end) const override { return Raster::straightened(start, end); }
    QString text() const override { return tr("Line"); }
};
