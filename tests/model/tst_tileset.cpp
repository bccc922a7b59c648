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
    void startsBlank();
    void combinesAttributes();
    void keepsTilesIndependent();
    void announcesStructuralEdits_data();
    void announcesStructuralEdits();
    void ignoresPositionsOutside();
    void movesTilesStepByStep_data();
    void movesTilesStepByStep();
    void followsItsPaletteOnly();
    void turnsTiles_data();
    void turnsTiles();
    void turnsTilesThatAreNotSquare();
    void rendersOddTilesInsideTheirBounds();
    void restoresSnapshots();
    void storesTilesAsAStrip();
    void refusesOtherStrips_data();
    void refusesOtherStrips();
    void importsPictures();
    void writesNxt();
    void readsNxt_data();
    void readsNxt();
    void writesBlocks_data();
    void writesBlocks();
    void writesAttributes_data();
    void writesAttributes();
    void readsFonts_data();
    void readsFonts();
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
        word += QChar(tiles.tile(i)->value());
    return word;
}

void setLetters(TileSet &tiles, const QString &word)
{
    for (int i = 0; i < tiles.count(); ++i)
        tiles.tile(i)->setValue(word.at(i).unicode());
}

/// Writes down every structural signal of a tile set as text.
QStringList &record(TileSet &tiles, QStringList &log)
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
    return log;
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

void TestTileSet::startsBlank()
{
    const TileSet tiles(256);
    QCOMPARE(tiles.count(), 256);
    QVERIFY(!tiles.id().isNull());
    QVERIFY(tiles.name().isEmpty() && !tiles.hiRes() && !tiles.palette() && tiles.paletteId().isNull());
    const Tile *last = tiles.tile(255);
    QCOMPARE(last->offset(), 0);
    QCOMPARE(last->image().size(), QSize(8, 8));
    QCOMPARE(last->image().format(), QImage::Format_Indexed8);
    QCOMPARE(last->image().colorTable(), QList<QRgb>(256, 0xFF000000));
    QCOMPARE(last->pixels(), Tile::Pixels{});
}

void TestTileSet::combinesAttributes()
{
    Tile tile;
    QVERIFY(tile.hasAttribute(Tile::TA_NONE));
    tile.setAttribute(Tile::TA_LEFTSOLID, true);
    tile.setAttribute(Tile::TA_DOOR, true);
    QCOMPARE(tile.attributes(), 0x82);
    QVERIFY(!tile.hasAttribute(Tile::TA_NONE));
    QVERIFY(tile.hasAttribute(0x82));
    QVERIFY(!tile.hasAttribute(Tile::TA_SOLID)); // one edge is not all edges
    tile.setAttribute(Tile::TA_SOLID, true);
    QVERIFY(tile.hasAttribute(Tile::TA_SOLID));
    tile.setAttribute(Tile::TA_SOLID, false);
    QCOMPARE(tile.attributes(), 0x80);
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
    tile.setAttributes(5);
    tile.setValue(42);
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
    QTest::addColumn<QStringList>("signalsEmitted");
    QTest::addColumn<QString>("values");
    const auto row = [](const char *name, const std::function<void(TileSet &)> &edit, const QStringList &log,
                        const QString &values) { QTest::newRow(name) << edit << log << values; };
    row(
        "copy", [](TileSet &t) { t.copyTile(1, 2); }, {"begin", "changed 2", "Copy Tile"}, "abcd");
    row(
        "delete", [](TileSet &t) { t.deleteTile(1); }, {"begin", "deleted 1", "Delete Tile"}, "acd");
    row(
        "insert", [](TileSet &t) { t.insertTile(3); }, {"begin", "inserted 3", "Insert Tile"},
        QString("abc%1d").arg(QChar(0)));
    row(
        "append", [](TileSet &t) { t.insertTile(4); }, {"begin", "inserted 4", "Insert Tile"},
        QString("abcd%1").arg(QChar(0)));
    row(
        "clear", [](TileSet &t) { t.clearImage(2); }, {"changed 2"}, "abcd");
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
    QTEST(log, "signalsEmitted");
    QCOMPARE(letters(tiles), values);
    if (log.contains("Copy Tile")) {
        QCOMPARE(tiles.image(2), numberedImage());
        QCOMPARE(tiles.tileOffset(2), 6);
        QCOMPARE(tiles.tile(2)->attributes(), 0);
    }
    if (const qsizetype inserted = values.indexOf(QChar(0)); inserted >= 0)
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

void TestTileSet::movesTilesStepByStep_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("signalsEmitted");
    QTest::newRow("to the end") << 0 << 3 << QStringList{"begin", "0-1 bacd", "1-2 bcad", "2-3 bcda", "Move Tile"};
    QTest::newRow("to the start") << 3 << 0 << QStringList{"begin", "3-2 abdc", "2-1 adbc", "1-0 dabc", "Move Tile"};
}

