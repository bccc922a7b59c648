#include "store/projectstore.h"

#include "support/archivetools.h"
#include "support/filesizelimit.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace ArchiveTools;

namespace {

/// Notes the signals of a store, in order, as "signal: message".
class StoreLog
{
public:
    explicit StoreLog(const ProjectStore &store)
    {
        const auto note = [this](const char *signal) {
            return [this, signal](const QString &text) { m_lines.append(QLatin1String(signal) + ": " + text); };
        };
        QObject::connect(&store, &ProjectStore::projectLoad, &m_context, note("projectLoad"));
        QObject::connect(&store, &ProjectStore::loadError, &m_context, note("loadError"));
        QObject::connect(&store, &ProjectStore::saveError, &m_context, note("saveError"));
        QObject::connect(&store, &ProjectStore::showMessage, &m_context, [this](const QString &text, int timeout) {
            m_lines.append(QStringLiteral("showMessage: %1 (%2)").arg(text).arg(timeout));
        });
    }

    /// What was emitted since the last time.
    [[nodiscard]] QStringList take() { return std::exchange(m_lines, {}); }

private:
    QObject m_context;
    QStringList m_lines;
};

} // namespace

class TestProjectStore : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void thereIsOneProjectAtMost();
    void savesAndLoads();
    void backsUpThePreviousVersion();
    void theBackupSurvivesFailingSaves();
    void survivesPlacesThatCannotBeWritten();
    void refusesToSaveWhatCouldNotBeLoaded();
    void survivesAFullDisk_data();
    void survivesAFullDisk();
    void refusesFilesThatAreNoProjects();
    void theFingerprintFollowsTheContent();
    void exportsAssets_data();
    void exportsAssets();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestProjectStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestProjectStore::thereIsOneProjectAtMost()
{
    auto store = std::make_unique<ProjectStore>();
    const QPointer<Project> first = store->newProject("first");
    store->setFileName("somewhere");
    QCOMPARE(first->name(), "first");
    const QPointer<Project> second = store->newProject("second");
    QVERIFY(!first && store->fileName().isEmpty());
    store->close();
    QVERIFY(!second && store->fingerprint().isEmpty() && !store->save(false));
    const QPointer<Project> third = store->newProject("third");
    store.reset();
    QVERIFY(!third);
}

void TestProjectStore::savesAndLoads()
{
    ProjectStore store;
    StoreLog log(store);
    SampleProject::fill(*store.newProject("new"));
    QVERIFY(store.saveAs(path("level.quenmora")));
    QCOMPARE(store.fileName(), path("level.quenmora"));
    QCOMPARE(log.take(), QStringList("showMessage: Saved Sample to " + path("level.quenmora") + " (2500)"));

    store.newProject("loading...");
    QString nameDuringLoad = "not emitted";
    connect(&store, &ProjectStore::projectLoad, this, [&] { nameDuringLoad = store.fileName(); });
    QVERIFY(store.load(path("level.quenmora")));
    QCOMPARE(log.take(), (QStringList{"projectLoad: Sample", "showMessage: Project loaded (2500)"}));
    QCOMPARE(nameDuringLoad, "");
    QCOMPARE(store.fileName(), path("level.quenmora"));
    QCOMPARE(store.project()->openDocuments(), (QStringList{"first", "second"}));
    QCOMPARE(store.project()->maps().size(), 2);
}

void TestProjectStore::backsUpThePreviousVersion()
{
    ProjectStore store;
    store.newProject("one");
    store.setFileName(path("a.quenmora"));
    QVERIFY(store.save(true)); // nothing to back up yet
    QVERIFY(!QFileInfo::exists(path("a.quenmora.bak")));

    for (const char *name : {"two", "three"}) { // the second time there is a backup to replace
        const QByteArray before = fileBytes(path("a.quenmora"));
        store.project()->setName(name);
        QVERIFY(store.save(true));
        QCOMPARE(fileBytes(path("a.quenmora.bak")), before);
        QVERIFY(fileBytes(path("a.quenmora")) != before);
    }
    const QByteArray backup = fileBytes(path("a.quenmora.bak"));
    QVERIFY(store.save(false));
    QCOMPARE(fileBytes(path("a.quenmora.bak")), backup);
}

