#pragma once

#include <QImage>
#include <QSize>

/// What differs between the Qt versions that this program builds with (6.4 to 6.11).
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

/// The size in device pixels that QIcon means when it asks an icon engine for a pixmap of this size at
/// this device pixel ratio; newer versions leave the multiplication to the engine.
inline QSize iconDeviceSize(const QSize &size, qreal devicePixelRatio)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    return size * devicePixelRatio;
#else
    Q_UNUSED(devicePixelRatio);
    return size;
#endif
}

} // namespace QtCompat
