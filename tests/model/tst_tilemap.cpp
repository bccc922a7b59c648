#include "model/tilemap.h"

#include "model/palette.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QMimeData>
#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

#include <memory>

namespace {

using TileData = TileMap::TileData;

const QString MimeType = QStringLiteral("quenmora-map-toNextData");

/// A grid of used cells whose tile indices are the digits of the rows; '.' is a blank cell.
std::unique_ptr<TileMap> fromDigits(const QStringList &rows)
{
    auto map = std::make_unique<TileMap>(int(rows.first().size()), int(rows.size()));
    for (int y = 0; y < map->height(); ++y) {
        for (int x = 0; x < map->width(); ++x) {
            if (rows[y][x] != QLatin1Char('.'))
                map->setCell({x, y}, {rows[y][x].digitValue(), false, false, false, 0, true});
        }
    }
    return map;
}

QStringList toDigits(const TileMap &map)
{
    QStringList rows;
    for (int y = 0; y < map.height(); ++y) {
        QString row;
        for (int x = 0; x < map.width(); ++x) {
            const TileData cell = map.cellAt({x, y});
            row += cell == TileData() ? QLatin1Char('.') : QLatin1Char(char('0' + cell.index));
        }
        rows << row;
    }
    return rows;
}

/// How many different storages the rows of a grid have.
qsizetype storages(const TileMap &map)
{
    QSet<const TileData *> found;
    const TileMap::Rows rows = map.rows();
    for (const TileMap::Row &row : rows)
        found.insert(row.constData());
    return found.size();
}

/// Eight random tiles in the standard palette.
struct Tiles
{
    explicit Tiles(QRandomGenerator &random)
    {
        palette.loadStandardNext();
        set.setPalette(&palette);
        for (int i = 0; i < set.count(); ++i) {
            scribble(i, random);
            set.setTileOffset(i, i + 2);
        }
    }

    void scribble(int index, QRandomGenerator &random)
    {
        QImage image = plainImage({8, 8}, 0);
        for (int i = 0; i < 64; ++i)
            image.setPixel(i % 8, i / 8, random.bounded(256));
        set.setTileImage(index, image);
        set.notifyImageChanged(index);
    }

    Palette palette;
    TileSet set{8};
};

TileData randomCell(QRandomGenerator &random)
{
    // one in ten names a tile that does not exist
    return {random.bounded(-1, 9),  random.bounded(2) == 1, random.bounded(2) == 1,
            random.bounded(2) == 1, random.bounded(16),     random.bounded(4) != 0};
}

/// The cells of a view at 8 pixels a cell, put together from the tile set's own pictures.
QImage naivePicture(const TileMap &map, const QRect &view)
{
    QImage picture = plainImage(view.size() * 8, 0);
    for (int i = 0; i < view.width() * view.height(); ++i) {
        const QPoint at(i % view.width(), i / view.width());
        const TileData cell = map.cellAt(view.topLeft() + at);
        if (!cell.used || cell.index < 0 || cell.index >= map.tileSet()->count())
            continue;
        const QImage tile = map.tileSet()->tileImage(cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset);
        for (int y = 0; y < 8; ++y)
            std::copy_n(tile.constScanLine(y), 8, picture.scanLine(at.y() * 8 + y) + at.x() * 8);
    }
    return picture;
}

} // namespace

class TestTileMap : public QObject
{
    Q_OBJECT

private slots:
    void changesCellsInsideOnly();
    void editsRowsAndColumns();
    void resizesAround();
    void keepsUnchangedRowsShared();
    void keepsThePictureWhenTilesMove();
    void writesAndReadsCells();
    void refusesDamagedData();
    void pastesInside();
    void drawsNothingWithoutColours();
    void drawsLikeTheSlowWay();

private:
    void compareWithSlowWay(const TileMap &map, int cellSize, int transparencyIndex);
};

void TestTileMap::changesCellsInsideOnly()
{
    const TileMap large(9999, 9999);
    QCOMPARE(large.cellAt({9998, 9998}), TileData());
    QCOMPARE(storages(large), 1);
    QCOMPARE(TileMap(-1, 3).size(), QSize(0, 3));

    QRandomGenerator random(1);
    Tiles tiles(random);
    TileMap map(4, 4);
    map.setTileSet(&tiles.set);
    const TileData cell{5, true, false, true, 3, true};
    QVERIFY(map.setCell({3, 1}, cell));
    QVERIFY(!map.setCell({3, 1}, cell));
    QCOMPARE(map.cellAt({3, 1}), cell);
    for (const QPoint outside : {QPoint(4, 0), QPoint(0, 4), QPoint(-1, 0), QPoint(0, -1)}) {
        QVERIFY(!map.setCell(outside, cell));
        QCOMPARE(map.cellAt(outside), TileData());
    }

    map.fill(QRect(-1, 1, 3, 9), 3, true, false, true, true);
    QCOMPARE(toDigits(map), QStringList({"....", "33.5", "33..", "33.."}));
    QCOMPARE(map.cellAt({1, 3}), (TileData{3, true, false, true, 5, true}));
    QCOMPARE(storages(map), 3); // equal rows stay one
    map.fill(QRect(0, 0, 4, 4), 100, false, false, false, false);
    QCOMPARE(map.cellAt({3, 3}), (TileData{100, false, false, false, 0, false}));
}

