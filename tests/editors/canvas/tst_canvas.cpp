#include "editors/canvas/canvas.h"
#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/scrollcanvas.h"

#include "support/testmain.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace Quenmora::Ui;

namespace {

constexpr QSize ImageSize(16, 12);

/// A canvas of 16 x 12 pixels in a widget that it fills exactly at zoom 16.
struct Fixture
{
    Palette palette;
    Canvas canvas{ImageSize};
    QSignalSpy edits{&canvas, &Canvas::edited};
    QSignalSpy changes{&canvas, &Canvas::imageChanged};

    Fixture()
    {
        palette.loadStandardNext();
        canvas.bindPalette(&palette);
        canvas.resize(256, 192);
        canvas.show();
    }

    QPoint centre(QPoint pixel) const
    {
        const QSize cell = canvas.geometryInWidget().cell();
        return canvas.geometryInWidget().pointOf(pixel) + QPoint(cell.width() / 2, cell.height() / 2);
    }
    void send(QEvent::Type type, QPoint point, Qt::MouseButtons buttons, Qt::MouseButton button)
    {
        QMouseEvent event(type, point, canvas.mapToGlobal(point), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
    }
    void move(QPoint pixel, Qt::MouseButtons buttons = Qt::NoButton)
    {
        send(QEvent::MouseMove, centre(pixel), buttons, Qt::NoButton);
    }
    void drag(const QList<QPoint> &pixels, Qt::MouseButton button = Qt::LeftButton)
    {
        move(pixels.first());
        send(QEvent::MouseButtonPress, centre(pixels.first()), button, button);
        for (const QPoint pixel : pixels.mid(1))
            move(pixel, button);
        send(QEvent::MouseButtonRelease, centre(pixels.last()), Qt::NoButton, button);
    }
    int at(int x, int y) const { return canvas.image().pixelIndex(x, y); }
};

QImage indexed(QSize size, int first)
{
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable(QList<QRgb>(256, qRgb(1, 2, 3)));
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, uint(first + y * size.width() + x));
    }
    return image;
}

} // namespace

class TestCanvas : public QObject
{
    Q_OBJECT

private slots:
    void geometryMapsPointsToPixels();
    void imageThatFitsOneWayScrollsTheOther();
    void strokeSetsOnlyThePixelsUnderThePointer();
    void rightButtonDrawsPaperAndShapesDrawInk();
    void strokeThatChangesNothingIsNoEdit();
    void indicesOfOneColourAreDifferentPixels();
    void previewLeavesTheImageAlone();
    void actionsRecordTheirTexts_data();
    void actionsRecordTheirTexts();
    void zoomStaysInItsRange();
    void pickTakesInkAndPaper();
    void remapActsOnBanksOnly();
    void selectionFollowsScrollAndZoom();
    void cutFromTheMenuErases();
    void pasteIsCentredAndClipped();
    void damagedClipboardIsRefused_data();
    void damagedClipboardIsRefused();
    void clipboardIsAnImageForOthers();
    void paintsTheImageInThePaletteColours();
    void scrollBarsFollowTheCanvas();
};

void TestCanvas::geometryMapsPointsToPixels()
{
    Fixture f;
    f.canvas.setTallPixels(true);
    f.canvas.setZoomLevel(8);
    const CanvasGeometry &geometry = f.canvas.geometryInWidget();
    QCOMPARE(geometry.imageRect, QRect(64, 0, 128, 192));
    QCOMPARE(geometry.pixelAt({64, 10}).y(), 0);
    QCOMPARE(geometry.pixelAt({64, 17}).y(), 1);
    QCOMPARE(geometry.pixelAt({64 + 127, 191}), QPoint(15, 11));
}

