#include "model/tilemapformat.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace TileMapFormat {
namespace {

using TileData = TileMap::TileData;
using Row = TileMap::Row;

constexpr qsizetype NextCellSize = 2;

/// Cells along a side of a grid that is read: far more than the editor makes.
constexpr int MaxSide = 1 << 16;

/// What a row takes besides its cells, in cells: a list in each of a map's two layers.
constexpr qint64 RowCost = 6;

char *writeCell(char *to, const TileData &cell)
{
    qToBigEndian(qint32(cell.index), to);
    to[4] = char(cell.used);
    qToBigEndian(qint32(cell.offset), to + 5);
    to[9] = char(cell.rotate);
    to[10] = char(cell.flip);
    to[11] = char(cell.mirror);
    return to + CellSize;
}

TileData readCell(const uchar *from)
{
    TileData cell;
    cell.index = qFromBigEndian<qint32>(from);
    cell.used = from[4];
    cell.offset = qFromBigEndian<qint32>(from + 5);
    cell.rotate = from[9];
    cell.flip = from[10];
    cell.mirror = from[11];
    return cell;
}

char *writeNextCell(char *to, const TileData &cell)
{
    to[0] = char(cell.index & 0xFF);
    to[1] = char((cell.offset & 15) << 4 | int(cell.mirror) << 3 | int(cell.flip) << 2 | int(cell.rotate) << 1
                 | (cell.index >> 8 & 1));
    return to + NextCellSize;
}

/// The size that a head announces, 0 × 0 when either side is 0; nothing when it is negative, or has more cells than
/// these bytes can hold.
std::optional<QSize> sizeIn(const QByteArray &head, qint64 bytes)
{
    const qint32 height = qFromBigEndian<qint32>(head.constData());
    const qint32 width = qFromBigEndian<qint32>(head.constData() + 4);
    if (height < 0 || width < 0 || qint64(height) * width > bytes / CellSize)
        return std::nullopt;
    return height > 0 && width > 0 ? QSize(width, height) : QSize(0, 0);
}

bool takeMemory(qint64 cells, Budget &budget)
{
    budget.memory -= cells;
    return budget.memory >= 0;
}

/// Takes what a grid costs whatever is in it.
bool takeGrid(QSize size, Budget &budget)
{
    budget.cells -= qint64(size.width()) * size.height();
    return std::max(size.width(), size.height()) <= MaxSide && budget.cells >= 0
        && takeMemory(size.height() * RowCost, budget);
}

Row rowIn(const QByteArray &bytes)
{
    Row row(bytes.size() / CellSize);
    const auto *from = reinterpret_cast<const uchar *>(bytes.constData());
    for (TileData &cell : row) {
        cell = readCell(from);
        from += CellSize;
    }
    return row;
}

} // namespace

QByteArray toNextData(const TileMap::Rows &rows)
{
    const qsizetype width = rows.isEmpty() ? 0 : rows.first().size();
    QByteArray data(rows.size() * width * NextCellSize, Qt::Uninitialized);
    char *to = data.data();
    for (const Row &row : rows) {
        for (const TileData &cell : row)
            to = writeNextCell(to, cell);
    }
    return data;
}

void appendHead(QByteArray &data, QSize size)
{
    char head[HeadSize];
    qToBigEndian(qint32(size.height()), head);
    qToBigEndian(qint32(size.width()), head + 4);
    data.append(head, HeadSize);
}

void appendRow(QByteArray &data, const TileMap::Row &row)
{
    const qsizetype start = data.size();
    data.resize(start + row.size() * CellSize);
    char *to = data.data() + start;
    for (const TileData &cell : row)
        to = writeCell(to, cell);
}

QByteArray serialise(const TileMap::Rows &rows, const QRect &area, const QUuid &tileSetId)
{
    const int width = std::max(area.width(), 0);
    const int height = std::max(area.height(), 0);
    const qsizetype rowSize = width * CellSize;
    QByteArray data;
    appendHead(data, {width, height});
    data.resize(HeadSize + height * rowSize + IdSize);

    // zero cells are zero bytes, so what lies outside the grid is filled as bytes
    char *to = data.data() + HeadSize;
    for (int y = area.top(); y < area.top() + height; ++y, to += rowSize) {
        const Row row = rows.value(y);
        const qsizetype first = std::clamp<qsizetype>(area.left(), 0, row.size());
        const qsizetype end = std::clamp<qsizetype>(qsizetype(area.left()) + width, first, row.size());
        char *cells = to;
        if (first < end) {
            cells = std::fill_n(to, (first - area.left()) * CellSize, '\0');
            for (qsizetype x = first; x < end; ++x)
                cells = writeCell(cells, row[x]);
        }
        std::fill(cells, to + rowSize, '\0');
    }

    const QByteArray id = tileSetId.toRfc4122();
    std::copy(id.cbegin(), id.cend(), to);
    return data;
}

std::optional<TileMap::Rows> readRows(QIODevice &device, Budget &budget)
{
    const QByteArray head = device.read(HeadSize);
    const auto size = head.size() == HeadSize ? sizeIn(head, device.bytesAvailable()) : std::nullopt;
    if (!size || !takeGrid(*size, budget))
        return std::nullopt;
    TileMap::Rows rows;
    QByteArray before;
    QByteArray bytes;
    for (int y = 0; y < size->height(); ++y) {
        bytes.resize(size->width() * CellSize);
        if (device.read(bytes.data(), bytes.size()) != bytes.size())
            return std::nullopt;
        if (bytes == before) {
            rows.append(rows.last());
        } else if (takeMemory(size->width(), budget)) {
            rows.append(rowIn(bytes));
            bytes.swap(before);
        } else {
            return std::nullopt;
        }
    }
    char id[IdSize];
    const bool damaged = device.read(id, IdSize) < 0; // they need not be there
    return damaged ? std::nullopt : std::optional(rows);
}

bool takeRows(const TileMap::Rows &rows, QSize size, Budget &budget)
{
    if (!takeGrid(size, budget))
        return false;
    for (qsizetype y = 0; y < rows.size(); ++y) {
        const bool isShared = y > 0 && rows[y] == rows[y - 1];
        if (!isShared && !takeMemory(size.width(), budget))
            return false;
    }
    return true;
}

Reader::Reader(const QByteArray &data, QSize size) : m_data(data), m_size(size) { }

std::optional<Reader> Reader::open(const QByteArray &data)
{
    if (data.size() < HeadSize)
        return std::nullopt;
    const auto size = sizeIn(data, data.size() - HeadSize);
    return size ? std::optional(Reader(data, *size)) : std::nullopt;
}

const uchar *Reader::cellAt(int x, int y) const
{
    return reinterpret_cast<const uchar *>(m_data.constData()) + HeadSize
        + (qsizetype(y) * m_size.width() + x) * CellSize;
}

void Reader::readCells(int x, int y, int count, TileData *cells) const
{
    const uchar *from = cellAt(x, y);
    for (int i = 0; i < count; ++i, from += CellSize)
        cells[i] = readCell(from);
}

QUuid Reader::tileSetId() const
{
    const qsizetype cellBytes = CellSize * m_size.width() * m_size.height();
    const auto id = QByteArrayView(m_data).sliced(HeadSize + cellBytes);
    return id.size() < IdSize ? QUuid() : QUuid::fromRfc4122(id.first(IdSize));
}

} // namespace TileMapFormat
