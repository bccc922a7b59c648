#include "editors/canvas/dragdata.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/canvas/tilepickertool.h"
#include "model/palette.h"

#include "support/editorinput.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QWheelEvent>

namespace {

/// A grid of count tiles, each filled with its own number.
struct Fixture
{
    Palette palette;
    TileSet tiles;
    TilePickerGrid grid;

    explicit Fixture(int count) : tiles(count)
    {
        palette.loadStandardNext();
        for (int i = 0; i < count; ++i)
            tiles.setTileImage(i, EditorInput::filled({8, 8}, i));
        tiles.setPalette(&palette);
        emit palette.colourChanged(1, palette.colour(1), false);
        grid.setTileSet(&tiles);
        grid.setMagnification(2);
        grid.resize(50, grid.heightForWidth(50));
        grid.show();
    }
    int numberAt(int index) const { return tiles.image(index).pixelIndex(0, 0); }
    void trigger(const QString &text) { EditorInput::trigger(*grid.contextMenu(), text); }
    void openMenuAt(QPoint point)
    {
        QTest::mouseClick(&grid, Qt::RightButton, Qt::NoModifier, point);
        grid.contextMenu()->close();
    }
    void drop(int from, int to, Qt::KeyboardModifiers modifiers, QMimeData *data)
    {
        EditorInput::drop(grid, grid.cellRect(from).center(), grid.cellRect(to).center(), *data, modifiers);
        delete data;
    }
    QString numbers() const
    {
        QStringList numbers;
        for (int i = 0; i < tiles.count(); ++i)
            numbers += QString::number(numberAt(i));
        return numbers.join(' ');
    }
};

} // namespace

class TestTilePickerGrid : public QObject
{
    Q_OBJECT

private slots:
    void layoutFillsTheWidth();
    void clicksSelectAndOpen();
    void magnificationFollowsWheelAndMenu();
    void menuEditsTheTileUnderThePointer();
    void dropMovesOrCopies();
    void drawsTilesWithGaps();
    void survivesItsTileSet();
    void dragDataIsChecked();
    void dockForwardsAndScrolls();
};

void TestTilePickerGrid::layoutFillsTheWidth()
{
    Fixture f(7);
    QCOMPARE(f.grid.cellRect(4), QRect(16, 16, 16, 16));
    const std::pair<QPoint, int> hits[] = {{{17, 17}, 4}, {{49, 0}, -1}, {{-1, 0}, -1}, {{17, 33}, -1}};
    for (const auto &[point, index] : hits)
        QCOMPARE(f.grid.indexAt(point), index);
    QCOMPARE(f.grid.heightForWidth(48), 3 * 16);
    QCOMPARE(f.grid.heightForWidth(5), 8 * 16);
    f.grid.setTileSet(nullptr);
    QCOMPARE(f.grid.heightForWidth(50), 32);
}

void TestTilePickerGrid::clicksSelectAndOpen()
{
    Fixture f(7);
    QSignalSpy selections(&f.grid, &TilePickerGrid::selectedIndexChanged);
    QSignalSpy opened(&f.grid, &TilePickerGrid::itemDoubleClicked);
    QTest::mouseClick(&f.grid, Qt::LeftButton, Qt::NoModifier, f.grid.cellRect(4).center());
    QTest::mouseClick(&f.grid, Qt::LeftButton, Qt::NoModifier, f.grid.cellRect(4).center());
    QTest::mouseClick(&f.grid, Qt::LeftButton, Qt::NoModifier, {49, 0});
    f.grid.setSelectedIndex(2);
    QTest::keyClick(&f.grid, Qt::Key_Down);
    QCOMPARE(selections, (QList<QVariantList>{{4}, {5}}));
    QTest::mouseDClick(&f.grid, Qt::LeftButton, Qt::NoModifier, f.grid.cellRect(4).center());
    QCOMPARE(opened, (QList<QVariantList>{{5}}));
}

void TestTilePickerGrid::magnificationFollowsWheelAndMenu()
{
    Fixture f(7);
    const auto wheel = [&f](int delta) {
        QWheelEvent event({1, 1}, f.grid.mapToGlobal(QPointF(1, 1)), {}, {0, delta}, Qt::NoButton, Qt::ControlModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&f.grid, &event);
    };
    const auto checked = [&f] {
        QStringList texts;
        for (const QAction *action : f.grid.magnificationActions()) {
            if (action->isChecked())
                texts += action->text();
        }
        return texts.join(' ');
    };
    QCOMPARE(checked(), QStringLiteral("2x"));
    wheel(120);
    QCOMPARE(f.grid.magnification(), 3);
    QCOMPARE(checked(), QString());
    f.trigger("16x");
    wheel(120);
    QCOMPARE(f.grid.magnification(), 16);
    f.trigger("16x");
    QCOMPARE(checked(), QStringLiteral("16x"));
    f.trigger("1x");
    f.trigger("Zoom Out");
    QCOMPARE(f.grid.magnification(), 1);
    QCOMPARE(checked(), QStringLiteral("1x"));
}

