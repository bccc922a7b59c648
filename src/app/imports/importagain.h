#pragma once

#include "app/imports/importrecord.h"
#include "importing/addition.h"

#include <QList>
#include <QString>
#include <QUuid>

class Project;
class QUndoStack;
class QWidget;

/// What came of bringing an asset up to date with the file that it was made of.
struct ImportedAgain
{
    QString failure{}; ///< why it is as it was; empty when it is up to date
    QString told{}; ///< what was done, and what was lost
    QJsonObject choices{}; ///< to be remembered from now on
    QList<QUuid> together{}; ///< what was made of the file with it, and is up to date as well

    /// Does it in one step on the asset's stack, which is where structural edits of it are recorded as well. What was
    /// made of the asset since keeps looking as it does: tiles and sprites that are still in the picture keep their
    /// numbers, others take the numbers of those that are gone from it, as far as nothing else shows them, and what
    /// remains comes behind all that there are.
    [[nodiscard]] static ImportedAgain run(Project &project, const QUuid &asset, const ImportRecord &record,
                                           const Importing::StackProvider &stackFor, QWidget *window);
};
