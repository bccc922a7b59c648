#include "command/exportcommand.h"

#include "command/depfile.h"
#include "store/projectstore.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QtTest>

#include <optional>

using namespace NextData;

/// The command in a folder of its own, which is the current one, with the sample project "game.quenmora" and a recipe
/// of a palette, a map cut into banks, and a sprite bank as C.
class TestExportCommand : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        QVERIFY(QDir::setCurrent((*m_folder)()));
        ProjectStore store;
        Project &project = *store.newProject({});
        SampleProject::fill(project);
        m_palette = project.palettes()[0]->id();
        m_twins = project.palettes()[1]->id();
        project.palettes()[1]->setName("Twin");
        project.clonePalette(m_twins)->setName("Twin");
        QVERIFY(store.saveAs("game.quenmora"));

        Recipe recipe;
        recipe.setOutputs({
            {AssetKind::Palette, m_palette, "Main", "palette", {}, "gfx data/palette.pal"},
            {AssetKind::Map, project.maps()[0]->id(), "Level", "map-2byte", {{"cut", "8k"}}, "level.map"},
            {AssetKind::SpriteBank,
             project.spriteBanks()[0]->id(),
             "Hero",
             "sprites-packed",
             {{"text", "c"}},
             "hero.c"},
        });
        QCOMPARE(recipe.save("game.quenmora-export.json"), QString());
    }

    void cleanup() { QVERIFY(QDir::setCurrent("/")); }

    void wrongUsageIsRefused_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char *words, const char *reason) {
            QTest::newRow(words) << QString::fromUtf8(words).split(u' ', Qt::SkipEmptyParts)
                                 << QString::fromUtf8(reason);
        };
        row("", "A project file is missing");
        row("a b", "“b” is one argument too many");
        row("--formats a", "“a” is one argument too many");
        row("--nonsense a", "Unknown option 'nonsense'.");
        row("a --recipe", "Missing value after '--recipe'.");
        row("a --output=", "--output needs a value");
        row("a --recipe b --recipe c", "--recipe is there twice");
        row("a --list --describe", "--list and --describe do not go together");
        row("a --list --dry-run", "--dry-run means nothing here");
        row("a --to b", "--to means nothing here");
        row("a --asset b --format c", "--asset needs --to");
        row("a --asset b --format c --to d --output e", "--output means nothing here");
        row("a --size 8", "--size means nothing here");
        row("a --thumbnail b --size 0", "--size takes a number from 1 to 4096, not “0”");
        row("a --asset b --format c --to d --option text", "--option takes KEY=VALUE, not “text”");
    }

    void wrongUsageIsRefused()
    {
        QFETCH(const QStringList, words);
        QFETCH(const QString, reason);
        QCOMPARE(run(words), 2);
        QCOMPARE(m_errors.section(u'\n', 0, 0), "quenmora-export: " + reason);
        QVERIFY(m_out.isEmpty());
    }

    void whatFailsIsSaidWithFileAndReason_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *name, const QStringList &words, const char *message) {
            QTest::newRow(name) << words << QString::fromUtf8(message);
        };
        const auto single = [&](const char *asset, const char *form, const QStringList &more, const char *message) {
            const QStringList words{"game.quenmora", "--asset", asset, "--format", form};
            row(message, words + more, message);
        };
        row("project", {"none.quenmora"}, "none.quenmora: There is no such file");
        row("damaged", {"bad.json"}, "bad.json: Invalid project file");
        row("no recipe", {"other.quenmora"},
            "other.quenmora-export.json: The project has no recipe; File > Export Project in the editor makes one");
        row("recipe", {"game.quenmora", "--recipe", "none"}, "none: There is no such file");
        row("bad recipe", {"game.quenmora", "--recipe", "bad.json"},
            "bad.json:2: An output must be an object|bad.json:4: An output must be an object");
        row("depfile", {"game.quenmora", "--output", "a;b", "--depfile", "d"},
            "d: make cannot be told of “a;b/gfx data/palette.pal”: its name has characters that end names");
        row("depfile's place", {"game.quenmora", "--depfile", "."}, ".: . is a folder");
        row("depfile over project", {"game.quenmora", "--depfile", "./game.quenmora"},
            "./game.quenmora: This file is exported, or exported from");
        row("output folder", {"game.quenmora", "--output", "bad.json"},
            "RECIPE:4: gfx data/palette.pal: The folder PATH/bad.json/gfx data cannot be made|"
            "RECIPE:5: hero.c: The folder PATH/bad.json cannot be made|"
            "RECIPE:6: level.map: The folder PATH/bad.json cannot be made");
        single("Main", "nonsense", {"--to", "x"}, "x: There is no form “nonsense”");
        single("Main", "palette", {"--to", "x", "--option", "group=1"},
               "x: There is no option “group”, only text, label, pad, cut");
        single("Nobody", "palette", {"--to", "x"}, "game.quenmora: There is no asset “Nobody”");
        single("Twin", "palette", {"--to", "x"},
               "game.quenmora: “Twin” is the name of several assets: use an id (ID, OTHER)");
        single("Main", "palette", {"--to", "./game.quenmora"}, "./game.quenmora: This is the project itself");
    }

    void whatFailsIsSaidWithFileAndReason()
    {
        QFETCH(const QStringList, words);
        QFETCH(QString, message);
        QVERIFY(writeFile("bad.json", "{\"formatVersion\": 1, \"outputs\": [\n6,\n\n7]}"));
        const QByteArray project = readFile("game.quenmora");
        QVERIFY(writeFile("other.quenmora", project));
        QCOMPARE(run(words + QStringList("--quiet")), 1);
        QVERIFY(m_out.isEmpty());
        message.replace("RECIPE", "game.quenmora-export.json");
        for (const QString path : {"/bad.json/gfx data", "/bad.json"})
            message.replace("PATH" + path, QDir::toNativeSeparators(QDir::currentPath() + path));
        message.replace("(ID", '(' + m_twins.toString(QUuid::WithoutBraces));
        message.replace("OTHER", m_errors.section(", ", -1).chopped(2));
        QCOMPARE(m_errors.chopped(1).split(u'\n').join(u'|'), message);
        QCOMPARE(readFile("game.quenmora"), project);
    }

    void recipesAreDoneAndDoneAgain()
    {
        QCOMPARE(run({"game.quenmora", "--dry-run", "--depfile", "d"}), 0);
        const QString files =
            "new       gfx data/palette.pal\nnew       hero.c\nnew       hero.h\nnew       level_0.map\n";
        QCOMPARE(m_out, files + "3 new; nothing was written\n");
        QCOMPARE(filesIn("."), QStringList({"game.quenmora", "game.quenmora-export.json"}));

        QCOMPARE(run({"game.quenmora"}), 0);
        QCOMPARE(m_out, files + "3 new\n");
        QCOMPARE(readFile("gfx data/palette.pal").size(), 512);
        QCOMPARE(readFile("level_0.map").size(), 6 * 4 * 2);
        QCOMPARE(run({"game.quenmora"}), 0);
        QCOMPARE(m_out, "3 unchanged\n");

        QVERIFY(writeFile("hero.h", "by somebody else") && QFile::remove("level_0.map"));
        QCOMPARE(run({"game.quenmora"}), 0);
        QCOMPARE(m_out, "changed   hero.h\nnew       level_0.map\n1 new, 1 changed, 1 unchanged\n");
        QCOMPARE(run({"--quiet", "--output", "a/ü", "--recipe", "game.quenmora-export.json", "game.quenmora"}), 0);
        QVERIFY(m_out.isEmpty() && m_errors.isEmpty());
        QCOMPARE(filesIn("a/ü"), QStringList({"gfx data", "hero.c", "hero.h", "level_0.map"}));
        QCOMPARE(readFile("a/ü/hero.c"), readFile("hero.c"));
    }

    void whatCanBeIsWrittenWhereSomethingFails()
    {
        QVERIFY(removeAsset(m_palette));
        QCOMPARE(run({"game.quenmora", "--depfile", "d"}), 1);
        QCOMPARE(
            m_errors,
            "game.quenmora-export.json:4: gfx data/palette.pal: The project no longer has a palette “Main” with the id "
                + m_palette.toString(QUuid::WithoutBraces) + '\n');
        QVERIFY(m_out.endsWith("2 new, 1 failed\n"));
        QVERIFY(QFile::exists("level_0.map") && !QFile::exists("gfx data") && !QFile::exists("d"));
    }

    void interruptionsEndBetweenOutputs()
    {
        int asked = 0;
        QCOMPARE(run({"game.quenmora"}, [&asked] { return ++asked > 1; }), 1);
        QCOMPARE(m_errors, "game.quenmora-export.json: Interrupted: 2 outputs were not looked at\n");
        QVERIFY(QFile::exists("gfx data/palette.pal") && !QFile::exists("hero.c"));
    }

    void singleAssetsNeedNoRecipe()
    {
        const QStringList words{"game.quenmora", "--format", "palette-group", "--option",  "group=3",
                                "--option",      "pad=40",   "--to",          "out/3.nxp", "--asset"};
        QCOMPARE(run(words + QStringList("Main")), 0);
        QCOMPARE(m_out, "new       out/3.nxp\n");
        QCOMPARE(readFile("out/3.nxp").toHex().first(8), "30003101");
        QCOMPARE(readFile("out/3.nxp").size(), 40);
        QCOMPARE(run(words + QStringList{m_palette.toString(QUuid::WithoutBraces), "--depfile", "d"}), 0);
        QCOMPARE(m_out, QString());
        QCOMPARE(readFile("d"), QByteArray("out/3.nxp: \\\n  game.quenmora\n"));
    }

    void depfilesNameEverything()
    {
        QCOMPARE(run({"game.quenmora", "--depfile", "d"}), 0);
        QCOMPARE(readFile("d"),
                 QByteArray("gfx\\ data/palette.pal \\\nhero.c \\\nhero.h \\\nlevel_0.map: \\\n  game.quenmora \\\n"
                            "  game.quenmora-export.json\n"));
        QCOMPARE(Depfile::rule({"~a/b%$1.pal", "\\\\ #[1]:"}, {"c%"}),
                 QByteArray("./~a/b\\%$$1.pal \\\n\\\\\\\\\\ \\#\\[1]\\:: \\\n  c%\n"));
        for (const char *name : {"a\nb", "a;b", "a=b", "a|b", "a*", "a?"})
            QVERIFY2(!Depfile::canName(name), name);
    }

    void tellsWhatThereIs()
    {
        QCOMPARE(run({"--version"}), 0);
        QVERIFY(m_out.startsWith("quenmora-export "));
        QCOMPARE(run({"--help"}), 0);
        for (const char *option :
             {"--recipe", "--output", "--dry-run", "--depfile", "--quiet", "--asset", "--format", "--option", "--to",
              "--list", "--formats", "--describe", "--thumbnail", "--size", "--help", "--version"})
            QVERIFY2(m_out.contains(option), option);
        QCOMPARE(run({"--formats"}), 0);
        QVERIFY(m_out.contains("palette  palette-group (.nxp): ") && m_out.contains("\n    group=0…15 [0]: "));
        QCOMPARE(run({"--list", "game.quenmora"}), 0);
        QVERIFY(m_out.startsWith("palette  " + m_palette.toString(QUuid::WithoutBraces) + " \"Main\"\n"));
        QCOMPARE(m_out.count('\n'), 3 + 2 + 2 + 2 + 2 + 4);
        QCOMPARE(run({"--describe", "game.quenmora"}), 0);
        QVERIFY(m_out.startsWith("project \"Sample\"\n"));
    }

private:
    int run(const QStringList &words, const ExportCommand::Interruption &interruption = {})
    {
        m_out.clear();
        m_errors.clear();
        QTextStream out(&m_out);
        QTextStream errors(&m_errors);
        return ExportCommand(out, errors, interruption).run(QStringList("quenmora-export") + words);
    }

    static QStringList filesIn(const QString &folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    /// Takes a palette out of the project, from under whatever uses it.
    static bool removeAsset(const QUuid &id)
    {
        ProjectStore store;
        store.newProject({});
        const bool isLoaded = store.load("game.quenmora");
        delete store.project()->palette(id);
        return isLoaded && store.save(false);
    }

    std::optional<TemporaryFolder> m_folder;
    QUuid m_palette;
    QUuid m_twins;
    QString m_out;
    QString m_errors;
};

QUENMORA_TEST_MAIN(TestExportCommand)
#include "tst_exportcommand.moc"
