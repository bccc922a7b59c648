#include "model/project.h"

#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spritebank.h"
#include "model/tilemap.h"
#include "model/tileset.h"
#include "support/testmain.h"

#include <QMetaType>
#include <QTest>

namespace {

/// Writes down what a project announces, in order.
class Announcements : public QObject
{
public:
    explicit Announcements(Project &project)
    {
        connect(&project, &Project::showMessage, this, [this](const QString &message, int duration) {
            m_log.append(QStringLiteral("%1 (%2)").arg(message).arg(duration));
        });
        connect(&project, &Project::tileSetsChanged, this, [this](const QHash<QUuid, QString> &list) {
            QStringList names = list.values();
            names.sort();
            m_log.append("tile sets " + names.join('+'));
        });
        note(project, &Project::imageCreated, "image");
        note(project, &Project::paletteCreated, "palette");
        note(project, &Project::tilesetCreated, "tile set");
        note(project, &Project::blocksCreated, "blocks");
        note(project, &Project::mapCreated, "map");
        note(project, &Project::spritesCreated, "sprites");
    }

    QStringList take() { return std::exchange(m_log, {}); }

private:
    template <class Asset>
    void note(Project &project, void (Project::*signal)(QPointer<Asset>), const QString &kind)
    {
        connect(&project, signal, this,
                [this, kind](const QPointer<Asset> &asset) { m_log.append(kind + " " + asset->name()); });
    }

    QStringList m_log;
};

template <class Asset>
QStringList namesOf(const QList<QPointer<Asset>> &assets)
{
    QStringList names;
    for (const QPointer<Asset> &asset : assets)
        names.append(asset->name());
    return names;
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
    void startsEmpty();
    void registersItsMetaTypes();
    void fillsNewPalettes_data();
    void fillsNewPalettes();
    void copiesTheLastPaletteWithoutASource();
    void announcesCreation();
    void bindsNothingToUnknownIds();
    void announcesRegistration();
    void listsInOrderOfRegistration();
    void renamesPalettes();
    void spritesFollowTheirBank_data();
    void spritesFollowTheirBank();
    void clones();
    void refusesToDeleteUsedPalettes_data();
    void refusesToDeleteUsedPalettes();
    void refusesToDeleteUsedTileSetsAndBlocks();
    void deletesAssets();
    void destroysItsAssets();
};

void TestProject::startsEmpty()
{
    const Project project;
    QCOMPARE(project.name(), "untitled");
    QCOMPARE(project.screenSize(), QSize(320, 256));
    QCOMPARE(project.playArea(), QRect(0, 0, 320, 256));
    QCOMPARE(project.scratchImage().size(), QSize(256, 192));
    QCOMPARE(project.scratchImage().format(), QImage::Format_Indexed8);
    QCOMPARE(project.scratchImage().pixelIndex(255, 191), 0);
    QVERIFY(project.scratchPalette().isNull());
}

void TestProject::registersItsMetaTypes()
{
    QVERIFY(QMetaType::fromName("QHash<QUuid,QString>").isRegistered());
    QVERIFY(QMetaType::fromName("QPointer<Palette>").isRegistered());
    QVERIFY(QMetaType::fromName("QPointer<TileAnimation>").isRegistered());
}

void TestProject::fillsNewPalettes_data()
{
    QTest::addColumn<CreateAction>("action");
    QTest::addColumn<int>("word");
    QTest::newRow("none") << CreateAction::None << 0;
    QTest::newRow("copy") << CreateAction::CopyCurrent << 0xE381;
    QTest::newRow("standard") << CreateAction::DefaultNext << 0x0301;
    QTest::newRow("blank") << CreateAction::Blank << 0;
}

void TestProject::fillsNewPalettes()
{
    QFETCH(CreateAction, action);
    QFETCH(int, word);

    Project project;
    const QPointer<Palette> source = project.createPalette(CreateAction::Blank, "Source");
    source->storeRawColour(3, 0xE381);
    project.createPalette(CreateAction::Blank, "Last");
    const QPointer<Palette> created = project.createPalette(action, "New", source->id());
    QCOMPARE(created->rawColour(3), quint16(word));
    QCOMPARE(project.palette(created->id()), created);
}

void TestProject::copiesTheLastPaletteWithoutASource()
{
    Project project;
    project.createPalette(CreateAction::Blank, "First");
    const QPointer<Palette> last = project.createPalette(CreateAction::DefaultNext, "Last");
    const QPointer<Palette> copy = project.createPalette(CreateAction::CopyCurrent, "Copy");
    QCOMPARE(copy->rawColour(255), last->rawColour(255));
    QVERIFY(project.deletePalette(copy->id()));
    QCOMPARE(project.createPalette(CreateAction::CopyCurrent, "Black")->rawColour(255), quint16(0));
}

void TestProject::announcesCreation()
{
    Project project;
    Announcements announcements(project);

    const QPointer<TileSet> tiles = project.createTileSet("Rocks", {});
    QCOMPARE(announcements.take(),
             QStringList({"New palette added: Rocks (2500)", "palette Rocks", "tile sets Rocks",
                          "New tile set added: Rocks (2500)", "tile set Rocks"}));
    QCOMPARE(tiles->count(), 512);
    QVERIFY(!tiles->hiRes());
    QCOMPARE(tiles->palette(), project.palettes().constFirst());

    const QUuid palette = tiles->paletteId();
    QCOMPARE(project.createTileSet("Trees", palette, 256, true)->count(), 256);
    QCOMPARE(announcements.take(),
             QStringList({"tile sets Rocks+Trees", "New tile set added: Trees (2500)", "tile set Trees"}));

    const QPointer<MapObjects> blocks = project.createBlockList("Doors", tiles->id());
    QCOMPARE(announcements.take(), QStringList({"New block set added: Doors (2500)", "blocks Doors"}));
    QCOMPARE(blocks->tileSet(), tiles);

    const QPointer<Map> map = project.createMap("Cave", tiles->id(), QSize(50, 33));
    QCOMPARE(announcements.take(), QStringList("map Cave"));
    QCOMPARE(map->tileSet(), tiles);
    QCOMPARE(map->tileLayer()->size(), QSize(50, 33));
    QCOMPARE(map->objectLayer()->size(), QSize(50, 33));
    QVERIFY(map->tileLayer()->isVisible());
    QVERIFY(!map->objectLayer()->isVisible());

    const QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, "Ships", palette);
    QCOMPARE(announcements.take(), QStringList("sprites Ships"));
    QCOMPARE(bank->depth(), Quenmora::EightBit);
    QCOMPARE(bank->paletteId(), palette);

