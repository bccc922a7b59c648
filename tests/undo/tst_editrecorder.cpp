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
    void animationEditsMergeWithinTheLimit();
    void newAnimationIsWatchedInItsFinishedState();
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
    void addSprite()
    {
        emit m_bank->structureAboutToChange();
        m_bank->addSprite();
        emit m_bank->structureChanged(QStringLiteral("Add Sprite"));
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
    m_now = 10'000;
    EditClock::setSource([this] { return m_now; });
    m_stacksExist = true;
    m_project = std::make_unique<Project>();
    m_palette = m_project->createPalette(CreateAction::DefaultNext, QStringLiteral("Colours"));
    m_tileSet = m_project->createTileSet(QStringLiteral("Tiles"), m_palette->id(), 8);
    for (int index = 0; index < 8; ++index)
        m_tileSet->tile(index)->setValue(100 + index);
    m_map = m_project->createMap(QStringLiteral("Level"), m_tileSet->id(), QSize(8, 4));
    for (int x = 0; x < 8; ++x)
        m_map->setTile({x, 1}, {.index = x, .used = true});
    m_blocks = m_project->createBlockList(QStringLiteral("Blocks"), m_tileSet->id());
    m_block = m_blocks->createBoundTileAnimation(QStringLiteral("Door"));
    m_block->setSize({2, 1});
    m_block->addFrame();
    m_block->frame(0)->setIndex(0, 0, 5);
    m_block->frame(0)->setIndex(0, 1, 6);
    m_bank = m_project->createSpriteBank(Quenmora::EightBit, QStringLiteral("Sprites"), m_palette->id());
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
    QCOMPARE(stack.count(), 1);
    QCOMPARE(stack.undoText(), QStringLiteral("Colour"));
    QCOMPARE(stack.command(0)->id(), 1001);
    m_now += 1;
    m_palette->setColour(7, Qt::white, true);
    QCOMPARE(stack.count(), 2);

    QSignalSpy changed(m_palette, &Palette::colourChanged);
    stack.setIndex(0);
    QCOMPARE(changed.count(), 3);
    // the words of the standard palette
    QCOMPARE(m_palette->rawColour(3), quint16(0x0301));
    QCOMPARE(m_palette->rawColour(5), quint16(0x0501));
    QCOMPARE(m_palette->rawColour(7), quint16(0x0701));
    stack.setIndex(2);
    QCOMPARE(m_palette->rawColour(3), quint16(0xE000));
    QCOMPARE(m_palette->rawColour(5), quint16(0x1C00));
    QCOMPARE(m_palette->rawColour(7), quint16(0xFF81));
    QCOMPARE(steps(), 2);
}

void TestEditRecorder::laterAssetsAreWatched()
{
    const auto palette = m_project->createPalette(CreateAction::Blank, QStringLiteral("Late"));
    QCOMPARE(steps(), 0);
    palette->setColour(0, Qt::white, false);
    QCOMPARE(stackOf(palette->id()).count(), 1);

    const auto tileSet = m_project->createTileSet(QStringLiteral("Late"), palette->id(), 4);
    tileSet->deleteTile(0);
    QCOMPARE(stackOf(tileSet->id()).count(), 1);

    const auto bank = m_project->createSpriteBank(Quenmora::FourBit, QStringLiteral("Late"), palette->id());
    const auto animation = bank->newAnimation();
    QCoreApplication::processEvents();
    animation->setDelay(3);
    emit bank->structureAboutToChange();
    bank->addSprite();
    emit bank->structureChanged(QStringLiteral("Add Sprite"));
    QCOMPARE(stackOf(bank->id()).count(), 2);
}

void TestEditRecorder::undoOfTileDeletionRestoresWhatNamesTheTiles()
{
    const auto indexesOnMap = [this] {
        QList<int> list;
        for (int x = 0; x < 8; ++x)
            list.append(m_map->tileLayer()->cellAt({x, 1}).index);
        return list;
    };
    const TileAnimation::State block = m_block->state();

    m_tileSet->moveTile(5, 6);
    m_tileSet->deleteTile(2);
    QCOMPARE(indexesOnMap(), (QList<int>{0, 1, 0, 2, 3, 5, 4, 6}));
    QVERIFY(m_block->state() != block);
    QCOMPARE(steps(), 2);
    QCOMPARE(stackOf(m_tileSet->id()).command(0)->text(), QStringLiteral("Move Tile"));
    QCOMPARE(stackOf(m_tileSet->id()).command(1)->text(), QStringLiteral("Delete Tile"));

    QSignalSpy changed(m_tileSet, &TileSet::structureChanged);
    QSignalSpy restored(m_tileSet, &TileSet::restored);
    QUndoStack &stack = stackOf(m_tileSet->id());
    stack.undo();
    stack.undo();
    QCOMPARE(indexesOnMap(), (QList<int>{0, 1, 2, 3, 4, 5, 6, 7}));
    QVERIFY(m_block->state() == block);
    stack.redo();
    stack.redo();
    QCOMPARE(indexesOnMap(), (QList<int>{0, 1, 0, 2, 3, 5, 4, 6}));
    QCOMPARE(restored.count(), 4);
    QCOMPARE(changed.count(), 0);

    // A map that is gone is left out.
    m_project->deleteMap(m_map->id());
    stack.undo();
    QCOMPARE(m_tileSet->count(), 8);
    QCOMPARE(steps(), 2);
}

