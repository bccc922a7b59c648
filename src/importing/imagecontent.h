#pragma once

#include "importing/importchoices.h"
#include "nextdata/content.h"
#include "nextdata/option.h"

#include <QImage>
#include <QStringList>

class Project;

namespace Importing {

/// The option for the mode of an image: that of a size, or the smallest that holds a picture.
[[nodiscard]] NextData::Option modeOption();
[[nodiscard]] Quenmora::ImageMode imageMode(const QString &choice, QSize picture);
/// That of the image into which a picture goes, or else the chosen one.
[[nodiscard]] Quenmora::ImageMode imageMode(const Project &project, const ImportChoices &choices,
                                            const NextData::OptionValues &options, QSize picture);

/// A picture of indices in the middle of an image of a mode, with an index around it. What does not fit is cut off, and
/// that is remarked.
[[nodiscard]] NextData::ImageContent imageOf(const QImage &picture, Quenmora::ImageMode mode, int around,
                                             QStringList &remarks);

} // namespace Importing
