#include "editors/canvas/tilepickergrid.h"
#include "editors/canvas/tilepickertool.h"
#include "editors/common/dragdata.h"
#include "model/palette.h"

#include "support/editorinput.h"

namespace {

/// A grid of seven tiles, each filled with its own number, in three columns.
struct Fixture
{
    Palette palette;
    TileSet tiles{7};
    TilePickerGrid grid;

    Fixture()
    {
        palette.loadStandardNext();
        tiles.setPalette(&palette);
        for (int i = 0; i < tiles.count(); ++i)
            tiles.setTileImage(i, plainImage({8, 8}, i));
        grid.setTileSet(&tiles);
        grid.setMagnification(2);
        grid.resize(50, grid.heightForWidth(50));
        grid.show();
    }
    void click(QPoint point, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&grid, button, Qt::NoModifier, point);
        grid.contextMenu()->close();
    }
    QByteArray numbers() const
    {
        return indices(tiles.toStrip().copy(0, 0, 1, tiles.count() * 8).scaled(1, tiles.count()));
    }
};

} // namespace

class TestTilePickerGrid : public QObject
{
    Q_OBJECT

private slots:
    void rowsFillTheWidth()
    {
        Fixture f;
        for (const auto &[point, index] : {std::pair(QPoint(17, 17), 4), {{49, 0}, -1}, {{-1, 0}, -1}, {{17, 33}, -1}})
            QCOMPARE(f.grid.indexAt(point), index);
        const QImage shown = f.grid.grab().toImage();
        const QRgb blue = f.palette.colourTable()[1];
        const QList drawn{shown.pixel(16, 0), shown.pixel(30, 14), shown.pixel(31, 0), shown.pixel(16, 15)};
        QCOMPARE(drawn, (QList{blue, blue, qRgb(0, 0, 0), qRgb(0, 0, 0)})); // with gaps
        QCOMPARE(f.grid.heightForWidth(48), 3 * 16);
        QCOMPARE(f.grid.heightForWidth(5), 8 * 16);
    }

    void clicksSelectAndOpen()
    {
        Fixture f;
        QSignalSpy selections(&f.grid, &TilePickerGrid::selectedIndexChanged);
        QSignalSpy opened(&f.grid, &TilePickerGrid::itemDoubleClicked);
        for (const QPoint point : {QPoint(17, 17), QPoint(18, 18), QPoint(49, 0)})
            f.click(point);
        f.grid.setSelectedIndex(2);
        QTest::keyClick(&f.grid, Qt::Key_Down);
        QTest::keyClick(&f.grid, Qt::Key_Down); // there is no tile below
        QCOMPARE(selections, (QList<QVariantList>{{4}, {5}}));
        QTest::mouseDClick(&f.grid, Qt::LeftButton, Qt::NoModifier, {17, 17});
        QCOMPARE(opened, (QList<QVariantList>{{5}}));
    }

    void controlMarksTilesBesideEachOther()
    {
        Fixture f;
        QSignalSpy picked(&f.grid, &TilePickerGrid::tilesPicked);
        QSignalSpy chosen(&f.grid, &TilePickerGrid::selectedIndexChanged);
        // in three columns, the last row of which has one tile; the first begins beside them, the last is a click
        for (const auto &[from, to] : {std::pair(QPoint(20, 40), QPoint(2, 2)),
                                       {{2, 40}, {28, 20}},
                                       {{20, 4}, {300, 300}},
                                       {{20, 4}, {22, 6}}}) {
            QTest::mousePress(&f.grid, Qt::LeftButton, Qt::ControlModifier, from);
            QTest::mouseMove(&f.grid, to);
            QTest::mouseRelease(&f.grid, Qt::LeftButton, Qt::ControlModifier, to);
        }
        using Rows = QList<QList<int>>;
        QCOMPARE(picked.size(), 2);
        QCOMPARE(picked[0][0].value<Rows>(), (Rows{{3, 4}, {6, -1}}));
        QCOMPARE(picked[1][0].value<Rows>(), (Rows{{1, 2}, {4, 5}, {-1, -1}}));
        QCOMPARE(chosen.last(), QVariantList{1});
        QCOMPARE(f.numbers(), QByteArray("\0\1\2\3\4\5\6", 7)); // none was moved
    }

