#include "exportprogram.h" // made by the build: where the program and the examples are
#include "nextdata/form.h"
#include "nextdata/recipe.h"
#include "support/modeltools.h"
#include "support/platform.h"
#include "support/testmain.h"

#include <QtTest>

using namespace NextData;

namespace {

const QString Program = QStringLiteral(EXPORT_PROGRAM);
const QString Examples = QStringLiteral(EXAMPLES_FOLDER);
constexpr int Patience = 60'000; ///< milliseconds, on a machine that does much else

/// How a program ended, and what it said on both channels.
struct Ending
{
    int code = -1;
    QByteArray text;
};

/// Runs a program; bare without what a desktop sets, and with a platform that Qt does not have.
Ending run(const QString &program, const QStringList &words, const QString &folder = {}, bool isBare = false,
           const QString &locale = "C")
{
    QProcessEnvironment environment;
    if (isBare)
        environment.insert("QT_QPA_PLATFORM", "none");
    else
        environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", locale);
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, words);
    const bool hasEnded = process.waitForFinished(Patience) && process.exitStatus() == QProcess::NormalExit;
    return {hasEnded ? process.exitCode() : -1, process.readAll().replace("\r\n", "\n")};
}

} // namespace

/// The program as a process, on the sample project.
class TestExportProgram : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TemporaryFolder>();
        for (const QString &name : {QString("sample.quenmora"), QString("sample.quenmora-export.json")})
            QVERIFY(QFile::copy(QDir(Examples).filePath(name), path(name)));
    }

    void needsNeitherWidgetsNorADisplay()
    {
        const QByteArray program = readFile(Program);
        QVERIFY(program.contains("Qt6Core") && !program.contains("Qt6Widgets"));
        QVERIFY(!program.contains("Qt6Svg") && !program.contains("Qt6Network"));

        const Ending ending = run(Program, {"-q", path("sample.quenmora"), "--output", path("ü ö")}, "/", true);
        QVERIFY2(ending.code == 0 && ending.text.isEmpty(), ending.text);
        QVERIFY(QFile::exists(path("ü ö/game/gfx/hill.nxt")));
        const Ending wrong = run(Program, {"--nonsense"}, "/", true);
        QVERIFY(wrong.code == 2 && wrong.text.startsWith("quenmora-export: Unknown option"));
        const Ending failed = run(Program, {"ä.quenmora"}, "/", true);
        QVERIFY(failed.code == 1 && failed.text == "ä.quenmora: There is no such file\n");
    }

    void speaksTheLanguageOfTheSystem()
    {
        if (!Platform::HasLanguageVariable)
            QSKIP("The language is chosen in the settings of the system");
        qputenv("LANGUAGE", "de");
        const auto says = [this](const QStringList &words, const QString &locale) {
            return run(Program, words, path({}), false, locale).text;
        };
        QCOMPARE(says({"x"}, "C.UTF-8"), "x: Diese Datei gibt es nicht\n");
        QVERIFY(says({"-n", "sample.quenmora"}, "C.UTF-8").endsWith(" new; nothing was written\n")); // scripts read it
        QCOMPARE(says({"x"}, "C"), "x: There is no such file\n");
        qunsetenv("LANGUAGE");
    }

    void makesThumbnails()
    {
        const QString picture = path("thumb nail.png");
        for (const auto &[size, expected] :
             {std::pair{"256", QSize(256, 176)}, {"40", QSize(40, 40)}, {"5", QSize(5, 5)}}) {
            const Ending ending =
                run(Program, {"--thumbnail", picture, "--size", size, path("sample.quenmora")}, "/", true);
            QVERIFY2(ending.code == 0 && ending.text.isEmpty(), ending.text);
            const QImage shown(picture, "png");
            QCOMPARE(shown.size().boundedTo(expected), shown.size());
            QVERIFY(shown.width() == expected.width() || shown.height() == expected.height());
        }
        // it never takes the project for its target, and says why there is none
        const QByteArray whole = readFile(path("sample.quenmora"));
        QVERIFY(writeFile(path("damaged.quenmora"), whole.left(5000)));
        const Ending damaged = run(Program, {"--thumbnail", picture, path("damaged.quenmora")});
        QVERIFY(damaged.code == 1 && !damaged.text.isEmpty());
        QCOMPARE(run(Program, {"--thumbnail", path("sample.quenmora"), path("sample.quenmora")}).code, 1);
        QCOMPARE(readFile(path("sample.quenmora")), whole);
    }

    void theSamplesRecipeUsesEveryForm()
    {
        Recipe recipe;
        QVERIFY(recipe.load(path("sample.quenmora-export.json")).isEmpty());
        QCOMPARE(recipe.text(), readFile(path("sample.quenmora-export.json")));
        QSet<QString> unused;
        for (const Form &form : forms())
            unused.insert(form.id);
        for (const RecipeOutput &output : recipe.outputs())
            unused.remove(output.form);
        QVERIFY2(unused.isEmpty(), qPrintable(QStringList(unused.values()).join(' ')));
        const QByteArray count = QByteArray::number(recipe.outputs().size());
        QCOMPARE(run(Program, {path("sample.quenmora")}).text.split('\n').last(2).first(), count + " new");
        QCOMPARE(run(Program, {path("sample.quenmora")}).text, count + " unchanged\n");
    }

    /// The loader in the examples is assembled from the sample's exports, again only when one of them changed.
    void theExampleGameIsMade()
    {
        for (const char *tool : {"make", "z80-unknown-coff-as", "z80-unknown-coff-ld"}) {
            if (QStandardPaths::findExecutable(tool).isEmpty())
                QSKIP("there is no binutils-z80, or no make");
        }
        QVERIFY(QDir(path()).mkdir("game"));
        for (const char *name : {"Makefile", "game.s"})
            QVERIFY(QFile::copy(QDir(Examples).filePath(QString("game/") + name), path(QString("game/") + name)));
        const QStringList make{"EXPORT=" + Program};
        const Ending made = run("make", make, path("game"));
        QVERIFY2(made.code == 0, made.text);

        const QByteArray game = readFile(path("game/game.nex"));
        QCOMPARE(game.size(), 512 + 2 * 16384);
        QVERIFY(game.startsWith(QByteArray("NextV1.2\0\2", 10)));
        QCOMPARE(game.mid(512, 108 * 32), readFile(path("game/gfx/hill.nxt")));
        for (const char *part : {"level.pal", "cast.nxp", "cast.spr"})
            QVERIFY2(game.indexOf(readFile(path(QString("game/gfx/") + part)), 512 + 16384) > 0, part);

        const auto later = [this](const QString &name, int seconds) {
            QFile file(path(name));
            return file.open(QIODevice::ReadWrite)
                && file.setFileTime(QDateTime::currentDateTime().addSecs(seconds), QFile::FileModificationTime);
        };
        const QByteArray unchanged = run("make", make, path("game")).text;
        QVERIFY2(!unchanged.contains("coff-") && !unchanged.contains("unchanged"), unchanged);
        QVERIFY(later("sample.quenmora", 2));
        const QByteArray again = run("make", make, path("game")).text;
        QVERIFY2(again.contains("22 unchanged") && !again.contains("coff-as"), again);
        QVERIFY(QFile::remove(path("game/gfx/cast.s")));
        QVERIFY(run("make", make, path("game")).code == 0 && QFile::exists(path("game/gfx/cast.s")));
    }

private:
    [[nodiscard]] QString path() const { return (*m_folder)(); }
    [[nodiscard]] QString path(const QString &name) const { return (*m_folder)(name); }

    std::unique_ptr<TemporaryFolder> m_folder;
};

QUENMORA_TEST_MAIN(TestExportProgram)
#include "tst_exportprogram.moc"
