#include "model/palette.h"
#include "support/testmain.h"
#include "undo/palettecolourcommand.h"

#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <memory>

class TestPaletteColourCommand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void firstRedoDoesNothing();
    void nearEditsMerge_data();
    void nearEditsMerge();
    void limitCountsFromTheEditMergedLast();
    void mergedEditsOfSeveralEntriesAreOneStep();
    void otherPaletteIsAnotherStep();
    void applyingIsNoEdit();
    void deletedPaletteIsSafe();

private:
    /// Sets a word as an edit does and pushes the command for it.
    void edit(int index, quint16 word)
    {
        const quint16 before = m_palette->rawColour(index);
        m_palette->setRawColour(index, word);
        m_stack->push(new PaletteColourCommand(m_palette.get(), index, before, word));
    }

    std::unique_ptr<Palette> m_palette;
    std::unique_ptr<QUndoStack> m_stack;
    qint64 m_now = 0;
};

void TestPaletteColourCommand::init()
{
    m_palette = std::make_unique<Palette>();
    m_palette->loadStandardNext();
    m_stack = std::make_unique<QUndoStack>();
    m_now = 5000;
    EditClock::setSource([this] { return m_now; });
}

void TestPaletteColourCommand::cleanup()
{
    EditClock::setSource({});
}

void TestPaletteColourCommand::firstRedoDoesNothing()
{
    edit(3, 0x8081);
    m_palette->storeRawColour(3, 0x1234);
    m_stack->clear();
    m_stack->push(new PaletteColourCommand(m_palette.get(), 3, 0x0301, 0x8081));
    QCOMPARE(m_palette->rawColour(3), quint16(0x1234));
    QCOMPARE(m_stack->undoText(), QStringLiteral("Colour"));
}

void TestPaletteColourCommand::nearEditsMerge_data()
{
    QTest::addColumn<int>("gap");
    QTest::addColumn<bool>("merged");
    QTest::newRow("400 ms") << 400 << true;
    QTest::newRow("401 ms") << 401 << false;
    QTest::newRow("clock set back") << -60'000 << true;
}

void TestPaletteColourCommand::nearEditsMerge()
{
    QFETCH(int, gap);
    QFETCH(bool, merged);
    edit(3, 0x1000);
    m_now += gap;
    edit(3, 0x2000);
    QCOMPARE(m_stack->count(), merged ? 1 : 2);
    m_stack->undo();
    QCOMPARE(m_palette->rawColour(3), quint16(merged ? 0x0301 : 0x1000));
    m_stack->redo();
    QCOMPARE(m_palette->rawColour(3), quint16(0x2000));
}

void TestPaletteColourCommand::limitCountsFromTheEditMergedLast()
{
    for (int step = 0; step < 10; ++step) {
        edit(3, quint16(0x1000 + step));
        m_now += 400;
    }
    QCOMPARE(m_stack->count(), 1);
    m_now += 1;
    edit(3, 0x2000);
    QCOMPARE(m_stack->count(), 2);
}

void TestPaletteColourCommand::mergedEditsOfSeveralEntriesAreOneStep()
{
    edit(5, 0x1000);
    edit(3, 0x2000);
    edit(5, 0x3000);
    QCOMPARE(m_stack->count(), 1);

    QSignalSpy changed(m_palette.get(), &Palette::colourChanged);
    m_stack->undo();
    // the standard words of the two entries
    QCOMPARE(m_palette->rawColour(3), quint16(0x0301));
    QCOMPARE(m_palette->rawColour(5), quint16(0x0501));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).first().toInt(), 3);
    QCOMPARE(changed.at(1).first().toInt(), 5);
    m_stack->redo();
    QCOMPARE(m_palette->rawColour(3), quint16(0x2000));
    QCOMPARE(m_palette->rawColour(5), quint16(0x3000));
}

void TestPaletteColourCommand::otherPaletteIsAnotherStep()
{
    edit(3, 0x1000);
    Palette other;
    m_stack->push(new PaletteColourCommand(&other, 3, 0, 0x1000));
    QCOMPARE(m_stack->count(), 2);
}

void TestPaletteColourCommand::applyingIsNoEdit()
{
    edit(3, 0x1000);
    QSignalSpy edited(m_palette.get(), &Palette::colourEdited);
    m_stack->undo();
    m_stack->redo();
    QCOMPARE(edited.count(), 0);
}

void TestPaletteColourCommand::deletedPaletteIsSafe()
{
    edit(3, 0x1000);
    m_palette.reset();
    m_stack->undo();
    QVERIFY(m_stack->canRedo());
    m_stack->redo();
    QVERIFY(m_stack->canUndo());
}

QUENMORA_TEST_MAIN(TestPaletteColourCommand)
#include "tst_palettecolourcommand.moc"
