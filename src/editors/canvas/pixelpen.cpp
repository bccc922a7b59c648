#include "editors/canvas/pixelpen.h"

#include "editors/canvas/layer2image.h"
#include "editors/common/raster.h"

#include <numeric>

namespace {

constexpr int GroupSize = 16;

} // namespace

PixelPen::PixelPen(Layer2Image &layer, const PaintOptions &options, Colour colour, const QImage &before, bool inGroup)
    : m_layer(layer)
    , m_options(options)
    , m_index(colour == Ink ? layer.ink() : layer.paper())
    , m_before(before)
    , m_paintsPicture(options.brush.shape() == Brush::Picture && colour == Ink && !options.shade)
{
    if (options.shade)
        m_ramp = ramp(m_index, colour == Ink ? layer.paper() : layer.ink());
    if (inGroup)
        m_group = layer.ink() & ~(GroupSize - 1);
}

PixelPen::Ramp PixelPen::ramp(int towards, int from)
{
    Ramp steps;
    std::iota(steps.begin(), steps.end(), uchar(0));
    const int step = from < towards ? 1 : -1;
    for (int index = from; index != towards; index += step)
        steps[size_t(index)] = uchar(index + step);
    return steps;
}

void PixelPen::put(const QRect &area)
{
    if (!m_ramp) {
        m_layer.fillRectangle(area, m_index);
        return;
    }
    const QRect inside = area & m_layer.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        const uchar *before = m_before.constScanLine(y);
        for (int x = inside.left(); x <= inside.right(); ++x)
            m_layer.setPixel({x, y}, (*m_ramp)[before[x]]);
    }
}

void PixelPen::putPicture(const QRect &area, QPoint offset, bool mirrored)
{
    for (int i = 0; i < area.width(); ++i) {
        const int index = m_options.brush.indexAt(offset + QPoint(mirrored ? area.width() - 1 - i : i, 0));
        m_layer.setPixel(area.topLeft() + QPoint(i, 0), m_group < 0 ? index : m_group + index % GroupSize);
    }
}

void PixelPen::dab(QPoint pixel)
{
    for (const Brush::Run &run : m_options.brush.runs()) {
        const auto paint = [&](const QRect &area, bool mirrored, bool) {
            if (m_paintsPicture)
                putPicture(area, run.start, mirrored);
            else
                put(area);
        };
        m_options.symmetry.visit(QRect(pixel + run.start, QSize(run.width, 1)), m_layer.rect().size(), paint);
    }
}

void PixelPen::fill(const QRect &area)
{
    m_options.symmetry.visit(area, m_layer.rect().size(), [this](const QRect &image, bool, bool) { put(image); });
}

void PixelPen::flood(QPoint pixel)
{
    m_options.symmetry.visit(QRect(pixel, QSize(1, 1)), m_layer.rect().size(),
                             [this](const QRect &image, bool, bool) { m_layer.floodFill(image.topLeft(), m_index); });
}

void PixelPen::line(QPoint from, QPoint to)
{
    Raster::line(from, to, [this](QPoint pixel) { dab(pixel); });
}

void PixelPen::rectangle(const QRect &rect)
{
    Raster::rectangle(rect, [this](QPoint pixel) { dab(pixel); });
}

void PixelPen::ellipse(const QRect &rect)
{
    Raster::ellipse(rect, [this](QPoint pixel) { dab(pixel); });
}

void PixelPen::filledEllipse(const QRect &rect)
{
    Raster::filledEllipse(rect, [this](int y, int left, int right) { fill({left, y, right - left + 1, 1}); });
}
