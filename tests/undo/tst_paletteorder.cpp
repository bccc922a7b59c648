// Entries of palettes that change places, and the pictures that follow them.

#include "model/projectextras.h"
#include "undo/palettecolourcommand.h"
#include "undo/paletteordercommand.h"

#include "support/randomproject.h"
#include "support/testmain.h"

#include <QtGui>
#include <QtTest>

namespace {

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

} // namespace

class TestPaletteOrder : public QObject
{
    Q_OBJECT

private slots:
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

    void rangesFollowTheirEntries_data()
    {
        using Cycles = ColourCycles::List;
        QTest::addColumn<PaletteOrder>("order");
        QTest::addColumn<Cycles>("after");
        const Cycles both{{20, 23, 7, true}, {30, 31, 2}}; // as they are before
        const auto row = [](const char *name, const QList<int> &places, const QList<int> &sources,
                            const Cycles &after) { QTest::newRow(name) << PaletteOrder(places, sources) << after; };
        row("elsewhere", {40, 41, 42, 43, 20, 21, 22, 23}, {20, 21, 22, 23, 40, 41, 42, 43},
            {{30, 31, 2}, {40, 43, 7, true}});
        row("among others", {19, 20, 21, 22, 23}, {20, 21, 22, 23, 19}, {{19, 22, 7, true}, {30, 31, 2}});
        row("reversed", {20, 21, 22, 23}, {23, 22, 21, 20}, {{20, 23, 7, false}, {30, 31, 2}});
        row("reversed and shifted", {20, 21, 22, 23}, {21, 20, 23, 22}, {{20, 23, 7, false}, {30, 31, 2}});
        row("shifted", {20, 21, 22, 23}, {22, 23, 20, 21}, both);
        row("in another order", {21, 22}, {22, 21}, both);
        row("two", {30, 31}, {31, 30}, both);
        row("torn", {23, 24}, {24, 23}, {{30, 31, 2}});
        row("both torn", {23, 31}, {31, 23}, {});
    }

    void rangesFollowTheirEntries()
    {
        QFETCH(PaletteOrder, order);
        QFETCH(ColourCycles::List, after);
        const ColourCycles::List before{{20, 23, 7, true}, {30, 31, 2}};
        Project project;
        const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Colours");
        const auto cycles = [&] { return ColourCycles::of(*project.extras(), palette->id()); };
        ColourCycles::set(*project.extras(), palette->id(), before);
        QUndoStack stack;
        stack.push(new PaletteOrderCommand("Sort", &project, palette, order));
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(cycles(), after);
            stack.undo();
            QCOMPARE(cycles(), before);
            stack.redo();
        }
    }

    void rangesThatWereMadeSinceStay()
    {
        Project project;
        const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Colours");
        const auto cycles = [&] { return ColourCycles::of(*project.extras(), palette->id()); };
        const auto make = [&](const ColourCycle &cycle) {
            ColourCycles::set(*project.extras(), palette->id(), {cycle});
        };
        const ColourCycle around{22, 25};
        const ColourCycle beside{21, 23};
        QUndoStack stack;
        make({20, 23});
        stack.push(new PaletteOrderCommand("Sort", &project, palette, PaletteOrder({23, 24}, {24, 23})));
        make(around);
        stack.undo();
        QCOMPARE(cycles(), (ColourCycles::List{around})); // which has entries of the first one
        stack.redo();
        make(beside);
        stack.undo();
        QCOMPARE(cycles(), ColourCycles::List()); // undo tears it apart
        stack.redo();
        QCOMPARE(cycles(), (ColourCycles::List{beside}));
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

QUENMORA_TEST_MAIN(TestPaletteOrder)
#include "tst_paletteorder.moc"
