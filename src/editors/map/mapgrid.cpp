#include "editors/map/mapgrid.h"

#include "editors/map/mapclipboard.h"
#include "editors/map/mapnavigator.h"
#include "editors/map/mappainter.h"
#include "model/placedsprites.h"
#include "ui/commands.h"
#include "ui/outlineband.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QRandomGenerator>
#include <QStatusTipEvent>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

using namespace Quenmora::Ui;

namespace MapEditor {

MapGrid::MapGrid(QWidget *parent) : QWidget(parent), m_rubberBand(new OutlineBand(this)), m_contextMenu(new QMenu(this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Map"));
    m_rubberBand->hide();
    refreshCursor();
    buildContextMenu();
    followContent();
}

MapGrid::~MapGrid() = default;

void MapGrid::buildContextMenu()
{
    const auto add = [this](const char *name, const QString &text, auto run) {
        return Commands::addPointed(m_contextMenu->addAction(text, this, run), QLatin1String(name));
    };
    const auto addCommand = [this](const char *name, const QString &text, void (MapGrid::*run)()) {
        QAction *action = m_contextMenu->addAction(text, this, run);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        m_commands.append(Commands::add(action, QLatin1String(name)));
    };
    add("mapMenu.cut", tr("Cut"), &MapGrid::cutSelection);
    add("mapMenu.copy", tr("Copy"), &MapGrid::copySelection);
    addCommand("mapEditor.copyToNewMap", tr("Copy to new map"), &MapGrid::mapFromSelection);
    addCommand("mapEditor.copyAsImage", tr("Copy as Image"), &MapGrid::copyAsImage);
    addCommand("mapEditor.fillSelection", tr("Fill"), &MapGrid::fillSelection);
    m_contextMenu->addSeparator();
    QAction *paste = add("mapMenu.paste", tr("Paste"), [this] { setMode(Paste); });
    connect(m_contextMenu, &QMenu::aboutToShow, this, [this, paste] {
        paste->setEnabled(!MapClipboard::sizeFor(map()).isEmpty()
                          || (m_pastesPictures && MapClipboard::mayHoldPicture()));
    });
}

void MapGrid::offerMore()
{
    m_brush.doesMore = true;
    m_tools.addPaintTools(this);
    new MapNavigator(this); // which is its child
}

// ---- What is shown ----------------------------------------------------------------------------

void MapGrid::followContent()
{
    connect(&m_content, &MapContent::changed, this, &MapGrid::tileMapChanged);
    connect(&m_content, &MapContent::shownColoursChanged, this, [this] {
        m_newColours = true;
        update();
    });
    connect(&m_content, &MapContent::tilesChanged, this, [this](int count) {
        m_brush.keepWithin(count);
        update();
    });
    connect(&m_content, &MapContent::layersShown, this, [this] {
        if (map() && !map()->spriteLayerVisible())
            pointer().sprite = -1; // nobody sees what would be deleted
        refreshCursor();
        update();
    });
    connect(&m_content, &MapContent::mapDestroyed, this, [this] {
        m_rubberBand->hide();
        relayout();
    });
    connect(&m_editing, &MapEditing::changed, this, &MapGrid::tileMapChanged);
    connect(&m_editing, &MapEditing::selectedSpriteChanged, this, &MapGrid::selectedSpriteChanged);
    connect(&m_editing, &MapEditing::mapResized, this, [this](QSize size) {
        emit mapResized(size);
        relayout();
    });
}

void MapGrid::setMap(const QPointer<Map> &map)
{
    releaseButtons();
    setEnabled(false);
    m_content.setMap(map);
    m_editing.mapChanged();
    const bool scrolled = !m_viewport.scroll.isNull();
    m_viewport.scroll = QPoint();
    if (map)
        m_display.gridVisible = map->gridVisible();
    setEnabled(true);
    refreshCursor();
    relayout();
    if (scrolled)
        emit scrollPositionChanged(m_viewport.scroll);
}

void MapGrid::applyPreferences(const Preferences &preferences)
{
    m_display.apply(preferences);
    m_viewport.setBaseSize(preferences.gridSize);
    m_viewport.setZoom(preferences.defaultZoom);
    relayout();
}

QRect MapGrid::spriteRect(int index) const
{
    if (!m_content.hasSprite(index))
        return {};
    const QRect pixels = PlacedSprites::area(map()->sprites().at(index), spriteBanks());
    return pixels.isEmpty() ? QRect() : m_viewport.rectOfPixels(pixels);
}

void MapGrid::paintEvent(QPaintEvent *event)
{
    QElapsedTimer timer;
    timer.start();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    const QRect cells = map() && isEnabled() ? m_viewport.viewRect : QRect();
    const QRegion margins = QRegion(rect()) - cells;
    for (const QRect &margin : margins)
        painter.fillRect(margin, palette().window());
    if (cells.isEmpty())
        return;

    const MapPainter content(m_content, m_viewport, m_display);
    painter.setClipRect(cells, Qt::IntersectClip);
    painter.setBrushOrigin(cells.topLeft());
    content.paintContent(painter, event->rect() & cells);
    if (const QRect sprite = spriteRect(pointer().sprite); !sprite.isEmpty())
        MapPainter::paintOutline(painter, sprite);
    m_tools.tool()->paintUnder(painter);
    if (m_display.gridVisible)
        content.paintGridLines(painter);
    if (!pointer().highlight.isEmpty())
        MapPainter::paintOutline(painter, m_viewport.rectOfCells(pointer().highlight));
    m_tools.tool()->paintOver(painter);
    if (!m_shownCell.isEmpty())
        MapPainter::paintSelection(painter, m_viewport.rectOfCells(m_shownCell));

    painter.setClipRegion(event->region());
    MapPainter::paintStatus(painter, pointer().cell, timer.elapsed());
    emit painted(std::exchange(m_newColours, false));
}

// ---- Where it is shown ------------------------------------------------------------------------

void MapGrid::relayout()
{
    const QPoint scroll = m_viewport.scroll;
    m_viewport.layout(size(), m_content.mapSize());
    const QSize furthest = m_viewport.overflow(m_content.mapSize());
    emit scrollDeltaChanged(furthest.width(), furthest.height());
    if (m_viewport.scroll != scroll) {
        pointer().clearCell();
        emit scrollPositionChanged(m_viewport.scroll);
    }
    update();
}

void MapGrid::resizeEvent(QResizeEvent *)
{
    relayout();
}

void MapGrid::setViewPort(bool enabled, QSize size)
{
    m_viewport.viewportEnabled = enabled;
    m_viewport.viewportSize = size;
    relayout();
}

void MapGrid::setBaseSize(int pixels)
{
    m_viewport.setBaseSize(pixels);
    relayout();
}

void MapGrid::zoomBy(int steps)
{
    if (m_viewport.setZoom(m_viewport.zoomFactor + steps))
        relayout();
}

void MapGrid::zoomAround(QPoint point, int steps)
{
    const QPoint cell = m_viewport.cellAt(point);
    const QPoint before = m_viewport.scroll;
    if (!m_viewport.setZoom(m_viewport.zoomFactor + steps))
        return;
    m_viewport.layout(size(), m_content.mapSize());
    const QPoint wanted = m_viewport.scroll + cell - m_viewport.cellAt(point);
    relayout(); // which scroll bars answer with positions of theirs
    scrollTo(wanted);
    if (m_viewport.scroll != before)
        emit scrollPositionChanged(m_viewport.scroll);
}

void MapGrid::fitTo(bool doEvent)
{
    m_viewport.fit(size(), m_content.mapSize());
    if (doEvent)
        relayout();
}

void MapGrid::scrollBy(QPoint direction)
{
    const QPoint before = m_viewport.scroll;
    if (!m_viewport.scrollBy(direction, m_content.mapSize()))
        return;
    const QPoint shift = (before - m_viewport.scroll) * m_viewport.cellSize;
    pointer().clearCell();
    pointer().press += shift; // what was pressed moves along
    if (m_rubberBand->isVisible())
        m_rubberBand->move(m_rubberBand->pos() + shift);
    update();
    emit scrollPositionChanged(m_viewport.scroll);
}

void MapGrid::setScrollPosition(QPoint position)
{
    if (position != m_viewport.scroll)
        pointer().clearCell();
    m_viewport.scroll = position;
    update();
}

void MapGrid::scrollTo(QPoint position)
{
    const QSize furthest = m_viewport.overflow(m_content.mapSize()).expandedTo({0, 0});
    const QPoint possible(std::clamp(position.x(), 0, furthest.width()),
                          std::clamp(position.y(), 0, furthest.height()));
    if (possible == m_viewport.scroll)
        return;
    setScrollPosition(possible);
    emit scrollPositionChanged(possible);
}

void MapGrid::showCell(QPoint cell)
{
    const QSize shown = m_viewport.visibleSize();
    scrollTo(cell - QPoint(shown.width() / 2, shown.height() / 2));
    change(m_shownCell, QRect(cell, QSize(1, 1)) & QRect(QPoint(0, 0), m_content.mapSize()));
}

void MapGrid::wheelEvent(QWheelEvent *event)
{
    const QPoint delta = event->angleDelta();
    if (delta.isNull())
        return; // a touchpad tells that fingers came or went
    const bool sideways = delta.y() == 0 && delta.x() != 0;
    if (event->modifiers() & Qt::ControlModifier)
        zoomBy(delta.y() < 1 ? -1 : 1);
    else if (event->modifiers() & Qt::ShiftModifier)
        scrollBy({delta.y() < 1 ? 1 : -1, 0});
    else if (sideways)
        scrollBy({delta.x() < 1 ? 1 : -1, 0});
    else
        scrollBy({0, delta.y() < 1 ? 1 : -1});
    event->accept();
}

// ---- The tools, and what they work with -------------------------------------------------------

void MapGrid::setMode(ToolButton mode)
{
    m_tools.setMode(mode);
    pointer().sprite = -1;
    pointer().highlight = QRect();
    if (mode != PlaceSprite)
        selectSprite(-1);
    if (!m_tools.activate()) {
        setMode(savedMode());
        return;
    }
    if (mode != savedMode())
        emit modeChanged(mode);
    update();
}

void MapGrid::showCursor(const QCursor &cursor)
{
    if (cursor.shape() == Qt::BitmapCursor || cursor.shape() != this->cursor().shape())
        setCursor(cursor);
}

void MapGrid::refreshCursor()
{
    const MapTool *tool = m_tools.tool();
    showCursor(tool->isUnavailable() ? QCursor(Qt::ForbiddenCursor) : tool->cursor());
}

void MapGrid::setStamp(const Stamp &stamp)
{
    m_brush.chooseStamp(stamp);
    update();
}

void MapGrid::setTerrain(const Terrain &terrain)
{
    m_brush.terrain = terrain;
    refreshCursor();
    update();
}

void MapGrid::setCurrentTileIndex(int index)
{
    m_brush.chooseTile(index);
    update();
}

void MapGrid::setCurrentTileAnimation(QPointer<TileAnimation> anim)
{
    m_brush.chooseAnimation(anim);
    setMode(PlaceAnim);
}

void MapGrid::setCurrentSpriteAnimation(QPointer<SpriteAnim> anim)
{
    m_brush.chooseSpriteAnimation(anim);
    useSprite();
}

void MapGrid::setCurrentSprite(QUuid bankId, int index)
{
    m_brush.chooseSprite(bankId, index);
    useSprite();
}

void MapGrid::useSprite()
{
    if (m_brush.sprite)
        setMode(PlaceSprite);
    update();
}

void MapGrid::pickTileAt(QPoint point)
{
    const QPointer<TileMap> layer = m_content.tileLayer();
    if (!layer || !m_viewport.viewRect.contains(point))
        return;
    const QPoint cell = m_viewport.cellAt(point);
    const AnimatedBlocks *placements = map()->animatedBlocks();
    const QUuid animation = placements->animationIdAt(placements->areaAt(cell));
    emit tilePicked(layer->cellAt(cell));
    if (!animation.isNull())
        emit animationPicked(animation);
}

void MapGrid::pickStamp(const QRect &cells)
{
    if (const QPointer<TileMap> layer = m_content.tileLayer())
        emit stampPicked(Stamp::of(*layer, cells));
}

void MapGrid::mousePressEvent(QMouseEvent *event)
{
    pointer().press = event->position().toPoint();
    pointer().held = event->buttons();
    m_tools.saveMode();
    if (event->button() == Qt::MiddleButton || m_tools.tool()->mousePressedFirst(event))
        return;
    if (event->modifiers() & Qt::ShiftModifier) {
        setMode(Select);
        emit modeChanged(Select);
    } else if (!m_tools.tool()->mousePressed(event)) {
        QWidget::mousePressEvent(event);
    }
}

void MapGrid::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_shownCell.isEmpty())
        change(m_shownCell, QRect());
    if (event->spontaneous() && event->buttons() == Qt::NoButton)
        releaseButtons(); // another window took the release
    if (m_viewport.viewRect.contains(event->position().toPoint())) {
        m_tools.tool()->mouseMoved(event);
    } else if (pointer().hasCell()) {
        pointer().clearCell();
        update();
    }
}

