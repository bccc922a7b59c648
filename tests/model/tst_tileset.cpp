#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// Tests tiles, the list operations of tile sets, and all their raw files.
class TestTileSet : public QObject
{
    Q_OBJECT

private slots:
    void keepsTilesIndependent();
    void announcesStructuralEdits_data();
    void announcesStructuralEdits();
    void ignoresPositionsOutside();
    void followsItsPaletteOnly();
    void turnsTiles_data();
    void turnsTiles();
    void rendersOddTilesInsideTheirBounds();
    void restoresSnapshots();
    void storesTilesAsAStrip();
    void importsPictures();
    void readsAsMuchNxtAsThereIs();
    void readsAsMuchFontAsThereIs();
    void writesTheBlocksThatExist();
    void breaksAttributeLines();
    void refusesPathsThatCannotBeOpened();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    /// A file with these bytes.
    [[nodiscard]] QString written(const QByteArray &bytes) const;
    [[nodiscard]] static QByteArray contents(const QString &fileName);

    QTemporaryDir m_folder;
};

namespace {

/// A tile picture whose pixel at (x, y) is y·8 + x, in the colours of an all-white table.
QImage numberedImage()
{
    QImage image(8, 8, QImage::Format_Indexed8);
    image.setColorTable(QList<QRgb>(256, qRgb(255, 255, 255)));
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x)
            image.setPixel(x, y, static_cast<uint>(y * 8 + x));
    }
    return image;
}

/// The values of the tiles as a word, each a letter.
QString letters(const TileSet &tiles)
{
    QString word;
    for (int i = 0; i < tiles.count(); ++i)
        word += tiles.tile(i)->value() ? QChar(tiles.tile(i)->value()) : QChar('?');
    return word;
}

void setLetters(TileSet &tiles, const QString &word)
{
    for (int i = 0; i < tiles.count(); ++i)
        tiles.tile(i)->setValue(word.at(i).unicode());
}

/// Writes down every structural signal of a tile set as text.
void record(TileSet &tiles, QStringList &log)
{
    const auto add = [&log](const QString &line) { log.append(line); };
    QObject::connect(&tiles, &TileSet::structureAboutToChange, [add] { add("begin"); });
    QObject::connect(&tiles, &TileSet::structureChanged, [add](const QString &text) { add(text); });
    QObject::connect(&tiles, &TileSet::tileChanged, [add](int i) { add(QString("changed %1").arg(i)); });
    QObject::connect(&tiles, &TileSet::tileDeleted, [add](int i) { add(QString("deleted %1").arg(i)); });
    QObject::connect(&tiles, &TileSet::tileInserted, [add](int i) { add(QString("inserted %1").arg(i)); });
    QObject::connect(&tiles, &TileSet::restored, [add] { add("restored"); });
    QObject::connect(&tiles, &TileSet::tileSwapped,
                     [add, &tiles](int a, int b) { add(QString("%1-%2 %3").arg(a).arg(b).arg(letters(tiles))); });
}

} // namespace

QString TestTileSet::written(const QByteArray &bytes) const
{
    QFile file(path("input"));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the test's input");
    return file.fileName();
}

QByteArray TestTileSet::contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void TestTileSet::keepsTilesIndependent()
{
    // a picture over somebody else's memory must not follow that memory
    uchar memory[64] = {7};
    QImage foreign(memory, 8, 8, 8, QImage::Format_Indexed8);
    Tile tile;
    tile.setImage(foreign);
    memory[0] = 9;
    QCOMPARE(tile.pixels()[0], uchar(7));
    QCOMPARE(tile.image().colorCount(), 256); // the picture had none

    tile.setOffset(3);
    tile.setAttribute(Tile::TA_SOLID | Tile::TA_DOOR, true);
    tile.setAttribute(Tile::TA_TOPSOLID, false);
    tile.setValue(42);
    QVERIFY(tile.hasAttribute(Tile::TA_LEFTSOLID | Tile::TA_DOOR));
    QVERIFY(!tile.hasAttribute(Tile::TA_SOLID)); // three edges are not all edges
    QVERIFY(!tile.hasAttribute(Tile::TA_NONE));
    const std::unique_ptr<Tile> copy(tile.clone());
    QVERIFY(!copy->parent());
    QVERIFY(copy->state() == tile.state());
    tile.setColour(1, QColor(1, 2, 3, 0));
    QCOMPARE(tile.image().color(1), qRgb(1, 2, 3));
    QVERIFY(copy->image().color(1) != qRgb(1, 2, 3));
}

