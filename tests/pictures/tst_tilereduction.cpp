#include "support/testmain.h"

#include "model/palette.h"
#include "pictures/colourgroups.h"
#include "pictures/reducedpixels.h"
#include "pictures/tilereduction.h"

#include <cmath>
#include <map>
#include <random>
#include <set>

namespace {

enum class Content { Photo, Noise, Gradient, Panels, Stripes };

/// A picture made of nothing but sums: a photograph has soft shapes, shades and grain.
QImage picture(Content content, int side)
{
    std::minstd_rand random;
    QImage image(side, side, QImage::Format_RGB32);
    const auto component = [](double value) { return int(std::clamp(value, 0.0, 255.0)); };
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double u = double(x) / side;
            const double v = double(y) / side;
            const auto grain = [&random] { return double(random() % 33) - 16; };
            QRgb colour = 0;
            switch (content) {
            case Content::Photo: {
                const double hill = 0.55 + 0.15 * std::sin(7 * u) + 0.05 * std::sin(31 * u);
                const double sun = std::exp(-40 * ((u - 0.7) * (u - 0.7) + (v - 0.25) * (v - 0.25)));
                colour = v < hill
                    ? qRgb(component(90 + 120 * v + 160 * sun + grain()), component(150 + 60 * v + 90 * sun + grain()),
                           component(230 - 90 * v + grain()))
                    : qRgb(component(120 - 90 * v + 40 * std::sin(60 * u * v) + grain()),
                           component(160 - 100 * v + 30 * std::sin(45 * u) + grain()),
                           component(60 + 30 * std::sin(20 * v) + grain()));
                break;
            }
            case Content::Noise:
                colour = qRgb(int(random() % 256), int(random() % 256), int(random() % 256));
                break;
            case Content::Gradient:
                colour = qRgb(component(255 * u), component(255 * v), component(255 * (1 - u)));
                break;
            case Content::Panels: // every tile has few colours, and all of them have many
                colour = NineBitColour::shown((x / 8 * 37 + y / 8 * 101 + int(random() % 5) * 3) % 512);
                break;
            case Content::Stripes: // fits: 16 times 16 colours
                colour = NineBitColour::shown((y / 8 % 16) * 16 + (x + y) % 16);
                break;
            }
            image.setPixel(x, y, colour);
        }
    }
    return image;
}

using Colours = std::vector<int>;

int squared(int a, int b)
{
    const auto level = [](int number, int shift) { return number >> shift & 7; };
    int sum = 0;
    for (const int shift : {0, 3, 6})
        sum += (level(a, shift) - level(b, shift)) * (level(a, shift) - level(b, shift));
    return sum;
}

/// What the tiles have wrong when each takes the first group with room for its colours, and else the nearest colours of
/// the best group: a mean of squared levels.
double firstComeError(const QImage &image)
{
    std::vector<std::map<int, int>> tiles;
    for (int y = 0; y + 8 <= image.height(); y += 8) {
        for (int x = 0; x + 8 <= image.width(); x += 8) {
            std::map<int, int> tile;
            for (int i = 0; i < 64; ++i) {
                const QRgb pixel = image.pixel(x + i % 8, y + i / 8);
                const auto level = [](int c) { return int(std::lround(c * 7 / 255.0)); };
                ++tile[level(qRed(pixel)) << 6 | level(qGreen(pixel)) << 3 | level(qBlue(pixel))];
            }
            tiles.push_back(tile);
        }
    }
    std::vector<std::set<int>> groups(16);
    for (const auto &tile : tiles) {
        for (std::set<int> &group : groups) {
            std::set<int> both = group;
            for (const auto &[colour, count] : tile)
                both.insert(colour);
            if (both.size() <= 16) {
                group = both;
                break;
            }
        }
    }
    double sum = 0;
    for (const auto &tile : tiles) {
        double best = 1e9;
        for (const std::set<int> &group : groups) {
            double error = 0;
            for (const auto &[colour, count] : tile) {
                int least = 147;
                for (const int other : group)
                    least = std::min(least, squared(colour, other));
                error += count * least;
            }
            best = std::min(best, error);
        }
        sum += best;
    }
    return sum / (64.0 * double(tiles.size()));
}

