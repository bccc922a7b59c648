#include "editors/map/mapediting.h"

#include "support/mapfixture.h"
#include "support/testmain.h"

using namespace Quenmora;
using MapEditor::MapEditing;

namespace {

/// The map as it is edited without a widget.
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
};

QUENMORA_TEST_MAIN(TestMapEditing)
#include "tst_mapediting.moc"
