#include "nextdata/usual.h"

#include "model/animatedblocks.h"
#include "model/colourcycle.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "nextdata/filenames.h"
#include "nextdata/output.h"

#include <QFileInfo>
#include <QStringList>

namespace NextData {
namespace {

QStringList formsOfPalette(const Source &palette)
{
    QStringList ids{QStringLiteral("palette")};
    if (!ColourCycles::of(*palette.project().extras(), palette.id()).isEmpty())
        ids.append(QStringLiteral("palette-cycles"));
    return ids;
}

QStringList formsOfMap(const Map &map)
{
    QStringList ids{QStringLiteral("map-2byte")};
    if (!map.sprites().isEmpty())
        ids.append(QStringLiteral("map-sprites"));
    if (!map.animatedBlocks()->list().isEmpty())
        ids.append(QStringLiteral("map-blocks"));
    return ids;
}

QStringList formsOfSprites(const SpriteBank &bank)
{
    QStringList ids;
    if (bank.count() > 0)
        ids.append(bank.depth() == Quenmora::FourBit ? QStringLiteral("sprites-packed")
                                                     : QStringLiteral("sprites-8bit"));
    if (!bank.animations().isEmpty())
        ids.append(QStringLiteral("sprite-animations"));
    return ids;
}

QStringList idsOfForms(const Source &source)
{
    switch (source.kind()) {
    case AssetKind::Palette:
        return formsOfPalette(source);
    case AssetKind::TileSet:
        return source.as<TileSet>().count() > 0 ? QStringList{QStringLiteral("tiles-4bit")} : QStringList();
    case AssetKind::Map:
        return formsOfMap(source.as<Map>());
    case AssetKind::BlockSet:
        return source.as<MapObjects>().animations().isEmpty() ? QStringList()
                                                              : QStringList{QStringLiteral("block-animations")};
    case AssetKind::SpriteBank:
        return formsOfSprites(source.as<SpriteBank>());
    case AssetKind::Image:
        break;
    }
    const QList<const Form *> ofMode = formsFor(source);
    return ofMode.isEmpty() ? QStringList() : QStringList{ofMode.first()->id};
}

/// Empty when its form or options are none.
QString usualFileOf(const RecipeOutput &output)
{
    const Form *form = findForm(output.form);
    const Result<OptionValues> values = form ? OptionValues::parse(form->options, output.options) : Failure{};
    return values ? usualFile(output.name, *form, *values) : QString();
}

} // namespace

QList<const Form *> usualForms(const Source &source)
{
    QList<const Form *> usual;
    for (const QString &id : idsOfForms(source)) {
        const Form *form = findForm(id);
        Q_ASSERT(form);
        usual.append(form);
    }
    return usual;
}

QString usualFile(const QString &assetName, const Form &form, const OptionValues &values)
{
    const QString suffix = usualSuffix(form, values);
    QString what; // "map-sprites" makes Level_sprites.bin, and tiles as text are Level_tiles.asm
    if (form.suffix == QStringLiteral("bin"))
        what = form.id.section(u'-', 1);
    else if (suffix != form.suffix)
        what = wordOf(form.kind);
    QString name = FileNames::fromAssetName(assetName, wordOf(form.kind));
    if (!what.isEmpty())
        name += u'_' + what;
    return name.replace(u' ', u'_') + u'.' + suffix;
}

QString fileAfterChange(const RecipeOutput &before, const RecipeOutput &after, const TakenFiles &taken)
{
    const QString file = before.file;
    const QString usualBefore = usualFileOf(before);
    const QString usual = usualFileOf(after);
    if (usual == usualBefore || usual.isEmpty())
        return file;
    const qsizetype slash = file.lastIndexOf(u'/') + 1;
    const QString name = file.sliced(slash);
    const QString suffix = QFileInfo(usual).suffix();
    TakenFiles others = taken;
    if (name == usualBefore)
        return others.claim(file.first(slash) + usual);
    if (QFileInfo(name).suffix() == QFileInfo(usualBefore).suffix() && QFileInfo(name).suffix() != suffix)
        return others.claim(file.first(slash) + FileNames::withSuffix(name, suffix));
    return file;
}

} // namespace NextData
