#include "editors/canvas/canvastool.h"

CanvasTool::~CanvasTool() = default;

void CanvasTool::activate() { }

void CanvasTool::mousePressed(QMouseEvent *) { }

bool CanvasTool::mouseMoved(QMouseEvent *)
{
    return true;
}

void CanvasTool::mouseReleased(QMouseEvent *) { }

void CanvasTool::drawPreview(Layer2Image &) const { }

void CanvasTool::paint(QPainter &) const { }

bool CanvasTool::hasPreview() const
{
    return false;
}
