#pragma once

#include "pictures/ninebitcolour.h"

#include <array>
#include <vector>

/// A few of the machine's colours that stand for many.
///
/// There are 512 colours, so a picture of any size is a histogram of 512 counts, and the choice can be improved until
/// nothing gets better: a median cut that splits where most error goes away, and then every chosen colour in the middle
/// of those that it stands for.
namespace ColourChoice {

/// How often each colour occurs.
using Counts = std::array<qint64, NineBitColour::Count>;
using Colours = std::vector<quint16>;

/// At most this many colours for these counts: the ones that occur when they are few enough. Colours that were chosen
/// before are the beginning of a second attempt, so the result is never worse than they are.
[[nodiscard]] Colours choose(const Counts &counts, int most, const Colours &before = {});

/// The squared distance from each colour to the nearest of those chosen; to nothing it is more than any other.
using Distances = std::array<int, NineBitColour::Count>;
[[nodiscard]] Distances distancesTo(const Colours &chosen);

/// What the choice makes wrong in sum: squared distances, one for each count.
[[nodiscard]] qint64 errorOf(const Counts &counts, const Colours &chosen);

} // namespace ColourChoice
