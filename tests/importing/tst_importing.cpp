#include "importing/addition.h"
#include "importing/filekind.h"
#include "importing/preview.h"
#include "nextdata/reader.h"
#include "support/damage.h"
#include "support/formoutput.h"
#include "support/modeltools.h"
#include "support/randomproject.h"
#include "support/testmain.h"
#include "undo/editrecorder.h"
#include "undo/paletteorder.h"

#include <QtGui>
#include <QtTest>

#include <functional>
#include <numeric>

using namespace Importing;
using NextData::Source;

namespace {

/// What an asset is in a form that holds all that an import can give back.
QByteArray essenceOf(const Project &project, const QUuid &id)
{
    const auto source = Source::find(project, id);
    if (!source)
        return "nothing";
    switch (source->kind()) {
    case NextData::AssetKind::Palette: {
        const QPointer<Palette> palette = project.palette(id);
        return writtenBytes("palette", *source) + QByteArray::number(palette->transparencyIndex())
            + writtenBytes("palette-cycles", *source);
    }
    case NextData::AssetKind::TileSet:
        return writtenBytes("tiles-8bit", *source) + writtenBytes("tile-attributes", *source)
            + writtenBytes("tile-values", *source, {{"width", "word"}});
    case NextData::AssetKind::Map:
        return QByteArray::number(source->as<Map>().size().width()) + writtenBytes("map-2byte", *source)
            + writtenBytes("map-sprites", *source) + writtenBytes("map-blocks", *source);
    case NextData::AssetKind::SpriteBank:
        return writtenBytes("sprites-8bit", *source) + writtenBytes("sprite-animations", *source);
    case NextData::AssetKind::BlockSet:
        return writtenBytes("block-animations", *source);
    default:
        return indices(source->as<Image>().image());
    }
}

QUuid idOf(const AddedAssets &added)
{
    for (const QUuid &id : {added.map, added.sprites, added.image, added.blocks, added.tileSet, added.palette}) {
        if (!id.isNull())
            return id;
    }
    return {};
}

} // namespace

/// Files on their way to assets: what they are taken for, what is made of them, and what undo leaves of that.
class TestImporting : public QObject
{
    Q_OBJECT

    TemporaryFolder m_path;
    QSet<QString> m_gone; ///< the forms that went through

    ImportFile file(const QString &name, const QByteArray &bytes)
    {
        const auto opened = ImportFile::open(m_path(name, bytes));
        return opened ? *opened : ImportFile();
    }

    struct Trip
    {
        Options written{};
        Options read{};
        QUuid target{}; ///< into which it goes; a new asset without one
    };

    /// Writes an asset in a form, imports the file with these options, and writes what was made of it once more.
    template <typename Asset>
    void goesThrough(RandomProject &random, const QString &form, const QPointer<Asset> &asset, const Trip &trip = {})
    {
        m_gone.insert(form);
        Project &project = random.project;
        const QByteArray bytes = writtenBytes(form, sourceOf(project, asset), trip.written);
        const ImportFile source = file("asset." + NextData::findForm(form)->suffix, bytes);
        const auto kinds = valuesOf(recognise(source), &Guess::kind);
        QVERIFY2(kinds.contains(form), qPrintable(form));
        const ImportChoices choices{.kind = form,
                                    .options = trip.read,
                                    .name = "Again",
                                    .target = trip.target,
                                    .palette = project.palettes().constFirst()->id(),
                                    .tileSet = random.tiles->id()};
        const auto incoming = prepare(project, source, choices);
        QVERIFY2(incoming, qPrintable(form + ": " + incoming.reason()));
        QVERIFY(!trip.target.isNull() || incoming->animations || !previewOf(project, *incoming, choices).isNull());
        QVERIFY(!trip.target.isNull() || !factsOf(*incoming).isEmpty());
        const auto added = addTo(project, *incoming, choices, {});
        QVERIFY2(added, qPrintable(form + ": " + added.reason()));
        const auto made = Source::find(project, trip.target.isNull() ? idOf(*added) : trip.target);
        QVERIFY2(made && made->name() == "Again", qPrintable(form));
        QCOMPARE(writtenBytes(form, *made, trip.written), bytes);
    }

