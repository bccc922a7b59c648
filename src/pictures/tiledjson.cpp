#include "pictures/tiledjson.h"

#include <QJsonDocument>

#include <algorithm>
#include <iterator>
#include <limits>

using ForeignFile::Texts;

namespace {

/// The value of a key, where it is an array or object. (A literal for each key would be no shorter.)
QJsonValue valueOf(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key));
}

} // namespace

bool TiledJson::recognises(const QByteArray &start)
{
    const QByteArray text = start.left(64).trimmed();
    return text.startsWith('{') || text.startsWith("\xef\xbb\xbf{");
}

bool TiledJson::mayBe(const QByteArray &start, bool isMap)
{
    constexpr const char *OfMaps[] = {"\"infinite\"", "\"layers\"", "\"orientation\"", "\"nextlayerid\""};
    constexpr const char *OfTileSets[] = {"\"columns\"", "\"tilecount\"", "\"firstgid\""};
    const auto isIn = [&start](const char *key) { return start.contains(key); };
    const bool looksLikeMap = std::any_of(std::begin(OfMaps), std::end(OfMaps), isIn);
    return isMap ? looksLikeMap : !looksLikeMap && std::any_of(std::begin(OfTileSets), std::end(OfTileSets), isIn);
}

QString TiledJson::whyUnsafe() const
{
    constexpr qint64 MostValues = 4 << 20;
    constexpr qint64 MostLists = 1 << 18;
    qint64 values = 0;
    qint64 lists = 0;
    bool isInText = false;
    for (qsizetype at = 0; at < m_bytes.size(); ++at) {
        const char character = m_bytes[at];
        if (isInText) {
            at += character == '\\' ? 1 : 0;
            isInText = character != '"';
        } else if (character == '"') {
            isInText = true;
        } else if (character == '[' || character == '{') {
            ++lists;
        } else if (character == ',' || character == ':') {
            ++values;
        }
    }
    if (values + lists > MostValues)
        return Texts::tr("It has more than %1 million numbers; with cells written as Base64 it has fewer")
            .arg(MostValues / 1'000'000);
    return lists > MostLists ? Texts::tr("It has more than %1 lists and objects").arg(MostLists) : QString();
}

void TiledJson::read(bool isMap)
{
    if (const QString reason = whyUnsafe(); !reason.isEmpty())
        return m_loader.fail(reason);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(std::exchange(m_bytes, {}), &error);
    if (error.error != QJsonParseError::NoError)
        return m_loader.fail(Texts::tr("Byte %1: %2").arg(error.offset).arg(error.errorString()));
    const QJsonObject object = document.object();
    const QString type = valueOf(object, "type").toString();
    if (!type.isEmpty() && type != QLatin1String(isMap ? "map" : "tileset"))
        return m_loader.fail(
            Texts::tr("“%1” stands where “%2” does").arg(type, QLatin1String(isMap ? "map" : "tileset")));
    if (isMap)
        readMap(object);
    else
        readTileSet(object);
}

void TiledJson::readMap(const QJsonObject &map)
{
    m_loader.beginMap(TiledAttributes(map));
    for (const QJsonValue tileSet : valueOf(map, "tilesets").toArray())
        readTileSet(tileSet.toObject());
    readLayers(valueOf(map, "layers").toArray(), 0);
}

void TiledJson::readLayers(const QJsonArray &layers, int depth)
{
    if (depth > TiledLoader::MaxDepth)
        m_loader.fail(Texts::tr("there are too many groups in each other"));
    for (qsizetype i = 0; i < layers.size() && !m_loader.hasFailed(); ++i) {
        const QJsonObject layer = layers.at(i).toObject();
        const TiledAttributes attributes(layer);
        const QString type = attributes.text("type");
        if (type == QLatin1String("tilelayer")) {
            readLayer(layer);
        } else if (type == QLatin1String("objectgroup")) {
            readObjects(layer);
        } else if (type == QLatin1String("imagelayer")) {
            m_loader.addImageLayer(attributes);
        } else if (type == QLatin1String("group")) {
            m_loader.beginGroup(attributes);
            readLayers(valueOf(layer, "layers").toArray(), depth + 1);
            m_loader.endGroup();
        }
    }
}

