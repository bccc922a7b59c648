#include "importing/pixelpictures.h"

#include "model/spritebank.h"

#include <algorithm>
#include <cstring>

namespace Importing {

QImage pictureOf(const QByteArray &pixels, QSize size, const QList<QRgb> &colours)
{
    QImage picture(size, QImage::Format_Indexed8);
    picture.setColorTable(colours);
    for (int y = 0; y < size.height(); ++y)
        std::memcpy(picture.scanLine(y), pixels.constData() + qsizetype(y) * size.width(), size_t(size.width()));
    return picture;
}

QImage stripOf(const NextData::SpritesContent &sprites, const QList<QRgb> &colours)
{
    constexpr int side = SpriteBank::SpriteSize;
    return pictureOf(sprites.pixels, {side, int(sprites.pixels.size() / side)}, colours);
}

void putTiles(TileSet &tileSet, int first, const NextData::TilesContent &content, const QList<QRgb> &colours)
{
    TileSet::Snapshot tiles = tileSet.snapshot();
    tiles.resize(std::max(tiles.size(), first + content.tiles.size()));
    for (qsizetype i = 0; i < content.tiles.size(); ++i) {
        const Tile::Pixels &pixels = content.tiles[i].pixels;
        tiles[first + i].image =
            pictureOf(QByteArray::fromRawData(reinterpret_cast<const char *>(pixels.data()), pixels.size()),
                      {Tile::Size, Tile::Size}, colours);
        tiles[first + i].offset = content.tiles[i].offset;
    }
    tileSet.restore(tiles);
}

} // namespace Importing
