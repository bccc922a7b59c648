#pragma once

#include "model/snapgrid.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QPointer>

class Palette;

/// An ordinary picture on its way to indexed pixels: its colours are snapped to the grid of 17 steps
/// a component on which Next colours are chosen, and listed.
///
/// Tile sets, sprite banks and the image slicer import through it: remap() for pixels of an existing
/// palette, toIndexed() for pixels of the picture's own colour list, withIndices() for any others.
class NxImage : public QObject
{
    Q_OBJECT

public:
    /// The largest picture that is taken, 256 MiB of pixels; larger ones count as unreadable, however
    /// small their file is.
    static constexpr qint64 MaxPixels = 8192 * 8192;
    /// The alpha from which on a pixel is not clear.
    static constexpr int LeastAlpha = 128;

    explicit NxImage(QObject *parent = nullptr);
    explicit NxImage(const QImage &image, QObject *parent = nullptr);

    /// Whether a picture of this size is within MaxPixels.
    [[nodiscard]] static bool accepts(const QSize &size);

    /// Takes a picture of any format; its alpha is dropped. A picture beyond MaxPixels becomes an empty
    /// one. Always true.
    bool setImage(QImage image);
    /// The same with transparency: pixels that are less than half opaque are clear. They bring no colour, and are 0
    /// in image(), which has an alpha channel then.
    void setTranslucent(QImage image);
    /// Reads a file as PictureFile does; false, and an empty picture, when it is unreadable.
    [[nodiscard]] bool load(const QString &fileName);

    /// The snapped picture, in the 32-bit RGB format. It is made on demand of a picture of indices, which is held as it
    /// came.
    [[nodiscard]] QImage image() const;
    [[nodiscard]] QSize size() const { return m_pixels.size(); }
    /// The distinct colours in order of first appearance, row by row.
    [[nodiscard]] QList<QRgb> colours() const { return m_colours; }
    [[nodiscard]] bool hasClearPixels() const { return m_hasClearPixels; }

    /// The picture as 8-bit indices of a palette, every colour at its nearestIndex(); null without a palette.
    [[nodiscard]] QImage remap(const QPointer<Palette> &palette) const;
    /// The picture as 8-bit indices of its own colours, the colour table padded to 256 with transparent
    /// black. Colours beyond the 256th take the nearest of the first 256, the lowest index among equals.
    [[nodiscard]] QImage toIndexed() const;

    /// The picture as these 8-bit indices, one for each of colours(), and one for clear pixels.
    [[nodiscard]] QImage withIndices(const QList<int> &indices, int clear, const QList<QRgb> &colourTable) const;

    /// Any picture as 8-bit indices, null when there are none. An indexed one is taken as it is, and so are
    /// bits and greys, which PNG readers hand over where indices were stored without colours; all others are
    /// mapped onto the palette, or onto their own colours without one.
    [[nodiscard]] static QImage indexed(const QImage &picture, const QPointer<Palette> &palette);

private:
    void take(QImage image, QImage::Format format);
    [[nodiscard]] QRgb snapped(QRgb colour, SnapGrid::Table<bool> &seen);
    void snapIndices();
    void snapPixels();
    [[nodiscard]] QImage withIndices(const SnapGrid::Table<quint8> &indexOf, int clear,
                                     const QList<QRgb> &colourTable) const;

    QImage m_pixels; ///< snapped 32-bit colours, or 8-bit indices
    QList<QRgb> m_shownColours; ///< the snapped colours of the indices; empty for colours
    QImage::Format m_format = QImage::Format_RGB32; ///< of image()
    QList<QRgb> m_colours;
    bool m_hasClearPixels = false;
};
