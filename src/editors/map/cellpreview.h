#pragma once

#include "editors/map/cellink.h"
#include "editors/map/mapviewport.h"

#include <functional>

class QPainter;

namespace MapEditor::CellPreview {

/// Paints how runs of a map's tile layer would look with these cells, as far as the viewport shows them.
void paint(QPainter &painter, const Map &map, const MapViewport &viewport, const QList<TileMap::Run> &runs,
           const std::function<TileMap::TileData(QPoint)> &cellAt);
/// Paints how runs of a map's cells would look with an ink.
void paint(QPainter &painter, const Map &map, const MapViewport &viewport, const QList<TileMap::Run> &runs,
           const CellInk &ink);
/// The same for all cells of an area.
void paint(QPainter &painter, const Map &map, const MapViewport &viewport, const QRect &area, const CellInk &ink);

} // namespace MapEditor::CellPreview
