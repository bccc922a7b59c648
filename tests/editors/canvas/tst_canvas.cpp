#include "editors/canvas/canvas.h"
#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/scrollcanvas.h"

#include "support/editorinput.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QClipboard>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

using namespace Quenmora::Ui;

namespace {

constexpr QSize ImageSize(16, 12);

/// A canvas of 16 x 12 pixels in a widget that it fills exactly at zoom 16.
struct Fixture
{
    Palette palette;
    Canvas canvas{ImageSize};
    EditorInput::Mouse mouse{canvas};
    QSignalSpy edits{&canvas, &Canvas::edited};

    Fixture()
    {
        palette.loadStandardNext();
        canvas.bindPalette(&palette);
        canvas.resize(256, 192);
        canvas.show();
    }
    const CanvasGeometry &geometry() const { return canvas.geometryInWidget(); }
    int at(int x, int y) const { return canvas.image().pixelIndex(x, y); }
    QColor shown(QPoint pixel) { return canvas.grab().toImage().pixelColor(mouse.centreOf(pixel)); }
    QStringList texts() const
    {
        QStringList texts;
        for (const QVariantList &edit : edits)
            texts += edit[0].toString();
        return texts;
    }
};

/// Puts data of the canvases' own format on the clipboard.
void copyBytes(const QByteArray &bytes)
{
    auto *mimeData = new QMimeData;
    mimeData->setData("quenmora/canvas-anim", bytes);
    mimeData->setImageData(QImage(3, 3, QImage::Format_RGB32));
    QApplication::clipboard()->setMimeData(mimeData);
}

} // namespace

class TestCanvas : public QObject
{
    Q_OBJECT

private slots:
    void layoutCentresOrScrolls();
    void zoomStaysInItsRange();
    void strokeSetsOnlyThePixelsUnderThePointer();
    void rightButtonDrawsPaperAndShapesDrawInk();
    void onlyChangedIndicesAreAnEdit();
    void interruptedStrokesAreNotLost_data();
    void interruptedStrokesAreNotLost();
    void dragsEndWithTheirImageAndShape();
    void actionsMovePixelsAsOneEdit();
    void pickTakesInkAndPaper();
    void selectionStaysOnItsPixels();
    void menuActsOnTheSelection();
    void survivesItsEndUnderTheMenu();
    void pasteIsCentredAndClipped();
    void otherProgramsPicturesArePastedOnRequest();
    void damagedClipboardIsRefused_data();
    void damagedClipboardIsRefused();
    void paintsImageAndPreviewInThePaletteColours();
    void scrollBarsFollowTheCanvas();
};

