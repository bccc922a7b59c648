#pragma once

#include <QPoint>

class CanvasSurface;
class Layer2Image;
class QMouseEvent;
class QPainter;

/// What happens on a canvas between a mouse press and its release.
///
/// Tools are made once by their canvas, which outlives them, and keep no state of their own: the
/// drag's state lies in the canvas.
class CanvasTool
{
public:
    explicit CanvasTool(CanvasSurface *canvas) : m_canvas(canvas) { }
    virtual ~CanvasTool();

    /// Called when the tool becomes the current one.
    virtual void activate();
    virtual void mousePressed(QMouseEvent *event);
    /// Called when the pointer reaches another pixel; true when the canvas must repaint.
    virtual bool mouseMoved(QMouseEvent *event);
    virtual void mouseReleased(QMouseEvent *event);
    /// Draws the shape being dragged into a copy of the image.
    virtual void drawPreview(Layer2Image &layer) const;
    /// Draws an overlay over the image.
    virtual void paint(QPainter &painter) const;
    /// True when drawPreview() draws, so that painting makes no copy for the other tools.
    virtual bool hasPreview() const;

protected:
    CanvasSurface *canvas() const { return m_canvas; }

private:
    Q_DISABLE_COPY_MOVE(CanvasTool)

    CanvasSurface *const m_canvas;
};
