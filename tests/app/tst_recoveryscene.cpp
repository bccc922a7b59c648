#include "app/recoverylist.h"
#include "store/projectdocument.h"
#include "support/platform.h"
#include "support/windowscene.h"

/// A window in which somebody works until the program crashes, and the one that is opened then.
class TestRecoveryScene : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(AppState::recoveryFolder()).removeRecursively();
        QFile::remove(AppState::recoveryFolder());
        QFile::remove(gameFile());
        openWindow();
        m_window->recoveryKeeper()->setInterval(1);
        controller()->setFileNameCallback([this] { return gameFile(); });
        controller()->newProject(Name);
    }
    void cleanup()
    {
        m_second.reset();
        m_window.reset();
        QCOMPARE(foldersLeft(), 0);
    }

    void opensWhatACrashLeft_data()
    {
        QTest::addColumn<bool>("saved");
        QTest::addColumn<bool>("killedSaving");
        QTest::addColumn<bool>("changedByOthers");
        QTest::newRow("saved before") << true << false << false;
        QTest::newRow("never saved") << false << false << false;
        QTest::newRow("killed while saving") << true << true << false;
        QTest::newRow("file changed since") << true << false << true;
    }
    void opensWhatACrashLeft()
    {
        QFETCH(bool, saved);
        QFETCH(bool, killedSaving);
        QFETCH(bool, changedByOthers);
        if (saved)
            controller()->save();
        QByteArray file = readFile(gameFile());
        work();
        if (killedSaving) {
            connect(controller(), &ProjectController::aboutToSave, this, &TestRecoveryScene::crash);
            controller()->save();
            QVERIFY(writeFile(gameFile(), file = "cut off"));
        } else {
            QVERIFY(copyIsMade());
            QCOMPARE(readFile(gameFile()), file);
            QVERIFY(controller()->isModified());
            crash();
        }
        if (changedByOthers)
            QVERIFY(writeFile(gameFile(), file += "changed"));
        const int running = foldersLeft() - 1;

        open();
        QVERIFY(list()->isVisible());
        QStringList texts;
        for (const QLabel *label : list()->findChildren<QLabel *>()) {
            texts.append(label->text());
            QVERIFY(label->textFormat() == Qt::PlainText || !label->text().contains('<'));
        }
        QVERIFY(texts.contains(Name + "!"));
        QVERIFY(texts.filter("Never saved").isEmpty() == saved);
        click("Recover");
        ProjectController *recovered = m_second->projectController();
        QVERIFY(recovered->project() && !list()->isVisible());
        QCOMPARE(recovered->filePath(), saved ? gameFile() : QString());
        QVERIFY(recovered->isModified());
        QVERIFY(m_second->windowTitle().endsWith(Name + "!"));
        const ProjectMembers was = serializeProject(project(), true);
        QVERIFY(serializeProject(*recovered->project(), true) == was);

        QCOMPARE(foldersLeft(), running + 1); // it is its own now
        recovered->setFileNameCallback([this] { return gameFile(); });
        int asked = 0;
        recovered->setForeignChangeCallback([&asked](const ForeignChange &) {
            ++asked;
            return ForeignChange::Keep;
        });
        recovered->save();
        QCOMPARE(asked, changedByOthers ? 1 : 0);
        QVERIFY(!recovered->isModified() && readFile(gameFile()) != file);
        QCOMPARE(foldersLeft(), running);
        ProjectStore store;
        QVERIFY(store.load(gameFile()));
        QVERIFY(serializeProject(*store.project(), true) == was);
    }

    void copiesGoWithWhatTheyAreFor_data()
    {
        using End = std::function<void()>;
        QTest::addColumn<End>("end");
        QTest::newRow("saved") << End([this] { controller()->save(); });
        QTest::newRow("closed, discarding the changes") << End([this] { controller()->newProject("Other"); });
        QTest::newRow("closed with the window") << End([this] { m_window->close() ? m_window.reset() : void(); });
        QTest::newRow("changes taken back") << End([this] {
            project().setName(Name);
            m_window->recoveryKeeper()->lookSoon();
        });
    }
    void copiesGoWithWhatTheyAreFor()
    {
        QFETCH(const std::function<void()>, end);
        controller()->save();
        work();
        QVERIFY(copyIsMade());
        QCOMPARE(foldersLeft(), 1);
        end();
        QTRY_COMPARE(foldersLeft(), 0);
    }

    void discardsWhenItIsWanted()
    {
        work();
        QVERIFY(copyIsMade());
        crash();
        open();
        for (const bool answer : {false, true}) {
            list()->setDiscardCallback([answer](const QString &) { return answer; });
            click("Discard…");
            QCOMPARE(list()->isVisible(), !answer);
            QCOMPARE(foldersLeft(), answer ? 1 : 2);
        }
    }

    void leavesTheOthersToOthers()
    {
        work();
        QVERIFY(copyIsMade());
        crash();
        crash();
        open();
        QCOMPARE(m_second->recoveryOffers()->copies().size(), 2U);
        m_second->recoveryOffers()->recover(0);
        QVERIFY(m_second->recoveryOffers()->copies().empty());
        QCOMPARE(RecoveryFolder::takeAbandoned(AppState::recoveryFolder()).size(), 1U);
        m_second->projectController()->close();
        QCOMPARE(m_second->recoveryOffers()->copies().size(), 1U);
        m_second->recoveryOffers()->discard(0);
    }

    void belongsToItsFileWhenNoOtherIsChosen()
    {
        controller()->save();
        work();
        controller()->setFileNameCallback([] { return QString(); });
        controller()->saveAs();
        crash();
        open();
        QCOMPARE(m_second->recoveryOffers()->copies().front().manifest().projectFile, gameFile());
        m_second->recoveryOffers()->discard(0);
    }

    void keepsADamagedCopyAside()
    {
        work();
        QVERIFY(copyIsMade());
        const QString left = crash();
        QVERIFY(writeFile(left + "/manifest-1", "damaged"));
        for (const bool told : {true, false}) { // the next window has nothing new to tell
            open();
            QCOMPARE(list()->isVisible(), told);
            QVERIFY(m_second->recoveryOffers()->copies().empty());
            QCOMPARE(list()->findChildren<QPushButton *>().size(), 0);
            QVERIFY(!QFile::exists(left));
        }
        const QStringList aside =
            QDir(AppState::recoveryFolder()).entryList({"damaged-*"}, QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(aside.size(), 1);
        QVERIFY(QDir(AppState::recoveryFolder() + '/' + aside.first()).removeRecursively());
    }

    void waitsForAPauseButNotForEver()
    {
        work();
        QSignalSpy begun(m_window->recoveryKeeper(), &RecoveryKeeper::copyBegun);
        QSignalSpy completed(m_window->recoveryKeeper(), &RecoveryKeeper::copyCompleted);
        QTest::mousePress(m_window->statusBar(), Qt::LeftButton);
        m_window->recoveryKeeper()->lookSoon();
        QVERIFY(!begun.wait(3 * PauseWatch::Rest));
        QTest::mouseRelease(m_window->statusBar(), Qt::LeftButton);
        QVERIFY(completed.wait());
        QTimer hands; // that never rest
        connect(&hands, &QTimer::timeout, this, [this] { QTest::keyClick(m_window->statusBar(), Qt::Key_Shift); });
        hands.start(PauseWatch::Rest / 5);
        QTest::keyClick(m_window->statusBar(), Qt::Key_Shift);
        project().setName("Later"); // which tells nobody to look
        QVERIFY(!begun.wait(2 * PauseWatch::Rest));
        QVERIFY(completed.wait());
    }

    void saysOnceThatNoCopyCanBeKept()
    {
        QVERIFY(writeFile(AppState::recoveryFolder(), "in the way"));
        QSignalSpy failed(m_window->recoveryKeeper(), &RecoveryKeeper::failed);
        work();
        m_window->recoveryKeeper()->lookSoon();
        QVERIFY(failed.wait());
        QCOMPARE(m_window->statusBar()->currentMessage(), failed.first().first().toString());
        QVERIFY(!failed.wait(PauseWatch::Rest)); // though it tries again
        QVERIFY(QFile::remove(AppState::recoveryFolder()));
        QVERIFY(copyIsMade()); // it went on trying
        if (Platform::RemovesOpenFiles) {
            QVERIFY(QDir(AppState::recoveryFolder()).removeRecursively());
            project().setName("Vanished");
            QVERIFY(copyIsMade()); // the whole of it again
        }
        crash();
        open();
        QCOMPARE(m_second->recoveryOffers()->copies().size(), 1U);
        QCOMPARE(failed.size(), 1);
        m_second->recoveryOffers()->discard(0);
    }

    void isCompleteBeforeTheFileIsWritten()
    {
        controller()->save();
        const QByteArray before = readFile(gameFile());
        QByteArray whenCopied;
        connect(m_window->recoveryKeeper(), &RecoveryKeeper::copyCompleted, this,
                [&] { whenCopied = readFile(gameFile()); });
        work();
        connect(controller(), &ProjectController::aboutToSave, this, [this] {
            QFile::remove(gameFile());
            QDir().mkpath(gameFile()); // so that it fails
        });
        controller()->save();
        QCOMPARE(whenCopied, before);
        QCOMPARE(foldersLeft(), 1);
        QVERIFY(QDir().rmdir(gameFile()));
    }

private:
    QString gameFile() const { return m_folder("game.quenmora"); }
    static int foldersLeft()
    {
        return int(QDir(AppState::recoveryFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
    }

    /// Changes something.
    void work() { project().setName(Name + "!"); }
    bool copyIsMade()
    {
        QSignalSpy completed(m_window->recoveryKeeper(), &RecoveryKeeper::copyCompleted);
        m_window->recoveryKeeper()->lookSoon();
        return completed.wait();
    }
    /// Leaves what the first window has copied as if its program had ended, and keeps on running.
    static QString crash()
    {
        const QDir common(AppState::recoveryFolder());
        const QDir running(common.filePath(common.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0)));
        const QString left = common.filePath(QUuid::createUuid().toString(QUuid::WithoutBraces));
        QDir().mkpath(left);
        for (const QString &file : running.entryList(QDir::Files))
            QFile::copy(running.filePath(file), left + '/' + file);
        return left;
    }
    /// Opens the window of another program.
    void open()
    {
        m_second.reset();
        m_second.emplace();
        m_second->projectController()->setUnsavedAnswerCallback(
            [](const QString &) { return ProjectController::Discard; });
    }
    RecoveryList *list() { return m_second->findChild<RecoveryList *>(); }
    void click(const QString &text) { EditorInput::button(*list(), text)->click(); }

    const QString Name = QStringLiteral("Game <b>1</b>");
    std::optional<MainWindow> m_second;
};

QUENMORA_TEST_MAIN(TestRecoveryScene)
#include "tst_recoveryscene.moc"
