#pragma once

#include "editors/canvas/canvastool.h"

#include <QCoreApplication>

/// Floods the region under the pointer: with ink by the left button, with paper by the right one.
class FillCanvasTool final : public CanvasTool
{
    Q_DECLARE_TR_FUNCTIONS(FillCanvasTool)

public:
    using CanvasTool::CanvasTool;

    void activate() override;
    void mouseReleased(QMouseEvent *event) override;
};
