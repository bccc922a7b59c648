#pragma once

#include "model/palette.h"

#include <QList>
#include <QRgb>
#include <QString>

#include <optional>

class Project;
class QUndoStack;

/// Reads the words of a palette file, or of a picture: its colour table, or else the first distinct colours
/// of its pixels, row by row, as colours of the Next, at most 256; entries beyond them stay as they are. Colours that
/// are all the machine's keep their levels. Gives the words for which there was no room; no list, and nothing changes,
/// when the file is neither.
[[nodiscard]] std::optional<QList<quint16>> readPaletteFile(const QString &fileName, Palette &words);

/// Gives a palette the words of another, as one undo step on its stack; without a stack it cannot be undone.
void replaceWords(Palette &palette, const Palette &words, QUndoStack *stack);

/// A new palette with these colours, at most 256, snapped to colours of the Next. They are no edit of it.
[[nodiscard]] Palette *createPaletteOf(Project &project, const QString &name, const QList<QRgb> &colours);
