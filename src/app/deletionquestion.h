#pragma once

#include "app/projecttree/projecttree.h"

#include <QString>
#include <QUuid>

#include <optional>

class Project;

/// What a person is asked before an asset is deleted as a whole, for which there is no undo.
struct DeletionQuestion
{
    QString title;
    QString text; ///< names the asset
    QString consequences; ///< what goes with it, or loses it
};

/// The question for an asset; none when it does not exist, or is needed by another one and stays in any case.
[[nodiscard]] std::optional<DeletionQuestion> deletionQuestion(const Project &project, ProjectTree::ProjectNode node,
                                                               const QUuid &id);