    const QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "Title", palette);
    QCOMPARE(announcements.take(), QStringList("image Title"));
    QCOMPARE(image->image().size(), QSize(128, 96));
    QCOMPARE(image->paletteId(), palette);
}

void TestProject::bindsNothingToUnknownIds()
{
    Project project;
    const QUuid unknown = QUuid::createUuid();
    QVERIFY(project.createTileSet("Tiles", unknown)->palette().isNull());
    QVERIFY(project.createBlockList("Blocks", unknown)->tileSet().isNull());
    QVERIFY(project.createMap("Map", unknown, QSize(40, 32))->tileSet().isNull());
    QVERIFY(project.createSpriteBank(Quenmora::FourBit, "Bank", unknown)->palette().isNull());
    QVERIFY(project.createImage(Quenmora::Layer2_256x192, "Image", unknown)->palette().isNull());
    QVERIFY(project.palettes().isEmpty());
    // no palette is none, not the palette of the null id
    QVERIFY(project.deletePalette(QUuid()));
}

void TestProject::announcesRegistration()
{
    Project project;
    Announcements announcements(project);

    const QPointer<Palette> palette = new Palette;
    palette->setName("Dusk");
    project.addPalette(palette);
    const QPointer<TileSet> tiles = new TileSet(1);
    tiles->setName("Rocks");
    project.addTileSet(tiles);
    project.addMap(new Map("Cave"));
    const QPointer<MapObjects> blocks = new MapObjects;
    blocks->setName("Doors");
    project.addBlocks(blocks);
    project.addSpriteBank(new SpriteBank(Quenmora::FourBit));
    project.addImage(new Image(Quenmora::LoRes_128x96));
    QCOMPARE(
        announcements.take(),
        QStringList({"New palette added: Dusk (2500)", "tile sets Rocks", "New tile set added: Rocks (2500)",
                     "New map added: Cave (2500)", "New block set added: Doors (2500)", "New Sprite Bank Added (0)"}));
    QCOMPARE(palette->parent(), &project);

    project.addPalette(nullptr);
    project.addSpriteBank(nullptr);
    QVERIFY(announcements.take().isEmpty());
    QCOMPARE(project.palettes().size(), 1);
}

