#include "nextdata/recipe.h"

#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "nextdata/reciperun.h"
#include "nextdata/wholefile.h"
#include "support/modeltools.h"
#include "support/platform.h"
#include "support/testmain.h"

#include <QtTest>

using namespace NextData;
using State = RecipeRun::State;

namespace {

const QByteArray PaletteId = "11111111-2222-4333-8444-555555555555";

/// A recipe of these lines, which are outputs.
QByteArray recipeOf(const QByteArrayList &outputs)
{
    return "{\n    \"formatVersion\": 1,\n    \"outputs\": [\n        " + outputs.join(",\n        ") + "\n    ]\n}\n";
}

QByteArray outputLine(const QByteArray &form, const QByteArray &options, const QByteArray &file)
{
    return R"({"kind": "palette", "id": ")" + PaletteId + R"(", "name": "Main \"é\"", "form": ")" + form
        + R"(", "options": )" + options + R"(, "file": ")" + file + "\"}";
}

/// The lines and reasons of problems, as people read them.
QStringList told(const QList<Recipe::Problem> &problems)
{
    QStringList lines;
    for (const Recipe::Problem &problem : problems)
        lines.append(QStringLiteral("%1: %2").arg(problem.line).arg(problem.reason));
    return lines;
}

} // namespace

/// A recipe is read and written as text and done in a folder of its own.
class TestRecipe : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TemporaryFolder>();
        m_project = std::make_unique<Project>();
        for (const char *name : {"Main", "Main", "Größe/2"})
            m_project->createPalette(CreateAction::DefaultNext, QString::fromUtf8(name));
    }

    void equalRecipesAreEqualTexts()
    {
        const QByteArray text = recipeOf({
            outputLine("palette-513", R"({"transparency": "index"})", "a b/main.npl"),
            outputLine("palette-group", R"({"group": 3, "pad": 256, "text": "c"})", "group.c"),
            outputLine("palette", "{}", "main.pal"),
        });
        Recipe recipe;
        QCOMPARE(told(recipe.parse(text)), QStringList());
        QCOMPARE(recipe.text(), text);
        QCOMPARE(recipe.outputs().first().name, QString::fromUtf8("Main \"é\""));
        QCOMPARE(recipe.outputs()[1].options, (QMap<QString, QString>{{"group", "3"}, {"pad", "256"}, {"text", "c"}}));

        QList<RecipeOutput> outputs = recipe.outputs();
        std::reverse(outputs.begin(), outputs.end());
        outputs.first().options = {{"pad", "0"}, {"text", "none"}}; // which are the defaults
        Recipe other;
        other.setOutputs(outputs);
        QCOMPARE(other.text(), text);
        QCOMPARE(Recipe().text(), "{\n    \"formatVersion\": 1,\n    \"outputs\": []\n}\n");
        QCOMPARE(Recipe::pathFor("a/b.quenmora"), "a/b.quenmora-export.json");
    }

    void badRecipesAreRefusedWithLineAndReason()
    {
        const QByteArray good = outputLine("palette", "{}", "main.pal");
        const auto refuses = [](const QByteArray &text, const QString &expected) {
            Recipe recipe;
            QVERIFY(recipe.parse(recipeOf({outputLine("palette", "{}", "before.pal")})).isEmpty());
            const Recipe before = recipe;
            QCOMPARE(told(recipe.parse(text)).join(u'|'), expected);
            QVERIFY(recipe == before);
        };
        const auto refusesOutput = [&](const QByteArray &line, const QString &expected) {
            refuses(recipeOf({good, line}), expected);
        };
        refuses("", "1: This is no JSON: illegal value");
        refuses(recipeOf({good, "\n<<<<<<< ours"}), "6: This is no JSON: illegal number");
        refuses("[1]", "0: This is no recipe: “formatVersion” is missing");
        refuses(R"({"formatVersion": 1e300})", "0: The recipe is from a newer version of Quenmora");
        refuses(R"({"formatVersion": 1, "outputs": {}})", "0: “outputs” must be a list");
        refuses(R"({"formatVersion": 1, "outputs": [1], "outputs": [2]})", "0: “outputs” is there twice");
        refuses(R"({"formatVersion": 1, "outputs": [], "output": 1})", "0: “output” means nothing here");
        refuses(R"({"formatVersion": 1, "outputs": [)" + QByteArray("1,").repeated(10'000) + "1]}",
                "0: There are more than 10000 outputs");
        refusesOutput(R"({"kind": 1, "id": null})",
                      "5: “kind” must be a text|5: “id” must be a text|5: “name” is missing|5: “form” is missing|"
                      "5: “file” is missing");
        refusesOutput(QByteArray(good).replace("palette\", \"id", "colours\", \"id").replace("main.", "x."),
                      "5: There is no kind of asset “colours”");
        refusesOutput(QByteArray(good).replace(PaletteId, "7").replace("main.", "x."), "5: “7” is no id");
        refuses(recipeOf({outputLine("palette", "{}", "%2"), outputLine("palette", "{}", "%2")}),
                "5: “%2” is the file of line 4 already");
        refusesOutput(outputLine("palette-17", "{}", "x"), "5: There is no form “palette-17”");
        refusesOutput(outputLine("map-2byte", "{}", "x"), "5: map-2byte is a form of a map, not of a palette");
        refusesOutput(outputLine("palette", "[]", "x"), "5: “options” must be an object");
        refusesOutput(outputLine("palette", R"({"padding": 1})", "x"), "5: palette has no option “padding”");
        refusesOutput(outputLine("palette", R"({"pad": 1.5})", "x"),
                      "5: The option “pad” has a value of the wrong type");
        refuses(recipeOf({good, "\n\n" + outputLine("x", "{}", "x"), good}),
                "7: There is no form “x”|8: “main.pal” is the file of line 4 already");
        // one file on Windows
        refusesOutput(outputLine("palette", "{}", "MAIN.pal"), "5: “MAIN.pal” is the file of line 4 already");
        refusesOutput(outputLine("palette", "{}", "/etc/passwd"),
                      "5: “/etc/passwd” cannot be written: it is not relative");
        refusesOutput(outputLine("palette", "{}", "../../x"),
                      "5: “../../x” cannot be written: it leads out of its folder");
    }

    void damagedRecipesNeverCrash()
    {
        const QByteArray text = recipeOf({outputLine("palette", R"({"text": "c"})", "a.c"), "[{}]", "\"\\\"[\""});
        for (qsizetype i = 0; i < text.size(); ++i) {
            for (const char c : QByteArrayView("\0\"\\[]{},1\n", 10)) {
                QByteArray damaged = text;
                damaged[i] = c;
                Recipe recipe;
                static_cast<void>(recipe.parse(damaged));
                static_cast<void>(recipe.parse(damaged.first(i)));
            }
        }
    }

    void filesThatAreNoRecipesAreRefused()
    {
        Recipe recipe;
        QCOMPARE(told(recipe.load(path("none"))), QStringList("0: There is no such file"));
        QCOMPARE(told(recipe.load(path())), QStringList("0: The file cannot be read"));
        QFile large(path("large"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(Recipe::MaxBytes + 1));
        QCOMPARE(told(recipe.load(large.fileName())), QStringList("0: The file is too large for a recipe"));
    }

    void onlyWhatDiffersIsWritten()
    {
        const Recipe recipe = recipeFor({{"palette", 0, "a b/ü.pal"}, {"palette-8bit", 1, "c.pal"}});
        QCOMPARE(states(recipe, RecipeRun::Mode::Look), (QList{State::New, State::New}));
        QVERIFY(!QFile::exists(path("c.pal")));
        QCOMPARE(states(recipe), (QList{State::New, State::New}));
        QCOMPARE(QFileInfo(path("c.pal")).size(), 256);

        QFile kept(path("c.pal"));
        const QDateTime before(QDate(2001, 2, 3), {});
        QVERIFY(kept.open(QIODevice::ReadWrite) && kept.setFileTime(before, QFile::FileModificationTime));
        kept.close();
        const auto other = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        QVERIFY(QFile::setPermissions(path("a b/ü.pal"), other));
        m_project->palettes()[0]->setColour(7, Qt::white, true);
        QCOMPARE(states(recipe, RecipeRun::Mode::Look), (QList{State::Changed, State::Unchanged}));
        QCOMPARE(states(recipe), (QList{State::Changed, State::Unchanged}));
        QCOMPARE(readFile(path("a b/ü.pal")).mid(14, 2), QByteArray("\xFF\x81"));
        QCOMPARE(QFileInfo(kept).lastModified(), before);
        QVERIFY(!Platform::HasFileModes
                || (QFileInfo(path("a b/ü.pal")).permissions() & ~QFile::Permissions(0x0777)) == other);
        QCOMPARE(entriesOf(path("a b")), QStringList("ü.pal"));
    }

    void labelsDoNotDependOnWhatIsRun()
    {
        const Recipe recipe =
            recipeFor({{"palette-8bit", 0, "1.asm"}, {"palette", 2, "2.pal"}, {"palette", 1, "3.asm"}});
        RecipeRun all(*m_project, recipe, path(), {});
        QCOMPARE(all.runAll(RecipeRun::Mode::Write).size(), 3);
        RecipeRun last(*m_project, recipe, path(), {});
        QVERIFY(last.run(2, RecipeRun::Mode::Look).state == State::Unchanged);
        QVERIFY(last.run(0, RecipeRun::Mode::Look).state == State::Unchanged);
        QVERIFY(readFile(path("3.asm")).contains("main_palette_2:"));
    }

    void impossibleOutputsAreTold()
    {
        if (!Platform::HasLinks)
            QSKIP("Links are files of their own here");
        const auto idOf = [this](int palette) {
            return m_project->palettes()[palette]->id().toString(QUuid::WithoutBraces);
        };
        const std::tuple<int, QString, QString> cases[] = {
            {0, "a/x.pal", {}},
            {0, "dead/x.pal", "“dead/x.pal” cannot be written: “dead” is a link that leads nowhere"},
            {0, "file/x.pal", "“file/x.pal” cannot be written: “file” is no folder"},
            {0, "folder", "“folder” cannot be written: it is a folder"},
            {0, "game.quenmora", "“game.quenmora” is the project or its recipe"},
            {0, "inside/x.pal", "“a/x.pal” is written for “a/x.pal” already"},
            {0, "kept", "You may not write to kept"},
            {0, "loop/x.pal", "“loop/x.pal” cannot be written: “loop” is a link that leads nowhere"},
            {0, "out", "“out” cannot be written: the link “out” leads out of the folder"},
            {0, "outside/x.pal", "“outside/x.pal” cannot be written: the link “outside” leads out of the folder"},
            {0, "self/y.pal", {}},
            {1, "z1.pal",
             "The project no longer has a palette “Main” with the id " + idOf(1) + ", but another one of that name ("
                 + idOf(0) + ")"},
            {2, "z2.pal", "The project no longer has a palette “Größe/2” with the id " + idOf(2)},
        };
        QList<Wanted> wanted;
        QStringList expected;
        for (const auto &[palette, file, reason] : cases) {
            wanted.append({"palette", palette, file});
            expected.append(reason);
        }
        const Recipe recipe = recipeFor(wanted);
        const TemporaryFolder other;
        QVERIFY(QDir(path()).mkdir("a") && QDir(path()).mkdir("folder"));
        QVERIFY(writeFile(path("file"), "1") && writeFile(path("game.quenmora"), "2") && writeFile(path("kept"), "3"));
        QVERIFY(QFile::setPermissions(path("kept"), QFile::ReadOwner));
        QVERIFY(writeFile(other("x"), "4"));
        const std::pair<const char *, QString> links[] = {
            {"dead", "nowhere"}, {"inside", path("a")}, {"loop", "loop"},
            {"self", "."},       {"outside", other()},  {"out", other("x")},
        };
        for (const auto &[name, target] : links)
            QVERIFY(QFile::link(target, path(name)));
        for (const auto &palette : m_project->palettes().mid(1))
            QVERIFY(m_project->deletePalette(palette->id()));

        RecipeRun run(*m_project, recipe, path(), {path("game.quenmora"), path("none")});
        QStringList reasons;
        for (const RecipeRun::Outcome &outcome : run.runAll(RecipeRun::Mode::Write))
            reasons.append(QString(outcome.reason).replace(path() + u'/', ""));
        QCOMPARE(reasons, expected);
        QCOMPARE(entriesOf(path()),
                 QStringList({"a", "dead", "file", "folder", "game.quenmora", "inside", "kept", "loop", "out",
                              "outside", "self", "y.pal"}));
        QVERIFY(readFile(path("game.quenmora")) == "2" && readFile(path("kept")) == "3");
        QVERIFY(entriesOf(other()) == QStringList("x") && readFile(other("x")) == "4");
    }

    void whatCannotBeWrittenToItsEndLeavesTheFile()
    {
        if (!Platform::HasFullDisks)
            QSKIP("No disk can be made full here");
        const Recipe recipe = recipeFor({{"palette", 0, "x.pal"}});
        QVERIFY(writeFile(path("x.pal"), "before"));
        {
            const Platform::FileSizeLimit full(100);
            QCOMPARE(states(recipe), QList{State::Impossible});
        }
        QCOMPARE(entriesOf(path()), QStringList("x.pal"));
        QCOMPARE(readFile(path("x.pal")), QByteArray("before"));
    }

private:
    struct Wanted
    {
        QString form;
        int palette;
        QString file; ///< source text for ".asm"
    };

    [[nodiscard]] QString path() const { return (*m_folder)(); }
    [[nodiscard]] QString path(const QString &name) const { return (*m_folder)(name); }

    [[nodiscard]] Recipe recipeFor(const QList<Wanted> &wanted) const
    {
        QList<RecipeOutput> outputs;
        for (const Wanted &each : wanted) {
            const QPointer<Palette> palette = m_project->palettes()[each.palette];
            RecipeOutput output{AssetKind::Palette, palette->id(), palette->name(), each.form, {}, each.file};
            if (each.file.endsWith(".asm"))
                output.options.insert("text", "sjasmplus");
            outputs.append(output);
        }
        Recipe recipe;
        recipe.setOutputs(outputs);
        return recipe;
    }

    [[nodiscard]] QList<State> states(const Recipe &recipe, RecipeRun::Mode mode = RecipeRun::Mode::Write) const
    {
        return valuesOf(RecipeRun(*m_project, recipe, path(), {}).runAll(mode), &RecipeRun::Outcome::state);
    }

    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<Project> m_project;
};

QUENMORA_TEST_MAIN(TestRecipe)
#include "tst_recipe.moc"
