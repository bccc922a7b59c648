#include "importing/animationtiming.h"
#include "importing/kinds.h"
#include "importing/reducedtiles.h"
#include "importing/sharedcolours.h"
#include "importing/texts.h"
#include "model/spritebank.h"
#include "model/transform.h"
#include "pictures/pixeltile.h"
#include "pictures/tiledmap.h"

#include <QHash>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <tuple>

// Maps of Tiled: tiles of 8 × 8 pixels, a map, animations of tiles, and sprites that are placed on the map.

namespace Importing {
namespace {

using Cell = TiledMap::Cell;

constexpr int Side = Tile::Size;
constexpr int MostSide = 9999; ///< cells along a map
constexpr qint64 MostCells = 8'000'000;
constexpr qint64 MostAtlasPixels = 2 << 20; ///< of tiles that are reduced at a time
constexpr qsizetype MostPlacements = 1024; ///< of animations on a map
constexpr int AtlasColumns = 32; ///< of tiles

/// The orientation that two make, one after the other.
int composed(int first, int second)
{
    using namespace TileOrientation;
    const auto &from = Origins[size_t(first)];
    const auto &then = Origins[size_t(second)];
    for (int orientation = 0; orientation < Count; ++orientation) {
        const auto &both = Origins[size_t(orientation)];
        if (both[0] == from[then[0]] && both[1] == from[then[1]]) // which tells the rest
            return orientation;
    }
    return 0;
}

int orientationOf(const Cell &cell)
{
    using namespace TileOrientation;
    return (cell.rotate ? RotateBit : 0) | (cell.mirror ? MirrorBit : 0) | (cell.flip ? FlipBit : 0);
}

/// All tiles that a map shows, cut into pieces of 8 × 8 pixels that the machine can show.
class Atlas
{
public:
    Atlas(const TiledMap &map, QStringList &remarks) : m_map(map), m_pieces(map.tileSize / Side), m_remarks(remarks) { }

    /// Pieces across and down a cell of the map.
    [[nodiscard]] QSize pieces() const { return m_pieces; }

    void add(int tileSet, int tile)
    {
        const std::pair key(tileSet, tile);
        if (m_numbers.contains(key))
            return;
        m_numbers.insert(key, int(m_numbers.size()) + 1); // the first one is blank
        m_keys.append(key);
    }

    [[nodiscard]] qint64 pixelCount() const
    {
        return (qint64(m_keys.size()) + 1) * m_map.tileSize.width() * m_map.tileSize.height();
    }

    void reduce(Dithering dithering)
    {
        const QSize size = m_map.tileSize;
        const int count = int(m_keys.size()) + 1;
        m_columns = std::min(count, AtlasColumns);
        const int rows = (count + m_columns - 1) / m_columns;
        QImage picture(size.width() * m_columns, size.height() * rows, QImage::Format_ARGB32);
        picture.fill(0);
        {
            QPainter painter(&picture);
            int misfits = 0;
            for (qsizetype i = 0; i < m_keys.size(); ++i) {
                const QImage tile = m_map.tileSets[m_keys[i].first].tile(m_keys[i].second);
                misfits += !tile.isNull() && tile.size() != size ? 1 : 0;
                const QRect area(place(int(i) + 1), size);
                painter.setClipRect(area);
                painter.drawImage(area.left(), area.top() + size.height() - tile.height(),
                                  tile); // they stand on the cell
            }
            if (misfits > 0)
                m_remarks.append(
                    Texts::tr("Tiles that are not as large as the cells, and are cut or filled: %1").arg(misfits));
        }
        m_reduction = TileReduction::of(picture, {.dithering = dithering});
        m_blank = m_reduction.cells.front().tile;
    }

    [[nodiscard]] IncomingAssets incoming() const
    {
        IncomingAssets all = incomingOf(m_reduction);
        std::swap(all.tiles->tiles[0], all.tiles->tiles[m_blank]); // blank cells show tile 0
        return all;
    }

    /// The cells that show a cell of the map, piece by piece.
    [[nodiscard]] TileMap::TileData cell(const Cell &shown, int column, int row) const
    {
        if (shown.isEmpty())
            return {};
        // where the piece comes from, as oriented() turns pictures
        int x = shown.mirror ? m_pieces.width() - 1 - column : column;
        int y = shown.flip ? m_pieces.height() - 1 - row : row;
        if (shown.rotate)
            std::tie(x, y) = std::pair(y, m_pieces.width() - 1 - x);
        if (x >= m_pieces.width() || y >= m_pieces.height() || y < 0)
            return {};
        const int number = m_numbers.value({shown.tileSet, shown.tile});
        const QPoint at = place(number) / Side + QPoint(x, y);
        TileReduction::Cell piece =
            m_reduction.cells[size_t(at.y()) * size_t(m_reduction.size.width()) + size_t(at.x())];
        piece.orientation = composed(piece.orientation, orientationOf(shown));
        TileMap::TileData data = cellOf(m_reduction, piece);
        data.index = piece.tile == m_blank ? 0 : piece.tile == 0 ? m_blank : piece.tile;
        return data;
    }

private:
    [[nodiscard]] QPoint place(int number) const
    {
        return {number % m_columns * m_map.tileSize.width(), number / m_columns * m_map.tileSize.height()};
    }

