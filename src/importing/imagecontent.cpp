#include "importing/imagecontent.h"

#include "importing/texts.h"
#include "model/image.h"
#include "model/project.h"

#include <algorithm>

namespace Importing {

using NextData::ImageContent;
using NextData::Option;

namespace {

struct Mode
{
    Quenmora::ImageMode mode;
    const char *id;
};
constexpr Mode Modes[] = {{Quenmora::LoRes_128x96, "lores"},
                          {Quenmora::Layer2_256x192, "layer2-256"},
                          {Quenmora::Layer2_320x256, "layer2-320"},
                          {Quenmora::Layer2_640x256, "layer2-640"}};

} // namespace

Option modeOption()
{
    QList<Option::Choice> choices{{QStringLiteral("fitting"), Texts::tr("The smallest that holds the picture")}};
    for (const Mode &mode : Modes) {
        const QSize size = Image::sizeOf(mode.mode);
        choices.append({QString::fromLatin1(mode.id), Texts::tr("%1 × %2").arg(size.width()).arg(size.height())});
    }
    return Option::choice(QStringLiteral("mode"), Texts::tr("Size"), Texts::tr("The mode of the image"), choices);
}

Quenmora::ImageMode imageMode(const QString &choice, QSize picture)
{
    for (const Mode &mode : Modes) {
        const QSize size = Image::sizeOf(mode.mode);
        const bool holds = picture.width() <= size.width() && picture.height() <= size.height();
        if (choice == QLatin1String(mode.id) || (choice == QStringLiteral("fitting") && holds))
            return mode.mode;
    }
    return Quenmora::Layer2_320x256; // the largest of 256 colours
}

Quenmora::ImageMode imageMode(const Project &project, const ImportChoices &choices,
                              const NextData::OptionValues &options, QSize picture)
{
    const auto image = project.image(choices.target);
    return image ? image->mode() : imageMode(options.text("mode"), picture);
}

ImageContent imageOf(const QImage &picture, Quenmora::ImageMode mode, int around, QStringList &remarks)
{
    const QSize size = Image::sizeOf(mode);
    ImageContent content{mode, QByteArray(qsizetype(size.width()) * size.height(), char(std::max(around, 0)))};
    const QPoint shift((size.width() - picture.width()) / 2, (size.height() - picture.height()) / 2);
    const QRect area = QRect(shift, picture.size()) & QRect({0, 0}, size);
    for (int y = area.top(); y <= area.bottom(); ++y)
        std::copy_n(picture.constScanLine(y - shift.y()) + area.left() - shift.x(), area.width(),
                    content.pixels.begin() + qsizetype(y) * size.width() + area.left());
    if (area.size() != picture.size()) {
        remarks.append(Texts::tr("The picture has %1 × %2 pixels, and what does not fit is cut off")
                           .arg(picture.width())
                           .arg(picture.height()));
    }
    return content;
}

} // namespace Importing
