#include "store/pngmember.h"

#include "model/pngreader.h"

#include <QBuffer>

#include <algorithm>

namespace {

constexpr int ColourTableSize = 256;

/// The resolution that is stored, in dots per metre (96 dots per inch). A fixed one, because the
/// default follows the screen, and content that has not changed is to give the same bytes on every screen.
constexpr int DotsPerMetre = 3780;

} // namespace

bool PngMember::canHold(const QImage &image)
{
    return !image.isNull() && std::max(image.width(), image.height()) <= PngReader::MaxSide;
}

QByteArray PngMember::encode(const QImage &image)
{
    if (!canHold(image))
        return {};
    // the pixels without what else may hang on a picture from outside: texts, profiles
    QImage stored(image.constBits(), image.width(), image.height(), image.bytesPerLine(), image.format());
    stored.setColorTable(image.colorTable());
    stored.setDotsPerMeterX(DotsPerMetre);
    stored.setDotsPerMeterY(DotsPerMetre);
    if (stored.format() == QImage::Format_Indexed8) {
        for (int entry = stored.colorCount(); entry < ColourTableSize; ++entry)
            stored.setColor(entry, qRgb(0, 0, 0));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::WriteOnly) && stored.save(&buffer, "png") ? bytes : QByteArray();
}
