#include "pictures/tiledmap.h"

#include "pictures/tiledtileset.h"
#include "support/platform.h"
#include "support/testmain.h"
#include "support/tiledfiles.h"

#include <QTest>

using Gids = TiledMap::Gids;

namespace {

constexpr quint32 Mirrored = 0x80000000;

/// Tiles 1 to 20 without pixels.
const QByteArray PlainTiles =
    "<tileset firstgid='1' name='t' tilewidth='8' tileheight='8' tilecount='20' columns='5'/>";

/// The two rows of cells that each form of data says.
const Gids Cells{1, 0, Mirrored + 2, 0xE0000003, 4, 5};
const QByteArray Csv = "1,0,2147483650,\r\n3758096387,4,5\r\n";

QByteArray base64(const QByteArray &compression, const QByteArray &cells)
{
    return xmlLayer(cells, {}, "encoding='base64' compression='" + compression + '\'');
}

QByteArray base64Json(const QByteArray &compression, const QByteArray &cells)
{
    return tmj(jsonLayer("'encoding':'base64', 'compression':'" + compression + "', 'data':'" + cells + '\''));
}

} // namespace

/// Maps and tile sets of Tiled as they are written in every form; how they look as assets, the tests of importing tell.
class TestTiledMap : public QObject
{
    Q_OBJECT

    const TiledFiles m_files;

    [[nodiscard]] TiledMap read(const QByteArray &map) const
    {
        const auto result = TiledMap::read(m_files.put(QStringLiteral("a"), map));
        if (!result)
            qWarning("%s", qPrintable(result.reason()));
        return result ? *result : TiledMap();
    }

private slots:
    void cellsAreReadInEveryForm_data()
    {
        QTest::addColumn<QByteArray>("map");
        QByteArray bytes;
        QByteArray tiles;
        for (const quint32 gid : Cells) {
            bytes += le32(gid);
            tiles += gid == 0 ? QByteArray("<tile/>") : "<tile gid='" + QByteArray::number(gid) + "'/>";
        }
        QTest::newRow("elements") << tmx(xmlLayer(tiles, {}, ""));
        QTest::newRow("csv") << tmx(xmlLayer(Csv));
        QTest::newRow("base64") << tmx(base64("", bytes.toBase64()));
        QTest::newRow("zlib") << tmx(base64("zlib", zlibStream(bytes).toBase64()));
        QTest::newRow("gzip") << tmx(base64("gzip", Packing::gzip(bytes).toBase64()));
        QTest::newRow("zstd") << tmx(base64("zstd", Packing::zstd(bytes).toBase64()));
        QTest::newRow("old document type")
            << "<!DOCTYPE map SYSTEM \"http://example.org/map.dtd\">" + tmx(xmlLayer(Csv)).sliced(39);
        QTest::newRow("list") << tmj(jsonLayer("'data':[1,0,2147483650,3758096387,4,5]"));
        QTest::newRow("base64 in JSON") << base64Json("", bytes.toBase64());
        QTest::newRow("zstd in JSON") << base64Json("zstd", Packing::zstd(bytes).toBase64());
    }

    void cellsAreReadInEveryForm()
    {
        QFETCH(QByteArray, map);
        QVERIFY(TiledMap::recognises(map.first(200)));
        QVERIFY(!TiledTileSet::recognises(map.first(200)));
        const TiledMap found = read(map);
        QCOMPARE(found.size, QSize(3, 2));
        QCOMPARE(found.tileSize, QSize(8, 8));
        QCOMPARE(found.layers.size(), 1);
        QCOMPARE(found.layers[0].name, QStringLiteral("ground"));
        QCOMPARE(found.layers[0].area, QRect(0, 0, 3, 2));
        QCOMPARE(found.layers[0].gids, Cells);
        QVERIFY(found.layers[0].visible);
    }

