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

Pixels pixelsWith(const Layer2Image &layer, int index)
{
    Pixels found;
    for (int y = 0; y < layer.image().height(); ++y) {
        for (int x = 0; x < layer.image().width(); ++x) {
            if (layer.image().pixelIndex(x, y) == index)
                found.insert({x, y});
        }
    }
    return found;
}

Pixels clipped(const Pixels &pixels)
{
    Pixels inside;
    for (const auto &pixel : pixels) {
        if (QRect(QPoint(), Area).contains(pixel.first, pixel.second))
            inside.insert(pixel);
    }
    return inside;
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
        const int x = from.x() + k;
        const int y = from.y() + (from.y() < to.y() ? across : -across);
        pixels.insert(steep ? std::pair(y, x) : std::pair(x, y));
    }
    return pixels;
}

QPoint randomPoint(QRandomGenerator &random)
{
    return {random.bounded(-15, Area.width() + 15), random.bounded(-15, Area.height() + 15)};
}

QRect randomRect(QRandomGenerator &random)
{
    return QRect(randomPoint(random), QSize(random.bounded(1, 45), random.bounded(1, 35)));
}

} // namespace

class TestLayer2Image : public QObject
{
    Q_OBJECT

private slots:
    void linesMatchTheFormula();
    void rectanglesAreClipped();
    void ellipseExamples_data();
    void ellipseExamples();
    void ellipsesAreClosedSymmetricOutlines();
    void floodFillStaysInItsRegion();
    void transformsMoveEveryPixel();
    void groupMoveKeepsLowBits();
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
        if (pixelsWith(layer, 1) != clipped(naiveLine(from, to)))
            QFAIL(
                qPrintable(QStringLiteral("line %1,%2 to %3,%4").arg(from.x()).arg(from.y()).arg(to.x()).arg(to.y())));
    }
}

void TestLayer2Image::rectanglesAreClipped()
{
    QRandomGenerator random(Seed);
    for (int i = 0; i < 500; ++i) {
        const QRect rect = randomRect(random);
        Pixels outline;
        Pixels all;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                all.insert({x, y});
                if (x == rect.left() || x == rect.right() || y == rect.top() || y == rect.bottom())
                    outline.insert({x, y});
            }
        }
        Layer2Image drawn(Area);
        drawn.drawRectangle(rect);
        QCOMPARE(pixelsWith(drawn, 1), clipped(outline));
        Layer2Image filled(Area);
        filled.fillRectangle(rect, 7);
        QCOMPARE(pixelsWith(filled, 7), clipped(all));
    }
}

void TestLayer2Image::ellipseExamples_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<Pixels>("expected");
    QTest::addRow("one pixel") << QRect(3, 4, 1, 1) << Pixels{{3, 4}};
    QTest::addRow("column of three") << QRect(0, 0, 1, 3) << Pixels{{0, 0}, {0, 1}, {0, 2}};
    QTest::addRow("five by three") << QRect(0, 0, 5, 3)
                                   << Pixels{{2, 0}, {1, 0}, {3, 0}, {0, 1}, {4, 1}, {1, 2}, {2, 2}, {3, 2}};
}

void TestLayer2Image::ellipseExamples()
{
    QFETCH(QRect, rect);
    QFETCH(Pixels, expected);
    Layer2Image layer(Area);
    layer.drawEllipse(rect);
    QCOMPARE(pixelsWith(layer, 1), expected);
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
            const auto beyond = [&](double step) {
                const double dx = std::max(0.0, std::abs(x - rx) + step) / rx;
                const double dy = std::max(0.0, std::abs(y - ry) + step) / ry;
                return dx * dx + dy * dy - 1;
            };
            QVERIFY2(beyond(-1) <= 0 && beyond(1) >= 0,
                     qPrintable(QStringLiteral("%1x%2 at %3,%4").arg(rect.width()).arg(rect.height()).arg(x).arg(y)));
            rows.insert(y);
        }
        QCOMPARE(rows.size(), rect.height());
    }
}

void TestLayer2Image::floodFillStaysInItsRegion()
{
    QRandomGenerator random(Seed);
    for (int i = 0; i < 200; ++i) {
        Layer2Image layer(Area);
        for (int y = 0; y < Area.height(); ++y) {
            for (int x = 0; x < Area.width(); ++x)
                layer.setPixel({x, y}, random.bounded(5) < 3 ? 0 : 2);
        }
        const QPoint start(random.bounded(Area.width()), random.bounded(Area.height()));
        const int target = layer.pixelIndex(start);

        // The region grown one ring at a time until nothing is added.
        Pixels region{{start.x(), start.y()}};
        for (bool grown = true; grown;) {
            grown = false;
            for (const auto &[x, y] : Pixels(region)) {
                for (const auto &next : {std::pair(x + 1, y), {x - 1, y}, {x, y + 1}, {x, y - 1}}) {
                    const bool inside = QRect(QPoint(), Area).contains(next.first, next.second);
                    if (inside && layer.pixelIndex({next.first, next.second}) == target && !region.contains(next)) {
                        region.insert(next);
                        grown = true;
                    }
                }
            }
        }
        layer.floodFill(start, 9);
        QCOMPARE(pixelsWith(layer, 9), region);
    }
    Layer2Image layer(Area);
    layer.floodFill({-1, 0}, 3);
    layer.floodFill({Area.width(), 0}, 3);
    QVERIFY(pixelsWith(layer, 3).isEmpty());
}

void TestLayer2Image::transformsMoveEveryPixel()
{
    const auto layerWithDot = [](QPoint dot) {
        auto layer = std::make_unique<Layer2Image>(QSize(8, 8));
        layer->setPixel(dot, 5);
        return layer;
    };
    const auto dotAfter = [&](QPoint dot, auto operation) {
        const auto layer = layerWithDot(dot);
        operation(*layer);
        return pixelsWith(*layer, 5);
    };
    QCOMPARE(dotAfter({2, 0}, [](Layer2Image &l) { l.shiftUp(); }), (Pixels{{2, 7}}));
    QCOMPARE(dotAfter({2, 7}, [](Layer2Image &l) { l.shiftDown(); }), (Pixels{{2, 0}}));
    QCOMPARE(dotAfter({0, 3}, [](Layer2Image &l) { l.shiftLeft(); }), (Pixels{{7, 3}}));
    QCOMPARE(dotAfter({7, 3}, [](Layer2Image &l) { l.shiftRight(); }), (Pixels{{0, 3}}));
    QCOMPARE(dotAfter({1, 2}, [](Layer2Image &l) { l.rotate(90); }), (Pixels{{5, 1}}));
    QCOMPARE(dotAfter({1, 2}, [](Layer2Image &l) { l.rotate(270); }), (Pixels{{2, 6}}));
    QCOMPARE(dotAfter({1, 2}, [](Layer2Image &l) { l.flip(); }), (Pixels{{1, 5}}));
    QCOMPARE(dotAfter({1, 2}, [](Layer2Image &l) { l.mirror(); }), (Pixels{{6, 2}}));
}

void TestLayer2Image::groupMoveKeepsLowBits()
{
    Layer2Image layer(QSize(2, 1));
    layer.setPixel({0, 0}, 0x17);
    layer.setInk(0x3F);
    layer.moveToGroup(0x20);
    QCOMPARE(layer.pixelIndex({0, 0}), 0x27);
    QCOMPARE(layer.pixelIndex({1, 0}), 0x20);
    QCOMPARE(layer.ink(), 0x2F);
    QCOMPARE(layer.paper(), 0x20);
}

QUENMORA_TEST_MAIN(TestLayer2Image)
#include "tst_layer2image.moc"
