#include "model/project.h"

#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spritebank.h"
#include "model/tilemap.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QMetaType>
#include <QTest>

namespace {

void listen(SignalLog &log, Project &project)
{
    log.listen(project, &Project::showMessage, "message");
    log.listen(project, &Project::imageCreated, "image");
    log.listen(project, &Project::paletteCreated, "palette");
    log.listen(project, &Project::tilesetCreated, "tile set");
    log.listen(project, &Project::blocksCreated, "blocks");
    log.listen(project, &Project::mapCreated, "map");
    log.listen(project, &Project::spritesCreated, "sprites");
    log.listen(project, &Project::tileSetsChanged, "tile sets");
}

/// A map with a placed sprite for every sprite number.
QPointer<Map> mapWithSprites(Project &project, const QUuid &bank, const QList<int> &sprites)
{
    const QPointer<Map> map = project.createMap("Level", {}, QSize(40, 32));
    for (const int sprite : sprites) {
        Map::PlacedSprite placed{};
        placed.bank = bank;
        placed.sprite = sprite;
        map->addSprite(placed);
    }
    return map;
}

QList<int> spritesOf(const Map &map)
{
    QList<int> sprites;
    for (const Map::PlacedSprite &placed : map.sprites())
        sprites.append(placed.sprite);
    return sprites;
}

} // namespace

class TestProject : public QObject
{
    Q_OBJECT

private slots:
    void fillsNewPalettes()
    {
        Project project;
        QVERIFY(QMetaType::fromName("QHash<QUuid,QString>").isRegistered());
        QVERIFY(QMetaType::fromName("QPointer<TileAnimation>").isRegistered());
        const QPointer<Palette> source = project.createPalette(CreateAction::Blank, "Source");
        source->storeRawColour(3, 0xE381);
        const QPointer<Palette> last = project.createPalette(CreateAction::DefaultNext, "Last");
        const auto word = [&project](CreateAction action, const QUuid &id) {
            const QPointer<Palette> created = project.createPalette(action, "New", id);
            const int filled = created->rawColour(3);
            project.deletePalette(created->id());
            return filled;
        };
        QCOMPARE(project.createPalette(CreateAction::CopyCurrent, "Copy")->rawColour(3), 0x0301); // of the last one
        QCOMPARE(word(CreateAction::None, source->id()), 0);
        QCOMPARE(word(CreateAction::CopyCurrent, source->id()), 0xE381);
        QCOMPARE(word(CreateAction::DefaultNext, source->id()), 0x0301);
        QCOMPARE(word(CreateAction::Blank, source->id()), 0);
        QCOMPARE(word(CreateAction::CopyCurrent, {}), 0); // the last one was deleted
    }

