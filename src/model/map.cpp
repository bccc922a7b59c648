#include "model/map.h"

#include "model/animation.h"
#include "model/mapobjects.h"
#include "model/nxmfile.h"
#include "model/rawfile.h"
#include "model/tileset.h"

#include <QPainter>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int TileSize = TileMap::TileSize;

} // namespace

/// The tile layer; without one, null and a warning in the log.
TileMap *Map::neededTileLayer() const
{
    if (!m_tileLayer)
        qWarning("_tileMap==nullptr");
    return m_tileLayer;
}

template <typename Function>
void Map::forEachLayer(Function function)
{
    for (TileMap *layer : {m_tileLayer.data(), m_objectLayer.data()}) {
        if (layer)
            function(*layer);
    }
}

int Map::PlacedSprite::currentFrame(int frameCount, int frameDelay, qint64 time) const
{
    if (frameCount < 1)
        return 0;
    const int start = std::clamp(startFrame, 0, frameCount - 1);
    if (frameDelay <= 0 || time < initialDelay)
        return start;
    const qint64 run = qint64(frameCount) * frameDelay;
    const qint64 period = std::max(repeatDelay, 0) + run;
    const qint64 position = (time - initialDelay) % period;
    const qint64 step = position < run ? position / frameDelay : frameCount - 1;
    return int((start + step) % frameCount);
}

Map::Map(const QString &name, QObject *parent)
    : QObject(parent)
    , m_name(name)
    , m_animatedBlocks(new AnimatedBlocks(this))
{ }

QPointer<TileSet> Map::tileSet() const
{
    return m_tileSet;
}

void Map::setTileSet(const QPointer<TileSet> &tileSet)
{
    if (m_tileSet)
        m_tileSet->disconnect(this);
    m_tileSet = tileSet;
    m_tileSetId = tileSet ? tileSet->id() : QUuid();
    if (tileSet) {
        connect(tileSet, &TileSet::tileDeleted, this, [this](int index) { shiftTileIndices(index, -1); });
        connect(tileSet, &TileSet::tileInserted, this, [this](int index) { shiftTileIndices(index, +1); });
    }
    neededTileLayer(); // the others are bound without it
    forEachLayer([&tileSet](TileMap &layer) { layer.setTileSet(tileSet); });
}

void Map::shiftTileIndices(int from, int delta)
{
    forEachLayer([from, delta](TileMap &layer) { layer.shiftTileIndices(from, delta); });
}

void Map::setLayers(const QPointer<TileMap> &tileLayer, const QPointer<TileMap> &objectLayer)
{
    m_tileLayer = tileLayer;
    m_objectLayer = objectLayer;
    if (m_tileSet)
        forEachLayer([this](TileMap &layer) { layer.setTileSet(m_tileSet); });
}

QSize Map::size() const
{
    return m_tileLayer ? m_tileLayer->size() : QSize(0, 0);
}

int Map::dataSize() const
{
    const qint64 bytes = qint64(size().width()) * size().height() * 2;
    return int(std::min<qint64>(bytes, std::numeric_limits<int>::max()));
}

void Map::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit nameChanged(name);
}

void Map::insertColumn(Quenmora::Position position)
{
    forEachLayer([position](TileMap &layer) { layer.insertColumn(position); });
    moveContent(position == Quenmora::Begin ? QPoint(1, 0) : QPoint(0, 0));
}

void Map::insertRow(Quenmora::Position position)
{
    forEachLayer([position](TileMap &layer) { layer.insertRow(position); });
    moveContent(position == Quenmora::Begin ? QPoint(0, 1) : QPoint(0, 0));
}

void Map::removeColumn(Quenmora::Position position)
{
    forEachLayer([position](TileMap &layer) { layer.removeColumn(position); });
    moveContent(position == Quenmora::Begin ? QPoint(-1, 0) : QPoint(0, 0));
}

void Map::removeRow(Quenmora::Position position)
{
    forEachLayer([position](TileMap &layer) { layer.removeRow(position); });
    moveContent(position == Quenmora::Begin ? QPoint(0, -1) : QPoint(0, 0));
}

void Map::resize(QSize size, Qt::Alignment alignment)
{
    if (!neededTileLayer())
        return;
    const QPoint offset = m_tileLayer->resize(size, alignment);
    if (m_objectLayer)
        m_objectLayer->resize(size, alignment);
    moveContent(offset);
    emit resized(this);
}

