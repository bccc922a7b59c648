#pragma once

#include <QList>
#include <QString>
#include <QUuid>

#include <optional>
#include <variant>

class Image;
class Map;
class MapObjects;
class Palette;
class Project;
class SpriteBank;
class TileSet;

namespace NextData {

/// The kinds of asset, in the order of Source::Asset.
enum class AssetKind { Palette, TileSet, Map, BlockSet, SpriteBank, Image };

/// The kind's name as it stands in texts for people: "a tile set".
[[nodiscard]] QString titleOf(AssetKind kind);
/// The kind as one word for names and listings: "tiles".
[[nodiscard]] QString wordOf(AssetKind kind);

/// An asset to be written, and the project in which it finds the assets that it names.
///
/// It is made for the moment: it does not notice when the asset or the project goes.
class Source
{
public:
    using Asset = std::variant<const Palette *, const TileSet *, const Map *, const MapObjects *, const SpriteBank *,
                               const Image *>;

    Source(const Project &project, Asset asset) : m_project(&project), m_asset(asset) { }

    /// The asset with an id, of whatever kind; nothing when the project has none.
    [[nodiscard]] static std::optional<Source> find(const Project &project, const QUuid &id);
    /// All assets, kind by kind, each kind in the order in which its assets were added.
    [[nodiscard]] static QList<Source> all(const Project &project);

    [[nodiscard]] const Project &project() const { return *m_project; }
    [[nodiscard]] AssetKind kind() const { return AssetKind(m_asset.index()); }
    [[nodiscard]] QUuid id() const;
    [[nodiscard]] QString name() const;

    /// The asset, whose kind must be this one.
    template <typename Kind>
    [[nodiscard]] const Kind &as() const
    {
        return *std::get<const Kind *>(m_asset);
    }

private:
    const Project *m_project;
    Asset m_asset;
};

} // namespace NextData
