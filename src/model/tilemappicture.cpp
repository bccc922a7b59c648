#include "model/tilemappicture.h"

#include <QPainter>

#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>

namespace {

constexpr int TileSize = TileMap::TileSize;
/// Height in pixels of what is composed at once while painting: it stays in the processor's cache.
constexpr int StripHeight = 64;

/// The position in a row of `from` pixels that stands for position x of the same row stretched or shrunk to `to`.
constexpr int sampled(int x, int from, int to)
{
    return int((2 * qint64(x) + 1) * from / (2 * qint64(to)));
}

std::vector<int> samplesFor(int from, int to)
{
    std::vector<int> samples(static_cast<size_t>(to));
    for (int x = 0; x < to; ++x)
        samples[size_t(x)] = sampled(x, from, to);
    return samples;
}

/// An image for that many cells, null when there is no such image.
QImage indexedImage(QSize cells, int cellSize)
{
    constexpr int MaxSide = std::numeric_limits<int>::max();
    if (cellSize < 1 || cells.isEmpty() || cells.width() > MaxSide / cellSize || cells.height() > MaxSide / cellSize)
        return {};
    return QImage(cells * cellSize, QImage::Format_Indexed8);
}

} // namespace

void TileMapPicture::bind(const QPointer<TileSet> &tileSet)
{
    m_tiles.bind(tileSet);
    m_blocks.clear();
}

void TileMapPicture::tilesChanged()
{
    m_tiles.clear();
    m_blocks.clear();
}

void TileMapPicture::areaChanged(const QRect &area)
{
    const int side = cellsPerBlock();
    const QRect blocks(QPoint(area.left() / side, area.top() / side),
                       QPoint(area.right() / side, area.bottom() / side));
    if (qint64(blocks.width()) * blocks.height() > m_blocks.size()) {
        m_blocks.clear();
        return;
    }
    for (int row = blocks.top(); row <= blocks.bottom(); ++row) {
        for (int column = blocks.left(); column <= blocks.right(); ++column)
            m_blocks.remove(blockKey(column, row));
    }
}

void TileMapPicture::cellChanged(QPoint at, const TileMap::TileData &cell)
{
    if (m_blocks.isEmpty())
        return;
    const int side = cellsPerBlock();
    Block *block = m_blocks.object(blockKey(at.x() / side, at.y() / side));
    if (!block)
        return;
    const int stride = blockSide();
    renderCell(cell, m_scale, block->data() + (at.y() % side * stride + at.x() % side) * m_scale, stride);
}

QImage TileMapPicture::blankImage(QSize cells, int cellSize)
{
    QImage image = indexedImage(cells, cellSize);
    image.fill(0);
    return image;
}

QImage TileMapPicture::image(const QRect &area)
{
    m_tiles.clear();
    QImage image = blankImage(area.size(), TileSize);
    if (image.isNull())
        return image;
    uchar *bits = image.bits();
    const qsizetype stride = image.bytesPerLine();
    const TileMap::Rows rows = m_map.rows();
    const QRect inside = area & m_map.bounds();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        const TileMap::Row &row = rows[y];
        uchar *line = bits + (y - area.top()) * TileSize * stride;
        for (int x = inside.left(); x <= inside.right(); ++x)
            renderCell(row[x], TileSize, line + (x - area.left()) * TileSize, stride);
    }
    return image;
}

QImage TileMapPicture::scaledImage(const QRect &cells, int cellSize)
{
    static constexpr auto Indices = [] {
        std::array<uchar, 256> indices{};
        std::iota(indices.begin(), indices.end(), uchar(0));
        return indices;
    }();

    QImage image = indexedImage(cells.size(), cellSize);
    if (image.isNull())
        return image;
    const QRect inside = cells & m_map.bounds();
    if (inside != cells)
        image.fill(0);
    if (!inside.isEmpty()) {
        setScale(std::min(cellSize, TileSize));
        const QPoint first = (inside.topLeft() - cells.topLeft()) * cellSize;
        const qsizetype stride = image.bytesPerLine();
        const std::vector<int> samples = samplesFor(m_scale, cellSize);
        compose(inside, {image.bits() + first.y() * stride + first.x(), stride, samples}, Indices);
    }
    return image;
}

