#include "store/projectdocument.h"

#include "support/projectmembers.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace ProjectFile;

namespace {

const QUuid FirstId("{11111111-aaaa-4aaa-8aaa-aaaaaaaaaaaa}");
const QUuid SecondId("{22222222-bbbb-4bbb-8bbb-bbbbbbbbbbbb}");
const QString First = FirstId.toString();
const QString Second = SecondId.toString();

QByteArray png(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return bytes;
}

/// A tile layer of one used cell: height, width, then index, used, offset, rotate, flip, mirror.
const QByteArray OneCell = QByteArray::fromHex("00000001"
                                               "00000001"
                                               "00000101"
                                               "01"
                                               "00000003"
                                               "00"
                                               "00"
                                               "01");

/// One asset of each kind that says nothing but its id.
ProjectMembers leastMembers()
{
    const QJsonArray one{QJsonObject{{"id", First}}};
    ProjectMembers members;
    setDocument(members,
                {{"palettes", one},
                 {"tilesets", QJsonArray{QJsonObject{{"id", First}, {"count", 2}}}},
                 {"maps", one},
                 {"mapObjects", QJsonArray{QJsonObject{{"id", First}, {"animations", one}}}},
                 {"sprites", QJsonArray{QJsonObject{{"id", First}, {"animations", one}}}},
                 {"images", one}});
    members.insert("tileset/" + First + ".png", png(SampleProject::gradient({8, 16})));
    members.insert("tilemap/" + First, OneCell);
    members.insert("sprite/" + First + ".png", png(SampleProject::gradient({16, 16})));
    members.insert("images/" + First + ".png", png(SampleProject::gradient({128, 96})));
    return members;
}

/// Replaces keys of the first object in one of the document's arrays.
void replaceInFirst(ProjectMembers &members, const char *kind, const QJsonObject &values)
{
    QJsonObject document = documentOf(members);
    QJsonArray assets = document.value(kind).toArray();
    QJsonObject asset = assets.first().toObject();
    for (auto value = values.begin(); value != values.end(); ++value)
        asset.insert(value.key(), value.value());
    assets.replace(0, asset);
    document.insert(kind, assets);
    setDocument(members, document);
}

void read(Project &project, const ProjectMembers &members)
{
    QString error;
    QVERIFY2(readProject(project, readerOf(members), error), qPrintable(error));
    QVERIFY(error.isEmpty());
}

} // namespace

class TestProjectDocument : public QObject
{
    Q_OBJECT

private slots:
    void savesAgainWhatItLoaded();
    void writesEveryKey();
    void namesAndOrdersTheMembers();
    void leavesOutOpenDocumentsOnRequest();
    void writesTheTileLayerCellByCell();
    void missingKeysTakeTheirDefaults();
    void valuesThatFitNoFieldTakeTheirDefaults();
    void refusesWhatNoDefaultCanReplace_data();
    void refusesWhatNoDefaultCanReplace();
    void readsADamagedDocumentAsAnEmptyProject();
    void readsColoursAsFarAsTheyReach_data();
    void readsColoursAsFarAsTheyReach();
    void tilesWinOverOffsets();
    void fillsFramesAsFarAsTheCellsReach();
    void keepsFrameIdsOfTileAnimationsOnly();
    void boundsAnimationsThatTheDocumentDoesNotSpellOut();
    void choosesAScratchPalette_data();
    void choosesAScratchPalette();
    void keepsABlankScratchImage_data();
    void keepsABlankScratchImage();
    void stampsPlacementsIntoTheObjectLayer();
    void aTileSetWithoutTilesComesBack();
    void readsPicturesOfOtherDepths();
    void announcesWhatItRegisters();
};

