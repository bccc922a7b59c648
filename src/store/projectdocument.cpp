#include "store/projectdocument.h"

#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "store/blocksetdocument.h"
#include "store/documentreader.h"
#include "store/imagedocument.h"
#include "store/keptblocks.h"
#include "store/mapdocument.h"
#include "store/palettedocument.h"
#include "store/pngmember.h"
#include "store/projectmember.h"
#include "store/spritebankdocument.h"
#include "store/tilesetdocument.h"
#include "store/zipfile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <numeric>

namespace {

/// Version 2 is written; 1 differs from it in nothing that a reader would see.
constexpr int FormatVersion = 2;
constexpr int OldestVersion = 1;

/// Bytes of the document. A frame of 16 × 16 cells, the largest that the editors offer, takes 80 KiB as it is written.
constexpr qsizetype MaxDocument = qsizetype(128) << 20;

// What the document takes in memory, in bytes, text included
constexpr qint64 MaxMemory = qint64(384) << 20;
constexpr qint64 ValueMemory = 16;
constexpr qint64 KeyMemory = 56;
constexpr qint64 ContainerMemory = 160;

/// Assets, animations and frames in a project; a large game has some thousands.
constexpr qsizetype MaxObjects = qsizetype(1) << 15;

constexpr QLatin1String DocumentMember("project.json");
constexpr QLatin1String ScratchMember("scratch.png");

constexpr QLatin1String Version("formatVersion");
constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String ScreenSize("screen_size");
constexpr QLatin1String PlayArea("play_area");
constexpr QLatin1String X("x");
constexpr QLatin1String Y("y");
constexpr QLatin1String Width("width");
constexpr QLatin1String Height("height");
constexpr QLatin1String ScratchPalette("scratchPalette");
constexpr QLatin1String OpenDocuments("opendocuments");
constexpr QLatin1String Palettes("palettes");
constexpr QLatin1String TileSets("tilesets");
constexpr QLatin1String Maps("maps");
constexpr QLatin1String BlockSets("mapObjects");
constexpr QLatin1String SpriteBanks("sprites");
constexpr QLatin1String Images("images");
constexpr QLatin1String Animations("animations");
constexpr QLatin1String Frames("frames");

constexpr QSize DefaultScreenSize(320, 256);

template <class Asset, class Write>
QJsonArray writeAll(const QList<QPointer<Asset>> &assets, Write write)
{
    QJsonArray objects;
    for (const QPointer<Asset> &asset : assets)
        objects.append(write(*asset));
    return objects;
}

QJsonObject writeSettings(const Project &project)
{
    const QSize screen = project.screenSize();
    const QRect area = project.playArea();
    return {
        {Version, FormatVersion},
        {Id, project.id().toString()},
        {Name, project.name()},
        {ScreenSize, QJsonObject{{Width, screen.width()}, {Height, screen.height()}}},
        {PlayArea, QJsonObject{{X, area.x()}, {Y, area.y()}, {Width, area.width()}, {Height, area.height()}}},
        {ScratchPalette, project.scratchPaletteId().toString()},
    };
}

/// The open documents, each once: a document has one tab, and many ways to write its id.
QStringList readOpenDocuments(const QJsonArray &entries)
{
    QStringList documents;
    QSet<QString> known;
    for (const QJsonValue &entry : entries) {
        const QString document = entry.toString();
        const QUuid id = QUuid::fromString(document);
        const QString key = id.isNull() ? document : id.toString();
        if (!known.contains(key))
            documents.append(document);
        known.insert(key);
        if (documents.size() >= MaxObjects) // there are no more to open
            break;
    }
    return documents;
}

void readSettings(Project &project, const QJsonObject &document)
{
    const QJsonObject screen = document.value(ScreenSize).toObject();
    const QJsonObject area = document.value(PlayArea).toObject();
    project.setName(DocumentValue::name(document, Name));
    project.setId(DocumentValue::id(document, Id));
    project.setScreenSize({DocumentValue::coordinate(screen, Width, DefaultScreenSize.width()),
                           DocumentValue::coordinate(screen, Height, DefaultScreenSize.height())});
    project.setPlayArea({DocumentValue::coordinate(area, X), DocumentValue::coordinate(area, Y),
                         DocumentValue::coordinate(area, Width, DefaultScreenSize.width()),
                         DocumentValue::coordinate(area, Height, DefaultScreenSize.height())});
    project.setScratchPaletteId(DocumentValue::id(document, ScratchPalette));
    project.setOpenDocuments(readOpenDocuments(document.value(OpenDocuments).toArray()));
}

/// Reads one kind of asset; stops at the first that cannot be read.
template <class Read>
bool readAll(DocumentReader &reader, const QJsonValue &objects, Read read)
{
    for (const QJsonValue &object : objects.toArray()) {
        if (!read(reader, object.toObject()))
            return false;
    }
    return true;
}

/// Palettes come first, because the other assets bind them, tile sets before what is made of tiles.
bool readAssetsWithMembers(DocumentReader &reader, const QJsonObject &document)
{
    for (const QJsonValue &palette : document.value(Palettes).toArray())
        readPalette(reader, palette.toObject());
    return readAll(reader, document.value(TileSets), readTileSet) && readAll(reader, document.value(Maps), readMap)
        && readAll(reader, document.value(SpriteBanks), readSpriteBank)
        && readAll(reader, document.value(Images), readImage);
}

/// The scratch image keeps its own palette, or gets the first one when that is gone.
void readScratch(DocumentReader &reader)
{
    Project &project = reader.project;
    if (const auto palettes = project.palettes(); !project.scratchPalette() && !palettes.isEmpty())
        project.setScratchPalette(palettes.first());
    const QImage stored = reader.readPicture(ScratchMember, DocumentReader::Use::Pixels, false).image;
    if (stored.size() == project.scratchImage().size() && stored.depth() <= 8 && !stored.isNull())
        project.setScratchImage(NxImage::indexed(stored, nullptr));
}

/// Every placement names an animation of a block set, so this comes last.
void readBlockSets(DocumentReader &reader, const QJsonObject &document)
{
    for (const QJsonValue &blocks : document.value(BlockSets).toArray())
        readBlockSet(reader, blocks.toObject());
    const QList<QPointer<MapObjects>> blockSets = reader.project.blockSets();
    for (const QPointer<Map> &map : reader.project.maps())
        map->restampAnimations(blockSets);
}

/// Bytes that a JSON text and its values can take in memory, give or take what stands in names.
qint64 memoryFor(const QByteArray &text)
{
    const auto memoryOf = [](char c) {
        return c == ',' ? ValueMemory : c == ':' ? KeyMemory : c == '[' || c == '{' ? ContainerMemory : 0;
    };
    return std::accumulate(text.cbegin(), text.cend(), qint64(text.size()),
                           [memoryOf](qint64 sum, char c) { return sum + memoryOf(c); });
}

/// How many objects are to be made for the document: "{}" is enough to ask for one.
qsizetype objectsIn(const QJsonObject &document)
{
    qsizetype count = 0;
    for (const QLatin1String kind : {Palettes, TileSets, Maps, BlockSets, SpriteBanks, Images}) {
        for (const QJsonValue &asset : document.value(kind).toArray()) {
            ++count;
            for (const QJsonValue &animation : asset.toObject().value(Animations).toArray())
                count += 1 + animation.toObject().value(Frames).toArray().size();
        }
    }
    return count;
}

/// Bytes that PngReader takes for a pixel of a picture that is stored.
int bytesPerPixel(const QImage &picture)
{
    return picture.depth() <= 8 ? 1 : picture.depth() <= 32 ? 4 : 8;
}

/// Whether readers take what a member holds.
class Readability
{
public:
    [[nodiscard]] bool operator()(const ProjectMember &member)
    {
        return std::visit([&](const auto &content) { return isReadable(member.name, content); }, member.content);
    }

private:
    [[nodiscard]] bool isReadable(const QString &, const QJsonObject &document) const
    {
        const QByteArray text = textOf(document);
        if (text.size() > MaxDocument || memoryFor(text) > MaxMemory)
            return false;
        const bool canHoldTooMany = text.count('{') > MaxObjects; // else there is no need to look closely
        return !canHoldTooMany || objectsIn(document) <= MaxObjects;
    }
    [[nodiscard]] bool isReadable(const QString &name, const QImage &picture)
    {
        const qint64 bytes = qint64(picture.width()) * picture.height() * bytesPerPixel(picture);
        return PngMember::canHold(picture) && m_budget.takePixels(bytes, isTileSet(name), false);
    }
    [[nodiscard]] bool isReadable(const QString &, const ProjectMember::Cells &cells)
    {
        const qint64 bytes = TileMapFormat::sizeOf(cells.size);
        return bytes <= ZipFile::MaxMemberSize && m_budget.takeCells(false, [&cells](TileMapFormat::Budget &budget) {
            return TileMapFormat::takeRows(cells.rows, cells.size, budget);
        });
    }

