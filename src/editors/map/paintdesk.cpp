#include "editors/map/paintdesk.h"

#include "editors/map/celldialog.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/mapoverview.h"
#include "editors/map/maptoolpalette.h"
#include "editors/map/terraindialog.h"
#include "model/animatedblocks.h"
#include "model/project.h"
#include "ui/emptyhint.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>

using namespace Quenmora::Ui;

namespace MapEditor {

namespace {

/// Costs a look at one row where the rows share their storage, as in a new map.
bool isBlank(const Map &map)
{
    if (!map.tileLayer() || !map.sprites().isEmpty() || !map.animatedBlocks()->list().isEmpty())
        return false;
    const TileMap::Rows rows = map.tileLayer()->rows();
    for (qsizetype y = 0; y < rows.size(); ++y) {
        const bool isSeen = y > 0 && rows[y].isSharedWith(rows[y - 1]);
        if (!isSeen && std::ranges::any_of(rows[y], [](const TileMap::TileData &cell) { return cell.used; }))
            return false;
    }
    return true;
}

} // namespace

PaintDesk::PaintDesk(View *view, const QPointer<PaintKit> &kit)
    : QObject(view)
    , m_view(view)
    , m_grid(view->grid())
    , m_bar(new PaintBar(view))
{
    connect(m_bar, &PaintBar::stampChosen, this, &PaintDesk::pickStamp);
    connect(m_bar, &PaintBar::paletteOffsetChanged, m_grid, &MapGrid::setPaletteOffset);
    connect(m_bar, &PaintBar::terrainChanged, m_grid, &MapGrid::setTerrain);
    connect(m_bar, &PaintBar::finished, m_grid, qOverload<>(&QWidget::setFocus));
    connect(m_bar, &PaintBar::terrainsRequested, this, &PaintDesk::showTerrainDialog);
    connect(m_grid, &MapGrid::stampPicked, this, &PaintDesk::pickStamp);
    m_bar->setKit(kit);
    new EmptyHint(m_grid, [this] {
        const QPointer<Map> map = m_view->map();
        return map && isBlank(*map) ? tr("Choose a tile in the Tiles dock and paint here: the left button paints, the "
                                         "right one clears")
                                    : QString();
    });
}

void PaintDesk::takeTool(ToolButton tool)
{
    m_grid->setMode(tool);
    if (tool == PaintTerrain && m_grid->brush().terrain.tiles.isEmpty())
        showTerrainDialog(); // there is none to paint yet
}

void PaintDesk::useStamp(const Stamp &stamp)
{
    // it lies as it is; turned it is from now on
    for (const ToolButton turn : {RotateCW, Flip, Mirror})
        m_view->toolPalette()->setActionChecked(turn, false);
    m_grid->setStamp(stamp);
    constexpr std::array Painting{Draw, Fill, Line, Rectangle, RectangleFill, Circle, CircleFill};
    if (!std::ranges::count(Painting, m_grid->mode()))
        m_grid->setMode(Draw);
}

void PaintDesk::pickStamp(const Stamp &stamp)
{
    const auto written = [](const TileMap::TileData &cell) { return cell.used; };
    const QPointer<Map> map = m_view->map();
    if (!map || std::ranges::none_of(stamp.cells(), written))
        return;
    useStamp(stamp);
    QGuiApplication::clipboard()->setMimeData(stamp.toMimeData(map->tileSetId())); // the clipboard owns it
    if (const QPointer<PaintKit> kit = m_bar->kit())
        kit->addStamp(stamp);
}

void PaintDesk::pickTiles(const QList<QList<int>> &rows)
{
    const QPointer<TileSet> tiles = m_view->map() ? m_view->map()->tileSet() : nullptr;
    if (!tiles || rows.isEmpty())
        return;
    QList<TileMap::TileData> cells;
    for (const QList<int> &row : rows) {
        for (const int index : row) {
            const bool there = index >= 0 && index < tiles->count();
            cells.append(there ? TileMap::TileData{.index = index, .offset = tiles->tileOffset(index), .used = true}
                               : TileMap::TileData());
        }
    }
    pickStamp(Stamp(QSize(int(rows.first().size()), int(rows.size())), cells));
}

void PaintDesk::selectSameTile()
{
    m_grid->selectCurrentTile();
}

// Replacing

void PaintDesk::showReplaceDialog()
{
    const QPointer<Map> map = m_view->map();
    if (!map)
        return;
    if (!m_replaceDialog) {
        m_replaceDialog = new ReplaceTileDialog(m_view);
        connect(m_replaceDialog, &QDialog::accepted, this, [this] {
            replaceTile({m_replaceDialog->from(), m_replaceDialog->to()}, m_replaceDialog->scope());
        });
    }
    const QRect selection = m_grid->selection();
    const QPoint sample = selection.isEmpty() ? m_grid->pointer().cell : selection.topLeft();
    const QPointer<TileMap> layer = map->tileLayer();
    m_replaceDialog->propose(map, layer ? layer->cellAt(sample).index : 0, std::max(m_grid->currentTileIndex(), 0),
                             !selection.isEmpty());
    m_replaceDialog->open();
}

void PaintDesk::replaceTile(const TileReplacement &replacement, ReplaceTileDialog::Scope scope)
{
    const QPointer<Map> map = m_view->map();
    const auto *project = map ? qobject_cast<Project *>(map->parent()) : nullptr;
    if (!map || !map->tileLayer())
        return;
    if (scope != ReplaceTileDialog::AllMaps || !project) {
        m_grid->beginEdit();
        replacement.apply(*map,
                          scope == ReplaceTileDialog::Selection
                              ? m_grid->selected().selectedRuns()
                              : CellRuns::ofTile(map->tileLayer()->rows(), replacement.from));
        m_grid->endEdit(tr("Replace Tile"));
        m_grid->update();
        return;
    }
    QList<QPointer<Map>> maps = project->maps();
    maps.removeIf([&map](const QPointer<Map> &other) { return !other || other->tileSet() != map->tileSet(); });
    m_grid->record(replacement.applyToAll(maps, tr("Replace Tile in All Maps")));
    m_grid->update(); // the others are seen when their tabs are brought to the front
}

// Where one is

void PaintDesk::showCellDialog()
{
    const QPointer<Map> map = m_view->map();
    if (!map)
        return;
    if (!m_cellDialog) {
        m_cellDialog = new CellDialog(m_view);
        connect(m_cellDialog, &QDialog::accepted, this, [this] { m_grid->showCell(m_cellDialog->cell()); });
    }
    m_cellDialog->propose(m_grid->viewport().visibleCells().center(), map->size());
    m_cellDialog->open();
}

bool PaintDesk::isOverviewVisible() const
{
    return m_overview && m_overview->isVisibleTo(m_grid);
}

void PaintDesk::setOverviewVisible(bool visible)
{
    if (!m_overview && visible)
        m_overview = new MapOverview(m_grid);
    if (m_overview)
        m_overview->setVisible(visible);
}

void PaintDesk::showTerrainDialog()
{
    const QPointer<PaintKit> kit = m_bar->kit();
    if (!kit || !kit->tileSet())
        return;
    if (!m_terrainDialog) {
        m_terrainDialog = new TerrainDialog(m_view);
        connect(m_terrainDialog, &QDialog::accepted, this, [this] {
            if (m_bar->kit())
                m_bar->kit()->setTerrains(m_terrainDialog->terrains());
        });
    }
    m_terrainDialog->edit(kit->tileSet(), kit->terrains());
    m_terrainDialog->open();
}

} // namespace MapEditor
