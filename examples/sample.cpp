#include "examples/sample.h"

#include "model/image.h"
#include "model/imageslicer.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/nextcolour.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tilemap.h"
#include "model/tileset.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QUuid>

#include <algorithm>
#include <array>

namespace {

// Sizes of the pictures, in pixels
constexpr QSize TilesSize(128, 72);
constexpr QSize BlocksSize(128, 64);
constexpr QSize LevelSize(512, 176);
constexpr QSize SpritesSize(128, 48);
constexpr QSize TitleSize(320, 256);

/// What the game does with the tiles of each row of tiles.png.
constexpr std::array TileRows{
    Tile::TA_NONE, // sky, plants, clouds
    Tile::TA_NONE, // caves and houses
    Tile::TA_SOLID,
    Tile::TA_TOPSOLID,
    Tile::TA_LADDER,
    Tile::Attribute(Tile::TA_LADDER | Tile::TA_TOPSOLID), // where a ladder comes out of the ground
    Tile::TA_COLLECTIBLE,
    Tile::TA_DEADLY,
    Tile::TA_DOOR,
};

/// An animation of the level. Positions and sizes are in cells, delays in ticks of 20 ms.
struct Block
{
    QString name;
    QRect firstFrame; ///< in blocks.png; the other frames follow to the right
    int frames;
    int delay;
    MapObjectType type;
    Tile::Attribute attribute;
    QList<QPoint> places; ///< top left corners on the level
};

QList<Block> blocks()
{
    using enum MapObjectType;
    return {
        {"Water", {0, 0, 4, 2}, 4, 8, Normal, Tile::TA_DEADLY, {{22, 13}, {26, 13}}},
        {"Torch",
         {0, 2, 1, 2},
         3,
         6,
         Normal,
         Tile::TA_NONE,
         {{6, 17}, {13, 17}, {18, 17}, {36, 17}, {48, 16}, {55, 17}}},
        {"Waterfall", {4, 2, 2, 5}, 4, 4, Normal, Tile::TA_NONE, {{26, 8}}},
        {"Lift", {0, 7, 3, 1}, 1, 0, HorizontalPlatform, Tile::TA_TOPSOLID, {{31, 6}}},
    };
}

/// An animation of single sprites; frames are places in sprites.png, counted row by row.
struct SpriteLoop
{
    QString name;
    QList<int> frames;
    int delay;
};

QList<SpriteLoop> spriteLoops()
{
    return {
        {"Hero Walk", {1, 2, 3, 4}, 6}, {"Hero Climb", {6, 7}, 10}, {"Slime", {8, 9, 8, 10}, 10},
        {"Bat", {11, 12, 13, 12}, 5},   {"Lantern", {14, 15}, 8},   {"Coin", {16, 17, 18, 19}, 5},
        {"Flag", {20, 21}, 15},
    };
}

constexpr int HeroJump = 5; // places in sprites.png
constexpr int Chest = 22;

/// A sprite on the level: an animation by its name, or else a place in sprites.png.
struct Actor
{
    QString name;
    QString loop;
    int sprite;
    QPoint at; ///< in pixels
    bool mirror = false;
    int startFrame = 0;
    int paletteOffset = 0;
};

QList<Actor> actors()
{
    return {
        {"Hero", "Hero Walk", 0, {40, 88}},
        {"Hero on the ladder", "Hero Climb", 0, {32, 130}},
        {"Lantern", "Lantern", 0, {8, 32}},
        {"Green slime", "Slime", 0, {134, 88}, true},
        {"Red slime", "Slime", 0, {100, 144}, false, 2, 1},
        {"Bat", "Bat", 0, {124, 130}},
        {"Second bat", "Bat", 0, {232, 140}, true, 2},
        {"Coin on the plank", "Coin", 0, {40, 54}},
        {"Jumping hero", {}, HeroJump, {256, 50}},
        {"Red slime on the hill", "Slime", 0, {392, 88}, true, 1, 1},
        {"Chest", {}, Chest, {448, 24}},
        {"Flag", "Flag", 0, {486, 88}},
    };
}

/// An id that is the same whenever the sample is made.
QUuid idOf(const QString &name)
{
    static constexpr QUuid Sample(0x6f1d3a52, 0x9c0b, 0x4f7e, 0xa8, 0x15, 0x3b, 0xd2, 0x70, 0xe4, 0x96, 0x1c);
    return QUuid::createUuidV5(Sample, name);
}

/// Gives a new asset its name and the id that follows from it.
template <class Asset>
Asset *named(Asset *asset, const QString &kind, const QString &name)
{
    asset->setId(idOf(kind + QLatin1Char('/') + name));
    asset->setName(name);
    return asset;
}

/// A frame with an id that tells it from the animation's others.
void setFrame(Animation &animation, int index, const AnimationFrame::Cells &cells)
{
    const QPointer<AnimationFrame> frame =
        index < animation.frameCount() ? animation.frame(index) : animation.addFrame();
    frame->setId(idOf(QStringLiteral("%1/%2").arg(animation.id().toString()).arg(index)));
    frame->setCells(cells);
}

Palette *addPalette(Project &project, const QString &name, const QList<QRgb> &colours)
{
    auto *palette = named(new Palette(&project), "palette", name);
    for (qsizetype i = 0; i < qMin<qsizetype>(colours.size(), Palette::Size); ++i)
        palette->setColour(int(i), QColor(colours[i]), false);
    project.addPalette(palette);
    return palette;
}

struct Pictures
{
    QImage tiles;
    QImage blocks;
    QImage level;
    QImage sprites;
    QImage title;
};

bool loadPicture(QImage &picture, const QDir &folder, const QString &fileName, const QSize &size, QString &error)
{
    const QString path = folder.filePath(fileName);
    if (!picture.load(path))
        error = QStringLiteral("%1 cannot be read").arg(path);
    else if (picture.size() != size)
        error = QStringLiteral("%1 must have %2 × %3 pixels").arg(path).arg(size.width()).arg(size.height());
    return error.isEmpty();
}

bool loadPictures(Pictures &pictures, const QDir &folder, QString &error)
{
    return loadPicture(pictures.tiles, folder, "tiles.png", TilesSize, error)
        && loadPicture(pictures.blocks, folder, "blocks.png", BlocksSize, error)
        && loadPicture(pictures.level, folder, "level.png", LevelSize, error)
        && loadPicture(pictures.sprites, folder, "sprites.png", SpritesSize, error)
        && loadPicture(pictures.title, folder, "title.png", TitleSize, error);
}

/// Tiles, blocks and level cut as one picture, so that they share tiles and colours. Cells are counted
/// from the top left of each part.
class TileCutter
{
public:
    explicit TileCutter(const Pictures &pictures) : m_slicer(stacked(pictures)) { m_slicer.sliceTiles(); }

