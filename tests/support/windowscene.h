#pragma once

#include "app/mainwindow.h"
#include "app/menus/filemenu.h"
#include "support/editorinput.h"
#include "support/modeltools.h"
#include "support/sampleproject.h"
#include "support/testmain.h"
#include "ui/messagedialog.h"

#include <QtTest>
#include <QtWidgets>

#include <optional>

/// What tests of the main window share: the window, which neither looks for updates nor asks about unsaved changes,
/// and a folder.
class WindowScene
{
protected:
    void openWindow()
    {
        Update::UpdateChecker::setFeedAddress({});
        m_window.reset();
        m_window.emplace();
        controller()->setUnsavedAnswerCallback([](const QString &) { return ProjectController::Discard; });
    }
    /// Leaves nothing in the folder of what other tests wrote.
    void emptyFolder()
    {
        QDir(m_folder()).removeRecursively();
        QVERIFY(QDir().mkdir(m_folder()));
    }
    /// Makes the window the one that has the keyboard.
    void activateWindow()
    {
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&*m_window));
    }
    /// A new project with what SampleProject holds, all of which is opened.
    void openSample()
    {
        controller()->newProject("Sample");
        SampleProject::fill(project());
        openAll();
    }
    /// A project file with what SampleProject holds, but for its name.
    static void writeProject(const QString &fileName, const QString &name)
    {
        ProjectStore store;
        SampleProject::fill(*store.newProject({}));
        store.project()->setName(name);
        QVERIFY(store.saveAs(fileName));
    }
    /// Opens an asset of every kind that has a tab; the map is in front.
    void openAll()
    {
        documents().setActiveImageEditor(project().images().first()->id());
        documents().setActiveSpriteEditor(project().spriteBanks().first()->id());
        documents().setActiveBlockEditor(project().blockSets().first()->id());
        documents().setActiveMap(project().maps().first()->id());
    }
    [[nodiscard]] ProjectController *controller() { return m_window->projectController(); }
    [[nodiscard]] Project &project() { return *controller()->project(); }
    [[nodiscard]] DocumentController &documents() { return *m_window->documentController(); }
    [[nodiscard]] const DocumentViews &views() { return m_window->views(); }
    [[nodiscard]] DocumentTabView *tabs() { return views().tabs; }
    /// The editor in front, null for one of another kind.
    template <typename Editor>
    [[nodiscard]] Editor *page()
    {
        return qobject_cast<Editor *>(tabs()->currentWidget());
    }
    [[nodiscard]] QString message() const { return m_window->statusBar()->currentMessage(); }
    [[nodiscard]] MessageDialog *dialog() { return m_window->messageDialog(); }

    TemporaryFolder m_folder;
    std::optional<MainWindow> m_window;
};

/// Calls a function with every asset of a project, and with the animations in them.
template <typename Visit>
void forEachAsset(const Project &project, Visit visit)
{
    const auto visitAll = [&visit](const auto &assets) {
        for (const auto &asset : assets)
            visit(*asset);
    };
    visitAll(project.palettes());
    visitAll(project.tileSets());
    visitAll(project.maps());
    visitAll(project.images());
    visitAll(project.blockSets());
    visitAll(project.spriteBanks());
    for (const auto &blocks : project.blockSets())
        visitAll(blocks->animations());
    for (const auto &bank : project.spriteBanks())
        visitAll(bank->animations());
}
