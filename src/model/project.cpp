#include "model/project.h"

#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/projectextras.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tilemap.h"
#include "model/tileset.h"

#include <QMetaMethod>
#include <QMetaType>

#include <algorithm>

namespace {

constexpr int MessageDuration = 2500; // milliseconds

void registerMetaTypes()
{
    qRegisterMetaType<QHash<QUuid, QString>>();
    qRegisterMetaType<QPointer<Image>>();
    qRegisterMetaType<QPointer<Map>>();
    qRegisterMetaType<QPointer<MapObjects>>();
    qRegisterMetaType<QPointer<Palette>>();
    qRegisterMetaType<QPointer<SpriteAnim>>();
    qRegisterMetaType<QPointer<SpriteBank>>();
    qRegisterMetaType<QPointer<TileAnimation>>();
    qRegisterMetaType<QPointer<TileSet>>();
}

/// Registers an asset and makes the project its owner; false for null.
template <class Asset>
bool adopt(Project *project, AssetRegistry<Asset> &registry, const QPointer<Asset> &asset)
{
    if (!asset)
        return false;
    if (asset->parent() != project)
        asset->setParent(project);
    registry.insert(asset);
    return true;
}

/// The name of a copy of an asset.
QString copyName(const QString &name)
{
    return Project::tr("%1 (copy)").arg(name);
}

} // namespace

Project::Project(QObject *parent)
    : QObject(parent)
    , m_scratchImage(256, 192, QImage::Format_Indexed8)
    , m_extras(new ProjectExtras(this))
{
    [[maybe_unused]] static const bool registered = (registerMetaTypes(), true);
    m_scratchImage.fill(0);
}

Project::~Project()
{
    // What refers goes before what it refers to.
    m_maps.destroyAll();
    m_tileSets.destroyAll();
    m_palettes.destroyAll();
}

QPointer<Palette> Project::scratchPalette() const
{
    return palette(m_scratchPaletteId);
}

void Project::setScratchPalette(const QPointer<Palette> &palette)
{
    m_scratchPaletteId = palette ? palette->id() : QUuid();
}

QStringList Project::paletteNames() const
{
    QStringList names;
    for (const QPointer<Palette> &palette : palettes())
        names.append(palette->name());
    return names;
}

// Registering

void Project::addPalette(const QPointer<Palette> &palette)
{
    if (!adopt(this, m_palettes, palette))
        return;
    m_lastPalette = palette;
    emit showMessage(tr("New palette added: %1").arg(palette->name()), MessageDuration);
}

void Project::addTileSet(const QPointer<TileSet> &tileSet)
{
    if (!adopt(this, m_tileSets, tileSet))
        return;
    // Nobody listens while a project is read, when there may be many of them.
    if (isSignalConnected(QMetaMethod::fromSignal(&Project::tileSetsChanged))) {
        QHash<QUuid, QString> names;
        for (const QPointer<TileSet> &known : tileSets())
            names.insert(known->id(), known->name());
        emit tileSetsChanged(names);
    }
    emit showMessage(tr("New tile set added: %1").arg(tileSet->name()), MessageDuration);
}

void Project::addMap(const QPointer<Map> &map)
{
    if (adopt(this, m_maps, map))
        emit showMessage(tr("New map added: %1").arg(map->name()), MessageDuration);
}

void Project::addBlocks(const QPointer<MapObjects> &blocks)
{
    if (adopt(this, m_blockSets, blocks))
        emit showMessage(tr("New block set added: %1").arg(blocks->name()), MessageDuration);
}

void Project::addSpriteBank(const QPointer<SpriteBank> &bank)
{
    if (!adopt(this, m_spriteBanks, bank))
        return;
    followSprites(bank);
    emit showMessage(tr("New Sprite Bank Added"), 0);
}

void Project::addImage(const QPointer<Image> &image)
{
    adopt(this, m_images, image);
}

void Project::followSprites(SpriteBank *bank)
{
    disconnect(bank, nullptr, this, nullptr); // a bank may be registered again
    connect(bank, &SpriteBank::spriteMoved, this, [this, bank](int from, int to) {
        for (const QPointer<Map> &map : maps())
            map->onSpriteMoved(bank->id(), from, to);
    });
    connect(bank, &SpriteBank::spriteDeleted, this, [this, bank](int index) {
        for (const QPointer<Map> &map : maps())
            map->onSpriteDeleted(bank->id(), index);
    });
}

// Creating

QPointer<Palette> Project::createPalette(CreateAction action, const QString &name, const QUuid &source)
{
    const QPointer<Palette> original = palette(source) ? palette(source) : m_lastPalette;
    const QPointer<Palette> palette = new Palette(this);
    palette->setName(name);
    if (action == CreateAction::DefaultNext)
        palette->loadStandardNext();
    else if (action == CreateAction::CopyCurrent && original)
        palette->copyColours(*original);
    else
        palette->fill(Qt::black, false);
    addPalette(palette);
    emit paletteCreated(palette);
    return palette;
}

QPointer<TileSet> Project::createTileSet(const QString &name, const QUuid &palette, int tileCount, bool hiRes)
{
    const QPointer<TileSet> tileSet = new TileSet(tileCount, this);
    tileSet->setHiRes(hiRes);
    const QUuid paletteId = palette.isNull() ? createPalette(CreateAction::Blank, name)->id() : palette;
    tileSet->setName(name);
    if (const QPointer<Palette> bound = this->palette(paletteId))
        tileSet->setPalette(bound);
    addTileSet(tileSet);
    emit tilesetCreated(tileSet);
    return tileSet;
}

