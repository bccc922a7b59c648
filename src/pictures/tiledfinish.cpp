// What is done when all elements of a map are there.

#include "pictures/tiledloader.h"

#include <algorithm>

using ForeignFile::Texts;

void TiledLoader::joinChunks()
{
    if (!m_isInfinite)
        return;
    QRect all;
    for (const Chunk &chunk : m_chunks)
        all |= chunk.area;
    if (m_chunks.empty())
        all = QRect({}, m_map.size);
    m_map.origin = all.topLeft();
    m_map.size = all.size();
    for (TiledMap::Layer &layer : m_map.layers) {
        // chunks far from each other make more cells than there is data
        const qint64 width = qint64(all.right()) - all.left() + 1;
        const qint64 height = qint64(all.bottom()) - all.top() + 1;
        if (!takeCells(width, height))
            return;
        layer.area = QRect({}, all.size());
        layer.gids.fill(0, width * height);
    }
    for (const Chunk &chunk : m_chunks) {
        TiledMap::Layer &layer = m_map.layers[chunk.layer];
        const QPoint at = chunk.area.topLeft() - m_map.origin;
        for (int y = 0; y < chunk.area.height(); ++y) {
            const auto row = chunk.gids.cbegin() + qsizetype(y) * chunk.area.width();
            const qsizetype to = qsizetype(at.y() + y) * all.width() + at.x();
            std::copy_n(row, chunk.area.width(), layer.gids.begin() + to);
        }
    }
    m_chunks.clear();
}

void TiledLoader::readPictures()
{
    for (const Picture &picture : m_pictures) {
        TiledTileSet &tileSet = m_map.tileSets[picture.tileSet];
        const TiledFolder::Place place = m_folder.locate(picture.folder, picture.source);
        if (place.isOutside && !tileSet.outside.contains(place.name))
            tileSet.outside.append(place.name);
        const auto image = m_folder.picture(place, picture.transparent);
        if (!image)
            tileSet.problems.append(image.reason());
        else if (picture.tile < 0)
            takePicture(tileSet, *image);
        else
            tileSet.pictures.insert(int(picture.tile), *image);
        if (picture.tile >= 0)
            tileSet.count = std::max(tileSet.count, int(picture.tile) + 1);
    }
    std::stable_sort(m_map.tileSets.begin(), m_map.tileSets.end(),
                     [](const TiledTileSet &a, const TiledTileSet &b) { return a.firstGid < b.firstGid; });
    for (qsizetype i = 0; i < m_map.tileSets.size(); ++i) {
        TiledTileSet &tileSet = m_map.tileSets[i];
        if (i > 0 && tileSet.firstGid == m_map.tileSets.at(i - 1).firstGid)
            fail(Texts::tr("Two tile sets begin with number %1").arg(tileSet.firstGid));
        const auto isThere = [&tileSet](int tile) { return tile < tileSet.count; };
        const qsizetype before = tileSet.animations.size();
        for (auto animation = tileSet.animations.begin(); animation != tileSet.animations.end();) {
            const bool isWhole = isThere(animation.key())
                && std::all_of(animation->cbegin(), animation->cend(),
                               [&](const TiledTileSet::Frame &frame) { return isThere(frame.tile); });
            animation = isWhole ? std::next(animation) : tileSet.animations.erase(animation);
        }
        if (tileSet.animations.size() < before)
            m_remarks.add(Texts::tr("The tile set “%1” has animations of tiles that are not there").arg(tileSet.name));
    }
}

/// Finds out how many tiles the picture has, and believes the file as far as they are there.
void TiledLoader::takePicture(TiledTileSet &tileSet, QImage picture)
{
    tileSet.picture = std::move(picture);
    const auto fitting = [&tileSet](int length, int side) {
        return std::max((length - 2 * tileSet.margin + tileSet.spacing) / (side + tileSet.spacing), 0);
    };
    const QSize tile = tileSet.tileSize;
    if (tile.isEmpty()) {
        tileSet.problems.append(Texts::tr("The tile set “%1” says no size of its tiles").arg(tileSet.name));
        return;
    }
    const int columns = fitting(tileSet.picture.width(), tile.width());
    const qint64 room = qint64(columns) * fitting(tileSet.picture.height(), tile.height());
    tileSet.columns = columns;
    if (tileSet.count == 0)
        tileSet.count = int(room);
    if (tileSet.count > room) {
        tileSet.problems.append(Texts::tr("The picture of the tile set “%1” has %2 of its %3 tiles")
                                    .arg(tileSet.name)
                                    .arg(room)
                                    .arg(tileSet.count));
    }
}

void TiledLoader::finishObjects()
{
    const QPointF origin(double(m_map.origin.x()) * m_map.tileSize.width(),
                         double(m_map.origin.y()) * m_map.tileSize.height());
    for (TiledMap::Object &object : m_map.objects) {
        object.topLeft -= origin;
        if (object.shape != TiledMap::Shape::Tile)
            continue;
        const TiledMap::Cell cell = m_map.cell(object.gid);
        if (object.size.isEmpty() && !cell.isEmpty())
            object.size = m_map.tileSets.at(cell.tileSet).tileSize;
        object.topLeft.ry() -= object.size.height();
    }
}
