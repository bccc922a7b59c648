#pragma once

#include "editors/canvas/paintoptions.h"

#include <QImage>

#include <array>
#include <optional>

class Layer2Image;

/// Puts a colour into a layer in the way that the options ask for: with a brush, mirrored, as a shade.
///
/// Tools say where, and the pen what becomes of the pixels there. What it makes of them depends on the picture before
/// the edit alone, so going twice over a pixel does no more than once.
class PixelPen
{
public:
    /// What a pen puts down.
    enum Colour { Ink, Paper };

    /// Keeps before, the picture before the edit, by sharing it. Brushes that are pictures take the group of 16
    /// colours of the ink when inGroup.
    PixelPen(Layer2Image &layer, const PaintOptions &options, Colour colour, const QImage &before, bool inGroup);

    /// Sets the brush down at a pixel.
    void dab(QPoint pixel);
    /// Fills an area, for which the brush does not matter.
    void fill(const QRect &area);
    /// Floods the region of equal pixels around a pixel.
    void flood(QPoint pixel);

    void line(QPoint from, QPoint to);
    void rectangle(const QRect &rect);
    void ellipse(const QRect &rect);
    void filledEllipse(const QRect &rect);

private:
    using Ramp = std::array<uchar, 256>;

    /// Every index one step nearer to an end of the run of entries between two; others stay.
    static Ramp ramp(int towards, int from);
    void put(const QRect &area);
    void putPicture(const QRect &area, QPoint offset, bool mirrored);

    Layer2Image &m_layer;
    const PaintOptions &m_options;
    const int m_index;
    const QImage m_before;
    std::optional<Ramp> m_ramp;
    const bool m_paintsPicture;
    int m_group = -1; ///< first of the 16 entries that a picture is painted in
};
