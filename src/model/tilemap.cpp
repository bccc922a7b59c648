#include "model/tilemap.h"

#include "model/palette.h"
#include "model/tilemapformat.h"
#include "model/tilemappicture.h"
#include "model/tilerows.h"
#include "model/tileset.h"

#include <QBuffer>
#include <QHash>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <vector>

namespace {

using TileData = TileMap::TileData;
using Row = TileMap::Row;
using Rows = TileMap::Rows;

QString mimeType()
{
    return QStringLiteral("quenmora-map-toNextData");
}

/// How one side of the grid changes when it is resized: count cells from `from` on move to `to`.
struct Span
{
    int from;
    int to;
    int count;
};

Span keptSpan(int before, int after, bool centred, bool atEnd)
{
    const int difference = std::abs(after - before);
    const int shift = centred ? difference / 2 : atEnd ? difference : 0;
    return after > before ? Span{0, shift, before} : Span{shift, 0, after};
}

} // namespace

TileMap::TileMap(int width, int height, QObject *parent)
    : QObject(parent)
    , m_width(std::max(width, 0))
    , m_cells(std::make_unique<TileRows>(Rows(std::max(height, 0), Row(m_width))))
    , m_picture(std::make_unique<TileMapPicture>(*this))
{ }

TileMap::TileMap(QSize size, QObject *parent) : TileMap(size.width(), size.height(), parent) { }

TileMap::~TileMap() = default;

int TileMap::height() const
{
    return m_cells->height();
}

TileMap::Rows TileMap::rows() const
{
    return m_cells->rows();
}

QPointer<TileSet> TileMap::tileSet() const
{
    return m_tileSet;
}

void TileMap::setTileSet(const QPointer<TileSet> &tileSet)
{
    if (m_tileSet)
        m_tileSet->disconnect(this);
    m_tileSet = tileSet;
    m_picture->bind(tileSet);
    if (!tileSet)
        return;
    connect(tileSet, &TileSet::tileSwapped, this, &TileMap::swapTiles);
    connect(tileSet, &TileSet::tileChanged, this, [this] { m_picture->tilesChanged(); });
    connect(tileSet, &TileSet::restored, this, [this] { m_picture->tilesChanged(); });
}

TileMap::TileData TileMap::cellAt(QPoint at) const
{
    return bounds().contains(at) ? m_cells->rows()[at.y()][at.x()] : TileData();
}

bool TileMap::setCell(QPoint at, const TileData &cell)
{
    if (!bounds().contains(at) || m_cells->rows()[at.y()][at.x()] == cell)
        return false;
    m_cells->writable()[at.y()][at.x()] = cell;
    m_picture->cellChanged(at, cell);
    return true;
}

void TileMap::fill(const QRect &area, int index, bool rotate, bool flip, bool mirror, bool used)
{
    const QRect inside = area & bounds();
    if (inside.isEmpty())
        return;
    const TileData cell{index, rotate, flip, mirror, m_tileSet ? m_tileSet->tileOffset(index) : 0, used};
    const auto filled = [&cell, &inside](const Row &row) {
        const auto first = row.cbegin() + inside.left();
        if (std::all_of(first, first + inside.width(), [&cell](const TileData &old) { return old == cell; }))
            return row;
        Row result = row;
        std::fill_n(result.begin() + inside.left(), inside.width(), cell);
        return result;
    };
    if (inside.width() == m_width) {
        const auto first = m_cells->writable().begin();
        std::fill(first + inside.top(), first + inside.bottom() + 1, Row(m_width, cell));
    } else {
        m_cells->changeRows(inside.top(), inside.bottom(), filled);
    }
    m_picture->areaChanged(inside);
}

bool TileMap::writeRuns(const QList<Run> &runs, int period, const Writer &write)
{
    struct Written
    {
        Row before; // keeps the storage alive that identifies a row
        std::span<const Run> runs;
        Row after;
    };
    std::vector<Written> written(size_t(std::clamp(period, 1, 1024)));
    QRect area;
    for (auto first = runs.cbegin(); first != runs.cend();) {
        const int y = first->row;
        const auto last = std::find_if(first, runs.cend(), [y](const Run &run) { return run.row != y; });
        const std::span<const Run> inRow(first, last);
        const auto sameCells = [](const Run &a, const Run &b) { return a.column == b.column && a.count == b.count; };
        Written &sample = written[size_t(y) % written.size()];
        const Row before = m_cells->rows()[y];
        if (period < 1 || before.constData() != sample.before.constData()
            || !std::ranges::equal(inRow, sample.runs, sameCells)) {
            Row after = before;
            TileData *const cells = after.data(); // one check for all runs: there may be a thousand
            for (const Run &run : inRow)
                write({run.column, y}, std::span(cells + run.column, size_t(run.count)));
            sample = {before, inRow, after == before ? before : after};
        }
        if (sample.after.constData() != before.constData()) {
            m_cells->writable()[y] = sample.after;
            const auto [left, right] = std::ranges::minmax_element(inRow, {}, &Run::column);
            area |= QRect(left->column, y, right->column + right->count - left->column, 1);
        }
        first = last;
    }
    if (!area.isEmpty())
        m_picture->areaChanged(area);
    return !area.isEmpty();
}

