#pragma once

#include "pictures/tiledtileset.h"

#include <QPointF>
#include <QRect>
#include <QSizeF>
#include <QVariant>

/// A map as Tiled writes it (.tmx, .tmj), of cells in rows and columns.
///
/// The cells of an infinite map are those of the smallest rectangle that holds all chunks; origin says where it was.
/// References that lead nowhere, or out of the folder, leave tile sets without pixels, which say so; the cells are
/// read nevertheless.
struct TiledMap
{
    /// Cells that a map and all its layers together may have.
    static constexpr qint64 MaxCells = 16 << 20;
    static constexpr int MaxObjects = 1 << 16;

    /// Numbers of tiles, row by row, as the file has them: with the bits that turn them (see cell()); 0 is empty.
    using Gids = QList<quint32>;

    struct Layer
    {
        QString name;
        QRect area; ///< in cells of the map
        Gids gids; ///< as many as the area has
        QPointF offset; ///< in pixels
        double opacity = 1; ///< with that of the groups that it is in
        bool visible = true; ///< and so are the groups that it is in
    };

    enum class Shape { Tile, Rectangle, Point, Other };

    struct Object
    {
        QString name;
        QString type; ///< or class
        QString layer; ///< the name of the one that it is on
        Shape shape = Shape::Rectangle;
        QPointF topLeft; ///< in pixels of the map, before it is turned; with the offset of its layer
        QSizeF size; ///< in pixels
        double rotation = 0; ///< degrees clockwise, around the lower left corner of tiles, else the upper left one
        quint32 gid = 0; ///< of a tile (see cell())
        bool visible = true; ///< and so are its layer and the groups that it is in
        QMap<QString, QVariant> properties; ///< bool, int, double or QString
    };

    /// What a number of a tile means.
    struct Cell
    {
        /// Index in tileSets; -1 for an empty cell, or a number that no tile set has. A set that could not be read has
        /// all numbers up to the next one's.
        int tileSet = -1;
        int tile = 0; ///< in the tile set
        bool rotate = false; ///< turned as oriented() in model/transform.h turns pictures
        bool flip = false;
        bool mirror = false;

        [[nodiscard]] bool isEmpty() const { return tileSet < 0; }
    };

    /// All that is seen as one layer.
    struct Flat
    {
        Gids gids; ///< as many as size has
        QStringList remarks; ///< what is lost, a sentence each
    };

    QSize size; ///< in cells
    QSize tileSize; ///< of a cell, in pixels
    QPoint origin; ///< of cell 0, 0 in an infinite map
    QList<Layer> layers; ///< from the lowest, without the groups that they are in
    QList<Object> objects; ///< from the lowest layer
    QList<TiledTileSet> tileSets; ///< by their first numbers
    QStringList remarks; ///< what does not come in, a sentence each

    /// Whether a file begins as .tmx or .tmj files do. It may still be damaged.
    [[nodiscard]] static bool recognises(const QByteArray &start);

    [[nodiscard]] static Result<TiledMap> read(const QString &fileName,
                                               TiledReferences references = TiledReferences::Below);

    /// The files that all tile sets left alone because they are not below the map's folder: to be asked about, and read
    /// by reading the map again with TiledReferences::Anywhere.
    [[nodiscard]] QStringList outside() const;

    /// A number of a tile without the bits that turn it; 0 for none.
    [[nodiscard]] static constexpr quint32 numberOf(quint32 gid) { return gid & 0x0FFFFFFF; }
    [[nodiscard]] Cell cell(quint32 gid) const;

    /// The uppermost tile of the visible layers in each cell. Layers are moved by whole cells; what shines through
    /// clear pixels, partly clear layers and numbers that no tile set has are lost.
    [[nodiscard]] Flat flattened() const;
};
