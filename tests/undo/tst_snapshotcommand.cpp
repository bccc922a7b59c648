#include "support/testmain.h"
#include "undo/snapshotcommand.h"

#include <QTest>
#include <QUndoStack>

class TestSnapshotCommand : public QObject
{
    Q_OBJECT

private slots:
    void mergesNearEditsOfTheSameKey()
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
            qint64 now = 1'000'000;
            EditClock::setSource([&now] { return now; });
            QList<int> restored;
            const auto restore = [&restored](int state) { restored.append(state); };
            QUndoStack stack;
            for (int value = 1; value <= 4; ++value) {
                stack.push(new SnapshotCommand<int>(QString::number(value), value - 1, value, restore, id,
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
    }
};

QUENMORA_TEST_MAIN(TestSnapshotCommand)
#include "tst_snapshotcommand.moc"
