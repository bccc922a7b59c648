#pragma once

#include "importing/importchoices.h"
#include "importing/incomingassets.h"
#include "model/result.h"

#include <QUuid>

#include <functional>

class Project;
class QUndoStack;

namespace Importing {

/// The undo stack for a change of the asset of an id; null leaves it unrecorded.
using StackProvider = std::function<QUndoStack *(const QUuid &)>;

/// The assets that were made or changed, each null when there is none.
struct AddedAssets
{
    QUuid palette{};
    QUuid tileSet{};
    QUuid blocks{};
    QUuid map{};
    QUuid sprites{};
    QUuid image{};

    bool operator==(const AddedAssets &) const = default;
};

/// Why what comes in cannot become what was chosen, as a sentence; empty when it can.
[[nodiscard]] QString problemOf(const Project &project, const IncomingAssets &incoming, const ImportChoices &choices);

/// The number in the target from which on what comes in is put there; ImportChoices::AtTheEnd without a target that has
/// numbers.
[[nodiscard]] int beginningIn(const Project &project, const ImportChoices &choices);

/// Makes the assets, or puts what comes in into the chosen one, as one undo step. Where there is a problem nothing is
/// changed. Steps of tile sets and sprite banks are recorded by whoever watches their structure.
Result<AddedAssets> addTo(Project &project, const IncomingAssets &incoming, const ImportChoices &choices,
                          const StackProvider &stackFor);

} // namespace Importing
