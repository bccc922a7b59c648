#include "model/cellruns.h"
#include "model/map.h"
#include "model/overviewpicture.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/stamp.h"
#include "model/terrain.h"
#include "model/tileset.h"
#include "model/transform.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QtTest>

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

constexpr int FirstTile = 20; ///< tile of the terrain

/// A terrain that has a tile for every combination of marks that counts, with these marks added to FirstTile.
Terrain complete(bool corners)
{
    Terrain terrain;
    terrain.corners = corners;
    for (int marks = 0; marks < 256; ++marks) {
        if (terrain.counted(marks) == marks)
            terrain.mark(FirstTile + marks, marks);
    }
    return terrain;
}

/// The marks as pixels around the middle, in the order of their bits.
constexpr std::array Pixels{QPoint(1, 0), QPoint(2, 0), QPoint(2, 1), QPoint(2, 2),
                            QPoint(1, 2), QPoint(0, 2), QPoint(0, 1), QPoint(0, 0)};

/// The marks that are seen of a tile with these marks as a cell turns it.
int seen(int marks, const Cell &cell)
{
    QImage image = plainImage({3, 3}, 0);
    for (size_t i = 0; i < Pixels.size(); ++i)
        image.setPixel(Pixels[i], marks >> i & 1);
    image = oriented(image, cell.rotate, cell.flip, cell.mirror);
    int result = 0;
    for (size_t i = 0; i < Pixels.size(); ++i)
        result |= image.pixelIndex(Pixels[i]) << i;
    return result;
}

/// The same of a terrain that may turn its tiles: of those that look the same when they are turned, it has one.
Terrain turning(bool corners)
{
    Terrain terrain;
    terrain.corners = corners;
    terrain.turns = true;
    for (const Terrain::Tile &tile : complete(corners).tiles) {
        bool alike = false;
        for (int turn = 0; turn < 8; ++turn)
            alike |=
                terrain.find(FirstTile + seen(tile.marks, {0, turn > 3, turn % 2 == 1, turn / 2 % 2 == 1})) != nullptr;
        if (!alike)
            terrain.mark(tile.index, tile.marks);
    }
    return terrain;
}

} // namespace

/// Stamps, shapes of cells and terrains, with which maps are drawn, and the overview of a map.
class TestMapDrawing : public QObject
{
    Q_OBJECT

private slots:
    void stampsTurnAsAPictureDoes()
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

    void stampsRepeatInAllDirections()
    {
        const Stamp stamp({3, 2}, {{.index = 1}, {.index = 2}, {.index = 3}, {.index = 4}, {.index = 5}, {.index = 6}});
        QCOMPARE(stamp.repeatedAt({10, 5}, {10, 5}).index, 1);
        QCOMPARE(stamp.repeatedAt({9, 4}, {10, 5}).index, 6);
        QCOMPARE(stamp.repeatedAt({-20, 8}, {10, 5}).index, 4);
        QCOMPARE(stamp.slotOf({10, 5}, {10, 5}), QRect(10, 5, 3, 2));
        QCOMPARE(stamp.slotOf({9, 4}, {10, 5}), QRect(7, 3, 3, 2));
        QCOMPARE(stamp.around({10, 5}), QRect(9, 4, 3, 2));
    }

    void stampsGoThroughTheClipboard()
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

