#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

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
    void wearsColoursOfItsPalette();
    void turnsTiles();
    void rendersOddTilesInsideTheirBounds();
    void restoresSnapshotsAndStrips();
    void readsAsMuchAsThereIs();
    void writesWhatThereIs();
    void refusesPathsThatCannotBeOpened();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

namespace {

/// A tile picture whose pixel at (x, y) is y·8 + x, in the colours of an all-white table.
QImage numberedImage()
{
    QImage image = plainImage({8, 8}, 0);
    image.setColorTable(QList<QRgb>(256, qRgb(255, 255, 255)));
    for (int i = 0; i < 64; ++i)
        image.setPixel(i % 8, i / 8, uint(i));
    return image;
}

/// The values of the tiles as a word, each a letter; ? for a new tile.
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

void listen(SignalLog &log, TileSet &tiles)
{
    log.listen(tiles, &TileSet::structureAboutToChange, "begin");
    log.listen(tiles, &TileSet::structureChanged, "end");
    log.listen(tiles, &TileSet::tileChanged, "changed");
    log.listen(tiles, &TileSet::tileDeleted, "deleted");
    log.listen(tiles, &TileSet::tileInserted, "inserted");
    log.listen(tiles, &TileSet::tileSwapped, "swapped");
    log.listen(tiles, &TileSet::restored, "restored");
}

} // namespace

void TestTileSet::keepsTilesIndependent()
{
    // a picture over somebody else's memory must not follow that memory
    uchar memory[64] = {7};
    Tile tile;
    tile.setImage(QImage(memory, 8, 8, 8, QImage::Format_Indexed8));
    memory[0] = 9;
    QCOMPARE(tile.pixels()[0], uchar(7));
    tile.setAttribute(Tile::TA_SOLID | Tile::TA_DOOR, true);
    tile.setAttribute(Tile::TA_TOPSOLID, false);
    tile.setValue(42);
    QVERIFY(tile.hasAttribute(Tile::TA_LEFTSOLID | Tile::TA_DOOR));
    QVERIFY(!tile.hasAttribute(Tile::TA_SOLID) && !tile.hasAttribute(Tile::TA_NONE)); // three edges are not all edges
    const std::unique_ptr<Tile> copy(tile.clone());
    QVERIFY(copy->state() == tile.state());
    tile.setColour(1, QColor(1, 2, 3, 0));
    QCOMPARE(tile.image().color(1), qRgb(1, 2, 3));
    QVERIFY(copy->image().color(1) != qRgb(1, 2, 3));
}

void TestTileSet::announcesStructuralEdits_data()
{
    using Edit = std::function<void(TileSet &)>;
    QTest::addColumn<QString>("emitted");
    QTest::addColumn<QString>("values");
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char *emitted, const char *values, const Edit &edit) {
        QTest::newRow(emitted) << emitted << values << edit;
    };
    row("begin;changed 2;end Copy Tile", "abcd", [](TileSet &t) { t.copyTile(1, 2); });
    row("begin;deleted 1;end Delete Tile", "acd", [](TileSet &t) { t.deleteTile(1); });
    row("begin;inserted 3;end Insert Tile", "abc?d", [](TileSet &t) { t.insertTile(3); });
    row("begin;inserted 4;end Insert Tile", "abcd?", [](TileSet &t) { t.insertTile(4); });
    row("begin;swapped 0 1;swapped 1 2;swapped 2 3;end Move Tile", "bcda", [](TileSet &t) { t.moveTile(0, 3); });
    row("begin;swapped 3 2;swapped 2 1;swapped 1 0;end Move Tile", "dabc", [](TileSet &t) { t.moveTile(3, 0); });
    row("changed 2", "abcd", [](TileSet &t) { t.clearImage(2); });
}

void TestTileSet::announcesStructuralEdits()
{
    QFETCH(const QString, emitted);
    QFETCH(const QString, values);
    QFETCH(const std::function<void(TileSet &)>, edit);
    TileSet tiles(4);
    setLetters(tiles, "abcd");
    tiles.setTileImage(1, numberedImage());
    tiles.setTileOffset(1, 6);
    tiles.tile(1)->setAttributes(1);
    SignalLog log;
    listen(log, tiles);
    edit(tiles);
    QCOMPARE(log.take().join(';'), emitted);
    QCOMPARE(letters(tiles), values);
    if (emitted.endsWith("Copy Tile")) {
        QCOMPARE(tiles.image(2), numberedImage());
        QCOMPARE(tiles.tileOffset(2), 6);
        QCOMPARE(tiles.tile(2)->attributes(), 0);
    }
    if (const auto inserted = int(values.indexOf('?')); inserted >= 0)
        QCOMPARE(tiles.tileOffset(inserted), 1);
}