    void infiniteMapsAreWhatTheirChunksHold_data()
    {
        QTest::addColumn<QByteArray>("map");
        QTest::newRow("xml") << tmx("<layer name='a'><data encoding='csv'>"
                                    "<chunk x='-2' y='1' width='2' height='1'>1,2</chunk>"
                                    "<chunk x='0' y='2' width='1' height='2'>3,4</chunk></data></layer>"
                                    "<layer name='b'><data encoding='csv'/></layer>"
                                    "<objectgroup><object x='8' y='8'/></objectgroup>",
                                    "width='9' height='9' infinite='1'");
        QTest::newRow("json") << tmj("'layers':[{'type':'tilelayer', 'name':'a', 'chunks':["
                                     "{'x':-2, 'y':1, 'width':2, 'height':1, 'data':[1,2]},"
                                     "{'x':0, 'y':2, 'width':1, 'height':2, 'data':[3,4]}]},"
                                     "{'type':'tilelayer', 'name':'b', 'chunks':[]},"
                                     "{'type':'objectgroup', 'objects':[{'x':8, 'y':8}]}]",
                                     "'width':9, 'height':9, 'infinite':true");
    }

    void infiniteMapsAreWhatTheirChunksHold()
    {
        QFETCH(QByteArray, map);
        const TiledMap found = read(map);
        QCOMPARE(found.size, QSize(3, 3));
        QCOMPARE(found.origin, QPoint(-2, 1));
        QCOMPARE(found.layers.size(), 2);
        QCOMPARE(found.layers[0].gids, Gids({1, 2, 0, 0, 0, 3, 0, 0, 4}));
        QCOMPARE(found.layers[1].gids, Gids(9));
        QCOMPARE(found.objects[0].topLeft, QPointF(24, 0));
    }

    void layersBecomeOne()
    {
        QImage sheet(24, 8, QImage::Format_ARGB32);
        sheet.fill(0xFF102030);
        sheet.setPixel(20, 4, 0x80102030); // tile 3 is not opaque
        m_files.put(QStringLiteral("t.png"), sheet);
        const QByteArray twos = "2,2,2,2,2,2";
        const TiledMap map =
            read(tmx("<tileset firstgid='1' tilewidth='8' tileheight='8' tilecount='3' columns='3'><image "
                     "source='t.png'/></tileset>"
                     + xmlLayer("1,1,1,1,0,0") + "<group visible='0'>" + xmlLayer(twos) + "<group>" + xmlLayer(twos)
                     + "</group></group><group offsetx='8' opacity='0.5'><group offsety='8'>"
                     + xmlLayer("2,0,2147483650,0,0,0", "offsetx='-8' opacity='0.5'") + "</group></group>"
                     + xmlLayer(twos, "opacity='0'") + xmlLayer(twos, "visible='0'")
                     + xmlLayer("3,0,0,3,0,9", "offsetx='3.5'") + xmlLayer("2,0,0,0,0,0", "offsety='-8'")
                     + "<imagelayer name='sky'><image source='../no.png'/></imagelayer>"));
        QCOMPARE(map.layers.size(), 8);
        QCOMPARE(map.layers[3].offset, QPointF(0, 8));
        QCOMPARE(map.layers[3].opacity, 0.25);
        QCOMPARE(map.remarks, QStringList{QStringLiteral("The image layer “sky” is left out")});
        const TiledMap::Flat flat = map.flattened();
        QCOMPARE(flat.gids, Gids({3, 1, 1, 3, 0, Mirrored + 2}));
        QCOMPARE(flat.remarks,
                 QStringList({QStringLiteral("The layer “ground” is partly clear: it becomes opaque"),
                              QStringLiteral("The layer “ground” is moved by parts of cells: it goes to the nearest"),
                              QStringLiteral("What shines through clear pixels of tiles above is lost, in 2 cells"),
                              QStringLiteral("1 cells have numbers that no tile set has: they become empty"),
                              QStringLiteral("1 cells of layers lie beyond the map: they are lost")}));
    }

