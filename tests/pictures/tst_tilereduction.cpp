#include "support/testmain.h"

#include "model/palette.h"
#include "pictures/colourgroups.h"
#include "pictures/reducedpixels.h"
#include "pictures/tilereduction.h"
#include "support/modeltools.h"

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
    const auto component = [](double value) { return int(std::clamp(value, 0.0, 255.0)); };
    const auto grain = [&random] { return double(random() % 33) - 16; };
    return pictureOf({side, side}, QImage::Format_RGB32, [&](int i) {
        const int x = i % side;
        const int y = i / side;
        const double u = double(x) / side;
        const double v = double(y) / side;
        switch (content) {
        case Content::Photo:
            if (v < 0.55 + 0.15 * std::sin(7 * u) + 0.05 * std::sin(31 * u))
                return qRgb(component(90 + 120 * v + grain()), component(150 + 60 * v + grain()),
                            component(230 - 90 * v + grain()));
            return qRgb(component(120 - 90 * v + 40 * std::sin(60 * u * v) + grain()),
                        component(160 - 100 * v + grain()), component(60 + 30 * std::sin(20 * v) + grain()));
        case Content::Noise:
            return qRgb(int(random() % 256), int(random() % 256), int(random() % 256));
        case Content::Gradient:
            return qRgb(component(255 * u), component(255 * v), component(255 * (1 - u)));
        case Content::Panels: // every tile has few colours, and all of them have many
            return NineBitColour::shown((x / 8 * 37 + y / 8 * 101 + int(random() % 5) * 3) % 512);
        case Content::Stripes: // fits: 16 times 16 colours
            return NineBitColour::shown((y / 8 % 16) * 16 + (x + y) % 16);
        }
        return QRgb();
    });
}