    const TiledMap &m_map;
    QSize m_pieces;
    QStringList &m_remarks;
    QHash<std::pair<int, int>, int> m_numbers; ///< of tile set and tile
    QList<std::pair<int, int>> m_keys;
    int m_columns = 1; ///< of tiles in the picture that is reduced
    TileReduction m_reduction;
    int m_blank = 0;
};

/// Makes animations of those tiles that have some, and places them where the map shows the tiles.
class Blocks
{
public:
    Blocks(const TiledMap &map, const Atlas &atlas, IncomingAssets &incoming)
        : m_map(map)
        , m_atlas(atlas)
        , m_incoming(incoming)
    { }

    void place(const Cell &shown, QPoint at)
    {
        const auto frames = m_map.tileSets[shown.tileSet].animations.value(shown.tile);
        if (frames.isEmpty())
            return;
        if (m_incoming.map->blocks.size() >= MostPlacements) {
            ++m_leftOut;
            return;
        }
        m_incoming.map->blocks.append({animationFor(shown, frames), at});
    }

    void remark() const
    {
        if (m_leftOut > 0)
            m_incoming.remarks.append(Texts::tr("Cells whose animations are left out, since there are more than %1: %2")
                                          .arg(QLocale().toString(MostPlacements), QLocale().toString(m_leftOut)));
        if (m_inexact > 0)
            m_incoming.remarks.append(
                Texts::tr("Animations whose frames have times of their own, and get the mean: %1").arg(m_inexact));
    }

private:
    int animationFor(const Cell &shown, const QList<TiledTileSet::Frame> &frames)
    {
        const std::pair key(std::pair(shown.tileSet, shown.tile), orientationOf(shown));
        const auto known = m_known.constFind(key);
        if (known != m_known.cend())
            return *known;
        QList<int> order;
        QList<int> durations;
        for (const TiledTileSet::Frame &frame : frames) {
            order.append(int(order.size()));
            durations.append(frame.duration);
        }
        const AnimationTiming timing = AnimationTiming::of(order, durations);
        m_inexact += timing.isExact ? 0 : 1;
        IncomingAnimation animation{.name =
                                        QStringLiteral("%1 %2").arg(m_map.tileSets[shown.tileSet].name).arg(shown.tile),
                                    .size = m_atlas.pieces(),
                                    .delay = timing.delay,
                                    .frames = {}};
        for (const int number : timing.frames)
            animation.frames.append(cellsOf(shown, frames[number].tile));
        const int number = int(m_incoming.blocks.size());
        m_incoming.blocks.append(animation);
        m_known.insert(key, number);
        return number;
    }

    [[nodiscard]] AnimationFrame::Cells cellsOf(Cell shown, int tile) const
    {
        shown.tile = tile;
        AnimationFrame::Cells cells;
        for (int row = 0; row < m_atlas.pieces().height(); ++row) {
            QList<AnimationFrame::Cell> line;
            for (int column = 0; column < m_atlas.pieces().width(); ++column) {
                const TileMap::TileData data = m_atlas.cell(shown, column, row);
                line.append({data.index, data.offset, data.flip, data.mirror, data.rotate});
            }
            cells.append(line);
        }
        return cells;
    }

    const TiledMap &m_map;
    const Atlas &m_atlas;
    IncomingAssets &m_incoming;
    QHash<std::pair<std::pair<int, int>, int>, int> m_known; ///< by tile set, tile and orientation
    int m_leftOut = 0;
    int m_inexact = 0;
};

/// Makes sprites of the objects that show tiles.
class Objects
{
public:
    explicit Objects(const TiledMap &map) : m_map(map) { }

