#pragma once

#include "model/animation.h"

#include <QImage>
#include <QList>
#include <QPoint>
#include <QPointer>

#include <functional>
#include <optional>

class Map;

/// The pictures that show how something looks in the game while it is being painted.
namespace Previews {

using CellPicture = std::function<QImage(const AnimationFrame::Cell &)>;

/// An indexed picture and its eight neighbours, which are the same.
[[nodiscard]] QImage seamless(const QImage &picture);

/// The first of the animations, which may be null, that shows a tile or sprite in a frame.
[[nodiscard]] Animation *animationShowing(const QList<Animation *> &animations, int index);
/// A frame of an animation. Frames are counted on and on, as they are played again and again.
[[nodiscard]] QImage frame(const Animation &animation, int number, const CellPicture &picture);
/// Milliseconds between its frames; 0 when there is one alone.
[[nodiscard]] int interval(const Animation &animation);
/// How a sprite or tile looked in the frame before the first one that shows it; null when there is none.
[[nodiscard]] QImage before(const Animation &animation, int index, const CellPicture &picture);

/// Finds a place of a tile on a map, and finds it again as long as it is there.
class PlaceOnMap
{
public:
    /// Cells that are looked at, at most: what is asked for again and again must not take long.
    static constexpr qint64 MostCells = 4'000'000;
    /// Cells that may be looked at again every time.
    static constexpr qint64 FewCells = 50'000;

    /// Nothing when the tile is not among the cells that are looked at.
    [[nodiscard]] std::optional<QPoint> find(const Map &map, int tile);

private:
    QPointer<const Map> m_map;
    int m_tile = -1;
    std::optional<QPoint> m_place;
    bool m_searched = false;
};

/// A cell of a map and its neighbours, so many to each side.
[[nodiscard]] QImage surroundings(const Map &map, QPoint cell, int neighbours);

} // namespace Previews