void TileMap::insertColumn(Quenmora::Position position)
{
    m_cells->changeRows(0, height() - 1, [position](const Row &row) {
        Row result;
        result.reserve(row.size() + 1);
        result.resize(position == Quenmora::Begin ? 1 : 0);
        result.append(row);
        result.resize(row.size() + 1);
        return result;
    });
    ++m_width;
    m_picture->contentChanged();
}

void TileMap::insertRow(Quenmora::Position position)
{
    m_cells->writable().insert(position == Quenmora::Begin ? 0 : height(), Row(m_width));
    m_picture->contentChanged();
}

void TileMap::removeColumn(Quenmora::Position position)
{
    if (m_width == 0)
        return;
    m_cells->changeRows(0, height() - 1, [position](const Row &row) {
        return row.sliced(position == Quenmora::Begin ? 1 : 0, row.size() - 1);
    });
    --m_width;
    m_picture->contentChanged();
}

void TileMap::removeRow(Quenmora::Position position)
{
    if (height() == 0)
        return;
    m_cells->writable().remove(position == Quenmora::Begin ? 0 : height() - 1);
    m_picture->contentChanged();
}

void TileMap::resize(QSize size)
{
    resize(size, Qt::AlignLeft | Qt::AlignTop);
}

QPoint TileMap::resize(QSize size, Qt::Alignment alignment)
{
    const QSize after = size.expandedTo({0, 0});
    const Span columns = keptSpan(m_width, after.width(), alignment & Qt::AlignHCenter, alignment & Qt::AlignRight);
    const Span lines = keptSpan(height(), after.height(), alignment & Qt::AlignVCenter, alignment & Qt::AlignBottom);

    TileRows kept(m_cells->rows().sliced(lines.from, lines.count));
    if (after.width() != m_width) {
        kept.changeRows(0, lines.count - 1, [&columns, &after](const Row &row) {
            Row result(after.width());
            std::copy_n(row.cbegin() + columns.from, columns.count, result.begin() + columns.to);
            return result;
        });
    }
    Rows rows(after.height(), Row(after.width()));
    std::ranges::copy(kept.rows(), rows.begin() + lines.to);
    m_cells->setRows(rows);
    m_width = after.width();
    m_picture->contentChanged();
    return {columns.to - columns.from, lines.to - lines.from};
}

void TileMap::shiftTileIndices(int from, int delta)
{
    m_cells->changeCells([from, delta](TileData cell) {
        if (delta < 0 && cell.index == from)
            cell.index = 0;
        else if (cell.index > from || (cell.index == from && delta >= 1))
            cell.index = int(qint64(cell.index) + delta);
        return cell;
    });
    m_picture->tilesChanged(); // even where no cell shows them, the tiles behind the index are others now
}

void TileMap::refreshOffsets()
{
    if (!m_tileSet)
        return;
    const bool changed = m_cells->changeCells([this](TileData cell) {
        cell.offset = m_tileSet->tileOffset(cell.index);
        return cell;
    });
    if (changed)
        m_picture->contentChanged();
}

void TileMap::swapTiles(int a, int b)
{
    m_picture->tilesSwapped(a, b);
    if (!m_cells->swapTiles(a, b))
        return;
    m_picture->contentChanged();
    emit tilesChanged();
}

void TileMap::restore(const Rows &rows)
{
    m_cells->setRows(rows);
    m_width = rows.isEmpty() ? 0 : int(rows.first().size());
    Q_ASSERT(std::all_of(rows.cbegin(), rows.cend(), [this](const Row &row) { return row.size() == m_width; }));
    m_picture->contentChanged();
    emit tilesChanged();
}

