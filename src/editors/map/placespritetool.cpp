#include "editors/map/placespritetool.h"

#include "model/placedsprites.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace MapEditor {

bool PlaceSpriteTool::activate()
{
    m_grabbed = -1;
    surface()->refreshCursor();
    return true;
}

bool PlaceSpriteTool::isUnavailable() const
{
    return map() && !map()->spriteLayerVisible();
}

int PlaceSpriteTool::spriteAt(QPoint pixel) const
{
    if (isUnavailable()) // nobody sees where they are
        return -1;
    return PlacedSprites::indexAt(pixel, map()->sprites(), surface()->spriteBanks());
}

bool PlaceSpriteTool::mousePressed(QMouseEvent *event)
{
    if (!map() || !map()->spriteLayerVisible() || !(event->buttons() & Qt::LeftButton) || isDragging())
        return false;
    const QPoint pixel = viewport().pixelAt(event->position().toPoint());
    if (const int index = spriteAt(pixel); index >= 0)
        grab(index, pixel);
    else if (brush().sprite)
        placeAt(viewport().snappedPixel(pixel));
    else
        surface()->selectSprite(-1);
    surface()->repaintSoon();
    return true;
}

void PlaceSpriteTool::grab(int index, QPoint pixel)
{
    m_grabbed = index;
    m_sprite = map()->sprites().at(index);
    m_grabOffset = pixel - QPoint(m_sprite.x, m_sprite.y);
    m_pulled = m_moved = false;
    pointer().sprite = index;
    surface()->selectSprite(index);
    surface()->beginEdit();
}

void PlaceSpriteTool::placeAt(QPoint pixel)
{
    if (!QRect(QPoint(0, 0), map()->size() * TileMap::TileSize).contains(pixel))
        return;
    Map::PlacedSprite sprite = *brush().sprite;
    sprite.x = pixel.x();
    sprite.y = pixel.y();
    const PlacedSprites::Banks &banks = surface()->spriteBanks();
    if (!banks.isEmpty() && PlacedSprites::area(sprite, banks).isEmpty())
        return; // it is gone since it was chosen
    surface()->beginEdit();
    const int index = map()->addSprite(sprite);
    pointer().sprite = index;
    surface()->endEdit(tr("Place Sprite"));
    surface()->selectSprite(index);
}

bool PlaceSpriteTool::isDragging() const
{
    return map() && m_grabbed >= 0 && m_grabbed < map()->sprites().size() && map()->sprites().at(m_grabbed) == m_sprite
        && pointer().held & Qt::LeftButton;
}

void PlaceSpriteTool::mouseMoved(QMouseEvent *event)
{
    if (!map())
        return;
    const QPoint point = event->position().toPoint();
    m_previewPixel = viewport().snappedPixel(viewport().pixelAt(point));
    pointer().cell = viewport().cellAt(point);
    if (isDragging())
        drag(event);
    else
        pointer().sprite = spriteAt(viewport().pixelAt(point));
    surface()->repaintSoon();
}

void PlaceSpriteTool::drag(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if ((point - pointer().press).manhattanLength() >= QApplication::startDragDistance())
        m_pulled = true;
    if (!m_pulled)
        return;
    const QPoint position = viewport().snappedPixel(viewport().pixelAt(point) - m_grabOffset);
    if (position == QPoint(m_sprite.x, m_sprite.y))
        return;
    m_sprite.x = position.x();
    m_sprite.y = position.y();
    m_moved = true;
    map()->setSprite(m_grabbed, m_sprite);
}

void PlaceSpriteTool::mouseReleased(QMouseEvent *)
{
    if (m_grabbed < 0)
        return;
    const bool clicked = isDragging() && !m_moved;
    const int index = std::exchange(m_grabbed, -1);
    surface()->endEdit(tr("Move Sprite"));
    if (clicked)
        surface()->clickSprite(index);
}

void PlaceSpriteTool::paintOver(QPainter &painter) const
{
    const auto &chosen = brush().sprite;
    if (!chosen || m_grabbed >= 0 || pointer().sprite >= 0 || !pointer().hasCell())
        return;
    Map::PlacedSprite sprite = *chosen;
    sprite.x = m_previewPixel.x();
    sprite.y = m_previewPixel.y();
    PlacedSprites::paint(painter, viewport().viewRect.topLeft(), viewport().visibleCells(), viewport().cellSize,
                         {sprite}, surface()->spriteBanks(), surface()->spriteTicks());
}

} // namespace MapEditor
