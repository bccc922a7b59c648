#pragma once

#include <QImage>
#include <QSize>

class Map;

/// A small picture of a map's tile layer in the colours that are shown now, stretched to a size. It costs as much as
/// the picture is large: of a map with more cells than that, the cells in the middle of each pixel's part are looked
/// at, in their average colours.
[[nodiscard]] QImage overviewPicture(const Map &map, QSize size);
