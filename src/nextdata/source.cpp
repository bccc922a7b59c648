#include "nextdata/source.h"

#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "nextdata/texts.h"

#include <algorithm>

namespace NextData {
namespace {

template <typename Asset>
void append(QList<Source> &sources, const Project &project, const QList<QPointer<Asset>> &assets)
{
    for (const QPointer<Asset> &asset : assets)
        sources.append(Source(project, static_cast<const Asset *>(asset.data())));
}

} // namespace

QString titleOf(AssetKind kind)
{
    switch (kind) {
    case AssetKind::Palette:
        return Texts::tr("a palette");
    case AssetKind::TileSet:
        return Texts::tr("a tile set");
    case AssetKind::Map:
        return Texts::tr("a map");
    case AssetKind::BlockSet:
        return Texts::tr("a block set");
    case AssetKind::SpriteBank:
        return Texts::tr("a sprite bank");
    case AssetKind::Image:
        return Texts::tr("an image");
    }
    return {};
}

QString wordOf(AssetKind kind)
{
    constexpr const char *words[] = {"palette", "tiles", "map", "blocks", "sprites", "image"};
    return QString::fromLatin1(words[int(kind)]);
}

std::optional<Source> Source::find(const Project &project, const QUuid &id)
{
    const QList<Source> sources = all(project);
    const auto found = std::find_if(sources.cbegin(), sources.cend(), [&id](const Source &s) { return s.id() == id; });
    return found != sources.cend() ? std::optional(*found) : std::nullopt;
}

QList<Source> Source::all(const Project &project)
{
    QList<Source> sources;
    append(sources, project, project.palettes());
    append(sources, project, project.tileSets());
    append(sources, project, project.maps());
    append(sources, project, project.blockSets());
    append(sources, project, project.spriteBanks());
    append(sources, project, project.images());
    return sources;
}

QUuid Source::id() const
{
    return std::visit([](const auto *asset) { return asset->id(); }, m_asset);
}

QString Source::name() const
{
    return std::visit([](const auto *asset) { return asset->name(); }, m_asset);
}

} // namespace NextData