    void drawsShapes()
    {
        using namespace CellRuns;
        const QRect all(0, 0, 7, 5);
        const auto draws = [](const char *name, const Runs &runs, const QStringList &shape) {
            const QStringList cells = drawn(runs, {7, 5});
            QVERIFY2(cells == shape, qPrintable(cells.join('\n').prepend(name)));
            QVERIFY2(std::ranges::is_sorted(runs, {}, &TileMap::Run::row), name);
        };
        const QStringList falling{"#......", ".##....", "...#...", "....##.", "......#"};
        draws("line", line({0, 0}, {6, 4}, all), falling);
        draws("line backwards and clipped", line({12, 8}, {0, 0}, all), falling);
        draws("line to the left", line({6, 0}, {0, 4}, all), {"......#", "....##.", "...#...", ".##....", "#......"});
        draws("level line", line({5, 2}, {1, 2}, all), {".......", ".......", ".#####.", ".......", "......."});
        draws("rectangle", rectangle({1, 1, 4, 3}, false, all),
              {".......", ".####..", ".#..#..", ".####..", "......."});
        draws("clipped", rectangle({-3, 1, 6, 9}, false, all), {".......", "###....", "..#....", "..#....", "..#...."});
        draws("thin", rectangle({2, 1, 1, 3}, false, all), {".......", "..#....", "..#....", "..#....", "......."});
        draws("filled", rectangle({4, 3, 9, 9}, true, all), {".......", ".......", ".......", "....###", "....###"});
        draws("ellipse", ellipse({0, 0, 7, 5}, false, all), {".#####.", "#.....#", "#.....#", "#.....#", ".#####."});
        draws("disc", ellipse({1, 0, 5, 5}, true, all), {"..###..", ".#####.", ".#####.", ".#####.", "..###.."});
        draws("low", ellipse({0, 2, 7, 1}, false, all), {".......", ".......", "#######", ".......", "......."});
        draws("narrow", ellipse({3, 0, 2, 4}, false, all), {"...##..", "...##..", "...##..", "...##..", "......."});
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

    void completeTerrainsAreKnown()
    {
        QCOMPARE(complete(false).tiles.size(), 16);
        QCOMPARE(complete(true).tiles.size(), 47); // as everybody who drew them knows
        QCOMPARE(turning(false).tiles.size(), 6);
        QCOMPARE(turning(true).tiles.size(), 14);
    }

    /// After random strokes every tile shows exactly the neighbours that are of the terrain.
    void terrainsHaveMatchingBorders()
    {
        for (const Terrain &terrain : {complete(false), complete(true), turning(false), turning(true)}) {
            const QSize size(9, 7);
            TileMap grid(size);
            for (int x = 0; x < 9; ++x)
                grid.setCell({x, 3}, {.index = 5, .used = true}); // another ground, which stays where it is not painted
            QList<bool> ground(9 * 7, false);
            QRandomGenerator random(7);
            for (int stroke = 0; stroke < 400; ++stroke) {
                const QPoint at(random.bounded(9), random.bounded(7));
                const bool on = random.bounded(3) > 0;
                terrain.paint(grid, at, on, 0);
                ground[at.y() * 9 + at.x()] = on;
                for (int i = 0; i < ground.size(); ++i) {
                    const QPoint cell(i % 9, i / 9);
                    const auto isGround = [&](QPoint way) {
                        const QPoint other = cell + way;
                        return !QRect(QPoint(0, 0), size).contains(other) || ground[other.y() * 9 + other.x()];
                    };
                    int marks = 0;
                    int bit = 1;
                    for (const QPoint way : {QPoint(0, -1), QPoint(1, -1), QPoint(1, 0), QPoint(1, 1), QPoint(0, 1),
                                             QPoint(-1, 1), QPoint(-1, 0), QPoint(-1, -1)}) {
                        const bool side = way.x() == 0 || way.y() == 0;
                        const bool counts =
                            side || (terrain.corners && isGround({way.x(), 0}) && isGround({0, way.y()}));
                        marks |= counts && isGround(way) ? bit : 0;
                        bit *= 2;
                    }
                    const Cell painted = grid.cellAt(cell);
                    if (ground[i])
                        QCOMPARE(seen(painted.index - FirstTile, painted), marks);
                    else
                        QVERIFY(!painted.used || painted.index == 5);
                }
            }
        }
    }

    void terrainsTakeTheNearestTileAndVaryEqualOnes()
    {
        Terrain terrain;
        terrain.corners = true;
        terrain.mark(7, Terrain::All);
        terrain.mark(3, Terrain::East | Terrain::South | Terrain::SouthEast);
        terrain.mark(4, Terrain::All);
        QCOMPARE(terrain.tileFor(Terrain::East | Terrain::South, 0).index, 3); // a corner too much
        QCOMPARE(terrain.tileFor(Terrain::All & ~Terrain::NorthEast, 0).index, 4);
        QCOMPARE(terrain.tileFor(Terrain::All & ~Terrain::NorthEast, 1).index, 7);
        QCOMPARE(Terrain().tileFor(0, 3).index, -1);
        Terrain hill;
        hill.mark(31, Terrain::East | Terrain::South);
        hill.mark(22, Terrain::Sides);
        hill.mark(33, Terrain::North | Terrain::East);
        for (const quint32 choice : {0, 1, 2}) // no border inside, rather none at the left
            QCOMPARE(hill.tileFor(Terrain::North | Terrain::East | Terrain::South, choice).index, 22);
        TileMap grid(5, 5);
        for (int i = 0; i < 25; ++i)
            grid.setCell({i % 5, i / 5}, {.index = i % 2 ? 7 : 4, .used = true});
        const TileMap::Rows before = grid.rows();
        QVERIFY(!terrain.paint(grid, {2, 2}, true, 1)); // what fits stays as it was chosen
        QCOMPARE(grid.rows(), before);

        hill.turns = true; // which finds a mirrored left end, but takes no turned tile where one fits as it is
        QCOMPARE(hill.tileFor(Terrain::West | Terrain::South, 0), (Cell{31, false, false, true, 0, true}));
        QCOMPARE(hill.tileFor(Terrain::North | Terrain::East, 0), (Cell{33, false, false, false, 0, true}));
        TileMap turned(1, 1); // whose surroundings count as ground
        turned.setCell({0, 0}, {22, true, true, false, 3, true});
        QVERIFY(!hill.paint(turned, {0, 0}, true, 0));
    }

    void overviewShowsTheMap()
    {
        Project project;
        const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Colours");
        const QPointer<TileSet> tiles = project.createTileSet("Tiles", palette->id(), 2);
        const QList<QRgb> colours = palette->colourTable();
        for (int i = 0; i < 2; ++i) {
            QImage tile = plainImage({8, 8}, 3 + i);
            tile.setColorTable(colours);
            tiles->setTileImage(i, tile);
        }
        for (const QSize size : {QSize(20, 10), QSize(4000, 2000)}) { // pixels and cells of the map
            const QPointer<Map> map = project.createMap("Level", tiles->id(), size);
            map->setTiles(QRect(QPoint(0, 0), size), 0, false, false, false, true);
            map->setTiles(QRect(QPoint(size.width() / 2, 0), size / 2), 1, false, false, false, true);
            const QImage picture = overviewPicture(*map, {100, 50});
            QCOMPARE(picture.size(), QSize(100, 50));
            for (const auto &[at, index] : {std::pair(QPoint(20, 10), 3), {{80, 10}, 4}, {{80, 40}, 3}})
                QCOMPARE(picture.pixel(at), colours[index]);
        }
    }
};

QUENMORA_TEST_MAIN(TestMapDrawing)
#include "tst_mapdrawing.moc"