void TestTilePickerGrid::menuEditsTheTileUnderThePointer()
{
    Fixture f(7);
    f.openMenuAt(f.grid.cellRect(5).center());
    f.trigger("Paste Image"); // nothing was copied yet
    f.trigger("Copy Image");
    f.openMenuAt(f.grid.cellRect(2).center());
    f.trigger("Paste Image");
    QCOMPARE(f.numbers(), QStringLiteral("0 1 5 3 4 5 6"));
    f.trigger("Clear");
    f.trigger("Insert");
    QCOMPARE(f.numbers(), QStringLiteral("0 1 0 0 3 4 5 6"));
    f.trigger("Delete");
    f.trigger("Delete");
    f.openMenuAt({49, 0});
    f.trigger("Delete");
    QCOMPARE(f.numbers(), QStringLiteral("0 1 3 4 5 6"));
}

void TestTilePickerGrid::dropMovesOrCopies()
{
    Fixture f(7);
    f.drop(1, 3, Qt::ShiftModifier, TileDrag{1, 0}.toMimeData());
    QCOMPARE(f.numbers(), QStringLiteral("0 1 2 1 4 5 6"));
    f.drop(0, 2, Qt::NoModifier, TileDrag{0, 0}.toMimeData());
    QCOMPARE(f.numbers(), QStringLiteral("1 2 0 1 4 5 6"));
    f.drop(0, 6, Qt::ControlModifier, TileDrag{0, 0}.toMimeData());
    f.drop(0, 6, Qt::NoModifier, SpriteDrag{0}.toMimeData()); // foreign
    QCOMPARE(f.numbers(), QStringLiteral("1 2 0 1 4 5 6"));
}

void TestTilePickerGrid::drawsTilesWithGaps()
{
    Fixture f(4);
    const QImage shown = f.grid.grab().toImage();
    QCOMPARE(shown.pixelColor(16, 0), QColor::fromRgb(f.palette.colourTable()[1]));
    QCOMPARE(shown.pixelColor(30, 14), QColor::fromRgb(f.palette.colourTable()[1]));
    QCOMPARE(shown.pixelColor(31, 0), QColor(Qt::black));
    QCOMPARE(shown.pixelColor(16, 15), QColor(Qt::black));
}

void TestTilePickerGrid::survivesItsTileSet()
{
    TilePickerTool dock;
    dock.resize(200, 200);
    dock.show();
    {
        TileSet tiles(20);
        dock.setTileSet(&tiles);
        QVERIFY(dock.isActive());
        dock.setSelectedIndex(3);
        QTest::mousePress(dock.grid(), Qt::LeftButton, Qt::NoModifier, {3, 3});
    }
    QVERIFY(!dock.isActive());
    QTest::mouseMove(dock.grid(), {9, 9});
    QTest::mouseRelease(dock.grid(), Qt::LeftButton, Qt::NoModifier, {9, 9});
    dock.grid()->grab();
    QCOMPARE(dock.grid()->selectedIndex(), -1);
}

void TestTilePickerGrid::dragDataIsChecked()
{
    const std::unique_ptr<QMimeData> tile(TileDrag{300, 5}.toMimeData());
    QCOMPARE(tile->data(TileDrag::mimeType()), QByteArray("\0\0\x01\x2c\0\0\0\x05", 8));
    QCOMPARE(TileDrag::fromMimeData(tile.get())->offset, 5);
    QMimeData cut;
    cut.setData(TileDrag::mimeType(), QByteArray("\0\0\x01\x2c", 4));
    QVERIFY(!TileDrag::fromMimeData(&cut));
    QVERIFY(!SpriteDrag::fromMimeData(&cut));
}

void TestTilePickerGrid::dockForwardsAndScrolls()
{
    TileSet tiles(512);
    tiles.setName("Forest");
    TilePickerTool dock;
    dock.resize(200, 150);
    dock.show();
    dock.setTileSet(&tiles);
    QSignalSpy selected(&dock, &TilePickerTool::selectedTileChanged);
    dock.setSelectedIndex(500);
    QVERIFY(selected.isEmpty());
    QVERIFY(!dock.grid()->visibleRegion().intersected(dock.grid()->cellRect(500)).isEmpty());
}

QUENMORA_TEST_MAIN(TestTilePickerGrid)
#include "tst_tilepickergrid.moc"
