#include "importing/sharedcolours.h"

#include "importing/texts.h"
#include "model/palette.h"
#include "model/spritetransparency.h"
#include "pictures/colourreduction.h"
#include "pictures/machinecolours.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <bitset>
#include <cmath>

namespace Importing {
namespace {

using ColourChoice::Colours;
using Used = std::bitset<256>;

int numberOf(quint16 word)
{
    return NineBitColour::compose(NextColour::red(word), NextColour::green(word), NextColour::blue(word));
}

quint16 wordOf(QRgb colour)
{
    return NineBitColour::wordOf(NineBitColour::nearest(colour));
}

/// An index for clear pixels among so many that no colour needs: the one that is usual if that is free. -1 for none.
int freeIndex(const Used &used, int count)
{
    const int usual = SpriteTransparency::DefaultIndex % count;
    if (!used.test(size_t(usual)))
        return usual;
    for (int index = count - 1; index >= 0; --index) {
        if (!used.test(size_t(index)))
            return index;
    }
    return -1;
}

/// Where each of the machine's colours is in a palette: the first of so many entries that has it and is drawn, or -1.
std::array<int, NineBitColour::Count> placesIn(const QList<quint16> &words, qsizetype count, int clear)
{
    std::array<int, NineBitColour::Count> places{};
    places.fill(-1);
    for (qsizetype i = std::min(count, words.size()) - 1; i >= 0; --i) {
        if (i != clear)
            places[size_t(numberOf(words[i]))] = int(i);
    }
    return places;
}

/// All colours of the pictures, and what there is to say of them.
struct Census
{
    ColourChoice::Counts counts{};
    bool hasOthers = false; ///< than the machine's

    explicit Census(const SharedColours::Source &source)
    {
        for (int i = 0; i < source.count; ++i) {
            const QImage picture = source.picture(i);
            const ColourChoice::Counts more = ColourReduction::countsOf(picture, true);
            std::transform(counts.cbegin(), counts.cend(), more.cbegin(), counts.begin(), std::plus<>());
            hasOthers = hasOthers || !MachineColours::areIn(picture);
        }
    }

    [[nodiscard]] int colourCount() const
    {
        return int(std::count_if(counts.cbegin(), counts.cend(), [](qint64 count) { return count > 0; }));
    }
};

/// The indices that colours get.
struct Places
{
    Colours colours{};
    QList<int> indices{}; ///< of these colours
    int clear = -1;
    std::optional<NextData::PaletteContent> palette{};
};

/// The entries of a palette that is there.
Places givenPlaces(const SharedColours::Choices &choices)
{
    Places places{.clear = choices.clear};
    const auto placeOf = placesIn(choices.words, choices.colourCount, choices.clear);
    for (int colour = 0; colour < NineBitColour::Count; ++colour) {
        if (placeOf[size_t(colour)] >= 0) {
            places.colours.push_back(quint16(colour));
            places.indices.append(placeOf[size_t(colour)]);
        }
    }
    return places;
}

/// The order of the palette that comes with the pictures, if it has all their colours and room for clear pixels.
std::optional<Places> orderedPlaces(const QList<QRgb> &palette, const Colours &colours, int count)
{
    if (palette.isEmpty() || palette.size() > count)
        return {};
    QList<quint16> words;
    std::transform(palette.cbegin(), palette.cend(), std::back_inserter(words), wordOf);
    const auto clearEntry =
        std::find_if(palette.cbegin(), palette.cend(), [](QRgb colour) { return qAlpha(colour) == 0; });
    const int clear = clearEntry != palette.cend() ? int(clearEntry - palette.cbegin()) : -1;
    const auto placeOf = placesIn(words, count, clear);
    Places places{.colours = colours, .clear = clear};
    Used used;
    for (const quint16 colour : colours) {
        const int index = placeOf[colour];
        if (index < 0)
            return {};
        places.indices.append(index);
        used.set(size_t(index));
    }
    if (clear < 0)
        places.clear = freeIndex(used, count);
    if (places.clear < 0)
        return {};
    places.palette = NextData::PaletteContent{0, words};
    return places;
}

Places ownPlaces(const Colours &colours, int count)
{
    Places places{.colours = colours, .clear = SpriteTransparency::DefaultIndex % count};
    NextData::PaletteContent palette;
    for (const quint16 colour : colours) {
        if (palette.words.size() == places.clear)
            palette.words.append(0);
        places.indices.append(int(palette.words.size()));
        palette.words.append(NineBitColour::wordOf(colour));
    }
    places.palette = palette;
    return places;
}

Places bestPlaces(const SharedColours::Source &source, const Census &census, int count)
{
    const Colours colours = ColourChoice::choose(census.counts, count - 1); // one is clear
    const auto ordered = orderedPlaces(source.palette, colours, count);
    return ordered ? *ordered : ownPlaces(colours, count);
}

} // namespace

SharedColours SharedColours::of(const Source &source, const Choices &choices)
{
    const Census census(source);
    const Places places =
        choices.words.isEmpty() ? bestPlaces(source, census, choices.colourCount) : givenPlaces(choices);
    SharedColours shared{.palette = places.palette, .clear = places.clear};
    if (shared.palette)
        shared.palette->transparency = places.clear;
    bool isLossy = false;
    double squares = 0;
    for (int i = 0; i < source.count; ++i) {
        const ColourReduction reduction = ColourReduction::of(
            source.picture(i),
            {.dithering = choices.dithering, .keepClearPixels = places.clear >= 0, .given = places.colours});
        squares += reduction.error * reduction.error;
        isLossy = isLossy || reduction.error > 0;
        shared.pictures.append(reduction.withIndices(places.indices, std::max(places.clear, 0), {}));
    }
    const QLocale locale;
    if (isLossy) {
        shared.remarks.append(Texts::tr("Colours: %1, which %2 stand for; mean error: %3 levels")
                                  .arg(locale.toString(census.colourCount()), locale.toString(places.colours.size()),
                                       locale.toString(std::sqrt(squares / source.count), 'f', 2)));
    }
    if (census.hasOthers)
        shared.remarks.append(Texts::tr("Colours that the Next does not have become the nearest ones"));
    return shared;
}

std::optional<SharedColours> SharedColours::keptIndices(const Source &source, int clear, int colourCount)
{
    SharedColours shared{.clear = clear};
    Used used;
    for (int i = 0; i < source.count; ++i) {
        const QImage picture = source.picture(i);
        for (int y = 0; y < picture.height(); ++y) {
            const uchar *line = picture.constScanLine(y);
            for (int x = 0; x < picture.width(); ++x)
                used.set(line[x]);
        }
        shared.pictures.append(picture);
    }
    if (clear < 0)
        shared.clear = freeIndex(used, colourCount);
    used.set(size_t(std::max(shared.clear, 0)));
    const bool fits = (used >> size_t(colourCount)).none();
    if (shared.clear < 0 || !fits || source.palette.size() > Palette::Size)
        return {};
    NextData::PaletteContent palette;
    std::transform(source.palette.cbegin(), source.palette.cend(), std::back_inserter(palette.words), wordOf);
    palette.transparency = shared.clear;
    shared.palette = palette;
    bool areExact = true;
    for (qsizetype i = 0; i < source.palette.size(); ++i)
        areExact =
            areExact && (i == shared.clear || !used.test(size_t(i)) || MachineColours::wordOf(source.palette[i]));
    if (!areExact)
        shared.remarks.append(Texts::tr("Colours that the Next does not have become the nearest ones"));
    return shared;
}

} // namespace Importing
