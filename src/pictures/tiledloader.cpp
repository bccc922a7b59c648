#include "pictures/tiledloader.h"

#include "pictures/tiledjson.h"
#include "pictures/tiledxml.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

using ForeignFile::Texts;

namespace {

constexpr int MaxSide = 1 << 20; ///< cells or pixels
constexpr int MaxPlace = 1 << 28;
constexpr qint64 LargestGid = 0xFFFFFFFF;

std::optional<QRgb> transparentColour(const QString &text)
{
    const QString digits = text.startsWith(QLatin1Char('#')) ? text.sliced(1) : text;
    bool isNumber = false;
    const uint colour = digits.toUInt(&isNumber, 16);
    return isNumber ? std::optional<QRgb>(colour) : std::nullopt;
}

} // namespace

Result<TiledMap> TiledLoader::readMap(const QString &fileName)
{
    readFile(fileName, true);
    if (!hasFailed())
        joinChunks();
    if (!hasFailed())
        readPictures();
    if (hasFailed())
        return Failure{m_problem};
    finishObjects();
    m_map.remarks = m_remarks.texts();
    return std::move(m_map);
}

Result<TiledTileSet> TiledLoader::readTileSet(const QString &fileName)
{
    readFile(fileName, false);
    if (!hasFailed())
        readPictures();
    if (hasFailed())
        return Failure{m_problem};
    TiledTileSet tileSet = m_map.tileSets.takeFirst();
    tileSet.remarks = m_remarks.texts();
    return tileSet;
}

void TiledLoader::fail(const QString &reason)
{
    if (m_problem.isEmpty())
        m_problem = reason;
}

void TiledLoader::readFile(const QString &fileName, bool isMap)
{
    const auto bytes = ForeignFile::readAll(fileName, m_bytesLeft);
    if (!bytes)
        return fail(bytes.reason());
    m_bytesLeft -= bytes->size();
    if (TiledJson::recognises(*bytes))
        TiledJson(*bytes, *this).read(isMap);
    else
        TiledXml(*bytes, *this).read(isMap);
}

qint64 TiledLoader::number(const TiledAttributes &attributes, const char *name, qint64 otherwise, qint64 least,
                           qint64 most)
{
    const QVariant told = attributes.value(name);
    if (!told.isValid())
        return otherwise;
    bool isNumber = false;
    const double value = told.toDouble(&isNumber);
    if (isNumber && value == std::floor(value) && value >= double(least) && value <= double(most))
        return qint64(value);
    fail(Texts::tr("“%1” is “%2”, and can be %3 to %4")
             .arg(QLatin1String(name), told.toString().left(40), QString::number(least), QString::number(most)));
    return otherwise;
}

double TiledLoader::real(const TiledAttributes &attributes, const char *name, double otherwise)
{
    const QVariant told = attributes.value(name);
    if (!told.isValid())
        return otherwise;
    bool isNumber = false;
    const double value = told.toDouble(&isNumber);
    if (isNumber && std::isfinite(value) && std::abs(value) <= MaxPlace)
        return value;
    fail(Texts::tr("“%1” is “%2”, which is no number that it can be")
             .arg(QLatin1String(name), told.toString().left(40)));
    return otherwise;
}

void TiledLoader::beginMap(const TiledAttributes &map)
{
    const QString orientation = map.text("orientation");
    if (!orientation.isEmpty() && orientation != QLatin1String("orthogonal"))
        fail(Texts::tr("It is a map of the kind “%1”; only “orthogonal” ones can be read").arg(orientation));
    m_isInfinite = map.flag("infinite");
    const int least = m_isInfinite ? 0 : 1;
    m_map.size = {int(number(map, "width", 0, least, MaxSide)), int(number(map, "height", 0, least, MaxSide))};
    m_map.tileSize = {int(number(map, "tilewidth", 8, 1, MaxSide)), int(number(map, "tileheight", 8, 1, MaxSide))};
    if (!m_isInfinite && m_map.size.isEmpty())
        fail(Texts::tr("It says no width and height"));
    if (qint64(m_map.size.width()) * m_map.size.height() > TiledMap::MaxCells) {
        fail(Texts::tr("It has %1 × %2 cells; at most %3 million can be read")
                 .arg(m_map.size.width())
                 .arg(m_map.size.height())
                 .arg(TiledMap::MaxCells / 1'000'000));
    }
}

