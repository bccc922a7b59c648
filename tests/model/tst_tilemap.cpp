#include "model/tilemap.h"

#include "model/palette.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QtGui>
#include <QtTest>

#include <memory>

namespace {

using TileData = TileMap::TileData;

/// Used cells whose tile indices are the digits of the rows; '.' is a blank cell.
TileMap::Rows digits(const QStringList &rows)
{
    TileMap::Rows result(rows.size());
    for (qsizetype y = 0; y < rows.size(); ++y) {
        for (const QChar digit : rows[y])
            result[y] << (digit == u'.' ? TileData() : TileData{digit.digitValue(), false, false, false, 0, true});
    }
    return result;
}

/// What identifies the storage of a row.
const TileData *storage(const TileMap &map, int row)
{
    return map.rows().at(row).constData();
}

/// Eight random tiles in the standard palette.
struct Tiles
{
    Tiles()
    {
        palette.loadStandardNext();
        set.setPalette(&palette);
        for (int i = 0; i < set.count(); ++i) {
            set.setTileOffset(i, i + 2);
            scribble(i);
        }
    }

    void scribble(int index)
    {
        const auto pixel = [this](int) { return random.bounded(256); };
        set.setTileImage(index, pictureOf({8, 8}, QImage::Format_Indexed8, pixel));
        set.notifyImageChanged(index);
    }

    /// Of few variants, so that many tiles are found as another one was rendered; one in ten does not exist.
    TileData cell()
    {
        const auto flag = [this] { return random.bounded(2) == 1; };
        return {random.bounded(-1, 9), flag(), flag(), flag(), flag() ? 0x1B : 0, random.bounded(4) != 0};
    }

    QRandomGenerator random{20};
    Palette palette;
    TileSet set{8};
};

/// Compares what a map paints with the tile set's own pictures, scaled and put side by side.
void compareWithSlowWay(const TileMap &map, int cellSize, int transparencyIndex)
{
    const QRect view(28, 20, 40, 30); // across blocks, and over the bottom of the grid
    const QRect cells = view & map.bounds();
    QImage screen(view.size() * cellSize + QSize(5, 5), QImage::Format_RGB32);
    screen.fill(Qt::magenta);
    QImage expected = screen;
    QImage rendered = screen;
    QPainter(&rendered).drawImage(3, 2, map.render(cells, qMax(1, cellSize / 8), transparencyIndex));
    {
        QPainter painter(&screen);
        map.paint(painter, {3, 2}, view, cellSize, transparencyIndex);
    }
    QList<QRgb> colours = map.tileSet()->palette()->colourTable();
    for (int i = 0; i < 256; ++i)
        colours[i] &= (i & 15) == transparencyIndex ? RGB_MASK : 0xFFFFFFFFU;
    QPainter painter(&expected);
    for (int i = 0; i < cells.width() * cells.height(); ++i) {
        const QPoint at(i % cells.width(), i / cells.width());
        const auto [index, rotate, flip, mirror, offset, used] = map.cellAt(cells.topLeft() + at);
        QImage tile = plainImage({8, 8}, 0);
        if (used && index >= 0 && index < map.tileSet()->count())
            tile = map.tileSet()->tileImage(index, rotate, flip, mirror, offset);
        // the tile's pixels under the middle of the screen's pixels
        const auto sampled = [cellSize](int x) { return (2 * x + 1) * 4 / cellSize; };
        QImage scaled = pictureOf({cellSize, cellSize}, QImage::Format_Indexed8,
                                  [&](int p) { return tile.pixelIndex(sampled(p % cellSize), sampled(p / cellSize)); });
        scaled.setColorTable(colours);
        painter.drawImage(QPoint(3, 2) + at * cellSize, scaled);
    }
    painter.end();
    QCOMPARE(screen, expected);
    QVERIFY(cellSize % 8 != 0 || rendered == expected);
    QCOMPARE(indices(map.toImage(view)), indices(map.render(view, 1, -1)));
}

} // namespace

class TestTileMap : public QObject
{
    Q_OBJECT

private slots:
    void changesCellsInsideOnly()
    {
        const TileMap large(9999, 9999); // all rows are one, and stay one as far as they are equal
        QVERIFY(large.cellAt({9998, 9998}) == TileData() && storage(large, 0) == storage(large, 9998));
        Tiles tiles;
        TileMap map(4, 4);
        map.setTileSet(&tiles.set);
        const TileData cell{5, true, false, true, 3, true};
        QVERIFY(map.setCell({3, 1}, cell) && !map.setCell({3, 1}, cell));
        for (const QPoint outside : {QPoint(4, 0), QPoint(0, 4), QPoint(-1, 0), QPoint(0, -1)})
            QVERIFY(!map.setCell(outside, cell) && map.cellAt(outside) == TileData());
        map.fill(QRect(-1, 1, 3, 9), 3, true, false, true, true);
        const TileData filled{3, true, false, true, 5, true};
        const TileMap::Row row{filled, filled, {}, {}};
        QVERIFY(map.rows() == (TileMap::Rows{TileMap::Row(4), {filled, filled, {}, cell}, row, row}));
        QCOMPARE(storage(map, 2), storage(map, 3));
    }

