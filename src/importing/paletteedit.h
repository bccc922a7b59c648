#pragma once

#include "nextdata/content.h"

class Palette;
class QUndoStack;

namespace Importing {

/// Gives entries of a palette other words, and the palette another transparent entry if the content has one, as one
/// undo step on a stack; without a stack it cannot be undone. Undo leaves colours that were edited since as they are.
void replaceEntries(Palette &palette, const NextData::PaletteContent &content, QUndoStack *stack);

} // namespace Importing
