#include "model/image.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/projectpicture.h"
#include "model/spritebank.h"
#include "model/tileset.h"
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

#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <cerrno>

namespace {

using Contents = QMap<QString, QByteArray>;

/// Puts the members into the next copy, calling back after every step; the manifest for it.
template <typename Step>
RecoveryManifest put(RecoveryWriter &writer, const Contents &contents, Step step)
{
    RecoveryManifest manifest;
    manifest.projectName = QStringLiteral("Game");
    manifest.projectFile = QStringLiteral("/games/game.quenmora");
    manifest.time = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123).toUTC();
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
    const bool finished = writer.finish(put(writer, contents, [] {}));
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
        QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
        auto running = RecoveryFolder::create(common());
        QVERIFY(running && running->write("manifest-1", "x").isEmpty());
        const QFile::Permissions others = QFileInfo(common()).permissions() & (QFile::ReadGroup | QFile::ReadOther);
        QVERIFY(!others || !Platform::HasFileModes);
        QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
        QVERIFY(running->isInPlace());
        running.reset(); // as when its program ends
        {
            const auto taken = RecoveryFolder::takeAbandoned(common());
            QCOMPARE(taken.size(), 1U);
            QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
        }
        auto again = RecoveryFolder::takeAbandoned(common());
        QCOMPARE(again.size(), 1U);
        const QString aside = again.front().setAside();
        QVERIFY(QFile::exists(aside + "/manifest-1"));
        QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
    }

    void letsGoWhenAProgramIsKilled()
    {
        QProcess other;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QUENMORA_HELD", common());
        other.setProcessEnvironment(environment);
        other.start(QCoreApplication::applicationFilePath(), {});
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
        if (!Platform::RemovesOpenFiles)
            return;
        const auto other = FileLock::take(path);
        QVERIFY(other && other->holds(path) && !lock->holds(path));
    }

    void clearsAwayWhatNeverHeldACopy()
    {
        QVERIFY(QDir().mkpath(common() + "/6f2d3c1e-8b1a-4c7e-9d55-0a1b2c3d4e5f")); // not even held once
        QVERIFY(QDir().mkpath(common() + "/somebody's"));
        QVERIFY(RecoveryFolder::takeAbandoned(common()).empty());
        QCOMPARE(QDir(common()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"somebody's"});
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
        const QList<Contents> copies{first, second, first, third, second};
        for (qsizetype i = 0; i < copies.size(); ++i) {
            const QString number = QString::number(i);
            const RecoveryManifest manifest = put(writer, copies[i], [&] { check("put " + number); });
            QVERIFY(writer.finish(manifest));
            last = copies[i];
            do
                check("tidy " + number);
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
        const Contents contents{{"map", noise(600'000, 3)}};
        auto folder = RecoveryFolder::create(common());
        const QString path = folder->path();
        RecoveryWriter writer(std::move(*folder));
        QVERIFY(write(writer, contents));
        const QStringList pieces = QDir(path).entryList({QString(40, '?')}, QDir::Files);
        QVERIFY(pieces.size() > 1);
        for (const QString &piece : pieces)
            QVERIFY(writeFile(path + '/' + piece, "marked"));
        Contents changed = contents;
        changed["map"][0] = char(~changed["map"][0]);
        QVERIFY(write(writer, changed));
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

    void takesTheCopyBeforeADamagedOne_data()
    {
        QTest::addColumn<QStringList>("damaged");
        QTest::addColumn<int>("state");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("last manifest") << QStringList{"manifest-2"} << int(RecoveryCopy::Whole) << QByteArray("first");
        QTest::newRow("last piece") << piecesOf("second") << int(RecoveryCopy::Whole) << QByteArray("first");
        QTest::newRow("earlier piece") << piecesOf("first") << int(RecoveryCopy::Whole) << QByteArray("second");
        QTest::newRow("both pieces") << (piecesOf("first") + piecesOf("second")) << int(RecoveryCopy::Damaged)
                                     << QByteArray();
        QTest::newRow("both manifests") << QStringList{"manifest-1", "manifest-2"} << int(RecoveryCopy::Damaged)
                                        << QByteArray();
    }
    void takesTheCopyBeforeADamagedOne()
    {
        QFETCH(QStringList, damaged);
        QFETCH(QByteArray, content);
        const QString path = leave({{{"a", "first"}}, {{"a", "second"}}});
        for (const QString &file : damaged) {
            QByteArray bytes = readFile(path + '/' + file);
            bytes[bytes.size() / 2] = char(bytes[bytes.size() / 2] ^ 1);
            QVERIFY(writeFile(path + '/' + file, bytes));
        }
        const RecoveryCopy copy = found(common());
        QTEST(int(copy.state()), "state");
        if (!content.isEmpty())
            QCOMPARE(copy.read("a"), content);
        QCOMPARE(copy.read("b"), QByteArray());
    }

    void believesNoManifestThatNamesOtherThings_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::newRow("file elsewhere") << QByteArray("pieces") << QJsonValue(QJsonArray{"../../secret"});
        QTest::newRow("no bytes") << QByteArray("size") << QJsonValue(-1);
        QTest::newRow("more bytes than anything has") << QByteArray("size") << QJsonValue(qint64(1) << 50);
        QTest::newRow("more bytes than packed") << QByteArray("size") << QJsonValue(qint64(1) << 30);
        QTest::newRow("fewer bytes than packed") << QByteArray("size") << QJsonValue(3);
        QTest::newRow("other checksum") << QByteArray("crc32") << QJsonValue(17);
        QTest::newRow("other version") << QByteArray("version") << QJsonValue(2);
    }
    void believesNoManifestThatNamesOtherThings()
    {
        QFETCH(QByteArray, key);
        QFETCH(QJsonValue, value);
        const QString manifest = leave({{{"a", "content"}}}) + "/manifest-1";
        QJsonObject object = QJsonDocument::fromJson(readFile(manifest).mid(41)).object();
        QJsonObject member = object["members"].toArray().first().toObject();
        (key == "version" ? object : member)[QString::fromLatin1(key)] = value;
        object["members"] = QJsonArray{member};
        const QByteArray json = QJsonDocument(object).toJson();
        QVERIFY(writeFile(manifest, RecoveryManifest::fileNameFor(json).toLatin1() + '\n' + json));
        const RecoveryCopy copy = found(common());
        QCOMPARE(copy.read("a"), QByteArray());
    }

    void copiesAProjectAsItWas()
    {
        Project project;
        SampleProject::fill(project);
        const ProjectMembers before = serializeProject(project, true);
        const auto map = project.maps().first();
        KeptBlocks kept;
        RecoveryManifest manifest;
        manifest.projectName = project.name();
        manifest.time = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123).toUTC();
        {
            RecoveryWriter writer(std::move(*RecoveryFolder::create(common())));
            RecoveryCopier copier(writer, kept, snapshotOf(project, true), manifest, plainImage({4, 3}, 1));
            map->setTile({0, 0}, {3, true, true, true, 7, true}); // while it is copied
            project.setName("Other");
            QCOMPARE(copier.run(), RecoveryCopier::Done);
        }
        RecoveryCopy copy = found(common());
        QCOMPARE(contentsOf(copy), before);
        QCOMPARE(copy.manifest().projectName, manifest.projectName);
        QCOMPARE(copy.manifest().time, manifest.time);
        QCOMPARE(copy.picture().size(), QSize(4, 3));
        RecoveryWriter writer(std::move(copy));
        QCOMPARE(RecoveryCopier(writer, kept, snapshotOf(project, true), manifest, {}).run(), RecoveryCopier::Done);
        if (!Platform::HasFullDisks)
            return;
        const Platform::FileSizeLimit full(0);
        project.setName("Yet another");
        QCOMPARE(RecoveryCopier(writer, kept, snapshotOf(project, true), manifest, {}).run(), RecoveryCopier::Failed);
    }

    void keepsTheLastCopyWhenTheDiskIsFull()
    {
        if (!Platform::HasFullDisks)
            QSKIP("No disk can be made full here");
        const Contents contents{{"a", noise(2000, 4)}};
        auto folder = RecoveryFolder::create(common());
        const QString path = folder->path();
        {
            RecoveryWriter writer(std::move(*folder));
            QVERIFY(write(writer, contents));
            const QStringList before = QDir(path).entryList(QDir::Files);
            {
                const Platform::FileSizeLimit full(1000);
                QVERIFY(!writer.put("small").isEmpty());
                QCOMPARE(writer.put(noise(2000, 5)), QString());
                QCOMPARE(writer.problem(), qt_error_string(EFBIG));
                writer.giveUp();
                while (writer.tidy()) { }
            }
            QCOMPARE(QDir(path).entryList(QDir::Files), before);
            const RecoveryManifest manifest = put(writer, {{"a", "other"}}, [] {});
            {
                const Platform::FileSizeLimit full(0);
                QVERIFY(!writer.finish(manifest) && !writer.problem().isEmpty());
                writer.giveUp();
                while (writer.tidy()) { }
            }
            QCOMPARE(QDir(path).entryList(QDir::Files), before);
        }
        QCOMPARE(contentsOf(found(common())), contents);
        QVERIFY(writeFile((*m_folder)("file"), {}));
        QVERIFY(!RecoveryFolder::create((*m_folder)("file")));
        QVERIFY(!RecoveryFolder::create((*m_folder)("file") + "/recovery"));
    }

    void showsAPictureOfWhatThereIs()
    {
        Project project;
        QVERIFY(projectPicture(project, {}).isNull());
        const QUuid palette = project.createPalette(CreateAction::DefaultNext, "Colours")->id();
        const auto tiles = project.createTileSet("Tiles", palette, 3, false);
        tiles->setTileImage(2, plainImage({8, 8}, 5));
        QCOMPARE(projectPicture(project, {}).size(), QSize(24, 8));
        const auto map = project.createMap("Map", tiles->id(), {300, 200});
        QCOMPARE(projectPicture(project, {}).size(), QSize(24, 8)); // nothing is on it
        map->setTiles({170, 150, 40, 30}, 2, false, false, false, true);
        const QImage shown = projectPicture(project, {});
        QCOMPARE(shown.size(), ProjectPictureSize);
        QVERIFY(indices(shown).contains(char(5)));
        const auto image = project.createImage(Quenmora::Layer2_320x256, "Title", palette);
        QCOMPARE(projectPicture(project, image->id()).size(), QSize(120, 96));
        QCOMPARE(projectPicture(project, map->id()).size(), ProjectPictureSize);
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