    void add(const TiledMap::Object &object)
    {
        const Cell shown = object.shape == TiledMap::Shape::Tile ? m_map.cell(object.gid) : Cell();
        const QImage tile = shown.isEmpty() ? QImage() : m_map.tileSets[shown.tileSet].tile(shown.tile);
        const QPoint at(qRound(std::clamp(object.topLeft.x(), -32768.0, 32767.0)),
                        qRound(std::clamp(object.topLeft.y(), -32768.0, 32767.0)));
        constexpr int side = SpriteBank::SpriteSize;
        const bool isTurned = object.rotation != 0 || (!tile.isNull() && object.size.toSize() != tile.size());
        if (!object.visible || tile.isNull() || isTurned || tile.width() > MostPieces * side
            || tile.height() > MostPieces * side) {
            ++m_leftOut;
            return;
        }
        Map::PlacedSprite sprite{.x = at.x(), .y = at.y(), .name = object.name};
        if (tile.size() == QSize(side, side)) {
            sprite.mirror = shown.mirror;
            sprite.flip = shown.flip;
            sprite.rotate = shown.rotate;
            place(tile, sprite);
            return;
        }
        const QImage whole = oriented(tile, shown.rotate, shown.flip, shown.mirror);
        for (int top = 0; top < whole.height(); top += side) {
            for (int left = 0; left < whole.width(); left += side) {
                sprite.x = at.x() + left;
                sprite.y = at.y() + top;
                place(whole.copy(left, top, side, side), sprite); // clear beyond its edge
            }
        }
    }

    void finish(IncomingAssets &incoming, Dithering dithering) const
    {
        if (m_leftOut > 0)
            incoming.remarks.append(
                Texts::tr("Objects that are no sprites, turned, scaled, hidden or too large, and are left "
                          "out: %1")
                    .arg(QLocale().toString(m_leftOut)));
        if (m_pictures.isEmpty())
            return;
        const SharedColours shared = SharedColours::of(
            {int(m_pictures.size()), [this](int i) { return m_pictures[i]; }}, {.dithering = dithering});
        IncomingSprites sprites{.content = {}, .transparency = shared.clear, .palette = shared.palette};
        for (const QImage &picture : shared.pictures) {
            for (int y = 0; y < picture.height(); ++y)
                sprites.content.pixels.append(reinterpret_cast<const char *>(picture.constScanLine(y)),
                                              picture.width());
        }
        incoming.sprites = sprites;
        incoming.map->sprites = m_placed;
        incoming.remarks += shared.remarks;
    }

private:
    static constexpr int MostPieces = 4; ///< sprites along a side of an object

    void place(const QImage &picture, Map::PlacedSprite sprite)
    {
        const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
        const QByteArray key(reinterpret_cast<const char *>(pixels.constBits()), pixels.sizeInBytes());
        const auto known = m_known.constFind(key);
        sprite.sprite = known != m_known.cend() ? *known : int(m_pictures.size());
        if (known == m_known.cend()) {
            m_known.insert(key, sprite.sprite);
            m_pictures.append(pixels);
        }
        m_placed.append(sprite);
    }

