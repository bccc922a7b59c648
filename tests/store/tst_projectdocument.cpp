#include "store/projectdocument.h"

#include "support/projectmembers.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QTest>

using namespace ProjectFile;
using SampleProject::gradient;
using SampleProject::png;

namespace {

const QUuid FirstId("{11111111-aaaa-4aaa-8aaa-aaaaaaaaaaaa}");
const QString First = FirstId.toString();
const QString Second("{22222222-bbbb-4bbb-8bbb-bbbbbbbbbbbb}");

/// A tile layer of one used cell: height, width, then index, used, offset, rotate, flip, mirror.
const QByteArray OneCell = QByteArray::fromHex("00000001 00000001 00000101 01 00000003 00 00 01");

/// Single-quoted JSON with the two ids in place of their letters.
QJsonValue json(QByteArray text)
{
    text.replace('\'', '"').replace("<1>", First.toLatin1()).replace("<2>", Second.toLatin1());
    text.replace("<0>", QUuid().toByteArray());
    QJsonParseError error;
    const QJsonArray parsed = QJsonDocument::fromJson('[' + text + ']', &error).array();
    Q_ASSERT_X(error.error == QJsonParseError::NoError, text.constData(), qPrintable(error.errorString()));
    return parsed.first();
}

/// One asset of each kind that says nothing but its id.
ProjectMembers leastMembers()
{
    ProjectMembers members;
    setDocument(members,
                json("{'palettes': [{'id': '<1>'}], 'tilesets': [{'id': '<1>', 'count': 2}], "
                     "'maps': [{'id': '<1>'}], 'sprites': [{'id': '<1>', 'animations': [{'id': '<1>'}]}], "
                     "'mapObjects': [{'id': '<1>', 'animations': [{'id': '<1>'}]}], 'images': [{'id': '<1>'}]}")
                    .toObject());
    members.insert("tileset/" + First + ".png", png(gradient({8, 16})));
    members.insert("tilemap/" + First, OneCell + QByteArray(16, '\0'));
    members.insert("sprite/" + First + ".png", png(gradient({16, 16})));
    members.insert("images/" + First + ".png", png(gradient({128, 96})));
    return members;
}

void read(Project &project, const ProjectMembers &members)
{
    QString error;
    QVERIFY2(readProject(project, readerOf(members), error), qPrintable(error));
    QVERIFY(error.isEmpty());
}

/// What a project that was read from these members is written as.
ProjectMembers rewritten(const ProjectMembers &members)
{
    Project project;
    read(project, members);
    return serializeProject(project, true);
}

/// Whether a value is the expected one; objects may have keys besides those that are expected.
bool matches(const QJsonValue &value, const QJsonValue &expected)
{
    const QJsonArray array = expected.toArray();
    const QJsonObject object = expected.toObject();
    bool equal =
        expected.isObject() || (expected.isArray() && value.toArray().size() == array.size()) || value == expected;
    for (qsizetype index = 0; index < array.size(); ++index)
        equal = equal && matches(value.toArray().at(index), array.at(index));
    for (auto member = object.begin(); member != object.end(); ++member)
        equal = equal && matches(value.toObject().value(member.key()), member.value());
    return equal;
}

QByteArray shown(const QJsonValue &value)
{
    return QJsonDocument(QJsonArray{value}).toJson();
}

} // namespace

class TestProjectDocument : public QObject
{
    Q_OBJECT

private slots:
    void savesAgainWhatItLoaded();
    void writesEveryKeyAndMember();
    void missingAndUnusableValuesTakeTheirDefaults_data();
    void missingAndUnusableValuesTakeTheirDefaults();
    void takesWhatFits_data();
    void takesWhatFits();
    void refusesWhatNoDefaultCanReplace_data();
    void refusesWhatNoDefaultCanReplace();
    void choosesAScratchPalette();
    void keepsABlankScratchImage();
    void stampsPlacementsIntoTheObjectLayer();
    void tellsWhatCouldNotBeReadAgain();
    void readsPicturesOfOtherDepths();
    void announcesWhatItRegisters();
};

