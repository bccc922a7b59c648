#include "store/projectdocument.h"

#include "support/endlessdevice.h"
#include "support/modeltools.h"
#include "support/projectmembers.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QtTest>

using namespace ProjectFile;
using SampleProject::gradient;
using SampleProject::png;

namespace {

const QUuid FirstId("{11111111-aaaa-4aaa-8aaa-aaaaaaaaaaaa}");
const QString First = FirstId.toString();
const QString Second("{22222222-bbbb-4bbb-8bbb-bbbbbbbbbbbb}");

/// A tile layer of one used cell: height, width, then index, used, offset, rotate, flip, mirror.
const QByteArray OneCell = QByteArray::fromHex("00000001 00000001 00000101 01 00000003 00 00 01");

/// Single-quoted JSON with ids in place of their numbers.
QJsonValue json(QByteArray text)
{
    text.replace('\'', '"').replace("<0>", QUuid().toByteArray());
    text.replace("<1>", First.toLatin1()).replace("<2>", Second.toLatin1());
    QJsonParseError error;
    const QJsonArray parsed = QJsonDocument::fromJson('[' + text + ']', &error).array();
    Q_ASSERT_X(error.error == QJsonParseError::NoError, text.constData(), qPrintable(error.errorString()));
    return parsed.first();
}

QByteArray shown(const QJsonValue &value)
{
    return QJsonDocument(QJsonArray{value}).toJson();
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
        equal = equal && matches(value[index], array[index]);
    for (auto member = object.begin(); member != object.end(); ++member)
        equal = equal && matches(value[member.key()], member.value());
    return equal;
}

} // namespace

class TestProjectDocument : public QObject
{
    Q_OBJECT

private slots:
    void readsAndWritesEveryKeyAndMember()
    {
        ProjectMembers members = leastMembers();
        setDocument(members,
                    json(R"({
        'formatVersion': 2, 'id': '<1>', 'name': '\u0022\u00e9%1', 'opendocuments': ['map', 'image'], 'scratchPalette': '<1>',
        'screen_size': {'width': 256, 'height': 192}, 'play_area': {'x': -1, 'y': 2, 'width': 3, 'height': 4},
        'palettes': [{'id': '<1>', 'name': 'P', 'transparency_index': 227}],
        'tilesets': [{'id': '<1>', 'name': 'T', 'hires': true, 'palette': '<1>', 'count': 2, 'offsets': [7, 15],
            'tiles': [{'offset': 7, 'attributes': 129, 'value': -2147483648},
                      {'offset': 15, 'attributes': 0, 'value': 2147483647}]}],
        'maps': [{'id': '<1>', 'name': 'M', 'tileset': '<1>', 'tile_transparency': 15, 'grid_visible': false,
            'backgroundTileIndex': 1, 'tileLayerVisible': false, 'objectLayerVisible': true,
            'spriteLayerVisible': false, 'animations': [{'id': '<2>', 'x': -9, 'y': 1, 'width': 2, 'height': 3,
            'initialDelay': 4, 'repeatDelay': 5, 'startFrame': 6}], 'sprites': [{'bank': '<1>', 'animation': '<2>',
            'sprite': 1, 'x': 16, 'y': -8, 'mirror': true, 'flip': false, 'rotate': true, 'startFrame': 2,
            'initialDelay': 3, 'repeatDelay': 4, 'paletteOffset': 5, 'name': 'N'}]}],
        'mapObjects': [{'id': '<2>', 'name': 'B', 'tiles': '<1>', 'animations': [{'id': '<2>', 'name': 'A',
            'width': 2, 'height': 1, 'delay': 50, 'type': 1, 'frames': [{'id': '<1>', 'tileData': [{'index': 1,
            'offset': 2, 'flip': false, 'mirror': true, 'rotate': false}, {'index': 511, 'offset': 15, 'flip': true,
            'mirror': false, 'rotate': true}]}, {'id': '<2>', 'tileData': [{'index': 0, 'offset': 0, 'flip': false,
            'mirror': false, 'rotate': false}, {'index': 3, 'offset': 0, 'flip': false, 'mirror': false,
            'rotate': false}]}]}]}],
        'sprites': [{'id': '<1>', 'name': 'S', 'palette': '<1>', 'transparency': 3, 'depth': 0,
            'offsets': [1, -2], 'animations': [{'id': '<2>', 'name': 'Run', 'width': 1, 'height': 2, 'delay': 7,
            'frames': [{'id': '<1>', 'anim': [{'index': 9, 'offset': 0, 'flip': true, 'mirror': false,
            'rotate': true}, {'index': 0, 'offset': 0, 'flip': false, 'mirror': true, 'rotate': false}]}]}]}],
        'images': [{'id': '<1>', 'name': 'I', 'palette': '<1>', 'type': 3}]})")
                        .toObject());
        members.insert("tilemap/" + First, OneCell + FirstId.toRfc4122());
        members.insert("scratch.png", png(gradient({256, 192})));