QByteArray nameOf(Content content)
{
    return std::array{"photograph", "noise", "gradient", "panels", "stripes"}[size_t(content)];
}

} // namespace

class TestTileReduction : public QObject
{
    Q_OBJECT

private slots:
    void isNeverWorseThanFirstComeFirstServed_data()
    {
        QTest::addColumn<Content>("content");
        for (const Content content :
             {Content::Photo, Content::Noise, Content::Gradient, Content::Panels, Content::Stripes})
            QTest::newRow(nameOf(content)) << content;
    }

    void isNeverWorseThanFirstComeFirstServed()
    {
        QFETCH(Content, content);
        const QImage image = picture(content, 176); // 484 tiles
        const TileReduction reduction = TileReduction::of(image, {});
        const double before = firstComeError(image);
        qInfo("error %.4f, first come first served %.4f", reduction.error, std::sqrt(before));
        QVERIFY(reduction.error <= std::sqrt(before) + 1e-9);
        QCOMPARE(reduction.mergedCells, 0);
        if (content == Content::Stripes) {
            QCOMPARE(reduction.error, 0.0);
            QCOMPARE(reduction.lossyCells, 0);
            QCOMPARE(reduction.shown(), image.convertToFormat(QImage::Format_RGB32));
            QCOMPARE(reduction.colours, 256);
        } else if (content == Content::Photo) {
            QVERIFY(reduction.error < 0.6 * std::sqrt(before));
        }
    }

    void ditheringKeepsTheMeanColour_data()
    {
        QTest::addColumn<Dithering>("dithering");
        QTest::newRow("ordered") << Dithering::Ordered;
        QTest::newRow("diffusion") << Dithering::Diffusion;
    }

    /// Squares of 8 × 8 pixels are as bright as they were, which without dithering they are not.
    void ditheringKeepsTheMeanColour()
    {
        QFETCH(Dithering, dithering);
        const QImage image = picture(Content::Gradient, 128);
        const auto meanError = [&image](Dithering by) {
            const QImage shown = TileReduction::of(image, {by}).shown();
            double sum = 0;
            for (int y = 0; y < 128; y += 8) {
                for (int x = 0; x < 128; x += 8) {
                    double red = 0;
                    for (int i = 0; i < 64; ++i)
                        red += qRed(image.pixel(x + i % 8, y + i / 8)) - qRed(shown.pixel(x + i % 8, y + i / 8));
                    sum += std::abs(red / 64);
                }
            }
            return sum / 256;
        };
        const double with = meanError(dithering);
        const double without = meanError(Dithering::None);
        qInfo("%.2f with, %.2f without", with, without);
        QVERIFY(with < 0.6 * without);
    }

    void fitsWhateverComes_data()
    {
        QTest::addColumn<Content>("content");
        QTest::addColumn<Dithering>("dithering");
        QTest::addColumn<bool>("holes");
        for (const Content content : {Content::Photo, Content::Panels}) {
            for (const Dithering dithering : {Dithering::None, Dithering::Ordered, Dithering::Diffusion}) {
                for (const bool holes : {false, true})
                    QTest::addRow("%s %d%s", nameOf(content).constData(), int(dithering), holes ? " with holes" : "")
                        << content << dithering << holes;
            }
        }
    }