    void objectsAreRead_data()
    {
        QTest::addColumn<QByteArray>("map");
        QTest::newRow("xml") << tmx(
            PlainTiles
            + "<group offsetx='10'><objectgroup name='things' offsety='1'>"
              "<object name='hero' type='player' gid='2147483649' x='16.5' y='32' width='16' height='16' rotation='90'>"
              "<properties><property name='lives' type='int' value='3'/>"
              "<property name='fast' type='bool' value='false'/><property name='speed' type='float' value='1.5'/>"
              "<property name='says'>two\nlines</property></properties></object>"
              "<object class='door' x='1' y='2' width='3' height='4' visible='0'/>"
              "<object x='1' y='2'><point/></object><object x='1' y='2'><polygon points='0,0 1,1'/></object>"
              "<object gid='2' x='0' y='8'/></objectgroup></group>");
        QTest::newRow("json") << tmj(
            "'tilesets':[{'firstgid':1, 'name':'t', 'tilewidth':8, 'tileheight':8, 'tilecount':20}],"
            "'layers':[{'type':'group', 'offsetx':10, 'layers':[{'type':'objectgroup', 'name':'things', 'offsety':1, "
            "'objects':[{'name':'hero', 'type':'player', 'gid':2147483649, 'x':16.5, 'y':32, 'width':16, 'height':16, "
            "'rotation':90, 'properties':[{'name':'lives', 'type':'int', 'value':3}, "
            "{'name':'fast', 'type':'bool', 'value':false}, {'name':'speed', 'type':'float', 'value':1.5}, "
            "{'name':'says', 'type':'string', 'value':'two\\nlines'}]},"
            "{'class':'door', 'x':1, 'y':2, 'width':3, 'height':4, 'visible':false},"
            "{'x':1, 'y':2, 'point':true}, {'x':1, 'y':2, 'polygon':[{'x':0, 'y':0}]}, {'gid':2, 'x':0, 'y':8}]}]}]");
    }

    void objectsAreRead()
    {
        QFETCH(QByteArray, map);
        const TiledMap found = read(map);
        QCOMPARE(found.objects.size(), 5);
        const TiledMap::Object hero = found.objects[0];
        QCOMPARE(hero.name + hero.type + hero.layer, QStringLiteral("heroplayerthings"));
        QCOMPARE(QRectF(hero.topLeft, hero.size), QRectF(26.5, 17, 16, 16));
        QCOMPARE(hero.rotation, 90.0);
        QCOMPARE(hero.gid, Mirrored + 1);
        QVERIFY(hero.visible);
        const QMap<QString, QVariant> properties{
            {"lives", 3}, {"fast", false}, {"speed", 1.5}, {"says", QStringLiteral("two\nlines")}};
        QCOMPARE(hero.properties, properties);
        const TiledMap::Object door = found.objects[1];
        QCOMPARE(door.type, QStringLiteral("door"));
        QCOMPARE(QRectF(door.topLeft, door.size), QRectF(11, 3, 3, 4));
        QVERIFY(!door.visible);
        using Shape = TiledMap::Shape;
        QList<Shape> shapes;
        for (const TiledMap::Object &object : found.objects)
            shapes.append(object.shape);
        QCOMPARE(shapes, QList<Shape>({Shape::Tile, Shape::Rectangle, Shape::Point, Shape::Other, Shape::Tile}));
        QCOMPARE(QRectF(found.objects[4].topLeft, found.objects[4].size), QRectF(10, 1, 8, 8)); // as large as its tile
    }

