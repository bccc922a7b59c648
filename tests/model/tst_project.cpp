#include "model/project.h"

#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

class TestProject : public QObject
{
    Q_OBJECT

private slots:
    void fillsNewPalettes()
    {
        Project project;
        const QPointer<Palette> source = project.createPalette(CreateAction::Blank, "Source");
        source->storeRawColour(3, 0xE381);
        const QPointer<Palette> last = project.createPalette(CreateAction::DefaultNext, "Last");
        QCOMPARE(project.createPalette(CreateAction::CopyCurrent, "Copy")->rawColour(3), 0x0301); // of the last one
        for (const auto &[action, id, filled] : {std::tuple(CreateAction::CopyCurrent, source->id(), 0xE381),
                                                 {CreateAction::None, source->id(), 0},
                                                 {CreateAction::DefaultNext, source->id(), 0x0301},
                                                 {CreateAction::Blank, source->id(), 0},
                                                 {CreateAction::CopyCurrent, QUuid(), 0}}) { // the last was deleted
            const QPointer<Palette> created = project.createPalette(action, "New", id);
            QCOMPARE(created->rawColour(3), filled);
            project.deletePalette(created->id());
        }
    }

    void announcesCreation()
    {
        Project project;
        SignalLog log(project);
        const QPointer<TileSet> tiles = project.createTileSet("Rocks", {});
        QCOMPARE(
            log.take(),
            QStringList({"showMessage New palette added: Rocks 2500", "paletteCreated Palette", "tileSetsChanged Rocks",
                         "showMessage New tile set added: Rocks 2500", "tilesetCreated TileSet"}));
        const QUuid palette = tiles->paletteId();
        QVERIFY(tiles->count() == 512 && !tiles->hiRes() && project.palettes().constFirst()->id() == palette);
        QVERIFY(project.createTileSet("Trees", palette, 256, true)->hiRes() && project.palettes().size() == 1);
        QCOMPARE(log.take().constFirst(), "tileSetsChanged Rocks Trees");

        const QPointer<MapObjects> blocks = project.createBlockList("Doors", tiles->id());
        const QPointer<Map> map = project.createMap("Cave", tiles->id(), QSize(50, 33));
        const QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, "Ships", palette);
        const QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "Title", palette);
        project.addSpriteBank(nullptr);
        project.addMap(new Map("Maze"));
        QCOMPARE(
            log.take(),
            QStringList({"showMessage New block set added: Doors 2500", "blocksCreated MapObjects", "mapCreated Map",
                         "spritesCreated SpriteBank", "imageCreated Image", "showMessage New map added: Maze 2500"}));
        QVERIFY(blocks->tileSet() == tiles && map->tileSet() == tiles && bank->depth() == Quenmora::EightBit);
        QVERIFY(bank->paletteId() == palette && image->paletteId() == palette);
        QVERIFY(map->tileLayer()->size() == QSize(50, 33) && map->objectLayer()->size() == QSize(50, 33));
    }

    void bindsNothingToUnknownIds()
    {
        Project project;
        const QUuid unknown = QUuid::createUuid();
        QVERIFY(!project.createTileSet("Tiles", unknown)->palette() && project.palettes().isEmpty());
        QVERIFY(!project.createBlockList("Blocks", unknown)->tileSet()
                && !project.createMap("Map", unknown, QSize(40, 32))->tileSet());
        QVERIFY(!project.createSpriteBank(Quenmora::FourBit, "Bank", unknown)->palette());
        QVERIFY(!project.createImage(Quenmora::Layer2_256x192, "Image", unknown)->palette());
        QVERIFY(!project.clonePalette(unknown) && !project.cloneTileSet(unknown) && !project.cloneMap(unknown));
        for (const QUuid &id : {unknown, QUuid()}) // no palette is none, not the palette of the null id
            QVERIFY(project.deletePalette(id) && project.deleteTileSet(id) && project.deleteBlocks(id)
                    && project.deleteMap(id) && project.deleteSpriteBank(id) && project.deleteImage(id));
    }

    void spritesFollowTheirBank()
    {
        // where a sprite moves from and to (none when it is deleted): what the placed ones show then
        const std::tuple<int, int, QList<int>> changes[] = {{4, 1, {-1, 0, 2, 3, 4, 1, 5, 4, 4}},
                                                            {1, 4, {-1, 0, 4, 1, 2, 3, 5, 4, 4}},
                                                            {4, -1, {-1, 0, 1, 2, 3, 4, 4, 4}}};
        for (const auto &[from, to, expected] : changes) {
            Project project;
            auto *bank = new SpriteBank(Quenmora::FourBit);
            for (int i = 0; i < 2; ++i) // it must be followed only once
                project.addSpriteBank(bank);
            QVERIFY(bank->parent() == &project && project.spriteBanks().size() == 1);
            const QPointer<SpriteBank> other = project.createSpriteBank(Quenmora::FourBit, "Other", {});
            const QPointer<Map> map = project.createMap("A", {}, {40, 32});
            for (int i = 0; i < 5; ++i)
                bank->addSprite();
            for (int i = -1; i < 6; ++i)
                map->addSprite({.bank = bank->id(), .sprite = i});
            map->addSprite({.bank = bank->id(), .animation = QUuid::createUuid(), .sprite = 4});
            map->addSprite({.bank = other->id(), .sprite = 4});
            QVERIFY(!map->setSprite(9, {}) && !map->removeSprite(9));
            if (to < 0)
                bank->deleteSprite(from);
            else
                bank->moveSprite(from, to);
            QCOMPARE(valuesOf(map->sprites(), &Map::PlacedSprite::sprite), expected);
        }
    }

    void clones()
    {
        Project project;
        const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Dusk");
        project.createPalette(CreateAction::Blank, "Last");
        const QPointer<Palette> paletteCopy = project.clonePalette(palette->id());
        QVERIFY(paletteCopy->name() == "Dusk (copy)" && paletteCopy->colours() == palette->colours());

        const QPointer<TileSet> tiles = project.createTileSet("Rocks", palette->id(), 3, true);
        tiles->setTileImage(2, plainImage({8, 8}, 9));
        const QPointer<TileSet> tilesCopy = project.cloneTileSet(tiles->id());
        QVERIFY(tilesCopy->name() == "Rocks (copy)" && tilesCopy->palette() == palette && !tilesCopy->hiRes());
        QVERIFY(tilesCopy->snapshot() == tiles->snapshot());

        const QPointer<Map> map = project.createMap("Level", tiles->id(), QSize(40, 32));
        for (TileMap *layer : {map->tileLayer().data(), map->objectLayer().data()})
            layer->setCell(QPoint(39, 31), {2, true, false, true, 7, true});
        map->addSprite({});
        const QPointer<Map> copy = project.cloneMap(map->id());
        QVERIFY(copy->name() == "Level (copy)" && copy->tileSet() == tiles && copy->sprites().isEmpty());
        QVERIFY(copy->tileLayer()->rows() == map->tileLayer()->rows() && !copy->objectLayer()->isVisible());
        QCOMPARE(copy->objectLayer()->cellAt(QPoint(39, 31)), TileMap::TileData{});
    }

    void refusesToDeleteWhatIsUsed()
    {
        Project project;
        const QPointer<Palette> palette = project.createPalette(CreateAction::Blank, "Dusk");
        const QUuid id = palette->id();
        const QPointer<TileSet> tiles = project.createTileSet("T", id);
        QVERIFY(!project.deletePalette(id));
        const QPointer<MapObjects> blocks = project.createBlockList("Doors", tiles->id());
        const QPointer<Map> map = project.createMap("Cave", tiles->id(), QSize(40, 32));
        const QPointer<TileMap> layer = map->tileLayer();
        QVERIFY(!project.deleteTileSet(tiles->id()) && !project.deleteBlocks(blocks->id()));
        QVERIFY(project.deleteMap(map->id()) && !map && !layer);
        QVERIFY(project.deleteTileSet(tiles->id()) && !tiles && !blocks->tileSet()); // block sets do not hold it
        QVERIFY(project.deleteBlocks(blocks->id()) && !blocks);

        const QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::FourBit, "S", id);
        QVERIFY(!project.deletePalette(id) && project.deleteSpriteBank(bank->id()) && !bank);
        const QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "I", id);
        QVERIFY(!project.deletePalette(id) && project.deleteImage(image->id()) && !image);
        project.setScratchPalette(palette);
        QVERIFY(!project.deletePalette(id) && project.palette(id));
        project.setScratchPalette(nullptr);
        QVERIFY(project.deletePalette(id) && !palette && project.palettes().isEmpty());
    }
};

QUENMORA_TEST_MAIN(TestProject)
#include "tst_project.moc"