    void resizesAround()
    {
        const std::tuple<Qt::Alignment, QPoint, QStringList> cases[] = {
            {Qt::AlignRight, {2, 0}, {"..1234", "..5678", "..9123"}},
            {Qt::AlignHCenter, {-1, 0}, {"23", "67", "12"}},
            {Qt::AlignHCenter, {1, 0}, {".1234..", ".5678..", ".9123.."}},
            {Qt::AlignVCenter, {0, 1}, {"....", "1234", "5678", "9123", "...."}},
            {Qt::AlignBottom | Qt::AlignRight, {-2, -2}, {"23"}},
            {{}, {0, 0}, {"1234.", "5678."}},
        };
        for (const auto &[alignment, offset, rows] : cases) {
            TileMap map(0, 0);
            map.restore(digits({"1234", "5678", "9123"}));
            QCOMPARE(map.resize(QSize(int(rows.first().size()), int(rows.size())), alignment), offset);
            QVERIFY(map.rows() == digits(rows));
        }
    }

    void keepsUnchangedRowsShared()
    {
        TileMap map(2000, 50);
        map.setCell({7, 20}, {4, false, false, false, 6, true});
        const TileMap::Rows before = map.rows();
        map.setCell({8, 30}, {2, false, false, false, 4, true});
        map.shiftTileIndices(3, 1);
        map.swapTiles(6, 7); // no cell shows them
        QCOMPARE(map.cellAt({7, 20}).index, 5);
        for (int y = 0; y < 50; ++y)
            QCOMPARE(storage(map, y) == before[y].constData(), y != 20 && y != 30);
        map.restore(before);
        map.shiftTileIndices(0, 1); // changes every cell, and equal rows still share
        QCOMPARE(map.cellAt({1999, 49}).index, 1);
        map.insertColumn(Quenmora::Begin);
        map.resize(QSize(1000, 60));
        QVERIFY(storage(map, 0) == storage(map, 49) && storage(map, 50) == storage(map, 59));
    }

    void drawsOnFinerDevicesAndWithoutColours()
    {
        Tiles tiles;
        TileMap map(2, 1);
        map.setTileSet(&tiles.set);
        map.setCell({1, 0}, {1, false, false, false, 2, true});
        QImage screen(32, 16, QImage::Format_RGB32); // two pixels of the device are one of the painter
        screen.setDevicePixelRatio(2);
        {
            QPainter painter(&screen);
            map.paint(painter, {0, 0}, map.bounds(), 8, -1);
        }
        screen.setDevicePixelRatio(1);
        QCOMPARE(screen, map.render(map.bounds(), 2, -1).convertToFormat(QImage::Format_RGB32));

        tiles.set.setPalette(nullptr);
        for (int i = 0; i < 2; ++i)
            QTest::ignoreMessage(QtWarningMsg, "_tiles==nullptr");
        QCOMPARE(indices(map.toImage(map.bounds())), QByteArray(128, '\0'));
        const QImage image = map.render(map.bounds(), 1, 0);
        QVERIFY(indices(image) == QByteArray(128, '\0') && image.pixel(0, 0) == qRgba(0, 0, 0, 0));
        QVERIFY(map.render(map.bounds(), INT_MAX, 0).isNull());
    }

    /// Whatever happens between two exchanges of tiles, cells and signals are as if each were done at once.
    void followsAnyOrderOfExchanges()
    {
        QRandomGenerator random(11);
        const auto number = [&random] { return QList{-1, 0, 1, 2, 3, 4, 5, 70000, 70001}.at(random.bounded(9)); };
        TileMap map(3, 4);
        TileMap::Rows cells = map.rows();
        int told = 0;
        int expected = 0;
        connect(&map, &TileMap::tilesChanged, &map, [&told] { ++told; });
        for (int step = 0; step < 3000; ++step) {
            const QPoint at(random.bounded(3), random.bounded(4));
            const int a = number();
            const int b = number();
            switch (random.bounded(12)) {
            case 0:
                cells[at.y()][at.x()] = {a, false, true, false, 3, true};
                map.setCell(at, cells[at.y()][at.x()]);
                break;
            case 1:
                map.shiftTileIndices(3, 1);
                for (TileMap::Row &row : cells) {
                    for (TileMap::TileData &cell : row)
                        cell.index += cell.index >= 3 ? 1 : 0;
                }
                break;
            case 2:
                std::fill(cells.begin(), cells.end(),
                          TileMap::Row(3, TileMap::TileData{a, false, false, false, 0, true}));
                cells[at.y()][at.x()].index = b;
                map.restore(cells);
                ++expected;
                break;
            case 3:
                QCOMPARE(map.rows(), cells);
                break;
            default:
                map.swapTiles(a, b);
                bool changed = false;
                for (TileMap::Row &row : cells) {
                    for (TileMap::TileData &cell : row) {
                        changed |= a != b && (cell.index == a || cell.index == b);
                        cell.index = cell.index == a ? b : cell.index == b ? a : cell.index;
                    }
                }
                expected += changed ? 1 : 0;
            }
            QCOMPARE(told, expected);
        }
    }

