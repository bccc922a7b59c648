#include "importing/animationtiming.h"

#include <algorithm>
#include <numeric>

namespace Importing {

AnimationTiming AnimationTiming::of(const QList<int> &order, const QList<int> &milliseconds)
{
    constexpr int Tick = 20;
    AnimationTiming timing;
    QList<int> ticks;
    for (const int time : milliseconds)
        ticks.append(std::clamp((time + Tick / 2) / Tick, 1, 0xFFFF));
    if (ticks.isEmpty())
        return timing;
    timing.delay = std::accumulate(ticks.cbegin(), ticks.cend(), 0, [](int a, int b) { return std::gcd(a, b); });
    const qint64 sum = std::accumulate(ticks.cbegin(), ticks.cend(), qint64(0));
    timing.isExact = sum / timing.delay <= std::max<qint64>(MostFrames, ticks.size());
    if (!timing.isExact)
        timing.delay = int(sum / ticks.size()); // the whole takes as long
    for (qsizetype i = 0; i < order.size(); ++i)
        timing.frames.append(QList<int>(timing.isExact ? ticks[i] / timing.delay : 1, order[i]));
    return timing;
}

} // namespace Importing