void TiledJson::readLayer(const QJsonObject &layer)
{
    m_loader.beginLayer(TiledAttributes(layer));
    if (!m_loader.isInfinite())
        return readCells(valueOf(layer, "data"), nullptr, layer);
    const QJsonArray chunks = valueOf(layer, "chunks").toArray();
    for (qsizetype i = 0; i < chunks.size() && !m_loader.hasFailed(); ++i) {
        const QJsonObject chunk = chunks.at(i).toObject();
        readCells(valueOf(chunk, "data"), &chunk, layer);
    }
}

void TiledJson::readCells(const QJsonValue &data, const QJsonObject *chunk, const QJsonObject &layer)
{
    const std::optional<TiledAttributes> place = chunk ? std::optional<TiledAttributes>(*chunk) : std::nullopt;
    const QString encoding = data.isString() ? valueOf(layer, "encoding").toString() : QString();
    TiledCells cells =
        m_loader.beginCells(place ? &*place : nullptr, encoding, valueOf(layer, "compression").toString());
    if (data.isString()) {
        cells.add(data.toString());
    } else {
        for (const QJsonValue value : data.toArray()) {
            const qint64 gid = value.toInteger(-1);
            const bool isGid = gid >= 0 && gid <= std::numeric_limits<quint32>::max();
            cells.add(isGid ? std::optional(quint32(gid)) : std::nullopt);
        }
    }
    m_loader.endCells(cells);
}

void TiledJson::readObjects(const QJsonObject &layer)
{
    m_loader.beginObjects(TiledAttributes(layer));
    const QJsonArray objects = valueOf(layer, "objects").toArray();
    for (qsizetype i = 0; i < objects.size() && !m_loader.hasFailed(); ++i) {
        const QJsonObject object = objects.at(i).toObject();
        m_loader.addObject(TiledAttributes(object));
        const auto has = [&object](const char *key) { return object.contains(QLatin1String(key)); };
        if (valueOf(object, "point").toBool())
            m_loader.setShape(TiledMap::Shape::Point);
        else if (valueOf(object, "ellipse").toBool() || has("polygon") || has("polyline") || has("text"))
            m_loader.setShape(TiledMap::Shape::Other);
        readProperties(valueOf(object, "properties"), valueOf(object, "propertytypes").toObject());
    }
}

/// A list of objects; an object with their types beside it in files of old.
void TiledJson::readProperties(const QJsonValue &properties, const QJsonObject &types)
{
    for (const QJsonValue value : properties.toArray()) {
        const QJsonObject property = value.toObject();
        m_loader.addProperty(valueOf(property, "name").toString(), valueOf(property, "type").toString(),
                             valueOf(property, "value").toVariant());
    }
    const QJsonObject old = properties.toObject();
    for (auto property = old.begin(); property != old.end(); ++property)
        m_loader.addProperty(property.key(), types.value(property.key()).toString(), property.value().toVariant());
}

void TiledJson::readTileSet(const QJsonObject &tileSet)
{
    m_loader.addTileSet(TiledAttributes(tileSet));
    const QJsonArray tiles = valueOf(tileSet, "tiles").toArray();
    for (qsizetype i = 0; i < tiles.size() && !m_loader.hasFailed(); ++i) {
        const QJsonObject tile = tiles.at(i).toObject();
        const TiledAttributes attributes(tile);
        const qint64 id = m_loader.number(attributes, "id", 0, 0, TiledLoader::LargestTile);
        if (attributes.has("image"))
            m_loader.addTilePicture(id, attributes.text("image"), QString());
        for (const QJsonValue frame : valueOf(tile, "animation").toArray())
            m_loader.addFrame(id, TiledAttributes(frame.toObject()));
    }
}
