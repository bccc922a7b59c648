#include "editors/map/placespritetool.h"

#include "editors/map/mapgrid.h"
#include "model/placedsprites.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace MapEditor {

bool PlaceSpriteTool::activate()
{
    m_grabbed = -1;
    grid()->refreshCursor();
    return true;
}

bool PlaceSpriteTool::isUnavailable() const
{
    return grid()->map() && !grid()->map()->spriteLayerVisible();
}

int PlaceSpriteTool::spriteAt(QPoint pixel) const
{
    if (isUnavailable()) // nobody sees where they are
        return -1;
    return PlacedSprites::indexAt(pixel, grid()->map()->sprites(), grid()->spriteBanks());
}

bool PlaceSpriteTool::mousePressed(QMouseEvent *event)
{
    const QPointer<Map> map = grid()->map();
    if (!map || !map->spriteLayerVisible() || !(event->buttons() & Qt::LeftButton) || isDragging())
        return false;
    const QPoint pixel = grid()->viewport().pixelAt(event->position().toPoint());
    if (const int index = spriteAt(pixel); index >= 0)
        grab(index, pixel);
    else if (grid()->spriteTemplate())
        placeAt(grid()->viewport().snappedPixel(pixel));
    else
        grid()->selectSprite(-1);
    grid()->update();
    return true;
}

void PlaceSpriteTool::grab(int index, QPoint pixel)
{
    m_grabbed = index;
    m_sprite = grid()->map()->sprites().at(index);
    m_grabOffset = pixel - QPoint(m_sprite.x, m_sprite.y);
    m_pulled = m_moved = false;
    grid()->setHoverSprite(index);
    grid()->selectSprite(index);
    grid()->beginEdit();
}

void PlaceSpriteTool::placeAt(QPoint pixel)
{
    const QPointer<Map> map = grid()->map();
    if (!QRect(QPoint(0, 0), map->size() * TileMap::TileSize).contains(pixel))
        return;
    Map::PlacedSprite sprite = *grid()->spriteTemplate();
    sprite.x = pixel.x();
    sprite.y = pixel.y();
    grid()->beginEdit();
    const int index = map->addSprite(sprite);
    grid()->setHoverSprite(index);
    grid()->endEdit(MapGrid::tr("Place Sprite"));
    grid()->selectSprite(index);
}

bool PlaceSpriteTool::isDragging() const
{
    const QPointer<Map> map = grid()->map();
    return map && m_grabbed >= 0 && m_grabbed < map->sprites().size() && map->sprites().at(m_grabbed) == m_sprite
        && grid()->heldButtons() & Qt::LeftButton;
}

void PlaceSpriteTool::mouseMoved(QMouseEvent *event)
{
    if (!grid()->map())
        return;
    const MapViewport &viewport = grid()->viewport();
    const QPoint point = event->position().toPoint();
    m_previewPixel = viewport.snappedPixel(viewport.pixelAt(point));
    grid()->setHoverCell(viewport.cellAt(point));
    if (isDragging())
        drag(event);
    else
        grid()->setHoverSprite(spriteAt(viewport.pixelAt(point)));
    grid()->update();
}

void PlaceSpriteTool::drag(QMouseEvent *event)
{
    const MapViewport &viewport = grid()->viewport();
    const QPoint point = event->position().toPoint();
    if ((point - grid()->pressPoint()).manhattanLength() >= QApplication::startDragDistance())
        m_pulled = true;
    if (!m_pulled)
        return;
    const QPoint position = viewport.snappedPixel(viewport.pixelAt(point) - m_grabOffset);
    if (position == QPoint(m_sprite.x, m_sprite.y))
        return;
    m_sprite.x = position.x();
    m_sprite.y = position.y();
    m_moved = true;
    grid()->map()->setSprite(m_grabbed, m_sprite);
}

void PlaceSpriteTool::mouseReleased(QMouseEvent *)
{
    if (m_grabbed < 0)
        return;
    const bool clicked = isDragging() && !m_moved;
    const int index = std::exchange(m_grabbed, -1);
    grid()->endEdit(MapGrid::tr("Move Sprite"));
    if (clicked)
        emit grid()->spriteClicked(index);
}

void PlaceSpriteTool::paintOver(QPainter &painter) const
{
    const auto &chosen = grid()->spriteTemplate();
    if (!chosen || m_grabbed >= 0 || grid()->hoverSprite() >= 0 || !grid()->hasHoverCell())
        return;
    Map::PlacedSprite sprite = *chosen;
    sprite.x = m_previewPixel.x();
    sprite.y = m_previewPixel.y();
    const MapViewport &viewport = grid()->viewport();
    PlacedSprites::paint(painter, viewport.viewRect.topLeft(), viewport.visibleCells(), viewport.cellSize, {sprite},
                         grid()->spriteBanks(), grid()->spriteTicks());
}

} // namespace MapEditor
