#include "app/imports/importagain.h"

#include "app/imports/filesagain.h"
#include "app/imports/imageagain.h"
#include "app/imports/mapagain.h"
#include "app/imports/paletteimport.h"
#include "app/imports/spritesagain.h"
#include "importing/filekind.h"
#include "model/image.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "ui/busy.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUndoStack>

namespace {

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImportAgain)
};

ImportedAgain paletteAgain(Palette &palette, const ImportRecord &record, QUndoStack *stack)
{
    Palette words;
    words.copyColours(palette);
    const auto leftOut = readPaletteFile(record.file, words);
    if (!leftOut)
        return {Texts::tr("The file is neither a palette nor a picture that can be read"), {}, {}};
    replaceWords(palette, words, stack);
    return {{}, Texts::tr("%1 is up to date").arg(palette.name()), record.choices};
}

/// Of any other file, which goes into the asset as it did into it, or into a new one, before.
ImportedAgain fileAgain(Project &project, const QUuid &asset, const ImportRecord &record,
                        const Importing::StackProvider &stackFor)
{
    auto choices = Importing::ImportChoices::fromJson(record.choices);
    const Importing::FileKind *kind = choices ? Importing::findFileKind(choices->kind) : nullptr;
    if (!kind || !kind->takesTarget)
        return {Texts::tr("Such a file makes new assets, and cannot go into those that are there"), {}, {}};
    choices->target = asset;
    if (choices->at == Importing::ImportChoices::AtTheEnd)
        choices->at = 0; // it was new
    const auto file = Importing::ImportFile::open(record.file);
    if (!file)
        return {file.reason(), {}, {}};
    const auto incoming = Importing::prepare(project, *file, *choices);
    if (!incoming)
        return {incoming.reason(), {}, {}};
    const auto added = Importing::addTo(project, *incoming, *choices, stackFor);
    if (!added)
        return {added.reason(), {}, {}};
    return {{}, Texts::tr("%1 was imported again").arg(QFileInfo(record.file).fileName()), record.choices};
}

ImportedAgain again(Project &project, const QUuid &asset, const ImportRecord &record,
                    const Importing::StackProvider &stackFor, QWidget *window)
{
    QUndoStack *stack = stackFor ? stackFor(asset) : nullptr;
    switch (record.kind) {
    case ImportRecord::Map:
        if (const QPointer<Map> map = project.map(asset))
            return mapAgain(map->tileSet(), map, record, stack, window);
        break;
    case ImportRecord::Tiles:
        if (const QPointer<TileSet> tileSet = project.tileSet(asset)) {
            const QPointer<Map> map = project.map(QUuid(record.choices[QStringLiteral("map")].toString()));
            return mapAgain(tileSet, map && map->tileSet() == tileSet ? map.data() : nullptr, record, stack, window);
        }
        break;
    case ImportRecord::Sprites:
        if (const QPointer<SpriteBank> bank = project.spriteBank(asset))
            return spritesAgain(*bank, record, stack, window);
        break;
    case ImportRecord::Image:
        if (const QPointer<Image> image = project.image(asset))
            return imageAgain(*image, record, stack);
        break;
    case ImportRecord::Palette:
        if (const QPointer<Palette> palette = project.palette(asset))
            return paletteAgain(*palette, record, stack);
        break;
    case ImportRecord::File:
        return MadeAssets::areIn(record.choices) ? filesAgain(project, record, stack, window)
                                                 : fileAgain(project, asset, record, stackFor);
    }
    return {Texts::tr("What was made of it is not there any more"), {}, {}};
}

} // namespace

ImportedAgain ImportedAgain::run(Project &project, const QUuid &asset, const ImportRecord &record,
                                 const Importing::StackProvider &stackFor, QWidget *window)
{
    const QFileInfo file(record.file);
    if (!file.isFile())
        return {Texts::tr("The file is not there any more:\n%1").arg(QDir::toNativeSeparators(record.file)), {}, {}};
    const Busy busy(window, Texts::tr("Importing %1…").arg(file.fileName()));
    ImportedAgain done = again(project, asset, record, stackFor, window);
    if (!done.failure.isEmpty())
        done.failure += QLatin1Char('\n') + QDir::toNativeSeparators(record.file);
    return done;
}
