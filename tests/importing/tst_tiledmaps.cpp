#include "importing/addition.h"
#include "importing/filekind.h"
#include "importing/preview.h"
#include "model/animatedblocks.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/nextcolour.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"
#include "support/tiledfiles.h"

#include <QTest>

using namespace Importing;

/// Maps of Tiled become tiles, maps, animations and placed sprites that look the same.
class TestTiledMaps : public QObject
{
    Q_OBJECT

    TemporaryFolder m_path;

    Result<IncomingAssets> prepared(const Project &project, const QByteArray &text)
    {
        const auto file = ImportFile::open(m_path("level.tmx", text));
        return file ? prepare(project, *file, {.kind = recognise(*file).constFirst().kind, .name = "Level"})
                    : file.failure();
    }

    /// Three tiles of 16 × 16 pixels: of one colour, of several, of which one piece is another one turned, and one that
    /// is animated. The map shows the second one in all orientations, nothing, and the third one; and what it has for
    /// sprites, among it a tile as large as all three.
    static std::pair<QImage, QByteArray> tiledMap()
    {
        const QImage sheet = pictureOf({48, 16}, QImage::Format_RGB32, [](int i) {
            const int x = i % 48;
            const int y = i / 48;
            const bool isTurned = x >= 24 && x < 32 && y < 8; // the piece at the left of it, across the diagonal
            const int fromX = isTurned ? 16 + y : x;
            const int fromY = isTurned ? x - 24 : y;
            const int red = x < 16 ? 1 : x < 32 ? (fromX * 5 + fromY * fromY * 3) % 7 : 3;
            return qRgb(NextColour::componentOf(red), 0, NextColour::componentOf(x < 16 ? 4 : 6));
        });
        QByteArrayList gids;
        for (quint32 cell = 0; cell < 8; ++cell)
            gids.append(QByteArray::number(quint32(2 | (cell & 4) << 29 | (cell & 2) << 29 | (cell & 1) << 29)));
        gids.append({"0", "3"});
        for (int cell = 0; cell < 10; ++cell)
            gids.append("1");
        const QByteArray text = tmx(
            "<tileset firstgid='1' name='set' tilewidth='8' tileheight='8' tilecount='3' columns='3'>"
            "<image source='sheet.png'/><tile id='2'><animation><frame tileid='0' duration='100'/>"
            "<frame tileid='1' duration='200'/></animation></tile></tileset>\n"
            "<tileset firstgid='4' tilewidth='48' tileheight='8' tilecount='1'><image source='sheet.png'/></tileset>"
            "<layer name='ground' width='10' height='2'><data encoding='csv'>"
                + gids.join(',')
                + "</data></layer>\n<objectgroup name='things'>"
                  "<object name='bat' gid='2147483650' x='40' y='20' width='16' height='16'/>"
                  "<object gid='2' x='0' y='16' width='16' height='16'/>"
                  "<object gid='4' x='96' y='16' width='48' height='16'/>"
                  "<object gid='2' x='0' y='16' width='32' height='16'/>"
                  "<object x='0' y='16' width='32' height='16'/></objectgroup>",
            "width='10' height='2'");
        return {sheet, QByteArray(text).replace("='8'", "='16'")};
    }

private slots:
    /// Tiles of 16 × 16 pixels in all orientations are seen as they are drawn, and blank cells stay blank.
    void mapsKeepTheirLook()
    {
        Project project;
        const auto [sheet, text] = tiledMap();
        QVERIFY(sheet.save(m_path("sheet.png")));
        const auto incoming = prepared(project, text);
        QVERIFY2(incoming && incoming->map, qPrintable(incoming.reason()));
        const auto added = addTo(project, *incoming, {.kind = "tiled", .name = "Level"}, {});
        QVERIFY(added);
        const auto map = project.map(added->map);
        QCOMPARE(map->size(), QSize(20, 4));
        QVERIFY(project.tileSet(added->tileSet)->count() <= 1 + 3 * 4); // turned ones are not there again
        const QImage shown =
            map->tileLayer()->toImage(QRect({0, 0}, map->size())).convertToFormat(QImage::Format_RGB32);
        for (int cell = 0; cell < 8; ++cell) {
            const QImage expected = pictureOf({16, 16}, QImage::Format_RGB32, [&sheet, cell](int i) {
                const QPoint to(i % 16, i / 16); // across the diagonal first, then the flips, from bit 31 on
                const QPoint from(cell & 4 ? 15 - to.x() : to.x(), cell & 2 ? 15 - to.y() : to.y());
                return cell & 1 ? sheet.pixel(16 + from.y(), from.x()) : sheet.pixel(16 + from.x(), from.y());
            });
            QCOMPARE(shown.copy(cell * 16, 0, 16, 16), expected);
        }
        QCOMPARE(map->tileLayer()->cellAt({16, 0}), TileMap::TileData()); // empty
        QCOMPARE(map->tileLayer()->cellAt({18, 0}).index, 0); // below an animation
        QCOMPARE(indices(project.tileSet(added->tileSet)->image(0)),
                 QByteArray(64, char(map->tileTransparencyIndex()))); // which is blank

        // animations of tiles
        const auto blocks = project.blocks(added->blocks);
        QCOMPARE(blocks->animations().size(), 1);
        const auto animation = blocks->animations().constFirst();
        QCOMPARE(animation->size(), QSize(2, 2));
        QCOMPARE(std::pair(animation->delay(), animation->frameCount()), std::pair(5, 3)); // the last one is held
        QCOMPARE(animation->frame(1)->cells(), animation->frame(2)->cells());
        QCOMPARE(map->animatedBlocks()->areas(), (QHash<QRect, QUuid>{{QRect(18, 0, 2, 2), animation->id()}}));
        const AnimationFrame::Cell corner = animation->frame(1)->cell(0, 0); // of the first tile of the map
        const TileMap::TileData same = map->tileLayer()->cellAt({0, 0});
        QCOMPARE((QList{corner.index, corner.offset, int(corner.rotate)}),
                 (QList{same.index, same.offset, int(same.rotate)}));

        // the preview shows the object, half of it over what the map has there
        const QImage preview = previewOf(project, *incoming, {.kind = "tiled", .name = "Level"});
        QCOMPARE(preview.size(), QSize(160, 32));
        QCOMPARE(preview.pixel(40 + 12, 4 + 13), sheet.pixel(16 + 3, 13)); // mirrored

        // objects
        const Map::PlacedSprite &bat = map->sprites()[0];
        QVERIFY(bat.name == "bat" && bat.mirror && !bat.flip && !bat.rotate && bat.bank == added->sprites);
        const auto bank = project.spriteBank(added->sprites);
        QCOMPARE(bank->renderSprite(bat.sprite, 0, false, false, false).pixel(3, 2), sheet.pixel(16 + 3, 2));
        QCOMPARE(valuesOf(map->sprites(), [](const auto &sprite) { return QPoint(sprite.x, sprite.y); }),
                 (QList<QPoint>{{40, 4}, {0, 0}, {96, 0}, {112, 0}, {128, 0}})); // by the upper left corner
        QCOMPARE(valuesOf(map->sprites(), &Map::PlacedSprite::sprite), (QList{0, 0, 1, 0, 2})); // equal ones once
        QVERIFY(incoming->remarks.contains(
            "Objects that are no sprites, turned, scaled, hidden or too large, and are left out: 2"));
    }