int squared(int a, int b)
{
    const auto level = [](int number, int shift) { return number >> shift & 7; };
    int sum = 0;
    for (const int shift : {0, 3, 6})
        sum += (level(a, shift) - level(b, shift)) * (level(a, shift) - level(b, shift));
    return sum;
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
    void groupsTakeTheBestColours()
    {
        // squared levels, the root of their mean
        for (const auto &[content, most] : {std::pair(Content::Photo, 0.2), // with groups as the tiles come 0.43
                                            {Content::Noise, 1.7}, // 12.12
                                            {Content::Gradient, 0.0},
                                            {Content::Panels, 0.75}, // 0.88
                                            {Content::Stripes, 0.0}}) {
            const QImage image = picture(content, 176); // 484 tiles
            const TileReduction reduction = TileReduction::of(image, {});
            QVERIFY2(reduction.error <= most, nameOf(content) + ' ' + QByteArray::number(reduction.error));
            QCOMPARE(reduction.mergedCells, 0);
            if (content == Content::Stripes) {
                QCOMPARE(reduction.lossyCells, 0);
                QCOMPARE(reduction.shown(), image.convertToFormat(QImage::Format_RGB32));
                QCOMPARE(reduction.colours, 256);
            }
        }
    }

    /// Squares of 8 × 8 pixels are as bright as they were, which without dithering they are not.
    void ditheringKeepsTheMeanColour()
    {
        for (const Dithering dithering : {Dithering::Ordered, Dithering::Diffusion}) {
            const QImage image = picture(Content::Gradient, 128);
            const auto squares = [](const QImage &of) {
                return of.convertToFormat(QImage::Format_RGB32).scaled(16, 16, {}, Qt::SmoothTransformation);
            };
            const QImage before = squares(image);
            const auto meanError = [&](Dithering by) {
                const QImage shown = squares(TileReduction::of(image, {by}).shown());
                double sum = 0;
                for (int i = 0; i < 256; ++i)
                    sum += std::abs(qRed(shown.pixel(i % 16, i / 16)) - qRed(before.pixel(i % 16, i / 16)));
                return sum / 256;
            };
            QVERIFY(meanError(dithering) < 0.6 * meanError(Dithering::None));
        }
    }

    void fitsWhateverComes_data()
    {
        addColumns<Content, Dithering, bool>("content", "dithering", "holes");
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
        // the most is the error without dithering; with the colours that come first it is told behind
        addColumns<Content, int, double>("content", "colours", "most");
        QTest::newRow("photograph, 16") << Content::Photo << 16 << 0.75; // 3.34
        QTest::newRow("photograph, 256") << Content::Photo << 256 << 0.01;
        QTest::newRow("noise, 16") << Content::Noise << 16 << 1.7; // 1.92
        QTest::newRow("noise, 256") << Content::Noise << 256 << 0.6; // 0.65
        QTest::newRow("stripes, 16") << Content::Stripes << 16 << 1.3; // 3.26
        QTest::newRow("stripes, 256") << Content::Stripes << 256 << 1e-9; // which stays exact, however it is dithered
    }

    void wholePicturesTakeFewColours()
    {
        QFETCH(Content, content);
        QFETCH(int, colours);
        QFETCH(double, most);
        constexpr int Side = 80;
        const QImage image = picture(content, Side);
        for (const Dithering dithering : {Dithering::None, Dithering::Ordered, Dithering::Diffusion}) {
            const ReducedPixels reduced =
                ReducedPixels::of(image, {.dithering = dithering, .colourCount = colours, .clear = 3});
            if (dithering == Dithering::None || (content == Content::Stripes && colours == 256))
                QVERIFY2(reduced.reduction.error <= most, qPrintable(QString::number(reduced.reduction.error)));
            Palette words; // as the importers make one
            std::map<int, int> taken; // the indices that are there, and their colours
            for (const char pixel : indices(reduced.pixels)) {
                const int index = uchar(pixel);
                QVERIFY(index < colours && index != 3);
                if (!taken.contains(index)) {
                    words.setColour(index, QColor::fromRgb(reduced.pixels.color(index)), false);
                    taken[index] = NineBitColour::numberOf(words.rawColour(index));
                }
            }
            QCOMPARE(reduced.reduction.coloursUsed, int(taken.size()));
            qint64 sum = 0;
            for (int i = 0; i < Side * Side; ++i) {
                const int wanted = NineBitColour::nearest(image.pixel(i % Side, i / Side));
                const int distance = squared(wanted, taken[reduced.pixels.pixelIndex(i % Side, i / Side)]);
                sum += distance;
                int nearest = distance;
                for (const auto &[index, colour] : taken)
                    nearest = std::min(nearest, squared(wanted, colour));
                if (dithering == Dithering::None)
                    QCOMPARE(distance, nearest);
            }
            QVERIFY(std::abs(reduced.reduction.error - std::sqrt(double(sum) / (Side * Side))) < 1e-9);
        }
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
        const QImage image = pictureOf({16, 1}, QImage::Format_ARGB32, [](int x) {
            return x < 8 ? NineBitColour::shown(x << 6) : qRgba(0, 0, 0, 100);
        });
        const ReducedPixels four = ReducedPixels::of(image, {.colourCount = 16, .clear = 6, .palette = &palette});
        for (int x = 0; x < 16; ++x)
            QCOMPARE(four.pixels.pixelIndex(x, 0), x == 6 ? 5 * 16 + 14 : x < 8 ? 5 * 16 + x : 5 * 16 + 6);
        const ReducedPixels first =
            ReducedPixels::of(image, {.colourCount = 16, .clear = 6, .palette = &palette, .anyGroup = false});
        QCOMPARE(std::pair(first.pixels.pixelIndex(7, 0), first.pixels.pixelIndex(8, 0)), std::pair(0, 6));
        const ReducedPixels opaque = ReducedPixels::of(image, {.palette = &palette, .keepClearPixels = false});
        QCOMPARE(opaque.pixels.pixelIndex(9, 0), 0);
        QVERIFY(ReducedPixels::of({}, {}).pixels.isNull());
    }

    void turnedTilesAreOne()
    {
        const QList red{QPoint(1, 0), QPoint(8 + 7, 1), QPoint(16 + 6, 0)}; // the same rotated, and mirrored
        QImage image = pictureOf({24, 8}, QImage::Format_RGB32,
                                 [&red](int i) { return qRgb(red.contains(QPoint(i % 24, i / 24)) ? 219 : 0, 0, 0); });
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
