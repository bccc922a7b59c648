#include "store/projectstore.h"

#include "support/archivetools.h"
#include "support/projectmembers.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <ctime>
#include <sys/resource.h>

using namespace ArchiveTools;
using namespace ProjectFile;
using SampleProject::png;

namespace {

constexpr quint32 Seed = 20261015;

// What a case expects; a case that expects anything else expects a message that contains it.
const QString Anything = QStringLiteral("anything");
const QString Loads = QStringLiteral("loads");

const QRegularExpression Messages(QStringLiteral(
    R"(^(Invalid project file|Project file is from a newer version of Quenmora|Failed to load tile set tileImage ".*" )"
    R"(from project file|Error setting tile set anim - .*|Failed to load tile map anim for map .*|)"
    R"(Project has a missing sprite anim|Failed to load tile image .*)$)"));

quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320 : 0);
    }
    return ~crc;
}

/// A PNG whose header tells another size than its data, with a matching checksum.
QByteArray declaring(QByteArray bytes, quint32 width, quint32 height)
{
    constexpr int Header = 12; // after the signature and the length: "IHDR", width, height, …
    constexpr int HeaderLength = 4 + 13;
    qToBigEndian(width, bytes.data() + Header + 4);
    qToBigEndian(height, bytes.data() + Header + 8);
    qToBigEndian(crc32(bytes.mid(Header, HeaderLength)), bytes.data() + Header + HeaderLength);
    return bytes;
}

/// The beginning of a tile layer, and as many cells as there is data for.
QByteArray tileLayer(qint32 height, qint32 width, int cellBytes)
{
    QByteArray bytes(8 + cellBytes, '\0');
    qToBigEndian(height, bytes.data());
    qToBigEndian(width, bytes.data() + 4);
    return bytes;
}

template <class Visit>
void visitValues(const QJsonValue &value, const Path &path, Visit visit)
{
    if (!path.isEmpty())
        visit(path);
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        visitValues(member.value(), path + Path{member.key()}, visit);
    if (const QJsonArray array = value.toArray(); !array.isEmpty())
        visitValues(array.first(), path + Path{QStringLiteral("0")}, visit);
}

/// What a project without this member comes to.
QString whenMissing(const QString &member)
{
    if (member == "scratch.png")
        return Loads;
    if (member == "project.json")
        return "Invalid project file";
    if (member.startsWith("tileset"))
        return "Failed to load tile set tileImage \"" + member + '"';
    if (member.startsWith("tilemap"))
        return "Failed to load tile map anim for map ";
    return member.startsWith("sprite") ? "Project has a missing sprite anim" : "Failed to load tile image ";
}

/// Does with a loaded project what its editors do: whatever was read must be fit for use.
void useEverything(const Project &project)
{
    for (const QPointer<Map> &map : project.maps()) {
        for (const QPointer<TileMap> &layer : {map->tileLayer(), map->objectLayer()})
            (void)layer->render(QRect(0, 0, 8, 8) & layer->bounds(), 1, map->tileTransparencyIndex());
        (void)map->tileLayer()->toNextData();
        for (const Map::PlacedSprite &sprite : map->sprites())
            (void)sprite.currentFrame(3, 2, 100);
    }
    for (const QPointer<MapObjects> &blocks : project.blockSets()) {
        for (const QPointer<TileAnimation> &animation : blocks->animations())
            (void)animation->preview({32, 32});
    }
    for (const QPointer<SpriteBank> &bank : project.spriteBanks()) {
        for (int index = -1; index <= bank->count(); ++index)
            (void)bank->renderSprite(index, 3, true, true, true);
        for (const QPointer<SpriteAnim> &animation : bank->animations()) {
            if (animation->size().width() <= 32) // larger ones take long to draw
                (void)animation->preview({32, 32});
            (void)animation->frameImage(0, 1, true, false, true);
        }
    }
    for (const QPointer<TileSet> &tiles : project.tileSets()) {
        for (int index = 0; index < tiles->count(); ++index)
            (void)tiles->tileImage(index, true, false, true, tiles->tileOffset(index));
    }
}

