#include "model/map.h"
#include "model/overviewpicture.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/terrain.h"
#include "model/tileset.h"
#include "model/transform.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QRandomGenerator>

#include <bit>

using Cell = TileMap::TileData;

namespace {

constexpr int First = 20; ///< tile of the terrain

/// A terrain that has a tile for every combination of marks that counts, with these marks added to First.
Terrain complete(bool corners)
{
    Terrain terrain;
    terrain.corners = corners;
    for (int marks = 0; marks < 256; ++marks) {
        if (terrain.counted(marks) == marks)
            terrain.mark(First + marks, marks);
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
            alike |= terrain.find(First + seen(tile.marks, {0, turn > 3, turn % 2 == 1, turn / 2 % 2 == 1})) != nullptr;
        if (!alike)
            terrain.mark(tile.index, tile.marks);
    }
    return terrain;
}

} // namespace

class TestTerrain : public QObject
{
    Q_OBJECT

private slots:
    void completeTerrainsAreKnown()
    {
        QCOMPARE(complete(false).tiles.size(), 16);
        QCOMPARE(complete(true).tiles.size(), 47); // as everybody who drew them knows
        QCOMPARE(turning(false).tiles.size(), 6);
        QCOMPARE(turning(true).tiles.size(), 14);
    }

    /// After random strokes every tile shows exactly the neighbours that are of the terrain.
    void paintsMatchingBorders()
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
                        QCOMPARE(seen(painted.index - First, painted), marks);
                    else
                        QVERIFY(!painted.used || painted.index == 5);
                }
            }
        }
    }

    void takesTheNearestTileAndVariesEqualOnes()
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

QUENMORA_TEST_MAIN(TestTerrain)
#include "tst_terrain.moc"
