#include "store/mapdocument.h"

#include "model/animatedblocks.h"
#include "model/animation.h"
#include "model/map.h"
#include "model/project.h"
#include "model/tilemap.h"
#include "model/tileset.h"
#include "store/documentreader.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace {

constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String BoundTileSet("tileset");
constexpr QLatin1String TileTransparency("tile_transparency");
constexpr QLatin1String GridVisible("grid_visible");
constexpr QLatin1String BackgroundTileIndex("backgroundTileIndex");
constexpr QLatin1String TileLayerVisible("tileLayerVisible");
constexpr QLatin1String ObjectLayerVisible("objectLayerVisible");
constexpr QLatin1String SpriteLayerVisible("spriteLayerVisible");
constexpr QLatin1String Animations("animations");
constexpr QLatin1String Sprites("sprites");

constexpr QLatin1String X("x");
constexpr QLatin1String Y("y");
constexpr QLatin1String Width("width");
constexpr QLatin1String Height("height");
constexpr QLatin1String InitialDelay("initialDelay");
constexpr QLatin1String RepeatDelay("repeatDelay");
constexpr QLatin1String StartFrame("startFrame");

constexpr QLatin1String Bank("bank");
constexpr QLatin1String SpriteAnimation("animation");
constexpr QLatin1String Sprite("sprite");
constexpr QLatin1String Mirror("mirror");
constexpr QLatin1String Flip("flip");
constexpr QLatin1String Rotate("rotate");
constexpr QLatin1String PaletteOffset("paletteOffset");

QString cellsMember(const QUuid &id)
{
    return QStringLiteral("tilemap/%1").arg(id.toString());
}

QJsonObject writePlacement(const AnimationProperties &placement)
{
    const QRect area = placement.area();
    return {
        {Id, placement.animationId().toString()},
        {X, area.x()},
        {Y, area.y()},
        {Width, area.width()},
        {Height, area.height()},
        {InitialDelay, placement.initialDelay()},
        {RepeatDelay, placement.repeatDelay()},
        {StartFrame, placement.startFrame()},
    };
}

AnimationProperties::State readPlacement(const QJsonObject &object)
{
    // No animation is larger, and an area that is would be stamped at any size that the file likes.
    const auto side = [&](QLatin1String key) {
        return DocumentValue::integer(object, key, 0, Animation::MaximumSide, 0);
    };
    AnimationProperties::State placement;
    placement.animationId = DocumentValue::id(object, Id);
    placement.area =
        QRect(DocumentValue::coordinate(object, X), DocumentValue::coordinate(object, Y), side(Width), side(Height));
    placement.initialDelay = object.value(InitialDelay).toInt();
    placement.repeatDelay = object.value(RepeatDelay).toInt();
    placement.startFrame = object.value(StartFrame).toInt();
    return placement;
}

QJsonObject writeSprite(const Map::PlacedSprite &sprite)
{
    return {
        {Bank, sprite.bank.toString()},
        {SpriteAnimation, sprite.animation.toString()},
        {Sprite, sprite.sprite},
        {X, sprite.x},
        {Y, sprite.y},
        {Mirror, sprite.mirror},
        {Flip, sprite.flip},
        {Rotate, sprite.rotate},
        {StartFrame, sprite.startFrame},
        {InitialDelay, sprite.initialDelay},
        {RepeatDelay, sprite.repeatDelay},
        {PaletteOffset, sprite.paletteOffset},
        {Name, sprite.name},
    };
}

Map::PlacedSprite readSprite(const QJsonObject &object)
{
    Map::PlacedSprite sprite;
    sprite.bank = DocumentValue::id(object, Bank);
    sprite.animation = DocumentValue::id(object, SpriteAnimation);
    sprite.sprite = object.value(Sprite).toInt(-1);
    sprite.x = DocumentValue::coordinate(object, X);
    sprite.y = DocumentValue::coordinate(object, Y);
    sprite.mirror = object.value(Mirror).toBool();
    sprite.flip = object.value(Flip).toBool();
    sprite.rotate = object.value(Rotate).toBool();
    sprite.startFrame = object.value(StartFrame).toInt();
    sprite.initialDelay = object.value(InitialDelay).toInt();
    sprite.repeatDelay = object.value(RepeatDelay).toInt();
    sprite.paletteOffset = object.value(PaletteOffset).toInt();
    sprite.name = DocumentValue::name(object, Name);
    return sprite;
}