TiledLoader::Group TiledLoader::nested(const TiledAttributes &layer)
{
    const Group around = m_groups.empty() ? Group() : m_groups.back();
    return {around.offset + QPointF(real(layer, "offsetx", 0), real(layer, "offsety", 0)),
            around.opacity * std::clamp(real(layer, "opacity", 1), 0.0, 1.0),
            around.visible && layer.flag("visible", true)};
}

void TiledLoader::beginGroup(const TiledAttributes &group)
{
    m_groups.push_back(nested(group));
}

void TiledLoader::beginLayer(const TiledAttributes &attributes)
{
    const Group group = nested(attributes);
    TiledMap::Layer layer;
    layer.name = attributes.text("name");
    layer.offset = group.offset;
    layer.opacity = group.opacity;
    layer.visible = group.visible;
    if (!m_isInfinite) {
        m_layerArea = {int(number(attributes, "x", 0, -MaxSide, MaxSide)),
                       int(number(attributes, "y", 0, -MaxSide, MaxSide)),
                       int(number(attributes, "width", m_map.size.width(), 0, MaxSide)),
                       int(number(attributes, "height", m_map.size.height(), 0, MaxSide))};
    }
    if (m_map.layers.size() >= MaxLayers)
        fail(Texts::tr("It has more than %1 layers").arg(MaxLayers));
    else
        m_map.layers.append(layer);
}

bool TiledLoader::takeCells(qint64 width, qint64 height)
{
    m_cellsLeft -= std::min(width * height, TiledMap::MaxCells + 1);
    if (m_cellsLeft < 0)
        fail(Texts::tr("Its layers have more than %1 million cells together").arg(TiledMap::MaxCells / 1'000'000));
    return !hasFailed();
}

TiledCells TiledLoader::beginCells(const TiledAttributes *chunk, const QString &encoding, const QString &compression)
{
    m_cellsArea = m_layerArea;
    if (chunk) {
        m_cellsArea = {int(number(*chunk, "x", 0, -MaxPlace, MaxPlace)),
                       int(number(*chunk, "y", 0, -MaxPlace, MaxPlace)), int(number(*chunk, "width", 0, 1, MaxSide)),
                       int(number(*chunk, "height", 0, 1, MaxSide))};
    }
    if (hasFailed() || !takeCells(m_cellsArea.width(), m_cellsArea.height()))
        m_cellsArea = {};
    return {qint64(m_cellsArea.width()) * m_cellsArea.height(), encoding, compression};
}

void TiledLoader::endCells(TiledCells &cells)
{
    if (hasFailed())
        return;
    auto gids = cells.finish();
    if (!gids)
        return fail(Texts::tr("The layer “%1”: %2").arg(m_map.layers.constLast().name, gids.reason()));
    if (m_isInfinite) {
        m_chunks.push_back({m_map.layers.size() - 1, m_cellsArea, *std::move(gids)});
        return;
    }
    m_map.layers.last().area = m_cellsArea;
    m_map.layers.last().gids = *std::move(gids);
}

void TiledLoader::addImageLayer(const TiledAttributes &layer)
{
    m_remarks.add(Texts::tr("The image layer “%1” is left out").arg(layer.text("name")));
}

void TiledLoader::beginObjects(const TiledAttributes &layer)
{
    m_objects = nested(layer);
    m_objectLayer = layer.text("name");
}

void TiledLoader::addObject(const TiledAttributes &attributes)
{
    TiledMap::Object object;
    object.name = attributes.text("name");
    object.type = attributes.text(attributes.has("class") ? "class" : "type");
    object.layer = m_objectLayer;
    object.topLeft = m_objects.offset + QPointF(real(attributes, "x", 0), real(attributes, "y", 0));
    object.size = {real(attributes, "width", 0), real(attributes, "height", 0)};
    object.rotation = real(attributes, "rotation", 0);
    object.gid = quint32(number(attributes, "gid", 0, 0, LargestGid));
    object.shape = object.gid > 0 ? TiledMap::Shape::Tile : TiledMap::Shape::Rectangle;
    object.visible = m_objects.visible && attributes.flag("visible", true);
    if (attributes.has("template"))
        m_remarks.add(Texts::tr("Objects made from templates lack what their template says"));
    if (m_map.objects.size() >= TiledMap::MaxObjects)
        fail(Texts::tr("It has more than %1 objects").arg(TiledMap::MaxObjects));
    else
        m_map.objects.append(object);
}

void TiledLoader::setShape(TiledMap::Shape shape)
{
    if (!hasFailed())
        m_map.objects.last().shape = shape;
}