void TestTileSet::ignoresPositionsOutside()
{
    TileSet tiles(4);
    const TileSet::Snapshot before = tiles.snapshot();
    SignalLog log;
    listen(log, tiles);
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
        QCOMPARE(indices(tiles.tileImage(outside, true, false, true, 5)), QByteArray(64, '\0'));
    }
    tiles.copyTile(2, 2);
    tiles.moveTile(2, 2);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(tiles.snapshot() == before);
}

void TestTileSet::wearsColoursOfItsPalette()
{
    Palette former;
    Palette palette;
    palette.loadStandardNext();
    TileSet tiles(2);
    tiles.setPalette(&former);
    tiles.setPalette(&palette);
    QCOMPARE(tiles.paletteId(), palette.id());
    QImage picture(20, 8, QImage::Format_RGB32);
    picture.fill(Qt::white);
    picture.setPixelColor(7, 7, Qt::black);
    SignalLog log;
    listen(log, tiles);
    tiles.importImage(1, picture, 4);
    QCOMPARE(tiles.tileOffset(1), 4);
    QCOMPARE(indices(tiles.image(1)), QByteArray(63, '\xFF') + '\0');
    former.setRawColour(4, 0xFF01);
    palette.setTransparencyIndex(4);
    palette.setRawColour(4, 0xFF01);
    QCOMPARE(log.take(), QStringList({"changed 1", "changed 0"}));
    QCOMPARE(tiles.image(1).color(4), qRgb(255, 255, 255)); // opaque, though the entry is transparent
    tiles.setPalette(nullptr);
    QVERIFY(tiles.paletteId().isNull());
}

void TestTileSet::turnsTiles()
{
    // for bits rotate, flip, mirror: the numbers of the pixels that come to (0, 0) and (1, 0)
    constexpr std::pair<int, int> origins[] = {{0, 1}, {7, 6}, {56, 57}, {63, 62}, {56, 48}, {0, 8}, {63, 55}, {7, 15}};
    const auto shown = [](int pixel) { return (pixel & 15) + 0x30; };
    TileSet tiles(1);
    tiles.setTileImage(0, numberedImage());
    for (int i = 0; i < 8; ++i) {
        const QImage image = tiles.tileImage(0, i & 4, i & 2, i & 1, 3);
        QCOMPARE(image.pixelIndex(0, 0), shown(origins[i].first));
        QCOMPARE(image.pixelIndex(1, 0), shown(origins[i].second));
        QCOMPARE(image.colorTable(), numberedImage().colorTable());
        // the painters' way gives the same pixels, and writes no others
        QByteArray target(80, '\xEE');
        tiles.renderTile(0, i & 4, i & 2, i & 1, 3, reinterpret_cast<uchar *>(target.data()), 10);
        for (int y = 0; y < 8; ++y)
            QCOMPARE(target.mid(y * 10, 10), indices(image).mid(y * 8, 8) + "\xEE\xEE");
    }
    QCOMPARE(tiles.image(0), numberedImage());
}

void TestTileSet::rendersOddTilesInsideTheirBounds()
{
    TileSet tiles(3);
    tiles.setTileImage(0, numberedImage().copy(0, 0, 3, 2)); // too small
    tiles.setTileImage(1, numberedImage().scaled(20, 20)); // too large
    tiles.setTileImage(2, QImage());
    QCOMPARE(tiles.tile(0)->toNextData(), QByteArray::fromHex("01200000 89a00000") + QByteArray(24, '\0'));
    QCOMPARE(tiles.tile(2)->toNextData(), QByteArray(32, '\0'));
    QCOMPARE(indices(tiles.tileImage(0, true, false, false, 0)), QByteArray::fromHex("0800 0901 0a02"));
    for (int i = -1; i <= 3; ++i) {
        uchar target[64] = {};
        tiles.renderTile(i, true, true, true, 0, target, 8);
    }
    QCOMPARE(tiles.toStrip().size(), QSize(8, 24));
}

void TestTileSet::restoresSnapshotsAndStrips()
{
    Palette palette;
    palette.loadStandardNext();
    palette.setTransparencyIndex(2);
    TileSet tiles(3);
    tiles.setPalette(&palette);
    setLetters(tiles, "abc");
    tiles.setTileImage(1, numberedImage());
    tiles.setTileOffset(1, 9);
    const TileSet::Snapshot snapshot = tiles.snapshot();
    QCOMPARE(snapshot.at(1).image.constBits(), std::as_const(tiles).image(1).constBits()); // shared, not copied
    TileSet copy(512);
    SignalLog log;
    listen(log, tiles);
    listen(log, copy);
    copy.copyTilesFrom(tiles);
    QVERIFY(copy.snapshot() == snapshot);
    QCOMPARE(log.take(), QStringList());
    tiles.deleteTile(1);
    tiles.moveTile(0, 1);
    log.take();
    tiles.restore(snapshot);
    QCOMPARE(log.take(), QStringList("restored"));
    QVERIFY(tiles.snapshot() == snapshot);

    const QImage strip = tiles.toStrip();
    QVERIFY(strip.save(path("strip.png"), "PNG"));
    TileSet read(3);
    QVERIFY(read.setStrip(QImage(path("strip.png"))));
    QCOMPARE(read.tile(1)->pixels(), tiles.tile(1)->pixels());
    QCOMPARE(read.image(0).colorTable(), palette.colourTable());
    for (const QImage &other : {QImage(), strip.copy(0, 0, 8, 16), strip.copy(0, 0, 8, 32), strip.copy(0, 0, 16, 24),
                                strip.convertToFormat(QImage::Format_RGB32)})
        QVERIFY(!read.setStrip(other));
    QCOMPARE(read.tile(1)->pixels(), tiles.tile(1)->pixels());
    QVERIFY(TileSet(0).setStrip(TileSet(0).toStrip()));
}

