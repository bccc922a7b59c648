#include "model/cellruns.h"
#include "model/stamp.h"
#include "model/transform.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QtGui>

#include <memory>

using Cell = TileMap::TileData;

namespace {

/// A tile of which every pixel is another one.
QImage pictureOf(int tile)
{
    return ::pictureOf({8, 8}, QImage::Format_RGB32, [tile](int i) { return qRgb(tile, i / 8, i % 8); });
}

QImage pictureOf(const Stamp &stamp)
{
    QImage image(stamp.size() * 8, QImage::Format_RGB32);
    QPainter painter(&image);
    for (int y = 0; y < stamp.size().height(); ++y) {
        for (int x = 0; x < stamp.size().width(); ++x) {
            const Cell &cell = stamp.at(x, y);
            painter.drawImage(x * 8, y * 8, oriented(pictureOf(cell.index), cell.rotate, cell.flip, cell.mirror));
        }
    }
    return image;
}

/// The cells of runs as rows of text, # for those that are there.
QStringList drawn(const CellRuns::Runs &runs, QSize size)
{
    QStringList rows(size.height(), QString(size.width(), u'.'));
    for (const TileMap::Run &run : runs)
        rows[run.row].replace(run.column, run.count, QString(run.count, u'#'));
    return rows;
}

} // namespace

class TestStamp : public QObject
{
    Q_OBJECT

private slots:
    void turnsAsAPictureDoes()
    {
        QList<Cell> cells;
        for (int i = 0; i < 8; ++i) // every orientation of a cell
            cells.append({i + 1, (i & 1) != 0, (i & 2) != 0, (i & 4) != 0, i, true});
        const Stamp stamp({4, 2}, cells);
        const QImage picture = pictureOf(stamp);
        for (int turn = 0; turn < 8; ++turn) {
            const bool rotate = turn & 1;
            const bool flip = turn & 2;
            const bool mirror = turn & 4;
            const Stamp turned = stamp.oriented(rotate, flip, mirror);
            QCOMPARE(pictureOf(turned), oriented(picture, rotate, flip, mirror));
            QVERIFY(
                std::ranges::all_of(turned.cells(), [](const Cell &cell) { return cell.offset == cell.index - 1; }));
        }
    }

    void repeatsInAllDirections()
    {
        const Stamp stamp({3, 2}, {{.index = 1}, {.index = 2}, {.index = 3}, {.index = 4}, {.index = 5}, {.index = 6}});
        QCOMPARE(stamp.repeatedAt({10, 5}, {10, 5}).index, 1);
        QCOMPARE(stamp.repeatedAt({9, 4}, {10, 5}).index, 6);
        QCOMPARE(stamp.repeatedAt({-20, 8}, {10, 5}).index, 4);
        QCOMPARE(stamp.slotOf({10, 5}, {10, 5}), QRect(10, 5, 3, 2));
        QCOMPARE(stamp.slotOf({9, 4}, {10, 5}), QRect(7, 3, 3, 2));
        QCOMPARE(stamp.around({10, 5}), QRect(9, 4, 3, 2));
    }

    void goesThroughTheClipboard()
    {
        TileMap grid(4, 3);
        grid.setCell({3, 2}, {7, true, false, true, 3, true});
        const Stamp stamp = Stamp::of(grid, {2, 1, 9, 9}); // as far as there are cells
        const QUuid tiles = QUuid::createUuid();
        const std::unique_ptr<QMimeData> data(stamp.toMimeData(tiles));
        QVERIFY(stamp.size() == QSize(2, 2) && stamp.at(1, 1) == grid.cellAt({3, 2}));
        QCOMPARE(Stamp::fromClipboard(data.get(), tiles), stamp);
        QVERIFY(Stamp::fromClipboard(data.get(), QUuid::createUuid()).isEmpty());
    }

