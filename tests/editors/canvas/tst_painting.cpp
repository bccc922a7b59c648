// What editors add to a canvas: how its tools paint, and how its selection moves.

#include "editors/canvas/canvas.h"
#include "editors/canvas/paintsettings.h"
#include "editors/common/raster.h"
#include "ui/outlineband.h"

#include "support/canvasmouse.h"
#include "support/editorinput.h"

#include <QtGui>

using namespace Quenmora::Ui;

namespace {

constexpr QSize ImageSize(9, 6);

/// A drag with a tool.
struct Drag
{
    ToolButton tool;
    QList<QPoint> pixels;
    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers keys{};
};
using Drags = QList<Drag>;

/// A canvas as editors have it, on which ink is 1 and paper 4.
struct Fixture : EditorInput::CanvasScene
{
    PaintOptions options;

    Fixture() : CanvasScene(ImageSize)
    {
        canvas.setPaper(4);
        canvas.setExtended(true);
        canvas.setClickDeselects(true);
    }
    void run(const Drag &drag)
    {
        canvas.setPaintOptions(options);
        if (canvas.mode() != drag.tool)
            canvas.setMode(drag.tool);
        mouse.keys = drag.keys;
        mouse.drag(drag.pixels, drag.button);
    }
    /// Row by row, with a dot for 0 and without the blank rows at the end.
    QString shown() const
    {
        QStringList rows;
        for (int y = 0; y < ImageSize.height(); ++y) {
            rows += QString();
            for (int x = 0; x < ImageSize.width(); ++x)
                rows.last() += canvas.image().pixelIndex(x, y) ? QString::number(canvas.image().pixelIndex(x, y)) : ".";
        }
        return rows.join("/").remove(QRegularExpression("(/[.]+)+$"));
    }
    void setPicture(const QStringList &rows)
    {
        canvas.setImage(pictureOf(ImageSize, QImage::Format_Indexed8, [&rows](int i) {
            return rows.value(i / ImageSize.width()).mid(i % ImageSize.width(), 1).toInt(); // 0 for a dot
        }));
    }
};

using Choose = std::function<void(PaintOptions &)>;

} // namespace

class TestPainting : public QObject
{
    Q_OBJECT

private slots:
    void toolsPaintAsChosen_data()
    {
        addColumns<Choose, QString, Drags, QString>("choose", "before", "drags", "after");
        const Choose nothing = [](PaintOptions &) {};
        const Choose connect = [](PaintOptions &options) { options.connect = true; };
        const Choose perfect = [](PaintOptions &options) { options.connect = options.pixelPerfect = true; };
        const Choose shade = [](PaintOptions &options) { options.shade = true; };
        const auto brush = [](Brush::Shape shape, int size, bool upright = false, bool level = false) {
            return Choose([=](PaintOptions &options) {
                options.brush = {shape, size};
                options.symmetry = {upright, level};
            });
        };
        const auto add = [](const char *name, const Choose &choose, const Drags &drags, const QString &after,
                            const QString &before = {}) { QTest::newRow(name) << choose << before << drags << after; };
        add("as the pointer was seen", nothing, {{Draw, {{0, 0}, {4, 0}}}}, "1...1....");
        add("connected", connect, {{Draw, {{4, 0}, {0, 0}, {0, 2}}, Qt::RightButton}}, "44444..../4......../4........");
        const QList<QPoint> stairs{{0, 0}, {1, 0}, {1, 1}, {2, 1}, {2, 2}, {5, 2}, {5, 0}};
        add("stairs", connect, {{Draw, stairs}}, "11...1.../.11..1.../..1111...");
        add("pixel perfect over something", perfect, {{Draw, stairs}}, "1....1.../3133.1.../..111....", "/3333");
        add("square of 3", brush(Brush::Square, 3), {{Draw, {{1, 1}}}}, "111....../111....../111......");
        add("round of 3 over the edge", brush(Brush::Round, 3), {{Draw, {{0, 1}}}}, "1......../11......./1........");
        add("a line of 2 by 2", brush(Brush::Square, 2), {{Line, {{1, 1}, {4, 1}}}}, "11111..../11111....");
        add("left and right", brush(Brush::Square, 2, true), {{Draw, {{1, 1}}}}, "11.....11/11.....11");
        add("top and bottom", brush(Brush::Square, 1, false, true), {{RectangleFill, {{0, 0}, {1, 0}}}},
            "11......./........./........./........./........./11.......");
        add("four corners", brush(Brush::Square, 1, true, true), {{Fill, {{0, 0}}}},
            "111111111/111111111/111111111/111111111/111111111/111111111");
        add("shade", shade,
            {{Draw, {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {3, 0}, {6, 0}}},
             {Draw, {{3, 0}, {7, 0}}, Qt::RightButton}},
            ".1133567.", "01234567");
        add("filled circle", nothing, {{CircleFill, {{0, 0}, {4, 2}}}}, ".111...../11111..../.111.....");
        add("straight line", nothing,
            {{Line, {{0, 0}, {5, 1}}, Qt::LeftButton, Qt::ShiftModifier},
             {Line, {{0, 2}, {4, 5}}, Qt::LeftButton, Qt::ShiftModifier}},
            "111111.../........./1......../.1......./..1....../...1.....");
        add("square", nothing, {{Rectangle, {{4, 3}, {2, 2}}, Qt::LeftButton, Qt::ShiftModifier}},
            "........./..111..../..1.1..../..111....");
        add("from stroke to stroke", nothing,
            {{Draw, {{8, 5}, {0, 0}}}, {Draw, {{3, 0}}, Qt::LeftButton, Qt::ShiftModifier}},
            "1111...../........./........./........./........./........1");
    }

