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
    /// Shows where a brush of more than a pixel would be set down.
    void paint(QPainter &painter) const override;

private:
    /// Paints the stroke from the pixel of that number on.
    void plot(qsizetype first);
};
