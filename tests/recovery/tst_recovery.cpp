#include "model/projectpicture.h"
#include "recovery/recoverycopier.h"
#include "recovery/recoverycopy.h"
#include "recovery/recoverywriter.h"
#include "store/keptblocks.h"
#include "store/packedmember.h"
#include "store/projectdocument.h"
#include "support/modeltools.h"
#include "support/platform.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QtTest>

#include <cerrno>
#include <functional>

namespace {

using Contents = QMap<QString, QByteArray>;

/// Puts the members into the next copy, calling back after every step; the manifest for it.
RecoveryManifest put(
    RecoveryWriter &writer, const Contents &contents, const std::function<void()> &step = [] {})
{
    RecoveryManifest manifest;
    for (auto content = contents.cbegin(); content != contents.cend(); ++content) {
        const PackedMember packed = PackedMember::pack(content.key(), content.value());
        RecoveryManifest::Member member{packed.name, packed.size(), packed.checksum(), {}};
        for (const PackedBlock &block : packed.blocks) {
            member.pieces.append(writer.put(block.deflated));
            step();
        }
        manifest.members.append(member);
    }
    return manifest;
}

/// Writes a whole copy; whether that went well.
bool write(RecoveryWriter &writer, const Contents &contents)
{
    const bool finished = writer.finish(put(writer, contents));
    while (writer.tidy()) { }
    return finished;
}

Contents contentsOf(const RecoveryCopy &copy)
{
    Contents contents;
    for (const RecoveryManifest::Member &member : copy.manifest().members)
        contents.insert(member.name, copy.read(member.name));
    return contents;
}

/// The only folder that is left below a common one, as somebody finds it after a crash.
RecoveryCopy found(const QString &common)
{
    auto folders = RecoveryFolder::takeAbandoned(common);
    if (folders.size() != 1)
        qFatal("%d folders", int(folders.size()));
    return RecoveryCopy(std::move(folders.front()));
}

} // namespace

class TestRecovery : public QObject
{
    Q_OBJECT

private slots:
    /// As the program that letsGoWhenAProgramIsKilled() kills, this one holds a folder and says so with a file.
    void initTestCase()
    {
        const QString held = qEnvironmentVariable("QUENMORA_HELD");
        if (held.isEmpty())
            return;
        const auto folder = RecoveryFolder::create(held);
        QVERIFY(folder && folder->write("manifest-1", "x").isEmpty() && writeFile(held + ".held", {}));
        QEventLoop().exec();
    }
    void init() { m_folder.emplace(); }

    void leavesToOthersWhatTheyHold()
    {
        auto running = RecoveryFolder::create(common());
        QVERIFY(running && running->write("manifest-1", "x").isEmpty());
        const QFile::Permissions others = QFileInfo(common()).permissions() & (QFile::ReadGroup | QFile::ReadOther);
        QVERIFY(!others || !Platform::HasFileModes);
        QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
        QVERIFY(running->isInPlace());
        running.reset(); // as when its program ends
        auto taken = RecoveryFolder::takeAbandoned(common());
        QCOMPARE(taken.size(), 1U);
        QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
        QVERIFY(QFile::exists(taken.front().setAside() + "/manifest-1"));
        QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
    }

