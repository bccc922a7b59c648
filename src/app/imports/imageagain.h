#pragma once

#include "app/imports/importagain.h"

class Image;
struct ImageImport;

/// What the import of a picture into an image is to be remembered by.
[[nodiscard]] QJsonObject choicesOf(const ImageImport &import);

/// An image into which a picture was brought that is another one now. A palette that was made for it, and that nothing
/// else has, gets its new colours.
[[nodiscard]] ImportedAgain imageAgain(Image &image, const ImportRecord &record, QUndoStack *stack);
