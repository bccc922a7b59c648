#pragma once

#include "editors/canvas/canvastool.h"

/// Floods the region under the pointer: with ink by the left button, with paper by the right one.
class FillCanvasTool final : public CanvasTool
{
public:
    using CanvasTool::CanvasTool;

    void activate() override;
    void mouseReleased(QMouseEvent *event) override;
};
