#include "model/palette.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

#include <memory>

namespace {

/// A tile picture whose pixel at (x, y) is y·8 + x, in the colours of an all-white table.
QImage numberedImage()
{
    QImage image = pictureOf({8, 8}, QImage::Format_Indexed8, [](int i) { return i; });
    image.setColorTable(QList<QRgb>(256, qRgb(255, 255, 255)));
    return image;
}

} // namespace

/// Tests tiles, the list operations of tile sets, and all their raw files.
class TestTileSet : public QObject
{
    Q_OBJECT

    const TemporaryFolder m_path;

private slots:
    void keepsTilesIndependent()
    {
        uchar memory[64] = {7};
        Tile tile;
        tile.setImage(QImage(memory, 8, 8, 8, QImage::Format_Indexed8)); // must not follow that memory
        memory[0] = 9;
        QCOMPARE(tile.pixels()[0], uchar(7));
        tile.setAttribute(Tile::TA_SOLID | Tile::TA_DOOR, true);
        const std::unique_ptr<Tile> copy(tile.clone());
        tile.setAttribute(Tile::TA_TOPSOLID, false);
        QVERIFY(copy->hasAttribute(Tile::TA_SOLID) && tile.hasAttribute(Tile::TA_LEFTSOLID | Tile::TA_DOOR));
        QVERIFY(!tile.hasAttribute(Tile::TA_SOLID) && !tile.hasAttribute(Tile::TA_NONE)); // three of four edges
    }

    void announcesStructuralEdits()
    {
        const std::tuple<QString, QString, std::function<void(TileSet &)>> edits[] = {
            {"tileChanged 2;Copy Tile", "abbd", [](TileSet &t) { t.copyTile(1, 2); }},
            {"tileDeleted 1;Delete Tile", "acd", [](TileSet &t) { t.deleteTile(1); }},
            {"tileInserted 3;Insert Tile", "abc?d", [](TileSet &t) { t.insertTile(3); }},
            {"tileInserted 4;Insert Tile", "abcd?", [](TileSet &t) { t.insertTile(4); }},
            {"tileSwapped 0 1;tileSwapped 1 2;Move Tile", "bcad", [](TileSet &t) { t.moveTile(0, 2); }},
            {"tileSwapped 3 2;tileSwapped 2 1;Move Tile", "adbc", [](TileSet &t) { t.moveTile(3, 1); }},
        };
        for (const auto &[emitted, after, edit] : edits) {
            TileSet tiles(4);
            for (int i = 0; i < 4; ++i) {
                tiles.setTileImage(i, plainImage({8, 8}, 'a' + i));
                tiles.setTileOffset(i, 5 + i);
            }
            tiles.tile(1)->setAttributes(1);
            SignalLog log(tiles);
            edit(tiles);
            QStringList expected = QStringList("structureAboutToChange") + emitted.split(';');
            expected.last().prepend("structureChanged ");
            QCOMPARE(log.take(), expected);
            QString pixels;
            for (int i = 0; i < tiles.count(); ++i) {
                const uchar pixel = tiles.tile(i)->pixels()[0];
                pixels += QChar(pixel ? pixel : '?');
                QCOMPARE(tiles.tileOffset(i), pixel ? pixel - 'a' + 5 : 1);
            }
            QCOMPARE(pixels, after);
            QVERIFY(after != "abbd" || tiles.tile(2)->attributes() == 0); // a copy keeps the attributes of its place
        }
    }

    void ignoresPositionsOutside()
    {
        TileSet tiles(4);
        SignalLog log(tiles);
        for (const int outside : {-1, 4, 1 << 30}) {
            for (const auto edit : {&TileSet::copyTile, &TileSet::moveTile}) {
                for (const auto &[from, to] : {std::pair(0, outside), {outside, 0}, {2, 2}})
                    (tiles.*edit)(from, to);
            }
            for (const auto edit : {&TileSet::deleteTile, &TileSet::clearImage})
                (tiles.*edit)(outside);
            tiles.setTileImage(outside, numberedImage());
            tiles.importImage(outside, numberedImage(), 3);
            QVERIFY(tiles.tileOffset(outside) == 0 && !tiles.tile(outside) && tiles.image(outside).isNull());
            QTest::ignoreMessage(QtInfoMsg, qPrintable(QString("Image index out of range %1").arg(outside)));
            QCOMPARE(indices(tiles.tileImage(outside, true, false, true, 5)), QByteArray(64, '\0'));
        }
        tiles.insertTile(5);
        QVERIFY(log.take().isEmpty() && tiles.snapshot() == TileSet(4).snapshot());
    }

