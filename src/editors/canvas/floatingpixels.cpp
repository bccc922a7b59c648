#include "editors/canvas/floatingpixels.h"

#include "editors/canvas/layer2image.h"

#include <algorithm>

void FloatingPixels::takeUp(const QImage &image, const QRect &area, int ground)
{
    m_pixels = image.copy(area);
    m_corner = area.topLeft();
    m_left = image;
    Layer2Image rest(QSize(1, 1));
    rest.setImage(image);
    if (ground >= 0)
        rest.fillRectangle(area, ground);
    m_ground = rest.image();
}

bool FloatingPixels::areOn(const QImage &image, const QRect &selection) const
{
    return !m_pixels.isNull() && selection == (area() & image.rect()) && Layer2Image::haveSameIndices(m_left, image);
}

void FloatingPixels::moveTo(Layer2Image &layer, QPoint corner)
{
    const QRect image = layer.rect();
    m_corner = {std::clamp(corner.x(), 1 - m_pixels.width(), image.right()),
                std::clamp(corner.y(), 1 - m_pixels.height(), image.bottom())};
    layer.paste(m_ground, QPoint());
    layer.paste(m_pixels, m_corner);
    m_left = layer.image();
}
