#include "app/mainwindow.h"

#include "app/menus/filemenu.h"
#include "support/modeltools.h"
#include "support/sampleproject.h"
#include "support/testmain.h"
#include "ui/messagedialog.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <optional>

// What becomes of a project's file outside of the editor: it is damaged, or another program changes it.

class TestProjectFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Update::UpdateChecker::setFeedAddress({}); }
    void init()
    {
        m_folder.emplace();
        m_window.emplace();
    }
    void cleanup() { m_window.reset(); }

    void offersTheBackup_data()
    {
        QTest::addColumn<bool>("gone"); // or damaged
        QTest::addColumn<bool>("linked");
        QTest::newRow("damaged") << false << false;
        QTest::newRow("gone") << true << false;
        QTest::newRow("damaged, opened through a link") << false << true;
    }

    void offersTheBackup()
    {
        QFETCH(const bool, gone);
        QFETCH(const bool, linked);
        const QString file = (*m_folder)("game.quenmora");
        const QString backup = file + ".bak";
        QString opened = file;
        writeProject(backup, "Before");
        QVERIFY(gone || writeFile(file, "torn"));
        if (linked) {
            opened = (*m_folder)("link.quenmora");
            QVERIFY(QFile::link(file, opened));
        }
        const QByteArray whole = readFile(backup);
        controller()->setBackupCallback([] { return true; });

        controller()->openProject(opened);
        const MessageDialog *dialog = m_window->messageDialog();
        QCOMPARE(dialog->text(), "Invalid project file");
        QVERIFY2(dialog->detail().startsWith(opened + "\nIts backup is from "), qPrintable(dialog->detail()));
        QCOMPARE(offer()->text(), "Open &Backup");
        QVERIFY(offer()->isVisible());
        offer()->click();
        QCOMPARE(controller()->project()->name(), "Before");
        QVERIFY(!dialog->isVisible());
        QVERIFY2(controller()->filePath().isEmpty() && controller()->isModified(), "it is not what the file holds");
        QVERIFY(m_window->menus()->fileMenu()->recentFiles().isEmpty());

        QString proposed;
        QTimer::singleShot(0, this, [&proposed] {
            auto *saving = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            proposed = saving->selectedFiles().value(0);
            saving->reject();
        });
        controller()->save();
        QCOMPARE(proposed, opened);
        QCOMPARE(readFile(file), gone ? "unreadable" : "torn");
        controller()->setFileNameCallback([opened] { return opened; });
        controller()->save();
        QVERIFY(!controller()->isModified());
        QCOMPARE(readFile(backup), whole);
        controller()->save(); // from here on the file is the one to be kept
        QCOMPARE(nameIn(backup), "Before");
        QCOMPARE(nameIn(file), "Before");
    }

    void offersNoBackupInVain()
    {
        controller()->openProject((*m_folder)("game.quenmora"));
        QVERIFY(m_window->messageDialog()->isVisible() && !offer()->isVisible());
        m_window->messageDialog()->accept();

        // another message is read while opening fails, and neither is of any use
        m_window->showError("Something else");
        controller()->openProject((*m_folder)("game.quenmora.bak", "torn").chopped(4));
        QVERIFY(!offer()->isVisible());
        m_window->messageDialog()->accept();
        QVERIFY(offer()->isVisible());
        offer()->click();
        QCOMPARE(m_window->messageDialog()->detail(), (*m_folder)("game.quenmora.bak"));
        QVERIFY(m_window->messageDialog()->isVisible() && !offer()->isVisible());
        QVERIFY(!controller()->project());
    }

private:
    [[nodiscard]] ProjectController *controller() { return m_window->projectController(); }
    /// The button beside a message's OK.
    [[nodiscard]] QAbstractButton *offer()
    {
        const auto *box = m_window->messageDialog()->findChild<QDialogButtonBox *>();
        const QAbstractButton *ok = box->button(QDialogButtonBox::Ok);
        const QList<QAbstractButton *> buttons = box->buttons();
        return *std::find_if(buttons.begin(), buttons.end(), [ok](auto *button) { return button != ok; });
    }
    static void writeProject(const QString &fileName, const QString &name)
    {
        ProjectStore store;
        SampleProject::fill(*store.newProject({}));
        store.project()->setName(name);
        QVERIFY(store.saveAs(fileName));
    }
    /// The name of the project that a file holds.
    [[nodiscard]] static QString nameIn(const QString &fileName)
    {
        ProjectStore store;
        store.newProject({});
        return store.load(fileName) ? store.project()->name() : QString();
    }

    std::optional<TemporaryFolder> m_folder;
    std::optional<MainWindow> m_window;
};

QUENMORA_TEST_MAIN(TestProjectFile)
#include "tst_projectfile.moc"