    void drawsShapes_data()
    {
        using namespace CellRuns;
        QTest::addColumn<Runs>("runs");
        QTest::addColumn<QStringList>("shape");
        const QRect all(0, 0, 7, 5);
        const auto add = [](const char *name, const Runs &runs, const QStringList &shape) {
            QTest::newRow(name) << runs << shape;
        };
        const QStringList falling{"#......", ".##....", "...#...", "....##.", "......#"};
        add("line", line({0, 0}, {6, 4}, all), falling);
        add("line backwards and clipped", line({12, 8}, {0, 0}, all), falling);
        add("line to the left", line({6, 0}, {0, 4}, all), {"......#", "....##.", "...#...", ".##....", "#......"});
        add("level line", line({5, 2}, {1, 2}, all), {".......", ".......", ".#####.", ".......", "......."});
        add("rectangle", rectangle({1, 1, 4, 3}, false, all), {".......", ".####..", ".#..#..", ".####..", "......."});
        add("clipped", rectangle({-3, 1, 6, 9}, false, all), {".......", "###....", "..#....", "..#....", "..#...."});
        add("thin", rectangle({2, 1, 1, 3}, false, all), {".......", "..#....", "..#....", "..#....", "......."});
        add("filled", rectangle({4, 3, 9, 9}, true, all), {".......", ".......", ".......", "....###", "....###"});
        add("ellipse", ellipse({0, 0, 7, 5}, false, all), {".#####.", "#.....#", "#.....#", "#.....#", ".#####."});
        add("disc", ellipse({1, 0, 5, 5}, true, all), {"..###..", ".#####.", ".#####.", ".#####.", "..###.."});
        add("low", ellipse({0, 2, 7, 1}, false, all), {".......", ".......", "#######", ".......", "......."});
        add("narrow", ellipse({3, 0, 2, 4}, false, all), {"...##..", "...##..", "...##..", "...##..", "......."});
    }

    void drawsShapes()
    {
        QFETCH(CellRuns::Runs, runs);
        QFETCH(QStringList, shape);
        QCOMPARE(drawn(runs, {7, 5}), shape);
        QVERIFY(std::ranges::is_sorted(runs, {}, &TileMap::Run::row));
    }

    /// Against a search that goes from cell to cell.
    void findsWhatHangsTogether()
    {
        QRandomGenerator random(5);
        for (int round = 0; round < 60; ++round) {
            const QSize size(1 + random.bounded(12), 1 + random.bounded(12));
            TileMap grid(size);
            for (int i = 0; i < size.width() * size.height(); ++i)
                grid.setCell({i % size.width(), i / size.width()},
                             {.index = random.bounded(2), .used = random.bounded(5) > 0});
            const QRect clip = round % 2 ? grid.bounds() : QRect(1, 1, 6, 6);
            const QPoint start(random.bounded(size.width()), random.bounded(size.height()));
            const auto keyOf = [&](QPoint at) { return grid.cellAt(at).used ? grid.cellAt(at).index : -1; };
            QStringList expected(size.height(), QString(size.width(), u'.'));
            QList<QPoint> open{start};
            while (!open.isEmpty()) {
                const QPoint at = open.takeLast();
                if (!(clip & grid.bounds()).contains(at) || expected[at.y()][at.x()] == u'#'
                    || keyOf(at) != keyOf(start))
                    continue;
                expected[at.y()][at.x()] = u'#';
                open += {at + QPoint(1, 0), at - QPoint(1, 0), at + QPoint(0, 1), at - QPoint(0, 1)};
            }
            QCOMPARE(drawn(CellRuns::connected(grid.rows(), start, clip), size), expected);
        }
    }

    void writesRunsAndSharesEqualRows()
    {
        TileMap grid(9, 6);
        const TileMap::Rows blank = grid.rows();
        const auto number = [](QPoint at, std::span<Cell> cells) {
            for (Cell &cell : cells) {
                cell = Cell{.index = at.x() + 10 * (at.y() % 2), .used = true};
                ++at.rx();
            }
        };
        QVERIFY(grid.writeRuns(CellRuns::rectangle({1, 1, 3, 4}, true, grid.bounds()), 2, number));
        QCOMPARE(grid.cellAt({3, 2}).index, 3);
        QCOMPARE(grid.cellAt({1, 3}).index, 11);
        QVERIFY(!grid.cellAt({4, 2}).used && !grid.cellAt({1, 5}).used);
        const TileMap::Rows rows = grid.rows();
        QCOMPARE(rows[1].constData(), rows[3].constData());
        QCOMPARE(rows[5].constData(), blank[5].constData());
        QVERIFY(!grid.writeRuns({{2, 1, 3}}, 0, number)); // the same again
        QCOMPARE(grid.rows()[2].constData(), rows[2].constData());
        QCOMPARE(CellRuns::ofTile(rows, 12), (CellRuns::Runs{{1, 2, 1}, {3, 2, 1}}));
    }
};

QUENMORA_TEST_MAIN(TestStamp)
#include "tst_stamp.moc"