    void announcesCreation()
    {
        Project project;
        SignalLog log;
        listen(log, project);
        const QPointer<TileSet> tiles = project.createTileSet("Rocks", {});
        QCOMPARE(log.take(),
                 QStringList({"message New palette added: Rocks 2500", "palette Rocks", "tile sets Rocks",
                              "message New tile set added: Rocks 2500", "tile set Rocks"}));
        QVERIFY(tiles->count() == 512 && !tiles->hiRes());
        const QUuid palette = project.palettes().constFirst()->id();
        QCOMPARE(tiles->paletteId(), palette);
        QCOMPARE(project.createTileSet("Trees", palette, 256, true)->count(), 256);
        QCOMPARE(log.take(),
                 QStringList({"tile sets Rocks Trees", "message New tile set added: Trees 2500", "tile set Trees"}));

        const QPointer<MapObjects> blocks = project.createBlockList("Doors", tiles->id());
        const QPointer<Map> map = project.createMap("Cave", tiles->id(), QSize(50, 33));
        const QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, "Ships", palette);
        const QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "Title", palette);
        QCOMPARE(log.take(),
                 QStringList({"message New block set added: Doors 2500", "blocks Doors", "map Cave", "sprites Ships",
                              "image Title"}));
        QVERIFY(blocks->tileSet() == tiles && map->tileSet() == tiles);
        QVERIFY(bank->paletteId() == palette && image->paletteId() == palette);
        QVERIFY(bank->depth() == Quenmora::EightBit && image->mode() == Quenmora::LoRes_128x96);
        QVERIFY(map->tileLayer()->size() == QSize(50, 33) && map->objectLayer()->size() == QSize(50, 33));
        QVERIFY(map->tileLayer()->isVisible() && !map->objectLayer()->isVisible());
    }

    void bindsNothingToUnknownIds()
    {
        Project project;
        const QUuid unknown = QUuid::createUuid();
        QVERIFY(project.createTileSet("Tiles", unknown)->palette().isNull());
        QVERIFY(project.createBlockList("Blocks", unknown)->tileSet().isNull());
        QVERIFY(project.createMap("Map", unknown, QSize(40, 32))->tileSet().isNull());
        QVERIFY(project.createSpriteBank(Quenmora::FourBit, "Bank", unknown)->palette().isNull());
        QVERIFY(project.createImage(Quenmora::Layer2_256x192, "Image", unknown)->palette().isNull());
        QVERIFY(project.palettes().isEmpty());
        QVERIFY(!project.clonePalette(unknown) && !project.cloneTileSet(unknown) && !project.cloneMap(unknown));
        for (const QUuid &id : {unknown, QUuid()}) { // no palette is none, not the palette of the null id
            QVERIFY(project.deletePalette(id) && project.deleteTileSet(id) && project.deleteBlocks(id));
            QVERIFY(project.deleteMap(id) && project.deleteSpriteBank(id) && project.deleteImage(id));
        }
    }

    void listsInOrderOfRegistration()
    {
        Project project;
        QStringList expected;
        for (int i = 0; i < 40; ++i) { // enough for a hash to mix them up
            expected.append(QString::number(i));
            project.createPalette(CreateAction::Blank, expected.constLast());
        }
        QCOMPARE(project.paletteNames(), expected);
        QVERIFY(project.deletePalette(project.palettes().at(7)->id()));
        expected.removeAt(7);
        // one that is registered under an id that exists takes the place of the old one
        const QPointer<Palette> replacement = new Palette;
        replacement->setId(project.palettes().at(5)->id());
        replacement->setName("new");
        project.addPalette(replacement);
        expected[5] = "new";
        QCOMPARE(project.paletteNames(), expected);
        QCOMPARE(project.palette(replacement->id()), replacement);
    }

    void renamesPalettes()
    {
        Project project;
        const QUuid dusk = project.createPalette(CreateAction::Blank, "Dusk")->id();
        project.createPalette(CreateAction::Blank, "Dawn");
        QVERIFY(!project.renamePalette(dusk, "Dawn") && !project.renamePalette(dusk, " "));
        QVERIFY(!project.renamePalette(QUuid::createUuid(), "Noon"));
        QVERIFY(project.renamePalette(dusk, "Dusk") && project.renamePalette(dusk, "Noon"));
        QCOMPARE(project.paletteNames(), QStringList({"Noon", "Dawn"}));
    }

    void spritesFollowTheirBank()
    {
        Project project;
        const QPointer<SpriteBank> created = project.createSpriteBank(Quenmora::FourBit, "Ships", {});
        const QPointer<SpriteBank> registered = new SpriteBank(Quenmora::FourBit);
        SignalLog log;
        listen(log, project);
        project.addSpriteBank(registered);
        project.addSpriteBank(registered); // and is followed only once
        project.addSpriteBank(nullptr);
        project.addMap(new Map("Cave"));
        QCOMPARE(log.take(),
                 QStringList({"message New Sprite Bank Added 0", "message New Sprite Bank Added 0",
                              "message New map added: Cave 2500"}));
        QVERIFY(registered->parent() == &project && project.spriteBanks().size() == 2);
        for (const QPointer<SpriteBank> &bank : {created, registered}) {
            for (int i = 0; i < 4; ++i)
                bank->addSprite();
            const QPointer<Map> first = mapWithSprites(project, bank->id(), {0, 1, 2, 3, 4});
            const QPointer<Map> second = mapWithSprites(project, bank->id(), {4});
            const QPointer<Map> other = mapWithSprites(project, QUuid::createUuid(), {1, 4});
            bank->moveSprite(4, 1);
            QCOMPARE(spritesOf(*first), QList<int>({0, 2, 3, 4, 1}));
            QCOMPARE(spritesOf(*second), QList<int>({1}));
            bank->deleteSprite(1);
            QCOMPARE(spritesOf(*first), QList<int>({0, 1, 2, 3}));
            QVERIFY(spritesOf(*second).isEmpty());
            QCOMPARE(spritesOf(*other), QList<int>({1, 4}));
        }
    }

    void clones()
    {
        Project project;
        const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Dusk");
        project.createPalette(CreateAction::Blank, "Last");
        const QPointer<Palette> paletteCopy = project.clonePalette(palette->id());
        QCOMPARE(paletteCopy->name(), "Dusk (copy)");
        QCOMPARE(paletteCopy->colours(), palette->colours());

        const QPointer<TileSet> tiles = project.createTileSet("Rocks", palette->id(), 3, true);
        tiles->tile(2)->setAttributes(0x41);
        tiles->tile(2)->setValue(99);
        tiles->setTileOffset(2, 7);
        tiles->setTileImage(2, plainImage({8, 8}, 9));
        const QPointer<TileSet> tilesCopy = project.cloneTileSet(tiles->id());
        QCOMPARE(tilesCopy->name(), "Rocks (copy)");
        QCOMPARE(tilesCopy->palette(), palette);
        QVERIFY(!tilesCopy->hiRes());
        QVERIFY(tilesCopy->snapshot() == tiles->snapshot());

        const QPointer<Map> map = project.createMap("Level", tiles->id(), QSize(40, 32));
        const TileMap::TileData cell{2, true, false, true, 7, true};
        map->setTile(QPoint(39, 31), cell);
        map->objectLayer()->setCell(QPoint(0, 0), cell);
        map->addSprite({});
        const QPointer<Map> mapCopy = project.cloneMap(map->id());
        QCOMPARE(mapCopy->name(), "Level (copy)");
        QCOMPARE(mapCopy->tileSet(), tiles);
        QVERIFY(mapCopy->tileLayer()->rows() == map->tileLayer()->rows());
        QCOMPARE(mapCopy->objectLayer()->cellAt(QPoint(0, 0)), TileMap::TileData{});
        QVERIFY(!mapCopy->objectLayer()->isVisible() && mapCopy->sprites().isEmpty());
        // the copy is one: what is drawn into it stays out of the source
        mapCopy->setTile(QPoint(39, 31), {});
        QCOMPARE(map->tileLayer()->cellAt(QPoint(39, 31)), cell);
    }

    void refusesToDeleteUsedPalettes()
    {
        Project project;
        const QUuid id = project.createPalette(CreateAction::Blank, "Dusk")->id();
        const QPointer<Palette> unused = project.createPalette(CreateAction::Blank, "Unused");
        const auto refused = [&project, &id] { return !project.deletePalette(id) && project.palette(id); };
        const QPointer<TileSet> tiles = project.createTileSet("T", id);
        QVERIFY(refused());
        project.deleteTileSet(tiles->id());
        const QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::FourBit, "S", id);
        QVERIFY(refused());
        project.deleteSpriteBank(bank->id());
        const QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "I", id);
        QVERIFY(refused());
        project.deleteImage(image->id());
        project.setScratchPalette(project.palette(id));
        QVERIFY(refused());
        project.setScratchPalette(nullptr);
        QVERIFY(!tiles && !bank && !image);
        QVERIFY(project.deletePalette(id) && project.deletePalette(unused->id()));
        QVERIFY(!unused && project.palettes().isEmpty());
    }

    void refusesToDeleteUsedTileSetsAndBlocks()
    {
        Project project;
        const QPointer<TileSet> tiles = project.createTileSet("Rocks", {});
        const QPointer<MapObjects> blocks = project.createBlockList("Doors", tiles->id());
        const QPointer<Map> map = project.createMap("Cave", tiles->id(), QSize(40, 32));
        const QPointer<TileMap> layer = map->tileLayer();
        QVERIFY(!project.deleteTileSet(tiles->id()) && !project.deleteBlocks(blocks->id()));
        QVERIFY(project.deleteBlocks(project.createBlockList("Unbound", {})->id()));
        QVERIFY(project.deleteMap(map->id()));
        QVERIFY(!map && !layer);
        QVERIFY(project.deleteTileSet(tiles->id())); // block sets do not hold it
        QVERIFY(!tiles && blocks && !blocks->tileSet());
        QVERIFY(project.deleteBlocks(blocks->id()));
        QVERIFY(!blocks);
    }

    void destroysItsAssets()
    {
        QStringList order;
        auto project = std::make_unique<Project>();
        const auto note = [&order](QObject *asset, const QString &kind) {
            connect(asset, &QObject::destroyed, asset, [&order, kind] { order.append(kind); });
        };
        const QPointer<Palette> palette = project->createPalette(CreateAction::Blank, "Dusk");
        const QPointer<TileSet> tiles = project->createTileSet("Rocks", palette->id());
        const QPointer<Map> map = project->createMap("Cave", tiles->id(), QSize(40, 32));
        note(palette, "palette");
        note(project->createSpriteBank(Quenmora::FourBit, "Ships", palette->id()), "sprites");
        note(tiles, "tiles");
        note(map, "map");
        project.reset();
        QCOMPARE(order, QStringList({"map", "tiles", "palette", "sprites"}));
    }
};

QUENMORA_TEST_MAIN(TestProject)
#include "tst_project.moc"