    /// Takes away most of what a form holds, which no noise can be.
    static void forgetMost(RandomProject &random, const QString &form)
    {
        const Project &project = random.project;
        ColourCycles::set(*project.extras(), project.palettes().constFirst()->id(), {});
        Map::Snapshot map = random.map->snapshot();
        map.sprites = {{.bank = map.sprites[0].bank, .name = "other"}};
        map.placements.removeFirst();
        random.map->restore(map);
        const auto bank = project.spriteBanks().constFirst();
        while (form == "sprite-animations" && !bank->animations().isEmpty())
            bank->deleteAnimation(bank->animations().constFirst()->id());
    }

private slots:
    /// Every form of random assets; that the bytes are the right ones, the worked examples of the forms tell.
    void formsComeBack_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 10; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void formsComeBack()
    {
        QFETCH(quint32, seed);
        RandomProject random(seed);
        Project &project = random.project;
        const QPointer<Palette> palette = project.palettes().constFirst();
        const QPointer<TileSet> tiles = random.tiles;
        const auto banks = project.spriteBanks();
        const auto maps = project.maps();
        const auto images = project.images();
        const auto both = [](const Options &options) { return Trip{options, options}; };
        for (const QString form : {"palette", "palette-8bit"})
            goesThrough(random, form, palette);
        goesThrough(random, "palette-group", palette, both({{"group", "3"}}));
        if (palette->transparencyIndex() >= 0)
            goesThrough(random, "palette-513", palette, both({{"transparency", "index"}}));
        goesThrough(random, "palette-cycles", palette,
                    {.target = project.createPalette(CreateAction::Blank, "Again")->id()});
        for (const QString form : {"tiles-4bit", "tiles-8bit", "tiles-1bit"})
            goesThrough(random, form, tiles);
        goesThrough(random, "tiles-8bit", tiles, both({{"order", "columns"}}));
        goesThrough(random, "tiles-1bit", tiles, {{{"ink", "9"}}, {{"ink", "9"}, {"paper", "12"}}});
        const QUuid numbered = project.createTileSet("Again", palette->id(), tiles->count())->id();
        goesThrough(random, "tile-attributes", tiles, {.target = numbered});
        for (const Options &width : {Options(), Options{{"width", "word"}}})
            goesThrough(random, "tile-values", tiles, {width, width, numbered});
        const auto side = [&random](int whole) {
            return QString::number(random.chance() ? 0 : 1 + random.number(whole + 2));
        };
        for (const auto &map : maps) {
            const Options screens{{"order", random.chance() ? "rows" : "columns"},
                                  {"screen-width", side(map->size().width())},
                                  {"screen-height", side(map->size().height())}};
            Options read = screens;
            read.insert("width", QString::number(map->size().width()));
            read.insert("height", QString::number(map->size().height()));
            goesThrough(random, map->name() == "Plain" ? "map-1byte" : "map-2byte", map, {screens, read});
        }
        const QUuid placed = project.createMap("Again", tiles->id(), {9, 9})->id();
        goesThrough(random, "map-sprites", random.map, {.target = placed});
        goesThrough(random, "map-blocks", random.map, {.target = placed});
        goesThrough(random, "block-animations", random.blocks);
        goesThrough(random, "sprites-packed", banks[0]);
        goesThrough(random, "sprites-8bit", banks[0], {.read = {{"depth", "4"}}});
        goesThrough(random, "sprites-8bit", banks[1]);
        goesThrough(random, "sprite-animations", banks[1],
                    {.target = project.createSpriteBank(Quenmora::EightBit, "Again", {})->id()});
        const QStringList forms{"layer2-256", "layer2-320", "layer2-640", "lores"};
        for (int i = 0; i < 4; ++i) {
            Options read;
            if (i == 2)
                read.insert("group", QString::number(uchar(indices(images[i]->image()).front()) / 16));
            for (const Options &withPalette : {Options{{"palette", "true"}}, Options()})
                goesThrough(random, forms[i], images[i], {withPalette, read});
        }
        for (const NextData::Form &form : NextData::forms())
            QVERIFY2(m_gone.contains(form.id) || form.id == "palette-513", qPrintable(form.id));
    }

