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
        const auto result = TiledMap::read(m_files.put("a", map));
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
        QCOMPARE(std::pair(found.size, found.tileSize), std::pair(QSize(3, 2), QSize(8, 8)));
        QCOMPARE(valuesOf(found.layers, &TiledMap::Layer::gids), QList<Gids>{Cells});
        QCOMPARE(found.layers[0].area, QRect(0, 0, 3, 2));
        QVERIFY(found.layers[0].name == "ground" && found.layers[0].visible);
    }

    void infiniteMapsAreWhatTheirChunksHold()
    {
        const QByteArray xml = tmx("<layer name='a'><data encoding='csv'>"
                                   "<chunk x='-2' y='1' width='2' height='1'>1,2</chunk>"
                                   "<chunk x='0' y='2' width='1' height='2'>3,4</chunk></data></layer>"
                                   "<layer name='b'><data encoding='csv'/></layer>"
                                   "<objectgroup><object x='8' y='8'/></objectgroup>",
                                   "width='9' height='9' infinite='1'");
        const QByteArray json = tmj("'layers':[{'type':'tilelayer', 'name':'a', 'chunks':["
                                    "{'x':-2, 'y':1, 'width':2, 'height':1, 'data':[1,2]},"
                                    "{'x':0, 'y':2, 'width':1, 'height':2, 'data':[3,4]}]},"
                                    "{'type':'tilelayer', 'name':'b', 'chunks':[]},"
                                    "{'type':'objectgroup', 'objects':[{'x':8, 'y':8}]}]",
                                    "'width':9, 'height':9, 'infinite':true");
        for (const QByteArray &map : {xml, json}) {
            const TiledMap found = read(map);
            QCOMPARE(QRect(found.origin, found.size), QRect(-2, 1, 3, 3));
            QCOMPARE(valuesOf(found.layers, &TiledMap::Layer::gids),
                     QList({Gids({1, 2, 0, 0, 0, 3, 0, 0, 4}), Gids(9)}));
            QCOMPARE(found.objects[0].topLeft, QPointF(24, 0));
        }
    }

    void layersBecomeOne()
    {
        QImage sheet(24, 8, QImage::Format_ARGB32);
        sheet.fill(0xFF102030);
        sheet.setPixel(20, 4, 0x80102030); // tile 3 is not opaque
        m_files.put("t.png", sheet);
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
        QCOMPARE(map.remarks, QStringList{"The image layer “sky” is left out"});
        const TiledMap::Flat flat = map.flattened();
        QCOMPARE(flat.gids, Gids({3, 1, 1, 3, 0, Mirrored + 2}));
        QCOMPARE(flat.remarks,
                 QStringList({"The layer “ground” is partly clear: it becomes opaque",
                              "The layer “ground” is moved by parts of cells: it goes to the nearest",
                              "What shines through clear pixels of tiles above is lost, in 2 cells",
                              "1 cells have numbers that no tile set has: they become empty",
                              "1 cells of layers lie beyond the map: they are lost"}));
    }

    void objectsAreRead()
    {
        const QByteArray xml = tmx(
            PlainTiles
            + "<group offsetx='10'><objectgroup name='things' offsety='1'>"
              "<object name='hero' type='player' gid='2147483649' x='16.5' y='32' width='16' height='16' rotation='90'>"
              "<properties><property name='lives' type='int' value='3'/>"
              "<property name='fast' type='bool' value='false'/><property name='speed' type='float' value='1.5'/>"
              "<property name='says'>two\nlines</property></properties></object>"
              "<object class='door' x='1' y='2' width='3' height='4' visible='0'/>"
              "<object x='1' y='2'><point/></object><object x='1' y='2'><polygon points='0,0 1,1'/></object>"
              "<object gid='2' x='0' y='8'/></objectgroup></group>");
        const QByteArray json = tmj(
            "'tilesets':[{'firstgid':1, 'name':'t', 'tilewidth':8, 'tileheight':8, 'tilecount':20}],"
            "'layers':[{'type':'group', 'offsetx':10, 'layers':[{'type':'objectgroup', 'name':'things', 'offsety':1, "
            "'objects':[{'name':'hero', 'type':'player', 'gid':2147483649, 'x':16.5, 'y':32, 'width':16, 'height':16, "
            "'rotation':90, 'properties':[{'name':'lives', 'type':'int', 'value':3}, "
            "{'name':'fast', 'type':'bool', 'value':false}, {'name':'speed', 'type':'float', 'value':1.5}, "
            "{'name':'says', 'type':'string', 'value':'two\\nlines'}]},"
            "{'class':'door', 'x':1, 'y':2, 'width':3, 'height':4, 'visible':false},"
            "{'x':1, 'y':2, 'point':true}, {'x':1, 'y':2, 'polygon':[{'x':0, 'y':0}]}, {'gid':2, 'x':0, 'y':8}]}]}]");
        for (const QByteArray &map : {xml, json}) {
            const TiledMap found = read(map);
            using Object = TiledMap::Object;
            using Shape = TiledMap::Shape;
            QCOMPARE(valuesOf(found.objects, &Object::shape),
                     QList({Shape::Tile, Shape::Rectangle, Shape::Point, Shape::Other, Shape::Tile}));
            const auto area = [&found](int object) {
                return QRectF(found.objects[object].topLeft, found.objects[object].size);
            };
            QCOMPARE((QList{area(0), area(1), area(4)}), // the last one as large as its tile
                     (QList{QRectF(26.5, 17, 16, 16), QRectF(11, 3, 3, 4), QRectF(10, 1, 8, 8)}));
            const Object hero = found.objects[0];
            QCOMPARE(hero.name + hero.type + hero.layer, "heroplayerthings");
            QCOMPARE(std::pair(hero.rotation, hero.gid), std::pair(90.0, Mirrored + 1));
            const QMap<QString, QVariant> properties{
                {"lives", 3}, {"fast", false}, {"speed", 1.5}, {"says", "two\nlines"}};
            QCOMPARE(hero.properties, properties);
            QCOMPARE(found.objects[1].type, "door");
            QVERIFY(hero.visible && !found.objects[1].visible);
        }
    }

    void whatCannotBeIsRefused()
    {
        const auto refuses = [this](const QString &reason, const QByteArray &map) {
            QCOMPARE(TiledMap::read(m_files.put("a", map)).reason(), reason);
        };
        const auto layer = [&refuses](const QString &problem, const QByteArray &map) {
            refuses("The layer “ground”: " + problem, map);
        };
        const QByteArray zeros = QByteArray(24, '\0').toBase64();
        refuses("Line 1: Premature end of document.", "");
        refuses("Line 1: “svg” stands where “map” does", "<svg/>");
        refuses("“tileset” stands where “map” does", "{\"type\":\"tileset\"}");
        refuses("Line 4: Premature end of document.", tmx("").chopped(8));
        refuses("Byte 12: unterminated object", "{\"width\":3, ");
        refuses("It is a map of the kind “hexagonal”; only “orthogonal” ones can be read",
                "<map orientation='hexagonal' width='1' height='1'/>");
        refuses("It says no width and height", "<map/>");
        refuses("“width” is “-1”, and can be 1 to 1048576", tmx("", "width='-1' height='2'"));
        refuses("“width” is “three”, and can be 1 to 1048576", tmx("", "width='three' height='2'"));
        refuses("It has 100000 × 100000 cells; at most 16 million can be read",
                tmx("", "width='100000' height='100000'"));
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
        refuses("Its layers have more than 16 million cells together",
                tmx("<layer><data encoding='csv'><chunk x='-100000' y='0' width='1' height='1'>1</chunk>"
                    "<chunk x='0' y='100000' width='1' height='1'>1</chunk></data></layer>",
                    "infinite='1'"));
        refuses("Two tile sets begin with number 1", tmx(PlainTiles + PlainTiles));
        refuses("It declares elements or entities of its own",
                "<!DOCTYPE map [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]><map width=\"&b;\"/>");
        refuses("It is no XML in UTF-8", QByteArray("<\0m\0a\0p\0", 8));
        QByteArray many = "<map ";
        for (int i = 0; i < 200; ++i)
            many += "a" + QByteArray::number(i) + "='>' ";
        refuses("An element has more than 100 attributes", many);
        for (const char *element : {"<a>", "<group>"})
            refuses("Line 5: there are too many elements in each other", tmx(QByteArray(element).repeated(1000)));
        refuses("Line 1: Start tag expected.", "[" + QByteArray("0,").repeated(5'000'000));
        refuses("It has more than 4 million numbers; with cells written as Base64 it has fewer",
                "{\"a\":[" + QByteArray("0,").repeated(5'000'000));
        refuses("It has more than 262144 lists and objects", "{\"a\":[" + QByteArray("[],").repeated(300'000));
    }

    void tileSetsAreRead_data()
    {
        addColumns<QString, QByteArray>("name", "bytes");
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
        QTest::newRow("tsx") << "sets/a.tsx"
                             << "<?xml version=\"1.0\"?><tileset " + xml;
        QTest::newRow("tsj") << "sets/a.tsj" << QByteArray("{'type':'tileset', " + json).replace('\'', '"');
        QTest::newRow("in XML") << "maps/a.tmx" << tmx("<tileset firstgid='1' " + xml);
        QTest::newRow("in JSON") << "maps/a.tmj" << tmj("'tilesets':[{'firstgid':1, " + json + "]");
    }

    void tileSetsAreRead()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const TiledFiles files;
        files.put("pictures/sheet.png", picture(21, 13, 9));
        const QString file = files.put(name, bytes);
        // a map leads to the file of the set, or holds it
        const bool isMap = TiledMap::recognises(bytes.first(250));
        QCOMPARE(TiledTileSet::recognises(bytes.first(250)), !isMap);
        const QString leading = files.put("map.tmx", tmx("<tileset firstgid='1' source='" + name.toUtf8() + "'/>"));
        const auto map = isMap ? TiledMap::read(file, TiledReferences::Anywhere) : TiledMap::read(leading);
        QVERIFY2(map, qPrintable(map.reason()));
        QCOMPARE(map->tileSets.size(), 1);
        const TiledTileSet &set = map->tileSets[0];
        QVERIFY(set.problems.isEmpty() && set.name == "sheet" && set.count == 4 && set.tileSize == QSize(8, 4));
        QCOMPARE(set.tile(3), picture(21, 13, 9).copy(11, 7, 8, 4).convertToFormat(set.tile(3).format()));
        QCOMPARE(set.picture.pixel(10, 3), 0U); // the transparent colour
        QVERIFY(set.tile(4).isNull());
        QCOMPARE(set.animations.keys(), QList<int>{1});
        QCOMPARE(valuesOf(set.animations[1], &TiledTileSet::Frame::tile), (QList{1, 3}));
        QCOMPARE(valuesOf(set.animations[1], &TiledTileSet::Frame::duration), (QList{100, 250}));
        QCOMPARE(map->remarks, QStringList{"The tile set “sheet” has animations of tiles that are not there"});
        if (isMap)
            return;
        const auto alone = TiledTileSet::read(file, TiledReferences::Anywhere);
        QVERIFY2(alone, qPrintable(alone.reason()));
        QCOMPARE(alone->tile(3), set.tile(3));
        QCOMPARE(TiledTileSet::read(file)->outside, QStringList{files.path("pictures/sheet.png")});
    }

    void tilesMayHaveAPictureEach()
    {
        const TiledFiles files;
        files.put("a.png", picture(8, 8, 1));
        files.put("b.png", picture(16, 4, 2));
        for (const QByteArray &bytes :
             {tmx("<tileset firstgid='3' tilecount='3' columns='0'><tile id='0'><image source='a.png'/></tile>"
                  "<tile id='5'><image source='b.png'/></tile><tile id='7'><image source='c.png'/></tile></tileset>"),
              tmj("'tilesets':[{'firstgid':3, 'tilecount':3, 'columns':0, 'tiles':[{'id':0, 'image':'a.png'}, "
                  "{'id':5, 'image':'b.png'}, {'id':7, 'image':'c.png'}]}]")}) {
            const auto map = TiledMap::read(files.put("map", bytes));
            QVERIFY2(map, qPrintable(map.reason()));
            QVERIFY(map->cell(8).tile == 5 && map->cell(11).isEmpty());
            const TiledTileSet &set = map->tileSets[0];
            QVERIFY(set.tile(5).size() == QSize(16, 4) && set.tile(1).isNull());
            QCOMPARE(set.tile(0).pixel(3, 4), qRgb(1, 3, 4));
            QCOMPARE(set.problems, QStringList{"“c.png” is not there"});
        }
    }

    void whatIsElsewhereIsLeftAloneUntilAllowed()
    {
        if (!Platform::HasLinks)
            QSKIP("Links are files of their own here");
        const TiledFiles files;
        files.put("out/t.png", picture(8, 8, 9));
        const QString outside = files.put(
            "out/s.tsx",
            QByteArray("<tileset tilewidth='8' tileheight='8' tilecount='1'><image source='t.png'/></tileset>"));
        files.put("in/t.png", picture(8, 8, 9));
        QVERIFY(QFile::link(outside, files.path("in/link.tsx")));
        QVERIFY(QFile::link(files.path("out"), files.path("in/folder")));
        QByteArray sets;
        int first = 0;
        for (const QByteArray &source : {QByteArray("../out/s.tsx"), outside.toUtf8(), QByteArray("link.tsx"),
                                         QByteArray("folder/s.tsx"), QByteArray("no.tsx")})
            sets += "<tileset firstgid='" + QByteArray::number(++first) + "' source='" + source + "'/>";
        const QString map = files.put("in/a.tmx", tmx(sets + xmlLayer("1,2,3,4,5,0")));
        const auto below = TiledMap::read(map);
        QVERIFY2(below, qPrintable(below.reason()));
        QCOMPARE(below->outside(), QStringList({outside, files.path("in/link.tsx"), files.path("in/folder/s.tsx")}));
        for (const TiledTileSet &tileSet : below->tileSets)
            QVERIFY(tileSet.tile(0).isNull());
        QCOMPARE(below->tileSets[1].problems, QStringList{"“" + outside + "” is not in the file's folder"});
        QCOMPARE(below->tileSets[4].problems, QStringList{"“no.tsx” is not there"});
        QCOMPARE(below->layers[0].gids, TiledMap::Gids({1, 2, 3, 4, 5, 0}));
        QCOMPARE(below->cell(2).tileSet, 1); // although it is not known how many tiles it has

        const auto anywhere = TiledMap::read(map, TiledReferences::Anywhere);
        QVERIFY2(anywhere, qPrintable(anywhere.reason()));
        QCOMPARE(anywhere->outside(), QStringList());
        for (int i = 0; i < 4; ++i)
            QCOMPARE(anywhere->tileSets[i].tile(0).pixel(3, 4), qRgb(9, 3, 4));

        // a folder that is reached by a link is its own folder, and a set in it says what is wrong with it
        files.put("out/s.tsx", QByteArray("<tileset>\n<tile"));
        files.put("out/b.tmx", tmx("<tileset firstgid='1' source='s.tsx'/>"));
        const auto linked = TiledMap::read(files.path("in/folder/b.tmx"));
        QVERIFY2(linked, qPrintable(linked.reason()));
        QCOMPARE(linked->tileSets[0].problems, QStringList{"“s.tsx”: Line 2: Premature end of document."});
    }
};

QUENMORA_TEST_MAIN(TestTiledMap)
#include "tst_tiledmap.moc"