    void wearsColoursOfItsPalette()
    {
        Palette former;
        Palette palette;
        palette.loadStandardNext();
        TileSet tiles(2);
        tiles.setPalette(&former);
        tiles.setPalette(&palette);
        QCOMPARE(tiles.paletteId(), palette.id());
        const QImage picture =
            pictureOf({20, 8}, QImage::Format_RGB32, [](int i) { return i == 7 * 20 + 7 ? 0 : 0xFFFFFFFF; });
        SignalLog log(tiles);
        tiles.importImage(1, picture, 4);
        QVERIFY(tiles.tileOffset(1) == 4 && indices(tiles.image(1)) == QByteArray(63, '\xFF') + '\0');
        former.setRawColour(4, 0xFF01);
        palette.setTransparencyIndex(4);
        palette.setRawColour(4, 0xFF01);
        QCOMPARE(tiles.image(1).color(4), qRgb(255, 255, 255)); // opaque, though the entry is transparent
        tiles.clearImage(1);
        QCOMPARE(indices(tiles.image(1)), QByteArray(64, '\0'));
        QCOMPARE(log.take(), QStringList({"tileChanged 1", "tileChanged 0", "tileChanged 1"}));
        tiles.setPalette(nullptr);
        QVERIFY(tiles.paletteId().isNull());
    }

    void restoresSnapshotsAndStrips()
    {
        Palette palette;
        palette.loadStandardNext();
        TileSet tiles(3);
        tiles.setPalette(&palette);
        tiles.setTileImage(1, numberedImage());
        tiles.tile(1)->setValue(42);
        const TileSet::Snapshot snapshot = tiles.snapshot();
        tiles.deleteTile(1);
        SignalLog log(tiles);
        tiles.restore(snapshot);
        QCOMPARE(log.take(), QStringList("restored"));
        QVERIFY(tiles.snapshot() == snapshot);

        const QImage strip = tiles.toStrip();
        TileSet read(3);
        QVERIFY(read.setStrip(strip) && read.image(0).colorTable() == palette.colourTable());
        for (const QImage &other : {QImage(), strip.copy(0, 0, 8, 16), strip.copy(0, 0, 8, 32),
                                    strip.copy(0, 0, 16, 24), strip.convertToFormat(QImage::Format_RGB32)})
            QVERIFY(!read.setStrip(other));
        QCOMPARE(read.tile(1)->pixels(), tiles.tile(1)->pixels());
    }

    void readsAsMuchAsThereIs()
    {
        Palette palette;
        palette.loadStandardNext();
        // next data that fill so many of three tiles, and a font of so many characters from the second tile on
        const std::tuple<int, int, int, bool, int> cases[] = {
            {31, 0, 0, true, 0}, {40, 1, 7, false, 0}, {5000, 3, 12, false, 1}, {5000, 3, 20, true, 2}};
        for (const auto &[size, filled, fontSize, whole, characters] : cases) {
            TileSet tiles(3);
            tiles.setPalette(&palette);
            for (int i = 0; i < 3; ++i)
                tiles.setTileOffset(i, 5);
            QVERIFY(tiles.importNxt(m_path("a.nxt", QByteArray(size, '\x5C'))));
            for (int i = 0; i < 3; ++i) {
                QCOMPARE(indices(tiles.image(i)), QByteArray(i < filled ? "\5\14" : "\0", 2).repeated(32));
                QCOMPARE(tiles.tileOffset(i), i < filled ? 0 : 5);
                QCOMPARE(tiles.image(i).colorTable() == palette.colourTable(), i < filled);
                tiles.clearImage(i);
            }
            SignalLog log(tiles);
            QCOMPARE(tiles.importZXFont(1, 6, 9, 4, m_path("a.ch8", QByteArray(fontSize, '\x83'))), whole);
            QVERIFY(!tiles.importZXFont(-1, 6, 9, 4, m_path("a.ch8")));
            QCOMPARE(log.take(), QStringList({"tileChanged 1", "tileChanged 2"}).first(characters));
            for (int i = 1; i <= characters; ++i) {
                QCOMPARE(tiles.tileOffset(i), 4);
                QCOMPARE(indices(tiles.image(i)), QByteArray("\6\x9\x9\x9\x9\x9\6\6").repeated(8));
            }
        }
    }

    void writesWhatThereIs()
    {
        TileSet three(3);
        for (const auto &[start, end, blocks] : {std::tuple(-5, 1, 1), {1, 99, 3}, {INT_MAX, INT_MIN, 0}, {2, 3, 2}}) {
            QVERIFY(three.exportBlocks(m_path("blocks.bin"), start, end, true));
            QCOMPARE(readFile(m_path("blocks.bin")).size(), blocks * 64);
        }
        // attributes that are a line feed stay one byte, and sixteen go to a line
        const QByteArray line = "\tdb\t" + QByteArray("$0a,").repeated(15) + "$0a\n";
        for (const auto &[count, text] : {std::pair{0, QByteArray()}, {16, line}, {17, line + "\tdb\t$0a\n"}}) {
            TileSet tiles(count);
            for (int i = 0; i < count; ++i)
                tiles.tile(i)->setAttributes(0x0A);
            QVERIFY(tiles.exportAttributesAsm(m_path("a.asm")) && tiles.exportAttributesBinary(m_path("a.bin")));
            QVERIFY(readText(m_path("a.asm")).endsWith("\tTA_DOOR        = $80\n" + text));
            QCOMPARE(readFile(m_path("a.bin")), QByteArray(count, 0x0A));
        }
        QVERIFY(!three.importNxt(m_path()) && !three.importZXFont(0, 1, 0, 0, m_path()));
        three.setName("../outside");
        QVERIFY(!three.exportNxt(m_path()) && !three.exportToDirectory(m_path()));
    }
};

QUENMORA_TEST_MAIN(TestTileSet)
#include "tst_tileset.moc"
