#pragma once

class QPainter;
struct CanvasGeometry;

/// What a canvas draws over its image to show where the pixels are.
struct CanvasOverlay
{
    /// A checker board of see-through greys.
    bool checker = false;
    bool gridLines = false;

    void paint(QPainter &painter, const CanvasGeometry &geometry) const;
};
