#include "editors/canvas/layer2image.h"

#include "support/testmain.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <cmath>

namespace {

constexpr QSize Area(40, 30);
constexpr quint32 Seed = 20261115;

using Pixels = QSet<std::pair<int, int>>;

/// The pixels of the area for which holds() is true.
template <typename Predicate>
Pixels pixelsWhere(Predicate holds)
{
    Pixels found;
    for (int y = 0; y < Area.height(); ++y) {
        for (int x = 0; x < Area.width(); ++x) {
            if (holds(QPoint(x, y)))
                found.insert({x, y});
        }
    }
    return found;
}

Pixels pixelsWith(const Layer2Image &layer, int index)
{
    return pixelsWhere([&](QPoint pixel) { return layer.rect().contains(pixel) && layer.pixelIndex(pixel) == index; });
}

/// The pixels of a line by the closed formula: step k along the longer side has moved across by the
/// distance to the ideal line rounded half down.
Pixels naiveLine(QPoint from, QPoint to)
{
    const bool steep = std::abs(to.y() - from.y()) > std::abs(to.x() - from.x());
    if (steep) {
        from = from.transposed();
        to = to.transposed();
    }
    if (from.x() > to.x())
        std::swap(from, to);
    const int dx = to.x() - from.x();
    const int dy = std::abs(to.y() - from.y());
    Pixels pixels;
    for (int k = 0; k <= dx; ++k) {
        const int across = dx == 0 ? 0 : std::max(0, int(std::ceil((2.0 * k * dy - dx) / (2.0 * dx))));
        const QPoint along(from.x() + k, from.y() + (from.y() < to.y() ? across : -across));
        const QPoint pixel = steep ? along.transposed() : along;
        if (QRect(QPoint(), Area).contains(pixel))
            pixels.insert({pixel.x(), pixel.y()});
    }
    return pixels;
}

QPoint randomPoint(QRandomGenerator &random)
{
    return {random.bounded(-15, Area.width() + 15), random.bounded(-15, Area.height() + 15)};
}

} // namespace

class TestLayer2Image : public QObject
{
    Q_OBJECT

private slots:
    void linesMatchTheFormula();
    void rectanglesAreClipped();
    void ellipsesMatchTheExamples();
    void ellipsesAreClosedSymmetricOutlines();
    void floodFillStaysInItsRegion();
    void takesOtherFormatsAsIndices();
};

void TestLayer2Image::linesMatchTheFormula()
{
    QCOMPARE(naiveLine({0, 0}, {5, 2}), (Pixels{{0, 0}, {1, 0}, {2, 1}, {3, 1}, {4, 2}, {5, 2}}));
    QRandomGenerator random(Seed);
    for (int i = 0; i < 2000; ++i) {
        const QPoint from = randomPoint(random);
        const QPoint to = i % 50 == 0 ? from : randomPoint(random);
        Layer2Image layer(Area);
        layer.drawLine(from, to);
        if (pixelsWith(layer, 1) != naiveLine(from, to))
            QFAIL(qPrintable(QDebug::toString(QLine(from, to))));
    }
}

void TestLayer2Image::rectanglesAreClipped()
{
    QRandomGenerator random(Seed);
    for (int i = 0; i < 500; ++i) {
        const QRect rect(randomPoint(random), QSize(random.bounded(1, 45), random.bounded(1, 35)));
        const QRect inner = rect.adjusted(1, 1, -1, -1);
        Layer2Image drawn(Area);
        drawn.drawRectangle(rect);
        QCOMPARE(pixelsWith(drawn, 1),
                 pixelsWhere([&](QPoint p) { return rect.contains(p) && !(inner.isValid() && inner.contains(p)); }));
        Layer2Image full(Area);
        full.fillRectangle(rect, 7);
        QCOMPARE(pixelsWith(full, 7), pixelsWhere([&](QPoint p) { return rect.contains(p); }));
    }
}

void TestLayer2Image::ellipsesMatchTheExamples()
{
    const std::pair<QRect, Pixels> examples[] = {
        {{3, 4, 1, 1}, {{3, 4}}},
        {{0, 0, 1, 3}, {{0, 0}, {0, 1}, {0, 2}}},
        {{0, 0, 5, 3}, {{2, 0}, {1, 0}, {3, 0}, {0, 1}, {4, 1}, {1, 2}, {2, 2}, {3, 2}}},
    };
    for (const auto &[rect, expected] : examples) {
        Layer2Image layer(Area);
        layer.drawEllipse(rect);
        QCOMPARE(pixelsWith(layer, 1), expected);
    }
}

void TestLayer2Image::ellipsesAreClosedSymmetricOutlines()
{
    QRandomGenerator random(Seed);
    for (int i = 0; i < 500; ++i) {
        const QRect rect(0, 0, random.bounded(3, Area.width()), random.bounded(3, Area.height()));
        Layer2Image layer(Area);
        layer.drawEllipse(rect);
        const Pixels pixels = pixelsWith(layer, 1);
        const double rx = (rect.width() - 1) / 2.0;
        const double ry = (rect.height() - 1) / 2.0;
        QSet<int> rows;
        for (const auto &[x, y] : pixels) {
            QVERIFY(pixels.contains({rect.right() - x, y}));
            QVERIFY(pixels.contains({x, rect.bottom() - y}));
            // Within a pixel of the ideal ellipse: one step inward lies inside it, one outward outside.
            const auto beyond = [rx, ry, dx = std::abs(x - rx), dy = std::abs(y - ry)](double step) {
                return std::hypot(std::max(0.0, dx + step) / rx, std::max(0.0, dy + step) / ry) - 1;
            };
            if (beyond(-1) > 0 || beyond(1) < 0)
                QFAIL(qPrintable(QDebug::toString(rect)));
            rows.insert(y);
        }
        QCOMPARE(rows.size(), rect.height());
    }
}

void TestLayer2Image::floodFillStaysInItsRegion()
{
    QRandomGenerator random(Seed);
    for (int i = 0; i < 50; ++i) {
        Layer2Image layer(Area);
        pixelsWhere([&](QPoint pixel) {
            layer.setPixel(pixel, random.bounded(5) < 3 ? 0 : 2);
            return false;
        });
        const QPoint start(random.bounded(Area.width()), random.bounded(Area.height()));

        // The region grown ring by ring until nothing is added.
        const Pixels equal = pixelsWith(layer, layer.pixelIndex(start));
        Pixels region{{start.x(), start.y()}};
        for (qsizetype size = 0; size != region.size();) {
            size = region.size();
            for (const auto &[x, y] : Pixels(region))
                region |= Pixels{{x + 1, y}, {x - 1, y}, {x, y + 1}, {x, y - 1}} & equal;
        }
        layer.floodFill(start, 9);
        QCOMPARE(pixelsWith(layer, 9), region);
    }
    Layer2Image layer(Area);
    layer.floodFill({-1, 0}, 3);
    layer.floodFill({Area.width(), 0}, 3);
    QVERIFY(pixelsWith(layer, 3).isEmpty());
}

void TestLayer2Image::takesOtherFormatsAsIndices()
{
    QImage bits(Area, QImage::Format_Mono);
    bits.fill(1);
    Layer2Image layer(Area);
    layer.setImage(bits);
    layer.setPixel({39, 29}, 200); // beyond the row of a one-bit picture
    QCOMPARE(layer.pixelIndex({39, 29}), 200);
    QCOMPARE(layer.pixelIndex({38, 29}), 1);
}

QUENMORA_TEST_MAIN(TestLayer2Image)
#include "tst_layer2image.moc"
