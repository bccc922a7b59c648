#include "pictures/dithering.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <optional>

namespace {

using Colours = std::vector<quint16>;

/// A colour in 1/16 of a level, and what is wrong with one.
struct Fine
{
    int red = 0;
    int green = 0;
    int blue = 0;

    Fine operator+(const Fine &other) const { return {red + other.red, green + other.green, blue + other.blue}; }
    Fine operator-(const Fine &other) const { return {red - other.red, green - other.green, blue - other.blue}; }
    [[nodiscard]] Fine times(int numerator, int denominator) const
    {
        return {red * numerator / denominator, green * numerator / denominator, blue * numerator / denominator};
    }
    [[nodiscard]] int square() const { return red * red + green * green + blue * blue; }
};

constexpr int Part = 16;

/// The colour of a pixel. One that is shown just as it is on the machine is that: no rounding is put right elsewhere.
Fine fineOf(QRgb colour)
{
    const auto part = [](int component) {
        constexpr int Near = 2;
        const int level = NineBitColour::levelOf(component);
        const int away = component - NextColour::componentOf(level);
        return away >= -Near - 1 && away <= Near ? level * Part : (component * 7 * Part + 127) / 255;
    };
    return {part(qRed(colour)), part(qGreen(colour)), part(qBlue(colour))};
}

Fine fineOf(quint16 number)
{
    return {NineBitColour::red(number) * Part, NineBitColour::green(number) * Part, NineBitColour::blue(number) * Part};
}

uchar nearest(const Colours &colours, const Fine &wanted)
{
    size_t found = 0;
    int least = std::numeric_limits<int>::max();
    for (size_t i = 0; i < colours.size(); ++i) {
        const int distance = (fineOf(colours[i]) - wanted).square();
        if (distance < least) {
            least = distance;
            found = i;
        }
    }
    return uchar(found);
}

/// Finds the nearest of many colours, which are too many to look at all of them for every pixel: for each of the
/// machine's colours it knows which can be the nearest of anything that lies around it.
class NearestOfMany
{
public:
    explicit NearestOfMany(const Colours &colours) : m_colours(colours)
    {
        for (int cell = 0; cell < NineBitColour::Count; ++cell) {
            int reach = std::numeric_limits<int>::max(); // how far the nearest is at most, from anywhere in the cell
            for (const quint16 colour : colours)
                reach = std::min(reach, distance(colour, cell, &Range::most));
            for (size_t i = 0; i < colours.size(); ++i) {
                if (distance(colours[i], cell, &Range::least) <= reach)
                    m_near[size_t(cell)].push_back(uchar(i));
            }
        }
    }

    [[nodiscard]] uchar of(const Fine &wanted) const
    {
        for (const int part : {wanted.red, wanted.green, wanted.blue}) {
            if (part < -Beyond || part > 7 * Part + Beyond)
                return nearest(m_colours, wanted);
        }
        const auto level = [](int part) { return std::clamp((part + Part / 2) / Part, 0, 7); };
        uchar found = 0;
        int least = std::numeric_limits<int>::max();
        for (const uchar i :
             m_near[size_t(NineBitColour::compose(level(wanted.red), level(wanted.green), level(wanted.blue)))]) {
            const int distance = (fineOf(m_colours[i]) - wanted).square();
            if (distance < least) {
                least = distance;
                found = i;
            }
        }
        return found;
    }

private:
    /// How far what is wrong with pixels may take a wanted colour outside of all that there are.
    static constexpr int Beyond = 3 * Part;

    /// The parts that round to a level; all that lies outside goes with the first and the last.
    struct Range
    {
        explicit Range(int level)
            : first(level == 0 ? -Beyond : level * Part - Part / 2)
            , last(level == 7 ? 7 * Part + Beyond : level * Part + Part / 2)
        { }
        [[nodiscard]] int least(int part) const { return std::max({first - part, part - last, 0}); }
        [[nodiscard]] int most(int part) const { return std::max(std::abs(part - first), std::abs(part - last)); }

        int first;
        int last;
    };

    /// The squared distance of a colour to what is in a cell.
    static int distance(int colour, int cell, int (Range::*bound)(int) const)
    {
        const auto square = [bound](int colourLevel, int cellLevel) {
            const int part = (Range(cellLevel).*bound)(colourLevel * Part);
            return part * part;
        };
        return square(NineBitColour::red(colour), NineBitColour::red(cell))
            + square(NineBitColour::green(colour), NineBitColour::green(cell))
            + square(NineBitColour::blue(colour), NineBitColour::blue(cell));
    }

    const Colours &m_colours;
    std::array<std::vector<uchar>, NineBitColour::Count> m_near;
};

/// The nearest of the colours that a pixel may take, however many they are.
class Nearest
{
public:
    uchar operator()(const Colours &colours, const Fine &wanted)
    {
        constexpr size_t Few = 16;
        if (colours.size() <= Few)
            return nearest(colours, wanted);
        if (m_of != &colours) {
            m_of = &colours;
            m_many.emplace(colours);
        }
        return m_many->of(wanted);
    }

private:
    const Colours *m_of = nullptr;
    std::optional<NearestOfMany> m_many;
};

/// Thresholds 0–63, each as far as possible from those near it.
constexpr auto Bayer = [] {
    std::array<std::array<int, 8>, 8> thresholds{};
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            int value = 0;
            for (int bit = 0; bit < 3; ++bit) {
                const int across = x >> bit & 1;
                const int down = y >> bit & 1;
                value |= ((across ^ down) << 1 | down) << (2 * (2 - bit));
            }
            thresholds[size_t(y)][size_t(x)] = value;
        }
    }
    return thresholds;
}();

