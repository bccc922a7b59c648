#include "app/exportproject/recipetable.h"

#include "app/exportproject/exportreport.h"
#include "support/modeltools.h"
#include "support/sampleproject.h"
#include "support/testmain.h"
#include "support/usualrecipe.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QTest>

#include <functional>

using namespace NextData;

namespace {

void lookAtAll(RecipeTable &table)
{
    while (table.isLooking())
        QCoreApplication::processEvents();
}

QString cell(const RecipeTable &table, const QString &file, RecipeTable::Column column)
{
    return table.index(table.rowOf(file), column).data().toString();
}

} // namespace

/// What exporting a project would do, output by output, as the project and its files change.
class TestRecipeTable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::English); // which groups digits by commas
    }

    void init()
    {
        m_folder = std::make_unique<TemporaryFolder>();
        m_project = std::make_unique<Project>();
    }

    void rowsTellWhatExportingWouldDo_data()
    {
        QTest::addColumn<std::function<void()>>("change");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("state");
        const auto add = [](const char *name, const char *file, const char *state, std::function<void()> change) {
            QTest::newRow(name) << std::move(change) << file << state;
        };
        add("nothing", "Level.map", "Unchanged", [] {});
        add("a cell", "Level.map", "Changed", [this] { m_project->maps().first()->setTile({1, 1}, {7}); });
        add("a cell, and its tiles", "Tiles.nxt", "Unchanged", [this] {
            m_project->maps().first()->setTile({1, 1}, {7});
        });
        add("a file is gone", "Tiles.nxt", "New", [this] { QVERIFY(QFile::remove(path("Tiles.nxt"))); });
        add("a file is another's", "Main.pal", "Changed", [this] { QVERIFY(writeFile(path("Main.pal"), "x")); });
        add("a folder in its place", "Main.pal", "Cannot be: “Main.pal” cannot be written: it is a folder",
            [this] { QVERIFY(QFile::remove(path("Main.pal")) && QDir().mkdir(path("Main.pal"))); });
        add("an asset is gone", "Level.map", "Cannot be: The project no longer has a map “Level” with the id",
            [this] { m_project->deleteMap(m_project->maps().first()->id()); });
    }
    void rowsTellWhatExportingWouldDo()
    {
        QFETCH(const std::function<void()>, change);
        QFETCH(const QString, file);
        QFETCH(const QString, state);
        SampleProject::fill(*m_project);
        RecipeTable table;
        const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::QtTest);
        table.open(*m_project, path("game.quenmora"), usualRecipe(*m_project));
        lookAtAll(table);
        QCOMPARE(cell(table, file, RecipeTable::StateColumn), "New");
        QCOMPARE(table.run({}).size(), table.rowCount());
        QCOMPARE(cell(table, file, RecipeTable::StateColumn), "Unchanged"); // at once
        lookAtAll(table);
        QCOMPARE(cell(table, file, RecipeTable::StateColumn), "Unchanged");

        change();
        table.lookAgain();
        lookAtAll(table);
        const QString told = cell(table, file, RecipeTable::StateColumn);
        QVERIFY2(told.startsWith(state) && (told == state || state.startsWith("Cannot")), qPrintable(told));
    }

    void rowsTellSizesAndBanks()
    {
        SampleProject::fill(*m_project);
        RecipeTable table;
        table.open(*m_project, path("game.quenmora"), usualRecipe(*m_project));
        QCOMPARE(cell(table, "Title.nxi", RecipeTable::SizeColumn), "49,152");
        QCOMPARE(cell(table, "Title.nxi", RecipeTable::BanksColumn), "6 / 3");
        QCOMPARE(cell(table, "Level.map", RecipeTable::SizeColumn), "48");
        QCOMPARE(cell(table, "Level.map", RecipeTable::BanksColumn), "1 / 1");
        QCOMPARE(RecipeTable::banksText(8193), "2 pages of 8 KiB, 1 bank of 16 KiB");
    }

    void renamedAssetsGetTheirNames()
    {
        SampleProject::fill(*m_project);
        const Recipe recipe = usualRecipe(*m_project);
        m_project->maps().first()->setName("Cellar");
        RecipeTable table;
        table.open(*m_project, path("game.quenmora"), recipe);
        QVERIFY(table.isModified());
        QCOMPARE(cell(table, "Level.map", RecipeTable::AssetColumn), "Cellar");
        table.setSaved();
        table.open(*m_project, path("game.quenmora"), table.recipe());
        QVERIFY(!table.isModified());
    }

    void copiesAndRemovalsKeepTheRest()
    {
        SampleProject::fill(*m_project);
        RecipeTable table;
        table.open(*m_project, path("game.quenmora"), usualRecipe(*m_project));
        const Recipe before = table.recipe();
        const int level = table.rowOf("Level.map");
        const int title = table.rowOf("Title.nxi");
        QCOMPARE(table.duplicate({level, title}), (QStringList{"Level_2.map", "Title_2.nxi"}));
        QCOMPARE(table.rowCount(), before.outputs().size() + 2);
        QCOMPARE(table.output(table.rowOf("Level_2.map")).id, table.output(table.rowOf("Level.map")).id);
        QCOMPARE(table.duplicate({table.rowOf("Level_2.map")}), QStringList{"Level_3.map"});
        table.remove({table.rowOf("Level_2.map"), table.rowOf("Title_2.nxi"), table.rowOf("Level_3.map")});
        QCOMPARE(table.recipe(), before);
        QVERIFY(!table.isModified());
    }

    void stopsBetweenOutputs()
    {
        SampleProject::fill(*m_project);
        RecipeTable table;
        table.open(*m_project, path("game.quenmora"), usualRecipe(*m_project));
        const auto outcomes = table.run([](int done, int) { return done < 2; });
        QCOMPARE(outcomes.size(), 2);
        const ExportReport report(table.recipe(), outcomes, path("."));
        QVERIFY2(report.text().startsWith("Stopped: Exported 2 files ("), qPrintable(report.text()));
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return (*m_folder)(name); }

    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<Project> m_project;
};

QUENMORA_TEST_MAIN(TestRecipeTable)
#include "tst_recipetable.moc"
