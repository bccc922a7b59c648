#include "undo/reorderedcycles.h"

#include "undo/paletteorder.h"

#include <algorithm>

namespace {

/// Whether the entries of a range come to follow each other downwards, from anywhere in it round to there.
bool turnsRound(const ColourCycle &cycle, const PaletteOrder &order)
{
    const int count = cycle.last - cycle.first + 1;
    if (count < 3)
        return false; // two colours change places whichever way they go
    for (int i = 0; i < count; ++i) {
        const int here = order(cycle.first + i);
        const int next = order(cycle.first + (i + 1) % count);
        if ((here - next + count) % count != 1)
            return false;
    }
    return true;
}

} // namespace

ReorderedCycles ReorderedCycles::of(const ColourCycles::List &cycles, const PaletteOrder &order)
{
    ReorderedCycles result;
    for (const ColourCycle &cycle : cycles) {
        ColourCycle moved = cycle;
        moved.first = moved.last = order(cycle.first);
        for (int entry = cycle.first; entry <= cycle.last; ++entry) {
            moved.first = std::min(moved.first, order(entry));
            moved.last = std::max(moved.last, order(entry));
        }
        if (moved.last - moved.first != cycle.last - cycle.first) {
            result.lost.append(cycle);
            continue;
        }
        moved.backwards = cycle.backwards != turnsRound(cycle, order);
        result.kept.append(moved);
    }
    return result;
}
