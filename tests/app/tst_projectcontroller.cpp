#include "app/projectcontroller.h"

#include "app/menus/filemenu.h"
#include "model/palette.h"
#include "support/archivetools.h"
#include "support/filesizelimit.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

namespace {

using Answer = ProjectController::UnsavedAnswer;

enum Request { New, Open, CloseRequest, Quit };
enum Saving { ToItsFile, ToChosenFile, ToNoFile, ToFullDisk };

/// Notes the signals of a controller, in order.
class SignalLog
{
public:
    explicit SignalLog(ProjectController &controller)
    {
        const auto note = [this](const char *signal) { return [this, signal] { m_lines.append(signal); }; };
        QObject::connect(&controller, &ProjectController::aboutToSave, &m_context, note("aboutToSave"));
        QObject::connect(&controller, &ProjectController::saveFinished, &m_context, note("saveFinished"));
        QObject::connect(&controller, &ProjectController::projectOpened, &m_context,
                         [this](const Project *project) { m_lines.append("projectOpened " + project->name()); });
        QObject::connect(&controller, &ProjectController::projectClosing, &m_context,
                         [this, &controller] { m_lines.append("projectClosing " + controller.project()->name()); });
        QObject::connect(&controller, &ProjectController::projectClosed, &m_context, note("projectClosed"));
        const auto noteText = [this](const QString &text) { m_lines.append(text); };
        QObject::connect(controller.store(), &ProjectStore::loadError, &m_context, noteText);
        QObject::connect(controller.store(), &ProjectStore::saveError, &m_context, noteText);
    }

    [[nodiscard]] QStringList take() { return std::exchange(m_lines, {}); }

private:
    QObject m_context;
    QStringList m_lines;
};

} // namespace

class TestProjectController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void discardsNothingWithoutAsking_data();
    void discardsNothingWithoutAsking();
    void asksNothingWhenNothingChanged();
    void knowsWhatIsModified();
    void announcesEveryStep();
    void refusesBadFiles_data();
    void refusesBadFiles();
    void remembersRecentProjects();
    void backsUpWhenAsked();
    void restoresTheFileNameAfterAFailedSaveAs();

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder->filePath(QLatin1StringView(name)); }
    void change() { m_controller->project()->createPalette(CreateAction::DefaultNext, "Change"); }
    /// Writes a project file that the controller under test has nothing to do with.
    void writeProject(const char *file, const char *name) const;

    std::optional<QTemporaryDir> m_folder;
    std::optional<FileMenu> m_menu;
    std::optional<ProjectController> m_controller;
    std::optional<Answer> m_answer; ///< none: no question is expected
    QStringList m_asked;
    QString m_chosenFile;
};

void TestProjectController::init()
{
    m_controller.reset();
    m_menu.emplace();
    m_folder.emplace();
    m_controller.emplace(nullptr, &*m_menu);
    m_answer.reset();
    m_asked.clear();
    m_chosenFile.clear();
    m_controller->setUnsavedAnswerCallback([this](const QString &name) {
        m_asked.append(name);
        return m_answer.value_or(Answer::Cancel);
    });
    m_controller->setFileNameCallback([this] { return m_chosenFile; });
}

void TestProjectController::writeProject(const char *file, const char *name) const
{
    ProjectStore store;
    SampleProject::fill(*store.newProject({}));
    store.project()->setName(name);
    QVERIFY(store.saveAs(path(file)));
}

void TestProjectController::discardsNothingWithoutAsking_data()
{
    QTest::addColumn<Request>("request");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<Saving>("saving");
    QTest::addColumn<bool>("goesOn");

    for (const auto &[name, request] :
         {std::pair("new", New), {"open", Open}, {"close", CloseRequest}, {"quit", Quit}}) {
        QTest::addRow("%s, saved", name) << request << Answer::Save << ToItsFile << true;
        QTest::addRow("%s, saved under a name", name) << request << Answer::Save << ToChosenFile << true;
        QTest::addRow("%s, no name given", name) << request << Answer::Save << ToNoFile << false;
        QTest::addRow("%s, disk full", name) << request << Answer::Save << ToFullDisk << false;
        QTest::addRow("%s, discarded", name) << request << Answer::Discard << ToItsFile << true;
        QTest::addRow("%s, cancelled", name) << request << Answer::Cancel << ToItsFile << false;
    }
}