void TestProjectDocument::savesAgainWhatItLoaded()
{
    Project project;
    SampleProject::fill(project);
    const ProjectMembers saved = serializeProject(project, true);
    QCOMPARE(saved.size(), 2 + 2 + 2 + 2 + 4);

    Project loaded;
    read(loaded, saved);
    const ProjectMembers again = withoutSpriteFrameIds(serializeProject(loaded, true));
    const ProjectMembers expected = withoutSpriteFrameIds(saved);
    QCOMPARE(again.keys(), expected.keys());
    for (auto member = expected.cbegin(); member != expected.cend(); ++member)
        QVERIFY2(again.value(member.key()) == member.value(), qPrintable(member.key()));
}

void TestProjectDocument::writesEveryKey()
{
    Project project;
    project.setId(FirstId);
    project.setName("Game");
    project.setPlayArea({1, 2, 3, 4});
    project.setOpenDocuments({"map"});
    const auto palette = project.createPalette(CreateAction::Blank, "P");
    const auto tiles = project.createTileSet("T", palette->id(), 1);
    tiles->tile(0)->setAttributes(0x81);
    tiles->tile(0)->setValue(-5);
    tiles->setTileOffset(0, 7);
    const auto blocks = project.createBlockList("B", tiles->id());
    const auto block = blocks->createBoundTileAnimation("A");
    block->addFrame()->setMirror(0, 0, true);
    const auto bank = project.createSpriteBank(Quenmora::FourBit, "S", {});
    bank->setOffsets(QByteArray("\x01\xFE", 2));
    const auto run = bank->newAnimation();
    run->frame(0)->setIndex(0, 0, 9);
    const auto map = project.createMap("M", tiles->id(), {2, 2});
    map->animatedBlocks()->add({0, 1, 2, 1}, block->id());
    map->addSprite({bank->id(), {}, 1, 16, -8, true, false, true, 2, 3, 4, 5, "N"});
    const auto image = project.createImage(Quenmora::LoRes_128x96, "I", palette->id());

    QJsonObject document = documentOf(serializeProject(project, true));
    QJsonArray palettes = document.take("palettes").toArray();
    QCOMPARE(palettes.size(), 1);
    QJsonObject paletteObject = palettes.first().toObject();
    QCOMPARE(paletteObject.take("colours").toArray().size(), 256);
    QCOMPARE(paletteObject, (QJsonObject{{"id", palette->id().toString()}, {"name", "P"}, {"transparency_index", -1}}));

    QByteArray expected = R"({
        "formatVersion": 2, "id": "PROJECT", "name": "Game", "screen_size": {"width": 320, "height": 256},
        "play_area": {"x": 1, "y": 2, "width": 3, "height": 4},
        "scratchPalette": "{00000000-0000-0000-0000-000000000000}", "opendocuments": ["map"],
        "tilesets": [{"id": "TILES", "name": "T", "hires": false, "palette": "PALETTE", "count": 1, "offsets": [7],
                      "tiles": [{"offset": 7, "attributes": 129, "value": -5}]}],
        "maps": [{"id": "MAP", "name": "M", "tileset": "TILES", "tile_transparency": -1, "grid_visible": false,
                  "backgroundTileIndex": -1, "tileLayerVisible": true, "objectLayerVisible": false,
                  "spriteLayerVisible": true,
                  "animations": [{"id": "BLOCK", "x": 0, "y": 1, "width": 2, "height": 1, "initialDelay": 0,
                                  "repeatDelay": 0, "startFrame": 0}],
                  "sprites": [{"bank": "BANK", "animation": "{00000000-0000-0000-0000-000000000000}", "sprite": 1,
                               "x": 16, "y": -8, "mirror": true, "flip": false, "rotate": true, "startFrame": 2,
                               "initialDelay": 3, "repeatDelay": 4, "paletteOffset": 5, "name": "N"}]}],
        "mapObjects": [{"id": "SET", "name": "B", "tiles": "TILES",
                        "animations": [{"id": "BLOCK", "name": "A", "width": 1, "height": 1, "delay": 0, "type": 0,
                                        "frames": [{"id": "BFRAME", "tileData": [{"index": 0, "offset": 0,
                                                    "flip": false, "mirror": true, "rotate": false}]}]}]}],
        "sprites": [{"id": "BANK", "name": "S", "palette": "", "transparency": 227, "depth": 0, "offsets": [1, -2],
                     "animations": [{"id": "RUN", "name": "New Sprite", "width": 1, "height": 1, "delay": 0,
                                     "frames": [{"id": "SFRAME", "anim": [{"index": 9, "offset": 0, "flip": false,
                                                 "mirror": false, "rotate": false}]}]}]}],
        "images": [{"id": "IMAGE", "name": "I", "palette": "PALETTE", "type": 3}]
    })";
    for (const auto &[name, id] : {std::pair{"PROJECT", FirstId},
                                   {"PALETTE", palette->id()},
                                   {"TILES", tiles->id()},
                                   {"MAP", map->id()},
                                   {"BLOCK", block->id()},
                                   {"BANK", bank->id()},
                                   {"SET", blocks->id()},
                                   {"BFRAME", block->frame(0)->id()},
                                   {"RUN", run->id()},
                                   {"SFRAME", run->frame(0)->id()},
                                   {"IMAGE", image->id()}})
        expected.replace(QByteArray("\"") + name + '"', '"' + id.toByteArray() + '"');
    const QJsonObject expectedDocument = objectOf(expected.constData());
    QVERIFY(!expectedDocument.isEmpty());
    for (const QString &key : expectedDocument.keys())
        QCOMPARE(document.take(key), expectedDocument.value(key));
    QVERIFY2(document.isEmpty(), "the document holds a key that nothing reads");
}