    ReadingBudget m_budget;
};

bool isSame(const QJsonObject &a, const QJsonObject &b)
{
    const auto content = [](QJsonObject document) {
        document.remove(OpenDocuments);
        return document;
    };
    return content(a) == content(b);
}

bool isSame(const ProjectMember::Cells &a, const ProjectMember::Cells &b)
{
    return a.size == b.size && a.tileSetId == b.tileSetId && a.rows == b.rows;
}

/// What is stored of them: QImage itself compares the colours that pixels have, not the indices.
bool isSame(const QImage &a, const QImage &b)
{
    return a.cacheKey() == b.cacheKey() || KeptBlocks::pictureKey(a) == KeptBlocks::pictureKey(b);
}

QString invalidProject()
{
    return QCoreApplication::translate("ProjectDocument", "Invalid project file");
}

} // namespace

ProjectSnapshot snapshotOf(const Project &project, bool includeOpenDocuments)
{
    ProjectSnapshot members;
    QJsonObject document = writeSettings(project);
    if (includeOpenDocuments)
        document.insert(OpenDocuments, QJsonArray::fromStringList(project.openDocuments()));
    document.insert(Palettes, writeAll(project.palettes(), writePalette));
    document.insert(BlockSets, writeAll(project.blockSets(), writeBlockSet));
    const auto withMembers = [&members](auto write) {
        return [&members, write](const auto &asset) { return write(asset, members); };
    };
    document.insert(TileSets, writeAll(project.tileSets(), withMembers(writeTileSet)));
    document.insert(Maps, writeAll(project.maps(), withMembers(writeMap)));
    document.insert(SpriteBanks, writeAll(project.spriteBanks(), withMembers(writeSpriteBank)));
    document.insert(Images, writeAll(project.images(), withMembers(writeImage)));
    members.append({DocumentMember, document});
    members.append({ScratchMember, project.scratchImage()});
    std::sort(members.begin(), members.end(),
              [](const ProjectMember &a, const ProjectMember &b) { return a.name < b.name; });
    return members;
}

