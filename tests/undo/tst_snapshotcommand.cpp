#include "support/testmain.h"
#include "undo/snapshotcommand.h"

#include <QTest>
#include <QUndoStack>

/// Pushes edits of one number, which stands for the state of an asset.
class TestSnapshotCommand : public QObject
{
    Q_OBJECT

private slots:
    void mergesNearEditsOfTheSameKey_data();
    void mergesNearEditsOfTheSameKey();

private:
    SnapshotCommand<int> *makeEdit(int value, const QString &key, qint64 interval, int id)
    {
        const auto restore = [this](const int &state) {
            m_state = state;
            ++m_restores;
        };
        return new SnapshotCommand<int>(QStringLiteral("Edit %1").arg(value), std::exchange(m_state, value), value,
                                        restore, id, key, interval);
    }

    int m_state = 0;
    int m_restores = 0;
};

void TestSnapshotCommand::mergesNearEditsOfTheSameKey_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("key");
    QTest::addColumn<qint64>("interval");
    QTest::addColumn<qint64>("gap");
    QTest::addColumn<bool>("merged");

    const auto row = [](const char *name, int id, const char *key, qint64 interval, qint64 gap, bool merged) {
        QTest::newRow(name) << id << QString::fromLatin1(key) << interval << gap << merged;
    };
    row("at the limit", 7, "a", 100, 100, true);
    row("past the limit", 7, "a", 100, 101, false);
    row("clock set back", 7, "a", 100, -5000, true);
    row("no limit", 7, "a", -1, 1'000'000'000, true);
    row("another asset", 7, "b", 100, 0, false);
    row("never merges", -1, "a", -1, 0, false);
}

void TestSnapshotCommand::mergesNearEditsOfTheSameKey()
{
    QFETCH(int, id);
    QFETCH(QString, key);
    QFETCH(qint64, interval);
    QFETCH(qint64, gap);
    QFETCH(bool, merged);

    qint64 now = 1'000'000;
    EditClock::setSource([&now] { return now; });
    m_state = 0;
    m_restores = 0;
    QUndoStack stack;
    for (int value = 1; value <= 4; ++value) {
        stack.push(makeEdit(value, value == 4 ? key : QStringLiteral("a"), interval, id));
        now += gap;
    }
    EditClock::setSource({});

    const bool others = merged || key != u"a";
    QCOMPARE(stack.count(), merged ? 1 : others ? 2 : 4);
    QCOMPARE(stack.undoText(), merged ? QStringLiteral("Edit 1") : QStringLiteral("Edit 4"));
    QCOMPARE(m_restores, 0);
    stack.undo();
    QCOMPARE(m_state, merged ? 0 : 3);
    stack.redo();
    QCOMPARE(m_state, 4);
    QCOMPARE(m_restores, 2);
}

QUENMORA_TEST_MAIN(TestSnapshotCommand)
#include "tst_snapshotcommand.moc"
