#include "pictures/reducedpixels.h"

#include "model/palette.h"
#include "pictures/machinecolours.h"

#include <algorithm>
#include <limits>

namespace {

constexpr QRgb Black = 0xff000000;
/// What artists are used to see where nothing will be drawn.
constexpr QRgb Magenta = 0xffff00ff;

/// The indices of a group of colours that are drawn.
QList<int> drawnIndices(int first, const ReducedPixels::Choices &choices)
{
    QList<int> drawn;
    for (int pixel = 0; pixel < choices.colourCount; ++pixel) {
        if (pixel != choices.clear)
            drawn.append(first + pixel);
    }
    return drawn;
}

ColourChoice::Colours coloursOf(const Palette &palette, const QList<int> &indices)
{
    ColourChoice::Colours colours;
    for (const int index : indices)
        colours.push_back(NineBitColour::numberOf(palette.rawColour(index)));
    return colours;
}

/// Where the group of colours begins in which the picture loses least.
int bestGroup(const QImage &picture, const ReducedPixels::Choices &choices)
{
    const int size = choices.colourCount;
    if (!choices.palette || !choices.anyGroup || size == Palette::Size)
        return 0;
    const ColourChoice::Counts counts = ColourReduction::countsOf(picture, choices.keepClearPixels);
    int best = 0;
    qint64 least = std::numeric_limits<qint64>::max();
    for (int first = 0; first < Palette::Size; first += size) {
        const qint64 error = ColourChoice::errorOf(counts, coloursOf(*choices.palette, drawnIndices(first, choices)));
        if (error < least) {
            least = error;
            best = first;
        }
    }
    return best;
}

} // namespace

ReducedPixels ReducedPixels::of(const QImage &picture, const Choices &choices)
{
    const int first = bestGroup(picture, choices);
    const QList<int> indices = drawnIndices(first, choices);
    ColourReduction::Choices reduction{.dithering = choices.dithering,
                                       .keepClearPixels = choices.keepClearPixels && choices.clear >= 0,
                                       .mostColours = int(indices.size())};
    if (choices.palette)
        reduction.given = coloursOf(*choices.palette, indices);

    ReducedPixels reduced{{}, ColourReduction::of(picture, reduction)};
    QList<QRgb> table = choices.palette ? choices.palette->colourTable() : QList<QRgb>(Palette::Size, Black);
    if (!choices.palette) {
        if (reduced.reduction.hasClearPixels)
            table[choices.clear] = Magenta;
        for (size_t i = 0; i < reduced.reduction.colours.size(); ++i)
            table[indices[qsizetype(i)]] = MachineColours::keptOf(reduced.reduction.colours[i]);
    }
    reduced.pixels = reduced.reduction.withIndices(indices, first + std::max(choices.clear, 0), table);
    return reduced;
}