/// Moves placements and sprites along with the cells, and removes those that have left the map.
void Map::moveContent(QPoint cells)
{
    if (!neededTileLayer())
        return;
    m_origin += cells;
    const QRect grid = m_tileLayer->bounds();
    const QRect staying = grid.translated(-cells); // what lies in it now will lie on the map
    QList<QRect> leaving;
    for (const QPointer<AnimationProperties> &placement : m_animatedBlocks->list()) {
        if (placement && !staying.contains(placement->area()))
            leaving.append(placement->area());
    }
    for (const QRect &area : std::as_const(leaving)) {
        m_animatedBlocks->remove(area);
        if (m_objectLayer)
            m_objectLayer->fill((area & staying).translated(cells), 0, false, false, false, true);
    }
    for (const QPointer<AnimationProperties> &placement : m_animatedBlocks->list()) {
        if (placement)
            placement->setArea(placement->area().translated(cells));
    }

    const QRect pixels(QPoint(0, 0), grid.size() * TileSize);
    for (PlacedSprite &sprite : m_sprites) {
        sprite.x = int(sprite.x + qint64(cells.x()) * TileSize);
        sprite.y = int(sprite.y + qint64(cells.y()) * TileSize);
    }
    m_sprites.removeIf([&pixels](const PlacedSprite &sprite) { return !pixels.contains(sprite.x, sprite.y); });
}

void Map::setTiles(const QRect &area, int index, bool rotate, bool flip, bool mirror, bool used)
{
    if (TileMap *layer = neededTileLayer())
        layer->fill(area, index, rotate, flip, mirror, used);
}

bool Map::setTile(QPoint at, const TileMap::TileData &cell)
{
    TileMap *layer = neededTileLayer();
    return layer && layer->setCell(at, cell);
}

bool Map::writeTiles(const QList<TileMap::Run> &runs, int period, const TileMap::Writer &write)
{
    TileMap *layer = neededTileLayer();
    return layer && layer->writeRuns(runs, period, write);
}

void Map::pasteTiles(QPoint at, const QMimeData *mimeData)
{
    if (TileMap *layer = neededTileLayer())
        layer->paste(at, mimeData);
}

void Map::refreshOffsets()
{
    if (TileMap *layer = neededTileLayer())
        layer->refreshOffsets();
}

void Map::placeAnimation(const Animation *animation, QPoint topLeft)
{
    if (!animation)
        return;
    const QRect area(topLeft, animation->size());
    if (m_tileLayer)
        m_tileLayer->fill(area, 0, false, false, false, true);
    stampFrame(*animation, 0, area);
    m_animatedBlocks->add(area, animation->id());
}

bool Map::removeAnimationAt(const QRect &area)
{
    if (!m_animatedBlocks->remove(area))
        return false;
    if (m_tileLayer) {
        const QRect inside = area & m_tileLayer->bounds();
        for (int y = inside.top(); y <= inside.bottom(); ++y) {
            for (int x = inside.left(); x <= inside.right(); ++x)
                m_tileLayer->setCell({x, y}, {});
        }
    }
    if (m_objectLayer)
        m_objectLayer->fill(area, 0, false, false, false, true);
    return true;
}

bool Map::stampFrame(const Animation &animation, int frame, const QRect &area)
{
    if (!m_objectLayer || frame < 0 || frame >= animation.frameCount())
        return false;
    const AnimationFrame::Cells &rows = animation.frame(frame)->cells();
    // a damaged project may place it anywhere
    const QRect inside = area & m_objectLayer->bounds();
    bool changed = false;
    for (int y = inside.top(); y <= inside.bottom() && y - area.top() < rows.size(); ++y) {
        const QList<AnimationFrame::Cell> &row = rows[y - area.top()];
        for (int x = inside.left(); x <= inside.right() && x - area.left() < row.size(); ++x) {
            const AnimationFrame::Cell &cell = row[x - area.left()];
            changed |=
                m_objectLayer->setCell({x, y}, {cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset, true});
        }
    }
    return changed;
}

void Map::restampAnimations(const QList<QPointer<MapObjects>> &blockSets)
{
    for (const QPointer<AnimationProperties> &placement : m_animatedBlocks->list()) {
        if (!placement)
            continue;
        if (m_tileLayer)
            m_tileLayer->fill(placement->area(), 0, false, false, false, true);
        for (const QPointer<MapObjects> &blocks : blockSets) {
            const QPointer<TileAnimation> animation = blocks ? blocks->animation(placement->animationId()) : nullptr;
            if (!animation)
                continue;
            stampFrame(*animation, 0, placement->area());
            break;
        }
    }
}

