#include "store/projectstore.h"

#include "model/projectextras.h"
#include "store/extrasfile.h"
#include "store/projectdocument.h"
#include "support/archivetools.h"
#include "support/modeltools.h"
#include "support/platform.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QtTest>

using ArchiveTools::writeArchive;

/// Tests a store in a folder of its own, and the file of extras beside a project.
class TestProjectStore : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/Ünicode Ωжא日本 ไทย XXXXXX");
        m_game = path("game.quenmora");
        m_extras = ExtrasFile::pathFor(m_game);
        m_store = std::make_unique<ProjectStore>();
        m_log = std::make_unique<SignalLog>(*m_store);
    }

    void cleanup() { m_store.reset(); }

    void thereIsOneProjectAtMost()
    {
        const QPointer<Project> first = m_store->newProject("first");
        m_store->setFileName("somewhere");
        const QPointer<Project> second = m_store->newProject("second");
        QVERIFY(!first && m_store->fileName().isEmpty());
        m_store->close();
        QVERIFY(!second && m_store->fingerprint().isEmpty() && !m_store->save(false));
        const QPointer<Project> third = m_store->newProject("third");
        m_store.reset();
        QVERIFY(!third);
    }

    void savesAndLoads()
    {
        const QString file = path("level.quenmora");
        SampleProject::fill(*m_store->newProject("new"));
        QVERIFY(m_store->saveAs(file));
        QCOMPARE(m_store->fileName(), file);
        QCOMPARE(m_log->take(), QStringList("showMessage Saved Sample to " + QDir::toNativeSeparators(file) + " 2500"));

        m_store->newProject("loading...");
        QString fileDuringLoad = "not emitted";
        connect(m_store.get(), &ProjectStore::projectLoad, this, [&] { fileDuringLoad = m_store->fileName(); });
        QVERIFY(m_store->load(file));
        QCOMPARE(m_log->take(), (QStringList{"projectLoad Sample", "showMessage Project loaded 2500"}));
        QCOMPARE(fileDuringLoad, "");
        QCOMPARE(m_store->fileName(), file);
        QCOMPARE(m_store->project()->openDocuments(), (QStringList{"first", "second"}));
    }

    void equalProjectsMakeEqualFiles()
    {
        Project *project = m_store->newProject("new");
        SampleProject::fill(*project);
        const auto map = project->createMap("Large", project->tileSets().first()->id(), {900, 100});
        const auto saved = [this](const char *name) {
            const QString file = path(name);
            return m_store->saveAs(file) ? readFile(file) : QByteArray();
        };
        const QByteArray first = saved("first");
        QVERIFY(!first.isEmpty());
        for (qsizetype record = first.indexOf("PK\1\2"); record >= 0; record = first.indexOf("PK\1\2", record + 1))
            QCOMPARE(first.mid(record + 12, 4).toHex(), "00002100"); // midnight on the first day that there is
        QCOMPARE(saved("second"), first);
        const auto unused = project->createPalette(CreateAction::DefaultNext, "of no picture");
        ZipFile before;
        ZipFile after;
        QVERIFY(!saved("before").isEmpty() && before.openForReading(path("before")));
        unused->setRawColour(9, 77);
        QVERIFY(!saved("after").isEmpty() && after.openForReading(path("after")));
        for (const QString &member : serializeProject(*project, true).keys())
            QCOMPARE(before.read(member) == after.read(member), member != "project.json");

        // what is kept makes the file that everything anew makes
        QRandomGenerator random(1);
        for (int round = 0; round < 20; ++round) {
            for (int stroke = random.bounded(4); stroke >= 0; --stroke)
                map->setTile({random.bounded(900), random.bounded(100)}, {.index = random.bounded(99), .used = true});
            project->spriteBanks().first()->setImage(0, SampleProject::gradient({16, random.bounded(1, 16)}));
            const QByteArray kept = saved("kept");
            QVERIFY(m_store->keptBlocks().memory() <= kept.size());
            m_store->keptBlocks().clear();
            QVERIFY(saved("anew") == kept);
        }
        project->deleteMap(map->id());
        QVERIFY(m_store->save(false) && m_store->keptBlocks().memory() < QFileInfo(path("anew")).size());
        m_store->close();
        QCOMPARE(m_store->keptBlocks().memory(), 0);
    }

    void backsUpThePreviousVersion()
    {
        const QString file = path("a.quenmora");
        const QString backup = file + ".bak";
        m_store->newProject("one");
        m_store->setFileName(file);
        QVERIFY(m_store->save(true)); // nothing to back up yet
        QCOMPARE(entries(), QStringList("a.quenmora"));
        for (const char *name : {"two", "three"}) { // the second time there is a backup to replace
            const QByteArray before = readFile(file);
            m_store->project()->setName(name);
            QVERIFY(m_store->save(true));
            QCOMPARE(readFile(backup), before);
            QVERIFY(readFile(file) != before);
        }
        if (!Platform::HasFullDisks)
            return;
        const QByteArray whole = readFile(file);
        {
            const Platform::FileSizeLimit fullDisk(100);
            QVERIFY(!m_store->save(true));
            QVERIFY(!m_store->save(true)); // what the first one left behind does not replace the backup
        }
        for (const bool backUp : {true, false}) { // nor does it now, and then none is wanted
            QVERIFY(m_store->save(backUp));
            QCOMPARE(readFile(backup), whole);
        }
        m_store->project()->setName("four");
        QVERIFY(m_store->save(false) && m_store->save(true));
        QVERIFY(readFile(backup) != whole); // the file was whole again
    }

    void refusesPlacesThatCannotBeWritten()
    {
        QVERIFY(writeFile(path("file"), "content"));
        QVERIFY(QDir(m_folder->path()).mkdir("folder"));
        m_store->newProject("new");
        for (const char *name : {"missing/a.quenmora", "file/a.quenmora", "folder"}) {
            m_store->setFileName(path(name));
            QVERIFY(!m_store->save(true));
            QCOMPARE(m_store->fileName(), path(name));
            QVERIFY(!m_store->saveAs(path(name)));
            QCOMPARE(m_store->fileName(), "");
            QCOMPARE(m_log->take(), QStringList(2, "saveError Could not create the project file"));
            QCOMPARE(entries(), (QStringList{"file", "folder"}));
        }
    }

    void refusesWhatIsNoFileOrKeptFromBeingWritten()
    {
        QVERIFY(writeFile(path("kept"), "last version") && QFile::setPermissions(path("kept"), QFile::ReadOwner));
        QStringList names{"kept"};
        if (Platform::HasPipes) {
            QVERIFY(Platform::makePipe(path("pipe")) && QFile::link(path("pipe"), path("link")));
            QVERIFY(QFile::link("/dev/null", path("device")));
            names += {"pipe", "link", "device"};
        }
        Project *project = m_store->newProject("new");
        SampleProject::fill(*project);
        const auto tiles = project->tileSets().first();
        for (const QString &name : names) { // at once: nobody reads the pipe
            m_store->setFileName(path(name));
            QVERIFY(!m_store->save(true) && !m_store->save(false));
            QCOMPARE(m_log->take(), QStringList(2, "saveError Could not create the project file"));
            QVERIFY(!tiles->exportNxt(path(name)));
            if (name == "kept")
                continue;
            QVERIFY(!tiles->importNxt(path(name)) && !project->palettes().first()->importData(path(name)));
            QVERIFY(!project->spriteBanks().first()->importSpr(path(name)));
            QVERIFY(!project->maps().first()->importNxm(path(name), path(name)));
            QVERIFY(!m_store->load(path(name)));
            QCOMPARE(m_log->take(), QStringList("loadError Invalid project file"));
        }
        QCOMPARE(readFile(path("kept")), "last version");
        QCOMPARE(entries().size(), names.size());
    }

    void keepsLinksAndWhoMayReadTheFile()
    {
        if (!Platform::HasLinks || !Platform::HasFileModes)
            QSKIP("Links are files of their own here, and files have no mode");
        QVERIFY(QDir(m_folder->path()).mkdir("folder"));
        const QString target = path("folder/target%1.quenmora");
        m_store->newProject("one");
        QVERIFY(m_store->saveAs(target) && QFile::link(target, path("link")));
        const bool isAdministrator = Platform::giveFileTo(target, 1, 2);
        for (const uint mode : {0600U, 0664U}) {
            for (const bool backUp : {true, false}) {
                QVERIFY(Platform::setFileMode(target, mode));
                const QByteArray before = readFile(target);
                m_store->project()->setName(m_store->project()->name() + 'x');
                m_store->setFileName(path("link"));
                QVERIFY(m_store->save(backUp));
                QCOMPARE(QFileInfo(path("link")).symLinkTarget(), target);
                QVERIFY(readFile(target) != before);
                QCOMPARE(readFile(target + ".bak") == before, backUp);
                const Platform::FileStatus kept = Platform::fileStatus(target);
                QCOMPARE(kept.mode, mode);
                QVERIFY(!isAdministrator || (kept.owner == 1 && kept.group == 2));
            }
        }
        QCOMPARE(entries(), (QStringList{"folder", "link"})); // the backups are beside the target
    }

    void refusesToSaveWhatCouldNotBeLoaded()
    {
        m_store->newProject("new")->createTileSet("Too many for a PNG", {}, 125'001);
        m_store->setFileName(path("a.quenmora"));
        QVERIFY(writeFile(m_store->fileName(), "last version"));
        QVERIFY(!m_store->save(true));
        QVERIFY(m_log->take().first().startsWith("saveError Could not write tileset/"));
        QCOMPARE(readFile(m_store->fileName()), "last version");
    }

    void survivesAFullDisk()
    {
        if (!Platform::HasFullDisks)
            QSKIP("No disk can be made full here");
        const QImage noise = SampleProject::noise({640, 512}); // which deflate cannot shrink
        m_store->newProject("noise")->createImage(Quenmora::Layer2_256x192, "noise", {})->setImage(noise);
        QVERIFY(m_store->saveAs(path("a.quenmora")));
        const QByteArray whole = readFile(path("a.quenmora"));
        const QByteArray fingerprint = m_store->fingerprint();
        for (const auto &[missing, message] :
             {std::pair{200'000, "saveError Could not write images/"}, // the first member
              {1, "saveError Could not finish writing the project file"}}) {
            m_log->take();
            {
                const Platform::FileSizeLimit fullDisk(whole.size() - missing);
                QVERIFY(!m_store->save(true));
            }
            const QStringList lines = m_log->take();
            QVERIFY2(lines.size() == 1 && lines.first().startsWith(message), qPrintable(lines.join('\n')));
            QCOMPARE(readFile(path("a.quenmora.bak")), whole);
        }
        QVERIFY(m_store->saveAs(path("good.quenmora")));
        QVERIFY(m_store->newProject("loading...") && m_store->load(path("good.quenmora")));
        QCOMPARE(m_store->fingerprint(), fingerprint);
    }

    void refusesFilesThatAreNoProjects()
    {
        QVERIFY(writeFile(path("empty"), {}));
        QVERIFY(writeFile(path("text"), "PK is not enough"));
        QVERIFY(QDir(m_folder->path()).mkdir("folder"));
        QVERIFY(writeArchive(path("archive"), {{"other.json", "{}"}}));
        const QPointer<Project> project = m_store->newProject("loading...");
        for (const char *name : {"missing", "empty", "text", "folder", "archive"}) {
            QCOMPARE(m_store->project(), project.data()); // it is its owner who closes it, while no archive was opened
            QVERIFY(!m_store->load(path(name)));
            QCOMPARE(m_log->take(), QStringList("loadError Invalid project file"));
        }
        QVERIFY(!project && !m_store->project() && m_store->fileName().isEmpty());
    }

    void fingerprintAndComparisonFollowTheContent()
    {
        Project *project = m_store->newProject("new");
        SampleProject::fill(*project);
        QByteArray last = m_store->fingerprint();
        const auto digest = [project] {
            QCryptographicHash hash(QCryptographicHash::Sha1);
            const ProjectMembers members = serializeProject(*project, false);
            for (auto member = members.cbegin(); member != members.cend(); ++member) {
                hash.addData(member.key().toUtf8());
                hash.addData(member.value());
            }
            return hash.result();
        };
        QCOMPARE(last, digest());
        QVERIFY(m_store->saveAs(path("a.quenmora"))); // from now on pictures come from what is kept
        QCOMPARE(m_store->fingerprint(), last);
        ProjectSnapshot before = snapshotOf(*project, true);
        project->setOpenDocuments({"another"});
        QCOMPARE(m_store->fingerprint(), last);
        QVERIFY(haveSameContent(snapshotOf(*project, true), before));

        // what reaches the document, and each kind of member, at last with indices that look the same
        const TileMap::TileData cell{.index = 1, .used = true};
        const auto animation = project->blockSets().first()->animations().first();
        const std::function<void()> edits[] = {
            [&] { project->setName("x"); },
            [&] { project->palettes().first()->setRawColour(0, 2); },
            [&] { project->tileSets().first()->clearImage(0); },
            [&] { project->maps().first()->setTile(QPoint(2, 3), cell); },
            [&] { project->spriteBanks().first()->clearSprite(1); },
            [&] { project->images().first()->setImage(SampleProject::gradient(QSize(256, 191))); },
            [&] { project->setScratchImage(SampleProject::gradient(QSize(192, 256))); },
            [&] { animation->frame(0)->setIndex(0, 0, 99); },
            [&] { project->setScratchImage(plainImage(QSize(9, 9), 1)); },
            [&] { project->setScratchImage(plainImage(QSize(9, 9), 2)); },
        };
        for (const auto &edit : edits) {
            edit();
            QVERIFY2(m_store->fingerprint() != last, qPrintable(QString::number(&edit - edits)));
            last = m_store->fingerprint();
            QCOMPARE(last, digest());
            QVERIFY(!haveSameContent(snapshotOf(*project, true), before));
            before = snapshotOf(*project, true);
        }
    }

    void exportsAssets()
    {
        const QString folder = m_folder->path();
        Project *project = m_store->newProject("new");
        SampleProject::fill(*project);
        const std::tuple<void (ProjectStore::*)(const QString &, const QUuid &), QString, QUuid, QString> cases[] = {
            {&ProjectStore::exportMap, "Map", project->maps().first()->id(), "Level_tilemap.bin"},
            {&ProjectStore::exportTiles, "Tile set", project->tileSets().first()->id(), "Tiles_tiles.nxt"},
            {&ProjectStore::exportPalette, "Palette", project->palettes().first()->id(), "Main_palette.bin"},
        };
        for (const auto &[slot, kind, id, file] : cases) {
            for (const auto &[place, asset] :
                 {std::pair(folder, QUuid::createUuid()), {path("missing"), id}, {folder, id}})
                (m_store.get()->*slot)(place, asset);
            const QString noun = kind.toLower();
            QCOMPARE(m_log->take(),
                     (QStringList{"saveError Invalid " + noun + " id", "saveError Exporting the " + noun + " failed",
                                  "showMessage " + kind + " exported 2000",
                                  "exported " + file.section('_', 0, 0) + ' ' + path(file)}));
            QVERIFY(QFile::exists(path(file)));
        }
        project->palettes().first()->setName("a/b");
        m_store->exportPalette(folder, project->palettes().first()->id());
        QVERIFY2(m_store->errorDetail().contains("slash"), qPrintable(m_store->errorDetail()));
        QCOMPARE(m_log->take(), QStringList("saveError Exporting the palette failed"));
        m_store->close();
        m_store->exportMap(folder, {}); // without a project
        QCOMPARE(m_log->take(), QStringList("saveError Invalid map id"));
    }

    void extrasAreOneTextAndOnlyWhenThereIsSomething()
    {
        QCOMPARE(m_extras, path("game.quenmora-extras.json"));
        ProjectExtras extras;
        ExtrasFile file;
        QCOMPARE(file.save(extras, m_game), QString());
        QVERIFY(!QFile::exists(m_extras));
        extras.setSection("stamps", QJsonArray{1, 2});
        extras.setSection("imports", QJsonObject{{"b", 1}, {"a", true}});
        QCOMPARE(file.save(extras, m_game), QString());
        QCOMPARE(readFile(m_extras),
                 QByteArray("{\n    \"imports\": {\n        \"a\": true,\n        \"b\": 1\n    },\n"
                            "    \"stamps\": [\n        1,\n        2\n    ]\n}\n"));
        QVERIFY(extras.changedSections().isEmpty());

        ProjectExtras again;
        ExtrasFile other;
        QCOMPARE(other.load(again, m_game), QString());
        QCOMPARE(again.sections(), extras.sections());
        QVERIFY(again.changedSections().isEmpty());
        const QString copy = path("copy.quenmora");
        QCOMPARE(other.save(again, copy), QString());
        QVERIFY2(QFile::exists(ExtrasFile::pathFor(copy)), "another file has all of it, though nothing changed");
    }

    void extrasTakeOverWhatAnotherProgramChanged()
    {
        QVERIFY(writeFile(m_extras, R"({"ours": 1, "theirs": 1, "gone": 1, "unknown": {"x": null}})"));
        ProjectExtras extras;
        ExtrasFile file;
        QCOMPARE(file.load(extras, m_game), QString());
        extras.setSection("ours", 2);
        extras.setSection("gone", QJsonValue::Undefined);
        QVERIFY(writeFile(m_extras, R"({"ours": 3, "theirs": 4, "gone": 5, "unknown": {"x": null}, "new": 6})"));
        QStringList told;
        connect(&extras, &ProjectExtras::sectionChanged, this, [&told](const QString &name) { told.append(name); });
        QCOMPARE(file.save(extras, m_game), QString());
        const QJsonObject expected = object(R"({"ours": 2, "theirs": 4, "unknown": {"x": null}, "new": 6})");
        QCOMPARE(object(readFile(m_extras)), expected);
        QCOMPARE(extras.sections(), expected);
        told.sort();
        QCOMPARE(told, QStringList({"new", "theirs"}));
    }

    void damagedExtrasCostOnlyWhatTheyHeld()
    {
        for (const auto &[bytes, reason] : {std::pair{QByteArray("{\n\"a\": 1,\n"), "line 3"},
                                            {QByteArray("[1]"), "it holds no object"},
                                            {QByteArray(100'000, '['), "line 1"},
                                            {QByteArray(ExtrasFile::MaxBytes + 1, ' '), "at most 16 MiB"}}) {
            init();
            QVERIFY(writeFile(m_extras, bytes));
            ProjectExtras extras;
            ExtrasFile file;
            const QString problem = file.load(extras, m_game);
            QVERIFY2(problem.contains(reason), qPrintable(problem));
            QVERIFY(extras.sections().isEmpty());
            QCOMPARE(file.save(extras, m_game), QString());
            QCOMPARE(readFile(m_extras), bytes); // nothing to write: it stays
            extras.setSection("a", 1);
            QCOMPARE(file.save(extras, m_game), QString());
            QCOMPARE(object(readFile(m_extras)), (QJsonObject{{"a", 1}}));
            QCOMPARE(readFile(m_extras + ".bad"), bytes);
        }
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] static QJsonObject object(const QByteArray &text) { return QJsonDocument::fromJson(text).object(); }
    [[nodiscard]] QStringList entries() const { return entriesOf(m_folder->path()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_game;
    QString m_extras; ///< the file of that project's extras
    std::unique_ptr<ProjectStore> m_store;
    std::unique_ptr<SignalLog> m_log; ///< of the store's signals
};

QUENMORA_TEST_MAIN(TestProjectStore)
#include "tst_projectstore.moc"
