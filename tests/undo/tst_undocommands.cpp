// The commands by themselves: when they merge, that each leads to the states before and after it, and what it leaves
// alone of what came in between; and the pictures that follow the order of a palette.

#include "model/projectextras.h"
#include "support/randomproject.h"
#include "support/testmain.h"
#include "undo/editclock.h"
#include "undo/editrecorder.h"
#include "undo/mapeditcommand.h"
#include "undo/palettecolourcommand.h"
#include "undo/paletteordercommand.h"
#include "undo/pixeleditcommand.h"
#include "undo/snapshotcommand.h"
#include "undo/structurechange.h"

#include <QtGui>
#include <QtTest>

#include <functional>
#include <numeric>
#include <optional>

namespace {

const TileMap::TileData Turned{.index = 2, .rotate = true, .offset = 3, .used = true};

/// One edit of any kind that a map knows, at any place.
void editAnyhow(Map &map, QRandomGenerator &random)
{
    const QPoint at(random.bounded(-2, 25), random.bounded(-2, 15));
    const auto position = random.bounded(2) ? Quenmora::Begin : Quenmora::End;
    const int index = random.bounded(4);
    const std::function<void()> edits[] = {
        [&] {
            map.resize({random.bounded(30), random.bounded(20)}, Qt::AlignRight | Qt::AlignBottom);
        },
        [&] { map.insertColumn(position); },
        [&] { map.removeRow(position); },
        [&] { map.animatedBlocks()->add(QRect(at, QSize(2, 3)), QUuid::createUuid()); },
        [&] { map.removeAnimationAt(map.animatedBlocks()->areaAt(at)); },
        [&] { map.addSprite({.bank = {}, .animation = {}, .sprite = index, .x = at.x(), .name = "new"}); },
        [&] { map.removeSprite(0); },
        [&] { map.setTiles(QRect(0, at.y(), map.size().width(), 2), index, false, true, false, true); }, // whole rows
        [&] { map.setTiles(QRect(at, QSize(3, 3)), index, false, true, false, true); },
        [&] { map.setTile(at, Turned); },
        [&] { map.objectLayer()->setCell(at, Turned); },
    };
    edits[random.bounded(int(std::size(edits)))]();
}

/// A map and the undo stack of its edits.
struct Editor
{
    Editor() { map->setLayers(&tiles, &objects); }

    template <typename Edit>
    void edit(Edit change)
    {
        const Map::Snapshot before = map->snapshot();
        change();
        stack.push(new MapEditCommand("Edit", &*map, before, map->snapshot()));
    }

