#pragma once

#include "model/enums.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QMetaType>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QUuid>

#include <functional>
#include <memory>
#include <span>

class QMimeData;
class QPainter;
class TileMapPicture;
class TileRows;
class TileSet;

/// A grid of cells that show tiles of one tile set: one layer of a map.
///
/// Rows are implicitly shared values: the blank rows of a new grid are one row in memory, a snapshot
/// (rows()) shares every row with the grid until one of the two writes to it, and comparing two
/// snapshots looks only into the rows that they do not share. The picture of the grid is kept in blocks that
/// are rendered when somebody first looks at them, so that painting costs what is shown (TileMapPicture).
/// Positions and areas are in cells, x to the right and y down.
class TileMap : public QObject
{
    Q_OBJECT

public:
    /// What one cell shows; all zero in a new cell.
    struct TileData
    {
        int index = 0; ///< tile in the tile set; an index that the set does not have shows nothing
        bool rotate = false; ///< 90° clockwise, before mirror and flip
        bool flip = false; ///< top to bottom
        bool mirror = false; ///< left to right
        int offset = 0; ///< palette offset 0–15
        bool used = false; ///< the cell was written; an unused cell is drawn as pixels of index 0

        bool operator==(const TileData &) const = default;
    };
    using Row = QList<TileData>;
    using Rows = QList<Row>;

    /// Cells of a row from a column on.
    struct Run
    {
        int row;
        int column;
        int count;

        bool operator==(const Run &) const = default;
    };
    /// Makes of the cells from a place on what they become.
    using Writer = std::function<void(QPoint, std::span<TileData>)>;

    /// A rectangle of cells on the clipboard: width × height cells in row-major order.
    struct Selection
    {
        QUuid tileSetId;
        QSize size{0, 0};
        QList<TileData> cells;
    };

    static constexpr int TileSize = 8; ///< pixels along the side of a tile

    /// A grid of blank cells; a negative size counts as 0.
    TileMap(int width, int height, QObject *parent = nullptr);
    explicit TileMap(QSize size, QObject *parent = nullptr);
    ~TileMap() override;

    [[nodiscard]] QUuid id() const { return m_id; }
    void setId(const QUuid &id) { m_id = id; }

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const;
    [[nodiscard]] QSize size() const { return {m_width, height()}; }
    /// The whole grid: (0, 0, width, height).
    [[nodiscard]] QRect bounds() const { return {{0, 0}, size()}; }

    /// Whether the layer is shown; saved with the map, not part of a snapshot.
    [[nodiscard]] bool isVisible() const { return m_visible; }
    void setVisible(bool visible) { m_visible = visible; }

    [[nodiscard]] QPointer<TileSet> tileSet() const;
    /// Binds a tile set (or none) and follows it: swapped tiles keep their cells, changed ones are drawn anew.
    void setTileSet(const QPointer<TileSet> &tileSet);

    /// The cell, or a zero cell outside the grid.
    [[nodiscard]] TileData cellAt(QPoint at) const;
    /// False, and nothing changes, outside the grid or when the cell already holds exactly this.
    bool setCell(QPoint at, const TileData &cell);
    /// Gives every cell of the area this content with the tile set's own palette offset for the tile;
    /// what lies outside the grid is skipped.
    void fill(const QRect &area, int index, bool rotate, bool flip, bool mirror, bool used);

    /// Lets write() change runs of cells, which lie in the grid and come row by row. It does the same to equal cells of
    /// rows that are period apart: those that share their storage go on sharing it. Whether any cell became another
    /// one.
    bool writeRuns(const QList<Run> &runs, int period, const Writer &write);

    void insertColumn(Quenmora::Position position);
    void insertRow(Quenmora::Position position);
    void removeColumn(Quenmora::Position position);
    void removeRow(Quenmora::Position position);

    /// Cuts or pads with blank cells at the right and bottom.
    void resize(QSize size);
    /// Cuts or pads around the content as the alignment asks (left and top without one).
    /// Returns by how many cells the kept content moved.
    QPoint resize(QSize size, Qt::Alignment alignment);