void TestProjectDocument::namesAndOrdersTheMembers()
{
    Project project;
    const auto tiles = project.createTileSet("T", {}, 1);
    const auto map = project.createMap("M", tiles->id(), {1, 1});
    const auto bank = project.createSpriteBank(Quenmora::EightBit, "S", {});
    const auto image = project.createImage(Quenmora::LoRes_128x96, "I", {});
    const QStringList expected{
        "images/" + image->id().toString() + ".png",
        "project.json",
        "scratch.png",
        "sprite/" + bank->id().toString() + ".png",
        "tilemap/" + map->id().toString(),
        "tileset/" + tiles->id().toString() + ".png",
    };
    const ProjectMembers members = serializeProject(project, true);
    QCOMPARE(QStringList(members.keys()), expected);
    for (const QString &name : expected.filter(".png")) {
        const QImage stored = QImage::fromData(members.value(name), "png");
        QCOMPARE(stored.format(), QImage::Format_Indexed8);
        QCOMPARE(stored.colorCount(), 256);
    }
}

void TestProjectDocument::leavesOutOpenDocumentsOnRequest()
{
    Project project;
    project.setOpenDocuments({"one"});
    QVERIFY(documentOf(serializeProject(project, true)).contains("opendocuments"));
    QVERIFY(!documentOf(serializeProject(project, false)).contains("opendocuments"));
}

void TestProjectDocument::writesTheTileLayerCellByCell()
{
    Project project;
    const auto tiles = project.createTileSet("T", {}, 1);
    tiles->setId(FirstId);
    const auto map = project.createMap("M", {}, {1, 1});
    map->setTileSet(tiles);
    map->setTile({0, 0}, {257, false, false, true, 3, true});
    QCOMPARE(serializeProject(project, true).value("tilemap/" + map->id().toString()), OneCell + FirstId.toRfc4122());
}