void TestProjectDocument::savesAgainWhatItLoaded()
{
    Project project;
    SampleProject::fill(project);
    const ProjectMembers saved = serializeProject(project, true);
    QCOMPARE(saved.size(), 2 + 2 + 2 + 2 + 4);
    const ProjectMembers expected = withoutSpriteFrameIds(saved);
    const ProjectMembers again = withoutSpriteFrameIds(rewritten(saved));
    QCOMPARE(again.keys(), expected.keys());
    for (auto member = expected.cbegin(); member != expected.cend(); ++member)
        QVERIFY2(again.value(member.key()) == member.value(), qPrintable(member.key()));
    QVERIFY2(rewritten(saved) != saved, "frames of sprite animations have new ids");
}

void TestProjectDocument::writesEveryKeyAndMember()
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
    const auto map = project.createMap("M", tiles->id(), {1, 1});
    map->setTile({0, 0}, {257, false, false, true, 3, true});
    map->animatedBlocks()->add({0, 1, 2, 1}, block->id());
    map->addSprite({bank->id(), {}, 1, 16, -8, true, false, true, 2, 3, 4, 5, "N"});
    const auto image = project.createImage(Quenmora::LoRes_128x96, "I", palette->id());

    QByteArray expected =
        "{'formatVersion': 2, 'id': '<1>', 'name': 'Game', 'opendocuments': ['map'], "
        "'screen_size': {'width': 320, 'height': 256}, 'scratchPalette': '<0>', "
        "'play_area': {'x': 1, 'y': 2, 'width': 3, 'height': 4}, "
        "'palettes': [{'id': 'PALETTE', 'name': 'P', 'transparency_index': -1}], "
        "'tilesets': [{'id': 'TILES', 'name': 'T', 'hires': false, 'palette': 'PALETTE', 'count': 1, "
        "'offsets': [7], 'tiles': [{'offset': 7, 'attributes': 129, 'value': -5}]}], "
        "'maps': [{'id': 'MAP', 'name': 'M', 'tileset': 'TILES', 'tile_transparency': -1, "
        "'grid_visible': false, 'backgroundTileIndex': -1, 'tileLayerVisible': true, "
        "'objectLayerVisible': false, 'spriteLayerVisible': true, 'animations': [{'id': 'BLOCK', "
        "'x': 0, 'y': 1, 'width': 2, 'height': 1, 'initialDelay': 0, 'repeatDelay': 0, "
        "'startFrame': 0}], 'sprites': [{'bank': 'BANK', 'animation': '<0>', 'sprite': 1, 'x': 16, "
        "'y': -8, 'mirror': true, 'flip': false, 'rotate': true, 'startFrame': 2, "
        "'initialDelay': 3, 'repeatDelay': 4, 'paletteOffset': 5, 'name': 'N'}]}], "
        "'mapObjects': [{'id': 'SET', 'name': 'B', 'tiles': 'TILES', 'animations': [{'id': 'BLOCK', "
        "'name': 'A', 'width': 1, 'height': 1, 'delay': 0, 'type': 0, 'frames': [{'id': 'BFRAME', "
        "'tileData': [{'index': 0, 'offset': 0, 'flip': false, 'mirror': true, 'rotate': false}]}]}]}], "
        "'sprites': [{'id': 'BANK', 'name': 'S', 'palette': '', 'transparency': 227, 'depth': 0, "
        "'offsets': [1, -2], 'animations': [{'id': 'RUN', 'name': 'New Sprite', 'width': 1, "
        "'height': 1, 'delay': 0, 'frames': [{'id': 'SFRAME', 'anim': [{'index': 9, 'offset': 0, "
        "'flip': false, 'mirror': false, 'rotate': false}]}]}]}], "
        "'images': [{'id': 'IMAGE', 'name': 'I', 'palette': 'PALETTE', 'type': 3}]}";
    for (const auto &[name, id] : {std::pair{"PALETTE", palette->id()},
                                   {"TILES", tiles->id()},
                                   {"MAP", map->id()},
                                   {"BLOCK", block->id()},
                                   {"BANK", bank->id()},
                                   {"SET", blocks->id()},
                                   {"BFRAME", block->frame(0)->id()},
                                   {"RUN", run->id()},
                                   {"SFRAME", run->frame(0)->id()},
                                   {"IMAGE", image->id()}})
        expected.replace(QByteArray("'") + name + '\'', '\'' + id.toByteArray() + '\'');
    ProjectMembers members = serializeProject(project, true);
    QCOMPARE(valueAt(documentOf(members), {"palettes", "0", "colours"}).toArray().size(), 256);
    replace(members, {"palettes", "0", "colours"}, QJsonValue::Undefined);
    QCOMPARE(shown(documentOf(members)), shown(json(expected)));

    const QStringList names{"images/" + image->id().toString() + ".png",
                            "project.json",
                            "scratch.png",
                            "sprite/" + bank->id().toString() + ".png",
                            "tilemap/" + map->id().toString(),
                            "tileset/" + tiles->id().toString() + ".png"};
    QCOMPARE(QStringList(members.keys()), names);
    for (const QString &name : names.filter(".png")) {
        const QImage stored = QImage::fromData(members.value(name), "png");
        QCOMPARE(stored.format(), QImage::Format_Indexed8);
        QCOMPARE(stored.colorCount(), 256);
    }
    QCOMPARE(members.value(names.at(4)), OneCell + tiles->id().toRfc4122());
    QVERIFY(!documentOf(serializeProject(project, false)).contains("opendocuments"));
}