bool haveSameContent(const ProjectSnapshot &a, const ProjectSnapshot &b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), [](const ProjectMember &x, const ProjectMember &y) {
        return x.name == y.name
            && std::visit(
                   [](const auto &c, const auto &d) {
                       if constexpr (std::is_same_v<decltype(c), decltype(d)>)
                           return isSame(c, d);
                       else
                           return false;
                   },
                   x.content, y.content);
    });
}

ProjectMembers serializeProject(const Project &project, bool includeOpenDocuments)
{
    ProjectMembers members;
    const ProjectSnapshot snapshot = snapshotOf(project, includeOpenDocuments);
    for (const ProjectMember &member : snapshot)
        members.insert(member.name, member.bytes());
    return members;
}

QString unreadableMember(const ProjectSnapshot &snapshot)
{
    const auto refused = std::find_if_not(snapshot.cbegin(), snapshot.cend(), Readability());
    return refused == snapshot.cend() ? QString() : refused->name;
}

bool readProject(Project &project, const MemberReader &read, QString &error)
{
    const MemberOpener members = [&read](const QString &member) -> std::unique_ptr<QIODevice> {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(read(member));
        buffer->open(QIODevice::ReadOnly);
        return buffer;
    };
    return readProject(project, members, error);
}

bool readProject(Project &project, const MemberOpener &members, QString &error)
{
    error.clear();
    DocumentReader reader{project, members, error};
    QByteArray text = reader.readAll(DocumentMember, MaxDocument);
    if (text.isEmpty() || memoryFor(text) > MaxMemory)
        return reader.fail(invalidProject());
    const QJsonObject document = QJsonDocument::fromJson(text).object(); // empty when the text is no JSON
    text.clear();
    if (document.value(Version).toInteger(OldestVersion) > FormatVersion)
        return reader.fail(
            QCoreApplication::translate("ProjectDocument", "Project file is from a newer version of Quenmora"));
    if (objectsIn(document) > MaxObjects)
        return reader.fail(invalidProject());
    readSettings(project, document);
    if (!readAssetsWithMembers(reader, document))
        return false;
    readScratch(reader);
    readBlockSets(reader, document);
    return true;
}
