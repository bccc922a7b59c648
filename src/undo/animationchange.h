#pragma once

#include "model/animation.h"
#include "model/tileanimation.h"

/// Takes an animation that is `now` from one state to another: exactly there when it is still in the first one, else
/// only as far as the two differ, so that what else was changed since stays.
[[nodiscard]] Animation::State changed(const Animation::State &now, const Animation::State &from,
                                       const Animation::State &to);
[[nodiscard]] TileAnimation::State changed(const TileAnimation::State &now, const TileAnimation::State &from,
                                           const TileAnimation::State &to);
