#pragma once

#include <QtGlobal>

#include <algorithm>
#include <limits>

/// A count as tr() takes it, which chooses the plural form by it.
constexpr int plural(qint64 count)
{
    return int(std::min<qint64>(count, std::numeric_limits<int>::max()));
}