void TestProjectController::discardsNothingWithoutAsking()
{
    QFETCH(const Request, request);
    QFETCH(const Answer, answer);
    QFETCH(const Saving, saving);
    QFETCH(const bool, goesOn);
    writeProject("other.quenmora", "Other");
    emit m_menu->newProject("Game");
    if (saving != ToChosenFile && saving != ToNoFile) {
        m_chosenFile = path("game.quenmora");
        emit m_menu->saveProject();
        m_chosenFile.clear();
    }
    if (saving == ToChosenFile)
        m_chosenFile = path("chosen.quenmora");
    change();
    m_answer = answer;
    const QPointer<Project> game = m_controller->project();

    std::optional<FileSizeLimit> fullDisk;
    if (saving == ToFullDisk)
        fullDisk.emplace(64);
    switch (request) {
    case New:
        emit m_menu->newProject("Next");
        break;
    case Open:
        emit m_menu->openProject(path("other.quenmora"));
        break;
    case CloseRequest:
        emit m_menu->closeProject();
        break;
    case Quit:
        QCOMPARE(m_controller->confirmClose(), goesOn);
        break;
    }
    fullDisk.reset();

    QCOMPARE(m_asked, QStringList{"Game"});
    QCOMPARE(game.isNull(), goesOn && request != Quit);
    if (!goesOn) {
        QCOMPARE(m_controller->project(), game.data());
        QVERIFY(m_controller->isModified());
        QCOMPARE(game->palettes().size(), 1);
    }
    if (goesOn && answer == Answer::Save) {
        ProjectStore saved;
        QVERIFY(saved.load(path(saving == ToChosenFile ? "chosen.quenmora" : "game.quenmora")));
        QCOMPARE(saved.project()->palettes().size(), 1);
    }
    if (goesOn && request == New)
        QCOMPARE(m_controller->project()->name(), "Next");
    if (goesOn && request == Open)
        QCOMPARE(m_controller->project()->name(), "Other");
}

void TestProjectController::asksNothingWhenNothingChanged()
{
    QVERIFY(m_controller->confirmClose());
    m_controller->save(); // without a project
    m_controller->saveAs();
    m_controller->newProject("First");
    m_controller->newProject("Second");
    writeProject("other.quenmora", "Other");
    m_controller->openProject(path("other.quenmora"));
    m_controller->openProject(path("other.quenmora"));
    QCOMPARE(m_controller->filePath(), path("other.quenmora"));
    change();
    m_controller->save();
    emit m_menu->closeProject();
    QVERIFY(!m_controller->project());
    QVERIFY(m_asked.isEmpty());
}

void TestProjectController::knowsWhatIsModified()
{
    bool clean = true;
    m_controller->setCleanCallbacks([&clean] { return clean; }, [&clean] { clean = true; });
    QVERIFY(!m_controller->isModified());
    m_controller->newProject("Game");
    QVERIFY(!m_controller->isModified());

    m_controller->project()->setOpenDocuments({"{a tab}"});
    QVERIFY2(!m_controller->isModified(), "open tabs are no change");
    const QPointer<Palette> palette = m_controller->project()->createPalette(CreateAction::Blank, "Main");
    QVERIFY(m_controller->isModified());
    m_controller->project()->deletePalette(palette->id());
    QVERIFY2(!m_controller->isModified(), "what was undone is no change");
    clean = false;
    QVERIFY2(m_controller->isModified(), "an undo stack tells of a change");

    m_chosenFile = path("game.quenmora");
    m_controller->save();
    QVERIFY(clean);
    QVERIFY(!m_controller->isModified());
}

