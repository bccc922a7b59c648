#pragma once

#include "editors/canvas/brush.h"
#include "editors/canvas/symmetryaxes.h"

/// How the tools of a canvas paint. As they are made, each tool sets the pixels that it is dragged over, and no others.
struct PaintOptions
{
    /// The draw tool joins the pixels that the pointer was seen at.
    bool connect = false;
    /// A freehand line of single pixels has no corners.
    bool pixelPerfect = false;
    /// Pixels move along the run of palette entries between ink and paper instead of becoming one of them.
    bool shade = false;
    Brush brush;
    SymmetryAxes symmetry;
};