    void toolsPaintAsChosen()
    {
        QFETCH(Choose, choose);
        QFETCH(QString, before);
        QFETCH(Drags, drags);
        Fixture f;
        f.setPicture(before.split("/"));
        choose(f.options);
        for (const Drag &drag : drags)
            f.run(drag);
        QTEST(f.shown(), "after");
        QCOMPARE(f.edits.size(), drags.size());
    }

    void picturesAreBrushes()
    {
        Fixture f;
        f.setPicture({"....34..", "....43.."});
        f.options.brush = Brush::of(f.canvas.image().copy(4, 0, 2, 2), 4);
        f.options.symmetry.upright = true;
        f.run({Draw, {{1, 1}}});
        f.run({Draw, {{1, 4}}, Qt::RightButton});
        QCOMPARE(f.shown(), "3...34..3/.3..43.3./........./4.......4/.4.....4.");
        f.options.symmetry = {};
        f.canvas.setImageType(Offset16);
        f.canvas.setInk(0x25);
        f.run({Draw, {{1, 5}}});
        QCOMPARE(f.canvas.image().pixelIndex(1, 5), 0x23); // in the group of the ink
        QVERIFY(Brush::of(plainImage({2, 2}, 4), 4).isPixel()); // nothing is left of it
    }

    void filledEllipsesFillTheirOutlines()
    {
        QRandomGenerator random(7);
        for (int i = 0; i < 500; ++i) {
            const QRect rect(random.bounded(-5, 5), random.bounded(-5, 5), random.bounded(1, 40),
                             random.bounded(1, 40));
            QHash<int, QList<int>> outline; // columns by row
            Raster::ellipse(rect, [&](QPoint cell) {
                if (rect.contains(cell))
                    outline[cell.y()] += cell.x();
            });
            int rows = 0;
            Raster::filledEllipse(rect, [&](int y, int left, int right) {
                ++rows;
                const auto [least, most] = std::ranges::minmax(outline.value(y));
                QCOMPARE(std::pair(left, right), std::pair(least, most));
            });
            QCOMPARE(rows, rect.height());
        }
    }

    void selectionsAreMoved()
    {
        Fixture f;
        const QStringList before{"11......3", "1.......3"};
        const QString moved = "44......3/44......3/.11....../.1.......";
        f.setPicture(before);
        f.run({Select, {{0, 0}, {2, 2}}});
        f.mouse.drag({{1, 1}, {8, 0}, {2, 3}});
        QCOMPARE(f.shown(), moved);
        QCOMPARE(f.canvas.selection(), QRect(1, 2, 2, 2));
        f.mouse.drag({{2, 2}, {9, -9}}); // most of it is outside now, and what it covered is back
        QCOMPARE(f.shown(), "44......1/44......3");
        f.mouse.drag({{8, 0}, {1, 3}});
        QCOMPARE(f.shown(), moved);
        f.mouse.keys = Qt::ControlModifier;
        f.mouse.drag({{1, 2}, {5, 2}});
        QCOMPARE(f.shown(), "44......3/44......3/.11..11../.1...1...");
        f.mouse.keys = {};
        QCOMPARE(f.texts(), "Move, Move, Move, Move");
        f.mouse.drag({{6, 3}});
        QVERIFY(!f.canvas.hasSelection());
        QCOMPARE(f.texts(), "Move, Move, Move, Move");
        f.mouse.press({1, 2});
        f.mouse.move({3, 3}, Qt::LeftButton);
        f.canvas.setMode(Draw); // which ends it
        f.mouse.release({3, 3});
        QVERIFY(!f.canvas.isEditing());
    }

