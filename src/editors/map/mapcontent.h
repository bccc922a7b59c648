#pragma once

#include "model/map.h"
#include "model/spritebank.h"
#include "model/tileset.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSize>

namespace MapEditor {

/// The map that an editor shows, with its tile set and the banks of its sprites, and what happens to them.
class MapContent : public QObject
{
    Q_OBJECT

public:
    using Banks = QList<QPointer<SpriteBank>>;

    using QObject::QObject;

    [[nodiscard]] const QPointer<Map> &map() const { return m_map; }
    void setMap(const QPointer<Map> &map);
    [[nodiscard]] const Banks &spriteBanks() const { return m_spriteBanks; }
    void setSpriteBanks(const Banks &banks);

    /// In cells; none without a map.
    [[nodiscard]] QSize mapSize() const { return m_map ? m_map->size() : QSize(0, 0); }
    [[nodiscard]] QPointer<TileMap> tileLayer() const { return m_map ? m_map->tileLayer() : nullptr; }
    [[nodiscard]] QPointer<TileMap> objectLayer() const { return m_map ? m_map->objectLayer() : nullptr; }
    [[nodiscard]] bool hasSprite(int index) const;

    // Shows or hides a layer of the map.
    void setTilesVisible(bool visible);
    void setObjectsVisible(bool visible);
    void setSpritesVisible(bool visible);

signals:
    /// Something of it may look different.
    void changed();
    /// Nothing changed, but palettes show other colours.
    void shownColoursChanged();
    /// Layers were shown or hidden.
    void layersShown();
    /// The tile set has other tiles, perhaps fewer of them.
    void tilesChanged(int count);
    /// The map was put back to a state of before.
    void mapRestored();
    void mapDestroyed();
    /// Placed sprites may be gone, so the others may have other indices.
    void spritesRemoved();

private:
    void followMap();
    void unfollowMap();
    void followSpriteBanks();
    void unfollowSpriteBanks();
    /// Follows the animations that a bank has now.
    void followAnimations();

    QPointer<Map> m_map;
    QPointer<TileSet> m_tileSet; ///< the map's, whose changes are followed
    Banks m_spriteBanks;
};

} // namespace MapEditor
