#include "app/projectcontroller.h"

#include "app/menus/filemenu.h"
#include "model/projectextras.h"
#include "support/archivetools.h"
#include "support/modeltools.h"
#include "support/platform.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QtTest>
#include <QtWidgets>

#include <optional>

namespace {

using Answer = ProjectController::UnsavedAnswer;

enum Request { New, Open, CloseRequest, Quit };
enum Saving { ToItsFile, ToChosenFile, ToNoFile, ToFullDisk };

} // namespace

class TestProjectController : public QObject
{
    Q_OBJECT

private slots:
    /// Also writes a project file that the controller under test has nothing to do with.
    void init()
    {
        m_controller.reset();
        m_menu.emplace();
        m_folder.emplace();
        m_controller.emplace(nullptr, &*m_menu);
        m_asked.clear();
        m_chosenFile.clear();
        m_controller->setUnsavedAnswerCallback([this](const QString &name) {
            m_asked.append(name);
            return m_answer;
        });
        m_controller->setFileNameCallback([this] { return m_chosenFile; });
        m_log.emplace(*m_controller);
        m_log->listen(*m_controller->store(), &ProjectStore::loadError, "loadError");
        m_log->listen(*m_controller->store(), &ProjectStore::saveError, "saveError");
        ProjectStore store;
        SampleProject::fill(*store.newProject({}));
        store.project()->setName("Other");
        QVERIFY(store.saveAs(path("other.quenmora")));
    }

    void discardsNothingWithoutAsking_data()
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

    void discardsNothingWithoutAsking()
    {
        QFETCH(const Request, request);
        QFETCH(const Answer, answer);
        QFETCH(const Saving, saving);
        QFETCH(const bool, goesOn);
        if (saving == ToFullDisk && !Platform::HasFullDisks)
            QSKIP("No disk can be made full here");
        emit m_menu->newProject("Game");
        if (saving != ToNoFile)
            m_chosenFile = path("game.quenmora");
        if (saving == ToItsFile || saving == ToFullDisk)
            emit m_menu->saveProject();
        change();
        m_answer = answer;
        const QPointer<Project> game = m_controller->project();

        std::optional<Platform::FileSizeLimit> fullDisk;
        if (saving == ToFullDisk)
            fullDisk.emplace(64);
        if (request == New)
            emit m_menu->newProject("Next");
        else if (request == Open)
            emit m_menu->openProject(path("other.quenmora"));
        else if (request == CloseRequest)
            emit m_menu->closeProject();
        else
            QCOMPARE(m_controller->confirmClose(), goesOn);
        fullDisk.reset();

        QCOMPARE(m_asked, QStringList{"Game"});
        QCOMPARE(game.isNull(), goesOn && request != Quit);
        if (!goesOn) {
            QCOMPARE(m_controller->project(), game.data());
            QVERIFY(m_controller->isModified());
            QCOMPARE(game->palettes().size(), 1);
        } else if (answer == Answer::Save) {
            ProjectStore saved;
            saved.newProject({});
            QVERIFY(saved.load(path("game.quenmora")));
            QCOMPARE(saved.project()->palettes().size(), 1);
        }
        if (goesOn && request == New)
            QCOMPARE(m_controller->project()->name(), "Next");
        if (goesOn && request == Open)
            QCOMPARE(m_controller->project()->name(), "Other");
    }

    void asksNothingWhenNothingChanged()
    {
        QVERIFY(m_controller->confirmClose());
        m_controller->saveAs(); // without a project
        m_controller->newProject("First");
        m_controller->newProject("Second");
        m_controller->openProject(path("other.quenmora"));
        m_controller->openProject(path("other.quenmora"));
        QCOMPARE(m_controller->filePath(), path("other.quenmora"));
        change();
        m_controller->save();
        emit m_menu->closeProject();
        QVERIFY(!m_controller->project());
        QVERIFY(m_asked.isEmpty());
    }

    void knowsWhatIsModified()
    {
        bool clean = true;
        m_controller->setCleanCallbacks([&clean] { return clean; }, [&clean] { clean = true; });
        m_controller->newProject("Game");
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
        QVERIFY(clean && !m_controller->isModified());
    }

    void keepsTheExtrasBesideTheProject()
    {
        const auto extra = [this] { return m_controller->project()->extras()->section("note").toString(); };
        const auto setExtra = [this](const QString &text) {
            m_controller->project()->extras()->setSection("note", text);
        };
        m_controller->newProject("Game");
        setExtra("saved");
        m_chosenFile = path("game.quenmora");
        m_controller->save();
        setExtra("closed");
        QVERIFY2(!m_controller->isModified(), "extras do not modify a project");
        m_controller->openProject(path("other.quenmora"));
        QCOMPARE(extra(), "");
        m_controller->openProject(path("game.quenmora"));
        QCOMPARE(extra(), "closed");
        m_chosenFile = path("copy.quenmora");
        m_controller->saveAs();
        setExtra("discarded");
        change();
        m_answer = Answer::Discard;
        m_controller->openProject(path("copy.quenmora"));
        QCOMPARE(extra(), "closed");
        QFile(path("copy.quenmora-extras.json")).resize(3);
        m_log->take();
        m_controller->openProject(path("copy.quenmora"));
        QVERIFY2(m_controller->project(), "damaged extras cost only what they held");
        const QString told = m_log->take().join(u' ');
        QVERIFY2(told.contains("copy.quenmora-extras.json"), qPrintable(told));
    }

