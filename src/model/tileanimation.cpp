#include "model/tileanimation.h"

#include "model/tileset.h"

#include <QPainter>

#include <algorithm>

namespace {

/// Draws the cells of a frame, as far as size reaches, with their top left corner at origin; cells that name no
/// tile draw nothing.
void drawFrame(QPainter &painter, QPoint origin, const AnimationFrame &frame, QSize size, const TileSet &tiles)
{
    for (int row = 0; row < size.height(); ++row) {
        for (int column = 0; column < size.width(); ++column) {
            const AnimationFrame::Cell cell = frame.cell(row, column);
            if (cell.index < 0 || cell.index >= tiles.count())
                continue;
            painter.drawImage(origin + QPoint(column, row) * Tile::Size,
                              tiles.shownTileImage(cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset));
        }
    }
}

} // namespace

TileAnimation::TileAnimation(QObject *parent) : Animation(Tiles, tr("Blocks!"), parent) { }

void TileAnimation::setMapObjectType(MapObjectType type)
{
    if (type == m_type)
        return;
    m_type = type;
    emit contentChanged();
}

QPointer<TileAnimation> TileAnimation::clone() const
{
    const QPointer<TileAnimation> copy = new TileAnimation;
    copy->setName(tr("%1 (Copy)").arg(name()));
    copy->m_tileSet = m_tileSet;
    copy->m_type = m_type;
    copy->setDelay(delay());
    copy->copyFrom(*this, true);
    return copy;
}

void TileAnimation::updateOffsets()
{
    if (!m_tileSet)
        return;
    for (int i = 0; i < frameCount(); ++i) {
        const QPointer<AnimationFrame> frame = this->frame(i);
        for (int row = 0; row < frame->cells().size(); ++row) {
            for (int column = 0; column < frame->cells().at(row).size(); ++column)
                frame->setOffset(row, column, m_tileSet->tileOffset(frame->cell(row, column).index));
        }
    }
}

qint64 TileAnimation::tick(quint64 tick)
{
    if (tick != m_lastTick) {
        m_lastTick = tick;
        if (delay() <= 0 || tick % static_cast<quint64>(delay()) != 0)
            return -1;
        // frames may have been deleted since the last tick
        ++m_currentFrame;
        if (m_currentFrame >= static_cast<quint64>(frameCount()))
            m_currentFrame = 0;
    }
    return static_cast<qint64>(m_currentFrame);
}

TileAnimation::State TileAnimation::state() const
{
    return {Animation::state(), static_cast<int>(m_type)};
}

void TileAnimation::restore(const State &state)
{
    m_type = static_cast<MapObjectType>(state.type);
    Animation::restore(state);
}

QImage TileAnimation::preview(const QSize &size) const
{
    constexpr QRgb background = qRgb(32, 32, 32);
    const int side = Tile::Size * std::max(this->size().width(), this->size().height());
    const bool drawable = frameCount() > 0 && m_tileSet && side > 0;
    QImage image(drawable ? QSize(side, side) : size, QImage::Format_ARGB32);
    image.fill(background);
    if (!drawable)
        return image;
    const QSize margins = image.size() - this->size() * Tile::Size;
    QPainter painter(&image);
    drawFrame(painter, QPoint(margins.width() / 2, margins.height() / 2), *frame(0), this->size(), *m_tileSet);
    painter.end();
    return image.scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
}

QImage TileAnimation::frameImage(const QSize &size) const
{
    QImage image(this->size() * Tile::Size, QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    if (frameCount() > 0 && m_tileSet) {
        QPainter painter(&image);
        drawFrame(painter, QPoint(0, 0), *frame(0), this->size(), *m_tileSet);
    }
    return image.scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
}
