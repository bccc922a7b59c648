#include "model/storedindices.h"

#include <numeric>
#include <utility>

namespace {

constexpr int MostColours = 256;

QList<QRgb> greyRamp()
{
    QList<QRgb> colours;
    for (int level = 0; level < MostColours; ++level)
        colours.append(qRgb(level, level, level));
    return colours;
}

} // namespace

bool StoredIndices::areIn(const QImage &picture)
{
    switch (picture.format()) {
    case QImage::Format_Indexed8:
    case QImage::Format_Grayscale8:
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
        return true;
    default:
        return false;
    }
}

QImage StoredIndices::of(QImage picture)
{
    switch (picture.format()) {
    case QImage::Format_Indexed8:
        return picture;
    case QImage::Format_Grayscale8:
        if (!picture.reinterpretAsFormat(QImage::Format_Indexed8))
            return {};
        picture.setColorTable(greyRamp());
        return picture;
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
        return std::move(picture).convertToFormat(QImage::Format_Indexed8);
    default:
        return {};
    }
}

QList<QRgb> StoredIndices::shownColours(const QImage &indexed, QImage::Format format)
{
    QImage ramp(MostColours, 1, QImage::Format_Indexed8);
    ramp.setColorTable(indexed.colorTable());
    std::iota(ramp.scanLine(0), ramp.scanLine(0) + MostColours, uchar(0));
    const QImage shown = ramp.convertToFormat(format, Qt::AvoidDither);
    const auto *colours = reinterpret_cast<const QRgb *>(shown.constScanLine(0));
    return {colours, colours + MostColours};
}
