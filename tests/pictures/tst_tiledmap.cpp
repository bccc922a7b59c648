#include "pictures/tiledmap.h"

#include "model/transform.h"
#include "support/damage.h"
#include "support/packing.h"
#include "support/peakmemory.h"
#include "support/testmain.h"
#include "support/tiledfiles.h"

#include <QTest>

using Gids = TiledMap::Gids;

namespace {

constexpr quint32 Seed = 20261125;
constexpr quint32 Mirrored = 0x80000000;
constexpr quint32 Flipped = 0x40000000;
constexpr quint32 Diagonal = 0x20000000;

/// Tiles 1 to 20 without pixels.
const QByteArray PlainTiles =
    "<tileset firstgid=\"1\" name=\"t\" tilewidth=\"8\" tileheight=\"8\" tilecount=\"20\" columns=\"5\"/>";

/// The two rows of cells that each form of data says.
const Gids Cells{1, 0, Mirrored + 2, 0xE0000003, 4, 5};
const QByteArray Csv = "1,0,2147483650,\r\n3758096387,4,5\r\n";

QByteArray bytesOf(const Gids &gids)
{
    QByteArray bytes;
    for (const quint32 gid : gids)
        bytes += le32(gid);
    return bytes;
}

QByteArray xmlData(const QByteArray &attributes, const QByteArray &data)
{
    return "<layer id=\"1\" name=\"ground\" width=\"3\" height=\"2\"><properties><property name=\"a\" "
           "value=\"b\"/></properties>"
           "<data "
        + attributes + ">\n   " + data + "\n</data></layer>";
}

QByteArray jsonLayer(const QByteArray &data)
{
    return "\"layers\":[{\"type\":\"tilelayer\", \"name\":\"ground\", \"width\":3, \"height\":2, \"x\":0, \"y\":0, "
           "\"opacity\":1, "
           "\"visible\":true, "
        + data + "}]";
}

} // namespace

class TestTiledMap : public QObject
{
    Q_OBJECT

private slots:
    void cellsAreReadInEveryForm_data()
    {
        QTest::addColumn<QByteArray>("map");
        const QByteArray bytes = bytesOf(Cells);
        const auto text = [](const QByteArray &packed) { return packed.toBase64(); };
        QByteArray tiles;
        for (const quint32 gid : Cells)
            tiles += gid == 0 ? QByteArray("<tile/>") : "<tile gid=\"" + QByteArray::number(gid) + "\"/>";
        QTest::newRow("elements") << tmx(xmlData("", tiles));
        QTest::newRow("csv") << tmx(xmlData("encoding=\"csv\"", Csv));
        QTest::newRow("base64") << tmx(xmlData("encoding=\"base64\"", text(bytes)));
        QTest::newRow("zlib") << tmx(xmlData("encoding=\"base64\" compression=\"zlib\"", text(zlibStream(bytes))));
        QTest::newRow("gzip") << tmx(xmlData("encoding=\"base64\" compression=\"gzip\"", text(Packing::gzip(bytes))));
        QTest::newRow("zstd") << tmx(xmlData("encoding=\"base64\" compression=\"zstd\"", text(Packing::zstd(bytes))));
        QTest::newRow("old document type") << "<!DOCTYPE map SYSTEM \"http://example.org/map.dtd\">"
                + tmx(xmlData("encoding=\"csv\"", Csv)).sliced(39);
        QTest::newRow("list") << tmj(jsonLayer("\"data\":[1,0,2147483650,3758096387,4,5]"));
        QTest::newRow("base64 in JSON") << tmj(
            jsonLayer("\"encoding\":\"base64\", \"compression\":\"\", \"data\":\"" + text(bytes) + "\""));
        QTest::newRow("zstd in JSON") << tmj(jsonLayer("\"encoding\":\"base64\", \"compression\":\"zstd\", \"data\":\""
                                                       + text(Packing::zstd(bytes)) + "\""));
    }

