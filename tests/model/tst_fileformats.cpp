#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tilemap.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

/// A 8 × 8 picture from text, row by row: '.' is 0, other digits are hexadecimal.
QImage picture(const QByteArray &text)
{
    QImage image = plainImage({8, 8}, 0);
    for (int i = 0; i < 64; ++i)
        image.setPixel(i % 8, i / 8, text.mid(i, 1).toUInt(nullptr, 16));
    return image;
}

constexpr auto TilePixels = "...11..."
                            "..1221.."
                            ".123321."
                            "12345321"
                            "F......."
                            ".F......"
                            "77777777"
                            ".......A";

constexpr auto TileBytes = "00 01 10 00  00 12 21 00  01 23 32 10  12 34 53 21"
                           "F0 00 00 00  0F 00 00 00  77 77 77 77  00 00 00 0A";

constexpr auto FontPixels = "........"
                            "...FF..."
                            "..F..F.."
                            ".F....F."
                            ".FFFFFF."
                            ".F....F."
                            ".F....F."
                            "........";

} // namespace

/// The worked examples of docs/file-formats.md, as they stand there.
class TestFileFormats : public QObject
{
    Q_OBJECT

private slots:
    void palette();
    void tilePixels();
    void tileAttributes();
    void zxSpectrumFont();
    void tileMap();
    void mapOfBlocks();
    void sprites();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    static QByteArray hex(const char *digits) { return QByteArray::fromHex(digits); }

    QTemporaryDir m_folder;
    Project m_project;
    TileSet *m_tiles = m_project.createTileSet("Rocks", {}, 3);
};

void TestFileFormats::palette()
{
    Palette written;
    written.setName("Sunset");
    written.setColour(0, QColor(255, 0, 255), true);
    written.setColour(1, QColor(73, 183, 146), false);
    written.setColour(2, QColor(255, 110, 37), false);
    QVERIFY(written.exportToDirectory(m_folder.path()));
    for (const char *file : {"a.pal", "a.nxp", "a.npl"})
        QVERIFY(written.exportData(path(file)));
    for (const char *file : {"a.pal", "a.nxp", "a.npl", "Sunset_palette.bin"}) {
        QCOMPARE(readFile(path(file)), hex("E381 5600 EC01") + QByteArray(file == QByteArray("a.npl") ? 507 : 506, 0));
        Palette loaded;
        QVERIFY(loaded.importData(path(file)));
        QCOMPARE(loaded.rawColour(0), quint16(0xE381));
        QCOMPARE(loaded.rawColour(1), quint16(0x5600));
        QCOMPARE(loaded.colour(2), QColor(255, 110, 37));
    }
}

void TestFileFormats::tilePixels()
{
    m_tiles->setTileImage(0, picture(TilePixels));
    QVERIFY(m_tiles->exportToDirectory(m_folder.path()));
    QCOMPARE(readFile(path("Rocks_tiles.nxt")), hex(TileBytes) + QByteArray(64, '\0'));

    QVERIFY(writeFile(path("one.nxt"), hex(TileBytes)));
    m_tiles->clearImage(0);
    QVERIFY(m_tiles->importNxt(path("one.nxt")));
    QCOMPARE(indices(m_tiles->image(0)), indices(picture(TilePixels)));

    m_tiles->setTileOffset(0, 2);
    QVERIFY(m_tiles->exportBlocks(path("blocks.bin"), 1, 1, false));
    QCOMPARE(readFile(path("blocks.bin")).size(), 64);
    QCOMPARE(readFile(path("blocks.bin")).first(8), hex("20 20 20 21 21 20 20 20"));
    QVERIFY(m_tiles->exportBlocks(path("rotated.bin"), 1, 1, true));
    QCOMPARE(readFile(path("rotated.bin")).first(8), hex("20 20 20 21 2F 20 27 20"));
}

void TestFileFormats::tileAttributes()
{
    m_tiles->tile(1)->setAttributes(0x0F);
    m_tiles->tile(2)->setAttributes(0x41);
    QVERIFY(m_tiles->exportAttributesBinary(path("attributes.bin")));
    QCOMPARE(readFile(path("attributes.bin")), hex("00 0F 41"));
    QVERIFY(m_tiles->exportAttributesAsm(path("attributes.asm")));
    QCOMPARE(readFile(path("attributes.asm")),
             QByteArray("\tTA_NONE        = $00\n"
                        "\tTA_TOPSOLID    = $01\n"
                        "\tTA_LEFTSOLID   = $02\n"
                        "\tTA_RIGHTSOLID  = $04\n"
                        "\tTA_BOTTOMSOLID = $08\n"
                        "\tTA_SOLID       = $0F\n"
                        "\tTA_DEADLY      = $10\n"
                        "\tTA_COLLECTIBLE = $20\n"
                        "\tTA_LADDER      = $40\n"
                        "\tTA_DOOR        = $80\n"
                        "\tdb\t$00,$0f,$41\n"));
}

void TestFileFormats::zxSpectrumFont()
{
    QVERIFY(writeFile(path("font.ch8"), hex("00 18 24 42 7E 42 42 00")));
    QVERIFY(m_tiles->importZXFont(1, 15, 0, 0, path("font.ch8")));
    QCOMPARE(indices(m_tiles->image(1)), indices(picture(FontPixels)));
}

void TestFileFormats::tileMap()
{
    const QPointer<Map> map = m_project.createMap("Cave", m_tiles->id(), QSize(2, 2));
    map->setTile(QPoint(0, 0), {.index = 257, .mirror = true, .offset = 3, .used = true});
    map->setTile(QPoint(1, 0), {.index = 5, .rotate = true, .used = true});
    map->setTile(QPoint(0, 1), {.index = 2, .flip = true, .offset = 15, .used = true});
    map->setTile(QPoint(1, 1), {511, true, true, true, 10, true});
    QVERIFY(map->exportToDirectory(m_folder.path()));
    QCOMPARE(readFile(path("Cave_tilemap.bin")), hex("01 39 05 02 02 F4 FF AF"));
}

void TestFileFormats::mapOfBlocks()
{
    QVERIFY(writeFile(path("level.nxb"), hex("00 00 00 00 00 00 00 00  01 00 02 00 11 00 12 00")));
    QVERIFY(writeFile(path("level.nxm"), hex("04 02 01 00 00 00") + QByteArray(252, '\xAA')));
    const QPointer<Map> map = m_project.createMap("Level", m_tiles->id(), QSize(40, 32));
    QVERIFY(map->importNxm(path("level.nxm"), path("level.nxb")));
    QCOMPARE(map->tileLayer()->toNextData(), hex("01 00 02 00 00 00 00 00  11 00 12 00 00 00 00 00"));
    QCOMPARE(map->tileLayer()->size(), QSize(4, 2));
}

void TestFileFormats::sprites()
{
    QByteArray bytes = hex("00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F FF") + QByteArray(239, '\xE3');
    QVERIFY(writeFile(path("one.spr"), bytes));
    for (const auto depth : {Quenmora::FourBit, Quenmora::EightBit}) {
        SpriteBank bank(depth);
        QVERIFY(bank.importSpr(path("one.spr")));
        QCOMPARE(bank.count(), 2);
        QCOMPARE(indices(bank.spriteImage(1, false, false, false)), bytes);
        bank.deleteSprite(0);
        QVERIFY(bank.exportSpr(path("two.spr")));
        QCOMPARE(readFile(path("two.spr")), bytes);
    }
}

QUENMORA_TEST_MAIN(TestFileFormats)
#include "tst_fileformats.moc"