void TileMapPicture::paint(QPainter &painter, QPoint origin, const QRect &cells, const QList<QRect> &areas,
                           int cellSize, const std::array<QRgb, 256> &colours)
{
    if (cellSize < 1 || !painter.isActive())
        return;
    // on a screen with several device pixels a pixel, cells are composed of device pixels where that comes out even
    const qreal screenRatio = painter.device()->devicePixelRatioF();
    const bool even = qreal(int(cellSize * screenRatio)) == cellSize * screenRatio;
    const qreal ratio = even ? screenRatio : 1;
    const int size = int(cellSize * ratio);

    setScale(std::min(size, TileSize));
    const std::vector<int> samples = samplesFor(m_scale, size);
    const bool opaque =
        std::all_of(colours.cbegin(), colours.cend(), [](QRgb colour) { return qAlpha(colour) == 255; });
    // clear pixels are filled in here: blending would have to look at every pixel of the screen
    const bool filled = !opaque && painter.backgroundMode() == Qt::OpaqueMode;
    const int stripCells = std::max(StripHeight / size, 1);
    QImage strip;
    for (const QRect &area : areas) {
        const QRect inside = area & cells & m_map.bounds();
        if (inside.isEmpty())
            continue;
        if (inside.width() * size > strip.width()) {
            strip = QImage(inside.width() * size, stripCells * size,
                           opaque || filled ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
            if (strip.isNull())
                return;
            strip.setDevicePixelRatio(ratio);
        }
        for (int y = inside.top(); y <= inside.bottom(); y += stripCells) {
            const QRect part = QRect(inside.left(), y, inside.width(), stripCells) & inside;
            const QPoint place = origin + (part.topLeft() - cells.topLeft()) * cellSize;
            if (filled) {
                QPainter beneath(&strip);
                beneath.setBrushOrigin(painter.brushOrigin() - place);
                beneath.fillRect(QRect(QPoint(0, 0), part.size() * cellSize), painter.background());
            }
            compose(part, {strip.bits(), strip.bytesPerLine(), samples, filled}, colours);
            painter.drawImage(place, strip, QRect(QPoint(0, 0), part.size() * size));
        }
    }
}

void TileMapPicture::setScale(int pixelsPerCell)
{
    if (pixelsPerCell == m_scale)
        return;
    m_scale = pixelsPerCell;
    m_blocks.clear();
}

const TileMapPicture::Block &TileMapPicture::block(int column, int row)
{
    const quint64 key = blockKey(column, row);
    if (const Block *known = m_blocks.object(key))
        return *known;

    const int side = cellsPerBlock();
    const int stride = blockSide();
    auto *block = new Block(size_t(stride) * size_t(stride)); // the cache takes it
    const QRect cells = QRect(column * side, row * side, side, side) & m_map.bounds();
    const TileMap::Rows rows = m_map.rows();
    for (int y = cells.top(); y <= cells.bottom(); ++y) {
        const TileMap::Row &cellRow = rows[y];
        uchar *line = block->data() + (y - cells.top()) * m_scale * stride;
        for (int x = cells.left(); x <= cells.right(); ++x) {
            if (cellRow[x].used) // the block is blank already
                renderCell(cellRow[x], m_scale, line + (x - cells.left()) * m_scale, stride);
        }
    }
    m_blocks.insert(key, block);
    return *block;
}

void TileMapPicture::renderCell(const TileMap::TileData &cell, int scale, uchar *bits, qsizetype bytesPerLine)
{
    if (!cell.used) {
        for (int y = 0; y < scale; ++y)
            std::memset(bits + y * bytesPerLine, 0, size_t(scale));
        return;
    }
    const uchar *pixels = m_tiles.pixels(cell).data();
    if (scale == TileSize) {
        for (int y = 0; y < TileSize; ++y)
            std::memcpy(bits + y * bytesPerLine, pixels + y * TileSize, TileSize);
        return;
    }
    for (int y = 0; y < scale; ++y) {
        const uchar *line = pixels + sampled(y, TileSize, scale) * TileSize;
        for (int x = 0; x < scale; ++x)
            bits[y * bytesPerLine + x] = line[sampled(x, TileSize, scale)];
    }
}

/// Writes whole cells of the grid to the target, block by block.
template <typename Pixel>
void TileMapPicture::compose(const QRect &cells, const Target &target, const std::array<Pixel, 256> &values)
{
    const int side = cellsPerBlock();
    const auto size = int(target.samples.size());
    for (int row = cells.top() / side; row <= cells.bottom() / side; ++row) {
        for (int column = cells.left() / side; column <= cells.right() / side; ++column) {
            const QRect blockCells(column * side, row * side, side, side);
            const QRect part = cells & blockCells;
            const QPoint offset = (part.topLeft() - cells.topLeft()) * size;
            uchar *bits = target.bits + offset.y() * target.bytesPerLine + offset.x() * qsizetype(sizeof(Pixel));
            composeFromBlock(block(column, row), part.translated(-blockCells.topLeft()),
                             {bits, target.bytesPerLine, target.samples, target.keepsUnderZero}, values);
        }
    }
}

template <typename Pixel>
void TileMapPicture::composeFromBlock(const Block &block, const QRect &cells, const Target &target,
                                      const std::array<Pixel, 256> &values)
{
    const auto size = int(target.samples.size());
    const int stride = blockSide();
    const int width = cells.width() * size;
    std::vector<Pixel> sparse(size_t(target.keepsUnderZero ? width : 0));
    uchar *bits = target.bits;
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int y = 0; y < size; ++y, bits += target.bytesPerLine) {
            auto *line = reinterpret_cast<Pixel *>(bits);
            const int sample = target.samples[size_t(y)];
            const bool again = y > 0 && sample == target.samples[size_t(y - 1)];
            if (again && !target.keepsUnderZero) {
                std::memcpy(bits, bits - target.bytesPerLine, size_t(width) * sizeof(Pixel));
                continue;
            }
            if (!again) {
                composeLine(block.data() + (row * m_scale + sample) * stride + cells.left() * m_scale, cells.width(),
                            target.samples, values, target.keepsUnderZero ? sparse.data() : line);
            }
            if (target.keepsUnderZero)
                std::transform(sparse.cbegin(), sparse.cend(), line, line,
                               [](Pixel over, Pixel under) { return over ? over : under; });
        }
    }
}

template <typename Pixel>
void TileMapPicture::composeLine(const uchar *from, int cells, const std::vector<int> &samples,
                                 const std::array<Pixel, 256> &values, Pixel *to) const
{
    if (samples.size() == TileSize) { // the usual case, which a compiler unrolls
        for (int x = 0; x < cells; ++x, from += TileSize, to += TileSize) {
            for (int i = 0; i < TileSize; ++i)
                to[i] = values[from[i]];
        }
        return;
    }
    for (int x = 0; x < cells; ++x, from += m_scale) {
        for (const int column : samples)
            *to++ = values[from[column]];
    }
}
