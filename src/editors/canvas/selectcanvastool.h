#pragma once

#include "editors/canvas/canvastool.h"

/// Selects a rectangle; the right button opens the canvas's context menu.
class SelectCanvasTool final : public CanvasTool
{
public:
    using CanvasTool::CanvasTool;

    void activate() override;
    void mousePressed(QMouseEvent *event) override;
    bool mouseMoved(QMouseEvent *event) override;
    void mouseReleased(QMouseEvent *event) override;
};
