#include "app/imports/spriteimport.h"

#include "app/imports/paletteimport.h"
#include "app/imports/slicingprogress.h"
#include "app/imports/spritecolours.h"
#include "model/imageslicer.h"
#include "model/nximage.h"
#include "model/picturefile.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "pictures/machinecolours.h"
#include "pictures/reducedpixels.h"
#include "ui/busy.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <utility>

// What can fail is looked at first: creating an asset is announced, and cannot be taken back unseen.

namespace {

/// Whether a new bank, which has one sprite, takes this many more.
bool fits(qint64 sprites)
{
    return sprites > 0 && sprites < SpriteBank::MaxCount;
}

QString importing(const SpriteImport &import)
{
    return QCoreApplication::translate("SpriteImport", "Importing %1…").arg(QFileInfo(import.file).fileName());
}

/// Makes a bank of the distinct pieces of a picture whose indices and colours are those of the bank.
SpriteBank *importSliced(Project &project, const SpriteImport &import, const QImage &picture, bool hasClearPixels,
                         QWidget *parent)
{
    const QPointer<Project> guarded = &project; // events are handled while the picture is cut
    ImageSlicer slicer(picture);
    {
        SlicingProgress progress(slicer, parent);
        slicer.sliceIndexedSprites();
    }
    if (!guarded || !fits(slicer.pieceCount()))
        return nullptr;
    const QPointer<Palette> palette = createPaletteOf(project, import.name, slicer.colours());
    SpriteBank *bank = project.createSpriteBank(import.depth, import.name, palette->id());
    if (hasClearPixels)
        palette->setTransparencyIndex(bank->clearPixels().pixel());
    return bank->importPieces(slicer) > 0 ? bank : nullptr;
}

} // namespace

IndexedSprites IndexedSprites::of(QImage image, const SpriteImport &import, const Palette *palette)
{
    const SpriteTransparency transparency{import.depth};
    if (import.reduction) {
        const ReducedPixels reduced = ReducedPixels::of(image,
                                                        {.dithering = *import.reduction,
                                                         .colourCount = transparency.pixelCount(),
                                                         .clear = transparency.pixel(),
                                                         .palette = palette});
        return {reduced.pixels, reduced.reduction.hasClearPixels};
    }
    NxImage picture;
    picture.setTranslucent(import.keepColours ? MachineColours::kept(std::move(image)) : std::move(image));
    if (!palette)
        return {SpriteColours::own(picture.colours(), transparency).pixels(picture), picture.hasClearPixels()};
    QList<QRgb> wanted = picture.colours();
    if (import.keepColours)
        std::transform(wanted.cbegin(), wanted.cend(), wanted.begin(), MachineColours::shown);
    return {SpriteColours::nearest(wanted, *palette, transparency).pixels(picture), picture.hasClearPixels()};
}

SpriteBank *importSpritePicture(Project &project, const SpriteImport &import, QWidget *parent)
{
    const Busy busy(parent, importing(import), PictureFile::pixelCount(import.file));
    QImage picture = PictureFile::read(import.file).image;
    const QSize size = picture.size();
    if (import.paletteId.isNull()) {
        const IndexedSprites sprites = IndexedSprites::of(std::move(picture), import, nullptr);
        return importSliced(project, import, sprites.pixels, sprites.hasClearPixels, parent);
    }
    const bool usable = fits(qint64(size.width() / SpriteBank::SpriteSize) * (size.height() / SpriteBank::SpriteSize));
    const QPointer<Palette> palette = project.palette(import.paletteId);
    if (!usable || !palette)
        return nullptr;
    SpriteBank *bank = project.createSpriteBank(import.depth, import.name, import.paletteId);
    return bank->appendPieces(IndexedSprites::of(std::move(picture), import, palette).pixels) > 1 ? bank : nullptr;
}

SpriteBank *importSpriteData(Project &project, const SpriteImport &import, QWidget *parent)
{
    const QFileInfo file(import.file);
    if (!file.isReadable() || !fits(file.size() / SpriteBank::SpriteBytes))
        return nullptr;
    const Busy busy(parent, importing(import), file.size());
    const QUuid palette = import.paletteId.isNull()
        ? project.createPalette(CreateAction::DefaultNext, import.name)->id()
        : import.paletteId;
    SpriteBank *bank = project.createSpriteBank(import.depth, import.name, palette);
    return bank->importSpr(import.file) ? bank : nullptr;
}