bool TileMap::canBeDrawn() const
{
    const bool can = m_tileSet && m_tileSet->palette();
    if (!can)
        qWarning("_tiles==nullptr");
    return can;
}

QImage TileMap::toImage(const QRect &area) const
{
    QImage image = canBeDrawn() ? m_picture->image(area) : TileMapPicture::blankImage(area.size(), TileSize);
    image.setColorTable(colourTable());
    return image;
}

QImage TileMap::render(const QRect &cells, int zoom, int transparencyIndex) const
{
    if (zoom < 1 || zoom > std::numeric_limits<int>::max() / TileSize)
        return {};
    const int cellSize = zoom * TileSize;
    QImage image =
        canBeDrawn() ? m_picture->scaledImage(cells, cellSize) : TileMapPicture::blankImage(cells.size(), cellSize);
    QList<QRgb> colours = colourTable();
    for (qsizetype i = 0; i < colours.size(); ++i) {
        if ((i & 15) == transparencyIndex)
            colours[i] &= RGB_MASK;
    }
    image.setColorTable(colours);
    return image;
}

void TileMap::paint(QPainter &painter, QPoint origin, const QRect &cells, int cellSize, int transparencyIndex) const
{
    paintAreas(painter, origin, cells, {cells}, cellSize, transparencyIndex);
}

void TileMap::paintAreas(QPainter &painter, QPoint origin, const QRect &cells, const QList<QRect> &areas, int cellSize,
                         int transparencyIndex) const
{
    if (!m_tileSet || !m_tileSet->palette())
        return;
    const QList<QRgb> table = m_tileSet->palette()->shownColourTable();
    std::array<QRgb, 256> colours{};
    for (size_t i = 0; i < colours.size(); ++i)
        colours[i] = int(i & 15) == transparencyIndex ? 0 : table[qsizetype(i)];
    m_picture->paint(painter, origin, cells, areas, cellSize, colours);
}

QList<QRgb> TileMap::colourTable() const
{
    const QPointer<Palette> palette = m_tileSet ? m_tileSet->palette() : nullptr;
    return palette ? palette->colourTable() : QList<QRgb>(Palette::Size, qRgb(0, 0, 0));
}

QByteArray TileMap::toNextData() const
{
    return TileMapFormat::toNextData(m_cells->rows());
}

QByteArray TileMap::serialise(const QRect &area) const
{
    return TileMapFormat::serialise(m_cells->rows(), area, m_tileSet ? m_tileSet->id() : QUuid());
}

TileMap *TileMap::fromData(const QByteArray &data, QObject *parent)
{
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    TileMapFormat::Budget budget{std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::max()};
    const auto rows = TileMapFormat::readRows(buffer, budget);
    if (!rows)
        return nullptr;
    auto *map = new TileMap(0, 0, parent);
    map->restore(*rows);
    return map;
}

QMimeData *TileMap::toMimeData(const QRect &area) const
{
    return mimeDataOf(m_cells->rows(), area, m_tileSet ? m_tileSet->id() : QUuid());
}

QMimeData *TileMap::mimeDataOf(const Rows &rows, const QRect &area, const QUuid &tileSetId)
{
    auto *mimeData = new QMimeData; // the caller owns it
    mimeData->setData(mimeType(), TileMapFormat::serialise(rows, area, tileSetId));
    return mimeData;
}

void TileMap::paste(QPoint at, const QMimeData *mimeData)
{
    const QByteArray data = mimeData ? mimeData->data(mimeType()) : QByteArray();
    const auto reader = TileMapFormat::Reader::open(data);
    if (!reader)
        return;
    const QRect inside = QRect(at, reader->size()) & bounds();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        reader->readCells(inside.left() - at.x(), y - at.y(), inside.width(),
                          m_cells->writable()[y].data() + inside.left());
    m_picture->contentChanged();
}

bool TileMap::isIn(const QMimeData *mimeData)
{
    return mimeData && mimeData->hasFormat(mimeType());
}

TileMap::Selection TileMap::readSelection(const QMimeData *mimeData)
{
    const QByteArray data = mimeData ? mimeData->data(mimeType()) : QByteArray();
    const auto reader = TileMapFormat::Reader::open(data);
    if (!reader)
        return {};
    const QSize size = reader->size();
    Selection selection{reader->tileSetId(), size, QList<TileData>(qsizetype(size.width()) * size.height())};
    for (int y = 0; y < size.height(); ++y)
        reader->readCells(0, y, size.width(), selection.cells.data() + qsizetype(y) * size.width());
    return selection;
}
