#pragma once

#include "model/animatedblocks.h"
#include "model/colourcycle.h"
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

#include <QRandomGenerator>

/// Fills a project with assets of every kind that hold, within what the Next's formats can tell, anything.
class RandomProject
{
public:
    explicit RandomProject(quint32 seed) : m_random(seed)
    {
        const auto palette = project.createPalette(CreateAction::Blank, "Colours");
        for (int i = 0; i < Palette::Size; ++i)
            palette->setRawColour(i, quint16(number(0x10000)));
        palette->setTransparencyIndex(number(257) - 1);
        addTiles(palette->id());
        addBlocks();
        for (const auto depth : {Quenmora::FourBit, Quenmora::EightBit})
            addSprites(depth, palette->id());
        addMap({1 + number(40), 1 + number(30)});
        addPlainMap({1 + number(40), 1 + number(30)});
        for (const auto mode :
             {Quenmora::Layer2_256x192, Quenmora::Layer2_320x256, Quenmora::Layer2_640x256, Quenmora::LoRes_128x96})
            addImage(mode, palette->id());
        const int first = number(Palette::Size - 1);
        const int last = first + 1 + number(Palette::Size - 1 - first);
        ColourCycles::set(*project.extras(), palette->id(),
                          {{first, last, 1 + number(ColourCycle::MaxFrames), chance()}});
    }

    [[nodiscard]] int number(int bound) { return int(m_random.bounded(quint32(bound))); }
    [[nodiscard]] bool chance() { return number(2) == 0; }

    Project project;
    QPointer<TileSet> tiles;
    QPointer<Map> map; ///< every cell holds anything
    QPointer<MapObjects> blocks;

private:
    void addTiles(const QUuid &palette)
    {
        tiles = project.createTileSet("Tiles", palette, 1 + number(40));
        for (int i = 0; i < tiles->count(); ++i) {
            tiles->setTileImage(i, pixels({8, 8}, 0, 256));
            tiles->setTileOffset(i, number(16));
            tiles->tile(i)->setAttributes(number(256));
            tiles->tile(i)->setValue(number(256));
        }
    }

    void fillAnimation(Animation &animation, int offsets)
    {
        animation.setSize({number(4), number(4)});
        animation.setDelay(number(0x10000));
        for (int more = number(4); more > 0; --more)
            animation.addFrame();
        for (int i = 0; i < animation.frameCount(); ++i) {
            AnimationFrame::Cells cells = animation.frame(i)->cells();
            for (auto &row : cells) {
                for (AnimationFrame::Cell &cell : row)
                    cell = {number(512), number(offsets), chance(), chance(), chance()};
            }
            animation.frame(i)->setCells(cells);
        }
    }

    void addBlocks()
    {
        project.createBlockList("Other blocks", tiles->id());
        blocks = project.createBlockList("Blocks", tiles->id());
        for (int i = 0; i < 3; ++i) {
            const auto animation = blocks->createBoundTileAnimation("Block");
            fillAnimation(*animation, 16);
            animation->setMapObjectType(MapObjectType(number(2)));
        }
    }

    void addSprites(Quenmora::Sprite depth, const QUuid &palette)
    {
        const auto bank = project.createSpriteBank(depth, "Sprites", palette);
        const int count = 1 + number(9);
        bank->setWholeImage(pixels({16, 16 * count}, 0, 256));
        for (int i = number(3); i >= 0; --i)
            fillAnimation(*bank->newAnimation(), 1);
    }

    void addMap(QSize size)
    {
        map = project.createMap("Level", tiles->id(), size);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                map->setTile({x, y}, {number(512), chance(), chance(), chance(), number(16), true});
        }
        for (int i = number(5); i > 0; --i) {
            const auto bank = project.spriteBanks().at(number(2));
            const int animation = number(int(bank->animations().size()) + 1) - 1;
            map->addSprite({bank->id(), animation < 0 ? QUuid() : bank->animations().at(animation)->id(), number(9),
                            number(0x10000) - 0x8000, number(0x10000) - 0x8000, chance(), chance(), chance(),
                            number(0x10000), number(0x10000), number(0x10000), number(16),
                            chance() ? QString() : QString::fromUtf8("D\xC3\xBCse %1").arg(i)});
        }
        for (int i = number(4); i > 0; --i) {
            const QRect area(number(0x10000) - 0x8000, number(0x10000) - 0x8000, number(256), number(256));
            map->animatedBlocks()->append(new AnimationProperties(
                {blocks->animations().at(number(3))->id(), area, number(0x10000), number(0x10000), number(0x10000)}));
        }
    }

    /// A map that fits into one byte a cell.
    void addPlainMap(QSize size)
    {
        const auto plain = project.createMap("Plain", tiles->id(), size);
        const int offset = number(16);
        for (int i = 0; i < size.width() * size.height(); ++i) {
            if (chance()) // others are never drawn
                plain->setTile({i % size.width(), i / size.width()}, {number(256), false, false, false, offset, true});
        }
    }

    void addImage(Quenmora::ImageMode mode, const QUuid &palette)
    {
        const int group = mode == Quenmora::Layer2_640x256 ? number(16) : -1; // all pixels of which are of one
        project.createImage(mode, "Title", palette)
            ->setImage(pixels(Image::sizeOf(mode), qMax(group, 0) * 16, group < 0 ? 256 : 16));
    }

    [[nodiscard]] QImage pixels(QSize size, int first, int count)
    {
        return pictureOf(size, QImage::Format_Indexed8, [&](int) { return first + number(count); });
    }

    QRandomGenerator m_random;
};
