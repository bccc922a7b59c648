#pragma once

#include "editors/canvas/canvastool.h"

/// Pastes the clipboard's pixels, which follow the pointer, at every release.
class PasteCanvasTool final : public CanvasTool
{
public:
    using CanvasTool::CanvasTool;

    void activate() override;
    void mouseReleased(QMouseEvent *event) override;
    void paint(QPainter &painter) const override;
};
