#pragma once

#include <QList>

namespace Importing {

/// Frames that are shown for times of their own, in an animation whose frames are all shown for the same time: some
/// frames come several times.
struct AnimationTiming
{
    static constexpr int MostFrames = 256; ///< that an animation gets

    int delay = 0; ///< ticks of 20 ms
    QList<int> frames; ///< numbers of the frames in the order in which they are shown
    bool isExact = true; ///< whether all are shown for their time, as nearly as ticks tell it

    /// The order in which frames are shown, and for how many milliseconds each.
    [[nodiscard]] static AnimationTiming of(const QList<int> &order, const QList<int> &milliseconds);
};

} // namespace Importing
