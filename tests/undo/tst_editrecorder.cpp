#include "model/mapobjects.h"
#include "model/palette.h"
#include "support/testmain.h"
#include "undo/editclock.h"
#include "undo/editrecorder.h"

#include <QTest>
#include <QUndoStack>

#include <map>
#include <memory>
#include <numeric>

namespace {

/// A small project and a recorder that watches it; every asset has a stack of its own.
struct Scene
{
    Scene()
    {
        map->setTiles({0, 0, 8, 1}, 7, false, false, false, true);
        block->setSize({2, 1});
        block->addFrame()->setCells({{{5}, {6}}});
        recorder = std::make_unique<EditRecorder>(
            project.get(), [this](const QUuid &id) { return recording ? &stackOf(id) : nullptr; });
        EditClock::setSource([this] { return now; });
    }
    ~Scene() { EditClock::setSource({}); }

    QUndoStack &stackOf(const QUuid &id) { return stacks.try_emplace(id).first->second; }
    int steps() const
    {
        return std::accumulate(stacks.begin(), stacks.end(), 0,
                               [](int count, const auto &entry) { return count + entry.second.count(); });
    }
    void undoAndRedoEverything()
    {
        for (auto &[id, stack] : stacks) {
            stack.setIndex(0);
            stack.setIndex(stack.count());
        }
    }
    static void addSprite(SpriteBank &bank)
    {
        emit bank.structureAboutToChange();
        bank.addSprite();
        emit bank.structureChanged("Add Sprite");
    }

    void editEverything(int delay)
    {
        block->setDelay(delay);
        walk->setDelay(delay);
        palette->setColour(delay, Qt::white, false);
        tileSet->insertTile(0);
        addSprite(*bank);
    }

    qint64 now = 0;
    bool recording = true;
    std::unique_ptr<Project> project = std::make_unique<Project>();
    QPointer<Palette> palette = project->createPalette(CreateAction::DefaultNext, "Colours");
    QPointer<TileSet> tileSet = project->createTileSet("Tiles", palette->id(), 8);
    QPointer<Map> map = project->createMap("Level", tileSet->id(), {8, 1});
    QPointer<MapObjects> blocks = project->createBlockList("Blocks", tileSet->id());
    QPointer<TileAnimation> block = blocks->createBoundTileAnimation("Door");
    QPointer<SpriteBank> bank = project->createSpriteBank(Quenmora::EightBit, "Sprites", palette->id());
    QPointer<SpriteAnim> walk = bank->newAnimation();
    std::unique_ptr<EditRecorder> recorder;
    std::map<QUuid, QUndoStack> stacks;
};

} // namespace

class TestEditRecorder : public QObject
{
    Q_OBJECT

private slots:
    void colourEditsGatherWithinTheLimit()
    {
        Scene scene;
        // each edit 400 ms after the one before: the limit slides
        for (const auto &[index, colour] : {std::pair{5, Qt::white}, {3, Qt::red}, {5, Qt::green}}) {
            scene.palette->setColour(index, colour, false);
            scene.now += 400;
        }
        QUndoStack &stack = scene.stackOf(scene.palette->id());
        QCOMPARE(stack.undoText(), "Colour");
        QCOMPARE(stack.command(0)->id(), 1001);
        scene.now += 1;
        scene.palette->setColour(7, Qt::white, true);
        QCOMPARE(stack.count(), 2);

        const Palette &palette = *scene.palette;
        stack.setIndex(0); // the standard palette
        QVERIFY(palette.rawColour(3) == 0x0301 && palette.rawColour(5) == 0x0501 && palette.rawColour(7) == 0x0701);
        stack.setIndex(2);
        QVERIFY(palette.rawColour(3) == 0xE000 && palette.rawColour(5) == 0x1C00 && palette.rawColour(7) == 0xFF81);
        QCOMPARE(scene.steps(), 2);
    }

    void laterAssetsAreWatched()
    {
        Scene scene;
        scene.project->createPalette(CreateAction::Blank, "Late")->setColour(0, Qt::white, false);
        scene.project->createTileSet("Late", scene.palette->id(), 4)->deleteTile(0);
        const auto bank = scene.project->createSpriteBank(Quenmora::FourBit, "Late", scene.palette->id());
        scene.addSprite(*bank);
        const auto animation = bank->newAnimation();
        animation->setDelay(4); // still being made
        QCOMPARE(scene.steps(), 3);
        // these do not live until they would be watched
        bank->deleteAnimation(bank->newAnimation()->id());
        scene.blocks->createBoundTileAnimation("Brief");
        scene.project->deleteMap(scene.map->id());
        QVERIFY(scene.project->deleteBlocks(scene.blocks->id()));
        QCoreApplication::processEvents();
        animation->setDelay(9);
        QCOMPARE(scene.stackOf(bank->id()).command(1)->id(), 1003);
        scene.stackOf(bank->id()).undo();
        QCOMPARE(animation->delay(), 4);
    }

