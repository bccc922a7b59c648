#pragma once

#include "editors/canvas/canvastool.h"

/// Sets the pixels under the pointer: ink with the left button, paper with the right one.
class DrawCanvasTool final : public CanvasTool
{
public:
    using CanvasTool::CanvasTool;

    void activate() override;
    void mousePressed(QMouseEvent *event) override;
    bool mouseMoved(QMouseEvent *event) override;
    void mouseReleased(QMouseEvent *event) override;

private:
    void plot();
};
