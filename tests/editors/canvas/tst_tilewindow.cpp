#include "editors/canvas/canvas.h"
#include "editors/canvas/tilewindow.h"
#include "ui/toolpalette.h"

#include "support/editorinput.h"
#include "support/testmain.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QSignalSpy>
#include <QSpinBox>
#include <QUndoStack>

namespace {

struct Fixture
{
    Palette palette;
    TileSet tiles{8};
    QUndoStack stack;
    TileWindow window;

    Fixture()
    {
        palette.loadStandardNext();
        tiles.setPalette(&palette);
        for (int i = 0; i < tiles.count(); ++i)
            tiles.clearImage(i);
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setTileSet(&tiles);
        window.setPalette(&palette);
        window.resize(360, 700);
        window.show();
    }
    Canvas &canvas() { return *window.canvas(); }
    void draw(QPoint pixel) { EditorInput::clickPixel(canvas(), pixel); }
    int at(int tile, int x, int y) const { return tiles.image(tile).pixelIndex(x, y); }
    template <typename Widget, typename Predicate>
    Widget *find(Predicate matches) const
    {
        const auto all = window.findChildren<Widget *>();
        const auto found = std::find_if(all.begin(), all.end(), matches);
        return found == all.end() ? nullptr : *found;
    }
    QSpinBox *offset() const
    {
        return find<QSpinBox>([](auto *box) { return box->minimum() == 1 && box->maximum() == 16; });
    }
    QCheckBox *box(const QString &text) const
    {
        return find<QCheckBox>([&text](auto *box) { return box->text() == text; });
    }
};

} // namespace

class TestTileWindow : public QObject
{
    Q_OBJECT

private slots:
    void strokesReachTheTileAndUndo();
    void undoOfAnotherTileLeavesTheCanvas();
    void scrollsOfOneTileMerge();
    void offsetMovesThePixelsIntoItsBank();
    void structureChangesReloadTheTile();
    void undoOfADeletedTileIsHarmless();
    void strokeStaysWithItsTile();
    void absurdOffsetsAreShownAsTheLastBank();
    void attributesAreWritten();
    void xSwapsTheColours();
    void toolPaletteShowsTheToolInUse();
    void showsAPlaceholderWithoutTileSet();
    void paletteChangesTheTileSetsPalette();
};

void TestTileWindow::strokesReachTheTileAndUndo()
{
    Fixture f;
    QSignalSpy changed(&f.tiles, &TileSet::tileChanged);
    f.draw({3, 2});
    QCOMPARE(f.at(0, 3, 2), 1);
    QCOMPARE(changed, (QList<QVariantList>{{0}}));
    QCOMPARE(f.stack.undoText(), QStringLiteral("Draw"));
    f.stack.undo();
    QCOMPARE(f.at(0, 3, 2), 0);
    QCOMPARE(f.canvas().image().pixelIndex(3, 2), 0);
    f.stack.redo();
    QCOMPARE(f.at(0, 3, 2), 1);
    QCOMPARE(f.stack.count(), 1);
}

void TestTileWindow::undoOfAnotherTileLeavesTheCanvas()
{
    Fixture f;
    f.window.setTileIndex(6);
    QCOMPARE(f.window.tileIndex(), 5);
    f.draw({1, 1});
    f.window.setTileIndex(7);
    f.draw({2, 2});
    f.stack.undo();
    f.stack.undo();
    QCOMPARE(f.at(5, 1, 1), 0);
    QCOMPARE(f.at(6, 2, 2), 0);
    QCOMPARE(f.window.tileIndex(), 6);
    f.stack.redo();
    QCOMPARE(f.at(5, 1, 1), 1);
    QCOMPARE(f.canvas().image().pixelIndex(1, 1), 0);
}

void TestTileWindow::scrollsOfOneTileMerge()
{
    Fixture f;
    f.draw({1, 1});
    f.canvas().setMode(Quenmora::Ui::MoveUp);
    f.canvas().setMode(Quenmora::Ui::MoveLeft);
    QCOMPARE(f.stack.count(), 2);
    f.window.setTileIndex(2);
    f.draw({1, 1});
    f.canvas().setMode(Quenmora::Ui::MoveUp);
    f.window.setTileIndex(1);
    f.canvas().setMode(Quenmora::Ui::MoveUp);
    QCOMPARE(f.stack.count(), 5);
}

void TestTileWindow::offsetMovesThePixelsIntoItsBank()
{
    Fixture f;
    f.draw({1, 1});
    f.canvas().setImageType(Quenmora::Ui::Full256);
    f.canvas().remap(3);
    QCOMPARE(f.canvas().image().pixelIndex(1, 1), 1); // only images of 16 colours have banks
    f.canvas().setImageType(Quenmora::Ui::Offset16);
    f.offset()->setValue(3);
    QCOMPARE(f.tiles.tileOffset(0), 2);
    QCOMPARE(f.at(0, 1, 1), 0x21);
    QCOMPARE(f.at(0, 0, 0), 0x20);
    QCOMPARE(f.stack.count(), 1);
    f.draw({2, 2});
    QCOMPARE(f.at(0, 2, 2), 0x21);
    f.window.setTileIndex(2);
    QCOMPARE(f.offset()->value(), 1);
    f.draw({2, 2});
    QCOMPARE(f.at(1, 2, 2), 1);
}