    void magnificationFollowsWheelAndMenu()
    {
        Fixture f;
        EditorInput::zoomByWheel(f.grid, 120);
        QCOMPARE(f.grid.magnification(), 3);
        for (const auto &[text, delta] : {std::pair(QString("16x"), 120), {"1x", -120}}) {
            EditorInput::trigger(*f.grid.contextMenu(), text);
            EditorInput::zoomByWheel(f.grid, delta); // and no further
            for (const QAction *action : f.grid.magnificationActions())
                QCOMPARE(action->isChecked(), action->text() == text);
        }
    }

    void menuEditsTheTileUnderThePointer()
    {
        Fixture f;
        const auto trigger = [&f](QPoint point, const QStringList &entries) {
            f.click(point, Qt::RightButton);
            for (const QString &entry : entries)
                EditorInput::trigger(*f.grid.contextMenu(), entry);
        };
        trigger(f.grid.cellRect(5).center(), {"Paste Image", "Copy Image"}); // there is nothing to paste yet
        trigger(f.grid.cellRect(2).center(), {"Paste Image"});
        QCOMPARE(f.numbers(), QByteArray("\0\1\5\3\4\5\6", 7));
        trigger(f.grid.cellRect(2).center(), {"Clear", "Insert"});
        QCOMPARE(f.numbers(), QByteArray("\0\1\0\0\3\4\5\6", 8));
        trigger(f.grid.cellRect(2).center(), {"Delete", "Delete"});
        trigger({49, 0}, {"Delete"}); // beside them
        QCOMPARE(f.numbers(), QByteArray("\0\1\3\4\5\6", 6));
    }

    void dropMovesOrCopies()
    {
        Fixture f;
        const auto drop = [&f](int from, int to, Qt::KeyboardModifiers modifiers, QMimeData *mimeData) {
            const std::unique_ptr<QMimeData> data(mimeData);
            EditorInput::drop(f.grid, f.grid.cellRect(from).center(), f.grid.cellRect(to).center(), *data, modifiers);
        };
        drop(1, 3, Qt::ShiftModifier, TileDrag{1, 0}.toMimeData());
        QCOMPARE(f.numbers(), QByteArray("\0\1\2\1\4\5\6", 7));
        drop(0, 2, Qt::NoModifier, TileDrag{0, 0}.toMimeData());
        drop(0, 6, Qt::NoModifier, SpriteDrag{0}.toMimeData()); // foreign
        f.click(f.grid.cellRect(4).center()); // what was pressed last is not what another editor drags
        const std::unique_ptr<QMimeData> foreign(TileDrag{4, 0}.toMimeData());
        QVERIFY(EditorInput::dropFromElsewhere(f.grid, f.grid.cellRect(6).center(), *foreign));
        QCOMPARE(f.numbers(), QByteArray("\1\2\0\1\4\5\6", 7));
    }

    void dockScrollsAndSurvivesItsTileSet()
    {
        TilePickerTool dock;
        dock.resize(200, 150);
        dock.show();
        auto tiles = std::make_unique<TileSet>(512);
        dock.setTileSet(tiles.get());
        QVERIFY(dock.isActive());
        dock.setSelectedIndex(500);
        QVERIFY(dock.grid()->visibleRegion().intersects(dock.grid()->cellRect(500)));
        QTest::mousePress(dock.grid(), Qt::LeftButton, Qt::NoModifier, {3, 3});
        tiles.reset();
        QVERIFY(!dock.isActive());
        QTest::mouseMove(dock.grid(), {9, 9});
        QTest::mouseRelease(dock.grid(), Qt::LeftButton, Qt::NoModifier, {9, 9});
        dock.grid()->grab();
        QCOMPARE(dock.grid()->selectedIndex(), -1);
    }
};

QUENMORA_TEST_MAIN(TestTilePickerGrid)
#include "tst_tilepickergrid.moc"
