#pragma once

#include "model/tilemap.h"

#include <QList>

/// The difference between two contents of a grid of cells: what an undo step keeps of a map layer.
///
/// It holds the runs of cells that differ, so its size follows the edit and not the grid; only when
/// the edit changed the grid's size does it hold both contents. Runs that span a whole row share it with
/// the contents that they were made from.
class GridChange
{
public:
    GridChange(const TileMap::Rows &before, const TileMap::Rows &after);

    enum class Side { Before, After };

    /// Gives the cells that differ their content from before or after the change, and leaves the others as
    /// they are. Cells outside the grid are skipped.
    void apply(Side side, TileMap::Rows &rows) const;

private:
    /// Neighbouring cells of a row that differ.
    struct Run
    {
        qsizetype row;
        qsizetype column;
        TileMap::Row before;
        TileMap::Row after;
    };

    void addRunsOf(qsizetype row, const TileMap::Row &before, const TileMap::Row &after);

    QList<Run> m_runs;
    bool m_resized;
    TileMap::Rows m_before; ///< these two only when resized
    TileMap::Rows m_after;
};
