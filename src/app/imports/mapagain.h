#pragma once

#include "app/imports/importagain.h"

class Map;
class TileSet;

/// A tile set, and the map with it unless that was deleted, made of a picture that is another one now (renewTiles()).
[[nodiscard]] ImportedAgain mapAgain(TileSet *tileSet, Map *map, const ImportRecord &record, QUndoStack *stack,
                                     QWidget *window);
