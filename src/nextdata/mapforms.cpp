// The tile layers of maps: a cell after the other, row by row or column by column, the whole map or screen by screen.
//
//   map-2byte    two bytes a cell, as the hardware reads them (model/tilemapformat.h)
//   map-1byte    the index alone; what else the hardware needs comes from a register, so it is the same for all cells
//
// Screens follow each other from left to right, then from top to bottom. Where one reaches beyond the map, blank cells
// fill it.

#include "model/map.h"
#include "model/tilemapformat.h"
#include "nextdata/families.h"
#include "nextdata/tr.h"

#include <algorithm>
#include <optional>

namespace NextData {
namespace {

using TileData = TileMap::TileData;
using Row = TileMap::Row;
using Rows = TileMap::Rows;

constexpr int MostIndex = 511; ///< of a cell of two bytes
constexpr int MostByteIndex = 255;
constexpr int MostSide = 9999; ///< cells along a screen
constexpr int LongestLine = 160; ///< bytes in a line of text: a row of 80 cells

Rows rowsOf(const Map &map)
{
    return map.tileLayer() ? map.tileLayer()->rows() : Rows();
}

/// The size of a screen; that of the map where no other is asked for.
QSize screenSize(const Map &map, const OptionValues &values)
{
    const int width = values.number("screen-width");
    const int height = values.number("screen-height");
    return {width > 0 ? width : map.size().width(), height > 0 ? height : map.size().height()};
}

/// How many screens there are across and down.
QSize screenCount(const Map &map, QSize screen)
{
    if (map.size().isEmpty())
        return {0, 0};
    return {(map.size().width() + screen.width() - 1) / screen.width(),
            (map.size().height() + screen.height() - 1) / screen.height()};
}

Row rowIn(const Rows &rows, const QRect &screen, int y)
{
    Row row = y < rows.size() ? rows[y].mid(screen.left(), screen.width()) : Row();
    row.resize(screen.width());
    return row;
}

Row columnIn(const Rows &rows, const QRect &screen, int x)
{
    Row column(screen.height());
    const qsizetype end = std::min<qsizetype>(screen.top() + screen.height(), rows.size());
    for (qsizetype y = screen.top(); y < end && x < rows[y].size(); ++y)
        column[y - screen.top()] = rows[y][x];
    return column;
}

/// The cells of a screen in their order, as encode() writes a line of them.
template <typename Encode>
QByteArray screenBytes(const Rows &rows, const QRect &screen, bool byColumns, int cellBytes, Encode encode)
{
    QByteArray bytes;
    bytes.reserve(qsizetype(screen.width()) * screen.height() * cellBytes);
    if (byColumns) {
        for (int x = screen.left(); x <= screen.right(); ++x)
            bytes += encode(columnIn(rows, screen, x));
    } else {
        for (int y = screen.top(); y <= screen.bottom(); ++y)
            bytes += encode(rowIn(rows, screen, y));
    }
    return bytes;
}

template <typename Encode>
Data writeScreens(const Map &map, const OptionValues &values, int cellBytes, Encode encode)
{
    const QSize screen = screenSize(map, values);
    const QSize count = screenCount(map, screen);
    const bool byColumns = values.is("order", "columns");
    const bool isWhole = count == QSize(1, 1);
    const int lineBytes = (byColumns ? screen.height() : screen.width()) * cellBytes;
    const int bytesPerLine = lineBytes <= LongestLine ? lineBytes : 32;
    const Rows rows = rowsOf(map);

    Data data;
    data.constants = {
        {QStringLiteral("width"), map.size().width()},     {QStringLiteral("height"), map.size().height()},
        {QStringLiteral("screen_width"), screen.width()},  {QStringLiteral("screen_height"), screen.height()},
        {QStringLiteral("screens_across"), count.width()}, {QStringLiteral("screens_down"), count.height()}};
    for (int down = 0; down < count.height(); ++down) {
        for (int across = 0; across < count.width(); ++across) {
            const QRect area({across * screen.width(), down * screen.height()}, screen);
            data.blocks.append({.bytes = screenBytes(rows, area, byColumns, cellBytes, encode),
                                .comment = isWhole ? QString() : tr("screen %1, %2").arg(across).arg(down),
                                .bytesPerLine = bytesPerLine,
                                .startsFile = values.flag("screen-files")});
        }
    }
    return data;
}

/// The failure of the first cell, row by row, against which misfit() says something.
template <typename Misfit>
std::optional<Failure> firstMisfit(const Map &map, Misfit misfit)
{
    const Rows rows = rowsOf(map);
    for (int y = 0; y < rows.size(); ++y) {
        for (int x = 0; x < rows[y].size(); ++x) {
            if (const QString reason = misfit(rows[y][x]); !reason.isEmpty()) {
                return Failure{tr("“%1”: the cell in column %2, row %3 (counted from 0) %4")
                                   .arg(map.name(), QString::number(x), QString::number(y), reason)};
            }
        }
    }
    return std::nullopt;
}

QString indexMisfit(int index, int most)
{
    return tr("shows tile %1, and %2 is the last one that fits").arg(index).arg(most);
}

template <int CellBytes>
Result<qint64> size(const Source &source, const OptionValues &values)
{
    const auto &map = source.as<Map>();
    const QSize screen = screenSize(map, values);
    const QSize count = screenCount(map, screen);
    return qint64(count.width()) * count.height() * screen.width() * screen.height() * CellBytes;
}

Result<Data> writeTwoBytes(const Source &source, const OptionValues &values)
{
    const auto &map = source.as<Map>();
    const auto misfit = [](const TileData &cell) {
        if (cell.index < 0 || cell.index > MostIndex)
            return indexMisfit(cell.index, MostIndex);
        return cell.offset < 0 || cell.offset > 15 ? tr("has the palette offset %1").arg(cell.offset) : QString();
    };
    if (const auto failure = firstMisfit(map, misfit))
        return *failure;
    return writeScreens(map, values, 2, [](const Row &cells) { return TileMapFormat::toNextData({cells}); });
}

/// The palette offset of the first cell that was drawn. Those that never were show an empty tile with any offset.
int commonOffset(const Map &map)
{
    const Rows rows = rowsOf(map);
    for (const Row &row : rows) {
        for (const TileData &cell : row) {
            if (cell.used)
                return cell.offset;
        }
    }
    return 0;
}

Result<Data> writeOneByte(const Source &source, const OptionValues &values)
{
    const auto &map = source.as<Map>();
    const int offset = commonOffset(map);
    const auto misfit = [offset](const TileData &cell) {
        if (cell.index < 0 || cell.index > MostByteIndex)
            return indexMisfit(cell.index, MostByteIndex);
        if (cell.rotate || cell.mirror || cell.flip)
            return tr("is rotated or mirrored, which one byte does not tell");
        if (cell.used && cell.offset != offset)
            return tr("has the palette offset %1, others have %2, and one byte does not tell them apart")
                .arg(cell.offset)
                .arg(offset);
        return QString();
    };
    if (const auto failure = firstMisfit(map, misfit))
        return *failure;
    Data data = writeScreens(map, values, 1, [](const Row &cells) {
        QByteArray bytes(cells.size(), Qt::Uninitialized);
        std::transform(cells.cbegin(), cells.cend(), bytes.begin(),
                       [](const TileData &cell) { return char(cell.index); });
        return bytes;
    });
    data.constants.append({QStringLiteral("offset"), offset});
    return data;
}

} // namespace

QList<Form> mapForms()
{
    const QList<Option> options{
        Option::choice(QStringLiteral("order"), tr("Order"),
                       tr("In which order the cells of a screen follow each other"),
                       {{QStringLiteral("rows"), tr("By rows")}, {QStringLiteral("columns"), tr("By columns")}}),
        Option::number(QStringLiteral("screen-width"), tr("Screen width"),
                       tr("Cells across a screen into which the map is cut; 0 is the whole width"), 0, MostSide, 0),
        Option::number(QStringLiteral("screen-height"), tr("Screen height"),
                       tr("Cells down a screen into which the map is cut; 0 is the whole height"), 0, MostSide, 0),
        Option::flag(QStringLiteral("screen-files"), tr("A file for each screen"),
                     tr("Writes the screens into numbered files of their own")),
    };
    return {
        {.id = QStringLiteral("map-2byte"),
         .kind = AssetKind::Map,
         .title = tr("Tile map, two bytes a cell"),
         .suffix = QStringLiteral("map"),
         .options = options,
         .size = size<2>,
         .write = writeTwoBytes},
        {.id = QStringLiteral("map-1byte"),
         .kind = AssetKind::Map,
         .title = tr("Tile map, one byte a cell"),
         .suffix = QStringLiteral("map"),
         .options = options,
         .size = size<1>,
         .write = writeOneByte},
    };
}

} // namespace NextData