    /// Few enough tiles, each in one group, no colour where nothing is drawn, and what is told is what is there.
    void fitsWhateverComes()
    {
        QFETCH(Content, content);
        QFETCH(Dithering, dithering);
        QFETCH(bool, holes);
        QImage image = picture(content, 131).convertToFormat(QImage::Format_ARGB32); // a part of a tile is left out
        for (int i = 0; holes && i < 131 * 60; ++i)
            image.setPixel(i % 131, i / 131, qRgba(255, 255, 255, i % 3 == 0 ? 127 : 255));
        const TileReduction reduction = TileReduction::of(image, {.dithering = dithering, .mostTiles = 100});
        QCOMPARE(reduction.size, QSize(16, 16));
        QVERIFY(reduction.tiles.size() <= 100 && reduction.mergedCells > 0);
        QCOMPARE(reduction.hasClearPixels, holes);
        std::set<quint16> words;
        std::set<int> groups;
        for (size_t i = 0; i < reduction.tiles.size(); ++i) {
            groups.insert(reduction.groups[i]);
            for (const uchar pixel : reduction.tiles[i]) {
                QCOMPARE(pixel / 16, reduction.groups[i]);
                if (!holes || pixel % 16 != 15)
                    words.insert(reduction.words[pixel]);
            }
        }
        QCOMPARE(reduction.colours, int(words.size()));
        QCOMPARE(reduction.groupCount, int(groups.size()));
        // with room for all tiles, holes are where they were, and nowhere else
        const QImage shown = TileReduction::of(image, {.dithering = dithering}).shown();
        for (int i = 0; i < 128 * 128; ++i) {
            const QPoint at(i % 128, i / 128);
            QCOMPARE(qAlpha(shown.pixel(at)), qAlpha(image.pixel(at)) < 128 ? 0 : 255);
        }
        const QImage opaque = TileReduction::of(image, {.dithering = dithering, .keepClearPixels = false}).shown();
        QVERIFY(!opaque.hasAlphaChannel());
    }

    void wholePicturesTakeFewColours_data()
    {
        QTest::addColumn<Content>("content");
        QTest::addColumn<int>("colours");
        QTest::addColumn<Dithering>("dithering");
        for (const Content content : {Content::Photo, Content::Noise, Content::Stripes}) {
            for (const int colours : {16, 256}) {
                for (const Dithering dithering : {Dithering::None, Dithering::Ordered, Dithering::Diffusion})
                    QTest::addRow("%s %d %d", nameOf(content).constData(), colours, int(dithering))
                        << content << colours << dithering;
            }
        }
    }

    void wholePicturesTakeFewColours()
    {
        QFETCH(Content, content);
        QFETCH(int, colours);
        QFETCH(Dithering, dithering);
        constexpr int Side = 80;
        const QImage image = picture(content, Side);
        const auto numberAt = [&image](int i) { return NineBitColour::nearest(image.pixel(i % Side, i / Side)); };
        const ReducedPixels reduced =
            ReducedPixels::of(image, {.dithering = dithering, .colourCount = colours, .clear = 3});
        Palette words; // as the importers make one
        for (int i = 0; i < 256; ++i)
            words.setColour(i, QColor::fromRgb(reduced.pixels.color(i)), false);
        std::set<int> used;
        std::map<int, int> firstCome; // colours that come first, and their indices
        std::vector<int> taken;
        qint64 sum = 0;
        qint64 firstComeSum = 0;
        for (int i = 0; i < Side * Side; ++i) {
            if (int(firstCome.size()) < colours - 1)
                firstCome.emplace(numberAt(i), 0);
            used.insert(reduced.pixels.pixelIndex(i % Side, i / Side));
        }
        for (const int index : used) {
            QVERIFY(index < colours && index != 3);
            taken.push_back(NineBitColour::numberOf(words.rawColour(index)));
        }
        QCOMPARE(reduced.reduction.coloursUsed, int(used.size()));
        for (int i = 0; i < Side * Side; ++i) {
            const int wanted = numberAt(i);
            const int index = reduced.pixels.pixelIndex(i % Side, i / Side);
            const int distance = squared(wanted, NineBitColour::numberOf(words.rawColour(index)));
            sum += distance;
            int nearest = 1000;
            for (const int colour : taken)
                nearest = std::min(nearest, squared(wanted, colour));
            if (dithering == Dithering::None)
                QCOMPARE(distance, nearest);
            nearest = 1000;
            for (const auto &[colour, unused] : firstCome)
                nearest = std::min(nearest, squared(wanted, colour));
            firstComeSum += nearest;
        }
        QVERIFY(std::abs(reduced.reduction.error - std::sqrt(double(sum) / (Side * Side))) < 1e-9);
        qInfo("error %.3f, first come first served %.3f", reduced.reduction.error,
              std::sqrt(double(firstComeSum) / (Side * Side)));
        if (dithering == Dithering::None)
            QVERIFY(sum <= firstComeSum);
        // what fits stays exact, however it is dithered
        const ReducedPixels exact = ReducedPixels::of(picture(Content::Stripes, 112), {.dithering = dithering});
        QCOMPARE(exact.reduction.error, 0.0);
    }

