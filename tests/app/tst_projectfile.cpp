
#include "app/menus/mapmenu.h"
#include "app/returnwatch.h"
#include "editors/map/exportdialog.h"
#include "support/platform.h"
#include "support/windowscene.h"

#include <functional>
#include <utility>

// What becomes of a project's file outside of the editor: it is damaged, or another program changes it. And what is
// said while files are read and written.

namespace {

/// Writes down what a status bar shows whenever it is painted, and whether the pointer tells to wait then.
class PaintedMessages : public QObject
{
public:
    explicit PaintedMessages(QStatusBar *statusBar) : m_statusBar(statusBar) { statusBar->installEventFilter(this); }
    QStringList take() { return std::exchange(m_messages, {}); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QCursor *pointer = QGuiApplication::overrideCursor();
        if (event->type() == QEvent::Paint)
            m_messages.append(m_statusBar->currentMessage()
                              + (pointer && pointer->shape() == Qt::WaitCursor ? ", waiting" : ""));
        return QObject::eventFilter(watched, event);
    }

private:
    QStatusBar *m_statusBar;
    QStringList m_messages;
};

} // namespace

class TestProjectFile : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void init()
    {
        emptyFolder();
        openWindow();
        m_asked.clear();
        m_answer = ForeignChange::Cancel;
        controller()->setForeignChangeCallback([this](const ForeignChange &change) {
            m_asked.append(change.filePath + (change.hasUnsavedChanges ? ", unsaved" : ""));
            return m_answer;
        });
    }
    void cleanup() { m_window.reset(); }

    void offersTheBackup_data()
    {
        QTest::addColumn<bool>("gone"); // or damaged, and opened through a link where there are such
        QTest::newRow("damaged") << false;
        QTest::newRow("gone") << true;
    }

    void offersTheBackup()
    {
        QFETCH(const bool, gone);
        const QString file = m_folder("game.quenmora");
        const QString backup = file + ".bak";
        QString opened = file;
        writeProject(backup, "Before");
        QVERIFY(gone || writeFile(file, "torn"));
        if (!gone && Platform::HasLinks) {
            opened = m_folder("link.quenmora");
            QVERIFY(QFile::link(file, opened));
        }
        const QByteArray whole = readFile(backup);
        controller()->setBackupCallback([] { return true; });

        controller()->openProject(opened);
        QCOMPARE(dialog()->text(), "Invalid project file");
        QVERIFY2(dialog()->detail().startsWith(QDir::toNativeSeparators(opened) + "\nIts backup is from "),
                 qPrintable(dialog()->detail()));
        QCOMPARE(offer()->text(), "Open &Backup");
        QVERIFY(offer()->isVisible());
        offer()->click();
        QCOMPARE(project().name(), "Before");
        QVERIFY(!dialog()->isVisible());
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
        controller()->openProject(m_folder("game.quenmora"));
        QVERIFY(dialog()->isVisible() && !offer()->isVisible());
        dialog()->accept();

        // another message is read while opening fails, and neither is of any use
        m_window->showError("Something else");
        controller()->openProject(m_folder("game.quenmora.bak", "torn").chopped(4));
        QVERIFY(!offer()->isVisible());
        dialog()->accept();
        QVERIFY(offer()->isVisible());
        offer()->click();
        QCOMPARE(dialog()->detail(), QDir::toNativeSeparators(m_folder("game.quenmora.bak")));
        QVERIFY(dialog()->isVisible() && !offer()->isVisible());
        QVERIFY(!controller()->project());
    }

    void asksAboutForeignChanges_data()
    {
        QTest::addColumn<bool>("saving"); // or coming back to the window
        QTest::addColumn<ForeignChange::Answer>("answer");
        for (const bool saving : {false, true}) {
            const char *when = saving ? "saving" : "coming back";
            QTest::addRow("%s: load", when) << saving << ForeignChange::Load;
            QTest::addRow("%s: keep", when) << saving << ForeignChange::Keep;
            QTest::addRow("%s: cancel", when) << saving << ForeignChange::Cancel;
        }
    }

    void asksAboutForeignChanges()
    {
        QFETCH(const bool, saving);
        QFETCH(const ForeignChange::Answer, answer);
        const QString file = openMine();
        project().setName("Mine, changed");
        writeProject(file, "Theirs");
        m_answer = answer;
        SignalLog log;
        log.listen(*controller(), &ProjectController::aboutToSave, "aboutToSave");
        if (saving)
            controller()->save();
        else
            controller()->checkFile();
        QCOMPARE(m_asked, QStringList{file + ", unsaved"});
        QCOMPARE(log.take().size(), saving && answer == ForeignChange::Keep ? 1 : 0);
        QCOMPARE(nameIn(file), saving && answer == ForeignChange::Keep ? "Mine, changed" : "Theirs");
        QCOMPARE(project().name(), answer == ForeignChange::Load ? "Theirs" : "Mine, changed");
        QCOMPARE(controller()->isModified(), nameIn(file) != project().name());

        controller()->checkFile(); // a change is asked about once
        QCOMPARE(m_asked.size(), 1);
        controller()->save(); // what is undecided is asked again
        QCOMPARE(m_asked.size(), answer == ForeignChange::Cancel ? 2 : 1);
        QCOMPARE(nameIn(file), answer == ForeignChange::Keep ? "Mine, changed" : "Theirs");
        writeProject(file, "Theirs again");
        controller()->checkFile();
        QCOMPARE(m_asked.size(), answer == ForeignChange::Cancel ? 3 : 2);
    }

    void keepsTheOnlyCopyOfUnchangedWork()
    {
        const QString file = openMine();
        writeProject(file, "Theirs");
        controller()->checkFile();
        QCOMPARE(m_asked, QStringList{file});
        QVERIFY2(controller()->isModified(), "what is here is in no file any more");
        controller()->setUnsavedAnswerCallback([](const QString &) { return ProjectController::Save; });
        QVERIFY2(!controller()->confirmClose(), "the file was not to be replaced");
        m_answer = ForeignChange::Load;
        QVERIFY2(!controller()->confirmClose(), "the file is to be looked at");
        QCOMPARE(project().name(), "Theirs");
        QVERIFY(!controller()->isModified());

        writeProject(file, "Theirs again");
        m_answer = ForeignChange::Keep;
        controller()->checkFile();
        QVERIFY(controller()->isModified());

        QVERIFY(writeFile(file, "torn"));
        m_answer = ForeignChange::Load;
        controller()->checkFile();
        QVERIFY(dialog()->text().endsWith("Invalid project file"));
        QCOMPARE(project().name(), "Theirs");
        QCOMPARE(controller()->filePath(), file);
        m_answer = ForeignChange::Cancel;
        controller()->save();
        QCOMPARE(readFile(file), "torn");
    }

    void asksNothingWhereNothingForeignHappened()
    {
        m_answer = ForeignChange::Load;
        const QString file = openMine();
        const QByteArray bytes = readFile(file);
        QVERIFY(QFile::remove(file) && writeFile(file, bytes)); // as a version control system does
        QFile touched(file);
        QVERIFY(touched.open(QIODevice::ReadWrite));
        QVERIFY(touched.setFileTime(QDateTime::currentDateTime().addDays(1), QFileDevice::FileModificationTime));
        touched.close();
        controller()->checkFile();
        QVERIFY(!controller()->isModified());
        project().setName("Changed");
        controller()->save();
        controller()->checkFile();
        controller()->setFileNameCallback([this] { return m_folder("other.quenmora"); });
        controller()->saveAs();
        writeProject(file, "Theirs"); // which is no longer ours
        controller()->checkFile();
        controller()->save();
        if (Platform::HasFullDisks) {
            const Platform::FileSizeLimit fullDisk(64);
            controller()->save();
            QVERIFY2(controller()->isModified(), "the file is damaged");
        }
        controller()->checkFile();
        controller()->save();
        QVERIFY(!controller()->isModified());
        controller()->newProject("Without a file");
        controller()->checkFile();
        QVERIFY2(m_asked.isEmpty(), qPrintable(m_asked.join(u' ')));
    }

    void tellsOnceThatTheFileIsGone()
    {
        const QString file = openMine();
        QVERIFY(QFile::rename(file, file + ".away"));
        for (const bool first : {true, false}) {
            controller()->checkFile();
            QCOMPARE(dialog()->isVisible(), first);
            dialog()->accept();
        }
        QVERIFY2(dialog()->text().contains(QDir::toNativeSeparators(file)), qPrintable(dialog()->text()));
        QVERIFY(controller()->isModified());
        QVERIFY(QFile::rename(file + ".away", file));
        controller()->checkFile();
        QVERIFY(!controller()->isModified());
        QVERIFY(QFile::remove(file));
        controller()->save();
        QVERIFY(m_asked.isEmpty());
        QCOMPARE(nameIn(file), "Mine");
    }

    void looksWhenThePersonComesBack()
    {
        const QString file = openMine();
        m_answer = ForeignChange::Keep;
        QWidget other;
        other.show();
        other.activateWindow();
        writeProject(file, "Theirs");
        m_window->activateWindow();
        QTRY_COMPARE(m_asked.size(), 1);

        QDialog question(&*m_window);
        question.setModal(true);
        question.show();
        writeProject(file, "Theirs again");
        question.activateWindow();
        waitForReturn();
        QCOMPARE(m_asked.size(), 1);
        question.close();
        m_window->activateWindow();
        QTest::mousePress(m_window->windowHandle(), Qt::LeftButton, {}, {1, 1});
        waitForReturn();
        QVERIFY2(m_asked.size() == 1, "a stroke is going on");
        QTest::mouseRelease(m_window->windowHandle(), Qt::LeftButton, {}, {1, 1});
        QTRY_COMPARE(m_asked.size(), 2);
    }

    void saysAtOnceWhatItIsDoing_data()
    {
        QTest::addColumn<bool>("large");
        QTest::newRow("little") << false;
        QTest::newRow("much") << true;
    }

    void saysAtOnceWhatItIsDoing()
    {
        QFETCH(const bool, large);
        const QString file = openMine();
        const QPointer<Map> map = project().maps().first();
        if (large)
            map->resize({1000, 1000}, {});
        documents().setActiveMap(map->id());
        QWidget *tab = tabs()->currentWidget();
        m_window->menus()->setFileChooser([this](const FileRequest &, QWidget *) { return m_folder("level.map"); });
        const QImage plain = plainImage(large ? QSize(1600, 1600) : QSize(64, 64), 1);
        const QString picture = m_folder("picture.png", SampleProject::png(plain));
        const auto exportMap = [this] { EditorInput::trigger(*m_window->menus()->mapMenu(), "Export"); };
        const auto exportToFolder = [this, tab] {
            QMetaObject::invokeMethod(tab, "toolPaletteClicked", Q_ARG(Quenmora::Ui::ToolButton, Quenmora::Ui::Save));
            emit tab->findChild<QFileDialog *>()->fileSelected(m_folder());
            tab->findChild<MapEditor::ExportDialog *>()->accept();
        };
        const auto importSprites = [this, picture] {
            m_window->projectActions()->importSpritePicture({picture, "A", Quenmora::EightBit, {}});
        };
        struct Work
        {
            QString said;
            bool evenIfLittle;
            std::function<void()> work;
            QString saidAfterwards; ///< how that begins
        };
        const Work works[]{
            {"Saving Mine…", false, [this] { controller()->save(); }, "Saved Mine to "},
            {"Exporting Level…", false, exportMap, "Exported Level to "},
            {"Exporting Level…", false, exportToFolder, "Exported to "},
            {"Importing picture.png…", false, [&] { m_window->projectActions()->importMap(picture); }, "New tile set"},
            {"Importing picture.png…", false, importSprites, "New"},
            {"Opening game.quenmora…", true, [&] { controller()->openProject(file); }, "Project loaded"},
        };
        PaintedMessages painted(m_window->statusBar());
        for (const auto &[said, evenIfLittle, work, saidAfterwards] : works) {
            QCoreApplication::processEvents();
            painted.take();
            work();
            QStringList told = painted.take().filter("…");
            told.removeDuplicates(); // where the system wants it painted again
            QCOMPARE(told.join('\n'), large || evenIfLittle ? said + ", waiting" : QString());
            QVERIFY(!QGuiApplication::overrideCursor());
            const QString now = message();
            QVERIFY2(now.startsWith(saidAfterwards), qPrintable(now));
        }
    }

    void proposesWhatLosesNothing()
    {
        const std::tuple<bool, QString, ForeignChange::Answer> cases[] = {{false, {}, ForeignChange::Cancel},
                                                                          {true, {}, ForeignChange::Cancel},
                                                                          {true, "&Load File", ForeignChange::Load},
                                                                          {true, "&Keep Mine", ForeignChange::Keep}};
        for (const auto &[unsaved, button, answer] : cases) {
            QStringList seen;
            QTimer::singleShot(0, this, [&seen, pressed = button] {
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                seen = QStringList{box->text(), box->informativeText(), box->defaultButton()->text()};
                if (pressed.isEmpty())
                    QTest::keyClick(box, Qt::Key_Escape);
                else
                    EditorInput::button(*box, pressed)->click();
            });
            QCOMPARE(askAboutForeignChange(&*m_window, {"/a/game.quenmora", unsaved}), answer);
            QVERIFY(seen.at(0).contains(QDir::toNativeSeparators("/a/game.quenmora")));
            QCOMPARE(seen.at(1).contains("unsaved"), unsaved);
            QVERIFY2(seen.at(2).contains(unsaved ? "Cancel" : "Load"), qPrintable(seen.at(2)));
        }
    }

private:
    /// Opens the project "Mine"; what is asked about its file is written down from now on.
    QString openMine()
    {
        const QString file = m_folder("game.quenmora");
        writeProject(file, "Mine");
        controller()->openProject(file);
        return file;
    }
    /// Until whatever follows a return has happened.
    void waitForReturn()
    {
        emit qApp->focusWindowChanged(QGuiApplication::focusWindow());
        bool over = false;
        QTimer::singleShot(2 * ReturnWatch::Pause, &*m_window, [&over] { over = true; });
        QTRY_VERIFY(over);
    }
    /// The button beside a message's OK.
    [[nodiscard]] QAbstractButton *offer() { return dialog()->findChildren<QPushButton *>().last(); }
    /// The name of the project that a file holds.
    [[nodiscard]] static QString nameIn(const QString &fileName)
    {
        ProjectStore store;
        store.newProject({});
        return store.load(fileName) ? store.project()->name() : QString();
    }

    QStringList m_asked; ///< about what foreign changes
    ForeignChange::Answer m_answer = ForeignChange::Cancel;
};

QUENMORA_TEST_MAIN(TestProjectFile)
#include "tst_projectfile.moc"