    [[nodiscard]] const ImageSlicer &slicer() const { return m_slicer; }

    [[nodiscard]] int tileOfSheet(QPoint cell) const { return placement(cell).first; }
    [[nodiscard]] AnimationFrame::Cell blockCell(QPoint cell) const
    {
        const auto [tile, orientation] = placement(cell + QPoint(0, TilesSize.height() / Tile::Size));
        return {.index = tile,
                .offset = m_slicer.bank(tile),
                .flip = bool(orientation & 1),
                .mirror = bool(orientation & 2),
                .rotate = bool(orientation & 4)};
    }
    [[nodiscard]] TileMap::TileData levelCell(QPoint cell) const
    {
        const auto [tile, orientation] =
            placement(cell + QPoint(0, (TilesSize.height() + BlocksSize.height()) / Tile::Size));
        return {.index = tile,
                .rotate = bool(orientation & 4),
                .flip = bool(orientation & 1),
                .mirror = bool(orientation & 2),
                .offset = m_slicer.bank(tile),
                .used = true};
    }

private:
    static QImage stacked(const Pictures &pictures)
    {
        const int blocksTop = TilesSize.height();
        const int levelTop = blocksTop + BlocksSize.height();
        QImage picture(LevelSize.width(), levelTop + LevelSize.height(), QImage::Format_RGB32);
        picture.fill(pictures.tiles.pixelColor(0, 0)); // the sky, which is the first tile
        QPainter painter(&picture);
        painter.drawImage(0, 0, pictures.tiles);
        painter.drawImage(0, blocksTop, pictures.blocks);
        painter.drawImage(0, levelTop, pictures.level);
        return picture;
    }
    [[nodiscard]] ImageSlicer::Placement placement(QPoint cell) const
    {
        return m_slicer.placement(cell.y() * m_slicer.size().width() + cell.x());
    }

