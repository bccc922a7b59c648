// What a canvas holds, without the widget.

#include "editors/canvas/canvasgeometry.h"
#include "editors/canvas/canvasselection.h"

#include "support/testmain.h"

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
        const CanvasGeometry tall = fitted(8, true, {256, 192});
        QCOMPARE(tall.imageRect, QRect(64, 0, 128, 192));
        QCOMPARE(tall.pixelAt({64 + 127, 17}), QPoint(15, 1));
        QCOMPARE(tall.rectOf({3, 2, 4, 5}), QRect(64 + 24, 32, 32, 80));
    }

    void selectionSnapsToPixels()
    {
        CanvasGeometry geometry = fitted(16, false, {256, 96}); // half of it is visible
        geometry.scroll = {0, 6};
        for (const auto &[from, to, band, pixels] :
             {std::tuple(QPoint(70, 70), QPoint(40, 20), QRect(32, 16, 33, 49), QRect(2, 7, 2, 3)),
              {{40, 20}, {47, 31}, {32, 16, 1, 1}, {}}, // a click
              {{-50, -50}, {500, 500}, {0, 0, 256, 96}, {0, 6, 16, 6}}}) {
            CanvasSelection selection;
            selection.setAnchor(from);
            QCOMPARE(selection.extendTo(to, geometry, QRect(QPoint(), ImageSize)), band);
            QCOMPARE(selection.pixels(), pixels);
            selection.clipTo({0, 0, 3, 8}); // another image
            QVERIFY(QRect(0, 0, 3, 8).contains(selection.pixels()) || selection.pixels().isEmpty());
        }
    }
};

QUENMORA_TEST_MAIN(TestCanvasValues)
#include "tst_canvasvalues.moc"
