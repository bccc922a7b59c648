#include "store/pngmember.h"

#include "store/deflate.h"

#include <QBuffer>
#include <QImageReader>

namespace {

constexpr int ColourTableSize = 256;

/// The resolution that is stored, in dots per metre (96 dots per inch). A fixed one, because the
/// default follows the screen, and content that has not changed is to give the same bytes on every screen.
constexpr int DotsPerMetre = 3780;

/// Whether a PNG of so many bytes can hold that many pixels: no pixel takes less than a bit.
bool canHold(qint64 bytes, QSize pixels)
{
    return pixels.isValid() && qint64(pixels.width()) * pixels.height() / 8 <= bytes * MaxDeflateRatio;
}

} // namespace

QByteArray PngMember::encode(const QImage &image)
{
    QImage stored = image;
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

QImage PngMember::decode(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    return canHold(bytes.size(), reader.size()) ? reader.read() : QImage();
}
