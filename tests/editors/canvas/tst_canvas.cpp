#include "editors/canvas/canvas.h"
#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/scrollcanvas.h"

#include "support/editorinput.h"
#include "support/testmain.h"

#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
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
    void send(QEvent::Type type, QPoint pixel, Qt::MouseButtons buttons, Qt::MouseButton button)
    {
        QMouseEvent event(type, centre(pixel), canvas.mapToGlobal(centre(pixel)), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
    }
    void press(QPoint pixel, Qt::MouseButton button = Qt::LeftButton, Qt::MouseButtons others = Qt::NoButton)
    {
        send(QEvent::MouseButtonPress, pixel, others | button, button);
    }
    void move(QPoint pixel, Qt::MouseButtons buttons = Qt::NoButton)
    {
        send(QEvent::MouseMove, pixel, buttons, Qt::NoButton);
    }
    void release(QPoint pixel, Qt::MouseButton button = Qt::LeftButton, Qt::MouseButtons others = Qt::NoButton)
    {
        send(QEvent::MouseButtonRelease, pixel, others, button);
    }
    void drag(const QList<QPoint> &pixels, Qt::MouseButton button = Qt::LeftButton)
    {
        move(pixels.first());
        press(pixels.first(), button);
        for (const QPoint pixel : pixels.mid(1))
            move(pixel, button);
        release(pixels.last(), button);
    }
    int at(int x, int y) const { return canvas.image().pixelIndex(x, y); }
    QColor shown(QPoint pixel) { return canvas.grab().toImage().pixelColor(centre(pixel)); }
    QStringList texts() const
    {
        QStringList texts;
        for (const QVariantList &edit : edits)
            texts += edit[0].toString();
        return texts;
    }
};

} // namespace