void TestProjectDocument::missingKeysTakeTheirDefaults()
{
    Project project;
    read(project, leastMembers());
    QVERIFY(project.id().isNull());
    QCOMPARE(project.name(), "");
    QCOMPARE(project.screenSize(), QSize(320, 256));
    QCOMPARE(project.playArea(), QRect(0, 0, 320, 256));
    QVERIFY(project.openDocuments().isEmpty());

    const auto palette = project.palette(FirstId);
    QVERIFY(palette);
    QCOMPARE(palette->name(), "");
    QCOMPARE(palette->transparencyIndex(), -1);

    const auto tiles = project.tileSet(FirstId);
    QVERIFY(tiles);
    QCOMPARE(tiles->name(), "");
    QVERIFY(!tiles->hiRes() && !tiles->palette());
    QCOMPARE(tiles->image(1).pixelIndex(3, 2), 64 + 2 * 8 + 3);

    const auto map = project.map(FirstId);
    QVERIFY(map && map->tileLayer() && map->objectLayer());
    QVERIFY(!map->tileSet() && map->tileSetId().isNull());
    QVERIFY(map->gridVisible() && map->spriteLayerVisible());
    QVERIFY(map->tileLayer()->isVisible() && !map->objectLayer()->isVisible());
    QCOMPARE(map->tileTransparencyIndex(), -1);
    QCOMPARE(map->backgroundTileIndex(), -1);
    QCOMPARE(map->tileLayer()->cellAt({0, 0}), (TileMap::TileData{257, false, false, true, 3, true}));
    QCOMPARE(map->objectLayer()->size(), QSize(1, 1));

    const auto blocks = project.blocks(FirstId);
    QVERIFY(blocks && !blocks->tileSet());
    const auto block = blocks->animation(FirstId);
    QVERIFY(block);
    QCOMPARE(block->size(), QSize(0, 0));
    QCOMPARE(block->frameCount(), 0);
    QCOMPARE(block->delay(), 0);
    QCOMPARE(block->type(), MapObjectType::Normal);

    const auto bank = project.spriteBank(FirstId);
    QVERIFY(bank && !bank->palette());
    QCOMPARE(bank->transparency(), -1);
    QCOMPARE(bank->depth(), Quenmora::EightBit);
    QCOMPARE(bank->offsets(), QByteArray(1, '\0'));
    const auto run = bank->animation(FirstId);
    QVERIFY(run);
    QCOMPARE(run->size(), QSize(1, 1));
    QCOMPARE(run->frameCount(), 0);

    const auto image = project.image(FirstId);
    QVERIFY(image && !image->palette());
    QCOMPARE(image->mode(), Quenmora::Layer2_256x192);
    QCOMPARE(image->image().size(), QSize(128, 96));
}

void TestProjectDocument::valuesThatFitNoFieldTakeTheirDefaults()
{
    ProjectMembers members = leastMembers();
    replaceInFirst(members, "palettes", {{"name", 5}, {"transparency_index", 1.5}});
    replaceInFirst(members, "maps",
                   {{"grid_visible", "no"},
                    {"backgroundTileIndex", 2147483648.0},
                    {"animations", QJsonArray{QJsonObject(), objectOf(R"({"x": 3, "width": 1e300})")}},
                    {"sprites", QJsonArray{objectOf(R"({"y": "7", "mirror": 1})")}}});
    replaceInFirst(members, "images", {{"type", 7}});
    replaceInFirst(members, "sprites", {{"depth", -1}, {"offsets", QJsonArray{-1, 300, 1e300, "x"}}});
    Project project;
    read(project, members);
    QCOMPARE(project.palette(FirstId)->name(), "");
    QCOMPARE(project.palette(FirstId)->transparencyIndex(), -1);
    const auto map = project.map(FirstId);
    QVERIFY(map->gridVisible());
    QCOMPARE(map->backgroundTileIndex(), -1);
    QCOMPARE(map->animatedBlocks()->list().size(), 1); // the empty object is none
    QCOMPARE(map->animatedBlocks()->list().first()->area(), QRect(3, 0, 0, 0));
    QCOMPARE(map->sprites().size(), 1);
    QCOMPARE(map->sprites().first().y, 0);
    QCOMPARE(map->sprites().first().sprite, -1);
    QVERIFY(!map->sprites().first().mirror);
    QCOMPARE(project.image(FirstId)->mode(), Quenmora::Layer2_256x192);
    QCOMPARE(project.spriteBank(FirstId)->depth(), Quenmora::EightBit);
    QCOMPARE(project.spriteBank(FirstId)->offsets(), QByteArray("\xFF\x2C\0\0", 4));
}

