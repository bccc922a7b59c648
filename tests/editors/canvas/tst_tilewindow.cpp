#include "editors/canvas/canvas.h"
#include "editors/canvas/tilewindow.h"
#include "ui/toolpalette.h"

#include "support/editorinput.h"
#include "support/testmain.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QSignalSpy>
#include <QSpinBox>
#include <QUndoStack>

namespace {

/// A set of eight blank tiles, of which the first is shown.
struct Fixture
{
    Palette palette;
    std::unique_ptr<TileSet> tiles{new TileSet(8)};
    QUndoStack stack;
    TileWindow window;
    Canvas &canvas{*window.canvas()};
    EditorInput::Mouse mouse{canvas};
    QSpinBox *offset = nullptr;

    Fixture()
    {
        palette.loadStandardNext();
        tiles->setPalette(&palette);
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setTileSet(tiles.get());
        window.resize(360, 700);
        window.show();
        for (QSpinBox *box : window.findChildren<QSpinBox *>()) {
            if (box->minimum() == 1 && box->maximum() == 16)
                offset = box;
        }
    }
    /// Shows the tile of an index, and draws a pixel on the diagonal.
    void draw(int tile, int pixel)
    {
        window.setTileIndex(tile + 1);
        mouse.drag({{pixel, pixel}});
    }
    /// The pixel on the diagonal of a tile, and of the tile shown.
    int at(int tile, int pixel) const { return tiles->image(tile).pixelIndex(pixel, pixel); }
    int shown(int pixel) const { return canvas.image().pixelIndex(pixel, pixel); }
    QCheckBox *box(const QString &text) const
    {
        for (QCheckBox *box : window.findChildren<QCheckBox *>()) {
            if (box->text() == text)
                return box;
        }
        return nullptr;
    }
};

} // namespace

class TestTileWindow : public QObject
{
    Q_OBJECT

private slots:
    void undoFindsTheTileOfAStroke();
    void scrollsOfOneTileMerge();
    void offsetMovesThePixelsIntoItsBank();
    void structureChangesReloadTheTile();
    void strokeStaysWithItsTile();
    void attributesAreWritten();
    void keysAndToolPaletteReachTheCanvas();
    void showsAPlaceholderWithoutTileSet();
    void paletteChangesTheTileSetsPalette();
};

void TestTileWindow::undoFindsTheTileOfAStroke()
{
    Fixture f;
    QSignalSpy changed(f.tiles.get(), &TileSet::tileChanged);
    f.draw(5, 1);
    QCOMPARE(f.at(5, 1), 1);
    QCOMPARE(changed, (QList<QVariantList>{{5}}));
    f.stack.undo();
    QCOMPARE(f.at(5, 1), 0);
    QCOMPARE(f.shown(1), 0);
    f.stack.redo();
    QCOMPARE(f.shown(1), 1);
    f.draw(6, 2);
    f.stack.undo();
    f.stack.undo();
    QCOMPARE(f.at(5, 1), 0);
    QCOMPARE(f.at(6, 2), 0);
    QCOMPARE(f.window.tileIndex(), 6);
    f.stack.redo();
    QCOMPARE(f.at(5, 1), 1);
    QCOMPARE(f.shown(1), 0);
    QCOMPARE(f.stack.count(), 2);
}

void TestTileWindow::scrollsOfOneTileMerge()
{
    Fixture f;
    f.draw(0, 1);
    f.canvas.setMode(Quenmora::Ui::MoveUp);
    f.canvas.setMode(Quenmora::Ui::MoveLeft);
    QCOMPARE(f.stack.count(), 2);
    f.draw(1, 1);
    f.canvas.setMode(Quenmora::Ui::MoveUp);
    f.window.setTileIndex(1);
    f.canvas.setMode(Quenmora::Ui::MoveUp);
    QCOMPARE(f.stack.count(), 5);
}