void TestTileSet::announcesStructuralEdits_data()
{
    QTest::addColumn<std::function<void(TileSet &)>>("edit");
    QTest::addColumn<QString>("signalsEmitted");
    QTest::addColumn<QString>("values"); // ? for a new tile
    const auto row = [](const char *name, const std::function<void(TileSet &)> &edit, const QString &log,
                        const QString &values) { QTest::newRow(name) << edit << log << values; };
    row(
        "copy", [](TileSet &t) { t.copyTile(1, 2); }, "begin;changed 2;Copy Tile", "abcd");
    row(
        "delete", [](TileSet &t) { t.deleteTile(1); }, "begin;deleted 1;Delete Tile", "acd");
    row(
        "insert", [](TileSet &t) { t.insertTile(3); }, "begin;inserted 3;Insert Tile", "abc?d");
    row(
        "append", [](TileSet &t) { t.insertTile(4); }, "begin;inserted 4;Insert Tile", "abcd?");
    row(
        "clear", [](TileSet &t) { t.clearImage(2); }, "changed 2", "abcd");
    row(
        "move to the end", [](TileSet &t) { t.moveTile(0, 3); }, "begin;0-1 bacd;1-2 bcad;2-3 bcda;Move Tile", "bcda");
    row(
        "move to the start", [](TileSet &t) { t.moveTile(3, 0); }, "begin;3-2 abdc;2-1 adbc;1-0 dabc;Move Tile",
        "dabc");
}

void TestTileSet::announcesStructuralEdits()
{
    QFETCH(const std::function<void(TileSet &)>, edit);
    QFETCH(const QString, values);
    TileSet tiles(4);
    setLetters(tiles, "abcd");
    tiles.setTileImage(1, numberedImage());
    tiles.setTileOffset(1, 6);
    tiles.tile(1)->setAttributes(1);
    QStringList log;
    record(tiles, log);
    edit(tiles);
    QTEST(log.join(';'), "signalsEmitted");
    QCOMPARE(letters(tiles), values);
    if (log.last() == "Copy Tile") {
        QCOMPARE(tiles.image(2), numberedImage());
        QCOMPARE(tiles.tileOffset(2), 6);
        QCOMPARE(tiles.tile(2)->attributes(), 0);
    }
    if (const qsizetype inserted = values.indexOf('?'); inserted >= 0)
        QCOMPARE(tiles.tileOffset(int(inserted)), 1);
}

void TestTileSet::ignoresPositionsOutside()
{
    TileSet tiles(4);
    const TileSet::Snapshot before = tiles.snapshot();
    QStringList log;
    record(tiles, log);
    for (const int outside : {-1, 4, 1 << 30}) {
        tiles.copyTile(0, outside);
        tiles.copyTile(outside, 0);
        tiles.moveTile(0, outside);
        tiles.moveTile(outside, 0);
        tiles.deleteTile(outside);
        tiles.insertTile(outside == 4 ? 5 : outside);
        tiles.clearImage(outside);
        tiles.setTileImage(outside, numberedImage());
        tiles.setTileOffset(outside, 3);
        tiles.importImage(outside, numberedImage(), 3);
        QCOMPARE(tiles.tileOffset(outside), 0);
        QVERIFY(!tiles.tile(outside) && tiles.image(outside).isNull());
        QTest::ignoreMessage(QtInfoMsg, qPrintable(QString("Image index out of range %1").arg(outside)));
        const QImage blank = tiles.tileImage(outside, true, false, true, 5);
        QCOMPARE(blank.size(), QSize(8, 8));
        QCOMPARE(blank.pixelIndex(3, 3), 0);
    }
    tiles.copyTile(2, 2);
    tiles.moveTile(2, 2);
    QVERIFY2(log.isEmpty(), qPrintable(log.join(';')));
    QVERIFY(tiles.snapshot() == before);
}

