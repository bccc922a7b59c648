#include "app/imports/pictureimport.h"

#include "app/imports/importchoice.h"
#include "app/imports/paletteimport.h"
#include "app/imports/slicingprogress.h"
#include "model/imageslicer.h"
#include "model/nximage.h"
#include "model/picturefile.h"
#include "model/project.h"
#include "model/tileset.h"
#include "model/transform.h"
#include "pictures/machinecolours.h"
#include "pictures/pixeltile.h"
#include "pictures/tilereduction.h"
#include "ui/busy.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

using namespace TileOrientation; // which ImageSlicer's placements have as well

constexpr int MostTiles = TileReduction::MostTiles;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PictureImport)
};

TileMap::TileData cellOf(int tile, int orientation, int group)
{
    return {.index = tile,
            .rotate = (orientation & RotateBit) != 0,
            .flip = (orientation & FlipBit) != 0,
            .mirror = (orientation & MirrorBit) != 0,
            .offset = group,
            .used = true};
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
    for (int cell = 0; cell < slicer.cellCount(); ++cell) {
        const auto [tile, orientation] = slicer.placement(cell);
        map->setTile({cell % columns, cell / columns}, cellOf(tile, orientation, slicer.bank(tile)));
    }
    return map;
}

/// Tells that tiles do not show all their colours; empty when all do.
QString lossOf(const ImageSlicer &slicer)
{
    const int lossy = slicer.lossyTileCount();
    if (lossy == 0)
        return {};
    return Texts::tr(
               "Tiles that lost colours: %1 of %2.\n"
               "A tile shows 16 colours, and all of them together have 16 groups of 16. Reduce the colours of the "
               "picture, to 16 in each tile of 8 × 8 pixels and to fewer in all, and import it again.")
        .arg(lossy)
        .arg(slicer.pieceCount());
}

/// The picture that the tiles of a slicer make, in the colours of the Next. There are few tiles.
QImage shownOf(const ImageSlicer &slicer)
{
    Palette words;
    const QList<QRgb> colours = slicer.bankColours();
    for (int i = 0; i < Palette::Size; ++i)
        words.setColour(i, QColor::fromRgb(colours[i]), false);
    QList<QImage> pieces;
    for (int tile = 0; tile < slicer.pieceCount(); ++tile)
        pieces.append(slicer.pieceWithOffset(tile));
    QImage shown(slicer.size() * ImageSlicer::TileSide, QImage::Format_Indexed8);
    shown.setColorTable(words.colourTable());
    for (int cell = 0; cell < slicer.cellCount(); ++cell) {
        const auto [tile, orientation] = slicer.placement(cell);
        const QImage piece =
            oriented(pieces.at(tile), orientation & RotateBit, orientation & FlipBit, orientation & MirrorBit);
        const QPoint corner =
            QPoint(cell % slicer.size().width(), cell / slicer.size().width()) * ImageSlicer::TileSide;
        for (int y = 0; y < ImageSlicer::TileSide; ++y)
            std::copy_n(piece.constScanLine(y), ImageSlicer::TileSide, shown.scanLine(corner.y() + y) + corner.x());
    }
    return shown;
}

/// Why no tiles can be made of a picture that was cut; empty when they can.
QString refusalOf(const ImageSlicer &slicer)
{
    const int tiles = slicer.pieceCount();
    if (tiles > MostTiles)
        return Texts::tr("Cannot import the image as it would need more than 512 tiles\n%1 required").arg(tiles);
    return tiles == 0 ? Texts::tr("The image is smaller than a tile, which has 8 × 8 pixels") : QString();
}

MapImport importCut(Project &project, const QString &filePath, const ImageSlicer &slicer)
{
    if (const QString refusal = refusalOf(slicer); !refusal.isEmpty())
        return {nullptr, refusal};
    const QString name = QFileInfo(filePath).completeBaseName();
    const QUuid palette = createPaletteOf(project, name, slicer.bankColours())->id();
    const QPointer<TileSet> tileSet = createTileSet(project, name, palette, slicer, slicer.pieceCount());
    return {createMap(project, name, tileSet->id(), slicer), lossOf(slicer)};
}

} // namespace

MapImport importPicture(Project &project, const QString &filePath, QWidget *parent, const PictureLoss *known)
{
    const QPointer<Project> guarded = &project; // events are handled while the picture is cut
    const Busy busy(parent, Texts::tr("Importing %1…").arg(QFileInfo(filePath).fileName()),
                    PictureFile::pixelCount(filePath));
    if (known && known->cut)
        return importCut(project, filePath, *known->cut);
    const PictureFile picture = PictureFile::read(filePath);
    if (picture.image.isNull())
        return {nullptr, picture.failure()};
    ImageSlicer slicer(picture.image);
    {
        SlicingProgress progress(slicer, parent);
        slicer.sliceTiles();
    }
    if (!guarded)
        return {nullptr, Texts::tr("The project was closed meanwhile")};
    return importCut(project, filePath, slicer);
}

