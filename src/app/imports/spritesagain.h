#pragma once

#include "app/imports/importagain.h"

class SpriteBank;
struct SpriteImport;

/// What the import of a picture, which made so many sprites from a number on, is to be remembered by.
[[nodiscard]] QJsonObject choicesOf(const SpriteImport &import, int first, int count);

/// A bank that was made of a picture which is another one now. Its palette, where it was made with the bank and nothing
/// else has it, gets new colours in entries that no sprite uses any more.
[[nodiscard]] ImportedAgain spritesAgain(SpriteBank &bank, const ImportRecord &record, QUndoStack *stack,
                                         QWidget *window);
