#include "app/exportproject/assetkinds.h"

#include "app/projecttree/projecttree.h"

#include <QCoreApplication>

namespace AssetKinds {
namespace {

using NextData::AssetKind;

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
    const auto tr = [](const char *text) { return QCoreApplication::translate("AssetKinds", text); };
    switch (kind) {
    case AssetKind::Palette:
        return tr("Palettes");
    case AssetKind::TileSet:
        return tr("Tile Sets");
    case AssetKind::Map:
        return tr("Maps");
    case AssetKind::BlockSet:
        return tr("Map Objects");
    case AssetKind::SpriteBank:
        return tr("Sprite Banks");
    case AssetKind::Image:
        return tr("Images");
    }
    return {};
}

} // namespace AssetKinds