    TileMap tiles{20, 10};
    TileMap objects{20, 10};
    std::optional<Map> map{std::in_place, "Level"};
    QUndoStack stack;
};

QByteArray bytesOf(const QImage &picture)
{
    const QImage colours = picture.convertToFormat(QImage::Format_ARGB32);
    return {reinterpret_cast<const char *>(colours.constBits()), colours.sizeInBytes()};
}

/// All that can be seen of a project.
QList<QByteArray> look(const Project &project)
{
    QList<QByteArray> seen;
    for (const auto &tiles : project.tileSets()) {
        for (int tile = 0; tile < tiles->count(); ++tile) {
            QByteArray colours;
            for (const uchar pixel : tiles->tile(tile)->pixels())
                colours += QByteArray::number(tiles->palette()->rawColour(tiles->tileOffset(tile) * 16 + pixel % 16));
            seen += colours;
        }
    }
    for (const auto &bank : project.spriteBanks()) {
        for (int sprite = 0; sprite < bank->count(); ++sprite)
            seen += bytesOf(bank->renderSprite(sprite, 0, false, false, false));
    }
    for (const auto &map : project.maps()) {
        for (const Map::PlacedSprite &placed : map->sprites()) {
            const auto bank = project.spriteBank(placed.bank);
            for (int sprite = 0; sprite < bank->count(); ++sprite)
                seen += bytesOf(bank->renderSprite(sprite, placed.paletteOffset, false, false, false));
        }
        QImage picture(map->size() * 8, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        map->paintLayers(painter, {}, {QPoint(), map->size()}, 8, map->tileTransparencyIndex());
        painter.end();
        seen += bytesOf(picture);
    }
    for (const auto &image : project.images())
        seen += bytesOf(image->image());
    return seen;
}

/// The numbers of which pictures are made.
QList<QByteArray> numbers(const Project &project)
{
    QList<QByteArray> found;
    for (const auto &tiles : project.tileSets()) {
        for (int tile = 0; tile < tiles->count(); ++tile)
            found += indices(tiles->image(tile));
    }
    for (const auto &bank : project.spriteBanks())
        found += indices(bank->image());
    for (const auto &image : project.images())
        found += indices(image->image());
    return found << indices(project.scratchImage());
}

/// A project with a palette, and the undo stack of its orders.
struct ColouredProject
{
    [[nodiscard]] ColourCycles::List cycles() const { return ColourCycles::of(*project.extras(), palette->id()); }
    void setCycles(const ColourCycles::List &cycles) { ColourCycles::set(*project.extras(), palette->id(), cycles); }
    void sort(const QList<int> &places, const QList<int> &sources)
    {
        stack.push(new PaletteOrderCommand("Sort", &project, palette, PaletteOrder(places, sources)));
    }

    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Colours");
    QUndoStack stack;
};

} // namespace

class TestUndoCommands : public QObject
{
    Q_OBJECT

private slots:
    void nearEditsOfTheSameKeyMerge()
    {
        constexpr qint64 Unlimited = -1;
        // id, key of the last command (that of the others is "a"), interval, gap, resulting steps
        const std::tuple<int, const char *, qint64, qint64, int> cases[] = {
            {7, "a", 100, 100, 1}, // each follows the one before: the limit slides
            {7, "a", 100, 101, 4},
            {7, "a", 100, -5000, 1}, // the clock was set back
            {7, "a", Unlimited, 1'000'000'000, 1},
            {7, "b", 100, 0, 2},
            {-1, "a", Unlimited, 0, 4},
        };
        for (const auto &[id, lastKey, interval, gap, steps] : cases) {
            QList<int> restored;
            QUndoStack stack;
            for (int value = 1; value <= 4; ++value) {
                EditClock::setSource([time = 1'000'000 + value * gap] { return time; });
                stack.push(new SnapshotCommand<int>(
                    QString::number(value), value - 1, value, [&](int state) { restored.append(state); }, id,
                    value == 4 ? lastKey : "a", interval));
            }
            EditClock::setSource({});
            QCOMPARE(stack.count(), steps);
            QCOMPARE(stack.undoText(), steps == 1 ? "1" : "4");
            QVERIFY2(restored.isEmpty(), "a command is pushed when its edit has been made");
            stack.undo();
            stack.redo();
            QCOMPARE(restored, (QList<int>{steps == 1 ? 0 : 3, 4}));
        }
    }

    void onlyScrollsOfTheSamePictureMerge()
    {
        const auto keyOf = [](QObject *image) { return QVariant::fromValue(QPointer<QObject>(image)); };
        using enum PixelEditCommand::Kind;
        for (const auto &[kind, key, merged] : {std::tuple{Scroll, keyOf(this), true},
                                                {Scroll, keyOf(qApp), false},
                                                {Scroll, QVariant("set:4"), false},
                                                {Nudge, keyOf(this), false},
                                                {None, keyOf(this), false}}) {
            QList<int> applied; // the width of a picture tells which one it is
            const auto push = [&](QUndoStack &stack, int width, const QVariant &of, PixelEditCommand::Kind how) {
                const auto picture = [](int pixels) { return QImage(pixels, 1, QImage::Format_Grayscale8); };
                const auto apply = [&applied](const QImage &image) { applied.append(image.width()); };
                stack.push(new PixelEditCommand({}, picture(width - 1), picture(width), apply, of, how));
            };
            QUndoStack stack;
            push(stack, 2, keyOf(this), Scroll);
            push(stack, 3, key, kind);
            QCOMPARE(stack.count(), merged ? 1 : 2);
            stack.undo();
            stack.redo();
            QCOMPARE(applied, (QList<int>{merged ? 1 : 2, 3}));
        }
    }

    void editsOfMapsGoBackToEveryState()
    {
        const quint32 seed = QRandomGenerator::global()->generate();
        qInfo("seed %u", seed);
        QRandomGenerator random(seed);
        Editor editor;
        QList<Map::Snapshot> states{editor.map->snapshot()};
        for (int step = 0; step < 200; ++step) {
            editor.edit([&] { editAnyhow(*editor.map, random); });
            states.append(editor.map->snapshot());
        }
        for (int walk = 0; walk < 100; ++walk) {
            editor.stack.setIndex(random.bounded(editor.stack.count() + 1));
            QVERIFY(editor.map->snapshot() == states.at(editor.stack.index()));
        }
        editor.map.reset(); // a dead map is safe
        editor.stack.setIndex(0);
    }

    /// As cell by cell: what differs gets its other content, in a grid that others have moved, resized and written in
    /// since; a grid that the edit itself resized keeps what others wrote.
    void gridsGetTheCellsThatDiffer()
    {
        QRandomGenerator random(4);
        const auto chance = [&random] { return random.bounded(2) == 1; };
        const auto anySize = [&random] { return QSize(random.bounded(1, 7), random.bounded(1, 5)); };
        const auto scatter = [&random](TileMap &grid, int cells) {
            for (; cells > 0; --cells)
                grid.setCell({random.bounded(7), random.bounded(5)}, {.index = random.bounded(3)});
        };
        for (int round = 0; round < 10'000; ++round) {
            const bool resizes = chance();
            const bool careful = chance();
            const bool back = chance();
            const QPoint shift = chance() ? QPoint() : QPoint(random.bounded(-2, 3), random.bounded(-2, 3));
            TileMap from(anySize());
            TileMap to(anySize());
            TileMap now(anySize());
            TileMap expected(0, 0);
            scatter(from, 8);
            if (!resizes)
                to.restore(from.rows());
            scatter(to, 6);
            if (chance())
                now.restore(from.rows());
            scatter(now, 3);
            if (resizes && shift.isNull() && from.size() == to.size())
                continue;
            expected.restore((resizes ? to : now).rows());
            for (int i = 0; i < from.size().width() * from.size().height(); ++i) {
                const QPoint at(i % from.size().width(), i / from.size().width());
                const TileMap::TileData cell = from.cellAt(at);
                if (resizes && now.bounds().contains(at) && now.cellAt(at) != cell)
                    expected.setCell(at + shift, now.cellAt(at));
                if (!resizes && to.cellAt(at) != cell && (!careful || now.cellAt(at + shift) == cell))
                    expected.setCell(at + shift, to.cellAt(at));
            }
            const QPoint moved = resizes ? shift : QPoint(); // by the edit; else by others
            LayerChange change =
                back ? LayerChange(to.rows(), from.rows(), -moved) : LayerChange(from.rows(), to.rows(), moved);
            if (!resizes)
                change = change.moved(shift);
            TileMap::Rows rows = now.rows();
            if (careful)
                change.applyWhereUntouched(back ? EditSide::Before : EditSide::After, rows);
            else
                change.apply(back ? EditSide::Before : EditSide::After, rows);
            QVERIFY2(rows == expected.rows(), qPrintable(QString::number(round)));
        }
    }

    void whatIsDrawnOnATileSinceStays()
    {
        const auto editOf = [](int value, int lastPixel) {
            QImage picture = plainImage({8, 8}, value);
            picture.setPixel(7, 7, uint(lastPixel));
            return TileSetEdit{{Tile::State{picture}}, {}, {}, {0}};
        };
        const TileSetChange change(editOf(1, 1), editOf(2, 2));
        for (const auto &[lastPixel, left] : {std::pair{2, editOf(1, 1)}, {3, editOf(2, 3)}})
            QVERIFY(change.undone(editOf(2, lastPixel)).looksLike(left));
    }

    void deletedTilesComeBackWhereTheirCellsAreNow()
    {
        Project project;
        const QPointer<TileSet> tiles = project.createTileSet("Tiles", {}, 3);
        const QPointer<Map> map = project.createMap("Level", tiles->id(), {2, 1});
        map->setTile({1, 0}, Turned);
        QUndoStack stack;
        const EditRecorder recorder(&project, [&stack](const QUuid &) { return &stack; });
        tiles->deleteTile(Turned.index);
        map->insertColumn(Quenmora::Begin);
        stack.undo();
        QCOMPARE(map->tileLayer()->cellAt({2, 0}), Turned);
    }

    void noBankBecomesEmptyOrTooLargeOrHasASpriteTwice()
    {
        using Names = Numbering::Names;
        const auto bankOf = [](const Names &names) {
            SpriteBankEdit edit;
            edit.bank.image = plainImage({16, 16 * int(names.size())}, 1);
            edit.names = names;
            return edit;
        };
        Names full(SpriteBank::MaxCount);
        std::iota(full.begin(), full.end(), 0);
        const Names most = full.sliced(1);
        for (const auto &[before, after, now] : {std::tuple{Names{0}, Names{0, 1}, Names{1}},
                                                 {Names{0, 1}, Names{0}, Names{1, 0}},
                                                 {full, most, most + Names{SpriteBank::MaxCount}}})
            QCOMPARE(SpriteBankChange(bankOf(before), bankOf(after), {}).undone(bankOf(now)).names, now);
    }

    void picturesLookAsBefore()
    {
        int moved = 0;
        for (quint32 seed = 1; seed <= 12; ++seed) {
            RandomProject random(seed);
            Project &project = random.project;
            const QPointer<Palette> palette = project.palettes().first();
            if (seed % 3 == 0) { // with less that holds entries in their places
                for (int tile = 0; tile < random.tiles->count(); ++tile)
                    random.tiles->setTileOffset(tile, 3);
                for (const auto &map : project.maps())
                    project.deleteMap(map->id());
                for (const auto &blocks : project.blockSets())
                    project.deleteBlocks(blocks->id());
            }
            const PaletteUsers users(project, *palette);
            QVERIFY(users.needGroups());
            PaletteOrder order;
            for (const QList<int> &entries : users.movable(0, 255)) {
                QList<int> shuffled = entries;
                for (qsizetype i = shuffled.size() - 1; i > 0; --i)
                    shuffled.swapItemsAt(i, random.number(int(i) + 1));
                order = order.then(PaletteOrder(entries, shuffled));
            }
            moved += !order.changesNothing();
            const auto before = look(project);
            const auto numbersBefore = numbers(project);
            QUndoStack stack;
            stack.push(new PaletteOrderCommand("Sort", &project, palette, order));
            QCOMPARE(look(project), before);
            QCOMPARE(numbers(project) == numbersBefore, order.changesNothing());
            stack.undo();
            QCOMPARE(look(project), before);
            QCOMPARE(numbers(project), numbersBefore);
        }
        QVERIFY(moved > 3);
    }

    void rangesFollowTheirEntries()
    {
        const ColourCycles::List before{{20, 23, 7, true}, {30, 31, 2}};
        const std::tuple<QList<int>, QList<int>, ColourCycles::List> cases[] = {
            // places, the entries that come there, and the ranges then
            {{40, 41, 42, 43, 20, 21, 22, 23}, {20, 21, 22, 23, 40, 41, 42, 43}, {{30, 31, 2}, {40, 43, 7, true}}},
            {{19, 20, 21, 22, 23}, {20, 21, 22, 23, 19}, {{19, 22, 7, true}, {30, 31, 2}}}, // among others
            {{20, 21, 22, 23}, {23, 22, 21, 20}, {{20, 23, 7, false}, {30, 31, 2}}}, // reversed
            {{20, 21, 22, 23}, {21, 20, 23, 22}, {{20, 23, 7, false}, {30, 31, 2}}}, // reversed and shifted
            {{20, 21, 22, 23}, {22, 23, 20, 21}, before}, // shifted
            {{21, 22}, {22, 21}, before}, // in another order
            {{30, 31}, {31, 30}, before}, // two
            {{23, 24}, {24, 23}, {{30, 31, 2}}}, // torn
            {{23, 31}, {31, 23}, {}}, // both torn
        };
        for (const auto &[places, sources, after] : cases) {
            ColouredProject scene;
            scene.setCycles(before);
            scene.sort(places, sources);
            for (int round = 0; round < 2; ++round) {
                QCOMPARE(scene.cycles(), after);
                scene.stack.undo();
                QCOMPARE(scene.cycles(), before);
                scene.stack.redo();
            }
        }
    }

    void rangesThatWereMadeSinceStay()
    {
        const ColourCycles::List around{{22, 25}};
        const ColourCycles::List beside{{21, 23}};
        ColouredProject scene;
        scene.setCycles({{20, 23}});
        scene.sort({23, 24}, {24, 23});
        scene.setCycles(around);
        scene.stack.undo();
        QCOMPARE(scene.cycles(), around); // which has entries of the first one
        scene.stack.redo();
        scene.setCycles(beside);
        scene.stack.undo();
        QCOMPARE(scene.cycles(), ColourCycles::List()); // undo tears it apart
        scene.stack.redo();
        QCOMPARE(scene.cycles(), beside);
    }

    void earlierColoursComeBackToTheirEntries()
    {
        Palette palette;
        QUndoStack stack;
        palette.setRawColour(5, 0x1234);
        stack.push(new PaletteColourCommand(&palette, 5, 0x1111, 0x1234));
        palette.setRawColour(5, 0);
        palette.setRawColour(9, 0x1234);
        PaletteHistory::of(palette).add({{5, 9}, {9, 5}}); // on the stack of another document
        stack.push(new PaletteColourCommand(&palette, 5, 0, 0)); // which merges no more
        QCOMPARE(stack.count(), 2);
        stack.undo();
        stack.undo();
        QVERIFY(palette.rawColour(9) == 0x1111 && palette.rawColour(5) == 0);
        stack.redo();
        QCOMPARE(palette.rawColour(9), 0x1234);
    }
};

QUENMORA_TEST_MAIN(TestUndoCommands)
#include "tst_undocommands.moc"
