#pragma once

#include "model/tilemap.h"

#include <QPoint>
#include <QRect>

#include <utility>

/// Cells of a grid as runs from left to right: the shapes that are painted on a map.
///
/// All of them are in the order of their rows, and hold nothing outside a clip.
namespace CellRuns {

using Runs = QList<TileMap::Run>;

/// The cells on the straight line between two, both included.
[[nodiscard]] Runs line(QPoint from, QPoint to, const QRect &clip);
/// The edge of a rectangle, or all of it.
[[nodiscard]] Runs rectangle(const QRect &cells, bool filled, const QRect &clip);
/// The ellipse that fills a rectangle: its edge, one cell thick, or all of it.
[[nodiscard]] Runs ellipse(const QRect &cells, bool filled, const QRect &clip);

/// The cells around start that hold the same as it and hang together side by side. All cells that were never written
/// count as the same.
[[nodiscard]] Runs connected(const TileMap::Rows &rows, QPoint start, const QRect &clip);

/// The cells of a grid that show a tile, however it is turned.
[[nodiscard]] Runs ofTile(const TileMap::Rows &rows, int tile);

[[nodiscard]] Runs moved(Runs runs, QPoint by);
/// What of them lies in an area.
[[nodiscard]] Runs clipped(const Runs &runs, const QRect &area);
[[nodiscard]] QRect bounds(const Runs &runs);
/// Those of rows.
[[nodiscard]] std::pair<Runs::const_iterator, Runs::const_iterator> inRows(const Runs &runs, int first, int last);

} // namespace CellRuns