qint64 processorMilliseconds()
{
    return qint64(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

} // namespace

/// Whatever a project file holds, it is loaded with defaults or refused with a message, and the store goes on.
class TestDamagedArchives : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void survives_data();
    void survives();
    void everyKeySurvivesEveryValue();
    void cleanupTestCase();

private:
    void addArchive(const char *kind, const QString &name, const QByteArray &archive, const QString &expected);
    void addMembers(const char *kind, const QString &name, const ProjectMembers &members, const QString &expected);
    void addReplaced(const char *kind, const Path &path, const QJsonValue &by, const QString &expected);
    void addWithMember(const char *kind, const QString &name, const QString &member, const QByteArray &bytes,
                       const QString &expected);

    void addDamagedMembers();
    void addDamagedArchives();
    void addImpossibleCounts();
    void addImpossibleTileLayers();
    void addWrongPictures();
    void addDeepNesting();

    [[nodiscard]] QByteArray archiveOf(const ProjectMembers &members) const;
    [[nodiscard]] QString nameOf(const char *kind) const;

    QTemporaryDir m_folder;
    ProjectMembers m_members;
    QJsonObject m_document;
    QByteArray m_archive;

    struct Outcomes
    {
        int loaded = 0;
        int refused = 0;
    };
    QMap<QString, Outcomes> m_outcomes;
};

void TestDamagedArchives::initTestCase()
{
    QLoggingCategory::setFilterRules("*.warning=false\n*.info=false"); // each damage is worth a few
    Project project;
    SampleProject::fill(project);
    const auto images = project.images();
    for (const QPointer<Image> &image : images.mid(1))
        project.deleteImage(image->id());
    m_members = serializeProject(project, true);
    m_document = documentOf(m_members);
    m_archive = archiveOf(m_members);
    QVERIFY(writeArchive(m_folder.filePath("good.quenmora"), {{"project.json", "{}"}}));
}

QByteArray TestDamagedArchives::archiveOf(const ProjectMembers &members) const
{
    const QString file = m_folder.filePath("made.quenmora");
    const bool written = writeArchive(file, members);
    Q_ASSERT(written);
    return written ? fileBytes(file) : QByteArray();
}

/// The name of the member of the first asset of a kind.
QString TestDamagedArchives::nameOf(const char *kind) const
{
    const QString id = m_document.value(kind).toArray().first().toObject().value("id").toString();
    for (auto member = m_members.cbegin(); member != m_members.cend(); ++member) {
        if (member.key().contains(id))
            return member.key();
    }
    return {};
}

void TestDamagedArchives::addArchive(const char *kind, const QString &name, const QByteArray &archive,
                                     const QString &expected)
{
    QTest::addRow("%s: %s", kind, qPrintable(name)) << QString(kind) << archive << expected;
}

void TestDamagedArchives::addMembers(const char *kind, const QString &name, const ProjectMembers &members,
                                     const QString &expected)
{
    addArchive(kind, name, archiveOf(members), expected);
}

void TestDamagedArchives::addReplaced(const char *kind, const Path &path, const QJsonValue &by, const QString &expected)
{
    const QString text = QJsonDocument(QJsonArray{by}).toJson(QJsonDocument::Compact).left(40);
    ProjectMembers members = m_members;
    replace(members, path, by);
    addMembers(kind, path.join('/') + " = " + text, members, expected);
}

void TestDamagedArchives::addWithMember(const char *kind, const QString &name, const QString &member,
                                        const QByteArray &bytes, const QString &expected)
{
    ProjectMembers members = m_members;
    members.insert(member, bytes);
    addMembers(kind, member.section('/', 0, 0) + ": " + name, members, expected);
}

void TestDamagedArchives::addDamagedMembers()
{
    QRandomGenerator random(Seed);
    const QStringList names = m_members.keys();
    for (const QString &name : names) {
        const QByteArray content = m_members.value(name);
        ProjectMembers members = m_members;
        members.remove(name);
        addMembers("member missing", name, members, whenMissing(name));
        members.insert(name, {});
        addMembers("member empty", name, members, whenMissing(name));
        for (const int parts : {1, 50, 99}) {
            members.insert(name, content.left(std::max<qsizetype>(1, content.size() * parts / 100)));
            addMembers("member cut", QStringLiteral("%1 at %2 %").arg(name).arg(parts), members, Anything);
        }
        for (int round = 0; round < 5; ++round) {
            QByteArray flipped = content;
            for (int flip = 0; flip <= round; ++flip)
                flipped[random.bounded(flipped.size())] ^= char(1 << random.bounded(8));
            members.insert(name, flipped);
            addMembers("member with flipped bits", QStringLiteral("%1, %2").arg(name).arg(round), members, Anything);
        }
        for (const QString &other : names) {
            if (other <= name)
                continue;
            ProjectMembers swapped = m_members;
            swapped.insert(name, m_members.value(other));
            swapped.insert(other, content);
            addMembers("members swapped", name + " and " + other, swapped, Anything);
        }
    }
}

