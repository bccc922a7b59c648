#pragma once

#include "model/animatedblocks.h"
#include "model/enums.h"
#include "model/tilemap.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QString>
#include <QUuid>

class Animation;
class MapObjects;
class QMimeData;
class QPainter;
class TileSet;

/// A level built from the tiles of one tile set, with animated blocks and hardware sprites placed on it.
///
/// It has two grids of the same size: the tile layer, which is what the Next's tilemap gets, and the
/// object layer, which shows the current frames of the placed animations. The layers are handed over
/// by whoever makes the map, which works on without them but then has no size. Editing operations emit
/// no signal for single cells; who edits, repaints. Undo compares and restores snapshots.
class Map : public QObject
{
    Q_OBJECT

public:
    /// A hardware sprite, or a sprite animation, on the map.
    struct PlacedSprite
    {
        QUuid bank{};
        QUuid animation{}; ///< an animation of the bank, or null for a single sprite
        int sprite = 0; ///< sprite in the bank when there is no animation
        int x = 0; ///< pixels on the map, as y (8 to a cell)
        int y = 0;
        bool mirror = false;
        bool flip = false;
        bool rotate = false;
        int startFrame = 0;
        int initialDelay = 0; ///< ticks before the animation starts
        int repeatDelay = 0; ///< ticks between two runs of the animation
        int paletteOffset = 0;
        QString name{};

        /// The frame to show at a time in ticks of an animation of frameCount frames, frameDelay ticks each;
        /// 0 for an animation without frames.
        [[nodiscard]] int currentFrame(int frameCount, int frameDelay, qint64 time) const;

        /// Whether it shows one sprite of that bank, not an animation.
        [[nodiscard]] bool isSingleOf(const QUuid &id) const { return bank == id && animation.isNull(); }

        bool operator==(const PlacedSprite &) const = default;
    };

    /// What undo keeps of a map. Taking one costs next to nothing, and two of them share the rows in which
    /// they do not differ, which also makes comparing them cheap.
    struct Snapshot
    {
        TileMap::Rows tiles;
        TileMap::Rows objects;
        AnimatedBlocks::State placements;
        QList<PlacedSprite> sprites;
        /// The cell where that one is now which was the first one of the new map, as far as content has moved.
        QPoint origin{};

        /// Whether the contents are equal, wherever they were before.
        bool operator==(const Snapshot &other) const;
    };

    explicit Map(const QString &name = {}, QObject *parent = nullptr);

    [[nodiscard]] QUuid id() const { return m_id; }
    void setId(const QUuid &id) { m_id = id; }
    [[nodiscard]] QString name() const { return m_name; }

    [[nodiscard]] QUuid tileSetId() const { return m_tileSetId; }
    [[nodiscard]] QPointer<TileSet> tileSet() const;
    /// Binds a tile set (or none) to the map and its layers; cells follow inserted, deleted and swapped tiles.
    void setTileSet(const QPointer<TileSet> &tileSet);

    [[nodiscard]] QPointer<TileMap> tileLayer() const { return m_tileLayer; }
    [[nodiscard]] QPointer<TileMap> objectLayer() const { return m_objectLayer; }
    /// Hands over the layers, two grids of the same size, which stay with their owner.
    void setLayers(const QPointer<TileMap> &tileLayer, const QPointer<TileMap> &objectLayer);

    /// The size of the tile layer in cells; 0 × 0 without one.
    [[nodiscard]] QSize size() const;
    /// Bytes of the exported tile layer.
    [[nodiscard]] int dataSize() const;

    [[nodiscard]] bool spriteLayerVisible() const { return m_spriteLayerVisible; }
    void setSpriteLayerVisible(bool visible) { m_spriteLayerVisible = visible; }
    [[nodiscard]] bool gridVisible() const { return m_gridVisible; }
    void setGridVisible(bool visible) { m_gridVisible = visible; }
    /// The pixel value (0–15) that views draw transparent, or -1.
    [[nodiscard]] int tileTransparencyIndex() const { return m_tileTransparencyIndex; }
    /// The tile that views repeat behind the map, or -1.
    [[nodiscard]] int backgroundTileIndex() const { return m_backgroundTileIndex; }

