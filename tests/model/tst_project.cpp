#include "model/project.h"

#include "model/animatedblocks.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

namespace {

using TileData = TileMap::TileData;

const TileData Cleared{0, false, false, false, 0, true}; ///< what setTiles() with tile 0 leaves

TileData tile(int index)
{
    return {index, false, false, false, 0, true};
}

/// A cell of the object layer that shows one of the animation's tiles.
TileData frameCell(int index)
{
    return {index, false, false, true, 7, true};
}

/// A map of 12 × 10 cells with 16 tiles and an animation of two frames, 2 × 1 cells: tiles 3 and 4, then 5 and 6,
/// with offset 7 and mirrored.
struct Level
{
    Level()
    {
        animation.setSize({2, 1});
        for (const int index : {3, 5})
            animation.addFrame()->setCells({{{index, 7, false, true, false}, {index + 1, 7, false, true, false}}});
    }

    QList<QRect> areas() const { return valuesOf(map.animatedBlocks()->list(), &AnimationProperties::area); }
    QList<QPoint> sprites() const
    {
        return valuesOf(map.sprites(), [](const Map::PlacedSprite &sprite) { return QPoint(sprite.x, sprite.y); });
    }

    Project project;
    TileSet &tileSet = *project.createTileSet("Rocks", {}, 16);
    TileAnimation &animation = *project.createBlockList("Torches", tileSet.id())->createBoundTileAnimation("Torch");
    Map &map = *project.createMap("Cave", tileSet.id(), {12, 10});
    TileMap &tiles = *map.tileLayer();
    TileMap &objects = *map.objectLayer();
};

} // namespace

/// A project with what it owns, and its maps.
class TestProject : public QObject
{
    Q_OBJECT

    const TemporaryFolder m_path;

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