void TestProjectDocument::missingAndUnusableValuesTakeTheirDefaults_data()
{
    QTest::addColumn<QJsonValue>("wrong");
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined);
    for (const QJsonValue &wrong : {QJsonValue(QJsonValue::Null), QJsonValue(0.5), QJsonValue(2147483648.0),
                                    QJsonValue(1e300), QJsonValue(QJsonArray{"x"})})
        QTest::addRow("%s", shown(wrong).simplified().constData()) << wrong;
}

void TestProjectDocument::missingAndUnusableValuesTakeTheirDefaults()
{
    QFETCH(QJsonValue, wrong);
    const QByteArray defaults = "{'formatVersion': 2, 'id': '<0>', 'name': '', 'scratchPalette': '<1>', "
                                "'screen_size': {'width': 320, 'height': 256}, "
                                "'play_area': {'x': 0, 'y': 0, 'width': 320, 'height': 256}, "
                                "'palettes': [{'id': '<1>', 'name': '', 'transparency_index': -1}], "
                                "'tilesets': [{'id': '<1>', 'name': '', 'hires': false, 'palette': '', 'count': 2, "
                                "'offsets': [0, 0], 'tiles': [{'offset': 0, 'attributes': 0, 'value': 0}, {}]}], "
                                "'maps': [{'id': '<1>', 'name': '', 'tileset': '<0>', 'tile_transparency': -1, "
                                "'grid_visible': true, 'backgroundTileIndex': -1, 'tileLayerVisible': true, "
                                "'objectLayerVisible': false, 'spriteLayerVisible': true}], "
                                "'mapObjects': [{'id': '<1>', 'name': '', 'tiles': '', 'animations': [{'id': '<1>', "
                                "'name': '', 'width': 0, 'height': 0, 'delay': 0, 'type': 0}]}], "
                                "'sprites': [{'id': '<1>', 'name': '', 'palette': '', 'transparency': -1, 'depth': 1, "
                                "'animations': [{'id': '<1>', 'width': 1, 'height': 1, 'delay': 0}]}], "
                                "'images': [{'id': '<1>', 'name': '', 'palette': '', 'type': 0}]}";
    // every key of an asset but its id, its contents and how many there are of them
    ProjectMembers members = leastMembers();
    const QJsonObject expected = json(defaults).toObject();
    for (auto kind = expected.begin(); kind != expected.end(); ++kind) {
        const QStringList keys = kind.value().toArray().first().toObject().keys();
        for (const QString &key : keys) {
            if (key != "id" && key != "count" && !kind.value().toArray().first()[key].isArray())
                replace(members, {kind.key(), "0", key}, wrong);
        }
    }
    const QJsonObject document = documentOf(rewritten(members));
    QVERIFY2(matches(document, expected), shown(document).constData());
    QCOMPARE(rewritten(members).value("tilemap/" + First), OneCell + QByteArray(16, '\0'));
}

