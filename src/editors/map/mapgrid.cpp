#include "editors/map/mapgrid.h"

#include "editors/map/drawtool.h"
#include "editors/map/pastetool.h"
#include "editors/map/picktool.h"
#include "editors/map/placeanimationtool.h"
#include "editors/map/placespritetool.h"
#include "editors/map/selecttool.h"
#include "model/tileset.h"

#include <QDebug>
#include <QMenu>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QRubberBand>

using namespace Quenmora::Ui;

namespace MapEditor {

MapGrid::MapGrid(QWidget *parent)
    : QWidget(parent)
    , m_rubberBand(new QRubberBand(QRubberBand::Rectangle, this))
    , m_contextMenu(new QMenu(this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Map"));
    m_rubberBand->hide();
    addTool<DrawTool>();
    addTool<SelectTool>();
    addTool<PasteTool>();
    addTool<PickTool>();
    addTool<PlaceAnimationTool>();
    addTool<PlaceSpriteTool>();
    m_tool = m_tools.value(m_mode);
    refreshCursor();
    buildContextMenu();
}

MapGrid::~MapGrid() = default;

template <typename Tool>
void MapGrid::addTool()
{
    const auto tool = std::make_shared<Tool>(this);
    m_tools.insert(tool->mode(), tool);
}

void MapGrid::buildContextMenu()
{
    m_contextMenu->addAction(tr("Cut"), this, &MapGrid::cutSelection);
    m_contextMenu->addAction(tr("Copy"), this, &MapGrid::copySelection);
    m_contextMenu->addAction(tr("Copy to new map"), this, &MapGrid::mapFromSelection);
    m_contextMenu->addAction(tr("Copy as Image"), this, &MapGrid::copyAsImage);
    m_contextMenu->addAction(tr("Fill"), this, &MapGrid::fillSelection);
}

// ---- The current tool and what it draws with --------------------------------------------------

void MapGrid::setMode(ToolButton mode)
{
    m_savedMode = m_mode;
    m_mode = mode;
    m_hoverSprite = -1;
    m_highlight = QRect();
    if (mode != PlaceSprite)
        selectSprite(-1);
    if (const auto tool = m_tools.value(mode)) {
        m_tool = tool;
        if (!tool->activate() && m_savedMode != Paste) {
            setMode(m_savedMode);
            return;
        }
    } else {
        qInfo().noquote().nospace() << "MapWidget::setMode(" << QMetaEnum::fromType<ToolButton>().valueToKey(mode)
                                    << ")";
        qInfo("Unhandled switch case");
    }
    if (mode != m_savedMode)
        emit modeChanged(mode);
    update();
}

void MapGrid::refreshCursor()
{
    setCursor(m_tool->isUnavailable() ? QCursor(Qt::ForbiddenCursor) : m_tool->cursor());
}

void MapGrid::setCurrentTileIndex(int index)
{
    m_currentAnimation.clear();
    m_currentTile.index = index;
    update();
}

void MapGrid::setCurrentTileAnimation(QPointer<TileAnimation> anim)
{
    m_currentTile.index = -1;
    m_currentAnimation = anim;
    setMode(PlaceAnim);
}

void MapGrid::setCurrentSpriteAnimation(QPointer<SpriteAnim> anim)
{
    if (!anim) {
        setSpriteTemplate(std::nullopt);
        return;
    }
    const auto *bank = qobject_cast<SpriteBank *>(anim->parent());
    Map::PlacedSprite sprite;
    sprite.bank = bank ? bank->id() : QUuid();
    sprite.animation = anim->id();
    sprite.sprite = -1;
    setSpriteTemplate(sprite);
}

void MapGrid::setCurrentSprite(QUuid bankId, int index)
{
    if (index < 0) {
        setSpriteTemplate(std::nullopt);
        return;
    }
    Map::PlacedSprite sprite;
    sprite.bank = bankId;
    sprite.sprite = index;
    setSpriteTemplate(sprite);
}

void MapGrid::setSpriteTemplate(const std::optional<Map::PlacedSprite> &sprite)
{
    m_currentTile.index = -1;
    m_spriteTemplate = sprite;
    if (sprite)
        setMode(PlaceSprite);
    update();
}

void MapGrid::setRotated(bool rotated)
{
    m_currentTile.rotate = rotated;
    update();
}

void MapGrid::setFlipped(bool flipped)
{
    m_currentTile.flip = flipped;
    update();
}

void MapGrid::setMirrored(bool mirrored)
{
    m_currentTile.mirror = mirrored;
    update();
}

TileMap::TileData MapGrid::currentTile() const
{
    TileMap::TileData cell = m_currentTile;
    const QPointer<TileSet> tiles = m_map ? m_map->tileSet() : nullptr;
    cell.offset = tiles ? tiles->tileOffset(cell.index) : 0;
    cell.used = true;
    return cell;
}

void MapGrid::pickTileAt(QPoint point)
{
    if (!m_map || !m_map->tileLayer() || !m_viewport.viewRect.contains(point))
        return;
    const QPoint cell = m_viewport.cellAt(point);
    const AnimatedBlocks *placements = m_map->animatedBlocks();
    const QUuid animation = placements->animationIdAt(placements->areaAt(cell));
    emit tilePicked(m_map->tileLayer()->cellAt(cell));
    if (!animation.isNull())
        emit animationPicked(animation);
}

bool MapGrid::hasHoverCell() const
{
    return m_hoverCell.x() >= 0 && m_hoverCell.y() >= 0;
}

void MapGrid::beginEdit()
{
    m_edit.begin(m_map);
}

void MapGrid::endEdit(const QString &text)
{
    m_edit.end(text, m_undoStack);
}

// ---- Mouse ------------------------------------------------------------------------------------

void MapGrid::mousePressEvent(QMouseEvent *event)
{
    m_pressPoint = event->position().toPoint();
    m_buttons = event->buttons();
    m_savedMode = m_mode;
    if (event->button() == Qt::MiddleButton || m_tool->mousePressedFirst(event))
        return;
    if (event->modifiers() & Qt::ShiftModifier) {
        setMode(Select);
        emit modeChanged(Select);
    } else if (!m_tool->mousePressed(event)) {
        QWidget::mousePressEvent(event);
    }
}

void MapGrid::mouseMoveEvent(QMouseEvent *event)
{
    if (event->spontaneous() && event->buttons() == Qt::NoButton)
        releaseButtons(); // another window took the release
    if (m_viewport.viewRect.contains(event->position().toPoint())) {
        m_tool->mouseMoved(event);
    } else if (hasHoverCell()) {
        clearHoverCell();
        update();
    }
}

void MapGrid::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_buttons & Qt::MiddleButton) {
        pickTileAt(event->position().toPoint());
        setMode(m_savedMode);
    } else {
        m_tool->mouseReleased(event);
    }
    releaseButtons();
}

void MapGrid::releaseButtons()
{
    m_edit.endAll(tr("Edit"), m_undoStack);
    m_rubberBand->hide();
    m_buttons = Qt::NoButton;
}

void MapGrid::leaveEvent(QEvent *event)
{
    clearHoverCell();
    update();
    QWidget::leaveEvent(event);
}

void MapGrid::hideEvent(QHideEvent *event)
{
    releaseButtons();
    QWidget::hideEvent(event);
}

} // namespace MapEditor
