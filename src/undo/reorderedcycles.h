#pragma once

#include "model/colourcycle.h"

class PaletteOrder;

/// What becomes of the ranges of a palette, whose colours go round, when its entries change places.
struct ReorderedCycles
{
    ColourCycles::List kept;
    /// Those whose entries are no longer next to each other, as they were before.
    ColourCycles::List lost;

    /// A range goes where its entries go. Where these follow each other in the opposite order, its direction turns, so
    /// that colours go round in pictures as before.
    [[nodiscard]] static ReorderedCycles of(const ColourCycles::List &cycles, const PaletteOrder &order);
};