    ImageSlicer m_slicer;
};

/// Sets the attribute of the tiles that first appear at these cells, of which known tiles came before.
template <class TileAt>
void setAttributes(TileSet &tileSet, int &known, const QRect &cells, int attribute, TileAt tileAt)
{
    for (int y = cells.top(); y <= cells.bottom(); ++y) {
        for (int x = cells.left(); x <= cells.right(); ++x) {
            const int tile = tileAt(QPoint(x, y));
            if (tile < known)
                continue;
            tileSet.tile(tile)->setAttributes(attribute);
            known = tile + 1;
        }
    }
}

TileSet *addTileSet(Project &project, const TileCutter &cutter)
{
    const ImageSlicer &slicer = cutter.slicer();
    auto *tileSet = named(new TileSet(slicer.pieceCount(), &project), "tiles", "Hill Tiles");
    tileSet->setPalette(addPalette(project, "Level", slicer.bankColours()));
    for (int i = 0; i < slicer.pieceCount(); ++i) {
        tileSet->setTileOffset(i, slicer.bank(i));
        tileSet->setTileImage(i, slicer.pieceWithOffset(i));
    }

    int known = 1; // the sky
    const int columns = TilesSize.width() / Tile::Size;
    for (int row = 0; row < int(TileRows.size()); ++row) {
        setAttributes(*tileSet, known, {0, row, columns, 1}, TileRows[size_t(row)],
                      [&](QPoint cell) { return cutter.tileOfSheet(cell); });
    }
    project.addTileSet(tileSet);
    return tileSet;
}

MapObjects *addBlocks(Project &project, TileSet &tileSet, const TileCutter &cutter)
{
    auto *blockSet = named(new MapObjects(&project), "blocks", "Moving Blocks");
    blockSet->setTileSet(&tileSet);
    for (const Block &block : blocks()) {
        const QPointer<TileAnimation> animation =
            blockSet->createTileAnimation(idOf("block/" + block.name), block.name);
        animation->setSize(block.firstFrame.size());
        animation->setDelay(block.delay);
        animation->setMapObjectType(block.type);
        for (int frame = 0; frame < block.frames; ++frame) {
            const QRect cells = block.firstFrame.translated(frame * block.firstFrame.width(), 0);
            AnimationFrame::Cells content(cells.height(), QList<AnimationFrame::Cell>(cells.width()));
            for (int y = 0; y < cells.height(); ++y) {
                for (int x = 0; x < cells.width(); ++x) {
                    const AnimationFrame::Cell cell = cutter.blockCell(cells.topLeft() + QPoint(x, y));
                    content[y][x] = cell;
                    if (cell.index != 0)
                        tileSet.tile(cell.index)->setAttribute(block.attribute, true);
                }
            }
            setFrame(*animation, frame, content);
        }
    }
    project.addBlocks(blockSet);
    return blockSet;
}

SpriteBank *addSprites(Project &project, const QImage &picture)
{
    ImageSlicer slicer(picture);
    slicer.sliceSprites(SpriteBank::SpriteSize);
    Palette *palette = addPalette(project, "Sprites", {});
    auto *bank = named(new SpriteBank(Quenmora::FourBit, &project), "sprites", "Cast");
    bank->setPalette(palette);
    bank->setTransparency(0); // the picture begins with its background
    if (bank->importPieces(slicer) < 0)
        return nullptr;
    // a second bank of colours, in which green creatures are red
    for (int i = 0; i < 16; ++i) {
        const quint16 word = palette->rawColour(i);
        palette->setRawColour(
            i + 16, NextColour::compose(NextColour::green(word), NextColour::red(word), NextColour::blue(word), false));
    }

    for (const SpriteLoop &loop : spriteLoops()) {
        const QPointer<SpriteAnim> animation = bank->addAnimation(idOf("loop/" + loop.name));
        animation->setName(loop.name);
        animation->setDelay(loop.delay);
        for (int i = 0; i < loop.frames.size(); ++i)
            setFrame(*animation, i, {{{.index = slicer.placement(loop.frames[i]).first}}});
    }
    project.addSpriteBank(bank);
    return bank;
}

Map *addMap(Project &project, TileSet *tileSet, const TileCutter &cutter)
{
    auto *map = named(new Map({}, &project), "map", "Lantern Hill");
    const QSize size = LevelSize / Tile::Size;
    auto *tiles = new TileMap(size, &project);
    map->setLayers(tiles, new TileMap(size, &project));
    map->setTileSet(tileSet);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            map->setTile({x, y}, cutter.levelCell({x, y}));
    }
    project.addMap(map);
    return map;
}

void populate(Map &map, const MapObjects &blockSet, const SpriteBank &bank)
{
    for (const Block &block : blocks()) {
        const QPointer<TileAnimation> animation = blockSet.animation(idOf("block/" + block.name));
        for (const QPoint &place : block.places)
            map.placeAnimation(animation, place);
    }
    for (const Actor &actor : actors()) {
        const QUuid loop = actor.loop.isEmpty() ? QUuid() : idOf("loop/" + actor.loop);
        map.addSprite({.bank = bank.id(),
                       .animation = loop,
                       .sprite = actor.sprite,
                       .x = actor.at.x(),
                       .y = actor.at.y(),
                       .mirror = actor.mirror,
                       .startFrame = actor.startFrame,
                       .paletteOffset = actor.paletteOffset,
                       .name = actor.name});
    }
}

