#pragma once

#include "model/animatedblocks.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tilemap.h"
#include "model/tileset.h"
#include "support/modeltools.h"

#include <QBuffer>

#include <limits>

/// A small project that holds every kind of asset, with every flag set somewhere and clear elsewhere, and
/// the smallest and largest values of its fields.
namespace SampleProject {

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

/// A picture whose pixels run through all 256 indices.
inline QImage gradient(QSize size)
{
    return pictureOf(size, QImage::Format_Indexed8, [](int i) { return i & 255; });
}

/// A picture that neither deflate nor a PNG's filters make smaller.
inline QImage noise(QSize size)
{
    QImage image = gradient(size);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(image.bits()), image.sizeInBytes() / 4);
    return image;
}

inline QByteArray png(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return bytes;
}

inline void fillFrame(AnimationFrame &frame, int firstIndex)
{
    AnimationFrame::Cells cells = frame.cells();
    for (auto &row : cells) {
        for (AnimationFrame::Cell &cell : row) {
            cell = {firstIndex, firstIndex % 16, firstIndex % 2 == 0, firstIndex % 3 == 0, firstIndex % 5 == 0};
            ++firstIndex;
        }
    }
    frame.setCells(cells);
}

inline QPointer<Palette> addPalettes(Project &project)
{
    const auto main = project.createPalette(CreateAction::DefaultNext, "Main");
    main->setTransparencyIndex(227);
    main->setRawColour(7, 0xFFFF); // bits that no colour of the program sets
    project.createPalette(CreateAction::Blank, QString::fromUtf8("\xC3\xA9t\xC3\xA9 \"2\"\n\\%1"));
    project.setScratchPalette(main);
    return main;
}

inline QPointer<TileSet> addTileSets(Project &project, const QUuid &palette)
{
    const auto tiles = project.createTileSet("Tiles", palette, 4, true);
    for (int index = 0; index < tiles->count(); ++index) {
        tiles->setTileImage(index, gradient({8, 8}));
        tiles->setTileOffset(index, index * 5);
        tiles->tile(index)->setAttributes(index * 85);
    }
    tiles->tile(1)->setValue(Least);
    tiles->tile(2)->setValue(Most);
    tiles->setPalette(project.palette(palette));
    project.createTileSet(QString(), QUuid::createUuid(), 1); // without a palette
    return tiles;
}

inline QPointer<MapObjects> addBlockSets(Project &project, const QUuid &tileSet)
{
    const auto blocks = project.createBlockList("Blocks", tileSet);
    const auto door = blocks->createBoundTileAnimation("Door");
    door->setSize({3, 2});
    door->setDelay(50);
    door->setMapObjectType(MapObjectType::HorizontalPlatform);
    fillFrame(*door->addFrame(), 0);
    fillFrame(*door->addFrame(), 505);
    blocks->createBoundTileAnimation("Without frames");
    project.createBlockList("Unbound", {});
    return blocks;
}

inline QPointer<SpriteBank> addSpriteBanks(Project &project, const QUuid &palette)
{
    const auto bank = project.createSpriteBank(Quenmora::FourBit, "Hero", palette);
    bank->addSprite();
    bank->addSprite();
    bank->setImage(1, gradient({16, 16}));
    bank->setTransparency(3);
    bank->setOffsets(QByteArray("\0\x7F\x80\xFF", 4));
    const auto run = bank->newAnimation();
    run->setName("Run");
    run->setSize({2, 1});
    run->setDelay(1);
    run->addFrame();
    fillFrame(*run->frame(1), 1);
    project.createSpriteBank(Quenmora::EightBit, "Without a palette", {})->setImage(0, gradient({16, 16}));
    return bank;
}

inline void addMaps(Project &project, const QUuid &tileSet, const MapObjects &blocks, const SpriteBank &bank)
{
    const auto map = project.createMap("Level", tileSet, {6, 4});
    map->setTile({0, 0}, {511, true, false, true, 15, true});
    map->setTile({5, 3}, {257, false, true, false, 3, true});
    map->setTileTransparencyIndex(15);
    map->setBackgroundTileIndex(2);
    map->setGridVisible(true);
    map->setSpriteLayerVisible(false);
    map->tileLayer()->setVisible(false);
    map->objectLayer()->setVisible(true);
    map->placeAnimation(blocks.animations().first(), {1, 1});
    AnimationProperties *placement = map->animatedBlocks()->list().first();
    placement->setInitialDelay(5);
    placement->setRepeatDelay(6);
    placement->setStartFrame(1);
    map->addSprite({bank.id(), bank.animations().first()->id(), -1, -8, 31, true, true, true, 1, 2, 3, 4, "runner"});
    map->addSprite({bank.id(), {}, 2, 47, 0, false, false, false, 0, 0, 0, 15, {}});
    project.createMap("Without tiles", {}, {1, 1});
}

inline void addImages(Project &project, const QUuid &palette)
{
    project.createImage(Quenmora::Layer2_256x192, "Title", palette)->setImage(gradient({256, 192}));
    project.createImage(Quenmora::Layer2_320x256, "Without a palette", {});
    project.createImage(Quenmora::Layer2_640x256, "Wide", palette);
    project.createImage(Quenmora::LoRes_128x96, "Small", palette);
}

inline void fill(Project &project)
{
    project.setName("Sample");
    project.setScreenSize({256, 192});
    project.setPlayArea({-8, 16, 240, 176});
    project.setOpenDocuments({"first", "second"});
    project.setScratchImage(gradient({256, 192}));
    const QUuid palette = addPalettes(project)->id();
    const QUuid tiles = addTileSets(project, palette)->id();
    const auto blocks = addBlockSets(project, tiles);
    const auto bank = addSpriteBanks(project, palette);
    addMaps(project, tiles, *blocks, *bank);
    addImages(project, palette);
    project.palette(palette)->setRawColour(8, 0xE000); // which all pictures follow
}

} // namespace SampleProject