    void cellsAreReadInEveryForm()
    {
        QFETCH(QByteArray, map);
        const TiledFiles files;
        QVERIFY(TiledMap::recognises(map.first(200)));
        QVERIFY(!TiledTileSet::recognises(map.first(200)));
        const auto read = TiledMap::read(files.put(QStringLiteral("a"), map));
        QVERIFY2(read, qPrintable(read.reason()));
        QCOMPARE(read->size, QSize(3, 2));
        QCOMPARE(read->tileSize, QSize(8, 8));
        QCOMPARE(read->layers.size(), 1);
        QCOMPARE(read->layers[0].name, QStringLiteral("ground"));
        QCOMPARE(read->layers[0].area, QRect(0, 0, 3, 2));
        QCOMPARE(read->layers[0].gids, Cells);
        QVERIFY(read->layers[0].visible);
    }

    void infiniteMapsAreWhatTheirChunksHold_data()
    {
        QTest::addColumn<QByteArray>("map");
        QTest::newRow("xml") << tmx("<layer name=\"a\"><data encoding=\"csv\">"
                                    "<chunk x=\"-2\" y=\"1\" width=\"2\" height=\"1\">1,2</chunk>"
                                    "<chunk x=\"0\" y=\"2\" width=\"1\" height=\"2\">3,4</chunk></data></layer>"
                                    "<layer name=\"b\"><data encoding=\"csv\"/></layer>"
                                    "<objectgroup><object x=\"8\" y=\"8\"/></objectgroup>",
                                    "width=\"9\" height=\"9\" infinite=\"1\"");
        QTest::newRow("json") << tmj("\"layers\":[{\"type\":\"tilelayer\", \"name\":\"a\", \"chunks\":["
                                     "{\"x\":-2, \"y\":1, \"width\":2, \"height\":1, \"data\":[1,2]},"
                                     "{\"x\":0, \"y\":2, \"width\":1, \"height\":2, \"data\":[3,4]}]},"
                                     "{\"type\":\"tilelayer\", \"name\":\"b\", \"chunks\":[]},"
                                     "{\"type\":\"objectgroup\", \"objects\":[{\"x\":8, \"y\":8}]}]",
                                     "\"width\":9, \"height\":9, \"infinite\":true");
    }

    void infiniteMapsAreWhatTheirChunksHold()
    {
        QFETCH(QByteArray, map);
        const TiledFiles files;
        const auto read = TiledMap::read(files.put(QStringLiteral("a"), map));
        QVERIFY2(read, qPrintable(read.reason()));
        QCOMPARE(read->size, QSize(3, 3));
        QCOMPARE(read->origin, QPoint(-2, 1));
        QCOMPARE(read->layers.size(), 2);
        QCOMPARE(read->layers[0].gids, Gids({1, 2, 0, 0, 0, 3, 0, 0, 4}));
        QCOMPARE(read->layers[1].gids, Gids(9));
        QCOMPARE(read->objects[0].topLeft, QPointF(24, 0));
    }

    // What a number means is drawn here from the file's own words: the diagonal first, then the flips.
    void numbersTurnTilesAsTheyAreDrawn()
    {
        const TiledFiles files;
        files.put(QStringLiteral("t.png"), picture(8, 8, 9));
        const auto map =
            TiledMap::read(files.put(QStringLiteral("a.tmx"),
                                     tmx("<tileset firstgid=\"7\" tilewidth=\"8\" tileheight=\"8\" tilecount=\"1\" "
                                         "columns=\"1\"><image source=\"t.png\"/></tileset>")));
        QVERIFY2(map, qPrintable(map.reason()));
        for (quint32 bits = 0; bits < 8; ++bits) {
            QImage expected(8, 8, QImage::Format_RGB32);
            for (int y = 0; y < 8; ++y) {
                for (int x = 0; x < 8; ++x) {
                    QPoint to = bits & 1 ? QPoint(y, x) : QPoint(x, y);
                    if (bits & 4)
                        to.setX(7 - to.x());
                    if (bits & 2)
                        to.setY(7 - to.y());
                    expected.setPixel(to, qRgb(9, x, y));
                }
            }
            const TiledMap::Cell cell = map->cell(bits << 29 | 7);
            QCOMPARE(cell.tileSet, 0);
            QCOMPARE(oriented(map->tileSets[0].tile(cell.tile), cell.rotate, cell.flip, cell.mirror), expected);
        }
    }

