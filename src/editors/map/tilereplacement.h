#pragma once

#include "model/cellruns.h"
#include "model/map.h"

#include <QList>
#include <QPointer>
#include <QString>

class QUndoCommand;

namespace MapEditor {

/// One tile in place of another on maps, in the orientation that each cell has, with its own palette offset.
struct TileReplacement
{
    int from;
    int to;

    /// Does it in runs of cells of a map; whether any cell became another one.
    bool apply(Map &map, const CellRuns::Runs &within) const;
    /// Does it on whole maps as one step, which the caller owns; null when no cell became another one.
    [[nodiscard]] QUndoCommand *applyToAll(const QList<QPointer<Map>> &maps, const QString &text) const;
};

} // namespace MapEditor