    // Size: whole rows and columns, or everything at once. The content of the map moves with the cells;
    // placements that no longer lie on the map and sprites whose corner does not are removed.
    void insertColumn(Quenmora::Position position);
    void insertRow(Quenmora::Position position);
    void removeColumn(Quenmora::Position position);
    void removeRow(Quenmora::Position position);
    /// Emits resized().
    void resize(QSize size, Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop);

    // The tile layer
    void setTiles(const QRect &area, int index, bool rotate, bool flip, bool mirror, bool used);
    bool setTile(QPoint at, const TileMap::TileData &cell);
    /// TileMap::writeRuns() on the tile layer.
    bool writeTiles(const QList<TileMap::Run> &runs, int period, const TileMap::Writer &write);
    void pasteTiles(QPoint at, const QMimeData *mimeData);
    /// Gives every cell the palette offset that its tile has now.
    void refreshOffsets();

    // Placed animations
    [[nodiscard]] AnimatedBlocks *animatedBlocks() const { return m_animatedBlocks; }
    /// Places a tile animation: clears its rectangle on the tile layer and shows its first frame on the object layer.
    void placeAnimation(const Animation *animation, QPoint topLeft);
    /// Removes the placement with exactly this area and clears the area; false when there is none.
    bool removeAnimationAt(const QRect &area);
    /// Writes what lies in a placement's area of a frame into the object layer, which shows nothing of it elsewhere; a
    /// frame that the animation does not have is ignored. Whether a cell is another one now.
    bool stampFrame(const Animation &animation, int frame, const QRect &area);
    /// Shows the first frame of every placement again, after a project was read.
    void restampAnimations(const QList<QPointer<MapObjects>> &blockSets);

    // Placed sprites, in drawing order
    [[nodiscard]] const QList<PlacedSprite> &sprites() const { return m_sprites; }
    /// Appends a sprite and returns its index.
    int addSprite(const PlacedSprite &sprite);
    bool setSprite(int index, const PlacedSprite &sprite);
    bool removeSprite(int index);
    /// Keeps single sprites pointing at the same picture when one moves inside its bank, or is deleted.
    void onSpriteMoved(const QUuid &bank, int from, int to);
    void onSpriteDeleted(const QUuid &bank, int index);

    /// Paints the visible layers, as TileMap::paint(). The object layer shows only where an animation is placed.
    void paintLayers(QPainter &painter, QPoint origin, const QRect &cells, int cellSize, int transparencyIndex) const;

    /// Writes the tile layer as Next tilemap data; false unless every byte was written.
    [[nodiscard]] bool exportData(const QString &fileName) const;
    /// The name of the file that exportToDirectory() writes, NAME_tilemap.bin.
    [[nodiscard]] QString exportFileName() const;
    /// The same into that file in a folder; false also when the name cannot be part of a file's name.
    [[nodiscard]] bool exportToDirectory(const QString &folder) const;
    /// Takes size and tile layer from a tile data set (nxmfile.h). False when the map file cannot be read
    /// or is cut, or names a block that the block file does not have; what was read by then stays.
    [[nodiscard]] bool importNxm(const QString &mapFile, const QString &blockFile);

    [[nodiscard]] Snapshot snapshot() const;
    void restore(const Snapshot &snapshot);

public slots:
    void setName(const QString &name);
    void setTileTransparencyIndex(int index) { m_tileTransparencyIndex = index; }
    void setBackgroundTileIndex(int index) { m_backgroundTileIndex = index; }

signals:
    void nameChanged(const QString &name);
    void resized(QPointer<Map> map);
    /// A snapshot was put back.
    void restored();

private:
    TileMap *neededTileLayer() const;
    template <typename Function>
    void forEachLayer(Function function);
    void moveContent(QPoint cells);
    void shiftTileIndices(int from, int delta);

    QUuid m_id = QUuid::createUuid();
    QString m_name;
    QUuid m_tileSetId;
    QPointer<TileSet> m_tileSet;
    QPointer<TileMap> m_tileLayer;
    QPointer<TileMap> m_objectLayer;
    AnimatedBlocks *m_animatedBlocks; ///< owned as a child
    QList<PlacedSprite> m_sprites;
    QPoint m_origin; ///< see Snapshot
    bool m_spriteLayerVisible = true;
    bool m_gridVisible = false;
    int m_tileTransparencyIndex = -1;
    int m_backgroundTileIndex = -1;
};

Q_DECLARE_METATYPE(Map::PlacedSprite)
