#include "store/projectstore.h"

#include "support/archivetools.h"
#include "support/littleendian.h"
#include "support/platform.h"
#include "support/projectmembers.h"
#include "support/sampleproject.h"
#include "support/stderrwatch.h"
#include "support/testmain.h"

#include <QtTest>

#include <optional>
using namespace ArchiveTools;
using namespace ProjectFile;
using SampleProject::gradient;
using SampleProject::Least;
using SampleProject::Most;
using SampleProject::png;

namespace {

constexpr quint32 Seed = 20261015;

enum Outcome { Loads, Refused, Either };

/// An array of many equal objects.
QJsonArray many(int count, const QJsonObject &object = {})
{
    QJsonArray array;
    for (int index = 0; index < count; ++index)
        array.append(object);
    return array;
}

/// Does with a loaded project what its editors do: whatever was read must be fit for use.
void useEverything(const Project &project)
{
    for (const QPointer<Map> &map : project.maps()) {
        for (const QPointer<TileMap> &layer : {map->tileLayer(), map->objectLayer()})
            (void)layer->render(QRect(0, 0, 8, 8) & layer->bounds(), 1, map->tileTransparencyIndex());
        for (const Map::PlacedSprite &sprite : map->sprites())
            (void)sprite.currentFrame(3, 2, 100);
    }
    for (const QPointer<MapObjects> &blocks : project.blockSets()) {
        for (const QPointer<TileAnimation> &animation : blocks->animations())
            (void)animation->preview({32, 32});
    }
    for (const QPointer<SpriteBank> &bank : project.spriteBanks()) {
        (void)bank->renderSprite(bank->count() - 1, 3, true, true, true);
        for (const QPointer<SpriteAnim> &animation : bank->animations())
            (void)animation->frameImage(0, 1, true, false, true);
    }
    for (const QPointer<TileSet> &tiles : project.tileSets())
        (void)tiles->tileImage(tiles->count() - 1, true, false, true, tiles->tileOffset(0));
}

} // namespace

