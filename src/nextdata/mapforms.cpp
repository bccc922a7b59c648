// The tile layers of maps: a cell after the other, row by row or column by column, the whole map or screen by screen.
//
//   map-2byte    two bytes a cell, as the hardware reads them (model/tilemapformat.h)
//   map-1byte    the index alone; what else the hardware needs comes from a register, so it is the same for all cells
//
// Screens follow each other from left to right, then from top to bottom. Where one reaches beyond the map, blank cells
// fill it. A file does not tell the size of its map.

#include "model/map.h"
#include "model/tilemapformat.h"
#include "nextdata/families.h"
#include "nextdata/texts.h"

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
                                .comment = isWhole ? QString() : Texts::tr("screen %1, %2").arg(across).arg(down),
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
                return Failure{Texts::tr("“%1”: the cell in column %2, row %3 (counted from 0) %4")
                                   .arg(map.name(), QString::number(x), QString::number(y), reason)};
            }
        }
    }
    return std::nullopt;
}

QString indexMisfit(int index, int most)
{
    return Texts::tr("shows tile %1, and %2 is the last one that fits").arg(index).arg(most);
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
        return cell.offset < 0 || cell.offset > 15 ? Texts::tr("has the palette offset %1").arg(cell.offset)
                                                   : QString();
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
            return Texts::tr("is rotated or mirrored, which one byte does not tell");
        if (cell.used && cell.offset != offset)
            return Texts::tr("has the palette offset %1, others have %2, and one byte does not tell them apart")
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

// Reading

constexpr qint64 MostCells = 8'000'000;

template <int CellBytes>
Reader::Fit fits(qint64 size)
{
    if (size == 0 || size % CellBytes != 0)
        return Reader::Fit::None;
    const qint64 cells = size / CellBytes;
    const bool isScreen = cells == 40 * 32 || cells == 80 * 32 || cells == 32 * 24;
    return isScreen ? Reader::Fit::Exact : Reader::Fit::Possible;
}

/// The width of most maps of so many cells.
int usualWidth(qint64 cells)
{
    if (cells == 80 * 32)
        return 80;
    for (const int width : {40, 32, 80, 64, 128, 20, 16}) {
        if (cells % width == 0)
            return width;
    }
    return int(std::min<qint64>(cells, 40));
}

template <int CellBytes>
QMap<QString, QString> suggested(qint64 size)
{
    return {{QStringLiteral("width"), QString::number(usualWidth(size / CellBytes))}};
}

/// How the cells of a file lie in a map.
struct Layout
{
    QSize map;
    QSize screen;
    bool byColumns;

    [[nodiscard]] static Result<Layout> of(qint64 cells, const OptionValues &values)
    {
        const int width = values.number("width") > 0 ? values.number("width") : usualWidth(cells);
        const int screenWidth = values.number("screen-width") > 0 ? values.number("screen-width") : width;
        const qint64 across = (width + screenWidth - 1) / screenWidth;
        const qint64 lineCells = across * screenWidth; // of all screens side by side
        const qint64 rows = (cells + lineCells - 1) / lineCells;
        const qint64 screenHeight = values.number("screen-height") > 0 ? values.number("screen-height") : rows;
        const qint64 down = (rows + screenHeight - 1) / screenHeight;
        const qint64 height = values.number("height") > 0 ? values.number("height") : down * screenHeight;
        if (height > MostSide || qint64(width) * height > MostCells) {
            return Failure{Texts::tr("That makes a map of %1 × %2 cells; %3 along a side and %4 in all are the most")
                               .arg(QString::number(width), QString::number(height), QString::number(MostSide),
                                    QString::number(MostCells))};
        }
        return Layout{{width, int(height)}, {screenWidth, int(screenHeight)}, values.is("order", "columns")};
    }

    /// Where a cell of the file is in the map, which may be outside.
    [[nodiscard]] QPoint positionOf(qint64 number) const
    {
        const int across = (map.width() + screen.width() - 1) / screen.width();
        const qint64 size = qint64(screen.width()) * screen.height();
        const qint64 inScreen = number % size;
        const QPoint corner(int(number / size % across) * screen.width(),
                            int(number / size / across) * screen.height());
        return corner
            + (byColumns ? QPoint(int(inScreen / screen.height()), int(inScreen % screen.height()))
                         : QPoint(int(inScreen % screen.width()), int(inScreen / screen.width())));
    }
};

/// A map of the cells that cellOf() makes of the bytes of each.
template <int CellBytes, typename CellOf>
Result<Reading> readCells(const QByteArray &bytes, const OptionValues &values, CellOf cellOf)
{
    const qint64 cells = bytes.size() / CellBytes;
    if (cells == 0)
        return Failure{Texts::tr("The file has %1 bytes, and a cell takes %2").arg(bytes.size()).arg(CellBytes)};
    const Result<Layout> layout = Layout::of(cells, values);
    if (!layout)
        return layout.failure();
    const Row blank(layout->map.width());
    Rows rows(layout->map.height(), blank);
    const QRect bounds({0, 0}, layout->map);
    const auto *data = reinterpret_cast<const uchar *>(bytes.constData());
    qint64 outside = 0;
    for (qint64 i = 0; i < cells; ++i) {
        const QPoint at = layout->positionOf(i);
        const TileData cell = cellOf(data + i * CellBytes);
        if (bounds.contains(at))
            rows[at.y()][at.x()] = cell;
        else if (cell.index != 0)
            ++outside;
    }
    Reading reading{MapContent{rows}, {}};
    if (outside > 0)
        reading.remarks.append(Texts::tr("Cells of the file that are outside the map: %1").arg(outside));
    const qint64 missing = qint64(layout->map.width()) * layout->map.height() - cells;
    if (missing > 0)
        reading.remarks.append(
            Texts::tr("Cells of the map that the file does not have, and that stay blank: %1").arg(missing));
    if (bytes.size() % CellBytes != 0)
        reading.remarks.append(Texts::tr("Half a cell at the end is left out"));
    return reading;
}

Result<Reading> readTwoBytes(const QByteArray &bytes, const OptionValues &values)
{
    const bool hasNinthBit = values.is("bit-0", "tile");
    return readCells<2>(bytes, values, [hasNinthBit](const uchar *cell) {
        return TileData{.index = cell[0] | (hasNinthBit ? (cell[1] & 1) << 8 : 0),
                        .rotate = (cell[1] & 2) != 0,
                        .flip = (cell[1] & 4) != 0,
                        .mirror = (cell[1] & 8) != 0,
                        .offset = cell[1] >> 4,
                        .used = true};
    });
}

Result<Reading> readOneByte(const QByteArray &bytes, const OptionValues &values)
{
    const int offset = values.number("offset");
    return readCells<1>(bytes, values, [offset](const uchar *cell) {
        return TileData{.index = *cell, .offset = offset, .used = true};
    });
}

Option cellOrder()
{
    return Option::choice(
        QStringLiteral("order"), Texts::tr("Order"),
        Texts::tr("In which order the cells of a screen follow each other"),
        {{QStringLiteral("rows"), Texts::tr("By rows")}, {QStringLiteral("columns"), Texts::tr("By columns")}});
}

} // namespace