void TestProjectDocument::refusesWhatNoDefaultCanReplace_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const QString strip = "tileset/" + First + ".png";
    const QString noStrip = "Failed to load tile set tileImage \"" + strip + "\" from project file";
    const QString sprites = "sprite/" + First + ".png";
    const QString image = "images/" + First + ".png";
    const QByteArray garbage("no picture");

    QTest::newRow("no document") << "project.json" << QByteArray() << "Invalid project file";
    QTest::newRow("newer version") << "project.json" << QByteArray(R"({"formatVersion": 3, "tilesets": [{}]})")
                                   << "Project file is from a newer version of Quenmora";
    QTest::newRow("far newer version") << "project.json" << QByteArray(R"({"formatVersion": 3000000000})")
                                       << "Project file is from a newer version of Quenmora";
    QTest::newRow("no strip") << strip << QByteArray() << noStrip;
    QTest::newRow("strip is no picture") << strip << garbage << "Error setting tile set anim - Name %1";
    QTest::newRow("strip too short") << strip << png(SampleProject::gradient({8, 8}))
                                     << "Error setting tile set anim - Name %1";
    QTest::newRow("strip too wide") << strip << png(SampleProject::gradient({16, 16}))
                                    << "Error setting tile set anim - Name %1";
    QTest::newRow("strip in true colour")
        << strip << png(SampleProject::gradient({8, 16}).convertToFormat(QImage::Format_RGB32))
        << "Error setting tile set anim - Name %1";
    QTest::newRow("no cells") << "tilemap/" + First << QByteArray() << "Failed to load tile map anim for map Name %1";
    QTest::newRow("cells cut") << "tilemap/" + First << OneCell.chopped(1)
                               << "Failed to load tile map anim for map Name %1";
    QTest::newRow("no sprites") << sprites << QByteArray() << "Project has a missing sprite anim";
    QTest::newRow("sprites are no picture") << sprites << garbage << "Project has a missing sprite anim";
    QTest::newRow("no image") << image << QByteArray() << "Failed to load tile image Name %1";
    QTest::newRow("image is no picture") << image << garbage << "Failed to load tile image Name %1";
}

void TestProjectDocument::refusesWhatNoDefaultCanReplace()
{
    QFETCH(QString, member);
    QFETCH(QByteArray, bytes);
    ProjectMembers members = leastMembers();
    for (const char *kind : {"tilesets", "maps", "sprites", "images"})
        replaceInFirst(members, kind, {{"name", "Name %1"}});
    members.insert(member, bytes);
    Project project;
    QString error;
    QVERIFY(!readProject(project, readerOf(members), error));
    QTEST(error, "message");
}

void TestProjectDocument::readsADamagedDocumentAsAnEmptyProject()
{
    Project project;
    read(project, {{"project.json", "{\"name\": \"cut"}});
    QCOMPARE(project.name(), "");
    QCOMPARE(project.screenSize(), QSize(320, 256));
    QVERIFY(project.palettes().isEmpty());
}

void TestProjectDocument::readsColoursAsFarAsTheyReach_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("fewer") << 10;
    QTest::newRow("more") << 300;
}

void TestProjectDocument::readsColoursAsFarAsTheyReach()
{
    QFETCH(int, count);
    QJsonArray colours;
    for (int index = 0; index < count; ++index)
        colours.append(0x8000 + index);
    ProjectMembers members = leastMembers();
    replaceInFirst(members, "palettes", {{"colours", colours}});
    Project project;
    read(project, members);
    for (int index = 0; index < 256; ++index)
        QCOMPARE(project.palette(FirstId)->rawColour(index), index < count ? 0x8000 + index : 0);
}

