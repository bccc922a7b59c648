#include "model/tilemap.h"

#include "model/palette.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QMimeData>
#include <QPainter>
#include <QRandomGenerator>
#include <QSignalSpy>
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
        QImage image(8, 8, QImage::Format_Indexed8);
        image.setColorCount(256);
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
    QImage picture(view.size() * 8, QImage::Format_Indexed8);
    picture.setColorCount(256);
    picture.fill(0);
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
    void startsBlankAndShared();
    void setsCellsInsideOnly();
    void fillsTheAreaInside();
    void editsRowsAndColumns();
    void resizesAround();
    void followsTiles();
    void keepsUnchangedRowsShared();
    void keepsThePictureWhenTilesMove();
    void writesNextData();
    void writesTheDataStreamForm();
    void readsWhatItWrote();
    void refusesDamagedData_data();
    void refusesDamagedData();
    void pastesInside();
    void warnsWithoutTiles();
    void drawsLikeTheSlowWay_data();
    void drawsLikeTheSlowWay();
    void drawsDevicePixels();

private:
    void compareWithSlowWay(const TileMap &map, int cellSize, int transparencyIndex);
};

void TestTileMap::startsBlankAndShared()
{
    const TileMap map(9999, 9999);
    QCOMPARE(map.size(), QSize(9999, 9999));
    QCOMPARE(map.cellAt({9998, 9998}), TileData());
    QCOMPARE(storages(map), 1);
    QVERIFY(map.isVisible());
    QCOMPARE(TileMap(-1, 3).size(), QSize(0, 3));
}

void TestTileMap::setsCellsInsideOnly()
{
    TileMap map(3, 2);
    const TileData cell{5, true, false, true, 3, true};
    QVERIFY(map.setCell({2, 1}, cell));
    QVERIFY(!map.setCell({2, 1}, cell));
    QCOMPARE(map.cellAt({2, 1}), cell);
    for (const QPoint outside : {QPoint(3, 0), QPoint(0, 2), QPoint(-1, 0), QPoint(0, -1)}) {
        QVERIFY(!map.setCell(outside, cell));
        QCOMPARE(map.cellAt(outside), TileData());
    }
}

void TestTileMap::fillsTheAreaInside()
{
    QRandomGenerator random(1);
    Tiles tiles(random);
    TileMap map(4, 4);
    map.setTileSet(&tiles.set);
    map.fill(QRect(-1, 1, 3, 9), 3, true, false, true, true);
    QCOMPARE(toDigits(map), QStringList({"....", "33..", "33..", "33.."}));
    QCOMPARE(map.cellAt({1, 3}), (TileData{3, true, false, true, 5, true}));
    QCOMPARE(storages(map), 2); // equal rows stay one
    map.fill(QRect(0, 0, 4, 4), 100, false, false, false, false);
    QCOMPARE(map.cellAt({3, 3}), (TileData{100, false, false, false, 0, false}));
}

void TestTileMap::editsRowsAndColumns()
{
    const auto map = fromDigits({"12", "34"});
    map->insertColumn(Quenmora::Begin);
    QCOMPARE(toDigits(*map), QStringList({".12", ".34"}));
    map->insertColumn(Quenmora::End);
    QCOMPARE(toDigits(*map), QStringList({".12.", ".34."}));
    map->insertRow(Quenmora::Begin);
    map->insertRow(Quenmora::End);
    QCOMPARE(toDigits(*map), QStringList({"....", ".12.", ".34.", "...."}));
    QCOMPARE(map->size(), QSize(4, 4));
    map->removeColumn(Quenmora::Begin);
    map->removeRow(Quenmora::Begin);
    QCOMPARE(toDigits(*map), QStringList({"12.", "34.", "..."}));
    map->removeColumn(Quenmora::End);
    map->removeColumn(Quenmora::End);
    map->removeRow(Quenmora::End);
    QCOMPARE(toDigits(*map), QStringList({"1", "3"}));
}