    void layersBecomeOne()
    {
        const TiledFiles files;
        QImage sheet(24, 8, QImage::Format_ARGB32);
        sheet.fill(0xFF102030);
        sheet.setPixel(20, 4, 0x80102030); // tile 3 is not opaque
        files.put(QStringLiteral("t.png"), sheet);
        const auto layer = [](const char *csv, const QByteArray &attributes) { return xmlLayer(csv, attributes); };
        const auto map = TiledMap::read(
            files.put(QStringLiteral("a.tmx"),
                      tmx("<tileset firstgid=\"1\" tilewidth=\"8\" tileheight=\"8\" tilecount=\"3\" "
                          "columns=\"3\"><image source=\"t.png\"/></tileset>"
                          + layer("1,1,1,1,0,0", "") + "<group visible=\"0\">" + layer("2,2,2,2,2,2", "") + "<group>"
                          + layer("2,2,2,2,2,2", "") + "</group></group>"
                          + "<group offsetx=\"8\" opacity=\"0.5\"><group offsety=\"8\">"
                          + layer("2,0,2147483650,0,0,0", "offsetx=\"-8\" opacity=\"0.5\"") + "</group></group>"
                          + layer("2,2,2,2,2,2", "opacity=\"0\"") + layer("2,2,2,2,2,2", "visible=\"0\"")
                          + layer("3,0,0,3,0,9", "offsetx=\"3.5\"") + layer("2,0,0,0,0,0", "offsety=\"-8\"")
                          + "<imagelayer name=\"sky\"><image source=\"../no.png\"/></imagelayer>")));
        QVERIFY2(map, qPrintable(map.reason()));
        QCOMPARE(map->layers.size(), 8);
        QCOMPARE(map->layers[3].offset, QPointF(0, 8));
        QCOMPARE(map->layers[3].opacity, 0.25);
        QCOMPARE(map->remarks, QStringList{QStringLiteral("The image layer “sky” is left out")});
        const TiledMap::Flat flat = map->flattened();
        QCOMPARE(flat.gids, Gids({3, 1, 1, 3, 0, Mirrored + 2}));
        QCOMPARE(flat.remarks,
                 QStringList({QStringLiteral("The layer “l” is partly clear: it becomes opaque"),
                              QStringLiteral("The layer “l” is moved by parts of cells: it goes to the nearest"),
                              QStringLiteral("What shines through clear pixels of tiles above is lost, in 2 cells"),
                              QStringLiteral("1 cells have numbers that no tile set has: they become empty"),
                              QStringLiteral("1 cells of layers lie beyond the map: they are lost")}));
    }