void TestTileWindow::offsetMovesThePixelsIntoItsBank()
{
    Fixture f;
    f.draw(0, 1);
    f.canvas.setImageType(Quenmora::Ui::Full256);
    f.canvas.remap(3);
    QCOMPARE(f.shown(1), 1); // only images of 16 colours have banks
    f.canvas.setImageType(Quenmora::Ui::Offset16);
    f.offset->setValue(3);
    QCOMPARE(f.tiles->tileOffset(0), 2);
    QCOMPARE(f.at(0, 1), 0x21);
    QCOMPARE(f.at(0, 0), 0x20);
    QCOMPARE(f.stack.count(), 1);
    f.draw(0, 2);
    QCOMPARE(f.at(0, 2), 0x21);
    QImage picture(1, 1, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QApplication::clipboard()->setImage(picture);
    f.window.paste();
    QCOMPARE(f.canvas.clipboardImage().pixelIndex(0, 0), 0x20); // another program's, in the tile's bank
    f.canvas.setMode(Quenmora::Ui::Draw);
    f.draw(1, 2);
    QCOMPARE(f.at(1, 2), 1);
    f.tiles->setTileOffset(2, std::numeric_limits<int>::max()); // as a file may have it
    f.draw(2, 1);
    QCOMPARE(f.offset->value(), 16);
    QCOMPARE(f.at(2, 1), 0xF1);
}

void TestTileWindow::structureChangesReloadTheTile()
{
    Fixture f;
    f.draw(7, 1);
    f.tiles->moveTile(7, 0);
    QCOMPARE(f.shown(1), 0);
    f.tiles->deleteTile(3);
    QCOMPARE(f.window.tileIndex(), 6);
    const auto before = f.tiles->snapshot();
    f.stack.undo(); // of a tile that is no more
    QCOMPARE(f.tiles->snapshot(), before);
    f.window.setTileIndex(1);
    QCOMPARE(f.shown(1), 1);
    f.tiles->deleteTile(0);
    QCOMPARE(f.shown(1), 0);
    f.tiles->restore(before);
    QCOMPARE(f.shown(1), 1);
}

void TestTileWindow::strokeStaysWithItsTile()
{
    Fixture f;
    f.mouse.press({1, 1});
    f.window.setTileIndex(2);
    f.mouse.release({1, 1});
    QCOMPARE(f.stack.count(), 0);
    QCOMPARE(f.at(1, 1), 0);
}

void TestTileWindow::attributesAreWritten()
{
    Fixture f;
    f.window.setTileIndex(3);
    f.box("Solid on all edges")->click();
    QCOMPARE(f.tiles->tile(2)->attributes(), int(Tile::TA_SOLID));
    QVERIFY(f.box("Solid top")->isChecked());
    f.box("Solid top")->click();
    f.box("Deadly")->click();
    QCOMPARE(f.tiles->tile(2)->attributes(), 0x1E);
    QCOMPARE(f.box("Solid on all edges")->checkState(), Qt::PartiallyChecked);
    f.window.setTileIndex(1);
    QVERIFY(!f.box("Deadly")->isChecked());
    QCOMPARE(f.tiles->tile(0)->attributes(), 0);
}

void TestTileWindow::keysAndToolPaletteReachTheCanvas()
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
    QCOMPARE(f.canvas.mode(), Fill);
    f.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    f.canvas.setFocus();
    QTest::keyClick(&f.canvas, Qt::Key_X);
    QCOMPARE(f.canvas.ink(), 0);
    QCOMPARE(f.canvas.paper(), 1);
}

void TestTileWindow::showsAPlaceholderWithoutTileSet()
{
    Fixture f;
    QSignalSpy states(&f.window, &TileWindow::activeStateChanged);
    f.tiles->setName("Cave");
    QCOMPARE(f.window.windowTitle(), QStringLiteral("Cave"));
    f.mouse.press({1, 1});
    f.tiles.reset();
    QCOMPARE(states, (QList<QVariantList>{{false}}));
    QVERIFY(!f.window.isActive());
    QVERIFY(!f.canvas.isEnabled());
    f.mouse.release({1, 1});
    f.window.cut();
    QCOMPARE(f.stack.count(), 0);
}

void TestTileWindow::paletteChangesTheTileSetsPalette()
{
    Fixture f;
    QCOMPARE(f.canvas.palette(), &f.palette);
    Palette other;
    f.window.setPalette(&other);
    QCOMPARE(f.tiles->palette().data(), &other);
    QCOMPARE(f.canvas.image().colorTable(), other.colourTable());
}

QUENMORA_TEST_MAIN(TestTileWindow)
#include "tst_tilewindow.moc"