void TestTileWindow::structureChangesReloadTheTile()
{
    Fixture f;
    f.window.setTileIndex(8);
    f.draw({1, 1});
    f.tiles.moveTile(7, 0);
    QCOMPARE(f.canvas().image().pixelIndex(1, 1), 0);
    f.tiles.deleteTile(3);
    QCOMPARE(f.window.tileIndex(), 6);
    f.window.setTileIndex(1);
    QCOMPARE(f.canvas().image().pixelIndex(1, 1), 1);
    const auto before = f.tiles.snapshot();
    f.tiles.deleteTile(0);
    QCOMPARE(f.canvas().image().pixelIndex(1, 1), 0);
    f.tiles.restore(before);
    QCOMPARE(f.canvas().image().pixelIndex(1, 1), 1);
}

void TestTileWindow::undoOfADeletedTileIsHarmless()
{
    Fixture f;
    f.window.setTileIndex(8);
    f.draw({1, 1});
    f.tiles.deleteTile(7);
    const auto before = f.tiles.snapshot();
    f.stack.undo();
    QCOMPARE(f.tiles.snapshot(), before);
}

void TestTileWindow::strokeStaysWithItsTile()
{
    Fixture f;
    QTest::mousePress(&f.canvas(), Qt::LeftButton, Qt::NoModifier, f.canvas().rect().center());
    f.window.setTileIndex(2);
    QTest::mouseRelease(&f.canvas(), Qt::LeftButton, Qt::NoModifier, f.canvas().rect().center());
    QCOMPARE(f.stack.count(), 0);
    QCOMPARE(f.tiles.image(1), f.tiles.image(2));
}

void TestTileWindow::absurdOffsetsAreShownAsTheLastBank()
{
    Fixture f;
    f.tiles.setTileOffset(1, std::numeric_limits<int>::max());
    f.window.setTileIndex(2);
    QCOMPARE(f.offset()->value(), 16);
    f.draw({1, 1});
    QCOMPARE(f.at(1, 1, 1), 0xF1);
}

void TestTileWindow::attributesAreWritten()
{
    Fixture f;
    f.window.setTileIndex(3);
    f.box("Solid on all edges")->click();
    QCOMPARE(f.tiles.tile(2)->attributes(), int(Tile::TA_SOLID));
    QVERIFY(f.box("Solid top")->isChecked());
    f.box("Solid top")->click();
    f.box("Deadly")->click();
    QCOMPARE(f.tiles.tile(2)->attributes(), 0x1E);
    QCOMPARE(f.box("Solid on all edges")->checkState(), Qt::PartiallyChecked);
    f.window.setTileIndex(1);
    QVERIFY(!f.box("Deadly")->isChecked());
    QCOMPARE(f.tiles.tile(0)->attributes(), 0);
}

void TestTileWindow::xSwapsTheColours()
{
    Fixture f;
    f.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    f.canvas().setFocus();
    QTest::keyClick(&f.canvas(), Qt::Key_X);
    QCOMPARE(f.canvas().ink(), 0);
    QCOMPARE(f.canvas().paper(), 1);
}

void TestTileWindow::toolPaletteShowsTheToolInUse()
{
    using namespace Quenmora::Ui;
    Fixture f;
    auto *tools = f.window.findChild<ToolPalette *>();
    QApplication::clipboard()->clear();
    tools->action(Paste)->trigger();
    QCOMPARE(tools->mode(), Draw); // there is nothing to paste
    tools->action(Select)->trigger();
    f.window.selectAll();
    f.window.copy();
    f.window.paste();
    QCOMPARE(tools->mode(), Paste);
    tools->action(Fill)->trigger();
    QCOMPARE(f.canvas().mode(), Fill);
}

void TestTileWindow::showsAPlaceholderWithoutTileSet()
{
    Palette palette;
    QUndoStack stack;
    TileWindow window;
    window.setUndoStackProvider([&stack](const QUuid &) { return &stack; });
    window.resize(360, 700);
    window.show();
    QSignalSpy states(&window, &TileWindow::activeStateChanged);
    QVERIFY(!window.isActive());
    {
        TileSet tiles(4);
        tiles.setName("Cave");
        tiles.setPalette(&palette);
        window.setTileSet(&tiles);
        window.setPalette(&palette);
        QCOMPARE(window.windowTitle(), QStringLiteral("Cave"));
        QTest::mousePress(window.canvas(), Qt::LeftButton, Qt::NoModifier, window.canvas()->rect().center());
    }
    QCOMPARE(states, (QList<QVariantList>{{true}, {false}}));
    QVERIFY(!window.isActive());
    QVERIFY(!window.canvas()->isEnabled());
    QMouseEvent release(QEvent::MouseButtonRelease, {3, 3}, {3, 3}, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(window.canvas(), &release);
    window.cut();
    QCOMPARE(stack.count(), 0);
}

void TestTileWindow::paletteChangesTheTileSetsPalette()
{
    Fixture f;
    Palette other;
    f.window.setPalette(&other);
    QCOMPARE(f.tiles.palette().data(), &other);
    QCOMPARE(f.canvas().palette(), &other);
    QCOMPARE(f.canvas().image().colorTable(), other.colourTable());
}

QUENMORA_TEST_MAIN(TestTileWindow)
#include "tst_tilewindow.moc"
