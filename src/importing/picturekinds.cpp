#include "importing/imagecontent.h"
#include "importing/kinds.h"
#include "importing/paletteinuse.h"
#include "importing/sharedcolours.h"
#include "importing/texts.h"
#include "model/image.h"
#include "model/picturefile.h"
#include "pictures/colourfile.h"
#include "pictures/machinecolours.h"
#include "pictures/ninebitcolour.h"

#include <algorithm>

// Colours and pictures of other programs.

namespace Importing {
namespace {

Result<IncomingAssets> prepareColours(const Project &, const ImportFile &file, const ImportChoices &,
                                      const NextData::OptionValues &options)
{
    const Result<ColourFile> read = ColourFile::read(file.path);
    if (!read)
        return read.failure();
    IncomingAssets incoming;
    NextData::PaletteContent palette;
    palette.first = options.number("first");
    const qsizetype room = Palette::Size - palette.first;
    int changed = 0;
    for (const QRgb colour : read->colours.first(std::min(room, read->colours.size()))) {
        const auto exact = MachineColours::wordOf(colour);
        palette.words.append(exact ? *exact : NineBitColour::wordOf(NineBitColour::nearest(colour)));
        changed += exact ? 0 : 1;
    }
    if (read->transparentIndex >= 0 && read->transparentIndex < palette.words.size())
        palette.transparency = palette.first + read->transparentIndex;
    if (changed > 0)
        incoming.remarks.append(
            Texts::tr("Colours that the Next does not have, and that become the nearest ones: %1 of %2")
                .arg(changed)
                .arg(palette.words.size()));
    if (read->colours.size() > room)
        incoming.remarks.append(Texts::tr("Colours for which there is no room: %1").arg(read->colours.size() - room));
    incoming.palette = palette;
    return incoming;
}

Result<IncomingAssets> prepareImage(const Project &project, const ImportFile &file, const ImportChoices &choices,
                                    const NextData::OptionValues &options)
{
    const PictureFile picture = PictureFile::read(file.path);
    if (picture.image.isNull())
        return Failure{picture.failure()};
    const auto mode = imageMode(project, choices, options, picture.image.size());
    QImage image = picture.image;
    if (options.flag("scale"))
        image = image.scaled(Image::sizeOf(mode), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const SharedColours shared =
        SharedColours::of({1, [&image](int) { return image; }, image.colorTable()},
                          {.dithering = Kinds::ditheringOf(options),
                           .colourCount = mode == Quenmora::Layer2_640x256 ? 16 : 256,
                           .words = isPaletteGiven(project, choices) ? wordsInUse(project, choices) : QList<quint16>(),
                           .clear = clearInUse(project, choices)});
    IncomingAssets incoming{.palette = shared.palette, .remarks = shared.remarks};
    incoming.image = imageOf(shared.pictures.constFirst(), mode, shared.clear, incoming.remarks);
    return incoming;
}

/// A kind that has an import of its own.
FileKind elsewhere(const QString &id, const QString &title, NextData::AssetKind asset)
{
    return {.id = id, .title = title, .asset = asset, .options = {}};
}

} // namespace

NextData::Option Kinds::ditheringOption()
{
    return NextData::Option::choice(QStringLiteral("dithering"), Texts::tr("Dithering"),
                                    Texts::tr("How colours are shown for which there is no room"),
                                    {{QStringLiteral("none"), Texts::tr("None")},
                                     {QStringLiteral("ordered"), Texts::tr("Ordered pattern")},
                                     {QStringLiteral("diffusion"), Texts::tr("Error diffusion")}});
}

Dithering Kinds::ditheringOf(const NextData::OptionValues &options)
{
    if (options.is("dithering", "ordered"))
        return Dithering::Ordered;
    return options.is("dithering", "diffusion") ? Dithering::Diffusion : Dithering::None;
}

QList<FileKind> Kinds::colours()
{
    using NextData::Option;
    return {{.id = Colours,
             .title = Texts::tr("Palette of another program"),
             .asset = NextData::AssetKind::Palette,
             .options = {Option::number(QStringLiteral("first"), Texts::tr("First entry"),
                                        Texts::tr("The entry that the first colour becomes"), 0, Palette::Size - 1, 0)},
             .takesTarget = true,
             .prepare = prepareColours}};
}

QList<FileKind> Kinds::pictures()
{
    using NextData::AssetKind;
    const NextData::Option scale = NextData::Option::flag(QStringLiteral("scale"), Texts::tr("Scale to that size"),
                                                          Texts::tr("Makes the picture as large as the image"));
    return {
        elsewhere(PictureMap, Texts::tr("Picture, for tiles and a map"), AssetKind::Map),
        elsewhere(PictureSprites, Texts::tr("Picture, for sprites"), AssetKind::SpriteBank),
        {.id = PictureImage,
         .title = Texts::tr("Picture, for an image"),
         .asset = AssetKind::Image,
         .options = {modeOption(), scale, ditheringOption()},
         .takesTarget = true,
         .needsPalette = true,
         .bringsColours = true,
         .prepare = prepareImage},
        elsewhere(PicturePalette, Texts::tr("Picture, for its colours"), AssetKind::Palette),
        elsewhere(DataSet, Texts::tr("Palette, tiles, blocks and map of one name"), AssetKind::Map),
    };
}

} // namespace Importing
