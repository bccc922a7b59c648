#include "app/deletionquestion.h"

#include "model/animatedblocks.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/plural.h"
#include "model/spritebank.h"
#include "model/tileset.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// The names under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DeletionQuestion)
};

QString animations(int count)
{
    return count == 1 ? Texts::tr("1 animation") : Texts::tr("%n animations", nullptr, count);
}

QString placedSprites(int count)
{
    return count == 1 ? Texts::tr("1 placed sprite") : Texts::tr("%n placed sprites", nullptr, count);
}

/// A sentence about a list of things; none when there are none.
QString about(const QStringList &things, const QString &sentence)
{
    return things.isEmpty() ? QString() : sentence.arg(things.join(QStringLiteral(", ")));
}

QString lost(const QStringList &things)
{
    return about(things, Texts::tr("Lost with it: %1."));
}

QString consequencesOf(const Map &map)
{
    QStringList things;
    if (const int count = plural(map.sprites().size()))
        things += placedSprites(count);
    if (const int count = plural(map.animatedBlocks()->list().size()))
        things += count == 1 ? Texts::tr("1 placed animation") : Texts::tr("%n placed animations", nullptr, count);
    return lost(things);
}

QString consequencesOf(const MapObjects &blocks)
{
    const int count = plural(blocks.animations().size());
    return lost(count > 0 ? QStringList(animations(count)) : QStringList());
}

QString consequencesOf(const TileSet &tileSet)
{
    QStringList names;
    const auto blockSets = tileSet.blockSets();
    for (const QPointer<MapObjects> &blocks : blockSets) {
        if (blocks)
            names += blocks->name();
    }
    names.sort();
    return about(names, Texts::tr("Left without tiles: %1."));
}

QString consequencesOf(const Project &project, const SpriteBank &bank)
{
    qsizetype placed = 0;
    int maps = 0;
    for (const QPointer<Map> &map : project.maps()) {
        const auto count = std::ranges::count(map->sprites(), bank.id(), &Map::PlacedSprite::bank);
        placed += count;
        maps += count > 0 ? 1 : 0;
    }
    const int count = plural(bank.animations().size());
    QStringList sentences(lost(count > 0 ? QStringList(animations(count)) : QStringList()));
    if (placed > 0) {
        const QString sprites = placedSprites(plural(placed));
        sentences += maps == 1 ? Texts::tr("No longer shown: %1 on 1 map.").arg(sprites)
                               : Texts::tr("No longer shown: %1 on %n maps.", nullptr, maps).arg(sprites);
    }
    return sentences.join(u' ').trimmed();
}

} // namespace

std::optional<DeletionQuestion> deletionQuestion(const Project &project, ProjectTree::ProjectNode node, const QUuid &id)
{
    const auto ask = [node](const auto &asset, const QString &consequences) {
        const QString kind = ProjectTree::nodeName(node);
        const QString noUndo = Texts::tr("There is no undo for this.");
        return DeletionQuestion{Texts::tr("Delete %1?").arg(kind),
                                Texts::tr("Delete “%2” (%1)?").arg(kind, asset->name()),
                                consequences.isEmpty() ? noUndo : consequences + u'\n' + noUndo};
    };
    switch (node) {
    case ProjectTree::PaletteNode:
        if (const QPointer<Palette> palette = project.palette(id); palette && !project.usesPalette(id))
            return ask(palette, {});
        break;
    case ProjectTree::TileSetNode:
        if (const QPointer<TileSet> tileSet = project.tileSet(id); tileSet && !project.usesTileSet(id))
            return ask(tileSet, consequencesOf(*tileSet));
        break;
    case ProjectTree::MapObjectsNode:
        if (const QPointer<MapObjects> blocks = project.blocks(id); blocks && !project.usesBlocks(id))
            return ask(blocks, consequencesOf(*blocks));
        break;
    case ProjectTree::SpriteBankNode:
        if (const QPointer<SpriteBank> bank = project.spriteBank(id))
            return ask(bank, consequencesOf(project, *bank));
        break;
    case ProjectTree::MapNode:
        if (const QPointer<Map> map = project.map(id))
            return ask(map, consequencesOf(*map));
        break;
    case ProjectTree::ImageNode:
        if (const QPointer<Image> image = project.image(id))
            return ask(image, {});
        break;
    }
    return {};
}