    void arrowKeysNudgeTheSelection()
    {
        Fixture f;
        f.setPicture({"1"});
        using Command = PixelEditCommand;
        const auto kinds = [&f] {
            return valuesOf(f.edits, [](const QVariantList &edit) { return int(edit[3].value<Command::Kind>()); });
        };
        f.run({Select, {{0, 0}, {1, 1}}});
        QTest::keyClick(&f.canvas, Qt::Key_Down);
        QTest::keyClick(&f.canvas, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(f.shown(), "4......../........1");
        QCOMPARE(kinds(), (QList<int>{Command::NextNudge, Command::NextNudge})); // one step
        f.run({Select, {{0, 0}, {1, 1}}});
        QTest::keyClick(&f.canvas, Qt::Key_Right);
        QCOMPARE(f.shown(), "44......./........1");
        QCOMPARE(kinds().last(), int(Command::Nudge)); // another
        f.canvas.setImage(plainImage(ImageSize, 3)); // as undo does
        QTest::keyClick(&f.canvas, Qt::Key_Left);
        QCOMPARE(f.shown().section('/', 0, 0), "343333333");
        f.canvas.setMode(Draw);
        QTest::keyClick(&f.canvas, Qt::Key_Left);
        QCOMPARE(f.edits.size(), 4);
    }

    void selectionsAreSeen()
    {
        Fixture f;
        const auto *band = f.canvas.findChild<OutlineBand *>();
        f.canvas.setZoomLevel(32);
        f.canvas.setHorizontalPosition(2);
        f.canvas.setVerticalPosition(2);
        f.canvas.selectAll(); // what is out of sight, too
        QCOMPARE(f.canvas.selection(), QRect(QPoint(), ImageSize));
        QVERIFY(band->isVisible() && band->isOnTheMarch());
        QSet<QRgb> seen;
        QTRY_VERIFY(seen.insert(f.canvas.grab().toImage().pixel(band->x(), 50)) != seen.end() && seen.size() == 2);
        f.canvas.hide();
        QVERIFY(!band->isOnTheMarch());
        f.canvas.show();
        QVERIFY(band->isOnTheMarch());
        f.canvas.selectNone();
        QVERIFY(!band->isVisible() && !band->isOnTheMarch());
    }

    void whatWillBePaintedIsSeen()
    {
        Fixture f;
        QList<QImage> seen;
        f.mouse.move({4, 3});
        for (const auto &[upright, size] : {std::pair(false, 1), {true, 1}, {true, 3}}) {
            f.options.symmetry.upright = upright;
            f.options.brush = {Brush::Square, size};
            f.canvas.setPaintOptions(f.options);
            seen += f.canvas.grab().toImage();
        }
        QVERIFY(seen[0] != seen[1] && seen[1] != seen[2]); // the axis, and the edge of the brush
        f.canvas.setMode(Line);
        f.mouse.press({0, 0});
        f.mouse.move({5, 1}, Qt::LeftButton);
        QSignalSpy drawn(&f.canvas, &Canvas::strokeDrawn);
        QTest::keyPress(&f.canvas, Qt::Key_Shift); // which makes it straight
        QCOMPARE(drawn.count(), 1);
    }

    void aBareCanvasDoesNoneOfThis()
    {
        Fixture f;
        f.canvas.setExtended(false);
        f.run({Line, {{0, 0}, {5, 1}}, Qt::LeftButton, Qt::ShiftModifier});
        const QString drawn = "111....../...111...";
        QCOMPARE(f.shown(), drawn);
        f.run({Select, {{0, 0}, {3, 3}}});
        f.mouse.drag({{1, 1}, {4, 2}});
        QTest::keyClick(&f.canvas, Qt::Key_Down);
        QCOMPARE(f.canvas.selection(), QRect(1, 1, 3, 1));
        QCOMPARE(f.shown(), drawn);
        QVERIFY(!f.canvas.findChild<OutlineBand *>()->isOnTheMarch());
    }

    void habitsAreRemembered()
    {
        PaintSettings settings;
        QSignalSpy habits(&settings, &PaintSettings::habitChanged);
        QVERIFY(settings.options().connect);
        for (const auto choice : {PaintSettings::Connect, PaintSettings::PixelPerfect, PaintSettings::MirrorSides})
            settings.action(choice)->trigger();
        settings.setBrushSize(99);
        QCOMPARE(habits.size(), 2);
        QCOMPARE(settings.options().brush.size(), 16);
        PaintSettings next;
        next.fromJson({{"connectStrokes", "no"}});
        QVERIFY(next.options().connect);
        next.fromJson(settings.toJson());
        QVERIFY(!next.options().connect && next.options().pixelPerfect && !next.options().symmetry.any());
    }
};

QUENMORA_TEST_MAIN(TestPainting)
#include "tst_painting.moc"
