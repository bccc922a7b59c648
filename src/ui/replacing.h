#pragma once

class QFileDialog;

/// Whether the file that was chosen in a dialog for saving may be written. A dialog of the desktop that knows
/// nothing of the default suffix, such as GTK's, has only asked about the name as it was typed; where the
/// completed name is that of another file, this asks whether to replace it.
[[nodiscard]] bool mayReplaceChosenFile(QFileDialog &dialog);