    void writesAndReadsCells()
    {
        TileSet tileSet(1);
        tileSet.setId(QUuid(QStringLiteral("{00112233-4455-6677-8899-aabbccddeeff}")));
        TileMap map(2, 1);
        map.setTileSet(&tileSet);
        map.setCell({1, 0}, {258, true, false, true, 0x17, true});
        QCOMPARE(map.toNextData(), QByteArray::fromHex("0000 027b")); // only the bits that the hardware has
        const QByteArray blank(12, '\0');
        const QByteArray cell = QByteArray::fromHex("00000102 01 00000017 01 00 01");
        const QByteArray id = QByteArray::fromHex("00112233445566778899aabbccddeeff");
        QCOMPARE(map.serialise(QRect(1, 0, 3, 1)),
                 QByteArray::fromHex("00000001 00000003") + cell + blank + blank + id);
        QCOMPARE(map.serialise(QRect(-1, -1, 3, 2)),
                 QByteArray::fromHex("00000002 00000003") + blank.repeated(5) + cell + id);
        QCOMPARE(map.serialise(QRect(0, 0, 0, 0)), QByteArray(8, '\0') + id);

        map.restore(digits({"12.", "...", "12.", "12."}));
        const QByteArray data = map.serialise(map.bounds());
        const std::unique_ptr<TileMap> copy(TileMap::fromData(data.chopped(16))); // the id is not read
        QVERIFY(copy && copy->rows() == map.rows() && storage(*copy, 2) == storage(*copy, 3));
    }

    void pastesWhatFits()
    {
        TileSet tileSet(9);
        TileMap source(0, 0);
        source.restore(digits({"123"}));
        source.setTileSet(&tileSet);
        const std::unique_ptr<QMimeData> mimeData(source.toMimeData(source.bounds()));
        const auto [tileSetId, size, cells] = TileMap::readSelection(mimeData.get());
        QVERIFY(size == QSize(3, 1) && tileSetId == tileSet.id() && cells == source.rows().first());
        TileMap target(12, 2);
        for (const QPoint at : {QPoint(10, 0), QPoint(-2, 1), QPoint(5, 2)})
            target.paste(at, mimeData.get());
        // half a header, half a cell, a negative height, 1 in 32 bits
        for (const char *hex :
             {"00000001 000000", "00000001 00000001 0101010101010101010101",
              "ffffffff 00000001 010101010101010101010101", "10000001 10000001 010101010101010101010101"}) {
            mimeData->setData(mimeData->formats().first(), QByteArray::fromHex(hex));
            target.paste({0, 0}, mimeData.get());
            QVERIFY(TileMap::readSelection(mimeData.get()).size.isEmpty());
            QCOMPARE(TileMap::fromData(QByteArray::fromHex(hex)), nullptr);
        }
        QVERIFY(target.rows() == digits({"..........12", "3..........."}));
    }

    /// One grid through every kind of change, each followed by a look at it.
    void drawsLikeTheSlowWay()
    {
        for (const int cellSize : {1, 3, 8, 12, 16}) { // pixels a cell
            Tiles tiles;
            TileMap map(70, 40);
            map.setTileSet(&tiles.set);
            std::unique_ptr<QMimeData> cut;
            const TileMap::Rows rows(50, TileMap::Row(60, {3, true, false, true, 4, true}));
            const auto scatter = [&] {
                for (int i = 0; i < 500; ++i)
                    map.setCell({tiles.random.bounded(70), tiles.random.bounded(40)}, tiles.cell());
            };
            const auto deleteTile = [&] {
                tiles.set.deleteTile(2);
                map.shiftTileIndices(2, -1);
            };
            const std::function<void()> changes[] = {
                [] {},
                scatter,
                [&] { map.fill(QRect(20, 25, 30, 9), 3, true, false, true, true); },
                [&] { cut.reset(map.toMimeData(QRect(10, 10, 20, 20))), map.paste(QPoint(45, 5), cut.get()); },
                [&] { tiles.set.moveTile(1, 5); },
                [&] { tiles.scribble(3); },
                [&] { tiles.palette.setColour(35, QColor(255, 0, 0), false); },
                [&] { map.insertColumn(Quenmora::Begin); },
                [&] { map.insertRow(Quenmora::Begin); },
                deleteTile,
                [&] { map.resize(QSize(60, 45), Qt::AlignCenter); },
                [&] { map.refreshOffsets(); },
                [&] { map.restore(rows); },
                [&] { tiles.set.restore(tiles.set.snapshot().mid(1)); },
            };
            for (const auto &change : changes) {
                change();
                compareWithSlowWay(map, cellSize, cellSize % 3 - 1);
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }
};

QUENMORA_TEST_MAIN(TestTileMap)
#include "tst_tilemap.moc"
