#include "importing/kinds.h"
#include "importing/tr.h"
#include "pictures/colourfile.h"
#include "pictures/machinecolours.h"
#include "pictures/ninebitcolour.h"

#include <algorithm>

// Files of other programs.

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
        incoming.remarks.append(tr("Colours that the Next does not have, and that become the nearest ones: %1 of %2")
                                    .arg(changed)
                                    .arg(palette.words.size()));
    if (read->colours.size() > room)
        incoming.remarks.append(tr("Colours for which there is no room: %1").arg(read->colours.size() - room));
    incoming.palette = palette;
    return incoming;
}

} // namespace

QList<FileKind> Kinds::foreign()
{
    using NextData::AssetKind;
    using NextData::Option;
    return {
        {.id = Colours,
         .title = tr("Palette of another program"),
         .asset = AssetKind::Palette,
         .options = {Option::number(QStringLiteral("first"), tr("First entry"),
                                    tr("The entry that the first colour becomes"), 0, Palette::Size - 1, 0)},
         .takesTarget = true,
         .prepare = prepareColours},
    };
}

} // namespace Importing
