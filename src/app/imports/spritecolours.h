#pragma once

#include "model/spritetransparency.h"

#include <QImage>
#include <QList>
#include <QRgb>

class NxImage;
class Palette;

/// Where the colours of a picture go in a bank of sprites: each to an index that is drawn, so that nothing opaque
/// becomes a hole, while clear pixels take the index that is not drawn.
class SpriteColours
{
public:
    // Of the colours of a picture, as NxImage lists them.

    /// Every colour at the nearest entry of a palette that is drawn, the lowest among equals.
    [[nodiscard]] static SpriteColours nearest(const QList<QRgb> &colours, const Palette &palette,
                                               const SpriteTransparency &transparency);
    /// A palette of the picture's own colours: in order of appearance, each at the next index that is drawn. Colours
    /// beyond these indices take the nearest of those that found room.
    [[nodiscard]] static SpriteColours own(const QList<QRgb> &colours, const SpriteTransparency &transparency);

    /// The index of each of the picture's colours.
    [[nodiscard]] const QList<int> &indices() const { return m_indices; }
    /// The palette's 256 colours.
    [[nodiscard]] const QList<QRgb> &table() const { return m_table; }

    /// The picture that has these colours as 8-bit indices.
    [[nodiscard]] QImage pixels(const NxImage &picture) const;

private:
    QList<int> m_indices;
    QList<QRgb> m_table;
    int m_clear = 0;
};