    void objectsAreRead_data()
    {
        QTest::addColumn<QByteArray>("map");
        QTest::newRow("xml") << tmx(
            PlainTiles
            + "<group offsetx=\"10\"><objectgroup name=\"things\" offsety=\"1\">"
              "<object name=\"hero\" type=\"player\" gid=\"2147483649\" x=\"16.5\" y=\"32\" width=\"16\" height=\"16\" "
              "rotation=\"90\">"
              "<properties><property name=\"lives\" type=\"int\" value=\"3\"/><property name=\"fast\" type=\"bool\" "
              "value=\"false\"/>"
              "<property name=\"speed\" type=\"float\" value=\"1.5\"/><property "
              "name=\"says\">two\nlines</property></properties></object>"
              "<object class=\"door\" x=\"1\" y=\"2\" width=\"3\" height=\"4\" visible=\"0\"/>"
              "<object x=\"1\" y=\"2\"><point/></object><object x=\"1\" y=\"2\"><polygon points=\"0,0 1,1\"/></object>"
              "<object gid=\"2\" x=\"0\" y=\"8\"/></objectgroup></group>");
        QTest::newRow("json") << tmj(
            "\"tilesets\":[{\"firstgid\":1, \"name\":\"t\", \"tilewidth\":8, \"tileheight\":8, \"tilecount\":20}],"
            "\"layers\":[{\"type\":\"group\", \"offsetx\":10, \"layers\":[{\"type\":\"objectgroup\", "
            "\"name\":\"things\", \"offsety\":1, \"objects\":["
            "{\"name\":\"hero\", \"type\":\"player\", \"gid\":2147483649, \"x\":16.5, \"y\":32, \"width\":16, "
            "\"height\":16, \"rotation\":90, \"properties\":["
            "{\"name\":\"lives\", \"type\":\"int\", \"value\":3}, {\"name\":\"fast\", \"type\":\"bool\", "
            "\"value\":false}, "
            "{\"name\":\"speed\", \"type\":\"float\", \"value\":1.5}, {\"name\":\"says\", \"type\":\"string\", "
            "\"value\":\"two\\nlines\"}]},"
            "{\"class\":\"door\", \"x\":1, \"y\":2, \"width\":3, \"height\":4, \"visible\":false},"
            "{\"x\":1, \"y\":2, \"point\":true}, {\"x\":1, \"y\":2, \"polygon\":[{\"x\":0, \"y\":0}]}, {\"gid\":2, "
            "\"x\":0, \"y\":8}]}]}]");
    }

    void objectsAreRead()
    {
        QFETCH(QByteArray, map);
        const TiledFiles files;
        const auto read = TiledMap::read(files.put(QStringLiteral("a"), map));
        QVERIFY2(read, qPrintable(read.reason()));
        QCOMPARE(read->objects.size(), 5);
        const TiledMap::Object hero = read->objects[0];
        QCOMPARE(hero.name + hero.type + hero.layer, QStringLiteral("heroplayerthings"));
        QCOMPARE(hero.topLeft, QPointF(26.5, 17));
        QCOMPARE(hero.size, QSizeF(16, 16));
        QCOMPARE(hero.rotation, 90.0);
        QCOMPARE(hero.gid, Mirrored + 1);
        QVERIFY(hero.visible);
        const QMap<QString, QVariant> properties{{QStringLiteral("lives"), 3},
                                                 {QStringLiteral("fast"), false},
                                                 {QStringLiteral("speed"), 1.5},
                                                 {QStringLiteral("says"), QStringLiteral("two\nlines")}};
        QCOMPARE(hero.properties, properties);
        const TiledMap::Object door = read->objects[1];
        QCOMPARE(door.type, QStringLiteral("door"));
        QCOMPARE(QRectF(door.topLeft, door.size), QRectF(11, 3, 3, 4));
        QVERIFY(!door.visible);
        using Shape = TiledMap::Shape;
        QList<Shape> shapes;
        for (const TiledMap::Object &object : read->objects)
            shapes.append(object.shape);
        QCOMPARE(shapes, QList<Shape>({Shape::Tile, Shape::Rectangle, Shape::Point, Shape::Other, Shape::Tile}));
        QCOMPARE(QRectF(read->objects[4].topLeft, read->objects[4].size), QRectF(10, 1, 8, 8)); // as large as its tile
    }

