#pragma once

#include "model/tilemap.h"

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QUuid>

class QMimeData;

/// A rectangle of cells that is painted as one: tiles beside each other in a tile set, or a piece of a map.
///
/// Turning a stamp turns its cells along with it, so that it looks turned as a picture does. As a pattern it repeats in
/// all directions from a first place on.
class Stamp
{
public:
    using Cell = TileMap::TileData;

    static constexpr int MaxCells = 1 << 20; ///< more are no stamp

    /// An empty stamp.
    Stamp() = default;
    /// One cell.
    explicit Stamp(const Cell &cell) : m_size(1, 1), m_cells{cell} { }
    /// The cells of a rectangle, row by row; empty when they are not as many as that, or too many.
    Stamp(QSize size, const QList<Cell> &cells);
    /// What a grid has in an area, as far as the area lies in the grid.
    [[nodiscard]] static Stamp of(const TileMap &grid, const QRect &area);
    /// What clipboard data holds for maps of a tile set.
    [[nodiscard]] static Stamp fromClipboard(const QMimeData *data, const QUuid &tileSetId);

    [[nodiscard]] bool isEmpty() const { return m_cells.isEmpty(); }
    [[nodiscard]] QSize size() const { return m_size; }
    /// Row by row.
    [[nodiscard]] const QList<Cell> &cells() const { return m_cells; }
    [[nodiscard]] const Cell &at(int x, int y) const { return m_cells[qsizetype(y) * m_size.width() + x]; }
    /// The cell that comes to a place of a map when the stamp repeats from origin on; not of an empty one.
    [[nodiscard]] const Cell &repeatedAt(QPoint place, QPoint origin) const;
    /// The place of the stamp's grid, which begins at first, that a cell lies in.
    [[nodiscard]] QRect slotOf(QPoint cell, QPoint first) const;
    /// Where it lies around a cell, which is its own when it is one cell large.
    [[nodiscard]] QRect around(QPoint cell) const;

    /// Turned by 90° clockwise.
    [[nodiscard]] Stamp rotated() const;
    /// Top to bottom.
    [[nodiscard]] Stamp flipped() const;
    /// Left to right.
    [[nodiscard]] Stamp mirrored() const;
    /// In the order that tiles have: rotated first.
    [[nodiscard]] Stamp oriented(bool rotate, bool flip, bool mirror) const;

    /// All cells with one palette offset.
    [[nodiscard]] Stamp withOffset(int offset) const;
    /// The cells that were written, in a row.
    [[nodiscard]] Stamp writtenCells() const;

    /// As clipboard data, which the caller owns.
    [[nodiscard]] QMimeData *toMimeData(const QUuid &tileSetId) const;
    [[nodiscard]] TileMap::Rows rows() const;

    bool operator==(const Stamp &) const = default;

private:
    QSize m_size{0, 0};
    QList<Cell> m_cells;
};
