#pragma once

#include "app/imports/mapimport.h"

#include <QImage>
#include <QJsonObject>

#include <memory>

class ImageSlicer;
class Project;
class QWidget;
struct TileReduction;

/// What importPicture() would take away from a picture.
struct PictureLoss
{
    QImage picture; ///< null when there is none that can be read
    bool isMachines = false; ///< all its colours are the machine's
    bool changesLevels = false; ///< of these colours
    bool hasManyColours = false; ///< more than are told apart, and not the machine's: shades become bands
    bool losesClearPixels = false;
    int tiles = 0;
    int lossyTiles = 0; ///< that do not show all their colours
    QImage shown; ///< what would become of it; null when it has too many tiles
    std::shared_ptr<const ImageSlicer> cut; ///< null when it is smaller than a tile

    [[nodiscard]] bool any() const;

    /// The window in front shows the progress.
    [[nodiscard]] static PictureLoss of(const QString &filePath, QWidget *parent);
};

/// A picture as the tiles show it that an import makes of it, in the machine's colours.
struct TiledPicture
{
    QImage picture; ///< null when it cannot be used
    int clearPixel = -1; ///< that clear pixels have in the tiles; -1 when there are none
    QString failure;

    /// What a reduction is to be remembered by; nothing stands for pictures that are cut as they are.
    [[nodiscard]] static QJsonObject choicesOf(const TileReduction &reduction);
    [[nodiscard]] static TiledPicture of(const QString &filePath, const QJsonObject &choices, QWidget *window);
};

/// Makes a palette, a tile set and a map, all of one name, of tiles that were found for a picture.
[[nodiscard]] MapImport importReduction(Project &project, const QString &name, const TileReduction &reduction);

/// Makes a palette, a tile set and a map of a picture, cut into tiles that are stored once. The window in
/// front shows the progress. Nothing is made of a picture that cannot be used; one with more colours than tiles can
/// show is imported as far as they go, and the failure says how many tiles lost some. What has been read of the file
/// already is not read again.
[[nodiscard]] MapImport importPicture(Project &project, const QString &filePath, QWidget *parent,
                                      const PictureLoss *known = nullptr);
