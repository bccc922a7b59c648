#include "app/imports/mapagain.h"

#include "app/imports/paletteimport.h"
#include "app/imports/pictureimport.h"
#include "importing/paletteedit.h"
#include "model/image.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/picturefile.h"
#include "model/plural.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "model/tileuse.h"
#include "pictures/ninebitcolour.h"
#include "pictures/picturecells.h"
#include "pictures/tilereduction.h"
#include "undo/mapeditcommand.h"
#include "undo/undomacro.h"

#include <QCoreApplication>
#include <QLocale>
#include <QUndoStack>

#include <algorithm>
#include <bitset>
#include <set>

namespace {

constexpr int Side = PictureCells::Side;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImportAgain)
};

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

/// What becomes of a map, its tiles and its palette, before any of it is changed.
class Update
{
public:
    Update(Map &map, const QImage &picture, int clearPixel)
        : m_map(map)
        , m_tileSet(*map.tileSet())
        , m_picture(picture.convertToFormat(QImage::Format_ARGB32))
        , m_clearPixel(clearPixel)
        , m_size(picture.size() / Side)
        , m_used(TileUse::of(m_tileSet, &map))
    {
        findKeptCells();
        findFreeTiles();
        const Palette &palette = *m_tileSet.palette();
        m_words.copyColours(palette);
        const auto *project = qobject_cast<Project *>(m_map.parent());
        if (project && !Importing::hasOtherUsers(*project, palette, m_tileSet))
            growPalette(palette);
        m_cells = PictureCells::of(m_picture, m_tileSet, choices(m_freeTiles));
    }

    [[nodiscard]] PictureCells &cells() { return m_cells; }
    [[nodiscard]] const Palette &words() const { return m_words; }
    [[nodiscard]] QSize size() const { return m_size; }
    [[nodiscard]] bool keeps(int cell) const { return m_kept[size_t(cell)]; }
    [[nodiscard]] bool keepsAll() const
    {
        return std::all_of(m_kept.cbegin(), m_kept.cend(), [](bool kept) { return kept; });
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
        const TileMap &layer = *m_map.tileLayer();
        const QRect area(QPoint(), m_size);
        const QImage shown = layer.render(area, 1, m_clearPixel).convertToFormat(QImage::Format_ARGB32);
        const int count = m_size.width() * m_size.height();
        m_kept.resize(size_t(count));
        for (int cell = 0; cell < count; ++cell) {
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
        const TileMap::Rows objects = m_map.snapshot().objects;
        for (const TileMap::Row &row : objects) {
            for (const TileMap::TileData &cell : row) {
                if (cell.used)
                    use(cell.index);
            }
        }
    }

    /// Those that only what is gone from the picture showed, and then blank ones.
    void findFreeTiles()
    {
        m_words.copyColours(*m_tileSet.palette());
        for (const TileMap::TileData &cell : PictureCells::of(m_picture, m_tileSet, choices({})).cells)
            use(cell.index); // which counts additions beyond the tiles
        std::set<int> gone;
        for (int cell = 0; cell < int(m_kept.size()); ++cell) {
            const TileMap::TileData is = m_map.tileLayer()->cellAt(place(cell));
            if (is.used && is.index >= 0 && size_t(is.index) < m_used.size() && !m_used[size_t(is.index)])
                gone.insert(is.index);
        }
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

    Map &m_map;
    TileSet &m_tileSet;
    QImage m_picture;
    int m_clearPixel;
    QSize m_size;
    std::vector<bool> m_used; ///< by tile: shown by what stays
    std::vector<bool> m_kept; ///< by cell
    QList<int> m_freeTiles;
    Palette m_words;
    PictureCells m_cells;
};

QString toldOf(const Map &map, const PictureCells &cells)
{
    QString told = Texts::tr("%1 is up to date; new tiles: %2").arg(map.name()).arg(cells.additions.size());
    if (cells.lostPixels > 0)
        told += Texts::tr("; pixels that took the nearest colour: %1").arg(QLocale().toString(cells.lostPixels));
    return told;
}

} // namespace

ImportedAgain mapAgain(Map &map, const ImportRecord &record, QUndoStack *stack, QWidget *window)
{
    const QPointer<TileSet> tileSet = map.tileSet();
    if (!tileSet || !tileSet->palette() || !map.tileLayer())
        return {Texts::tr("The map has no tiles or no palette any more"), {}, {}};
    const TiledPicture tiled = TiledPicture::of(record.file, record.choices, window);
    if (tiled.picture.isNull())
        return {tiled.failure, {}, {}};
    Update update(map, tiled.picture, tiled.clearPixel);
    PictureCells &cells = update.cells();
    if (!cells.hasRoom()) {
        return {Texts::tr("The picture needs %n more tiles, and the tile set has room for %1", nullptr,
                          plural(cells.additions.size()))
                    .arg(cells.places.size()),
                {},
                {}};
    }
    QJsonObject choices = record.choices;
    choices.insert(QStringLiteral("columns"), update.size().width());
    choices.insert(QStringLiteral("rows"), update.size().height());

    const QSize before(record.choices[QStringLiteral("columns")].toInt(),
                       record.choices[QStringLiteral("rows")].toInt());
    // a map that was resized since keeps what it has beside the picture
    const QSize size = map.size() == before ? update.size() : map.size().expandedTo(update.size());
    if (size == map.size() && update.keepsAll())
        return {{}, Texts::tr("%1 is up to date").arg(map.name()), choices};
    const UndoMacro step(stack, Texts::tr("Import Again"));
    replaceWords(*tileSet->palette(), update.words(), stack);
    if (size != map.size()) {
        const Map::Snapshot content = map.snapshot();
        map.resize(size);
        if (stack)
            stack->push(new MapEditCommand(Texts::tr("Resize Map"), &map, content, map.snapshot()));
    }
    emit tileSet->structureAboutToChange();
    cells.addTo(*tileSet);
    for (int cell = 0; cell < int(cells.cells.size()); ++cell) {
        if (!update.keeps(cell))
            map.setTile({cell % update.size().width(), cell / update.size().width()}, cells.cells[size_t(cell)]);
    }
    emit tileSet->structureChanged(Texts::tr("Import Again"));
    map.restore(map.snapshot()); // whoever shows it paints it anew
    if (tiled.clearPixel >= 0 && map.tileTransparencyIndex() < 0)
        map.setTileTransparencyIndex(tiled.clearPixel);
    return {{}, toldOf(map, cells), choices};
}