void TestTileSet::followsItsPaletteOnly()
{
    Palette first;
    Palette second;
    TileSet tiles(2);
    tiles.setPalette(&first);
    QCOMPARE(tiles.paletteId(), first.id());
    tiles.setPalette(&second);
    QCOMPARE(tiles.paletteId(), second.id());

    QSignalSpy changed(&tiles, &TileSet::tileChanged);
    first.setRawColour(4, 0xFF01);
    QCOMPARE(changed.count(), 0);
    second.setTransparencyIndex(4);
    second.setRawColour(4, 0xFF01);
    QCOMPARE(changed, (QList<QVariantList>{{0}}));
    QCOMPARE(tiles.image(1).color(4), qRgb(255, 255, 255)); // opaque, though the entry is transparent
    tiles.setPalette(nullptr);
    QVERIFY(tiles.paletteId().isNull());
}

void TestTileSet::turnsTiles_data()
{
    QTest::addColumn<bool>("rotate");
    QTest::addColumn<bool>("flip");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<int>("origin"); // number of the pixel that ends at (0, 0)
    QTest::addColumn<int>("rightOfIt"); // and at (1, 0)
    QTest::newRow("as it is") << false << false << false << 0 << 1;
    QTest::newRow("flip") << false << true << false << 56 << 57;
    QTest::newRow("mirror") << false << false << true << 7 << 6;
    QTest::newRow("flip, mirror") << false << true << true << 63 << 62;
    QTest::newRow("rotate") << true << false << false << 56 << 48;
    QTest::newRow("rotate, flip") << true << true << false << 63 << 55;
    QTest::newRow("rotate, mirror") << true << false << true << 0 << 8;
    QTest::newRow("rotate, flip, mirror") << true << true << true << 7 << 15;
}

void TestTileSet::turnsTiles()
{
    QFETCH(const bool, rotate);
    QFETCH(const bool, flip);
    QFETCH(const bool, mirror);
    QFETCH(const int, origin);
    QFETCH(const int, rightOfIt);
    const auto shown = [](int pixel) { return (pixel & 15) + 0x30; };
    TileSet tiles(1);
    tiles.setTileImage(0, numberedImage());
    const QImage image = tiles.tileImage(0, rotate, flip, mirror, 3);
    QCOMPARE(image.pixelIndex(0, 0), shown(origin));
    QCOMPARE(image.pixelIndex(1, 0), shown(rightOfIt));
    QCOMPARE(image.colorTable(), numberedImage().colorTable());
    QCOMPARE(tiles.image(0), numberedImage());

    // the painters' way gives the same pixels, and writes no others
    constexpr int stride = 10;
    QByteArray target(8 * stride, '\xEE');
    tiles.renderTile(0, rotate, flip, mirror, 3, reinterpret_cast<uchar *>(target.data()), stride);
    for (int y = 0; y < 8; ++y) {
        QCOMPARE(target.mid(y * stride, 8), QByteArray(reinterpret_cast<const char *>(image.constScanLine(y)), 8));
        QCOMPARE(target.mid(y * stride + 8, 2), QByteArray("\xEE\xEE"));
    }
}

void TestTileSet::rendersOddTilesInsideTheirBounds()
{
    TileSet tiles(3);
    tiles.setTileImage(0, numberedImage().copy(0, 0, 3, 2)); // too small
    tiles.setTileImage(1, numberedImage().scaled(20, 20)); // too large
    tiles.setTileImage(2, QImage());
    Tile::Pixels small{};
    small[0] = 0, small[1] = 1, small[2] = 2, small[8] = 8, small[9] = 9, small[10] = 10;
    QCOMPARE(tiles.tile(0)->pixels(), small);
    const QImage turned = tiles.tileImage(0, true, false, false, 0);
    QCOMPARE(turned.size(), QSize(2, 3));
    QCOMPARE(turned.pixelIndex(1, 2), 2);
    for (int i = -1; i <= 3; ++i) {
        uchar target[64] = {};
        tiles.renderTile(i, true, true, true, 0, target, 8);
    }
    QCOMPARE(tiles.tile(2)->toNextData(), QByteArray(32, '\0'));
    QCOMPARE(tiles.toStrip().size(), QSize(8, 24));
}