    void recognises()
    {
        const auto is = [this](const QString &name, const QByteArray &bytes, const QString &kind,
                               const Options &options = {}) {
            const Guess guess = recognise(file(name, bytes)).constFirst();
            QVERIFY2(guess.kind == kind && guess.options == options, qPrintable(name + " is taken for " + guess.kind));
        };
        const auto some = [](int size) { return noise(size); };
        QByteArray cells = noise(2560);
        for (int i = 1; i < cells.size(); i += 2)
            cells[i] = 0x30;
        is("next.pal", some(512), "palette");
        is("next.npl", some(513), "palette-513");
        is("group.nxp", some(32), "palette-group");
        is("bytes.pal", some(256), "palette-8bit");
        is("anything.bin", some(512), "palette");
        is("sixteen.nxt", some(512), "tiles-4bit"); // as many bytes as a palette
        is("font.ch8", some(768), "tiles-1bit");
        is("font", some(768), "tiles-1bit");
        is("level.map", cells, "map-2byte", {{"width", "40"}});
        is("level.nxm", some(1280), "map-1byte", {{"width", "40"}});
        is("noise.map", some(2000), "map-1byte", {{"width", "40"}}); // second bytes have too many values
        is("hero.SPR", some(16384), "sprites-8bit");
        is("half.spr", some(640), "sprites-packed");
        is("title.nxi", some(49152 + 512), "layer2-256");
        is("title.sl2", some(81920), "layer2-320");
        is("title.slr", some(12288), "lores");
        is("odd.bin", some(7), "map-1byte", {{"width", "7"}});
        QByteArray header("PLUS3DOS\x1A\x01\0\x80\2\0\0", 15); // of 640 bytes
        header.resize(127, '\0');
        header.append(char(std::accumulate(header.cbegin(), header.cend(), 0)));
        is("disk.spr", header + some(512), "sprites-8bit");
        is("disk.bin", header + some(512), "palette");
        is("cycles.bin", QByteArray::fromHex("0210 1F05 0020 23FF 01"), "palette-cycles");
        is("moves.bin", QByteArray::fromHex("0100 0400 0301 0101 0000 0101 0530 0538"), "block-animations");
        is("placed.bin", QByteArray::fromHex("0100 1F00 0600 0301 0001 0100 0000 0000 0A00"), "map-blocks");
    }

    void choicesComeBack()
    {
        const ImportChoices choices{.kind = "map-1byte",
                                    .options = {{"width", "40"}, {"order", "columns"}},
                                    .name = QString::fromUtf8("L\xC3\xA4ufer"),
                                    .target = QUuid::createUuid(),
                                    .at = 7,
                                    .palette = QUuid::createUuid(),
                                    .tileSet = QUuid::createUuid()};
        for (const ImportChoices &each : {choices, ImportChoices{.kind = "palette"}}) {
            const QByteArray text = QJsonDocument(each.toJson()).toJson();
            QCOMPARE(ImportChoices::fromJson(QJsonDocument::fromJson(text).object()), each);
        }
        for (const auto &[key, value] : {std::pair<const char *, QJsonValue>("kind", 1),
                                         {"options", "x"},
                                         {"options", QJsonObject{{"width", 40}}},
                                         {"name", QJsonArray()},
                                         {"target", "none"},
                                         {"at", -2},
                                         {"at", 1e300},
                                         {"palette", true}}) {
            QJsonObject damaged = choices.toJson();
            damaged.insert(key, value);
            QVERIFY2(!ImportChoices::fromJson(damaged), key);
        }
        QVERIFY(!ImportChoices::fromJson({}));
    }