void TestTileMap::editsRowsAndColumns()
{
    const auto map = fromDigits({"12", "34"});
    map->insertColumn(Quenmora::Begin);
    map->insertRow(Quenmora::End);
    QCOMPARE(toDigits(*map), QStringList({".12", ".34", "..."}));
    map->insertColumn(Quenmora::End);
    map->insertRow(Quenmora::Begin);
    QCOMPARE(toDigits(*map), QStringList({"....", ".12.", ".34.", "...."}));
    map->removeColumn(Quenmora::Begin);
    map->removeRow(Quenmora::End);
    QCOMPARE(toDigits(*map), QStringList({"...", "12.", "34."}));
    map->removeColumn(Quenmora::End);
    map->removeColumn(Quenmora::End);
    map->removeRow(Quenmora::Begin);
    QCOMPARE(toDigits(*map), QStringList({"1", "3"}));
}

void TestTileMap::resizesAround()
{
    const std::tuple<QSize, Qt::Alignment, QStringList, QPoint> cases[] = {
        {{6, 3}, Qt::AlignRight, {"..1234", "..5678", "..9123"}, {2, 0}},
        {{2, 3}, Qt::AlignHCenter, {"23", "67", "12"}, {-1, 0}},
        {{7, 3}, Qt::AlignHCenter, {".1234..", ".5678..", ".9123.."}, {1, 0}},
        {{2, 5}, Qt::AlignVCenter, {"..", "12", "56", "91", ".."}, {0, 1}},
        {{4, 4}, Qt::AlignBottom, {"....", "1234", "5678", "9123"}, {0, 1}},
        {{4, 1}, Qt::AlignBottom, {"9123"}, {0, -2}},
        {{5, 2}, {}, {"1234.", "5678."}, {0, 0}},
        {{4, 3}, Qt::AlignCenter, {"1234", "5678", "9123"}, {0, 0}},
    };
    for (const auto &[size, alignment, rows, offset] : cases) {
        const auto map = fromDigits({"1234", "5678", "9123"});
        QCOMPARE(map->resize(size, alignment), offset);
        QCOMPARE(toDigits(*map), rows);
        QCOMPARE(map->size(), size);
    }
}

void TestTileMap::keepsUnchangedRowsShared()
{
    TileMap map(2000, 50);
    map.setCell({7, 20}, {4, false, false, false, 6, true});
    const TileMap::Rows before = map.rows();
    const auto changedRows = [&map, &before] {
        QList<int> changed;
        const TileMap::Rows after = map.rows();
        for (int y = 0; y < after.size(); ++y) {
            if (after[y].constData() != before[y].constData())
                changed << y;
        }
        return changed;
    };
    map.setCell({8, 30}, {2, false, false, false, 4, true});
    QCOMPARE(changedRows(), QList<int>{30});
    map.shiftTileIndices(3, 1);
    QCOMPARE(map.cellAt({7, 20}).index, 5);
    map.swapTiles(6, 7);
    QCOMPARE(changedRows(), QList<int>({20, 30}));
    map.restore(before);
    QVERIFY(map.rows() == before);
    map.shiftTileIndices(0, 1); // changes every cell, and equal rows still share
    QCOMPARE(map.cellAt({1999, 49}).index, 1);
    map.insertColumn(Quenmora::Begin);
    map.resize(QSize(1000, 60));
    QVERIFY(storages(map) <= 3);
}

void TestTileMap::keepsThePictureWhenTilesMove()
{
    QRandomGenerator random(4);
    Tiles tiles(random);
    TileMap map(20, 10);
    map.setTileSet(&tiles.set);
    for (int i = 0; i < 200; ++i) // few variants, so that each tile is found as the other one was rendered
        map.setCell({i % 20, i / 20}, {random.bounded(-1, 9), false, false, i % 2 == 1, 5, true});
    const QImage before = map.render(map.bounds(), 1, -1);
    SignalLog log;
    log.listen(map, &TileMap::tilesChanged, "tiles");
    tiles.set.moveTile(1, 3);
    map.swapTiles(20, 21); // no cell shows them
    QCOMPARE(log.take(), QStringList({"tiles", "tiles"}));
    QCOMPARE(map.render(map.bounds(), 1, -1), before);
    QCOMPARE(indices(map.toImage(map.bounds())), indices(before));

    QImage screen(320, 160, QImage::Format_RGB32); // two pixels of the device are one of the painter
    screen.setDevicePixelRatio(2);
    QPainter painter(&screen);
    map.paint(painter, {0, 0}, map.bounds(), 8, -1);
    painter.end();
    screen.setDevicePixelRatio(1);
    QCOMPARE(screen, map.render(map.bounds(), 2, -1).convertToFormat(QImage::Format_RGB32));

    map.setTileSet(nullptr);
    const TileMap::Rows rows = map.rows();
    tiles.set.moveTile(0, 1);
    QVERIFY(map.rows() == rows);
}

