// What the three editors around a canvas have in common.

#include "ui/toolpalette.h"
#include "undo/paletteorder.h"

#include "support/pixelscenes.h"

#include <QtGui>

using namespace PixelScenes;
using namespace Quenmora::Ui;

namespace {

using MakeScene = std::function<std::unique_ptr<Scene>()>;

void addScenes()
{
    QTest::addColumn<MakeScene>("make");
    QTest::addRow("tiles") << MakeScene([] { return std::make_unique<TileScene>(); });
    QTest::addRow("sprites") << MakeScene([] { return std::make_unique<SpriteScene>(); });
    QTest::addRow("images") << MakeScene([] { return std::make_unique<ImageScene>(); });
}

std::unique_ptr<Scene> fetchScene()
{
    QFETCH(MakeScene, make);
    return make();
}

} // namespace

class TestPixelEditor : public QObject
{
    Q_OBJECT

public:
    /// How a stroke or shape ends.
    enum End { Released, ReleasedElsewhere, Escaped, AnotherTool, AnotherShown };
    Q_ENUM(End)

private slots:
    void editsStayWithTheirElement_data() { addScenes(); }

    void editsStayWithTheirElement()
    {
        const auto scene = fetchScene();
        const EditorInput::Mouse mouse{scene->canvas()};
        mouse.press({1, 1});
        scene->show(1);
        mouse.release({1, 1});
        QVERIFY(scene->stack.count() == 0 && scene->at(1, 1) == 0);

        // undo finds the element, whichever is shown
        const auto pixels = [&scene] { return QList{scene->at(1, 5), scene->at(2, 6), scene->shown(5)}; };
        scene->draw(1, 5);
        scene->stack.undo();
        QCOMPARE(pixels(), (QList{0, 0, 0}));
        scene->stack.redo();
        QCOMPARE(pixels(), (QList{1, 0, 1}));
        scene->draw(2, 6);
        scene->stack.setIndex(0);
        QCOMPARE(pixels(), (QList{0, 0, 0}));
        scene->stack.redo();
        QCOMPARE(pixels(), (QList{1, 0, 0}));
        scene->stack.redo();
        for (const int element : {1, 1, 2, 1}) { // scrolls of one element merge
            scene->show(element);
            scene->canvas().setMode(MoveUp);
        }
        QCOMPARE(scene->stack.count(), 2 + 3);
    }

    void strokesAreSeenElsewhereBeforeTheyEnd_data()
    {
        addColumns<bool, ToolButton, End>("sprites", "tool", "end");
        const auto ends = QMetaEnum::fromType<End>();
        for (const bool sprites : {false, true}) {
            for (const ToolButton tool : {Draw, Line, Rectangle, RectangleFill, Circle, CircleFill}) {
                for (int i = 0; i < ends.keyCount(); ++i)
                    QTest::addRow("%s, tool %d, %s", sprites ? "sprite" : "tile", int(tool), ends.key(i))
                        << sprites << tool << End(ends.value(i));
            }
        }
    }

    void strokesAreSeenElsewhereBeforeTheyEnd()
    {
        QFETCH(bool, sprites);
        QFETCH(ToolButton, tool);
        QFETCH(End, end);
        TileScene tiles;
        SpriteScene bank;
        Scene &scene = sprites ? static_cast<Scene &>(bank) : tiles;
        const auto seen = [&] {
            const QImage picture = sprites ? bank.bank->shownSpriteImage(0, true, false, false)
                                           : tiles.tiles->shownTileImage(0, true, false, false, 2);
            return picture.pixelIndex(picture.width() - 1 - 3, 2); // which is 2, 3 before it is turned
        };
        const int ink = sprites ? 1 : 33;
        scene.canvas().setMode(tool);
        const EditorInput::Mouse mouse{scene.canvas()};
        mouse.press({1, 3});
        mouse.move({2, 3}, Qt::LeftButton);
        QTRY_COMPARE(seen(), ink);
        QCOMPARE(scene.canvas().shownImage().pixelIndex(2, 3), 1); // as the preview repeats it
        QCOMPARE(scene.stored(0).pixelIndex(2, 3), 0);
        switch (end) {
        case Released:
            break;
        case ReleasedElsewhere: {
            const QPointF point = mouse.centreOf({6, 6});
            QMouseEvent move(QEvent::MouseMove, point, scene.canvas().mapToGlobal(point), Qt::NoButton, Qt::NoButton,
                             Qt::NoModifier);
            QSpontaneKeyEvent::setSpontaneous(&move); // of the window system
            QApplication::instance()->notify(&scene.canvas(), &move);
            break;
        }
        case Escaped:
            QTest::keyClick(&scene.canvas(), Qt::Key_Escape);
            break;
        case AnotherTool:
            scene.canvas().setMode(Pick);
            break;
        case AnotherShown:
            scene.show(1);
            break;
        }
        mouse.move({1, 3}, Qt::LeftButton);
        mouse.move({2, 3}, Qt::LeftButton);
        mouse.release({2, 3});
        const bool keepsStroke = tool == Draw && (end == ReleasedElsewhere || end == AnotherTool);
        const bool drawn = end == Released || keepsStroke;
        QCOMPARE(seen(), drawn ? ink : ink - 1);
        QCOMPARE(scene.stored(0).pixelIndex(2, 3), drawn ? 1 : 0);
        QCOMPARE(scene.stack.count(), drawn ? 1 : 0);
        QCOMPARE(scene.stored(1).pixelIndex(2, 3), 0);
    }

