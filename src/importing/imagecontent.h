#pragma once

#include "nextdata/content.h"
#include "nextdata/option.h"

#include <QImage>
#include <QStringList>

namespace Importing {

/// The option for the mode of an image: that of a size, or the smallest that holds a picture.
[[nodiscard]] NextData::Option modeOption();
[[nodiscard]] Quenmora::ImageMode imageMode(const QString &choice, QSize picture);

/// A picture of indices in the middle of an image of a mode, with an index around it. What does not fit is cut off, and
/// that is remarked.
[[nodiscard]] NextData::ImageContent imageOf(const QImage &picture, Quenmora::ImageMode mode, int around,
                                             QStringList &remarks);

} // namespace Importing