void TestProject::listsInOrderOfRegistration()
{
    Project project;
    QStringList expected;
    for (int i = 0; i < 40; ++i) {
        expected.append(QString::number(i));
        project.createPalette(CreateAction::Blank, expected.constLast());
        project.createImage(Quenmora::LoRes_128x96, expected.constLast(), {});
    }
    QCOMPARE(project.paletteNames(), expected);
    QCOMPARE(namesOf(project.images()), expected);

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

void TestProject::renamesPalettes()
{
    Project project;
    const QUuid dusk = project.createPalette(CreateAction::Blank, "Dusk")->id();
    project.createPalette(CreateAction::Blank, "Dawn");
    QVERIFY(!project.renamePalette(dusk, "Dawn"));
    QVERIFY(!project.renamePalette(dusk, " "));
    QVERIFY(!project.renamePalette(QUuid::createUuid(), "Noon"));
    QCOMPARE(project.paletteNames(), QStringList({"Dusk", "Dawn"}));
    QVERIFY(project.renamePalette(dusk, "Dusk"));
    QVERIFY(project.renamePalette(dusk, "Noon"));
    QCOMPARE(project.paletteNames(), QStringList({"Noon", "Dawn"}));
}

void TestProject::spritesFollowTheirBank_data()
{
    QTest::addColumn<bool>("registered");
    QTest::newRow("created bank") << false;
    QTest::newRow("registered bank") << true;
}

void TestProject::spritesFollowTheirBank()
{
    QFETCH(bool, registered);

    Project project;
    const QPointer<SpriteBank> bank = registered ? QPointer<SpriteBank>(new SpriteBank(Quenmora::FourBit, &project))
                                                 : project.createSpriteBank(Quenmora::FourBit, "Ships", {});
    if (registered) {
        project.addSpriteBank(bank);
        project.addSpriteBank(bank); // and is followed only once
    }
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

void TestProject::clones()
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
    QImage picture = tiles->image(2);
    picture.setPixel(5, 6, 9);
    tiles->setTileImage(2, picture);
    const QPointer<TileSet> tilesCopy = project.cloneTileSet(tiles->id());
    QCOMPARE(tilesCopy->name(), "Rocks (copy)");
    QCOMPARE(tilesCopy->palette(), palette);
    QCOMPARE(tilesCopy->count(), 3);
    QVERIFY(!tilesCopy->hiRes());
    QCOMPARE(tilesCopy->tile(2)->attributes(), 0x41);
    QCOMPARE(tilesCopy->tile(2)->value(), 99);
    QCOMPARE(tilesCopy->tileOffset(2), 7);
    QCOMPARE(tilesCopy->image(2), picture);

    const QPointer<Map> map = project.createMap("Level", tiles->id(), QSize(40, 32));
    const TileMap::TileData cell{2, true, false, true, 7, true};
    map->setTile(QPoint(39, 31), cell);
    map->objectLayer()->setCell(QPoint(0, 0), cell);
    map->addSprite({});
    const QPointer<Map> mapCopy = project.cloneMap(map->id());
    QCOMPARE(mapCopy->name(), "Level (copy)");
    QCOMPARE(mapCopy->tileSet(), tiles);
    QCOMPARE(mapCopy->tileLayer()->size(), QSize(40, 32));
    QCOMPARE(mapCopy->tileLayer()->cellAt(QPoint(39, 31)), cell);
    QCOMPARE(mapCopy->objectLayer()->cellAt(QPoint(0, 0)), TileMap::TileData{});
    QVERIFY(!mapCopy->objectLayer()->isVisible());
    QVERIFY(mapCopy->sprites().isEmpty());
    // the copy is one: what is drawn into it stays out of the source
    mapCopy->setTile(QPoint(39, 31), {});
    QCOMPARE(map->tileLayer()->cellAt(QPoint(39, 31)), cell);

    const QUuid unknown = QUuid::createUuid();
    QVERIFY(project.clonePalette(unknown).isNull());
    QVERIFY(project.cloneTileSet(unknown).isNull());
    QVERIFY(project.cloneMap(unknown).isNull());
    QCOMPARE(project.palettes().size(), 3);
}

void TestProject::refusesToDeleteUsedPalettes_data()
{
    using Use = std::function<void(Project &, const QUuid &)>;
    QTest::addColumn<Use>("use");
    QTest::addColumn<Use>("release");
    QTest::newRow("tile set") << Use([](Project &p, const QUuid &id) { p.createTileSet("T", id); })
                              << Use([](Project &p, const QUuid &) { p.deleteTileSet(p.tileSets().first()->id()); });
    QTest::newRow("sprite bank") << Use([](Project &p, const QUuid &id) {
        p.createSpriteBank(Quenmora::FourBit, "S", id);
    }) << Use([](Project &p, const QUuid &) { p.deleteSpriteBank(p.spriteBanks().first()->id()); });
    QTest::newRow("image") << Use([](Project &p, const QUuid &id) { p.createImage(Quenmora::LoRes_128x96, "I", id); })
                           << Use([](Project &p, const QUuid &) { p.deleteImage(p.images().first()->id()); });
    QTest::newRow("scratch image") << Use([](Project &p, const QUuid &id) { p.setScratchPalette(p.palette(id)); })
                                   << Use([](Project &p, const QUuid &) { p.setScratchPalette(nullptr); });
}

void TestProject::refusesToDeleteUsedPalettes()
{
    using Use = std::function<void(Project &, const QUuid &)>;
    QFETCH(Use, use);
    QFETCH(Use, release);

    Project project;
    const QPointer<Palette> palette = project.createPalette(CreateAction::Blank, "Dusk");
    const QUuid id = palette->id();
    const QPointer<Palette> unused = project.createPalette(CreateAction::Blank, "Unused");
    use(project, id);
    QVERIFY(!project.deletePalette(id));
    QCOMPARE(project.palette(id), palette);
    QVERIFY(project.deletePalette(unused->id()));
    QVERIFY(unused.isNull());
    release(project, id);
    QVERIFY(project.deletePalette(id));
    QVERIFY(palette.isNull());
    QVERIFY(project.palettes().isEmpty());
}

void TestProject::refusesToDeleteUsedTileSetsAndBlocks()
{
    Project project;
    const QPointer<TileSet> tiles = project.createTileSet("Rocks", {});
    const QPointer<MapObjects> blocks = project.createBlockList("Doors", tiles->id());
    const QPointer<MapObjects> unboundBlocks = project.createBlockList("Unbound", {});
    const QPointer<Map> map = project.createMap("Cave", tiles->id(), QSize(40, 32));
    const QUuid tilesId = tiles->id();
    const QUuid blocksId = blocks->id();

    QVERIFY(!project.deleteTileSet(tilesId));
    QVERIFY(!project.deleteBlocks(blocksId));
    QVERIFY(tiles && blocks);
    QVERIFY(project.deleteBlocks(unboundBlocks->id()));

    QVERIFY(project.deleteMap(map->id()));
    QVERIFY(map.isNull());
    QVERIFY(project.deleteTileSet(tilesId)); // block sets do not hold it
    QVERIFY(tiles.isNull());
    QVERIFY(blocks->tileSet().isNull());
    QVERIFY(project.deleteBlocks(blocksId));
    QVERIFY(blocks.isNull());
}

void TestProject::deletesAssets()
{
    Project project;
    const QUuid palette = project.createPalette(CreateAction::Blank, "Dusk")->id();
    const QPointer<Map> map = project.createMap("Cave", {}, QSize(40, 32));
    const QPointer<TileMap> layer = map->tileLayer();
    const QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::FourBit, "Ships", palette);
    const QPointer<Image> image = project.createImage(Quenmora::LoRes_128x96, "Title", palette);
    QVERIFY(project.deleteMap(map->id()) && project.deleteSpriteBank(bank->id()) && project.deleteImage(image->id()));
    QVERIFY(map.isNull() && layer.isNull() && bank.isNull() && image.isNull());
    QVERIFY(project.maps().isEmpty() && project.spriteBanks().isEmpty() && project.images().isEmpty());

    const QUuid unknown = QUuid::createUuid();
    QVERIFY(project.deletePalette(unknown) && project.deleteTileSet(unknown) && project.deleteBlocks(unknown));
    QVERIFY(project.deleteMap(unknown) && project.deleteSpriteBank(unknown) && project.deleteImage(unknown));
}

void TestProject::destroysItsAssets()
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

QUENMORA_TEST_MAIN(TestProject)
#include "tst_project.moc"
