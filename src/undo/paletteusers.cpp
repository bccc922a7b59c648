#include "undo/paletteusers.h"

#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tilemap.h"
#include "model/tileset.h"

#include <QSet>

namespace {

constexpr int GroupSize = 16;
constexpr int GroupCount = PaletteOrder::Size / GroupSize;
using Groups = std::bitset<GroupCount>; ///< of 16 entries each
using Pixels = std::bitset<GroupSize>; ///< values of 4 bits

/// Collects with which groups tiles are drawn.
class TileGroups
{
public:
    explicit TileGroups(const TileSet &tiles) : m_groups(tiles.count())
    {
        for (int tile = 0; tile < tiles.count(); ++tile)
            add(tile, tiles.tileOffset(tile));
    }
    template <typename Cell>
    void addRows(const QList<QList<Cell>> &rows)
    {
        QSet<const Cell *> seen; // rows that share their storage are looked at once
        for (const QList<Cell> &row : rows) {
            if (seen.contains(row.constData()))
                continue;
            seen.insert(row.constData());
            for (const Cell &cell : row) {
                if constexpr (requires { cell.used; }) {
                    if (!cell.used)
                        continue;
                }
                add(cell.index, cell.offset);
            }
        }
    }
    [[nodiscard]] Groups of(int tile) const { return m_groups.at(tile); }

private:
    void add(int tile, int group)
    {
        if (tile >= 0 && tile < m_groups.size())
            m_groups[tile].set(size_t(group) % GroupCount);
    }

    QList<Groups> m_groups;
};

Pixels pixelsOf(const QImage &picture)
{
    Pixels used;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar *row = picture.constScanLine(y);
        for (int x = 0; x < picture.width(); ++x)
            used.set(row[x] % GroupSize);
    }
    return used;
}

/// Fixes what pixels show in each of several groups.
void fix(PaletteUsers::Entries &fixed, const Pixels &pixels, const Groups &groups)
{
    for (size_t group = 0; group < GroupCount; ++group) {
        for (size_t pixel = 0; pixel < GroupSize; ++pixel) {
            if (groups.test(group) && pixels.test(pixel))
                fixed.set(group * GroupSize + pixel);
        }
    }
}

const Groups AllGroups = Groups().set();

} // namespace

PaletteUsers::PaletteUsers(Project &project, Palette &palette) : m_project(&project), m_palette(&palette)
{
    if (palette.transparencyIndex() >= 0)
        m_fixed.set(size_t(palette.transparencyIndex()));
    lookAtTiles();
    lookAtSprites();
    lookAtImages();
}

void PaletteUsers::lookAtTiles()
{
    for (const QPointer<TileSet> &tiles : m_project->tileSets()) {
        if (tiles->palette() != m_palette)
            continue;
        m_needGroups = true;
        TileGroups groups(*tiles);
        for (const QPointer<Map> &map : m_project->maps()) {
            if (map->tileSet() != tiles)
                continue;
            if (map->tileTransparencyIndex() >= 0)
                fix(m_fixed, Pixels().set(size_t(map->tileTransparencyIndex()) % GroupSize), AllGroups);
            if (map->tileLayer())
                groups.addRows(map->tileLayer()->rows());
            if (map->objectLayer())
                groups.addRows(map->objectLayer()->rows());
        }
        for (const QPointer<MapObjects> &blocks : m_project->blockSets()) {
            for (const QPointer<TileAnimation> &animation :
                 blocks->tileSet() == tiles ? blocks->animations() : QList<QPointer<TileAnimation>>()) {
                for (int frame = 0; frame < animation->frameCount(); ++frame)
                    groups.addRows(animation->frame(frame)->cells());
            }
        }
        for (int tile = 0; tile < tiles->count(); ++tile) {
            if (groups.of(tile).count() > 1)
                fix(m_fixed, pixelsOf(tiles->image(tile)), groups.of(tile));
        }
    }
}

void PaletteUsers::lookAtSprites()
{
    for (const QPointer<SpriteBank> &bank : m_project->spriteBanks()) {
        if (bank->palette() != m_palette)
            continue;
        const int clear = bank->clearPixels().pixel();
        if (bank->depth() == Quenmora::EightBit) {
            if (clear >= 0)
                m_fixed.set(size_t(clear));
            continue;
        }
        m_needGroups = true;
        Groups groups(1);
        for (const QPointer<Map> &map : m_project->maps()) {
            for (const Map::PlacedSprite &sprite : map->sprites()) {
                if (sprite.bank == bank->id())
                    groups.set(size_t(sprite.paletteOffset) % GroupCount);
            }
        }
        if (clear >= 0)
            fix(m_fixed, Pixels().set(size_t(clear)), AllGroups);
        if (groups.count() > 1)
            fix(m_fixed, pixelsOf(bank->image()), groups);
    }
}

