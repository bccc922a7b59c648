#include "model/stamp.h"

#include "model/tilemapformat.h"

#include <QMimeData>

#include <algorithm>

namespace {

using Cell = Stamp::Cell;

constexpr int floorDivided(int value, int by)
{
    return value >= 0 ? value / by : -((by - 1 - value) / by);
}

constexpr int modulo(int value, int by)
{
    return value - floorDivided(value, by) * by;
}

/// A cell that is mirrored and flipped after it was rotated, rotated once more. A turn makes a mirror image of what was
/// a flipped one, and two turns are both.
Cell rotatedCell(Cell cell)
{
    const bool twice = cell.rotate;
    const bool flip = cell.flip;
    cell.flip = cell.mirror != twice;
    cell.mirror = flip != twice;
    cell.rotate = !twice;
    return cell;
}

/// The stamp of a size whose cell at (x, y) is cellAt(x, y).
template <typename CellAt>
Stamp made(QSize size, CellAt cellAt)
{
    QList<Cell> cells;
    cells.reserve(qsizetype(size.width()) * size.height());
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            cells.append(cellAt(x, y));
    }
    return {size, cells};
}

} // namespace

Stamp::Stamp(QSize size, const QList<Cell> &cells)
{
    if (size.isEmpty() || cells.size() > MaxCells || cells.size() != qsizetype(size.width()) * size.height())
        return;
    m_size = size;
    m_cells = cells;
}

Stamp Stamp::of(const TileMap &grid, const QRect &area)
{
    const QRect inside = area & grid.bounds();
    if (qint64(inside.width()) * inside.height() > MaxCells)
        return {};
    return made(inside.size(), [&](int x, int y) { return grid.cellAt(inside.topLeft() + QPoint(x, y)); });
}

Stamp Stamp::fromClipboard(const QMimeData *data, const QUuid &tileSetId)
{
    const TileMap::Selection selection = TileMap::readSelection(data);
    return selection.tileSetId == tileSetId ? Stamp(selection.size, selection.cells) : Stamp();
}

const Cell &Stamp::repeatedAt(QPoint place, QPoint origin) const
{
    return at(modulo(place.x() - origin.x(), m_size.width()), modulo(place.y() - origin.y(), m_size.height()));
}

QRect Stamp::slotOf(QPoint cell, QPoint first) const
{
    const QPoint way = cell - first;
    return {first
                + QPoint(floorDivided(way.x(), m_size.width()) * m_size.width(),
                         floorDivided(way.y(), m_size.height()) * m_size.height()),
            m_size};
}

QRect Stamp::around(QPoint cell) const
{
    return {cell - QPoint(m_size.width() / 2, m_size.height() / 2), m_size};
}

Stamp Stamp::rotated() const
{
    const int bottom = m_size.height() - 1;
    return made(m_size.transposed(), [this, bottom](int x, int y) { return rotatedCell(at(y, bottom - x)); });
}

Stamp Stamp::flipped() const
{
    return made(m_size, [this](int x, int y) {
        Cell cell = at(x, m_size.height() - 1 - y);
        cell.flip = !cell.flip;
        return cell;
    });
}

Stamp Stamp::mirrored() const
{
    return made(m_size, [this](int x, int y) {
        Cell cell = at(m_size.width() - 1 - x, y);
        cell.mirror = !cell.mirror;
        return cell;
    });
}

Stamp Stamp::oriented(bool rotate, bool flip, bool mirror) const
{
    Stamp result = rotate ? rotated() : *this;
    if (flip)
        result = result.flipped();
    return mirror ? result.mirrored() : result;
}

Stamp Stamp::withOffset(int offset) const
{
    Stamp result = *this;
    for (Cell &cell : result.m_cells)
        cell.offset = offset;
    return result;
}

Stamp Stamp::writtenCells() const
{
    QList<Cell> written = m_cells;
    written.removeIf([](const Cell &cell) { return !cell.used; });
    const QSize size(int(written.size()), 1);
    return {size, written};
}

TileMap::Rows Stamp::rows() const
{
    TileMap::Rows rows;
    for (int y = 0; y < m_size.height(); ++y)
        rows.append(m_cells.mid(qsizetype(y) * m_size.width(), m_size.width()));
    return rows;
}

QMimeData *Stamp::toMimeData(const QUuid &tileSetId) const
{
    return TileMap::mimeDataOf(rows(), QRect(QPoint(0, 0), m_size), tileSetId);
}