    void whatCannotBeIsRefused_data()
    {
        QTest::addColumn<QByteArray>("map");
        QTest::addColumn<QString>("reason");
        const auto add = [](const char *reason, const QByteArray &map) {
            QTest::newRow(reason) << map << QString::fromUtf8(reason);
        };
        const auto layer = [](const char *problem, const QByteArray &map) {
            QTest::newRow(problem) << map << QStringLiteral("The layer “ground”: ") + QString::fromUtf8(problem);
        };
        const QByteArray zeros = QByteArray(24, '\0').toBase64();
        add("Line 1: Premature end of document.", "");
        add("Line 1: “svg” stands where “map” does", "<svg/>");
        add("“tileset” stands where “map” does", "{\"type\":\"tileset\"}");
        add("Line 4: Premature end of document.", tmx("").chopped(8));
        add("Byte 12: unterminated object", "{\"width\":3, ");
        add("It is a map of the kind “hexagonal”; only “orthogonal” ones can be read",
            "<map orientation='hexagonal' width='1' height='1'/>");
        add("It says no width and height", "<map/>");
        add("“width” is “-1”, and can be 1 to 1048576", tmx("", "width='-1' height='2'"));
        add("“width” is “three”, and can be 1 to 1048576", tmx("", "width='three' height='2'"));
        add("It has 100000 × 100000 cells; at most 16 million can be read", tmx("", "width='100000' height='100000'"));
        layer("it has 5 of 6 cells", tmx(xmlLayer("1,2,3,4,5")));
        layer("it has more than 6 cells", tmx(xmlLayer("1,2,3,4,5,6,7")));
        for (const char *cells : {"1,2,,4,5,6", "1,2,4294967296,4,5,6"})
            layer("cell 3 is no number of a tile", tmx(xmlLayer(cells)));
        layer("“x” is among the numbers of its cells", tmx(xmlLayer("1,x")));
        layer("cell 1 is no number of a tile", tmx(xmlLayer("<tile gid='-1'/>", {}, "")));
        layer("cell 1 is no number of a tile", tmj(jsonLayer("'data':[1.5]")));
        for (const auto &[compression, cells] :
             {std::pair<QByteArray, QByteArray>("", "!"), {"", zeros.first(28)}, {"zlib", zeros}, {"zstd", zeros}})
            layer("its cells are damaged, or not 6", tmx(base64(compression, cells)));
        layer("its cells are packed as “lzma”, which cannot be read", tmx(base64("lzma", zeros)));
        layer("its cells are written as “morse”, which cannot be read", tmx(xmlLayer(zeros, {}, "encoding='morse'")));
        add("Its layers have more than 16 million cells together",
            tmx("<layer><data encoding='csv'><chunk x='-100000' y='0' width='1' height='1'>1</chunk>"
                "<chunk x='0' y='100000' width='1' height='1'>1</chunk></data></layer>",
                "infinite='1'"));
        add("Two tile sets begin with number 1", tmx(PlainTiles + PlainTiles));
        add("It declares elements or entities of its own",
            "<!DOCTYPE map [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]><map width=\"&b;\"/>");
        add("It is no XML in UTF-8", QByteArray("<\0m\0a\0p\0", 8));
        QByteArray many = "<map ";
        for (int i = 0; i < 200; ++i)
            many += "a" + QByteArray::number(i) + "='>' ";
        add("An element has more than 100 attributes", many);
        for (const char *element : {"<a>", "<group>"})
            add("Line 5: there are too many elements in each other", tmx(QByteArray(element).repeated(1000)));
        add("Line 1: Start tag expected.", "[" + QByteArray("0,").repeated(5'000'000));
        add("It has more than 4 million numbers; with cells written as Base64 it has fewer",
            "{\"a\":[" + QByteArray("0,").repeated(5'000'000));
        add("It has more than 262144 lists and objects", "{\"a\":[" + QByteArray("[],").repeated(300'000));
    }

    void whatCannotBeIsRefused()
    {
        QFETCH(QByteArray, map);
        QFETCH(QString, reason);
        QCOMPARE(TiledMap::read(m_files.put(QStringLiteral("a"), map)).reason(), reason);
    }

    void tileSetsAreRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray xml =
            " name='sheet' tilewidth='8' tileheight='4' spacing='1' margin='2' tilecount='4' columns='2'>"
            "<image source='../pictures/sheet.png' trans='090a03' width='21' height='13'/>"
            "<tile id='1'><properties><property name='solid' type='bool' value='true'/></properties><animation>"
            "<frame tileid='1' duration='100'/><frame tileid='3' duration='250'/></animation></tile>"
            "<tile id='2'><animation><frame tileid='4' duration='100'/></animation></tile></tileset>";
        const QByteArray json =
            "'name':'sheet', 'tilewidth':8, 'tileheight':4, 'spacing':1, 'margin':2, 'tilecount':4, 'columns':2, "
            "'image':'..\\\\pictures\\\\sheet.png', 'transparentcolor':'#090a03', 'tiles':["
            "{'id':1, 'animation':[{'tileid':1, 'duration':100}, {'tileid':3, 'duration':250}]},"
            "{'id':2, 'animation':[{'tileid':4, 'duration':100}]}]}";
        QTest::newRow("tsx") << QStringLiteral("sets/a.tsx") << "<?xml version=\"1.0\"?><tileset " + xml;
        QTest::newRow("tsj") << QStringLiteral("sets/a.tsj")
                             << QByteArray("{'type':'tileset', " + json).replace('\'', '"');
        QTest::newRow("in XML") << QStringLiteral("maps/a.tmx") << tmx("<tileset firstgid='1' " + xml);
        QTest::newRow("in JSON") << QStringLiteral("maps/a.tmj") << tmj("'tilesets':[{'firstgid':1, " + json + "]");
    }

    void tileSetsAreRead()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const TiledFiles files;
        files.put(QStringLiteral("pictures/sheet.png"), picture(21, 13, 9));
        const QString file = files.put(name, bytes);
        // a map leads to the file of the set, or holds it
        const bool isMap = TiledMap::recognises(bytes.first(250));
        QCOMPARE(TiledTileSet::recognises(bytes.first(250)), !isMap);
        const QString leading =
            files.put(QStringLiteral("map.tmx"), tmx("<tileset firstgid='1' source='" + name.toUtf8() + "'/>"));
        const auto map = isMap ? TiledMap::read(file, TiledReferences::Anywhere) : TiledMap::read(leading);
        QVERIFY2(map, qPrintable(map.reason()));
        QCOMPARE(map->tileSets.size(), 1);
        const TiledTileSet &set = map->tileSets[0];
        QVERIFY(set.problems.isEmpty() && set.name == "sheet" && set.count == 4 && set.tileSize == QSize(8, 4));
        QCOMPARE(set.tile(3), picture(21, 13, 9).copy(11, 7, 8, 4).convertToFormat(set.tile(3).format()));
        QCOMPARE(set.picture.pixel(10, 3), 0U); // the transparent colour
        QVERIFY(set.tile(4).isNull());
        QCOMPARE(set.animations.keys(), QList<int>{1});
        QCOMPARE(set.animations[1].size(), 2);
        QCOMPARE(std::pair(set.animations[1][1].tile, set.animations[1][1].duration), std::pair(3, 250));
        QCOMPARE(map->remarks,
                 QStringList{QStringLiteral("The tile set “sheet” has animations of tiles that are not there")});
        if (isMap)
            return;
        const auto alone = TiledTileSet::read(file, TiledReferences::Anywhere);
        QVERIFY2(alone, qPrintable(alone.reason()));
        QCOMPARE(alone->tile(3), set.tile(3));
        QCOMPARE(TiledTileSet::read(file)->outside, QStringList{files.path(QStringLiteral("pictures/sheet.png"))});
    }