    /// What goes into an asset that is there is one step, which leaves nothing behind.
    void isOneStep_data()
    {
        // the target is a place among all assets
        addColumns<int, QString, int, Options, int>("target", "kind", "size", "options", "at");
        const auto add = [](const char *what, int target, const char *kind, int size, const Options &options = {},
                            int at = ImportChoices::AtTheEnd) {
            QTest::newRow(what) << target << QString(kind) << size << options << at;
        };
        add("colours", 0, "palette", 512);
        add("a group", 0, "palette-group", 32, {{"group", "15"}});
        add("colours and the transparent one", 0, "palette-513", 513, {{"transparency", "index"}});
        add("more tiles", 1, "tiles-4bit", 32 * 9);
        add("other tiles", 1, "tiles-8bit", 64 * 3, {}, 1);
        add("other and more tiles", 1, "tiles-1bit", 8 * 60, {}, 2);
        add("attributes", 1, "tile-attributes", 3, {{"first", "1"}});
        add("values", 1, "tile-values", 100);
        add("a map", 2, "map-2byte", 40 * 4 * 2, {{"width", "40"}});
        add("a map of that size", 2, "map-2byte", 200, {{"width", "10"}, {"height", "10"}});
        add("more sprites", 3, "sprites-packed", 128 * 3);
        add("other sprites", 3, "sprites-packed", 128, {}, 1);
        add("an image", 4, "layer2-256", 49152);
        add("an image with its colours", 5, "layer2-320", 81920 + 512);
        add("other and more sprites", 3, "sprites-8bit", 256 * 12, {{"depth", "4"}}, 1);
        for (const char *form : {"palette-cycles", "map-sprites", "map-blocks", "sprite-animations"}) // of the asset
            add(form, form[0] == 'p' ? 0 : form[0] == 'm' ? 2 : 3, form, 0);
    }

    void isOneStep()
    {
        QFETCH(int, target);
        QFETCH(QString, kind);
        QFETCH(int, size);
        QFETCH(Options, options);
        QFETCH(int, at);
        RandomProject random(11);
        Project &project = random.project;
        while (random.tiles->count() < 4)
            random.tiles->insertTile(0);
        const auto images = project.images();
        const QPointer<Palette> alone = project.createPalette(CreateAction::Blank, "Own"); // of one image alone
        images[1]->setPalette(alone);
        const QUuid ids[] = {project.palettes().constFirst()->id(),    random.tiles->id(), random.map->id(),
                             project.spriteBanks().constFirst()->id(), images[0]->id(),    images[1]->id()};
        const auto all = [&] {
            QByteArrayList essences;
            for (const Source &source : Source::all(project))
                essences.append(essenceOf(project, source.id()));
            return essences;
        };
        const QByteArray own = size == 0 ? writtenBytes(kind, *Source::find(project, ids[target])) : noise(size, 5);
        if (size == 0)
            forgetMost(random, kind);
        QUndoStack stack;
        const EditRecorder recorder(&project, [&stack](const QUuid &) { return &stack; });
        const QByteArrayList before = all();
        const ImportChoices choices{.kind = kind, .options = options, .target = ids[target], .at = at};
        const auto incoming = prepare(project, file("more.bin", own), choices);
        QVERIFY2(incoming, qPrintable(incoming.reason()));
        const auto added = addTo(project, *incoming, choices, [&stack](const QUuid &) { return &stack; });
        QVERIFY2(added, qPrintable(added.reason()));
        QCoreApplication::processEvents(); // the recorder watches new animations from now on
        QVERIFY(idOf(*added) == choices.target || idOf(*added).isNull());
        const QByteArrayList after = all();
        QVERIFY(after != before);
        QCOMPARE(alone->rawColour(0) != 0, ids[target] == images[1]->id());
        QCOMPARE(stack.count(), 1);
        QVERIFY(stack.text(0).startsWith("Import "));
        const QRect inside({}, random.map->size() * Tile::Size); // without what was placed elsewhere
        for (const Map::PlacedSprite &sprite : random.map->sprites())
            QVERIFY(!kind.startsWith("map-2byte") || inside.contains(sprite.x, sprite.y));
        stack.undo();
        QCOMPARE(all(), before);
        stack.redo();
        QCOMPARE(all(), after);
        QCOMPARE(stack.count(), 1);
    }

