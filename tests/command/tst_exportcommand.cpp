#include "command/exportcommand.h"

#include "command/depfile.h"
#include "command/description.h"
#include "store/projectstore.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QtTest>

#include <optional>

using namespace NextData;

namespace {

/// The lines that one text has and the other has not, "-" before those of the first and "+" before those of the
/// second, sorted.
QStringList difference(const QByteArray &before, const QByteArray &after)
{
    QByteArrayList old = before.split('\n');
    QStringList changes;
    QStringList added;
    for (const QByteArray &line : after.split('\n')) {
        if (!old.removeOne(line))
            added.append("+" + QString::fromUtf8(line).trimmed());
    }
    for (const QByteArray &line : old)
        changes.append("-" + QString::fromUtf8(line).trimmed());
    changes += added;
    changes.sort();
    return changes;
}

/// The description as UTF-8.
QByteArray described(const Project &project)
{
    QByteArray text;
    QTextStream out(&text);
    describe(project, out);
    out.flush();
    return text;
}

} // namespace

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

    void wrongUsageIsRefused()
    {
        const auto refuses = [this](const char *words, const char *reason) {
            QCOMPARE(run(QString(words).split(u' ', Qt::SkipEmptyParts)), 2);
            QCOMPARE(m_errors.section(u'\n', 0, 0), QString("quenmora-export: ") + reason);
            QVERIFY(m_out.isEmpty());
        };
        refuses("", "A project file is missing");
        refuses("a b", "“b” is one argument too many");
        refuses("--formats a", "“a” is one argument too many");
        refuses("--nonsense a", "Unknown option 'nonsense'.");
        refuses("a --recipe", "Missing value after '--recipe'.");
        refuses("a --output=", "--output needs a value");
        refuses("a --recipe b --recipe c", "--recipe is there twice");
        refuses("a --list --describe", "--list and --describe do not go together");
        refuses("a --list --dry-run", "--dry-run means nothing here");
        refuses("a --to b", "--to means nothing here");
        refuses("a --asset b --format c", "--asset needs --to");
        refuses("a --asset b --format c --to d --output e", "--output means nothing here");
        refuses("a --size 8", "--size means nothing here");
        refuses("a --thumbnail b --size 0", "--size takes a number from 1 to 4096, not “0”");
        refuses("a --asset b --format c --to d --option text", "--option takes KEY=VALUE, not “text”");
    }

    void whatFailsIsSaidWithFileAndReason()
    {
        const auto fails = [this](const QStringList &words, QString message) {
            cleanup();
            init();
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
        };
        const auto single = [&](const char *asset, const char *form, const QStringList &more, const QString &message) {
            const QStringList words{"game.quenmora", "--asset", asset, "--format", form};
            fails(words + more, message);
        };
        fails({"none.quenmora"}, "none.quenmora: There is no such file");
        fails({"bad.json"}, "bad.json: Invalid project file");
        fails({"other.quenmora"},
              "other.quenmora-export.json: The project has no recipe; File > Export Project in the editor makes one");
        fails({"game.quenmora", "--recipe", "none"}, "none: There is no such file");
        fails({"game.quenmora", "--recipe", "bad.json"},
              "bad.json:2: An output must be an object|bad.json:4: An output must be an object");
        fails({"game.quenmora", "--output", "a;b", "--depfile", "d"},
              "d: make cannot be told of “a;b/gfx data/palette.pal”: its name has characters that end names");
        fails({"game.quenmora", "--depfile", "."}, ".: . is a folder");
        fails({"game.quenmora", "--depfile", "./game.quenmora"},
              "./game.quenmora: This file is exported, or exported from");
        fails({"game.quenmora", "--output", "bad.json"},
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

    void recipesAreDoneAndDoneAgain()
    {
        QCOMPARE(run({"game.quenmora", "--dry-run", "--depfile", "d"}), 0);
        const QString files =
            "new       gfx data/palette.pal\nnew       hero.c\nnew       hero.h\nnew       level_0.map\n";
        QCOMPARE(m_out, files + "3 new; nothing was written\n");
        QCOMPARE(entriesOf("."), QStringList({"game.quenmora", "game.quenmora-export.json"}));

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
        QCOMPARE(entriesOf("a/ü"), QStringList({"gfx data", "hero.c", "hero.h", "level_0.map"}));
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

    /// Two descriptions differ by what differs between the projects.
    void editsChangeTheirLinesAndNoOthers()
    {
        Project p;
        SampleProject::fill(p);
        const QByteArray before = described(p);
        p.setName("A\nB");
        p.setOpenDocuments({"other"}); // which says nothing
        p.palettes()[0]->setRawColour(9, 0x2681);
        p.palettes()[1]->setTransparencyIndex(0);
        QImage tile = p.tileSets()[0]->image(1);
        tile.setPixel(3, 2, 15);
        p.tileSets()[0]->setTileImage(1, tile);
        p.tileSets()[0]->tile(3)->setValue(-4);
        p.maps()[0]->setTile({0, 3}, {7, true, true, true, 12, true});
        p.maps()[0]->animatedBlocks()->list()[0]->setStartFrame(0);
        Map::PlacedSprite placed = p.maps()[0]->sprites()[1];
        placed.x = 46;
        placed.flip = true;
        p.maps()[0]->setSprite(1, placed);
        p.blockSets()[0]->animations()[0]->frame(0)->setIndex(1, 2, 100);
        p.spriteBanks()[0]->animations()[0]->setDelay(9);
        QImage sprite = p.spriteBanks()[0]->spriteImage(0, false, false, false);
        sprite.setPixel(0, 5, 0xFE); // whose upper half does not count
        p.spriteBanks()[0]->setImage(0, sprite);
        QImage image = p.images()[1]->image();
        image.bits()[image.bytesPerLine()] = 0xAB;
        p.images()[1]->setImage(image);
        p.images()[3]->setName("Wide");
        const auto id = [&p](int number) { return p.images()[number]->id().toString(); };
        QStringList changes{R"(-project "Sample")",
                            R"(+project "A\nB")",
                            "-colour 9 $0901 levels 0 2 3",
                            "+colour 9 $2681 levels 1 1 5 priority",
                            "-transparency none",
                            "+transparency 0",
                            "-01234567",
                            "+012f4567",
                            "-tile 3 offset 15 attributes $FF value 0",
                            "+tile 3 offset 15 attributes $FF value -4",
                            "-.*5 257f/3",
                            "+7rmf/12 .*4 257f/3",
                            R"(-animation "Door" at 1 1 size 3 2 start 1 delays 5 6)",
                            R"(+animation "Door" at 1 1 size 3 2 start 0 delays 5 6)",
                            R"(-sprite "" at 47 0 bank "Hero" sprite 2 offset 15 start 0 delays 0 0)",
                            R"(+sprite "" at 46 0 bank "Hero" sprite 2 flipped offset 15 start 0 delays 0 0)",
                            "-3m/3 4f/4 5r/5",
                            "+3m/3 4f/4 100r/5",
                            R"(-animation "Run" size 2 1 delay 1)",
                            R"(+animation "Run" size 2 1 delay 9)",
                            "-0*16",
                            "+e000000000000000",
                            "-00*320",
                            "+ab" + QString(638, u'0'),
                            R"(-image "Wide")",
                            R"(-image "Small")",
                            R"(+image "Wide" )" + id(2),
                            R"(+image "Wide" )" + id(3)};
        changes.sort();
        QCOMPARE(difference(before, described(p)), changes);
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