    void tilesMayHaveAPictureEach()
    {
        const TiledFiles files;
        files.put(QStringLiteral("a.png"), picture(8, 8, 1));
        files.put(QStringLiteral("b.png"), picture(16, 4, 2));
        for (const QByteArray &bytes :
             {tmx("<tileset firstgid='3' tilecount='3' columns='0'><tile id='0'><image source='a.png'/></tile>"
                  "<tile id='5'><image source='b.png'/></tile><tile id='7'><image source='c.png'/></tile></tileset>"),
              tmj("'tilesets':[{'firstgid':3, 'tilecount':3, 'columns':0, 'tiles':[{'id':0, 'image':'a.png'}, "
                  "{'id':5, 'image':'b.png'}, {'id':7, 'image':'c.png'}]}]")}) {
            const auto map = TiledMap::read(files.put(QStringLiteral("map"), bytes));
            QVERIFY2(map, qPrintable(map.reason()));
            QCOMPARE(map->cell(8).tile, 5);
            QVERIFY(map->cell(11).isEmpty());
            QCOMPARE(map->tileSets[0].tile(5).size(), QSize(16, 4));
            QCOMPARE(map->tileSets[0].tile(0).pixel(3, 4), qRgb(1, 3, 4));
            QVERIFY(map->tileSets[0].tile(1).isNull());
            QCOMPARE(map->tileSets[0].problems, QStringList{QStringLiteral("“c.png” is not there")});
        }
    }