void TestCanvas::layoutCentresOrScrolls()
{
    Fixture f;
    QSignalSpy amounts(&f.canvas, &Canvas::scrollValuesChanged);
    f.canvas.resize(400, 100);
    QCOMPARE(f.geometry().imageRect, QRect(72, 2, 256, 96));
    QCOMPARE(amounts.last(), QVariantList({16 - 25, 12 - 6}));
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(&f.canvas, Qt::Key_Down);
    QTest::keyClick(&f.canvas, Qt::Key_Right);
    QTest::keyClick(&f.canvas, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(f.geometry().scroll, QPoint(0, 6));
    f.canvas.resize(256, 192);
    QCOMPARE(f.geometry().scroll, QPoint(0, 0));
    f.canvas.setTallPixels(true);
    f.canvas.setZoomLevel(8);
    QCOMPARE(f.geometry().imageRect, QRect(64, 0, 128, 192));
    QCOMPARE(f.geometry().pixelAt({64, 10}), QPoint(0, 0));
    QCOMPARE(f.geometry().pixelAt({64 + 127, 17}), QPoint(15, 1));
    f.canvas.setZoomLevel(1);
    f.canvas.setImage(plainImage({97, 4}, 0));
    f.canvas.resize(100, 100);
    QCOMPARE(f.geometry().imageRect, QRect(2, 46, 97, 8)); // 100 / 2 - 97 / 2
}

void TestCanvas::zoomStaysInItsRange()
{
    Fixture f;
    const auto zoomAfter = [&f](int level, ToolButton action) {
        f.canvas.setZoomLevel(level);
        f.canvas.setMode(action);
        return f.canvas.zoom();
    };
    QCOMPARE(zoomAfter(63, ZoomIn), 64);
    QCOMPARE(zoomAfter(64, ZoomIn), 64);
    QCOMPARE(zoomAfter(2, ZoomOut), 1);
    EditorInput::zoomByWheel(f.canvas, -120);
    QCOMPARE(f.canvas.zoom(), 1);
    EditorInput::zoomByWheel(f.canvas, 120);
    QCOMPARE(f.canvas.zoom(), 3);
    QTest::ignoreMessage(QtInfoMsg, "PaintCanvas::setMode(CircleFill)");
    f.canvas.setMode(CircleFill);
    QCOMPARE(f.canvas.mode(), Draw);
}

void TestCanvas::strokeSetsOnlyThePixelsUnderThePointer()
{
    Fixture f;
    QSignalSpy changes(&f.canvas, &Canvas::imageChanged);
    const QImage before = f.canvas.image();
    f.mouse.drag({{1, 1}, {4, 1}, {200, 1}, {5, 2}});
    const std::array drawn{f.at(1, 1), f.at(2, 1), f.at(4, 1), f.at(5, 2)};
    QCOMPARE(drawn, (std::array{1, 0, 1, 1}));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(f.texts(), QStringList{"Draw"});
    QCOMPARE(f.edits[0][1].value<QImage>(), before);
    QCOMPARE(f.edits[0][2].value<QImage>(), f.canvas.image());
}

void TestCanvas::rightButtonDrawsPaperAndShapesDrawInk()
{
    Fixture f;
    f.canvas.setInk(7);
    f.canvas.setPaper(9);
    f.mouse.drag({{0, 0}}, Qt::RightButton);
    f.canvas.setMode(RectangleFill);
    f.mouse.drag({{5, 5}, {2, 3}}, Qt::RightButton);
    QCOMPARE(f.canvas.cursorPixel(), QPoint(2, 3)); // where the pointer is, though the drag is over
    const std::array drawn{f.at(0, 0), f.at(2, 3), f.at(5, 5), f.at(6, 5)};
    QCOMPARE(drawn, (std::array{9, 7, 7, 0}));
    f.canvas.setMode(Fill);
    f.mouse.drag({{10, 10}}, Qt::RightButton);
    QCOMPARE(f.at(15, 11), 9);
    QCOMPARE(f.at(3, 4), 7);
}

void TestCanvas::onlyChangedIndicesAreAnEdit()
{
    Fixture f;
    f.palette.fill(Qt::black, false); // indices of one colour are different pixels all the same
    f.canvas.setInk(0);
    f.mouse.drag({{1, 1}, {2, 1}});
    f.canvas.setMode(MoveUp);
    QVERIFY(f.edits.isEmpty());
    f.canvas.setInk(1);
    f.mouse.drag({{1, 1}});
    f.canvas.setMode(Fill);
    f.mouse.drag({{1, 1}});
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
    Fixture f;
    f.canvas.setPaper(9);
    QImage reached = f.canvas.image();
    f.mouse.press({1, 1});
    if (action == Draw) {
        f.mouse.press({5, 5}, Qt::RightButton, Qt::LeftButton);
        f.mouse.release({5, 5}, Qt::LeftButton, Qt::RightButton);
        f.mouse.release({5, 5}, Qt::RightButton);
    } else {
        f.canvas.setMode(action);
        f.mouse.move({3, 3}, Qt::LeftButton);
        f.mouse.release({3, 3});
    }
    QTEST(f.texts(), "texts");
    // Every step begins where the one before ended, so that undo comes back to the blank image.
    for (const QVariantList &edit : std::as_const(f.edits)) {
        QCOMPARE(edit[1].value<QImage>(), reached);
        reached = edit[2].value<QImage>();
    }
    QCOMPARE(f.canvas.image(), reached);
}

void TestCanvas::dragsEndWithTheirImageAndShape()
{
    Fixture f;
    f.mouse.press({1, 1});
    f.canvas.setImage(plainImage(ImageSize, 4));
    f.mouse.move({2, 1}, Qt::LeftButton);
    f.mouse.release({2, 1});
    QCOMPARE(f.at(2, 1), 4);
    f.canvas.setMode(Line);
    f.mouse.press({2, 2});
    f.mouse.press({2, 2}, Qt::RightButton, Qt::LeftButton);
    f.mouse.release({2, 2}, Qt::LeftButton, Qt::RightButton);
    f.mouse.release({9, 9}, Qt::RightButton);
    QCOMPARE(f.texts(), QStringList{"Line"});
    QCOMPARE(f.at(5, 5), 4);
}

void TestCanvas::actionsMovePixelsAsOneEdit()
{
    const struct
    {
        ToolButton action;
        QString text;
        PixelEditCommand::Kind kind;
        QPoint dot, moved;
    } actions[] = {
        {MoveUp, "Scroll", PixelEditCommand::Scroll, {2, 0}, {2, 11}},
        {MoveDown, "Scroll", PixelEditCommand::Scroll, {2, 11}, {2, 0}},
        {MoveLeft, "Scroll", PixelEditCommand::Scroll, {0, 3}, {15, 3}},
        {MoveRight, "Scroll", PixelEditCommand::Scroll, {15, 3}, {0, 3}},
        {RotateCW, "Rotate", PixelEditCommand::None, {2, 1}, {14, 2}},
        {RotateCCW, "Rotate", PixelEditCommand::None, {5, 4}, {4, 10}},
        {Flip, "Flip", PixelEditCommand::None, {2, 1}, {2, 10}},
        {Mirror, "Mirror", PixelEditCommand::None, {2, 1}, {13, 1}},
    };
    for (const auto &[action, text, kind, dot, moved] : actions) {
        Fixture f;
        f.mouse.drag({dot});
        f.canvas.setMode(action);
        QCOMPARE(f.texts(), (QStringList{"Draw", text}));
        QCOMPARE(f.edits[1][3].value<PixelEditCommand::Kind>(), kind);
        QVERIFY2(f.at(moved.x(), moved.y()) == 1, qPrintable(QDebug::toString(action)));
        QCOMPARE(f.canvas.mode(), Draw);
    }
}

void TestCanvas::pickTakesInkAndPaper()
{
    Fixture f;
    f.canvas.setInk(200);
    f.mouse.drag({{3, 3}});
    f.canvas.setInk(1);
    QSignalSpy fore(&f.canvas, &Canvas::foregroundPicked);
    QSignalSpy back(&f.canvas, &Canvas::backgroundPicked);
    f.canvas.setMode(Pick);
    f.mouse.drag({{3, 3}});
    f.mouse.drag({{3, 3}}, Qt::RightButton);
    f.mouse.drag({{-3, 3}});
    QCOMPARE(fore, (QList<QVariantList>{{200}}));
    QCOMPARE(back, (QList<QVariantList>{{200}}));
    QCOMPARE(f.canvas.ink(), 200);
}

void TestCanvas::selectionStaysOnItsPixels()
{
    Fixture f;
    f.canvas.setMode(Select);
    f.mouse.drag({{2, 1}, {4, 4}});
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

void TestCanvas::menuActsOnTheSelection()
{
    Fixture f;
    const auto trigger = [&f](const QString &text) { EditorInput::trigger(*f.canvas.contextMenu(), text); };
    f.canvas.setInk(0xE0);
    f.canvas.setPaper(6);
    f.mouse.drag({{2, 1}});
    f.canvas.setMode(Select);
    f.mouse.drag({{2, 1}, {4, 3}});
    trigger("Copy");
    QCOMPARE(f.at(2, 1), 0xE0);
    trigger("Cut");
    const std::array erased{f.at(2, 1), f.at(3, 2), f.at(4, 3)};
    QCOMPARE(erased, (std::array{6, 6, 0}));
    trigger("Fill");
    QCOMPARE(f.at(3, 2), 0xE0);
    QCOMPARE(f.texts(), (QStringList{"Draw", "Erase", "Fill"}));
    const auto forOthers = QApplication::clipboard()->mimeData()->imageData().value<QImage>();
    QCOMPARE(forOthers.pixelColor(0, 0), QColor(Qt::red));
    trigger("Paste");
    QCOMPARE(f.canvas.mode(), Paste);
    QVERIFY(!f.canvas.hasSelection());
    QCOMPARE(indices(f.canvas.clipboardImage()), QByteArray("\xE0\0\0\0", 4));
}

void TestCanvas::survivesItsEndUnderTheMenu()
{
    const QPointer canvas(new Canvas(ImageSize));
    canvas->resize(256, 192);
    canvas->show();
    canvas->setMode(Select);
    QTimer::singleShot(0, canvas, &QObject::deleteLater);
    QTest::mouseClick(canvas, Qt::RightButton, Qt::NoModifier, {20, 20});
    QTRY_VERIFY(!canvas);
}

void TestCanvas::pasteIsCentredAndClipped()
{
    Fixture f;
    QImage nine = plainImage({3, 3}, 0);
    for (int i = 0; i < 9; ++i)
        nine.setPixel(i % 3, i / 3, uint(20 + i));
    CanvasClipboardContent content{0, Full256, f.palette.id(), nine};
    QApplication::clipboard()->setMimeData(content.toMimeData());
    f.canvas.paste();
    f.mouse.drag({{0, 0}});
    const std::array corner{f.at(0, 0), f.at(1, 0), f.at(2, 0), f.at(0, 1), f.at(1, 1)};
    QCOMPARE(corner, (std::array{24, 25, 0, 27, 28}));
    QCOMPARE(f.canvas.mode(), Paste);
    content.paletteId = QUuid::createUuid();
    QApplication::clipboard()->setMimeData(content.toMimeData());
    QTest::ignoreMessage(QtInfoMsg, "Pasting to image with different palette");
    f.canvas.setMode(Paste);
}

void TestCanvas::otherProgramsPicturesArePastedOnRequest()
{
    Fixture f;
    QImage picture(5000, 2, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    picture.setPixelColor(1, 0, Qt::black);
    QApplication::clipboard()->setImage(picture);
    f.canvas.paste();
    QCOMPARE(f.canvas.mode(), Draw);
    f.canvas.setPictureColours(16, 16); // greens with more and more blue, four times four
    f.canvas.paste();
    QCOMPARE(f.canvas.mode(), Paste);
    QCOMPARE(f.canvas.clipboardImage().size(), QSize(16, 2)); // as much as the image has room for
    QCOMPARE(indices(f.canvas.clipboardImage()).left(3), QByteArray("\x13\x10\x13"));
}

void TestCanvas::damagedClipboardIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const std::unique_ptr<QMimeData> good(
        CanvasClipboardContent{0, Full256, QUuid(), plainImage({3, 3}, 20)}.toMimeData());
    const QByteArray bytes = good->data("quenmora/canvas-anim");
    QTest::addRow("empty") << QByteArray();
    QTest::addRow("short") << bytes.left(10);
    QTest::addRow("no picture") << bytes.left(24);
    QTest::addRow("cut picture") << bytes.left(40);
    QTest::addRow("unknown type") << QByteArray(bytes).replace(4, 4, QByteArray("\x7f\0\0\0", 4));
    QTest::addRow("vast picture") << QByteArray(bytes).replace(24 + 16, 8, "\x7f\xff\xff\xff\x7f\xff\xff\xff");
}

void TestCanvas::damagedClipboardIsRefused()
{
    QFETCH(QByteArray, bytes);
    Fixture f;
    f.canvas.setPictureColours(0, 256);
    copyBytes(bytes);
    f.canvas.paste();
    QCOMPARE(f.canvas.mode(), Draw);
    QVERIFY(f.canvas.clipboardImage().isNull());
}

void TestCanvas::paintsImageAndPreviewInThePaletteColours()
{
    Fixture f;
    f.canvas.setInk(255);
    f.canvas.setMode(Line);
    f.mouse.press({0, 0});
    f.mouse.move({7, 0}, Qt::LeftButton);
    QCOMPARE(f.shown({4, 0}), QColor(Qt::white));
    QCOMPARE(f.at(4, 0), 0);
    f.mouse.release({7, 0});
    QCOMPARE(f.at(4, 0), 255);
    f.mouse.move({0, 9});
    QCOMPARE(f.shown({0, 5}), QColor(Qt::black));
    f.canvas.resize(100, 192);
    f.canvas.setVerticalPosition(1);
    QCOMPARE(f.shown({4, 0}), QColor(Qt::white));
    f.palette.setRawColour(255, 0x1C00);
    QCOMPARE(f.shown({4, 0}), QColor(0, 255, 0));
    f.canvas.setMode(Grid, true);
    QVERIFY(f.shown({4, 0}) != QColor(0, 255, 0));
}

void TestCanvas::scrollBarsFollowTheCanvas()
{
    auto *canvas = new Canvas(ImageSize);
    ScrollCanvas scroller(canvas);
    scroller.resize(300, 110);
    scroller.show();
    auto bars = scroller.findChildren<QScrollBar *>();
    if (bars[0]->orientation() == Qt::Horizontal)
        bars.swapItemsAt(0, 1);
    QVERIFY(bars[0]->isVisible());
    QVERIFY(!bars[1]->isVisible());
    QCOMPARE(bars[0]->maximum(), 6);
    bars[0]->setValue(4);
    QCOMPARE(canvas->geometryInWidget().scroll, QPoint(0, 4));
    QTest::keyClick(canvas, Qt::Key_Down);
    QCOMPARE(bars[0]->value(), 5);
}

QUENMORA_TEST_MAIN(TestCanvas)
#include "tst_canvas.moc"