void TestProjectDocument::takesWhatFits_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<QJsonValue>("expected");
    const auto row = [](const char *name, const char *kind, const char *key, const char *stored, const char *expected) {
        QTest::newRow(name) << QString(kind) << QString(key) << json(stored) << json(expected);
    };
    for (const int count : {10, 300}) {
        QJsonArray stored;
        QJsonArray expected;
        for (int index = 0; index < std::max(256, count); ++index) {
            if (index < count)
                stored.append(0x8000 + index);
            if (index < 256)
                expected.append(index < count ? 0x8000 + index : 0);
        }
        QTest::addRow("%d colours", count) << "palettes"
                                           << "colours" << QJsonValue(stored) << QJsonValue(expected);
    }
    row("more offsets than tiles", "tilesets", "offsets", "[1, 2, 3]", "[1, 2]");
    row("more tiles than there are", "tilesets", "tiles", "[{'offset': 7}, {'value': 3}, {}]",
        "[{'offset': 7}, {'offset': 0, 'value': 3}]");
    row("offsets that are no bytes", "sprites", "offsets", "[-1, 300, 1e300, 'x']", "[-1, 44, 0, 0]");
    row("a placement without a key", "maps", "animations", "[{}, {'x': 3, 'width': 1e300}]",
        "[{'id': '<0>', 'x': 3, 'y': 0, 'width': 0, 'height': 0}]");
    row("a sprite that says little", "maps", "sprites", "[{'y': '7', 'mirror': 1}]",
        "[{'bank': '<0>', 'animation': '<0>', 'sprite': -1, 'x': 0, 'y': 0, 'mirror': false, 'name': ''}]");
    row("unknown mode", "images", "type", "7", "0");
    row("unknown depth", "sprites", "depth", "-1", "1");
    row("cells that are missing, and too many", "mapObjects", "animations",
        "[{'width': 3, 'height': 2, 'frames': [{'id': '<2>', 'tileData': [{'index': 1}, {}, {}, {'index': 4, "
        "'rotate': true, 'offset': 9}]}, {'tileData': [{}, {}, {}, {}, {}, {'index': 6}, {'index': 7}]}]}]",
        "[{'width': 3, 'height': 2, 'frames': [{'id': '<2>', 'tileData': [{'index': 1}, {'index': 0}, {}, "
        "{'index': 4, 'rotate': true, 'offset': 9}, {'index': 0, 'offset': 0, 'rotate': false}, {}]}, "
        "{'tileData': [{}, {}, {}, {}, {}, {'index': 6}]}]}]");
    // ten thousand frames of 256 × 256 cells would take gigabytes
    QJsonArray frames;
    for (int frame = 0; frame < 10'000; ++frame)
        frames.append(QJsonObject());
    const QJsonArray animations{QJsonObject{{"width", 256}, {"height", 256}, {"frames", frames}}};
    QTest::newRow("cells without end") << "mapObjects"
                                       << "animations" << QJsonValue(animations) << json("[{'width': 0, 'height': 0}]");
    QTest::newRow("sprites without end") << "sprites"
                                         << "animations" << QJsonValue(animations)
                                         << json("[{'width': 1, 'height': 1}]");
}

void TestProjectDocument::takesWhatFits()
{
    QFETCH(QString, kind);
    QFETCH(QString, key);
    QFETCH(QJsonValue, stored);
    QFETCH(QJsonValue, expected);
    ProjectMembers members = leastMembers();
    replace(members, {kind, "0", key}, stored);
    const QJsonValue value = valueAt(documentOf(rewritten(members)), {kind, "0", key});
    QVERIFY2(matches(value, expected), shown(value).constData());
}

void TestProjectDocument::refusesWhatNoDefaultCanReplace_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const QString newer = "Project file is from a newer version of Quenmora";
    QTest::newRow("no document") << "project.json" << QByteArray() << "Invalid project file";
    QTest::newRow("newer") << "project.json" << QByteArray(R"({"formatVersion": 3, "tilesets": [{}]})") << newer;
    QTest::newRow("far newer") << "project.json" << QByteArray(R"({"formatVersion": 3000000000})") << newer;

    const QString strip = "tileset/" + First + ".png";
    const QString unfit = "Error setting tile set anim - Name %1";
    QTest::newRow("no strip") << strip << QByteArray()
                              << "Failed to load tile set tileImage \"" + strip + "\" from project file";
    QTest::newRow("no picture") << strip << QByteArray("no picture") << unfit;
    QTest::newRow("strip too short") << strip << png(gradient({8, 8})) << unfit;
    QTest::newRow("strip too wide") << strip << png(gradient({16, 16})) << unfit;
    QTest::newRow("true colour") << strip << png(gradient({8, 16}).convertToFormat(QImage::Format_RGB32)) << unfit;
    for (const auto &[member, message] : {std::pair{"tilemap/" + First, "Failed to load tile map anim for map Name %1"},
                                          {"sprite/" + First + ".png", "Project has a missing sprite anim"},
                                          {"images/" + First + ".png", "Failed to load tile image Name %1"}}) {
        QTest::addRow("no %s", qPrintable(member)) << member << QByteArray() << message;
        QTest::addRow("cut %s", qPrintable(member)) << member << OneCell.chopped(1) << message;
    }
}

