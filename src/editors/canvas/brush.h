#pragma once

#include <QImage>
#include <QList>
#include <QPoint>

/// What a tool sets down at every pixel that it goes over: a square or a round of 1 to 16 pixels, or a picture.
class Brush
{
public:
    static constexpr int MaximumSize = 16;

    enum Shape { Square, Round, Picture };

    /// Pixels of a row, placed as seen from the pixel that the brush is at.
    struct Run
    {
        QPoint start;
        int width;
    };

    /// One pixel.
    Brush() = default;
    /// Anything but a picture; the size is brought into bounds.
    Brush(Shape shape, int size);
    /// The pixels of an indexed picture, without those of index hole. One pixel when none is left.
    [[nodiscard]] static Brush of(const QImage &picture, int hole);

    [[nodiscard]] Shape shape() const { return m_shape; }
    /// Side or diameter; of a picture, the longer side.
    [[nodiscard]] int size() const { return m_size; }
    [[nodiscard]] bool isPixel() const { return m_shape != Picture && m_size == 1; }
    [[nodiscard]] const QList<Run> &runs() const { return m_runs; }
    /// The index that a picture has there, as seen from the pixel that the brush is at.
    [[nodiscard]] int indexAt(QPoint offset) const
    {
        const QPoint at = offset + centre(m_picture.size());
        return m_picture.constScanLine(at.y())[at.x()];
    }

private:
    /// Where a picture of that size is held.
    static QPoint centre(QSize size) { return {size.width() / 2, size.height() / 2}; }

    Shape m_shape = Square;
    int m_size = 1;
    QList<Run> m_runs{{QPoint(), 1}};
    QImage m_picture;
};