    void structuralEditsAreStepsOfTheirOwn()
    {
        Scene scene;
        scene.addSprite(*scene.bank);
        scene.walk->frame(0)->setIndex(0, 0, 1);
        emit scene.bank->structureAboutToChange();
        scene.bank->deleteSprite(1);
        emit scene.bank->structureChanged("Delete Sprite");
        // the edit of the bank is no part of the next edit of the animation
        scene.now += 1000;
        scene.walk->setDelay(2);
        QUndoStack &stack = scene.stackOf(scene.bank->id());
        stack.undo();
        QCOMPARE(scene.walk->frame(0)->cell(0, 0).index, 0);
        QCOMPARE(stack.undoText(), "Delete Sprite");
        stack.undo();
        QVERIFY(scene.bank->count() == 2 && scene.walk->frame(0)->cell(0, 0).index == 1);
        stack.redo();
        QVERIFY(scene.bank->count() == 1 && scene.walk->frame(0)->cell(0, 0).index == 0);
        emit scene.bank->structureChanged("End without a beginning");
        scene.tileSet->deleteTile(2);
        QCOMPARE(scene.stackOf(scene.tileSet->id()).undoText(), "Delete Tile");
        QCOMPARE(scene.steps(), 5);
    }

    void animationEditsMergeWithinTheLimit()
    {
        Scene scene;
        QUndoStack &stack = scene.stackOf(scene.blocks->id());
        const TileAnimation::State original = scene.block->state();
        scene.block->setDelay(2);
        scene.now += 100;
        scene.block->setSize({3, 3});
        scene.now += 100;
        scene.block->frame(0)->setMirror(2, 2, true);
        QCOMPARE(stack.count(), 1);
        QCOMPARE(stack.undoText(), "Edit Frames");
        QCOMPARE(stack.command(0)->id(), 1002);
        scene.now += 101;
        scene.block->setDelay(5);
        QCOMPARE(stack.count(), 2);
        const auto other = scene.blocks->createBoundTileAnimation("Lift");
        QCoreApplication::processEvents();
        other->setDelay(1);
        QCOMPARE(stack.count(), 3);

        stack.setIndex(0);
        QVERIFY(scene.block->state() == original);
        emit scene.block->contentChanged(); // without a change
        QCOMPARE(stack.count(), 3);
    }

    void undoAndEditsWithoutAStackRecordNothing()
    {
        Scene scene;
        scene.recording = false;
        scene.editEverything(3);
        QCOMPARE(scene.steps(), 0);
        scene.recording = true;
        scene.editEverything(5);
        const int recorded = scene.steps();
        scene.undoAndRedoEverything();
        QCOMPARE(scene.steps(), recorded);

        // what an undo put back, or was not recorded, is the state from which the next edit is recorded
        QUndoStack &stack = scene.stackOf(scene.blocks->id());
        stack.undo();
        scene.block->setDelay(7);
        stack.undo();
        QCOMPARE(scene.block->delay(), 3);
    }

    void deletedAssetsAreSafe()
    {
        Scene scene;
        scene.editEverything(3);
        emit scene.tileSet->structureAboutToChange();
        emit scene.bank->structureAboutToChange();
        scene.bank->deleteAnimation(scene.walk->id());
        scene.blocks->removeAnimation(scene.block->id());
        scene.undoAndRedoEverything();
        scene.project->deleteMap(scene.map->id());
        QVERIFY(scene.project->deleteBlocks(scene.blocks->id()) && scene.project->deleteTileSet(scene.tileSet->id()));
        QVERIFY(scene.project->deleteSpriteBank(scene.bank->id()) && scene.project->deletePalette(scene.palette->id()));
        scene.undoAndRedoEverything();
        scene.recorder.reset();
        scene.undoAndRedoEverything();
        scene.project.reset();
        scene.undoAndRedoEverything();
    }
};

QUENMORA_TEST_MAIN(TestEditRecorder)
#include "tst_editrecorder.moc"