void TestTileSet::restoresSnapshots()
{
    TileSet tiles(3);
    setLetters(tiles, "abc");
    tiles.setTileImage(1, numberedImage());
    tiles.setTileOffset(1, 9);
    const TileSet::Snapshot snapshot = tiles.snapshot();
    QCOMPARE(snapshot.at(1).image.constBits(), std::as_const(tiles).image(1).constBits()); // shared, not copied
    tiles.deleteTile(1);
    tiles.moveTile(0, 1);
    QStringList log;
    record(tiles, log);
    tiles.restore(snapshot);
    QCOMPARE(log, QStringList{"restored"});
    QVERIFY(tiles.snapshot() == snapshot);

    TileSet copy(512);
    QSignalSpy restored(&copy, &TileSet::restored);
    copy.copyTilesFrom(tiles);
    QVERIFY(copy.snapshot() == snapshot);
    QCOMPARE(restored.count(), 0);
}

void TestTileSet::storesTilesAsAStrip()
{
    Palette palette;
    palette.loadStandardNext();
    palette.setTransparencyIndex(2);
    TileSet tiles(3);
    tiles.setTileImage(2, numberedImage());
    tiles.setPalette(&palette);
    const QImage strip = tiles.toStrip();
    QCOMPARE(strip.size(), QSize(8, 24));
    QCOMPARE(strip.colorTable(), palette.colourTable());
    QCOMPARE(strip.pixelIndex(3, 17), 11);

    QVERIFY(strip.save(path("strip.png"), "PNG"));
    TileSet read(3);
    QVERIFY(read.setStrip(QImage(path("strip.png"))));
    QCOMPARE(read.tile(2)->pixels(), tiles.tile(2)->pixels());
    QCOMPARE(read.image(0).colorTable(), palette.colourTable());

    for (const QImage &other : {QImage(), strip.copy(0, 0, 8, 16), strip.copy(0, 0, 8, 32), strip.copy(0, 0, 16, 24),
                                strip.convertToFormat(QImage::Format_RGB32)})
        QVERIFY(!read.setStrip(other));
    QCOMPARE(read.toStrip().constScanLine(17)[3], 11);

    TileSet none(0);
    QVERIFY(none.toStrip().isNull());
    QVERIFY(none.setStrip(none.toStrip()));
}

void TestTileSet::importsPictures()
{
    Palette palette;
    palette.loadStandardNext();
    TileSet tiles(1);
    tiles.setPalette(&palette);
    QImage picture(20, 8, QImage::Format_RGB32);
    picture.fill(QColor(255, 255, 255));
    picture.setPixelColor(7, 7, Qt::black);
    QSignalSpy changed(&tiles, &TileSet::tileChanged);
    tiles.importImage(0, picture, 4);
    QCOMPARE(changed, (QList<QVariantList>{{0}}));
    QCOMPARE(tiles.tileOffset(0), 4);
    QCOMPARE(tiles.image(0).size(), QSize(8, 8));
    QCOMPARE(tiles.image(0).pixelIndex(0, 0), 255);
    QCOMPARE(tiles.image(0).pixelIndex(7, 7), 0);
}

void TestTileSet::readsAsMuchNxtAsThereIs()
{
    Palette palette;
    palette.loadStandardNext();
    for (const auto &[size, filled] : {std::pair{0, 0}, {31, 0}, {40, 1}, {96, 3}, {5000, 3}}) {
        TileSet tiles(3);
        tiles.setPalette(&palette);
        for (int i = 0; i < 3; ++i)
            tiles.setTileOffset(i, 5);
        const TileSet::Snapshot before = tiles.snapshot();
        QVERIFY(tiles.importNxt(written(QByteArray(size, '\x5C'))));
        for (int i = 0; i < filled; ++i) {
            QCOMPARE(tiles.tileOffset(i), 0);
            QCOMPARE(tiles.image(i).pixelIndex(7, 7), 12);
            QCOMPARE(tiles.image(i).colorTable(), palette.colourTable());
        }
        QVERIFY(tiles.snapshot().mid(filled) == before.mid(filled));
    }
}

