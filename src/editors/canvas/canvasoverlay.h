#pragma once

class QPainter;
class QSize;
struct CanvasGeometry;
struct SymmetryAxes;

/// What a canvas draws over its image to show where the pixels are.
struct CanvasOverlay
{
    /// A checker board of see-through greys.
    bool checker = false;
    bool gridLines = false;

    void paint(QPainter &painter, const CanvasGeometry &geometry) const;
    /// Axes through the middle of an image.
    static void paintAxes(QPainter &painter, const CanvasGeometry &geometry, QSize image, const SymmetryAxes &axes);
};
