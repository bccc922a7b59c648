#include "store/blocksetdocument.h"

#include "model/mapobjects.h"
#include "model/project.h"
#include "model/tileset.h"
#include "store/documentreader.h"
#include "store/framedocument.h"

#include <QJsonArray>

namespace {

constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String BoundTileSet("tiles");
constexpr QLatin1String Animations("animations");
constexpr QLatin1String Width("width");
constexpr QLatin1String Height("height");
constexpr QLatin1String Delay("delay");
constexpr QLatin1String Type("type");
constexpr QLatin1String Frames("frames");
constexpr QLatin1String FrameCells("tileData");

QJsonObject writeAnimation(const TileAnimation &animation)
{
    return {
        {Id, animation.id().toString()},
        {Name, animation.name()},
        {Width, animation.size().width()},
        {Height, animation.size().height()},
        {Delay, animation.delay()},
        {Type, int(animation.type())},
        {Frames, FrameDocument::write(animation, FrameCells)},
    };
}

void readAnimation(DocumentReader &reader, MapObjects &blocks, const QJsonObject &object)
{
    const QPointer<TileAnimation> animation =
        blocks.createTileAnimation(DocumentValue::id(object, Id), object.value(Name).toString());
    const QJsonArray frames = object.value(Frames).toArray();
    animation->setSize(FrameDocument::readSize(reader, object, frames, FrameCells, 0));
    animation->setDelay(DocumentValue::delay(object, Delay));
    animation->setMapObjectType(
        DocumentValue::enumerator(object, Type, MapObjectType::HorizontalPlatform, MapObjectType::Normal));
    FrameDocument::read(*animation, frames, FrameCells, FrameDocument::FrameIds::Restored);
}

} // namespace

QJsonObject writeBlockSet(const MapObjects &blocks)
{
    QJsonArray animations;
    for (const QPointer<TileAnimation> &animation : blocks.animations())
        animations.append(writeAnimation(*animation));
    return {
        {Id, blocks.id().toString()},
        {Name, blocks.name()},
        {BoundTileSet, blocks.tileSet() ? blocks.tileSet()->id().toString() : QString()},
        {Animations, animations},
    };
}

void readBlockSet(DocumentReader &reader, const QJsonObject &object)
{
    auto *blocks = new MapObjects(&reader.project);
    blocks->setId(DocumentValue::id(object, Id));
    blocks->setName(object.value(Name).toString());
    blocks->setTileSet(reader.project.tileSet(DocumentValue::id(object, BoundTileSet)));
    for (const QJsonValue &animation : object.value(Animations).toArray())
        readAnimation(reader, *blocks, animation.toObject());
    reader.project.addBlocks(blocks);
}
