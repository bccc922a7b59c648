#pragma once

#include "model/tilemap.h"

#include <optional>

class QIODevice;

/// The two forms in which the cells of a tile map leave the program.
///
/// Next tilemap data, what the hardware reads and ".map" files hold: two bytes a cell, rows top to bottom,
/// cells left to right, no header; used flags are not part of it.
///
///     byte 0, bits 7–0   low eight bits of the tile index
///     byte 1, bits 7–4   palette offset
///             bit 3      mirror
///             bit 2      flip
///             bit 1      rotate
///             bit 0      bit 8 of the tile index
///
/// Data-stream form, the member of a project and the clipboard; all integers are 32-bit and big-endian:
///
///     offset  size       content
///     0       4          height in cells
///     4       4          width in cells
///     8       12 a cell  row by row: index (4), used (1), offset (4), rotate (1), flip (1), mirror (1)
///     then    16         id of the tile set, RFC 4122 byte order, null for none
namespace TileMapFormat {

// Bytes of the data-stream form
constexpr qsizetype HeadSize = 8;
constexpr qsizetype CellSize = 12;
constexpr qsizetype IdSize = 16;

[[nodiscard]] QByteArray toNextData(const TileMap::Rows &rows);

/// The area of a grid in data-stream form, with blank cells outside the grid.
[[nodiscard]] QByteArray serialise(const TileMap::Rows &rows, const QRect &area, const QUuid &tileSetId);

/// Bytes that a grid of this size takes in data-stream form.
[[nodiscard]] constexpr qint64 sizeOf(QSize size)
{
    return HeadSize + qint64(size.width()) * size.height() * CellSize + IdSize;
}

// The parts of the data-stream form of a whole grid, which ends with the id.
void appendHead(QByteArray &data, QSize size);
void appendRow(QByteArray &data, const TileMap::Row &row);

/// What the cells that are read may cost.
struct Budget
{
    qint64 cells; ///< to look at
    qint64 memory; ///< to keep, in cells; rows that equal the one before them share it
};

/// Reads the rows of a grid in data-stream form, one after the other, from a device that may be sequential; what
/// follows the tile set's id is left unread. Takes what they cost from the budget. Nothing when the data is too short
/// for the cells that it announces, the budget is, or a side has more than 65536 cells.
[[nodiscard]] std::optional<TileMap::Rows> readRows(QIODevice &device, Budget &budget);

/// Takes what readRows() would for a grid; false when it would give nothing.
[[nodiscard]] bool takeRows(const TileMap::Rows &rows, QSize size, Budget &budget);

/// What clipboard data in data-stream form holds.
class Reader
{
public:
    /// Nothing when the data is too short for the cells that it announces, or announces a negative number.
    [[nodiscard]] static std::optional<Reader> open(const QByteArray &data);

    /// 0 × 0 when either side is 0.
    [[nodiscard]] QSize size() const { return m_size; }
    /// Reads count cells of row y from column x on; all of them must lie inside.
    void readCells(int x, int y, int count, TileMap::TileData *cells) const;
    /// The tile set's id; null when the data ends before it.
    [[nodiscard]] QUuid tileSetId() const;

private:
    Reader(const QByteArray &data, QSize size);
    [[nodiscard]] const uchar *cellAt(int x, int y) const;

    QByteArray m_data;
    QSize m_size;
};

} // namespace TileMapFormat