void TestProjectStore::theBackupSurvivesFailingSaves()
{
    ProjectStore store;
    SampleProject::fill(*store.newProject("new"));
    QVERIFY(store.saveAs(path("a.quenmora")));
    const QByteArray whole = fileBytes(path("a.quenmora"));
    {
        const FileSizeLimit fullDisk(1000);
        QVERIFY(!store.save(true));
        QVERIFY(!store.save(true)); // what the first one left behind does not replace the backup
    }
    QCOMPARE(fileBytes(path("a.quenmora.bak")), whole);
    QVERIFY(store.save(true));
    QCOMPARE(fileBytes(path("a.quenmora.bak")), whole);
    QVERIFY(store.save(true)); // and now the file is whole again
    QVERIFY(fileBytes(path("a.quenmora.bak")).size() > 1000);
}

void TestProjectStore::survivesPlacesThatCannotBeWritten()
{
    QVERIFY(writeFile(path("file"), "content"));
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    const QStringList there{"file", "folder"};
    ProjectStore store;
    SampleProject::fill(*store.newProject("new"));
    const QByteArray fingerprint = store.fingerprint();
    StoreLog log(store);
    for (const char *name : {"missing/a.quenmora", "file/a.quenmora", "folder"}) {
        store.setFileName(path(name));
        QVERIFY(!store.save(true));
        QCOMPARE(store.fileName(), path(name));
        QVERIFY(!store.saveAs(path(name)));
        QCOMPARE(store.fileName(), "");
        QCOMPARE(log.take(), QStringList(2, "saveError: Could not create the project file"));
        QCOMPARE(store.fingerprint(), fingerprint);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), there);
    }
    QVERIFY(store.saveAs(path("good.quenmora")));
}

void TestProjectStore::refusesToSaveWhatCouldNotBeLoaded()
{
    ProjectStore store;
    store.newProject("new");
    QVERIFY(store.saveAs(path("a.quenmora")));
    const QByteArray whole = fileBytes(path("a.quenmora"));
    store.project()->createTileSet("Too many for a PNG", {}, 125'001);
    StoreLog log(store);
    QVERIFY(!store.save(true));
    QVERIFY(log.take().first().startsWith("saveError: Could not write tileset/"));
    QCOMPARE(fileBytes(path("a.quenmora")), whole);
}

void TestProjectStore::survivesAFullDisk_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<QString>("message");
    // the sample's first member is noise that deflate cannot shrink
    QTest::newRow("in a member") << 100'000 << "Could not write images/";
    QTest::newRow("at the end") << -1 << "Could not finish writing the project file";
}

void TestProjectStore::survivesAFullDisk()
{
    QFETCH(int, room);
    QFETCH(QString, message);
    ProjectStore store;
    Project *project = store.newProject("noise");
    QImage noise(640, 512, QImage::Format_Indexed8);
    quint32 state = 1;
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x)
            noise.scanLine(y)[x] = uchar((state = state * 1664525 + 1013904223) >> 24);
    }
    project->createImage(Quenmora::Layer2_256x192, "noise", {})->setImage(noise);
    QVERIFY(store.saveAs(path("a.quenmora")));
    const QByteArray whole = fileBytes(path("a.quenmora"));

    const QByteArray fingerprint = store.fingerprint();
    StoreLog log(store);
    {
        const FileSizeLimit fullDisk(rlim_t(room < 0 ? whole.size() - 1 : room));
        QVERIFY(!store.save(true));
    }
    const QStringList lines = log.take();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().startsWith("saveError: " + message), qPrintable(lines.first()));
    QCOMPARE(store.fingerprint(), fingerprint);
    QCOMPARE(fileBytes(path("a.quenmora.bak")), whole);
    QVERIFY(store.saveAs(path("good.quenmora")));
    ProjectStore other;
    other.newProject("loading...");
    QVERIFY(other.load(path("good.quenmora")));
    QCOMPARE(other.fingerprint(), fingerprint);
}

