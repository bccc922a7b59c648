#pragma once

#include "model/animation.h"
#include "model/tilemap.h"
#include "undo/editside.h"
#include "undo/numbering.h"

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>

/// The difference between two contents of a grid of cells: what an undo step keeps of a map layer, or of a frame of
/// an animation.
///
/// It holds the runs of cells that differ, so its size follows the edit and not the grid; only when
/// the edit resized the grid or moved its content does it hold both contents. Runs that span a whole row share it with
/// the contents that they were made from, and rows that differ as the one above does share what that one holds.
template <typename Cell>
class GridChange
{
public:
    using Row = QList<Cell>;
    using Rows = QList<Row>;

    /// shift tells by how many cells the edit moved the content, as resizing may.
    GridChange(const Rows &before, const Rows &after, QPoint shift = {});

    [[nodiscard]] bool changesNothing() const { return !m_resized && m_lines.isEmpty(); }

    /// Gives the cells that differ their content from before or after the change, and leaves the others as
    /// they are. Cells outside the grid are skipped. A grid that was resized keeps, where it still reaches, the cells
    /// that hold something else than they did on the other side.
    void apply(EditSide side, Rows &rows) const;
    /// The same, but only where cells hold what they did on the other side.
    void applyWhereUntouched(EditSide side, Rows &rows) const;

    /// The same change after what the cells name got other numbers.
    [[nodiscard]] GridChange renumbered(const Renumbering &renumbering) const;
    /// The same change after the content of a grid that it did not resize was moved by others.
    [[nodiscard]] GridChange moved(QPoint cells) const;

private:
    /// Neighbouring cells of a row that differ.
    struct Run
    {
        int column;
        int count;

        bool operator==(const Run &) const = default;
    };
    /// All that differ in a row, from left to right, and what they held, one run behind the other.
    struct Line
    {
        qsizetype row;
        QList<Run> runs;
        Row before;
        Row after;
    };

    [[nodiscard]] static bool differsAs(const Line &line, const Row &before, const Row &after);
    [[nodiscard]] static Line lineOf(qsizetype row, const Row &before, const Row &after);
    static void write(Rows &rows, const Line &line, const Row &cells);
    static void writeOver(const Row &expected, Rows &rows, const Line &line, const Row &cells);
    [[nodiscard]] Rows resized(EditSide side, const Rows &rows) const;

    QList<Line> m_lines; ///< from top to bottom
    bool m_resized;
    // these only when resized
    Rows m_before;
    Rows m_after;
    QPoint m_shift; ///< by how many cells the content moved
};

extern template class GridChange<TileMap::TileData>;
extern template class GridChange<AnimationFrame::Cell>;

using LayerChange = GridChange<TileMap::TileData>;
using FrameChange = GridChange<AnimationFrame::Cell>;
