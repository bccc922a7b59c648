#pragma once

#include "model/result.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>

/// The files that a map or tile set may lead to.
enum class TiledReferences {
    Below, ///< those in its own folder and below it, wherever links lead
    Anywhere ///< also others, which takes the consent of the person who opens it
};

/// A tile set of a Tiled map, or one in a file of its own (.tsx, .tsj): a picture that is cut into tiles, or a picture
/// a tile.
struct TiledTileSet
{
    struct Frame
    {
        int tile = 0;
        int duration = 0; ///< in milliseconds
    };

    QString name;
    /// What tile 0 is called in the cells of the map; 1 in a file of its own.
    quint32 firstGid = 1;
    QSize tileSize; ///< in pixels; of a picture a tile, the largest
    int count = 0; ///< of tiles; with a picture a tile their numbers are below it, and some may be missing
    int columns = 0; ///< of tiles in the picture; 0 with a picture a tile
    int margin = 0; ///< pixels around the tiles of the picture
    int spacing = 0; ///< pixels between them
    /// The picture, clear where the set names a transparent colour. Null with a picture a tile, and where it could not
    /// be read.
    QImage picture;
    QHash<int, QImage> pictures; ///< with a picture a tile: those that could be read
    QMap<int, QList<Frame>> animations; ///< by the tile that they stand in for; of tiles that are there
    QStringList problems; ///< why there are tiles without pixels, or none at all: a sentence each
    QStringList outside; ///< the files that were left alone because they are not below (see TiledReferences)
    QStringList remarks; ///< what else does not come in, a sentence each

    /// Whether a file begins as .tsx or .tsj files do. It may still be damaged.
    [[nodiscard]] static bool recognises(const QByteArray &start);

    /// Reads a .tsx or .tsj file.
    [[nodiscard]] static Result<TiledTileSet> read(const QString &fileName,
                                                   TiledReferences references = TiledReferences::Below);

    /// The pixels of a tile, in the format of its picture; null where they are not known.
    [[nodiscard]] QImage tile(int index) const;
};