QPointer<MapObjects> Project::createBlockList(const QString &name, const QUuid &tile)
{
    const QPointer<MapObjects> blocks = new MapObjects(this);
    blocks->setTileSet(tileSet(tile));
    blocks->setName(name);
    addBlocks(blocks);
    emit blocksCreated(blocks);
    return blocks;
}

QPointer<Map> Project::createMap(const QString &name, const QUuid &tileSet, const QSize &size)
{
    const QPointer<Map> map = new Map(name, this);
    auto *tileLayer = new TileMap(size.width(), size.height(), this);
    auto *objectLayer = new TileMap(size.width(), size.height(), this);
    objectLayer->setVisible(false);
    map->setLayers(tileLayer, objectLayer);
    map->setTileSet(this->tileSet(tileSet));
    map->resize(size, Qt::AlignTop);
    m_maps.insert(map);
    emit mapCreated(map);
    return map;
}

QPointer<SpriteBank> Project::createSpriteBank(Quenmora::Sprite depth, const QString &name, const QUuid &palette)
{
    const QPointer<SpriteBank> bank = new SpriteBank(depth, this);
    bank->setName(name);
    if (const QPointer<Palette> bound = this->palette(palette))
        bank->setPalette(bound);
    m_spriteBanks.insert(bank);
    followSprites(bank);
    emit spritesCreated(bank);
    return bank;
}

QPointer<Image> Project::createImage(Quenmora::ImageMode mode, const QString &name, const QUuid &paletteId)
{
    const QPointer<Image> image = new Image(mode, this);
    image->setName(name);
    if (const QPointer<Palette> bound = palette(paletteId))
        image->setPalette(bound);
    addImage(image);
    emit imageCreated(image);
    return image;
}

// Copying

QPointer<Palette> Project::clonePalette(const QUuid &id)
{
    const QPointer<Palette> source = palette(id);
    return source ? createPalette(CreateAction::CopyCurrent, copyName(source->name()), id) : nullptr;
}

QPointer<TileSet> Project::cloneTileSet(const QUuid &id)
{
    const QPointer<TileSet> source = tileSet(id);
    if (!source)
        return nullptr;
    const QPointer<TileSet> copy = createTileSet(copyName(source->name()), source->paletteId());
    copy->copyTilesFrom(*source);
    return copy;
}

QPointer<Map> Project::cloneMap(const QUuid &id)
{
    const QPointer<Map> source = map(id);
    if (!source || !source->tileLayer())
        return nullptr;
    const QPointer<Map> copy = createMap(copyName(source->name()), source->tileSetId(), source->tileLayer()->size());
    copy->tileLayer()->restore(source->tileLayer()->rows()); // the rows stay shared until one is edited
    return copy;
}

// Deleting

bool Project::usesPalette(const QUuid &id) const
{
    const QPointer<Palette> palette = this->palette(id);
    const auto bound = [&palette](const auto &assets) {
        return std::any_of(assets.begin(), assets.end(),
                           [&palette](const auto &asset) { return asset->palette() == palette; });
    };
    return palette && (bound(tileSets()) || bound(spriteBanks()) || bound(images()) || id == m_scratchPaletteId);
}

bool Project::usesTileSet(const QUuid &id) const
{
    const QPointer<TileSet> tileSet = this->tileSet(id);
    const QList<QPointer<Map>> maps = this->maps();
    return tileSet && std::any_of(maps.begin(), maps.end(), [&](const auto &map) { return map->tileSet() == tileSet; });
}

bool Project::usesBlocks(const QUuid &id) const
{
    const QPointer<MapObjects> blocks = this->blocks(id);
    const QList<QPointer<Map>> maps = this->maps();
    return blocks && std::any_of(maps.begin(), maps.end(), [&](const auto &map) {
               return map->tileSet() && map->tileSet()->blockSets().value(id) == blocks;
           });
}

bool Project::deletePalette(const QUuid &id)
{
    if (usesPalette(id))
        return false;
    delete m_palettes.take(id).data();
    return true;
}

bool Project::deleteTileSet(const QUuid &id)
{
    if (usesTileSet(id))
        return false;
    delete m_tileSets.take(id).data();
    return true;
}

bool Project::deleteBlocks(const QUuid &id)
{
    if (usesBlocks(id))
        return false;
    delete m_blockSets.take(id).data();
    return true;
}

bool Project::deleteMap(const QUuid &id)
{
    const QPointer<Map> map = m_maps.take(id);
    if (!map)
        return true;
    // The layers belong to the project, but to no other map.
    const QPointer<TileMap> tileLayer = map->tileLayer();
    const QPointer<TileMap> objectLayer = map->objectLayer();
    delete map.data();
    delete tileLayer.data();
    delete objectLayer.data();
    return true;
}

bool Project::deleteSpriteBank(const QUuid &id)
{
    delete m_spriteBanks.take(id).data();
    return true;
}

bool Project::deleteImage(const QUuid &id)
{
    delete m_images.take(id).data();
    return true;
}

#include "moc_project.cpp"
