#pragma once

#include "model/tilemap.h"

#include <QList>
#include <QSize>
#include <QString>

#include <array>
#include <optional>

/// A map made of blocks of 2×2 tiles, as tile data sets hold it: the map in one file (".nxm"), the blocks in
/// another (".nxb").
///
/// Block file: 8 bytes a block, the tile indices of its top left, top right, bottom left and bottom right
/// cell as signed 16-bit little-endian integers.
///
/// Map file, a row of blocks being as long as 128 of them, whatever the width of the map:
///
///     offset       size  content
///     0            1     width in cells
///     1            1     height in cells
///     2 + 256·r    256   row r of blocks: the numbers of its blocks, 16-bit little-endian
class NxmFile
{
public:
    /// Tile indices: top left, top right, bottom left, bottom right.
    using Block = std::array<int, 4>;

    /// Nothing when the map file cannot be read or has no cells. A block file that cannot be read has no blocks.
    [[nodiscard]] static std::optional<NxmFile> open(const QString &mapFile, const QString &blockFile);

    /// Size of the map in cells, 1–255 each way.
    [[nodiscard]] QSize size() const { return m_size; }
    /// Columns and rows of blocks; the last ones stick out of a map of an odd size.
    [[nodiscard]] QSize sizeInBlocks() const { return {(m_size.width() + 1) / 2, (m_size.height() + 1) / 2}; }
    /// The block at a position; nothing where the map file is cut or names a block that does not exist.
    [[nodiscard]] std::optional<Block> blockAt(int column, int row) const;

private:
    NxmFile(QSize size, const QByteArray &numbers, const QByteArray &blocks);

    QSize m_size;
    QByteArray m_numbers; ///< the map file after its header
    QByteArray m_blocks;
};
