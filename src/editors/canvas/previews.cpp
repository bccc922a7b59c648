#include "editors/canvas/previews.h"

#include "model/map.h"
#include "model/tilemap.h"

#include <QPainter>

#include <algorithm>
#include <cstring>

namespace {

bool shows(const AnimationFrame &frame, int index)
{
    return std::ranges::any_of(frame.cells(), [index](const auto &row) {
        return std::ranges::any_of(row, [index](const AnimationFrame::Cell &cell) { return cell.index == index; });
    });
}

} // namespace

QImage Previews::seamless(const QImage &picture)
{
    if (picture.format() != QImage::Format_Indexed8)
        return {};
    constexpr int Times = 3;
    QImage repeated(picture.size() * Times, QImage::Format_Indexed8);
    repeated.setColorTable(picture.colorTable());
    for (int y = 0; y < repeated.height(); ++y) {
        uchar *row = repeated.scanLine(y);
        for (int time = 0; time < Times; ++time)
            std::memcpy(row + time * picture.width(), picture.constScanLine(y % picture.height()),
                        size_t(picture.width()));
    }
    return repeated;
}

Animation *Previews::animationShowing(const QList<Animation *> &animations, int index)
{
    const auto found = std::ranges::find_if(animations, [index](const Animation *animation) {
        for (int frame = 0; animation && frame < animation->frameCount(); ++frame) {
            if (shows(*animation->frame(frame), index))
                return true;
        }
        return false;
    });
    return found == animations.end() ? nullptr : *found;
}

QImage Previews::frame(const Animation &animation, int number, const CellPicture &picture)
{
    const QSize size = animation.size() * animation.cellSize();
    if (animation.frameCount() == 0 || size.isEmpty())
        return {};
    QImage whole(size, QImage::Format_ARGB32_Premultiplied);
    whole.fill(Qt::transparent);
    QPainter painter(&whole);
    const AnimationFrame &shown = *animation.frame(number % animation.frameCount());
    for (int row = 0; row < shown.cells().size(); ++row) {
        for (int column = 0; column < shown.cells().at(row).size(); ++column)
            painter.drawImage(QPoint(column, row) * animation.cellSize(), picture(shown.cell(row, column)));
    }
    return whole;
}

int Previews::interval(const Animation &animation)
{
    constexpr int Tick = 20; // as in the animation editors
    constexpr int LongestDelay = 60'000 / Tick;
    return animation.frameCount() > 1 ? (std::min(animation.delay(), LongestDelay) + 1) * Tick : 0;
}

QImage Previews::before(const Animation &animation, int index, const CellPicture &picture)
{
    for (int number = 1; number < animation.frameCount(); ++number) {
        const AnimationFrame::Cells &cells = animation.frame(number)->cells();
        for (int row = 0; row < cells.size(); ++row) {
            for (int column = 0; column < cells.at(row).size(); ++column) {
                if (cells.at(row).at(column).index != index)
                    continue;
                const AnimationFrame::Cell earlier = animation.frame(number - 1)->cell(row, column);
                if (earlier.index != index)
                    return picture(earlier);
            }
        }
    }
    return {};
}

std::optional<QPoint> Previews::PlaceOnMap::find(const Map &map, int tile)
{
    const QPointer<TileMap> layer = map.tileLayer();
    if (!layer)
        return {};
    const auto isThere = [&](QPoint cell) {
        const TileMap::TileData data = layer->cellAt(cell);
        return data.used && data.index == tile;
    };
    const QSize size = layer->size();
    const bool isSmall = qint64(size.width()) * size.height() <= FewCells;
    if (m_map == &map && m_tile == tile && m_searched && (m_place ? isThere(*m_place) : !isSmall))
        return m_place;
    m_map = &map;
    m_tile = tile;
    m_place.reset();
    m_searched = true;
    qint64 left = MostCells;
    for (int y = 0; y < size.height() && left > 0; ++y) {
        for (int x = 0; x < size.width() && left > 0; ++x, --left) {
            if (isThere({x, y})) {
                m_place = QPoint(x, y);
                return m_place;
            }
        }
    }
    return m_place;
}

QImage Previews::surroundings(const Map &map, QPoint cell, int neighbours)
{
    constexpr int CellSize = 8;
    const int side = 2 * neighbours + 1;
    const QRect cells(cell - QPoint(neighbours, neighbours), QSize(side, side));
    QImage picture(cells.size() * CellSize, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const QRect there = cells & QRect(QPoint(), map.size());
    QPainter painter(&picture);
    map.paintLayers(painter, (there.topLeft() - cells.topLeft()) * CellSize, there, CellSize,
                    map.tileTransparencyIndex());
    return picture;
}
