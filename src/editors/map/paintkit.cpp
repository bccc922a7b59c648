#include "editors/map/paintkit.h"

#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace MapEditor {

namespace {

// A cell as a number: tile, orientation, palette offset.
constexpr int TileBits = 16;
constexpr int Rotated = 1 << 16;
constexpr int Flipped = 1 << 17;
constexpr int Mirrored = 1 << 18;
constexpr int OffsetShift = 20;
constexpr int Unwritten = -1;

constexpr int MostKeptCells = 1 << 16; ///< of one stamp: files of text are for smaller ones

int numberOf(const TileMap::TileData &cell)
{
    if (!cell.used)
        return Unwritten;
    return (cell.index & ((1 << TileBits) - 1)) | (cell.rotate ? Rotated : 0) | (cell.flip ? Flipped : 0)
        | (cell.mirror ? Mirrored : 0) | (cell.offset & 15) << OffsetShift;
}

TileMap::TileData cellOf(int number)
{
    if (number < 0)
        return {};
    return {number & ((1 << TileBits) - 1), (number & Rotated) != 0,    (number & Flipped) != 0,
            (number & Mirrored) != 0,       number >> OffsetShift & 15, true};
}

QJsonObject toJson(const PaintKit::KeptStamp &kept)
{
    QJsonArray rows;
    for (int y = 0; y < kept.stamp.size().height(); ++y) {
        QJsonArray row;
        for (int x = 0; x < kept.stamp.size().width(); ++x)
            row.append(numberOf(kept.stamp.at(x, y)));
        rows.append(row);
    }
    QJsonObject object{{QStringLiteral("cells"), rows}};
    if (!kept.name.isEmpty())
        object.insert(QStringLiteral("name"), kept.name);
    return object;
}

Stamp stampFrom(const QJsonArray &rows)
{
    const int width = int(rows.first().toArray().size());
    if (qint64(width) * rows.size() > MostKeptCells)
        return {};
    QList<TileMap::TileData> cells;
    for (const QJsonValue &row : rows) {
        const QJsonArray numbers = row.toArray();
        for (const QJsonValue &number : numbers)
            cells.append(cellOf(number.toInt(Unwritten)));
    }
    return {QSize(width, int(rows.size())), cells};
}

} // namespace

PaintKit::PaintKit(TileSet *tileSet, QObject *parent)
    : QObject(parent)
    , m_tileSet(tileSet)
    , m_names(Numbering::of(*tileSet).names())
{
    // when the names of the tiles are known, which are set behind these signals
    connect(tileSet, &TileSet::structureChanged, this, &PaintKit::renumber, Qt::QueuedConnection);
    connect(tileSet, &TileSet::restored, this, &PaintKit::renumber, Qt::QueuedConnection);
}

void PaintKit::addStamp(Stamp stamp)
{
    if (stamp.isEmpty())
        return;
    const auto same = std::ranges::find(m_stamps, stamp, &KeptStamp::stamp);
    const QString name = same == m_stamps.end() ? QString() : same->name;
    if (same != m_stamps.end())
        m_stamps.erase(same);
    m_stamps.prepend({std::move(stamp), name});
    forgetOldest();
    emit stampsChanged();
}

void PaintKit::forgetOldest()
{
    int unnamed = 0;
    int named = 0;
    m_stamps.removeIf(
        [&](const KeptStamp &kept) { return kept.name.isEmpty() ? ++unnamed > MostRecent : ++named > MostNamed; });
}

void PaintKit::nameStamp(int index, const QString &name)
{
    if (index < 0 || index >= m_stamps.size() || m_stamps[index].name == name)
        return;
    m_stamps[index].name = name;
    forgetOldest();
    emit stampsChanged();
}

void PaintKit::removeStamp(int index)
{
    if (index < 0 || index >= m_stamps.size())
        return;
    m_stamps.removeAt(index);
    emit stampsChanged();
}

void PaintKit::setTerrains(const QList<Terrain> &terrains)
{
    if (terrains == m_terrains)
        return;
    m_terrains = terrains;
    emit terrainsChanged();
}

void PaintKit::renumber()
{
    if (!m_tileSet)
        return;
    const Numbering::Names names = Numbering::of(*m_tileSet).names();
    const Renumbering since = Renumbering::since(m_names, names);
    m_names = names;
    if (since.changesNothing())
        return;
    for (KeptStamp &kept : m_stamps) {
        QList<TileMap::TileData> cells = kept.stamp.cells();
        for (TileMap::TileData &cell : cells)
            cell.index = since(cell.index).value_or(0);
        kept.stamp = Stamp(kept.stamp.size(), cells);
    }
    for (Terrain &terrain : m_terrains) {
        for (const Terrain::Tile &tile : std::exchange(terrain.tiles, {}))
            terrain.mark(since(tile.index).value_or(-1), tile.marks);
    }
    emit stampsChanged();
    emit terrainsChanged();
}

// In a file

QJsonArray PaintKit::stampsToJson() const
{
    QJsonArray array;
    for (const KeptStamp &kept : m_stamps) {
        if (kept.stamp.cells().size() <= MostKeptCells)
            array.append(toJson(kept));
    }
    return array;
}

QJsonArray PaintKit::terrainsToJson() const
{
    QJsonArray array;
    for (const Terrain &terrain : m_terrains) {
        QJsonArray tiles;
        for (const Terrain::Tile &tile : terrain.tiles)
            tiles.append(QJsonArray{tile.index, tile.marks});
        QJsonObject object{{QStringLiteral("name"), terrain.name},
                           {QStringLiteral("neighbours"), terrain.corners ? 8 : 4},
                           {QStringLiteral("tiles"), tiles}};
        if (terrain.turns)
            object.insert(QStringLiteral("turns"), true);
        array.append(object);
    }
    return array;
}

void PaintKit::read(const QJsonArray &stamps, const QJsonArray &terrains)
{
    m_stamps.clear();
    for (const QJsonValue &value : stamps) {
        const Stamp stamp = stampFrom(value[QStringLiteral("cells")].toArray());
        if (!stamp.isEmpty())
            m_stamps.append({stamp, value[QStringLiteral("name")].toString()});
    }
    forgetOldest();
    m_terrains.clear();
    for (const QJsonValue &value : terrains) {
        if (m_terrains.size() == MostTerrains)
            break;
        Terrain terrain;
        terrain.name = value[QStringLiteral("name")].toString();
        terrain.corners = value[QStringLiteral("neighbours")].toInt() == 8;
        terrain.turns = value[QStringLiteral("turns")].toBool();
        const QJsonArray tiles = value[QStringLiteral("tiles")].toArray();
        for (const QJsonValue &tile : tiles)
            terrain.mark(tile[0].toInt(-1), tile[1].toInt());
        m_terrains.append(terrain);
    }
    emit stampsChanged();
    emit terrainsChanged();
}

} // namespace MapEditor
