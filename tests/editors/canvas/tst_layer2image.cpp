#include "editors/canvas/layer2image.h"

#include "support/modeltools.h"
#include "support/testmain.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr QRect Area(0, 0, 40, 30);
constexpr quint32 Seed = 20261115;

/// The pixels of the area, 1 where holds() is true and 0 elsewhere.
template <typename Predicate>
QByteArray where(Predicate holds)
{
    QByteArray pixels;
    for (int i = 0; i < Area.width() * Area.height(); ++i)
        pixels += char(holds(QPoint(i % Area.width(), i / Area.width())));
    return pixels;
}

template <typename... Arguments>
QByteArray drawn(void (Layer2Image::*draw)(Arguments...), Arguments... arguments)
{
    Layer2Image layer(Area.size());
    (layer.*draw)(arguments...);
    return indices(layer.image());
}

/// A line by the closed formula: step k along the longer side has moved across by the distance to the
/// ideal line rounded half down.
QByteArray naiveLine(QPoint from, QPoint to)
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
    return where([&](QPoint pixel) {
        const QPoint p = (steep ? pixel.transposed() : pixel) - from;
        const int across = dx == 0 ? 0 : std::max(0, int(std::ceil((2.0 * p.x() * dy - dx) / (2.0 * dx))));
        return p.x() >= 0 && p.x() <= dx && p.y() == (from.y() < to.y() ? across : -across);
    });
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
    void linesMatchTheFormula()
    {
        const QList<QPoint> example{{0, 0}, {1, 0}, {2, 1}, {3, 1}, {4, 2}, {5, 2}};
        QCOMPARE(naiveLine({0, 0}, {5, 2}), where([&](QPoint pixel) { return example.contains(pixel); }));
        QRandomGenerator random(Seed);
        for (int i = 0; i < 2000; ++i) {
            const QPoint from = randomPoint(random);
            const QPoint to = i % 50 == 0 ? from : randomPoint(random);
            if (drawn(&Layer2Image::drawLine, from, to) != naiveLine(from, to))
                QFAIL(qPrintable(QDebug::toString(QLine(from, to))));
        }
    }

    void rectanglesAreClipped()
    {
        QRandomGenerator random(Seed);
        for (int i = 0; i < 500; ++i) {
            const QRect rect(randomPoint(random), QSize(random.bounded(1, 45), random.bounded(1, 35)));
            const QRect inner = rect.adjusted(1, 1, -1, -1);
            QCOMPARE(drawn(&Layer2Image::drawRectangle, rect),
                     where([&](QPoint p) { return rect.contains(p) && !(inner.isValid() && inner.contains(p)); }));
            QCOMPARE(drawn(&Layer2Image::fillRectangle, rect, 1), where([&](QPoint p) { return rect.contains(p); }));
        }
    }

    void ellipsesAreOutlines()
    {
        const std::pair<QRect, QList<QPoint>> examples[] = {
            {{3, 4, 1, 1}, {{3, 4}}},
            {{0, 0, 1, 3}, {{0, 0}, {0, 1}, {0, 2}}},
            {{0, 0, 5, 3}, {{2, 0}, {1, 0}, {3, 0}, {0, 1}, {4, 1}, {1, 2}, {2, 2}, {3, 2}}},
        };
        for (const auto &[rect, set] : examples)
            QCOMPARE(drawn(&Layer2Image::drawEllipse, rect), where([&set = set](QPoint p) { return set.contains(p); }));
        QRandomGenerator random(Seed);
        for (int i = 0; i < 500; ++i) {
            const QRect rect(0, 0, random.bounded(3, Area.width()), random.bounded(3, Area.height()));
            const QByteArray pixels = drawn(&Layer2Image::drawEllipse, rect);
            const QPointF centre = QPointF(rect.width() - 1, rect.height() - 1) / 2;
            // within a pixel of the ideal ellipse: one step inward lies inside it, one outward outside
            const QByteArray near = where([&](QPoint p) {
                const double dx = std::abs(p.x() - centre.x());
                const double dy = std::abs(p.y() - centre.y());
                const auto distance = [&](double step) {
                    return std::hypot(std::max(0.0, dx + step) / centre.x(), std::max(0.0, dy + step) / centre.y());
                };
                return distance(-1) <= 1 && distance(1) >= 1;
            });
            for (qsizetype p = 0; p < pixels.size(); ++p)
                QVERIFY(near[p] || !pixels[p]);
            for (const QPoint end : {QPoint(rect.right(), int(centre.y())), QPoint(int(centre.x()), rect.bottom())})
                QVERIFY(pixels[end.y() * Area.width() + end.x()]);
        }
    }

    void floodFillStaysInItsRegion()
    {
        QRandomGenerator random(Seed);
        for (int i = 0; i < 50; ++i) {
            Layer2Image layer(Area.size());
            for (int p = 0; p < Area.width() * Area.height(); ++p)
                layer.setPixel({p % Area.width(), p / Area.width()}, random.bounded(5) < 3 ? 0 : 2);
            const QPoint start(random.bounded(Area.width()), random.bounded(Area.height()));
            const int target = layer.pixelIndex(start);

            QSet<QPoint> region;
            const std::function<void(QPoint)> grow = [&](QPoint pixel) {
                if (!Area.contains(pixel) || region.contains(pixel) || layer.pixelIndex(pixel) != target)
                    return;
                region.insert(pixel);
                for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
                    grow(pixel + step);
            };
            grow(start);
            layer.floodFill(start, 9);
            QCOMPARE(where([&](QPoint p) { return layer.pixelIndex(p) == 9; }),
                     where([&](QPoint p) { return region.contains(p); }));
        }
        for (const QPoint outside : {QPoint(-1, 0), QPoint(Area.width(), 0)})
            QVERIFY(!drawn(&Layer2Image::floodFill, outside, 1).contains('\1'));
    }

    void takesOtherFormatsAsIndices()
    {
        QImage bits(Area.size(), QImage::Format_Mono);
        bits.fill(1);
        Layer2Image layer(Area.size());
        layer.setImage(bits);
        layer.setPixel({39, 29}, 200); // beyond the row of a one-bit picture
        QCOMPARE(layer.pixelIndex({39, 29}), 200);
        QCOMPARE(layer.pixelIndex({38, 29}), 1);
    }
};

QUENMORA_TEST_MAIN(TestLayer2Image)
#include "tst_layer2image.moc"
