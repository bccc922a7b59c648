#include "support/testmain.h"
#include "undo/snapshotcommand.h"

#include <QTest>
#include <QUndoStack>

class TestSnapshotCommand : public QObject
{
    Q_OBJECT

private slots:
    void mergesNearEditsOfTheSameKey_data();
    void mergesNearEditsOfTheSameKey();
};

void TestSnapshotCommand::mergesNearEditsOfTheSameKey_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("lastKey"); // that of the others is "a"
    QTest::addColumn<qint64>("interval");
    QTest::addColumn<qint64>("gap");
    QTest::addColumn<int>("steps");
    QTest::newRow("at the limit") << 7 << "a" << qint64(100) << qint64(100) << 1;
    QTest::newRow("past the limit") << 7 << "a" << qint64(100) << qint64(101) << 4;
    QTest::newRow("clock set back") << 7 << "a" << qint64(100) << qint64(-5000) << 1;
    QTest::newRow("no limit") << 7 << "a" << qint64(-1) << qint64(1'000'000'000) << 1;
    QTest::newRow("another asset") << 7 << "b" << qint64(100) << qint64(0) << 2;
    QTest::newRow("never merges") << -1 << "a" << qint64(-1) << qint64(0) << 4;
}

void TestSnapshotCommand::mergesNearEditsOfTheSameKey()
{
    QFETCH(int, id);
    QFETCH(QString, lastKey);
    QFETCH(qint64, interval);
    QFETCH(qint64, gap);
    QFETCH(int, steps);
    qint64 now = 1'000'000;
    EditClock::setSource([&now] { return now; });
    QList<int> restored;
    QUndoStack stack;
    for (int value = 1; value <= 4; ++value) {
        stack.push(new SnapshotCommand<int>(
            QString::number(value), value - 1, value, [&restored](int state) { restored.append(state); }, id,
            value == 4 ? lastKey : "a", interval));
        now += gap;
    }
    EditClock::setSource({});

    QCOMPARE(stack.count(), steps);
    QCOMPARE(stack.undoText(), steps == 1 ? "1" : "4");
    QVERIFY2(restored.isEmpty(), "a command is pushed when its edit has been made");
    stack.undo();
    stack.redo();
    QCOMPARE(restored, (QList<int>{steps == 1 ? 0 : 3, 4}));
}

QUENMORA_TEST_MAIN(TestSnapshotCommand)
#include "tst_snapshotcommand.moc"
