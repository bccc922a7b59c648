#include "app/imports/imageagain.h"
#include "app/imports/importagain.h"
#include "app/imports/importkeeper.h"
#include "app/imports/importnotice.h"
#include "app/mainwindow.h"
#include "app/menus/mapmenu.h"
#include "app/menus/menubar.h"
#include "app/projectactions.h"
#include "app/projectcontroller.h"
#include "editors/canvas/imageimport.h"
#include "importing/filekind.h"
#include "model/image.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/projectextras.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "pictures/ninebitcolour.h"
#include "pictures/tilereduction.h"
#include "support/editorinput.h"
#include "support/modeltools.h"
#include "support/testmain.h"
#include "ui/messagedialog.h"
#include "undo/editrecorder.h"

#include <QTemporaryDir>
#include <QToolButton>
#include <QUndoStack>

namespace {

/// A picture of the machine's colours in squares of side × side pixels, each of them unlike all others, turned or not.
QImage squares(QSize size, int side)
{
    QImage picture(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int square = y / side * (size.width() / side) + x / side;
            const bool drawn = (x % side + 3 * (y % side)) % (5 + square) == 0 && x % side < side - 1;
            picture.setPixel(x, y, NineBitColour::shown(drawn ? 73 * (square % 7 + 1) % 512 : 438));
        }
    }
    return picture;
}

void fill(QImage &picture, const QRect &area, QRgb colour)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            picture.setPixel(x, y, colour);
    }
}

QList<quint16> wordsOf(const Palette &palette)
{
    QList<quint16> words;
    for (int i = 0; i < Palette::Size; ++i)
        words.append(palette.rawColour(i));
    return words;
}

/// A project that assets are imported into, with one undo stack.
struct Scene
{
    QTemporaryDir folder;
    Project project;
    QUndoStack stack;
    EditRecorder recorder{&project, [this](const QUuid &) { return &stack; }};
    ProjectActions actions{[this] { return &project; }};
    ImportMemory memory;
    QUuid asset;
    QString file = folder.filePath("art.png");

    Scene()
    {
        memory.setProject(&project, {});
        actions.setUndoStackProvider([this](const QUuid &) { return &stack; });
        QObject::connect(&actions, &ProjectActions::imported, &memory, &ImportMemory::remember);
        QObject::connect(&actions, &ProjectActions::imported, &memory, [this](const QUuid &id) { asset = id; });
    }
    ImportedAgain again()
    {
        const auto record = memory.recordOf(asset);
        if (!record)
            return {"not remembered", {}, {}};
        const auto done = ImportedAgain::run(
            project, asset, *record, [this](const QUuid &) { return &stack; }, nullptr);
        if (done.failure.isEmpty())
            memory.remember(asset, record->kind, record->file, done.choices);
        return done;
    }
};

} // namespace