    void refuses()
    {
        Project project;
        const QUuid palette = project.createPalette(CreateAction::Blank, "Palette")->id();
        const QUuid tiles = project.createTileSet("Tiles", palette, 4)->id();
        const QUuid bank = project.createSpriteBank(Quenmora::FourBit, "Bank", palette)->id();
        const QUuid image = project.createImage(Quenmora::LoRes_128x96, "Title", palette)->id();
        const auto refuses = [&](const QString &reason, const ImportChoices &choices, const QByteArray &bytes) {
            const auto incoming = prepare(project, file("file.bin", bytes), choices);
            QCOMPARE(incoming ? addTo(project, *incoming, choices, {}).reason() : incoming.reason(), reason);
            QCOMPARE(Source::all(project).size(), 4);
        };
        refuses("“tape” is no kind of file that is read here", {.kind = "tape"}, "1");
        refuses("There is no option “ink”, only ", {.kind = "palette", .options = {{"ink", "1"}}}, "1");
        refuses("Please enter a name", {.kind = "palette"}, noise(512));
        refuses("Tile 1 (counted from 0) has pixels of several palette offsets, and a tile has one",
                {.kind = "tiles-8bit", .options = {{"mixed", "refuse"}}, .name = "T"},
                QByteArray(64, '\5') + QByteArray(32, '\5') + QByteArray(32, '\x15'));
        refuses("Choose the tile set whose tiles these are for", {.kind = "tile-values", .name = "V"}, "1");
        const auto placed = [](const char *hex) { return QByteArray::fromHex(hex); };
        refuses("Choose the map on which these are placed", {.kind = "map-sprites"}, placed("0000"));
        refuses("What record 0 (counted from 0) shows is not in the project, where it is looked for by its place",
                {.kind = "map-blocks"}, "\1" + QByteArray(17, '\0'));
        refuses("The records do not lie in the file as its beginning says", {.kind = "map-sprites"}, placed("000000"));
        refuses("The animations do not lie in the file as its beginning says", {.kind = "sprite-animations"},
                placed("0100 0400 0201 0200 0400 0000 0100 0200 02"));
        refuses("The asset into which it goes is not there any more, or is of another kind",
                {.kind = "palette", .target = QUuid::createUuid()}, noise(512));
        refuses("“Title” has 128 × 96 pixels, and the picture has 256 × 192", {.kind = "layer2-256", .target = image},
                noise(49152));
        refuses("The sprites have indices above 15, and “Bank” is a bank of 4 bits",
                {.kind = "sprites-8bit", .target = bank}, noise(256));
        refuses("There is no number 5; the last one is 3", {.kind = "tiles-4bit", .target = tiles, .at = 5}, noise(32));
        refuses("There is room for 4093, and 4094 come in", {.kind = "tiles-4bit", .target = tiles, .at = 3},
                noise(4094 * 32));
    }

    void undoLeavesWhatWasChangedSince()
    {
        Project project;
        QUndoStack stack;
        const auto palette = project.createPalette(CreateAction::Blank, "Palette");
        const auto bank = project.createSpriteBank(Quenmora::FourBit, "Bank", palette->id());
        const auto take = [&](const ImportChoices &choices, const QByteArray &bytes) {
            const auto incoming = prepare(project, file("file.bin", bytes), choices);
            QVERIFY(addTo(project, *incoming, choices, [&stack](const QUuid &) { return &stack; }));
        };
        take({.kind = "palette", .target = palette->id()}, noise(512));
        palette->setRawColour(3, 0xE000);
        stack.undo();
        QCOMPARE((QList{palette->rawColour(2), palette->rawColour(3)}), (QList<quint16>{0, 0xE000}));
        ColourCycles::set(*project.extras(), palette->id(), {{11, 12}});
        take({.kind = "palette-cycles", .target = palette->id()}, QByteArray::fromHex("0210 1F05 0020 23FF 01"));
        PaletteHistory::of(*palette).add({{11, 12, 21, 22}, {21, 22, 11, 12}}); // on the stack of another document
        stack.undo();
        QCOMPARE(ColourCycles::of(*project.extras(), palette->id()), (ColourCycles::List{{21, 22}}));
        take({.kind = "sprite-animations", .target = bank->id()},
             QByteArray::fromHex("0100 0400 0201 0200 0400 0000 0100 0200 0208"));
        bank->animations().constFirst()->setName("Walk");
        stack.undo();
        QVERIFY(bank->animations().isEmpty());
        stack.redo();
        QCOMPARE(bank->animations().constFirst()->name(), "Walk");
    }

