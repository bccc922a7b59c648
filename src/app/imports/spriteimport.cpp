#include "app/imports/spriteimport.h"

#include "app/imports/paletteimport.h"
#include "app/imports/slicingprogress.h"
#include "app/imports/waitcursor.h"
#include "model/imageslicer.h"
#include "model/nximage.h"
#include "model/project.h"
#include "model/spritebank.h"

namespace {

/// The bank if it was filled; otherwise it is taken away again, and with it the palette made for it.
SpriteBank *keepIf(bool filled, Project &project, SpriteBank *bank, bool newPalette)
{
    if (filled)
        return bank;
    const QUuid palette = bank->paletteId();
    project.deleteSpriteBank(bank->id());
    if (newPalette)
        project.deletePalette(palette);
    return nullptr;
}

SpriteBank *importSliced(Project &project, const SpriteImport &import, QWidget *parent)
{
    const QPointer<Project> guarded = &project; // events are handled while the picture is cut
    NxImage picture;
    if (!picture.load(import.file))
        return nullptr;
    ImageSlicer slicer(picture.image());
    {
        SlicingProgress progress(slicer, parent);
        slicer.sliceSprites(SpriteBank::SpriteSize);
    }
    if (!guarded)
        return nullptr;
    const QUuid palette = createPaletteOf(project, import.name, slicer.colours())->id();
    SpriteBank *bank = project.createSpriteBank(import.depth, import.name, palette);
    return keepIf(bank->importPieces(slicer) > 0, project, bank, true);
}

} // namespace

SpriteBank *importSpritePicture(Project &project, const SpriteImport &import, QWidget *parent)
{
    const WaitCursor wait;
    if (import.paletteId.isNull())
        return importSliced(project, import, parent);
    SpriteBank *bank = project.createSpriteBank(import.depth, import.name, import.paletteId);
    return keepIf(bank->importImageFile(import.file) > 1, project, bank, false);
}

SpriteBank *importSpriteData(Project &project, const SpriteImport &import)
{
    const WaitCursor wait;
    const bool newPalette = import.paletteId.isNull();
    const QUuid palette =
        newPalette ? project.createPalette(CreateAction::DefaultNext, import.name)->id() : import.paletteId;
    SpriteBank *bank = project.createSpriteBank(import.depth, import.name, palette);
    return keepIf(bank->importSpr(import.file) && bank->count() > 1, project, bank, newPalette);
}
