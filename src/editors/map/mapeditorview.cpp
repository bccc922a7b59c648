#include "editors/map/mapeditorview.h"

#include "editors/map/changedframes.h"
#include "editors/map/mapanimator.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mapexport.h"
#include "editors/map/mapgrid.h"
#include "editors/map/mapkeys.h"
#include "editors/map/mappreferences.h"
#include "editors/map/maptoolpalette.h"
#include "editors/map/paintdesk.h"
#include "editors/map/resizedialog.h"
#include "editors/map/spritepropertiespopover.h"
#include "editors/map/viewbuilder.h"
#include "model/plural.h"
#include "ui/scrollbar.h"

#include <QAction>
#include <QBoxLayout>
#include <QTabWidget>

#include <algorithm>

using namespace Quenmora::Ui;

namespace MapEditor {

View::View(const QPointer<Map> &map, QWidget *parent)
    : QWidget(parent)
    , m_map(map)
    , m_viewPortSize(ToolBar::DefaultViewport)
{
    ViewBuilder(*this).build();
    m_grid->setMap(map);
    m_animator->setMap(map);
    if (map) {
        m_grid->setTransparencyIndex(map->tileTransparencyIndex());
        m_grid->setBackgroundTileIndex(map->backgroundTileIndex());
        m_toolPalette->setShowGridChecked(map->gridVisible());
        connect(map, &Map::nameChanged, this, [this](QString name) {
            updateTabText(name.replace(u'&', QStringLiteral("&&"))); // no mnemonic
        });
        connect(map, &Map::restored, this, [this] { moveSpriteProperties(m_grid->selectedSprite()); });
        connect(map, &QObject::destroyed, m_popover, &QWidget::hide);
    }
    mapSizeChanged();
}

View::~View()
{
    detachToolBar(); // or it would go on showing this map
}

void View::setUndoStack(QUndoStack *stack)
{
    m_grid->setUndoStack(stack);
}

void View::setPastesPictures(bool pastes)
{
    m_grid->setPastesPictures(pastes);
}

void View::setSpriteBanks(const QList<QPointer<SpriteBank>> &banks)
{
    m_grid->setSpriteBanks(banks);
}

void View::offerMore(const QPointer<PaintKit> &kit)
{
    if (m_paintDesk)
        return;
    m_grid->offerMore();
    new MapKeys(m_grid); // before what else listens to its keys
    m_toolPalette->addPaintTools();
    addActions(m_toolPalette->actions());
    m_paintDesk = new PaintDesk(this, kit);
    static_cast<QBoxLayout *>(layout())->insertWidget(0, m_paintDesk->bar());
}

void View::applyPreferences(const Preferences &preferences)
{
    m_grid->applyPreferences(preferences);
    m_toolPalette->setShowGridChecked(m_grid->isGridVisible());
}

// The window's tool bar

void View::attachToolBar(ToolBar *toolBar)
{
    detachToolBar();
    m_toolBar = toolBar;
    if (!toolBar)
        return;
    showToolBarState();
    connect(toolBar, &ToolBar::transparencyIndexChanged, m_grid, &MapGrid::setTransparencyIndex);
    connect(toolBar, &ToolBar::snapToValueChanged, m_grid, &MapGrid::setSnapToSize);
    connect(toolBar, &ToolBar::mapVisibilityChanged, m_grid, &MapGrid::setMapVisibility);
    connect(toolBar, &ToolBar::objectVisibilityChanged, m_grid, &MapGrid::setObjectVisibility);
    connect(toolBar, &ToolBar::spriteVisibilityChanged, m_grid, &MapGrid::setSpriteVisibility);
    connect(toolBar, &ToolBar::backgroundTileIndexChanged, m_grid, &MapGrid::setBackgroundTileIndex);
    connect(toolBar, &ToolBar::viewPortChanged, this, &View::setViewPortSize);
    if (m_map) {
        // the map keeps these for the next time
        connect(toolBar, &ToolBar::transparencyIndexChanged, m_map, &Map::setTileTransparencyIndex);
        connect(toolBar, &ToolBar::backgroundTileIndexChanged, m_map, &Map::setBackgroundTileIndex);
    }
}

void View::detachToolBar()
{
    if (!m_toolBar)
        return;
    m_toolBar->disconnect(this);
    m_toolBar->disconnect(m_grid);
    if (m_map)
        m_toolBar->disconnect(m_map);
    m_toolBar->setSizeText({});
    m_toolBar.clear();
}

void View::showToolBarState()
{
    if (!m_toolBar)
        return;
    ToolBar::State state;
    state.viewport = m_viewPortSize;
    state.snap = m_grid->viewport().snap;
    if (m_map) {
        state.tilesVisible = m_map->tileLayer() && m_map->tileLayer()->isVisible();
        state.objectsVisible = m_map->objectLayer() && m_map->objectLayer()->isVisible();
        state.spritesVisible = m_map->spriteLayerVisible();
        state.backgroundTileIndex = m_map->backgroundTileIndex();
        state.transparencyIndex = m_map->tileTransparencyIndex();
    }
    m_toolBar->showState(state);
    m_toolBar->setSizeText(m_sizeText);
}

void View::setViewPortSize(QSize size)
{
    m_viewPortSize = size;
    if (m_grid->viewport().viewportEnabled)
        m_grid->setViewPort(true, size);
}

// What the docks choose

void View::setTileIndex(int index)
{
    m_grid->setCurrentTileIndex(index);
}

void View::setMapObject(QPointer<TileAnimation> anim)
{
    // an object could not be placed on a hidden layer, and new maps have it hidden
    if (anim && m_map && m_map->objectLayer() && !m_map->objectLayer()->isVisible()) {
        m_grid->setObjectVisibility(true);
        showToolBarState();
    }
    m_grid->setCurrentTileAnimation(anim);
}

void View::setSpriteAnimation(QPointer<SpriteAnim> anim)
{
    m_grid->setCurrentSpriteAnimation(anim);
}

void View::setSingleSprite(QUuid bankId, int index)
{
    m_grid->setCurrentSprite(bankId, index);
}

void View::setSelectedTile(TileMap::TileData tileData)
{
    m_grid->setCurrentTileIndex(tileData.index);
    // which tells the grid
    m_toolPalette->setActionChecked(RotateCW, tileData.rotate);
    m_toolPalette->setActionChecked(Flip, tileData.flip);
    m_toolPalette->setActionChecked(Mirror, tileData.mirror);
    emit tilePicked(tileData.index);
}

// Tools and actions

void View::toolPaletteClicked(ToolButton action)
{
    toolPaletteClicked(action, false);
}

void View::toolPaletteClicked(ToolButton action, bool checked)
{
    switch (action) {
    case Draw:
    case Select:
    case Pick:
    case PlaceAnim:
    case PlaceSprite:
        m_grid->setMode(action);
        break;
    case Fill:
    case PaintTerrain:
    case Line:
    case Rectangle:
    case RectangleFill:
    case Circle:
    case CircleFill:
        if (m_paintDesk)
            m_paintDesk->takeTool(action);
        break;
    case RandomTiles:
        m_grid->setRandom(checked);
        break;
    case Resize:
        showResizeDialog();
        break;
    case Grid:
        if (m_map)
            m_map->setGridVisible(checked);
        m_grid->setGridVisible(checked);
        break;
    case ZoomIn:
        m_grid->zoomIn();
        break;
    case ZoomOut:
        m_grid->zoomOut();
        break;
    case RotateCW:
        m_grid->setRotated(checked);
        break;
    case Flip:
        m_grid->setFlipped(checked);
        break;
    case Mirror:
        m_grid->setMirrored(checked);
        break;
    case MoveUp:
        m_grid->scrollUp();
        break;
    case MoveDown:
        m_grid->scrollDown();
        break;
    case MoveLeft:
        m_grid->scrollLeft();
        break;
    case MoveRight:
        m_grid->scrollRight();
        break;
    case PaintPalette:
        if (m_map)
            m_map->refreshOffsets();
        m_grid->update();
        break;
    case Save:
        m_export->start();
        break;
    case AnimPlay:
    case AnimStop:
        setPlaying(checked);
        break;
    case ExpandToFit:
    case ShrinkToFit:
        m_grid->fitTo(true);
        break;
    case ToggleViewport:
        m_grid->setViewPort(checked, m_viewPortSize);
        break;
    default:
        break;
    }
}

void View::modeChanged(ToolButton mode)
{
    if (mode == PlaceAnim)
        emit placeAnimModeEnabled();
    else if (mode == PlaceSprite)
        emit placeSpriteModeEnabled();
}

void View::cancel()
{
    if (m_popover->isVisible()) {
        m_popover->hide();
        return;
    }
    if (m_grid->mode() != Draw)
        m_grid->dropDrag();
    m_grid->setMode(Draw);
    m_grid->hideRubberBand();
}

void View::deleteUnderPointer()
{
    if (!m_grid->deleteSprite() && !m_grid->removeAnimation())
        m_grid->clearSelection();
}

void View::cut()
{
    m_grid->cutSelection();
}

void View::copy()
{
    m_grid->copySelection();
}

void View::paste()
{
    m_grid->setMode(Paste);
}

void View::selectAll()
{
    m_grid->selectAll();
}

void View::selectNone()
{
    m_grid->selectNone();
}

// Scrolling and the size of the map

void View::updateScrollValues(int h, int v)
{
    const QSize shown = m_grid->viewport().visibleSize();
    m_horizontalBar->setPageStep(std::max(shown.width(), 1));
    m_verticalBar->setPageStep(std::max(shown.height(), 1));
    m_horizontalBar->setRange(0, std::max(h, 0));
    m_verticalBar->setRange(0, std::max(v, 0));
}

void View::updateScrollBars(QPoint pos)
{
    m_verticalBar->setValue(pos.y());
    m_horizontalBar->setValue(pos.x());
}

void View::addRow(Quenmora::Position position)
{
    m_grid->addRows(position, 1);
}

void View::addColumn(Quenmora::Position position)
{
    m_grid->addColumns(position, 1);
}

void View::removeRow(Quenmora::Position position)
{
    m_grid->removeRows(position, 1);
}

void View::removeColumn(Quenmora::Position position)
{
    m_grid->removeColumns(position, 1);
}

void View::mapSizeChanged()
{
    const QSize size = m_map ? m_map->size() : QSize(0, 0);
    m_sizeText =
        tr("%1x%2 (%n bytes)", nullptr, plural(m_map ? m_map->dataSize() : 0)).arg(size.width()).arg(size.height());
    if (m_toolBar)
        m_toolBar->setSizeText(m_sizeText);
    m_horizontalBar->setRemoveEnabled(size.width() > 1);
    m_verticalBar->setRemoveEnabled(size.height() > 1);
}

void View::updateTabText(QString text)
{
    QWidget *stack = parentWidget();
    if (auto *tabs = qobject_cast<QTabWidget *>(stack ? stack->parentWidget() : nullptr))
        tabs->setTabText(tabs->indexOf(this), text);
}

void View::showResizeDialog()
{
    if (!m_map)
        return;
    m_resizeDialog->setMapSize(m_map->size());
    m_resizeDialog->open();
}

void View::resizeMap()
{
    if (m_map && m_resizeDialog->mapSize() != m_map->size())
        m_grid->resizeMap(m_resizeDialog->mapSize(), m_resizeDialog->alignment());
}

// Placed sprites

void View::showSprite(int index)
{
    const QRect place = m_grid->spriteRect(index) & m_grid->rect();
    if (place.isEmpty()) {
        m_popover->hide();
        return;
    }
    m_popover->setSprite(m_map->sprites().at(index));
    m_popover->showBeside({m_grid->mapToGlobal(place.topLeft()), place.size()});
}

void View::spriteSelected(int index)
{
    moveSpriteProperties(index);
    if (m_map && index >= 0 && index < m_map->sprites().size())
        emit spritePicked(m_map->sprites().at(index));
}

void View::moveSpriteProperties(int index)
{
    if (m_popover->isVisible())
        showSprite(index);
}

// Animation

void View::framesAdvanced()
{
    const auto now = qint64(m_animator->ticks());
    m_grid->setSpriteTicks(now);
    m_grid->update(changedFrames(*m_grid, m_animator->changedAreas(), now));
}

void View::setPlaying(bool playing)
{
    m_playing = playing;
    m_toolPalette->action(AnimPlay)->setChecked(playing);
    runAnimator();
}

void View::pauseAnimation()
{
    m_paused = true;
    runAnimator();
}

void View::resumeAnimation()
{
    m_paused = false;
    runAnimator();
}

void View::runAnimator()
{
    m_animator->setRunning(m_playing && !m_paused && !m_hidden);
}

void View::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_hidden = false;
    runAnimator();
}

void View::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    // block animations are shared by the maps of a tile set, and must not be driven by two clocks
    m_hidden = true;
    runAnimator();
}

} // namespace MapEditor
