#include "editors/canvas/canvas.h"
#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/canvasgeometry.h"
#include "editors/canvas/canvasselection.h"
#include "editors/canvas/scrollcanvas.h"

#include "support/canvasmouse.h"
#include "support/editorinput.h"

#include <QtWidgets>

using namespace Quenmora::Ui;

namespace {

constexpr QSize ImageSize(16, 12);

/// A tool or an action, and what is dragged with it.
struct Step
{
    ToolButton mode;
    QList<QPoint> drag{};
    Qt::MouseButton button = Qt::LeftButton;
};
using Steps = QList<Step>;
using Pixels = QList<std::pair<QPoint, int>>;

struct Fixture : EditorInput::CanvasScene
{
    Fixture() : CanvasScene(ImageSize) { canvas.setInk(7); }
    void run(const Step &step)
    {
        canvas.setMode(step.mode);
        if (!step.drag.isEmpty())
            mouse.drag(step.drag, step.button);
    }
    QList<int> at(const QList<QPoint> &pixels) const
    {
        return valuesOf(pixels, [this](QPoint pixel) { return canvas.image().pixelIndex(pixel); });
    }
    QColor shown(QPoint pixel) { return canvas.grab().toImage().pixelColor(mouse.centreOf(pixel)); }
};

CanvasGeometry fitted(int zoom, bool tall, QSize widget)
{
    CanvasGeometry geometry;
    geometry.zoom = zoom;
    geometry.tallPixels = tall;
    geometry.layout(widget, ImageSize);
    return geometry;
}

} // namespace

