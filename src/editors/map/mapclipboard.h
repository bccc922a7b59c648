#pragma once

#include "model/cellruns.h"

#include <QImage>
#include <QRect>
#include <QSize>

class Map;

/// The clipboard, as far as it holds cells of a map's tile layer.
namespace MapClipboard {

// False, and nothing is copied, without cells or with more than the clipboard should hold.
[[nodiscard]] bool copy(const Map &map, const QRect &cells);
/// Cells that are no rectangle; the others around them count as never written.
[[nodiscard]] bool copy(const Map &map, const CellRuns::Runs &cells);
/// One pixel a pixel, and which palette it is drawn with; pixels of the transparency index are transparent.
[[nodiscard]] bool copyPicture(const Map &map, const QRect &cells, int transparencyIndex);

/// The size of what the clipboard holds for a map; empty when that is nothing, damaged, or made of other tiles.
[[nodiscard]] QSize sizeFor(const Map *map);

/// The picture that the clipboard holds; null when that is nothing, or cells of whatever map.
[[nodiscard]] QImage picture();
/// Whether it offers one, which need not be one that can be read.
[[nodiscard]] bool mayHoldPicture();

} // namespace MapClipboard