void TestTileSet::movesTilesStepByStep()
{
    QFETCH(const int, from);
    QFETCH(const int, to);
    TileSet tiles(4);
    setLetters(tiles, "abcd");
    QStringList log;
    record(tiles, log);
    tiles.moveTile(from, to);
    QTEST(log, "signalsEmitted");
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

void TestTileSet::turnsTilesThatAreNotSquare()
{
    TileSet tiles(1);
    tiles.setTileImage(0, numberedImage().copy(0, 0, 8, 3));
    const QImage turned = tiles.tileImage(0, true, false, false, 0);
    QCOMPARE(turned.size(), QSize(3, 8));
    QCOMPARE(turned.pixelIndex(2, 1), 1);
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

    TileSet none(0);
    QVERIFY(none.toStrip().isNull());
    QVERIFY(none.setStrip(none.toStrip()));
}

void TestTileSet::refusesOtherStrips_data()
{
    QTest::addColumn<QImage>("strip");
    QTest::newRow("null") << QImage();
    QTest::newRow("short") << QImage(8, 8, QImage::Format_Indexed8);
    QTest::newRow("long") << QImage(8, 24, QImage::Format_Indexed8);
    QTest::newRow("wide") << QImage(16, 16, QImage::Format_Indexed8);
    QTest::newRow("colours") << QImage(8, 16, QImage::Format_RGB32);
}

void TestTileSet::refusesOtherStrips()
{
    QFETCH(QImage, strip);
    strip.fill(1);
    TileSet tiles(2);
    const TileSet::Snapshot before = tiles.snapshot();
    QVERIFY(!tiles.setStrip(strip));
    QVERIFY(tiles.snapshot() == before);
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

void TestTileSet::writesNxt()
{
    TileSet tiles(2);
    QImage image = numberedImage();
    for (int x = 0; x < 8; ++x)
        image.setPixel(x, 0, static_cast<uint>(x + 1 + 0xA0)); // high bits are lost
    tiles.setTileImage(0, image);
    tiles.setTileOffset(0, 7);
    tiles.setName("Walls");
    QVERIFY(tiles.exportToDirectory(m_folder.path()));
    QVERIFY(tiles.exportNxt(path("out.nxt")));
    const QByteArray bytes = contents(path("out.nxt"));
    QCOMPARE(bytes.size(), 64);
    QCOMPARE(bytes.first(8).toHex(), QByteArray("1234567889abcdef"));
    QCOMPARE(bytes.last(32), QByteArray(32, '\0'));
    QCOMPARE(contents(path("Walls_tiles.nxt")), bytes);
    tiles.setName("../Walls");
    QVERIFY(!tiles.exportToDirectory(m_folder.path()));
}

void TestTileSet::readsNxt_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("filled");
    QTest::newRow("empty") << 0 << 0;
    QTest::newRow("less than a tile") << 31 << 0;
    QTest::newRow("a tile and a bit") << 40 << 1;
    QTest::newRow("all") << 96 << 3;
    QTest::newRow("more than all") << 5000 << 3;
}

void TestTileSet::readsNxt()
{
    QFETCH(const int, size);
    QFETCH(const int, filled);
    Palette palette;
    palette.loadStandardNext();
    TileSet tiles(3);
    tiles.setPalette(&palette);
    for (int i = 0; i < 3; ++i)
        tiles.setTileOffset(i, 5);
    const TileSet::Snapshot before = tiles.snapshot();
    QSignalSpy changed(&tiles, &TileSet::tileChanged);
    QVERIFY(tiles.importNxt(written(QByteArray(size, '\x5C'))));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(tiles.count(), 3);
    for (int i = 0; i < 3; ++i) {
        if (i < filled) {
            QCOMPARE(tiles.tileOffset(i), 0);
            QCOMPARE(tiles.image(i).pixelIndex(6, 7), 5);
            QCOMPARE(tiles.image(i).pixelIndex(7, 7), 12);
            QCOMPARE(tiles.image(i).colorTable(), palette.colourTable());
        } else {
            QVERIFY(tiles.tile(i)->state() == before.at(i));
        }
    }
}

void TestTileSet::writesBlocks_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("tiles");
    QTest::newRow("first") << 1 << 1 << 1;
    QTest::newRow("beyond both ends") << -5 << 1 << 1;
    QTest::newRow("all") << 1 << 99 << 3;
    QTest::newRow("backwards") << 3 << 1 << 0;
    QTest::newRow("past the end") << INT_MAX << INT_MIN << 0;
}

