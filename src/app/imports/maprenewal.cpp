#include "app/imports/maprenewal.h"

#include "app/imports/paletteimport.h"
#include "importing/paletteedit.h"
#include "model/image.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/plural.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "model/tileuse.h"
#include "pictures/ninebitcolour.h"
#include "pictures/picturecells.h"
#include "undo/mapeditcommand.h"
#include "undo/undomacro.h"

#include <QCoreApplication>
#include <QUndoStack>

#include <algorithm>
#include <bitset>
#include <set>

namespace {

constexpr int Side = PictureCells::Side;

/// What a picture shows at a place: one of the machine's colours, or -1 where it is clear.
std::vector<int> lookOf(const QImage &picture, const QPoint &cell)
{
    std::vector<int> look;
    for (int y = 0; y < Side; ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(cell.y() * Side + y)) + cell.x() * Side;
        for (int x = 0; x < Side; ++x)
            look.push_back(qAlpha(line[x]) < 128 ? -1 : NineBitColour::nearest(line[x]));
    }
    return look;
}

/// The palette with the colours of cells that no group has together, where entries are free for them.
QList<quint16> grownPalette(const Palette &palette, std::bitset<256> taken, std::vector<std::set<int>> needed)
{
    QList<quint16> words;
    for (int entry = 0; entry < Palette::Size; ++entry)
        words.append(palette.rawColour(entry));
    std::stable_sort(needed.begin(), needed.end(),
                     [](const std::set<int> &a, const std::set<int> &b) { return a.size() > b.size(); });
    for (const std::set<int> &colours : needed) {
        int best = -1;
        size_t fewest = 17;
        for (int group = 0; group < 16; ++group) {
            std::set<int> missing = colours;
            size_t room = 0;
            for (int entry = group * 16; entry < group * 16 + 16; ++entry) {
                if (taken.test(size_t(entry)))
                    missing.erase(NineBitColour::numberOf(words[entry]));
                else
                    ++room;
            }
            if (missing.size() <= room && missing.size() < fewest) {
                fewest = missing.size();
                best = group;
            }
        }
        if (best < 0)
            continue;
        std::set<int> missing = colours;
        std::vector<int> room;
        for (int entry = best * 16; entry < best * 16 + 16; ++entry) {
            if (taken.test(size_t(entry)))
                missing.erase(NineBitColour::numberOf(words[entry]));
            else
                room.push_back(entry);
        }
        // entries that have the colour already keep it
        for (auto entry = room.begin(); entry != room.end();) {
            const bool has = missing.erase(NineBitColour::numberOf(words[*entry])) > 0;
            if (has)
                taken.set(size_t(*entry));
            entry = has ? room.erase(entry) : std::next(entry);
        }
        for (const int colour : missing) {
            words[room.front()] = NineBitColour::wordOf(colour);
            taken.set(size_t(room.front()));
            room.erase(room.begin());
        }
    }
    return words;
}

/// What becomes of tiles, their palette and perhaps a map, before any of it is changed.
class Update
{
public:
    Update(TileSet &tileSet, const Map *map, const TilePicture &picture)
        : m_tileSet(tileSet)
        , m_map(map)
        , m_picture(picture.image.convertToFormat(QImage::Format_ARGB32))
        , m_clearPixel(picture.clearPixel)
        , m_size(picture.image.size() / Side)
        , m_rows(picture.rows > 0 ? picture.rows : m_size.height())
        , m_used(TileUse::of(m_tileSet, map))
    {
        findKeptCells();
        findFreeTiles(picture.imported);
        const Palette &palette = *m_tileSet.palette();
        m_words.copyColours(palette);
        const auto *project = qobject_cast<Project *>(m_tileSet.parent());
        if (project && !Importing::hasOtherUsers(*project, palette, m_tileSet))
            growPalette(palette);
        m_cells = PictureCells::of(m_picture, m_tileSet, choices(m_freeTiles));
    }

    [[nodiscard]] PictureCells &cells() { return m_cells; }
    [[nodiscard]] const Palette &words() const { return m_words; }
    /// Of the map.
    [[nodiscard]] QSize size() const { return {m_size.width(), m_rows}; }
    [[nodiscard]] bool keeps(int cell) const { return m_kept[size_t(cell)]; }
    [[nodiscard]] bool keepsAll() const
    {
        return m_cells.additions.empty()
            && (!m_map || std::all_of(m_kept.cbegin(), m_kept.cbegin() + m_rows * m_size.width(), [](bool kept) {
                   return kept;
               }));
    }

private:
    [[nodiscard]] QPoint place(int cell) const { return {cell % m_size.width(), cell / m_size.width()}; }
    [[nodiscard]] PictureCells::Choices choices(const QList<int> &freeTiles) const
    {
        return {.clearPixel = m_clearPixel, .freeTiles = freeTiles, .leavesOutClearCells = false, .palette = &m_words};
    }
    void use(int tile)
    {
        if (tile >= 0 && size_t(tile) < m_used.size())
            m_used[size_t(tile)] = true;
    }

    void findKeptCells()
    {
        m_kept.resize(size_t(m_size.width()) * size_t(m_size.height()));
        if (!m_map)
            return;
        const TileMap &layer = *m_map->tileLayer();
        const QRect area(QPoint(), size());
        const QImage shown = layer.render(area, 1, m_clearPixel).convertToFormat(QImage::Format_ARGB32);
        for (int cell = 0; cell < m_rows * m_size.width(); ++cell) {
            const TileMap::TileData is = layer.cellAt(place(cell));
            m_kept[size_t(cell)] = layer.bounds().contains(place(cell)) && is.used
                && lookOf(shown, place(cell)) == lookOf(m_picture, place(cell));
            if (m_kept[size_t(cell)])
                use(is.index);
        }
        for (int y = 0; y < layer.height(); ++y) {
            for (int x = 0; x < layer.width(); ++x) {
                if (!area.contains(x, y))
                    use(layer.cellAt({x, y}).index);
            }
        }
        const TileMap::Rows objects = m_map->snapshot().objects;
        for (const TileMap::Row &row : objects) {
            for (const TileMap::TileData &cell : row) {
                if (cell.used)
                    use(cell.index);
            }
        }
    }

