#pragma once

#include "editors/map/paintbar.h"
#include "editors/map/replacetiledialog.h"
#include "editors/map/tilereplacement.h"
#include "ui/enums.h"

#include <QObject>
#include <QPointer>

namespace MapEditor {

class CellDialog;
class MapGrid;
class MapOverview;
class TerrainDialog;
class View;

/// What a map editor offers to paint maps fast, beyond its grid and the usual tools: the bar with stamps and terrains,
/// the commands of the Map menu with their dialogs, and the overview.
class PaintDesk : public QObject
{
    Q_OBJECT

public:
    /// A child of the view.
    PaintDesk(View *view, const QPointer<PaintKit> &kit);

    [[nodiscard]] PaintBar *bar() const { return m_bar; }
    [[nodiscard]] bool isOverviewVisible() const;

public slots:
    /// Takes one of the tools that not every grid has.
    void takeTool(Quenmora::Ui::ToolButton tool);
    /// Paints with a stamp from now on.
    void useStamp(const Stamp &stamp);
    /// The same of one that was picked just now: it also goes onto the clipboard and to the front of the stamps.
    void pickStamp(const Stamp &stamp);
    /// Picks tiles beside each other as a stamp: the indices of its rows.
    void pickTiles(const QList<QList<int>> &rows);
    void selectSameTile();
    void showReplaceDialog();
    /// Puts a tile in place of another, in the selection, the map, or all maps of the project with its tile set.
    void replaceTile(const TileReplacement &replacement, ReplaceTileDialog::Scope scope);
    void showCellDialog();
    void showTerrainDialog();
    void setOverviewVisible(bool visible);

private:
    View *m_view;
    MapGrid *m_grid;
    PaintBar *m_bar;
    ReplaceTileDialog *m_replaceDialog = nullptr;
    CellDialog *m_cellDialog = nullptr;
    TerrainDialog *m_terrainDialog = nullptr;
    QPointer<MapOverview> m_overview;
};

} // namespace MapEditor