void TestTileSet::writesBlocks()
{
    QFETCH(const int, start);
    QFETCH(const int, end);
    QFETCH(const int, tiles);
    TileSet set(3);
    set.setTileImage(0, numberedImage());
    set.setTileOffset(0, 2);
    for (const bool rotate : {false, true}) {
        QVERIFY(set.exportBlocks(path("blocks.bin"), start, end, rotate));
        const QByteArray bytes = contents(path("blocks.bin"));
        QCOMPARE(bytes.size(), tiles * 64);
        if (tiles > 0) {
            QCOMPARE(bytes.at(3), char(rotate ? 0x28 : 0x23)); // column 3 of row 0 is pixel 3, or row 3 of column 0: 24
            QCOMPARE(bytes.at(8), char(rotate ? 0x21 : 0x28));
        }
    }
}

void TestTileSet::writesAttributes_data()
{
    QTest::addColumn<QList<int>>("attributes");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("binary");
    QTest::newRow("none") << QList<int>{} << QByteArray() << QByteArray();
    QTest::newRow("three") << QList<int>{0, 1, 15} << QByteArray("\tdb\t$00,$01,$0f\n")
                           << QByteArray("\x00\x01\x0f", 3);
    QTest::newRow("line feed") << QList<int>{10, 0xAB} << QByteArray("\tdb\t$0a,$ab\n") << QByteArray("\x0a\xab");
    QTest::newRow("a full line") << QList<int>(
        16, 2) << QByteArray("\tdb\t$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02\n")
                                 << QByteArray(16, '\2');
    QTest::newRow("one more") << QList<int>(17, 2)
                              << QByteArray("\tdb\t$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02,$02\n"
                                            "\tdb\t$02\n")
                              << QByteArray(17, '\2');
}

void TestTileSet::writesAttributes()
{
    QFETCH(const QList<int>, attributes);
    QFETCH(const QByteArray, text);
    TileSet tiles(int(attributes.size()));
    for (int i = 0; i < tiles.count(); ++i)
        tiles.tile(i)->setAttributes(attributes.at(i));
    QVERIFY(tiles.exportAttributesAsm(path("attributes.asm")));
    QCOMPARE(contents(path("attributes.asm")),
             "\tTA_NONE        = $00\n\tTA_TOPSOLID    = $01\n\tTA_LEFTSOLID   = $02\n\tTA_RIGHTSOLID  = $04\n"
             "\tTA_BOTTOMSOLID = $08\n\tTA_SOLID       = $0F\n\tTA_DEADLY      = $10\n\tTA_COLLECTIBLE = $20\n"
             "\tTA_LADDER      = $40\n\tTA_DOOR        = $80\n"
                 + text);
    QVERIFY(tiles.exportAttributesBinary(path("attributes.bin")));
    QTEST(contents(path("attributes.bin")), "binary");
}

void TestTileSet::readsFonts_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("result");
    QTest::addColumn<int>("filled");
    QTest::newRow("empty") << 0 << true << 0;
    QTest::newRow("a row short") << 7 << false << 0;
    QTest::newRow("one character") << 8 << true << 1;
    QTest::newRow("one and a half") << 12 << false << 1;
    QTest::newRow("cut off behind the last tile") << 20 << true << 2;
    QTest::newRow("long") << 2048 << true << 2;
}

void TestTileSet::readsFonts()
{
    QFETCH(const int, size);
    QFETCH(const int, filled);
    TileSet tiles(3);
    QSignalSpy changed(&tiles, &TileSet::tileChanged);
    QTEST(tiles.importZXFont(1, 6, 9, 4, written(QByteArray(size, '\x81'))), "result");
    QCOMPARE(changed.count(), filled);
    for (int i = 0; i < filled; ++i) {
        QCOMPARE(changed.at(i), QVariantList{1 + i});
        QCOMPARE(tiles.tileOffset(1 + i), 4);
        const Tile::Pixels pixels = tiles.tile(1 + i)->pixels();
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(pixels.data()), 8), QByteArray("\6\x9\x9\x9\x9\x9\x9\6"));
    }
    QCOMPARE(tiles.tile(0)->pixels(), Tile::Pixels{});
    QVERIFY(!tiles.importZXFont(-1, 6, 9, 4, written(QByteArray(8, '\1'))));
}

void TestTileSet::refusesPathsThatCannotBeOpened()
{
    TileSet tiles(1);
    const TileSet::Snapshot before = tiles.snapshot();
    for (const QString &bad : {m_folder.path(), path("no/such/folder"), QString()}) {
        QVERIFY(!tiles.importNxt(bad));
        QVERIFY(!tiles.importZXFont(0, 1, 0, 0, bad));
        QVERIFY(!tiles.exportNxt(bad));
        QVERIFY(!tiles.exportBlocks(bad, 1, 1, false));
        QVERIFY(!tiles.exportAttributesAsm(bad));
        QVERIFY(!tiles.exportAttributesBinary(bad));
    }
    QVERIFY(!tiles.exportToDirectory(path("no/such/folder")));
    QVERIFY(tiles.snapshot() == before);
}

QUENMORA_TEST_MAIN(TestTileSet)
#include "tst_tileset.moc"