/// The frame of a status panel, as wide as the screen, of the wall at the bottom of the level.
void addPanel(Project &project, TileSet *tileSet, const TileCutter &cutter)
{
    constexpr QSize Size(40, 4);
    auto *map = named(new Map(QString(), &project), "map", "Panel");
    map->setLayers(new TileMap(Size, &project), new TileMap(Size, &project));
    map->setTileSet(tileSet);
    const TileMap::TileData wall = cutter.levelCell({0, LevelSize.height() / Tile::Size - 1});
    for (int y = 0; y < Size.height(); ++y) {
        for (int x = 0; x < Size.width(); ++x) {
            if (x == 0 || y == 0 || x + 1 == Size.width() || y + 1 == Size.height())
                map->setTile({x, y}, wall);
        }
    }
    project.addMap(map);
}

void addImage(Project &project, const QString &name, Quenmora::ImageMode mode, Palette *palette, const QImage &indices)
{
    auto *image = named(new Image(mode, &project), "image", name);
    image->setPalette(palette);
    image->setImage(indices);
    project.addImage(image);
}

/// The title, and what a game shows before and besides it, each in the mode that fits it.
void addTitles(Project &project, const QImage &picture)
{
    NxImage snapped;
    snapped.setImage(picture);
    Palette *palette = addPalette(project, "Title", snapped.colours());
    const QImage title = snapped.remap(palette);
    // the letters and the tower, without what the player is told
    const QImage loading = title.copy({32, 0, 256, 192});
    addImage(project, "Title", Quenmora::Layer2_320x256, palette, title);
    addImage(project, "Loading Screen", Quenmora::Layer2_256x192, palette, loading);
    addImage(project, "Small Title", Quenmora::LoRes_128x96, palette, loading.scaled(128, 96));
}

/// The colours that the picture has most of, as many as two pixels a byte leave.
QList<QRgb> commonestColours(const NxImage &picture)
{
    constexpr qsizetype Count = 16;
    QHash<QRgb, int> pixels;
    const QImage image = picture.image();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++pixels[image.pixel(x, y)];
    }
    QList<QRgb> colours = picture.colours();
    std::stable_sort(colours.begin(), colours.end(), [&](QRgb a, QRgb b) { return pixels[a] > pixels[b]; });
    return colours.first(qMin(Count, colours.size()));
}

/// The beginning of the level below a high sky, its pixels as narrow as the mode has them.
void addEnding(Project &project, const QImage &level)
{
    constexpr QSize Size(640, 256);
    QImage scene(Size.width() / 2, Size.height(), QImage::Format_RGB32);
    scene.fill(level.pixel(0, 0));
    QPainter(&scene).drawImage(0, scene.height() - level.height(), level);
    const NxImage snapped(scene);
    const QList<QRgb> colours = commonestColours(snapped);
    Palette *palette = addPalette(project, "Ending", colours);
    QList<int> indices;
    for (const QRgb colour : snapped.colours()) {
        const auto nearest = std::min_element(colours.cbegin(), colours.cend(), [colour](QRgb a, QRgb b) {
            return NextColour::squaredDistance(a, colour) < NextColour::squaredDistance(b, colour);
        });
        indices.append(int(nearest - colours.cbegin()));
    }
    addImage(project, "Ending", Quenmora::Layer2_640x256, palette,
             snapped.withIndices(indices, 0, palette->colourTable()).scaled(Size));
}

} // namespace

bool buildSample(Project &project, const QDir &folder, QString &error)
{
    error.clear();
    Pictures pictures;
    if (!loadPictures(pictures, folder, error))
        return false;

    project.setId(idOf("project"));
    project.setName(QStringLiteral("Lantern Hill"));
    const TileCutter cutter(pictures);
    TileSet *tileSet = addTileSet(project, cutter);
    const MapObjects *blockSet = addBlocks(project, *tileSet, cutter);
    const SpriteBank *bank = addSprites(project, pictures.sprites);
    Map *map = addMap(project, tileSet, cutter);
    populate(*map, *blockSet, *bank);
    addPanel(project, tileSet, cutter);
    addTitles(project, pictures.title);
    addEnding(project, pictures.level);
    project.setScratchPalette(tileSet->palette());
    project.setOpenDocuments({bank->id().toString(), blockSet->id().toString(), map->id().toString()});
    return true;
}
