// What a canvas holds, without the widget.

#include "editors/canvas/canvasgeometry.h"
#include "editors/canvas/canvasoverlay.h"
#include "editors/canvas/canvasselection.h"
#include "editors/canvas/layer2image.h"

#include "support/modeltools.h"
#include "support/testmain.h"

#include <QPainter>
#include <QTest>

namespace {

constexpr QSize ImageSize(16, 12);

CanvasGeometry fitted(int zoom, bool tall, QSize widget, QSize image = ImageSize)
{
    CanvasGeometry geometry;
    geometry.zoom = zoom;
    geometry.tallPixels = tall;
    geometry.layout(widget, image);
    return geometry;
}

} // namespace

class TestCanvasValues : public QObject
{
    Q_OBJECT

private slots:
    void geometryFitsTheImage()
    {
        QCOMPARE(fitted(16, false, {400, 100}).imageRect, QRect(72, 2, 256, 96));
        QCOMPARE(fitted(1, true, {100, 100}, {97, 4}).imageRect, QRect(2, 46, 97, 8)); // 100 / 2 - 97 / 2
        const CanvasGeometry tall = fitted(8, true, {256, 192});
        QCOMPARE(tall.imageRect, QRect(64, 0, 128, 192));
        QCOMPARE(tall.pixelAt({64, 10}), QPoint(0, 0));
        QCOMPARE(tall.pixelAt({64 + 127, 17}), QPoint(15, 1));
        QCOMPARE(tall.rectOf({3, 2, 4, 5}), QRect(64 + 24, 32, 32, 80));
    }

    void selectionSnapsToPixels()
    {
        CanvasGeometry geometry = fitted(16, false, {256, 96}); // half of it is visible
        geometry.scroll = {0, 6};
        const struct
        {
            QPoint from, to;
            QRect band, pixels;
        } drags[] = {
            {{40, 20}, {70, 70}, {32, 16, 33, 49}, {2, 7, 2, 3}},
            {{70, 70}, {40, 20}, {32, 16, 33, 49}, {2, 7, 2, 3}},
            {{40, 20}, {47, 31}, {32, 16, 1, 1}, {}}, // a click
            {{-50, -50}, {500, 500}, {0, 0, 256, 96}, {0, 6, 16, 6}},
        };
        for (const auto &[from, to, band, pixels] : drags) {
            CanvasSelection selection;
            selection.setAnchor(from);
            QCOMPARE(selection.extendTo(to, geometry, QRect(QPoint(), ImageSize)), band);
            QVERIFY(pixels.isEmpty() ? selection.pixels().isEmpty() : selection.pixels() == pixels);
            selection.clipTo({0, 0, 3, 8}); // another image
            QVERIFY(QRect(0, 0, 3, 8).contains(selection.pixels()) || selection.pixels().isEmpty());
        }
    }

    void overlayMarksCells()
    {
        const auto painted = [](CanvasOverlay overlay, QColor ground, int zoom, QSize pixels) {
            QImage image(64, 64, QImage::Format_RGB32);
            image.fill(ground);
            QPainter painter(&image);
            overlay.paint(painter, fitted(zoom, false, image.size(), pixels));
            painter.end();
            return [image](int x, int y) { return qRed(image.pixel(x, y)); };
        };
        // white under 80 / 255 of (64, 64, 64) or (80, 80, 80), in cells of at least 16 pixels
        const auto at = painted({.checker = true}, Qt::white, 2, {32, 32});
        QCOMPARE((QList{at(0, 0), at(15, 15), at(16, 0), at(0, 16), at(16, 16)}), (QList{195, 195, 200, 200, 195}));
        const auto lit = painted({.gridLines = true}, Qt::black, 32, {2, 2});
        QVERIFY(lit(0, 5) && lit(32, 5) && lit(5, 32) && !lit(31, 5) && !lit(5, 33) && !lit(16, 16));
    }
};

QUENMORA_TEST_MAIN(TestCanvasValues)
#include "tst_canvasvalues.moc"
