#pragma once

#include "app/imports/importagain.h"

class Map;

/// A map and its tile set, made of a picture that is another one now. Cells that show the same pixels as before stay
/// as they are. The palette gets colours for which it has room among those that no tile uses.
[[nodiscard]] ImportedAgain mapAgain(Map &map, const ImportRecord &record, QUndoStack *stack, QWidget *window);