void TestDamagedArchives::addDamagedArchives()
{
    QRandomGenerator random(Seed);
    for (int part = 0; part < 20; ++part)
        addArchive("archive cut", QString::number(part), m_archive.left(m_archive.size() * part / 20),
                   "Invalid project file");
    for (int round = 0; round < 40; ++round) {
        QByteArray archive = m_archive;
        for (int flip = 0; flip <= round / 4; ++flip)
            archive[random.bounded(archive.size())] = char(random.bounded(256));
        addArchive("archive with random bytes", QString::number(round), archive, Anything);
    }
    const qsizetype directory = m_archive.indexOf("PK\1\2");
    for (int round = 0; round < 40; ++round) {
        QByteArray archive = m_archive;
        archive[directory + random.bounded(archive.size() - directory)] = char(random.bounded(256));
        addArchive("directory with a random byte", QString::number(round), archive, Anything);
    }
    for (const char *kind : {"tilesets", "maps", "sprites", "images"}) {
        for (const quint64 size : {quint64(8) << 30, quint64(1) << 30, ~quint64(0)}) {
            QByteArray archive = m_archive;
            claimSize(archive, nameOf(kind).toUtf8(), size);
            addArchive("member claiming a size", QStringLiteral("%1, %2").arg(kind).arg(size), archive,
                       whenMissing(nameOf(kind)));
        }
    }
}

