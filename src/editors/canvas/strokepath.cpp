#include "editors/canvas/strokepath.h"

#include "editors/canvas/paintoptions.h"
#include "editors/common/raster.h"

#include <algorithm>

void StrokePath::begin(QPoint pixel, bool joined)
{
    m_pixels.clear();
    m_painted = 0;
    if (joined && m_end)
        lineTo(pixel);
    else
        m_pixels.append(pixel);
    m_end = pixel;
}

bool StrokePath::goOn(QPoint pixel, const PaintOptions &options)
{
    m_painted = m_pixels.size();
    if (options.connect)
        lineTo(pixel);
    else
        m_pixels.append(pixel);
    m_end = pixel;
    if (options.pixelPerfect && options.brush.isPixel())
        return cutCorners();
    return true;
}

void StrokePath::lineTo(QPoint pixel)
{
    const qsizetype before = m_pixels.size();
    Raster::line(*m_end, pixel, [this](QPoint visited) { m_pixels.append(visited); });
    // lines come from left to right, strokes as they were drawn
    if (m_pixels.at(before) != *m_end)
        std::reverse(m_pixels.begin() + before, m_pixels.end());
    if (before > 0)
        m_pixels.remove(before); // the pixel that the stroke had reached
}

bool StrokePath::cutCorners()
{
    // A corner is a pixel beside two others that touch each other by a corner themselves.
    bool allStay = true;
    for (qsizetype at = std::max<qsizetype>(m_painted - 1, 1); at + 1 < m_pixels.size();) {
        const QPoint way = m_pixels.at(at + 1) - m_pixels.at(at - 1);
        const QPoint step = m_pixels.at(at) - m_pixels.at(at - 1);
        const bool corner = std::abs(way.x()) == 1 && std::abs(way.y()) == 1 && step.manhattanLength() == 1;
        if (corner) {
            m_pixels.remove(at);
            allStay = allStay && at >= m_painted;
        } else {
            ++at;
        }
    }
    return allStay;
}