int Map::addSprite(const PlacedSprite &sprite)
{
    m_sprites.append(sprite);
    return int(m_sprites.size()) - 1;
}

bool Map::setSprite(int index, const PlacedSprite &sprite)
{
    if (index < 0 || index >= m_sprites.size())
        return false;
    m_sprites[index] = sprite;
    return true;
}

bool Map::removeSprite(int index)
{
    if (index < 0 || index >= m_sprites.size())
        return false;
    m_sprites.removeAt(index);
    return true;
}

void Map::onSpriteMoved(const QUuid &bank, int from, int to)
{
    for (PlacedSprite &sprite : m_sprites) {
        if (!sprite.isSingleOf(bank) || sprite.sprite < 0)
            continue;
        if (sprite.sprite == from)
            sprite.sprite = to;
        else if (to <= sprite.sprite && sprite.sprite < from)
            ++sprite.sprite;
        else if (from < sprite.sprite && sprite.sprite <= to)
            --sprite.sprite;
    }
}

void Map::onSpriteDeleted(const QUuid &bank, int index)
{
    if (index < 0)
        return;
    m_sprites.removeIf(
        [&bank, index](const PlacedSprite &sprite) { return sprite.isSingleOf(bank) && sprite.sprite == index; });
    for (PlacedSprite &sprite : m_sprites) {
        if (sprite.isSingleOf(bank) && sprite.sprite > index)
            --sprite.sprite;
    }
}

void Map::paintLayers(QPainter &painter, QPoint origin, const QRect &cells, int cellSize, int transparencyIndex) const
{
    if (m_tileLayer && m_tileLayer->isVisible())
        m_tileLayer->paint(painter, origin, cells, cellSize, transparencyIndex);
    if (!m_objectLayer || !m_objectLayer->isVisible())
        return;
    QList<QRect> areas;
    for (const QPointer<AnimationProperties> &placement : m_animatedBlocks->list()) {
        if (placement && placement->area().intersects(cells))
            areas.append(placement->area());
    }
    if (areas.isEmpty())
        return;
    const Qt::BGMode mode = painter.backgroundMode();
    painter.setBackgroundMode(Qt::TransparentMode); // the tile layer is what shows through
    m_objectLayer->paintAreas(painter, origin, cells, areas, cellSize, transparencyIndex);
    painter.setBackgroundMode(mode);
}

bool Map::exportData(const QString &fileName) const
{
    const TileMap *layer = neededTileLayer();
    return layer && RawFile::write(fileName, layer->toNextData());
}

QString Map::exportFileName() const
{
    return m_name + QStringLiteral("_tilemap.bin");
}

bool Map::exportToDirectory(const QString &folder) const
{
    return exportData(RawFile::pathIn(folder, exportFileName()));
}

bool Map::importNxm(const QString &mapFile, const QString &blockFile)
{
    const auto file = NxmFile::open(mapFile, blockFile);
    if (!file || !neededTileLayer())
        return false;
    resize(file->size(), Qt::AlignLeft | Qt::AlignTop);
    const QSize blocks = file->sizeInBlocks();
    for (int row = 0; row < blocks.height(); ++row) {
        for (int column = 0; column < blocks.width(); ++column) {
            const auto block = file->blockAt(column, row);
            if (!block)
                return false;
            for (int i = 0; i < 4; ++i)
                setTile({column * 2 + i % 2, row * 2 + i / 2}, {(*block)[size_t(i)], false, false, false, 0, true});
        }
    }
    return true;
}

bool Map::Snapshot::operator==(const Snapshot &other) const
{
    return tiles == other.tiles && objects == other.objects && placements == other.placements
        && sprites == other.sprites;
}

Map::Snapshot Map::snapshot() const
{
    return {m_tileLayer ? m_tileLayer->rows() : TileMap::Rows(),
            m_objectLayer ? m_objectLayer->rows() : TileMap::Rows(), m_animatedBlocks->state(), m_sprites, m_origin};
}

void Map::restore(const Snapshot &snapshot)
{
    if (m_tileLayer)
        m_tileLayer->restore(snapshot.tiles);
    if (m_objectLayer)
        m_objectLayer->restore(snapshot.objects);
    m_animatedBlocks->restore(snapshot.placements);
    m_sprites = snapshot.sprites;
    m_origin = snapshot.origin;
    emit restored();
}
