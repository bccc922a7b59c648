#pragma once

#include <QImage>

/// What differs in pictures between the Qt versions that this program builds with (6.4 to 6.11).
namespace QtCompat {

/// The image mirrored left to right (horizontal) and/or flipped top to bottom (vertical).
inline QImage flipped(const QImage &image, bool horizontal, bool vertical)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
    Qt::Orientations orientations;
    orientations.setFlag(Qt::Horizontal, horizontal);
    orientations.setFlag(Qt::Vertical, vertical);
    return orientations ? image.flipped(orientations) : image;
#else
    return image.mirrored(horizontal, vertical);
#endif
}

} // namespace QtCompat