    void extrasOfWhatIsDeletedAreNotSaved()
    {
        m_controller->newProject("Game");
        m_chosenFile = path("game.quenmora");
        Project &project = *m_controller->project();
        const auto palette = project.createPalette(CreateAction::Blank, "Gone");
        const auto kept = project.createTileSet("Kept", palette->id(), 1);
        const auto gone = project.createTileSet("Gone", palette->id(), 1);
        const auto key = [](const QUuid &id) { return id.toString(QUuid::WithoutBraces); };
        const QJsonObject both{{key(kept->id()), 1}, {key(gone->id()), 2}, {"of a later version", 3}};
        for (const char *section : {"stamps", "terrains", "others"})
            project.extras()->setSection(section, both);
        project.extras()->setSection("colourCycles", QJsonObject{{key(QUuid::createUuid()), 4}});
        m_controller->save();
        QVERIFY(project.deleteTileSet(gone->id()));
        QCOMPARE(project.extras()->section("stamps").toObject(), both); // as long as the file has the tile set
        m_controller->save();
        const QJsonObject left{{key(kept->id()), 1}, {"of a later version", 3}};
        QCOMPARE(QJsonDocument::fromJson(readFile(path("game.quenmora-extras.json"))).object(),
                 (QJsonObject{{"stamps", left}, {"terrains", left}, {"others", both}}));
    }

    void refusesFilesOfLaterVersions()
    {
        const QByteArray future = R"({"formatVersion": 3, "id": "", "name": "Future"})";
        QVERIFY(ArchiveTools::writeArchive(path("newer.quenmora"), {{"project.json", future}}));
        m_controller->openProject(path("newer.quenmora"));
        QVERIFY(!m_controller->project() && m_controller->filePath().isEmpty() && m_menu->recentFiles().isEmpty());
        QCOMPARE(m_log->take(), QStringList("loadError Project file is from a newer version of Quenmora"));
    }

    void remembersProjectsAndBacksThemUp()
    {
        m_controller->openProject(path("other.quenmora"));
        m_chosenFile = path("copy.quenmora");
        m_controller->saveAs();
        QCOMPARE(m_controller->filePath(), path("copy.quenmora"));
        QCOMPARE(m_menu->recentFiles(), (QStringList{path("copy.quenmora"), path("other.quenmora")}));
        m_controller->openProject(path("other.quenmora"));
        QCOMPARE(m_menu->recentFiles(), (QStringList{path("other.quenmora"), path("copy.quenmora")}));
        for (const bool backup : {false, true}) {
            m_controller->setBackupCallback([backup] { return backup; });
            m_controller->save(); // also when nothing has changed
            QCOMPARE(QFileInfo::exists(path("other.quenmora.bak")), backup);
        }
    }

    void announcesEveryStep()
    {
        QString closing; // the name of the project, which still exists
        connect(&*m_controller, &ProjectController::projectClosing, this,
                [&] { closing = m_controller->project()->name(); });
        m_controller->newProject("Game");
        m_controller->save(); // and no file was chosen
        m_chosenFile = path("game.quenmora");
        m_controller->save();
        QCOMPARE(m_log->take(),
                 (QStringList{"projectOpened Project", "aboutToSave", "saveFinished", "aboutToSave", "saveFinished"}));
        m_controller->openProject(m_chosenFile);
        QCOMPARE(m_log->take(), (QStringList{"projectClosing", "projectClosed", "projectOpened Project"}));
        QCOMPARE(closing, "Game");
        change();
        m_chosenFile = path("no such folder/game.quenmora");
        m_controller->saveAs();
        QCOMPARE(m_log->take(),
                 (QStringList{"aboutToSave", "saveError Could not create the project file", "saveFinished"}));
        m_chosenFile.clear();
        m_controller->saveAs();
        QCOMPARE(m_controller->filePath(), path("game.quenmora")); // as it was before
        QVERIFY(m_controller->isModified());
        m_controller->close();
        m_controller->close();
        QCOMPARE(m_log->take(), (QStringList{"aboutToSave", "saveFinished", "projectClosing", "projectClosed"}));
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder->filePath(QLatin1StringView(name)); }
    void change() { m_controller->project()->createPalette(CreateAction::DefaultNext, "Change"); }

    std::optional<QTemporaryDir> m_folder;
    std::optional<FileMenu> m_menu;
    std::optional<ProjectController> m_controller;
    Answer m_answer = Answer::Cancel;
    QStringList m_asked; ///< for what projects
    QString m_chosenFile;
    std::optional<SignalLog> m_log;
};

QUENMORA_TEST_MAIN(TestProjectController)
#include "tst_projectcontroller.moc"