    void whatIsElsewhereIsLeftAloneUntilAllowed()
    {
        if (!Platform::HasLinks)
            QSKIP("Links are files of their own here");
        const TiledFiles files;
        files.put(QStringLiteral("out/t.png"), picture(8, 8, 9));
        const QString outside = files.put(
            QStringLiteral("out/s.tsx"),
            QByteArray("<tileset tilewidth='8' tileheight='8' tilecount='1'><image source='t.png'/></tileset>"));
        files.put(QStringLiteral("in/t.png"), picture(8, 8, 9));
        QVERIFY(QFile::link(outside, files.path(QStringLiteral("in/link.tsx"))));
        QVERIFY(QFile::link(files.path(QStringLiteral("out")), files.path(QStringLiteral("in/folder"))));
        QByteArray sets;
        int first = 0;
        for (const QByteArray &source : {QByteArray("../out/s.tsx"), outside.toUtf8(), QByteArray("link.tsx"),
                                         QByteArray("folder/s.tsx"), QByteArray("no.tsx")})
            sets += "<tileset firstgid='" + QByteArray::number(++first) + "' source='" + source + "'/>";
        const QString map = files.put(QStringLiteral("in/a.tmx"), tmx(sets + xmlLayer("1,2,3,4,5,0")));
        const auto below = TiledMap::read(map);
        QVERIFY2(below, qPrintable(below.reason()));
        QCOMPARE(below->outside(),
                 QStringList({outside, files.path(QStringLiteral("in/link.tsx")),
                              files.path(QStringLiteral("in/folder/s.tsx"))}));
        for (const TiledTileSet &tileSet : below->tileSets)
            QVERIFY(tileSet.tile(0).isNull());
        QCOMPARE(below->tileSets[1].problems,
                 QStringList{QStringLiteral("“%1” is not in the file's folder").arg(outside)});
        QCOMPARE(below->tileSets[4].problems, QStringList{QStringLiteral("“no.tsx” is not there")});
        QCOMPARE(below->layers[0].gids, TiledMap::Gids({1, 2, 3, 4, 5, 0}));
        QCOMPARE(below->cell(2).tileSet, 1); // although it is not known how many tiles it has

        const auto anywhere = TiledMap::read(map, TiledReferences::Anywhere);
        QVERIFY2(anywhere, qPrintable(anywhere.reason()));
        QCOMPARE(anywhere->outside(), QStringList());
        for (int i = 0; i < 4; ++i)
            QCOMPARE(anywhere->tileSets[i].tile(0).pixel(3, 4), qRgb(9, 3, 4));

        // a folder that is reached by a link is its own folder, and a set in it says what is wrong with it
        files.put(QStringLiteral("out/s.tsx"), QByteArray("<tileset>\n<tile"));
        files.put(QStringLiteral("out/b.tmx"), tmx("<tileset firstgid='1' source='s.tsx'/>"));
        const auto linked = TiledMap::read(files.path(QStringLiteral("in/folder/b.tmx")));
        QVERIFY2(linked, qPrintable(linked.reason()));
        QCOMPARE(linked->tileSets[0].problems,
                 QStringList{QStringLiteral("“s.tsx”: Line 2: Premature end of document.")});
    }
};

QUENMORA_TEST_MAIN(TestTiledMap)
#include "tst_tiledmap.moc"