QList<Form> mapForms()
{
    const QList<Option> options{
        cellOrder(),
        Option::number(QStringLiteral("screen-width"), Texts::tr("Screen width"),
                       Texts::tr("Cells across a screen into which the map is cut; 0 is the whole width"), 0, MostSide,
                       0),
        Option::number(QStringLiteral("screen-height"), Texts::tr("Screen height"),
                       Texts::tr("Cells down a screen into which the map is cut; 0 is the whole height"), 0, MostSide,
                       0),
        Option::flag(QStringLiteral("screen-files"), Texts::tr("A file for each screen"),
                     Texts::tr("Writes the screens into numbered files of their own")),
    };
    return {
        {.id = QStringLiteral("map-2byte"),
         .kind = AssetKind::Map,
         .title = Texts::tr("Tile map, two bytes a cell"),
         .suffix = QStringLiteral("map"),
         .options = options,
         .size = size<2>,
         .write = writeTwoBytes},
        {.id = QStringLiteral("map-1byte"),
         .kind = AssetKind::Map,
         .title = Texts::tr("Tile map, one byte a cell"),
         .suffix = QStringLiteral("map"),
         .options = options,
         .size = size<1>,
         .write = writeOneByte},
    };
}

QList<Reader> mapReaders()
{
    const Option width =
        Option::number(QStringLiteral("width"), Texts::tr("Width"),
                       Texts::tr("Cells across the map; 0 is what most maps of so many cells have"), 0, MostSide, 0);
    const QList<Option> layout{
        cellOrder(),
        Option::number(QStringLiteral("height"), Texts::tr("Height"),
                       Texts::tr("Cells down the map; 0 is as far as the file goes"), 0, MostSide, 0),
        Option::number(QStringLiteral("screen-width"), Texts::tr("Screen width"),
                       Texts::tr("Cells across the screens into which the map was cut; 0 is the whole width"), 0,
                       MostSide, 0),
        Option::number(QStringLiteral("screen-height"), Texts::tr("Screen height"),
                       Texts::tr("Cells down the screens into which the map was cut; 0 is the whole height"), 0,
                       MostSide, 0),
    };
    const Option bit = Option::choice(QStringLiteral("bit-0"), Texts::tr("Bit 0"),
                                      Texts::tr("What the lowest bit of a cell's second byte says"),
                                      {{QStringLiteral("tile"), Texts::tr("Tiles from 256 on")},
                                       {QStringLiteral("ula"), Texts::tr("The ULA's picture is in front: left out")}});
    const Option offset =
        Option::number(QStringLiteral("offset"), Texts::tr("Palette offset"),
                       Texts::tr("The palette offset of all cells, which comes from a register"), 0, 15, 0);
    const QStringList suffixes{QStringLiteral("map"), QStringLiteral("nxm"), QStringLiteral("nxb"),
                               QStringLiteral("bin")};
    return {
        {.id = QStringLiteral("map-2byte"),
         .kind = AssetKind::Map,
         .title = Texts::tr("Tile map, two bytes a cell"),
         .suffixes = suffixes,
         .options = QList{width} + layout + QList{bit},
         .fit = fits<2>,
         .read = readTwoBytes,
         .suggested = suggested<2>},
        {.id = QStringLiteral("map-1byte"),
         .kind = AssetKind::Map,
         .title = Texts::tr("Tile map, one byte a cell"),
         .suffixes = suffixes,
         .options = QList{width} + layout + QList{offset},
         .fit = fits<1>,
         .read = readOneByte,
         .suggested = suggested<1>},
    };
}

} // namespace NextData