void TestProjectDocument::tilesWinOverOffsets()
{
    ProjectMembers members = leastMembers();
    replaceInFirst(members, "tilesets",
                   objectOf(R"({"count": 4, "offsets": [1, 2, 3, 4, 5], "tiles": [{"offset": 7}]})"));
    members.insert("tileset/" + First + ".png", png(SampleProject::gradient({8, 32})));
    Project project;
    read(project, members);
    const auto tiles = project.tileSet(FirstId);
    QCOMPARE(tiles->count(), 4);
    for (const auto &[index, offset] : {std::pair{0, 7}, {1, 2}, {2, 3}, {3, 4}})
        QCOMPARE(tiles->tileOffset(index), offset);
}

void TestProjectDocument::fillsFramesAsFarAsTheCellsReach()
{
    ProjectMembers members = leastMembers();
    replaceInFirst(members, "mapObjects", objectOf(R"({"animations": [{"width": 3, "height": 2, "frames": [
        {"tileData": [{"index": 1}, {"index": 2}, {"index": 3}, {"index": 4, "rotate": true, "offset": 9}]},
        {"tileData": [{}, {}, {}, {}, {}, {"index": 6}, {"index": 7}]}]}]})"));
    Project project;
    read(project, members);
    const auto animation = project.blocks(FirstId)->animations().first();
    QCOMPARE(animation->frameCount(), 2);
    const AnimationFrame::Cells cut{{{1}, {2}, {3}}, {{4, 9, false, false, true}, {}, {}}};
    const AnimationFrame::Cells full{{{}, {}, {}}, {{}, {}, {6}}};
    QCOMPARE(animation->frame(0)->cells(), cut);
    QCOMPARE(animation->frame(1)->cells(), full);
}

void TestProjectDocument::keepsFrameIdsOfTileAnimationsOnly()
{
    const QJsonArray animations{QJsonObject{{"frames", QJsonArray{QJsonObject{{"id", Second}}}}}};
    ProjectMembers members = leastMembers();
    replaceInFirst(members, "mapObjects", {{"animations", animations}});
    replaceInFirst(members, "sprites", {{"animations", animations}});
    Project project;
    read(project, members);
    QCOMPARE(project.blocks(FirstId)->animations().first()->frame(0)->id(), SecondId);
    QVERIFY(project.spriteBank(FirstId)->animations().first()->frame(0)->id() != SecondId);
}

void TestProjectDocument::boundsAnimationsThatTheDocumentDoesNotSpellOut()
{
    // ten thousand frames of 256 × 256 cells would take gigabytes
    QJsonArray frames;
    for (int frame = 0; frame < 10'000; ++frame)
        frames.append(QJsonObject());
    const QJsonArray animations{QJsonObject{{"width", 256}, {"height", 256}, {"frames", frames}}};
    ProjectMembers members = leastMembers();
    replaceInFirst(members, "mapObjects", {{"animations", animations}});
    replaceInFirst(members, "sprites", {{"animations", animations}});
    Project project;
    read(project, members);
    QCOMPARE(project.blocks(FirstId)->animations().first()->size(), QSize(0, 0));
    QCOMPARE(project.spriteBank(FirstId)->animations().first()->size(), QSize(1, 1));
}

void TestProjectDocument::choosesAScratchPalette_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("withPalettes");
    QTest::addColumn<QUuid>("expected");
    QTest::newRow("known") << Second << true << SecondId;
    QTest::newRow("unknown: the first") << QUuid::createUuid().toString() << true << FirstId;
    QTest::newRow("null: the first") << QUuid().toString() << true << FirstId;
    QTest::newRow("none to choose") << QUuid().toString() << false << QUuid();
}

void TestProjectDocument::choosesAScratchPalette()
{
    QFETCH(QString, stored);
    QFETCH(bool, withPalettes);
    ProjectMembers members;
    QJsonObject document{{"scratchPalette", stored}};
    if (withPalettes)
        document.insert("palettes", QJsonArray{QJsonObject{{"id", First}}, QJsonObject{{"id", Second}}});
    setDocument(members, document);
    Project project;
    read(project, members);
    QTEST(project.scratchPaletteId(), "expected");
}

