#include "editors/canvas/brush.h"

#include "editors/common/raster.h"

#include <algorithm>

Brush::Brush(Shape shape, int size) : m_shape(shape), m_size(std::clamp(size, 1, MaximumSize)), m_runs()
{
    const QRect area(-centre({m_size, m_size}), QSize(m_size, m_size));
    if (shape == Round) {
        Raster::filledEllipse(area, [this](int y, int left, int right) {
            m_runs.append({QPoint(left, y), right - left + 1});
        });
        return;
    }
    for (int y = area.top(); y <= area.bottom(); ++y)
        m_runs.append({QPoint(area.left(), y), m_size});
}

Brush Brush::of(const QImage &picture, int hole)
{
    Brush brush;
    brush.m_runs.clear();
    const QPoint held = centre(picture.size());
    for (int y = 0; y < picture.height(); ++y) {
        const uchar *row = picture.constScanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            if (row[x] == hole)
                continue;
            const bool goesOn = x > 0 && row[x - 1] != hole;
            if (goesOn)
                ++brush.m_runs.last().width;
            else
                brush.m_runs.append({QPoint(x, y) - held, 1});
        }
    }
    if (brush.m_runs.isEmpty())
        return {};
    brush.m_shape = Picture;
    brush.m_size = std::max(picture.width(), picture.height());
    brush.m_picture = picture;
    return brush;
}