void TestTileMap::resizesAround()
{
    struct Case
    {
        QSize size;
        Qt::Alignment alignment;
        QStringList rows;
        QPoint offset;
    };
    const Case cases[] = {
        {{6, 3}, Qt::AlignRight, {"..1234", "..5678", "..9123"}, {2, 0}},
        {{2, 3}, Qt::AlignHCenter, {"23", "67", "12"}, {-1, 0}},
        {{3, 3}, Qt::AlignRight, {"234", "678", "123"}, {-1, 0}},
        {{7, 3}, Qt::AlignHCenter, {".1234..", ".5678..", ".9123.."}, {1, 0}},
        {{2, 5}, Qt::AlignVCenter, {"..", "12", "56", "91", ".."}, {0, 1}},
        {{4, 4}, Qt::AlignBottom, {"....", "1234", "5678", "9123"}, {0, 1}},
        {{4, 1}, Qt::AlignBottom, {"9123"}, {0, -2}},
        {{4, 1}, Qt::AlignVCenter, {"5678"}, {0, -1}},
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

void TestTileMap::followsTiles()
{
    const auto map = fromDigits({"456", "5.7"});
    map->shiftTileIndices(5, -1);
    QCOMPARE(toDigits(*map), QStringList({"405", "0.6"}));
    map->shiftTileIndices(4, 1);
    QCOMPARE(toDigits(*map), QStringList({"506", "0.7"}));

    QSignalSpy changed(map.get(), &TileMap::tilesChanged);
    map->swapTiles(5, 7);
    QCOMPARE(toDigits(*map), QStringList({"706", "0.5"}));
    map->swapTiles(8, 9);
    QCOMPARE(changed.size(), 1);
}

void TestTileMap::keepsUnchangedRowsShared()
{
    QRandomGenerator random(3);
    Tiles tiles(random);
    TileMap map(2000, 50);
    map.setTileSet(&tiles.set);
    map.setCell({7, 20}, {4, false, false, false, 6, true});
    const TileMap::Rows before = map.rows();

    map.setCell({8, 30}, {2, false, false, false, 4, true});
    const auto changedRows = [&map, &before] {
        QList<int> changed;
        const TileMap::Rows after = map.rows();
        for (int y = 0; y < after.size(); ++y) {
            if (after[y].constData() != before[y].constData())
                changed << y;
        }
        return changed;
    };
    QCOMPARE(changedRows(), QList<int>{30});
    QVERIFY(map.rows() != before);
    map.shiftTileIndices(3, 1);
    QCOMPARE(changedRows(), QList<int>({20, 30}));
    tiles.set.moveTile(5, 4);
    QCOMPARE(map.cellAt({7, 20}).index, 4);
    QCOMPARE(changedRows(), QList<int>({20, 30}));

    map.restore(before);
    QVERIFY(map.rows() == before);
    QCOMPARE(map.cellAt({8, 30}), TileData());
    map.shiftTileIndices(0, 1); // changes every cell, and equal rows still share
    QCOMPARE(map.cellAt({1999, 49}).index, 1);
    QCOMPARE(storages(map), 2);
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
    for (int i = 0; i < 200; ++i)
        map.setCell({i % 20, i / 20}, randomCell(random));
    const QImage before = map.render(map.bounds(), 1, -1);
    tiles.set.moveTile(1, 6);
    QCOMPARE(map.render(map.bounds(), 1, -1), before);
    QCOMPARE(map.toImage(map.bounds()).convertToFormat(QImage::Format_RGB32),
             before.convertToFormat(QImage::Format_RGB32));

    map.setTileSet(nullptr);
    const TileMap::Rows rows = map.rows();
    tiles.set.moveTile(0, 1);
    QVERIFY(map.rows() == rows);
}

void TestTileMap::writesNextData()
{
    TileMap map(2, 1);
    map.setCell({0, 0}, {257, false, false, true, 3, true});
    map.setCell({1, 0}, {5, true, false, false, 0, false});
    QCOMPARE(map.toNextData(), QByteArray::fromHex("01390502"));
    map.setCell({0, 0}, {-2, false, true, false, 0x1F, true}); // only the bits that the hardware has
    QCOMPARE(map.toNextData().left(2), QByteArray::fromHex("fef5"));
}

void TestTileMap::writesTheDataStreamForm()
{
    TileSet tileSet(1);
    tileSet.setId(QUuid(QStringLiteral("{00112233-4455-6677-8899-aabbccddeeff}")));
    TileMap map(2, 1);
    map.setTileSet(&tileSet);
    map.setCell({1, 0}, {258, true, false, true, 7, true});
    const QByteArray blank(12, '\0');
    const QByteArray cell = QByteArray::fromHex("00000102 01 00000007 01 00 01");
    const QByteArray id = QByteArray::fromHex("00112233445566778899aabbccddeeff");
    QCOMPARE(map.serialise(QRect(1, 0, 3, 1)), QByteArray::fromHex("00000001 00000003") + cell + blank + blank + id);
    QCOMPARE(map.serialise(QRect(-1, -1, 3, 2)),
             QByteArray::fromHex("00000002 00000003") + blank.repeated(3) + blank + blank + cell + id);
    QCOMPARE(map.serialise(QRect(5, 5, 1, 1)), QByteArray::fromHex("00000001 00000001") + blank + id);
    map.setTileSet(nullptr);
    QCOMPARE(map.serialise(QRect(0, 0, 0, 0)), QByteArray(24, '\0'));
}

void TestTileMap::readsWhatItWrote()
{
    QRandomGenerator random(5);
    TileMap map(40, 30);
    for (int i = 0; i < 300; ++i)
        map.setCell({random.bounded(40), random.bounded(20)}, randomCell(random));
    const QByteArray data = map.serialise(map.bounds());
    const std::unique_ptr<TileMap> copy(TileMap::fromData(data));
    QVERIFY(copy);
    QVERIFY(copy->rows() == map.rows());
    QCOMPARE(copy->serialise(copy->bounds()), data);
    QCOMPARE(storages(*copy), 21);
    QVERIFY(std::unique_ptr<TileMap>(TileMap::fromData(data.chopped(16)))); // the id is not read
}

void TestTileMap::refusesDamagedData_data()
{
    QTest::addColumn<QByteArray>("data");
    const auto sized = [](const char *size, int cells) {
        return QByteArray::fromHex(size) + QByteArray(cells * 12, '\1');
    };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("half a header") << QByteArray(7, '\0');
    QTest::newRow("no cells") << sized("00000001 00000003", 0);
    QTest::newRow("last cell cut") << sized("00000001 00000003", 3).chopped(1);
    QTest::newRow("negative height") << sized("ffffffff 00000003", 3);
    QTest::newRow("both negative") << sized("ffffffff ffffffff", 3);
    QTest::newRow("product overflows 32 bits") << sized("00010000 00010000", 3);
    QTest::newRow("product overflows 32 bits to 1") << sized("10000001 10000001", 3);
    QTest::newRow("largest") << sized("7fffffff 7fffffff", 3);
    QTest::newRow("nonsense") << QByteArray("map of the dungeon, second level");
}

void TestTileMap::refusesDamagedData()
{
    QFETCH(QByteArray, data);
    QCOMPARE(TileMap::fromData(data), nullptr);
    QMimeData mimeData;
    mimeData.setData(MimeType, data);
    QVERIFY(TileMap::readSelection(&mimeData).size.isEmpty());
    QVERIFY(TileMap::readSelection(&mimeData).cells.isEmpty());
    TileMap map(5, 5);
    const TileMap::Rows before = map.rows();
    map.paste({0, 0}, &mimeData);
    QVERIFY(map.rows() == before);

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
    QCOMPARE(mimeData->formats(), QStringList(MimeType));
    const TileMap::Selection selection = TileMap::readSelection(mimeData.get());
    QCOMPARE(selection.size, QSize(3, 1));
    QCOMPARE(selection.tileSetId, tileSet.id());
    QCOMPARE(selection.cells, source->rows().first());
    QVERIFY(TileMap::readSelection(nullptr).size.isEmpty());

    TileMap target(12, 2);
    target.paste({10, 0}, mimeData.get());
    QCOMPARE(toDigits(target), QStringList({"..........12", "............"}));
    target.paste({-2, 1}, mimeData.get());
    target.paste({5, 2}, mimeData.get());
    target.paste({0, 0}, nullptr);
    QCOMPARE(toDigits(target), QStringList({"..........12", "3..........."}));
}

void TestTileMap::warnsWithoutTiles()
{
    TileMap map(2, 1);
    map.setCell({0, 0}, {1, false, false, false, 0, true});
    QTest::ignoreMessage(QtWarningMsg, "_tiles==nullptr");
    const QImage image = map.toImage(map.bounds());
    QCOMPARE(image.size(), QSize(16, 8));
    QCOMPARE(image.pixelIndex(0, 0), 0);
    QTest::ignoreMessage(QtWarningMsg, "_tiles==nullptr");
    QCOMPARE(map.render(map.bounds(), 2, 0).pixel(0, 0), qRgba(0, 0, 0, 0));
    QVERIFY(map.render(map.bounds(), 0, 0).isNull());
    QVERIFY(map.render(map.bounds(), INT_MAX, 0).isNull());
}

void TestTileMap::drawsLikeTheSlowWay_data()
{
    QTest::addColumn<int>("cellSize");
    QTest::addColumn<int>("transparencyIndex");
    for (const int cellSize : {1, 3, 8, 12, 16, 40})
        QTest::addRow("%d pixels a cell", cellSize) << cellSize << (cellSize % 3 - 1);
}

/// One grid through every kind of change, each followed by a look at it.
void TestTileMap::drawsLikeTheSlowWay()
{
    QFETCH(int, cellSize);
    QFETCH(int, transparencyIndex);
    constexpr quint32 Seed = 20;
    QRandomGenerator random(Seed);
    Tiles tiles(random);
    TileMap map(70, 40);
    map.setTileSet(&tiles.set);
    const auto look = [&] { compareWithSlowWay(map, cellSize, transparencyIndex); };

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

void TestTileMap::drawsDevicePixels()
{
    QRandomGenerator random(6);
    Tiles tiles(random);
    TileMap map(6, 4);
    map.setTileSet(&tiles.set);
    for (int i = 0; i < 24; ++i)
        map.setCell({i % 6, i / 6}, randomCell(random));
    QImage screen(96, 64, QImage::Format_RGB32);
    screen.setDevicePixelRatio(2);
    {
        QPainter painter(&screen);
        map.paint(painter, {0, 0}, map.bounds(), 8, -1);
    }
    screen.setDevicePixelRatio(1);
    QCOMPARE(screen, map.render(map.bounds(), 2, -1).convertToFormat(QImage::Format_RGB32));
}

QUENMORA_TEST_MAIN(TestTileMap)
#include "tst_tilemap.moc"
