#pragma once

#include "model/image.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"

/// A project as large as games make them: a map of 1000 × 1000 cells, 512 tiles, 128 sprites and two
/// full-screen images.
namespace LargeProject {

constexpr int MapSide = 1000;
constexpr int TileCount = 512;
constexpr int SpriteCount = 128;

/// The same pseudo-random number for the same position.
inline uint hashed(int x, int y)
{
    uint h = uint(x) * 374761393U + uint(y) * 668265263U;
    h = (h ^ h >> 13) * 1274126177U;
    return h ^ h >> 16;
}

/// A picture with areas of one colour and some texture in between, as pixel art has them.
inline QImage picture(QSize size, uint seed)
{
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable(QList<QRgb>(256, qRgb(0, 0, 0)));
    for (int y = 0; y < size.height(); ++y) {
        uchar *line = image.scanLine(y);
        for (int x = 0; x < size.width(); ++x) {
            const uint area = hashed(x / 6 + int(seed), y / 5);
            line[x] = uchar(area % 3 == 0 ? hashed(x, y) % 16 : area % 16);
        }
    }
    return image;
}

inline void fill(Project &project)
{
    project.setName("Benchmark");
    const QUuid palette = project.createPalette(CreateAction::DefaultNext, "Palette")->id();
    const auto tiles = project.createTileSet("Tiles", palette, TileCount);
    for (int index = 0; index < TileCount; ++index) {
        tiles->setTileImage(index, picture({8, 8}, uint(index)));
        tiles->setTileOffset(index, index % 16);
    }
    const auto map = project.createMap("Map", tiles->id(), {MapSide, MapSide});
    for (int y = 0; y < MapSide; ++y) {
        for (int x = 0; x < MapSide; ++x) {
            const uint terrain = hashed(x / 8, y / 4) % 7;
            const uint detail = hashed(x, y);
            map->setTile({x, y},
                         {int(terrain == 0 ? detail % TileCount : terrain * 16 + uint(x % 4)), false, detail % 8 == 0,
                          detail % 8 == 1, int(terrain), true});
        }
    }
    const auto bank = project.createSpriteBank(Quenmora::EightBit, "Sprites", palette);
    bank->setWholeImage(picture({16, 16 * SpriteCount}, 1));
    project.createImage(Quenmora::Layer2_320x256, "Title", palette)->setImage(picture({320, 256}, 2));
    project.createImage(Quenmora::Layer2_640x256, "Panorama", palette)->setImage(picture({640, 256}, 3));
}

} // namespace LargeProject
