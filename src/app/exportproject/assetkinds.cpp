#include "app/exportproject/assetkinds.h"

#include "app/projecttree/projecttree.h"

#include <QCoreApplication>

namespace AssetKinds {
namespace {

using NextData::AssetKind;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(AssetKinds)
};

ProjectTree::ProjectNode nodeOf(AssetKind kind)
{
    switch (kind) {
    case AssetKind::Palette:
        return ProjectTree::PaletteNode;
    case AssetKind::TileSet:
        return ProjectTree::TileSetNode;
    case AssetKind::Map:
        return ProjectTree::MapNode;
    case AssetKind::BlockSet:
        return ProjectTree::MapObjectsNode;
    case AssetKind::SpriteBank:
        return ProjectTree::SpriteBankNode;
    case AssetKind::Image:
        return ProjectTree::ImageNode;
    }
    return ProjectTree::PaletteNode;
}

} // namespace

QIcon iconOf(AssetKind kind)
{
    return ProjectTree::nodeIcon(nodeOf(kind));
}

QString nameOf(AssetKind kind)
{
    return ProjectTree::nodeName(nodeOf(kind));
}

QString pluralOf(AssetKind kind)
{
    switch (kind) {
    case AssetKind::Palette:
        return Texts::tr("Palettes");
    case AssetKind::TileSet:
        return Texts::tr("Tile Sets");
    case AssetKind::Map:
        return Texts::tr("Maps");
    case AssetKind::BlockSet:
        return Texts::tr("Map Objects");
    case AssetKind::SpriteBank:
        return Texts::tr("Sprite Banks");
    case AssetKind::Image:
        return Texts::tr("Images");
    }
    return {};
}

} // namespace AssetKinds