class TestCanvas : public QObject
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

    void zoomAndScrollStayInBounds()
    {
        Fixture f;
        const CanvasGeometry &geometry = f.canvas.geometryInWidget();
        QSignalSpy amounts(&f.canvas, &Canvas::scrollValuesChanged);
        f.canvas.resize(400, 100);
        QCOMPARE(amounts.last(), QVariantList({16 - 25, 12 - 6}));
        for (int i = 0; i < 20; ++i)
            QTest::keyClick(&f.canvas, Qt::Key_Down);
        QTest::keyClick(&f.canvas, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(geometry.scroll, QPoint(0, 6));
        EditorInput::turnWheel(f.canvas, {200, 50}, {0, 120});
        EditorInput::turnWheel(f.canvas, {10, 50}, {0, 120}); // beside the image
        QCOMPARE(geometry.scroll, QPoint(0, 4));
        f.canvas.resize(256, 192);
        QCOMPARE(geometry.scroll, QPoint(0, 0));
        for (const auto &[level, action, zoom] : {std::tuple(63, ZoomIn, 64), {2, ZoomOut, 1}}) {
            f.canvas.setZoomLevel(level);
            f.canvas.setMode(action);
            EditorInput::zoomByWheel(f.canvas, action == ZoomIn ? 120 : -120); // and no further
            QCOMPARE(f.canvas.zoom(), zoom);
        }
        QTest::ignoreMessage(QtInfoMsg, "PaintCanvas::setMode(CircleFill)");
        f.canvas.setMode(CircleFill);
        QCOMPARE(f.canvas.mode(), Draw);
    }

    void toolsAndActionsMakeOneEditEach_data()
    {
        addColumns<Steps, QString, Pixels>("steps", "texts", "pixels"); // with ink 7 and paper 9
        const Step dot{Draw, {{2, 1}}};
        QTest::addRow("stroke") << Steps{{Draw, {{1, 1}, {4, 1}, {200, 1}, {5, 2}}}} << "Draw"
                                << Pixels{{{1, 1}, 7}, {{2, 1}, 0}, {{4, 1}, 7}, {{5, 2}, 7}};
        QTest::addRow("paper") << Steps{{Draw, {{0, 0}}, Qt::RightButton}} << "Draw" << Pixels{{{0, 0}, 9}};
        QTest::addRow("line") << Steps{{Line, {{0, 0}, {5, 2}}}} << "Line" << Pixels{{{0, 0}, 7}, {{4, 2}, 7}};
        QTest::addRow("outline") << Steps{{Rectangle, {{5, 5}, {2, 3}}}} << "Rectangle"
                                 << Pixels{{{2, 3}, 7}, {{5, 5}, 7}, {{3, 4}, 0}};
        QTest::addRow("ink by the right button") << Steps{{RectangleFill, {{5, 5}, {2, 3}}, Qt::RightButton}}
                                                 << "Filled Rectangle" << Pixels{{{3, 4}, 7}, {{6, 5}, 0}};
        QTest::addRow("circle") << Steps{{Circle, {{0, 0}, {4, 2}}}} << "Circle" << Pixels{{{2, 0}, 7}, {{0, 0}, 0}};
        QTest::addRow("fill") << Steps{{Fill, {{9, 9}}, Qt::RightButton}} << "Fill" << Pixels{{{15, 11}, 9}};
        QTest::addRow("up") << Steps{{Draw, {{2, 0}}}, {MoveUp}} << "Draw, Scroll" << Pixels{{{2, 11}, 7}};
        QTest::addRow("down") << Steps{{Draw, {{2, 11}}}, {MoveDown}} << "Draw, Scroll" << Pixels{{{2, 0}, 7}};
        QTest::addRow("left") << Steps{{Draw, {{0, 3}}}, {MoveLeft}} << "Draw, Scroll" << Pixels{{{15, 3}, 7}};
        QTest::addRow("right") << Steps{{Draw, {{15, 3}}}, {MoveRight}} << "Draw, Scroll" << Pixels{{{0, 3}, 7}};
        QTest::addRow("clockwise") << Steps{dot, {RotateCW}} << "Draw, Rotate" << Pixels{{{14, 2}, 7}};
        QTest::addRow("back") << Steps{{Draw, {{5, 4}}}, {RotateCCW}} << "Draw, Rotate" << Pixels{{{4, 10}, 7}};
        QTest::addRow("flip") << Steps{dot, {Flip}} << "Draw, Flip" << Pixels{{{2, 10}, 7}};
        QTest::addRow("mirror") << Steps{dot, {Mirror}} << "Draw, Mirror" << Pixels{{{13, 1}, 7}};
        QTest::addRow("nothing new") << Steps{{MoveUp}, dot, dot, {Fill, dot.drag}} << "Draw" << Pixels{{{2, 1}, 7}};
    }

    void toolsAndActionsMakeOneEditEach()
    {
        QFETCH(Steps, steps);
        QFETCH(Pixels, pixels);
        Fixture f;
        f.palette.fill(Qt::black, false); // indices of one colour are different pixels all the same
        f.canvas.setPaper(9);
        for (const Step &step : steps)
            f.run(step);
        QTEST(f.texts(), "texts");
        for (const auto &[pixel, index] : pixels)
            QCOMPARE(f.canvas.image().pixelIndex(pixel), index);
    }

    void interruptedDragsLoseNothing()
    {
        Fixture f;
        const auto pressBoth = [&f](QPoint first, QPoint second, QPoint last) {
            f.mouse.press(first);
            f.mouse.press(second, Qt::RightButton, Qt::LeftButton);
            f.mouse.release(second, Qt::LeftButton, Qt::RightButton);
            f.mouse.release(last, Qt::RightButton);
        };
        f.mouse.press({1, 1});
        f.canvas.setImage(plainImage(ImageSize, 0)); // of another tile
        f.mouse.move({2, 1}, Qt::LeftButton);
        f.mouse.release({2, 1});
        QCOMPARE(f.texts(), "");
        pressBoth({1, 1}, {5, 5}, {5, 5});
        QCOMPARE(f.texts(), "Draw, Draw");
        for (const ToolButton action : {Line, MoveUp}) {
            f.canvas.setMode(Draw);
            f.mouse.press({9, action == Line ? 9 : 8});
            f.canvas.setMode(action);
            f.mouse.move({3, 3}, Qt::LeftButton);
            f.mouse.release({3, 3});
        }
        f.run({Line, {}});
        pressBoth({2, 2}, {2, 2}, {9, 9});
        QCOMPARE(f.texts(), "Draw, Draw, Draw, Draw, Scroll, Line");
    }

    void pickTakesInkAndPaper()
    {
        Fixture f;
        SignalLog log;
        log.listen(f.canvas, &Canvas::foregroundPicked, "fore");
        log.listen(f.canvas, &Canvas::backgroundPicked, "back");
        f.canvas.setInk(200);
        f.run({RectangleFill, {{1, 1}, {3, 3}}});
        QSignalSpy hovered(&f.canvas, &Canvas::pixelHovered);
        f.mouse.move({2, 2});
        f.mouse.move({-3, 2});
        QCOMPARE(hovered, (QList<QVariantList>{{QPoint(2, 2), 200}, {CanvasPointer::Nowhere, -1}}));
        f.canvas.setInk(1);
        for (const auto &[pixel, button] :
             {std::pair(QPoint(3, 3), Qt::RightButton), {{3, 3}, Qt::LeftButton}, {{-3, 3}, Qt::LeftButton}})
            f.run({Pick, {pixel}, button});
        QCOMPARE(log.take(), (QStringList{"back 200", "fore 200"}));
        QCOMPARE(f.canvas.ink(), 200);
    }

    void selectionStaysOnItsPixels()
    {
        Fixture f;
        const auto *band = f.canvas.findChild<QRubberBand *>();
        f.run({Select, {{2, 1}, {4, 4}}});
        f.canvas.setZoomLevel(1);
        f.canvas.setZoomLevel(32);
        QTest::keyClick(&f.canvas, Qt::Key_Right);
        f.canvas.setHorizontalPosition(4); // as a scroll bar does
        QCOMPARE(f.canvas.selection(), QRect(2, 1, 2, 3));
        QCOMPARE(band->geometry(), QRect(32, -96, 64, 96));
        f.canvas.setZoomLevel(16);
        f.canvas.selectAll();
        QCOMPARE(f.canvas.selection(), QRect(QPoint(), ImageSize));
        QVERIFY(f.shown({5, 5}) == Qt::black && f.canvas.grab().toImage().pixelColor(4, 0) == Qt::white);
        f.canvas.setMode(Draw);
        QVERIFY(!f.canvas.hasSelection() && !band->isVisible());
    }

    void clickSelectsNothing()
    {
        for (const bool deselects : {false, true}) {
            Fixture f;
            f.canvas.setClickDeselects(deselects);
            const auto *band = f.canvas.findChild<QRubberBand *>();
            f.run({Select, {{2, 1}, {4, 4}}});
            f.mouse.drag({{9, 9}}, Qt::MiddleButton);
            QVERIFY(f.canvas.hasSelection());
            f.mouse.drag({{3, 3}});
            QCOMPARE(std::pair(f.canvas.hasSelection(), band->isVisible()), std::pair(false, !deselects));
            f.canvas.copy();
            QCOMPARE(QApplication::clipboard()->image().size(), ImageSize);
            EditorInput::trigger(*f.canvas.contextMenu(), "Fill");
            QCOMPARE(f.texts(), "");
            f.canvas.setZoomLevel(1);
            f.mouse.drag({{3, 3}});
            QCOMPARE(f.canvas.selection(), deselects ? QRect() : QRect(3, 3, 1, 1));
        }
    }

    void menuActsOnTheSelection()
    {
        Fixture f;
        const auto trigger = [&f](const QString &text) { EditorInput::trigger(*f.canvas.contextMenu(), text); };
        f.canvas.setInk(0xE0);
        f.canvas.setPaper(6);
        f.mouse.drag({{2, 1}});
        f.run({Select, {{2, 1}, {4, 3}}});
        trigger("Copy");
        trigger("Cut");
        QCOMPARE(f.at({{2, 1}, {3, 2}, {4, 3}}), (QList{6, 6, 0}));
        trigger("Fill");
        QCOMPARE(f.at({{2, 1}, {4, 3}}), (QList{0xE0, 0}));
        QCOMPARE(f.texts(), "Draw, Erase, Fill");
        QCOMPARE(QApplication::clipboard()->image().pixelColor(0, 0), QColor(Qt::red)); // for others
        trigger("Paste");
        QCOMPARE(f.canvas.mode(), Paste);
        QVERIFY(!f.canvas.hasSelection());
        QCOMPARE(indices(f.canvas.clipboardImage()), QByteArray("\xE0\0\0\0", 4));
    }

    void survivesItsEndUnderTheMenu()
    {
        const QPointer canvas(new Canvas(ImageSize));
        canvas->resize(256, 192);
        canvas->show();
        canvas->setMode(Select);
        QTimer::singleShot(0, canvas, &QObject::deleteLater);
        QTest::mouseClick(canvas, Qt::RightButton, Qt::NoModifier, {20, 20});
        QTRY_VERIFY(!canvas);
    }

    void pasteIsCentredAndClipped()
    {
        Fixture f;
        const QImage nine = pictureOf({3, 3}, QImage::Format_Indexed8, [](int i) { return 20 + i; });
        for (const QUuid &palette : {f.palette.id(), QUuid::createUuid()}) {
            const CanvasClipboardContent content{0, Full256, palette, nine};
            QApplication::clipboard()->setMimeData(content.toMimeData());
            if (palette != f.palette.id())
                QTest::ignoreMessage(QtInfoMsg, "Pasting to image with different palette");
            f.canvas.paste();
        }
        f.mouse.drag({{0, 0}});
        QCOMPARE(f.at({{0, 0}, {1, 0}, {2, 0}, {0, 1}, {1, 1}}), (QList{24, 25, 0, 27, 28}));
        QCOMPARE(f.canvas.mode(), Paste);
    }

    void otherProgramsPicturesArePastedOnRequest()
    {
        Fixture f;
        QApplication::clipboard()->setImage(
            pictureOf({5000, 2}, QImage::Format_RGB32, [](int i) { return i == 1 ? qRgb(0, 0, 0) : qRgb(0, 0, 255); }));
        f.canvas.paste();
        QCOMPARE(f.canvas.mode(), Draw);
        f.canvas.setPictureColours(16, 16); // greens with more and more blue, four times four
        f.canvas.paste();
        QCOMPARE(f.canvas.mode(), Paste);
        QCOMPARE(f.canvas.clipboardImage().size(), QSize(16, 2)); // as much as the image has room for
        QCOMPARE(indices(f.canvas.clipboardImage()).left(3), QByteArray("\x13\x10\x13"));
    }

    void damagedClipboardIsRefused()
    {
        const std::unique_ptr<QMimeData> good(
            CanvasClipboardContent{0, Full256, QUuid(), plainImage({3, 3}, 20)}.toMimeData());
        const QByteArray bytes = good->data("quenmora/canvas-anim");
        const QByteArray unknownType = QByteArray(bytes).replace(4, 4, QByteArray("\x7f\0\0\0", 4));
        const QByteArray vast = QByteArray(bytes).replace(24 + 16, 8, "\x7f\xff\xff\xff\x7f\xff\xff\xff");
        Fixture f;
        f.canvas.setPictureColours(0, 256);
        for (const QByteArray &damaged :
             {QByteArray(), bytes.left(10), bytes.left(24), bytes.left(40), unknownType, vast}) {
            auto *mimeData = new QMimeData;
            mimeData->setData("quenmora/canvas-anim", damaged);
            mimeData->setImageData(plainImage({3, 3}, 0));
            QApplication::clipboard()->setMimeData(mimeData);
            f.canvas.paste();
            QCOMPARE(f.canvas.mode(), Draw);
            QVERIFY(f.canvas.clipboardImage().isNull());
        }
    }

    void paintsImageAndPreviewInThePaletteColours()
    {
        Fixture f;
        f.canvas.setInk(255);
        f.canvas.setMode(Line);
        f.mouse.press({0, 0});
        f.mouse.move({7, 0}, Qt::LeftButton);
        QCOMPARE(f.shown({4, 0}), QColor(Qt::white));
        QCOMPARE(f.texts(), "");
        f.mouse.release({7, 0});
        f.mouse.move({0, 9});
        QCOMPARE(f.shown({0, 5}), QColor(Qt::black)); // no line any more
        f.palette.setRawColour(255, 0x1C00);
        QCOMPARE(f.shown({4, 0}), QColor(0, 255, 0));
        f.canvas.setMode(Grid, true);
        QVERIFY(f.shown({4, 0}) != QColor(0, 255, 0));
    }

    void scrollBarsFollowTheCanvas()
    {
        auto *canvas = new Canvas(ImageSize);
        ScrollCanvas scroller(canvas);
        scroller.resize(300, 110);
        scroller.show();
        auto bars = scroller.findChildren<QScrollBar *>(); // the horizontal one first
        std::ranges::sort(bars, {}, &QScrollBar::orientation);
        QVERIFY(!bars[0]->isVisible() && bars[1]->isVisible());
        QCOMPARE(bars[1]->maximum(), 6);
        bars[1]->setValue(4);
        QCOMPARE(canvas->geometryInWidget().scroll, QPoint(0, 4));
        QTest::keyClick(canvas, Qt::Key_Down);
        QCOMPARE(bars[1]->value(), 5);
    }
};

QUENMORA_TEST_MAIN(TestCanvas)
#include "tst_canvas.moc"
