#include "model/overviewpicture.h"

#include "model/map.h"
#include "model/palette.h"
#include "model/tileset.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <vector>

namespace {

/// The average colours of tiles, each found when it is first asked for.
class TileColours
{
public:
    /// Of tiles that have a palette.
    explicit TileColours(const TileSet &tiles)
        : m_tiles(tiles)
        , m_table(tiles.palette()->shownColourTable())
        , m_colours(size_t(tiles.count()) << 4)
    { }

    QRgb of(const TileMap::TileData &cell)
    {
        if (!cell.used || cell.index < 0 || cell.index >= m_tiles.count())
            return qRgb(0, 0, 0);
        QRgb &colour = m_colours[size_t(cell.index) << 4 | size_t(cell.offset & 15)];
        if (colour == 0) // which is transparent
            colour = average(cell);
        return colour;
    }

private:
    QRgb average(const TileMap::TileData &cell) const
    {
        std::array<uchar, Tile::Size * Tile::Size> pixels{};
        m_tiles.renderShownTile(cell.index, false, false, false, cell.offset, pixels.data(), Tile::Size);
        int red = 0;
        int green = 0;
        int blue = 0;
        for (const uchar pixel : pixels) {
            const QRgb colour = m_table.at(pixel);
            red += qRed(colour);
            green += qGreen(colour);
            blue += qBlue(colour);
        }
        constexpr int Count = Tile::Size * Tile::Size;
        return qRgb(red / Count, green / Count, blue / Count);
    }

    const TileSet &m_tiles;
    const QList<QRgb> m_table;
    std::vector<QRgb> m_colours; ///< 0 for those that were not asked for yet
};

} // namespace

QImage overviewPicture(const Map &map, QSize size)
{
    const QPointer<TileMap> layer = map.tileLayer();
    const QPointer<TileSet> tiles = map.tileSet();
    const QSize cells = map.size();
    if (!layer || !tiles || !tiles->palette() || cells.isEmpty() || size.isEmpty())
        return {};
    constexpr int FewCells = 64; // of which every pixel is worth looking at
    if (std::max(cells.width(), cells.height()) <= FewCells) {
        QImage picture(cells * TileMap::TileSize, QImage::Format_RGB32); // whose parts the map keeps rendered
        picture.fill(Qt::black);
        QPainter painter(&picture);
        layer->paint(painter, {}, layer->bounds(), TileMap::TileSize, -1);
        painter.end();
        return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    TileColours colours(*tiles);
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        const int row = int((2 * qint64(y) + 1) * cells.height() / (2 * size.height()));
        for (int x = 0; x < size.width(); ++x) {
            const int column = int((2 * qint64(x) + 1) * cells.width() / (2 * size.width()));
            line[x] = colours.of(layer->cellAt({column, row}));
        }
    }
    return picture;
}
