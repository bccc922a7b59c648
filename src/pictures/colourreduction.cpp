#include "pictures/colourreduction.h"

#include "model/nximage.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cmath>

namespace {

using ColourChoice::Colours;
using ColourChoice::Counts;

bool isClear(QRgb pixel)
{
    return qAlpha(pixel) == 0;
}

/// The pixels of a picture row by row; clear ones are 0, all others opaque.
std::vector<QRgb> pixelsOf(const QImage &picture, bool keepClearPixels)
{
    std::vector<QRgb> pixels;
    if (picture.isNull() || !NxImage::accepts(picture.size()))
        return pixels;
    const QImage colours =
        picture.convertToFormat(keepClearPixels ? QImage::Format_ARGB32 : QImage::Format_RGB32, Qt::AvoidDither);
    pixels.reserve(size_t(colours.width()) * size_t(colours.height()));
    for (int y = 0; y < colours.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(colours.constScanLine(y));
        std::transform(line, line + colours.width(), std::back_inserter(pixels), [keepClearPixels](QRgb pixel) {
            return keepClearPixels && qAlpha(pixel) < NxImage::LeastAlpha ? 0 : pixel | 0xff000000;
        });
    }
    return pixels;
}

Counts countsIn(const std::vector<QRgb> &pixels)
{
    Counts counts{};
    for (const QRgb pixel : pixels) {
        if (!isClear(pixel))
            ++counts[size_t(NineBitColour::nearest(pixel))];
    }
    return counts;
}

/// The colours that mix a picture in the pattern, which reach further than its own.
Counts patternCountsIn(const std::vector<QRgb> &pixels, int width)
{
    Counts counts{};
    for (size_t i = 0; i < pixels.size(); ++i) {
        if (!isClear(pixels[i]))
            ++counts[size_t(Dither::patternColour(pixels[i], int(i % size_t(width)), int(i / size_t(width))))];
    }
    return counts;
}

Colours firstColours(const std::vector<QRgb> &pixels, size_t most)
{
    std::bitset<NineBitColour::Count> known;
    Colours first;
    for (const QRgb pixel : pixels) {
        const auto number = quint16(NineBitColour::nearest(pixel));
        if (isClear(pixel) || known.test(number))
            continue;
        known.set(number);
        first.push_back(number);
        if (first.size() == most)
            break;
    }
    return first;
}

} // namespace

Counts ColourReduction::countsOf(const QImage &picture, bool keepClearPixels)
{
    return countsIn(pixelsOf(picture, keepClearPixels));
}

ColourReduction ColourReduction::of(const QImage &picture, const Choices &choices)
{
    ColourReduction reduction;
    const std::vector<QRgb> pixels = pixelsOf(picture, choices.keepClearPixels);
    if (pixels.empty())
        return reduction;
    const Counts counts = countsIn(pixels);
    reduction.coloursBefore =
        int(std::count_if(counts.cbegin(), counts.cend(), [](qint64 count) { return count > 0; }));
    reduction.hasClearPixels = std::any_of(pixels.cbegin(), pixels.cend(), isClear);

    const int room = choices.keepClearPixels ? std::min(choices.mostColours, ClearPosition) : choices.mostColours;
    reduction.colours = choices.given;
    if (reduction.colours.empty() && reduction.coloursBefore > 0) {
        // what comes first is where the search begins a second time, so the outcome is never worse
        reduction.colours = ColourChoice::choose(
            choices.dithering == Dithering::None ? counts : patternCountsIn(pixels, picture.width()), room,
            firstColours(pixels, size_t(room)));
    }
    const std::vector<uchar> positions =
        Dither::apply(choices.dithering, pixels, picture.size(), [&](int x, int y) -> const Colours * {
            return isClear(pixels[size_t(y) * size_t(picture.width()) + size_t(x)]) ? nullptr : &reduction.colours;
        });

    reduction.pixels = QImage(picture.size(), QImage::Format_Indexed8);
    std::bitset<256> used;
    qint64 sum = 0;
    qint64 opaque = 0;
    for (int y = 0; y < picture.height(); ++y) {
        uchar *line = reduction.pixels.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            const size_t at = size_t(y) * size_t(picture.width()) + size_t(x);
            line[x] = isClear(pixels[at]) ? ClearPosition : positions[at];
            if (isClear(pixels[at]))
                continue;
            used.set(line[x]);
            ++opaque;
            sum += NineBitColour::distance(NineBitColour::nearest(pixels[at]), reduction.colours[line[x]]);
        }
    }
    reduction.coloursUsed = int(used.count());
    reduction.error = opaque == 0 ? 0 : std::sqrt(double(sum) / double(opaque));
    return reduction;
}

QImage ColourReduction::withIndices(const QList<int> &indices, int clear, const QList<QRgb> &colourTable) const
{
    std::array<uchar, 256> indexOf{};
    std::copy_n(indices.cbegin(), std::min(indices.size(), qsizetype(colours.size())), indexOf.begin());
    if (hasClearPixels)
        indexOf[ClearPosition] = uchar(clear);
    QImage result = pixels;
    for (int y = 0; y < result.height(); ++y) {
        uchar *line = result.scanLine(y);
        std::transform(line, line + result.width(), line, [&indexOf](uchar position) { return indexOf[position]; });
    }
    if (!result.isNull())
        result.setColorTable(colourTable);
    return result;
}