void TestTileSet::readsAsMuchFontAsThereIs()
{
    struct Case
    {
        int size;
        bool result;
        int filled;
    };
    for (const Case &c :
         {Case{0, true, 0}, {7, false, 0}, {8, true, 1}, {12, false, 1}, {20, true, 2}, {2048, true, 2}}) {
        TileSet tiles(3);
        QSignalSpy changed(&tiles, &TileSet::tileChanged);
        QCOMPARE(tiles.importZXFont(1, 6, 9, 4, written(QByteArray(c.size, '\x81'))), c.result);
        QCOMPARE(changed.count(), c.filled);
        for (int i = 1; i <= c.filled; ++i) {
            QCOMPARE(changed.at(i - 1), QVariantList{i});
            QCOMPARE(tiles.tileOffset(i), 4);
            const Tile::Pixels pixels = tiles.tile(i)->pixels();
            QCOMPARE(QByteArray(reinterpret_cast<const char *>(pixels.data()), 8),
                     QByteArray("\6\x9\x9\x9\x9\x9\x9\6"));
        }
        QVERIFY(!tiles.importZXFont(-1, 6, 9, 4, written(QByteArray(8, '\1'))));
        QCOMPARE(tiles.tile(0)->pixels(), Tile::Pixels{});
    }
}

void TestTileSet::writesTheBlocksThatExist()
{
    TileSet tiles(3);
    tiles.setTileImage(0, numberedImage());
    tiles.setTileOffset(0, 2);
    struct Case
    {
        int start, end, blocks;
    };
    for (const Case &c : {Case{-5, 1, 1}, {1, 99, 3}, {3, 1, 0}, {INT_MAX, INT_MIN, 0}}) {
        QVERIFY(tiles.exportBlocks(path("blocks.bin"), c.start, c.end, true));
        const QByteArray bytes = contents(path("blocks.bin"));
        QCOMPARE(bytes.size(), c.blocks * 64);
        if (c.blocks > 0)
            QCOMPARE(bytes.at(8), '\x21'); // with rows and columns exchanged, row 1 begins with pixel 1
    }
}

void TestTileSet::breaksAttributeLines()
{
    const QByteArray fifteen = QByteArray("$0a,").repeated(15);
    const QList<std::pair<int, QByteArray>> cases = {{0, ""},
                                                     {2, "\tdb\t$0a,$0a\n"},
                                                     {16, "\tdb\t" + fifteen + "$0a\n"},
                                                     {17, "\tdb\t" + fifteen + "$0a\n\tdb\t$0a\n"}};
    for (const auto &[count, text] : cases) {
        TileSet tiles(count);
        for (int i = 0; i < count; ++i)
            tiles.tile(i)->setAttributes(0x0A); // the value of a line feed must stay one byte
        QVERIFY(tiles.exportAttributesAsm(path("attributes.asm")));
        QVERIFY(contents(path("attributes.asm")).endsWith("\tTA_DOOR        = $80\n" + text));
        QVERIFY(tiles.exportAttributesBinary(path("attributes.bin")));
        QCOMPARE(contents(path("attributes.bin")), QByteArray(count, 0x0A));
    }
}

void TestTileSet::refusesPathsThatCannotBeOpened()
{
    TileSet tiles(1);
    for (const QString &bad : {m_folder.path(), path("no/such/folder")}) {
        QVERIFY(!tiles.importNxt(bad));
        QVERIFY(!tiles.importZXFont(0, 1, 0, 0, bad));
        QVERIFY(!tiles.exportNxt(bad));
        QVERIFY(!tiles.exportBlocks(bad, 1, 1, false));
        QVERIFY(!tiles.exportAttributesAsm(bad));
        QVERIFY(!tiles.exportAttributesBinary(bad));
    }
    tiles.setName("../outside");
    QVERIFY(!tiles.exportToDirectory(m_folder.path()));
    QVERIFY(tiles.snapshot() == TileSet(1).snapshot());
}

QUENMORA_TEST_MAIN(TestTileSet)
#include "tst_tileset.moc"
