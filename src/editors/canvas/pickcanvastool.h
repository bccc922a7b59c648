#pragma once

#include "editors/canvas/canvastool.h"

/// Takes the colour under the pointer: as ink by the left button, as paper by the right one.
class PickCanvasTool final : public CanvasTool
{
public:
    using CanvasTool::CanvasTool;

    void activate() override;
    void mouseReleased(QMouseEvent *event) override;
};
