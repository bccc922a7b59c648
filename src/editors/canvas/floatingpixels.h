#pragma once

#include <QImage>
#include <QRect>

class Layer2Image;

/// Pixels that were taken up from an image and are moved over it.
///
/// What lies under them comes out again when they move on, as long as nothing else is done to the image in between.
class FloatingPixels
{
public:
    /// Takes up the pixels of an area; ground takes their place, or a copy stays when it is negative.
    void takeUp(const QImage &image, const QRect &area, int ground);
    /// Whether an image, and what is selected on it, are as the last move left them.
    [[nodiscard]] bool areOn(const QImage &image, const QRect &selection) const;
    /// Sets the pixels down elsewhere on the image that they were taken from; at least one of them stays inside.
    void moveTo(Layer2Image &layer, QPoint corner);

    /// The pixels that they cover, which may reach over the image's edges.
    [[nodiscard]] QRect area() const { return {m_corner, m_pixels.size()}; }

private:
    QImage m_pixels;
    QImage m_ground; ///< the whole image without them
    QImage m_left; ///< the whole image with them
    QPoint m_corner;
};

/// How pixels that float are dragged, and what was there before.
struct SelectionGrab
{
    QPoint hold; ///< where they are held, as seen from their corner
    FloatingPixels floating;
    QRect selection;
};