void TestTileMap::writesAndReadsCells()
{
    TileSet tileSet(1);
    tileSet.setId(QUuid(QStringLiteral("{00112233-4455-6677-8899-aabbccddeeff}")));
    TileMap map(2, 1);
    map.setTileSet(&tileSet);
    map.setCell({0, 0}, {-2, false, true, false, 0x1F, false}); // only the bits that the hardware has
    map.setCell({1, 0}, {258, true, false, true, 7, true});
    QCOMPARE(map.toNextData(), QByteArray::fromHex("fef5 027b"));

    map.setCell({0, 0}, {});
    const QByteArray blank(12, '\0');
    const QByteArray cell = QByteArray::fromHex("00000102 01 00000007 01 00 01");
    const QByteArray id = QByteArray::fromHex("00112233445566778899aabbccddeeff");
    QCOMPARE(map.serialise(QRect(1, 0, 3, 1)), QByteArray::fromHex("00000001 00000003") + cell + blank + blank + id);
    QCOMPARE(map.serialise(QRect(-1, -1, 3, 2)),
             QByteArray::fromHex("00000002 00000003") + blank.repeated(3) + blank + blank + cell + id);
    QCOMPARE(map.serialise(QRect(5, 5, 1, 1)), QByteArray::fromHex("00000001 00000001") + blank + id);
    map.setTileSet(nullptr);
    QCOMPARE(map.serialise(QRect(0, 0, 0, 0)), QByteArray(24, '\0'));

    QRandomGenerator random(5);
    TileMap written(40, 30);
    for (int i = 0; i < 300; ++i)
        written.setCell({random.bounded(40), random.bounded(20)}, randomCell(random));
    const QByteArray data = written.serialise(written.bounds());
    for (const QByteArray &readable : {data, data.chopped(16)}) { // the id is not read
        const std::unique_ptr<TileMap> copy(TileMap::fromData(readable));
        QVERIFY(copy && copy->rows() == written.rows());
        QCOMPARE(storages(*copy), 21);
    }
}

void TestTileMap::refusesDamagedData()
{
    const QByteArray cell(12, '\1');
    const QByteArray damaged[] = {"",
                                  QByteArray(7, '\0'), // half a header
                                  QByteArray::fromHex("00000001 00000003"),
                                  QByteArray::fromHex("00000001 00000003") + cell.repeated(3).chopped(1),
                                  QByteArray::fromHex("ffffffff 00000003") + cell, // negative
                                  QByteArray::fromHex("ffffffff ffffffff") + cell,
                                  QByteArray::fromHex("10000001 10000001") + cell, // 1 in 32 bits
                                  QByteArray::fromHex("7fffffff 7fffffff") + cell,
                                  "map of the dungeon, second level"};
    for (const QByteArray &data : damaged) {
        QCOMPARE(TileMap::fromData(data), nullptr);
        QMimeData mimeData;
        mimeData.setData(MimeType, data);
        const TileMap::Selection selection = TileMap::readSelection(&mimeData);
        QVERIFY(selection.size.isEmpty() && selection.cells.isEmpty());
        TileMap map(5, 5);
        const TileMap::Rows before = map.rows();
        map.paste({0, 0}, &mimeData);
        QVERIFY(map.rows() == before);
    }
    // many rows of nothing are nothing
    const std::unique_ptr<TileMap> empty(TileMap::fromData(QByteArray::fromHex("7fffffff00000000")));
    QVERIFY(!empty || empty->size() == QSize(0, 0));
}

void TestTileMap::pastesInside()
{
    TileSet tileSet(9);
    const auto source = fromDigits({"123"});
    source->setTileSet(&tileSet);
    const std::unique_ptr<QMimeData> mimeData(source->toMimeData(source->bounds()));
    const TileMap::Selection selection = TileMap::readSelection(mimeData.get());
    QVERIFY(selection.size == QSize(3, 1) && selection.tileSetId == tileSet.id());
    QCOMPARE(selection.cells, source->rows().first());
    QVERIFY(TileMap::readSelection(nullptr).size.isEmpty());
    TileMap target(12, 2);
    target.paste({10, 0}, mimeData.get());
    target.paste({-2, 1}, mimeData.get());
    target.paste({5, 2}, mimeData.get());
    target.paste({0, 0}, nullptr);
    QCOMPARE(toDigits(target), QStringList({"..........12", "3..........."}));
}