void TestTileSet::readsAsMuchAsThereIs()
{
    Palette palette;
    palette.loadStandardNext();
    for (const auto &[size, filled] : {std::pair{0, 0}, {31, 0}, {40, 1}, {96, 3}, {5000, 3}}) {
        TileSet tiles(3);
        tiles.setPalette(&palette);
        for (int i = 0; i < 3; ++i)
            tiles.setTileOffset(i, 5);
        const TileSet::Snapshot before = tiles.snapshot();
        QVERIFY(writeFile(path("a.nxt"), QByteArray(size, '\x5C')));
        QVERIFY(tiles.importNxt(path("a.nxt")));
        for (int i = 0; i < filled; ++i) {
            QCOMPARE(tiles.tileOffset(i), 0);
            QCOMPARE(tiles.image(i).pixelIndex(7, 7), 12);
            QCOMPARE(tiles.image(i).colorTable(), palette.colourTable());
        }
        QVERIFY(tiles.snapshot().mid(filled) == before.mid(filled));
    }

    // a font for the second and the third tile of three
    const std::tuple<int, bool, QString> fonts[] = {{0, true, ""},
                                                    {7, false, ""},
                                                    {8, true, "changed 1"},
                                                    {12, false, "changed 1"},
                                                    {20, true, "changed 1;changed 2"},
                                                    {2048, true, "changed 1;changed 2"}};
    for (const auto &[size, result, emitted] : fonts) {
        TileSet tiles(3);
        SignalLog log;
        listen(log, tiles);
        QVERIFY(writeFile(path("a.ch8"), QByteArray(size, '\x81')));
        QCOMPARE(tiles.importZXFont(1, 6, 9, 4, path("a.ch8")), result);
        QVERIFY(!tiles.importZXFont(-1, 6, 9, 4, path("a.ch8")));
        QCOMPARE(log.take().join(';'), emitted);
        for (int i = 0; i < 3; ++i) {
            const bool filled = emitted.contains(QString::number(i));
            QCOMPARE(tiles.tileOffset(i), filled ? 4 : 0);
            QCOMPARE(indices(tiles.image(i)),
                     filled ? QByteArray("\6\x9\x9\x9\x9\x9\x9\6").repeated(8) : QByteArray(64, '\0'));
        }
    }
}

void TestTileSet::writesWhatThereIs()
{
    TileSet three(3);
    three.setTileImage(0, numberedImage());
    three.setTileOffset(0, 2);
    for (const auto &[start, end, blocks] :
         {std::tuple(-5, 1, 1), {1, 99, 3}, {3, 1, 0}, {INT_MAX, INT_MIN, 0}, {2, 3, 2}}) {
        QVERIFY(three.exportBlocks(path("blocks.bin"), start, end, true));
        const QByteArray bytes = readFile(path("blocks.bin"));
        QCOMPARE(bytes.size(), blocks * 64);
        if (start <= 1)
            QCOMPARE(bytes.at(8), '\x21'); // with rows and columns exchanged, row 1 begins with pixel 1
    }

    // attributes that are a line feed stay one byte, and sixteen go to a line
    const QByteArray fifteen = QByteArray("$0a,").repeated(15);
    const QList<std::pair<int, QByteArray>> tables = {{0, ""},
                                                      {2, "\tdb\t$0a,$0a\n"},
                                                      {16, "\tdb\t" + fifteen + "$0a\n"},
                                                      {17, "\tdb\t" + fifteen + "$0a\n\tdb\t$0a\n"}};
    for (const auto &[count, text] : tables) {
        TileSet tiles(count);
        for (int i = 0; i < count; ++i)
            tiles.tile(i)->setAttributes(0x0A);
        QVERIFY(tiles.exportAttributesAsm(path("attributes.asm")));
        QVERIFY(readFile(path("attributes.asm")).endsWith("\tTA_DOOR        = $80\n" + text));
        QVERIFY(tiles.exportAttributesBinary(path("attributes.bin")));
        QCOMPARE(readFile(path("attributes.bin")), QByteArray(count, 0x0A));
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
