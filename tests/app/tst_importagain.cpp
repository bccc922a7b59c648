#include "app/imports/filesagain.h"
#include "app/imports/imageagain.h"
#include "app/imports/importagain.h"
#include "app/imports/importkeeper.h"
#include "app/imports/importnotice.h"
#include "app/menus/imagemenu.h"
#include "app/menus/mapmenu.h"
#include "editors/canvas/imageimport.h"
#include "importing/filekind.h"
#include "model/projectextras.h"
#include "pictures/ninebitcolour.h"
#include "pictures/tilereduction.h"
#include "support/asepritebuilder.h"
#include "support/windowscene.h"
#include "undo/editrecorder.h"

namespace {

/// A picture of the machine's colours in squares of side × side pixels, each of them unlike all others, turned or not.
QImage squares(QSize size, int side)
{
    return pictureOf(size, QImage::Format_ARGB32, [size, side](int i) {
        const QPoint at(i % size.width(), i / size.width());
        const int square = at.y() / side * (size.width() / side) + at.x() / side;
        const bool drawn = (at.x() % side + 3 * (at.y() % side)) % (5 + square) == 0 && at.x() % side < side - 1;
        return NineBitColour::shown(drawn ? 73 * (square % 7 + 1) % 512 : 438);
    });
}

void fill(QImage &picture, const QRect &area, QRgb colour)
{
    QPainter(&picture).fillRect(area, QColor(colour));
}

/// The sprites of a bank as they are shown.
QList<QImage> spritesOf(const SpriteBank &bank)
{
    QList<QImage> sprites;
    for (int i = 0; i < bank.count(); ++i)
        sprites.append(bank.renderSprite(i, 0, false, false, false));
    return sprites;
}

/// A project that assets are imported into, with one undo stack.
struct Scene
{
    TemporaryFolder folder;
    Project project;
    QUndoStack stack;
    EditRecorder recorder{&project, [this](const QUuid &) { return &stack; }};
    ProjectActions actions{[this] { return &project; }};
    ImportMemory memory;
    QUuid asset;
    QString file = folder("art.png"); ///< what is imported

    Scene()
    {
        memory.setProject(&project, {});
        actions.setUndoStackProvider([this](const QUuid &) { return &stack; });
        QObject::connect(&actions, &ProjectActions::imported, &memory, &ImportMemory::remember);
        QObject::connect(&actions, &ProjectActions::imported, &memory, [this](const QUuid &id) { asset = id; });
    }
    /// As a kind of file with the choices that there are at first.
    Importing::AddedAssets import(const QString &kind)
    {
        const auto opened = Importing::ImportFile::open(file);
        const Importing::ImportChoices choices{.kind = kind, .name = "Name"};
        const auto incoming = Importing::prepare(project, *opened, choices);
        const auto made = *Importing::addTo(project, *incoming, choices, {});
        QCoreApplication::processEvents(); // the recorder watches its animations from now on
        for (const QUuid &id : MadeAssets{made}.ids())
            memory.remember(id, ImportRecord::File, file, MadeAssets{made}.addedTo(choices.toJson(), project));
        return made;
    }
    /// The failure; none once all is up to date, as at most one step.
    QString again()
    {
        const auto record = memory.recordOf(asset);
        if (!record)
            return "not remembered";
        const int steps = stack.count();
        const auto done = ImportedAgain::run(
            project, asset, *record, [this](const QUuid &) { return &stack; }, nullptr);
        if (!done.failure.isEmpty())
            return done.failure;
        memory.renew(asset, done);
        const bool isDone = !memory.changedAssets().contains(asset) && stack.count() <= steps + 1;
        return isDone ? "" : "it is not up to date in one step";
    }
};

} // namespace

