#pragma once

#include "model/tilecache.h"
#include "model/tilemap.h"

#include <QCache>
#include <QImage>

#include <array>
#include <vector>

class QPainter;

/// What is rendered of a grid of cells, kept in square blocks of palette indices.
///
/// A block is rendered when it is first painted, and the ones that were not painted for longest are dropped
/// when the blocks outgrow MaxBytes, so that neither time nor memory depends on the size of the grid.
/// Views that show cells with fewer than 8 pixels get blocks of that scale; larger cells are made of
/// 8-pixel ones while painting. The owner reports every change of the content.
class TileMapPicture
{
public:
    static constexpr int MaxBytes = 64 << 20;

    explicit TileMapPicture(const TileMap &map) : m_map(map) { }

    /// Binds the tile set that the cells name, and forgets everything that was rendered.
    void bind(const QPointer<TileSet> &tileSet);
    /// The tiles look different: forgets everything that was rendered.
    void tilesChanged();
    /// Two tiles changed places, and the cells did not follow yet.
    void tilesSwapped(int a, int b) { m_tiles.swapTiles(a, b); }
    /// Cells changed.
    void contentChanged() { m_blocks.clear(); }
    void areaChanged(const QRect &area);
    void cellChanged(QPoint at, const TileMap::TileData &cell);

    /// That many cells of index 0 with cellSize pixels a cell; null when there is no such image.
    [[nodiscard]] static QImage blankImage(QSize cells, int cellSize);
    /// The area at 8 pixels a cell, rendered afresh with an empty tile cache; indices without colours.
    [[nodiscard]] QImage image(const QRect &area);
    /// The cells with cellSize pixels a cell as palette indices without colours.
    [[nodiscard]] QImage scaledImage(const QRect &cells, int cellSize);
    /// Paints areas of the grid with a colour, opaque or clear (0), for each palette index. The cell at the top left
    /// of `cells` comes to origin, and what lies outside `cells` is not painted. Clear pixels show the painter's
    /// background if its mode is opaque.
    void paint(QPainter &painter, QPoint origin, const QRect &cells, const QList<QRect> &areas, int cellSize,
               const std::array<QRgb, 256> &colours);

private:
    using Block = std::vector<uchar>; ///< blockSide() lines of blockSide() palette indices

    /// Where cells are written: bits is the first pixel of the top left one.
    struct Target
    {
        uchar *bits;
        qsizetype bytesPerLine;
        const std::vector<int> &samples; ///< for each pixel along the side of a cell, the block's pixel it shows
        bool keepsUnderZero = false; ///< a pixel of value 0 is not written
    };

    [[nodiscard]] int cellsPerBlock() const { return BlockSide / m_scale; }
    [[nodiscard]] int blockSide() const { return cellsPerBlock() * m_scale; }
    [[nodiscard]] static quint64 blockKey(int column, int row) { return quint64(row) << 32 | quint32(column); }
    void setScale(int pixelsPerCell);
    [[nodiscard]] const Block &block(int column, int row);
    void renderCell(const TileMap::TileData &cell, int scale, uchar *bits, qsizetype bytesPerLine);

    template <typename Pixel>
    void compose(const QRect &cells, const Target &target, const std::array<Pixel, 256> &values);
    template <typename Pixel>
    void composeFromBlock(const Block &block, const QRect &cells, const Target &target,
                          const std::array<Pixel, 256> &values);
    template <typename Pixel>
    void composeLine(const uchar *from, int cells, const std::vector<int> &samples,
                     const std::array<Pixel, 256> &values, Pixel *to) const;

    static constexpr int BlockSide = 256; ///< pixels, or a little less where the scale does not divide it

    const TileMap &m_map;
    TileCache m_tiles;
    int m_scale = TileMap::TileSize; ///< pixels a cell in the blocks, 1–8
    QCache<quint64, Block> m_blocks{MaxBytes / (BlockSide * BlockSide)};
};