void TestDamagedArchives::addImpossibleCounts()
{
    const QString refused = "Error setting tile set anim - Tiles";
    for (const int count : {-1, 0, 3, 5, 512, 1 << 28, SampleProject::Most, SampleProject::Least})
        addReplaced("impossible count", {"tilesets", "0", "count"}, count, refused);

    QJsonArray frames;
    for (int frame = 0; frame < 1000; ++frame)
        frames.append(QJsonObject());
    for (const char *kind : {"mapObjects", "sprites"}) {
        for (const int side : {-5, 256, 257, SampleProject::Most}) {
            const QJsonObject square{{"width", side}, {"height", side}, {"frames", frames}};
            addReplaced("impossible size", {kind, "0", "animations", "0"}, square, Loads);
            const QJsonObject line{{"width", 0}, {"height", side}, {"frames", frames}};
            addReplaced("impossible size", {kind, "0", "animations", "0"}, line, Loads);
        }
    }
    QJsonArray many;
    for (int object = 0; object < 40'000; ++object)
        many.append(QJsonObject());
    for (const Path &path : {Path{"palettes"},
                             {"tilesets"},
                             {"sprites", "0", "animations"},
                             {"maps", "0", "animations"},
                             {"mapObjects", "0", "animations", "0", "frames"}})
        addReplaced("too many objects", path, many, "Invalid project file");

    QJsonArray tileSets;
    for (int object = 0; object < 10'000; ++object)
        tileSets.append(QJsonObject{{"count", 0}});
    addReplaced("very many objects", {"tilesets"}, tileSets, Loads);
    addReplaced("very many objects", {"sprites", "0", "animations"}, QJsonArray(tileSets), Loads);

    QJsonArray placements;
    for (int placement = 0; placement < 2000; ++placement)
        placements.append(QJsonObject{{"x", placement - SampleProject::Most},
                                      {"y", -placement},
                                      {"width", SampleProject::Most},
                                      {"height", SampleProject::Most - placement}});
    addReplaced("impossible size", {"maps", "0", "animations"}, placements, Loads);
    QJsonArray animations;
    for (int animation = 0; animation < 1000; ++animation)
        animations.append(QJsonObject{{"width", 256}, {"height", 256}, {"frames", QJsonArray{QJsonObject()}}});
    for (const char *kind : {"mapObjects", "sprites"})
        addReplaced("impossible size", {kind, "0", "animations"}, animations, Loads);

    for (const char *kind : {"palettes", "tilesets", "maps", "mapObjects", "sprites", "images"}) {
        QJsonArray assets = m_document.value(kind).toArray();
        assets.append(assets.first());
        addReplaced("asset repeated", {kind}, assets, Loads);
    }
}

void TestDamagedArchives::addImpossibleTileLayers()
{
    const QString refused = "Failed to load tile map anim for map Level";
    const QString member = nameOf("maps");
    constexpr qint32 Most = SampleProject::Most;
    for (const auto &[height, width, bytes] : {std::tuple{1, 1, 11},
                                               {2, 3, 71},
                                               {65536, 65536, 120},
                                               {Most, Most, 120},
                                               {Most, 1, 120},
                                               {1, Most, 120},
                                               {-1, -1, 120},
                                               {-1, 1, 12},
                                               {SampleProject::Least, 2, 24},
                                               {0x15555556, 12, 48},
                                               {0x55555556, 3, 24}})
        addWithMember("impossible tile layer", QStringLiteral("%1 x %2").arg(width).arg(height), member,
                      tileLayer(height, width, bytes), refused);
    for (const auto &[height, width] : {std::pair{0, 0}, {0, Most}, {Most, 0}})
        addWithMember("tile layer without cells", QStringLiteral("%1 x %2").arg(width).arg(height), member,
                      tileLayer(height, width, 0), Loads);
    for (int length = 1; length < 8; ++length)
        addWithMember("impossible tile layer", QString::number(length), member, QByteArray(length, '\1'), refused);
    addWithMember("cells of all ones", "", member, tileLayer(1, 4, 0) + QByteArray(48 + 16, '\xFF'), Loads);
}

void TestDamagedArchives::addWrongPictures()
{
    const QImage gradient = SampleProject::gradient({16, 32});
    const auto coloured = [&](QImage::Format format) { return png(gradient.convertToFormat(format)); };
    for (const char *kind : {"tilesets", "sprites", "images"}) {
        const QString member = nameOf(kind);
        const QString refused = QString(kind) == "tilesets" ? "Error setting tile set anim - Tiles"
            : QString(kind) == "sprites"                    ? "Project has a missing sprite anim"
                                                            : "Failed to load tile image Title";
        const QString other = QString(kind) == "tilesets" ? refused : Loads;
        for (const QSize size : {QSize(1, 1), QSize(7, 32), QSize(8, 31), QSize(16, 15), QSize(17, 16), QSize(500, 3)})
            addWithMember("picture of a wrong size", QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()),
                          member, png(SampleProject::gradient(size)), other);
        for (const QImage::Format format : {QImage::Format_Mono, QImage::Format_RGB32, QImage::Format_ARGB32,
                                            QImage::Format_Grayscale8, QImage::Format_RGBA64})
            addWithMember("picture of a wrong depth", QString::number(format), member, coloured(format), other);
        const QByteArray good = m_members.value(member);
        for (const auto &[width, height] : {std::pair{60000, 60000}, {0, 0}, {8, 2000000}, {0x7FFFFFFF, 0x7FFFFFFF}})
            addWithMember("picture declaring another size", QStringLiteral("%1 x %2").arg(width).arg(height), member,
                          declaring(good, quint32(width), quint32(height)), refused);
        addWithMember("picture without data", "signature", member, good.left(8), refused);
        addWithMember("picture without data", "header", member, good.left(33), Anything);
        addWithMember("other format", "bmp", member, "BM" + good, refused);
    }
    for (const QSize size : {QSize(1, 1), QSize(192, 256), QSize(2000, 2000)})
        addWithMember("picture of a wrong size", QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()),
                      "scratch.png", png(SampleProject::gradient(size)), Loads);
    addWithMember("picture declaring another size", "60000 x 60000", "scratch.png",
                  declaring(m_members.value("scratch.png"), 60000, 60000), Loads);
}

void TestDamagedArchives::addDeepNesting()
{
    constexpr int Depth = 10000;
    const QByteArray arrays = QByteArray(Depth, '[') + QByteArray(Depth, ']');
    QByteArray objects;
    for (int level = 0; level < Depth; ++level)
        objects += "{\"maps\":";
    objects += '1' + QByteArray(Depth, '}');
    for (const QByteArray &text : {arrays, objects, QByteArray(arrays.left(Depth)), "{\"name\": " + arrays + '}',
                                   "{\"palettes\": [" + objects + "]}"})
        addWithMember("deep nesting", QString::fromUtf8(text.left(20)), "project.json", text, Loads);
    for (const QByteArray &text :
         {QByteArray("[]"), QByteArray("null"), QByteArray("\xEF\xBB\xBF{}"), QByteArray("\0{}", 3),
          QByteArray("\xFF\xFE{\0}\0", 6), QByteArray("{\"name\": \"\xFF\"}")})
        addWithMember("document that is none", QString::fromLatin1(text.toHex()), "project.json", text, Loads);
}

