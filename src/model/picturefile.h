#pragma once

#include <QImage>
#include <QString>

class QIODevice;
class QMimeData;

/// An ordinary picture from outside: the one place where such pictures are decoded.
///
/// The formats are those that the file dialogs name (PNG, BMP, GIF, JPEG, PBM, PGM, PPM, XBM and XPM), told by the
/// content whatever the name says. None of them can refer to another file, and no decoder of another format, whose
/// pictures could, ever sees the data. The size in a picture's head is looked at before memory is taken for it.
struct PictureFile
{
    /// The largest side of a picture, 256 MiB of pixels for a square one.
    static constexpr int MaxSide = 8192;

    QImage image; ///< null when there is none
    QString refusal; ///< a sentence that says why there is none, if more is known than that it is no picture

    /// What people are told when there is none: that the file could not be read and, in a second line, why.
    [[nodiscard]] QString failure() const;

    /// The pixels that a file holds, as its head says; 0 where there is none.
    [[nodiscard]] static qint64 pixelCount(const QString &fileName);
    /// Reads a regular file; a pipe or a device is refused without being opened.
    [[nodiscard]] static PictureFile read(const QString &fileName);
    [[nodiscard]] static PictureFile read(QIODevice &device);
    /// The picture on a clipboard or in a drag: the encoded form that another program offers, or the picture itself
    /// where it was given as one.
    [[nodiscard]] static QImage of(const QMimeData *mimeData);
};
