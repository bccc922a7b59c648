#include "app/recentfiles.h"
#include "support/testmain.h"

#include <QTest>

class TestRecentFiles : public QObject
{
    Q_OBJECT

private slots:
    void addsInFront()
    {
        const QStringList ten = QString("1 2 3 4 5 6 7 8 9 10").split(' ');
        const std::tuple<QStringList, const char *, QStringList> cases[] = {
            {{"a", "b", "c"}, "c", {"c", "a", "b"}},
            {{"a"}, "A", {"A", "a"}}, // letter case counts
            {{"a", "b", "a"}, "a", {"a", "b", "a"}}, // only the first of two is taken out
            {ten, "new", QStringList{"new"} + ten.first(9)},
            {ten, "10", QStringList{"10"} + ten.first(9)},
            {ten + ten, "new", QStringList{"new"} + ten.first(9)}, // stored too long
        };
        for (const auto &[stored, added, paths] : cases) {
            RecentFiles files;
            files.setPaths(stored);
            QCOMPARE(files.paths(), stored);
            files.add(added);
            QCOMPARE(files.paths(), paths);
        }
    }
};

QUENMORA_TEST_MAIN(TestRecentFiles)

#include "tst_recentfiles.moc"