void TestProjectStore::refusesFilesThatAreNoProjects()
{
    QVERIFY(writeFile(path("empty"), {}));
    QVERIFY(writeFile(path("text"), "PK is not enough"));
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    QVERIFY(writeArchive(path("archive"), {{"other.json", "{}"}}));
    ProjectStore store;
    StoreLog log(store);
    const QPointer<Project> project = store.newProject("loading...");
    for (const char *name : {"missing", "empty", "text", "folder", "archive"}) {
        QCOMPARE(store.project(), project.data()); // it is its owner who closes it, while no archive was opened
        QVERIFY(!store.load(path(name)));
        QCOMPARE(log.take(), QStringList("loadError: Invalid project file"));
    }
    QVERIFY(!project && !store.project() && store.fileName().isEmpty());
}

void TestProjectStore::theFingerprintFollowsTheContent()
{
    ProjectStore store;
    Project *project = store.newProject("new");
    SampleProject::fill(*project);
    QByteArray last = store.fingerprint();
    QCOMPARE(last.size(), 20);
    project->setOpenDocuments({"another"});
    QCOMPARE(store.fingerprint(), last);

    // what reaches the document, and each kind of member
    const std::pair<const char *, std::function<void()>> edits[] = {
        {"name", [&] { project->setName("x"); }},
        {"colour", [&] { project->palettes().first()->setRawColour(0, 2); }},
        {"tile", [&] { project->tileSets().first()->clearImage(0); }},
        {"cell",
         [&] {
             project->maps().first()->setTile({2, 3}, {.index = 1, .used = true});
         }},
        {"sprite", [&] { project->spriteBanks().first()->clearSprite(1); }},
        {"image",
         [&] {
             project->images().first()->setImage(SampleProject::gradient({256, 191}));
         }},
        {"scratch image",
         [&] {
             project->setScratchImage(SampleProject::gradient({192, 256}));
         }},
        {"frame", [&] { project->blockSets().first()->animations().first()->frame(0)->setIndex(0, 0, 99); }},
    };
    for (const auto &[name, edit] : edits) {
        edit();
        const QByteArray now = store.fingerprint();
        QVERIFY2(now != last, name);
        QCOMPARE(store.fingerprint(), now);
        last = now;
    }
}

void TestProjectStore::exportsAssets_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("size");
    QTest::newRow("map") << "Map"
                         << "Level_tilemap.bin" << 6 * 4 * 2;
    QTest::newRow("tiles") << "Tile set"
                           << "Tiles_tiles.nxt" << 4 * 32;
    QTest::newRow("palette") << "Palette"
                             << "Main_palette.bin" << 512;
}

void TestProjectStore::exportsAssets()
{
    QFETCH(QString, kind);
    QFETCH(QString, file);
    QFETCH(int, size);
    ProjectStore store;
    StoreLog log(store);
    const auto slot = kind == "Map" ? &ProjectStore::exportMap
        : kind == "Palette"         ? &ProjectStore::exportPalette
                                    : &ProjectStore::exportTiles;
    const QString noun = kind.toLower();
    const auto invalid = QStringList("saveError: Invalid " + noun + " id");
    (store.*slot)(m_folder->path(), QUuid::createUuid());
    QCOMPARE(log.take(), invalid); // no project yet

    Project *project = store.newProject("new");
    SampleProject::fill(*project);
    const QUuid id = kind == "Map" ? project->maps().first()->id()
        : kind == "Palette"        ? project->palettes().first()->id()
                                   : project->tileSets().first()->id();
    (store.*slot)(m_folder->path(), QUuid::createUuid());
    QCOMPARE(log.take(), invalid);
    QVERIFY(QDir(m_folder->path()).isEmpty());

    (store.*slot)(path("missing"), id);
    QCOMPARE(log.take(), QStringList("saveError: Exporting the " + noun + " failed"));
    (store.*slot)(m_folder->path(), id);
    QCOMPARE(log.take(), QStringList("showMessage: " + kind + " exported (2000)"));
    QCOMPARE(QFileInfo(path(file)).size(), size);
}

QUENMORA_TEST_MAIN(TestProjectStore)
#include "tst_projectstore.moc"
