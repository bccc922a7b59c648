#pragma once

#include "nextdata/option.h"

namespace NextData {

/// Which of the numbered things of an asset are written: tiles, or sprites.
struct Range
{
    int first = 0;
    int count = 0;

    /// The options "first" and "count".
    [[nodiscard]] static QList<Option> options();

    /// What these options choose of so many things; a failure when it is not there.
    [[nodiscard]] static Result<Range> chosen(const OptionValues &values, int available);
};

} // namespace NextData
