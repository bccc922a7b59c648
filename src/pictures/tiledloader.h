#pragma once

#include "pictures/foreignfile.h"
#include "pictures/tiledattributes.h"
#include "pictures/tiledcells.h"
#include "pictures/tiledfolder.h"
#include "pictures/tiledmap.h"

#include <vector>

/// Takes what the elements of a map or tile set say, in the order of its file, and makes the map of it: what the
/// readers of XML and JSON share.
///
/// The first thing that is wrong is kept; what comes after it is taken without effect.
class TiledLoader
{
public:
    // More than any map has, and few enough to be kept
    static constexpr qint64 MaxFileBytes = 12 << 20; ///< of all files together, pictures apart
    static constexpr int MaxDepth = 64; ///< of elements in each other
    static constexpr int MaxLayers = 4096;
    static constexpr int MaxTileSets = 256;
    static constexpr int MaxTilePictures = 8192;
    static constexpr int MaxFrames = 1 << 16;
    static constexpr int MaxProperties = 1 << 16;
    static constexpr qint64 LargestTile = (1 << 28) - 1; ///< that numbers have without the bits that turn them

    TiledLoader(const QString &fileName, TiledReferences references) : m_folder(fileName, references) { }

    [[nodiscard]] Result<TiledMap> readMap(const QString &fileName);
    [[nodiscard]] Result<TiledTileSet> readTileSet(const QString &fileName);

    [[nodiscard]] bool hasFailed() const { return !m_problem.isEmpty(); }
    [[nodiscard]] QString problem() const { return m_problem; }
    void fail(const QString &reason);

    void beginMap(const TiledAttributes &map);
    [[nodiscard]] bool isInfinite() const { return m_isInfinite; }

    void beginGroup(const TiledAttributes &group);
    void endGroup() { m_groups.pop_back(); }

    void beginLayer(const TiledAttributes &layer);
    /// The cells of the layer that began, or of a chunk of it: to be filled, and given back.
    [[nodiscard]] TiledCells beginCells(const TiledAttributes *chunk, const QString &encoding,
                                        const QString &compression);
    void endCells(TiledCells &cells);

    void addImageLayer(const TiledAttributes &layer);

    /// The layer of the objects that come.
    void beginObjects(const TiledAttributes &layer);
    void addObject(const TiledAttributes &object);
    void setShape(TiledMap::Shape shape); ///< of the last object
    void addProperty(const QString &name, const QString &type, const QVariant &value); ///< of the last object

    /// One that is in the map, or leads to a file of its own, which is read, or is that file.
    void addTileSet(const TiledAttributes &tileSet);
    /// What stands in the tile set itself, of which some has come with its attributes.
    void addPicture(const QString &source, const QString &transparent);
    void addTilePicture(qint64 tile, const QString &source, const QString &transparent);
    void addFrame(qint64 tile, const TiledAttributes &frame);
    void addRemark(const QString &remark) { m_remarks.add(remark); }

    /// A whole number that an element says, within bounds.
    qint64 number(const TiledAttributes &attributes, const char *name, qint64 otherwise, qint64 least, qint64 most);

private:
    struct Group
    {
        QPointF offset;
        double opacity = 1;
        bool visible = true;
    };
    struct Chunk
    {
        qsizetype layer = 0;
        QRect area;
        TiledMap::Gids gids;
    };
    struct Picture
    {
        qsizetype tileSet = 0;
        qint64 tile = -1; ///< whose it is; -1 for that of all
        QString folder;
        QString source;
        std::optional<QRgb> transparent;
    };

    void readFile(const QString &fileName, bool isMap);
    void readElsewhere(const QString &source);
    double real(const TiledAttributes &attributes, const char *name, double otherwise);
    [[nodiscard]] Group nested(const TiledAttributes &layer);
    [[nodiscard]] bool takeCells(qint64 width, qint64 height);
    void addTilePicture(Picture picture);
    void joinChunks();
    void readPictures();
    void takePicture(TiledTileSet &tileSet, QImage picture);
    void finishObjects();

    TiledFolder m_folder;
    QString m_currentFolder = m_folder.path(); ///< of the file that is read
    QString m_problem;
    ForeignFile::Remarks m_remarks;
    TiledMap m_map;
    bool m_isInfinite = false;
    std::vector<Group> m_groups;
    std::vector<Chunk> m_chunks;
    std::vector<Picture> m_pictures;
    Group m_objects; ///< the layer that objects are on
    QString m_objectLayer;
    QRect m_layerArea; ///< of the layer that began, in a map of fixed size
    QRect m_cellsArea; ///< of the cells that come
    qint64 m_bytesLeft = MaxFileBytes;
    qint64 m_cellsLeft = TiledMap::MaxCells;
    int m_frameCount = 0;
    int m_propertyCount = 0;
    int m_fileDepth = 0;
};
