#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

namespace {

// a hexadecimal digit a pixel: what is written of a tile are its pixels
constexpr auto Tile1 = "00011000 00122100 01233210 12345321 F0000000 0F000000 77777777 0000000A";
constexpr auto LetterA = "00000000 000FF000 00F00F00 0F0000F0 0FFFFFF0 0F0000F0 0F0000F0 00000000";

QImage picture(const char *digits)
{
    const QByteArray text = QByteArray(digits).replace(' ', "");
    return pictureOf({8, 8}, QImage::Format_Indexed8, [&](int i) { return text.mid(i, 1).toUInt(nullptr, 16); });
}

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace

/// The worked examples of docs/file-formats.md, as they stand there.
class TestFileFormats : public QObject
{
    Q_OBJECT

    const TemporaryFolder m_path;
    Project m_project;
    TileSet *m_tiles = m_project.createTileSet("Rocks", {}, 3);

private slots:
    void palette()
    {
        Palette written;
        written.setName("Sunset");
        written.setColour(0, QColor(255, 0, 255), true);
        written.setColour(1, QColor(73, 183, 146), false);
        written.setColour(2, QColor(255, 110, 37), false);
        QVERIFY(written.exportToDirectory(m_path()));
        for (const QString file : {"a.pal", "a.nxp", "a.npl", "Sunset_palette.bin"}) {
            QVERIFY(file.startsWith("Sunset") || written.exportData(m_path(file)));
            QCOMPARE(readFile(m_path(file)), hex("E381 5600 EC01") + QByteArray(file == "a.npl" ? 507 : 506, 0));
            Palette loaded;
            QVERIFY(loaded.importData(m_path(file)) && loaded.colour(2) == QColor(255, 110, 37));
        }
    }

    void tilePixels()
    {
        m_tiles->setTileImage(0, picture(Tile1));
        QVERIFY(m_tiles->exportToDirectory(m_path()));
        QCOMPARE(readFile(m_path("Rocks_tiles.nxt")), hex(Tile1) + QByteArray(64, '\0'));
        m_tiles->clearImage(0);
        QVERIFY(m_tiles->importNxt(m_path("one.nxt", hex(Tile1))));
        QCOMPARE(indices(m_tiles->image(0)), indices(picture(Tile1)));

        m_tiles->setTileOffset(0, 2);
        for (const bool rotated : {false, true}) {
            QVERIFY(m_tiles->exportBlocks(m_path("a.bin"), 1, 1, rotated));
            QCOMPARE(readFile(m_path("a.bin")).left(8), hex(rotated ? "202020212F202720" : "2020202121202020"));
        }
    }

    void tileAttributes()
    {
        m_tiles->tile(1)->setAttributes(0x0F);
        m_tiles->tile(2)->setAttributes(0x41);
        QVERIFY(m_tiles->exportAttributesBinary(m_path("a.bin")) && m_tiles->exportAttributesAsm(m_path("a.asm")));
        QCOMPARE(readFile(m_path("a.bin")), hex("00 0F 41"));
        QCOMPARE(readText(m_path("a.asm")),
                 QByteArray("\tTA_NONE        = $00\n\tTA_TOPSOLID    = $01\n\tTA_LEFTSOLID   = $02\n"
                            "\tTA_RIGHTSOLID  = $04\n\tTA_BOTTOMSOLID = $08\n\tTA_SOLID       = $0F\n"
                            "\tTA_DEADLY      = $10\n\tTA_COLLECTIBLE = $20\n\tTA_LADDER      = $40\n"
                            "\tTA_DOOR        = $80\n\tdb\t$00,$0f,$41\n"));
    }

    void zxSpectrumFont()
    {
        QVERIFY(m_tiles->importZXFont(1, 15, 0, 0, m_path("font.ch8", hex("00 18 24 42 7E 42 42 00"))));
        QCOMPARE(indices(m_tiles->image(1)), indices(picture(LetterA)));
    }

    void tileMap()
    {
        const QPointer<Map> map = m_project.createMap("Cave", m_tiles->id(), QSize(2, 2));
        map->setTile(QPoint(0, 0), {.index = 257, .mirror = true, .offset = 3, .used = true});
        map->setTile(QPoint(1, 0), {.index = 5, .rotate = true, .used = true});
        map->setTile(QPoint(0, 1), {.index = 2, .flip = true, .offset = 15, .used = true});
        map->setTile(QPoint(1, 1), {511, true, true, true, 10, true});
        QVERIFY(map->exportToDirectory(m_path()));
        QCOMPARE(readFile(m_path("Cave_tilemap.bin")), hex("01 39 05 02 02 F4 FF AF"));
    }

    void mapOfBlocks()
    {
        m_path("level.nxb", hex("00 00 00 00 00 00 00 00  01 00 02 00 11 00 12 00"));
        m_path("level.nxm", hex("04 02 01 00 00 00") + QByteArray(252, '\xAA'));
        const QPointer<Map> map = m_project.createMap("Level", m_tiles->id(), QSize(40, 32));
        QVERIFY(map->importNxm(m_path("level.nxm"), m_path("level.nxb")));
        QCOMPARE(map->size(), QSize(4, 2));
        QCOMPARE(map->tileLayer()->toNextData(), hex("01 00 02 00 00 00 00 00  11 00 12 00 00 00 00 00"));
    }

    void sprites()
    {
        const QByteArray bytes = hex("00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F FF") + QByteArray(239, '\xE3');
        for (const auto depth : {Quenmora::FourBit, Quenmora::EightBit}) {
            SpriteBank bank(depth);
            QVERIFY(bank.importSpr(m_path("one.spr", bytes)) && bank.count() == 2);
            QCOMPARE(indices(bank.spriteImage(1, false, false, false)), bytes);
            bank.deleteSprite(0);
            QVERIFY(bank.exportSpr(m_path("two.spr")) && readFile(m_path("two.spr")) == bytes);
        }
    }
};

QUENMORA_TEST_MAIN(TestFileFormats)
#include "tst_fileformats.moc"
