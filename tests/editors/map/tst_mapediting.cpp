// A map that is edited and played without a widget.

#include "editors/map/mapanimator.h"
#include "editors/map/mapediting.h"
#include "support/mapfixture.h"
#include "support/testmain.h"

#include <QTimer>

using namespace Quenmora;
using MapEditor::MapEditing;

namespace {

struct Fixture : MapAssets
{
    MapEditor::MapContent content;
    MapEditing editing{content};

    Fixture()
    {
        content.setSpriteBanks({bank});
        content.setMap(map);
        editing.mapChanged();
        editing.edit().setUndoStack(&stack);
    }
    int index(int x, int y) const { return tile(x, y).index; }
    void write(int index) { map->setTile({0, 0}, {.index = index, .used = true}); }
};

/// The map with the animation at (3, 4).
struct Played : MapAssets
{
    MapEditor::MapAnimator animator;

    explicit Played(int delay)
    {
        animation->setDelay(delay);
        map->placeAnimation(animation, {3, 4});
        animator.setMap(map);
    }

    void tick(int times = 1)
    {
        for (int i = 0; i < times; ++i)
            animator.tick();
    }
};

} // namespace

class TestMapEditing : public QObject
{
    Q_OBJECT

private slots:
    void outermostEditIsTheStep()
    {
        Fixture f;
        MapEditor::MapEdit &edit = f.editing.edit();
        edit.end("Nothing was begun");
        edit.begin();
        edit.run("Inner", [&f](Map &) { f.write(3); });
        f.write(4);
        edit.end("Outer");
        edit.run("No change", [&f](Map &) { f.write(4); });
        edit.begin();
        edit.begin();
        f.write(5);
        edit.endAll("All");
        edit.setUndoStack(nullptr);
        edit.run("Not recorded", [&f](Map &) { f.write(6); });
        QCOMPARE(f.steps(), "Outer|All");
        f.stack.setIndex(1);
        QCOMPARE(f.index(0, 0), 4);
    }

    void playedFramesAreNoEdit()
    {
        Fixture f;
        f.map->placeAnimation(f.animation, {3, 3});
        const auto play = [&f](int frame) { f.map->stampFrame(*f.animation, frame, {3, 3, 3, 2}); };
        f.editing.edit().run("Played", [&play](Map &) { play(1); });
        f.editing.edit().run("Played and written", [&f, &play](Map &) {
            f.write(4);
            play(0);
        });
        play(1);
        QCOMPARE(f.steps(), "Played and written");
        f.stack.undo();
        QCOMPARE(f.object(3, 3).index, 6); // the frame stays as it plays
        QCOMPARE(f.index(0, 0), 0);
    }

    void selectionEndsWithTheMap()
    {
        using Operation = void (*)(MapEditing &);
        for (const auto &[text, size, operation] :
             {std::tuple("Add Rows", QSize(20, 19), Operation([](MapEditing &e) { e.addRows(Begin, 3); })),
              {"Add Columns", {22, 16}, [](MapEditing &e) { e.addColumns(End, 2); }},
              {"Remove Rows", {20, 1}, [](MapEditing &e) { e.removeRows(End, 500); }},
              {"Remove Columns", {1, 16}, [](MapEditing &e) { e.removeColumns(End, 50); }},
              {"Resize Map", {5, 7}, [](MapEditing &e) {
                   e.resizeMap({5, 7}, Qt::AlignLeft | Qt::AlignTop);
               }}}) {
            Fixture f;
            const QSize kept = size.boundedTo({20, 16});
            f.map->addSprite(f.sprite(1, {150, 120}));
            f.editing.pointer() = {.cell = {2, 2}, .highlight = {2, 2, 3, 2}, .press = {}, .held = {}};
            f.editing.select({-5, -5, 100, 100});
            f.editing.selectSprite(0);
            QSignalSpy resized(&f.editing, &MapEditing::mapResized);
            operation(f.editing);
            QCOMPARE(f.steps(), text);
            QCOMPARE(f.editing.selection().cells, QRect(QPoint(0, 0), kept));
            QCOMPARE(f.editing.selection().sprite, f.map->sprites().isEmpty() ? -1 : 0);
            QVERIFY(!f.editing.pointer().hasCell() && f.editing.pointer().highlight.isEmpty());
            f.editing.select({QPoint(0, 0), size});
            f.stack.undo();
            QCOMPARE(resized, (Signals{{size}, {QSize(20, 16)}}));
            QCOMPARE(f.editing.selection().cells.size(), kept);
            f.editing.selectSprite(0);
            delete f.map;
            QVERIFY(f.editing.selection().cells.isEmpty() && f.editing.selection().sprite == -1);
            operation(f.editing);
        }
    }

