#pragma once

#include "app/imports/importagain.h"
#include "importing/addition.h"

/// All that was made of one file, as it is remembered with the choices for it.
struct MadeAssets
{
    Importing::AddedAssets assets;

    /// Those that there are.
    [[nodiscard]] QList<QUuid> ids() const;
    /// The choices with these, and with what they hold by now.
    [[nodiscard]] QJsonObject addedTo(QJsonObject choices, const Project &project) const;

    [[nodiscard]] static bool areIn(const QJsonObject &choices);
    [[nodiscard]] static MadeAssets of(const QJsonObject &choices);
};

/// What is left of the assets that were made of one file, or of a set of files, which holds something else now. Tiles,
/// cells and sprites that look as before stay as they are; those of a data set are what the files say, number by
/// number. Animations are known by their names. All is one step of a stack.
[[nodiscard]] ImportedAgain filesAgain(Project &project, const ImportRecord &record, QUndoStack *stack,
                                       QWidget *window);