    void contentOfMapsMovesWithTheCells()
    {
        Level level;
        Map &map = level.map;
        map.setTile({2, 1}, tile(5));
        for (const int x : {0, 5})
            map.placeAnimation(&level.animation, {x, 3});
        map.animatedBlocks()->add(QRect(QPoint(INT_MIN, 0), QPoint(INT_MIN, 0)), level.animation.id());
        for (const auto &[x, y] : {std::pair(3, 0), {8, 0}, {95, 79}})
            map.addSprite({.x = x, .y = y});
        const Map::Snapshot before = map.snapshot();

        for (const auto side : {Quenmora::Begin, Quenmora::Begin, Quenmora::End}) {
            map.insertColumn(side);
            map.insertRow(side);
        }
        QVERIFY(level.tiles.size() == QSize(15, 13) && level.objects.size() == QSize(15, 13) && map.dataSize() == 390);
        QVERIFY(level.tiles.cellAt({4, 3}) == tile(5) && level.objects.cellAt({7, 5}) == frameCell(3));
        QCOMPARE(level.areas(), QList<QRect>({QRect(2, 5, 2, 1), QRect(7, 5, 2, 1)}));
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(19, 16), QPoint(24, 16), QPoint(111, 95)}));

        for (int i = 0; i < 3; ++i)
            map.removeColumn(Quenmora::Begin);
        QCOMPARE(level.areas(), QList<QRect>({QRect(4, 5, 2, 1)}));
        QCOMPARE(level.objects.cellAt({0, 5}), Cleared); // the part of the first that is still on the map
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(0, 16), QPoint(87, 95)}));
        for (int i = 0; i < 2; ++i) {
            map.removeRow(Quenmora::Begin);
            map.removeColumn(Quenmora::End);
        }
        map.removeRow(Quenmora::End);
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(0, 0)}));
        SignalLog log(map, level.tiles, level.objects);
        map.resize({20, 5}, Qt::AlignRight | Qt::AlignTop);
        QVERIFY(level.objects.size() == QSize(20, 5) && level.tiles.cellAt({11, 1}) == tile(5));
        QCOMPARE(level.sprites(), QList<QPoint>({QPoint(80, 0)}));
        map.restore(before);
        QCOMPARE(log.take(), QStringList({"resized Map", "tilesChanged", "tilesChanged", "restored"}));
        QVERIFY(map.snapshot() == before && level.tiles.height() == 10);
    }

    /// Cells and animations of blocks show the same tile after an edit of the tile set as before.
    void mapsFollowTheirTileSet()
    {
        // what is shown of tiles 3 and 5 after an edit
        const std::tuple<std::function<void(TileSet &)>, int, int> edits[] = {
            {[](TileSet &t) { t.moveTile(3, 0); }, 0, 5}, {[](TileSet &t) { t.moveTile(0, 7); }, 2, 4},
            {[](TileSet &t) { t.deleteTile(1); }, 2, 4},  {[](TileSet &t) { t.deleteTile(3); }, 0, 4},
            {[](TileSet &t) { t.insertTile(3); }, 4, 6},  {[](TileSet &t) { t.insertTile(4); }, 3, 6}};
        for (const auto &[edit, three, five] : edits) {
            Level level;
            TileSet &other = *level.project.createTileSet("Other", {}, 16);
            const QPointer<MapObjects> blocks = level.project.blockSets().first();
            for (TileSet *set : {&other, &level.tileSet, &level.tileSet}) { // bound again, they must not follow twice
                level.map.setTileSet(set);
                blocks->setTileSet(set);
            }
            QVERIFY(other.blockSets().isEmpty() && level.tileSet.blockSets().value(blocks->id()) == blocks);
            level.map.setTile({0, 0}, tile(3));
            level.objects.setCell({0, 0}, tile(5));
            other.moveTile(3, 5);
            edit(level.tileSet);
            QVERIFY(level.tiles.cellAt({0, 0}) == tile(three) && level.objects.cellAt({0, 0}) == tile(five));
            QCOMPARE(level.animation.frame(0)->cell(0, 0).index, three);
            QCOMPARE(level.animation.frame(1)->cell(0, 0).index, five);
            level.tileSet.setTileOffset(three, 9);
            level.map.refreshOffsets();
            level.map.setTileSet(nullptr);
            level.tileSet.deleteTile(0);
            QVERIFY(level.tiles.cellAt({0, 0}).offset == 9 && level.tiles.cellAt({0, 0}).index == three);
        }
    }

    void placesAnimations()
    {
        Level level;
        Map &map = level.map;
        const QRect area(4, 3, 2, 1);
        map.setTiles(level.tiles.bounds(), 9, false, false, false, true);
        map.placeAnimation(&level.animation, {11, 3}); // half of it over the edge
        map.placeAnimation(&level.animation, {4, 3});
        QVERIFY(level.areas().size() == 2 && map.animatedBlocks()->animationIdAt(area) == level.animation.id());
        QVERIFY(level.tiles.cellAt({5, 3}) == Cleared && level.tiles.cellAt({6, 3}) == tile(9));
        QVERIFY(level.objects.cellAt({4, 3}) == frameCell(3) && level.objects.cellAt({5, 3}) == frameCell(4));
        QVERIFY(map.stampFrame(level.animation, 1, area));
        for (const int same : {1, 2, -1}) // the frame that it shows already, and two that are not there
            QVERIFY(!map.stampFrame(level.animation, same, area));
        QCOMPARE(level.objects.cellAt({5, 3}), frameCell(6));
        QVERIFY(!map.removeAnimationAt(QRect(4, 3, 1, 1)) && map.removeAnimationAt(area) && level.areas().size() == 1);
        QVERIFY(level.tiles.cellAt({5, 3}) == TileData() && level.objects.cellAt({5, 3}) == Cleared);
        const TileAnimation empty; // without frames
        map.placeAnimation(&empty, {0, 0});
        for (const QRect &placed : {QRect(2, 2, 2, 1), QRect(QPoint(INT_MAX, 3), QPoint(INT_MAX, 3))})
            map.animatedBlocks()->add(placed, level.animation.id());
        map.animatedBlocks()->add(QRect(6, 2, 2, 1), QUuid::createUuid()); // no such animation
        map.animatedBlocks()->add(QRect(8, 8, 1, 2), level.animation.id()); // narrower and higher than the animation
        map.restampAnimations({level.project.createBlockList("Other", {}), nullptr, level.project.blockSets().first()});
        QVERIFY(level.objects.cellAt({3, 2}) == frameCell(4) && level.tiles.cellAt({3, 2}) == Cleared);
        QVERIFY(level.objects.cellAt({6, 2}) == TileData() && level.tiles.cellAt({6, 2}) == Cleared);
        QVERIFY(level.objects.cellAt({8, 8}) == frameCell(3) && level.objects.cellAt({9, 8}) == TileData());
    }

    void playsPlacedAnimations()
    {
        // start frame, initial and repeat delay; frames, frame delay, time: the frame shown
        constexpr int cases[][7] = {
            {1, 5, 20, 4, 10, 0, 1},
            {1, 5, 20, 4, 10, 35, 0}, // before the start, the last frame before the pause
            {1, 5, 20, 4, 10, 50, 0},
            {1, 5, 20, 4, 10, 65, 1}, // in the pause, the second run
            {9, 5, 0, 4, 10, 0, 3},
            {-9, 0, -9, 4, 10, 45, 0}, // frames and pauses that there are not
            {1, 5, 20, 4, 0, 500, 1},
            {1, 5, 20, 0, 10, 15, 0}, // standing still, no frames
            {0, 0, INT_MAX, INT_MAX, INT_MAX, INT_MAX, 1},
        };
        for (const auto &[start, initial, repeat, frames, delay, time, shown] : cases) {
            const Map::PlacedSprite sprite{.startFrame = start, .initialDelay = initial, .repeatDelay = repeat};
            QCOMPARE(sprite.currentFrame(frames, delay, time), shown);
        }
    }

    void importsTileDataSets()
    {
        const QByteArray odd = "0303 0100 0000" + QByteArray(504, '5') + "0000 0100";
        const QByteArray block = "0101010101010101";
        const std::tuple<QByteArray, QByteArray, QSize, bool> cases[] = {
            // map, blocks, size afterwards: three by three cells cut the blocks at the right and at the bottom
            {odd, "0100 0200 0300 0400 0500 0600 ffff 0002 77", {3, 3}, true},
            {"02", block, {12, 10}, false},
            {"0002 0000", block, {12, 10}, false}, // no cells
            {"0202 00", block, {2, 2}, false}, // half a block number
            {"0204 0000" + QByteArray(508, '0'), block, {2, 4}, false}, // no second row
            {"0202 0100", block, {2, 2}, false}, // block behind the data
            {"0202 0000", block.chopped(2), {2, 2}, false}, // cut block
        };
        for (const auto &[map, blocks, size, good] : cases) {
            Level level;
            m_path("level.nxm", QByteArray::fromHex(map));
            m_path("level.nxb", QByteArray::fromHex(blocks));
            QCOMPARE(level.map.importNxm(m_path("level.nxm"), m_path("level.nxb")), good);
            QVERIFY(level.tiles.size() == size && level.objects.size() == size);
            QVERIFY(!level.map.importNxm(m_path(), m_path("level.nxb")));
            QVERIFY(!level.map.importNxm(m_path("level.nxm"), m_path()));
            const int expected[] = {5, 6, 1, -1, 512, 3, 1, 2, 5};
            for (int i = 0; good && i < 9; ++i)
                QCOMPARE(level.tiles.cellAt({i % 3, i / 3}), tile(expected[i]));
            QVERIFY(!level.map.exportData(m_path()));
            level.map.setName("../Cave");
            QVERIFY(!level.map.exportToDirectory(m_path()));
        }
    }

    void findsAndRestoresPlacements()
    {
        const QUuid door = QUuid::createUuid();
        const QUuid lift = QUuid::createUuid();
        const QRect twice(2, 2, 3, 2);
        const QRect once(4, 3, 2, 2);
        AnimatedBlocks placed;
        placed.add(QRect(9, 9, 9, 9), door);
        delete placed.list().first(); // destroyed elsewhere
        placed.add(twice, door);
        placed.append(new AnimationProperties({lift, once, 5, 6, 7}));
        placed.add(twice, lift);
        placed.append(nullptr);
        const AnimatedBlocks::State all{{door, twice, 0, 0, 0}, {lift, once, 5, 6, 7}, {lift, twice, 0, 0, 0}};
        QCOMPARE(placed.state(), all);
        QVERIFY(placed.areaAt(QPoint(4, 3)) == twice && placed.areaAt(QPoint(5, 4)) == once); // the first of two
        QVERIFY(placed.areaAt(QPoint(6, 4)).isNull() && placed.areaAt(QPoint(9, 9)).isNull());
        QVERIFY(placed.animationIdAt(twice) == door && placed.animationIdAt(QRect(2, 2, 3, 3)).isNull());
        QCOMPARE(placed.areas(), (QHash<QRect, QUuid>{{twice, door}, {once, lift}}));
        QVERIFY(!placed.remove(QRect(0, 0, 1, 1)) && placed.remove(twice)); // both of them
        for (const AnimatedBlocks::State &state : {all.mid(1, 1), all, AnimatedBlocks::State()}) {
            QVERIFY(placed.state() == all.mid(1, 1) || placed.state() == all);
            placed.restore(state);
            QCOMPARE(placed.state(), state);
        }
    }
};

QUENMORA_TEST_MAIN(TestProject)
#include "tst_project.moc"