    void selectionFollowsThePlacedSprites()
    {
        Fixture f;
        for (int i = 0; i < 3; ++i)
            f.map->addSprite(f.sprite(i, {i * 32, 0}));
        f.editing.selectSprite(2);
        Map::PlacedSprite changed = f.map->sprites().at(2);
        changed.name = "Door";
        f.editing.setSprite(changed);
        QSignalSpy selected(&f.editing, &MapEditing::selectedSpriteChanged);
        for (const int under : {0, 1, -1}) {
            f.editing.pointer().sprite = under;
            QCOMPARE(f.editing.removeSprite(), under >= 0);
            QCOMPARE(f.map->sprites().last(), under == 0 ? changed : f.sprite(1, {32, 0}));
        }
        f.stack.undo();
        f.editing.selectSprite(1);
        f.stack.redo();
        QCOMPARE(selected, (Signals{{1}, {-1}, {1}, {-1}})); // it is gone
    }

    void animatorTellsOnlyWhatChanged()
    {
        Played f(2);
        QCOMPARE(f.animator.findChild<QTimer *>()->interval(), 20);
        QSignalSpy advanced(&f.animator, &MapEditor::MapAnimator::framesAdvanced);
        f.tick(); // frame 0, which is there already
        QVERIFY(f.animator.changedAreas().isEmpty());
        f.tick(); // nothing is due
        QCOMPARE(advanced.count(), 1);
        f.tick();
        QCOMPARE(advanced.count(), 2);
        QCOMPARE(f.animator.changedAreas(), (QList<QRect>{{3, 4, 3, 2}}));
        QVERIFY(f.map->removeAnimationAt({3, 4, 3, 2}));
        f.tick(2);
        QVERIFY(advanced.count() == 2 && f.animator.changedAreas().isEmpty());
        f.map->addSprite({}); // which may be animated
        f.tick();
        QCOMPARE(advanced.count(), 3);
    }

    void animatorShowsAFrameEachDelay()
    {
        // the tile shown after each tick; the first tick shows the frame that is there
        for (const auto &[delay, shown] :
             {std::pair(0, QList{5, 5, 5}), {1, QList{5, 6, 5}}, {5, QList{5, 5, 5, 5, 5, 6, 6, 6, 6, 6, 5}}}) {
            Played f(delay);
            f.map->placeAnimation(f.animation, {10, 4});
            const QPointer<MapObjects> others = f.project.createBlockList("Others", f.tiles->id());
            const QPointer<TileAnimation> water = others->createBoundTileAnimation("Water");
            water->addFrame();
            water->addFrame()->setIndex(0, 0, 2);
            water->setDelay(2);
            f.map->placeAnimation(water, {0, 0});
            for (int i = 0; i < shown.size(); ++i) {
                QCOMPARE(f.animator.ticks(), quint64(i));
                f.tick();
                QCOMPARE(f.object(3, 4).index, shown.at(i));
                QCOMPARE(f.object(12, 5).index, shown.at(i)); // every placement
                QCOMPARE(f.object(0, 0).index, i / 2 % 2 * 2); // of every block set
            }
        }
    }
};

QUENMORA_TEST_MAIN(TestMapEditing)
#include "tst_mapediting.moc"
