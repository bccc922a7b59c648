// What the program keeps of itself between two runs and tells about itself: its state, its log, its version, updates.

#include "app/appstate.h"
#include "app/log.h"
#include "app/platform.h"
#include "app/recentfiles.h"
#include "app/updatepresenter.h"
#include "app/version.h"
#include "preferences/generalpage.h"
#include "support/modeltools.h"
#include "support/testmain.h"
#include "ui/aboutbox.h"
#include "update/updatedialog.h"

#include <QtTest>
#include <QtWidgets>

class TestAppState : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QDir(path({})).removeRecursively(); }

    void writesStateForTheNextRun()
    {
        AppState state;
        state.setWindowState(QByteArray("\0\xFF docks", 8));
        state.setWindowGeometry("place");
        state.setTileZoom(3);
        state.setRecentFiles({"/b", "/ä", "/b"});
        state.setLastPath("/home/x");
        QVERIFY(state.saveState());
        QCOMPARE(readFile(path("/quenmora/state.json")),
                 QByteArray("{\n    \"lastPath\": \"/home/x\",\n    \"recent\": [\n        \"/b\",\n        \"/ä\",\n"
                            "        \"/b\"\n    ],\n    \"tileZoom\": 3,\n    \"windowGeometry\": \"cGxhY2U=\",\n"
                            "    \"windowState\": \"AP8gZG9ja3M=\"\n}\n"));
        AppState next;
        QVERIFY(next.loadState());
        QVERIFY(next.windowState() == state.windowState() && next.windowGeometry() == "place" && next.tileZoom() == 3);
        QVERIFY(next.recentFiles() == state.recentFiles() && next.lastPath() == "/home/x");

        const QJsonDocument preferences(QJsonObject{{"general", QJsonObject{{"backupOnSave", true}}}});
        QVERIFY(state.savePreferences(preferences));
        QCOMPARE(next.loadPreferences(), preferences);
        QVERIFY(writeFile(path("/quenmora/preferences.json"), "not JSON"));
        QVERIFY(next.loadPreferences().isNull());
    }

    void readsDamagedState()
    {
        AppState state;
        for (const char *content : {"", "{\"tileZoom\": 3,", "[1, 2]",
                                    R"({"windowState": 1, "windowGeometry": [], "tileZoom": "3", "lastPath": 4,
                                    "recent": ["/a", 5, null, "/b"]})"}) {
            state.setTileZoom(5);
            state.setWindowState("old");
            state.setWindowGeometry("old");
            QVERIFY(writeFile(path("/quenmora/state.json"), content));
            QTest::ignoreMessage(QtWarningMsg, "JSON object not found windowState");
            QTest::ignoreMessage(QtWarningMsg, "JSON object not found windowGeometry");
            QVERIFY(state.loadState());
            QVERIFY(state.windowState().isEmpty() && state.windowGeometry().isEmpty() && state.tileZoom() == 8);
            QCOMPARE(state.lastPath(), "~");
        }
        QCOMPARE(state.recentFiles(), (QStringList{"/a", "", "", "/b"}));
    }

    void worksOnWhereItCannotWrite()
    {
        {
            // a folder in the way of the file stands for any place that cannot be written
            QVERIFY(Platform::homeFolder().mkpath(path("/quenmora/state.json"))
                    && Platform::homeFolder().mkpath(path("/quenmora/preferences.json")));
            const AppState state;
            QTest::ignoreMessage(QtWarningMsg, "Open state.json failed");
            QVERIFY(!state.saveState());
            QTest::ignoreMessage(QtWarningMsg, "Failed to open settings json file");
            QVERIFY(!state.savePreferences(QJsonDocument(QJsonObject{{"general", QJsonObject()}})));
        }
        cleanup();
        QVERIFY(writeFile(path({}), "no folder"));
        const AppState state;
        QVERIFY(state.saveState()); // into the home folder itself
        QVERIFY(QFile::remove(Platform::homeFolder().filePath("state.json")) && QFile::remove(path({})));
    }

    void recentFilesComeToTheFront()
    {
        const QStringList ten = QString("1 2 3 4 5 6 7 8 9 10").split(' ');
        const std::tuple<QStringList, const char *, QStringList> cases[] = {
            {{"a", "b", "a"}, "a", {"a", "b", "a"}}, // only the first of two is taken out
            {{"a"}, "A", {"A", "a"}}, // letter case counts
            {ten, "10", QStringList{"10"} + ten.first(9)},
            {ten + ten, "new", QStringList{"new"} + ten.first(9)}, // stored too long
        };
        for (const auto &[stored, added, paths] : cases) {
            RecentFiles files;
            files.setPaths(stored);
            QCOMPARE(files.paths(), stored);
            files.add(added);
            QCOMPARE(files.paths(), paths);
        }
    }

    void namesThisReleaseAndTheChannelOfEach()
    {
        QCOMPARE(appChannel(), "stable");
        QCOMPARE(appDisplayName(), "Quenmora v0.7.0.0 [2026-10-15]");
        for (const auto &[version, channel] : {std::pair{"", "stable"},
                                               {"0.8.0.0-alpha", "alpha"},
                                               {"0.8.0.0-beta2", "beta"},
                                               {"0.8.0.0-rc.1", "rc"},
                                               {"0.8.0.0-preview", "stable"},
                                               {"0.8.0.0-Beta", "stable"},
                                               {"0.8.0.0-x-beta", "stable"}}) // only what follows the first dash counts
            QCOMPARE(channelOfVersion(version), channel);
    }

    void logsEachKindWithItsTime()
    {
        const QString before = QDir::currentPath();
        const QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()));
        logMessageHandler(QtWarningMsg, {}, "early");
        QVERIFY2(QDir().isEmpty(), "nothing reaches the disk before the handler is installed");

        QVERIFY(QDir().mkdir("log"));
        QFile &file = installLogHandler();
        QCOMPARE(&installLogHandler(), &file);
        QVERIFY(QRegularExpression("^log/application_\\d{8}_\\d{6}\\.log$").match(file.fileName()).hasMatch());
        qDebug("one");
        qInfo("two ä");
        qWarning("libpng warning: iCCP: known incorrect sRGB profile");
        qWarning("not a libpng warning: three");
        qCritical("four");
        logMessageHandler(QtFatalMsg, {}, "five %s");
        logMessageHandler(QtMsgType(99), {}, "six");
        qInstallMessageHandler(nullptr);

        // read while the log is still open: every message has been flushed
        QString text = QString::fromUtf8(readFile(file.fileName()));
        text.replace(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d ", QRegularExpression::MultilineOption), "TIME ");
        QCOMPARE(text,
                 "TIME Debug: one\nTIME Info: two ä\nTIME Warning: not a libpng warning: three\nTIME Critical: four\n"
                 "TIME Fatal: five %s\n");
        QDir::setCurrent(before);
    }

    void tellsOfUpdatesWhoAsked()
    {
        enum Result { Newer, Same, Failed };
        const QMap<Result, QString> statusOf{{Newer, "Update available: 0.7.1.0"},
                                             {Same, QString::fromUtf8("You’re up to date")},
                                             {Failed, "Could not reach the update server"}};
        const QMap<Result, QString> boxOf{{Same, "Quenmora 0.7.0.0 is up to date."},
                                          {Failed, "Could not reach the update server.\n<b>Refused"}};
        Update::UpdateChecker::setFeedAddress({});
        for (const Result result : {Newer, Same, Failed}) {
            for (const auto origin :
                 {UpdateController::Startup, UpdateController::Manual, UpdateController::AboutBox}) {
                GeneralPage page;
                UpdateController controller(&page, [] {}, {appVersion(), appReleaseDate(), appChannel()});
                QWidget window;
                UpdatePresenter presenter(&controller, &window);
                presenter.showAboutBox();
                const auto *about = window.findChild<AboutBox *>();
                QCOMPARE(about->status(), QString::fromUtf8("Checking for updates…"));
                if (result == Newer)
                    emit controller.updateAvailable({"0.7.1.0", "stable", "2026-12-01", {}, {}}, origin);
                else if (result == Same)
                    emit controller.upToDate(origin);
                else
                    emit controller.checkFailed("<b>Refused", origin);
                QCOMPARE(about->status(), statusOf.value(result));

                auto *dialog = window.findChild<UpdateDialog *>();
                QCOMPARE(dialog && dialog->isVisible(), result == Newer && origin != UpdateController::AboutBox);
                if (dialog) {
                    emit dialog->skipVersion("0.7.1.0");
                    QCOMPARE(page.skippedVersion(), "0.7.1.0");
                }
                const auto *box = window.findChild<QMessageBox *>();
                QCOMPARE(box ? box->text() : QString(), origin == UpdateController::Manual ? boxOf.value(result) : "");
                QVERIFY(!box || (box->isVisible() && box->textFormat() == Qt::PlainText)); // it quotes the network
            }
        }
    }

private:
    static QString path(const QString &name) { return Platform::homeFolder().filePath(".config" + name); }
};

QUENMORA_TEST_MAIN(TestAppState)

#include "tst_appstate.moc"