    /// Keeps cells pointing at their tiles when tiles are inserted (delta > 0) at an index or deleted
    /// (delta < 0) there; cells of a deleted tile show tile 0.
    void shiftTileIndices(int from, int delta);
    /// Gives every cell the palette offset that the tile set now has for its tile.
    void refreshOffsets();

    /// The content, as cheap as a pointer until somebody writes; equal contents compare equal, at the
    /// cost of the rows that are not shared.
    [[nodiscard]] Rows rows() const;
    /// Puts a content back, size included.
    void restore(const Rows &rows);

    /// The area at one pixel a pixel as palette indices with the palette's colours. Blank, as render(), outside
    /// the grid and without a tile set that has a palette.
    [[nodiscard]] QImage toImage(const QRect &area) const;
    /// The cells with zoom (1 or more) screen pixels a pixel. Palette entries whose low four bits equal
    /// the transparency index (0–15, or -1 for none) get alpha 0.
    [[nodiscard]] QImage render(const QRect &cells, int zoom, int transparencyIndex) const;
    /// Paints cells with the top left one at origin and cellSize (1 or more) pixels along the side of each.
    /// Transparent pixels show the painter's background if its mode is opaque, or else, as outside the grid, what
    /// was there. This is what views use: the cost depends on the pixels painted, not on the size of the grid.
    void paint(QPainter &painter, QPoint origin, const QRect &cells, int cellSize, int transparencyIndex) const;
    /// The same, but only the parts of it that lie in these areas of the grid.
    void paintAreas(QPainter &painter, QPoint origin, const QRect &cells, const QList<QRect> &areas, int cellSize,
                    int transparencyIndex) const;

    /// The layer as the hardware's tilemap (two bytes a cell).
    [[nodiscard]] QByteArray toNextData() const;
    /// The area in data-stream form (tilemapformat.h), with blank cells outside the grid.
    [[nodiscard]] QByteArray serialise(const QRect &area) const;
    /// A new grid from data-stream form, owned by its parent or else by the caller; null when the data does
    /// not hold the cells that it announces.
    [[nodiscard]] static TileMap *fromData(const QByteArray &data, QObject *parent = nullptr);

    /// Clipboard data that holds the area; the caller owns it.
    [[nodiscard]] QMimeData *toMimeData(const QRect &area) const;
    /// The same of cells that are no tile map's.
    [[nodiscard]] static QMimeData *mimeDataOf(const Rows &rows, const QRect &area, const QUuid &tileSetId);
    /// Stores the cells of clipboard data with their top left at a position, dropping those outside the
    /// grid. Missing or damaged data changes nothing.
    void paste(QPoint at, const QMimeData *mimeData);
    /// Whether clipboard data has this form, damaged or not.
    [[nodiscard]] static bool isIn(const QMimeData *mimeData);
    /// The selection that clipboard data holds; an empty size when it is missing or damaged.
    [[nodiscard]] static Selection readSelection(const QMimeData *mimeData);

public slots:
    /// Cells of two tiles that changed places in the tile set follow them.
    void swapTiles(int a, int b);

signals:
    /// The grid was restored, or its cells followed swapped tiles.
    void tilesChanged();

private:
    /// Whether there are tiles and colours to draw with; a warning in the log when there are not.
    [[nodiscard]] bool canBeDrawn() const;
    /// The palette's colours; black without one.
    [[nodiscard]] QList<QRgb> colourTable() const;

    QUuid m_id = QUuid::createUuid();
    int m_width = 0;
    std::unique_ptr<TileRows> m_cells; ///< height rows of width cells each
    QPointer<TileSet> m_tileSet;
    bool m_visible = true;
    std::unique_ptr<TileMapPicture> m_picture; ///< what is rendered of the content; follows every change
};

Q_DECLARE_METATYPE(TileMap::TileData)
