#pragma once

#include "importing/importchoices.h"

#include <QList>
#include <QRgb>

class Project;

namespace Importing {

/// The 256 words of the palette with which what is made will be shown: that of the target, the chosen one, or the
/// standard one, which a new palette holds where the file brings no colours.
[[nodiscard]] QList<quint16> wordsInUse(const Project &project, const ImportChoices &choices);

/// Whether that is a palette that there is.
[[nodiscard]] bool isPaletteGiven(const Project &project, const ImportChoices &choices);

/// The entry of it that is not drawn, or that of the target; the usual one, where it has none.
[[nodiscard]] int clearInUse(const Project &project, const ImportChoices &choices);

/// Such words as colours.
[[nodiscard]] QList<QRgb> coloursOf(const QList<quint16> &words);

} // namespace Importing
