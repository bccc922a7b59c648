#include "app/recentfiles.h"
#include "support/testmain.h"

#include <QTest>

class TestRecentFiles : public QObject
{
    Q_OBJECT

private slots:
    void addsInFront_data();
    void addsInFront();
};

namespace {

QStringList numbered(int first, int last)
{
    QStringList paths;
    for (int i = first; i <= last; ++i)
        paths.append(QString::number(i));
    return paths;
}

} // namespace

void TestRecentFiles::addsInFront_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QStringList>("paths");

    QTest::newRow("new") << QStringList{"a", "b"} << "c" << QStringList{"c", "a", "b"};
    QTest::newRow("known") << QStringList{"a", "b", "c"} << "c" << QStringList{"c", "a", "b"};
    QTest::newRow("another letter case") << QStringList{"a"} << "A" << QStringList{"A", "a"};
    QTest::newRow("only the first of two is taken out")
        << QStringList{"a", "b", "a"} << "a" << QStringList{"a", "b", "a"};
    QTest::newRow("a full list") << numbered(1, 10) << "new" << QStringList{"new"} + numbered(1, 9);
    QTest::newRow("a full list that knows it") << numbered(1, 10) << "10" << QStringList{"10"} + numbered(1, 9);
    QTest::newRow("a list that was stored too long") << numbered(1, 15) << "new" << QStringList{"new"} + numbered(1, 9);
}

void TestRecentFiles::addsInFront()
{
    QFETCH(QStringList, stored);
    QFETCH(QString, added);
    RecentFiles files;
    files.setPaths(stored);
    QCOMPARE(files.paths(), stored);
    files.add(added);
    QTEST(files.paths(), "paths");
    files.clear();
    QVERIFY(files.paths().isEmpty());
}

QUENMORA_TEST_MAIN(TestRecentFiles)

#include "tst_recentfiles.moc"