    void letsGoWhenAProgramIsKilled()
    {
        qputenv("QUENMORA_HELD", common().toUtf8());
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {});
        qunsetenv("QUENMORA_HELD");
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(common() + ".held"), 60'000);
        QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
        other.kill();
        QVERIFY(other.waitForFinished(60'000));
        QCOMPARE(RecoveryFolder::takeAbandoned(common()).size(), 1U);
    }

    void holdsTheFileOfItsNameAlone()
    {
        const QString path = (*m_folder)("lock");
        auto lock = FileLock::take(path);
        QVERIFY(lock && lock->holds(path) && !FileLock::take(path));
        // by somebody who looked between its making and its holding
        QCOMPARE(QFile::remove(path), Platform::RemovesOpenFiles);
        QCOMPARE(lock->holds(path), !Platform::RemovesOpenFiles);
        QVERIFY(!Platform::RemovesOpenFiles || (FileLock::take(path) && !lock->holds(path)));
    }

    void clearsAwayWhatNeverHeldACopy()
    {
        QVERIFY(QDir().mkpath(common() + "/6f2d3c1e-8b1a-4c7e-9d55-0a1b2c3d4e5f")); // not even held once
        QVERIFY(QDir().mkpath(common() + "/somebody's"));
        QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
        QCOMPARE(entriesOf(common()), QStringList{"somebody's"});
    }

    /// A kill at any moment leaves the files as they are after some step.
    void isWholeAfterEveryStep()
    {
        const Contents first{{"project.json", "{}"}, {"tilemap", noise(700'000, 1)}, {"picture", noise(1000, 2)}};
        Contents second = first;
        second["tilemap"].replace(300'000, 4, "edit");
        Contents third = second;
        third["project.json"] = "{1}";
        third.remove("picture");
        std::optional<Contents> last;
        QStringList wrong;
        auto folder = RecoveryFolder::create(common());
        QVERIFY(folder);
        const QString path = folder->path();
        RecoveryWriter writer(std::move(*folder));
        const auto check = [&](const QString &step) {
            const TemporaryFolder copies;
            const QString left = copies("6f2d3c1e-8b1a-4c7e-9d55-0a1b2c3d4e5f");
            QDir().mkpath(left);
            for (const QString &file : QDir(path).entryList(QDir::Files))
                QFile::copy(path + '/' + file, left + '/' + file);
            const RecoveryCopy copy = found(copies());
            if (copy.state() != (last ? RecoveryCopy::Whole : RecoveryCopy::Missing)
                || (last && contentsOf(copy) != *last))
                wrong.append(step);
        };
        for (const Contents &contents : {first, second, first, third, second}) {
            const RecoveryManifest manifest = put(writer, contents, [&] { check("put"); });
            QVERIFY(writer.finish(manifest));
            last = contents;
            do
                check("tidy");
            while (writer.tidy());
        }
        QCOMPARE(wrong, QStringList());
        // the last two copies share all but a document and a picture; a lock and two manifests
        QCOMPARE(QDir(path).entryList(QDir::Files).size(), piecesOf(second["tilemap"]).size() + 3 + 1 + 2);
        writer.remove();
        QVERIFY(!QFile::exists(path));
    }

    void isNotDamagedByItsRemoval()
    {
        QVERIFY(!leave({{{"a", "first"}}, {{"a", "second"}}}).isEmpty());
        for (RecoveryCopy copy = found(common()); !copy.folder().files().isEmpty();) {
            QVERIFY(copy.state() != RecoveryCopy::Damaged);
            QVERIFY(QFile::remove(copy.folder().filePath(copy.folder().files().first())));
            copy = RecoveryCopy(std::move(copy.folder()));
        }
    }

    void writesOnceWhatDoesNotChange()
    {
        Contents contents{{"map", noise(600'000, 3)}};
        const QString path = leave({contents});
        const QStringList pieces = piecesOf(contents["map"]);
        QVERIFY(pieces.size() > 1);
        RecoveryWriter writer(found(common()));
        contents["map"][0] = char(~contents["map"][0]);
        for (const QString &piece : pieces)
            QVERIFY(writeFile(path + '/' + piece, "marked"));
        QVERIFY(write(writer, contents));
        for (const QString &piece : pieces)
            QCOMPARE(readFile(path + '/' + piece), "marked");
        QCOMPARE(QDir(path).entryList({QString(40, '?')}, QDir::Files).size(), pieces.size() + 1);
    }

    void goesOnAfterACrash()
    {
        {
            RecoveryWriter writer(std::move(*RecoveryFolder::create(common())));
            QVERIFY(write(writer, {{"a", "first"}}) && write(writer, {{"a", "second"}}));
            QVERIFY(!writer.put("begun").isEmpty());
        }
        RecoveryCopy copy = found(common());
        const QString path = copy.folder().path();
        QVERIFY(writeFile(copy.folder().filePath("manifest-3"), "cut off"));
        {
            RecoveryWriter writer{std::move(copy)};
            QVERIFY(write(writer, {{"a", "third"}}));
            QCOMPARE(QDir(path).entryList(QDir::Files).size(), 2 * 2 + 1); // of two copies, and the lock
        }
        QCOMPARE(contentsOf(found(common())), (Contents{{"a", "third"}}));
    }

    void takesTheCopyBeforeADamagedOne()
    {
        const std::pair<QStringList, QByteArray> cases[] = {
            {{"manifest-2"}, "first"},          {piecesOf("second"), "first"},
            {piecesOf("first"), "second"},      {piecesOf("first") + piecesOf("second"), {}},
            {{"manifest-1", "manifest-2"}, {}},
        };
        for (const auto &[damaged, content] : cases) {
            init();
            const QString path = leave({{{"a", "first"}}, {{"a", "second"}}});
            for (const QString &file : damaged) {
                QByteArray bytes = readFile(path + '/' + file);
                bytes[bytes.size() / 2] = char(bytes[bytes.size() / 2] ^ 1);
                QVERIFY(writeFile(path + '/' + file, bytes));
            }
            const RecoveryCopy copy = found(common());
            QCOMPARE(copy.state(), content.isEmpty() ? RecoveryCopy::Damaged : RecoveryCopy::Whole);
            QCOMPARE(copy.read("a"), content);
            QCOMPARE(copy.read("b"), QByteArray());
        }
    }

    void believesNoManifestThatNamesOtherThings()
    {
        const std::pair<QString, QJsonValue> lies[] = {
            {"pieces", QJsonArray{"../../secret"}},
            {"size", -1},
            {"size", qint64(1) << 50}, // more than anything has
            {"size", qint64(1) << 30}, // more than was packed
            {"size", 3},
            {"crc32", 17},
            {"version", 2},
        };
        for (const auto &[key, value] : lies) {
            init();
            const QString manifest = leave({{{"a", "content"}}}) + "/manifest-1";
            QJsonObject object = QJsonDocument::fromJson(readFile(manifest).mid(41)).object();
            QJsonObject member = object["members"].toArray().first().toObject();
            (key == "version" ? object : member)[key] = value;
            object["members"] = QJsonArray{member};
            const QByteArray json = QJsonDocument(object).toJson();
            QVERIFY(writeFile(manifest, RecoveryManifest::fileNameFor(json).toLatin1() + '\n' + json));
            QCOMPARE(found(common()).read("a"), QByteArray());
        }
    }

    void copiesAProjectAsItWas()
    {
        Project project;
        SampleProject::fill(project);
        const ProjectMembers before = serializeProject(project, true);
        KeptBlocks kept;
        const auto copy = [&](RecoveryWriter &writer) {
            RecoveryManifest manifest;
            manifest.projectName = "Game";
            manifest.projectFile = "/games/game.quenmora";
            manifest.time = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123).toUTC();
            RecoveryCopier copier(writer, kept, snapshotOf(project, true), manifest, plainImage({4, 3}, 1));
            project.maps().first()->setTile({0, 0}, {3, true, true, true, 7, true}); // while it is copied
            return copier.run();
        };
        {
            RecoveryWriter writer(std::move(*RecoveryFolder::create(common())));
            QCOMPARE(copy(writer), RecoveryCopier::Done);
        }
        RecoveryCopy left = found(common());
        QCOMPARE(contentsOf(left), before);
        const RecoveryManifest &manifest = left.manifest();
        QVERIFY(manifest.projectName == "Game" && manifest.projectFile == "/games/game.quenmora");
        QCOMPARE(manifest.time.toMSecsSinceEpoch(), 1'700'000'000'123);
        QCOMPARE(left.picture().size(), QSize(4, 3));
        if (!Platform::HasFullDisks)
            return;
        RecoveryWriter writer(std::move(left));
        const Platform::FileSizeLimit full(0);
        QCOMPARE(copy(writer), RecoveryCopier::Failed);
    }

    void keepsTheLastCopyWhenTheDiskIsFull()
    {
        if (!Platform::HasFullDisks)
            QSKIP("No disk can be made full here");
        const Contents contents{{"a", noise(2000, 4)}};
        const QString path = leave({contents});
        std::optional<RecoveryWriter> writer(found(common()));
        const QStringList before = QDir(path).entryList(QDir::Files);
        for (const bool pieces : {true, false}) {
            const RecoveryManifest manifest = pieces ? RecoveryManifest() : put(*writer, {{"a", "other"}});
            {
                const Platform::FileSizeLimit full(pieces ? 1000 : 0);
                if (pieces)
                    QVERIFY(!writer->put("small").isEmpty() && writer->put(noise(2000, 5)).isEmpty());
                else
                    QVERIFY(!writer->finish(manifest));
                QCOMPARE(writer->problem(), qt_error_string(EFBIG));
                writer->giveUp();
                while (writer->tidy()) { }
            }
            QCOMPARE(QDir(path).entryList(QDir::Files), before);
        }
        writer.reset();
        QCOMPARE(contentsOf(found(common())), contents);
        QVERIFY(writeFile((*m_folder)("file"), {}));
        QVERIFY(!RecoveryFolder::create((*m_folder)("file")));
    }

    void showsAPictureOfWhatThereIs()
    {
        Project project;
        QVERIFY(projectPicture(project, {}).isNull());
        const QUuid palette = project.createPalette(CreateAction::DefaultNext, "Colours")->id();
        const auto tiles = project.createTileSet("Tiles", palette, 3, false);
        tiles->setTileImage(2, plainImage({8, 8}, 5));
        const auto map = project.createMap("Map", tiles->id(), {300, 200});
        QCOMPARE(projectPicture(project, {}).size(), QSize(24, 8)); // nothing is on the map
        map->setTiles({170, 150, 40, 30}, 2, false, false, false, true);
        const QImage shown = projectPicture(project, {});
        QCOMPARE(shown.size(), ProjectPictureSize);
        QVERIFY(indices(shown).contains(char(5)));
        const auto image = project.createImage(Quenmora::Layer2_320x256, "Title", palette);
        QCOMPARE(projectPicture(project, image->id()).size(), QSize(120, 96));
    }

private:
    [[nodiscard]] QString common() const { return (*m_folder)("home/recovery"); }
    /// Writes copies, as a program that ends then; the folder that they are in.
    [[nodiscard]] QString leave(const QList<Contents> &copies) const
    {
        auto folder = RecoveryFolder::create(common());
        const QString path = folder->path();
        RecoveryWriter writer(std::move(*folder));
        for (const Contents &contents : copies) {
            if (!write(writer, contents))
                qFatal("cannot write");
        }
        return path;
    }
    /// The files that a content is in.
    static QStringList piecesOf(const QByteArray &content)
    {
        QStringList files;
        for (const PackedBlock &block : PackedMember::pack({}, content).blocks)
            files.append(RecoveryManifest::fileNameFor(block.deflated));
        return files;
    }

    std::optional<TemporaryFolder> m_folder;
};

QUENMORA_TEST_MAIN(TestRecovery)
#include "tst_recovery.moc"
