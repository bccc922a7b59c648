// What a game takes of a project: the table of its recipe, the dialogs that fill it, and both ways to export in the
// real window.

#include "app/exportproject/addoutputsdialog.h"
#include "app/exportproject/exportprojectdialog.h"
#include "app/exportproject/exportreport.h"
#include "app/exportproject/outputdialog.h"
#include "app/exportproject/outputpreview.h"
#include "app/exportproject/projectexport.h"
#include "app/exportproject/recipetable.h"
#include "app/exportproject/severaloutputsdialog.h"
#include "exportprogram.h" // made by the build: where the command and the examples are
#include "support/usualrecipe.h"
#include "support/windowscene.h"

#include <QAbstractItemModelTester>

using namespace NextData;
using State = RecipeRun::State;

namespace {

/// The outputs that a dialog for adding some would add to a recipe, whatever it ticks by itself.
QList<RecipeOutput> addedBy(AddOutputsDialog &dialog)
{
    QSignalSpy added(&dialog, &AddOutputsDialog::accepted);
    auto *assets = dialog.findChild<QTreeWidget *>();
    for (int i = 0; i < assets->topLevelItemCount(); ++i)
        assets->topLevelItem(i)->setCheckState(0, Qt::Checked);
    dialog.accept();
    return added.value(0).value(0).value<QList<RecipeOutput>>();
}

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

class TestExportProject : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::English); // which groups digits by commas
    }

    void init()
    {
        emptyFolder();
        m_project = std::make_unique<Project>();
        SampleProject::fill(*m_project);
    }
    void cleanup() { m_window.reset(); }

    // The table

    void rowsTellWhatExportingWouldDo()
    {
        RecipeTable table;
        const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::QtTest);
        openUsual(table);
        lookAtAll(table);
        QCOMPARE(cell(table, "Level.map", RecipeTable::StateColumn), "New");
        QCOMPARE(table.run({}).size(), table.rowCount());
        QCOMPARE(cell(table, "Level.map", RecipeTable::StateColumn), "Unchanged"); // at once
        const std::tuple<std::function<bool()>, const char *, const char *> cases[]{
            {[] { return true; }, "Level.map", "Unchanged"},
            {[this] {
                 return m_project->maps().first()->setTile({1, 1}, {7}), true;
             },
             "Level.map", "Changed"},
            {[] { return true; }, "Tiles.nxt", "Unchanged"},
            {[this] { return QFile::remove(path("Tiles.nxt")); }, "Tiles.nxt", "New"},
            {[this] { return writeFile(path("Main.pal"), "x"); }, "Main.pal", "Changed"},
            {[this] { return QFile::remove(path("Main.pal")) && QDir().mkdir(path("Main.pal")); }, "Main.pal",
             "Cannot be: “Main.pal” cannot be written: it is a folder"},
            {[this] { return m_project->deleteMap(m_project->maps().first()->id()); }, "Level.map",
             "Cannot be: The project no longer has a map “Level” with the id"}};
        for (const auto &[change, file, state] : cases) {
            QVERIFY(change());
            table.lookAgain();
            lookAtAll(table);
            const QString told = cell(table, file, RecipeTable::StateColumn);
            QVERIFY2(told.startsWith(state) && (told == state || told.startsWith("Cannot")), qPrintable(told));
        }
    }

    void rowsTellSizesAndBanks()
    {
        RecipeTable table;
        openUsual(table);
        QCOMPARE(cell(table, "Title.nxi", RecipeTable::SizeColumn), "49,152");
        QCOMPARE(cell(table, "Title.nxi", RecipeTable::BanksColumn), "6 / 3");
        QCOMPARE(cell(table, "Level.map", RecipeTable::SizeColumn), "48");
        QCOMPARE(cell(table, "Level.map", RecipeTable::BanksColumn), "1 / 1");
        QCOMPARE(RecipeTable::banksText(8193), "2 pages of 8 KiB, 1 bank of 16 KiB");
    }

    void renamedAssetsGetTheirNames()
    {
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

    void stopsBetweenOutputs()
    {
        RecipeTable table;
        openUsual(table);
        const auto outcomes = table.run([](int done, int) { return done < 2; });
        QCOMPARE(outcomes.size(), 2);
        const ExportReport report(table.recipe(), outcomes, path("."));
        QVERIFY2(report.text().startsWith("Stopped: Exported 2 files ("), qPrintable(report.text()));
    }

    // The dialogs

    void addedOutputsHaveFilesOfTheirOwn()
    {
        const QStringList names{
            "Level",   "level", "Level_2",
            "Level_4", // which is free until now
            "LEVEL",   "",      "a/b",     "a\\b", "CON", "../x", QString(10000, 'y'), QString(10000, 'y')};
        for (const QString &name : names) {
            m_project->createPalette(CreateAction::DefaultNext, name);
            m_project->createMap(name, m_project->tileSets().first()->id(), {2, 2});
        }
        AddOutputsDialog dialog;
        RecipeTable table;
        table.open(*m_project, path("game.quenmora"), {});
        for (const auto &[folder, text] :
             {std::pair("", "none"), {"", "c"}, {"data/gfx", "none"}, {"data/gfx", "sjasmplus"}}) {
            dialog.show(*m_project, table.recipe());
            auto *texts = dialog.findChild<QComboBox *>("text");
            texts->setCurrentIndex(texts->findData(text));
            dialog.findChild<QLineEdit *>("folder")->setText(folder);
            const QList<RecipeOutput> added = addedBy(dialog);
            QVERIFY(added.size() > 2 * names.size());
            for (const RecipeOutput &output : added)
                QCOMPARE(output.file.startsWith("data/gfx/"), *folder != 0);
            table.add(added);
        }
        Recipe read;
        QVERIFY(read.parse(table.recipe().text()).isEmpty()); // which refuses equal and impossible files
        QCOMPARE(read, table.recipe());
        const auto outcomes = table.run({});
        for (int row = 0; row < outcomes.size(); ++row) {
            // of the sample, what has no palette or holds more than its form
            if (names.contains(table.output(row).name))
                QVERIFY2(outcomes[row].state == State::New, qPrintable(outcomes[row].reason));
        }
    }

    void proposesWhatThereIs()
    {
        AddOutputsDialog dialog;
        dialog.show(*m_project, {});
        QSignalSpy added(&dialog, &AddOutputsDialog::accepted);
        dialog.accept();
        const auto outputs = added.value(0).value(0).value<QList<RecipeOutput>>();
        const QStringList files = valuesOf(outputs, &RecipeOutput::file);
        for (const char *file : {"Level.map", "Level_sprites.bin", "Level_blocks.bin", "Tiles.nxt", "Main.pal",
                                 "Blocks_animations.bin", "Hero.spr", "Hero_animations.bin", "Title.nxi"})
            QVERIFY2(files.contains(file), file);
        QVERIFY(!files.contains("Unbound_animations.bin")); // without animations
        dialog.show(*m_project, usualRecipe(*m_project));
        dialog.accept();
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.error(), "Please tick what is to be exported");
        const auto found = dialog.findChild<QTreeWidget *>()->findItems("Hero", Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(found.value(0)->text(2), "Exported: Hero.spr, Hero_animations.bin");
    }

    void outputsAreEditedByTheKindOfTheirOptions()
    {
        const QPointer<Map> map = m_project->maps().first();
        OutputDialog dialog;
        QSignalSpy edited(&dialog, &OutputDialog::accepted);
        RecipeOutput output{AssetKind::Map, map->id(), map->name(), "map-2byte", {{"order", "columns"}}, "a/Level.map"};
        RecipeOutput other = output;
        other.file = "LEVEL.h";
        dialog.show(*m_project, output, TakenFiles({other}));
        QCOMPARE(dialog.findChild<QComboBox *>("order")->currentData(), "columns");
        QVERIFY(!dialog.findChild<QLineEdit *>("label")->isEnabled());
        const auto choose = [&dialog](const char *field, const char *value) {
            auto *box = dialog.findChild<QComboBox *>(field);
            box->setCurrentIndex(box->findData(value));
            emit box->activated(box->currentIndex());
        };
        choose("form", "map-sprites"); // another one, which has no order
        QCOMPARE(dialog.findChild<QLineEdit *>("file")->text(), "a/Level_sprites.bin");
        choose("text", "c");
        QCOMPARE(dialog.findChild<QLineEdit *>("file")->text(), "a/Level_sprites.c");
        dialog.findChild<QLineEdit *>("label")->setText("placed");
        dialog.findChild<QSpinBox *>("pad")->setValue(256);
        for (const auto &[file, error] : {std::pair("level.H", "“level.H” is the file of another output"),
                                          {"../level.c", "“../level.c” cannot be written: it leads out of its folder"},
                                          {"placed.c", ""}}) {
            dialog.findChild<QLineEdit *>("file")->setText(file);
            dialog.accept();
            QCOMPARE(dialog.error(), error);
        }
        output.form = "map-sprites";
        output.options = {{"label", "placed"}, {"pad", "256"}, {"text", "c"}};
        output.file = "placed.c";
        QCOMPARE(edited.value(0).value(0).value<RecipeOutput>(), output);
    }

    void severalOutputsGetOptionsAlike()
    {
        RecipeTable table;
        openUsual(table);
        const int level = table.rowOf("Level.map");
        RecipeOutput own = table.output(level);
        own.options = {{"order", "columns"}, {"pad", "256"}};
        own.file = "own.name";
        table.replace(level, own);
        SeveralOutputsDialog dialog;
        QSignalSpy chosen(&dialog, &SeveralOutputsDialog::accepted);
        dialog.show(2);
        dialog.accept();
        QVERIFY(dialog.isVisible() && chosen.isEmpty());
        dialog.findChild<QComboBox *>("text")->setCurrentIndex(dialog.findChild<QComboBox *>("text")->findData("c"));
        dialog.findChild<QSpinBox *>("pad")->setValue(0);
        dialog.accept();
        const auto options = chosen.value(0).value(0).value<QMap<QString, QString>>();
        QCOMPARE(options, (QMap<QString, QString>{{"text", "c"}, {"pad", "0"}}));
        QCOMPARE(table.setOptions({table.rowOf("Main.pal"), table.rowOf("own.name")}, options),
                 (QStringList{"Main_palette.c", "own.name"}));
        QCOMPARE(table.output(table.rowOf("Main_palette.c")).options, (QMap<QString, QString>{{"text", "c"}}));
        own.options = {{"order", "columns"}, {"text", "c"}};
        QCOMPARE(table.output(table.rowOf("own.name")), own);
    }

    void previewsBeginnings()
    {
        QByteArray bytes(20, '\x0F');
        bytes[16] = '\xAB';
        QCOMPARE(OutputPreview::textOf({{"a.bin", bytes}}, false),
                 "0000  0F 0F 0F 0F 0F 0F 0F 0F  0F 0F 0F 0F 0F 0F 0F 0F\n0010  AB 0F 0F 0F");
        QCOMPARE(OutputPreview::textOf({{"a.c", "é\nb"}, {"a.h", "\n"}}, true),
                 "a.c (4 bytes)\né\nb\n\na.h (1 bytes)\n");
        const QString many = OutputPreview::textOf({{"a.bin", QByteArray(100000, 'x')}}, false);
        QVERIFY(many.size() < 10000 && many.endsWith("…"));
    }

    // The window

    void exportsAProjectAndExportsItAgain()
    {
        openWindow();
        ProjectExport &exporter = *m_window->projectExport();
        QAction *exportProject = action("Export Project…");
        QAction *again = action("Export Again");
        QVERIFY(!exportProject->isEnabled() && !again->isEnabled());
        emit m_window->menus()->fileMenu()->newProject("Game");
        project().createPalette(CreateAction::DefaultNext, "Main");
        const QPointer<Palette> palette = project().palettes().first();

        // a project without a file
        bool mayBeSaved = false;
        int questions = 0;
        exporter.setAnswerCallback([&](const ExportQuestion &question) {
            questions += question.kind == ExportQuestion::Kind::SaveProject;
            return mayBeSaved;
        });
        controller()->setFileNameCallback([this] { return path("game.quenmora"); });
        exportProject->trigger();
        QVERIFY(!exporter.dialog()->isVisible() && !QFile::exists(path("game.quenmora")));
        mayBeSaved = true;
        again->trigger(); // shows the recipe where there is none
        QCOMPARE(questions, 2);
        QVERIFY(exporter.dialog()->isVisible() && QFile::exists(path("game.quenmora")));

        // what closing leaves as it was, and exporting keeps
        exporter.dialog()->addOutputs();
        auto *add = exporter.dialog()->findChild<AddOutputsDialog *>();
        add->accept();
        exporter.dialog()->reject();
        QVERIFY(!QFile::exists(recipePath()));
        exportProject->trigger();
        exporter.dialog()->addOutputs();
        add->accept();
        exporter.dialog()->exportAll();
        const QString folder = QDir::toNativeSeparators(QFileInfo(path("game.quenmora")).path());
        const int count = exporter.dialog()->table()->rowCount();
        QVERIFY(count >= 1 && !exporter.dialog()->table()->isModified());
        QCOMPARE(message(),
                 QString("Exported %1 (%2 bytes) to %3")
                     .arg(count == 1 ? QString("1 file") : QString("%1 files").arg(count))
                     .arg(QLocale().toString(512 * count), folder));
        QCOMPARE(readFile(path("Main.pal")).size(), 512);
        exporter.dialog()->reject();

        palette->setRawColour(0, 0x0101);
        again->trigger();
        QVERIFY(!exporter.dialog()->isVisible());
        QCOMPARE(readFile(path("Main.pal")).left(2).toHex(), QByteArray("0101"));
        const QString unchanged = count > 1 ? QString(", %1 unchanged,").arg(count - 1) : QString();
        QCOMPARE(message(), "Exported 1 file (512 bytes)" + unchanged + " to " + folder);

        QVERIFY(QFile::remove(path("Main.pal")) && QDir().mkdir(path("Main.pal")));
        again->trigger();
        QVERIFY(message().contains("1 failed"));
        QCOMPARE(dialog()->text(), "There was a problem exporting data");
        QCOMPARE(dialog()->detail(), "Main.pal: “Main.pal” cannot be written: it is a folder");
        dialog()->accept();

        // the recipe goes with the project, and never replaces it
        controller()->setFileNameCallback([this] { return path("other.quenmora"); });
        emit m_window->menus()->fileMenu()->saveProjectAs();
        QCOMPARE(readFile(path("other.quenmora-export.json")), readFile(recipePath()));
        const QByteArray saved = readFile(path("other.quenmora"));
        exportProject->trigger();
        RecipeOutput own = exporter.dialog()->table()->output(0);
        own.file = "other.quenmora";
        exporter.dialog()->table()->replace(0, own);
        exporter.dialog()->exportAll();
        QVERIFY(dialog()->detail().contains("is the project or its recipe"));
        QCOMPARE(readFile(path("other.quenmora")), saved);
    }

    void worksWithTheKeyboardAlone()
    {
        ExportProjectDialog dialog;
        bool isSaved = false;
        dialog.setSaveCallback([&](const Recipe &) { return isSaved = true; });
        dialog.show(*m_project, path("game.quenmora"), usualRecipe(*m_project), false);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto *view = dialog.findChild<QTableView *>();
        QVERIFY(view->hasFocus() && view->currentIndex().row() == 0);
        const int count = dialog.table()->rowCount();
        const auto press = [&dialog](Qt::Key key, const char *opens) {
            QTest::keyClick(&dialog, key);
            auto *top = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!top || !top->inherits(opens))
                return false;
            top->reject();
            return QTest::qWaitForWindowActive(&dialog);
        };
        QVERIFY(press(Qt::Key_Return, "OutputDialog") && press(Qt::Key_Insert, "AddOutputsDialog"));
        QTest::keyClick(view, Qt::Key_Down);
        QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
        QVERIFY(press(Qt::Key_Enter, "SeveralOutputsDialog"));
        QTest::keyClick(view, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(dialog.table()->rowCount(), count + 2);
        QTest::keyClick(view, Qt::Key_Delete); // the copies, which are selected then
        QCOMPARE(dialog.table()->recipe(), usualRecipe(*m_project));
        QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(view, Qt::Key_Delete);
        QVERIFY(dialog.table()->rowCount() == 0 && !view->isVisible());
        QVERIFY(press(Qt::Key_Return, "AddOutputsDialog")); // what to begin with
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible() && !isSaved && !QFile::exists(path("Main.pal")));
    }

    void neverReplacesARecipeUnasked()
    {
        using Kind = ExportQuestion::Kind;
        openWindow();
        ProjectExport &exporter = *m_window->projectExport();
        emit m_window->menus()->fileMenu()->newProject("Game");
        project().createPalette(CreateAction::DefaultNext, "Main");
        controller()->setFileNameCallback([this] { return path("game.quenmora"); });
        emit m_window->menus()->fileMenu()->saveProject();
        std::optional<Kind> asked;
        QString problems;
        bool answer = false;
        exporter.setAnswerCallback([&](const ExportQuestion &question) {
            asked = question.kind;
            problems = question.problems;
            return answer;
        });

        // a damaged one
        const QByteArray damaged = "{\n    \"formatVersion\": 1,\n    \"outputs\": [\n        {}\n    ]\n}\n";
        QVERIFY(writeFile(recipePath(), damaged));
        action("Export Again")->trigger();
        QVERIFY(!exporter.dialog()->isVisible() && asked == Kind::StartAnew);
        QVERIFY2(problems.startsWith("Line 4: "), qPrintable(problems));
        answer = true;
        for (const bool isSaved : {false, true, true}) {
            QVERIFY(writeFile(recipePath(), damaged));
            action("Export Project…")->trigger();
            QVERIFY(exporter.dialog()->isVisible());
            isSaved ? exporter.dialog()->save() : exporter.dialog()->reject();
            QCOMPARE(readFile(recipePath()) == damaged, !isSaved);
        }
        QCOMPARE(readFile(recipePath() + ".bad"), damaged);
        QCOMPARE(readFile(recipePath() + ".bad2"), damaged);

        // one that another program changes while it is shown
        asked.reset();
        for (const bool mayReplace : {false, true}) {
            answer = mayReplace;
            action("Export Project…")->trigger();
            exporter.dialog()->addOutputs();
            exporter.dialog()->findChild<AddOutputsDialog *>()->accept();
            QVERIFY(!asked && writeFile(recipePath(), damaged));
            exporter.dialog()->exportAll();
            QVERIFY(asked == Kind::ReplaceRecipe);
            asked.reset();
            QCOMPARE(readFile(recipePath()) == damaged, !mayReplace);
            QCOMPARE(QFile::exists(path("Main.pal")), mayReplace);
            exporter.dialog()->reject();
            QVERIFY(mayReplace || QFile::remove(recipePath()));
        }
    }

    void writesWhatTheCommandWrites()
    {
        for (const char *file : {"sample.quenmora", "sample.quenmora-export.json"})
            QVERIFY(QFile::copy(QDir(EXAMPLES_FOLDER).filePath(file), path(file)));
        QProcess command;
        command.start(EXPORT_PROGRAM, {"--quiet", "--output", path("command"), path("sample.quenmora")});
        QVERIFY(command.waitForFinished(-1) && command.exitCode() == 0);
        openWindow();
        emit m_window->menus()->fileMenu()->openProject(path("sample.quenmora"));
        action("Export Again")->trigger();
        int compared = 0;
        QDirIterator files(path("command"), QDir::Files, QDirIterator::Subdirectories);
        for (; files.hasNext(); ++compared) {
            const QString file = files.next();
            const QString here = path(QDir(path("command")).relativeFilePath(file));
            QVERIFY2(readFile(here) == readFile(file), qPrintable(here));
        }
        QVERIFY(compared >= 24); // forms that the sample's recipe uses
        QVERIFY(message().startsWith(QString("Exported %1 files (").arg(compared)));
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder(name); }
    [[nodiscard]] QString recipePath() const { return path("game.quenmora-export.json"); }
    void openUsual(RecipeTable &table) { table.open(*m_project, path("game.quenmora"), usualRecipe(*m_project)); }
    [[nodiscard]] QAction *action(const QString &text)
    {
        return EditorInput::entry(*m_window->menus()->fileMenu(), text);
    }

    std::unique_ptr<Project> m_project;
};

QUENMORA_TEST_MAIN(TestExportProject)
#include "tst_exportproject.moc"
