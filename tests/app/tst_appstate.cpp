#include "app/appstate.h"

#include "app/platform.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

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
        QCOMPARE(next.windowState(), QByteArray("\0\xFF docks", 8));
        QCOMPARE(next.windowGeometry(), "place");
        QCOMPARE(next.tileZoom(), 3);
        QCOMPARE(next.recentFiles(), (QStringList{"/b", "/ä", "/b"}));
        QCOMPARE(next.lastPath(), "/home/x");

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

private:
    static QString path(const QString &name) { return Platform::homeFolder().filePath(".config" + name); }
};

QUENMORA_TEST_MAIN(TestAppState)

#include "tst_appstate.moc"