void MapGrid::mouseReleaseEvent(QMouseEvent *event)
{
    if (pointer().held & Qt::MiddleButton) {
        pickTileAt(event->position().toPoint());
        setMode(savedMode());
    } else {
        m_tools.tool()->mouseReleased(event);
    }
    releaseButtons();
}

void MapGrid::endEdit(const QString &text)
{
    m_editing.edit().end(text);
    m_brush.seed = QRandomGenerator::global()->generate();
}

void MapGrid::releaseButtons()
{
    m_editing.edit().endAll(tr("Edit"));
    m_rubberBand->hide();
    pointer().held = Qt::NoButton;
}

void MapGrid::leaveEvent(QEvent *event)
{
    pointer().clearCell();
    update();
    QWidget::leaveEvent(event);
}

void MapGrid::hideEvent(QHideEvent *event)
{
    releaseButtons();
    QWidget::hideEvent(event);
}

// ---- The selection ----------------------------------------------------------------------------

void MapGrid::selectAll()
{
    setMode(Select);
    setSelection(QRect(QPoint(0, 0), m_content.mapSize()));
}

void MapGrid::selectCurrentTile()
{
    setMode(Select);
    m_editing.selectTile(m_brush.tile.index);
}

void MapGrid::fillSelection()
{
    if (m_brush.doesMore)
        m_editing.fillCells(m_brush.ink(map(), {}, Qt::LeftButton, {}));
    else
        m_editing.fillCells(m_brush.tile);
}