        Project project;
        read(project, members);
        ProjectMembers written = serializeProject(project, true);
        QCOMPARE(written.keys(), members.keys());
        replace(written, {"palettes", "0", "colours"}, QJsonValue::Undefined);
        QCOMPARE(withoutSpriteFrameIds(written).value("project.json"),
                 withoutSpriteFrameIds(members).value("project.json"));
        QVERIFY2(written.value("project.json") != members.value("project.json"),
                 "sprite animations have new frame ids");
        QCOMPARE(written.value("tilemap/" + First), members.value("tilemap/" + First));
        for (const QString &name : members.keys().filter(".png")) {
            const QImage picture = QImage::fromData(written.value(name), "png");
            QVERIFY(picture.format() == QImage::Format_Indexed8 && picture.colorCount() == 256);
            QCOMPARE(indices(picture), indices(QImage::fromData(members.value(name), "png")));
        }
        QVERIFY(!documentOf(serializeProject(project, false)).contains("opendocuments"));
    }

    void missingAndUnusableValuesTakeTheirDefaults()
    {
        const QJsonValue defaults = json(
            "{'formatVersion': 2, 'id': '<0>', 'name': '', 'scratchPalette': '<1>', "
            "'screen_size': {'width': 320, 'height': 256}, 'play_area': {'x': 0, 'y': 0, 'width': 320, 'height': 256}, "
            "'palettes': [{'id': '<1>', 'name': '', 'transparency_index': -1}], "
            "'tilesets': [{'id': '<1>', 'name': '', 'hires': false, 'palette': '', 'count': 2, "
            "'offsets': [0, 0], 'tiles': [{'offset': 0, 'attributes': 0, 'value': 0}, {}]}], "
            "'maps': [{'id': '<1>', 'name': '', 'tileset': '<0>', 'tile_transparency': -1, 'grid_visible': true, "
            "'backgroundTileIndex': -1, 'tileLayerVisible': true, 'objectLayerVisible': false, "
            "'spriteLayerVisible': true}], 'mapObjects': [{'id': '<1>', 'name': '', 'tiles': '', 'animations': "
            "[{'id': '<1>', 'name': '', 'width': 0, 'height': 0, 'delay': 0, 'type': 0}]}], "
            "'sprites': [{'id': '<1>', 'name': '', 'palette': '', 'transparency': -1, 'depth': 1, "
            "'animations': [{'id': '<1>', 'width': 1, 'height': 1, 'delay': 0}]}], "
            "'images': [{'id': '<1>', 'name': '', 'palette': '', 'type': 0}]}");
        const QJsonObject kinds = defaults.toObject();
        for (const QJsonValue &wrong : {QJsonValue(QJsonValue::Undefined), json("null"), json("0.5"),
                                        json("2147483648"), json("1e300"), json("['x']")}) {
            // every key of an asset but its id, its contents and how many there are of them
            ProjectMembers members = leastMembers();
            for (auto kind = kinds.begin(); kind != kinds.end(); ++kind) {
                const QJsonObject asset = kind.value()[0].toObject();
                for (auto member = asset.begin(); member != asset.end(); ++member) {
                    if (member.key() != "id" && member.key() != "count" && !member.value().isArray())
                        replace(members, {kind.key(), "0", member.key()}, wrong);
                }
            }
            const QJsonObject document = documentOf(rewritten(members));
            QVERIFY2(matches(document, defaults), shown(wrong) + shown(document));
        }
    }

    void takesWhatFits()
    {
        // a few letters for so many cells, each of which would be saved as a hundred
        const QByteArray frames = "[{'width': 256, 'height': 256, 'frames': [{}, {}, {}, {}, {}]}]";
        const std::tuple<const char *, const char *, QByteArray, QByteArray> cases[] = {
            {"palettes", "colours", "[7, 32768]", "[7, 32768" + QByteArray(", 0").repeated(254) + "]"},
            {"palettes", "colours", "[7" + QByteArray(", 257").repeated(299) + "]",
             "[7" + QByteArray(", 257").repeated(255) + "]"},
            {"tilesets", "offsets", "[1, 2, 3]", "[1, 2]"},
            {"tilesets", "tiles", "[{'offset': 7}, {'value': 3}, {}]", "[{'offset': 7}, {'offset': 0, 'value': 3}]"},
            {"sprites", "offsets", "[-1, 300, 1e300, 'x']", "[-1, 44, 0, 0]"},
            {"sprites", "depth", "-1", "1"},
            {"sprites", "animations", frames, "[{'width': 1, 'height': 1}]"},
            {"images", "type", "7", "0"},
            {"maps", "animations", "[{}, {'x': 3, 'width': 257, 'height': 1e300}]",
             "[{'id': '<0>', 'x': 3, 'y': 0, 'width': 0, 'height': 0}]"},
            {"maps", "sprites", "[{'y': '7', 'mirror': 1}]",
             "[{'bank': '<0>', 'animation': '<0>', 'sprite': -1, 'x': 0, 'y': 0, 'mirror': false, 'name': ''}]"},
            {"mapObjects", "animations", frames, "[{'width': 0, 'height': 0}]"},
            {"mapObjects", "animations", // cells that are missing, and one too many
             "[{'width': 3, 'height': 2, 'frames': [{'id': '<2>', 'tileData': [{'index': 1}, {}, {}, {'index': 4, "
             "'rotate': true, 'offset': 9}]}, {'tileData': [{}, {}, {}, {}, {}, {'index': 6}, {'index': 7}]}]}]",
             "[{'width': 3, 'height': 2, 'frames': [{'id': '<2>', 'tileData': [{'index': 1}, {'index': 0}, {}, "
             "{'index': 4, 'rotate': true, 'offset': 9}, {'index': 0, 'offset': 0, 'rotate': false}, {}]}, "
             "{'tileData': [{}, {}, {}, {}, {}, {'index': 6}]}]}]"},
        };
        for (const auto &[kind, key, stored, expected] : cases) {
            ProjectMembers members = leastMembers();
            replace(members, {kind, "0", key}, json(stored));
            const QJsonValue value = valueAt(documentOf(rewritten(members)), {kind, "0", key});
            QVERIFY2(matches(value, json(expected)), kind + shown(value));
        }
    }

    void cutsNamesAndOpensEachDocumentOnce()
    {
        const QString letters(1023, 'n');
        for (const auto &[stored, cut] : {std::pair{letters + "xyz", letters + 'x'},
                                          {letters + "\U0001F600", letters}, // not through the middle of a character
                                          {letters + 'x', letters + 'x'}}) {
            ProjectMembers members = leastMembers();
            replace(members, {"maps", "0", "sprites"}, json("[{}]"));
            QList<Path> names;
            visitValues(documentOf(rewritten(members)), {}, [&names](const Path &path) {
                if (path.last() == "name")
                    names.append(path);
            });
            QCOMPARE(names.size(), 10); // of the project, placed sprites and animations, too
            for (const Path &name : std::as_const(names))
                replace(members, name, stored);
            const QJsonObject document = documentOf(rewritten(members));
            for (const Path &name : std::as_const(names))
                QVERIFY2(valueAt(document, name) == cut, qPrintable(name.join('/')));
        }
        ProjectMembers members = leastMembers();
        replace(members, {"opendocuments"}, QJsonArray{First, First.toUpper(), "x", Second, First + "x", "x"});
        QCOMPARE(documentOf(rewritten(members)).value("opendocuments"), json("['<1>', 'x', '<2>']"));
    }

    /// A tail of a gigabyte behind a member is left alone; in front of the document's end it is no tail.
    void readsNoFartherThanItMust()
    {
        ProjectMembers members = leastMembers();
        members.insert("scratch.png", png(gradient({256, 192})));
        for (auto member = members.cbegin(); member != members.cend(); ++member) {
            const bool isDocument = member.key() == "project.json";
            qint64 taken = 0;
            const MemberOpener opener = [&](const QString &name) -> std::unique_ptr<QIODevice> {
                if (name == member.key())
                    return std::make_unique<EndlessDevice>(*member, taken);
                auto other = std::make_unique<QBuffer>();
                other->setData(members.value(name));
                other->open(QIODevice::ReadOnly);
                return other;
            };
            Project project;
            QString error;
            QCOMPARE(readProject(project, opener, error), !isDocument);
            QCOMPARE(error, isDocument ? "Invalid project file" : "");
            QVERIFY2(taken <= (isDocument ? 0 : member->size() + (10 << 20)), qPrintable(member.key()));
        }
    }

    void laterOneTakesThePlaceOfAnEarlierOne()
    {
        ProjectMembers members = leastMembers();
        for (const char *kind : {"palettes", "tilesets", "maps", "sprites", "mapObjects", "images"}) {
            QJsonArray assets = documentOf(members).value(kind).toArray();
            assets.append(assets.first());
            replace(members, {kind}, assets);
        }
        Project project;
        read(project, members);
        Project without; // the earlier ones
        read(without, leastMembers());
        QCOMPARE(project.findChildren<QObject *>().size(), without.findChildren<QObject *>().size());
    }

    void refusesWhatNoDefaultCanReplace()
    {
        const QString newer = "Project file is from a newer version of Quenmora";
        const QString unfit = "Error setting tile set anim - Name %1";
        const QString strip = "tileset/" + First + ".png";
        const QString cells = "tilemap/" + First;
        const QString sprites = "sprite/" + First + ".png";
        const QString image = "images/" + First + ".png";
        const std::tuple<QString, QByteArray, QString> cases[] = {
            {"project.json", "", "Invalid project file"},
            {"project.json", R"({"formatVersion": 3, "tilesets": [{}]})", newer},
            {"project.json", R"({"formatVersion": 3000000000})", newer},
            {strip, "", "Failed to load tile set tileImage \"" + strip + "\" from project file"},
            {strip, "no picture", unfit},
            {strip, png(gradient({8, 8})), unfit},
            {strip, png(gradient({16, 16})), unfit},
            {strip, png(gradient({8, 16}).convertToFormat(QImage::Format_RGB32)), unfit},
            {cells, "", "Failed to load tile map anim for map Name %1"},
            {cells, OneCell.chopped(1), "Failed to load tile map anim for map Name %1"},
            {sprites, "", "Project has a missing sprite anim"},
            {sprites, OneCell, "Project has a missing sprite anim"},
            {image, "", "Failed to load tile image Name %1"},
            {image, OneCell, "Failed to load tile image Name %1"},
        };
        for (const auto &[member, bytes, message] : cases) {
            ProjectMembers members = leastMembers();
            for (const char *kind : {"tilesets", "maps", "sprites", "images"})
                replace(members, {kind, "0", "name"}, "Name %1");
            members.insert(member, bytes);
            Project project;
            QString error;
            QVERIFY(!readProject(project, readerOf(members), error));
            QCOMPARE(error, message);
        }
    }

    void choosesAScratchPalette()
    {
        const auto chosen = [](const ProjectMembers &members) {
            return documentOf(rewritten(members)).value("scratchPalette").toString();
        };
        QCOMPARE(chosen({{"project.json", "{\"name\": \"cut"}}), QUuid().toString()); // an empty project
        for (const QString &stored : {Second, QUuid::createUuid().toString(), QUuid().toString()}) {
            ProjectMembers members;
            setDocument(members, json("{'palettes': [{'id': '<1>'}, {'id': '<2>'}]}").toObject());
            replace(members, {"scratchPalette"}, stored);
            QCOMPARE(chosen(members), stored == Second ? Second : First);
        }
    }

    void takesAScratchImageThatFits()
    {
        const QImage whole = gradient({256, 192});
        for (const QByteArray &scratch : {png(whole), QByteArray("GIF89a"), png(gradient({255, 192})),
                                          png(whole.convertToFormat(QImage::Format_RGB32))}) {
            ProjectMembers members = leastMembers();
            members.insert("scratch.png", scratch);
            Project project;
            read(project, members);
            const bool fits = scratch == png(whole);
            QCOMPARE(indices(project.scratchImage()), fits ? indices(whole) : QByteArray(256 * 192, 0));
        }
    }

    void keepsIndicesAndColoursThatAreARampOfGrey()
    {
        QList<QRgb> greys;
        for (int level = 0; level < 256; ++level)
            greys.append(qRgb(level, level, level));
        QImage pixels = gradient({256, 192}); // which a PNG then holds as levels of grey
        pixels.setColorTable(greys);
        Project project;
        project.createImage(Quenmora::Layer2_256x192, "image", {})->setImage(pixels);
        project.createSpriteBank(Quenmora::EightBit, "bank", {})->setWholeImage(pixels.copy(0, 0, 16, 16));
        project.setScratchImage(pixels);
        Project again;
        read(again, serializeProject(project, true));
        for (const QImage &image :
             {again.images().first()->image(), again.spriteBanks().first()->image(), again.scratchImage()}) {
            QCOMPARE(image.format(), QImage::Format_Indexed8);
            QCOMPARE(image.colorTable(), greys);
            QCOMPARE(indices(image), indices(pixels.copy(image.rect())));
        }
    }

    void savesWhatHasNoTilesOrColoursAndTellsWhatIsLost()
    {
        Project project;
        project.createTileSet("Emptied", QUuid::createUuid(), 1)->deleteTile(0);
        QCOMPARE(unreadableMember(snapshotOf(project, true)), "");
        const ProjectMembers members = serializeProject(project, true);
        QVERIFY2(rewritten(members) == members, "a tile set without tiles has no picture");
        QCOMPARE(QImage::fromData(members.value("scratch.png"), "png").colorCount(), 256); // it had no colours so far
        QCOMPARE(unreadableMember({{"tileset/1.png", QImage()}}), "tileset/1.png");
        const QImage tiles = plainImage({8, 800'000}, 0); // an object each
        QCOMPARE(unreadableMember({{"tileset/1.png", tiles}}), "");
        ProjectSnapshot many;
        for (int i = 1; i <= 6; ++i)
            many.append({QString("tileset/%1.png").arg(i), tiles});
        QCOMPARE(unreadableMember(many), "tileset/6.png");
        const ProjectMember::Cells wide{{65'537, 1}, {TileMap::Row(65'537)}, {}};
        QCOMPARE(unreadableMember({{"tilemap/1", wide}}), "tilemap/1");
        const auto documentWith = [](qsizetype count, const char *json) {
            return QJsonDocument::fromJson(QByteArray(json).repeated(count).prepend("{\"images\": [0").append("]}"));
        };
        for (const QJsonDocument &document : {documentWith(3 << 20, ",[]"), documentWith(40'000, ",{}")})
            QCOMPARE(unreadableMember({{"project.json", document.object()}}), "project.json");
    }
};

QUENMORA_TEST_MAIN(TestProjectDocument)
#include "tst_projectdocument.moc"