void PaletteUsers::lookAtImages()
{
    for (const QPointer<Image> &image : m_project->images()) {
        if (image->palette() == m_palette && image->mode() == Quenmora::Layer2_640x256)
            m_needGroups = true;
    }
}

std::array<qint64, PaletteOrder::Size> PaletteUsers::counts() const
{
    std::array<qint64, PaletteOrder::Size> counts{};
    const auto count = [&counts](const QImage &picture, int group) {
        for (int y = 0; y < picture.height(); ++y) {
            const uchar *row = picture.constScanLine(y);
            for (int x = 0; x < picture.width(); ++x)
                ++counts[group < 0 ? row[x] : size_t(group % GroupCount * GroupSize + row[x] % GroupSize)];
        }
    };
    for (const QPointer<TileSet> &tiles : m_project->tileSets()) {
        for (int tile = 0; tiles->palette() == m_palette && tile < tiles->count(); ++tile)
            count(tiles->image(tile), std::max(tiles->tileOffset(tile), 0));
    }
    for (const QPointer<SpriteBank> &bank : m_project->spriteBanks()) {
        if (bank->palette() == m_palette)
            count(bank->image(), bank->depth() == Quenmora::FourBit ? 0 : -1);
    }
    for (const QPointer<Image> &image : m_project->images()) {
        if (image->palette() == m_palette)
            count(image->image(), -1);
    }
    if (m_project->scratchPalette() == m_palette && m_project->scratchImage().format() == QImage::Format_Indexed8)
        count(m_project->scratchImage(), -1);
    return counts;
}

QList<QList<int>> PaletteUsers::movable(int first, int last) const
{
    QList<QList<int>> lists;
    int group = -1;
    for (int entry = first; entry <= last; ++entry) {
        if (lists.isEmpty() || (m_needGroups && entry / GroupSize != group))
            lists.append(QList<int>());
        group = entry / GroupSize;
        if (!m_fixed.test(size_t(entry)))
            lists.last().append(entry);
    }
    return lists;
}

void PaletteUsers::reorder(const PaletteOrder &order) const
{
    for (const QPointer<TileSet> &tiles : m_project->tileSets()) {
        for (int tile = 0; tiles->palette() == m_palette && tile < tiles->count(); ++tile) {
            tiles->setTileImage(tile, order.inGroup(tiles->image(tile), std::max(tiles->tileOffset(tile), 0)));
        }
    }
    for (const QPointer<SpriteBank> &bank : m_project->spriteBanks()) {
        for (int sprite = 0; bank->palette() == m_palette && sprite < bank->count(); ++sprite) {
            const QImage picture = bank->spriteImage(sprite, false, false, false);
            const bool fourBit = bank->depth() == Quenmora::FourBit;
            bank->setImage(sprite, fourBit ? order.inGroup(picture, 0) : order.in(picture));
        }
    }
    for (const QPointer<Image> &image : m_project->images()) {
        if (image->palette() == m_palette)
            image->setImage(order.in(image->image()));
    }
    if (m_project->scratchPalette() == m_palette)
        m_project->setScratchImage(order.in(m_project->scratchImage()));

    std::array<quint16, PaletteOrder::Size> words;
    for (int entry = 0; entry < PaletteOrder::Size; ++entry)
        words[size_t(order(entry))] = m_palette->rawColour(entry);
    if (m_palette->transparencyIndex() >= 0)
        m_palette->setTransparencyIndex(order(m_palette->transparencyIndex()));
    for (int entry = 0; entry < PaletteOrder::Size; ++entry)
        m_palette->setRawColour(entry, words[size_t(entry)]);
    // with the colours of the new order
    for (const QPointer<TileSet> &tiles : m_project->tileSets()) {
        for (int tile = 0; tiles->palette() == m_palette && tile < tiles->count(); ++tile)
            tiles->notifyImageChanged(tile);
    }
    PaletteHistory::of(*m_palette).add(order);
}
