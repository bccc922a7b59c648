#pragma once

#include "undo/paletteusers.h"

#include <QPointer>
#include <QUndoCommand>

class Project;

/// Undo step of a palette whose entries changed places, and of all pictures that are drawn with it. It never merges.
///
/// Undo moves the entries back, with the pixels that the pictures have by then.
class PaletteOrderCommand final : public QUndoCommand
{
public:
    /// The order has not been applied yet.
    PaletteOrderCommand(const QString &text, Project *project, Palette *palette, const PaletteOrder &order);
    ~PaletteOrderCommand() override;

    void undo() override { apply(m_order.inverse()); }
    void redo() override { apply(m_order); }

private:
    void apply(const PaletteOrder &order) const;

    QPointer<Project> m_project;
    QPointer<Palette> m_palette;
    PaletteOrder m_order;
};
