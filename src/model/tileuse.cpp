#include "model/tileuse.h"

#include "model/map.h"
#include "model/mapobjects.h"
#include "model/project.h"
#include "model/tileset.h"

#include <QSet>

#include <algorithm>

namespace {

class Marks
{
public:
    explicit Marks(int count) : m_shown(size_t(count)) { }

    template <typename Rows>
    void add(const Rows &rows)
    {
        QSet<const void *> known; // rows that share their storage are looked at once
        for (const auto &row : rows) {
            if (known.contains(row.constData()))
                continue;
            known.insert(row.constData());
            for (const auto &cell : row)
                add(cell.index);
        }
    }
    void add(int tile)
    {
        if (tile >= 0 && size_t(tile) < m_shown.size())
            m_shown[size_t(tile)] = true;
    }
    [[nodiscard]] const std::vector<bool> &shown() const { return m_shown; }

private:
    std::vector<bool> m_shown;
};

} // namespace

std::vector<bool> TileUse::of(const TileSet &tileSet, const Map *leftOut)
{
    Marks marks(tileSet.count());
    const auto *project = qobject_cast<Project *>(tileSet.parent());
    const QList<QPointer<Map>> maps = project ? project->maps() : QList<QPointer<Map>>();
    for (const QPointer<Map> &map : maps) {
        if (map->tileSet() != &tileSet)
            continue;
        marks.add(map->backgroundTileIndex());
        if (map == leftOut)
            continue;
        const Map::Snapshot content = map->snapshot();
        marks.add(content.tiles);
        marks.add(content.objects);
    }
    const QList<QPointer<MapObjects>> blockSets = project ? project->blockSets() : QList<QPointer<MapObjects>>();
    for (const QPointer<MapObjects> &blocks : blockSets) {
        if (blocks->tileSet() != &tileSet)
            continue;
        for (const QPointer<TileAnimation> &animation : blocks->animations()) {
            for (const auto &frame : animation->state().frames)
                marks.add(frame.cells);
        }
    }
    return marks.shown();
}

bool TileUse::isBlank(const TileSet &tileSet, int tile)
{
    const Tile *is = tileSet.tile(tile);
    if (!is || is->attributes() != Tile::TA_NONE || is->value() != 0)
        return false;
    const Tile::Pixels pixels = is->pixels();
    return std::all_of(pixels.cbegin(), pixels.cend(), [](uchar pixel) { return pixel % 16 == 0; });
}