void TestProjectDocument::refusesWhatNoDefaultCanReplace()
{
    QFETCH(QString, member);
    QFETCH(QByteArray, bytes);
    ProjectMembers members = leastMembers();
    for (const char *kind : {"tilesets", "maps", "sprites", "images"})
        replace(members, {kind, "0", "name"}, "Name %1");
    members.insert(member, bytes);
    Project project;
    QString error;
    QVERIFY(!readProject(project, readerOf(members), error));
    QTEST(error, "message");
}

void TestProjectDocument::choosesAScratchPalette()
{
    for (const QString &stored : {Second, QUuid::createUuid().toString(), QUuid().toString()}) {
        ProjectMembers members{{"project.json", "{\"name\": \"cut"}}; // an empty project
        QCOMPARE(documentOf(rewritten(members)).value("scratchPalette").toString(), QUuid().toString());
        setDocument(members, json("{'palettes': [{'id': '<1>'}, {'id': '<2>'}]}").toObject());
        replace(members, {"scratchPalette"}, stored);
        QCOMPARE(documentOf(rewritten(members)).value("scratchPalette").toString(), stored == Second ? stored : First);
    }
}

void TestProjectDocument::keepsABlankScratchImage()
{
    const QImage whole = gradient({256, 192});
    for (const auto &[bytes, index] : {std::pair{png(whole), 5},
                                       {QByteArray("GIF89a"), 0},
                                       {png(gradient({255, 192})), 0},
                                       {png(whole.convertToFormat(QImage::Format_RGB32)), 0}}) {
        ProjectMembers members = leastMembers();
        members.insert("scratch.png", bytes);
        Project project;
        read(project, members);
        QCOMPARE(project.scratchImage().size(), whole.size());
        QCOMPARE(project.scratchImage().format(), QImage::Format_Indexed8);
        QCOMPARE(project.scratchImage().pixelIndex(5, 0), index);
    }
}

void TestProjectDocument::stampsPlacementsIntoTheObjectLayer()
{
    ProjectMembers members = leastMembers();
    replace(members, {"mapObjects", "0", "animations"},
            json("[{'id': '<2>', 'width': 1, 'height': 1, 'frames': [{'tileData': [{'index': 1, 'flip': true}]}]}]"));
    replace(members, {"maps", "0", "animations"}, json("[{'id': '<2>', 'width': 1, 'height': 1}]"));
    Project project;
    read(project, members);
    const auto map = project.map(FirstId);
    QCOMPARE(map->objectLayer()->cellAt({0, 0}), (TileMap::TileData{.index = 1, .flip = true, .used = true}));
    QCOMPARE(map->tileLayer()->cellAt({0, 0}), TileMap::TileData{.used = true});
}

void TestProjectDocument::tellsWhatCouldNotBeReadAgain()
{
    Project project;
    const auto tiles = project.createTileSet("Emptied", QUuid::createUuid(), 1);
    tiles->deleteTile(0);
    const ProjectMembers members = serializeProject(project, true);
    QCOMPARE(unreadableMember(members), "");
    QVERIFY2(rewritten(members) == members, "a tile set without tiles has no picture");
    QCOMPARE(unreadableMember({{"tileset/1.png", {}}}), "tileset/1.png");
    QCOMPARE(unreadableMember({{"project.json", QByteArray(9 << 20, ',')}}), "project.json");
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
    Project project;
    QStringList messages;
    connect(&project, &Project::showMessage, this, [&messages](const QString &message) { messages.append(message); });
    read(project, leastMembers());
    QCOMPARE(messages,
             (QStringList{"New palette added: ", "New tile set added: ", "New map added: ", "New Sprite Bank Added",
                          "New block set added: "}));
}

QUENMORA_TEST_MAIN(TestProjectDocument)
#include "tst_projectdocument.moc"