    /// Those that only what is gone from the picture showed, and then blank ones.
    void findFreeTiles(const QList<int> &imported)
    {
        m_words.copyColours(*m_tileSet.palette());
        for (const TileMap::TileData &cell : PictureCells::of(m_picture, m_tileSet, choices({})).cells)
            use(cell.index); // which counts additions beyond the tiles
        std::set<int> gone;
        const auto add = [&](int tile) {
            if (tile >= 0 && size_t(tile) < m_used.size() && !m_used[size_t(tile)])
                gone.insert(tile);
        };
        for (int cell = 0; m_map && cell < m_rows * m_size.width(); ++cell) {
            if (const TileMap::TileData is = m_map->tileLayer()->cellAt(place(cell)); is.used)
                add(is.index);
        }
        for (const int tile : imported)
            add(tile);
        m_freeTiles = QList<int>(gone.cbegin(), gone.cend());
        for (const int tile : PictureCells::blankTiles(m_tileSet)) {
            if (!gone.contains(tile) && !m_used[size_t(tile)])
                m_freeTiles.append(tile);
        }
    }

    void growPalette(const Palette &palette)
    {
        std::bitset<256> taken;
        for (int tile = 0; tile < m_tileSet.count(); ++tile) {
            if (m_freeTiles.contains(tile))
                continue;
            const int offset = std::clamp(m_tileSet.tileOffset(tile), 0, 15);
            for (const uchar pixel : m_tileSet.tile(tile)->pixels())
                taken.set(size_t(offset * 16 + pixel % 16));
        }
        for (int group = 0; group < 16 && m_clearPixel >= 0; ++group)
            taken.set(size_t(group * 16 + m_clearPixel));
        std::set<std::set<int>> needed;
        for (int cell = 0; cell < int(m_kept.size()); ++cell) {
            if (m_kept[size_t(cell)])
                continue;
            std::set<int> colours;
            for (const int colour : lookOf(m_picture, place(cell))) {
                if (colour >= 0)
                    colours.insert(colour);
            }
            needed.insert(std::move(colours));
        }
        const QList<quint16> words = grownPalette(palette, taken, {needed.cbegin(), needed.cend()});
        for (int entry = 0; entry < Palette::Size; ++entry)
            m_words.storeRawColour(entry, words[entry]);
    }

    TileSet &m_tileSet;
    const Map *m_map;
    QImage m_picture;
    int m_clearPixel;
    QSize m_size; ///< of the picture, in cells
    int m_rows; ///< of these that the map shows
    std::vector<bool> m_used; ///< by tile: shown by what stays
    std::vector<bool> m_kept; ///< by cell
    QList<int> m_freeTiles;
    Palette m_words;
    PictureCells m_cells;
};

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImportAgain)
};

QList<int> tilesIn(const std::vector<TileMap::TileData> &cells)
{
    std::set<int> tiles;
    for (const TileMap::TileData &cell : cells)
        tiles.insert(cell.index);
    return {tiles.cbegin(), tiles.cend()};
}

} // namespace

RenewedTiles renewTiles(TileSet &tileSet, Map *map, const TilePicture &picture, QUndoStack *stack,
                        const std::function<void(const std::vector<TileMap::TileData> &)> &with)
{
    Update update(tileSet, map, picture);
    PictureCells &cells = update.cells();
    if (!cells.hasRoom()) {
        return {.failure = Texts::tr("The picture needs %n more tiles, and the tile set has room for %1", nullptr,
                                     plural(cells.additions.size()))
                               .arg(cells.places.size())};
    }
    RenewedTiles renewed{.size = update.size()};
    // a map that was resized since keeps what it has beside the picture
    const QSize size = !map             ? QSize()
        : map->size() == picture.before ? update.size()
                                        : map->size().expandedTo(update.size());
    renewed.isChanged = (map && size != map->size()) || !update.keepsAll();
    if (!renewed.isChanged && !with) {
        renewed.tiles = picture.imported;
        return renewed;
    }
    const UndoMacro step(stack, Texts::tr("Import Again"));
    replaceWords(*tileSet.palette(), update.words(), stack);
    if (map && size != map->size()) {
        const Map::Snapshot content = map->snapshot();
        map->resize(size);
        if (stack)
            stack->push(new MapEditCommand(Texts::tr("Resize Map"), map, content, map->snapshot()));
    }
    emit tileSet.structureAboutToChange();
    cells.addTo(tileSet);
    for (int cell = 0; map && cell < update.size().width() * update.size().height(); ++cell) {
        if (!update.keeps(cell))
            map->setTile({cell % update.size().width(), cell / update.size().width()}, cells.cells[size_t(cell)]);
    }
    if (with)
        with(cells.cells);
    emit tileSet.structureChanged(Texts::tr("Import Again"));
    if (map)
        map->restore(map->snapshot()); // whoever shows it paints it anew
    renewed.additions = qsizetype(cells.additions.size());
    renewed.lostPixels = cells.lostPixels;
    renewed.tiles = tilesIn(cells.cells);
    return renewed;
}