class TestImportAgain : public QObject
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
        const QPointer<TileSet> tiles = map->tileSet();
        const QPointer<Map> other = s.project.createMap("Other", tiles->id(), {40, 32}); // which shows what will go
        other->setTile({5, 5}, map->tileLayer()->cellAt({2, 1}));
        tiles->setTileImage(200, plainImage({8, 8}, 1)); // which nothing shows yet
        QVERIFY(s.again().failure.isEmpty());
        QCOMPARE(s.stack.count(), 0); // nothing has changed

        const auto shown = [](const Map &level, QRect cells) {
            return level.tileLayer()->render(cells, 1, 15).convertToFormat(QImage::Format_ARGB32);
        };
        const QImage otherBefore = shown(*other, {5, 5, 1, 1});
        const Map::Snapshot before = map->snapshot();
        const TileSet::Snapshot tilesBefore = tiles->snapshot();
        const QList<quint16> words = wordsOf(*tiles->palette());
        picture = picture.copy(0, 0, 72, 32); // a column more
        fill(picture, {64, 0, 8, 32}, NineBitColour::shown(300)); // in a colour that is new
        fill(picture, {8, 0, 8, 8}, NineBitColour::shown(300)); // a tile that goes
        fill(picture, {16, 8, 4, 8}, NineBitColour::shown(7)); // the one that is shown elsewhere
        QVERIFY(picture.save(s.file));
        QCOMPARE(s.memory.changedAssets(), QList<QUuid>{s.asset});
        const ImportedAgain done = s.again();
        QCOMPARE(done.failure, QString());
        QVERIFY(s.memory.changedAssets().isEmpty());
        QCOMPARE(map->size(), QSize(9, 4));
        const QImage now = shown(*map, {0, 0, 9, 4});
        QImage wanted = picture;
        if (!reduced) { // what cutting makes of it
            Scene fresh;
            QVERIFY(picture.save(fresh.file));
            fresh.actions.importMap(fresh.file);
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
        QCOMPARE(wordsOf(*tiles->palette()), words);
        for (int i = 0; i < tiles->count(); ++i)
            QCOMPARE(tiles->tile(i)->pixels(), Tile(tilesBefore.value(i)).pixels());
        s.stack.redo();
        QCOMPARE(shown(*map, {0, 0, 9, 4}), now);
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
        QVERIFY(picture.save(s.file));
        s.actions.importSpritePicture({.file = s.file,
                                       .name = "Hero",
                                       .depth = Quenmora::EightBit,
                                       .paletteId = newPalette ? QUuid() : standard,
                                       .keepColours = true});
        const QPointer<SpriteBank> bank = s.project.spriteBank(s.asset);
        const int first = newPalette ? 0 : 1;
        QVERIFY(bank && bank->count() == first + 4);
        bank->addSprite();
        bank->setImage(first + 4, plainImage({16, 16}, 1)); // drawn by hand
        const auto colour = [&bank](int sprite) {
            return bank->renderSprite(sprite, 0, false, false, false).pixel(15, 15); // of the ground
        };
        const auto rendered = [&bank] {
            QList<QImage> all;
            for (int i = 0; i < bank->count(); ++i)
                all.append(bank->renderSprite(i, 0, false, false, false));
            return all;
        };
        const QList<QImage> before = rendered();
        const int steps = s.stack.count();
        picture = picture.copy(0, 0, 80, 16);
        fill(picture, {64, 0, 16, 16}, NineBitColour::shown(292));
        fill(picture, {16, 0, 16, 16}, NineBitColour::shown(511));
        QVERIFY(picture.save(s.file));
        QCOMPARE(s.again().failure, QString());
        QCOMPARE(bank->count(), first + 6);
        for (const int same : {first, first + 2, first + 3, first + 4})
            QCOMPARE(bank->renderSprite(same, 0, false, false, false), before[same]);
        QCOMPARE(colour(first + 1), NineBitColour::shown(511));
        if (newPalette)
            QCOMPARE(colour(first + 5), NineBitColour::shown(292));
        QCOMPARE(s.stack.count(), steps + 1);
        s.stack.undo();
        QCOMPARE(rendered(), before);
        s.stack.redo();
        QCOMPARE(s.again().failure, QString());
        QCOMPARE(s.stack.count(), steps + 1); // as it is
        fill(picture, {64, 0, 16, 16}, NineBitColour::shown(0));
        QVERIFY(picture.save(s.file));
        QCOMPARE(s.again().failure, QString());
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
        QCOMPARE(s.again().failure, QString());
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
        QCOMPARE(s.again().failure, QString());
        QCOMPARE(palette->rawColour(0), NineBitColour::wordOf(300));
        QVERIFY(QFile::remove(s.file));
        QCOMPARE(s.again().failure, "The file is not there any more:\n" + s.file);
    }

    /// What any other file became takes its content again.
    void filesOfOtherKinds()
    {
        Scene s;
        const auto write = [&s](quint16 word) {
            QByteArray bytes;
            for (int i = 0; i < Palette::Size; ++i)
                bytes.append(char(word >> 8)).append(char(word & 0xff));
            QFile file(s.file);
            return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        };
        QVERIFY(write(0x2401));
        const auto file = Importing::ImportFile::open(s.file);
        QVERIFY(bool(file));
        const Importing::Guess guess = Importing::recognise(*file).constFirst();
        const Importing::ImportChoices choices{.kind = guess.kind, .options = guess.options, .name = "Sky"};
        const auto stackFor = [&s](const QUuid &) { return &s.stack; };
        const auto added =
            Importing::addTo(s.project, *Importing::prepare(s.project, *file, choices), choices, stackFor);
        QVERIFY(bool(added));
        s.asset = added->palette;
        s.memory.remember(s.asset, ImportRecord::File, s.file, choices.toJson());
        const QPointer<Palette> palette = s.project.palette(s.asset);
        QCOMPARE(palette->rawColour(7), 0x2401);
        QVERIFY(write(0x4800));
        QCOMPARE(s.again().failure, QString());
        QCOMPARE(palette->rawColour(7), 0x4800);
        QCOMPARE(s.project.palettes().size(), 1);
        s.stack.undo();
        QCOMPARE(palette->rawColour(7), 0x2401);
    }

    /// Named as seen from the project's file, wherever that goes; what is damaged counts as nothing.
    void pathsGoWithTheProject()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath("game/art"));
        QVERIFY(squares({8, 8}, 8).save(folder.filePath("game/art/level.png")));
        Project project;
        const QUuid palette = project.createPalette(CreateAction::Blank, "Level")->id();
        ImportMemory memory;
        memory.setProject(&project, {});
        memory.remember(palette, ImportRecord::Palette, folder.filePath("game/art/level.png"), {});
        const auto path = [&project, palette] {
            return project.extras()->section("imports")[palette.toString()]["file"].toString();
        };
        QCOMPARE(path(), folder.filePath("game/art/level.png"));
        for (const auto &[file, seen] :
             {std::pair("game/level.quenmora", "art/level.png"), {"other/level.quenmora", "../game/art/level.png"}}) {
            memory.moveTo(folder.filePath(file));
            QCOMPARE(path(), seen);
            QCOMPARE(memory.recordOf(palette)->file, folder.filePath("game/art/level.png"));
        }
        for (const QJsonValue &damaged : {QJsonValue(7), QJsonValue(QJsonObject{{"kind", "map"}}),
                                          QJsonValue(QJsonObject{{"kind", "x"}, {"file", "y"}})}) {
            project.extras()->setSection("imports", QJsonObject{{palette.toString(), damaged}});
            QVERIFY(!memory.knows(palette) && memory.changedAssets().isEmpty());
        }
        project.extras()->setSection("imports", "nonsense");
        QVERIFY(!memory.knows(palette));
        project.extras()->setSection("imports", QJsonObject{{QUuid::createUuid().toString(), 7}});
        memory.moveTo(folder.filePath("game/level.quenmora"));
        QVERIFY(project.extras()->section("imports").isUndefined()); // of an asset that is gone
    }

    /// In the window: the entry of the menu, the offer, and what is told.
    void offersWhatChanged()
    {
        QTemporaryDir folder;
        MainWindow window;
        ProjectController &projects = *window.projectController();
        projects.newProject("Game");
        projects.setFileNameCallback([&folder] { return folder.filePath("game.quenmora"); });
        const QString file = folder.filePath("level.png");
        QImage picture = squares({32, 32}, 8);
        QVERIFY(picture.save(file));
        window.projectActions()->importReduction(file, TileReduction::of(picture, {}));
        projects.save();
        MapMenu *menu = window.menus()->mapMenu();
        const auto entry = [menu] { return EditorInput::entry(*menu, "Import Again"); }; // which may have a key
        QVERIFY(entry()->isEnabled());
        ImportKeeper &keeper = *window.importKeeper();
        ImportNotice *notice = keeper.notice();
        keeper.look();
        QVERIFY(notice->isHidden());
        const QUuid map = projects.project()->maps().constFirst()->id();

        // it is remembered with the project
        projects.openProject(folder.filePath("game.quenmora"));
        fill(picture, {0, 0, 8, 8}, NineBitColour::shown(300));
        QVERIFY(picture.save(file));
        keeper.look();
        QVERIFY(!notice->isHidden());
        const QList<QToolButton *> buttons = notice->findChildren<QToolButton *>();
        buttons[1]->click(); // not now
        QVERIFY(notice->isHidden());
        keeper.look();
        QVERIFY(notice->isHidden());
        fill(picture, {8, 0, 8, 8}, NineBitColour::shown(300));
        QVERIFY(picture.save(file));
        keeper.look();
        buttons[0]->click();
        QVERIFY(notice->isHidden());
        const QPointer<Map> level = projects.project()->map(map);
        QCOMPARE(level->tileLayer()->cellAt({0, 0}), level->tileLayer()->cellAt({1, 0}));
        QUndoStack *stack = window.documentController()->undoStackFor(map);
        QCOMPARE(stack->undoText(), "Import Again");
        stack->undo();
        QVERIFY(level->tileLayer()->cellAt({0, 0}) != level->tileLayer()->cellAt({1, 0}));

        QVERIFY(QFile::remove(file));
        keeper.look();
        QVERIFY(notice->isHidden());
        entry()->trigger();
        QVERIFY(window.messageDialog()->isVisible());
        window.messageDialog()->close();
    }
};

QUENMORA_TEST_MAIN(TestImportAgain)
#include "tst_importagain.moc"