void TiledLoader::addProperty(const QString &name, const QString &type, const QVariant &value)
{
    if (++m_propertyCount > MaxProperties)
        fail(Texts::tr("Its objects have more than %1 properties").arg(MaxProperties));
    if (hasFailed())
        return;
    QVariant typed = value.toString();
    if (type == QLatin1String("bool"))
        typed = value.toBool();
    else if (type == QLatin1String("int") || type == QLatin1String("object"))
        typed = value.toInt();
    else if (type == QLatin1String("float"))
        typed = value.toDouble();
    m_map.objects.last().properties.insert(name, typed);
}

void TiledLoader::addTileSet(const TiledAttributes &attributes)
{
    const bool isElsewhere = m_fileDepth == 0 && attributes.has("source");
    if (m_fileDepth == 0) {
        if (m_map.tileSets.size() >= MaxTileSets)
            fail(Texts::tr("It has more than %1 tile sets").arg(MaxTileSets));
        m_map.tileSets.emplace_back();
        m_map.tileSets.last().firstGid = quint32(number(attributes, "firstgid", 1, 1, LargestTile));
    }
    if (isElsewhere && !hasFailed())
        return readElsewhere(attributes.text("source"));
    TiledTileSet &tileSet = m_map.tileSets.last();
    tileSet.name = attributes.text("name");
    tileSet.tileSize = {int(number(attributes, "tilewidth", 0, 0, MaxSide)),
                        int(number(attributes, "tileheight", 0, 0, MaxSide))};
    tileSet.count = int(number(attributes, "tilecount", 0, 0, LargestTile));
    tileSet.columns = int(number(attributes, "columns", 0, 0, MaxSide));
    tileSet.margin = int(number(attributes, "margin", 0, 0, MaxSide));
    tileSet.spacing = int(number(attributes, "spacing", 0, 0, MaxSide));
    if (attributes.has("image")) // as JSON has it
        addPicture(attributes.text("image"), attributes.text("transparentcolor"));
}

void TiledLoader::readElsewhere(const QString &source)
{
    const TiledFolder::Place place = m_folder.locate(m_currentFolder, source);
    TiledTileSet &tileSet = m_map.tileSets.last();
    tileSet.name = QFileInfo(source).completeBaseName();
    if (place.isOutside) {
        tileSet.outside.append(place.name);
        tileSet.problems.append(Texts::tr("“%1” is not in the file's folder").arg(place.name));
        return;
    }
    if (place.path.isEmpty()) {
        tileSet.problems.append(Texts::tr("“%1” is not there").arg(place.name));
        return;
    }
    const TiledTileSet before = tileSet;
    const size_t picturesBefore = m_pictures.size();
    const QString folder = std::exchange(m_currentFolder, QFileInfo(place.path).absolutePath());
    ++m_fileDepth;
    readFile(place.path, false);
    --m_fileDepth;
    m_currentFolder = folder;
    if (!hasFailed())
        return;
    // the cells can be read nevertheless
    m_map.tileSets.last() = before;
    m_map.tileSets.last().problems.append(Texts::tr("“%1”: %2").arg(place.name, std::exchange(m_problem, {})));
    m_pictures.resize(picturesBefore);
}

void TiledLoader::addPicture(const QString &source, const QString &transparent)
{
    addTilePicture({m_map.tileSets.size() - 1, -1, m_currentFolder, source, transparentColour(transparent)});
}

void TiledLoader::addTilePicture(qint64 tile, const QString &source, const QString &transparent)
{
    addTilePicture({m_map.tileSets.size() - 1, tile, m_currentFolder, source, transparentColour(transparent)});
}

void TiledLoader::addTilePicture(Picture picture)
{
    if (picture.source.isEmpty()) {
        if (m_map.tileSets.last().problems.isEmpty())
            m_map.tileSets.last().problems.append(Texts::tr("Pictures inside the file cannot be read"));
    } else if (m_pictures.size() >= MaxTilePictures) {
        fail(Texts::tr("Its tile sets have more than %1 pictures").arg(MaxTilePictures));
    } else {
        m_pictures.push_back(std::move(picture));
    }
}

void TiledLoader::addFrame(qint64 tile, const TiledAttributes &frame)
{
    if (++m_frameCount > MaxFrames)
        fail(Texts::tr("Its animations have more than %1 frames").arg(MaxFrames));
    const qint64 shown = number(frame, "tileid", 0, 0, LargestTile);
    const qint64 duration = number(frame, "duration", 0, 0, MaxPlace);
    if (!hasFailed())
        m_map.tileSets.last().animations[int(tile)].append({int(shown), int(duration)});
}