void TestDamagedArchives::survives_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QString>("expected");
    addDamagedMembers();
    addDamagedArchives();
    addImpossibleCounts();
    addImpossibleTileLayers();
    addWrongPictures();
    addDeepNesting();
}

void TestDamagedArchives::survives()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, archive);
    QFETCH(QString, expected);
    const QString file = m_folder.filePath("damaged.quenmora");
    QVERIFY(writeFile(file, archive));

    ProjectStore store;
    QSignalSpy errors(&store, &ProjectStore::loadError);
    store.newProject("loading...");
    const qint64 start = processorMilliseconds();
    const bool loaded = store.load(file);
    QVERIFY(processorMilliseconds() - start < 1000);
    const QString message = errors.isEmpty() ? QString() : errors.first().first().toString();
    QCOMPARE(errors.size(), loaded ? 0 : 1);
    if (loaded) {
        ++m_outcomes[kind].loaded;
        useEverything(*store.project());
        QVERIFY(store.saveAs(m_folder.filePath("saved.quenmora")));
        store.close();
    } else {
        ++m_outcomes[kind].refused;
        QVERIFY2(Messages.match(message).hasMatch(), qPrintable(message));
        if (message == "Invalid project file")
            store.close(); // a file that is no archive leaves the placeholder to its owner
    }
    QVERIFY(!store.project());
    if (expected == Loads)
        QVERIFY2(loaded, qPrintable(message));
    else if (expected != Anything)
        QVERIFY2(message.contains(expected), qPrintable("loaded, or: " + message));

    store.newProject("loading...");
    QVERIFY(store.load(m_folder.filePath("good.quenmora")));
}

/// The members that stay as they are are not packed for each of the many values.
void TestDamagedArchives::everyKeySurvivesEveryValue()
{
    QList<QJsonValue> wrong{QJsonValue::Null,
                            true,
                            "text",
                            -1,
                            0.5,
                            2147483648.0,
                            1e300,
                            SampleProject::Most,
                            QJsonArray(),
                            QJsonObject(),
                            QString(5000, '1'),
                            SampleProject::Least,
                            QJsonValue::Undefined};
    const QString known = valueAt(m_document, {"tilesets", "0", "id"}).toString();
    for (const QString &id : {QUuid().toString(), QUuid::createUuid().toString(), known})
        wrong.append(id);
    ProjectMembers members = m_members;
    members.remove("scratch.png");
    visitValues(m_document, {}, [&](const Path &path) {
        for (const QJsonValue &value : std::as_const(wrong)) {
            setDocument(members, replaced(m_document, path, value).toObject());
            const QString what = path.join('/') + " = " + value.toVariant().toString();
            Project project;
            QString error;
            const bool loaded = readProject(project, readerOf(members), error);
            QVERIFY2(loaded || Messages.match(error).hasMatch(), qPrintable(what + ": " + error));
            if (loaded)
                useEverything(project);
            ++(loaded ? m_outcomes["value at a key"].loaded : m_outcomes["value at a key"].refused);
        }
    });
}

void TestDamagedArchives::cleanupTestCase()
{
    QLoggingCategory::setFilterRules({});
    int total = 0;
    for (auto outcome = m_outcomes.cbegin(); outcome != m_outcomes.cend(); ++outcome) {
        const auto [loaded, refused] = outcome.value();
        total += loaded + refused;
        qInfo("%-32s %4d archives: %4d loaded, %4d refused", qPrintable(outcome.key()), loaded + refused, loaded,
              refused);
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    qInfo("%d archives (seed %u), peak memory %ld MiB", total, Seed, usage.ru_maxrss / 1024);
#ifndef __SANITIZE_ADDRESS__ // which keeps freed memory
    QVERIFY(usage.ru_maxrss < 512 * 1024); // KiB; of all cases together, which are held in memory as well
#endif
}

QUENMORA_TEST_MAIN(TestDamagedArchives)
#include "tst_damagedarchives.moc"