class TestCanvas : public QObject
{
    Q_OBJECT

private slots:
    void geometryMapsPointsToPixels();
    void imageThatFitsOneWayScrollsTheOther();
    void strokeSetsOnlyThePixelsUnderThePointer();
    void rightButtonDrawsPaperAndShapesDrawInk();
    void onlyChangedIndicesAreAnEdit();
    void interruptedStrokesAreNotLost_data();
    void interruptedStrokesAreNotLost();
    void anotherImageEndsTheStroke();
    void secondButtonDrawsNoStrayShape();
    void previewLeavesTheImageAlone();
    void actionsRecordTheirTexts_data();
    void actionsRecordTheirTexts();
    void zoomStaysInItsRange();
    void pickTakesInkAndPaper();
    void selectionStaysOnItsPixels();
    void menuErasesAndFills();
    void survivesItsEndUnderTheMenu();
    void pasteIsCentredAndClipped();
    void damagedClipboardIsRefused_data();
    void damagedClipboardIsRefused();
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

void TestCanvas::onlyChangedIndicesAreAnEdit()
{
    Fixture f;
    f.palette.fill(Qt::black, false); // indices of one colour are different pixels all the same
    f.canvas.setInk(0);
    f.drag({{1, 1}, {2, 1}});
    f.canvas.setMode(MoveUp);
    QVERIFY(f.edits.isEmpty());
    f.canvas.setInk(1);
    f.drag({{1, 1}});
    f.canvas.setMode(Fill);
    f.drag({{1, 1}});
    QCOMPARE(f.texts(), QStringList{"Draw"});
}

void TestCanvas::interruptedStrokesAreNotLost_data()
{
    QTest::addColumn<ToolButton>("action");
    QTest::addColumn<QStringList>("texts");
    QTest::addRow("second button") << Draw << QStringList{"Draw", "Draw"};
    QTest::addRow("another tool") << Line << QStringList{"Draw"};
    QTest::addRow("scroll") << MoveUp << QStringList{"Draw", "Scroll"};
}

void TestCanvas::interruptedStrokesAreNotLost()
{
    QFETCH(ToolButton, action);
    QFETCH(QStringList, texts);
    Fixture f;
    f.canvas.setPaper(9);
    const QImage blank = f.canvas.image();
    f.press({1, 1});
    if (action == Draw) {
        f.press({5, 5}, Qt::RightButton, Qt::LeftButton);
        f.release({5, 5}, Qt::LeftButton, Qt::RightButton);
        f.release({5, 5}, Qt::RightButton);
    } else {
        f.canvas.setMode(action);
        f.move({3, 3}, Qt::LeftButton);
        f.release({3, 3});
    }
    QCOMPARE(f.texts(), texts);
    // Every step begins where the one before ended, so that undo comes back to the blank image.
    QImage reached = blank;
    for (const QVariantList &edit : std::as_const(f.edits)) {
        QCOMPARE(edit[1].value<QImage>(), reached);
        reached = edit[2].value<QImage>();
    }
    QCOMPARE(f.canvas.image(), reached);
}

void TestCanvas::anotherImageEndsTheStroke()
{
    Fixture f;
    f.press({1, 1});
    const QImage other = EditorInput::filled(ImageSize, 4);
    f.canvas.setImage(other);
    f.move({2, 1}, Qt::LeftButton);
    f.release({2, 1});
    QVERIFY(f.edits.isEmpty());
    QCOMPARE(f.at(2, 1), 4);
}

void TestCanvas::secondButtonDrawsNoStrayShape()
{
    Fixture f;
    f.canvas.setMode(Line);
    f.press({2, 2});
    f.press({2, 2}, Qt::RightButton, Qt::LeftButton);
    f.release({2, 2}, Qt::LeftButton, Qt::RightButton);
    f.release({9, 9}, Qt::RightButton);
    QCOMPARE(f.texts(), QStringList{"Line"});
    QCOMPARE(f.at(5, 5), 0);
}

void TestCanvas::previewLeavesTheImageAlone()
{
    Fixture f;
    f.canvas.setInk(255);
    f.canvas.setMode(Line);
    f.press({0, 0});
    f.move({7, 0}, Qt::LeftButton);
    QCOMPARE(f.shown({4, 0}), QColor(Qt::white));
    QCOMPARE(f.at(4, 0), 0);
    f.release({7, 0});
    QCOMPARE(f.at(4, 0), 255);
    f.move({0, 9});
    QCOMPARE(f.shown({0, 5}), QColor(Qt::black));
}

void TestCanvas::actionsRecordTheirTexts_data()
{
    QTest::addColumn<ToolButton>("action");
    QTest::addColumn<QString>("text");
    QTest::addColumn<PixelEditCommand::Kind>("kind");
    QTest::addColumn<QPoint>("dot");
    QTest::addColumn<QPoint>("moved");
    const auto scroll = PixelEditCommand::Scroll;
    const auto none = PixelEditCommand::None;
    QTest::addRow("up") << MoveUp << "Scroll" << scroll << QPoint(2, 0) << QPoint(2, 11);
    QTest::addRow("down") << MoveDown << "Scroll" << scroll << QPoint(2, 11) << QPoint(2, 0);
    QTest::addRow("left") << MoveLeft << "Scroll" << scroll << QPoint(0, 3) << QPoint(15, 3);
    QTest::addRow("right") << MoveRight << "Scroll" << scroll << QPoint(15, 3) << QPoint(0, 3);
    QTest::addRow("clockwise") << RotateCW << "Rotate" << none << QPoint(2, 1) << QPoint(14, 2);
    QTest::addRow("counter-clockwise") << RotateCCW << "Rotate" << none << QPoint(5, 4) << QPoint(4, 10);
    QTest::addRow("flip") << Flip << "Flip" << none << QPoint(2, 1) << QPoint(2, 10);
    QTest::addRow("mirror") << Mirror << "Mirror" << none << QPoint(2, 1) << QPoint(13, 1);
}

void TestCanvas::actionsRecordTheirTexts()
{
    QFETCH(ToolButton, action);
    QFETCH(QString, text);
    QFETCH(PixelEditCommand::Kind, kind);
    QFETCH(QPoint, dot);
    QFETCH(QPoint, moved);
    Fixture f;
    f.drag({dot});
    f.canvas.setMode(action);
    QCOMPARE(f.edits.count(), 2);
    QCOMPARE(f.edits[1][0].toString(), text);
    QCOMPARE(f.edits[1][3].value<PixelEditCommand::Kind>(), kind);
    QCOMPARE(f.at(moved.x(), moved.y()), 1);
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

void TestCanvas::selectionStaysOnItsPixels()
{
    Fixture f;
    f.canvas.setMode(Select);
    f.drag({{2, 1}, {4, 4}});
    const QRect selected(2, 1, 2, 3);
    QCOMPARE(f.canvas.selection(), selected);
    for (const int zoom : {1, 32}) {
        f.canvas.setZoomLevel(zoom);
        QCOMPARE(f.canvas.selection(), selected);
    }
    QTest::keyClick(&f.canvas, Qt::Key_Right);
    QCOMPARE(f.canvas.selection(), selected);
    f.canvas.setHorizontalPosition(4); // as a scroll bar does
    QCOMPARE(f.canvas.selection(), selected);
    f.canvas.setZoomLevel(16);
    f.canvas.selectAll();
    QCOMPARE(f.canvas.selection(), QRect(QPoint(), ImageSize));
    f.canvas.setMode(Draw);
    QVERIFY(!f.canvas.hasSelection());
}

void TestCanvas::menuErasesAndFills()
{
    Fixture f;
    const auto trigger = [&f](const QString &text) { EditorInput::trigger(*f.canvas.contextMenu(), text); };
    f.canvas.setInk(0xE0);
    f.canvas.setPaper(6);
    f.drag({{2, 1}});
    f.canvas.setMode(Select);
    f.drag({{2, 1}, {4, 3}});
    trigger("Copy");
    QCOMPARE(f.at(2, 1), 0xE0);
    trigger("Cut");
    QCOMPARE(f.at(2, 1), 6);
    QCOMPARE(f.at(3, 2), 6);
    QCOMPARE(f.at(4, 3), 0);
    trigger("Fill");
    QCOMPARE(f.at(3, 2), 0xE0);
    QCOMPARE(f.texts(), (QStringList{"Draw", "Erase", "Fill"}));
    const auto forOthers = QApplication::clipboard()->mimeData()->imageData().value<QImage>();
    QCOMPARE(forOthers.pixelColor(0, 0), QColor(Qt::red));
    trigger("Paste");
    QCOMPARE(f.canvas.mode(), Paste);
    QVERIFY(!f.canvas.hasSelection());
    QCOMPARE(f.canvas.clipboardImage().size(), QSize(2, 2));
    QCOMPARE(f.canvas.clipboardImage().pixelIndex(0, 0), 0xE0);
}

void TestCanvas::survivesItsEndUnderTheMenu()
{
    auto *canvas = new Canvas(ImageSize);
    const QPointer<Canvas> guard(canvas);
    canvas->resize(256, 192);
    canvas->show();
    canvas->setMode(Select);
    QTimer::singleShot(0, canvas, &QObject::deleteLater);
    QTest::mouseClick(canvas, Qt::RightButton, Qt::NoModifier, {20, 20});
    QTRY_VERIFY(!guard);
}

void TestCanvas::pasteIsCentredAndClipped()
{
    Fixture f;
    QImage nine = EditorInput::filled({3, 3}, 0);
    for (int i = 0; i < 9; ++i)
        nine.setPixel(i % 3, i / 3, uint(20 + i));
    CanvasClipboardContent content{0, Full256, f.palette.id(), nine};
    QApplication::clipboard()->setMimeData(content.toMimeData());
    f.canvas.paste();
    f.drag({{0, 0}});
    const std::array corner{f.at(0, 0), f.at(1, 0), f.at(2, 0), f.at(0, 1), f.at(1, 1)};
    QCOMPARE(corner, (std::array{24, 25, 0, 27, 28}));
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
        CanvasClipboardContent{0, Full256, QUuid(), EditorInput::filled({3, 3}, 20)}.toMimeData());
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

void TestCanvas::paintsTheImageInThePaletteColours()
{
    Fixture f;
    f.canvas.resize(100, 192);
    f.canvas.setInk(0xE0);
    f.drag({{1, 1}});
    f.canvas.setVerticalPosition(1);
    QCOMPARE(f.shown({1, 1}), QColor(255, 0, 0));
    f.palette.setRawColour(0xE0, 0x1C00);
    QCOMPARE(f.shown({1, 1}), QColor(0, 255, 0));
    f.canvas.setMode(Grid, true);
    QVERIFY(f.shown({1, 1}) != QColor(0, 255, 0));
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