void TestProjectDocument::keepsABlankScratchImage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("taken");
    QTest::newRow("the stored one") << png(SampleProject::gradient({256, 192})) << true;
    QTest::newRow("missing") << QByteArray() << false;
    QTest::newRow("no picture") << QByteArray("GIF89a") << false;
    QTest::newRow("of another size") << png(SampleProject::gradient({255, 192})) << false;
    QTest::newRow("in true colour") << png(SampleProject::gradient({256, 192}).convertToFormat(QImage::Format_RGB32))
                                    << false;
}

void TestProjectDocument::keepsABlankScratchImage()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, taken);
    ProjectMembers members = leastMembers();
    members.insert("scratch.png", bytes);
    Project project;
    read(project, members);
    QCOMPARE(project.scratchImage().size(), QSize(256, 192));
    QCOMPARE(project.scratchImage().format(), QImage::Format_Indexed8);
    QCOMPARE(project.scratchImage().pixelIndex(5, 0), taken ? 5 : 0);
}

void TestProjectDocument::stampsPlacementsIntoTheObjectLayer()
{
    ProjectMembers members = leastMembers();
    replaceInFirst(
        members, "mapObjects",
        {{"animations",
          QJsonArray{QJsonObject{{"id", Second},
                                 {"width", 1},
                                 {"height", 1},
                                 {"frames", QJsonArray{objectOf(R"({"tileData": [{"index": 1, "flip": true}]})")}}}}}});
    replaceInFirst(members, "maps",
                   {{"animations", QJsonArray{QJsonObject{{"id", Second}, {"width", 1}, {"height", 1}}}}});
    Project project;
    read(project, members);
    const auto map = project.map(FirstId);
    QCOMPARE(map->objectLayer()->cellAt({0, 0}).index, 1);
    QVERIFY(map->objectLayer()->cellAt({0, 0}).flip);
    QCOMPARE(map->tileLayer()->cellAt({0, 0}), (TileMap::TileData{0, false, false, false, 0, true}));
}

void TestProjectDocument::aTileSetWithoutTilesComesBack()
{
    Project project;
    const auto tiles = project.createTileSet("Emptied", {}, 1);
    tiles->deleteTile(0);
    Project loaded;
    read(loaded, serializeProject(project, true));
    QCOMPARE(loaded.tileSet(tiles->id())->count(), 0);
}

void TestProjectDocument::readsPicturesOfOtherDepths()
{
    // what other programs make of a picture of few colours when they pack it
    QImage packed(128, 96, QImage::Format_Mono);
    packed.setColorTable({qRgb(0, 0, 0), qRgb(255, 0, 0)});
    packed.fill(0);
    packed.setPixel(9, 4, 1);
    ProjectMembers members = leastMembers();
    members.insert("images/" + First + ".png", png(packed));
    members.insert("sprite/" + First + ".png", png(packed.copy(0, 0, 16, 16)));
    Project project;
    read(project, members);
    for (const QImage &image : {project.image(FirstId)->image(), project.spriteBank(FirstId)->image()}) {
        QCOMPARE(image.format(), QImage::Format_Indexed8);
        QCOMPARE(image.pixelIndex(9, 4), 1);
        QCOMPARE(image.pixelIndex(8, 4), 0);
    }
}

void TestProjectDocument::announcesWhatItRegisters()
{
    ProjectMembers members = leastMembers();
    replaceInFirst(members, "palettes", {{"name", "Main"}});
    Project project;
    QStringList messages;
    connect(&project, &Project::showMessage, this, [&messages](const QString &message) { messages.append(message); });
    read(project, members);
    QCOMPARE(messages,
             (QStringList{"New palette added: Main", "New tile set added: ", "New map added: ", "New Sprite Bank Added",
                          "New block set added: "}));
}

QUENMORA_TEST_MAIN(TestProjectDocument)
#include "tst_projectdocument.moc"