    /// Many colours are not looked at one by one, and yet the nearest are found: one more that is there already changes
    /// nothing.
    void manyColoursAreSearchedAsFewAre()
    {
        std::vector<quint16> few{0, 7, 56, 63, 448, 455, 504, 511}; // the corners, so that nothing lies outside
        std::minstd_rand random;
        while (few.size() < 16)
            few.push_back(quint16(random() % 512));
        std::vector<quint16> many = few;
        many.push_back(few.back());
        for (const Content content : {Content::Photo, Content::Noise, Content::Gradient}) {
            const QImage image = picture(content, 64);
            std::vector<QRgb> pixels;
            for (int i = 0; i < 64 * 64; ++i)
                pixels.push_back(image.pixel(i % 64, i / 64) | 0xff000000);
            for (const Dithering dithering : {Dithering::None, Dithering::Ordered, Dithering::Diffusion}) {
                const auto by = [&](const std::vector<quint16> &colours) {
                    return Dither::apply(dithering, pixels, {64, 64}, [&colours](int, int) { return &colours; });
                };
                QVERIFY(by(many) == by(few));
            }
        }
    }

    void aPaletteIsUsedAsItIs()
    {
        Palette palette;
        for (int i = 0; i < 256; ++i) // the red ones are those of group 5
            palette.storeRawColour(i, i / 16 == 5 ? NineBitColour::wordOf((i % 8) << 6) : 0);
        QImage image(16, 1, QImage::Format_ARGB32);
        for (int x = 0; x < 16; ++x)
            image.setPixel(x, 0, x < 8 ? NineBitColour::shown(x << 6) : qRgba(0, 0, 0, 100));
        const ReducedPixels four = ReducedPixels::of(image, {.colourCount = 16, .clear = 6, .palette = &palette});
        for (int x = 0; x < 16; ++x)
            QCOMPARE(four.pixels.pixelIndex(x, 0), x == 6 ? 5 * 16 + 14 : x < 8 ? 5 * 16 + x : 5 * 16 + 6);
        const ReducedPixels first =
            ReducedPixels::of(image, {.colourCount = 16, .clear = 6, .palette = &palette, .anyGroup = false});
        QCOMPARE(first.pixels.pixelIndex(7, 0), 0);
        QCOMPARE(first.pixels.pixelIndex(8, 0), 6);
        const ReducedPixels opaque = ReducedPixels::of(image, {.palette = &palette, .keepClearPixels = false});
        QCOMPARE(opaque.pixels.pixelIndex(9, 0), 0);
        QVERIFY(ReducedPixels::of({}, {}).pixels.isNull());
    }

    void turnedTilesAreOne()
    {
        QImage image(24, 8, QImage::Format_RGB32);
        image.fill(Qt::black);
        image.setPixel(1, 0, qRgb(219, 0, 0));
        image.setPixel(8 + 7, 1, qRgb(219, 0, 0)); // rotated
        image.setPixel(16 + 6, 0, qRgb(219, 0, 0)); // mirrored
        const TileReduction reduction = TileReduction::of(image, {});
        QCOMPARE(reduction.tiles.size(), size_t(1));
        QCOMPARE(reduction.shown(), image);
        QCOMPARE(reduction.words[1], 0xC000);
        QVERIFY(TileReduction::of(QImage(7, 8, QImage::Format_RGB32), {}).size.isEmpty());
        // a picture that is clear all over
        image = QImage(16, 8, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QCOMPARE(TileReduction::of(image, {.dithering = Dithering::Diffusion}).shown().pixel(3, 3), 0u);
    }
};

QUENMORA_TEST_MAIN(TestTileReduction)
#include "tst_tilereduction.moc"
