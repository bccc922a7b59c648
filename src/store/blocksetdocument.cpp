#include "store/blocksetdocument.h"

#include "model/mapobjects.h"
#include "model/project.h"
#include "model/tileset.h"
#include "store/animationdocument.h"
#include "store/documentreader.h"

#include <QJsonArray>

namespace {

constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String BoundTileSet("tiles");
constexpr QLatin1String Animations("animations");
constexpr QLatin1String Type("type");
constexpr QLatin1String FrameCells("tileData");

QJsonObject writeAnimation(const TileAnimation &animation)
{
    QJsonObject object = AnimationDocument::write(animation, FrameCells);
    object.insert(Type, int(animation.type()));
    return object;
}

void readAnimation(DocumentReader &reader, MapObjects &blocks, const QJsonObject &object)
{
    const QPointer<TileAnimation> animation =
        blocks.createTileAnimation(DocumentValue::id(object, Id), DocumentValue::name(object, Name));
    animation->setMapObjectType(
        DocumentValue::enumerator(object, Type, MapObjectType::HorizontalPlatform, MapObjectType::Normal));
    AnimationDocument::read(reader, *animation, object, FrameCells, 0, AnimationDocument::FrameIds::Restored);
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
    const QUuid id = DocumentValue::id(object, Id);
    (void)DocumentReader::makeRoom(reader.project.blocks(id));
    auto *blocks = new MapObjects(&reader.project);
    blocks->setId(id);
    blocks->setName(DocumentValue::name(object, Name));
    blocks->setTileSet(reader.project.tileSet(DocumentValue::id(object, BoundTileSet)));
    for (const QJsonValue &animation : object.value(Animations).toArray())
        readAnimation(reader, *blocks, animation.toObject());
    reader.project.addBlocks(blocks);
}
