#pragma once

#include "editors/canvas/canvastool.h"

#include <QRect>
#include <QString>

class PixelPen;

/// Draws a shape from the press to the release; a shape only says what it draws.
class ShapeCanvasTool : public CanvasTool
{
public:
    using CanvasTool::CanvasTool;

    void activate() override;
    void mouseReleased(QMouseEvent *event) override;
    void drawPreview(Layer2Image &layer) const override;
    bool hasPreview() const override;

protected:
    /// Draws the shape of the current drag, for the preview and for the edit alike.
    virtual void draw(PixelPen &pen) const = 0;
    /// Where a drag ends that is to give a regular shape: by itself, one as high as wide.
    virtual QPoint guided(QPoint start, QPoint end) const;
    /// The text of the undo step.
    virtual QString text() const = 0;

    QPoint pressed() const;
    QPoint current() const;
    /// The rectangle that the drag spans, both corners included.
    QRect dragRect() const;
};
