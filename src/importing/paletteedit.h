#pragma once

#include "nextdata/content.h"

class Palette;
class Project;
class QObject;
class QUndoStack;

namespace Importing {

/// Gives entries of a palette other words, and the palette another transparent entry if the content has one, as one
/// undo step on a stack; without a stack it cannot be undone. Undo leaves colours that were edited since as they are.
void replaceEntries(Palette &palette, const NextData::PaletteContent &content, QUndoStack *stack);

/// The same for the ranges whose colours go round.
void replaceCycles(const Project &project, Palette &palette, const ColourCycles::List &cycles, QUndoStack *stack);

/// Whether other assets than this one draw with a palette. The scratch image, which takes one by itself, does not
/// count.
[[nodiscard]] bool hasOtherUsers(const Project &project, const Palette &palette, const QObject &user);

} // namespace Importing
