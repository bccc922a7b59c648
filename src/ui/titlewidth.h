#pragma once

class QMessageBox;
class QString;

/// The width, in pixels, that a window needs to show its title in full: many window systems put the name of
/// the program behind it, and buttons beside it.
[[nodiscard]] int titleWidth(const QString &title);

/// Makes a box wide enough for its title. To be called when its texts are set: an informative text that is set
/// later undoes it.
void widenForTitle(QMessageBox &box);