    void whatCannotBeIsRefused_data()
    {
        QTest::addColumn<QByteArray>("map");
        QTest::addColumn<QString>("reason");
        const auto add = [](const char *name, const QByteArray &map, const char *reason) {
            QTest::newRow(name) << map << QString::fromUtf8(reason);
        };
        const auto data = [](const QByteArray &attributes, const QByteArray &text) {
            return tmx(xmlData(attributes, text));
        };
        const QByteArray zeros = QByteArray(24, '\0').toBase64();
        add("nothing", "", "Line 1: Premature end of document.");
        add("another document", "<svg/>", "Line 1: “svg” stands where “map” does");
        add("a tile set", "{\"type\":\"tileset\"}", "“tileset” stands where “map” does");
        add("cut short", tmx("").chopped(8), "Line 4: Premature end of document.");
        add("cut short JSON", "{\"width\":3, ", "Byte 12: unterminated object");
        add("hexagons", QByteArray("<map orientation=\"hexagonal\" width=\"1\" height=\"1\"/>"),
            "It is a map of the kind “hexagonal”; only “orthogonal” ones can be read");
        add("no size", "<map/>", "It says no width and height");
        add("negative", tmx("", "width=\"-1\" height=\"2\""), "“width” is “-1”, and can be 1 to 1048576");
        add("words", tmx("", "width=\"three\" height=\"2\""), "“width” is “three”, and can be 1 to 1048576");
        add("billions", tmx("", "width=\"100000\" height=\"100000\""),
            "It has 100000 × 100000 cells; at most 16 million can be read");
        add("few cells", data("encoding=\"csv\"", "1,2,3,4,5"), "The layer “ground”: it has 5 of 6 cells");
        add("many cells", data("encoding=\"csv\"", "1,2,3,4,5,6,7"), "The layer “ground”: it has more than 6 cells");
        add("an empty cell", data("encoding=\"csv\"", "1,2,,4,5,6"),
            "The layer “ground”: cell 3 is no number of a tile");
        add("a large cell", data("encoding=\"csv\"", "1,2,4294967296,4,5,6"),
            "The layer “ground”: cell 3 is no number of a tile");
        add("a letter", data("encoding=\"csv\"", "1,x"), "The layer “ground”: “x” is among the numbers of its cells");
        add("a bad element", data("", "<tile gid=\"-1\"/>"), "The layer “ground”: cell 1 is no number of a tile");
        add("a bad number", tmj(jsonLayer("\"data\":[1.5]")), "The layer “ground”: cell 1 is no number of a tile");
        add("no base64", data("encoding=\"base64\"", "!"), "The layer “ground”: its cells are damaged, or not 6");
        add("few bytes", data("encoding=\"base64\"", zeros.first(28)),
            "The layer “ground”: its cells are damaged, or not 6");
        add("no zlib", data("encoding=\"base64\" compression=\"zlib\"", zeros),
            "The layer “ground”: its cells are damaged, or not 6");
        add("no zstd", data("encoding=\"base64\" compression=\"zstd\"", zeros),
            "The layer “ground”: its cells are damaged, or not 6");
        add("packer", data("encoding=\"base64\" compression=\"lzma\"", zeros),
            "The layer “ground”: its cells are packed as “lzma”, which cannot be read");
        add("writing", data("encoding=\"morse\"", zeros),
            "The layer “ground”: its cells are written as “morse”, which cannot be read");
        add("chunks far away",
            tmx("<layer><data encoding=\"csv\"><chunk x=\"-100000\" y=\"0\" width=\"1\" height=\"1\">1</chunk>"
                "<chunk x=\"0\" y=\"100000\" width=\"1\" height=\"1\">1</chunk></data></layer>",
                "infinite=\"1\""),
            "Its layers have more than 16 million cells together");
        add("equal numbers", tmx(PlainTiles + PlainTiles), "Two tile sets begin with number 1");
        add("entities", "<!DOCTYPE map [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]><map width=\"&b;\"/>",
            "It declares elements or entities of its own");
        add("UTF-16", QByteArray("<\0m\0a\0p\0", 8), "It is no XML in UTF-8");
        QByteArray many = "<map ";
        for (int i = 0; i < 200; ++i)
            many += "a" + QByteArray::number(i) + "='<>' ";
        add("attributes", QByteArray(many).replace("<>", ">"), "An element has more than 100 attributes");
        add("depth", tmx(QByteArray("<a>").repeated(1000)), "Line 5: there are too many elements in each other");
        add("groups", tmx(QByteArray("<group>").repeated(1000)), "Line 5: there are too many elements in each other");
        add("values", "[" + QByteArray("0,").repeated(5'000'000), "Line 1: Start tag expected.");
        add("numbers", "{\"a\":[" + QByteArray("0,").repeated(5'000'000),
            "It has more than 4 million numbers; with cells written as Base64 it has fewer");
        add("lists", "{\"a\":[" + QByteArray("[],").repeated(300'000), "It has more than 262144 lists and objects");
    }

    void whatCannotBeIsRefused()
    {
        QFETCH(QByteArray, map);
        QFETCH(QString, reason);
        const TiledFiles files;
        QCOMPARE(TiledMap::read(files.put(QStringLiteral("a"), map)).reason(), reason);
    }

    // A second and 256 MiB are what any file may take.
    void damagedFilesAreReadOrRefused()
    {
        std::minstd_rand random(Seed);
        const PeakMemory memory;
        const TiledFiles files;
        files.put(QStringLiteral("pictures/sheet.png"), picture(21, 13, 9));
        const QByteArray set =
            "<tileset firstgid=\"1\" tilewidth=\"8\" tileheight=\"4\" spacing=\"1\" margin=\"2\" "
            "tilecount=\"4\" columns=\"2\"><image source=\"pictures/sheet.png\" trans=\"090a03\"/>"
            "<tile id=\"1\"><animation><frame tileid=\"3\" duration=\"9\"/></animation></tile></tileset>";
        const QByteArray cells = bytesOf(Cells);
        const QByteArray jsonSet = "\"tilesets\":[{\"firstgid\":1, \"tilewidth\":8, \"tileheight\":4, \"columns\":2, "
                                   "\"image\":\"pictures/sheet.png\", \"tiles\":[{\"id\":1, \"animation\":"
                                   "[{\"tileid\":3, \"duration\":9}]}]}], ";
        const QByteArrayList wholes{
            tmx(set + xmlLayer(Csv, "offsetx=\"8\"")
                + xmlData("encoding=\"base64\" compression=\"zlib\"", zlibStream(cells).toBase64())),
            tmx("<layer><data encoding=\"csv\"><chunk x=\"-2\" y=\"1\" width=\"2\" "
                "height=\"1\">1,2</chunk></data></layer>"
                "<objectgroup><object gid=\"1\" x=\"8\" y=\"8\"/></objectgroup>"
                    + set,
                "infinite=\"1\""),
            tmj(jsonSet
                + jsonLayer("\"encoding\":\"base64\", \"compression\":\"zstd\", \"data\":\""
                            + Packing::zstd(cells).toBase64() + "\"")),
            tmj(jsonSet + jsonLayer("\"data\":[1,0,2147483650,3758096387,4,5]"))};
        int read = 0;
        int refused = 0;
        for (const QByteArray &whole : wholes) {
            const QString file = files.put(QStringLiteral("a"), whole);
            QVERIFY2(TiledMap::read(file), qPrintable(TiledMap::read(file).reason()));
            DamagedFiles rounds(500);
            while (rounds.next()) {
                const auto map = TiledMap::read(files.put(QStringLiteral("a"), damaged(whole, random)));
                QCOMPARE(map.reason().isEmpty(), bool(map));
                ++(map ? read : refused);
                if (!map)
                    continue;
                QCOMPARE(map->flattened().gids.size(), qsizetype(map->size.width()) * map->size.height());
                for (const TiledTileSet &tileSet : map->tileSets)
                    (void)tileSet.tile(tileSet.count - 1);
            }
        }
        QVERIFY2(read > 100 && refused > 100, qPrintable(QString::number(read)));
        if (memory.isKnown())
            QVERIFY2(memory.grown() < 256 << 20, qPrintable(QString::number(memory.grown())));
    }
};

QUENMORA_TEST_MAIN(TestTiledMap)
#include "tst_tiledmap.moc"
