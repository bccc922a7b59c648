#pragma once

#include "model/snapgrid.h"

#include <QImage>
#include <QList>

#include <array>

/// The pixels of an ordinary picture as indices of its own snapped colours, read square by square.
///
/// They are what NxImage::toIndexed() gives for the whole picture, without its memory: a picture of indices or of
/// 32-bit colours is shared and read as it is, any other one is converted.
class PictureIndices
{
public:
    /// No pixels.
    PictureIndices() = default;
    explicit PictureIndices(const QImage &picture);
    /// A picture of 8-bit indices, which stay, with its own colour table.
    [[nodiscard]] static PictureIndices ofIndexed(const QImage &picture);

    [[nodiscard]] bool isNull() const { return m_picture.isNull(); }

    /// The snapped colours in order of first appearance, row by row, at most 256, padded to 256 with transparent black.
    [[nodiscard]] QList<QRgb> colourTable() const { return m_colourTable; }

    /// Copies the square at (x, y) of side × side pixels, row by row; what lies outside of the picture is 0. False when
    /// a pixel has none of the colours of the table, and so has the index of the nearest one.
    bool read(int x, int y, int side, uchar *indices) const;

private:
    QImage m_picture; ///< of 8-bit indices or of 32-bit colours
    QList<QRgb> m_colourTable;
    bool m_hasMoreColours = false; ///< than the table
    std::array<uchar, 256> m_indexOf{}; ///< for each index of the picture
    SnapGrid::Table<quint8> m_indexOfColour{}; ///< for colours of the picture
};