void TestEditRecorder::structuralSpriteEditIsOneStep()
{
    addSprite();
    QCOMPARE(steps(), 1);
    m_walk->frame(0)->setIndex(0, 0, 1);
    QCOMPARE(steps(), 2);

    emit m_bank->structureAboutToChange();
    m_bank->deleteSprite(1);
    emit m_bank->structureChanged(QStringLiteral("Delete Sprite"));
    QCOMPARE(m_walk->frame(0)->cell(0, 0).index, 0);
    QCOMPARE(steps(), 3);
    // The edit of the bank is no part of the next edit of the animation.
    m_now += 1000;
    m_walk->setDelay(2);
    stackOf(m_bank->id()).undo();
    QCOMPARE(m_walk->frame(0)->cell(0, 0).index, 0);

    QUndoStack &stack = stackOf(m_bank->id());
    QCOMPARE(stack.undoText(), QStringLiteral("Delete Sprite"));
    stack.undo();
    QCOMPARE(m_bank->count(), 2);
    QCOMPARE(m_walk->frame(0)->cell(0, 0).index, 1);
    stack.setIndex(0);
    QCOMPARE(m_bank->count(), 1);
    stack.setIndex(3);
    QCOMPARE(m_bank->count(), 1);
    QCOMPARE(steps(), 4);
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
    QCOMPARE(stack.undoText(), QStringLiteral("Edit Frames"));
    QCOMPARE(stack.command(0)->id(), 1002);
    m_now += 101;
    m_block->setDelay(5);
    QCOMPARE(stack.count(), 2);

    const auto other = m_blocks->createBoundTileAnimation(QStringLiteral("Lift"));
    QCoreApplication::processEvents();
    other->setDelay(1);
    QCOMPARE(stack.count(), 3);

    stack.setIndex(0);
    QVERIFY(m_block->state() == original);
    QCOMPARE(stack.count(), 3);
    emit m_block->contentChanged(); // without a change
    QCOMPARE(stack.count(), 3);
}

void TestEditRecorder::newAnimationIsWatchedInItsFinishedState()
{
    const auto added = m_bank->newAnimation();
    m_walk->copyTo(*added);
    added->setDelay(4);
    QCOMPARE(steps(), 0);
    QCoreApplication::processEvents();
    added->setDelay(9);
    QUndoStack &stack = stackOf(m_bank->id());
    QCOMPARE(stack.count(), 1);
    QCOMPARE(stack.command(0)->id(), 1003);
    stack.undo();
    QCOMPARE(added->delay(), 4);

    // One that does not live until it would be watched, and a block set that does not either.
    m_bank->deleteAnimation(m_bank->newAnimation()->id());
    m_blocks->createBoundTileAnimation(QStringLiteral("Brief"));
    m_project->deleteMap(m_map->id());
    QVERIFY(m_project->deleteBlocks(m_blocks->id()));
    QCoreApplication::processEvents();
}

void TestEditRecorder::undoRecordsNothing()
{
    m_block->setDelay(2);
    m_walk->setDelay(2);
    m_palette->setColour(1, Qt::white, false);
    m_tileSet->insertTile(0);
    addSprite();
    const int recorded = steps();
    for (const auto &[id, stack] : m_stacks) {
        stack->setIndex(0);
        stack->setIndex(stack->count());
    }
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
    addSprite();
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
    addSprite();
    m_walk->setDelay(3);
    m_block->setDelay(3);
    emit m_tileSet->structureAboutToChange();
    emit m_bank->structureAboutToChange();
    m_bank->deleteAnimation(m_walk->id());
    m_blocks->removeAnimation(m_block->id());
    for (const auto &[id, stack] : m_stacks) {
        stack->setIndex(0);
        stack->setIndex(stack->count());
    }
    m_project->deleteMap(m_map->id());
    QVERIFY(m_project->deleteBlocks(m_blocks->id()));
    QVERIFY(m_project->deleteTileSet(m_tileSet->id()));
    QVERIFY(m_project->deleteSpriteBank(m_bank->id()));
    m_palette->setColour(1, Qt::white, false);
    QVERIFY(m_project->deletePalette(m_palette->id()));
    for (const auto &[id, stack] : m_stacks) {
        stack->setIndex(0);
        QVERIFY(stack->canRedo());
        stack->setIndex(stack->count());
    }
    m_recorder.reset();
    for (const auto &[id, stack] : m_stacks)
        stack->setIndex(0);
}

QUENMORA_TEST_MAIN(TestEditRecorder)
#include "tst_editrecorder.moc"
