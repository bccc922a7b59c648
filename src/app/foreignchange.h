#pragma once

#include <QString>

class QWidget;

/// A change of the open project's file by another program.
struct ForeignChange
{
    /// What the person wants: the file as it is on the disk now, the project as it is here, or to decide later.
    enum Answer { Load, Keep, Cancel };

    QString filePath;
    bool hasUnsavedChanges = false; ///< which loading the file would drop
};

/// Asks over a window what becomes of the two versions. What loses nothing is proposed.
[[nodiscard]] ForeignChange::Answer askAboutForeignChange(QWidget *parent, const ForeignChange &change);
