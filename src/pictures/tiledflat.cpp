// All layers of a map as one.

#include "model/plural.h"
#include "pictures/foreignfile.h"
#include "pictures/tiledmap.h"

#include <QHash>

#include <cmath>

using ForeignFile::Texts;

namespace {

/// Tells tiles through which one sees what is beneath.
class ClearTiles
{
public:
    explicit ClearTiles(const TiledMap &map) : m_map(map) { }

    bool has(quint32 gid)
    {
        const quint32 number = TiledMap::numberOf(gid);
        if (const auto known = m_known.constFind(number); known != m_known.cend())
            return *known;
        const TiledMap::Cell cell = m_map.cell(number);
        const bool isClear = !cell.isEmpty() && isClearIn(m_map.tileSets.at(cell.tileSet), cell.tile);
        m_known.insert(number, isClear);
        return isClear;
    }

private:
    bool isClearIn(const TiledTileSet &tileSet, int tile)
    {
        const QImage image = tileSet.tile(tile);
        if (!tileSet.picture.isNull())
            return isClear(image);
        // the same picture may be that of many tiles
        const auto known = m_knownPictures.constFind(image.cacheKey());
        return known != m_knownPictures.cend() ? *known : *m_knownPictures.insert(image.cacheKey(), isClear(image));
    }

    static bool isClear(const QImage &image)
    {
        if (!image.hasAlphaChannel())
            return false;
        const bool isIndexed = image.format() == QImage::Format_Indexed8;
        const QList<QRgb> colours = image.colorTable();
        for (int y = 0; y < image.height(); ++y) {
            const uchar *line = image.constScanLine(y);
            const auto *pixels = reinterpret_cast<const QRgb *>(line);
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(isIndexed ? colours.value(line[x]) : pixels[x]) < 255)
                    return true;
            }
        }
        return false;
    }

    const TiledMap &m_map;
    QHash<quint32, bool> m_known;
    QHash<qint64, bool> m_knownPictures;
};

using Flat = TiledMap::Flat;

class Flattening
{
public:
    explicit Flattening(const TiledMap &map) : m_map(map), m_bounds({}, map.size), m_clearTiles(map)
    {
        m_gids.fill(0, qsizetype(map.size.width()) * map.size.height());
    }

    void add(const TiledMap::Layer &layer)
    {
        if (layer.opacity < 1)
            m_remarks.add(Texts::tr("The layer “%1” is partly clear: it becomes opaque").arg(layer.name));
        const QPointF cells(layer.offset.x() / m_map.tileSize.width(), layer.offset.y() / m_map.tileSize.height());
        const QPoint moved(int(std::lround(cells.x())), int(std::lround(cells.y())));
        if (QPointF(moved) != cells)
            m_remarks.add(
                Texts::tr("The layer “%1” is moved by parts of cells: it goes to the nearest").arg(layer.name));
        const QRect area = layer.area.translated(moved);
        const quint32 *gid = layer.gids.constData();
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x, ++gid) {
                if (TiledMap::numberOf(*gid) != 0)
                    put({x, y}, *gid);
            }
        }
    }

    [[nodiscard]] Flat finish()
    {
        if (m_hidden > 0)
            m_remarks.add(Texts::tr("What shines through clear pixels of tiles above is lost, in %n cells", nullptr,
                                    plural(m_hidden)));
        if (m_unknown > 0)
            m_remarks.add(
                Texts::tr("%n cells have numbers that no tile set has: they become empty", nullptr, plural(m_unknown)));
        if (m_beyond > 0)
            m_remarks.add(Texts::tr("%n cells of layers lie beyond the map: they are lost", nullptr, plural(m_beyond)));
        return {std::move(m_gids), m_remarks.texts()};
    }

private:
    void put(QPoint cell, quint32 gid)
    {
        if (!m_bounds.contains(cell)) {
            ++m_beyond;
        } else if (m_map.cell(gid).isEmpty()) {
            ++m_unknown;
        } else {
            quint32 &beneath = m_gids.data()[qsizetype(cell.y()) * m_bounds.width() + cell.x()];
            if (beneath != 0 && m_clearTiles.has(gid))
                ++m_hidden;
            beneath = gid;
        }
    }

    const TiledMap &m_map;
    QRect m_bounds;
    ClearTiles m_clearTiles;
    TiledMap::Gids m_gids;
    ForeignFile::Remarks m_remarks;
    // cells of which something is lost
    qint64 m_hidden = 0;
    qint64 m_unknown = 0;
    qint64 m_beyond = 0;
};

} // namespace

TiledMap::Flat TiledMap::flattened() const
{
    Flattening flattening(*this);
    for (const Layer &layer : layers) {
        if (layer.visible && layer.opacity > 0)
            flattening.add(layer);
    }
    return flattening.finish();
}
