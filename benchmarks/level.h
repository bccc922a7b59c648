#pragma once

#include "model/animatedblocks.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tileset.h"

#include <QFile>

#include <algorithm>
#include <random>
#include <vector>

constexpr QSize Screen(1920, 1080);

/// The resident memory of this process in MiB, by the name that the kernel gives it.
inline double memory(const char *name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            return line.mid(qsizetype(qstrlen(name)) + 1).simplified().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

/// Cells as levels have them: structures of 16 × 8 cells, each of four tiles in a palette offset of its own, with one
/// noisy cell in sixteen.
inline TileMap::Rows structures(QSize size)
{
    constexpr unsigned TileCount = 512;
    std::minstd_rand random;
    TileMap::Rows rows(size.height(), TileMap::Row(size.width()));
    std::vector<unsigned> kinds(size_t(size.width()) / 16 + 1);
    for (int y = 0; y < size.height(); ++y) {
        if (y % 8 == 0)
            std::generate(kinds.begin(), kinds.end(), [&random] { return unsigned(random() >> 8); });
        for (int x = 0; x < size.width(); ++x) {
            const unsigned kind = kinds[size_t(x) / 16];
            TileMap::TileData &cell = rows[y][x];
            cell = {.index = int((kind + unsigned(x + y) % 4) % TileCount), .offset = int(kind % 16), .used = true};
            if (const auto noise = unsigned(random() >> 4); noise % 16 == 0) {
                cell.index = int(noise / 16 % TileCount);
                cell.mirror = noise >> 14 & 1;
            }
        }
    }
    return rows;
}

/// A map with both layers, bound to 512 random tiles in the standard palette.
class Level
{
public:
    explicit Level(QSize size) : m_tiles(size), m_objects(size)
    {
        std::minstd_rand random;
        m_palette.loadStandardNext();
        m_tileSet.setPalette(&m_palette);
        for (int i = 0; i < m_tileSet.count(); ++i) {
            QImage image(Tile::Size, Tile::Size, QImage::Format_Indexed8);
            for (int y = 0; y < Tile::Size; ++y)
                std::generate_n(image.scanLine(y), Tile::Size, [&random] { return uchar(random() & 15); });
            m_tileSet.setTileImage(i, image);
        }
        map.setLayers(&m_tiles, &m_objects);
        map.setTileSet(&m_tileSet);
        m_blocks.setTileSet(&m_tileSet);
    }

    /// Gives every cell a random tile, orientation and offset.
    void scatter()
    {
        std::minstd_rand random;
        TileMap::Rows rows = m_tiles.rows();
        for (TileMap::Row &row : rows) {
            for (TileMap::TileData &cell : row) {
                const auto bits = unsigned(random());
                cell = {int(bits & 511),    (bits & 512) != 0,    (bits & 1024) != 0,
                        (bits & 2048) != 0, int(bits >> 12 & 15), true};
            }
        }
        m_tiles.restore(rows);
    }

    /// Places animations of 4 × 4 cells and 8 frames of a tick each, one in every 8 × 8 cells of the area.
    void placeAnimations(const QRect &area)
    {
        m_animation = m_blocks.createBoundTileAnimation(QStringLiteral("Water"));
        m_animation->setSize({4, 4});
        m_animation->setDelay(1);
        for (int frame = 0; frame < 8; ++frame) {
            m_animation->addFrame();
            for (int cell = 0; cell < 16; ++cell)
                m_animation->frame(frame)->setIndex(cell / 4, cell % 4, frame * 16 + cell);
        }
        for (int y = area.top(); y <= area.bottom() - 4; y += 8) {
            for (int x = area.left(); x <= area.right() - 4; x += 8)
                map.placeAnimation(m_animation, {x, y});
        }
        m_objects.setVisible(true);
    }

    void showFrame(int frame)
    {
        for (const QPointer<AnimationProperties> &placement : map.animatedBlocks()->list())
            map.stampFrame(*m_animation, frame % m_animation->frameCount(), placement->area());
    }

    /// Places animations of 2 × 2 sprites and 4 frames all over the area: at 8 screen pixels a cell, about twice as
    /// many sprites as the hardware has.
    void placeSprites(const QRect &cells)
    {
        m_bank.setPalette(&m_palette);
        while (m_bank.count() < 16)
            m_bank.addSprite();
        for (int i = 0; i < m_bank.count(); ++i)
            m_bank.setImage(i, m_tileSet.image(i).scaled(SpriteBank::SpriteSize, SpriteBank::SpriteSize));
        const QPointer<SpriteAnim> animation = m_bank.newAnimation();
        animation->setSize({2, 2});
        animation->setDelay(1);
        while (animation->frameCount() < 4)
            animation->addFrame();
        for (int i = 0; i < 16; ++i)
            animation->frame(i / 4)->setIndex(i % 4 / 2, i % 2, i);
        Map::PlacedSprite sprite;
        sprite.bank = m_bank.id();
        sprite.animation = animation->id();
        for (sprite.y = cells.top() * 8; sprite.y < cells.bottom() * 8; sprite.y += 128) {
            for (sprite.x = cells.left() * 8; sprite.x < cells.right() * 8; sprite.x += 256)
                map.addSprite(sprite);
        }
    }

    Map map;
    [[nodiscard]] MapObjects &blocks() { return m_blocks; }
    [[nodiscard]] SpriteBank *bank() { return &m_bank; }

private:
    Palette m_palette;
    TileSet m_tileSet{512};
    TileMap m_tiles;
    TileMap m_objects;
    MapObjects m_blocks;
    QPointer<TileAnimation> m_animation;
    SpriteBank m_bank{Quenmora::EightBit};
};

/// The large map: every cell used.
class LargeLevel : public Level
{
public:
    explicit LargeLevel(QSize size = {2000, 2000}) : Level(size) { scatter(); }
};

/// The cells that a full screen shows.
inline QRect screenAt(QPoint cell, int cellSize)
{
    return {cell, QSize(Screen.width() / cellSize, Screen.height() / cellSize)};
}