constexpr size_t MixSize = 16;
using Mix = std::array<uchar, MixSize>;

/// The mix of colours that looks most like the wanted one, dark to light.
Mix mixOf(Nearest &search, const Colours &colours, const Fine &wanted)
{
    Mix mix{};
    Fine error;
    for (uchar &part : mix) {
        // three quarters of the error: all of it mixes in colours that are seen as dots
        part = search(colours, wanted + error.times(3, 4));
        error = error + wanted - fineOf(colours[part]);
    }
    const auto luminance = [&colours](uchar index) {
        const int number = colours[index];
        return 3 * NineBitColour::red(number) + 6 * NineBitColour::green(number) + NineBitColour::blue(number);
    };
    std::sort(mix.begin(), mix.end(),
              [&](uchar a, uchar b) { return std::pair(luminance(a), a) < std::pair(luminance(b), b); });
    return mix;
}

/// Mixes colours for the pixels of an area. In one of many pixels, shades are told apart by eighths of a level, and
/// each is mixed once.
class Mixer
{
public:
    explicit Mixer(size_t pixels) : m_remembers(pixels > Many) { }

    /// The one of the mix that the threshold takes.
    [[nodiscard]] uchar operator()(const Colours &colours, const Fine &wanted, int threshold)
    {
        const size_t place = size_t(threshold) * MixSize / 64;
        return m_remembers ? remembered(colours, wanted)[place] : mixOf(m_search, colours, wanted)[place];
    }

private:
    static constexpr size_t Many = 4096;
    static constexpr int Shade = Part / 8;
    static constexpr int Shades = 7 * Part / Shade + 1;

    [[nodiscard]] const Mix &remembered(const Colours &colours, const Fine &wanted)
    {
        if (m_of != &colours) {
            m_of = &colours;
            m_mixes.clear();
            m_known.assign(size_t(Shades) * Shades * Shades, -1);
        }
        const Fine shade{wanted.red / Shade, wanted.green / Shade, wanted.blue / Shade};
        int &known = m_known[size_t((shade.red * Shades + shade.green) * Shades + shade.blue)];
        if (known < 0) {
            known = int(m_mixes.size());
            m_mixes.push_back(mixOf(m_search, colours, shade.times(Shade, 1)));
        }
        return m_mixes[size_t(known)];
    }

    bool m_remembers;
    Nearest m_search;
    const Colours *m_of = nullptr;
    std::vector<Mix> m_mixes;
    std::vector<int> m_known; ///< by shade, its mix, or -1
};

/// Floyd and Steinberg's weights, every second row from right to left. What is wrong is bounded, so that a colour far
/// from all that may be taken does not bleed over its whole surroundings.
std::vector<uchar> diffused(const std::vector<QRgb> &pixels, const QSize &size, const Dither::ColoursAt &coloursAt)
{
    constexpr int Most = 2 * Part;
    const int width = size.width();
    Nearest search;
    std::vector<uchar> result(pixels.size());
    std::vector<Fine> here(size_t(width) + 2);
    std::vector<Fine> below(size_t(width) + 2); // sixteenths, as are those here
    for (int y = 0; y < size.height(); ++y) {
        const int step = y % 2 == 0 ? 1 : -1;
        for (int i = 0, x = step > 0 ? 0 : width - 1; i < width; ++i, x += step) {
            const Colours *colours = coloursAt(x, y);
            if (!colours)
                continue;
            const size_t at = size_t(y) * size_t(width) + size_t(x);
            const size_t column = size_t(x) + 1;
            const Fine wanted = fineOf(pixels[at]) + here[column].times(1, 16);
            result[at] = search(*colours, wanted);
            Fine error = wanted - fineOf((*colours)[result[at]]);
            for (int *part : {&error.red, &error.green, &error.blue})
                *part = std::clamp(*part, -Most, Most);
            here[size_t(int(column) + step)] = here[size_t(int(column) + step)] + error.times(7, 1);
            below[size_t(int(column) - step)] = below[size_t(int(column) - step)] + error.times(3, 1);
            below[column] = below[column] + error.times(5, 1);
            below[size_t(int(column) + step)] = below[size_t(int(column) + step)] + error;
        }
        std::swap(here, below);
        std::fill(below.begin(), below.end(), Fine());
    }
    return result;
}

} // namespace

std::vector<uchar> Dither::apply(Dithering dithering, const std::vector<QRgb> &pixels, const QSize &size,
                                 const ColoursAt &coloursAt)
{
    if (dithering == Dithering::Diffusion)
        return diffused(pixels, size, coloursAt);
    Nearest search;
    Mixer mixer(pixels.size());
    std::vector<uchar> result(pixels.size());
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const size_t at = size_t(y) * size_t(size.width()) + size_t(x);
            const Colours *colours = coloursAt(x, y);
            if (!colours)
                continue;
            const Fine wanted = fineOf(pixels[at]);
            result[at] = dithering == Dithering::Ordered
                ? mixer(*colours, wanted, Bayer[size_t(y % 8)][size_t(x % 8)])
                : search(*colours, fineOf(quint16(NineBitColour::nearest(pixels[at]))));
        }
    }
    return result;
}

int Dither::patternColour(QRgb pixel, int x, int y)
{
    const Fine fine = fineOf(pixel);
    const int threshold = Bayer[size_t(y % 8)][size_t(x % 8)];
    const auto level = [threshold](int part) { return (part * 64 / Part + threshold) / 64; };
    return NineBitColour::compose(level(fine.red), level(fine.green), level(fine.blue));
}
