#include "importing/preview.h"

#include "importing/paletteinuse.h"
#include "importing/pixelpictures.h"
#include "importing/texts.h"
#include "model/image.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "model/transform.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <bitset>
#include <cstring>
#include <functional>

namespace Importing {
namespace {

using NextData::TilesContent;

constexpr int TileColumns = 16;
constexpr int SpriteColumns = 16;
constexpr int MostRows = 64; ///< of tiles or sprites that are shown
constexpr int MostCells = 128; ///< of a map that are shown along a side

/// Squares of pixels side by side, as many as the pixels are.
QImage sheetOf(qsizetype count, int side, int columns, const QList<QRgb> &colours,
               const std::function<const uchar *(qsizetype)> &pixelsOf)
{
    const int shown = int(std::min<qsizetype>(count, qsizetype(columns) * MostRows));
    if (shown == 0)
        return {};
    QImage sheet(std::min(shown, columns) * side, (shown + columns - 1) / columns * side, QImage::Format_Indexed8);
    sheet.setColorTable(colours);
    sheet.fill(0);
    for (int i = 0; i < shown; ++i) {
        const uchar *pixels = pixelsOf(i);
        for (int y = 0; y < side; ++y)
            std::memcpy(sheet.scanLine(i / columns * side + y) + i % columns * side, pixels + y * side, size_t(side));
    }
    return sheet;
}

/// The colours with one of them clear.
QList<QRgb> clearAt(QList<QRgb> colours, int index)
{
    if (index >= 0 && index < colours.size())
        colours[index] = 0;
    return colours;
}

Tile::Pixels shownPixels(const Tile::Pixels &pixels, int offset)
{
    Tile::Pixels shown{};
    std::transform(pixels.cbegin(), pixels.cend(), shown.begin(),
                   [offset](uchar pixel) { return uchar((pixel & 15) | offset << 4); });
    return shown;
}

QImage tilesPreview(const TilesContent &content, const QList<QRgb> &colours)
{
    Tile::Pixels pixels{};
    return sheetOf(content.tiles.size(), Tile::Size, TileColumns, colours, [&](qsizetype i) {
        pixels = shownPixels(content.tiles[i].pixels, content.tiles[i].offset);
        return pixels.data();
    });
}

/// All sprites, as many as are shown, with what is not drawn clear.
QImage spritesSheet(const IncomingSprites &sprites, const QList<QRgb> &colours)
{
    const NextData::SpritesContent &content = sprites.content;
    const int transparency = sprites.transparency >= 0 ? sprites.transparency : SpriteTransparency::DefaultIndex;
    QList<QRgb> table = clearAt(colours, SpriteTransparency{content.depth, transparency}.pixel());
    if (content.depth == Quenmora::FourBit) { // whatever the high nibble is, the first group is shown
        for (qsizetype i = 16; i < table.size(); ++i)
            table[i] = table[i % 16];
    }
    const auto *pixels = reinterpret_cast<const uchar *>(content.pixels.constData());
    return sheetOf(content.pixels.size() / SpriteBank::SpriteBytes, SpriteBank::SpriteSize, SpriteColumns, table,
                   [pixels](qsizetype i) { return pixels + i * SpriteBank::SpriteBytes; });
}

/// A sprite of such a sheet; null for one that is not on it.
QImage spriteOn(const QImage &sheet, int number)
{
    constexpr int side = SpriteBank::SpriteSize;
    const QRect area(number % SpriteColumns * side, number / SpriteColumns * side, side, side);
    return number >= 0 && sheet.rect().contains(area) ? sheet.copy(area) : QImage();
}

/// The sprites, and below them the frames of each animation side by side, as far as there is room.
QImage spritesPreview(const IncomingSprites &sprites, const QList<QRgb> &colours)
{
    constexpr int side = SpriteBank::SpriteSize;
    constexpr int gap = side / 2;
    constexpr int mostAnimations = 16;
    constexpr int widest = 2 * SpriteColumns * side;
    const QImage sheet = spritesSheet(sprites, colours);
    const auto shown = sprites.animations.first(std::min<qsizetype>(sprites.animations.size(), mostAnimations));
    QSize size = sheet.size();
    for (const IncomingAnimation &animation : shown) {
        const int step = animation.size.width() * side + gap;
        const int fitting = std::max(widest / step, 1);
        size = {std::max(size.width(), step * std::min(int(animation.frames.size()), fitting)),
                size.height() + gap + animation.size.height() * side};
    }
    if (shown.isEmpty() || sheet.isNull())
        return sheet;
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.drawImage(0, 0, sheet);
    int top = sheet.height();
    for (const IncomingAnimation &animation : shown) {
        top += gap;
        int left = 0;
        for (const AnimationFrame::Cells &frame : animation.frames) {
            if (left >= size.width())
                break;
            for (qsizetype y = 0; y < frame.size(); ++y) {
                for (qsizetype x = 0; x < frame[y].size(); ++x)
                    painter.drawImage(left + int(x) * side, top + int(y) * side, spriteOn(sheet, frame[y][x].index));
            }
            left += animation.size.width() * side + gap;
        }
        top += animation.size.height() * side;
    }
    return picture;
}

QImage palettePreview(const NextData::PaletteContent &content, const QList<QRgb> &before)
{
    QImage squares(16, 16, QImage::Format_Indexed8);
    squares.setColorTable(before);
    for (int i = 0; i < Palette::Size; ++i)
        squares.scanLine(i / 16)[i % 16] = uchar(i);
    if (content.transparency)
        squares.setColorTable(clearAt(squares.colorTable(), *content.transparency));
    return squares;
}

/// Tiles for a map that has none yet: a colour a number.
TilesContent numbersAsTiles()
{
    TilesContent content;
    for (int i = 0; i < Palette::Size; ++i) {
        TilesContent::Pixels tile{.offset = i / 16};
        tile.pixels.fill(uchar(i % 16));
        content.tiles.append(tile);
    }
    return content;
}

QImage mapPreview(const Project &project, const IncomingAssets &incoming, const ImportChoices &choices,
                  QList<QRgb> colours)
{
    const QPointer<Map> target = project.map(choices.target);
    const QPointer<TileSet> chosen = target ? target->tileSet() : project.tileSet(choices.tileSet);
    const bool hasTiles = incoming.tiles || chosen;
    TileSet own(0);
    if (incoming.tiles || !chosen)
        putTiles(own, 0, incoming.tiles ? *incoming.tiles : numbersAsTiles(), colours);
    const TileSet &tileSet = incoming.tiles || !chosen ? own : *chosen;

    for (qsizetype i = incoming.map->transparency; i >= 0 && i < colours.size(); i += 16)
        colours[i] = 0;
    const TileMap::Rows &rows = incoming.map->rows;
    const QSize cells(int(std::min<qsizetype>(rows.constFirst().size(), MostCells)),
                      int(std::min<qsizetype>(rows.size(), MostCells)));
    QImage picture(cells * Tile::Size, QImage::Format_Indexed8);
    picture.setColorTable(colours);
    for (int y = 0; y < cells.height(); ++y) {
        uchar *line = picture.scanLine(y * Tile::Size);
        for (int x = 0; x < cells.width(); ++x) {
            const TileMap::TileData &cell = rows[y][x];
            const int index = hasTiles ? cell.index : cell.index % Palette::Size;
            tileSet.renderTile(index, cell.rotate, cell.flip, cell.mirror,
                               hasTiles ? cell.offset : tileSet.tileOffset(index), line + x * Tile::Size,
                               picture.bytesPerLine());
        }
    }
    return picture;
}

/// A map with the sprites that come with it.
QImage withSprites(const QImage &map, const QList<Map::PlacedSprite> &sprites, const QImage &sheet)
{
    if (sprites.isEmpty() || sheet.isNull())
        return map;
    QImage picture = map.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    for (const Map::PlacedSprite &sprite : sprites)
        painter.drawImage(sprite.x, sprite.y,
                          oriented(spriteOn(sheet, sprite.sprite), sprite.rotate, sprite.flip, sprite.mirror));
    return picture;
}

QList<quint16> wordsOf(const NextData::PaletteContent &palette, QList<quint16> words)
{
    for (qsizetype i = 0; i < palette.words.size() && palette.first + i < words.size(); ++i)
        words[palette.first + i] = palette.words[i];
    return words;
}

QString number(qsizetype value)
{
    return QLocale().toString(value);
}

/// How many different tiles a map shows.
qsizetype differentTiles(const TileMap::Rows &rows)
{
    std::bitset<0x10000> seen;
    for (const TileMap::Row &row : rows) {
        for (const TileMap::TileData &cell : row)
            seen.set(size_t(cell.index) % seen.size());
    }
    return qsizetype(seen.count());
}

} // namespace

QImage previewOf(const Project &project, const IncomingAssets &incoming, const ImportChoices &choices)
{
    QList<quint16> words = wordsInUse(project, choices);
    if (incoming.palette) {
        const NextData::PaletteContent &palette = *incoming.palette;
        if (choices.target.isNull() && palette.words.size() < words.size())
            words.fill(0); // a new palette is black where it has no colours
        words = wordsOf(palette, words);
    }
    const QList<QRgb> colours = coloursOf(words);
    const auto ofSprites = incoming.sprites && incoming.sprites->palette
        ? coloursOf(wordsOf(*incoming.sprites->palette, QList<quint16>(Palette::Size)))
        : colours;
    if (incoming.map) {
        return withSprites(mapPreview(project, incoming, choices, colours), incoming.map->sprites,
                           incoming.sprites ? spritesSheet(*incoming.sprites, ofSprites) : QImage());
    }
    if (incoming.sprites)
        return spritesPreview(*incoming.sprites, ofSprites);
    if (incoming.tiles)
        return tilesPreview(*incoming.tiles, colours);
    if (incoming.image)
        return pictureOf(incoming.image->pixels, Image::sizeOf(incoming.image->mode), colours);
    return incoming.palette ? palettePreview(*incoming.palette, colours) : QImage();
}

QStringList factsOf(const IncomingAssets &incoming)
{
    QStringList facts;
    if (incoming.map) {
        const TileMap::Rows &rows = incoming.map->rows;
        facts.append(Texts::tr("Cells: %1 × %2, which show %3 different tiles")
                         .arg(number(rows.constFirst().size()), number(rows.size()), number(differentTiles(rows))));
        if (!incoming.map->sprites.isEmpty())
            facts.append(Texts::tr("Placed sprites: %1").arg(number(incoming.map->sprites.size())));
    }
    if (incoming.tiles)
        facts.append(Texts::tr("Tiles: %1").arg(number(incoming.tiles->tiles.size())));
    if (!incoming.blocks.isEmpty())
        facts.append(Texts::tr("Animations of tiles: %1").arg(number(incoming.blocks.size())));
    if (incoming.numbers)
        facts.append(Texts::tr("Numbers: %1").arg(number(incoming.numbers->numbers.size())));
    if (incoming.sprites) {
        facts.append(
            Texts::tr("Sprites: %1").arg(number(incoming.sprites->content.pixels.size() / SpriteBank::SpriteBytes)));
        if (!incoming.sprites->animations.isEmpty())
            facts.append(Texts::tr("Animations: %1").arg(number(incoming.sprites->animations.size())));
    }
    if (incoming.image) {
        const QSize size = Image::sizeOf(incoming.image->mode);
        facts.append(Texts::tr("Pixels: %1 × %2").arg(size.width()).arg(size.height()));
    }
    if (incoming.animations)
        facts.append(Texts::tr("Animations: %1").arg(number(incoming.animations->animations.size())));
    if (incoming.placedSprites)
        facts.append(Texts::tr("Placed sprites: %1").arg(number(incoming.placedSprites->size())));
    if (incoming.placedBlocks)
        facts.append(Texts::tr("Placed animations: %1").arg(number(incoming.placedBlocks->size())));
    if (incoming.palette)
        facts.append(Texts::tr("Colours: %1").arg(number(incoming.palette->words.size())));
    return facts;
}

} // namespace Importing
