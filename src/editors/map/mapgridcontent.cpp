// What the grid shows: it follows the map, its tile set and the sprite banks.

#include "editors/map/mapgrid.h"
#include "editors/map/mappreferences.h"
#include "model/tileset.h"

#include <QRubberBand>

#include <algorithm>
#include <utility>

namespace MapEditor {

void MapGrid::setMap(const QPointer<Map> &map)
{
    releaseButtons();
    unfollowMap();
    setEnabled(false);
    m_map = map;
    forget();
    const bool scrolled = !m_viewport.scroll.isNull();
    m_viewport.scroll = QPoint();
    if (map) {
        m_gridVisible = map->gridVisible();
        followMap();
    }
    setEnabled(true);
    refreshCursor();
    relayout();
    if (scrolled)
        emit scrollPositionChanged(m_viewport.scroll);
}

void MapGrid::followMap()
{
    m_tileSet = m_map->tileSet();
    if (m_tileSet) {
        connect(m_tileSet, &TileSet::tileChanged, this, &MapGrid::tileMapChanged);
        connect(m_tileSet, &TileSet::structureChanged, this, &MapGrid::tilesChanged);
        connect(m_tileSet, &TileSet::restored, this, &MapGrid::tilesChanged);
        connect(m_tileSet, &QObject::destroyed, this, &MapGrid::tileMapChanged);
    }
    connect(m_map, &Map::restored, this, &MapGrid::mapRestored, Qt::UniqueConnection);
    connect(m_map, &QObject::destroyed, this, &MapGrid::mapDestroyed, Qt::UniqueConnection);
}

void MapGrid::unfollowMap()
{
    if (m_tileSet)
        m_tileSet->disconnect(this);
    m_tileSet.clear();
    if (m_map)
        m_map->disconnect(this);
}

void MapGrid::forget()
{
    clearHoverCell();
    m_hoverSprite = -1;
    m_selection = m_pasteArea = m_highlight = QRect();
    selectSprite(-1);
    m_rubberBand->hide();
}

void MapGrid::mapRestored()
{
    setSelection(m_selection);
    m_hoverSprite = -1;
    if (m_selectedSprite >= m_map->sprites().size())
        selectSprite(-1);
    if (m_map->animatedBlocks()->animationIdAt(m_highlight).isNull())
        m_highlight = QRect();
    emit mapResized(mapSize());
    relayout();
}

void MapGrid::mapDestroyed()
{
    m_edit.abandon();
    m_buttons = Qt::NoButton;
    unfollowMap();
    forget();
    relayout();
}

void MapGrid::tilesChanged()
{
    m_currentTile.index = std::min(m_currentTile.index, m_tileSet->count() - 1); // it may be gone
    update();
}

void MapGrid::tileMapChanged()
{
    update();
}

void MapGrid::setSpriteBanks(QList<QPointer<SpriteBank>> banks)
{
    unfollowSpriteBanks();
    m_spriteBanks = banks;
    followSpriteBanks();
    update();
}

void MapGrid::followSpriteBanks()
{
    for (const QPointer<SpriteBank> &bank : std::as_const(m_spriteBanks)) {
        if (!bank)
            continue;
        connect(bank, &SpriteBank::imageChanged, this, &MapGrid::tileMapChanged, Qt::UniqueConnection);
        connect(bank, &SpriteBank::countChanged, this, &MapGrid::tileMapChanged, Qt::UniqueConnection);
        connect(bank, &SpriteBank::restored, this, &MapGrid::tileMapChanged, Qt::UniqueConnection);
        connect(bank, &SpriteBank::coloursChanged, this, &MapGrid::tileMapChanged, Qt::UniqueConnection);
        connect(bank, &QObject::destroyed, this, &MapGrid::tileMapChanged, Qt::UniqueConnection);
        connect(bank, &SpriteBank::spriteDeleted, this, &MapGrid::spritesRemoved, Qt::UniqueConnection);
        connect(bank, &SpriteBank::animationsChanged, this, &MapGrid::spriteAnimationsChanged, Qt::UniqueConnection);
        const QList<QPointer<SpriteAnim>> animations = bank->animations();
        for (const QPointer<SpriteAnim> &animation : animations) {
            connect(animation, &Animation::frameChanged, this, &MapGrid::tileMapChanged, Qt::UniqueConnection);
            connect(animation, &Animation::contentChanged, this, &MapGrid::tileMapChanged, Qt::UniqueConnection);
            connect(animation, &Animation::sizeChanged, this, &MapGrid::tileMapChanged, Qt::UniqueConnection);
        }
    }
}

void MapGrid::unfollowSpriteBanks()
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

void MapGrid::spriteAnimationsChanged()
{
    followSpriteBanks();
    update();
}

void MapGrid::spritesRemoved()
{
    // placed sprites of a deleted one are gone, so the others may have other indices now
    m_hoverSprite = -1;
    selectSprite(-1);
    update();
}

void MapGrid::setSpriteTicks(qlonglong ticks)
{
    m_spriteTicks = ticks;
}

void MapGrid::setMapVisibility(bool visible)
{
    if (m_map && m_map->tileLayer())
        m_map->tileLayer()->setVisible(visible);
    refreshCursor();
    update();
}

void MapGrid::setObjectVisibility(bool visible)
{
    if (m_map && m_map->objectLayer())
        m_map->objectLayer()->setVisible(visible);
    refreshCursor();
    update();
}

void MapGrid::setSpriteVisibility(bool visible)
{
    if (m_map)
        m_map->setSpriteLayerVisible(visible);
    if (!visible)
        m_hoverSprite = -1; // nobody sees what would be deleted
    refreshCursor();
    update();
}

void MapGrid::setTransparencyIndex(int index)
{
    m_transparencyIndex = index;
    update();
}

void MapGrid::setBackgroundTileIndex(int index)
{
    m_backgroundTileIndex = index;
    update();
}

void MapGrid::setGridVisible(bool visible)
{
    m_gridVisible = visible;
    m_checkerVisible = visible;
    update();
}

void MapGrid::applyPreferences(const Preferences &preferences)
{
    m_checkerBoard = preferences.checkerBoard;
    setGridVisible(preferences.checkerBoard);
    m_gridVisible = preferences.overlayGrid;
    m_gridColour1 = preferences.gridColour1;
    m_gridColour2 = preferences.gridColour2;
    m_viewport.setBaseSize(preferences.gridSize);
    m_viewport.setZoom(preferences.defaultZoom);
    relayout();
}

} // namespace MapEditor