void TestTileMap::drawsNothingWithoutColours()
{
    QRandomGenerator random(7);
    Tiles tiles(random);
    TileMap map(2, 1);
    map.setTileSet(&tiles.set);
    map.fill(map.bounds(), 1, false, false, false, true);
    QVERIFY(indices(map.render(map.bounds(), 1, 0)) != QByteArray(128, '\0'));
    tiles.set.setPalette(nullptr);
    QTest::ignoreMessage(QtWarningMsg, "_tiles==nullptr");
    QCOMPARE(indices(map.toImage(map.bounds())), QByteArray(128, '\0'));
    QTest::ignoreMessage(QtWarningMsg, "_tiles==nullptr");
    const QImage image = map.render(map.bounds(), 1, 0);
    QCOMPARE(indices(image), QByteArray(128, '\0'));
    QCOMPARE(image.pixel(0, 0), qRgba(0, 0, 0, 0));
    QVERIFY(map.render(map.bounds(), 0, 0).isNull());
    QVERIFY(map.render(map.bounds(), INT_MAX, 0).isNull());
}

/// One grid through every kind of change, each followed by a look at it.
void TestTileMap::drawsLikeTheSlowWay()
{
    for (const int cellSize : {1, 3, 8, 12, 16}) { // pixels a cell
        QRandomGenerator random(20);
        Tiles tiles(random);
        TileMap map(70, 40);
        map.setTileSet(&tiles.set);
        const auto look = [&] { compareWithSlowWay(map, cellSize, cellSize % 3 - 1); };
        look();
        for (int i = 0; i < 500; ++i)
            map.setCell({random.bounded(70), random.bounded(40)}, randomCell(random));
        look();
        map.fill(QRect(20, 25, 30, 9), 3, true, false, true, true);
        look();
        const std::unique_ptr<QMimeData> mimeData(map.toMimeData(QRect(10, 10, 20, 20)));
        map.paste({45, 5}, mimeData.get());
        look();
        tiles.scribble(3, random);
        look();
        tiles.palette.setColour(35, QColor(255, 0, 0), false);
        look();
        map.insertColumn(Quenmora::Begin);
        map.insertRow(Quenmora::Begin);
        look();
        tiles.set.deleteTile(2);
        map.shiftTileIndices(2, -1);
        look();
        const TileMap::Rows rows = map.rows();
        map.resize({60, 45}, Qt::AlignCenter);
        map.refreshOffsets();
        look();
        map.restore(rows);
        look();
        tiles.set.restore(tiles.set.snapshot().mid(1));
        look();
        if (QTest::currentTestFailed())
            return;
    }
}

void TestTileMap::compareWithSlowWay(const TileMap &map, int cellSize, int transparencyIndex)
{
    const QRect view(28, 20, 40, 30); // across blocks, and over the bottom of the grid
    const QPoint origin(3, 2);
    QImage screen(view.size() * cellSize + QSize(5, 5), QImage::Format_RGB32);
    screen.fill(Qt::magenta);
    QImage expected = screen;
    {
        QPainter painter(&screen);
        map.paint(painter, origin, view, cellSize, transparencyIndex);
    }
    const QImage picture = naivePicture(map, view);
    const QList<QRgb> colours = map.tileSet()->palette()->colourTable();
    const QSize drawn = (view & map.bounds()).size() * cellSize;
    for (int y = 0; y < drawn.height(); ++y) {
        // the picture's pixel under the middle of the screen's pixel
        const uchar *from = picture.constScanLine((2 * y + 1) * 8 / (2 * cellSize));
        auto *to = reinterpret_cast<QRgb *>(expected.scanLine(origin.y() + y)) + origin.x();
        for (int x = 0; x < drawn.width(); ++x) {
            const int index = from[(2 * x + 1) * 8 / (2 * cellSize)];
            if ((index & 15) != transparencyIndex)
                to[x] = colours[index];
        }
    }
    QCOMPARE(screen, expected);

    if (cellSize % 8 == 0) {
        QList<QRgb> table = colours;
        for (int i = 0; i < 256; ++i)
            table[i] = (table[i] & RGB_MASK) | ((i & 15) == transparencyIndex ? 0U : 0xFF000000U);
        QImage scaled = picture.scaled(view.size() * cellSize);
        scaled.setColorTable(table);
        const QImage image = map.render(view, cellSize / 8, transparencyIndex);
        QCOMPARE(image.colorTable(), table);
        QCOMPARE(image, scaled);
    }
}

QUENMORA_TEST_MAIN(TestTileMap)
#include "tst_tilemap.moc"