    /// What lies at a cell of an infinite map stays there, wherever its first cell is.
    void objectsOfInfiniteMapsStayOnTheirCells()
    {
        Project project;
        QVERIFY(picture(16, 16).save(m_path("tile.png")));
        const auto incoming = prepared(
            project,
            tmx("<tileset firstgid='1' tilewidth='16' tileheight='16' tilecount='1'><image "
                "source='tile.png'/></tileset>"
                "<layer><data encoding='csv'><chunk x='-2' y='1' width='2' height='1'>0,0</chunk></data></layer>"
                "<objectgroup><object gid='1' x='-8' y='24'/></objectgroup>",
                "infinite='1'"));
        QVERIFY2(incoming, qPrintable(incoming.reason()));
        const Map::PlacedSprite &sprite = incoming->map->sprites.constFirst();
        QCOMPARE(QPoint(sprite.x, sprite.y), QPoint(8, 0));
    }

    /// A tile set without a map: its tiles in their order, and its animations.
    void aTileSetByItself()
    {
        Project project;
        const auto [sheet, text] = tiledMap();
        QVERIFY(sheet.save(m_path("sheet.png")));
        const qsizetype first = text.indexOf("<tileset");
        const auto incoming = prepared(project, text.sliced(first, text.indexOf("<tileset", first + 1) - first));
        QVERIFY2(incoming && !incoming->map, qPrintable(incoming.reason()));
        const auto added = addTo(project, *incoming, {.kind = "tiled-tiles", .name = "Set"}, {});
        const auto tiles = project.tileSet(added->tileSet);
        QVERIFY(tiles->count() <= 1 + 3 * 4 && project.maps().isEmpty());
        const auto animation = project.blocks(added->blocks)->animations().constFirst();
        const AnimationFrame::Cell corner = animation->frame(1)->cell(0, 0); // of the second tile
        QCOMPARE(tiles->tileImage(corner.index, corner.rotate, corner.flip, corner.mirror, corner.offset)
                     .convertToFormat(QImage::Format_RGB32),
                 sheet.copy(16, 0, 8, 8));
    }

    void refusesOtherMaps()
    {
        Project project;
        QByteArray text = tiledMap().second;
        text.replace("tilewidth='16'", "tilewidth='12'");
        QCOMPARE(prepared(project, text).reason(),
                 QString::fromUtf8("The cells of the map have 12 × 16 pixels, and tiles of the Next 8 × 8: only "
                                   "multiples of that can be cut"));
    }
};

QUENMORA_TEST_MAIN(TestTiledMaps)
#include "tst_tiledmaps.moc"
