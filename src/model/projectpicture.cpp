#include "model/projectpicture.h"

#include "model/image.h"
#include "model/map.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"

#include <QPainter>
#include <QSet>

#include <algorithm>

namespace {

/// How many parts of a map are looked at in each direction, and how many cells of each.
constexpr int PartsAcross = 16;
constexpr int CellsLookedAt = 6;

/// How much there is to see in a part of a map: the number of different tiles among some of its cells.
qsizetype variety(const TileMap &tiles, const QRect &part)
{
    QSet<int> seen;
    for (int y = 0; y < CellsLookedAt; ++y) {
        for (int x = 0; x < CellsLookedAt; ++x) {
            const TileMap::TileData cell = tiles.cellAt(
                part.topLeft() + QPoint(part.width() * x / CellsLookedAt, part.height() * y / CellsLookedAt));
            if (cell.used)
                seen.insert(cell.index);
        }
    }
    return seen.size();
}

/// How many squares of that side fit into a size; at least one.
QSize cellsIn(const QSize &size, int side)
{
    return QSize(size.width() / side, size.height() / side).expandedTo({1, 1});
}

/// The part of a map, as large as the picture can be, in which most is to see.
QRect partToShow(const TileMap &tiles, const QSize &most)
{
    const QSize size = cellsIn(most, TileMap::TileSize).boundedTo(tiles.size());
    const QSize room = tiles.size() - size;
    QRect best({0, 0}, size);
    qsizetype mostSeen = 0;
    for (int y = 0; y < PartsAcross; ++y) {
        for (int x = 0; x < PartsAcross; ++x) {
            const QPoint at(room.width() * x / (PartsAcross - 1), room.height() * y / (PartsAcross - 1));
            if (const qsizetype found = variety(tiles, {at, size}); found > mostSeen) {
                mostSeen = found;
                best.moveTopLeft(at);
            }
        }
    }
    return mostSeen > 0 ? best : QRect();
}

QImage pictureOf(const Map &map, const QSize &most)
{
    const QPointer<TileMap> tiles = map.tileLayer();
    const QRect part = tiles ? partToShow(*tiles, most) : QRect();
    return part.isEmpty() ? QImage() : tiles->toImage(part);
}

QImage pictureOf(const Image &image, const QSize &most)
{
    const QImage picture = image.image().convertToFormat(QImage::Format_RGB32);
    if (picture.width() <= most.width() && picture.height() <= most.height())
        return picture;
    return picture.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/// The first pieces of an asset, row by row.
template <typename PieceAt>
QImage mosaic(const QSize &size, int count, int side, PieceAt pieceAt)
{
    const QSize most = cellsIn(size, side);
    const int columns = std::min(count, most.width());
    if (columns == 0)
        return {};
    const int rows = std::min((count + columns - 1) / columns, most.height());
    QImage picture(columns * side, rows * side, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    for (int index = 0; index < std::min(count, columns * rows); ++index)
        painter.drawImage(index % columns * side, index / columns * side, pieceAt(index));
    return picture;
}

/// A sprite in the palette's own colours, whatever a view shows now.
QImage pictureOf(const SpriteBank &bank, int index)
{
    QImage sprite = bank.spriteImage(index, false, false, false);
    const QList<QRgb> own = sprite.colorTable();
    QList<QRgb> drawn = own;
    const int last = bank.clearPixels().pixelCount() - 1;
    for (qsizetype pixel = 0; pixel < drawn.size(); ++pixel) {
        const qsizetype entry = pixel & last;
        drawn[pixel] = entry == bank.clearPixels().pixel() ? 0 : own.at(entry) | 0xFF000000U;
    }
    sprite.setColorTable(drawn);
    return sprite;
}

QImage pictureOf(const SpriteBank &bank, const QSize &most)
{
    return mosaic(most, bank.count(), SpriteBank::SpriteSize, [&bank](int index) { return pictureOf(bank, index); });
}

QImage pictureOf(const TileSet &tiles, const QSize &most)
{
    return mosaic(most, tiles.count(), Tile::Size,
                  [&tiles](int index) { return tiles.tileImage(index, false, false, false, tiles.tileOffset(index)); });
}

/// The first picture that can be made of assets of a kind, that in front before the others.
template <typename Asset>
QImage pictureOfOne(QList<QPointer<Asset>> assets, const QUuid &front, const QSize &most)
{
    std::stable_partition(assets.begin(), assets.end(), [&front](const auto &asset) { return asset->id() == front; });
    for (const QPointer<Asset> &asset : std::as_const(assets)) {
        if (const QImage picture = pictureOf(*asset, most); !picture.isNull())
            return picture;
    }
    return {};
}

} // namespace

QImage projectPicture(const Project &project, const QUuid &front, const QSize &most)
{
    const auto image = project.image(front);
    const auto bank = project.spriteBank(front);
    QImage picture = image ? pictureOf(*image, most) : bank ? pictureOf(*bank, most) : QImage();
    if (picture.isNull())
        picture = pictureOfOne(project.maps(), front, most);
    if (picture.isNull())
        picture = pictureOfOne(project.images(), front, most);
    if (picture.isNull())
        picture = pictureOfOne(project.spriteBanks(), front, most);
    return picture.isNull() ? pictureOfOne(project.tileSets(), front, most) : picture;
}

QImage projectThumbnail(const Project &project, const QSize &most)
{
    const QImage picture = projectPicture(project, {}, most);
    if (picture.isNull())
        return {};
    const QSize fitting = picture.size().scaled(most, Qt::KeepAspectRatio);
    if (fitting.width() < picture.width()) // not even one tile fits
        return picture.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const int times = fitting.width() / picture.width(); // whole, so that every pixel stays a square
    return times < 2 ? picture : picture.scaled(picture.size() * times);
}