void TestCanvas::imageThatFitsOneWayScrollsTheOther()
{
    Fixture f;
    QSignalSpy amounts(&f.canvas, &Canvas::scrollValuesChanged);
    f.canvas.resize(400, 100);
    QCOMPARE(f.canvas.geometryInWidget().imageRect, QRect(72, 2, 256, 96));
    QCOMPARE(amounts.last(), QVariantList({16 - 25, 12 - 6}));
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(&f.canvas, Qt::Key_Down);
    QTest::keyClick(&f.canvas, Qt::Key_Right);
    QCOMPARE(f.canvas.geometryInWidget().scroll, QPoint(0, 6));
    QTest::keyClick(&f.canvas, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(f.canvas.geometryInWidget().scroll, QPoint(0, 6));
    f.canvas.resize(400, 400);
    QCOMPARE(f.canvas.geometryInWidget().scroll, QPoint(0, 0));
}

void TestCanvas::strokeSetsOnlyThePixelsUnderThePointer()
{
    Fixture f;
    const QImage before = f.canvas.image();
    f.drag({{1, 1}, {4, 1}, {200, 1}, {5, 2}});
    QCOMPARE(f.at(1, 1), 1);
    QCOMPARE(f.at(2, 1), 0);
    QCOMPARE(f.at(4, 1), 1);
    QCOMPARE(f.at(5, 2), 1);
    QCOMPARE(f.changes.count(), 1);
    QCOMPARE(f.edits.count(), 1);
    QCOMPARE(f.edits[0][0].toString(), QStringLiteral("Draw"));
    QCOMPARE(f.edits[0][1].value<QImage>(), before);
    QCOMPARE(f.edits[0][2].value<QImage>(), f.canvas.image());
    QCOMPARE(f.edits[0][3].value<PixelEditCommand::Kind>(), PixelEditCommand::None);
}

void TestCanvas::rightButtonDrawsPaperAndShapesDrawInk()
{
    Fixture f;
    f.canvas.setInk(7);
    f.canvas.setPaper(9);
    f.drag({{0, 0}}, Qt::RightButton);
    QCOMPARE(f.at(0, 0), 9);
    f.canvas.setMode(RectangleFill);
    f.drag({{5, 5}, {2, 3}}, Qt::RightButton);
    QCOMPARE(f.at(2, 3), 7);
    QCOMPARE(f.at(5, 5), 7);
    QCOMPARE(f.at(6, 5), 0);
    f.canvas.setMode(Fill);
    f.drag({{10, 10}}, Qt::RightButton);
    QCOMPARE(f.at(15, 11), 9);
    QCOMPARE(f.at(3, 4), 7);
}

void TestCanvas::strokeThatChangesNothingIsNoEdit()
{
    Fixture f;
    f.canvas.setInk(0);
    f.drag({{1, 1}, {2, 1}});
    f.canvas.setMode(MoveUp);
    QVERIFY(f.edits.isEmpty());
    f.canvas.setInk(1);
    f.drag({{1, 1}});
    f.canvas.setMode(Fill);
    f.drag({{1, 1}});
    QCOMPARE(f.edits.count(), 1);
}

void TestCanvas::indicesOfOneColourAreDifferentPixels()
{
    Fixture f;
    f.palette.fill(Qt::black, false);
    f.canvas.setInk(3);
    f.drag({{1, 1}});
    QCOMPARE(f.edits.count(), 1);
}

void TestCanvas::previewLeavesTheImageAlone()
{
    Fixture f;
    f.canvas.setInk(255);
    f.canvas.setMode(Line);
    f.send(QEvent::MouseButtonPress, f.centre({0, 0}), Qt::LeftButton, Qt::LeftButton);
    f.move({7, 0}, Qt::LeftButton);
    const QImage shown = f.canvas.grab().toImage();
    QCOMPARE(shown.pixelColor(f.centre({4, 0})), QColor(Qt::white));
    QCOMPARE(f.at(4, 0), 0);
    f.send(QEvent::MouseButtonRelease, f.centre({7, 0}), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(f.at(4, 0), 255);
    f.move({0, 9});
    QCOMPARE(f.canvas.grab().toImage().pixelColor(f.centre({0, 5})), QColor(Qt::black));
}

void TestCanvas::actionsRecordTheirTexts_data()
{
    QTest::addColumn<ToolButton>("action");
    QTest::addColumn<QString>("text");
    QTest::addColumn<PixelEditCommand::Kind>("kind");
    QTest::addColumn<QPoint>("dot");
    const auto scroll = PixelEditCommand::Scroll;
    const auto none = PixelEditCommand::None;
    QTest::addRow("up") << MoveUp << "Scroll" << scroll << QPoint(2, 0);
    QTest::addRow("down") << MoveDown << "Scroll" << scroll << QPoint(2, 2);
    QTest::addRow("left") << MoveLeft << "Scroll" << scroll << QPoint(1, 1);
    QTest::addRow("right") << MoveRight << "Scroll" << scroll << QPoint(3, 1);
    QTest::addRow("rotate") << RotateCW << "Rotate" << none << QPoint(14, 2);
    QTest::addRow("flip") << Flip << "Flip" << none << QPoint(2, 10);
    QTest::addRow("mirror") << Mirror << "Mirror" << none << QPoint(13, 1);
}

void TestCanvas::actionsRecordTheirTexts()
{
    QFETCH(ToolButton, action);
    QFETCH(QString, text);
    QFETCH(PixelEditCommand::Kind, kind);
    QFETCH(QPoint, dot);
    Fixture f;
    f.drag({{2, 1}});
    f.canvas.setMode(action);
    QCOMPARE(f.edits.count(), 2);
    QCOMPARE(f.edits[1][0].toString(), text);
    QCOMPARE(f.edits[1][3].value<PixelEditCommand::Kind>(), kind);
    QCOMPARE(f.at(dot.x(), dot.y()), 1);
    QCOMPARE(f.canvas.mode(), Draw);
}

void TestCanvas::zoomStaysInItsRange()
{
    Fixture f;
    f.canvas.setZoomLevel(63);
    f.canvas.setMode(ZoomIn);
    QCOMPARE(f.canvas.zoom(), 64);
    f.canvas.setMode(ZoomIn);
    QCOMPARE(f.canvas.zoom(), 64);
    f.canvas.setZoomLevel(2);
    f.canvas.setMode(ZoomOut);
    QCOMPARE(f.canvas.zoom(), 1);
    const QPoint middle = f.canvas.rect().center();
    QWheelEvent wheel(middle, f.canvas.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&f.canvas, &wheel);
    QCOMPARE(f.canvas.zoom(), 1);
    QTest::ignoreMessage(QtInfoMsg, "PaintCanvas::setMode(CircleFill)");
    f.canvas.setMode(CircleFill);
    QCOMPARE(f.canvas.mode(), Draw);
}

void TestCanvas::pickTakesInkAndPaper()
{
    Fixture f;
    f.canvas.setInk(200);
    f.drag({{3, 3}});
    f.canvas.setInk(1);
    QSignalSpy fore(&f.canvas, &Canvas::foregroundPicked);
    QSignalSpy back(&f.canvas, &Canvas::backgroundPicked);
    f.canvas.setMode(Pick);
    f.drag({{3, 3}});
    f.drag({{3, 3}}, Qt::RightButton);
    f.drag({{-3, 3}});
    QCOMPARE(fore, (QList<QVariantList>{{200}}));
    QCOMPARE(back, (QList<QVariantList>{{200}}));
    QCOMPARE(f.canvas.ink(), 200);
    f.canvas.setInk(4);
    f.canvas.swapInkAndPaper();
    QCOMPARE(f.canvas.ink(), 200);
    QCOMPARE(f.canvas.paper(), 4);
}

void TestCanvas::remapActsOnBanksOnly()
{
    Fixture f;
    f.canvas.setInk(0x17);
    f.drag({{3, 3}});
    f.canvas.remap(3);
    QCOMPARE(f.at(3, 3), 0x17);
    f.canvas.setImageType(Offset16);
    f.canvas.remap(3);
    QCOMPARE(f.at(3, 3), 0x27);
    QCOMPARE(f.canvas.ink(), 0x27);
    QCOMPARE(f.edits.count(), 1);
}

void TestCanvas::selectionFollowsScrollAndZoom()
{
    Fixture f;
    f.canvas.setMode(Select);
    f.drag({{2, 1}, {4, 4}});
    QCOMPARE(f.canvas.selection(), QRect(2, 1, 2, 3));
    f.canvas.setZoomLevel(32);
    QCOMPARE(f.canvas.selection(), QRect(2, 1, 2, 3));
    QTest::keyClick(&f.canvas, Qt::Key_Right);
    QCOMPARE(f.canvas.selection(), QRect(2, 1, 2, 3));
    f.canvas.setZoomLevel(16);
    f.canvas.selectAll();
    QCOMPARE(f.canvas.selection(), QRect(QPoint(), ImageSize));
    f.canvas.setMode(Draw);
    QVERIFY(!f.canvas.hasSelection());
}

void TestCanvas::cutFromTheMenuErases()
{
    Fixture f;
    f.drag({{2, 1}});
    f.canvas.setPaper(6);
    f.canvas.setMode(Select);
    f.drag({{2, 1}, {4, 3}});
    f.canvas.contextMenu()->actions().at(1)->trigger();
    QCOMPARE(f.at(2, 1), 1);
    f.canvas.contextMenu()->actions().at(0)->trigger();
    QCOMPARE(f.at(2, 1), 6);
    QCOMPARE(f.at(3, 2), 6);
    QCOMPARE(f.at(4, 3), 0);
    QCOMPARE(f.edits.last()[0].toString(), QStringLiteral("Erase"));
    f.canvas.paste();
    QCOMPARE(f.canvas.mode(), Paste);
    QVERIFY(!f.canvas.hasSelection());
    QCOMPARE(f.canvas.clipboardImage().size(), QSize(2, 2));
    QCOMPARE(f.canvas.clipboardImage().pixelIndex(0, 0), 1);
}

void TestCanvas::pasteIsCentredAndClipped()
{
    Fixture f;
    CanvasClipboardContent content{0, Full256, f.palette.id(), indexed({3, 3}, 20)};
    QApplication::clipboard()->setMimeData(content.toMimeData());
    f.canvas.paste();
    f.drag({{0, 0}});
    QCOMPARE(f.at(0, 0), 24);
    QCOMPARE(f.at(1, 0), 25);
    QCOMPARE(f.at(0, 1), 27);
    QCOMPARE(f.at(1, 1), 28);
    QCOMPARE(f.at(2, 0), 0);
    QCOMPARE(f.canvas.mode(), Paste);
    content.paletteId = QUuid::createUuid();
    QApplication::clipboard()->setMimeData(content.toMimeData());
    QTest::ignoreMessage(QtInfoMsg, "Pasting to image with different palette");
    f.canvas.setMode(Paste);
}

void TestCanvas::damagedClipboardIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const std::unique_ptr<QMimeData> good(
        CanvasClipboardContent{0, Full256, QUuid(), indexed({3, 3}, 20)}.toMimeData());
    const QByteArray bytes = good->data("quenmora/canvas-anim");
    QTest::addRow("empty") << QByteArray();
    QTest::addRow("short") << bytes.left(10);
    QTest::addRow("no picture") << bytes.left(24);
    QTest::addRow("cut picture") << bytes.left(40);
    QTest::addRow("unknown type") << QByteArray(bytes).replace(4, 4, QByteArray("\x7f\0\0\0", 4));
    QByteArray vast = bytes;
    vast.replace(24 + 16, 8, QByteArray("\x7f\xff\xff\xff\x7f\xff\xff\xff", 8));
    QTest::addRow("vast picture") << vast;
}

void TestCanvas::damagedClipboardIsRefused()
{
    QFETCH(QByteArray, bytes);
    Fixture f;
    auto *mimeData = new QMimeData;
    mimeData->setData("quenmora/canvas-anim", bytes);
    QApplication::clipboard()->setMimeData(mimeData);
    f.canvas.paste();
    QCOMPARE(f.canvas.mode(), Draw);
    QVERIFY(f.canvas.clipboardImage().isNull());
}

void TestCanvas::clipboardIsAnImageForOthers()
{
    Fixture f;
    f.canvas.setInk(255);
    f.drag({{0, 0}});
    f.canvas.copy();
    const auto image = QApplication::clipboard()->mimeData()->imageData().value<QImage>();
    QCOMPARE(image.size(), ImageSize);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
}

void TestCanvas::paintsTheImageInThePaletteColours()
{
    Fixture f;
    f.canvas.resize(100, 192);
    f.canvas.setInk(0xE0);
    f.drag({{1, 1}});
    f.canvas.setVerticalPosition(1);
    QCOMPARE(f.canvas.grab().toImage().pixelColor(f.centre({1, 1})), QColor(255, 0, 0));
    f.palette.setRawColour(0xE0, 0x1C00);
    QCOMPARE(f.canvas.grab().toImage().pixelColor(f.centre({1, 1})), QColor(0, 255, 0));
    f.canvas.setMode(Grid, true);
    QVERIFY(f.canvas.grab().toImage().pixelColor(f.centre({1, 1})) != QColor(0, 255, 0));
}

void TestCanvas::scrollBarsFollowTheCanvas()
{
    Palette palette;
    auto *canvas = new Canvas(ImageSize);
    canvas->bindPalette(&palette);
    ScrollCanvas scroller(canvas);
    scroller.resize(300, 110);
    scroller.show();
    const auto bars = scroller.findChildren<QScrollBar *>();
    QCOMPARE(bars.size(), 2);
    QScrollBar *vertical = bars[0]->orientation() == Qt::Vertical ? bars[0] : bars[1];
    QScrollBar *horizontal = bars[0]->orientation() == Qt::Vertical ? bars[1] : bars[0];
    QVERIFY(vertical->isVisible());
    QVERIFY(!horizontal->isVisible());
    QCOMPARE(vertical->maximum(), 6);
    vertical->setValue(4);
    QCOMPARE(canvas->geometryInWidget().scroll, QPoint(0, 4));
    QTest::keyClick(canvas, Qt::Key_Down);
    QCOMPARE(vertical->value(), 5);
}

QUENMORA_TEST_MAIN(TestCanvas)
#include "tst_canvas.moc"
