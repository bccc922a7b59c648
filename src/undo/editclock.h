#pragma once

#include <QtGlobal>

#include <functional>

/// The clock that decides which edits are close enough in time to become one undo step.
namespace EditClock {

/// Milliseconds since the epoch.
[[nodiscard]] qint64 now();

/// Reads the time from source instead of the system clock; an empty source gives the system clock back.
/// Lets a test set the time between two edits without waiting for it.
void setSource(std::function<qint64()> source);

} // namespace EditClock