class TestImportAgain : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void mapsKeepWhatIsStillInThePicture_data()
    {
        QTest::addColumn<bool>("reduced");
        QTest::addColumn<bool>("holes");
        QTest::newRow("cut") << false << false;
        QTest::newRow("reduced") << true << false;
        QTest::newRow("with holes") << true << true;
    }

    void mapsKeepWhatIsStillInThePicture()
    {
        QFETCH(bool, reduced);
        QFETCH(bool, holes);
        Scene s;
        QImage picture = squares({64, 32}, 8);
        if (holes)
            picture.setPixel(3, 3, 0);
        QVERIFY(picture.save(s.file));
        if (reduced)
            s.actions.importReduction(s.file, TileReduction::of(picture, {}));
        else
            s.actions.importMap(s.file);
        const QPointer<Map> map = s.project.map(s.asset);
        QVERIFY(map && map->size() == QSize(8, 4));
        QCOMPARE(map->tileTransparencyIndex(), holes ? 15 : -1);
        const QPointer<TileSet> tiles = map->tileSet();
        const QPointer<Map> other = s.project.createMap("Other", tiles->id(), {40, 32}); // which shows what will go
        other->setTile({5, 5}, map->tileLayer()->cellAt({2, 1}));
        tiles->setTileImage(200, plainImage({8, 8}, 1)); // which nothing shows yet
        QCOMPARE(s.again(), "");
        QCOMPARE(s.stack.count(), 0); // nothing has changed

        const auto shown = [](const Map &level, QRect cells) {
            return level.tileLayer()->render(cells, 1, 15).convertToFormat(QImage::Format_ARGB32);
        };
        const QImage otherBefore = shown(*other, {5, 5, 1, 1});
        const Map::Snapshot before = map->snapshot();
        const TileSet::Snapshot tilesBefore = tiles->snapshot();
        const QList<QRgb> colours = tiles->palette()->colourTable();
        picture = picture.copy(0, 0, 72, 32); // a column more
        fill(picture, {64, 0, 8, 32}, NineBitColour::shown(300)); // in a colour that is new
        fill(picture, {8, 0, 8, 8}, NineBitColour::shown(300)); // a tile that goes
        fill(picture, {16, 8, 4, 8}, NineBitColour::shown(7)); // the one that is shown elsewhere
        QVERIFY(picture.save(s.file));
        QCOMPARE(s.memory.changedAssets().size(), 2); // the map and its tiles
        QCOMPARE(s.again(), "");
        QVERIFY(s.memory.changedAssets().isEmpty());
        QCOMPARE(map->size(), QSize(9, 4));
        const QImage now = shown(*map, {0, 0, 9, 4});
        QImage wanted = picture;
        if (!reduced) { // what cutting makes of it
            Scene fresh;
            fresh.actions.importMap(fresh.folder("art.png", SampleProject::png(picture)));
            wanted = shown(*fresh.project.map(fresh.asset), {0, 0, 9, 4});
        }
        for (int i = 0; i < 72 * 32; ++i) {
            const QPoint at(i % 72, i / 72);
            QCOMPARE(qAlpha(now.pixel(at)), qAlpha(picture.pixel(at)));
            if (qAlpha(now.pixel(at)) > 0)
                QCOMPARE(NineBitColour::nearest(now.pixel(at)), NineBitColour::nearest(wanted.pixel(at)));
        }
        for (int cell = 0; cell < 32; ++cell) {
            const QPoint at(cell % 8, cell / 8);
            if (at != QPoint(1, 0) && at != QPoint(2, 1))
                QCOMPARE(map->tileLayer()->cellAt(at), before.tiles[at.y()][at.x()]);
        }
        QCOMPARE(map->tileLayer()->cellAt({1, 0}).index, before.tiles[0][1].index); // whose place was free
        QCOMPARE(shown(*other, {5, 5, 1, 1}), otherBefore);
        QCOMPARE(tiles->tile(200)->pixels(), (Tile(tilesBefore[200]).pixels()));
        QCOMPARE(s.stack.count(), 1);
        s.stack.undo();
        QVERIFY(map->snapshot() == before);
        QCOMPARE(tiles->palette()->colourTable(), colours);
        QVERIFY(tiles->snapshot() == tilesBefore);
        s.stack.redo();
        QCOMPARE(shown(*map, {0, 0, 9, 4}), now);

        // without their map the tiles that are still in the picture keep their numbers
        QVERIFY(s.project.deleteMap(s.asset));
        s.asset = tiles->id();
        const TileSet::Snapshot last = tiles->snapshot();
        fill(picture, {24, 0, 8, 8}, NineBitColour::shown(7));
        QVERIFY(picture.save(s.file));
        QCOMPARE(s.again(), "");
        int changed = 0;
        for (int i = 0; i < tiles->count(); ++i)
            changed += tiles->tile(i)->pixels() != Tile(last.value(i)).pixels();
        QCOMPARE(changed, 1);
    }

    void spritesAreReplacedInPlace_data()
    {
        QTest::addColumn<bool>("newPalette");
        QTest::newRow("own palette") << true;
        QTest::newRow("nearest colours") << false;
    }

    void spritesAreReplacedInPlace()
    {
        QFETCH(bool, newPalette);
        Scene s;
        const QUuid standard = s.project.createPalette(CreateAction::DefaultNext, "Standard")->id();
        QImage picture = squares({64, 16}, 16);
        s.actions.importSpritePicture({.file = s.folder("art.png", SampleProject::png(picture)),
                                       .name = "Hero",
                                       .depth = Quenmora::EightBit,
                                       .paletteId = newPalette ? QUuid() : standard,
                                       .keepColours = true});
        const QPointer<SpriteBank> bank = s.project.spriteBank(s.asset);
        const int first = newPalette ? 0 : 1;
        QVERIFY(bank && bank->count() == first + 4);
        bank->addSprite();
        bank->setImage(first + 4, plainImage({16, 16}, 1)); // drawn by hand
        const auto colour = [&bank](int sprite) { return spritesOf(*bank)[sprite].pixel(15, 15); }; // of the ground
        const QList<QImage> before = spritesOf(*bank);
        const int steps = s.stack.count();
        picture = picture.copy(0, 0, 80, 16);
        fill(picture, {64, 0, 16, 16}, NineBitColour::shown(292));
        fill(picture, {16, 0, 16, 16}, NineBitColour::shown(511));
        QVERIFY(picture.save(s.file));
        QCOMPARE(s.again(), "");
        QCOMPARE(bank->count(), first + 6);
        for (const int same : {first, first + 2, first + 3, first + 4})
            QCOMPARE(spritesOf(*bank)[same], before[same]);
        QCOMPARE(colour(first + 1), NineBitColour::shown(511));
        if (newPalette)
            QCOMPARE(colour(first + 5), NineBitColour::shown(292));
        QCOMPARE(s.stack.count(), steps + 1);
        s.stack.undo();
        QCOMPARE(spritesOf(*bank), before);
        s.stack.redo();
        QCOMPARE(s.again(), "");
        QCOMPARE(s.stack.count(), steps + 1); // as it is
        fill(picture, {64, 0, 16, 16}, NineBitColour::shown(0));
        QVERIFY(picture.save(s.file));
        QCOMPARE(s.again(), "");
        QCOMPARE(bank->count(), first + 6);
        QCOMPARE(colour(first + 5), NineBitColour::shown(0)); // in its place behind what was drawn
    }

    void imagesAndPalettes()
    {
        Scene s;
        const QPointer<Palette> palette = s.project.createPalette(CreateAction::Blank, "Title");
        const QPointer<Image> image = s.project.createImage(Quenmora::LoRes_128x96, "Title", palette->id());
        const ImageImport import{.newPalette = true, .reduction = Dithering::None};
        s.asset = image->id();
        QImage picture = squares({64, 64}, 8);
        QVERIFY(picture.save(s.file));
        s.memory.remember(image->id(), ImportRecord::Image, s.file, choicesOf(import));
        QCOMPARE(s.again(), "");
        QCOMPARE(s.stack.count(), 1);
        const auto shown = [&](QPoint at) { return palette->colour(image->image().pixelIndex(at)).rgb(); };
        for (int i = 0; i < 64; ++i)
            QCOMPARE(shown({i, 5}), picture.pixel(i, 5));
        s.stack.undo();
        QCOMPARE(image->image().pixelIndex(0, 0), 0);
        QCOMPARE(palette->rawColour(0), 0);

        s.actions.importPalette(palette->id(), s.file);
        QCOMPARE(s.asset, palette->id());
        QCOMPARE(palette->rawColour(0), NineBitColour::wordOf(NineBitColour::nearest(picture.pixel(0, 0))));
        picture.fill(NineBitColour::shown(300));
        QVERIFY(picture.save(s.file));
        QCOMPARE(s.again(), "");
        QCOMPARE(palette->rawColour(0), NineBitColour::wordOf(300));
        QVERIFY(QFile::remove(s.file));
        QCOMPARE(s.again(), "The file is not there any more:\n" + QDir::toNativeSeparators(s.file));
    }

    /// A map of another program with tiles, an animation of them and a sprite.
    void mapsOfTiled()
    {
        Scene s;
        const auto write = [&s](const QImage &sheet, int width, int x) {
            const QByteArrayList gids{"1", "2", "3", "4", "5", "1"};
            const QString text = R"(<map orientation="orthogonal" width="%1" height="1" tilewidth="8" tileheight="8">
                <tileset firstgid="1" name="set" tilewidth="8" tileheight="8" tilecount="5" columns="5">
                <image source="sheet.png"/><tile id="4"><animation><frame tileid="0" duration="100"/>
                <frame tileid="2" duration="100"/></animation></tile></tileset>
                <layer name="ground" width="%1" height="1"><data encoding="csv">%2</data></layer>
                <objectgroup name="things"><object id="1" gid="2" x="%3" y="8" width="8" height="8"/></objectgroup>
                </map>)";
            return sheet.save(s.folder("sheet.png"))
                && writeFile(s.file, text.arg(width).arg(QString(gids.mid(0, width).join(','))).arg(x).toUtf8());
        };
        QImage sheet = squares({40, 8}, 8);
        s.file = s.folder("level.tmx");
        QVERIFY(write(sheet, 5, 8));
        const Importing::AddedAssets made = s.import("tiled");
        const QPointer<Map> map = s.project.map(made.map);
        const QPointer<TileSet> tiles = map->tileSet();
        const QPointer<SpriteBank> bank = s.project.spriteBank(made.sprites);
        const auto animation = s.project.blocks(made.blocks)->animations().constFirst();
        const Map::Snapshot before = map->snapshot();
        const TileSet::Snapshot tilesBefore = tiles->snapshot();
        const auto framesBefore = animation->state();
        const QList<QImage> spritesBefore = spritesOf(*bank);
        fill(sheet, {8, 0, 8, 8}, NineBitColour::shown(300));
        QVERIFY(write(sheet, 6, 16));
        s.asset = made.sprites; // whichever of them is asked for
        QCOMPARE(s.memory.changedAssets().size(), 4);
        QCOMPARE(s.again(), "");
        QVERIFY(s.memory.changedAssets().isEmpty());
        QCOMPARE(map->size(), QSize(6, 1));
        const auto cell = [&map](int x) { return map->tileLayer()->cellAt({x, 0}); };
        for (const int same : {0, 2, 3})
            QCOMPARE(cell(same), before.tiles[0][same]);
        QCOMPARE(cell(5), cell(0));
        QCOMPARE(cell(1).index, before.tiles[0][1].index); // whose place was free
        QCOMPARE(map->tileLayer()->toImage({1, 0, 1, 1}).pixel(3, 3), NineBitColour::shown(300));
        QCOMPARE(tiles->count(), int(tilesBefore.size()));
        QVERIFY(animation->state() == framesBefore);
        QCOMPARE(map->animatedBlocks()->state(), before.placements);
        QCOMPARE(bank->count(), 1);
        QCOMPARE(spritesOf(*bank)[0].pixel(3, 3), NineBitColour::shown(300));
        QCOMPARE(map->sprites().size(), 1);
        QCOMPARE(map->sprites()[0].x, 16);
        QCOMPARE(s.stack.count(), 1);
        s.stack.undo();
        QVERIFY(map->snapshot() == before);
        QVERIFY(tiles->snapshot() == tilesBefore);
        QCOMPARE(spritesOf(*bank), spritesBefore);
        QVERIFY(s.project.deleteMap(map->id()));
        QCOMPARE(s.again(), ""); // what is left of them
        QCOMPARE(spritesOf(*bank)[0].pixel(3, 3), NineBitColour::shown(300));
    }

    void framesOfAseprite()
    {
        Scene s;
        const auto write = [&s](const QList<char> &frames) {
            AsepriteBuilder builder;
            builder.width = builder.height = 16;
            for (qsizetype i = 0; i < frames.size(); ++i) {
                builder.frame(100);
                if (i == 0) {
                    builder.palette({QByteArray(4, '\0'), QByteArray("\xFF\x00\x00\xFF", 4),
                                     QByteArray("\x00\xFF\x00\xFF", 4), QByteArray("\x00\x00\xFF\xFF", 4)});
                    builder.layer("one");
                    builder.tags({AsepriteBuilder::tag(0, int(frames.size()) - 1, 0, 0, "run")});
                }
                builder.raw(0, {}, {16, 16}, QByteArray(256, frames[i]));
            }
            return writeFile(s.file, builder.bytes());
        };
        s.file = s.folder("hero.aseprite");
        QVERIFY(write({1, 2}));
        const Importing::AddedAssets made = s.import("aseprite-sprites");
        const QPointer<SpriteBank> bank = s.project.spriteBank(made.sprites);
        bank->addSprite();
        bank->setImage(2, plainImage({16, 16}, 1)); // drawn by hand
        const auto animation = bank->animations().constFirst();
        const auto shown = [&] {
            return valuesOf(spritesOf(*bank), [](const QImage &sprite) { return sprite.pixel(8, 8); });
        };
        const auto cells = [&animation] {
            QList<int> numbers;
            for (int i = 0; i < animation->frameCount(); ++i)
                numbers.append(animation->frame(i)->cell(0, 0).index);
            return numbers;
        };
        QCOMPARE(cells(), (QList{0, 1}));
        const QList<QRgb> before = shown();
        const int steps = s.stack.count();
        QVERIFY(write({3, 1, 2}));
        s.asset = made.sprites;
        QCOMPARE(s.again(), "");
        QCOMPARE(shown(), before + QList<QRgb>{0xFF0000FF}); // behind what was drawn
        QCOMPARE(cells(), (QList{3, 0, 1}));
        QCOMPARE(s.stack.count(), steps + 1);
        s.stack.undo();
        QCOMPARE(shown(), before);
        QCOMPARE(cells(), (QList{0, 1}));
        s.stack.redo();
        QCOMPARE(s.again(), "");
        QCOMPARE(s.stack.count(), steps + 1); // as it is
    }

    /// The files of a data set, number by number, whichever of its assets is asked for.
    void dataSets()
    {
        Scene s;
        QDateTime time = QDateTime::currentDateTime();
        const auto write = [&s, &time](char word, char pixels, char tile) {
            time = time.addSecs(1); // the files have the sizes that they had
            for (const auto &[name, bytes] : {std::pair("world.nxp", QByteArray(512, word)),
                                              {"world.nxt", QByteArray(32, '\x12') + QByteArray(32, pixels)},
                                              {"world.nxm", QByteArray("\2\2", 2) + QByteArray(256, '\0')},
                                              {"world.nxb", QByteArray(1, tile) + QByteArray(7, '\0')}}) {
                QFile file(s.folder(name, bytes));
                if (!file.open(QIODevice::ReadWrite) || !file.setFileTime(time, QFile::FileModificationTime))
                    return false;
            }
            return true;
        };
        QVERIFY(write('\1', '\x34', '\1'));
        s.actions.importMap(s.folder("world.nxm"));
        const QPointer<Map> map = s.project.map(s.asset);
        const QPointer<TileSet> tiles = map->tileSet();
        const auto state = [&] {
            return QList<int>{tiles->palette()->rawColour(3), tiles->tile(1)->pixels()[0],
                              map->tileLayer()->cellAt({0, 0}).index};
        };
        const QList<int> before = state();
        QVERIFY(write('\0', '\x56', '\0'));
        s.asset = tiles->id();
        QCOMPARE(s.memory.changedAssets().size(), 2); // the map's own file is the same
        QCOMPARE(s.again(), "");
        QVERIFY(s.memory.changedAssets().isEmpty());
        QCOMPARE(state(), (QList<int>{0, 5, 0}));
        QCOMPARE(s.stack.count(), 1);
        s.stack.undo();
        QCOMPARE(state(), before);
    }

    void filesOfOtherKinds()
    {
        Scene s;
        const auto import = [&s](const Importing::ImportChoices &choices) {
            const auto file = Importing::ImportFile::open(s.file);
            const auto added = Importing::addTo(s.project, *Importing::prepare(s.project, *file, choices), choices,
                                                [&s](const QUuid &) { return &s.stack; });
            s.asset = added->tileSet.isNull() ? added->palette : added->tileSet;
            s.memory.remember(s.asset, ImportRecord::File, s.file, choices.toJson());
        };
        QVERIFY(writeFile(s.file, QByteArray("\x24\x01", 2).repeated(256)));
        const Importing::Guess guess = Importing::recognise(*Importing::ImportFile::open(s.file)).constFirst();
        import({.kind = guess.kind, .options = guess.options, .name = "Sky"});
        const QPointer<Palette> palette = s.project.palette(s.asset);
        QCOMPARE(palette->rawColour(7), 0x2401);
        QVERIFY(writeFile(s.file, QByteArray("\x48\0", 2).repeated(256)));
        QCOMPARE(s.again(), "");
        QCOMPARE(palette->rawColour(7), 0x4800);
        QCOMPARE(s.project.palettes().size(), 1);
        s.stack.undo();
        QCOMPARE(palette->rawColour(7), 0x2401);

        // tiles are replaced, not added once more
        import({.kind = "tiles-4bit", .name = "Rocks"});
        const QPointer<TileSet> rocks = s.project.tileSet(s.asset);
        for (int time = 0; time < 2; ++time) {
            QCOMPARE(rocks->count(), 16);
            QCOMPARE(s.again(), "");
        }
        QCOMPARE(int(rocks->tile(15)->pixels()[0]), 4);
    }

    /// Named as seen from the project's file, wherever that goes; what is damaged counts as nothing.
    void pathsGoWithTheProject()
    {
        const TemporaryFolder folder;
        QVERIFY(QDir(folder()).mkpath("game/art"));
        QVERIFY(squares({8, 8}, 8).save(folder("game/art/level.png")));
        Project project;
        const QUuid palette = project.createPalette(CreateAction::Blank, "Level")->id();
        ImportMemory memory;
        memory.setProject(&project, {});
        memory.remember(palette, ImportRecord::Palette, folder("game/art/level.png"), {});
        const auto path = [&project, palette] {
            return project.extras()->section("imports")[palette.toString()]["file"].toString();
        };
        QCOMPARE(path(), folder("game/art/level.png"));
        for (const auto &[file, seen] :
             {std::pair("game/level.quenmora", "art/level.png"), {"other/level.quenmora", "../game/art/level.png"}}) {
            memory.moveTo(folder(file));
            QCOMPARE(path(), seen);
            QCOMPARE(memory.recordOf(palette)->file, folder("game/art/level.png"));
        }
        for (const QJsonValue &damaged : {QJsonValue(7), QJsonValue(QJsonObject{{"kind", "map"}}),
                                          QJsonValue(QJsonObject{{"kind", "x"}, {"file", "y"}})}) {
            project.extras()->setSection("imports", QJsonObject{{palette.toString(), damaged}});
            QVERIFY(!memory.knows(palette) && memory.changedAssets().isEmpty());
        }
        project.extras()->setSection("imports", "nonsense");
        QVERIFY(!memory.knows(palette));
        project.extras()->setSection("imports", QJsonObject{{QUuid::createUuid().toString(), 7}});
        memory.moveTo(folder("game/level.quenmora"));
        QVERIFY(project.extras()->section("imports").isUndefined()); // of an asset that is gone
    }

    void offersWhatChanged()
    {
        openWindow();
        controller()->newProject("Game");
        controller()->setFileNameCallback([this] { return m_folder("game.quenmora"); });
        QImage picture = squares({32, 32}, 8);
        const QString file = m_folder("level.png", SampleProject::png(picture));
        m_window->projectActions()->importReduction(file, TileReduction::of(picture, {}));
        controller()->save();
        const auto entry = [this](const QMenu *menu) { return EditorInput::entry(*menu, "Import Again"); };
        QVERIFY(entry(m_window->menus()->mapMenu())->isEnabled());
        ImportKeeper &keeper = *m_window->importKeeper();
        ImportNotice *notice = keeper.notice();
        const QUuid map = project().maps().constFirst()->id();
        const auto isOffered = [&] {
            keeper.look();
            return !notice->isHidden();
        };
        QVERIFY(!isOffered());

        // it is remembered with the project
        controller()->openProject(m_folder("game.quenmora"));
        const QList<QToolButton *> buttons = notice->findChildren<QToolButton *>();
        for (QToolButton *button : {buttons[1], buttons[0]}) { // not now, and then
            fill(picture, {button == buttons[1] ? 0 : 8, 0, 8, 8}, NineBitColour::shown(300));
            QVERIFY(picture.save(file));
            QVERIFY(isOffered());
            button->click();
            QVERIFY(notice->isHidden() && !isOffered());
        }
        const TileMap &cells = *project().map(map)->tileLayer();
        QCOMPARE(cells.cellAt({0, 0}), cells.cellAt({1, 0}));
        QUndoStack *stack = documents().undoStackFor(map);
        QCOMPARE(stack->undoText(), "Import Again");
        stack->undo();
        QVERIFY(cells.cellAt({0, 0}) != cells.cellAt({1, 0}));

        QVERIFY(QFile::remove(file) && !isOffered());
        entry(m_window->menus()->mapMenu())->trigger();
        QVERIFY(dialog()->isVisible());
        dialog()->close();

        // a picture that is placed in the image in front
        const auto image = project().createImage(Quenmora::LoRes_128x96, "Title", QUuid());
        const QAction *again = entry(m_window->menus()->imageMenu());
        QVERIFY(!again->isEnabled());
        emit documents().pictureImported(image->id(), file, {});
        QVERIFY(again->isEnabled());
        m_window.reset();
    }
};

QUENMORA_TEST_MAIN(TestImportAgain)
#include "tst_importagain.moc"