    const TiledMap &m_map;
    QList<QImage> m_pictures;
    QHash<QByteArray, int> m_known;
    QList<Map::PlacedSprite> m_placed;
    int m_leftOut = 0;
};

/// Why a map cannot become one of the machine's, or empty.
QString refusalOf(const TiledMap &map)
{
    const QSize pixels = map.tileSize;
    if (pixels.isEmpty() || pixels.width() % Side != 0 || pixels.height() % Side != 0)
        return Texts::tr(
                   "The cells of the map have %1 × %2 pixels, and tiles of the Next 8 × 8: only multiples of that can "
                   "be cut")
            .arg(pixels.width())
            .arg(pixels.height());
    const qint64 width = qint64(map.size.width()) * (pixels.width() / Side);
    const qint64 height = qint64(map.size.height()) * (pixels.height() / Side);
    if (width <= 0 || height <= 0)
        return Texts::tr("The map has no cells");
    if (width > MostSide || height > MostSide || width * height > MostCells)
        return Texts::tr("That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most")
            .arg(width)
            .arg(height)
            .arg(MostSide)
            .arg(MostCells);
    return {};
}

TiledReferences referencesOf(const NextData::OptionValues &options)
{
    return options.flag("anywhere") ? TiledReferences::Anywhere : TiledReferences::Below;
}

Result<IncomingAssets> incomingOf(const TiledMap &map, const NextData::OptionValues &options)
{
    if (const QString refusal = refusalOf(map); !refusal.isEmpty())
        return Failure{refusal};

    QStringList remarks = map.remarks;
    for (const TiledTileSet &tileSet : map.tileSets)
        remarks += tileSet.problems + tileSet.remarks;
    const TiledMap::Flat flat = map.flattened();
    remarks += flat.remarks;

    QList<Cell> cells;
    cells.reserve(flat.gids.size());
    Atlas atlas(map, remarks);
    for (const quint32 gid : flat.gids) {
        const Cell cell = gid == 0 ? Cell() : map.cell(gid);
        cells.append(cell);
        if (cell.isEmpty())
            continue;
        atlas.add(cell.tileSet, cell.tile);
        for (const TiledTileSet::Frame &frame : map.tileSets[cell.tileSet].animations.value(cell.tile))
            atlas.add(cell.tileSet, frame.tile);
    }
    if (atlas.pixelCount() > MostAtlasPixels)
        return Failure{Texts::tr("The map shows too many different tiles: of %1 × %2 pixels, %3 are the most")
                           .arg(map.tileSize.width())
                           .arg(map.tileSize.height())
                           .arg(MostAtlasPixels / (map.tileSize.width() * map.tileSize.height()))};
    const Dithering dithering = Kinds::ditheringOf(options);
    atlas.reduce(dithering);

    IncomingAssets incoming = atlas.incoming();
    incoming.remarks = remarks + incoming.remarks;
    incoming.outside = map.outside();
    const QSize pieces = atlas.pieces();
    const QSize size(map.size.width() * pieces.width(), map.size.height() * pieces.height());
    TileMap::Rows rows(size.height());
    Blocks blocks(map, atlas, incoming);
    for (int y = 0; y < size.height(); ++y) {
        TileMap::Row row(size.width());
        for (int x = 0; x < size.width(); ++x) {
            const Cell &shown = cells[qsizetype(y / pieces.height()) * map.size.width() + x / pieces.width()];
            row[x] = atlas.cell(shown, x % pieces.width(), y % pieces.height());
            if (!shown.isEmpty() && x % pieces.width() == 0 && y % pieces.height() == 0)
                blocks.place(shown, {x, y});
        }
        rows[y] = row;
    }
    incoming.map->rows = rows;
    blocks.remark();
    Objects objects(map);
    for (const TiledMap::Object &object : map.objects)
        objects.add(object);
    objects.finish(incoming, dithering);
    if (!incoming.outside.isEmpty())
        incoming.remarks.append(Texts::tr("Files that are left alone because they are not below the map's folder: %1")
                                    .arg(incoming.outside.join(QStringLiteral(", "))));
    return incoming;
}

Result<IncomingAssets> prepareMap(const Project &, const ImportFile &file, const ImportChoices &,
                                  const NextData::OptionValues &options)
{
    const Result<TiledMap> map = TiledMap::read(file.path, referencesOf(options));
    return map ? incomingOf(*map, options) : map.failure();
}

/// A map that shows each tile of a set once, in their order.
TiledMap mapOf(const TiledTileSet &tileSet)
{
    TiledMap map;
    map.tileSize = tileSet.tileSize;
    map.tileSets = {tileSet};
    const int columns = tileSet.columns > 0 ? tileSet.columns : AtlasColumns;
    map.size = {std::min(tileSet.count, columns), (tileSet.count + columns - 1) / columns};
    TiledMap::Layer layer;
    layer.area = QRect({0, 0}, map.size);
    const qint64 cells = qint64(map.size.width()) * map.size.height();
    for (qint64 i = 0; i < std::min(cells, MostCells); ++i)
        layer.gids.append(i < tileSet.count ? quint32(tileSet.firstGid + i) : 0);
    map.layers.append(layer);
    return map;
}

Result<IncomingAssets> prepareTileSet(const Project &, const ImportFile &file, const ImportChoices &,
                                      const NextData::OptionValues &options)
{
    const Result<TiledTileSet> tileSet = TiledTileSet::read(file.path, referencesOf(options));
    if (!tileSet)
        return tileSet.failure();
    Result<IncomingAssets> read = incomingOf(mapOf(*tileSet), options);
    if (!read)
        return read;
    IncomingAssets incoming = *std::move(read);
    incoming.map.reset();
    return incoming;
}

} // namespace

QList<FileKind> Kinds::tiled()
{
    using NextData::AssetKind;
    using NextData::Option;
    const QList<Option> options{
        Kinds::ditheringOption(),
        Option::flag(QStringLiteral("anywhere"), Texts::tr("Read files outside its folder"),
                     Texts::tr("Takes tile sets and pictures from wherever the map says that they are"))};
    return {{.id = Tiled,
             .title = Texts::tr("Map of Tiled"),
             .asset = AssetKind::Map,
             .options = options,
             .prepare = prepareMap},
            {.id = TiledTiles,
             .title = Texts::tr("Tile set of Tiled"),
             .asset = AssetKind::TileSet,
             .options = options,
             .prepare = prepareTileSet}};
}

} // namespace Importing