namespace {

/// Whether a picture has more than the 256 colours that the slicer tells apart, before they are snapped.
bool hasManyColours(const QImage &picture)
{
    constexpr int Many = 256;
    if (!picture.colorTable().isEmpty())
        return false;
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        const QImage line = picture.copy(0, y, picture.width(), 1).convertToFormat(QImage::Format_RGB32);
        const auto *pixels = reinterpret_cast<const QRgb *>(line.constScanLine(0));
        for (int x = 0; x < line.width(); ++x)
            colours.insert(pixels[x]);
        if (colours.size() > Many)
            return true;
    }
    return false;
}

/// Whether pixels are clear, looked at in bands, since NxImage takes a picture's memory once more.
bool hasClearPixels(const QImage &picture)
{
    constexpr int Rows = 64;
    for (int y = 0; y < picture.height(); y += Rows) {
        NxImage band;
        band.setTranslucent(picture.copy(0, y, picture.width(), std::min(Rows, picture.height() - y)));
        if (band.hasClearPixels())
            return true;
    }
    return false;
}

} // namespace

bool PictureLoss::any() const
{
    return !picture.isNull()
        && (changesLevels || hasManyColours || losesClearPixels || lossyTiles > 0 || tiles > MostTiles);
}

PictureLoss PictureLoss::of(const QString &filePath, QWidget *parent)
{
    const Busy busy(parent, Texts::tr("Reading %1…").arg(QFileInfo(filePath).fileName()));
    PictureLoss loss;
    loss.picture = PictureFile::read(filePath).image;
    if (loss.picture.width() < ImageSlicer::TileSide || loss.picture.height() < ImageSlicer::TileSide)
        return {};
    loss.isMachines = MachineColours::areIn(loss.picture);
    loss.changesLevels = loss.isMachines && !MachineColours::surviveQuantising(loss.picture);
    loss.hasManyColours = !loss.isMachines && ::hasManyColours(loss.picture);
    loss.losesClearPixels = loss.picture.hasAlphaChannel() && hasClearPixels(loss.picture);
    const auto slicer = std::make_shared<ImageSlicer>(loss.picture);
    {
        SlicingProgress progress(*slicer, parent);
        loss.tiles = slicer->sliceTiles();
    }
    loss.cut = slicer;
    loss.lossyTiles = slicer->lossyTileCount();
    if (loss.any() && loss.tiles <= MostTiles)
        loss.shown = shownOf(*slicer);
    return loss;
}

QJsonObject TiledPicture::choicesOf(const TileReduction &reduction)
{
    return {{QStringLiteral("dithering"), ImportChoice::nameOf(reduction.choices.dithering)},
            {QStringLiteral("keepClear"), reduction.choices.keepClearPixels},
            {QStringLiteral("clear"), reduction.hasClearPixels}};
}

TiledPicture TiledPicture::of(const QString &filePath, const QJsonObject &choices, QWidget *window)
{
    const PictureFile picture = PictureFile::read(filePath);
    if (picture.image.isNull())
        return {{}, -1, picture.failure()};
    if (const auto dithering = ImportChoice::ditheringOf(choices[QStringLiteral("dithering")])) {
        const bool keepClear = choices[QStringLiteral("keepClear")].toBool();
        const auto reduction =
            TileReduction::of(picture.image, {.dithering = *dithering, .keepClearPixels = keepClear});
        const bool clear = reduction.hasClearPixels || choices[QStringLiteral("clear")].toBool();
        return {reduction.shown(), clear ? TileReduction::ClearPixel : -1,
                reduction.size.isEmpty() ? Texts::tr("The image is smaller than a tile, which has 8 × 8 pixels")
                                         : QString()};
    }
    ImageSlicer slicer(picture.image);
    {
        SlicingProgress progress(slicer, window);
        slicer.sliceTiles();
    }
    const QString failure = refusalOf(slicer);
    return failure.isEmpty() ? TiledPicture{shownOf(slicer), -1, {}} : TiledPicture{{}, -1, failure};
}

MapImport importReduction(Project &project, const QString &name, const TileReduction &reduction)
{
    const QPointer<Palette> palette = project.createPalette(CreateAction::Blank, name);
    for (int i = 0; i < Palette::Size; ++i)
        palette->setRawColour(i, reduction.words[i]);
    if (reduction.hasClearPixels)
        palette->setTransparencyIndex(TileReduction::ClearPixel);

    const QPointer<TileSet> tileSet = project.createTileSet(name, palette->id(), MostTiles, false);
    QImage tile(TileReduction::Side, TileReduction::Side, QImage::Format_Indexed8);
    tile.setColorTable(palette->colourTable());
    for (size_t i = 0; i < reduction.tiles.size(); ++i) {
        for (int y = 0; y < TileReduction::Side; ++y)
            std::copy_n(reduction.tiles[i].cbegin() + y * TileReduction::Side, TileReduction::Side, tile.scanLine(y));
        tileSet->setTileOffset(int(i), reduction.groups[i]);
        tileSet->setTileImage(int(i), tile);
    }

    const QPointer<Map> map = project.createMap(name, tileSet->id(), reduction.size);
    for (size_t cell = 0; cell < reduction.cells.size(); ++cell) {
        const auto [number, orientation] = reduction.cells[cell];
        map->setTile({int(cell) % reduction.size.width(), int(cell) / reduction.size.width()},
                     cellOf(number, orientation, reduction.groups[size_t(number)]));
    }
    if (reduction.hasClearPixels)
        map->setTileTransparencyIndex(TileReduction::ClearPixel);
    return {map, {}};
}
