#include "importing/paletteinuse.h"

#include "model/image.h"
#include "model/map.h"
#include "model/nextcolour.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/spritetransparency.h"
#include "model/tileset.h"

namespace Importing {
namespace {

QPointer<Palette> paletteInUse(const Project &project, const ImportChoices &choices)
{
    if (const auto palette = project.palette(choices.target))
        return palette;
    if (const auto tiles = project.tileSet(choices.target))
        return tiles->palette();
    if (const auto bank = project.spriteBank(choices.target))
        return bank->palette();
    if (const auto image = project.image(choices.target))
        return image->palette();
    const auto map = project.map(choices.target);
    if (const auto tiles = map ? map->tileSet() : project.tileSet(choices.tileSet))
        return tiles->palette();
    return project.palette(choices.palette);
}

} // namespace

QList<quint16> wordsInUse(const Project &project, const ImportChoices &choices)
{
    const QPointer<Palette> palette = paletteInUse(project, choices);
    Palette standard;
    if (!palette)
        standard.loadStandardNext();
    const Palette &shown = palette ? *palette : standard;
    QList<quint16> words(Palette::Size);
    for (int i = 0; i < Palette::Size; ++i)
        words[i] = shown.rawColour(i);
    return words;
}

bool isPaletteGiven(const Project &project, const ImportChoices &choices)
{
    return !paletteInUse(project, choices).isNull();
}

int clearInUse(const Project &project, const ImportChoices &choices)
{
    if (const auto bank = project.spriteBank(choices.target))
        return bank->transparency();
    const QPointer<Palette> palette = paletteInUse(project, choices);
    return palette && palette->transparencyIndex() >= 0 ? palette->transparencyIndex()
                                                        : SpriteTransparency::DefaultIndex;
}

QList<QRgb> coloursOf(const QList<quint16> &words)
{
    QList<QRgb> colours;
    for (const quint16 word : words) {
        colours.append(qRgb(NextColour::componentOf(NextColour::red(word)),
                            NextColour::componentOf(NextColour::green(word)),
                            NextColour::componentOf(NextColour::blue(word))));
    }
    return colours;
}

} // namespace Importing