void TestProjectController::announcesEveryStep()
{
    SignalLog log(*m_controller);
    m_controller->newProject("Game");
    QCOMPARE(log.take(), QStringList{"projectOpened Game"});
    m_controller->save();
    QCOMPARE(log.take(), (QStringList{"aboutToSave", "saveFinished"})); // no file was chosen
    m_chosenFile = path("game.quenmora");
    m_controller->save();
    QCOMPARE(log.take(), (QStringList{"aboutToSave", "saveFinished"}));
    m_controller->openProject(m_chosenFile);
    QCOMPARE(log.take(), (QStringList{"projectClosing Game", "projectClosed", "projectOpened Game"}));
    m_controller->close();
    QCOMPARE(log.take(), (QStringList{"projectClosing Game", "projectClosed"}));
    m_controller->close();
    QCOMPARE(log.take(), QStringList());
}

void TestProjectController::refusesBadFiles_data()
{
    QTest::addColumn<QByteArray>("document"); // null: no file at all
    QTest::addColumn<QString>("message");

    QTest::newRow("missing") << QByteArray() << "Invalid project file";
    QTest::newRow("newer") << QByteArray(R"({"formatVersion": 3, "id": "", "name": "Future"})")
                           << "Project file is from a newer version of Quenmora";
}

void TestProjectController::refusesBadFiles()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QString, message);
    if (!document.isNull())
        QVERIFY(ArchiveTools::writeArchive(path("bad.quenmora"), {{"project.json", document}}));
    m_controller->newProject("Game");
    SignalLog log(*m_controller);
    m_controller->openProject(path("bad.quenmora"));
    QCOMPARE(log.take(), (QStringList{"projectClosing Game", "projectClosed", message}));
    QVERIFY(!m_controller->project());
    QVERIFY(m_controller->filePath().isEmpty());
    QVERIFY(m_menu->recentFiles().isEmpty());

    m_controller->newProject("Again");
    QCOMPARE(log.take(), QStringList{"projectOpened Again"});
}

void TestProjectController::remembersRecentProjects()
{
    writeProject("other.quenmora", "Other");
    m_controller->openProject(path("other.quenmora"));
    m_chosenFile = path("copy.quenmora");
    m_controller->saveAs();
    QCOMPARE(m_menu->recentFiles(), (QStringList{path("copy.quenmora"), path("other.quenmora")}));
    QCOMPARE(m_controller->filePath(), path("copy.quenmora"));
    m_controller->openProject(path("other.quenmora"));
    m_controller->save();
    QCOMPARE(m_menu->recentFiles(), (QStringList{path("other.quenmora"), path("copy.quenmora")}));
}

void TestProjectController::backsUpWhenAsked()
{
    bool backup = false;
    m_controller->setBackupCallback([&backup] { return backup; });
    writeProject("game.quenmora", "Game");
    m_controller->openProject(path("game.quenmora"));
    m_controller->save();
    QVERIFY(!QFileInfo::exists(path("game.quenmora.bak")));
    backup = true;
    m_controller->save(); // also when nothing has changed
    QVERIFY(QFileInfo::exists(path("game.quenmora.bak")));
}

void TestProjectController::restoresTheFileNameAfterAFailedSaveAs()
{
    writeProject("game.quenmora", "Game");
    m_controller->openProject(path("game.quenmora"));
    change();
    SignalLog log(*m_controller);
    m_controller->saveAs(); // no file chosen
    QCOMPARE(m_controller->filePath(), path("game.quenmora"));
    m_chosenFile = path("no such folder/game.quenmora");
    m_controller->saveAs();
    QCOMPARE(m_controller->filePath(), path("game.quenmora"));
    QVERIFY(m_controller->isModified());
    QCOMPARE(log.take(),
             (QStringList{"aboutToSave", "saveFinished", "aboutToSave", "Could not create the project file",
                          "saveFinished"}));
    QCOMPARE(m_menu->recentFiles(), QStringList{path("game.quenmora")});
}

QUENMORA_TEST_MAIN(TestProjectController)
#include "tst_projectcontroller.moc"
