#include "pictures/tiledtileset.h"

#include "pictures/tiledmap.h"
#include "support/platform.h"
#include "support/testmain.h"
#include "support/tiledfiles.h"

#include <QTest>

class TestTiledTileSet : public QObject
{
    Q_OBJECT

private slots:
    void tileSetsAreRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray head = " name=\"sheet\" tilewidth=\"8\" tileheight=\"4\" spacing=\"1\" margin=\"2\" "
                                "tilecount=\"4\" columns=\"2\">";
        const QByteArray xml = head
            + "<image source=\"../pictures/sheet.png\" trans=\"090a03\" width=\"21\" height=\"13\"/>"
              "<tile id=\"1\"><properties><property name=\"solid\" type=\"bool\" value=\"true\"/></properties>"
              "<animation><frame tileid=\"1\" duration=\"100\"/><frame tileid=\"3\" "
              "duration=\"250\"/></animation></tile>"
              "<tile id=\"2\"><animation><frame tileid=\"4\" duration=\"100\"/></animation></tile></tileset>";
        const QByteArray json =
            "\"name\":\"sheet\", \"tilewidth\":8, \"tileheight\":4, \"spacing\":1, \"margin\":2, \"tilecount\":4, "
            "\"columns\":2, \"image\":\"..\\\\pictures\\\\sheet.png\", \"transparentcolor\":\"#090a03\", \"tiles\":["
            "{\"id\":1, \"animation\":[{\"tileid\":1, \"duration\":100}, {\"tileid\":3, \"duration\":250}]},"
            "{\"id\":2, \"animation\":[{\"tileid\":4, \"duration\":100}]}]}";
        QTest::newRow("tsx") << QStringLiteral("sets/a.tsx") << "<?xml version=\"1.0\"?><tileset " + xml;
        QTest::newRow("tsj") << QStringLiteral("sets/a.tsj") << "{\"type\":\"tileset\", " + json;
        QTest::newRow("in XML") << QStringLiteral("maps/a.tmx") << tmx("<tileset firstgid=\"1\" " + xml);
        QTest::newRow("in JSON") << QStringLiteral("maps/a.tmj") << tmj("\"tilesets\":[{\"firstgid\":1, " + json + "]");
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
        const auto map =
            TiledMap::read(isMap ? file
                                 : files.put(QStringLiteral("map.tmx"),
                                             tmx("<tileset firstgid=\"1\" source=\"" + name.toUtf8() + "\"/>")),
                           isMap ? TiledReferences::Anywhere : TiledReferences::Below);
        QVERIFY2(map, qPrintable(map.reason()));
        QCOMPARE(map->tileSets.size(), 1);
        const TiledTileSet &set = map->tileSets[0];
        QCOMPARE(set.problems, QStringList());
        QCOMPARE(set.name, QStringLiteral("sheet"));
        QCOMPARE(set.count, 4);
        QCOMPARE(set.tileSize, QSize(8, 4));
        QCOMPARE(set.tile(3).size(), QSize(8, 4));
        QCOMPARE(set.tile(3).pixel(0, 0), qRgb(9, 11, 7));
        QCOMPARE(set.tile(1).pixel(7, 3), qRgb(9, 18, 5));
        QCOMPARE(set.tile(0).pixel(7, 1), qRgb(9, 9, 3));
        QCOMPARE(set.picture.pixel(10, 3), 0U); // the transparent colour
        QVERIFY(set.tile(4).isNull());
        QCOMPARE(set.animations.keys(), QList<int>{1});
        QCOMPARE(set.animations[1].size(), 2);
        QCOMPARE(set.animations[1][1].tile, 3);
        QCOMPARE(set.animations[1][1].duration, 250);
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
        const QByteArray xml = "<tile id=\"0\"><image source=\"a.png\"/></tile><tile id=\"5\"><image "
                               "source=\"b.png\"/></tile><tile id=\"7\"><image source=\"c.png\"/></tile>";
        const QByteArray json =
            "{\"id\":0, \"image\":\"a.png\"}, {\"id\":5, \"image\":\"b.png\"}, {\"id\":7, \"image\":\"c.png\"}";
        for (const QByteArray &bytes :
             {tmx("<tileset firstgid=\"3\" tilecount=\"3\" columns=\"0\">" + xml + "</tileset>"),
              tmj("\"tilesets\":[{\"firstgid\":3, \"tilecount\":3, \"columns\":0, \"tiles\":[" + json + "]}]")}) {
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
        const QByteArray set =
            "<tileset tilewidth=\"8\" tileheight=\"8\" tilecount=\"1\"><image source=\"t.png\"/></tileset>";
        files.put(QStringLiteral("out/t.png"), picture(8, 8, 9));
        files.put(QStringLiteral("out/s.tsx"), set);
        files.put(QStringLiteral("in/t.png"), picture(8, 8, 9));
        QVERIFY(QFile::link(files.path(QStringLiteral("out/s.tsx")), files.path(QStringLiteral("in/link.tsx"))));
        QVERIFY(QFile::link(files.path(QStringLiteral("out")), files.path(QStringLiteral("in/folder"))));
        const QString outside = files.path(QStringLiteral("out/s.tsx"));
        QByteArray sets;
        int first = 0;
        for (const QByteArray &source : {QByteArray("../out/s.tsx"), outside.toUtf8(), QByteArray("link.tsx"),
                                         QByteArray("folder/s.tsx"), QByteArray("no.tsx")})
            sets += "<tileset firstgid=\"" + QByteArray::number(++first) + "\" source=\"" + source + "\"/>";
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
        files.put(QStringLiteral("out/b.tmx"), tmx("<tileset firstgid=\"1\" source=\"s.tsx\"/>"));
        const auto linked = TiledMap::read(files.path(QStringLiteral("in/folder/b.tmx")));
        QVERIFY2(linked, qPrintable(linked.reason()));
        QCOMPARE(linked->tileSets[0].problems,
                 QStringList{QStringLiteral("“s.tsx”: Line 2: Premature end of document.")});
    }
};

QUENMORA_TEST_MAIN(TestTiledTileSet)
#include "tst_tiledtileset.moc"
