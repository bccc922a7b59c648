#pragma once

#include "model/colourcycle.h"
#include "undo/paletteusers.h"

#include <QPointer>
#include <QUndoCommand>

class Project;

/// Undo step of a palette whose entries changed places, and of all pictures that are drawn with it. It never merges.
///
/// Undo moves the entries back, with the pixels that the pictures have by then. The ranges whose colours go round move
/// with their entries; those that could not come back with undo, and with redo, unless others have their entries by
/// then.
class PaletteOrderCommand final : public QUndoCommand
{
public:
    /// The order has not been applied yet.
    PaletteOrderCommand(const QString &text, Project *project, Palette *palette, const PaletteOrder &order);
    ~PaletteOrderCommand() override;

    void undo() override;
    void redo() override;

private:
    void apply(const PaletteOrder &order) const;
    /// Moves the ranges as far as they can, and brings back those that could not the last time.
    void moveCycles(const PaletteOrder &order);

    QPointer<Project> m_project;
    QPointer<Palette> m_palette;
    PaletteOrder m_order;
    ColourCycles::List m_lost; ///< ranges that were torn apart the last time
};