void MapGrid::selectNone()
{
    hideRubberBand();
    setSelection(QRect());
}

void MapGrid::showRubberBand(const QRect &area)
{
    m_rubberBand->setGeometry(area);
    m_rubberBand->show();
}

void MapGrid::hideRubberBand()
{
    m_rubberBand->hide();
}

void MapGrid::showContextMenu(QPoint globalPosition)
{
    pointer().held = Qt::NoButton; // the menu takes the release
    m_contextMenu->popup(globalPosition);
}

bool MapGrid::copyCells()
{
    const MapSelection copied = selected();
    const bool whole = copied.runs.isEmpty();
    if (!map() || !(whole ? MapClipboard::copy(*map(), copied.cells) : MapClipboard::copy(*map(), copied.runs)))
        return false;
    setMode(savedMode());
    m_editing.selectCopied(copied); // choosing a tool cleared it
    return true;
}

void MapGrid::cutSelection()
{
    beginEdit();
    if (copyCells()) {
        clearSelection();
        selectNone();
    }
    endEdit(tr("Cut"));
}

void MapGrid::mapFromSelection()
{
    const QSize size = selection().size();
    if (copyCells())
        emit createMapFromSelection(map()->id(), size);
}

/// In the status line of the window around.
void MapGrid::tell(const QString &text)
{
    QStatusTipEvent tip(text);
    QCoreApplication::sendEvent(this, &tip);
}

void MapGrid::copyAsImage()
{
    if (map())
        static_cast<void>(MapClipboard::copyPicture(*map(), selection(), m_display.transparencyIndex));
}

} // namespace MapEditor
