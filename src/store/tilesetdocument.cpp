#include "store/tilesetdocument.h"

#include "model/palette.h"
#include "model/project.h"
#include "model/tileset.h"
#include "store/documentreader.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>

namespace {

constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String HiRes("hires");
constexpr QLatin1String BoundPalette("palette");
constexpr QLatin1String Count("count");
constexpr QLatin1String Offsets("offsets");
constexpr QLatin1String Tiles("tiles");
constexpr QLatin1String TileOffset("offset");
constexpr QLatin1String TileAttributes("attributes");
constexpr QLatin1String TileValue("value");

constexpr int DefaultCount = 512;

QString stripMember(const QUuid &id)
{
    return QStringLiteral("tileset/%1.png").arg(id.toString());
}

void readTiles(TileSet &tileSet, const QJsonArray &offsets, const QJsonArray &tiles)
{
    const auto countOf = [&](const QJsonArray &array) {
        return int(std::min<qsizetype>(array.size(), tileSet.count()));
    };
    for (int index = 0; index < countOf(offsets); ++index)
        tileSet.tile(index)->setOffset(offsets.at(index).toInt());
    for (int index = 0; index < countOf(tiles); ++index) {
        const QJsonObject stored = tiles.at(index).toObject();
        Tile *tile = tileSet.tile(index);
        tile->setOffset(stored.value(TileOffset).toInt());
        tile->setAttributes(stored.value(TileAttributes).toInt());
        tile->setValue(stored.value(TileValue).toInt());
    }
}

} // namespace

bool isTileSet(const QString &memberName)
{
    return memberName.startsWith(QLatin1String("tileset/"));
}

QJsonObject writeTileSet(const TileSet &tileSet, ProjectSnapshot &members)
{
    QJsonArray offsets;
    QJsonArray tiles;
    for (int index = 0; index < tileSet.count(); ++index) {
        const Tile *tile = tileSet.tile(index);
        offsets.append(tile->offset());
        tiles.append(QJsonObject{
            {TileOffset, tile->offset()},
            {TileAttributes, tile->attributes()},
            {TileValue, tile->value()},
        });
    }
    if (tileSet.count() > 0) // else there is no picture
        members.append({stripMember(tileSet.id()), tileSet.toStrip()});
    return {
        {Id, tileSet.id().toString()},
        {Name, tileSet.name()},
        {HiRes, tileSet.hiRes()},
        {BoundPalette, DocumentValue::reference(tileSet.paletteId())},
        {Count, tileSet.count()},
        {Offsets, offsets},
        {Tiles, tiles},
    };
}

bool readTileSet(DocumentReader &reader, const QJsonObject &object)
{
    const QUuid id = DocumentValue::idOrNew(object, Id);
    const QString name = DocumentValue::name(object, Name);
    const int count = object.value(Count).toInt(DefaultCount);
    const bool again = DocumentReader::makeRoom(reader.project.tileSet(id));
    const auto strip = reader.readPicture(stripMember(id), DocumentReader::Use::Tiles, again);
    if (!strip.isThere && count != 0) // a set without tiles has no picture
        return reader.fail(
            QCoreApplication::translate("ProjectDocument", "Failed to load tile set tileImage \"%1\" from project file")
                .arg(stripMember(id)));

    // The tiles are made only when there is a picture for each of them: the count may be any number.
    const bool fits = count >= 0 && strip.image.height() == qint64(count) * Tile::Size;
    auto *tileSet = new TileSet(fits ? count : 0, &reader.project);
    if (!fits || (count > 0 && !tileSet->setStrip(strip.image)))
        return reader.fail(
            QCoreApplication::translate("ProjectDocument", "Error setting tile set anim - %1").arg(name));
    tileSet->setId(id);
    tileSet->setName(name);
    tileSet->setHiRes(object.value(HiRes).toBool());
    readTiles(*tileSet, object.value(Offsets).toArray(), object.value(Tiles).toArray());
    tileSet->setPalette(reader.project.palette(DocumentValue::id(object, BoundPalette)));
    reader.project.addTileSet(tileSet);
    return true;
}