    void refusesWhatIsTooLarge()
    {
        QFile large(m_path("large.bin"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(qint64(40) << 20));
        large.close();
        const auto opened = ImportFile::open(large.fileName());
        QVERIFY(opened && opened->bytes.size() < 1 << 20); // which is enough to see what it is
        const QString kind = recognise(*opened).constFirst().kind;
        QCOMPARE(prepare(Project(), *opened, {.kind = kind}).reason(),
                 QString("The file has %1 bytes, which is too much for this").arg(QLocale().toString(40 << 20)));
        QCOMPARE(ImportFile::open(m_path("empty.bin", {})).reason(),
                 QDir::toNativeSeparators(m_path("empty.bin")) + " is empty");
        QVERIFY(ImportFile::open(m_path()).reason().endsWith("it is no file"));
    }

    /// Tiles of several groups take the colours of the one that has the most like theirs, and that is said; as is what
    /// lies behind animations.
    void tellsWhatIsLost()
    {
        Project project;
        const auto palette = project.createPalette(CreateAction::Blank, "P");
        palette->setRawColour(0x05, 0xE000); // red
        palette->setRawColour(0x13, 0xE000); // red as well
        palette->setRawColour(0x14, 0x1C00); // green
        const ImportChoices choices{.kind = "tiles-8bit", .name = "T", .palette = palette->id()};
        const ImportFile mixed = file("t.bin", QByteArray(32, '\x05') + QByteArray(32, '\x14'));
        const auto exact = prepare(project, mixed, choices);
        QCOMPARE(exact->remarks, QStringList());
        const auto tile = exact->tiles->tiles[0];
        QCOMPARE((QList{tile.offset, int(tile.pixels[0]), int(tile.pixels[63])}), (QList{1, 3, 4}));
        palette->setRawColour(0x13, 0xC000);
        QCOMPARE(prepare(project, mixed, choices)->remarks,
                 QStringList("Tiles that lose colours, since theirs are of several palette offsets: 1 of 1"));
        const QByteArray moves = QByteArray::fromHex("0100 0400 0201 0200 0400 0000 0100 0200 0208");
        QCOMPARE(prepare(project, file("m.bin", moves + "rest"), {.kind = "block-animations"})->remarks,
                 QStringList("Bytes behind the last animation that are left out: 4"));
    }

    /// Whatever a file holds and whatever is chosen, it becomes assets or a message. QUENMORA_DAMAGED_FILES is how many
    /// files of each kind are tried.
    void takesAnyFile_data()
    {
        QTest::addColumn<QString>("kind");
        for (const FileKind &kind : fileKinds())
            QTest::newRow(qPrintable(kind.id)) << kind.id;
    }

    void takesAnyFile()
    {
        QFETCH(QString, kind);
        const FileKind &chosen = *findFileKind(kind);
        DamagedFiles files(150);
        QRandomGenerator random(20);
        while (files.next()) {
            ImportChoices choices{.kind = kind, .name = "Any"};
            for (const NextData::Option &option : chosen.options) {
                if (random.bounded(2) == 0)
                    continue;
                if (option.kind == NextData::Option::Kind::Choice)
                    choices.options.insert(option.id, option.choices[random.bounded(int(option.choices.size()))].id);
                else if (option.kind == NextData::Option::Kind::Number)
                    choices.options.insert(
                        option.id,
                        QString::number(option.least + random.bounded(qMin(option.most - option.least, 99) + 1)));
            }
            constexpr int sizes[] = {1, 31, 32, 256, 512, 513, 640, 768, 12288, 49664, 81920};
            const int size = random.bounded(2) == 0 ? sizes[random.bounded(11)] : 1 + random.bounded(2000);
            Project project;
            const ImportFile opened{.path = m_path("none"), .size = size, .bytes = noise(size, random.generate())};
            QVERIFY(!recognise(opened).isEmpty());
            const auto incoming = prepare(project, opened, choices);
            QVERIFY(incoming || !incoming.reason().isEmpty());
            if (!incoming)
                continue;
            const bool isForOthers = incoming->numbers || incoming->animations || incoming->placedSprites
                || incoming->placedBlocks || incoming->cycles;
            QVERIFY(isForOthers || !previewOf(project, *incoming, choices).isNull());
            const auto added = addTo(project, *incoming, choices, {});
            QVERIFY(added ? !idOf(*added).isNull() : Source::all(project).isEmpty());
        }
    }
};

QUENMORA_TEST_MAIN(TestImporting)
#include "tst_importing.moc"
