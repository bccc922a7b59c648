#pragma once

#include <QList>
#include <QRect>
#include <QRegion>
#include <QtGlobal>

namespace MapEditor {

class MapGrid;

/// The parts of a grid that show another frame after a tick of the clock than before it: placed animations, whose areas
/// are told in cells, and animated sprites.
[[nodiscard]] QRegion changedFrames(const MapGrid &grid, const QList<QRect> &placements, qint64 now);

} // namespace MapEditor
