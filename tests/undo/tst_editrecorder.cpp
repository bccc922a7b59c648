#include "model/mapobjects.h"
#include "model/palette.h"
#include "support/testmain.h"
#include "undo/editclock.h"
#include "undo/editrecorder.h"

#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <map>
#include <memory>

/// Edits the assets of a small project while a recorder watches it; every asset has a stack of its own.
class TestEditRecorder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void colourEditsGatherWithinTheLimit();
    void laterAssetsAreWatched();
    void undoOfTileDeletionRestoresWhatNamesTheTiles();
    void structuralSpriteEditIsOneStep();
    void undoOfSpriteDeletionRestoresPlacedSprites();
    void animationEditsMergeWithinTheLimit();
    void undoRecordsNothing();
    void withoutStackNothingIsRecorded();
    void deletedAssetsAreSafe();

private:
    QUndoStack &stackOf(const QUuid &id)
    {
        std::unique_ptr<QUndoStack> &stack = m_stacks[id];
        if (!stack)
            stack = std::make_unique<QUndoStack>();
        return *stack;
    }
    int steps() const
    {
        int count = 0;
        for (const auto &[id, stack] : m_stacks)
            count += stack->count();
        return count;
    }
    void undoAndRedoEverything()
    {
        for (const auto &[id, stack] : m_stacks) {
            stack->setIndex(0);
            stack->setIndex(stack->count());
        }
    }
    static void addSprite(SpriteBank &bank)
    {
        emit bank.structureAboutToChange();
        bank.addSprite();
        emit bank.structureChanged("Add Sprite");
    }
    QList<int> indexesOnMap() const
    {
        QList<int> list;
        for (int x = 0; x < 8; ++x)
            list.append(m_map->tileLayer()->cellAt({x, 1}).index);
        return list;
    }

    std::map<QUuid, std::unique_ptr<QUndoStack>> m_stacks;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<EditRecorder> m_recorder;
    QPointer<Palette> m_palette;
    QPointer<TileSet> m_tileSet;
    QPointer<Map> m_map;
    QPointer<MapObjects> m_blocks;
    QPointer<TileAnimation> m_block;
    QPointer<SpriteBank> m_bank;
    QPointer<SpriteAnim> m_walk;
    qint64 m_now = 0;
    bool m_stacksExist = true;
};

void TestEditRecorder::init()
{
    EditClock::setSource([this] { return m_now; });
    m_stacksExist = true;
    m_project = std::make_unique<Project>();
    m_palette = m_project->createPalette(CreateAction::DefaultNext, "Colours");
    m_tileSet = m_project->createTileSet("Tiles", m_palette->id(), 8);
    m_map = m_project->createMap("Level", m_tileSet->id(), QSize(8, 4));
    for (int x = 0; x < 8; ++x)
        m_map->setTile({x, 1}, {.index = x, .used = true});
    m_blocks = m_project->createBlockList("Blocks", m_tileSet->id());
    m_block = m_blocks->createBoundTileAnimation("Door");
    m_block->setSize({2, 1});
    m_block->addFrame()->setCells({{{5}, {6}}});
    m_bank = m_project->createSpriteBank(Quenmora::EightBit, "Sprites", m_palette->id());
    m_walk = m_bank->newAnimation();
    m_recorder = std::make_unique<EditRecorder>(
        m_project.get(), [this](const QUuid &id) { return m_stacksExist ? &stackOf(id) : nullptr; });
}

void TestEditRecorder::cleanup()
{
    m_stacks.clear();
    m_recorder.reset();
    m_project.reset();
    EditClock::setSource({});
}

