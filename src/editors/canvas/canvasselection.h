#pragma once

#include "editors/canvas/canvasgeometry.h"

/// The rectangle selected on a canvas.
///
/// It is drawn from an anchor, which is a point of the widget, and kept in image pixels, on which it stays when the
/// image is scrolled or enlarged.
class CanvasSelection
{
public:
    static constexpr QPoint NoAnchor{-1, -1};

    /// Empty when nothing is selected, as after a press that has not been dragged yet.
    QRect pixels() const { return m_exists ? m_pixels : QRect(); }
    bool hasAnchor() const { return m_anchor != NoAnchor; }

    void setAnchor(QPoint point) { m_anchor = point; }
    void clearAnchor() { m_anchor = NoAnchor; }
    /// Selects the pixels of an image that lie between the anchor and a point of the widget, and returns the
    /// rectangle in the widget that shows it. Both points snap to the top-left corners of their pixels.
    QRect extendTo(QPoint point, const CanvasGeometry &geometry, const QRect &image);
    /// Selects pixels of an image; nothing when there are none.
    void select(const QRect &pixels)
    {
        m_pixels = pixels;
        m_exists = true;
    }
    /// Follows a change of the image's size.
    void clipTo(const QRect &image) { m_pixels &= image; }
    /// Selects nothing. A drag that is going on can select again.
    void hide() { m_exists = false; }

private:
    QRect m_pixels;
    QPoint m_anchor;
    bool m_exists = false;
};
