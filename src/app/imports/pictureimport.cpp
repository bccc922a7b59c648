#include "app/imports/pictureimport.h"

#include "app/imports/paletteimport.h"
#include "app/imports/slicingprogress.h"
#include "model/imageslicer.h"
#include "model/nximage.h"
#include "model/picturefile.h"
#include "model/project.h"
#include "model/tileset.h"
#include "ui/busy.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

constexpr int MostTiles = 512;
// bits of ImageSlicer::Placement's orientation
constexpr int RotateBit = 4;
constexpr int MirrorBit = 2;
constexpr int FlipBit = 1;

QString tr(const char *text)
{
    return QCoreApplication::translate("PictureImport", text);
}

QPointer<TileSet> createTileSet(Project &project, const QString &name, const QUuid &paletteId,
                                const ImageSlicer &slicer, int tiles)
{
    const QPointer<TileSet> tileSet = project.createTileSet(name, paletteId, MostTiles, false);
    const QList<QRgb> colours = tileSet->palette()->colourTable(); // which may differ a little from the picture's
    for (int i = 0; i < tiles; ++i) {
        QImage piece = slicer.pieceWithOffset(i);
        piece.setColorTable(colours);
        tileSet->setTileOffset(i, slicer.bank(i));
        tileSet->setTileImage(i, piece);
    }
    return tileSet;
}

QPointer<Map> createMap(Project &project, const QString &name, const QUuid &tileSetId, const ImageSlicer &slicer)
{
    const QPointer<Map> map = project.createMap(name, tileSetId, slicer.size());
    const int columns = slicer.size().width();
    const QList<ImageSlicer::Placement> placements = slicer.placements();
    for (int cell = 0; cell < placements.size(); ++cell) {
        const auto [tile, orientation] = placements[cell];
        map->setTile({cell % columns, cell / columns},
                     {.index = tile,
                      .rotate = (orientation & RotateBit) != 0,
                      .flip = (orientation & FlipBit) != 0,
                      .mirror = (orientation & MirrorBit) != 0,
                      .offset = slicer.bank(tile),
                      .used = true});
    }
    return map;
}

/// Tells that tiles do not show all their colours; empty when all do.
QString lossOf(const ImageSlicer &slicer)
{
    const int lossy = slicer.lossyTileCount();
    if (lossy == 0)
        return {};
    return tr("Tiles that lost colours: %1 of %2.\n"
              "A tile shows 16 colours, and all of them together have 16 groups of 16. Reduce the colours of the "
              "picture, to 16 in each tile of 8 × 8 pixels and to fewer in all, and import it again.")
        .arg(lossy)
        .arg(slicer.pieceCount());
}

} // namespace

MapImport importPicture(Project &project, const QString &filePath, QWidget *parent)
{
    const QPointer<Project> guarded = &project; // events are handled while the picture is cut
    const Busy busy(parent, tr("Importing %1…").arg(QFileInfo(filePath).fileName()), PictureFile::pixelCount(filePath));
    const PictureFile picture = PictureFile::read(filePath);
    if (picture.image.isNull())
        return {nullptr, picture.failure()};

    ImageSlicer slicer(picture.image);
    int tiles = 0;
    {
        SlicingProgress progress(slicer, parent);
        tiles = slicer.sliceTiles();
    }
    if (tiles > MostTiles) {
        return {nullptr, tr("Cannot import the image as it would need more than 512 tiles\n%1 required").arg(tiles)};
    }
    if (tiles == 0)
        return {nullptr, tr("The image is smaller than a tile, which has 8 × 8 pixels")};
    if (!guarded)
        return {nullptr, tr("The project was closed meanwhile")};

    const QString name = QFileInfo(filePath).completeBaseName();
    const QUuid palette = createPaletteOf(project, name, slicer.bankColours())->id();
    const QPointer<TileSet> tileSet = createTileSet(project, name, palette, slicer, tiles);
    return {createMap(project, name, tileSet->id(), slicer), lossOf(slicer)};
}