void TestEditRecorder::colourEditsGatherWithinTheLimit()
{
    // each edit 400 ms after the one before: the limit slides
    for (const auto &[index, colour] : {std::pair{5, Qt::white}, {3, Qt::red}, {5, Qt::green}}) {
        m_palette->setColour(index, colour, false);
        m_now += 400;
    }
    QUndoStack &stack = stackOf(m_palette->id());
    QCOMPARE(stack.undoText(), "Colour");
    QCOMPARE(stack.command(0)->id(), 1001);
    m_now += 1;
    m_palette->setColour(7, Qt::white, true);
    QCOMPARE(stack.count(), 2);

    const auto words = [this] {
        return QList<quint16>{m_palette->rawColour(3), m_palette->rawColour(5), m_palette->rawColour(7)};
    };
    stack.setIndex(0);
    QCOMPARE(words(), (QList<quint16>{0x0301, 0x0501, 0x0701})); // those of the standard palette
    stack.setIndex(2);
    QCOMPARE(words(), (QList<quint16>{0xE000, 0x1C00, 0xFF81}));
    QCOMPARE(steps(), 2);
}

void TestEditRecorder::laterAssetsAreWatched()
{
    const auto palette = m_project->createPalette(CreateAction::Blank, "Late");
    palette->setColour(0, Qt::white, false);
    const auto tileSet = m_project->createTileSet("Late", palette->id(), 4);
    tileSet->deleteTile(0);
    const auto bank = m_project->createSpriteBank(Quenmora::FourBit, "Late", palette->id());
    addSprite(*bank);
    const auto animation = bank->newAnimation();
    animation->setDelay(4); // still being made
    QCOMPARE(steps(), 3);
    QCoreApplication::processEvents();
    animation->setDelay(9);
    QCOMPARE(stackOf(bank->id()).command(1)->id(), 1003);
    stackOf(bank->id()).undo();
    QCOMPARE(animation->delay(), 4);

    // what does not live until it would be watched
    bank->deleteAnimation(bank->newAnimation()->id());
    m_blocks->createBoundTileAnimation("Brief");
    m_project->deleteMap(m_map->id());
    QVERIFY(m_project->deleteBlocks(m_blocks->id()));
    QCoreApplication::processEvents();
}

void TestEditRecorder::undoOfTileDeletionRestoresWhatNamesTheTiles()
{
    const TileAnimation::State block = m_block->state();
    m_tileSet->moveTile(5, 6);
    m_tileSet->deleteTile(2);
    const QList<int> changed{0, 1, 0, 2, 3, 5, 4, 6};
    QCOMPARE(indexesOnMap(), changed);
    QCOMPARE(steps(), 2);

    QUndoStack &stack = stackOf(m_tileSet->id());
    QSignalSpy recorded(m_tileSet, &TileSet::structureChanged);
    QCOMPARE(stack.undoText(), "Delete Tile");
    stack.setIndex(0);
    QCOMPARE(indexesOnMap(), (QList<int>{0, 1, 2, 3, 4, 5, 6, 7}));
    QVERIFY(m_block->state() == block);
    stack.setIndex(2);
    QCOMPARE(indexesOnMap(), changed);
    QVERIFY(m_block->state() != block);

    m_project->deleteMap(m_map->id()); // which is left out
    stack.undo();
    QCOMPARE(m_tileSet->count(), 8);
    QCOMPARE(steps(), 2);
    QVERIFY(recorded.isEmpty());
}

void TestEditRecorder::structuralSpriteEditIsOneStep()
{
    addSprite(*m_bank);
    m_walk->frame(0)->setIndex(0, 0, 1);
    emit m_bank->structureAboutToChange();
    m_bank->deleteSprite(1);
    emit m_bank->structureChanged("Delete Sprite");
    QCOMPARE(m_walk->frame(0)->cell(0, 0).index, 0);
    QCOMPARE(steps(), 3);
    // The edit of the bank is no part of the next edit of the animation.
    m_now += 1000;
    m_walk->setDelay(2);
    QUndoStack &stack = stackOf(m_bank->id());
    stack.undo();
    QCOMPARE(m_walk->frame(0)->cell(0, 0).index, 0);

    QCOMPARE(stack.undoText(), "Delete Sprite");
    stack.undo();
    QCOMPARE(m_bank->count(), 2);
    QCOMPARE(m_walk->frame(0)->cell(0, 0).index, 1);
    stack.setIndex(0);
    QCOMPARE(m_bank->count(), 1);
    emit m_bank->structureChanged("End without a beginning");
    QCOMPARE(steps(), 4);
}