    void toolPaletteKeysAndClipboardReachTheCanvas_data() { addScenes(); }

    void toolPaletteKeysAndClipboardReachTheCanvas()
    {
        const auto scene = fetchScene();
        Canvas &canvas = scene->canvas();
        auto *tools = scene->editor().findChild<ToolPalette *>();
        QApplication::clipboard()->clear();
        tools->action(Paste)->trigger();
        QCOMPARE(tools->mode(), Draw); // there is nothing to paste
        scene->target().selectAll();
        scene->target().copy();
        scene->target().paste();
        QCOMPARE(tools->mode(), Paste);
        tools->action(Fill)->trigger();
        QCOMPARE(canvas.mode(), Fill);
        QApplication::clipboard()->setImage(plainPicture({2, 2}, Qt::blue));
        scene->target().paste();
        QCOMPARE(canvas.clipboardImage().pixelIndex(0, 0), 3);
        scene->editor().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&scene->editor()));
        canvas.setFocus();
        QTest::keyClick(&canvas, Qt::Key_X);
        QVERIFY(canvas.ink() == 0 && canvas.paper() == 1);
    }

    void coloursAreReplaced_data() { addScenes(); }

    void coloursAreReplaced()
    {
        const auto scene = fetchScene();
        scene->draw(0, 1);
        scene->draw(0, 5);
        Canvas &canvas = scene->canvas();
        canvas.setPaper(1);
        canvas.setInk(3);
        const auto run = [&canvas](bool selects, const QString &entry) {
            canvas.setMode(Select);
            if (selects)
                EditorInput::Mouse{canvas}.drag({{0, 0}, {3, 3}});
            EditorInput::trigger(*canvas.contextMenu(), entry);
        };
        const auto pixels = [&scene] { return QList{scene->at(0, 0), scene->at(0, 1), scene->at(0, 5)}; };
        run(true, "Replace Colour");
        QCOMPARE(pixels(), (QList{0, 3, 1}));
        run(false, "Replace Colour");
        QCOMPARE(pixels(), (QList{0, 3, 3}));
        QCOMPARE(scene->stack.count(), 4);
        scene->stack.setIndex(2);
        QCOMPARE(pixels(), (QList{0, 1, 1}));
        run(false, "Brush from Selection");
        QVERIFY(canvas.paintOptions().brush.isPixel()); // nothing is selected
        run(true, "Brush from Selection");
        QCOMPARE(canvas.paintOptions().brush.shape(), Brush::Picture);
        QCOMPARE(canvas.mode(), Draw);
    }

    void earlierEditsFollowTheOrderOfThePalette_data() { addScenes(); }

    void earlierEditsFollowTheOrderOfThePalette()
    {
        const auto scene = fetchScene();
        scene->draw(0, 5);
        scene->canvas().setMode(MoveUp);
        PaletteHistory::of(scene->palette).add({{1, 2}, {2, 1}}); // on the stack of another document
        scene->canvas().setMode(MoveUp);
        QCOMPARE(scene->stack.count(), 3); // which merge no more
        scene->stack.setIndex(0);
        scene->stack.redo();
        QCOMPARE(scene->at(0, 5), 2);
    }

    void survivesItsAsset_data() { addScenes(); }

    void survivesItsAsset()
    {
        const auto scene = fetchScene();
        scene->draw(0, 3);
        const EditorInput::Mouse mouse{scene->canvas()};
        mouse.press({5, 5});
        scene->destroy();
        QVERIFY(!scene->canvas().isEnabled());
        scene->canvas().setMode(MoveUp);
        scene->editor().grab();
        const QImage shown = scene->canvas().image();
        scene->stack.undo();
        QCOMPARE(scene->canvas().image(), shown);
        mouse.release({5, 5});
        scene->target().cut();
        QCOMPARE(scene->stack.count(), 1);
    }
};

QUENMORA_TEST_MAIN(TestPixelEditor)
#include "tst_pixeleditor.moc"
