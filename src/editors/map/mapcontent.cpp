#include "editors/map/mapcontent.h"

#include "model/spriteanim.h"

#include <utility>

namespace MapEditor {

void MapContent::setMap(const QPointer<Map> &map)
{
    unfollowMap();
    m_map = map;
    if (map)
        followMap();
}

void MapContent::followMap()
{
    m_tileSet = m_map->tileSet();
    if (m_tileSet) {
        const auto tellTiles = [this] { emit tilesChanged(m_tileSet->count()); };
        connect(m_tileSet, &TileSet::tileChanged, this, &MapContent::changed);
        connect(m_tileSet, &TileSet::shownColoursChanged, this, &MapContent::shownColoursChanged);
        connect(m_tileSet, &TileSet::structureChanged, this, tellTiles);
        connect(m_tileSet, &TileSet::restored, this, tellTiles);
        connect(m_tileSet, &QObject::destroyed, this, &MapContent::changed);
    }
    connect(m_map, &Map::restored, this, &MapContent::mapRestored);
    connect(m_map, &QObject::destroyed, this, [this] {
        unfollowMap();
        emit mapDestroyed();
    });
}

void MapContent::unfollowMap()
{
    if (m_tileSet)
        m_tileSet->disconnect(this);
    m_tileSet.clear();
    if (m_map)
        m_map->disconnect(this);
}

void MapContent::setSpriteBanks(const Banks &banks)
{
    unfollowSpriteBanks();
    m_spriteBanks = banks;
    followSpriteBanks();
    emit changed();
}

void MapContent::followSpriteBanks()
{
    constexpr auto Once = Qt::UniqueConnection; // called again when a bank has other animations
    for (const QPointer<SpriteBank> &bank : std::as_const(m_spriteBanks)) {
        if (!bank)
            continue;
        connect(bank, &SpriteBank::imageChanged, this, &MapContent::changed, Once);
        connect(bank, &SpriteBank::countChanged, this, &MapContent::changed, Once);
        connect(bank, &SpriteBank::restored, this, &MapContent::changed, Once);
        connect(bank, &SpriteBank::coloursChanged, this, &MapContent::changed, Once);
        connect(bank, &SpriteBank::shownColoursChanged, this, &MapContent::shownColoursChanged, Once);
        connect(bank, &QObject::destroyed, this, &MapContent::changed, Once);
        connect(bank, &SpriteBank::spriteDeleted, this, &MapContent::spritesRemoved, Once);
        connect(bank, &SpriteBank::animationsChanged, this, &MapContent::followAnimations, Once);
        const QList<QPointer<SpriteAnim>> animations = bank->animations();
        for (const QPointer<SpriteAnim> &animation : animations) {
            connect(animation, &Animation::frameChanged, this, &MapContent::changed, Once);
            connect(animation, &Animation::contentChanged, this, &MapContent::changed, Once);
            connect(animation, &Animation::sizeChanged, this, &MapContent::changed, Once);
        }
    }
}

void MapContent::unfollowSpriteBanks()
{
    for (const QPointer<SpriteBank> &bank : std::as_const(m_spriteBanks)) {
        if (!bank)
            continue;
        bank->disconnect(this);
        const QList<QPointer<SpriteAnim>> animations = bank->animations();
        for (const QPointer<SpriteAnim> &animation : animations)
            animation->disconnect(this);
    }
}

void MapContent::followAnimations()
{
    followSpriteBanks();
    emit changed();
}

bool MapContent::hasSprite(int index) const
{
    return m_map && index >= 0 && index < m_map->sprites().size();
}

void MapContent::setTilesVisible(bool visible)
{
    if (const QPointer<TileMap> layer = tileLayer())
        layer->setVisible(visible);
    emit layersShown();
}

void MapContent::setObjectsVisible(bool visible)
{
    if (const QPointer<TileMap> layer = objectLayer())
        layer->setVisible(visible);
    emit layersShown();
}

void MapContent::setSpritesVisible(bool visible)
{
    if (m_map)
        m_map->setSpriteLayerVisible(visible);
    emit layersShown();
}

} // namespace MapEditor
