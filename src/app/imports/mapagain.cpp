#include "app/imports/mapagain.h"

#include "app/imports/importchoice.h"
#include "app/imports/maprenewal.h"
#include "app/imports/pictureimport.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/tileset.h"

#include <QCoreApplication>
#include <QLocale>
#include <QUndoStack>

namespace {

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImportAgain)
};

QString toldOf(const QString &name, const RenewedTiles &renewed)
{
    if (!renewed.isChanged)
        return Texts::tr("%1 is up to date").arg(name);
    QString told = Texts::tr("%1 is up to date; new tiles: %2").arg(name).arg(renewed.additions);
    if (renewed.lostPixels > 0)
        told += Texts::tr("; pixels that took the nearest colour: %1").arg(QLocale().toString(renewed.lostPixels));
    return told;
}

} // namespace

ImportedAgain mapAgain(TileSet *tileSet, Map *map, const ImportRecord &record, QUndoStack *stack, QWidget *window)
{
    if (!tileSet || !tileSet->palette() || (map && !map->tileLayer()))
        return {Texts::tr("The map has no tiles or no palette any more"), {}, {}};
    const TiledPicture tiled = TiledPicture::of(record.file, record.choices, window);
    if (tiled.picture.isNull())
        return {tiled.failure, {}, {}};
    QJsonObject choices = record.choices;
    const TilePicture picture{
        .image = tiled.picture,
        .clearPixel = tiled.clearPixel,
        .before =
            QSize(choices.value(QStringLiteral("columns")).toInt(), choices.value(QStringLiteral("rows")).toInt()),
        .imported = ImportChoice::numbersOf(choices.value(QStringLiteral("tiles")), tileSet->count())};
    const RenewedTiles renewed = renewTiles(*tileSet, map, picture, stack);
    if (!renewed.failure.isEmpty())
        return {renewed.failure, {}, {}};
    if (map && tiled.clearPixel >= 0 && map->tileTransparencyIndex() < 0)
        map->setTileTransparencyIndex(tiled.clearPixel);
    choices.insert(QStringLiteral("columns"), renewed.size.width());
    choices.insert(QStringLiteral("rows"), renewed.size.height());
    choices.insert(QStringLiteral("tiles"), ImportChoice::rangesOf(renewed.tiles));
    ImportedAgain done{{}, toldOf(map ? map->name() : tileSet->name(), renewed), choices};
    done.together.append(tileSet->id());
    if (map)
        done.together.append(map->id());
    return done;
}