/// What the map itself holds, without its layers.
void readContent(Map &map, const QJsonObject &object)
{
    map.setTileTransparencyIndex(object.value(TileTransparency).toInt(-1));
    map.setGridVisible(object.value(GridVisible).toBool(true));
    map.setBackgroundTileIndex(object.value(BackgroundTileIndex).toInt(-1));
    map.setSpriteLayerVisible(object.value(SpriteLayerVisible).toBool(true));
    AnimatedBlocks *blocks = map.animatedBlocks();
    for (const QJsonValue &value : object.value(Animations).toArray()) {
        if (const QJsonObject placement = value.toObject(); !placement.isEmpty())
            blocks->append(new AnimationProperties(readPlacement(placement), blocks));
    }
    for (const QJsonValue &sprite : object.value(Sprites).toArray())
        map.addSprite(readSprite(sprite.toObject()));
}

/// As DocumentReader::makeRoom(), with the layers, which are the project's.
bool freeMap(const QPointer<Map> &earlier)
{
    if (earlier) {
        delete earlier->tileLayer().data();
        delete earlier->objectLayer().data();
    }
    return DocumentReader::makeRoom(earlier);
}

} // namespace

QJsonObject writeMap(const Map &map, ProjectSnapshot &members)
{
    const QPointer<TileMap> tiles = map.tileLayer();
    const QPointer<TileMap> objects = map.objectLayer();
    ProjectMember::Cells cells;
    if (tiles)
        cells = {tiles->size(), tiles->rows(), tiles->tileSet() ? tiles->tileSet()->id() : QUuid()};
    members.append({cellsMember(map.id()), cells});

    QJsonArray placements;
    for (const QPointer<AnimationProperties> &placement : map.animatedBlocks()->list())
        placements.append(writePlacement(*placement));
    QJsonArray sprites;
    for (const Map::PlacedSprite &sprite : map.sprites())
        sprites.append(writeSprite(sprite));
    return {
        {Id, map.id().toString()},
        {Name, map.name()},
        {BoundTileSet, map.tileSetId().toString()},
        {TileTransparency, map.tileTransparencyIndex()},
        {GridVisible, map.gridVisible()},
        {BackgroundTileIndex, map.backgroundTileIndex()},
        {TileLayerVisible, tiles && tiles->isVisible()},
        {ObjectLayerVisible, objects && objects->isVisible()},
        {SpriteLayerVisible, map.spriteLayerVisible()},
        {Animations, placements},
        {Sprites, sprites},
    };
}

bool readMap(DocumentReader &reader, const QJsonObject &object)
{
    const QUuid id = DocumentValue::idOrNew(object, Id);
    const bool again = freeMap(reader.project.map(id));
    auto *map = new Map(DocumentValue::name(object, Name), &reader.project);
    map->setId(id);
    readContent(*map, object);
    const auto rows = reader.readCells(cellsMember(id), again);
    if (!rows)
        return reader.fail(
            QCoreApplication::translate("ProjectDocument", "Failed to load tile map anim for map %1").arg(map->name()));
    auto *tiles = new TileMap(0, 0, &reader.project);
    tiles->restore(*rows);
    tiles->setVisible(object.value(TileLayerVisible).toBool(true));
    auto *objects = new TileMap(tiles->size(), &reader.project);
    objects->setVisible(object.value(ObjectLayerVisible).toBool(false));
    map->setLayers(tiles, objects);
    if (const auto tileSet = reader.project.tileSet(DocumentValue::id(object, BoundTileSet)))
        map->setTileSet(tileSet);
    reader.project.addMap(map);
    return true;
}