void TestEditRecorder::undoOfSpriteDeletionRestoresPlacedSprites()
{
    addSprite(*m_bank);
    addSprite(*m_bank);
    const auto placed = [this](int number, int x) {
        Map::PlacedSprite sprite;
        sprite.bank = m_bank->id();
        sprite.sprite = number;
        sprite.x = x;
        return sprite;
    };
    m_map->addSprite(placed(1, 8));
    m_map->addSprite(placed(2, 16));
    const QList<Map::PlacedSprite> before = m_map->sprites();
    emit m_bank->structureAboutToChange();
    m_bank->deleteSprite(1);
    emit m_bank->structureChanged(QStringLiteral("Delete Sprite"));
    const QList<Map::PlacedSprite> after{placed(1, 16)};
    QCOMPARE(m_map->sprites(), after);

    QUndoStack &stack = stackOf(m_bank->id());
    QCOMPARE(stack.count(), 3);
    stack.undo();
    QCOMPARE(m_map->sprites(), before);
    stack.redo();
    QCOMPARE(m_map->sprites(), after);
}

void TestEditRecorder::animationEditsMergeWithinTheLimit()
{
    QUndoStack &stack = stackOf(m_blocks->id());
    const TileAnimation::State original = m_block->state();
    m_block->setDelay(2);
    m_now += 100;
    m_block->setSize({3, 3});
    m_now += 100;
    m_block->frame(0)->setMirror(2, 2, true);
    QCOMPARE(stack.count(), 1);
    QCOMPARE(stack.undoText(), "Edit Frames");
    QCOMPARE(stack.command(0)->id(), 1002);
    m_now += 101;
    m_block->setDelay(5);
    QCOMPARE(stack.count(), 2);
    const auto other = m_blocks->createBoundTileAnimation("Lift");
    QCoreApplication::processEvents();
    other->setDelay(1);
    QCOMPARE(stack.count(), 3);

    stack.setIndex(0);
    QVERIFY(m_block->state() == original);
    emit m_block->contentChanged(); // without a change
    QCOMPARE(stack.count(), 3);
}

void TestEditRecorder::undoRecordsNothing()
{
    m_block->setDelay(2);
    m_walk->setDelay(2);
    m_palette->setColour(1, Qt::white, false);
    m_tileSet->insertTile(0);
    addSprite(*m_bank);
    const int recorded = steps();
    undoAndRedoEverything();
    QCOMPARE(steps(), recorded);

    // What an undo put back is the state from which the next edit is recorded.
    QUndoStack &stack = stackOf(m_blocks->id());
    stack.undo();
    m_block->setDelay(7);
    stack.undo();
    QCOMPARE(m_block->delay(), 0);
}

void TestEditRecorder::withoutStackNothingIsRecorded()
{
    m_stacksExist = false;
    m_palette->setColour(1, Qt::white, false);
    m_tileSet->deleteTile(0);
    addSprite(*m_bank);
    m_walk->setDelay(3);
    m_stacksExist = true;
    QCOMPARE(steps(), 0);
    m_walk->setDelay(5);
    stackOf(m_bank->id()).undo();
    QCOMPARE(m_walk->delay(), 3);
}

void TestEditRecorder::deletedAssetsAreSafe()
{
    m_tileSet->deleteTile(0);
    addSprite(*m_bank);
    m_walk->setDelay(3);
    m_block->setDelay(3);
    m_palette->setColour(1, Qt::white, false);
    emit m_tileSet->structureAboutToChange();
    emit m_bank->structureAboutToChange();
    m_bank->deleteAnimation(m_walk->id());
    m_blocks->removeAnimation(m_block->id());
    undoAndRedoEverything();
    m_project->deleteMap(m_map->id());
    QVERIFY(m_project->deleteBlocks(m_blocks->id()));
    QVERIFY(m_project->deleteTileSet(m_tileSet->id()));
    QVERIFY(m_project->deleteSpriteBank(m_bank->id()));
    QVERIFY(m_project->deletePalette(m_palette->id()));
    undoAndRedoEverything();
    m_recorder.reset();
    undoAndRedoEverything();
    m_project.reset();
    undoAndRedoEverything();
}

QUENMORA_TEST_MAIN(TestEditRecorder)
#include "tst_editrecorder.moc"
