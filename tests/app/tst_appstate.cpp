#include "app/appstate.h"
#include "support/testmain.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

namespace {

const QString Folder = QStringLiteral(".config/quenmora");

QString path(const QString &name)
{
    return QDir::home().filePath(Folder + u'/' + name);
}

void write(const QString &name, const QByteArray &content)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray read(const QString &name)
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

class TestAppState : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void startsWithoutFiles();
    void writesStateForTheNextRun();
    void readsDamagedState();
    void keepsOldFilesWhenItCannotWrite();
    void usesTheHomeFolderWithoutItsOwn();
};

void TestAppState::cleanup()
{
    QDir(QDir::home().filePath(QStringLiteral(".config"))).removeRecursively();
    QFile::remove(QDir::home().filePath(QStringLiteral(".config")));
}

void TestAppState::startsWithoutFiles()
{
    AppState state;
    QVERIFY(QDir::home().exists(Folder));
    QTest::ignoreMessage(QtWarningMsg, "Open state.json failed");
    QVERIFY(!state.loadState());
    QTest::ignoreMessage(QtWarningMsg, "Failed to open settings json file");
    QVERIFY(state.loadPreferences().isNull());
    QCOMPARE(state.tileZoom(), 8);
    QCOMPARE(state.lastPath(), QString());
    QVERIFY(state.recentFiles().isEmpty() && state.windowState().isEmpty() && state.windowGeometry().isEmpty());
}

void TestAppState::writesStateForTheNextRun()
{
    AppState state;
    state.setWindowState(QByteArray("\0\xFF docks", 8));
    state.setWindowGeometry("place");
    state.setTileZoom(3);
    state.setRecentFiles({"/b", "/ä", "/b"});
    state.setLastPath("/home/x");
    QVERIFY(state.saveState());
    QCOMPARE(read("state.json"),
             QByteArray("{\n    \"lastPath\": \"/home/x\",\n    \"recent\": [\n        \"/b\",\n        \"/ä\",\n"
                        "        \"/b\"\n    ],\n    \"tileZoom\": 3,\n    \"windowGeometry\": \"cGxhY2U=\",\n"
                        "    \"windowState\": \"AP8gZG9ja3M=\"\n}\n"));

    AppState next;
    QVERIFY(next.loadState());
    QCOMPARE(next.windowState(), QByteArray("\0\xFF docks", 8));
    QCOMPARE(next.windowGeometry(), QByteArray("place"));
    QCOMPARE(next.tileZoom(), 3);
    QCOMPARE(next.recentFiles(), (QStringList{"/b", "/ä", "/b"}));
    QCOMPARE(next.lastPath(), QStringLiteral("/home/x"));

    const QJsonDocument preferences(QJsonObject{{"general", QJsonObject{{"backupOnSave", true}}}});
    QVERIFY(state.savePreferences(preferences));
    QCOMPARE(next.loadPreferences(), preferences);
    write("preferences.json", "not JSON");
    QVERIFY(next.loadPreferences().isNull());
}

void TestAppState::readsDamagedState()
{
    AppState state;
    for (const char *content : {"", "{\"tileZoom\": 3,", "[1, 2]",
                                R"({"windowState": 1, "windowGeometry": [], "tileZoom": "3", "lastPath": 4,
                                    "recent": ["/a", 5, null, "/b"]})"}) {
        state.setTileZoom(5);
        state.setWindowState("old");
        state.setWindowGeometry("old");
        write("state.json", content);
        QTest::ignoreMessage(QtWarningMsg, "JSON object not found windowState");
        QTest::ignoreMessage(QtWarningMsg, "JSON object not found windowGeometry");
        QVERIFY(state.loadState());
        QVERIFY(state.windowState().isEmpty() && state.windowGeometry().isEmpty());
        QCOMPARE(state.tileZoom(), 8);
        QCOMPARE(state.lastPath(), QStringLiteral("~"));
    }
    QCOMPARE(state.recentFiles(), (QStringList{"/a", "", "", "/b"}));
}

void TestAppState::keepsOldFilesWhenItCannotWrite()
{
    AppState state;
    // a folder in the way of the file stands for any place that cannot be written
    for (const char *name : {"state.json", "preferences.json"})
        QVERIFY(QDir::home().mkpath(path(name)));
    QTest::ignoreMessage(QtWarningMsg, "Open state.json failed");
    QVERIFY(!state.saveState());
    QTest::ignoreMessage(QtWarningMsg, "Failed to open settings json file");
    QVERIFY(!state.savePreferences(QJsonDocument(QJsonObject{{"general", QJsonObject()}})));
    QVERIFY(QFileInfo(path("state.json")).isDir());
}

void TestAppState::usesTheHomeFolderWithoutItsOwn()
{
    QFile blocker(QDir::home().filePath(QStringLiteral(".config")));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    AppState state;
    QVERIFY(state.saveState());
    QVERIFY(QFile::remove(QDir::home().filePath(QStringLiteral("state.json"))));
}

QUENMORA_TEST_MAIN(TestAppState)

#include "tst_appstate.moc"
