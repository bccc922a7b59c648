// The commands by themselves: when they merge, and that each leads to the
// states before and after it.

#include "model/map.h"
#include "support/testmain.h"
#include "undo/editclock.h"
#include "undo/mapeditcommand.h"
#include "undo/pixeleditcommand.h"
#include "undo/snapshotcommand.h"

#include <QtGui>
#include <QtTest>

#include <functional>
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

} // namespace

class TestMapEditCommand : public QObject
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

    void undoInANarrowerMapStaysInIt()
    {
        Editor editor;
        editor.edit([&] {
            editor.map->setTiles(QRect(0, 2, 10, 1), 4, false, false, false, true);
            editor.map->setTiles(QRect(3, 3, 10, 5), 4, false, false, false, true);
        });
        editor.map->setTile({14, 3}, Turned);
        for (const int width : {15, 10, 5}) { // wider than the first changed cells, as wide, and narrower
            editor.map->resize({width, 4});
            for (const bool back : {true, false}) {
                editor.stack.setIndex(back ? 0 : 1);
                QVERIFY(editor.tiles.cellAt({4, 2}).used != back && editor.tiles.cellAt({4, 3}).used != back);
                QCOMPARE(editor.tiles.cellAt({14, 3}), width == 15 ? Turned : TileMap::TileData());
                for (const TileMap::Row &row : editor.tiles.rows())
                    QCOMPARE(row.size(), width);
            }
        }
    }
};

QUENMORA_TEST_MAIN(TestMapEditCommand)
#include "tst_mapeditcommand.moc"