/// Whatever a project file holds, it is loaded with defaults or refused with a message, and the store goes on.
class TestDamagedArchives : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_output.emplace();
        QLoggingCategory::setFilterRules("*.warning=false\n*.info=false"); // each damage is worth a few
        Project project;
        SampleProject::fill(project);
        const auto images = project.images();
        for (const QPointer<Image> &image : images.mid(1))
            project.deleteImage(image->id());
        m_members = serializeProject(project, true);
        QVERIFY(writeArchive(m_path("good.quenmora"), {{"project.json", "{}"}}));
    }

    void closingIsSafeAtAnyTime()
    {
        QVERIFY(writeFile(m_path("a.zip"), noise(100'000))); // which is truncated
        {
            ZipFile zip;
            QVERIFY(zip.close());
            QVERIFY(zip.openForWriting(m_path("a.zip")));
            QVERIFY(zip.write("a", "first"));
            QVERIFY(!zip.contains("a") && zip.read("a").isEmpty());
        } // the destructor finishes the archive
        QVERIFY(QFileInfo(m_path("a.zip")).size() < 200);
        ZipFile zip;
        QVERIFY(zip.openForReading(m_path("a.zip")));
        QCOMPARE(zip.read("a"), "first");
        QVERIFY(!zip.write("c", "d"));
    }

    void readsADamagedMemberAsEmpty()
    {
        QVERIFY(writeArchive(m_path("good.zip"), {{"broken", noise(1000)}, {"whole", "content"}}));
        const QByteArray good = readFile(m_path("good.zip"));
        QList<QByteArray> damaged{good};
        damaged[0][good.indexOf("broken") + 500] ^= 1; // noise is stored as it is: only the checksum tells
        // fields of the directory's first record, and little-endian numbers of 32 bits that they get, 16 for the method
        enum Field { Method = 10, Checksum = 16, PackedSize = 20, Size = 24, HeaderOffset = 42 };
        for (const auto &[field, value] : {std::pair{Checksum, 0x12345678U},
                                           {Size, 0xFFFFFFFEU},
                                           {Size, 1U << 29}, // more than its packed bytes can yield
                                           {Size, 1001U},
                                           {Size, 999U},
                                           {PackedSize, 0x7FFFFFFFU}, // beyond the file
                                           {PackedSize, 3U},
                                           {Method, 99U}, // unknown
                                           {Method, 0U}, // stored, although it is deflated
                                           {HeaderOffset, 0x7FFFFFFFU}}) {
            const QByteArray number = le32(value).first(field == Method ? 2 : 4);
            damaged.append(QByteArray(good).replace(good.indexOf("PK\1\2") + field, number.size(), number));
        }
        for (const QByteArray &archive : damaged) {
            QVERIFY(writeFile(m_path("broken.zip"), archive));
            ZipFile zip;
            QVERIFY(zip.openForReading(m_path("broken.zip")));
            QVERIFY(zip.contains("broken") && !zip.contains("Whole") && !zip.contains("hole"));
            QVERIFY2(zip.read("broken").isEmpty(), qPrintable(QString::number(&archive - damaged.constData())));
            QCOMPARE(zip.read("whole"), "content");
        }
    }

    void damagedMembers()
    {
        QRandomGenerator random(Seed);
        for (auto member = m_members.cbegin(); member != m_members.cend(); ++member) {
            const auto damaged = [&](const QByteArray &bytes, const QString &how, Outcome expected) {
                ProjectMembers members = m_members;
                members.insert(member.key(), bytes);
                survives(archiveOf(members), member.key() + ' ' + how, expected);
            };
            damaged({}, "empty", member.key() == "scratch.png" ? Loads : Refused);
            for (const int parts : {1, 50, 99})
                damaged(member->left(std::max<qsizetype>(1, member->size() * parts / 100)), "cut", Either);
            for (int flips = 1; flips <= 5; ++flips) {
                QByteArray flipped = *member;
                for (int flip = 0; flip < flips; ++flip)
                    flipped[random.bounded(flipped.size())] ^= char(1 << random.bounded(8));
                damaged(flipped, QStringLiteral("with %1 flipped bits").arg(flips), Either);
            }
            for (auto other = m_members.cbegin(); other != m_members.cend(); ++other)
                damaged(*other, "with the content of " + other.key(), Either);
        }
    }

    void damagedArchives()
    {
        const QByteArray whole = archiveOf(m_members);
        for (int part = 0; part < 20; ++part)
            survives(whole.left(whole.size() * part / 20), "cut", Refused);
        QRandomGenerator random(Seed);
        for (const qsizetype from : {qsizetype(0), whole.indexOf("PK\1\2")}) { // where the directory begins
            for (int round = 0; round < 40; ++round) {
                QByteArray archive = whole;
                for (int flip = 0; flip <= round / 4; ++flip)
                    archive[from + random.bounded(archive.size() - from)] = char(random.bounded(256));
                survives(archive, QStringLiteral("random bytes %1 from %2").arg(round).arg(from), Either);
            }
        }
    }

    void workThatIsMultiplied()
    {
        QVERIFY(documentOf(m_members).value("images").toArray().size() == 1);
        for (const char *kind : {"tilesets", "maps", "sprites", "images"}) {
            // a picture of a megabyte, or as many cells, over and over again
            const QString id = valueAt(documentOf(m_members), {kind, "0", "id"}).toString();
            const QString name = m_members.keys().filter(id).first();
            ProjectMembers members = m_members;
            QJsonArray assets = documentOf(members).value(kind).toArray();
            QJsonObject asset = assets.first().toObject();
            if (name.startsWith("tilemap"))
                members.insert(name, QByteArray::fromHex("000003E8000003E8").append(12'000'000, '\1'));
            else if (name.startsWith("tileset"))
                asset.insert("count", 16384);
            if (name.endsWith(".png"))
                members.insert(name, png(gradient({name.startsWith("tileset") ? 8 : 16, 131'072})));
            for (const auto &[times, expected] : {std::pair{2, Loads}, {100, Refused}}) {
                replace(members, {kind}, many(times, asset));
                survives(archiveOf(members), QStringLiteral("%1 %2 times").arg(name).arg(times), expected);
            }
        }
    }

    void impossibleCounts()
    {
        const auto stored = [this](const Path &path, const QJsonValue &value, Outcome expected) {
            ProjectMembers members = m_members;
            replace(members, path, value);
            survives(archiveOf(members), path.join('/') + ' ' + QJsonDocument({value}).toJson().left(60), expected);
        };
        for (const int count : {-1, 0, 3, 5, 1 << 28, Most, Least})
            stored({"tilesets", "0", "count"}, count, Refused);
        for (const char *kind : {"mapObjects", "sprites"}) {
            for (const QSize size : {QSize(-5, -5), {256, 256}, {257, 257}, {0, Most}, {Most, Most}})
                stored({kind, "0", "animations"},
                       many(1000, {{"width", size.width()}, {"height", size.height()}, {"frames", many(30)}}), Loads);
        }
        stored({"maps", "0", "animations"}, many(2000, {{"x", -Most}, {"y", -7}, {"width", Most}, {"height", Most}}),
               Loads);
        stored({"tilesets"}, many(10'000, {{"count", 0}}), Loads);
        for (const Path &path : {Path{"palettes"},
                                 {"tilesets"},
                                 {"sprites", "0", "animations"},
                                 {"mapObjects", "0", "animations", "0", "frames"}})
            stored(path, many(40'000), Refused);
    }

    /// The members that stay as they are are not packed for each of the many values.
    void everyKeySurvivesEveryValue()
    {
        const QJsonObject document = documentOf(m_members);
        const QJsonArray values =
            QJsonDocument::fromJson(R"([null, true, "text", -1, 0.5, 2147483647, -2147483648, 1e300,
        2147483648, [], {}, "{00000000-0000-0000-0000-000000000000}", "{11111111-aaaa-4aaa-8aaa-aaaaaaaaaaaa}"])")
                .array();
        QList<QJsonValue> wrong(values.begin(), values.end());
        wrong << QString(5000, '1') << valueAt(document, {"tilesets", "0", "id"}) << QJsonValue::Undefined;
        ProjectMembers members = m_members;
        members.remove("scratch.png");
        visitValues(document, {}, [&](const Path &path) {
            for (const QJsonValue &value : std::as_const(wrong)) {
                setDocument(members, replaced(document, path, value).toObject());
                Project project;
                QString error;
                const bool loaded = readProject(project, readerOf(members), error);
                const QString what = path.join('/') + " = " + value.toVariant().toString() + ": " + error;
                QVERIFY2(loaded || !error.isEmpty(), qPrintable(what));
                if (loaded)
                    useEverything(project);
            }
        });
    }

    void cleanupTestCase()
    {
        QLoggingCategory::setFilterRules({});
        QCOMPARE(m_output->written(), QByteArray());
        const qint64 peak = Platform::peakMemory();
        qInfo("seed %u, peak memory %lld MiB", Seed, peak >> 20);
        QVERIFY(!Platform::CountsMemory || peak < 256 << 20);
    }

private:
    [[nodiscard]] QByteArray archiveOf(const ProjectMembers &members) const
    {
        return writeArchive(m_file, members) ? readFile(m_file) : QByteArray();
    }

    void survives(const QByteArray &archive, const QString &what, Outcome expected)
    {
        QVERIFY(writeFile(m_file, archive));
        ProjectStore store;
        QSignalSpy errors(&store, &ProjectStore::loadError);
        store.newProject("loading...");
        const bool loaded = store.load(m_file);
        const QString message = errors.isEmpty() ? QString() : errors.first().first().toString();
        const QByteArray outcome = (what + (loaded ? ": loaded" : ": " + message)).toUtf8();
        QVERIFY2(errors.size() == (loaded ? 0 : 1), outcome);
        QVERIFY2(loaded || !message.isEmpty(), outcome);
        QVERIFY2(expected == Either || loaded == (expected == Loads), outcome);
        if (loaded) {
            useEverything(*store.project());
            QVERIFY2(store.saveAs(m_path("saved.quenmora")), outcome);
        }
        store.newProject("loading...");
        QVERIFY2(store.load(m_path("good.quenmora")), outcome);
    }

    std::optional<StderrWatch> m_output; ///< everything is to go through the log
    const TemporaryFolder m_path;
    const QString m_file = m_path("damaged.quenmora");
    ProjectMembers m_members;
};

QUENMORA_TEST_MAIN(TestDamagedArchives)
#include "tst_damagedarchives.moc"
