#include "support/testmain.h"
#include "undo/snapshotcommand.h"

#include <QTest>
#include <QUndoStack>

#include <memory>

/// Pushes edits of one number, which stands for the state of an asset.
class TestSnapshotCommand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void appliesOnlyAfterUndo();
    void mergesNearEditsOfTheSameKey_data();
    void mergesNearEditsOfTheSameKey();
    void limitCountsFromTheEditMergedLast();
    void undoneEditIsNotMergedInto();
    void otherStateTypeIsRefused();

private:
    using Command = SnapshotCommand<int>;
    static constexpr int Id = 7;

    Command *makeEdit(int value, const QVariant &key = QStringLiteral("a"), qint64 interval = 100, int id = Id)
    {
        const auto restore = [this](const int &state) {
            m_state = state;
            ++m_restores;
        };
        return new Command(QStringLiteral("Edit %1").arg(value), std::exchange(m_state, value), value, restore, id, key,
                           interval);
    }

    std::unique_ptr<QUndoStack> m_stack;
    qint64 m_now = 0;
    int m_state = 0;
    int m_restores = 0;
};

void TestSnapshotCommand::init()
{
    m_stack = std::make_unique<QUndoStack>();
    m_now = 1'000'000;
    m_state = 0;
    m_restores = 0;
    EditClock::setSource([this] { return m_now; });
}

void TestSnapshotCommand::cleanup()
{
    EditClock::setSource({});
}

void TestSnapshotCommand::appliesOnlyAfterUndo()
{
    m_stack->push(makeEdit(1));
    QCOMPARE(m_restores, 0);
    m_stack->undo();
    QCOMPARE(m_state, 0);
    m_stack->redo();
    QCOMPARE(m_state, 1);
    QCOMPARE(m_restores, 2);
}

void TestSnapshotCommand::mergesNearEditsOfTheSameKey_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QVariant>("key");
    QTest::addColumn<qint64>("interval");
    QTest::addColumn<qint64>("gap");
    QTest::addColumn<bool>("merged");

    const QVariant same = QStringLiteral("a");
    QTest::newRow("at once") << Id << same << 100LL << 0LL << true;
    QTest::newRow("at the limit") << Id << same << 100LL << 100LL << true;
    QTest::newRow("past the limit") << Id << same << 100LL << 101LL << false;
    QTest::newRow("clock set back") << Id << same << 100LL << -5000LL << true;
    QTest::newRow("no limit") << Id << same << -1LL << 1'000'000'000LL << true;
    QTest::newRow("another asset") << Id << QVariant(QStringLiteral("b")) << 100LL << 0LL << false;
    QTest::newRow("never merges") << -1 << same << -1LL << 0LL << false;
}

void TestSnapshotCommand::mergesNearEditsOfTheSameKey()
{
    QFETCH(int, id);
    QFETCH(QVariant, key);
    QFETCH(qint64, interval);
    QFETCH(qint64, gap);
    QFETCH(bool, merged);

    m_stack->push(makeEdit(1, QStringLiteral("a"), interval, id));
    m_now += gap;
    m_stack->push(makeEdit(2, key, interval, id));
    QCOMPARE(m_stack->count(), merged ? 1 : 2);
    QCOMPARE(m_stack->undoText(), merged ? QStringLiteral("Edit 1") : QStringLiteral("Edit 2"));
    m_stack->undo();
    QCOMPARE(m_state, merged ? 0 : 1);
    m_stack->redo();
    QCOMPARE(m_state, 2);
}

void TestSnapshotCommand::limitCountsFromTheEditMergedLast()
{
    for (int value = 1; value <= 5; ++value) {
        m_stack->push(makeEdit(value));
        m_now += 90;
    }
    QCOMPARE(m_stack->count(), 1);
    m_now += 11;
    m_stack->push(makeEdit(6));
    QCOMPARE(m_stack->count(), 2);
}

void TestSnapshotCommand::undoneEditIsNotMergedInto()
{
    m_stack->push(makeEdit(1));
    m_stack->push(makeEdit(2));
    m_stack->undo();
    QCOMPARE(m_state, 0);
    m_stack->push(makeEdit(3));
    QCOMPARE(m_stack->count(), 1);
    QCOMPARE(m_stack->undoText(), QStringLiteral("Edit 3"));
    m_stack->undo();
    QCOMPARE(m_state, 0);
}

void TestSnapshotCommand::otherStateTypeIsRefused()
{
    const std::unique_ptr<Command> first(makeEdit(1));
    const SnapshotCommand<QString> second(
        {}, {}, {}, [](const QString &) {}, Id, QStringLiteral("a"), 100);
    QVERIFY(!first->mergeWith(&second));
}

QUENMORA_TEST_MAIN(TestSnapshotCommand)
#include "tst_snapshotcommand.moc"
